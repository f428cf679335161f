// The control-chart tab dialogs driven headless, for what their sessions in
// tests/scripts cannot show: where a refused OK leaves the focus, and
// settings that no session of the dialog makes.
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

class ChartDialog : public HeadlessDialogTest {
protected:
    ChartDialog() : HeadlessDialogTest({u"Y", u"T1", u"T2", u"Lot", u"Shift$", u"W"}) {}

    INT_PTR RunShewhart(const Script& script) { return Open<CShewhartTabDlg>(shewhart, {2279, 0, 0, 0}, script); }
    INT_PTR RunXMr(const Script& script) { return Open<CXMrTabDlg>(xmr, {2338, 0, 0, 0}, script); }
    static Lines16 Commands(const CGUIBaseObj& settings) { return LinesOf(settings); }
    // OK refused: the dialog stays open with the focus on `control`.
    CShewhartTabData shewhart;
    CXMrTabData xmr;
};

} // namespace

TEST_F(ChartDialog, ARefusedOkLeavesTheFocusOnTheEntryItRefuses)
{
    RunShewhart([this](CHeadlessSession& s) {
        s.Check(S::IDC_SIGMA_CHECK, 1);
        ExpectRefused(s, S::kMsgSigmaEmpty, S::IDC_SIGMA_EDIT);
        s.Check(S::IDC_SIGMA_CHECK, 0);
        s.Click(S::IDC_LIMITS_RADIO);
        s.Type(S::IDC_LIMITS_LOWER, u"");
        s.Type(S::IDC_LIMITS_UPPER, u"");
        ExpectRefused(s, S::kMsgLimitsEmpty, S::IDC_LIMITS_LOWER);
        s.Type(S::IDC_LIMITS_LOWER, u"5");
        s.Type(S::IDC_LIMITS_UPPER, u"5");
        ExpectRefused(s, 2012, S::IDC_LIMITS_UPPER);
        s.Cancel();
    });
    RunXMr([this](CHeadlessSession& s) {
        s.Click(X::IDC_SLIMITS_RADIO);
        s.Type(X::IDC_SLIMITS_LOWER, u"");
        s.Type(X::IDC_SLIMITS_UPPER, u"");
        ExpectRefused(s, X::kMsgLimitsEmpty, X::IDC_SLIMITS_LOWER);
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
    EXPECT_EQ(capture.reports[0].first, "Source/KDGShewhartDlg");
}

// Stored settings that disagree with the page's rules show as the rules say.
TEST_F(ChartDialog, SettingsThatBreakThePagesRulesOpenAsTheRulesSay)
{
    shewhart.GetQcTestsData()->SetAll(1, 1, 1, 1, 1, 1, 1, 0, 1);
    RunShewhart([](CHeadlessSession& s) {
        s.Page(1);
        EXPECT_EQ(s.IsChecked(T::IDC_PERFORM_ALL), 0);
        s.Reset();
        EXPECT_EQ(s.IsChecked(T::IDC_PERFORM_ALL), 1);
        s.Ok();
    });
    EXPECT_EQ(Commands(shewhart).back(), u"SHEWHART * / TYPE=XBAR PLIMITS=0,0");

    // Both spreads given: the moving range is kept.
    CGUIArray<CGUIDataVariable> source, chart;
    CGUIData<int> width;
    CGUIData<double> center, mr, sigma, pl, pu, sl, su;
    int centerLine = 0, limits = 0;
    xmr.GetXMrData()->GetAll(source, chart, width, center, mr, sigma, pl, pu, sl, su, centerLine, limits);
    mr = CGUIData<double>(0, 1.5, 0.0, 0, 1);
    sigma = CGUIData<double>(0, 0.2, 0.0, 0, 1);
    xmr.GetXMrData()->SetAll(source, chart, width, center, mr, sigma, pl, pu, sl, su, centerLine, limits);
    RunXMr([](CHeadlessSession& s) {
        EXPECT_EQ(s.Text(X::IDC_SIGMA_EDIT), CString());
        EXPECT_FALSE(s.IsEnabled(X::IDC_SIGMA_EDIT));
        s.Ok();
    });
    EXPECT_EQ(Commands(xmr).back(), u"XMR    /     MR = 1.5 PLIMITS=0,0 MEAN ");
}
