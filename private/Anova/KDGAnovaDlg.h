// CAnovaDlg: the model page of the ANOVA tab dialog (template 2006). The
// user moves variables from the source list to the dependent, factor and
// covariate lists, decides about missing factor values, and may save
// results to a file; the save list follows the number of dependents.
#pragma once

#include "framework/FileEditCtrl.h"
#include "framework/GUIDataDlg.h"
#include "private/Anova/KDGAnovaData.h"

class CAnovaDlg : public CGUIDataDlg<CAnovaData> {
    DECLARE_DYNAMIC(CAnovaDlg)
public:
    enum : UINT {
        IDD = 2006,
        IDC_SOURCE_LIST = 1075,
        IDC_DEPENDENT_LIST = 1071,
        IDC_FACTOR_LIST = 1073,
        IDC_COVARIATE_LIST = 1069,
        IDC_ADD_DEPENDENT = 1067,
        IDC_REMOVE_DEPENDENT = 1089,
        IDC_ADD_FACTOR = 1068,
        IDC_REMOVE_FACTOR = 1090,
        IDC_ADD_COVARIATE = 1066,
        IDC_REMOVE_COVARIATE = 1088,
        IDC_MISSING_VALUES = 1076,
        IDC_SAVE_FILE_CHECK = 1091,
        IDC_SAVE_FILE_COMBO = 1092,
        IDC_SAVE_FILE_EDIT = 1093,
        IDC_DEPENDENT_LABEL = 1072,
        IDC_FACTOR_LABEL = 1074,
        IDC_COVARIATE_LABEL = 1070,
        ID_MENU_DEPENDENT = 33001,
        ID_MENU_FACTOR = 33002,
        ID_MENU_COVARIATE = 33003,
    };

    explicit CAnovaDlg(CWnd* parent = nullptr);

    // The dependent variables the page shows now (read by the other pages).
    int GetDependentListCount() const { return m_DependentListCtrl.GetItemCount(); }

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void AddToolTips() override;
    void FillAllCombo();
    int GetAll() override;
    int SetAll() override;
    int GetAllDefault() override;
    int SetAllDefault() override;
    int KVUpdateData(int bSaveAndValidate) override;
    void EnableWindowObject(int) override {}
    void UpdateDependentWindows() override;
    BOOL OnAddTarget(UINT commandId) override;
    BOOL OnUpdateAddTarget(CCmdUI* pCmdUI) override;
    void MouseMoveListCtrlHelper(const CWnd* over, HICON& cursor) override;
    void LButtonUpListCtrlHelper(const CWnd* over) override;
    void OnReset() override;
    const char* GetSourceFile() const override { return "Source/KDGAnovaDlg"; }

protected:
    void OnAddDependentVariableButton();
    void OnRemoveDependentVariableButton();
    void OnAddFactorButton();
    void OnRemoveFactorButton();
    void OnAddCovariateButton();
    void OnRemoveCovariateButton();
    void OnMissingValCheck();
    void OnSaveFileCheck();
    void OnSelchangeSaveFileCombo();
    void OnChangeSaveFileEdit();
    void OnDependentVariablesChange();
    void OnUpdateAddDependentVariableButton(CCmdUI* pCmdUI);
    void CreateListCtrlMenu();

    DECLARE_MESSAGE_MAP()

private:
    // The host's two queries: restricted mode off and edit level 1.
    static bool FactorMovesAllowed();
    // The move, the dependent-count follow-up where it applies, the enable
    // rules.
    void AfterDependentMove();

    CGUIListCtrl m_SourceListCtrl{true};
    CGUIListCtrl m_DependentListCtrl;
    CGUIListCtrl m_FactorListCtrl;
    CGUIListCtrl m_CovariateListCtrl;
    CFileEditCtrl m_SaveFileEditCtrl;

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_DependentList;
    CGUIArray<CGUIDataVariable> m_FactorList;
    CGUIArray<CGUIDataVariable> m_CovariateList;
    int m_MissingValCheck = 0;
    int m_PostHocTestCheck = 0;
    int m_SaveFileCheck = 0;
    int m_PostHocTestCombo = 0;
    int m_SaveFileCombo = 0;
    CString m_SaveFileEdit;
};
