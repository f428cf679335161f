// CRidgeRegressionData: the settings of the ridge regression dialog, its two
// pages in page order: the shared model page under the module "RIDGE", then
// the ridge page.
#pragma once

#include "framework/GUITabData.h"
#include "private/Regression/KDGRegModelData.h"
#include "private/Regression/KDGRidgeOptionsData.h"

class CRidgeRegressionData : public CGUITabData {
    DECLARE_SERIAL(CRidgeRegressionData)
public:
    static constexpr UINT kModuleRidge = 12976;
    using ModelData = CRegModelDataFor<kModuleRidge>;

    CRidgeRegressionData() { LinkPages(); }
    CRidgeRegressionData(const CRidgeRegressionData& other) : CRidgeRegressionData() { *this = other; }
    CRidgeRegressionData& operator=(const CRidgeRegressionData&) = default;

    CRegModelData* GetModelData() { return &m_ModelData; }
    CRidgeOptionsData* GetRidgeData() { return &m_RidgeData; }

    int GetAll(ModelData& model, CRidgeOptionsData& ridge) const { return kal::CopyFieldsOut(*this, model, ridge); }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const ModelData& model, const CRidgeOptionsData& ridge)
    {
        return kal::CopyFieldsIn(*this, model, ridge);
    }

    PageList Pages() override { return {&m_ModelData, &m_RidgeData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRidgeRegressionData>;
        return std::tuple{F::Page(&CRidgeRegressionData::m_ModelData), F::Page(&CRidgeRegressionData::m_RidgeData)};
    }

private:
    ModelData m_ModelData;
    CRidgeOptionsData m_RidgeData;
};
