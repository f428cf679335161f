// CProbitTabDlg: the probit regression dialog (template 101): the model
// page, then the shared resampling page.
#pragma once

#include "framework/BootStrapDlg.h"
#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Regression/KDGProbitDlg.h"
#include "private/Regression/KDGProbitTabData.h"

class CProbitTabDlg : public CGUIDataDlg<CProbitTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CProbitTabDlg)
public:
    explicit CProbitTabDlg(CWnd* parent = nullptr);

    const char* GetSourceFile() const override { return "Source/KDGProbitTabDlg"; }
    CProbitDlg& GetProbitDlg() { return m_ProbitDlg; }
    CBootStrapDlg& GetBootStrapDlg() { return m_BootStrapDlg; }

private:
    CProbitDlg m_ProbitDlg{this};
    CBootStrapDlg m_BootStrapDlg{this};
};
