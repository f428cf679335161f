#include "private/Multivariate/KDGKmeansDlg.h"

#include "framework/ResourceUtil.h"
#include "private/Multivariate/KDGMultivarLists.h"

IMPLEMENT_DYNAMIC(CKmeansDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CKmeansDlg, CGUIBaseDlg)
    ON_CBN_SELCHANGE(CKmeansDlg::IDC_DISTANCE_COMBO, &CKmeansDlg::OnRuleChange)
    ON_BN_CLICKED(IDC_RESET, &CKmeansDlg::OnReset)
END_MESSAGE_MAP()

CKmeansDlg::CKmeansDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_VARIABLE_LIST,
                 .add = IDC_ADD_VARIABLE,
                 .remove = IDC_REMOVE_VARIABLE,
                 .menuCommand = ID_MENU_VARIABLES,
                 .menuLabel = IDC_VARIABLE_LABEL,
                 .acceptsStrings = [] { return false; }});
}

BOOL CKmeansDlg::OnInitDialog()
{
    if (CComboBox* combo = GetComboBoxWnd(IDC_DISTANCE_COMBO))
        CComboUtil::FillCombo(kal::multivariate::kDistanceList, *combo, 0);
    else
        ReportAssertion(__LINE__);
    CGUIPageDlg::OnInitDialog();
    UpdateDependentWindows();
    return TRUE;
}

void CKmeansDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, IDC_VARIABLE_LIST, m_Work.m_VariableList.IsEmpty() ? kMsgNoVariable : 0);
    const int cases = kal::multivariate::CaseCount();
    DDX_ControlWarn(pDX, IDC_NUMBER_EDIT, cases >= 0 && m_Work.m_NumberEdit.m_Value > cases ? kMsgTooManyClusters : 0);
}

void CKmeansDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool minkowski = GetComboCurSel(IDC_DISTANCE_COMBO) == kal::multivariate::kMinkowskiEntry;
    EnableCtrl(IDC_POWER_LABEL, minkowski);
    EnableCtrl(IDC_POWER_EDIT, minkowski);
}

void CKmeansDlg::OnRuleChange()
{
    if (GetComboCurSel(IDC_DISTANCE_COMBO) < 0)
        ReportAssertion(__LINE__);
    UpdateDependentWindows();
}

void CKmeansDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    ListCtrl(IDC_VARIABLE_LIST).ResetOptions();
    UpdateDependentWindows();
}
