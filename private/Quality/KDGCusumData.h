// CCusumData: the settings of the CUSUM chart dialog: the time-weighted chart page alone, whose
// decision interval takes the place of run tests.
#pragma once

#include "framework/GUITabData.h"

#include "private/Quality/KDGTimeWeightedData.h"

class CCusumData : public CGUITabData {
    DECLARE_SERIAL(CCusumData)
public:
    using ChartData = CTimeWeightedChartData<TimeWeightedChart::Cusum>;

    CCusumData() { LinkPages(); }
    CCusumData(const CCusumData& other) : CCusumData() { *this = other; }
    CCusumData& operator=(const CCusumData&) = default;

    CTimeWeightedData* GetChartData() { return &m_ChartData; }

    int GetAll(ChartData& chart) const { return kal::CopyFieldsOut(*this, chart); }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const ChartData& chart) { return kal::CopyFieldsIn(*this, chart); }

    PageList Pages() override { return {&m_ChartData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CCusumData>;
        return std::tuple{F::Page(&CCusumData::m_ChartData)};
    }

private:
    ChartData m_ChartData;
};
