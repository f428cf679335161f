// CSetCorTabData: the settings of the set correlation dialog, its two pages
// in page order: the set correlation page writes the lines, the resampling
// clause joins its "ESTIMATE" line.
#pragma once

#include "framework/BootStrapData.h"
#include "framework/GUITabData.h"
#include "private/Multivariate/KDGSetCorData.h"

class CSetCorTabData : public CGUITabData {
    DECLARE_SERIAL(CSetCorTabData)
public:
    CSetCorTabData() { LinkPages(); }
    CSetCorTabData(const CSetCorTabData& other) : CSetCorTabData() { *this = other; }
    CSetCorTabData& operator=(const CSetCorTabData&) = default;

    CSetCorData* GetSetCorData() { return &m_SetCorData; }
    CBootStrapData* GetBootStrapData() { return &m_BootStrapData; }

    int GetAll(CSetCorData& sets, CBootStrapData& bootstrap) const
    {
        return kal::CopyFieldsOut(*this, sets, bootstrap);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CSetCorData& sets, const CBootStrapData& bootstrap)
    {
        return kal::CopyFieldsIn(*this, sets, bootstrap);
    }

    PageList Pages() override { return {&m_SetCorData, &m_BootStrapData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CSetCorTabData>;
        return std::tuple{F::Page(&CSetCorTabData::m_SetCorData), F::Page(&CSetCorTabData::m_BootStrapData)};
    }

private:
    CSetCorData m_SetCorData;
    CBootStrapData m_BootStrapData;
};
