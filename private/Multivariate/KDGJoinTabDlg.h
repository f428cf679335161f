// CJoinTabDlg: the hierarchical clustering dialog (template 101): the
// clustering and options pages, in that order.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabDlg.h"
#include "private/Multivariate/KDGJoinDlg.h"
#include "private/Multivariate/KDGJoinOptionsDlg.h"
#include "private/Multivariate/KDGJoinTabData.h"

class CJoinTabDlg : public CGUIDataDlg<CJoinTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CJoinTabDlg)
public:
    explicit CJoinTabDlg(CWnd* parent = nullptr);

    CJoinDlg& GetJoinDlg() { return m_JoinDlg; }
    CJoinOptionsDlg& GetJoinOptionsDlg() { return m_JoinOptionsDlg; }

    // The options page reads the clustering page: its rules run again once
    // both pages exist.
    BOOL OnInitDialog() override;
    // Both pages' settings back to those of a new tab.
    int SetAllDefault() override;
    const char* GetSourceFile() const override { return "Source/KDGJoinTabDlg"; }

private:
    CJoinDlg m_JoinDlg{this};
    CJoinOptionsDlg m_JoinOptionsDlg{this};
};
