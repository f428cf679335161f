// CRankRegressionData: the settings of rank regression, unweighted (2056)
// and weighted (2074), each row with its own settings object: the shared
// model page under the module "RANKREG", then the estimation page.
#pragma once

#include "framework/GUITabData.h"
#include "private/Regression/KDGRankOptionsData.h"
#include "private/Regression/KDGRegModelData.h"

class CRankRegressionData : public CGUITabData {
    DECLARE_SERIAL(CRankRegressionData)
public:
    static constexpr UINT kModuleRankreg = 12979;
    using ModelData = CRegModelDataFor<kModuleRankreg>;

    CRankRegressionData() { LinkPages(); }
    CRankRegressionData(const CRankRegressionData& other) : CRankRegressionData() { *this = other; }
    CRankRegressionData& operator=(const CRankRegressionData&) = default;

    CRegModelData* GetModelData() { return &m_ModelData; }
    CRankOptionsData* GetOptionsData() { return &m_OptionsData; }

    int GetAll(ModelData& model, CRankOptionsData& options) const { return kal::CopyFieldsOut(*this, model, options); }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const ModelData& model, const CRankOptionsData& options)
    {
        return kal::CopyFieldsIn(*this, model, options);
    }

    PageList Pages() override { return {&m_ModelData, &m_OptionsData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRankRegressionData>;
        return std::tuple{F::Page(&CRankRegressionData::m_ModelData), F::Page(&CRankRegressionData::m_OptionsData)};
    }

private:
    ModelData m_ModelData;
    CRankOptionsData m_OptionsData;
};
