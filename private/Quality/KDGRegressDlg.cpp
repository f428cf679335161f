#include "private/Quality/KDGRegressDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CRegressDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CRegressDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CRegressDlg::IDC_PLIMITS_RADIO, &CRegressDlg::OnRuleChange)
    ON_BN_CLICKED(CRegressDlg::IDC_SLIMITS_RADIO, &CRegressDlg::OnRuleChange)
    ON_BN_CLICKED(IDC_RESET, &CRegressDlg::OnReset)
END_MESSAGE_MAP()

CRegressDlg::CRegressDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_RESPONSE_LIST,
                 .add = IDC_ADD_RESPONSE,
                 .remove = IDC_REMOVE_RESPONSE,
                 .menuCommand = ID_MENU_RESPONSE,
                 .menuLabel = IDC_RESPONSE_LABEL,
                 .acceptsStrings = [] { return false; },
                 .maxItems = 1});
    AddRoleList({.list = IDC_PREDICTOR_LIST,
                 .add = IDC_ADD_PREDICTOR,
                 .remove = IDC_REMOVE_PREDICTOR,
                 .menuCommand = ID_MENU_PREDICTOR,
                 .menuLabel = IDC_PREDICTOR_LABEL,
                 .acceptsStrings = [] { return false; },
                 .maxItems = 1});
}

BOOL CRegressDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CRegressData::kLimitsRadio);
    UpdateDependentWindows();
    return TRUE;
}

void CRegressDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    using kal::quality::IsGiven;
    DDX_ControlWarn(pDX, IDC_RESPONSE_LIST, m_Work.m_ResponseVariables.IsEmpty() ? kMsgNoResponse : 0);
    DDX_ControlWarn(pDX, IDC_PREDICTOR_LIST, ValidatePredictor());
    // The field's range closes the upper end; a residual sigma of 0 draws no limits.
    const bool noSpread = IsGiven(m_Work.m_SigmaEdit) && !(m_Work.m_SigmaEdit.m_Value > 0);
    DDX_ControlWarn(pDX, IDC_SIGMA_EDIT, noSpread ? CRegressData::kMsgSigma : 0);
    const bool probability = IsDlgButtonChecked(IDC_PLIMITS_RADIO) != 0;
    DDX_ControlWarn(
        pDX, IDC_PLIMITS_UPPER,
        probability ? kal::quality::LimitsOrder(m_Work.m_PLimitsLowerEdit, m_Work.m_PLimitsUpperEdit, kMsgLimitsOrder)
                    : 0);
    DDX_ControlWarn(
        pDX, IDC_SLIMITS_LOWER,
        kal::quality::ValidateSigmaBounds(*this, kLimits, m_Work.m_SigmaLowerEdit, m_Work.m_SigmaUpperEdit));
}

UINT CRegressDlg::ValidatePredictor() const
{
    if (m_Work.m_PredictorVariables.IsEmpty())
        return kMsgNoPredictor;
    for (const auto& response : m_Work.m_ResponseVariables)
        for (const auto& predictor : m_Work.m_PredictorVariables)
            if (response.GetVariableName() == predictor.GetVariableName())
                return kMsgSameVariable;
    return 0;
}

void CRegressDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    kal::quality::EnableLimits(*this, kLimits);
}

void CRegressDlg::OnRuleChange()
{
    UpdateDependentWindows();
}

void CRegressDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    ListCtrl(IDC_RESPONSE_LIST).ResetOptions();
    ListCtrl(IDC_PREDICTOR_LIST).ResetOptions();
    UpdateDependentWindows();
}
