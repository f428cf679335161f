#include "private/Regression/KDGTslsInstrumentsDlg.h"

#include "framework/GUITabDlg.h"
#include "private/Regression/KDGRegModelDlg.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CTslsInstrumentsDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CTslsInstrumentsDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CTslsInstrumentsDlg::IDC_SAVE_CHECK, &CTslsInstrumentsDlg::OnRuleChange)
END_MESSAGE_MAP()

namespace {

bool Holds(const CGUIArray<CGUIDataVariable>& list, const CGUIDataVariable& variable)
{
    return std::any_of(list.begin(), list.end(),
                       [&](const CGUIDataVariable& v) { return v.GetVariableName() == variable.GetVariableName(); });
}

} // namespace

CTslsInstrumentsDlg::CTslsInstrumentsDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    const auto noStrings = [] { return false; };
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_ENDOGENOUS_LIST,
                 .add = IDC_ADD_ENDOGENOUS,
                 .remove = IDC_REMOVE_ENDOGENOUS,
                 .menuCommand = ID_MENU_ENDOGENOUS,
                 .menuLabel = IDC_ENDOGENOUS_LABEL,
                 .acceptsStrings = noStrings});
    AddRoleList({.list = IDC_INSTRUMENT_LIST,
                 .add = IDC_ADD_INSTRUMENT,
                 .remove = IDC_REMOVE_INSTRUMENT,
                 .menuCommand = ID_MENU_INSTRUMENT,
                 .menuLabel = IDC_INSTRUMENT_LABEL,
                 .acceptsStrings = noStrings});
}

UINT CTslsInstrumentsDlg::ValidateEndogenous(const CGUIArray<CGUIDataVariable>& regressors) const
{
    if (m_Work.m_EndogenousList.IsEmpty())
        return kMsgNoEndogenous;
    for (const auto& variable : m_Work.m_EndogenousList)
        if (!Holds(regressors, variable))
            return kMsgEndogenousNotInModel;
    return 0;
}

UINT CTslsInstrumentsDlg::ValidateInstruments(const CGUIArray<CGUIDataVariable>& model) const
{
    for (const auto& variable : m_Work.m_InstrumentList)
        if (Holds(model, variable))
            return kMsgInstrumentInModel;
    return m_Work.m_InstrumentList.GetSize() < m_Work.m_EndogenousList.GetSize() ? kMsgTooFewInstruments : 0;
}

void CTslsInstrumentsDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    CGUITabDlg* tab = GetTabDlg();
    auto* modelPage = tab ? tab->FindPage<CRegModelDlg>() : nullptr;
    if (!modelPage) {
        ReportAssertion(__LINE__);
        return;
    }
    const CGUIArray<CGUIDataVariable> regressors = modelPage->GetRegressors();
    CGUIArray<CGUIDataVariable> model = modelPage->GetDependent();
    for (const auto& variable : regressors)
        model.Add(variable);
    DDX_ControlWarn(pDX, IDC_ENDOGENOUS_LIST, ValidateEndogenous(regressors));
    DDX_ControlWarn(pDX, IDC_INSTRUMENT_LIST, ValidateInstruments(model));
}

void CTslsInstrumentsDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    EnableCtrl(IDC_SAVE_EDIT, IsDlgButtonChecked(IDC_SAVE_CHECK));
}

void CTslsInstrumentsDlg::OnRuleChange()
{
    UpdateDependentWindows();
}

void CTslsInstrumentsDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    ListCtrl(IDC_ENDOGENOUS_LIST).ResetOptions();
    ListCtrl(IDC_INSTRUMENT_LIST).ResetOptions();
    UpdateDependentWindows();
}
