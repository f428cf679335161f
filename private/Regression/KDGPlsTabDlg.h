// CPlsTabDlg: the partial least squares dialog (template 101) with its one page.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Regression/KDGPlsDlg.h"
#include "private/Regression/KDGPlsTabData.h"

class CPlsTabDlg : public CGUIDataDlg<CPlsTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CPlsTabDlg)
public:
    explicit CPlsTabDlg(CWnd* parent = nullptr);

    const char* GetSourceFile() const override { return "Source/KDGPlsTabDlg"; }
    CPlsDlg& GetPlsDlg() { return m_PlsDlg; }

private:
    CPlsDlg m_PlsDlg{this};
};
