// Mixed regression (command 2015, template 101): the model page, which
// writes the module, model and random lines, and the estimation page,
// which writes "ESTIMATE" and whose quadrature follows the model's link.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabData.h"
#include "framework/GUITabDlg.h"
#include "private/Mixed/KDGMixRegEstimationDlg.h"
#include "private/Mixed/KDGMixRegModelDlg.h"

class CMixedTabData : public CGUITabData {
    DECLARE_SERIAL(CMixedTabData)
public:
    CMixedTabData() { LinkPages(); }
    CMixedTabData(const CMixedTabData& other) : CMixedTabData() { *this = other; }
    CMixedTabData& operator=(const CMixedTabData&) = default;

    static CMixRegModelData GetDefaultModel() { return CMixRegModelData(); }
    static CMixRegEstimationData GetDefaultEstimation() { return CMixRegEstimationData(); }
    CMixRegModelData* GetModelData() { return &m_ModelData; }
    CMixRegEstimationData* GetEstimationData() { return &m_EstimationData; }

    int GetAll(CMixRegModelData& model, CMixRegEstimationData& estimation) const
    {
        return kal::CopyFieldsOut(*this, model, estimation);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CMixRegModelData& model, const CMixRegEstimationData& estimation)
    {
        return kal::CopyFieldsIn(*this, model, estimation);
    }

    PageList Pages() override { return {&m_ModelData, &m_EstimationData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CMixedTabData>;
        return std::tuple{F::Page(&CMixedTabData::m_ModelData), F::Page(&CMixedTabData::m_EstimationData)};
    }

private:
    CMixRegModelData m_ModelData;
    CMixRegEstimationData m_EstimationData;
};

class CMixedTabDlg : public CGUIDataDlg<CMixedTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CMixedTabDlg)
public:
    explicit CMixedTabDlg(CWnd* parent = nullptr);

    int GetAllDefault() override;
    const char* GetSourceFile() const override { return "Source/KDGMixedTabDlg"; }

private:
    CMixRegModelDlg m_ModelDlg{this};
    CMixRegEstimationDlg m_EstimationDlg{this};
};
