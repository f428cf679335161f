// CFactorTabData: the settings of the factor analysis dialog, its two pages
// in page order: the model page writes the lines, the factors page joins
// its clauses to the "ESTIMATE" line.
#pragma once

#include "framework/GUITabData.h"
#include "private/Multivariate/KDGFactorData.h"
#include "private/Multivariate/KDGFactorOptionsData.h"

class CFactorTabData : public CGUITabData {
    DECLARE_SERIAL(CFactorTabData)
public:
    CFactorTabData() { LinkPages(); }
    CFactorTabData(const CFactorTabData& other) : CFactorTabData() { *this = other; }
    CFactorTabData& operator=(const CFactorTabData&) = default;

    CFactorData* GetFactorData() { return &m_FactorData; }
    const CFactorData* GetFactorData() const { return &m_FactorData; }
    CFactorOptionsData* GetFactorOptionsData() { return &m_FactorOptionsData; }

    int GetAll(CFactorData& model, CFactorOptionsData& options) const
    {
        return kal::CopyFieldsOut(*this, model, options);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CFactorData& model, const CFactorOptionsData& options)
    {
        return kal::CopyFieldsIn(*this, model, options);
    }

    PageList Pages() override { return {&m_FactorData, &m_FactorOptionsData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CFactorTabData>;
        return std::tuple{F::Page(&CFactorTabData::m_FactorData), F::Page(&CFactorTabData::m_FactorOptionsData)};
    }

private:
    CFactorData m_FactorData;
    CFactorOptionsData m_FactorOptionsData;
};
