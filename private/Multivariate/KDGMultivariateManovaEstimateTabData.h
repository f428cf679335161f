// The multivariate analysis of variance estimated as a linear model of two
// or more dependent variables (command 2025).
//
// CManovaModelData: the general linear model's model page under the MANOVA
// module: the same dependent variables, terms, categories, constant and
// save file, written after the "MANOVA" module line, and closed by the
// "ESTIMATE " line that the options and resampling pages join.
//
// CMultivariateManovaEstimateTabData: the tab's settings, its four pages in
// page order: model, repeated measures, options, resampling. The repeated
// measures join "MODEL", the options and resampling "ESTIMATE". The pages
// it shares with the general linear model take that tab's defaults.
#pragma once

#include "framework/BootStrapData.h"
#include "framework/GUITabData.h"
#include "private/Anova/KDGAnovaOptionsData.h"
#include "private/Anova/KDGGLMData.h"
#include "private/Anova/KDGGLMTabData.h"
#include "private/Anova/KDGRepeatMeasuresData.h"

class CManovaModelData : public CGLMData {
    DECLARE_SERIAL(CManovaModelData)
public:
    static constexpr UINT kModuleManova = 12910;

    UINT GetModuleID() const override { return kModuleManova; }
    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
};

class CMultivariateManovaEstimateTabData : public CGUITabData {
    DECLARE_SERIAL(CMultivariateManovaEstimateTabData)
public:
    CMultivariateManovaEstimateTabData() { LinkPages(); }
    CMultivariateManovaEstimateTabData(const CMultivariateManovaEstimateTabData& other)
        : CMultivariateManovaEstimateTabData()
    {
        *this = other;
    }
    CMultivariateManovaEstimateTabData& operator=(const CMultivariateManovaEstimateTabData&) = default;

    static CManovaModelData GetDefaultModel() { return CManovaModelData(); }

    CManovaModelData* GetModelData() { return &m_ModelData; }
    const CManovaModelData& GetModel() const { return m_ModelData; }
    CRepeatMeasuresData* GetRepeatMeasuresData() { return &m_RepeatMeasuresData; }
    CAnovaOptionsData* GetAnovaOptionsData() { return &m_AnovaOptionsData; }
    CBootStrapData* GetBootStrapData() { return &m_BootStrapData; }

    int GetAll(CManovaModelData& model, CRepeatMeasuresData& repeat, CAnovaOptionsData& options,
               CBootStrapData& bootstrap) const
    {
        return kal::CopyFieldsOut(*this, model, repeat, options, bootstrap);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CManovaModelData& model, const CRepeatMeasuresData& repeat, const CAnovaOptionsData& options,
               const CBootStrapData& bootstrap)
    {
        return kal::CopyFieldsIn(*this, model, repeat, options, bootstrap);
    }

    PageList Pages() override { return {&m_ModelData, &m_RepeatMeasuresData, &m_AnovaOptionsData, &m_BootStrapData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CMultivariateManovaEstimateTabData>;
        using T = CMultivariateManovaEstimateTabData;
        return std::tuple{F::Page(&T::m_ModelData), F::Page(&T::m_RepeatMeasuresData), F::Page(&T::m_AnovaOptionsData),
                          F::Page(&T::m_BootStrapData)};
    }

private:
    CManovaModelData m_ModelData;
    CRepeatMeasuresData m_RepeatMeasuresData;
    CAnovaOptionsData m_AnovaOptionsData;
    CBootStrapData m_BootStrapData;
};
