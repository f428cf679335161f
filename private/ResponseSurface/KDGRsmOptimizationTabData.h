// CRsmOptimizationTabData: the settings of the response-surface
// optimization's tab dialog (2078), its two pages in page order: the factor
// page, which writes the module, model and factor lines, and the
// optimization page, which writes "GOAL" and "OPTIMIZE".
#pragma once

#include "framework/GUITabData.h"
#include "private/ResponseSurface/KDGRsmFactorsData.h"
#include "private/ResponseSurface/KDGRsmOptimizationData.h"

class CRsmOptimizationTabData : public CGUITabData {
    DECLARE_SERIAL(CRsmOptimizationTabData)
public:
    using FactorsData = CRsmFactorsKindData<RsmKind::Optimization>;

    CRsmOptimizationTabData() { LinkPages(); }
    CRsmOptimizationTabData(const CRsmOptimizationTabData& other) : CRsmOptimizationTabData() { *this = other; }
    CRsmOptimizationTabData& operator=(const CRsmOptimizationTabData&) = default;

    CRsmFactorsData* GetFactorsData() { return &m_FactorsData; }
    CRsmOptimizationData* GetOptimizationData() { return &m_OptimizationData; }

    int GetAll(FactorsData& factors, CRsmOptimizationData& page) const
    {
        return kal::CopyFieldsOut(*this, factors, page);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const FactorsData& factors, const CRsmOptimizationData& page)
    {
        return kal::CopyFieldsIn(*this, factors, page);
    }

    PageList Pages() override { return {&m_FactorsData, &m_OptimizationData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRsmOptimizationTabData>;
        return std::tuple{F::Page(&CRsmOptimizationTabData::m_FactorsData),
                          F::Page(&CRsmOptimizationTabData::m_OptimizationData)};
    }

private:
    FactorsData m_FactorsData;
    CRsmOptimizationData m_OptimizationData;
};
