#include "private/Multivariate/KDGManovaBetweenDlg.h"

IMPLEMENT_DYNAMIC(CManovaBetweenDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CManovaBetweenDlg, CGUIBaseDlg)
    ON_BN_CLICKED(IDC_RESET, &CManovaBetweenDlg::OnReset)
END_MESSAGE_MAP()

CManovaBetweenDlg::CManovaBetweenDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    const auto noStrings = [] { return false; };
    SetSourceList(IDC_SOURCE_LIST);
    // The dependent list comes first: a double click on the source fills it.
    AddRoleList({.list = IDC_DEPENDENT_LIST,
                 .add = IDC_ADD_DEPENDENT,
                 .remove = IDC_REMOVE_DEPENDENT,
                 .menuCommand = ID_MENU_DEPENDENT,
                 .menuLabel = IDC_DEPENDENT_LABEL,
                 .acceptsStrings = noStrings});
    AddRoleList({.list = IDC_FACTOR_LIST,
                 .add = IDC_ADD_FACTOR,
                 .remove = IDC_REMOVE_FACTOR,
                 .menuCommand = ID_MENU_FACTOR,
                 .menuLabel = IDC_FACTOR_LABEL});
    AddRoleList({.list = IDC_COVARIATE_LIST,
                 .add = IDC_ADD_COVARIATE,
                 .remove = IDC_REMOVE_COVARIATE,
                 .menuCommand = ID_MENU_COVARIATE,
                 .menuLabel = IDC_COVARIATE_LABEL,
                 .acceptsStrings = noStrings});
}

void CManovaBetweenDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, IDC_DEPENDENT_LIST, m_Work.GetDependentList().GetSize() < 2 ? kMsgTwoDependents : 0);
    DDX_ControlWarn(pDX, IDC_FACTOR_LIST, m_Work.GetFactorList().IsEmpty() ? kMsgNoFactor : 0);
    DDX_ControlWarn(pDX, IDC_WILKS, m_Work.GetStatistics().Any() ? 0 : kal::manova::kMsgNoStatistic);
}

void CManovaBetweenDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    EnableCtrl(IDC_MISSING_VALUES, ListCtrl(IDC_FACTOR_LIST).GetItemCount() > 0);
}

void CManovaBetweenDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    for (const UINT list : {IDC_DEPENDENT_LIST, IDC_FACTOR_LIST, IDC_COVARIATE_LIST})
        ListCtrl(list).ResetOptions();
    UpdateDependentWindows();
}
