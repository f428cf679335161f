#include "private/Quality/KDGArlDlg.h"

#include "framework/ResourceUtil.h"

#include <cmath>

IMPLEMENT_DYNAMIC(CArlDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CArlDlg, CGUIBaseDlg)
    ON_CBN_SELCHANGE(CArlDlg::IDC_CHART_COMBO, &CArlDlg::OnSelchangeChart)
    ON_BN_CLICKED(IDC_RESET, &CArlDlg::OnReset)
END_MESSAGE_MAP()

CArlDlg::CArlDlg(CWnd* parent) : CGUIPageDlg(IDD, parent) {}

BOOL CArlDlg::OnInitDialog()
{
    if (CComboBox* combo = GetComboBoxWnd(IDC_CHART_COMBO))
        CComboUtil::FillCombo(CArlData::kChartCombo, *combo, ChartList());
    else
        ReportAssertion(__LINE__);
    CGUIPageDlg::OnInitDialog();
    if (ChartList() == CArlData::kTimeWeightedRow && m_Work.m_ParameterEdit.m_Value == 0)
        PutUsualValues();
    UpdateDependentWindows();
    return TRUE;
}

UINT CArlDlg::SelectedChart() const
{
    return CComboUtil::GetComboItem(CArlData::kChartCombo, GetComboCurSel(IDC_CHART_COMBO), ChartList());
}

void CArlDlg::PutUsualValues()
{
    const UINT chart = SelectedChart();
    SetDlgItemText(IDC_LIMIT_EDIT, CGUIBaseObj::NumberText(CArlData::UsualLimit(chart)));
    SetDlgItemText(IDC_PARAMETER_EDIT, CGUIBaseObj::NumberText(CArlData::UsualParameter(chart)));
}

void CArlDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    const UINT chart = SelectedChart();
    DDX_ControlWarn(pDX, IDC_SUBGROUP_EDIT,
                    chart == CArlData::kMedian && m_Work.m_SubgroupEdit.m_Value < 2 ? kMsgSubgroupTooSmall : 0);
    const double step = m_Work.m_StepEdit.m_Value;
    DDX_ControlWarn(pDX, IDC_STEP_EDIT, step > 0 && step <= m_Work.m_MaxShiftEdit.m_Value ? 0 : kMsgStep);
    DDX_ControlWarn(pDX, IDC_LIMIT_EDIT, m_Work.m_LimitEdit.m_Value > 0 ? 0 : kMsgOutOfRange);
    DDX_ControlWarn(pDX, IDC_PARAMETER_EDIT, ValidateParameter());
}

UINT CArlDlg::ValidateParameter() const
{
    const double value = m_Work.m_ParameterEdit.m_Value;
    switch (SelectedChart()) {
    case CArlData::kEwma: return value > 0 && value <= 1 ? 0 : kMsgWeight;
    case CArlData::kCusum: return value > 0 ? 0 : kMsgOutOfRange;
    case CArlData::kMovingAverage:
        if (value != std::floor(value))
            return kMsgWholeNumber;
        return value >= 2 ? 0 : kMsgOutOfRange;
    default: return 0;
    }
}

void CArlDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const UINT chart = SelectedChart();
    CString limit(u"&Limits (sigma):");
    // The labels keep their access keys whatever the chart.
    CString parameter(u"&Parameter:");
    switch (chart) {
    case CArlData::kEwma: parameter = u"&Parameter λ (weight):"; break;
    case CArlData::kCusum:
        limit = u"&Limit h (decision interval):";
        parameter = u"&Parameter k (reference):";
        break;
    case CArlData::kMovingAverage: parameter = u"&Parameter (span):"; break;
    default: break;
    }
    SetDlgItemText(IDC_LIMIT_LABEL, limit);
    SetDlgItemText(IDC_PARAMETER_LABEL, parameter);
    const bool timeWeighted =
        chart == CArlData::kEwma || chart == CArlData::kCusum || chart == CArlData::kMovingAverage;
    EnableCtrl(IDC_PARAMETER_LABEL, timeWeighted);
    EnableCtrl(IDC_PARAMETER_EDIT, timeWeighted);
}

void CArlDlg::OnSelchangeChart()
{
    PutUsualValues();
    UpdateDependentWindows();
}

void CArlDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    if (ChartList() == CArlData::kTimeWeightedRow)
        PutUsualValues();
    UpdateDependentWindows();
}
