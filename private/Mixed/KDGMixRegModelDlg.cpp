#include "private/Mixed/KDGMixRegModelDlg.h"

#include "framework/ResourceUtil.h"
#include "private/Mixed/KDGHlmLevelsDlg.h"
#include "private/Mixed/KDGMixedLists.h"
#include "private/Mixed/KDGMixedRandomDlg.h"

IMPLEMENT_DYNAMIC(CMixRegModelDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CMixRegModelDlg, CGUIBaseDlg)
    ON_CBN_SELCHANGE(CMixRegModelDlg::IDC_LINK_COMBO, &CMixRegModelDlg::OnLinkChange)
    ON_BN_CLICKED(IDC_RESET, &CMixRegModelDlg::OnReset)
END_MESSAGE_MAP()

CMixRegModelDlg::CMixRegModelDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    const auto numeric = [] { return false; };
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_DEPENDENT_LIST,
                 .add = IDC_ADD_DEPENDENT,
                 .remove = IDC_REMOVE_DEPENDENT,
                 .menuCommand = ID_MENU_DEPENDENT,
                 .menuLabel = IDC_DEPENDENT_LABEL,
                 .acceptsStrings = numeric,
                 .maxItems = 1});
    AddRoleList({.list = IDC_FIXED_LIST,
                 .add = IDC_ADD_FIXED,
                 .remove = IDC_REMOVE_FIXED,
                 .menuCommand = ID_MENU_FIXED,
                 .menuLabel = IDC_FIXED_LABEL,
                 .acceptsStrings = numeric});
    AddRoleList({.list = IDC_RANDOM_LIST,
                 .add = IDC_ADD_RANDOM,
                 .remove = IDC_REMOVE_RANDOM,
                 .menuCommand = ID_MENU_RANDOM,
                 .menuLabel = IDC_RANDOM_LABEL,
                 .acceptsStrings = numeric});
    AddRoleList({.list = IDC_GROUP_LIST,
                 .add = IDC_ADD_GROUP,
                 .remove = IDC_REMOVE_GROUP,
                 .menuCommand = ID_MENU_GROUP,
                 .menuLabel = IDC_GROUP_LABEL,
                 .maxItems = 1});
}

BOOL CMixRegModelDlg::OnInitDialog()
{
    if (CComboBox* combo = GetComboBoxWnd(IDC_LINK_COMBO))
        CComboUtil::FillCombo(CMixRegModelData::kLinkCombo, *combo, 0);
    else
        ReportAssertion(__LINE__);
    return CGUIPageDlg::OnInitDialog();
}

std::pair<UINT, UINT> CMixRegModelDlg::Validate() const
{
    const CMixRegModelData& w = m_Work;
    if (w.m_DependentList.IsEmpty())
        return {CHlmLevelsDlg::kMsgNoDependent, IDC_DEPENDENT_LIST};
    if (!w.m_InterceptCheck && w.m_RandomList.IsEmpty())
        return {CMixedRandomDlg::kMsgNoRandomPart, IDC_INTERCEPT_CHECK};
    if (w.m_GroupList.IsEmpty())
        return {kMsgNoGroup, IDC_GROUP_LIST};
    // A regressor may be both fixed and random: its random slope varies
    // around the fixed one.
    if (kal::mixed::SharesVariable({&w.m_DependentList, &w.m_GroupList, &w.m_FixedList}) ||
        kal::mixed::SharesVariable({&w.m_DependentList, &w.m_GroupList, &w.m_RandomList}))
        return {CHlmLevelsDlg::kMsgTwoRoles, IDC_FIXED_LIST};
    return {0, 0};
}

void CMixRegModelDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    const auto [message, control] = Validate();
    DDX_ControlWarn(pDX, control, message);
}

void CMixRegModelDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    for (const UINT list : {IDC_DEPENDENT_LIST, IDC_FIXED_LIST, IDC_RANDOM_LIST, IDC_GROUP_LIST})
        ListCtrl(list).ResetOptions();
    UpdateDependentWindows();
    NotifyTab();
}
