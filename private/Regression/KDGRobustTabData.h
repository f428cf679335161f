// The settings of the robust regression dialogs: each holds the shared
// model page under the module "ROBUST" and the robust options page serving
// its estimator, in that order. One template for all of them; each menu
// row has its own class, so that its record names it:
//
//   CMregLmsregTabData    least median of squares
//   CMregLtsTabData       least trimmed squares
//   CMregSregTabData      S-estimation
//   CMregMmregTabData     MM-estimation
//   CLadregMcdregTabData  least absolute deviations on an MCD design
//   CMregTabData          M-regression (two menu rows, each with its own
//                         settings object)
#pragma once

#include "framework/GUITabData.h"
#include "private/Regression/KDGRegModelData.h"
#include "private/Regression/KDGRobustOptionsData.h"

template <RobustEstimator Estimator>
class CRobustTabData : public CGUITabData {
public:
    static constexpr UINT kModuleRobust = 12978;
    using ModelData = CRegModelDataFor<kModuleRobust>;
    using OptionsData = CRobustOptionsDataFor<Estimator>;

    CRobustTabData() { LinkPages(); }
    CRobustTabData(const CRobustTabData& other) : CRobustTabData() { *this = other; }
    CRobustTabData& operator=(const CRobustTabData&) = default;

    CRegModelData* GetModelData() { return &m_ModelData; }
    CRobustOptionsData* GetOptionsData() { return &m_OptionsData; }

    int GetAll(ModelData& model, OptionsData& options) const { return kal::CopyFieldsOut(*this, model, options); }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const ModelData& model, const OptionsData& options) { return kal::CopyFieldsIn(*this, model, options); }

    PageList Pages() override { return {&m_ModelData, &m_OptionsData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRobustTabData>;
        return std::tuple{F::Page(&CRobustTabData::m_ModelData), F::Page(&CRobustTabData::m_OptionsData)};
    }

private:
    ModelData m_ModelData;
    OptionsData m_OptionsData;
};

class CMregLmsregTabData : public CRobustTabData<RobustEstimator::Lms> {
    DECLARE_SERIAL(CMregLmsregTabData)
};

class CMregLtsTabData : public CRobustTabData<RobustEstimator::Lts> {
    DECLARE_SERIAL(CMregLtsTabData)
};

class CMregSregTabData : public CRobustTabData<RobustEstimator::S> {
    DECLARE_SERIAL(CMregSregTabData)
};

class CMregMmregTabData : public CRobustTabData<RobustEstimator::Mm> {
    DECLARE_SERIAL(CMregMmregTabData)
};

class CLadregMcdregTabData : public CRobustTabData<RobustEstimator::LadMcd> {
    DECLARE_SERIAL(CLadregMcdregTabData)
};

class CMregTabData : public CRobustTabData<RobustEstimator::M> {
    DECLARE_SERIAL(CMregTabData)
};
