// CRsmEstimateTabData: the settings of the response-surface estimation's tab
// dialog (2063), its two pages in page order: the factor page, which writes
// the module, model, block and factor lines, and the estimation page, which
// writes "ESTIMATE".
#pragma once

#include "framework/GUITabData.h"
#include "private/ResponseSurface/KDGRsmEstimateData.h"
#include "private/ResponseSurface/KDGRsmFactorsData.h"

class CRsmEstimateTabData : public CGUITabData {
    DECLARE_SERIAL(CRsmEstimateTabData)
public:
    using FactorsData = CRsmFactorsKindData<RsmKind::Estimate>;

    CRsmEstimateTabData() { LinkPages(); }
    CRsmEstimateTabData(const CRsmEstimateTabData& other) : CRsmEstimateTabData() { *this = other; }
    CRsmEstimateTabData& operator=(const CRsmEstimateTabData&) = default;

    CRsmFactorsData* GetFactorsData() { return &m_FactorsData; }
    CRsmEstimateData* GetEstimateData() { return &m_EstimateData; }

    int GetAll(FactorsData& factors, CRsmEstimateData& estimate) const
    {
        return kal::CopyFieldsOut(*this, factors, estimate);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const FactorsData& factors, const CRsmEstimateData& estimate)
    {
        return kal::CopyFieldsIn(*this, factors, estimate);
    }

    PageList Pages() override { return {&m_FactorsData, &m_EstimateData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRsmEstimateTabData>;
        return std::tuple{F::Page(&CRsmEstimateTabData::m_FactorsData), F::Page(&CRsmEstimateTabData::m_EstimateData)};
    }

private:
    FactorsData m_FactorsData;
    CRsmEstimateData m_EstimateData;
};
