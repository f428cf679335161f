// CShewhartTabData: the settings of the Shewhart chart tab dialog, its two
// pages in page order: the chart, then the run tests, whose text joins the
// chart line.
#pragma once

#include "framework/GUITabData.h"
#include "private/Quality/KDGQcTestsData.h"
#include "private/Quality/KDGShewhartData.h"

class CShewhartTabData : public CGUITabData {
    DECLARE_SERIAL(CShewhartTabData)
public:
    CShewhartTabData() { LinkPages(); }
    CShewhartTabData(const CShewhartTabData& other) : CShewhartTabData() { *this = other; }
    CShewhartTabData& operator=(const CShewhartTabData&) = default;

    static CShewhartData GetDefaultShewhart() { return CShewhartData(); }
    static CQcTestsData GetDefaultQcTests() { return CQcTestsData(); }

    CShewhartData* GetShewhartData() { return &m_ShewhartData; }
    CQcTestsData* GetQcTestsData() { return &m_QcTestsData; }

    int GetAll(CShewhartData& chart, CQcTestsData& tests) const { return kal::CopyFieldsOut(*this, chart, tests); }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CShewhartData& chart, const CQcTestsData& tests) { return kal::CopyFieldsIn(*this, chart, tests); }

    PageList Pages() override { return {&m_ShewhartData, &m_QcTestsData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CShewhartTabData>;
        return std::tuple{F::Page(&CShewhartTabData::m_ShewhartData), F::Page(&CShewhartTabData::m_QcTestsData)};
    }

private:
    CShewhartData m_ShewhartData;
    CQcTestsData m_QcTestsData;
};
