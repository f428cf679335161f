// CProbitDlg: the model page of probit regression (template 7700). The
// user moves one numeric response, with counts also the totals, one dose
// and any further regressors from the source list; chooses the dose's
// transform, the constant, the natural response rate and the confidence.
// The totals list and its buttons are in use with counts only, the rate's
// edit with a known rate only.
//
// Checked at OK: a response and a dose; the totals with counts; no
// variable in two roles; a known natural rate below 1 (a rate of 1 leaves
// nothing for the dose to explain).
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGProbitData.h"

class CProbitDlg : public CGUIPageDlg<CProbitData>, public CProbitDlgIds {
    DECLARE_DYNAMIC(CProbitDlg)
public:
    enum : UINT { ID_MENU_RESPONSE = 33001, ID_MENU_TOTAL = 33002, ID_MENU_DOSE = 33003, ID_MENU_COVARIATE = 33004 };
    static constexpr UINT kMsgNoResponse = 7740;
    static constexpr UINT kMsgNoDose = 7741;
    static constexpr UINT kMsgNoTotal = 7742;
    static constexpr UINT kMsgTwoRoles = 7743;
    static constexpr UINT kMsgNaturalRate = 7744;

    explicit CProbitDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGProbitDlg"; }

protected:
    void OnChoice() { UpdateDependentWindows(); }

    DECLARE_MESSAGE_MAP()

private:
    bool AnyVariableInTwoRoles() const;
};
