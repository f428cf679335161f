#include "private/Multivariate/KDGFactorDlg.h"

#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CFactorDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CFactorDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CFactorDlg::IDC_PCA_RADIO, &CFactorDlg::OnExtractionChange)
    ON_BN_CLICKED(CFactorDlg::IDC_IPA_RADIO, &CFactorDlg::OnExtractionChange)
    ON_BN_CLICKED(CFactorDlg::IDC_MLA_RADIO, &CFactorDlg::OnExtractionChange)
    ON_BN_CLICKED(CFactorDlg::IDC_SAVE_CHECK, &CFactorDlg::OnRuleChange)
    ON_BN_CLICKED(IDC_RESET, &CFactorDlg::OnReset)
END_MESSAGE_MAP()

CFactorDlg::CFactorDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_VARIABLE_LIST,
                 .add = IDC_ADD_VARIABLE,
                 .remove = IDC_REMOVE_VARIABLE,
                 .menuCommand = ID_MENU_VARIABLES,
                 .menuLabel = IDC_VARIABLE_LABEL,
                 .acceptsStrings = [] { return false; }});
}

BOOL CFactorDlg::OnInitDialog()
{
    if (CComboBox* combo = GetComboBoxWnd(IDC_SAVE_COMBO))
        CComboUtil::FillCombo(CFactorData::kSaveCombo, *combo, 0);
    else
        ReportAssertion(__LINE__);
    CRadioUtil::FillRadio(this, CFactorData::kExtractionRadio);
    CRadioUtil::FillRadio(this, CFactorData::kMatrixRadio);
    CGUIPageDlg::OnInitDialog();
    UpdateDependentWindows();
    return TRUE;
}

bool CFactorDlg::IsIterative() const
{
    return IsDlgButtonChecked(IDC_IPA_RADIO) || IsDlgButtonChecked(IDC_MLA_RADIO);
}

void CFactorDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (pDX->m_bSaveAndValidate)
        DDX_ControlWarn(pDX, IDC_VARIABLE_LIST, m_Work.m_VariableList.GetSize() < 2 ? kMsgTooFewVariables : 0);
}

void CFactorDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool matrix = kal::framework::IsMatrixData();
    EnableCtrl(IDC_CASES_LABEL, matrix);
    EnableCtrl(IDC_CASES, matrix);
    EnableCtrl(IDC_SAVE_CHECK, !matrix);
    const bool save = !matrix && IsDlgButtonChecked(IDC_SAVE_CHECK);
    EnableCtrl(IDC_SAVE_COMBO, save);
    EnableCtrl(IDC_SAVE_EDIT, save);
}

void CFactorDlg::OnRuleChange()
{
    UpdateDependentWindows();
}

void CFactorDlg::OnExtractionChange()
{
    // The factors page edits the iterations of iterative extractions.
    UpdateDependentWindows();
    NotifyTab();
}

void CFactorDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    ListCtrl(IDC_VARIABLE_LIST).ResetOptions();
    UpdateDependentWindows();
    NotifyTab();
}
