// The control-chart tab dialogs driven headless, as a user would drive
// them: moves, enable rules, refused entries and the lines at OK.
#include "Source/DlgStat2.h"
#include "platform/HeadlessDriver.h"
#include "private/Quality/KDGShewhartTabDlg.h"
#include "private/Quality/KDGXMrTabDlg.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

using namespace kaltest;
using S = CShewhartDlg;
using X = CXMrDlg;
using T = CQcTestsDlg;

namespace {

// Chart types by their place in the list.
enum { XBAR = 0, RANGE = 1, SD = 2, P = 4, NP = 5, C = 6, MEDIAN = 8 };

class ChartDialog : public HeadlessDialogTest {
protected:
    ChartDialog() : HeadlessDialogTest({u"Y", u"T1", u"T2", u"Lot", u"Shift$", u"W"}) {}

    INT_PTR RunShewhart(const Script& script) { return Open<CShewhartTabDlg>(shewhart, {2279, 0, 0, 0}, script); }
    INT_PTR RunXMr(const Script& script) { return Open<CXMrTabDlg>(xmr, {2338, 0, 0, 0}, script); }
    static Lines16 Commands(const CGUIBaseObj& settings) { return LinesOf(settings); }
    // OK refused: the dialog stays open with the focus on `control`.
    void ExpectRefused(CHeadlessSession& s, UINT message, UINT control)
    {
        host.messages.clear();
        s.Ok();
        EXPECT_TRUE(s.IsOpen());
        EXPECT_EQ(host.messages, std::vector<UINT>{message});
        EXPECT_EQ(s.Dialog().GetFocusCtrl(), &s.Find(control)) << control;
    }

    CShewhartTabData shewhart;
    CXMrTabData xmr;
};

} // namespace

TEST_F(ChartDialog, ShewhartBuildsItsChartAndWritesItsLines)
{
    const INT_PTR result = RunShewhart([](CHeadlessSession& s) {
        EXPECT_EQ(s.Dialog().GetWindowText(), CString(u"Shewhart Control Chart"));
        Move(s, S::IDC_SOURCE_LIST, {u"T1", u"T2"}, S::IDC_ADD_CHART);
        Move(s, S::IDC_SOURCE_LIST, {u"Lot", u"Shift$"}, S::IDC_ADD_GROUP);
        s.Choose(S::IDC_CHART_TYPE_COMBO, RANGE);
        s.Check(S::IDC_AVGN_CHECK, 1);
        s.Check(S::IDC_TOTAL_CHECK, 1);
        s.Click(S::IDC_SLIMITS_RADIO);
        s.Type(S::IDC_SLIMITS_LOWER, u"2.5");
        s.Page(1);
        s.Check(T::IDC_TEST2, 0);
        s.Ok();
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(
        Commands(shewhart),
        (Lines16{u"QC", u"SHEWHART T1 T2*Lot Shift$ / TYPE=RANGE SLIMITS=2.5,0 AVGN TOTAL  TEST = 1 3 4 5 6 7 8 "}));
}

TEST_F(ChartDialog, ListsTakeTheirKindsOfVariablesAndAMedianChartLocksItsFrequency)
{
    RunShewhart([this](CHeadlessSession& s) {
        s.Select(S::IDC_SOURCE_LIST, Names({u"Shift$"}));
        EXPECT_FALSE(s.IsEnabled(S::IDC_ADD_CHART) || s.IsEnabled(S::IDC_ADD_FREQUENCY));
        EXPECT_TRUE(s.IsEnabled(S::IDC_ADD_GROUP));

        // A median chart takes no frequency variable by any way...
        s.Choose(S::IDC_CHART_TYPE_COMBO, MEDIAN);
        s.Select(S::IDC_SOURCE_LIST, Names({u"W"}));
        EXPECT_FALSE(s.IsEnabled(S::IDC_ADD_FREQUENCY));
        s.Drag(S::IDC_SOURCE_LIST, S::IDC_FREQUENCY_LIST);
        EXPECT_EQ(s.LastDragCursor(), CursorShape::Arrow);
        s.Select(S::IDC_SOURCE_LIST, Names({u"W"}));
        s.Menu(S::IDC_SOURCE_LIST, S::ID_MENU_FREQUENCY);
        EXPECT_FALSE(driver.LastMenu().IsEnabled(S::ID_MENU_FREQUENCY));
        EXPECT_TRUE(s.Items(S::IDC_FREQUENCY_LIST).empty());

        // ...while other charts take one, by drag as well.
        s.Choose(S::IDC_CHART_TYPE_COMBO, C);
        Move(s, S::IDC_SOURCE_LIST, {u"W", u"Y"}, S::IDC_ADD_FREQUENCY);
        EXPECT_EQ(s.Items(S::IDC_FREQUENCY_LIST), Names({u"Y"})); // one variable, in list order
        s.Select(S::IDC_FREQUENCY_LIST, Names({u"Y"}));
        s.Drag(S::IDC_FREQUENCY_LIST, S::IDC_SOURCE_LIST);
        EXPECT_EQ(s.LastDragCursor(), CursorShape::Remove);
        s.Select(S::IDC_SOURCE_LIST, Names({u"W"}));
        s.Drag(S::IDC_SOURCE_LIST, S::IDC_FREQUENCY_LIST);
        EXPECT_EQ(s.LastDragCursor(), CursorShape::Drop);

        // Choosing the median chart then keeps it, and no way removes it.
        s.Choose(S::IDC_CHART_TYPE_COMBO, MEDIAN);
        s.Select(S::IDC_FREQUENCY_LIST, Names({u"W"}));
        EXPECT_FALSE(s.IsEnabled(S::IDC_REMOVE_FREQUENCY));
        s.Drag(S::IDC_FREQUENCY_LIST, S::IDC_SOURCE_LIST);
        EXPECT_EQ(s.LastDragCursor(), CursorShape::NoDrop);
        s.DoubleClick(S::IDC_FREQUENCY_LIST);
        EXPECT_EQ(s.Items(S::IDC_FREQUENCY_LIST), Names({u"W"}));
        s.Ok();
    });
    EXPECT_EQ(Commands(shewhart), (Lines16{u"QC", u"FREQUENCY  W", u"SHEWHART * / TYPE=MEDIAN PLIMITS=0,0"}));
}

TEST_F(ChartDialog, KnownCenterAndSigmaFollowTheirChecksAndExcludeEachOtherForVariableCharts)
{
    RunShewhart([](CHeadlessSession& s) {
        Move(s, S::IDC_SOURCE_LIST, {u"Y"}, S::IDC_ADD_CHART);
        for (const UINT id : {S::IDC_CENTER_EDIT, S::IDC_CENTER_LABEL, S::IDC_SIGMA_EDIT, S::IDC_SIGMA_LABEL})
            EXPECT_FALSE(s.IsEnabled(id)) << id;
        EXPECT_EQ(s.Text(S::IDC_CENTER_EDIT), CString(u"0"));
        EXPECT_EQ(s.Text(S::IDC_SIGMA_EDIT), CString()); // none given yet
        s.Check(S::IDC_CENTER_CHECK, 1);
        s.Check(S::IDC_SIGMA_CHECK, 1);
        EXPECT_TRUE(s.IsEnabled(S::IDC_CENTER_EDIT) && s.IsEnabled(S::IDC_SIGMA_LABEL));

        // X-bar (like range and SD charts): typing one puts the other out of use.
        s.Type(S::IDC_CENTER_EDIT, u"10");
        EXPECT_EQ(s.IsChecked(S::IDC_SIGMA_CHECK), 0);
        EXPECT_FALSE(s.IsEnabled(S::IDC_SIGMA_EDIT) || s.IsEnabled(S::IDC_SIGMA_LABEL));
        s.Check(S::IDC_SIGMA_CHECK, 1);
        s.Type(S::IDC_SIGMA_EDIT, u"2");
        EXPECT_EQ(s.IsChecked(S::IDC_CENTER_CHECK), 0);
        EXPECT_FALSE(s.IsEnabled(S::IDC_CENTER_EDIT) || s.IsEnabled(S::IDC_CENTER_LABEL));
        EXPECT_TRUE(s.IsEnabled(S::IDC_SIGMA_EDIT));

        // A P chart keeps both.
        s.Choose(S::IDC_CHART_TYPE_COMBO, P);
        s.Check(S::IDC_CENTER_CHECK, 1);
        s.Type(S::IDC_CENTER_EDIT, u"0.1");
        s.Type(S::IDC_SIGMA_EDIT, u"0.05");
        EXPECT_EQ(s.IsChecked(S::IDC_CENTER_CHECK), 1);
        EXPECT_EQ(s.IsChecked(S::IDC_SIGMA_CHECK), 1);
        s.Ok();
    });
    EXPECT_EQ(Commands(shewhart).back(), u"SHEWHART Y* / TYPE=P CENTER=0.1 SIGMA=0.05 PLIMITS=0,0");
}

TEST_F(ChartDialog, AggAndTotalAreOfferedWhereTheyApplyAndCountOnlyThen)
{
    RunShewhart([](CHeadlessSession& s) {
        Move(s, S::IDC_SOURCE_LIST, {u"Y"}, S::IDC_ADD_CHART);
        Move(s, S::IDC_SOURCE_LIST, {u"W"}, S::IDC_ADD_FREQUENCY);
        EXPECT_FALSE(s.IsEnabled(S::IDC_AGG_CHECK));   // X-bar
        EXPECT_FALSE(s.IsEnabled(S::IDC_TOTAL_CHECK)); // one chart variable
        s.Choose(S::IDC_CHART_TYPE_COMBO, NP);
        EXPECT_TRUE(s.IsEnabled(S::IDC_AGG_CHECK));
        s.Check(S::IDC_AGG_CHECK, 1);
        Move(s, S::IDC_SOURCE_LIST, {u"T1"}, S::IDC_ADD_CHART);
        EXPECT_TRUE(s.IsEnabled(S::IDC_TOTAL_CHECK));
        s.Check(S::IDC_TOTAL_CHECK, 1);
        s.Ok();
    });
    EXPECT_EQ(Commands(shewhart), (Lines16{u"QC", u"WEIGHT  W", u"SHEWHART Y T1* / TYPE=NP PLIMITS=0,0 AGG TOTAL"}));

    // Checked but no longer offered: the checks stay, the options go.
    RunShewhart([](CHeadlessSession& s) {
        EXPECT_EQ(s.IsChecked(S::IDC_AGG_CHECK), 1);
        s.Select(S::IDC_FREQUENCY_LIST, Names({u"W"}));
        s.Click(S::IDC_REMOVE_FREQUENCY);
        s.Select(S::IDC_CHART_LIST, Names({u"T1"}));
        s.Click(S::IDC_REMOVE_CHART);
        EXPECT_FALSE(s.IsEnabled(S::IDC_AGG_CHECK) || s.IsEnabled(S::IDC_TOTAL_CHECK));
        s.Ok();
    });
    EXPECT_EQ(Commands(shewhart), (Lines16{u"QC", u"SHEWHART Y* / TYPE=NP PLIMITS=0,0"}));
}

TEST_F(ChartDialog, ShewhartRefusesEntriesWithTheirMessages)
{
    RunShewhart([this](CHeadlessSession& s) {
        // Known sigma without a value; then not a number, not positive.
        s.Check(S::IDC_SIGMA_CHECK, 1);
        ExpectRefused(s, S::kMsgSigmaEmpty, S::IDC_SIGMA_EDIT);
        s.Type(S::IDC_SIGMA_EDIT, u"two");
        ExpectRefused(s, 2010, S::IDC_SIGMA_EDIT);
        s.Type(S::IDC_SIGMA_EDIT, u"0");
        ExpectRefused(s, 2012, S::IDC_SIGMA_EDIT);
        s.Type(S::IDC_SIGMA_EDIT, u"-1");
        ExpectRefused(s, 2012, S::IDC_SIGMA_EDIT);
        s.Check(S::IDC_SIGMA_CHECK, 0);

        // A known center must be a number; any number will do.
        s.Check(S::IDC_CENTER_CHECK, 1);
        s.Type(S::IDC_CENTER_EDIT, u"");
        ExpectRefused(s, 2010, S::IDC_CENTER_EDIT);
        s.Type(S::IDC_CENTER_EDIT, u"-4.5");

        // Probabilities lie from 0 to 1; a bound shows its number, 0 too.
        EXPECT_EQ(s.Text(S::IDC_PLIMITS_LOWER), CString(u"0"));
        s.Type(S::IDC_PLIMITS_UPPER, u"1.5");
        ExpectRefused(s, 2012, S::IDC_PLIMITS_UPPER);
        s.Type(S::IDC_PLIMITS_UPPER, u"");

        // Preset and sigma limits need a bound, 0 being one; preset bounds
        // must enclose something.
        s.Click(S::IDC_LIMITS_RADIO);
        ExpectRefused(s, 2012, S::IDC_LIMITS_UPPER); // 0 to 0
        s.Type(S::IDC_LIMITS_LOWER, u"");
        s.Type(S::IDC_LIMITS_UPPER, u" ");
        ExpectRefused(s, S::kMsgLimitsEmpty, S::IDC_LIMITS_LOWER);
        s.Type(S::IDC_LIMITS_LOWER, u"5");
        s.Type(S::IDC_LIMITS_UPPER, u"5");
        ExpectRefused(s, 2012, S::IDC_LIMITS_UPPER);
        s.Click(S::IDC_SLIMITS_RADIO);
        s.Type(S::IDC_SLIMITS_LOWER, u"");
        s.Type(S::IDC_SLIMITS_UPPER, u"");
        ExpectRefused(s, S::kMsgLimitsEmpty, S::IDC_SLIMITS_LOWER);
        s.Type(S::IDC_SLIMITS_UPPER, u"11");
        ExpectRefused(s, 2012, S::IDC_SLIMITS_UPPER);
        s.Type(S::IDC_SLIMITS_UPPER, u"x");
        ExpectRefused(s, 2010, S::IDC_SLIMITS_UPPER);
        s.Type(S::IDC_SLIMITS_UPPER, u"3");
        s.Ok();
        EXPECT_FALSE(s.IsOpen());
    });
    // The preset bounds, out of use now, are kept as entered, and emptied
    // bounds stay empty.
    EXPECT_EQ(Commands(shewhart).back(), u"SHEWHART * / TYPE=XBAR CENTER=-4.5 SLIMITS=,3");
    RunShewhart([](CHeadlessSession& s) {
        EXPECT_EQ(s.Text(S::IDC_LIMITS_UPPER), CString(u"5"));
        EXPECT_EQ(s.Text(S::IDC_SLIMITS_LOWER), CString());
        EXPECT_EQ(s.Text(S::IDC_PLIMITS_UPPER), CString());
        s.Cancel();
    });
}

TEST_F(ChartDialog, AChartTypeComboWithoutSelectionIsReported)
{
    AssertionCapture capture;
    RunShewhart([](CHeadlessSession& s) {
        auto& combo = dynamic_cast<CComboBox&>(s.Find(S::IDC_CHART_TYPE_COMBO));
        combo.SetCurSel(-1);
        combo.NotifyParent(CBN_SELCHANGE);
        s.Cancel();
    });
    ASSERT_EQ(capture.reports.size(), 1u);
    EXPECT_EQ(capture.reports[0], std::make_pair(std::string("Source/KDGShewhartDlg"), 1364));
}

TEST_F(ChartDialog, PerformAllChecksAndClearsTheTestsAndFollowsThem)
{
    RunShewhart([](CHeadlessSession& s) {
        s.Page(1);
        EXPECT_EQ(s.IsChecked(T::IDC_PERFORM_ALL), 1);
        s.Check(T::IDC_TEST5, 0);
        EXPECT_EQ(s.IsChecked(T::IDC_PERFORM_ALL), 0);
        s.Check(T::IDC_TEST5, 1);
        EXPECT_EQ(s.IsChecked(T::IDC_PERFORM_ALL), 1);
        s.Check(T::IDC_PERFORM_ALL, 0);
        for (const UINT test : T::kTests)
            EXPECT_EQ(s.IsChecked(test), 0) << test;
        s.Ok();
    });
    EXPECT_EQ(Commands(shewhart).back(), u"SHEWHART * / TYPE=XBAR PLIMITS=0,0  TEST = 0 ");

    RunShewhart([](CHeadlessSession& s) {
        s.Page(1);
        s.Check(T::IDC_TEST8, 1);
        s.Check(T::IDC_TEST3, 1);
        s.Ok();
    });
    EXPECT_EQ(Commands(shewhart).back(), u"SHEWHART * / TYPE=XBAR PLIMITS=0,0  TEST = 3 8 ");

    // Settings whose perform-all disagrees with the tests show it as the
    // tests say.
    shewhart.GetQcTestsData()->SetAll(1, 1, 1, 1, 1, 1, 1, 0, 1);
    RunShewhart([](CHeadlessSession& s) {
        s.Page(1);
        EXPECT_EQ(s.IsChecked(T::IDC_PERFORM_ALL), 0);
        s.Reset();
        EXPECT_EQ(s.IsChecked(T::IDC_PERFORM_ALL), 1);
        EXPECT_EQ(s.IsChecked(T::IDC_TEST7), 1);
        s.Ok();
    });
    EXPECT_EQ(Commands(shewhart).back(), u"SHEWHART * / TYPE=XBAR PLIMITS=0,0");
}

TEST_F(ChartDialog, ResetRestoresTheChartPageAndKeepsTheSource)
{
    RunShewhart([](CHeadlessSession& s) {
        Move(s, S::IDC_SOURCE_LIST, {u"Y"}, S::IDC_ADD_CHART);
        s.Choose(S::IDC_CHART_TYPE_COMBO, SD);
        s.Click(S::IDC_LIMITS_RADIO);
        s.Type(S::IDC_LIMITS_UPPER, u"9");
        s.Reset();
        EXPECT_TRUE(s.Items(S::IDC_CHART_LIST).empty());
        EXPECT_EQ(s.Items(S::IDC_SOURCE_LIST).size(), 6u);
        EXPECT_EQ(s.Text(S::IDC_LIMITS_UPPER), CString(u"0"));
        EXPECT_FALSE(s.IsEnabled(S::IDC_LIMITS_UPPER));
        s.Ok();
    });
    EXPECT_EQ(Commands(shewhart).back(), u"SHEWHART * / TYPE=XBAR PLIMITS=0,0");
}

TEST_F(ChartDialog, XMrWritesWhatItsPageShows)
{
    RunXMr([](CHeadlessSession& s) {
        EXPECT_EQ(s.Dialog().GetWindowText(), CString(u"X-MR Chart"));
        EXPECT_EQ(s.Text(X::IDC_WIDTH_EDIT), CString(u"2"));
        EXPECT_EQ(s.Text(X::IDC_CENTER_EDIT), CString());
        s.Select(X::IDC_SOURCE_LIST, Names({u"Shift$"}));
        EXPECT_FALSE(s.IsEnabled(X::IDC_ADD_CHART));
        Move(s, X::IDC_SOURCE_LIST, {u"Y"}, X::IDC_ADD_CHART);
        s.Type(X::IDC_WIDTH_EDIT, u"3");
        s.Type(X::IDC_CENTER_EDIT, u"50");
        s.Click(X::IDC_MEDIAN_RADIO);
        s.Click(X::IDC_SLIMITS_RADIO);
        s.Type(X::IDC_SLIMITS_LOWER, u"2");
        s.Type(X::IDC_SLIMITS_UPPER, u"3");
        s.Page(1);
        s.Check(T::IDC_PERFORM_ALL, 0);
        s.Check(T::IDC_TEST1, 1);
        s.Ok();
    });
    EXPECT_EQ(Commands(xmr), (Lines16{u"QC", u"XMR   Y /  WIDTH = 3  CENTER = 50 SLIMITS=2,3 MEDIAN   TEST = 1 "}));

    // A typed default counts as none given.
    RunXMr([](CHeadlessSession& s) {
        s.Type(X::IDC_WIDTH_EDIT, u"2");
        s.Type(X::IDC_CENTER_EDIT, u"0");
        s.Ok();
    });
    EXPECT_EQ(Commands(xmr).back(), u"XMR   Y /  SLIMITS=2,3 MEDIAN   TEST = 1 ");
}

TEST_F(ChartDialog, XMrMovingRangeAndSigmaExcludeEachOther)
{
    RunXMr([](CHeadlessSession& s) {
        EXPECT_TRUE(s.IsEnabled(X::IDC_MR_EDIT) && s.IsEnabled(X::IDC_SIGMA_EDIT));
        s.Type(X::IDC_MR_EDIT, u"1.5");
        EXPECT_FALSE(s.IsEnabled(X::IDC_SIGMA_EDIT) || s.IsEnabled(X::IDC_SIGMA_LABEL));
        s.Type(X::IDC_MR_EDIT, u"0.00");
        EXPECT_TRUE(s.IsEnabled(X::IDC_SIGMA_EDIT));
        s.Type(X::IDC_SIGMA_EDIT, u"2e-1");
        EXPECT_FALSE(s.IsEnabled(X::IDC_MR_EDIT) || s.IsEnabled(X::IDC_MR_LABEL));
        s.Ok();
    });
    EXPECT_EQ(Commands(xmr).back(), u"XMR    /   SIGMA = 0.2 PLIMITS=0,0 MEAN ");

    // Settings that bring both keep the moving range.
    CGUIArray<CGUIDataVariable> source, chart;
    CGUIData<int> width;
    CGUIData<double> center, mr, sigma, pl, pu, sl, su;
    int centerLine = 0, limits = 0;
    xmr.GetXMrData()->GetAll(source, chart, width, center, mr, sigma, pl, pu, sl, su, centerLine, limits);
    mr = CGUIData<double>(0, 1.5, 0.0, 0, 1);
    xmr.GetXMrData()->SetAll(source, chart, width, center, mr, sigma, pl, pu, sl, su, centerLine, limits);
    RunXMr([](CHeadlessSession& s) {
        EXPECT_EQ(s.Text(X::IDC_SIGMA_EDIT), CString());
        EXPECT_FALSE(s.IsEnabled(X::IDC_SIGMA_EDIT));
        s.Ok();
    });
    EXPECT_EQ(Commands(xmr).back(), u"XMR    /     MR = 1.5 PLIMITS=0,0 MEAN ");
}

TEST_F(ChartDialog, XMrRefusesEntriesWithTheirMessages)
{
    RunXMr([this](CHeadlessSession& s) {
        EXPECT_FALSE(s.IsEnabled(X::IDC_SLIMITS_LOWER));
        for (const auto& [text, message] : std::vector<std::pair<std::u16string, UINT>>{
                 {u"", 2011}, {u"2.5", 2011}, {u"wide", 2011}, {u"1", 2012}, {u"-3", 2012}, {u"101", 2012}}) {
            s.Type(X::IDC_WIDTH_EDIT, text);
            ExpectRefused(s, message, X::IDC_WIDTH_EDIT);
        }
        s.Type(X::IDC_WIDTH_EDIT, u"100");
        s.Type(X::IDC_CENTER_EDIT, u"ten");
        ExpectRefused(s, 2010, X::IDC_CENTER_EDIT);
        s.Type(X::IDC_CENTER_EDIT, u"-10");
        s.Type(X::IDC_MR_EDIT, u"-1");
        ExpectRefused(s, 2012, X::IDC_MR_EDIT);
        s.Type(X::IDC_MR_EDIT, u"");
        s.Type(X::IDC_PLIMITS_LOWER, u"-0.1");
        ExpectRefused(s, 2012, X::IDC_PLIMITS_LOWER);
        s.Type(X::IDC_PLIMITS_LOWER, u"0.005");
        s.Click(X::IDC_SLIMITS_RADIO);
        EXPECT_FALSE(s.IsEnabled(X::IDC_PLIMITS_LOWER));
        s.Type(X::IDC_SLIMITS_LOWER, u"");
        s.Type(X::IDC_SLIMITS_UPPER, u"");
        ExpectRefused(s, X::kMsgLimitsEmpty, X::IDC_SLIMITS_LOWER);
        s.Type(X::IDC_SLIMITS_LOWER, u"3");
        s.Ok();
        EXPECT_FALSE(s.IsOpen());
    });
    EXPECT_EQ(Commands(xmr).back(), u"XMR    /  WIDTH = 100  CENTER = -10 SLIMITS=3, MEAN ");
}
