// CRsmPlotData: the settings of the response-surface plots' tab dialog
// (2079), its two pages in page order: the factor page, which writes the
// module, model and factor lines, and the plot page, which writes "PLOT".
#pragma once

#include "framework/GUITabData.h"
#include "private/ResponseSurface/KDGRsmFactorsData.h"
#include "private/ResponseSurface/KDGRsmPlotPageData.h"

class CRsmPlotData : public CGUITabData {
    DECLARE_SERIAL(CRsmPlotData)
public:
    using FactorsData = CRsmFactorsKindData<RsmKind::Plot>;

    CRsmPlotData() { LinkPages(); }
    CRsmPlotData(const CRsmPlotData& other) : CRsmPlotData() { *this = other; }
    CRsmPlotData& operator=(const CRsmPlotData&) = default;

    CRsmFactorsData* GetFactorsData() { return &m_FactorsData; }
    CRsmPlotPageData* GetPlotData() { return &m_PlotData; }

    int GetAll(FactorsData& factors, CRsmPlotPageData& plot) const { return kal::CopyFieldsOut(*this, factors, plot); }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const FactorsData& factors, const CRsmPlotPageData& plot)
    {
        return kal::CopyFieldsIn(*this, factors, plot);
    }

    PageList Pages() override { return {&m_FactorsData, &m_PlotData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRsmPlotData>;
        return std::tuple{F::Page(&CRsmPlotData::m_FactorsData), F::Page(&CRsmPlotData::m_PlotData)};
    }

private:
    FactorsData m_FactorsData;
    CRsmPlotPageData m_PlotData;
};
