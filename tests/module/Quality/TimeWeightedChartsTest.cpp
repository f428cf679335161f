// The time-weighted charts (CUSUM, EWMA, moving average) on their shared
// chart page, driven headless: the lines of each chart, the page's rules and
// refused entries, and the record of the shared settings.
#include "Source/DlgStat2.h"
#include "platform/HeadlessDriver.h"
#include "private/Quality/KDGCusumDlg.h"
#include "private/Quality/KDGEWMATabDlg.h"
#include "private/Quality/KDGMaTabDlg.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

using namespace kaltest;
using W = CTimeWeightedDlg;

namespace {

class TimeWeightedCharts : public HeadlessDialogTest {
protected:
    TimeWeightedCharts() : HeadlessDialogTest({u"Y", u"Lot", u"Shift$"}) {}

    // Runs the dialog of `chart` with its menu row's captions.
    INT_PTR Run(TimeWeightedChart chart, const Script& script)
    {
        switch (chart) {
        case TimeWeightedChart::Ewma: return Open<CEWMATabDlg>(ewma, {2069, 2151, 0, 0}, script);
        case TimeWeightedChart::MovingAverage: return Open<CMaTabDlg>(ma, {2153, 2152, 0, 0}, script);
        case TimeWeightedChart::Cusum: break;
        }
        return Open<CCusumDlg>(cusum, {0, 0, 0, 0}, script);
    }
    const CGUIBaseObj& Settings(TimeWeightedChart chart) const
    {
        if (chart == TimeWeightedChart::Ewma)
            return ewma;
        if (chart == TimeWeightedChart::MovingAverage)
            return ma;
        return cusum;
    }
    // OK refused: the dialog stays open with the focus on `control`.
    CCusumData cusum;
    CEWMATabData ewma;
    CMaTabData ma;
};

} // namespace

TEST_F(TimeWeightedCharts, EachChartWritesItsOwnClauses)
{
    struct Case {
        TimeWeightedChart chart;
        Script script;
        std::u16string line;
    };
    const Case cases[] = {
        {TimeWeightedChart::Ewma, [](CHeadlessSession&) {}, u"EWMA Y / PLIMITS=0,0"},
        {TimeWeightedChart::Ewma,
         [](CHeadlessSession& s) {
             Move(s, W::IDC_SOURCE_LIST, {u"Shift$"}, W::IDC_ADD_GROUP);
             s.Type(W::IDC_WEIGHT_EDIT, u"1");
             s.Type(W::IDC_SIGMA_EDIT, u"0.5");
             s.Type(W::IDC_PLIMITS_LOWER, u"");
             s.Type(W::IDC_PLIMITS_UPPER, u"0.999");
             s.Page(1);
             s.Check(CQcTestsDlg::IDC_PERFORM_ALL, 0);
         },
         u"EWMA Y*Shift$ / LAMBDA=1 SIGMA=0.5 PLIMITS=,0.999  TEST = 0 "},
        {TimeWeightedChart::MovingAverage,
         [](CHeadlessSession& s) {
             s.Type(W::IDC_SPAN_EDIT, u"5");
             s.Type(W::IDC_TARGET_EDIT, u"-2");
             s.Click(W::IDC_SLIMITS_RADIO);
             s.Type(W::IDC_SLIMITS_LOWER, u"2");
             s.Type(W::IDC_SLIMITS_UPPER, u"");
         },
         u"MA Y / SPAN=5 TARGET=-2 SLIMITS=2,"},
        // The CUSUM line carries no limits, whatever its hidden bounds hold.
        {TimeWeightedChart::Cusum,
         [](CHeadlessSession& s) {
             s.Type(W::IDC_K_EDIT, u"1");
             s.Click(W::IDC_LOWER_RADIO);
         },
         u"CUSUM Y / K=1 LOWER"},
    };
    for (const Case& c : cases) {
        const INT_PTR result = Run(c.chart, [&](CHeadlessSession& s) {
            Move(s, W::IDC_SOURCE_LIST, {u"Y"}, W::IDC_ADD_CHART);
            c.script(s);
            s.Ok();
        });
        EXPECT_EQ(result, IDOK) << std::string(c.line.begin(), c.line.end());
        EXPECT_EQ(LinesOf(Settings(c.chart)), (Lines16{u"QC", c.line}));
    }
}

TEST_F(TimeWeightedCharts, ThePageShowsItsChartsControlsAndRefusesBadEntries)
{
    Run(TimeWeightedChart::Ewma, [this](CHeadlessSession& s) {
        EXPECT_EQ(s.Dialog().GetWindowText(), CString(u"EWMA Chart"));
        EXPECT_TRUE(s.IsVisible(W::IDC_WEIGHT_EDIT));
        EXPECT_FALSE(s.IsVisible(W::IDC_SPAN_EDIT) || s.IsVisible(W::IDC_K_EDIT) || s.IsVisible(W::IDC_FIR_CHECK));
        s.Select(W::IDC_SOURCE_LIST, Names({u"Shift$"}));
        EXPECT_FALSE(s.IsEnabled(W::IDC_ADD_CHART));
        EXPECT_TRUE(s.IsEnabled(W::IDC_ADD_GROUP));
        ExpectRefused(s, W::kMsgNoMeasurement, W::IDC_CHART_LIST);

        Move(s, W::IDC_SOURCE_LIST, {u"Y"}, W::IDC_ADD_CHART);
        for (const char16_t* weight : {u"0", u"1.5"}) {
            s.Type(W::IDC_WEIGHT_EDIT, weight);
            ExpectRefused(s, CTimeWeightedData::kMsgWeight, W::IDC_WEIGHT_EDIT);
        }
        s.Type(W::IDC_WEIGHT_EDIT, u"0.3");
        EXPECT_FALSE(s.IsEnabled(W::IDC_SLIMITS_LOWER));
        s.Click(W::IDC_SLIMITS_RADIO);
        EXPECT_TRUE(s.IsEnabled(W::IDC_SLIMITS_LOWER) && !s.IsEnabled(W::IDC_PLIMITS_LOWER));
        s.Type(W::IDC_SLIMITS_LOWER, u"");
        s.Type(W::IDC_SLIMITS_UPPER, u"");
        ExpectRefused(s, W::kMsgLimitsEmpty, W::IDC_SLIMITS_LOWER);
        s.Type(W::IDC_SLIMITS_UPPER, u"3");
        s.Ok();
        EXPECT_FALSE(s.IsOpen());
    });

    Run(TimeWeightedChart::MovingAverage, [this](CHeadlessSession& s) {
        EXPECT_TRUE(s.IsVisible(W::IDC_SPAN_EDIT) && !s.IsVisible(W::IDC_WEIGHT_EDIT));
        Move(s, W::IDC_SOURCE_LIST, {u"Y"}, W::IDC_ADD_CHART);
        s.Type(W::IDC_SPAN_EDIT, u"1");
        ExpectRefused(s, 2012, W::IDC_SPAN_EDIT);
        s.Type(W::IDC_SPAN_EDIT, u"2.5");
        ExpectRefused(s, 2011, W::IDC_SPAN_EDIT);
        // Probability bounds the wrong way round; both at 0 are the defaults.
        s.Type(W::IDC_SPAN_EDIT, u"4");
        s.Type(W::IDC_PLIMITS_LOWER, u"0.999");
        s.Type(W::IDC_PLIMITS_UPPER, u"0.001");
        ExpectRefused(s, W::kMsgLimitsOrder, W::IDC_PLIMITS_UPPER);
        s.Type(W::IDC_PLIMITS_LOWER, u"0");
        s.Type(W::IDC_PLIMITS_UPPER, u"0");
        s.Ok();
        EXPECT_FALSE(s.IsOpen());
    });

    Run(TimeWeightedChart::Cusum, [this](CHeadlessSession& s) {
        EXPECT_TRUE(s.IsVisible(W::IDC_K_EDIT) && s.IsVisible(W::IDC_FIR_CHECK));
        EXPECT_FALSE(s.IsVisible(W::IDC_PLIMITS_RADIO) || s.IsVisible(W::IDC_SLIMITS_UPPER));
        Move(s, W::IDC_SOURCE_LIST, {u"Y"}, W::IDC_ADD_CHART);
        s.Type(W::IDC_H_EDIT, u"-1");
        ExpectRefused(s, 2012, W::IDC_H_EDIT);
        s.Type(W::IDC_H_EDIT, u"4");
        s.Check(W::IDC_FIR_CHECK, 1);
        s.Reset();
        EXPECT_EQ(s.Text(W::IDC_H_EDIT), CString(u"5"));
        EXPECT_FALSE(s.IsChecked(W::IDC_FIR_CHECK));
        EXPECT_EQ(s.Items(W::IDC_CHART_LIST).size(), 0U);
        s.Cancel();
    });
}

TEST_F(TimeWeightedCharts, TheRecordKeepsItsOrderAndTheChartSurvivesResetsAndCopies)
{
    CEWMATabData::ChartData chart;
    chart.SetAll(Vars({}), Vars({u"Y"}), Vars({}), CGUIData<double>(0, 500.0, 0.0, 0, 1),
                 CTimeWeightedData::GetDefaultNoneGiven(), CGUIData<double>(0, 0.1, 0.2, 0, 1),
                 CTimeWeightedData::GetDefaultSpanEdit(), CTimeWeightedData::GetDefaultKEdit(),
                 CTimeWeightedData::GetDefaultHEdit(), CTimeWeightedData::GetDefaultNoneGiven(),
                 CTimeWeightedData::GetDefaultNoneGiven(), CTimeWeightedData::GetDefaultNoneGiven(),
                 CTimeWeightedData::GetDefaultNoneGiven(), 2, 1, 1);
    const Bytes zero = DataRecord(1, 0, 0.0, 0.0, 1);
    const Bytes expected =
        Cat({Int32(2), Int32(1), Int32(1),
             // source, chart (one element block), subgroups
             Word(0), Word(1), Int32(0), Int32(0), Int32(1), Int32(0), Int32(0), Int32(0), Word(0),
             // span; target, sigma, weight, k, h; probability and sigma bounds
             DataRecord(1, 0, 3, 3, 1), DataRecord(0, 0, 0.0, 500.0, 1), zero, DataRecord(0, 0, 0.2, 0.1, 1),
             DataRecord(1, 0, 0.5, 0.5, 1), DataRecord(1, 0, 5.0, 5.0, 1), zero, zero, zero, zero});
    EXPECT_EQ(Store([&](CArchive& ar) { chart.Serialize(ar); }), expected);
    CTimeWeightedData cut;
    EXPECT_THROW(Load(Bytes(expected.begin(), expected.end() - 8), [&](CArchive& ar) { cut.Serialize(ar); }),
                 CArchiveException);

    ewma.SetAll(chart, CQcTestsData());
    const Bytes bytes = Store([&](CArchive& ar) { ewma.Serialize(ar); }, CArchive::namedLists);
    CEWMATabData back;
    Load(bytes, CArchive::namedLists, [&](CArchive& ar) { back.Serialize(ar); });
    EXPECT_EQ(LinesOf(back), (Lines16{u"QC", u"EWMA Y / LAMBDA=0.1 TARGET=500 SLIMITS=0,0"}));

    // Resetting the settings keeps the chart the dialog owns.
    kal::ResetFields(back);
    EXPECT_EQ(back.GetChartData()->GetChart(), TimeWeightedChart::Ewma);
    const CMaTabData copy(ma);
    EXPECT_EQ(LinesOf(copy), (Lines16{u"QC", u"MA  / PLIMITS=0,0"}));
}
