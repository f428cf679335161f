#include "private/Regression/KDGProbitDlg.h"

#include "framework/ResourceUtil.h"

#include <set>

IMPLEMENT_DYNAMIC(CProbitDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CProbitDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CProbitDlg::IDC_BINARY_RADIO, &CProbitDlg::OnChoice)
    ON_BN_CLICKED(CProbitDlg::IDC_COUNTS_RADIO, &CProbitDlg::OnChoice)
    ON_BN_CLICKED(CProbitDlg::IDC_NO_NATURAL_RADIO, &CProbitDlg::OnChoice)
    ON_BN_CLICKED(CProbitDlg::IDC_ESTIMATED_NATURAL_RADIO, &CProbitDlg::OnChoice)
    ON_BN_CLICKED(CProbitDlg::IDC_KNOWN_NATURAL_RADIO, &CProbitDlg::OnChoice)
    ON_BN_CLICKED(IDC_RESET, &CProbitDlg::OnReset)
END_MESSAGE_MAP()

CProbitDlg::CProbitDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    const auto noStrings = [] { return false; };
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_RESPONSE_LIST,
                 .add = IDC_ADD_RESPONSE,
                 .remove = IDC_REMOVE_RESPONSE,
                 .menuCommand = ID_MENU_RESPONSE,
                 .menuLabel = IDC_RESPONSE_LABEL,
                 .acceptsStrings = noStrings,
                 .maxItems = 1});
    AddRoleList({.list = IDC_TOTAL_LIST,
                 .add = IDC_ADD_TOTAL,
                 .remove = IDC_REMOVE_TOTAL,
                 .menuCommand = ID_MENU_TOTAL,
                 .menuLabel = IDC_TOTAL_LABEL,
                 .acceptsStrings = noStrings,
                 .enabled = [this] { return IsDlgButtonChecked(IDC_COUNTS_RADIO) != 0; },
                 .maxItems = 1});
    AddRoleList({.list = IDC_DOSE_LIST,
                 .add = IDC_ADD_DOSE,
                 .remove = IDC_REMOVE_DOSE,
                 .menuCommand = ID_MENU_DOSE,
                 .menuLabel = IDC_DOSE_LABEL,
                 .acceptsStrings = noStrings,
                 .maxItems = 1});
    AddRoleList({.list = IDC_COVARIATE_LIST,
                 .add = IDC_ADD_COVARIATE,
                 .remove = IDC_REMOVE_COVARIATE,
                 .menuCommand = ID_MENU_COVARIATE,
                 .menuLabel = IDC_COVARIATE_LABEL,
                 .acceptsStrings = noStrings});
}

BOOL CProbitDlg::OnInitDialog()
{
    if (CComboBox* combo = GetComboBoxWnd(IDC_TRANSFORM_COMBO))
        CComboUtil::FillCombo(CProbitData::kTransformCombo, *combo, 0);
    else
        ReportAssertion(__LINE__);
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CProbitData::kResponseRadio);
    CRadioUtil::FillRadio(this, CProbitData::kNaturalRadio);
    UpdateDependentWindows();
    return TRUE;
}

bool CProbitDlg::AnyVariableInTwoRoles() const
{
    std::set<CString> seen;
    const bool counts = m_Work.IsCounts();
    for (const auto* list :
         {&m_Work.m_ResponseList, &m_Work.m_TotalList, &m_Work.m_DoseList, &m_Work.m_CovariateList}) {
        if (list == &m_Work.m_TotalList && !counts)
            continue;
        for (const auto& variable : *list)
            if (!seen.insert(variable.GetVariableName()).second)
                return true;
    }
    return false;
}

void CProbitDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, IDC_RESPONSE_LIST, m_Work.m_ResponseList.IsEmpty() ? kMsgNoResponse : 0);
    DDX_ControlWarn(pDX, IDC_TOTAL_LIST, m_Work.IsCounts() && m_Work.m_TotalList.IsEmpty() ? kMsgNoTotal : 0);
    DDX_ControlWarn(pDX, IDC_DOSE_LIST, m_Work.m_DoseList.IsEmpty() ? kMsgNoDose : 0);
    DDX_ControlWarn(pDX, IDC_COVARIATE_LIST, AnyVariableInTwoRoles() ? kMsgTwoRoles : 0);
    const bool known = m_Work.ChosenNatural() == CProbitData::kKnownNatural;
    DDX_ControlWarn(pDX, IDC_NATURAL_EDIT, known && m_Work.m_NaturalEdit.m_Value >= 1 ? kMsgNaturalRate : 0);
}

void CProbitDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool counts = IsDlgButtonChecked(IDC_COUNTS_RADIO) != 0;
    EnableCtrl(IDC_TOTAL_LABEL, counts);
    EnableCtrl(IDC_TOTAL_LIST, counts);
    EnableCtrl(IDC_NATURAL_EDIT, IsDlgButtonChecked(IDC_KNOWN_NATURAL_RADIO) != 0);
}

void CProbitDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    for (const UINT list : {IDC_RESPONSE_LIST, IDC_TOTAL_LIST, IDC_DOSE_LIST, IDC_COVARIATE_LIST})
        ListCtrl(list).ResetOptions();
    UpdateDependentWindows();
}
