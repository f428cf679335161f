// CAnovaDlg: the model page of the ANOVA tab dialog (template 2006). The
// user moves variables from the source list to the dependent, factor and
// covariate lists, decides about missing factor values, and may save
// results to a file; the save list follows the number of dependents.
#pragma once

#include "framework/GUIPageDlg.h"
#include "private/Anova/KDGAnovaData.h"

class CAnovaDlg : public CGUIPageDlg<CAnovaData>, public CAnovaDlgIds {
    DECLARE_DYNAMIC(CAnovaDlg)
public:
    // The source list's context-menu entries.
    enum : UINT { ID_MENU_DEPENDENT = 33001, ID_MENU_FACTOR = 33002, ID_MENU_COVARIATE = 33003 };

    explicit CAnovaDlg(CWnd* parent = nullptr);

    // The dependent variables the page shows now (read by the other pages).
    int GetDependentListCount() { return ListCtrl(IDC_DEPENDENT_LIST).GetItemCount(); }

    BOOL OnInitDialog() override;
    void AddToolTips() override;
    void FillAllCombo();
    int KVUpdateData(int bSaveAndValidate) override;
    void EnableWindowObject(int) override {}
    void UpdateDependentWindows() override;
    BOOL OnUpdateAddTarget(CCmdUI* pCmdUI) override;
    // The ANOVA model page's menu and drags test movability only: its
    // buttons alone refuse string variables and factor moves.
    bool TypeRuleAppliesToDragsAndMenu() const override { return false; }
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGAnovaDlg"; }

protected:
    void OnMissingValCheck();
    void OnSaveFileCheck();
    void OnSelchangeSaveFileCombo();
    void OnChangeSaveFileEdit();
    void OnDependentVariablesChange();

    DECLARE_MESSAGE_MAP()

private:
    // The host's two queries: restricted mode off and edit level 1.
    static bool FactorMovesAllowed();
    // After a move in or out of the dependent list: the save list follows
    // the count, and the other pages redraw.
    void AfterDependentMove();
};
