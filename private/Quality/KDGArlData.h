// CArlData: the average-run-length table of a control chart: how many points
// the chart plots, on average, before it signals a shift of the process mean.
// One selection, the chart, and five numbers: the subgroup size, the largest
// shift and the step between the shifts evaluated (in sigma units), the
// control limit (sigma multiples, or the CUSUM decision interval h) and the
// chart's own parameter (EWMA weight, CUSUM reference value k, or the span of
// the moving average). The menu rows for Shewhart charts (2034) and
// time-weighted charts (2038) share this class and keep separate settings;
// the row the settings belong to picks the list of charts.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/quality.h"

class CArlData : public CGUIBaseObj {
    DECLARE_SERIAL(CArlData)
public:
    static constexpr UINT kModuleQc = 12933;
    static constexpr UINT kChartCombo = 5512;
    static constexpr UINT kShewhartRow = 2034;
    static constexpr UINT kTimeWeightedRow = 2038;
    // The charts of the two lists, by their item ids.
    enum Chart : UINT {
        kXbar = 5520,
        kMedian = 5521,
        kCusum = 5522,
        kEwma = 5523,
        kMovingAverage = 5524,
    };
    static constexpr int kMaxSubgroupSize = 1000;
    static constexpr double kMaxShift = 10;
    static constexpr double kMaxLimit = 100;

    CArlData() { kal::ResetFields(*this); }

    static int GetDefaultChartCombo() { return 0; }
    static CGUIData<int> GetDefaultSubgroupEdit() { return CGUIData<int>(1, 5, 5, 0, 1); }
    static CGUIData<double> GetDefaultMaxShiftEdit() { return Number(3); }
    static CGUIData<double> GetDefaultStepEdit() { return Number(0.5); }
    static CGUIData<double> GetDefaultLimitEdit() { return Number(3); }
    static CGUIData<double> GetDefaultParameterEdit() { return Number(0); }
    // The usual limit and parameter of a chart: 3 sigma for Shewhart and
    // moving-average charts, 2.7 with λ = 0.1 for EWMA, h = 5 with k = 0.5
    // for CUSUM, a span of 3.
    static double UsualLimit(UINT chart);
    static double UsualParameter(UINT chart);

    int GetAll(int& chart, CGUIData<int>& subgroup, CGUIData<double>& maxShift, CGUIData<double>& step,
               CGUIData<double>& limit, CGUIData<double>& parameter) const
    {
        return kal::CopyFieldsOut(*this, chart, subgroup, maxShift, step, limit, parameter);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int chart, const CGUIData<int>& subgroup, const CGUIData<double>& maxShift, const CGUIData<double>& step,
               const CGUIData<double>& limit, const CGUIData<double>& parameter)
    {
        return kal::CopyFieldsIn(*this, chart, subgroup, maxShift, step, limit, parameter);
    }

    // The list of charts (a dialog id of combo 5512) this object's row offers.
    UINT ChartList() const { return GetDialogID() == kTimeWeightedRow ? kTimeWeightedRow : kShewhartRow; }
    // The item id of the chosen chart.
    UINT ChosenChart() const;

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CArlData>;
        using Ids = CArlDlgIds;
        return std::tuple{
            F::Value(&CArlData::m_ChartCombo, Ids::IDC_CHART_COMBO, &GetDefaultChartCombo),
            F::Value(&CArlData::m_SubgroupEdit, Ids::IDC_SUBGROUP_EDIT, &GetDefaultSubgroupEdit)
                .Range(1, kMaxSubgroupSize),
            F::Value(&CArlData::m_MaxShiftEdit, Ids::IDC_MAX_SHIFT_EDIT, &GetDefaultMaxShiftEdit).Range(0, kMaxShift),
            F::Value(&CArlData::m_StepEdit, Ids::IDC_STEP_EDIT, &GetDefaultStepEdit).Range(0, kMaxShift),
            F::Value(&CArlData::m_LimitEdit, Ids::IDC_LIMIT_EDIT, &GetDefaultLimitEdit).Range(0, kMaxLimit),
            F::Value(&CArlData::m_ParameterEdit, Ids::IDC_PARAMETER_EDIT, &GetDefaultParameterEdit).Range(0, kMaxLimit),
        };
    }

private:
    friend class CArlDlg; // reads the values it validates

    static CGUIData<double> Number(double value) { return CGUIData<double>(1, value, value, 0, 1); }

    int m_ChartCombo;
    CGUIData<int> m_SubgroupEdit;
    CGUIData<double> m_MaxShiftEdit;
    CGUIData<double> m_StepEdit;
    CGUIData<double> m_LimitEdit;
    CGUIData<double> m_ParameterEdit;
};
