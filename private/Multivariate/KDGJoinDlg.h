// CJoinDlg: the clustering page of the hierarchical clustering dialog
// (template 6540). The user moves numeric variables to the variables
// clustered and chooses what is joined, the distance and the linkage.
//
// Rules of the page:
//  - the Minkowski power is edited while that distance is chosen;
//  - joining cases needs a variable, joining variables two; the options
//    page saves clusters of cases only, so it follows the choice.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Multivariate/KDGJoinData.h"

class CJoinDlg : public CGUIPageDlg<CJoinData>, public CJoinDlgIds {
    DECLARE_DYNAMIC(CJoinDlg)
public:
    // The source list's context-menu entry.
    enum : UINT { ID_MENU_VARIABLES = 6991 };
    static constexpr UINT kMsgTooFewVariables = 6500;
    static constexpr UINT kMsgNoVariable = 6502;

    explicit CJoinDlg(CWnd* parent = nullptr);

    // Whether the page joins cases now.
    bool JoinsCases() const { return IsDlgButtonChecked(IDC_CASES_RADIO) != 0; }

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGJoinDlg"; }

protected:
    void OnRuleChange();
    void OnJoinChange();

    DECLARE_MESSAGE_MAP()
};
