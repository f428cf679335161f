#include "private/Regression/KDGRegressionDlg.h"

#include "framework/GUITabDlg.h"
#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"
#include "private/Regression/KDGRegressionOptionsDlg.h"

IMPLEMENT_DYNAMIC(CRegressionDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CRegressionDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CRegressionDlg::IDC_SAVE_CHECK, &CRegressionDlg::OnSaveCheck)
    ON_CBN_SELCHANGE(CRegressionDlg::IDC_SAVE_COMBO, &CRegressionDlg::OnSelchangeSaveCombo)
    ON_EN_CHANGE(CRegressionDlg::IDC_SAVE_EDIT, &CRegressionDlg::OnChangeSaveEdit)
    ON_BN_CLICKED(IDC_RESET, &CRegressionDlg::OnReset)
END_MESSAGE_MAP()

CRegressionDlg::CRegressionDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    // Both lists take numeric variables only.
    const auto noStrings = [] { return false; };
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_DEPENDENT_LIST,
                 .add = IDC_ADD_DEPENDENT,
                 .remove = IDC_REMOVE_DEPENDENT,
                 .menuCommand = ID_MENU_DEPENDENT,
                 .menuLabel = IDC_DEPENDENT_LABEL,
                 .acceptsStrings = noStrings});
    AddRoleList({.list = IDC_INDEPENDENT_LIST,
                 .add = IDC_ADD_INDEPENDENT,
                 .remove = IDC_REMOVE_INDEPENDENT,
                 .menuCommand = ID_MENU_INDEPENDENT,
                 .menuLabel = IDC_INDEPENDENT_LABEL,
                 .acceptsStrings = noStrings});
}

BOOL CRegressionDlg::OnInitDialog()
{
    FillAllCombo();
    return CGUIBaseDlg::OnInitDialog();
}

void CRegressionDlg::AddToolTips()
{
    CGUIBaseDlg::AddToolTips();
    AddToolTip(IDC_SAVE_EDIT, GetDlgItemText(IDC_SAVE_EDIT), 1);
}

void CRegressionDlg::FillAllCombo()
{
    CComboBox* combo = GetComboBoxWnd(IDC_SAVE_COMBO);
    if (!combo) {
        ReportAssertion(__LINE__);
        return;
    }
    CComboUtil::FillCombo(IDC_SAVE_COMBO, *combo, 0);
}

bool CRegressionDlg::IsMixtureModel() const
{
    CGUITabDlg* tab = GetTabDlg();
    const auto* options = tab ? tab->FindPage<CRegressionOptionsDlg>() : nullptr;
    if (!options) {
        ReportAssertion(__LINE__);
        return false;
    }
    return options->IsMixtureChecked() != FALSE;
}

BOOL CRegressionDlg::IsIncludeConstantChecked() const
{
    return IsDlgButtonChecked(IDC_INCLUDE_CONSTANT) && IsCtrlEnabled(IDC_INCLUDE_CONSTANT);
}

void CRegressionDlg::UpdateDependentWindows()
{
    CGUIBaseDlg::UpdateDependentWindows();
    // Matrix data and mixture models have no constant; the check keeps its
    // state for when they are gone.
    EnableCtrl(IDC_INCLUDE_CONSTANT, kal::framework::IsOrdinaryData() && !IsMixtureModel());
    const bool matrix = kal::framework::IsMatrixData();
    EnableCtrl(IDC_CASES_LABEL, matrix);
    EnableCtrl(IDC_CASES, matrix);
    OnSaveCheck();
}

void CRegressionDlg::MoveSourceListToTargetListOnDblClk()
{
    const UINT add = GetDependentListCount() == 0 ? IDC_ADD_DEPENDENT : IDC_ADD_INDEPENDENT;
    if (IsCtrlEnabled(add))
        RunButtonHandler(add);
}

void CRegressionDlg::OnSaveCheck()
{
    const bool save = IsDlgButtonChecked(IDC_SAVE_CHECK) != 0;
    EnableCtrl(IDC_SAVE_COMBO, save);
    EnableCtrl(IDC_SAVE_EDIT, save);
}

void CRegressionDlg::OnSelchangeSaveCombo()
{
    if (GetComboCurSel(IDC_SAVE_COMBO) == -1)
        ReportAssertion(__LINE__);
}

void CRegressionDlg::OnChangeSaveEdit()
{
    UpdateToolTipText(IDC_SAVE_EDIT, GetDlgItemText(IDC_SAVE_EDIT), 1);
}

void CRegressionDlg::OnReset()
{
    CGUIBaseDlg::OnReset();
    for (const UINT list : {IDC_DEPENDENT_LIST, IDC_INDEPENDENT_LIST})
        ListCtrl(list).ResetOptions();
    UpdateDependentWindows();
}
