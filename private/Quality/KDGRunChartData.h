// CRunChartData: a run chart: measurements plotted in the order they were
// taken (subgroup means when grouping variables form subgroups), a center
// line at the median (the usual choice, so that the runs about it can be
// counted) or at the mean, and the runs tests for clustering, mixtures,
// trends and oscillation.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/quality.h"

class CRunChartData : public CGUIBaseObj {
    DECLARE_SERIAL(CRunChartData)
public:
    static constexpr UINT kModuleQc = 12933;
    // The center-line radio group: median, mean.
    static constexpr UINT kCenterRadio = 5666;
    static constexpr UINT kItemMedian = 5666;
    static constexpr UINT kItemMean = 5667;

    CRunChartData() { kal::ResetFields(*this); }

    static int GetDefaultCenterRadio() { return 0; }
    static int GetDefaultRunsCheck() { return 1; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& measures,
               CGUIArray<CGUIDataVariable>& groups, int& center, int& runs) const
    {
        return kal::CopyFieldsOut(*this, source, measures, groups, center, runs);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& measures,
               const CGUIArray<CGUIDataVariable>& groups, int center, int runs)
    {
        return kal::CopyFieldsIn(*this, source, measures, groups, center, runs);
    }

    const CGUIArray<CGUIDataVariable>& Measurements() const { return m_MeasureVariables; }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRunChartData>;
        using Ids = CRunChartDlgIds;
        return std::tuple{
            F::Source(&CRunChartData::m_SourceVariables, Ids::IDC_SOURCE_LIST),
            F::List(&CRunChartData::m_MeasureVariables, Ids::IDC_MEASURE_LIST),
            F::List(&CRunChartData::m_GroupVariables, Ids::IDC_GROUP_LIST),
            F::Value(&CRunChartData::m_CenterRadio, Ids::IDC_MEDIAN_RADIO, &GetDefaultCenterRadio),
            F::Value(&CRunChartData::m_RunsCheck, Ids::IDC_RUNS_CHECK, &GetDefaultRunsCheck),
        };
    }

private:
    CGUIArray<CGUIDataVariable> m_SourceVariables;
    CGUIArray<CGUIDataVariable> m_MeasureVariables;
    CGUIArray<CGUIDataVariable> m_GroupVariables;
    int m_CenterRadio;
    int m_RunsCheck;
};
