// CRegModelDlg: the model page of the regressions that share one
// (template 7000). The user moves one numeric dependent variable and the
// numeric regressors from the source list, decides about the constant, may
// name a case weight, and states the number of cases behind matrix data.
//
// Rules of the page:
//  - the constant and the weight belong to ordinary data; the number of
//    cases to matrix data;
//  - at OK the model needs its dependent variable and a regressor, and the
//    dependent variable is not also a regressor.
//
// An analysis's tab dialog puts this page first; its own page reads the
// model through the tab dialog (GetModelDlg) where its rules need it.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGRegModelData.h"

class CRegModelDlg : public CGUIPageDlg<CRegModelData>, public CRegModelDlgIds {
    DECLARE_DYNAMIC(CRegModelDlg)
public:
    // The source list's context-menu entries.
    enum : UINT { ID_MENU_DEPENDENT = 7490, ID_MENU_REGRESSOR = 7491, ID_MENU_WEIGHT = 7492 };
    static constexpr UINT kMsgNoDependent = 7020;
    static constexpr UINT kMsgNoRegressor = 7021;
    static constexpr UINT kMsgDependentIsRegressor = 7023;

    explicit CRegModelDlg(CWnd* parent = nullptr);

    // The variables the page shows now.
    CGUIArray<CGUIDataVariable> GetDependent() { return ListCtrl(IDC_DEPENDENT_LIST).GetVariables(); }
    CGUIArray<CGUIDataVariable> GetRegressors() { return ListCtrl(IDC_REGRESSOR_LIST).GetVariables(); }

    void DoDataExchange(CDataExchange* pDX) override;
    void UpdateDependentWindows() override;
    // A double click fills the dependent variable first, then the regressors.
    void MoveSourceListToTargetListOnDblClk() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGRegModelDlg"; }

private:
    UINT ValidateModel() const;
};
