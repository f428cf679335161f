// CJoinTabData: the settings of the hierarchical clustering dialog, its two
// pages in page order: the clustering page writes the lines, the options
// page adds to them.
#pragma once

#include "framework/GUITabData.h"
#include "private/Multivariate/KDGJoinData.h"
#include "private/Multivariate/KDGJoinOptionsData.h"

class CJoinTabData : public CGUITabData {
    DECLARE_SERIAL(CJoinTabData)
public:
    CJoinTabData() { LinkPages(); }
    CJoinTabData(const CJoinTabData& other) : CJoinTabData() { *this = other; }
    CJoinTabData& operator=(const CJoinTabData&) = default;

    CJoinData* GetJoinData() { return &m_JoinData; }
    const CJoinData* GetJoinData() const { return &m_JoinData; }
    CJoinOptionsData* GetJoinOptionsData() { return &m_JoinOptionsData; }

    int GetAll(CJoinData& join, CJoinOptionsData& options) const { return kal::CopyFieldsOut(*this, join, options); }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CJoinData& join, const CJoinOptionsData& options)
    {
        return kal::CopyFieldsIn(*this, join, options);
    }

    PageList Pages() override { return {&m_JoinData, &m_JoinOptionsData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CJoinTabData>;
        return std::tuple{F::Page(&CJoinTabData::m_JoinData), F::Page(&CJoinTabData::m_JoinOptionsData)};
    }

private:
    CJoinData m_JoinData;
    CJoinOptionsData m_JoinOptionsData;
};
