// CGLMTabData: the settings of the general linear model's tab dialog, its
// five pages in page order: model, estimation (the linear regression's
// page), repeated measures and options (the ANOVA's pages), resampling.
// The model page writes the module, model, category and save lines, the
// estimation page the estimation lines; the repeated measures join
// "MODEL", the options and resampling "ESTIMATE".
//
// The defaults of the pages the ANOVA tab shares with this one live here.
#pragma once

#include "framework/BootStrapData.h"
#include "framework/GUITabData.h"
#include "private/Anova/KDGAnovaOptionsData.h"
#include "private/Anova/KDGGLMData.h"
#include "private/Anova/KDGRepeatMeasuresData.h"
#include "private/Regression/KDGRegressionOptionsData.h"

class CGLMTabData : public CGUITabData {
    DECLARE_SERIAL(CGLMTabData)
public:
    CGLMTabData() { LinkPages(); }
    CGLMTabData(const CGLMTabData& other) : CGLMTabData() { *this = other; }
    CGLMTabData& operator=(const CGLMTabData&) = default;

    static CGLMData GetDefaultGLM() { return CGLMData(); }
    static CRegressionOptionsData GetDefaultRegressionOptions() { return CRegressionOptionsData(); }
    static CRepeatMeasuresData GetDefaultRepeatMeasures() { return CRepeatMeasuresData(); }
    static CAnovaOptionsData GetDefaultAnovaOptions() { return CAnovaOptionsData(); }
    static CBootStrapData GetDefaultBootStrap() { return CBootStrapData(); }

    CGLMData* GetGLMData() { return &m_GLMData; }
    CRegressionOptionsData* GetRegressionOptionsData() { return &m_RegressionOptionsData; }
    CRepeatMeasuresData* GetRepeatMeasuresData() { return &m_RepeatMeasuresData; }
    CAnovaOptionsData* GetAnovaOptionsData() { return &m_AnovaOptionsData; }
    CBootStrapData* GetBootStrapData() { return &m_BootStrapData; }

    int GetAll(CGLMData& model, CRegressionOptionsData& estimation, CRepeatMeasuresData& repeat,
               CAnovaOptionsData& options, CBootStrapData& bootstrap) const
    {
        return kal::CopyFieldsOut(*this, model, estimation, repeat, options, bootstrap);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGLMData& model, const CRegressionOptionsData& estimation, const CRepeatMeasuresData& repeat,
               const CAnovaOptionsData& options, const CBootStrapData& bootstrap)
    {
        return kal::CopyFieldsIn(*this, model, estimation, repeat, options, bootstrap);
    }

    PageList Pages() override
    {
        return {&m_GLMData, &m_RegressionOptionsData, &m_RepeatMeasuresData, &m_AnovaOptionsData, &m_BootStrapData};
    }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CGLMTabData>;
        using T = CGLMTabData;
        return std::tuple{F::Page(&T::m_GLMData), F::Page(&T::m_RegressionOptionsData),
                          F::Page(&T::m_RepeatMeasuresData), F::Page(&T::m_AnovaOptionsData),
                          F::Page(&T::m_BootStrapData)};
    }

private:
    CGLMData m_GLMData;
    CRegressionOptionsData m_RegressionOptionsData;
    CRepeatMeasuresData m_RepeatMeasuresData;
    CAnovaOptionsData m_AnovaOptionsData;
    CBootStrapData m_BootStrapData;
};
