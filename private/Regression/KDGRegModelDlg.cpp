#include "private/Regression/KDGRegModelDlg.h"

#include "framework/HostLink.h"

IMPLEMENT_DYNAMIC(CRegModelDlg, CGUIBaseDlg)

CRegModelDlg::CRegModelDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    // Every list takes numeric variables only; the dependent variable and
    // the weight are one variable each.
    const auto noStrings = [] { return false; };
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_DEPENDENT_LIST,
                 .add = IDC_ADD_DEPENDENT,
                 .remove = IDC_REMOVE_DEPENDENT,
                 .menuCommand = ID_MENU_DEPENDENT,
                 .menuLabel = IDC_DEPENDENT_LABEL,
                 .acceptsStrings = noStrings,
                 .maxItems = 1});
    AddRoleList({.list = IDC_REGRESSOR_LIST,
                 .add = IDC_ADD_REGRESSOR,
                 .remove = IDC_REMOVE_REGRESSOR,
                 .menuCommand = ID_MENU_REGRESSOR,
                 .menuLabel = IDC_REGRESSOR_LABEL,
                 .acceptsStrings = noStrings});
    AddRoleList({.list = IDC_WEIGHT_LIST,
                 .add = IDC_ADD_WEIGHT,
                 .remove = IDC_REMOVE_WEIGHT,
                 .menuCommand = ID_MENU_WEIGHT,
                 .menuLabel = IDC_WEIGHT_LABEL,
                 .acceptsStrings = noStrings,
                 .enabled = [] { return kal::framework::IsOrdinaryData(); },
                 .maxItems = 1});
}

void CRegModelDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (pDX->m_bSaveAndValidate)
        DDX_ControlWarn(pDX, IDC_DEPENDENT_LIST, ValidateModel());
}

UINT CRegModelDlg::ValidateModel() const
{
    if (m_Work.m_DependentList.IsEmpty())
        return kMsgNoDependent;
    if (m_Work.m_RegressorList.IsEmpty())
        return kMsgNoRegressor;
    const CString& dependent = m_Work.m_DependentList[0].GetVariableName();
    for (const auto& regressor : m_Work.m_RegressorList)
        if (regressor.GetVariableName() == dependent)
            return kMsgDependentIsRegressor;
    return 0;
}

void CRegModelDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    // Matrix data carry no constant and no single cases to weigh; the
    // choices stay for when ordinary data are back.
    const bool ordinary = kal::framework::IsOrdinaryData();
    EnableCtrl(IDC_INCLUDE_CONSTANT, ordinary);
    EnableCtrl(IDC_WEIGHT_LABEL, ordinary);
    EnableCtrl(IDC_WEIGHT_LIST, ordinary);
    const bool matrix = kal::framework::IsMatrixData();
    EnableCtrl(IDC_CASES_LABEL, matrix);
    EnableCtrl(IDC_CASES, matrix);
}

void CRegModelDlg::MoveSourceListToTargetListOnDblClk()
{
    const UINT add = ListCtrl(IDC_DEPENDENT_LIST).GetItemCount() == 0 ? IDC_ADD_DEPENDENT : IDC_ADD_REGRESSOR;
    if (IsCtrlEnabled(add))
        RunButtonHandler(add);
}

void CRegModelDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    for (const UINT list : {IDC_DEPENDENT_LIST, IDC_REGRESSOR_LIST, IDC_WEIGHT_LIST})
        ListCtrl(list).ResetOptions();
    UpdateDependentWindows();
}
