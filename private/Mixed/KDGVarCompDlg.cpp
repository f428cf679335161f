#include "private/Mixed/KDGVarCompDlg.h"

#include "framework/ResourceUtil.h"
#include "private/Anova/KDGModelTerms.h"
#include "private/Mixed/KDGHlmLevelsDlg.h"
#include "private/Mixed/KDGMixedEstimationDlg.h"
#include "private/Mixed/KDGMixedLists.h"

IMPLEMENT_DYNAMIC(CVarCompDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CVarCompDlg, CGUIBaseDlg)
    ON_CBN_SELCHANGE(CVarCompDlg::IDC_METHOD_COMBO, &CVarCompDlg::OnMethodChange)
    ON_BN_CLICKED(IDC_RESET, &CVarCompDlg::OnReset)
END_MESSAGE_MAP()

CVarCompDlg::CVarCompDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
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
    AddRoleList({.list = IDC_RANDOM_LIST,
                 .add = IDC_ADD_RANDOM,
                 .remove = IDC_REMOVE_RANDOM,
                 .menuCommand = ID_MENU_RANDOM,
                 .menuLabel = IDC_RANDOM_LABEL});
    AddRoleList({.list = IDC_FIXED_LIST,
                 .add = IDC_ADD_FIXED,
                 .remove = IDC_REMOVE_FIXED,
                 .menuCommand = ID_MENU_FIXED,
                 .menuLabel = IDC_FIXED_LABEL});
    AddRoleList({.list = IDC_COVARIATE_LIST,
                 .add = IDC_ADD_COVARIATE,
                 .remove = IDC_REMOVE_COVARIATE,
                 .menuCommand = ID_MENU_COVARIATE,
                 .menuLabel = IDC_COVARIATE_LABEL,
                 .acceptsStrings = numeric});
}

BOOL CVarCompDlg::OnInitDialog()
{
    if (CComboBox* combo = GetComboBoxWnd(IDC_METHOD_COMBO))
        CComboUtil::FillCombo(CVarCompData::kMethodCombo, *combo, 0);
    else
        ReportAssertion(__LINE__);
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CVarCompData::kSumsRadio);
    UpdateDependentWindows();
    return TRUE;
}

std::pair<UINT, UINT> CVarCompDlg::Validate() const
{
    const CVarCompData& w = m_Work;
    if (w.m_DependentList.IsEmpty())
        return {CHlmLevelsDlg::kMsgNoDependent, IDC_DEPENDENT_LIST};
    if (w.m_RandomList.IsEmpty())
        return {kMsgNoRandomFactor, IDC_RANDOM_LIST};
    if (kal::mixed::SharesVariable({&w.m_DependentList, &w.m_RandomList, &w.m_FixedList, &w.m_CovariateList}))
        return {CHlmLevelsDlg::kMsgTwoRoles, IDC_RANDOM_LIST};
    if (w.m_InteractionsCheck && static_cast<int>(w.Factors().size()) > CModelTerms::kMaxFactorialVariables)
        return {kMsgTooManyFactors, IDC_INTERACTIONS_CHECK};
    return {0, 0};
}

void CVarCompDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    const auto [message, control] = Validate();
    DDX_ControlWarn(pDX, control, message);
    CMixedEstimationDlg::WarnOpenUnit(pDX, IDC_CONV_EDIT, m_Work.m_ConvEdit.m_Value, IsCtrlInUse(IDC_CONV_EDIT));
}

void CVarCompDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const int method = GetComboCurSel(IDC_METHOD_COMBO);
    const bool anova = method == CVarCompData::kMethodAnova;
    EnableCtrl(IDC_TYPE1_RADIO, anova);
    EnableCtrl(IDC_TYPE3_RADIO, anova);
    const bool iterative = method == CVarCompData::kMethodMl || method == CVarCompData::kMethodReml;
    for (const UINT id : {IDC_ITER_LABEL, IDC_ITER_EDIT, IDC_CONV_LABEL, IDC_CONV_EDIT})
        EnableCtrl(id, iterative);
}

void CVarCompDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    for (const UINT list : {IDC_DEPENDENT_LIST, IDC_RANDOM_LIST, IDC_FIXED_LIST, IDC_COVARIATE_LIST})
        ListCtrl(list).ResetOptions();
    UpdateDependentWindows();
}
