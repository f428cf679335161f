#include "private/Missing/KDGMissingDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CMissingDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CMissingDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CMissingDlg::IDC_PATTERN_CHECK, &CMissingDlg::OnRuleChange)
    ON_BN_CLICKED(CMissingDlg::IDC_SAVE_CHECK, &CMissingDlg::OnRuleChange)
    ON_BN_CLICKED(IDC_RESET, &CMissingDlg::OnReset)
END_MESSAGE_MAP()

CMissingDlg::CMissingDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_VARIABLE_LIST,
                 .add = IDC_ADD_VARIABLE,
                 .remove = IDC_REMOVE_VARIABLE,
                 .menuCommand = ID_MENU_VARIABLE,
                 .menuLabel = IDC_VARIABLE_LABEL,
                 .acceptsStrings = [] { return false; }});
    AddRoleList({.list = IDC_GROUP_LIST,
                 .add = IDC_ADD_GROUP,
                 .remove = IDC_REMOVE_GROUP,
                 .menuCommand = ID_MENU_GROUP,
                 .menuLabel = IDC_GROUP_LABEL,
                 .maxItems = 1});
}

BOOL CMissingDlg::OnInitDialog()
{
    if (CComboBox* combo = GetComboBoxWnd(IDC_SAVE_COMBO))
        CComboUtil::FillCombo(CMissingData::kSaveCombo, *combo, 0);
    else
        ReportAssertion(__LINE__);
    CGUIPageDlg::OnInitDialog();
    UpdateDependentWindows();
    return TRUE;
}

void CMissingDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, IDC_VARIABLE_LIST, m_Work.m_VariableList.GetSize() < 2 ? kMsgTooFewVariables : 0);
    bool analysed = false;
    for (const CGUIDataVariable& group : m_Work.m_GroupList)
        analysed = analysed ||
                   CGUIBaseObj::CheckStringPresentinListCtrlArray(m_Work.m_VariableList, group.GetVariableName()) != 0;
    DDX_ControlWarn(pDX, IDC_GROUP_LIST, analysed ? kMsgGroupAnalysed : 0);
}

void CMissingDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool pattern = IsDlgButtonChecked(IDC_PATTERN_CHECK) != 0;
    EnableCtrl(IDC_CUTOFF_LABEL, pattern);
    EnableCtrl(IDC_CUTOFF_EDIT, pattern);
    const bool save = IsDlgButtonChecked(IDC_SAVE_CHECK) != 0;
    EnableCtrl(IDC_SAVE_COMBO, save);
    EnableCtrl(IDC_SAVE_EDIT, save);
}

void CMissingDlg::OnRuleChange()
{
    UpdateDependentWindows();
}

void CMissingDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    ListCtrl(IDC_VARIABLE_LIST).ResetOptions();
    ListCtrl(IDC_GROUP_LIST).ResetOptions();
    UpdateDependentWindows();
}
