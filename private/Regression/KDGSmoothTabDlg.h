// CSmoothTabDlg: the smoothing dialog (template 101) with its one page.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Regression/KDGSmoothDlg.h"
#include "private/Regression/KDGSmoothTabData.h"

class CSmoothTabDlg : public CGUIDataDlg<CSmoothTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CSmoothTabDlg)
public:
    explicit CSmoothTabDlg(CWnd* parent = nullptr);

    const char* GetSourceFile() const override { return "Source/KDGSmoothTabDlg"; }
    CSmoothDlg& GetSmoothDlg() { return m_SmoothDlg; }

private:
    CSmoothDlg m_SmoothDlg{this};
};
