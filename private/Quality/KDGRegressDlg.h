// CRegressDlg: the regression control chart dialog (template 9199). The
// user moves one numeric response and one numeric predictor, may give the
// known residual sigma, and chooses the kind of limits with their bounds.
//
// Rules of the dialog:
//  - each role list holds one variable, and the two are different ones;
//  - the bounds of a kind of limits are edited while that kind is chosen;
//    sigma multiples need at least one bound, and probabilities given on
//    both sides are in order;
//  - a known sigma lies above 0.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Quality/KDGControlLimits.h"
#include "private/Quality/KDGRegressData.h"

class CRegressDlg : public CGUIPageDlg<CRegressData>, public CRegressDlgIds {
    DECLARE_DYNAMIC(CRegressDlg)
public:
    // The source list's context-menu entries.
    enum : UINT { ID_MENU_RESPONSE = 9190, ID_MENU_PREDICTOR = 9191 };
    static constexpr UINT kMsgNoResponse = 9130;
    static constexpr UINT kMsgNoPredictor = 9131;
    static constexpr UINT kMsgSameVariable = 9132;
    static constexpr UINT kMsgLimitsOrder = 9133;
    static constexpr kal::quality::LimitsControls kLimits{IDC_PLIMITS_RADIO, IDC_SLIMITS_RADIO, IDC_PLIMITS_LOWER,
                                                          IDC_PLIMITS_UPPER, IDC_SLIMITS_LOWER, IDC_SLIMITS_UPPER};

    explicit CRegressDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGRegressDlg"; }

protected:
    void OnRuleChange();

    DECLARE_MESSAGE_MAP()

private:
    UINT ValidatePredictor() const;
};
