// CMissingTabData: the settings of the missing-value analysis's tab dialog,
// its two pages in page order: the variables page, which writes the module,
// model, group, pattern and save lines, and the estimation page, which
// writes "ESTIMATE" and picks the module.
#pragma once

#include "framework/GUITabData.h"
#include "private/Missing/KDGMissingData.h"
#include "private/Missing/KDGMissingEstimateData.h"

class CMissingTabData : public CGUITabData {
    DECLARE_SERIAL(CMissingTabData)
public:
    CMissingTabData() { LinkPages(); }
    CMissingTabData(const CMissingTabData& other) : CMissingTabData() { *this = other; }
    CMissingTabData& operator=(const CMissingTabData&) = default;

    CMissingData* GetMissingData() { return &m_MissingData; }
    CMissingEstimateData* GetEstimateData() { return &m_EstimateData; }

    int GetAll(CMissingData& variables, CMissingEstimateData& estimate) const
    {
        return kal::CopyFieldsOut(*this, variables, estimate);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CMissingData& variables, const CMissingEstimateData& estimate)
    {
        return kal::CopyFieldsIn(*this, variables, estimate);
    }

    PageList Pages() override { return {&m_MissingData, &m_EstimateData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CMissingTabData>;
        return std::tuple{F::Page(&CMissingTabData::m_MissingData), F::Page(&CMissingTabData::m_EstimateData)};
    }

private:
    CMissingData m_MissingData;
    CMissingEstimateData m_EstimateData;
};
