// CMixRegModelDlg: the model page of mixed regression (template 8240).
// Numeric variables go to the dependent and regressor lists, any variable
// to the grouping. The link decides which estimation options apply.
//
// OK refuses a missing dependent variable, a model without a random part,
// random effects without groups, and the dependent or grouping variable
// among the regressors. A regressor may be fixed and random.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Mixed/KDGMixRegModelData.h"

class CMixRegModelDlg : public CGUIPageDlg<CMixRegModelData>, public CMixRegModelDlgIds {
    DECLARE_DYNAMIC(CMixRegModelDlg)
public:
    enum : UINT { ID_MENU_DEPENDENT = 33131, ID_MENU_FIXED = 33132, ID_MENU_RANDOM = 33133, ID_MENU_GROUP = 33134 };
    static constexpr UINT kMsgNoGroup = 8412;

    explicit CMixRegModelDlg(CWnd* parent = nullptr);

    // Whether the link the page shows needs quadrature.
    bool IsNonLinearLink() const { return GetComboCurSel(IDC_LINK_COMBO) > 0; }

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGMixRegModelDlg"; }

protected:
    void OnLinkChange() { NotifyTab(); }

    DECLARE_MESSAGE_MAP()

private:
    std::pair<UINT, UINT> Validate() const;
};
