// CLogitDlg: the model page of the logistic regression tab dialog (template
// 2680). The user moves variables from the source list to the dependent,
// independent and conditional lists, decides about the constant, gives the
// confidence level of a discrete choice model, and may save results.
//
// The constant and the save check need ordinary data; the confidence edit
// is in use while the choice-sets page asks for choice sets. What the page
// showed of these at OK goes to the settings with the values.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Regression/KDGLogitData.h"

class CLogitDlg : public CGUIPageDlg<CLogitData>, public CLogitDlgIds {
    DECLARE_DYNAMIC(CLogitDlg)
public:
    // The source list's context-menu entries.
    enum : UINT { ID_MENU_DEPENDENT = 33001, ID_MENU_INDEPENDENT = 33002, ID_MENU_CONDITIONAL = 33003 };

    explicit CLogitDlg(CWnd* parent = nullptr);

    // What the page shows now (read by the tab dialog and the other pages).
    int GetDependentListCount() { return ListCtrl(IDC_DEPENDENT_LIST).GetItemCount(); }
    CGUIArray<CGUIDataVariable> GetIndependentVariables() { return ListCtrl(IDC_INDEPENDENT_LIST).GetVariables(); }

    BOOL OnInitDialog() override;
    void AddToolTips() override;
    void FillAllCombo();
    // The settings' GetAll takes the save combo in: the page shows the
    // stored choice by reading it first.
    int GetAll() override;
    // The enable states of the constant, the save check and the confidence
    // go to the settings with the values.
    int SetAll() override;
    void UpdateDependentWindows() override;
    // A double click fills the dependent list first, then the independents.
    void MoveSourceListToTargetListOnDblClk() override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGLogitDlg"; }

protected:
    void OnSaveCheck();
    void OnSelchangeSaveCombo();
    void OnChangeSaveEdit();

    DECLARE_MESSAGE_MAP()

private:
    // Whether the choice-sets page asks for choice sets (never for a page
    // on its own).
    bool IsChoiceSetsInUse() const;
};
