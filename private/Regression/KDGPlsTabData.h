// CPlsTabData: the settings of partial least squares regression (2064), a
// tab dialog of one page (CPlsData).
#pragma once

#include "framework/GUITabData.h"
#include "private/Regression/KDGPlsData.h"

class CPlsTabData : public CGUITabData {
    DECLARE_SERIAL(CPlsTabData)
public:
    CPlsTabData() { LinkPages(); }
    CPlsTabData(const CPlsTabData& other) : CPlsTabData() { *this = other; }
    CPlsTabData& operator=(const CPlsTabData&) = default;

    static CPlsData GetDefaultPls() { return CPlsData(); }
    CPlsData* GetPlsData() { return &m_PlsData; }

    int GetAll(CPlsData& pls) const { return kal::CopyFieldsOut(*this, pls); }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CPlsData& pls) { return kal::CopyFieldsIn(*this, pls); }

    PageList Pages() override { return {&m_PlsData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CPlsTabData>;
        return std::tuple{F::Page(&CPlsTabData::m_PlsData)};
    }

private:
    CPlsData m_PlsData;
};
