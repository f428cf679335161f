// CRegressionDlg: the model page of the linear regression tab dialog
// (template 4100). The user moves variables from the source list to the
// dependent and independent lists, decides about the constant, states the
// number of cases behind matrix data, and may save results to a file.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGRegressionData.h"

class CRegressionDlg : public CGUIPageDlg<CRegressionData>, public CRegressionDlgIds {
    DECLARE_DYNAMIC(CRegressionDlg)
public:
    // The source list's context-menu entries.
    enum : UINT { ID_MENU_DEPENDENT = 33001, ID_MENU_INDEPENDENT = 33002 };

    explicit CRegressionDlg(CWnd* parent = nullptr);

    // What the page shows now (read by the tab dialog).
    int GetDependentListCount() { return ListCtrl(IDC_DEPENDENT_LIST).GetItemCount(); }
    int GetIndependentListCount() { return ListCtrl(IDC_INDEPENDENT_LIST).GetItemCount(); }
    // Whether the model has a constant: the check box checked and enabled.
    BOOL IsIncludeConstantChecked() const;

    BOOL OnInitDialog() override;
    void AddToolTips() override;
    void FillAllCombo();
    void UpdateDependentWindows() override;
    // A double click fills the dependent list first, then the independents.
    void MoveSourceListToTargetListOnDblClk() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGRegressionDlg"; }

protected:
    void OnSaveCheck();
    void OnSelchangeSaveCombo();
    void OnChangeSaveEdit();

    DECLARE_MESSAGE_MAP()

private:
    // Whether the estimation page asks for a mixture model, which has no
    // constant. Reported as an assertion when the page cannot be reached.
    bool IsMixtureModel() const;
};
