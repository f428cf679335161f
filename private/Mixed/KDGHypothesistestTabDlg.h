// The hypothesis test of the last mixed model (command 2073, template 101):
// the hypothesis page of the general linear model's test (an effect with
// its contrast, or linear combinations of the parameters) over the fixed
// effects of the mixed model the store holds (see CLastModel), and the
// test page with the denominator degrees of freedom and the D matrix.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUITabData.h"
#include "framework/GUITabDlg.h"
#include "private/Anova/KDGHypothesisDlg.h"
#include "private/Mixed/KDGMixedTestDlg.h"

class CHypothesistestTabData : public CGUITabData {
    DECLARE_SERIAL(CHypothesistestTabData)
public:
    CHypothesistestTabData() { LinkPages(); }
    CHypothesistestTabData(const CHypothesistestTabData& other) : CHypothesistestTabData() { *this = other; }
    CHypothesistestTabData& operator=(const CHypothesistestTabData&) = default;

    static CHypothesisData GetDefaultHypothesis() { return CHypothesisData(); }
    static CMixedTestData GetDefaultTest() { return CMixedTestData(); }
    CHypothesisData* GetHypothesisData() { return &m_HypothesisData; }
    CMixedTestData* GetTestData() { return &m_TestData; }

    int GetAll(CHypothesisData& hypothesis, CMixedTestData& test) const
    {
        return kal::CopyFieldsOut(*this, hypothesis, test);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CHypothesisData& hypothesis, const CMixedTestData& test)
    {
        return kal::CopyFieldsIn(*this, hypothesis, test);
    }

    PageList Pages() override { return {&m_HypothesisData, &m_TestData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CHypothesistestTabData>;
        return std::tuple{F::Page(&CHypothesistestTabData::m_HypothesisData),
                          F::Page(&CHypothesistestTabData::m_TestData)};
    }

private:
    CHypothesisData m_HypothesisData;
    CMixedTestData m_TestData;
};

class CHypothesistestTabDlg : public CGUIDataDlg<CHypothesistestTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CHypothesistestTabDlg)
public:
    explicit CHypothesistestTabDlg(CWnd* parent = nullptr);

    int GetAllDefault() override;
    const char* GetSourceFile() const override { return "Source/KDGHypothesistestTabDlg"; }

private:
    CHypothesisDlg m_HypothesisDlg{this};
    CMixedTestDlg m_TestDlg{this};
};
