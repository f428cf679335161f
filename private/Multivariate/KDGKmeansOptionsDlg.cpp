#include "private/Multivariate/KDGKmeansOptionsDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CKmeansOptionsDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CKmeansOptionsDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CKmeansOptionsDlg::IDC_FIRST_RADIO, &CKmeansOptionsDlg::OnRuleChange)
    ON_BN_CLICKED(CKmeansOptionsDlg::IDC_RANDOM_RADIO, &CKmeansOptionsDlg::OnRuleChange)
    ON_BN_CLICKED(CKmeansOptionsDlg::IDC_GROUPS_RADIO, &CKmeansOptionsDlg::OnRuleChange)
    ON_BN_CLICKED(CKmeansOptionsDlg::IDC_SAVE_CHECK, &CKmeansOptionsDlg::OnRuleChange)
    ON_BN_CLICKED(IDC_RESET, &CKmeansOptionsDlg::OnReset)
END_MESSAGE_MAP()

CKmeansOptionsDlg::CKmeansOptionsDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_GROUP_LIST,
                 .add = IDC_ADD_GROUP,
                 .remove = IDC_REMOVE_GROUP,
                 .menuCommand = ID_MENU_GROUPS,
                 .menuLabel = IDC_GROUPS_RADIO,
                 .acceptsStrings = [] { return false; },
                 .enabled = [this] { return GroupsChosen(); },
                 .maxItems = 1});
}

BOOL CKmeansOptionsDlg::OnInitDialog()
{
    CRadioUtil::FillRadio(this, CKmeansOptionsData::kCentersRadio);
    CGUIPageDlg::OnInitDialog();
    UpdateDependentWindows();
    return TRUE;
}

void CKmeansOptionsDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, IDC_GROUP_LIST, GroupsChosen() && m_Work.m_GroupList.IsEmpty() ? kMsgNoGroupVariable : 0);
    DDX_ControlWarn(pDX, IDC_CONV_EDIT, m_Work.m_ConvEdit.m_Value <= 0 ? kMsgOutOfRange : 0, NumberRule::Positive());
}

void CKmeansOptionsDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    EnableCtrl(IDC_GROUP_LIST, GroupsChosen());
    const bool random = IsDlgButtonChecked(IDC_RANDOM_RADIO) != 0;
    EnableCtrl(IDC_SEED_LABEL, random);
    EnableCtrl(IDC_SEED_EDIT, random);
    const bool save = IsDlgButtonChecked(IDC_SAVE_CHECK) != 0;
    EnableCtrl(IDC_SAVE_EDIT, save);
    EnableCtrl(IDC_DISTANCE_CHECK, save);
}

void CKmeansOptionsDlg::OnRuleChange()
{
    UpdateDependentWindows();
}

void CKmeansOptionsDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    ListCtrl(IDC_GROUP_LIST).ResetOptions();
    UpdateDependentWindows();
}
