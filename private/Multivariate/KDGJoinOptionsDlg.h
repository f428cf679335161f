// CJoinOptionsDlg: the options page of the hierarchical clustering dialog
// (template 6560).
//
// Rules of the page: clusters are saved only while the clustering page
// joins cases; the number of clusters and the file are edited while saving
// is checked, and there are no more clusters than the data sheet has cases.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Multivariate/KDGJoinOptionsData.h"

class CJoinOptionsDlg : public CGUIPageDlg<CJoinOptionsData>, public CJoinOptionsDlgIds {
    DECLARE_DYNAMIC(CJoinOptionsDlg)
public:
    static constexpr UINT kMsgTooManyClusters = 6503;

    explicit CJoinOptionsDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent) {}

    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    const char* GetSourceFile() const override { return "Source/KDGJoinOptionsDlg"; }

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()
};
