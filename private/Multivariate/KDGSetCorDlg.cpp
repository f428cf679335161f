#include "private/Multivariate/KDGSetCorDlg.h"

#include <set>

IMPLEMENT_DYNAMIC(CSetCorDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CSetCorDlg, CGUIBaseDlg)
    ON_BN_CLICKED(IDC_RESET, &CSetCorDlg::OnReset)
END_MESSAGE_MAP()

CSetCorDlg::CSetCorDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    const auto numeric = [] { return false; };
    AddRoleList({.list = IDC_SET_Y_LIST,
                 .add = IDC_ADD_SET_Y,
                 .remove = IDC_REMOVE_SET_Y,
                 .menuCommand = ID_MENU_SET_Y,
                 .menuLabel = IDC_SET_Y_LABEL,
                 .acceptsStrings = numeric});
    AddRoleList({.list = IDC_PARTIAL_Y_LIST,
                 .add = IDC_ADD_PARTIAL_Y,
                 .remove = IDC_REMOVE_PARTIAL_Y,
                 .menuCommand = ID_MENU_PARTIAL_Y,
                 .menuLabel = IDC_PARTIAL_Y_LABEL,
                 .acceptsStrings = numeric});
    AddRoleList({.list = IDC_SET_X_LIST,
                 .add = IDC_ADD_SET_X,
                 .remove = IDC_REMOVE_SET_X,
                 .menuCommand = ID_MENU_SET_X,
                 .menuLabel = IDC_SET_X_LABEL,
                 .acceptsStrings = numeric});
    AddRoleList({.list = IDC_PARTIAL_X_LIST,
                 .add = IDC_ADD_PARTIAL_X,
                 .remove = IDC_REMOVE_PARTIAL_X,
                 .menuCommand = ID_MENU_PARTIAL_X,
                 .menuLabel = IDC_PARTIAL_X_LABEL,
                 .acceptsStrings = numeric});
}

UINT CSetCorDlg::SharedSet() const
{
    std::set<std::u16string> seen;
    const std::pair<const CGUIArray<CGUIDataVariable>*, UINT> sets[] = {
        {&m_Work.m_SetYList, IDC_SET_Y_LIST},
        {&m_Work.m_PartialYList, IDC_PARTIAL_Y_LIST},
        {&m_Work.m_SetXList, IDC_SET_X_LIST},
        {&m_Work.m_PartialXList, IDC_PARTIAL_X_LIST},
    };
    for (const auto& [list, control] : sets) {
        for (const auto& variable : *list)
            if (seen.count(variable.GetVariableName().Str()))
                return control;
        for (const auto& variable : *list)
            seen.insert(variable.GetVariableName().Str());
    }
    return 0;
}

void CSetCorDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, IDC_SET_Y_LIST, m_Work.m_SetYList.IsEmpty() ? kMsgEmptySet : 0);
    DDX_ControlWarn(pDX, IDC_SET_X_LIST, m_Work.m_SetXList.IsEmpty() ? kMsgEmptySet : 0);
    if (const UINT shared = SharedSet())
        DDX_ControlWarn(pDX, shared, kMsgTwoSets);
    const bool test = m_Work.m_RaoCheck || m_Work.m_PillaiCheck || m_Work.m_HotellingCheck || m_Work.m_RoyCheck;
    DDX_ControlWarn(pDX, IDC_RAO_CHECK, test ? 0 : kMsgNoTest);
}

void CSetCorDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    for (const UINT list : {IDC_SET_Y_LIST, IDC_PARTIAL_Y_LIST, IDC_SET_X_LIST, IDC_PARTIAL_X_LIST})
        ListCtrl(list).ResetOptions();
    UpdateDependentWindows();
}
