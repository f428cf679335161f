// CLogitOptsDlg: the estimation page (template 2740): complete or stepwise
// estimation, the convergence, tolerance and iterations of the fit, and the
// stepwise direction, probabilities, forced terms and maximum steps. With
// choice sets (asked for on the choice-sets page) the model is estimated
// completely: the method buttons are disabled and keep their choice.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGLogitOptsData.h"

class CLogitOptsDlg : public CGUIPageDlg<CLogitOptsData>, public CLogitOptsDlgIds {
    DECLARE_DYNAMIC(CLogitOptsDlg)
public:
    static constexpr UINT kMsgRemoveBelowEnter = 2771;

    explicit CLogitOptsDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent) {}

    // Whether the page estimates stepwise now: stepwise chosen and no
    // choice sets.
    bool IsStepwise() const;

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    const char* GetSourceFile() const override { return "Source/KDGLogitOptsDlg"; }

protected:
    void OnEstimationRadio();

    DECLARE_MESSAGE_MAP()

private:
    bool IsChoiceSetsInUse() const;
};
