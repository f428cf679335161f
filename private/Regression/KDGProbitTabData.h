// CProbitTabData: the settings of probit regression (2032): the model page
// and the resampling page, in page order. The model page writes the
// module, model and "ESTIMATE" lines; the resampling page joins the latter.
#pragma once

#include "framework/BootStrapData.h"
#include "framework/GUITabData.h"
#include "private/Regression/KDGProbitData.h"

class CProbitTabData : public CGUITabData {
    DECLARE_SERIAL(CProbitTabData)
public:
    CProbitTabData() { LinkPages(); }
    CProbitTabData(const CProbitTabData& other) : CProbitTabData() { *this = other; }
    CProbitTabData& operator=(const CProbitTabData&) = default;

    static CProbitData GetDefaultProbit() { return CProbitData(); }
    static CBootStrapData GetDefaultBootStrap() { return CBootStrapData(); }
    CProbitData* GetProbitData() { return &m_ProbitData; }
    CBootStrapData* GetBootStrapData() { return &m_BootStrapData; }

    int GetAll(CProbitData& probit, CBootStrapData& bootstrap) const
    {
        return kal::CopyFieldsOut(*this, probit, bootstrap);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CProbitData& probit, const CBootStrapData& bootstrap)
    {
        return kal::CopyFieldsIn(*this, probit, bootstrap);
    }

    PageList Pages() override { return {&m_ProbitData, &m_BootStrapData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CProbitTabData>;
        return std::tuple{F::Page(&CProbitTabData::m_ProbitData), F::Page(&CProbitTabData::m_BootStrapData)};
    }

private:
    CProbitData m_ProbitData;
    CBootStrapData m_BootStrapData;
};
