#include "private/Regression/KDGLogitDlg.h"

#include "framework/GUITabDlg.h"
#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"
#include "private/Regression/KDGLogitSetsDlg.h"

IMPLEMENT_DYNAMIC(CLogitDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CLogitDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CLogitDlg::IDC_SAVE_CHECK, &CLogitDlg::OnSaveCheck)
    ON_CBN_SELCHANGE(CLogitDlg::IDC_SAVE_COMBO, &CLogitDlg::OnSelchangeSaveCombo)
    ON_EN_CHANGE(CLogitDlg::IDC_SAVE_EDIT, &CLogitDlg::OnChangeSaveEdit)
    ON_BN_CLICKED(IDC_RESET, &CLogitDlg::OnReset)
END_MESSAGE_MAP()

CLogitDlg::CLogitDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    // The response and the terms may be text (a string term is categorical);
    // conditional terms are numbers. The categories page follows the
    // independent variables.
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_DEPENDENT_LIST,
                 .add = IDC_ADD_DEPENDENT,
                 .remove = IDC_REMOVE_DEPENDENT,
                 .menuCommand = ID_MENU_DEPENDENT,
                 .menuLabel = IDC_DEPENDENT_LABEL});
    AddRoleList({.list = IDC_INDEPENDENT_LIST,
                 .add = IDC_ADD_INDEPENDENT,
                 .remove = IDC_REMOVE_INDEPENDENT,
                 .menuCommand = ID_MENU_INDEPENDENT,
                 .menuLabel = IDC_INDEPENDENT_LABEL,
                 .afterMove = [this] { NotifyTab(); }});
    AddRoleList({.list = IDC_CONDITIONAL_LIST,
                 .add = IDC_ADD_CONDITIONAL,
                 .remove = IDC_REMOVE_CONDITIONAL,
                 .menuCommand = ID_MENU_CONDITIONAL,
                 .menuLabel = IDC_CONDITIONAL_LABEL,
                 .acceptsStrings = [] { return false; }});
}

BOOL CLogitDlg::OnInitDialog()
{
    FillAllCombo();
    return CGUIBaseDlg::OnInitDialog();
}

void CLogitDlg::AddToolTips()
{
    CGUIBaseDlg::AddToolTips();
    AddToolTip(IDC_SAVE_EDIT, GetDlgItemText(IDC_SAVE_EDIT), 1);
}

void CLogitDlg::FillAllCombo()
{
    CComboBox* combo = GetComboBoxWnd(IDC_SAVE_COMBO);
    if (!combo) {
        ReportAssertion(__LINE__);
        return;
    }
    CComboUtil::FillCombo(CLogitData::kSaveCombo, *combo, 0);
}

int CLogitDlg::GetAll()
{
    if (m_pData)
        m_Work.SetSaveCombo(m_pData->GetSaveCombo());
    return CGUIPageDlg::GetAll();
}

int CLogitDlg::SetAll()
{
    m_Work.SetControlStates(IsCtrlEnabled(IDC_CONSTANT) ? 1 : 0, IsCtrlEnabled(IDC_SAVE_CHECK) ? 1 : 0,
                            IsCtrlEnabled(IDC_CONFIDENCE) ? 0 : 1);
    return CGUIPageDlg::SetAll();
}

bool CLogitDlg::IsChoiceSetsInUse() const
{
    CGUITabDlg* tab = GetTabDlg();
    const auto* sets = tab ? tab->FindPage<CLogitSetsDlg>() : nullptr;
    return sets && sets->IsChoiceSetsChecked();
}

void CLogitDlg::UpdateDependentWindows()
{
    CGUIBaseDlg::UpdateDependentWindows();
    // A matrix holds no cases to fit or save; the checks keep their state
    // for when ordinary data are back.
    const bool ordinary = kal::framework::IsOrdinaryData();
    EnableCtrl(IDC_CONSTANT, ordinary);
    EnableCtrl(IDC_SAVE_CHECK, ordinary);
    const bool sets = IsChoiceSetsInUse();
    EnableCtrl(IDC_CONFIDENCE_LABEL, sets);
    EnableCtrl(IDC_CONFIDENCE, sets);
    OnSaveCheck();
}

void CLogitDlg::MoveSourceListToTargetListOnDblClk()
{
    const UINT add = GetDependentListCount() == 0 ? IDC_ADD_DEPENDENT : IDC_ADD_INDEPENDENT;
    if (IsCtrlEnabled(add))
        RunButtonHandler(add);
}

void CLogitDlg::OnSaveCheck()
{
    const bool save = IsDlgButtonChecked(IDC_SAVE_CHECK) && IsCtrlEnabled(IDC_SAVE_CHECK);
    EnableCtrl(IDC_SAVE_COMBO, save);
    EnableCtrl(IDC_SAVE_EDIT, save);
}

void CLogitDlg::OnSelchangeSaveCombo()
{
    if (GetComboCurSel(IDC_SAVE_COMBO) == -1)
        ReportAssertion(__LINE__);
}

void CLogitDlg::OnChangeSaveEdit()
{
    UpdateToolTipText(IDC_SAVE_EDIT, GetDlgItemText(IDC_SAVE_EDIT), 1);
}

void CLogitDlg::OnReset()
{
    CGUIBaseDlg::OnReset();
    for (const UINT list : {IDC_DEPENDENT_LIST, IDC_INDEPENDENT_LIST, IDC_CONDITIONAL_LIST})
        ListCtrl(list).ResetOptions();
    UpdateDependentWindows();
    // The categories page loses the independent variables too.
    NotifyTab();
}
