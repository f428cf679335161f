#include "private/Quality/KDGTimeWeightedDlg.h"

#include "framework/ResourceUtil.h"
#include "private/Quality/KDGControlLimits.h"

IMPLEMENT_DYNAMIC(CTimeWeightedDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CTimeWeightedDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CTimeWeightedDlg::IDC_PLIMITS_RADIO, &CTimeWeightedDlg::OnRuleChange)
    ON_BN_CLICKED(CTimeWeightedDlg::IDC_SLIMITS_RADIO, &CTimeWeightedDlg::OnRuleChange)
    ON_BN_CLICKED(IDC_RESET, &CTimeWeightedDlg::OnReset)
END_MESSAGE_MAP()

CTimeWeightedDlg::CTimeWeightedDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_CHART_LIST,
                 .add = IDC_ADD_CHART,
                 .remove = IDC_REMOVE_CHART,
                 .menuCommand = ID_MENU_CHART,
                 .menuLabel = IDC_CHART_LABEL,
                 .acceptsStrings = [] { return false; }});
    AddRoleList({.list = IDC_GROUP_LIST,
                 .add = IDC_ADD_GROUP,
                 .remove = IDC_REMOVE_GROUP,
                 .menuCommand = ID_MENU_GROUP,
                 .menuLabel = IDC_GROUP_LABEL});
}

BOOL CTimeWeightedDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CTimeWeightedData::kLimitsRadio);
    CRadioUtil::FillRadio(this, CTimeWeightedData::kSidesRadio);
    UpdateDependentWindows();
    return TRUE;
}

void CTimeWeightedDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, IDC_CHART_LIST, m_Work.m_ChartVariables.IsEmpty() ? kMsgNoMeasurement : 0);
    DDX_ControlWarn(pDX, IDC_WEIGHT_EDIT, ValidateWeight());
    DDX_ControlWarn(pDX, IDC_PLIMITS_UPPER, ValidateProbabilityLimits());
    DDX_ControlWarn(pDX, IDC_SLIMITS_LOWER, ValidateSigmaLimits());
}

UINT CTimeWeightedDlg::ValidateWeight() const
{
    // The field's range closes the upper end; an EWMA of weight 0 never moves.
    const bool inUse = Chart() == TimeWeightedChart::Ewma;
    return inUse && !(m_Work.m_WeightEdit.m_Value > 0) ? CTimeWeightedData::kMsgWeight : 0;
}

UINT CTimeWeightedDlg::ValidateSigmaLimits() const
{
    if (Chart() == TimeWeightedChart::Cusum)
        return 0;
    return kal::quality::ValidateSigmaBounds(*this, kLimits, m_Work.m_SigmaLowerEdit, m_Work.m_SigmaUpperEdit);
}

UINT CTimeWeightedDlg::ValidateProbabilityLimits() const
{
    // Both bounds at 0 are the chart's defaults; only a lower bound above
    // the upper one is refused.
    const auto& lower = m_Work.m_PLimitsLowerEdit;
    const auto& upper = m_Work.m_PLimitsUpperEdit;
    const bool inUse = Chart() != TimeWeightedChart::Cusum && IsDlgButtonChecked(IDC_PLIMITS_RADIO);
    const bool reversed = kal::quality::IsGiven(lower) && kal::quality::IsGiven(upper) && lower.m_Value > upper.m_Value;
    return inUse && reversed ? kMsgLimitsOrder : 0;
}

void CTimeWeightedDlg::ShowBlock(std::initializer_list<UINT> controls, bool show)
{
    for (const UINT id : controls) {
        ShowCtrl(id, show);
        EnableCtrl(id, show);
    }
}

void CTimeWeightedDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();

    const TimeWeightedChart chart = Chart();
    const bool cusum = chart == TimeWeightedChart::Cusum;
    ShowBlock({IDC_WEIGHT_LABEL, IDC_WEIGHT_EDIT}, chart == TimeWeightedChart::Ewma);
    ShowBlock({IDC_SPAN_LABEL, IDC_SPAN_EDIT}, chart == TimeWeightedChart::MovingAverage);
    ShowBlock({IDC_K_LABEL, IDC_K_EDIT, IDC_H_LABEL, IDC_H_EDIT, IDC_SIDES_GROUP, IDC_TWO_SIDED_RADIO, IDC_UPPER_RADIO,
               IDC_LOWER_RADIO, IDC_FIR_CHECK},
              cusum);
    ShowBlock({IDC_LIMITS_GROUP, IDC_LOWER_LABEL, IDC_UPPER_LABEL, IDC_PLIMITS_RADIO, IDC_SLIMITS_RADIO}, !cusum);
    ShowCtrl(IDC_PLIMITS_LOWER, !cusum);
    ShowCtrl(IDC_PLIMITS_UPPER, !cusum);
    ShowCtrl(IDC_SLIMITS_LOWER, !cusum);
    ShowCtrl(IDC_SLIMITS_UPPER, !cusum);

    kal::quality::EnableLimits(*this, kLimits, !cusum);
}

void CTimeWeightedDlg::OnRuleChange()
{
    UpdateDependentWindows();
}

void CTimeWeightedDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    ListCtrl(IDC_CHART_LIST).ResetOptions();
    ListCtrl(IDC_GROUP_LIST).ResetOptions();
    UpdateDependentWindows();
}
