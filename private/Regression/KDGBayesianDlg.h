// CBayesianDlg: Bayesian linear regression (template 7750), a dialog
// without pages. The user moves one numeric dependent variable and numeric
// independent variables from the source list, decides about the constant,
// chooses both priors with their parameters (enabled with the prior that
// has them) and the sampling of the posterior.
//
// Checked at OK: a dependent variable that is not also independent; a
// constant or an independent variable; a positive prior variance, shape
// and scale while their prior is chosen; fewer burn-in draws than draws.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGBayesianData.h"

class CBayesianDlg : public CGUIPageDlg<CBayesianData>, public CBayesianDlgIds {
    DECLARE_DYNAMIC(CBayesianDlg)
public:
    enum : UINT { ID_MENU_DEPENDENT = 33001, ID_MENU_INDEPENDENT = 33002 };
    static constexpr UINT kMsgNoDependent = 7790;
    static constexpr UINT kMsgEmptyModel = 7791;
    static constexpr UINT kMsgBurnIn = 7792;
    static constexpr UINT kMsgDependentIsIndependent = 7793;
    static constexpr UINT kMsgOutOfRange = 2012;

    explicit CBayesianDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGBayesianDlg"; }

protected:
    void OnChoice() { UpdateDependentWindows(); }

    DECLARE_MESSAGE_MAP()
};
