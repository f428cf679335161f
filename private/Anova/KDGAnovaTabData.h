// CAnovaTabData: the settings of the ANOVA estimate-model tab dialog, its
// four pages in page order: model, repeated measures, options, resampling.
// The model page writes the lines; the later pages attach clauses to them.
#pragma once

#include "framework/BootStrapData.h"
#include "framework/GUITabData.h"
#include "private/Anova/KDGAnovaData.h"
#include "private/Anova/KDGAnovaOptionsData.h"
#include "private/Anova/KDGRepeatMeasuresData.h"

class CAnovaTabData : public CGUITabData {
    DECLARE_SERIAL(CAnovaTabData)
public:
    CAnovaTabData() { LinkPages(); }
    CAnovaTabData(const CAnovaTabData& other) : CAnovaTabData() { *this = other; }
    CAnovaTabData& operator=(const CAnovaTabData&) = default;

    // The other pages' defaults are the general linear model's (CGLMTabData).
    static CAnovaData GetDefaultAnova() { return CAnovaData(); }

    CAnovaData* GetAnovaData() { return &m_AnovaData; }
    CAnovaOptionsData* GetAnovaOptionsData() { return &m_AnovaOptionsData; }
    CRepeatMeasuresData* GetRepeatMeasuresData() { return &m_RepeatMeasuresData; }
    CBootStrapData* GetBootStrapData() { return &m_BootStrapData; }

    int GetAll(CAnovaData& anova, CRepeatMeasuresData& repeat, CAnovaOptionsData& options,
               CBootStrapData& bootstrap) const
    {
        return kal::CopyFieldsOut(*this, anova, repeat, options, bootstrap);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CAnovaData& anova, const CRepeatMeasuresData& repeat, const CAnovaOptionsData& options,
               const CBootStrapData& bootstrap)
    {
        return kal::CopyFieldsIn(*this, anova, repeat, options, bootstrap);
    }

    PageList Pages() override { return {&m_AnovaData, &m_RepeatMeasuresData, &m_AnovaOptionsData, &m_BootStrapData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CAnovaTabData>;
        return std::tuple{F::Page(&CAnovaTabData::m_AnovaData), F::Page(&CAnovaTabData::m_RepeatMeasuresData),
                          F::Page(&CAnovaTabData::m_AnovaOptionsData), F::Page(&CAnovaTabData::m_BootStrapData)};
    }

private:
    // Constructed as declared: model, options, repeated measures, resampling.
    CAnovaData m_AnovaData;
    CAnovaOptionsData m_AnovaOptionsData;
    CRepeatMeasuresData m_RepeatMeasuresData;
    CBootStrapData m_BootStrapData;
};
