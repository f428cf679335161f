// The linear regression tab dialog driven headless, as a user would drive
// it: moves, the enable rules across pages, refused entries, reset, the
// estimation page under other owners, and a stored regression confirmed
// again after a restart.
#include "Msg/LaunchDialog.h"
#include "Msg/RegressionMsg.h"
#include "Source/DlgStat2.h"
#include "platform/HeadlessDriver.h"
#include "platform/UserInput.h"
#include "private/Regression/KDGRegressionTabDlg.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

using namespace kaltest;
using Model = CRegressionDlg;
using Estimation = CRegressionOptionsDlg;
using Predict = CRegressionPredictDlg;

namespace {

enum Page { kModel = 0, kEstimation = 1, kOptions = 2, kPrediction = 3, kResampling = 4 };

class RegressionDialog : public HeadlessDialogTest {
protected:
    RegressionDialog() : HeadlessDialogTest({u"Y", u"Y2", u"X", u"X2", u"W", u"G$"}) {}

    INT_PTR Run(const Script& script) { return Open<CRegressionTabDlg>(data, {2261, 0, 0, 0}, script, true); }
    Lines16 Commands() const { return LinesOf(data); }
    static void Move(CHeadlessSession& s, std::initializer_list<std::u16string> names, UINT button)
    {
        HeadlessDialogTest::Move(s, Model::IDC_SOURCE_LIST, names, button);
    }
    static bool Reachable(CHeadlessSession& s, UINT id) { return CUserInput::IsReachable(s.Find(id)); }

    CRegressionTabData data;
};

} // namespace

TEST_F(RegressionDialog, TheExampleThroughTheButtons)
{
    const INT_PTR result = Run([](CHeadlessSession& s) {
        Move(s, {u"Y"}, Model::IDC_ADD_DEPENDENT);
        Move(s, {u"X", u"X2"}, Model::IDC_ADD_INDEPENDENT);
        s.Ok();
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(Commands(), (Lines16{u"REGRESS", u"MODEL Y = CONSTANT+X+X2", u"ESTIMATE /"}));
}

TEST_F(RegressionDialog, ListsTakeNumericVariablesAndADoubleClickFillsTheDependentFirst)
{
    Run([this](CHeadlessSession& s) {
        s.Select(Model::IDC_SOURCE_LIST, Names({u"G$"}));
        EXPECT_FALSE(s.IsEnabled(Model::IDC_ADD_DEPENDENT));
        EXPECT_FALSE(s.IsEnabled(Model::IDC_ADD_INDEPENDENT));

        s.Select(Model::IDC_SOURCE_LIST, Names({u"Y"}));
        s.DoubleClick(Model::IDC_SOURCE_LIST);
        s.Select(Model::IDC_SOURCE_LIST, Names({u"X", u"X2"}));
        s.DoubleClick(Model::IDC_SOURCE_LIST);
        EXPECT_EQ(s.Items(Model::IDC_DEPENDENT_LIST), Names({u"Y"}));
        EXPECT_EQ(s.Items(Model::IDC_INDEPENDENT_LIST), Names({u"X", u"X2"}));

        s.Select(Model::IDC_SOURCE_LIST, Names({u"Y2"}));
        EXPECT_TRUE(s.Menu(Model::IDC_SOURCE_LIST, Model::ID_MENU_DEPENDENT));
        const CMenu& menu = driver.LastMenu();
        ASSERT_EQ(menu.Items().size(), 2u);
        EXPECT_EQ(menu.Items()[1].caption, CString(u"Independent"));
        s.Ok();
    });
    EXPECT_EQ(Commands()[1], u"MODEL Y Y2 = CONSTANT+X+X2");
}

TEST_F(RegressionDialog, TheConstantFollowsTheDataKindAndTheMixtureModel)
{
    Run([](CHeadlessSession& s) {
        Move(s, {u"Y"}, Model::IDC_ADD_DEPENDENT);
        Move(s, {u"X", u"X2"}, Model::IDC_ADD_INDEPENDENT);
        EXPECT_TRUE(s.IsEnabled(Model::IDC_INCLUDE_CONSTANT));
        EXPECT_FALSE(s.IsEnabled(Model::IDC_CASES));
        s.Page(kEstimation);
        s.Check(Estimation::IDC_MIXTURE, 1);
        s.Page(kModel);
        EXPECT_FALSE(s.IsEnabled(Model::IDC_INCLUDE_CONSTANT));
        EXPECT_EQ(s.IsChecked(Model::IDC_INCLUDE_CONSTANT), 1); // kept for later
        s.Ok();
    });
    EXPECT_EQ(Commands(), (Lines16{u"REGRESS", u"MODEL Y = X+X2", u"ESTIMATE / MIX"}));

    // Stepwise estimation has no mixture model: the constant is back. The
    // dialog reopens with the mixture checked, which it applies at once.
    Run([](CHeadlessSession& s) {
        EXPECT_FALSE(s.IsEnabled(Model::IDC_INCLUDE_CONSTANT));
        s.Page(kEstimation);
        s.Click(Estimation::IDC_STEPWISE);
        EXPECT_FALSE(s.IsEnabled(Estimation::IDC_MIXTURE));
        s.Page(kModel);
        EXPECT_TRUE(s.IsEnabled(Model::IDC_INCLUDE_CONSTANT));
        s.Ok();
    });
    EXPECT_EQ(Commands()[1], u"MODEL Y = CONSTANT+X+X2");
    EXPECT_EQ(data.GetRegressionOptionsData()->GetMixtureModelEnabled(), 0);

    // Matrix data: no constant and no mixture, but the number of cases.
    host.dataTypeCode = KAL_DATA_MATRIX;
    Run([](CHeadlessSession& s) {
        EXPECT_FALSE(s.IsEnabled(Model::IDC_INCLUDE_CONSTANT));
        EXPECT_TRUE(s.IsEnabled(Model::IDC_CASES) && s.IsEnabled(Model::IDC_CASES_LABEL));
        s.Type(Model::IDC_CASES, u"120");
        s.Page(kEstimation);
        s.Click(Estimation::IDC_COMPLETE);
        EXPECT_FALSE(s.IsEnabled(Estimation::IDC_MIXTURE));
        s.Ok();
    });
    EXPECT_EQ(Commands(), (Lines16{u"REGRESS", u"MODEL Y = X+X2/N=120", u"ESTIMATE /"}));
}

TEST_F(RegressionDialog, StepwiseControlsFollowTheMethodAndTheCriterion)
{
    Run([](CHeadlessSession& s) {
        s.Page(kEstimation);
        const std::vector<UINT> stepwise{Estimation::IDC_BACKWARD,    Estimation::IDC_FORWARD,
                                         Estimation::IDC_AUTOMATIC,   Estimation::IDC_INTERACTIVE,
                                         Estimation::IDC_PROBABILITY, Estimation::IDC_FSTATISTIC,
                                         Estimation::IDC_FORCE,       Estimation::IDC_FORCE_LABEL,
                                         Estimation::IDC_MAXSTEP,     Estimation::IDC_MAXSTEP_LABEL};
        const std::vector<UINT> probability{Estimation::IDC_PROBABILITY_ENTER, Estimation::IDC_PROBABILITY_REMOVE,
                                            Estimation::IDC_PROBABILITY_ENTER_LABEL};
        const std::vector<UINT> fstatistic{Estimation::IDC_FENTER, Estimation::IDC_FREMOVE,
                                           Estimation::IDC_FREMOVE_LABEL};
        for (const auto* ids : {&stepwise, &probability, &fstatistic})
            for (const UINT id : *ids)
                EXPECT_FALSE(s.IsEnabled(id)) << id;
        EXPECT_TRUE(s.IsEnabled(Estimation::IDC_TOLERANCE) && s.IsEnabled(Estimation::IDC_CONFIDENCE));
        EXPECT_TRUE(s.IsEnabled(Estimation::IDC_MIXTURE));

        s.Click(Estimation::IDC_STEPWISE);
        for (const auto* ids : {&stepwise, &probability})
            for (const UINT id : *ids)
                EXPECT_TRUE(s.IsEnabled(id)) << id;
        for (const UINT id : fstatistic)
            EXPECT_FALSE(s.IsEnabled(id)) << id;
        s.Click(Estimation::IDC_FSTATISTIC);
        for (const UINT id : probability)
            EXPECT_FALSE(s.IsEnabled(id)) << id;
        for (const UINT id : fstatistic)
            EXPECT_TRUE(s.IsEnabled(id)) << id;
        s.Click(Estimation::IDC_FORWARD);
        s.Click(Estimation::IDC_INTERACTIVE);
        s.Type(Estimation::IDC_FENTER, u"6");
        s.Ok();
    });
    EXPECT_EQ(Commands().back(), u"START / FORWARD FENTER = 6");
}

TEST_F(RegressionDialog, PredictionOptionsAndResamplingBelongToCompleteEstimation)
{
    Run([](CHeadlessSession& s) {
        s.Page(kPrediction);
        EXPECT_FALSE(s.IsEnabled(Predict::IDC_USE_EDIT));
        EXPECT_FALSE(s.IsEnabled(Predict::IDC_SAVE_CHECK));
        s.Check(Predict::IDC_PREDICT, 1);
        EXPECT_TRUE(s.IsEnabled(Predict::IDC_USE_EDIT) && s.IsEnabled(Predict::IDC_CONFIDENCE));
        EXPECT_FALSE(s.IsEnabled(Predict::IDC_SAVE_COMBO));
        s.Check(Predict::IDC_SAVE_CHECK, 1);
        EXPECT_TRUE(s.IsEnabled(Predict::IDC_SAVE_COMBO) && s.IsEnabled(Predict::IDC_SAVE_EDIT));
        s.Type(Predict::IDC_USE_EDIT, u"new.kvd");
        EXPECT_EQ(s.Find(Predict::IDC_USE_EDIT).GetToolTipText(), CString(u"new.kvd"));
        s.Type(Predict::IDC_SAVE_EDIT, u"p.kvd");

        s.Page(kEstimation);
        s.Click(Estimation::IDC_STEPWISE);
        s.Page(kPrediction);
        EXPECT_FALSE(Reachable(s, Predict::IDC_PREDICT));
        for (const int page : {kOptions, kResampling})
            EXPECT_THROW(s.Page(page), HeadlessError) << page;
        auto& tabs = dynamic_cast<CTabCtrl&>(s.Find(CRegressionTabDlg::IDC_TAB));
        EXPECT_EQ(tabs.GetItemReason(kOptions),
                  CString(u"Applies to complete estimation only: choose it on the Estimation page."));
        s.Ok();
    });
    EXPECT_EQ(Commands().size(), 5u); // REGRESS, MODEL, START, STEP, STOP
    EXPECT_EQ(data.GetRegressionPredictData()->GetWindowState(), 0);
    EXPECT_EQ(data.GetAnovaOptionsData()->GetWindowState(), 0);
    EXPECT_EQ(data.GetBootStrapData()->GetWindowState(), 0);

    // Back to complete estimation: every page is in use again.
    Run([](CHeadlessSession& s) {
        s.Page(kEstimation);
        s.Click(Estimation::IDC_COMPLETE);
        s.Page(kOptions);
        s.Check(CAnovaOptionsDlg::IDC_SW, 1);
        s.Page(kResampling);
        s.Click(CBootStrapDlg::IDC_METHOD_BOOTSTRAP);
        s.Type(CBootStrapDlg::IDC_SAMPLES, u"200");
        s.Ok();
    });
    EXPECT_EQ(Commands(), (Lines16{u"REGRESS", u"MODEL  = CONSTANT", u"ESTIMATE / NTEST = SW SAMPLE = BOOT(200)",
                                   u"SAVE 'p.kvd' / PREDICTED", u"PREDICT 'new.kvd' / CONFI = 0.95"}));
}

TEST_F(RegressionDialog, EveryNumericEditRefusesBadEntriesAndKeepsTheFocus)
{
    struct Edit {
        int page;
        UINT id;
        std::u16string outOfRange;  // besides a negative number
        std::vector<UINT> messages; // for text, a negative, outOfRange, an empty edit
    };
    // 2010: not a number, 2011: not a whole number, 2012: out of range, a
    // whole number beyond the edit's type included.
    const Edit edits[] = {
        {kModel, Model::IDC_CASES, u"2147483648", {2011, 2012, 2011, 2011}},
        {kEstimation, Estimation::IDC_TOLERANCE, u"1.5", {2010, 2012, 2012, 2010}},
        {kEstimation, Estimation::IDC_CONFIDENCE, u"1.01", {2010, 2012, 2012, 2010}},
        {kEstimation, Estimation::IDC_PROBABILITY_ENTER, u"2", {2010, 2012, 2012, 2010}},
        {kEstimation, Estimation::IDC_PROBABILITY_REMOVE, u"1e3", {2010, 2012, 2012, 2010}},
        {kEstimation, Estimation::IDC_FENTER, u"100001", {2010, 2012, 2012, 2010}},
        {kEstimation, Estimation::IDC_FREMOVE, u"1e6", {2010, 2012, 2012, 2010}},
        {kEstimation, Estimation::IDC_MAXSTEP, u"0", {2011, 2012, 2012, 2011}},
        {kEstimation, Estimation::IDC_FORCE, u"2147483648", {2011, 2012, 2011, 2011}},
        {kPrediction, Predict::IDC_CONFIDENCE, u"100", {2010, 2012, 2012, 2010}},
    };
    host.dataTypeCode = KAL_DATA_MATRIX; // the number of cases is in use
    for (const auto& e : edits) {
        SCOPED_TRACE(e.id);
        host.messages.clear();
        data = CRegressionTabData();
        const INT_PTR result = Run([&e](CHeadlessSession& s) {
            // Every edit of the table in use.
            s.Page(kEstimation);
            const bool stepwise = e.page == kEstimation;
            s.Click(stepwise ? Estimation::IDC_STEPWISE : Estimation::IDC_COMPLETE);
            if (e.id == Estimation::IDC_FENTER || e.id == Estimation::IDC_FREMOVE)
                s.Click(Estimation::IDC_FSTATISTIC);
            if (!stepwise) {
                s.Page(kPrediction);
                s.Check(Predict::IDC_PREDICT, 1);
                s.Type(Predict::IDC_USE_EDIT, u"new cases.kvd"); // a prediction needs its file
            }
            ExpectEditRefusesBadEntries(s, e.page, e.id, e.outOfRange, e.page == kModel ? kEstimation : kModel);
        });
        EXPECT_EQ(result, IDOK);
        EXPECT_EQ(host.messages, e.messages);
    }
}

TEST_F(RegressionDialog, ResetPutsEachPageBackAndTheTabFollows)
{
    Run([](CHeadlessSession& s) {
        Move(s, {u"Y"}, Model::IDC_ADD_DEPENDENT);
        s.Check(Model::IDC_INCLUDE_CONSTANT, 0);
        s.Check(Model::IDC_SAVE_CHECK, 1);
        s.Choose(Model::IDC_SAVE_COMBO, 1);
        s.Reset();
        EXPECT_TRUE(s.Items(Model::IDC_DEPENDENT_LIST).empty());
        EXPECT_EQ(s.Items(Model::IDC_SOURCE_LIST).size(), 6u);
        EXPECT_EQ(s.IsChecked(Model::IDC_INCLUDE_CONSTANT), 1);
        EXPECT_EQ(s.ComboSelection(Model::IDC_SAVE_COMBO), 6);
        EXPECT_FALSE(s.IsEnabled(Model::IDC_SAVE_EDIT));

        s.Page(kEstimation);
        s.Click(Estimation::IDC_STEPWISE);
        s.Type(Estimation::IDC_TOLERANCE, u"0.01");
        EXPECT_THROW(s.Page(kOptions), HeadlessError);
        s.Reset();
        EXPECT_EQ(s.IsChecked(Estimation::IDC_COMPLETE), 1);
        EXPECT_EQ(s.Text(Estimation::IDC_TOLERANCE), CString(u"1e-12"));
        EXPECT_FALSE(s.IsEnabled(Estimation::IDC_MAXSTEP));
        EXPECT_TRUE(s.Page(kOptions)); // available again

        s.Page(kPrediction);
        s.Check(Predict::IDC_PREDICT, 1);
        s.Type(Predict::IDC_CONFIDENCE, u"0.8");
        s.Reset();
        EXPECT_EQ(s.IsChecked(Predict::IDC_PREDICT), 0);
        EXPECT_EQ(s.Text(Predict::IDC_CONFIDENCE), CString(u"0.95"));
        s.Ok();
    });
    EXPECT_EQ(Commands(), (Lines16{u"REGRESS", u"MODEL  = CONSTANT", u"ESTIMATE /"}));
}

TEST_F(RegressionDialog, PagesTakeTheirCaptionsAndOwners)
{
    Run([this](CHeadlessSession& s) {
        EXPECT_EQ(s.Dialog().GetWindowText(), CString(u"Linear Regression"));
        auto& tabs = dynamic_cast<CTabCtrl&>(s.Find(CRegressionTabDlg::IDC_TAB));
        ASSERT_EQ(tabs.GetItemCount(), 5);
        const char16_t* captions[] = {u"Model", u"Estimation", u"Options", u"Prediction", u"Resampling"};
        for (int i = 0; i < 5; ++i)
            EXPECT_EQ(tabs.GetItemText(i), CString(captions[i]));
        EXPECT_EQ(data.GetAnovaOptionsData()->GetOwnerID(), 2260u);
        EXPECT_EQ(data.GetRegressionOptionsData()->GetOwnerID(), 0u);
        s.Page(kOptions);
        EXPECT_FALSE(s.IsVisible(CAnovaOptionsDlg::IDC_LEVENE));
        EXPECT_FALSE(s.IsVisible(CAnovaOptionsDlg::IDC_SS_TYPE3));
        s.Check(CAnovaOptionsDlg::IDC_KS, 1);
        s.Ok();
    });
    EXPECT_EQ(Commands().back(), u"ESTIMATE / NTEST = KS");
}

// The estimation page in a dialog of its own, as another analysis would
// hold it: the owner id alone decides.
TEST_F(RegressionDialog, TheEstimationPageServesOtherOwnersWithoutTheRegressionTab)
{
    struct Case {
        UINT owner;
        bool confidence; // the confidence edit in use
        bool mixture;    // the mixture check in use with complete estimation
        const char16_t* tolerance;
        Lines16 stepwise; // interactive stepwise with maximum step 9
    };
    const Case cases[] = {
        {0, true, true, u"1e-12", {u"START / BACKWARD MAXSTEP = 9"}},
        {2213, true, true, u"1e-12", {u"START / BACKWARD MAXSTEP = 9"}},
        {2217, true, true, u"1e-12", {u"START / BACKWARD MAXSTEP = 9"}},
        {2259, true, true, u"1e-12", {u"START / BACKWARD MAXSTEP = 9"}},
        {2211, false, false, u"0.001", {u"START / BACKWARD", u"STEP / NUMBER = 9"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.owner);
        CRegressionOptionsData options;
        CRegressionOptionsDlg page;
        page.SetData(&options);
        page.SetDlgCaptionID(c.owner);
        options.ReassignDefaultValue();
        EXPECT_EQ(options.GetOwnerID(), c.owner);
        driver.SetScript([&c](CHeadlessSession& s) {
            EXPECT_EQ(s.IsEnabled(Estimation::IDC_CONFIDENCE), c.confidence);
            EXPECT_EQ(s.IsEnabled(Estimation::IDC_MIXTURE), c.mixture);
            EXPECT_EQ(s.Text(Estimation::IDC_TOLERANCE), CString(c.tolerance));
            s.Type(Estimation::IDC_TOLERANCE, u"0.5");
            s.Reset(); // the owner's own default comes back
            EXPECT_EQ(s.Text(Estimation::IDC_TOLERANCE), CString(c.tolerance));
            s.Click(Estimation::IDC_STEPWISE);
            s.Click(Estimation::IDC_INTERACTIVE);
            s.Type(Estimation::IDC_MAXSTEP, u"9");
            s.Ok();
        });
        AssertionCapture capture;
        EXPECT_EQ(page.DoModal(), IDOK);
        CLIST<CCmdInfo> list;
        options.GetCommandInfoList(list);
        EXPECT_EQ(Lines(list), c.stepwise);
        EXPECT_TRUE(capture.reports.empty());
    }

    // The model page needs the estimation page beside it.
    AssertionCapture capture;
    CRegressionData model;
    CRegressionDlg page;
    page.SetData(&model);
    driver.SetScript([](CHeadlessSession& s) { s.Ok(); });
    EXPECT_EQ(page.DoModal(), IDOK);
    ASSERT_FALSE(capture.reports.empty());
    EXPECT_EQ(capture.reports[0].first, "Source/KDGRegressionDlg");
}

TEST_F(RegressionDialog, AStoredRegressionWritesTheSameLinesAfterARestart)
{
    host.commandModule = u"QC";
    CRegressionMsg handler(&host);
    driver.SetScript([](CHeadlessSession& s) {
        Move(s, {u"Y"}, Model::IDC_ADD_DEPENDENT);
        Move(s, {u"X", u"W"}, Model::IDC_ADD_INDEPENDENT);
        s.Check(Model::IDC_SAVE_CHECK, 1);
        s.Choose(Model::IDC_SAVE_COMBO, 3);
        s.Type(Model::IDC_SAVE_EDIT, u"fit.kvd");
        s.Page(kEstimation);
        s.Check(Estimation::IDC_MIXTURE, 1);
        s.Type(Estimation::IDC_CONFIDENCE, u"0.9");
        s.Page(kOptions);
        s.Check(CAnovaOptionsDlg::IDC_AD, 1);
        s.Page(kPrediction);
        s.Check(Predict::IDC_PREDICT, 1);
        s.Type(Predict::IDC_USE_EDIT, u"next year.kvd");
        s.Ok();
    });
    handler.OnKVCommand(2051);
    ASSERT_EQ(host.runs.size(), 1u);
    const Lines16 printed = host.runs[0].second;
    EXPECT_EQ(printed, (Lines16{u"EXIT", u"REGRESS", u"MODEL Y = X+W", u"SAVE 'fit.kvd' / MODEL",
                                u"ESTIMATE / MIX CONFI = 0.9 NTEST = AD", u"PREDICT 'next year.kvd' / CONFI = 0.95"}));

    // A restart: the record is all that is left of the session.
    const Bytes record = Store([&](CArchive& ar) { host.store.at(2051)->Serialize(ar); }, CArchive::namedLists);
    CRegressionTabData restored;
    Load(record, CArchive::namedLists, [&](CArchive& ar) { restored.Serialize(ar); });
    const MenuCommandRow* row = handler.FindRow(2051);
    ASSERT_NE(row, nullptr);
    ASSERT_TRUE(row->IsAvailable());
    CLIST<CCmdInfo> lines;
    ASSERT_TRUE(row->confirm(&host, 2051, *row, &restored, lines));
    EXPECT_EQ(Lines(lines), printed);
}
