// CTimeWeightedData: the chart page shared by the time-weighted control
// charts: CUSUM, EWMA and moving average. Measurements, optional subgroups,
// a target and a known sigma (both estimated when left empty), the chart's
// own parameters (EWMA weight, moving-average span, CUSUM reference value,
// decision interval, sides and fast initial response) and, for EWMA and
// moving average, the control limits. One settings class for the three, so
// the page, its validation and its record are written once; the chart it
// serves is fixed by the dialog that owns it (see CTimeWeightedChartData)
// and decides which clauses the line carries.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/quality.h"

#include <limits>

enum class TimeWeightedChart { Cusum, Ewma, MovingAverage };

class CTimeWeightedData : public CGUIBaseObj {
    DECLARE_SERIAL(CTimeWeightedData)
public:
    static constexpr UINT kModuleQc = 12933;
    // The limits radio group: probability, sigma multiples.
    static constexpr UINT kLimitsRadio = 5470;
    static constexpr UINT kItemProbabilityLimits = 5470;
    static constexpr UINT kItemSigmaLimits = 5471;
    // The CUSUM sides radio group: two-sided, upward shifts, downward shifts.
    static constexpr UINT kSidesRadio = 5474;
    static constexpr UINT kItemTwoSided = 5474;
    static constexpr UINT kItemUpper = 5475;
    static constexpr UINT kItemLower = 5476;
    static constexpr int kMaxSpan = 100;
    static constexpr double kMaxSigmaMultiple = 10;
    static constexpr double kMaxDecisionInterval = 100;

    explicit CTimeWeightedData(TimeWeightedChart chart = TimeWeightedChart::Cusum) : m_Chart(chart)
    {
        kal::ResetFields(*this);
    }

    TimeWeightedChart GetChart() const { return m_Chart; }

    // The usual textbook choices: λ = 0.2, a span of 3, k = 0.5 and h = 5
    // (in sigma units) detect a shift of about one sigma.
    static CGUIData<double> GetDefaultWeightEdit() { return Number(0.2); }
    static CGUIData<int> GetDefaultSpanEdit() { return CGUIData<int>(1, 3, 3, 0, 1); }
    static CGUIData<double> GetDefaultKEdit() { return Number(0.5); }
    static CGUIData<double> GetDefaultHEdit() { return Number(5); }
    // Target and sigma start at 0: none given; the bounds show their 0.
    static CGUIData<double> GetDefaultNoneGiven() { return Number(0); }
    static int GetDefaultZero() { return 0; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& chart,
               CGUIArray<CGUIDataVariable>& group, CGUIData<double>& target, CGUIData<double>& sigma,
               CGUIData<double>& weight, CGUIData<int>& span, CGUIData<double>& k, CGUIData<double>& h,
               CGUIData<double>& pLower, CGUIData<double>& pUpper, CGUIData<double>& sLower, CGUIData<double>& sUpper,
               int& sides, int& fir, int& limits) const
    {
        return kal::CopyFieldsOut(*this, source, chart, group, target, sigma, weight, span, k, h, pLower, pUpper,
                                  sLower, sUpper, sides, fir, limits);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& chart,
               const CGUIArray<CGUIDataVariable>& group, const CGUIData<double>& target, const CGUIData<double>& sigma,
               const CGUIData<double>& weight, const CGUIData<int>& span, const CGUIData<double>& k,
               const CGUIData<double>& h, const CGUIData<double>& pLower, const CGUIData<double>& pUpper,
               const CGUIData<double>& sLower, const CGUIData<double>& sUpper, int sides, int fir, int limits)
    {
        return kal::CopyFieldsIn(*this, source, chart, group, target, sigma, weight, span, k, h, pLower, pUpper, sLower,
                                 sUpper, sides, fir, limits);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the chart page (template
    // 5460). The weight's lower end is open: the page refuses 0 itself.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CTimeWeightedData>;
        using Ids = CTimeWeightedDlgIds;
        constexpr double kHuge = std::numeric_limits<double>::max();
        return std::tuple{
            F::Source(&CTimeWeightedData::m_SourceVariables, Ids::IDC_SOURCE_LIST),
            F::List(&CTimeWeightedData::m_ChartVariables, Ids::IDC_CHART_LIST),
            F::List(&CTimeWeightedData::m_GroupVariables, Ids::IDC_GROUP_LIST),
            F::Value(&CTimeWeightedData::m_TargetEdit, Ids::IDC_TARGET_EDIT, &GetDefaultNoneGiven).Optional(),
            F::Value(&CTimeWeightedData::m_SigmaEdit, Ids::IDC_SIGMA_EDIT, &GetDefaultNoneGiven)
                .Range(0, kHuge)
                .Optional(),
            F::Value(&CTimeWeightedData::m_WeightEdit, Ids::IDC_WEIGHT_EDIT, &GetDefaultWeightEdit)
                .Range(0, 1, kMsgWeight),
            F::Value(&CTimeWeightedData::m_SpanEdit, Ids::IDC_SPAN_EDIT, &GetDefaultSpanEdit).Range(2, kMaxSpan),
            F::Value(&CTimeWeightedData::m_KEdit, Ids::IDC_K_EDIT, &GetDefaultKEdit).Range(0, kMaxSigmaMultiple),
            F::Value(&CTimeWeightedData::m_HEdit, Ids::IDC_H_EDIT, &GetDefaultHEdit).Range(0, kMaxDecisionInterval),
            F::Value(&CTimeWeightedData::m_PLimitsLowerEdit, Ids::IDC_PLIMITS_LOWER, &GetDefaultNoneGiven)
                .Range(0, 1)
                .Blank(),
            F::Value(&CTimeWeightedData::m_PLimitsUpperEdit, Ids::IDC_PLIMITS_UPPER, &GetDefaultNoneGiven)
                .Range(0, 1)
                .Blank(),
            F::Value(&CTimeWeightedData::m_SigmaLowerEdit, Ids::IDC_SLIMITS_LOWER, &GetDefaultNoneGiven)
                .Range(0, kMaxSigmaMultiple)
                .Blank(),
            F::Value(&CTimeWeightedData::m_SigmaUpperEdit, Ids::IDC_SLIMITS_UPPER, &GetDefaultNoneGiven)
                .Range(0, kMaxSigmaMultiple)
                .Blank(),
            F::Value(&CTimeWeightedData::m_SidesRadio, Ids::IDC_TWO_SIDED_RADIO, &GetDefaultZero),
            F::Value(&CTimeWeightedData::m_FirCheck, Ids::IDC_FIR_CHECK, &GetDefaultZero),
            F::Value(&CTimeWeightedData::m_LimitsRadio, Ids::IDC_PLIMITS_RADIO, &GetDefaultZero),
        };
    }

    static constexpr UINT kMsgWeight = 12941;

private:
    friend class CTimeWeightedDlg; // reads the values it validates

    static CGUIData<double> Number(double value) { return CGUIData<double>(1, value, value, 0, 1); }
    // The chart's keyword and the clauses only that chart has.
    CString ChartKeyword() const;
    CString ChartClauses() const;

    TimeWeightedChart m_Chart;
    CGUIArray<CGUIDataVariable> m_SourceVariables;
    CGUIArray<CGUIDataVariable> m_ChartVariables;
    CGUIArray<CGUIDataVariable> m_GroupVariables;
    CGUIData<double> m_TargetEdit;
    CGUIData<double> m_SigmaEdit;
    CGUIData<double> m_WeightEdit;
    CGUIData<int> m_SpanEdit;
    CGUIData<double> m_KEdit;
    CGUIData<double> m_HEdit;
    CGUIData<double> m_PLimitsLowerEdit;
    CGUIData<double> m_PLimitsUpperEdit;
    CGUIData<double> m_SigmaLowerEdit;
    CGUIData<double> m_SigmaUpperEdit;
    int m_SidesRadio;
    int m_FirCheck;
    int m_LimitsRadio;
};

// The chart page's settings as one dialog owns them: the chart is part of
// the type, so a reset or a default-constructed copy keeps it.
template <TimeWeightedChart Chart>
class CTimeWeightedChartData : public CTimeWeightedData {
public:
    CTimeWeightedChartData() : CTimeWeightedData(Chart) {}
};
