// CSurvivalNParTabData: the settings of the nonparametric survival
// analysis's tab dialog (2065), its two pages in page order: the model page
// without covariates, which writes the module, model and save lines, and
// the estimates page, which writes the "KM" or "LTAB" line and the tests.
#pragma once

#include "framework/GUITabData.h"
#include "private/Survival/KDGSurvivalData.h"
#include "private/Survival/KDGSurvivalNParData.h"

class CSurvivalNParTabData : public CGUITabData {
    DECLARE_SERIAL(CSurvivalNParTabData)
public:
    using ModelData = CSurvivalModelData<SurvivalKind::Nonparametric>;

    CSurvivalNParTabData() { LinkPages(); }
    CSurvivalNParTabData(const CSurvivalNParTabData& other) : CSurvivalNParTabData() { *this = other; }
    CSurvivalNParTabData& operator=(const CSurvivalNParTabData&) = default;

    CSurvivalData* GetModelData() { return &m_ModelData; }
    CSurvivalNParData* GetNParData() { return &m_NParData; }

    int GetAll(ModelData& model, CSurvivalNParData& estimates) const
    {
        return kal::CopyFieldsOut(*this, model, estimates);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const ModelData& model, const CSurvivalNParData& estimates)
    {
        return kal::CopyFieldsIn(*this, model, estimates);
    }

    PageList Pages() override { return {&m_ModelData, &m_NParData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CSurvivalNParTabData>;
        return std::tuple{F::Page(&CSurvivalNParTabData::m_ModelData), F::Page(&CSurvivalNParTabData::m_NParData)};
    }

private:
    ModelData m_ModelData;
    CSurvivalNParData m_NParData;
};
