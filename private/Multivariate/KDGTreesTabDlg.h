// CTreesTabDlg: the classification and regression trees dialog (template
// 101): the model and options pages, in that order.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Multivariate/KDGTreesDlg.h"
#include "private/Multivariate/KDGTreesOptionsDlg.h"
#include "private/Multivariate/KDGTreesTabData.h"

class CTreesTabDlg : public CGUIDataDlg<CTreesTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CTreesTabDlg)
public:
    explicit CTreesTabDlg(CWnd* parent = nullptr);

    CTreesDlg& GetTreesDlg() { return m_TreesDlg; }
    CTreesOptionsDlg& GetTreesOptionsDlg() { return m_TreesOptionsDlg; }

    // The options page reads the model page: its rules run again once both
    // pages exist.
    BOOL OnInitDialog() override;
    // Both pages' settings back to those of a new tab.
    int SetAllDefault() override;
    const char* GetSourceFile() const override { return "Source/KDGTreesTabDlg"; }

private:
    CTreesDlg m_TreesDlg{this};
    CTreesOptionsDlg m_TreesOptionsDlg{this};
};
