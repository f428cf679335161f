// CSurvivalTabData: the settings of the survival regression's tab dialog
// (2059), its two pages in page order: the model page, which writes the
// module, model and save lines, and the estimation page, which writes
// "ESTIMATE".
#pragma once

#include "framework/GUITabData.h"
#include "private/Survival/KDGSurvivalData.h"
#include "private/Survival/KDGSurvivalOptionsData.h"

class CSurvivalTabData : public CGUITabData {
    DECLARE_SERIAL(CSurvivalTabData)
public:
    using ModelData = CSurvivalModelData<SurvivalKind::Regression>;

    CSurvivalTabData() { LinkPages(); }
    CSurvivalTabData(const CSurvivalTabData& other) : CSurvivalTabData() { *this = other; }
    CSurvivalTabData& operator=(const CSurvivalTabData&) = default;

    CSurvivalData* GetModelData() { return &m_ModelData; }
    CSurvivalOptionsData* GetOptionsData() { return &m_OptionsData; }

    int GetAll(ModelData& model, CSurvivalOptionsData& options) const
    {
        return kal::CopyFieldsOut(*this, model, options);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const ModelData& model, const CSurvivalOptionsData& options)
    {
        return kal::CopyFieldsIn(*this, model, options);
    }

    PageList Pages() override { return {&m_ModelData, &m_OptionsData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CSurvivalTabData>;
        return std::tuple{F::Page(&CSurvivalTabData::m_ModelData), F::Page(&CSurvivalTabData::m_OptionsData)};
    }

private:
    ModelData m_ModelData;
    CSurvivalOptionsData m_OptionsData;
};
