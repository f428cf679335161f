// CSmoothTabData: the settings of the smoothing dialog (2058), a tab
// dialog of one page, the smoother (CSmoothData).
#pragma once

#include "framework/GUITabData.h"
#include "private/Regression/KDGSmoothData.h"

class CSmoothTabData : public CGUITabData {
    DECLARE_SERIAL(CSmoothTabData)
public:
    CSmoothTabData() { LinkPages(); }
    CSmoothTabData(const CSmoothTabData& other) : CSmoothTabData() { *this = other; }
    CSmoothTabData& operator=(const CSmoothTabData&) = default;

    static CSmoothData GetDefaultSmooth() { return CSmoothData(); }
    CSmoothData* GetSmoothData() { return &m_SmoothData; }

    int GetAll(CSmoothData& smooth) const { return kal::CopyFieldsOut(*this, smooth); }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CSmoothData& smooth) { return kal::CopyFieldsIn(*this, smooth); }

    PageList Pages() override { return {&m_SmoothData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CSmoothTabData>;
        return std::tuple{F::Page(&CSmoothTabData::m_SmoothData)};
    }

private:
    CSmoothData m_SmoothData;
};
