// The MANOVA hypothesis test (command 2026, template 101): the hypothesis
// and error pages of the general linear model's hypothesis tests over the
// last multivariate model (the MANOVA estimate model, 2025), and a page of
// the multivariate statistics to report, which joins the "TEST" line the
// error page ends with.
#pragma once

#include "framework/GUIDataDlg.h"
#include "framework/GUIPageDlg.h"
#include "framework/GUITabData.h"
#include "framework/GUITabDlg.h"
#include "ids/manova.h"
#include "private/Anova/KDGHypothesisDlg.h"
#include "private/Multivariate/KDGManovaStatistics.h"

// CManovaStatisticsData: the four statistics, all reported by default.
// Writes " / MTEST = ..." after "TEST" when some are left out.
class CManovaStatisticsData : public CGUIBaseObj {
    DECLARE_SERIAL(CManovaStatisticsData)
public:
    CManovaStatisticsData() { kal::ResetFields(*this); }

    static int GetDefaultWilksCheck() { return 1; }
    static int GetDefaultPillaiCheck() { return 1; }
    static int GetDefaultHotellingCheck() { return 1; }
    static int GetDefaultRoyCheck() { return 1; }

    int GetAll(int& wilks, int& pillai, int& hotelling, int& roy) const
    {
        return kal::CopyFieldsOut(*this, wilks, pillai, hotelling, roy);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int wilks, int pillai, int hotelling, int roy)
    {
        return kal::CopyFieldsIn(*this, wilks, pillai, hotelling, roy);
    }

    kal::manova::Statistics GetStatistics() const
    {
        return {m_WilksCheck, m_PillaiCheck, m_HotellingCheck, m_RoyCheck};
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CManovaStatisticsData>;
        using Ids = CManovaStatisticsDlgIds;
        using D = CManovaStatisticsData;
        return std::tuple{
            F::Value(&D::m_WilksCheck, Ids::IDC_WILKS, &GetDefaultWilksCheck),
            F::Value(&D::m_PillaiCheck, Ids::IDC_PILLAI, &GetDefaultPillaiCheck),
            F::Value(&D::m_HotellingCheck, Ids::IDC_HOTELLING, &GetDefaultHotellingCheck),
            F::Value(&D::m_RoyCheck, Ids::IDC_ROY, &GetDefaultRoyCheck),
        };
    }

private:
    int m_WilksCheck;
    int m_PillaiCheck;
    int m_HotellingCheck;
    int m_RoyCheck;
};

// CManovaStatisticsDlg: the statistics page (template 6040); OK needs one.
class CManovaStatisticsDlg : public CGUIPageDlg<CManovaStatisticsData>, public CManovaStatisticsDlgIds {
    DECLARE_DYNAMIC(CManovaStatisticsDlg)
public:
    explicit CManovaStatisticsDlg(CWnd* parent = nullptr) : CGUIPageDlg(IDD, parent) {}

    void DoDataExchange(CDataExchange* pDX) override;
    const char* GetSourceFile() const override { return "Source/KDGManovaStatisticsDlg"; }
};

class CManovaHypothesisTabData : public CGUITabData {
    DECLARE_SERIAL(CManovaHypothesisTabData)
public:
    CManovaHypothesisTabData() { LinkPages(); }
    CManovaHypothesisTabData(const CManovaHypothesisTabData& other) : CManovaHypothesisTabData() { *this = other; }
    CManovaHypothesisTabData& operator=(const CManovaHypothesisTabData&) = default;

    static CManovaStatisticsData GetDefaultStatistics() { return CManovaStatisticsData(); }
    CHypothesisData* GetHypothesisData() { return &m_HypothesisData; }
    CHypothesisErrorData* GetHypothesisErrorData() { return &m_ErrorData; }
    CManovaStatisticsData* GetStatisticsData() { return &m_StatisticsData; }

    int GetAll(CHypothesisData& hypothesis, CHypothesisErrorData& error, CManovaStatisticsData& statistics) const
    {
        return kal::CopyFieldsOut(*this, hypothesis, error, statistics);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CHypothesisData& hypothesis, const CHypothesisErrorData& error,
               const CManovaStatisticsData& statistics)
    {
        return kal::CopyFieldsIn(*this, hypothesis, error, statistics);
    }

    PageList Pages() override { return {&m_HypothesisData, &m_ErrorData, &m_StatisticsData}; }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CManovaHypothesisTabData>;
        using T = CManovaHypothesisTabData;
        return std::tuple{F::Page(&T::m_HypothesisData), F::Page(&T::m_ErrorData), F::Page(&T::m_StatisticsData)};
    }

private:
    CHypothesisData m_HypothesisData;
    CHypothesisErrorData m_ErrorData;
    CManovaStatisticsData m_StatisticsData;
};

class CManovaHypothesisTabDlg : public CGUIDataDlg<CManovaHypothesisTabData, CGUITabDlg> {
    DECLARE_DYNAMIC(CManovaHypothesisTabDlg)
public:
    explicit CManovaHypothesisTabDlg(CWnd* parent = nullptr);

    int GetAllDefault() override;
    const char* GetSourceFile() const override { return "Source/KDGManovaHypothesisTabDlg"; }

private:
    CHypothesisDlg m_HypothesisDlg{this};
    CHypothesisErrorDlg m_ErrorDlg{this};
    CManovaStatisticsDlg m_StatisticsDlg{this};
};
