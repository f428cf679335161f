// The linear regression tab dialog driven headless, for what its sessions in
// tests/scripts cannot show: refused entries and the focus, the estimation
// page under other owners, and a stored regression confirmed again after a
// restart.
#include "Msg/RegressionMsg.h"
#include "Source/DlgStat2.h"
#include "platform/HeadlessDriver.h"
#include "platform/UserInput.h"
#include "private/Regression/KDGRegressionTabDlg.h"
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

    CRegressionTabData data;
};

} // namespace

TEST_F(RegressionDialog, EveryNumericEditRefusesBadEntriesAndKeepsTheFocus)
{
    host.dataTypeCode = KAL_DATA_MATRIX; // the number of cases is in use
    const auto run = [this](int page, UINT edit, const Script& refuse) {
        data = CRegressionTabData();
        return Run([&](CHeadlessSession& s) {
            // Stepwise for the estimation page's edits, by the criterion
            // that uses the edit; complete with a prediction for the others.
            const bool estimation = page == kEstimation;
            s.Page(kEstimation);
            s.Click(estimation ? Estimation::IDC_STEPWISE : Estimation::IDC_COMPLETE);
            if (edit == Estimation::IDC_FENTER || edit == Estimation::IDC_FREMOVE)
                s.Click(Estimation::IDC_FSTATISTIC);
            if (!estimation) {
                s.Page(kPrediction);
                s.Check(Predict::IDC_PREDICT, 1);
                s.Type(Predict::IDC_USE_EDIT, u"new cases.kvd"); // a prediction needs its file
            }
            refuse(s);
        });
    };
    ExpectRangedEditsRefuse<CRegressionData>(host, kModel, kEstimation, run);
    ExpectRangedEditsRefuse<CRegressionOptionsData>(host, kEstimation, kModel, run);
    ExpectRangedEditsRefuse<CRegressionPredictData>(host, kPrediction, kModel, run);
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
    EXPECT_EQ(LinesAfterRestart<CRegressionTabData>(host, handler, 2051), printed);
}
