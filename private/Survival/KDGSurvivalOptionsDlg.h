// CSurvivalOptionsDlg: the estimation page of the survival regression
// (template 8630): proportional hazards with the handling of ties, or a
// parametric distribution; iterations, convergence and confidence.
//
// Rules of the page: the ties are chosen for proportional hazards, the
// distribution for a parametric model; the convergence and the confidence
// lie strictly between 0 and 1.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Survival/KDGSurvivalOptionsData.h"

class CSurvivalOptionsDlg : public CGUIPageDlg<CSurvivalOptionsData>, public CSurvivalOptionsDlgIds {
    DECLARE_DYNAMIC(CSurvivalOptionsDlg)
public:
    explicit CSurvivalOptionsDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGSurvivalOptionsDlg"; }

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()
};

// Whether a probability-like entry lies strictly inside (0, 1): the field's
// range is closed, so its ends are refused here.
inline UINT RefuseUnlessInsideUnit(double value, UINT message)
{
    return value > 0 && value < 1 ? 0 : message;
}
