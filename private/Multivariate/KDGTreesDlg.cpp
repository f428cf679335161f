#include "private/Multivariate/KDGTreesDlg.h"

IMPLEMENT_DYNAMIC(CTreesDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CTreesDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CTreesDlg::IDC_CLASSIFICATION_RADIO, &CTreesDlg::OnKindChange)
    ON_BN_CLICKED(CTreesDlg::IDC_REGRESSION_RADIO, &CTreesDlg::OnKindChange)
    ON_BN_CLICKED(CTreesDlg::IDC_SAVE_CHECK, &CTreesDlg::OnRuleChange)
    ON_BN_CLICKED(IDC_RESET, &CTreesDlg::OnReset)
END_MESSAGE_MAP()

CTreesDlg::CTreesDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_RESPONSE_LIST,
                 .add = IDC_ADD_RESPONSE,
                 .remove = IDC_REMOVE_RESPONSE,
                 .menuCommand = ID_MENU_RESPONSE,
                 .menuLabel = IDC_RESPONSE_LABEL,
                 .maxItems = 1});
    AddRoleList({.list = IDC_PREDICTOR_LIST,
                 .add = IDC_ADD_PREDICTOR,
                 .remove = IDC_REMOVE_PREDICTOR,
                 .menuCommand = ID_MENU_PREDICTORS,
                 .menuLabel = IDC_PREDICTOR_LABEL});
}

BOOL CTreesDlg::OnInitDialog()
{
    if (CComboBox* combo = GetComboBoxWnd(IDC_SAVE_COMBO))
        CComboUtil::FillCombo(CTreesData::kSaveList, *combo, 0);
    else
        ReportAssertion(__LINE__);
    CRadioUtil::FillRadio(this, CTreesData::kKindRadio);
    CGUIPageDlg::OnInitDialog();
    UpdateDependentWindows();
    return TRUE;
}

void CTreesDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, IDC_RESPONSE_LIST, m_Work.m_ResponseList.IsEmpty() ? kMsgNoResponse : 0);
    DDX_ControlWarn(pDX, IDC_PREDICTOR_LIST, m_Work.m_PredictorList.IsEmpty() ? kMsgNoPredictor : 0);
    if (m_Work.m_ResponseList.IsEmpty())
        return;
    const CGUIDataVariable& response = m_Work.m_ResponseList[0];
    const bool repeated =
        CGUIBaseObj::CheckStringPresentinListCtrlArray(m_Work.m_PredictorList, response.GetVariableName()) != 0;
    DDX_ControlWarn(pDX, IDC_PREDICTOR_LIST, repeated ? kMsgResponseIsPredictor : 0);
    const bool text = response.GetVariableType() == NmsEnum::VT_STRING;
    DDX_ControlWarn(pDX, IDC_REGRESSION_RADIO, text && !IsClassification() ? kMsgStringResponse : 0);
}

void CTreesDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool save = IsDlgButtonChecked(IDC_SAVE_CHECK) != 0;
    EnableCtrl(IDC_SAVE_COMBO, save);
    EnableCtrl(IDC_SAVE_EDIT, save);
}

void CTreesDlg::OnRuleChange()
{
    UpdateDependentWindows();
}

void CTreesDlg::OnKindChange()
{
    // The options page offers the split rules of the kind chosen.
    UpdateDependentWindows();
    NotifyTab();
}

void CTreesDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    ListCtrl(IDC_RESPONSE_LIST).ResetOptions();
    ListCtrl(IDC_PREDICTOR_LIST).ResetOptions();
    UpdateDependentWindows();
    NotifyTab();
}
