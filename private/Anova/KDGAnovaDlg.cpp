#include "private/Anova/KDGAnovaDlg.h"

#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"
#include "host/IGlobal.h"

IMPLEMENT_DYNAMIC(CAnovaDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CAnovaDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CAnovaDlg::IDC_MISSING_VALUES, &CAnovaDlg::OnMissingValCheck)
    ON_BN_CLICKED(CAnovaDlg::IDC_SAVE_FILE_CHECK, &CAnovaDlg::OnSaveFileCheck)
    ON_CBN_SELCHANGE(CAnovaDlg::IDC_SAVE_FILE_COMBO, &CAnovaDlg::OnSelchangeSaveFileCombo)
    ON_EN_CHANGE(CAnovaDlg::IDC_SAVE_FILE_EDIT, &CAnovaDlg::OnChangeSaveFileEdit)
    ON_BN_CLICKED(IDC_RESET, &CAnovaDlg::OnReset)
END_MESSAGE_MAP()

CAnovaDlg::CAnovaDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    const auto noStrings = [] { return false; };
    SetSourceList(IDC_SOURCE_LIST);
    // The dependent list comes first: a double click on the source fills it.
    AddRoleList({.list = IDC_DEPENDENT_LIST,
                 .add = IDC_ADD_DEPENDENT,
                 .remove = IDC_REMOVE_DEPENDENT,
                 .menuCommand = ID_MENU_DEPENDENT,
                 .menuLabel = IDC_DEPENDENT_LABEL,
                 .acceptsStrings = noStrings,
                 .afterMove = [this] { AfterDependentMove(); }});
    AddRoleList({.list = IDC_FACTOR_LIST,
                 .add = IDC_ADD_FACTOR,
                 .remove = IDC_REMOVE_FACTOR,
                 .menuCommand = ID_MENU_FACTOR,
                 .menuLabel = IDC_FACTOR_LABEL,
                 .enabled = &FactorMovesAllowed});
    AddRoleList({.list = IDC_COVARIATE_LIST,
                 .add = IDC_ADD_COVARIATE,
                 .remove = IDC_REMOVE_COVARIATE,
                 .menuCommand = ID_MENU_COVARIATE,
                 .menuLabel = IDC_COVARIATE_LABEL,
                 .acceptsStrings = noStrings});
}

BOOL CAnovaDlg::OnInitDialog()
{
    FillAllCombo();
    return CGUIBaseDlg::OnInitDialog();
}

void CAnovaDlg::AddToolTips()
{
    CGUIBaseDlg::AddToolTips();
    AddToolTip(IDC_SAVE_FILE_EDIT, GetDlgItemText(IDC_SAVE_FILE_EDIT), 1);
}

void CAnovaDlg::FillAllCombo()
{
    CComboBox* combo = GetComboBoxWnd(IDC_SAVE_FILE_COMBO);
    if (!combo) {
        ReportAssertion(__LINE__);
        return;
    }
    // The list that fits the settings' dependent count, so that a stored
    // index shows the entry it stands for.
    const int dependents = m_pData ? m_pData->GetDependentVariableListCount() : 0;
    CComboUtil::FillCombo(IDC_SAVE_FILE_COMBO, *combo, CAnovaData::SaveListFor(dependents));
}

int CAnovaDlg::KVUpdateData(int bSaveAndValidate)
{
    return CGUIBaseDlg::KVUpdateData(bSaveAndValidate) ? 1 : 0;
}

bool CAnovaDlg::FactorMovesAllowed()
{
    IGlobal* host = kal::framework::Host();
    return host && !host->IsRestrictedMode() && host->GetEditLevel() == 1;
}

void CAnovaDlg::UpdateDependentWindows()
{
    CGUIBaseDlg::UpdateDependentWindows();
    OnMissingValCheck();
    OnSaveFileCheck();
}

void CAnovaDlg::AfterDependentMove()
{
    OnDependentVariablesChange();
    if (CWnd* tabDialog = GetParent())
        tabDialog->Invalidate(TRUE);
}

void CAnovaDlg::OnMissingValCheck()
{
    EnableCtrl(IDC_MISSING_VALUES, ListCtrl(IDC_FACTOR_LIST).GetItemCount() > 0);
}

void CAnovaDlg::OnSaveFileCheck()
{
    const bool save = IsDlgButtonChecked(IDC_SAVE_FILE_CHECK) != 0;
    EnableCtrl(IDC_SAVE_FILE_COMBO, save);
    EnableCtrl(IDC_SAVE_FILE_EDIT, save);
}

void CAnovaDlg::OnSelchangeSaveFileCombo()
{
    if (GetComboCurSel(IDC_SAVE_FILE_COMBO) == -1)
        ReportAssertion(__LINE__);
}

void CAnovaDlg::OnChangeSaveFileEdit()
{
    UpdateToolTipText(IDC_SAVE_FILE_EDIT, GetDlgItemText(IDC_SAVE_FILE_EDIT), 1);
}

void CAnovaDlg::OnDependentVariablesChange()
{
    CComboBox* combo = GetComboBoxWnd(IDC_SAVE_FILE_COMBO);
    if (!combo) {
        ReportAssertion(__LINE__);
        return;
    }
    // Each list has its own default; the earlier choice is not carried over.
    if (ListCtrl(IDC_DEPENDENT_LIST).GetItemCount() < 2) {
        CComboUtil::FillCombo(IDC_SAVE_FILE_COMBO, *combo, CAnovaData::kSaveListSingle);
        combo->SetCurSel(CAnovaData::GetDefaultSaveFileCombo());
    } else {
        CComboUtil::FillCombo(IDC_SAVE_FILE_COMBO, *combo, CAnovaData::kSaveListMultiple);
        combo->SetCurSel(CAnovaData::GetDefaultSaveFilePartialCombo());
    }
}

void CAnovaDlg::OnReset()
{
    CGUIBaseDlg::OnReset();
    for (const UINT list : {IDC_DEPENDENT_LIST, IDC_FACTOR_LIST, IDC_COVARIATE_LIST})
        ListCtrl(list).ResetOptions();
    // The dependent list is empty now: the save list follows, as after a move.
    OnDependentVariablesChange();
    UpdateDependentWindows();
}

BOOL CAnovaDlg::OnUpdateAddTarget(CCmdUI* pCmdUI)
{
    CGUIBaseDlg::OnUpdateAddTarget(pCmdUI);
    // Showing the menu resets the save list to the default of the current
    // dependent count, exactly as an add does; kept on purpose.
    if (pCmdUI->m_nID == ID_MENU_DEPENDENT)
        AfterDependentMove();
    return TRUE;
}
