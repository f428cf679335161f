// CXMrTabData: the settings of the X-MR chart tab dialog, its two pages in
// page order: the chart, then the run tests, whose text joins the chart
// line.
#pragma once

#include "framework/GUITabData.h"
#include "private/Quality/KDGQcTestsData.h"
#include "private/Quality/KDGXMrData.h"

class CXMrTabData : public CGUITabData {
    DECLARE_SERIAL(CXMrTabData)
public:
    CXMrTabData() { LinkPages(); }
    CXMrTabData(const CXMrTabData& other) : CXMrTabData() { *this = other; }
    CXMrTabData& operator=(const CXMrTabData&) = default;

    static CXMrData GetDefaultXMr() { return CXMrData(); }
    static CQcTestsData GetDefaultQcTests() { return CQcTestsData(); }

    CXMrData* GetXMrData() { return &m_XMrData; }
    CQcTestsData* GetQcTestsData() { return &m_QcTestsData; }

    int GetAll(CXMrData& chart, CQcTestsData& tests) const { return kal::CopyFieldsOut(*this, chart, tests); }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CXMrData& chart, const CQcTestsData& tests) { return kal::CopyFieldsIn(*this, chart, tests); }

    PageList Pages() override { return {&m_XMrData, &m_QcTestsData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CXMrTabData>;
        return std::tuple{F::Page(&CXMrTabData::m_XMrData), F::Page(&CXMrTabData::m_QcTestsData)};
    }

private:
    CXMrData m_XMrData;
    CQcTestsData m_QcTestsData;
};
