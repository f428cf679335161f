// CQcChartTabData: the settings of a control chart's tab dialog whose pages
// are its chart page and then the run tests, whose text joins the chart
// line. The Shewhart, X-MR, EWMA and moving-average dialogs hold one each;
// a chart's settings class derives from it with its chart page's settings
// and adds only its run-time class and the accessors its callers name.
#pragma once

#include "framework/Fields.h"
#include "framework/GUITabData.h"
#include "private/Quality/KDGQcTestsData.h"

template <class TChart>
class CQcChartTabData : public CGUITabData {
public:
    using ChartData = TChart;

    CQcChartTabData() { LinkPages(); }
    CQcChartTabData(const CQcChartTabData& other) : CQcChartTabData() { *this = other; }
    CQcChartTabData& operator=(const CQcChartTabData&) = default;
    ~CQcChartTabData() override = default;

    static TChart GetDefaultChart() { return TChart(); }
    static CQcTestsData GetDefaultQcTests() { return CQcTestsData(); }

    TChart* GetChartData() { return &m_ChartData; }
    CQcTestsData* GetQcTestsData() { return &m_QcTestsData; }

    int GetAll(TChart& chart, CQcTestsData& tests) const { return kal::CopyFieldsOut(*this, chart, tests); }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const TChart& chart, const CQcTestsData& tests) { return kal::CopyFieldsIn(*this, chart, tests); }

    PageList Pages() override { return {&m_ChartData, &m_QcTestsData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CQcChartTabData>;
        return std::tuple{F::Page(&CQcChartTabData::m_ChartData), F::Page(&CQcChartTabData::m_QcTestsData)};
    }

private:
    TChart m_ChartData;
    CQcTestsData m_QcTestsData;
};
