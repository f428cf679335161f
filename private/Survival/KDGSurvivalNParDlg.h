// CSurvivalNParDlg: the estimates page of the nonparametric survival
// analysis (template 8660): product-limit estimates or a life table with
// its interval width, the tests that compare the strata, the confidence.
//
// Rules of the page: the width belongs to the life table; the tests are
// chosen while the model page has a stratum variable (they compare its
// strata); the confidence lies strictly between 0 and 1.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Survival/KDGSurvivalNParData.h"

class CSurvivalNParDlg : public CGUIPageDlg<CSurvivalNParData>, public CSurvivalNParDlgIds {
    DECLARE_DYNAMIC(CSurvivalNParDlg)
public:
    explicit CSurvivalNParDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGSurvivalNParDlg"; }

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()

private:
    bool ModelHasStrata() const;
};
