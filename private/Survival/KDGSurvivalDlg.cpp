#include "private/Survival/KDGSurvivalDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CSurvivalDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CSurvivalDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CSurvivalDlg::IDC_SAVE_CHECK, &CSurvivalDlg::OnRuleChange)
    ON_BN_CLICKED(IDC_RESET, &CSurvivalDlg::OnReset)
END_MESSAGE_MAP()

namespace {

bool Shares(const CGUIArray<CGUIDataVariable>& a, const CGUIArray<CGUIDataVariable>& b)
{
    for (const CGUIDataVariable& variable : a)
        if (CGUIBaseObj::CheckStringPresentinListCtrlArray(b, variable.GetVariableName()))
            return true;
    return false;
}

} // namespace

CSurvivalDlg::CSurvivalDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    const auto numeric = [] { return false; };
    AddRoleList({.list = IDC_TIME_LIST,
                 .add = IDC_ADD_TIME,
                 .remove = IDC_REMOVE_TIME,
                 .menuCommand = ID_MENU_TIME,
                 .menuLabel = IDC_TIME_LABEL,
                 .acceptsStrings = numeric,
                 .maxItems = 1});
    AddRoleList({.list = IDC_CENSOR_LIST,
                 .add = IDC_ADD_CENSOR,
                 .remove = IDC_REMOVE_CENSOR,
                 .menuCommand = ID_MENU_CENSOR,
                 .menuLabel = IDC_CENSOR_LABEL,
                 .acceptsStrings = numeric,
                 .maxItems = 1});
    AddRoleList({.list = IDC_ENTRY_LIST,
                 .add = IDC_ADD_ENTRY,
                 .remove = IDC_REMOVE_ENTRY,
                 .menuCommand = ID_MENU_ENTRY,
                 .menuLabel = IDC_ENTRY_LABEL,
                 .acceptsStrings = numeric,
                 .maxItems = 1});
    AddRoleList({.list = IDC_STRATA_LIST,
                 .add = IDC_ADD_STRATA,
                 .remove = IDC_REMOVE_STRATA,
                 .menuCommand = ID_MENU_STRATA,
                 .menuLabel = IDC_STRATA_LABEL,
                 .afterMove = [this] { NotifyTab(); },
                 .maxItems = 1});
    AddRoleList({.list = IDC_COVARIATE_LIST,
                 .add = IDC_ADD_COVARIATE,
                 .remove = IDC_REMOVE_COVARIATE,
                 .menuCommand = ID_MENU_COVARIATE,
                 .menuLabel = IDC_COVARIATE_LABEL,
                 .acceptsStrings = numeric,
                 .enabled = [this] { return IsRegression(); }});
}

BOOL CSurvivalDlg::OnInitDialog()
{
    if (CComboBox* combo = GetComboBoxWnd(IDC_SAVE_COMBO))
        CComboUtil::FillCombo(CSurvivalData::kSaveCombo, *combo, 0);
    else
        ReportAssertion(__LINE__);
    CGUIPageDlg::OnInitDialog();
    UpdateDependentWindows();
    return TRUE;
}

void CSurvivalDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    const CSurvivalData& w = m_Work;
    DDX_ControlWarn(pDX, IDC_TIME_LIST, w.m_TimeList.IsEmpty() ? kMsgNoTime : 0);
    DDX_ControlWarn(pDX, IDC_CENSOR_LIST, Shares(w.m_CensorList, w.m_TimeList) ? kMsgSameRole : 0);
    DDX_ControlWarn(pDX, IDC_ENTRY_LIST,
                    Shares(w.m_EntryList, w.m_TimeList) || Shares(w.m_EntryList, w.m_CensorList) ? kMsgSameRole : 0);
    DDX_ControlWarn(pDX, IDC_STRATA_LIST,
                    IsRegression() && Shares(w.m_StrataList, w.m_CovariateList) ? kMsgStrataCovariate : 0);
}

void CSurvivalDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool censored = ListCtrl(IDC_CENSOR_LIST).GetItemCount() > 0;
    EnableCtrl(IDC_CODE_LABEL, censored);
    EnableCtrl(IDC_CODE_EDIT, censored);
    const bool regression = IsRegression();
    for (const UINT id : {IDC_COVARIATE_LABEL, IDC_COVARIATE_LIST, IDC_ADD_COVARIATE, IDC_REMOVE_COVARIATE}) {
        ShowCtrl(id, regression);
        if (!regression)
            EnableCtrl(id, FALSE);
    }
    const bool save = IsDlgButtonChecked(IDC_SAVE_CHECK) != 0;
    EnableCtrl(IDC_SAVE_COMBO, save);
    EnableCtrl(IDC_SAVE_EDIT, save);
}

void CSurvivalDlg::OnRuleChange()
{
    UpdateDependentWindows();
}

void CSurvivalDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    for (const UINT id : {IDC_TIME_LIST, IDC_CENSOR_LIST, IDC_ENTRY_LIST, IDC_STRATA_LIST, IDC_COVARIATE_LIST})
        ListCtrl(id).ResetOptions();
    UpdateDependentWindows();
    NotifyTab();
}
