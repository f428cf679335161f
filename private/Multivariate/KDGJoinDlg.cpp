#include "private/Multivariate/KDGJoinDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CJoinDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CJoinDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CJoinDlg::IDC_CASES_RADIO, &CJoinDlg::OnJoinChange)
    ON_BN_CLICKED(CJoinDlg::IDC_VARIABLES_RADIO, &CJoinDlg::OnJoinChange)
    ON_CBN_SELCHANGE(CJoinDlg::IDC_DISTANCE_COMBO, &CJoinDlg::OnRuleChange)
    ON_BN_CLICKED(IDC_RESET, &CJoinDlg::OnReset)
END_MESSAGE_MAP()

CJoinDlg::CJoinDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_VARIABLE_LIST,
                 .add = IDC_ADD_VARIABLE,
                 .remove = IDC_REMOVE_VARIABLE,
                 .menuCommand = ID_MENU_VARIABLES,
                 .menuLabel = IDC_VARIABLE_LABEL,
                 .acceptsStrings = [] { return false; }});
}

BOOL CJoinDlg::OnInitDialog()
{
    for (const auto& [control, list] : {std::pair{IDC_DISTANCE_COMBO, kal::multivariate::kDistanceList},
                                        std::pair{IDC_LINKAGE_COMBO, CJoinData::kLinkageList}}) {
        if (CComboBox* combo = GetComboBoxWnd(control))
            CComboUtil::FillCombo(list, *combo, 0);
        else
            ReportAssertion(__LINE__);
    }
    CRadioUtil::FillRadio(this, CJoinData::kJoinRadio);
    CGUIPageDlg::OnInitDialog();
    UpdateDependentWindows();
    return TRUE;
}

void CJoinDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    const int count = m_Work.m_VariableList.GetSize();
    UINT message = 0;
    if (JoinsCases())
        message = count < 1 ? kMsgNoVariable : 0;
    else
        message = count < 2 ? kMsgTooFewVariables : 0;
    DDX_ControlWarn(pDX, IDC_VARIABLE_LIST, message);
}

void CJoinDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool minkowski = GetComboCurSel(IDC_DISTANCE_COMBO) == kal::multivariate::kMinkowskiEntry;
    EnableCtrl(IDC_POWER_LABEL, minkowski);
    EnableCtrl(IDC_POWER_EDIT, minkowski);
}

void CJoinDlg::OnRuleChange()
{
    if (GetComboCurSel(IDC_DISTANCE_COMBO) < 0)
        ReportAssertion(__LINE__);
    UpdateDependentWindows();
}

void CJoinDlg::OnJoinChange()
{
    UpdateDependentWindows();
    NotifyTab();
}

void CJoinDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    ListCtrl(IDC_VARIABLE_LIST).ResetOptions();
    UpdateDependentWindows();
    NotifyTab();
}
