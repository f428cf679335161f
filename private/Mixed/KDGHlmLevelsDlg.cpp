#include "private/Mixed/KDGHlmLevelsDlg.h"

#include "framework/ResourceUtil.h"
#include "private/Mixed/KDGMixedLists.h"
#include "private/Mixed/KDGMixedRandomDlg.h"

IMPLEMENT_DYNAMIC(CHlmLevelsDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CHlmLevelsDlg, CGUIBaseDlg)
    ON_BN_CLICKED(IDC_RESET, &CHlmLevelsDlg::OnReset)
END_MESSAGE_MAP()

CHlmLevelsDlg::CHlmLevelsDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
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
    AddRoleList({.list = IDC_UNIT_LIST,
                 .add = IDC_ADD_UNIT,
                 .remove = IDC_REMOVE_UNIT,
                 .menuCommand = ID_MENU_UNIT,
                 .menuLabel = IDC_UNIT_LABEL,
                 .maxItems = 1});
    AddRoleList({.list = IDC_LEVEL1_LIST,
                 .add = IDC_ADD_LEVEL1,
                 .remove = IDC_REMOVE_LEVEL1,
                 .menuCommand = ID_MENU_LEVEL1,
                 .menuLabel = IDC_LEVEL1_LABEL,
                 .acceptsStrings = numeric});
    AddRoleList({.list = IDC_LEVEL2_LIST,
                 .add = IDC_ADD_LEVEL2,
                 .remove = IDC_REMOVE_LEVEL2,
                 .menuCommand = ID_MENU_LEVEL2,
                 .menuLabel = IDC_LEVEL2_LABEL,
                 .acceptsStrings = numeric});
    AddRoleList({.list = IDC_SLOPE_LIST,
                 .add = IDC_ADD_SLOPE,
                 .remove = IDC_REMOVE_SLOPE,
                 .menuCommand = ID_MENU_SLOPE,
                 .menuLabel = IDC_SLOPE_LABEL,
                 .acceptsStrings = numeric});
}

BOOL CHlmLevelsDlg::OnInitDialog()
{
    CComboBox* center = GetComboBoxWnd(IDC_CENTER_COMBO);
    CComboBox* covariance = GetComboBoxWnd(IDC_COVARIANCE_COMBO);
    if (center && covariance) {
        CComboUtil::FillCombo(CHlmLevelsData::kCenterCombo, *center, 0);
        CComboUtil::FillCombo(CMixedRandomData::kCovarianceCombo, *covariance, 0);
    } else {
        ReportAssertion(__LINE__);
    }
    return CGUIPageDlg::OnInitDialog();
}

std::pair<UINT, UINT> CHlmLevelsDlg::Validate() const
{
    const CHlmLevelsData& w = m_Work;
    if (w.m_DependentList.IsEmpty())
        return {kMsgNoDependent, IDC_DEPENDENT_LIST};
    if (w.m_UnitList.IsEmpty())
        return {kMsgNoUnit, IDC_UNIT_LIST};
    if (kal::mixed::SharesVariable({&w.m_DependentList, &w.m_UnitList, &w.m_Level1List, &w.m_Level2List}))
        return {kMsgTwoRoles, IDC_LEVEL1_LIST};
    if (!kal::mixed::IsSubset(w.m_SlopeList, w.m_Level1List))
        return {kMsgSlopeNotLevel1, IDC_SLOPE_LIST};
    if (!w.m_InterceptCheck && w.m_SlopeList.IsEmpty())
        return {CMixedRandomDlg::kMsgNoRandomPart, IDC_INTERCEPT_CHECK};
    if (w.m_CrossLevelCheck && (w.m_SlopeList.IsEmpty() || w.m_Level2List.IsEmpty()))
        return {kMsgCrossLevel, IDC_CROSS_LEVEL_CHECK};
    return {0, 0};
}

void CHlmLevelsDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    const auto [message, control] = Validate();
    DDX_ControlWarn(pDX, control, message);
}

void CHlmLevelsDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    for (const UINT list : {IDC_DEPENDENT_LIST, IDC_UNIT_LIST, IDC_LEVEL1_LIST, IDC_LEVEL2_LIST, IDC_SLOPE_LIST})
        ListCtrl(list).ResetOptions();
    UpdateDependentWindows();
}
