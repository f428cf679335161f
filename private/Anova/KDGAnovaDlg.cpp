#include "private/Anova/KDGAnovaDlg.h"

#include "Source/DlgStat2.h"
#include "framework/ResourceUtil.h"
#include "host/IGlobal.h"

IMPLEMENT_DYNAMIC(CAnovaDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CAnovaDlg, CGUIBaseDlg)
    ON_NOTIFY(LVN_BEGINDRAG, CAnovaDlg::IDC_SOURCE_LIST, &CGUIBaseDlg::OnBegindrag)
    ON_NOTIFY(LVN_BEGINDRAG, CAnovaDlg::IDC_DEPENDENT_LIST, &CGUIBaseDlg::OnBegindrag)
    ON_NOTIFY(LVN_BEGINDRAG, CAnovaDlg::IDC_FACTOR_LIST, &CGUIBaseDlg::OnBegindrag)
    ON_NOTIFY(LVN_BEGINDRAG, CAnovaDlg::IDC_COVARIATE_LIST, &CGUIBaseDlg::OnBegindrag)
    ON_BN_CLICKED(CAnovaDlg::IDC_ADD_DEPENDENT, &CAnovaDlg::OnAddDependentVariableButton)
    ON_BN_CLICKED(CAnovaDlg::IDC_REMOVE_DEPENDENT, &CAnovaDlg::OnRemoveDependentVariableButton)
    ON_BN_CLICKED(CAnovaDlg::IDC_ADD_FACTOR, &CAnovaDlg::OnAddFactorButton)
    ON_BN_CLICKED(CAnovaDlg::IDC_REMOVE_FACTOR, &CAnovaDlg::OnRemoveFactorButton)
    ON_BN_CLICKED(CAnovaDlg::IDC_ADD_COVARIATE, &CAnovaDlg::OnAddCovariateButton)
    ON_BN_CLICKED(CAnovaDlg::IDC_REMOVE_COVARIATE, &CAnovaDlg::OnRemoveCovariateButton)
    ON_BN_CLICKED(CAnovaDlg::IDC_MISSING_VALUES, &CAnovaDlg::OnMissingValCheck)
    ON_BN_CLICKED(CAnovaDlg::IDC_SAVE_FILE_CHECK, &CAnovaDlg::OnSaveFileCheck)
    ON_CBN_SELCHANGE(CAnovaDlg::IDC_SAVE_FILE_COMBO, &CAnovaDlg::OnSelchangeSaveFileCombo)
    ON_EN_CHANGE(CAnovaDlg::IDC_SAVE_FILE_EDIT, &CAnovaDlg::OnChangeSaveFileEdit)
    ON_BN_CLICKED(IDC_RESET, &CAnovaDlg::OnReset)
END_MESSAGE_MAP()

CAnovaDlg::CAnovaDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    SetSourceList(&m_SourceListCtrl);
    // The dependent list comes first: a double click on the source fills it.
    AddTargetList(&m_DependentListCtrl, IDC_ADD_DEPENDENT, IDC_REMOVE_DEPENDENT);
    AddTargetList(&m_FactorListCtrl, IDC_ADD_FACTOR, IDC_REMOVE_FACTOR);
    AddTargetList(&m_CovariateListCtrl, IDC_ADD_COVARIATE, IDC_REMOVE_COVARIATE);
}

BOOL CAnovaDlg::OnInitDialog()
{
    FillAllCombo();
    CGUIBaseDlg::OnInitDialog();
    CreateListCtrlMenu();
    return TRUE;
}

void CAnovaDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIBaseDlg::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_SOURCE_LIST, m_SourceListCtrl);
    DDX_Control(pDX, IDC_DEPENDENT_LIST, m_DependentListCtrl);
    DDX_Control(pDX, IDC_FACTOR_LIST, m_FactorListCtrl);
    DDX_Control(pDX, IDC_COVARIATE_LIST, m_CovariateListCtrl);
    DDX_Check(pDX, IDC_MISSING_VALUES, m_MissingValCheck);
    DDX_Check(pDX, IDC_SAVE_FILE_CHECK, m_SaveFileCheck);
    DDX_CBIndex(pDX, IDC_SAVE_FILE_COMBO, m_SaveFileCombo);
    CDDXVDlg::DDX_Text(pDX, IDC_SAVE_FILE_EDIT, m_SaveFileEdit, 0, 0, 1, 0);
    DDX_ListCtrlArray(pDX, IDC_SOURCE_LIST, m_SourceList, 0, 1, 0);
    DDX_ListCtrlArray(pDX, IDC_DEPENDENT_LIST, m_DependentList, 0, 1, 0);
    DDX_ListCtrlArray(pDX, IDC_FACTOR_LIST, m_FactorList, 0, 1, 0);
    DDX_ListCtrlArray(pDX, IDC_COVARIATE_LIST, m_CovariateList, 0, 1, 0);
    DDX_FileEditCtrl(pDX, IDC_SAVE_FILE_EDIT, m_SaveFileEditCtrl, m_SaveFileEdit, 1, 1, 0, u".kvd", u"", 0);
}

void CAnovaDlg::AddToolTips()
{
    CGUIBaseDlg::AddToolTips();
    AddToolTip(IDC_SAVE_FILE_EDIT, m_SaveFileEdit, 1);
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

int CAnovaDlg::GetAll()
{
    if (!m_pData)
        return 0;
    return m_pData->GetAll(m_SourceList, m_DependentList, m_FactorList, m_CovariateList, m_MissingValCheck,
                           m_PostHocTestCheck, m_SaveFileCheck, m_PostHocTestCombo, m_SaveFileCombo, m_SaveFileEdit);
}

int CAnovaDlg::SetAll()
{
    if (!m_pData)
        return 0;
    return m_pData->SetAll(m_SourceList, m_DependentList, m_FactorList, m_CovariateList, m_MissingValCheck,
                           m_PostHocTestCheck, m_SaveFileCheck, m_PostHocTestCombo, m_SaveFileCombo, m_SaveFileEdit);
}

int CAnovaDlg::GetAllDefault()
{
    // The source list stays: it always lists the data sheet's variables.
    m_DependentList.RemoveAll();
    m_FactorList.RemoveAll();
    m_CovariateList.RemoveAll();
    m_MissingValCheck = CAnovaData::GetDefaultMissingValCheck();
    m_PostHocTestCheck = CAnovaData::GetDefaultPostHocTestCheck();
    m_SaveFileCheck = CAnovaData::GetDefaultSaveFileCheck();
    m_PostHocTestCombo = CAnovaData::GetDefaultPostHocTestCombo();
    m_SaveFileCombo = CAnovaData::GetDefaultSaveFileCombo();
    m_SaveFileEdit = CAnovaData::GetDefaultSaveFileEdit();
    return 1;
}

int CAnovaDlg::SetAllDefault()
{
    if (m_pData)
        *m_pData = CAnovaData();
    return 1;
}

int CAnovaDlg::KVUpdateData(int bSaveAndValidate)
{
    return CGUIBaseDlg::KVUpdateData(bSaveAndValidate) ? 1 : 0;
}

bool CAnovaDlg::FactorMovesAllowed()
{
    IGlobal* global = g_pDlgStat2Module ? g_pDlgStat2Module->GetGlobal() : nullptr;
    return global && !global->IsRestrictedMode() && global->GetEditLevel() == 1;
}

void CAnovaDlg::UpdateDependentWindows()
{
    CGUIListCtrl* source = &m_SourceListCtrl;
    const bool sourceFree = !source->IsBusy();
    const bool noStringSelected = !CGUIListCtrl::IsSelectetVariableTypePresent(source, NmsEnum::VT_STRING);
    const bool factorMoves = FactorMovesAllowed();

    EnableCtrl(IDC_ADD_DEPENDENT, EnableSourceToTarget(source, &m_DependentListCtrl, -1) && sourceFree && noStringSelected);
    EnableCtrl(IDC_REMOVE_DEPENDENT, EnableSourceToTarget(&m_DependentListCtrl, source, -1) && !m_DependentListCtrl.IsBusy());
    EnableCtrl(IDC_ADD_FACTOR, EnableSourceToTarget(source, &m_FactorListCtrl, -1) && sourceFree && factorMoves);
    EnableCtrl(IDC_REMOVE_FACTOR,
               EnableSourceToTarget(&m_FactorListCtrl, source, -1) && !m_FactorListCtrl.IsBusy() && factorMoves);
    EnableCtrl(IDC_ADD_COVARIATE, EnableSourceToTarget(source, &m_CovariateListCtrl, -1) && sourceFree && noStringSelected);
    EnableCtrl(IDC_REMOVE_COVARIATE, EnableSourceToTarget(&m_CovariateListCtrl, source, -1) && !m_CovariateListCtrl.IsBusy());
    OnMissingValCheck();
    OnSaveFileCheck();
}

// --- Moves --------------------------------------------------------------------

void CAnovaDlg::AfterDependentMove()
{
    OnDependentVariablesChange();
    if (CWnd* tabDialog = GetParent())
        tabDialog->Invalidate(TRUE);
    UpdateDependentWindows();
}

void CAnovaDlg::OnAddDependentVariableButton()
{
    MoveSourceToTarget(&m_SourceListCtrl, &m_DependentListCtrl, 0, 1, 0, 5);
    AfterDependentMove();
}

void CAnovaDlg::OnRemoveDependentVariableButton()
{
    MoveSourceToTarget(&m_DependentListCtrl, &m_SourceListCtrl, 1, 1, 0, 5);
    AfterDependentMove();
}

void CAnovaDlg::OnAddFactorButton()
{
    MoveSourceToTarget(&m_SourceListCtrl, &m_FactorListCtrl, 0, 1, 0, 5);
    UpdateDependentWindows();
}

void CAnovaDlg::OnRemoveFactorButton()
{
    MoveSourceToTarget(&m_FactorListCtrl, &m_SourceListCtrl, 1, 1, 0, 5);
    UpdateDependentWindows();
}

void CAnovaDlg::OnAddCovariateButton()
{
    MoveSourceToTarget(&m_SourceListCtrl, &m_CovariateListCtrl, 0, 1, 0, 5);
    UpdateDependentWindows();
}

void CAnovaDlg::OnRemoveCovariateButton()
{
    MoveSourceToTarget(&m_CovariateListCtrl, &m_SourceListCtrl, 1, 1, 0, 5);
    UpdateDependentWindows();
}

void CAnovaDlg::OnMissingValCheck()
{
    EnableCtrl(IDC_MISSING_VALUES, m_FactorListCtrl.GetItemCount() > 0);
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
    if (m_DependentListCtrl.GetItemCount() < 2) {
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
    m_DependentListCtrl.ResetOptions();
    m_FactorListCtrl.ResetOptions();
    m_CovariateListCtrl.ResetOptions();
    // The dependent list is empty now: the save list follows, as after a move.
    OnDependentVariablesChange();
    UpdateDependentWindows();
}

// --- Context menu ---------------------------------------------------------------

void CAnovaDlg::CreateListCtrlMenu()
{
    CArray<CMenuIdStr> entries;
    entries.Add({GetDlgItemText(IDC_DEPENDENT_LABEL), ID_MENU_DEPENDENT});
    entries.Add({GetDlgItemText(IDC_FACTOR_LABEL), ID_MENU_FACTOR});
    entries.Add({GetDlgItemText(IDC_COVARIATE_LABEL), ID_MENU_COVARIATE});
    m_SourceListCtrl.SetMenuIDArray(entries);
}

BOOL CAnovaDlg::OnAddTarget(UINT commandId)
{
    switch (commandId) {
    case ID_MENU_DEPENDENT: OnAddDependentVariableButton(); break;
    case ID_MENU_FACTOR: OnAddFactorButton(); break;
    case ID_MENU_COVARIATE: OnAddCovariateButton(); break;
    default: break;
    }
    return TRUE;
}

BOOL CAnovaDlg::OnUpdateAddTarget(CCmdUI* pCmdUI)
{
    // The menu tests movability only; the buttons' other conditions do not
    // apply to it.
    switch (pCmdUI->m_nID) {
    case ID_MENU_DEPENDENT: OnUpdateAddDependentVariableButton(pCmdUI); break;
    case ID_MENU_FACTOR:
        pCmdUI->Enable(EnableSourceToTarget(&m_SourceListCtrl, &m_FactorListCtrl, IDC_ADD_FACTOR));
        break;
    case ID_MENU_COVARIATE:
        pCmdUI->Enable(EnableSourceToTarget(&m_SourceListCtrl, &m_CovariateListCtrl, IDC_ADD_COVARIATE));
        break;
    default: break;
    }
    return TRUE;
}

void CAnovaDlg::OnUpdateAddDependentVariableButton(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(EnableSourceToTarget(&m_SourceListCtrl, &m_DependentListCtrl, IDC_ADD_DEPENDENT));
    // Showing the menu resets the save list to the default of the current
    // dependent count, exactly as an add does; kept on purpose.
    OnDependentVariablesChange();
    if (CWnd* tabDialog = GetParent())
        tabDialog->Invalidate(TRUE);
}

// --- Drag and drop ----------------------------------------------------------------

void CAnovaDlg::MouseMoveListCtrlHelper(const CWnd* over, HICON& cursor)
{
    // Dragging out of a target list takes the variables out of it.
    if (IsDragging() && GetDragList() != &m_SourceListCtrl) {
        if (over != GetDragList())
            cursor = CursorShape::Remove;
        return;
    }
    CGUIBaseDlg::MouseMoveListCtrlHelper(over, cursor);
}

void CAnovaDlg::LButtonUpListCtrlHelper(const CWnd* over)
{
    if (IsDragging() && GetDragList() != &m_SourceListCtrl) {
        if (over != GetDragList())
            ListCtrlElementRemovalHelper(GetDragList());
        return;
    }
    CGUIBaseDlg::LButtonUpListCtrlHelper(over);
}
