// CShewhartData: the chart page of the Shewhart control chart. The chart
// variables, their subgroups (grouping variables) and a frequency or weight
// variable; the chart type; a known center and sigma; the kind of control
// limits and their bounds; and four options. Written as the module line, an
// optional "WEIGHT  " or "FREQUENCY  " line and the "SHEWHART " line.
//
// Four integers are the page's own at its last OK and are not stored:
// whether the known center and sigma are in use, and whether the AGG and
// TOTAL options were available. They are 0 until a dialog fills them.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/quality.h"

#include <limits>

class CShewhartData : public CGUIBaseObj {
    DECLARE_SERIAL(CShewhartData)
public:
    static constexpr UINT kModuleQc = 12933;
    static constexpr UINT kChartTypeCombo = 4370;
    // Items of the chart-type list the settings and the page test.
    static constexpr UINT kItemXbar = 12654;
    static constexpr UINT kItemRange = 12584;
    static constexpr UINT kItemSd = 12505;
    static constexpr UINT kItemP = 12492;
    static constexpr UINT kItemNp = 12493;
    static constexpr UINT kItemMedian = 12297;
    // The limits radio group: probability, preset and sigma limits.
    static constexpr UINT kLimitsRadio = 4379;
    static constexpr UINT kItemProbabilityLimits = 4379;
    static constexpr UINT kItemPresetLimits = 4376;
    static constexpr UINT kItemSigmaLimits = 4382;

    CShewhartData() { kal::ResetFields(*this); }

    // Every number starts at 0; a bound at 0 is no bound, and the options
    // never force these values into the line.
    static CGUIData<double> GetDefaultCenterEdit() { return DefaultNumber(); }
    static CGUIData<double> GetDefaultSigmaEdit() { return DefaultNumber(); }
    static CGUIData<double> GetDefaultPLimitsLowerEdit() { return DefaultNumber(); }
    static CGUIData<double> GetDefaultPLimitsUpperEdit() { return DefaultNumber(); }
    static CGUIData<double> GetDefaultLimitsLowerEdit() { return DefaultNumber(); }
    static CGUIData<double> GetDefaultLimitsUpperEdit() { return DefaultNumber(); }
    static CGUIData<double> GetDefaultSigmaLowerEdit() { return DefaultNumber(); }
    static CGUIData<double> GetDefaultSigmaUpperEdit() { return DefaultNumber(); }
    static int GetDefaultAvgnCheck() { return 0; }
    static int GetDefaultAggOption() { return 0; }
    static int GetDefaultTotalOption() { return 0; }
    static int GetDefaultZCheck() { return 0; }
    static int GetDefaultLimitsRadio() { return 0; }
    static int GetDefaultChartTypeCombo() { return 0; }
    static int GetDefaultSigmaInUse() { return 0; }
    static int GetDefaultCenterInUse() { return 0; }
    static int GetDefaultAggEnabled() { return 0; }
    static int GetDefaultTotalEnabled() { return 0; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& group,
               CGUIArray<CGUIDataVariable>& chart, CGUIArray<CGUIDataVariable>& frequency, CGUIData<double>& center,
               CGUIData<double>& sigma, CGUIData<double>& pLimitsLower, CGUIData<double>& pLimitsUpper,
               CGUIData<double>& limitsLower, CGUIData<double>& limitsUpper, CGUIData<double>& sigmaLower,
               CGUIData<double>& sigmaUpper, int& avgn, int& agg, int& total, int& z, int& limitsRadio,
               int& chartTypeCombo, int& sigmaInUse, int& centerInUse, int& aggEnabled, int& totalEnabled) const
    {
        return kal::CopyFieldsOut(*this, source, group, chart, frequency, center, sigma, pLimitsLower, pLimitsUpper,
                                  limitsLower, limitsUpper, sigmaLower, sigmaUpper, avgn, agg, total, z, limitsRadio,
                                  chartTypeCombo, sigmaInUse, centerInUse, aggEnabled, totalEnabled);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& group,
               const CGUIArray<CGUIDataVariable>& chart, const CGUIArray<CGUIDataVariable>& frequency,
               const CGUIData<double>& center, const CGUIData<double>& sigma, const CGUIData<double>& pLimitsLower,
               const CGUIData<double>& pLimitsUpper, const CGUIData<double>& limitsLower,
               const CGUIData<double>& limitsUpper, const CGUIData<double>& sigmaLower,
               const CGUIData<double>& sigmaUpper, int avgn, int agg, int total, int z, int limitsRadio,
               int chartTypeCombo, int sigmaInUse, int centerInUse, int aggEnabled, int totalEnabled)
    {
        return kal::CopyFieldsIn(*this, source, group, chart, frequency, center, sigma, pLimitsLower, pLimitsUpper,
                                 limitsLower, limitsUpper, sigmaLower, sigmaUpper, avgn, agg, total, z, limitsRadio,
                                 chartTypeCombo, sigmaInUse, centerInUse, aggEnabled, totalEnabled);
    }

    int GetChartTypeCombo() const { return m_ChartTypeCombo; }
    int GetChartVariableCount() const { return m_ChartVariables.GetSize(); }
    // The item id of the chosen chart type (0 for a type without one).
    UINT GetChartTypeItem() const;

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the chart page (template
    // 4360) that show them. The bounds may be left empty; the two options'
    // availability has no control: the page records it at OK.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CShewhartData>;
        using Ids = CShewhartDlgIds;
        constexpr double kHuge = std::numeric_limits<double>::max();
        constexpr double kPositive = std::numeric_limits<double>::min();
        return std::tuple{
            F::Source(&CShewhartData::m_SourceVariables, Ids::IDC_SOURCE_LIST),
            F::List(&CShewhartData::m_GroupVariables, Ids::IDC_GROUP_LIST),
            F::List(&CShewhartData::m_ChartVariables, Ids::IDC_CHART_LIST),
            F::List(&CShewhartData::m_FrequencyVariables, Ids::IDC_FREQUENCY_LIST),
            F::Value(&CShewhartData::m_CenterEdit, Ids::IDC_CENTER_EDIT, &GetDefaultCenterEdit),
            F::Value(&CShewhartData::m_SigmaEdit, Ids::IDC_SIGMA_EDIT, &GetDefaultSigmaEdit)
                .Range(kPositive, kHuge)
                .Optional(),
            F::Value(&CShewhartData::m_PLimitsLowerEdit, Ids::IDC_PLIMITS_LOWER, &GetDefaultPLimitsLowerEdit)
                .Range(0, 1)
                .Blank(),
            F::Value(&CShewhartData::m_PLimitsUpperEdit, Ids::IDC_PLIMITS_UPPER, &GetDefaultPLimitsUpperEdit)
                .Range(0, 1)
                .Blank(),
            F::Value(&CShewhartData::m_LimitsLowerEdit, Ids::IDC_LIMITS_LOWER, &GetDefaultLimitsLowerEdit).Blank(),
            F::Value(&CShewhartData::m_LimitsUpperEdit, Ids::IDC_LIMITS_UPPER, &GetDefaultLimitsUpperEdit).Blank(),
            F::Value(&CShewhartData::m_SigmaLowerEdit, Ids::IDC_SLIMITS_LOWER, &GetDefaultSigmaLowerEdit)
                .Range(0, kMaxSigmaMultiple)
                .Blank(),
            F::Value(&CShewhartData::m_SigmaUpperEdit, Ids::IDC_SLIMITS_UPPER, &GetDefaultSigmaUpperEdit)
                .Range(0, kMaxSigmaMultiple)
                .Blank(),
            F::Value(&CShewhartData::m_AvgnCheck, Ids::IDC_AVGN_CHECK, &GetDefaultAvgnCheck),
            F::Value(&CShewhartData::m_AggOption, Ids::IDC_AGG_CHECK, &GetDefaultAggOption),
            F::Value(&CShewhartData::m_TotalOption, Ids::IDC_TOTAL_CHECK, &GetDefaultTotalOption),
            F::Value(&CShewhartData::m_ZCheck, Ids::IDC_Z_CHECK, &GetDefaultZCheck),
            F::Value(&CShewhartData::m_LimitsRadio, Ids::IDC_PLIMITS_RADIO, &GetDefaultLimitsRadio),
            F::Value(&CShewhartData::m_ChartTypeCombo, Ids::IDC_CHART_TYPE_COMBO, &GetDefaultChartTypeCombo),
            F::Value(&CShewhartData::m_SigmaInUse, Ids::IDC_SIGMA_CHECK, &GetDefaultSigmaInUse),
            F::Value(&CShewhartData::m_CenterInUse, Ids::IDC_CENTER_CHECK, &GetDefaultCenterInUse),
            F::Value(&CShewhartData::m_AggEnabled, 0, &GetDefaultAggEnabled),
            F::Value(&CShewhartData::m_TotalEnabled, 0, &GetDefaultTotalEnabled),
        };
    }

    // Sigma limits lie up to this many standard deviations from the center.
    static constexpr double kMaxSigmaMultiple = 10;

private:
    friend class CShewhartDlg; // records the options' availability at OK

    static CGUIData<double> DefaultNumber() { return CGUIData<double>(1, 0.0, 0.0, 2, 1); }

    CGUIArray<CGUIDataVariable> m_SourceVariables;
    CGUIArray<CGUIDataVariable> m_GroupVariables;
    CGUIArray<CGUIDataVariable> m_ChartVariables;
    CGUIArray<CGUIDataVariable> m_FrequencyVariables;
    CGUIData<double> m_CenterEdit;
    CGUIData<double> m_SigmaEdit;
    CGUIData<double> m_PLimitsLowerEdit;
    CGUIData<double> m_PLimitsUpperEdit;
    CGUIData<double> m_LimitsLowerEdit;
    CGUIData<double> m_LimitsUpperEdit;
    CGUIData<double> m_SigmaLowerEdit;
    CGUIData<double> m_SigmaUpperEdit;
    int m_AvgnCheck;
    int m_AggOption;
    int m_TotalOption;
    int m_ZCheck;
    int m_LimitsRadio;
    int m_ChartTypeCombo;
    int m_SigmaInUse;
    int m_CenterInUse;
    int m_AggEnabled;
    int m_TotalEnabled;
};
