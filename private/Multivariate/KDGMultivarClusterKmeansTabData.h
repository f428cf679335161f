// CMultivarClusterKmeansTabData: the settings of the k-means clustering
// dialog, its two pages in page order: the k-means page writes the lines,
// the options page adds to them.
#pragma once

#include "framework/GUITabData.h"
#include "private/Multivariate/KDGKmeansData.h"
#include "private/Multivariate/KDGKmeansOptionsData.h"

class CMultivarClusterKmeansTabData : public CGUITabData {
    DECLARE_SERIAL(CMultivarClusterKmeansTabData)
public:
    CMultivarClusterKmeansTabData() { LinkPages(); }
    CMultivarClusterKmeansTabData(const CMultivarClusterKmeansTabData& other) : CMultivarClusterKmeansTabData()
    {
        *this = other;
    }
    CMultivarClusterKmeansTabData& operator=(const CMultivarClusterKmeansTabData&) = default;

    CKmeansData* GetKmeansData() { return &m_KmeansData; }
    CKmeansOptionsData* GetKmeansOptionsData() { return &m_KmeansOptionsData; }

    int GetAll(CKmeansData& kmeans, CKmeansOptionsData& options) const
    {
        return kal::CopyFieldsOut(*this, kmeans, options);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CKmeansData& kmeans, const CKmeansOptionsData& options)
    {
        return kal::CopyFieldsIn(*this, kmeans, options);
    }

    PageList Pages() override { return {&m_KmeansData, &m_KmeansOptionsData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CMultivarClusterKmeansTabData>;
        return std::tuple{F::Page(&CMultivarClusterKmeansTabData::m_KmeansData),
                          F::Page(&CMultivarClusterKmeansTabData::m_KmeansOptionsData)};
    }

private:
    CKmeansData m_KmeansData;
    CKmeansOptionsData m_KmeansOptionsData;
};
