// CTslsData: the settings of two-stage least squares, its two pages in page
// order: the shared model page under the module "TSLS", then the
// instruments page.
#pragma once

#include "framework/GUITabData.h"
#include "private/Regression/KDGRegModelData.h"
#include "private/Regression/KDGTslsInstrumentsData.h"

class CTslsData : public CGUITabData {
    DECLARE_SERIAL(CTslsData)
public:
    static constexpr UINT kModuleTsls = 12975;
    using ModelData = CRegModelDataFor<kModuleTsls>;

    CTslsData() { LinkPages(); }
    CTslsData(const CTslsData& other) : CTslsData() { *this = other; }
    CTslsData& operator=(const CTslsData&) = default;

    CRegModelData* GetModelData() { return &m_ModelData; }
    CTslsInstrumentsData* GetInstrumentsData() { return &m_InstrumentsData; }

    int GetAll(ModelData& model, CTslsInstrumentsData& instruments) const
    {
        return kal::CopyFieldsOut(*this, model, instruments);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const ModelData& model, const CTslsInstrumentsData& instruments)
    {
        return kal::CopyFieldsIn(*this, model, instruments);
    }

    PageList Pages() override { return {&m_ModelData, &m_InstrumentsData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CTslsData>;
        return std::tuple{F::Page(&CTslsData::m_ModelData), F::Page(&CTslsData::m_InstrumentsData)};
    }

private:
    ModelData m_ModelData;
    CTslsInstrumentsData m_InstrumentsData;
};
