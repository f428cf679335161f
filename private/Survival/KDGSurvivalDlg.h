// CSurvivalDlg: the model page of the survival analyses (template 8600).
// The user moves one numeric variable each to the time, the censoring
// variable and the entry time, one variable to the strata and, for the
// regression models, numeric covariates; gives the code of the censored
// cases and may save the estimated survival or hazard.
//
// Rules of the page:
//  - the code is edited while there is a censoring variable, the save kind
//    and file while saving is; the covariates are hidden for nonparametric
//    estimates;
//  - OK needs a time; the time, censoring variable and entry time are three
//    variables, and the stratum variable is no covariate.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Survival/KDGSurvivalData.h"

class CSurvivalDlg : public CGUIPageDlg<CSurvivalData>, public CSurvivalDlgIds {
    DECLARE_DYNAMIC(CSurvivalDlg)
public:
    // The source list's context-menu entries.
    enum : UINT {
        ID_MENU_TIME = 8691,
        ID_MENU_CENSOR = 8692,
        ID_MENU_ENTRY = 8693,
        ID_MENU_STRATA = 8694,
        ID_MENU_COVARIATE = 8695
    };
    static constexpr UINT kMsgNoTime = 8680;
    static constexpr UINT kMsgSameRole = 8681;
    static constexpr UINT kMsgStrataCovariate = 8682;

    explicit CSurvivalDlg(CWnd* parent = nullptr);

    // Whether the page shows a stratum variable now (read by the estimates
    // page of the nonparametric analysis).
    bool HasStrata() { return ListCtrl(IDC_STRATA_LIST).GetItemCount() > 0; }

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGSurvivalDlg"; }

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()

private:
    bool IsRegression() const { return !m_pData || m_pData->GetKind() == SurvivalKind::Regression; }
};
