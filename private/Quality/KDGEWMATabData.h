// CEWMATabData: the settings of the EWMA chart tab dialog, its two pages in page order:
// the time-weighted chart page, then the run tests, whose text joins the chart line.
#pragma once

#include "framework/GUITabData.h"
#include "private/Quality/KDGQcTestsData.h"
#include "private/Quality/KDGTimeWeightedData.h"

class CEWMATabData : public CGUITabData {
    DECLARE_SERIAL(CEWMATabData)
public:
    using ChartData = CTimeWeightedChartData<TimeWeightedChart::Ewma>;

    CEWMATabData() { LinkPages(); }
    CEWMATabData(const CEWMATabData& other) : CEWMATabData() { *this = other; }
    CEWMATabData& operator=(const CEWMATabData&) = default;

    CTimeWeightedData* GetChartData() { return &m_ChartData; }
    CQcTestsData* GetQcTestsData() { return &m_QcTestsData; }

    int GetAll(ChartData& chart, CQcTestsData& tests) const { return kal::CopyFieldsOut(*this, chart, tests); }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const ChartData& chart, const CQcTestsData& tests) { return kal::CopyFieldsIn(*this, chart, tests); }

    PageList Pages() override { return {&m_ChartData, &m_QcTestsData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CEWMATabData>;
        return std::tuple{F::Page(&CEWMATabData::m_ChartData), F::Page(&CEWMATabData::m_QcTestsData)};
    }

private:
    ChartData m_ChartData;
    CQcTestsData m_QcTestsData;
};
