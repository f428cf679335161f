// The linear mixed model (command 2067, template 101): the fixed effects on
// the general linear model's model page (its term builder, categorical
// variables and save file) under owner 2356, which makes it write the
// mixed module's name; the random effects page; the estimation page. The
// model page writes the module, model, category and save lines, the random
// page the "RANDOM" line and the estimation page "ESTIMATE".
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabData.h"
#include "framework/GUITabDlg.h"
#include "private/Anova/KDGGLMDlg.h"
#include "private/Mixed/KDGMixedEstimationDlg.h"
#include "private/Mixed/KDGMixedRandomDlg.h"

class CMixedModelLinearMixedModelTabData : public CGUITabData {
    DECLARE_SERIAL(CMixedModelLinearMixedModelTabData)
public:
    CMixedModelLinearMixedModelTabData() { LinkPages(); }
    CMixedModelLinearMixedModelTabData(const CMixedModelLinearMixedModelTabData& other)
        : CMixedModelLinearMixedModelTabData()
    {
        *this = other;
    }
    CMixedModelLinearMixedModelTabData& operator=(const CMixedModelLinearMixedModelTabData&) = default;

    static CGLMData GetDefaultFixedEffects() { return CGLMData(); }
    static CMixedRandomData GetDefaultRandomEffects() { return CMixedRandomData(); }
    static CMixedEstimationData GetDefaultEstimation() { return CMixedEstimationData(); }

    CGLMData* GetFixedEffectsData() { return &m_FixedData; }
    CMixedRandomData* GetRandomData() { return &m_RandomData; }
    CMixedEstimationData* GetEstimationData() { return &m_EstimationData; }

    int GetAll(CGLMData& fixed, CMixedRandomData& random, CMixedEstimationData& estimation) const
    {
        return kal::CopyFieldsOut(*this, fixed, random, estimation);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGLMData& fixed, const CMixedRandomData& random, const CMixedEstimationData& estimation)
    {
        return kal::CopyFieldsIn(*this, fixed, random, estimation);
    }

    PageList Pages() override { return {&m_FixedData, &m_RandomData, &m_EstimationData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CMixedModelLinearMixedModelTabData>;
        using T = CMixedModelLinearMixedModelTabData;
        return std::tuple{F::Page(&T::m_FixedData), F::Page(&T::m_RandomData), F::Page(&T::m_EstimationData)};
    }

private:
    CGLMData m_FixedData;
    CMixedRandomData m_RandomData;
    CMixedEstimationData m_EstimationData;
};

class CMixedModelLinearMixedModelTabDlg : public CGUIDataDlg<CMixedModelLinearMixedModelTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CMixedModelLinearMixedModelTabDlg)
public:
    explicit CMixedModelLinearMixedModelTabDlg(CWnd* parent = nullptr);

    int GetAllDefault() override;
    int GetDependentVariableCount() override { return m_FixedDlg.GetDependentListCount(); }
    const char* GetSourceFile() const override { return "Source/KDGMixedModelLinearMixedModelTabDlg"; }

private:
    CGLMDlg m_FixedDlg{this};
    CMixedRandomDlg m_RandomDlg{this};
    CMixedEstimationDlg m_EstimationDlg{this};
};
