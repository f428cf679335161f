// CTreesTabData: the settings of the classification and regression trees
// dialog, its two pages in page order: the model page writes the lines, the
// options page joins its clauses to the "ESTIMATE" line.
#pragma once

#include "framework/GUITabData.h"
#include "private/Multivariate/KDGTreesData.h"
#include "private/Multivariate/KDGTreesOptionsData.h"

class CTreesTabData : public CGUITabData {
    DECLARE_SERIAL(CTreesTabData)
public:
    CTreesTabData() { LinkPages(); }
    CTreesTabData(const CTreesTabData& other) : CTreesTabData() { *this = other; }
    CTreesTabData& operator=(const CTreesTabData&) = default;

    CTreesData* GetTreesData() { return &m_TreesData; }
    const CTreesData* GetTreesData() const { return &m_TreesData; }
    CTreesOptionsData* GetTreesOptionsData() { return &m_TreesOptionsData; }

    int GetAll(CTreesData& model, CTreesOptionsData& options) const
    {
        return kal::CopyFieldsOut(*this, model, options);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CTreesData& model, const CTreesOptionsData& options)
    {
        return kal::CopyFieldsIn(*this, model, options);
    }

    PageList Pages() override { return {&m_TreesData, &m_TreesOptionsData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CTreesTabData>;
        return std::tuple{F::Page(&CTreesTabData::m_TreesData), F::Page(&CTreesTabData::m_TreesOptionsData)};
    }

private:
    CTreesData m_TreesData;
    CTreesOptionsData m_TreesOptionsData;
};
