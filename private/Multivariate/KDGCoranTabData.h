// CCoranTabData: the settings of the correspondence analysis dialog, its two
// pages in page order: the model page writes the lines, the options page
// adds to them.
#pragma once

#include "framework/GUITabData.h"
#include "private/Multivariate/KDGCoranData.h"
#include "private/Multivariate/KDGCoranOptionsData.h"

class CCoranTabData : public CGUITabData {
    DECLARE_SERIAL(CCoranTabData)
public:
    CCoranTabData() { LinkPages(); }
    CCoranTabData(const CCoranTabData& other) : CCoranTabData() { *this = other; }
    CCoranTabData& operator=(const CCoranTabData&) = default;

    CCoranData* GetCoranData() { return &m_CoranData; }
    CCoranOptionsData* GetCoranOptionsData() { return &m_CoranOptionsData; }

    int GetAll(CCoranData& model, CCoranOptionsData& options) const
    {
        return kal::CopyFieldsOut(*this, model, options);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CCoranData& model, const CCoranOptionsData& options)
    {
        return kal::CopyFieldsIn(*this, model, options);
    }

    PageList Pages() override { return {&m_CoranData, &m_CoranOptionsData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CCoranTabData>;
        return std::tuple{F::Page(&CCoranTabData::m_CoranData), F::Page(&CCoranTabData::m_CoranOptionsData)};
    }

private:
    CCoranData m_CoranData;
    CCoranOptionsData m_CoranOptionsData;
};
