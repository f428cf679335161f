// The hierarchical linear mixed model (command 2068, template 101): the
// levels page, which writes the module, model and random lines, and the
// estimation page the linear mixed model shares, which writes "ESTIMATE".
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabData.h"
#include "framework/GUITabDlg.h"
#include "private/Mixed/KDGHlmLevelsDlg.h"
#include "private/Mixed/KDGMixedEstimationDlg.h"

class CMixedModelHierarchicalLinearMixedModelTabData : public CGUITabData {
    DECLARE_SERIAL(CMixedModelHierarchicalLinearMixedModelTabData)
public:
    CMixedModelHierarchicalLinearMixedModelTabData() { LinkPages(); }
    CMixedModelHierarchicalLinearMixedModelTabData(const CMixedModelHierarchicalLinearMixedModelTabData& other)
        : CMixedModelHierarchicalLinearMixedModelTabData()
    {
        *this = other;
    }
    CMixedModelHierarchicalLinearMixedModelTabData&
    operator=(const CMixedModelHierarchicalLinearMixedModelTabData&) = default;

    static CHlmLevelsData GetDefaultLevels() { return CHlmLevelsData(); }
    static CMixedEstimationData GetDefaultEstimation() { return CMixedEstimationData(); }

    CHlmLevelsData* GetLevelsData() { return &m_LevelsData; }
    CMixedEstimationData* GetEstimationData() { return &m_EstimationData; }

    int GetAll(CHlmLevelsData& levels, CMixedEstimationData& estimation) const
    {
        return kal::CopyFieldsOut(*this, levels, estimation);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CHlmLevelsData& levels, const CMixedEstimationData& estimation)
    {
        return kal::CopyFieldsIn(*this, levels, estimation);
    }

    PageList Pages() override { return {&m_LevelsData, &m_EstimationData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CMixedModelHierarchicalLinearMixedModelTabData>;
        using T = CMixedModelHierarchicalLinearMixedModelTabData;
        return std::tuple{F::Page(&T::m_LevelsData), F::Page(&T::m_EstimationData)};
    }

private:
    CHlmLevelsData m_LevelsData;
    CMixedEstimationData m_EstimationData;
};

class CMixedModelHierarchicalLinearMixedModelTabDlg
    : public CGUIDataDlg<CMixedModelHierarchicalLinearMixedModelTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CMixedModelHierarchicalLinearMixedModelTabDlg)
public:
    explicit CMixedModelHierarchicalLinearMixedModelTabDlg(CWnd* parent = nullptr);

    int GetAllDefault() override;
    const char* GetSourceFile() const override { return "Source/KDGMixedModelHierarchicalLinearMixedModelTabDlg"; }

private:
    CHlmLevelsDlg m_LevelsDlg{this};
    CMixedEstimationDlg m_EstimationDlg{this};
};
