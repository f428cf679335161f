// CLadregData: the settings of the least-absolute-deviations dialog, its two
// pages in page order: the shared model page under the module "LADREG", then
// the estimation page.
#pragma once

#include "framework/GUITabData.h"
#include "private/Regression/KDGLadregOptionsData.h"
#include "private/Regression/KDGRegModelData.h"

class CLadregData : public CGUITabData {
    DECLARE_SERIAL(CLadregData)
public:
    static constexpr UINT kModuleLadreg = 12977;
    using ModelData = CRegModelDataFor<kModuleLadreg>;

    CLadregData() { LinkPages(); }
    CLadregData(const CLadregData& other) : CLadregData() { *this = other; }
    CLadregData& operator=(const CLadregData&) = default;

    CRegModelData* GetModelData() { return &m_ModelData; }
    CLadregOptionsData* GetOptionsData() { return &m_OptionsData; }

    int GetAll(ModelData& model, CLadregOptionsData& options) const
    {
        return kal::CopyFieldsOut(*this, model, options);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const ModelData& model, const CLadregOptionsData& options)
    {
        return kal::CopyFieldsIn(*this, model, options);
    }

    PageList Pages() override { return {&m_ModelData, &m_OptionsData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CLadregData>;
        return std::tuple{F::Page(&CLadregData::m_ModelData), F::Page(&CLadregData::m_OptionsData)};
    }

private:
    ModelData m_ModelData;
    CLadregOptionsData m_OptionsData;
};
