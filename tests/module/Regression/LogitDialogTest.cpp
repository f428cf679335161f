// The logistic regression tab dialog driven headless, for what its sessions
// in tests/scripts cannot show: refused entries and where the focus goes,
// and a stored session confirmed again after a restart.
#include "Msg/RegressionMsg.h"
#include "Source/DlgStat2.h"
#include "platform/HeadlessDriver.h"
#include "private/Regression/KDGLogitTabDlg.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

using namespace kaltest;
using Model = CLogitDlg;
using Categories = CLogitCategoriesDlg;
using Sets = CLogitSetsDlg;
using Opts = CLogitOptsDlg;
using Deciles = CLogitDecilesDlg;

namespace {

enum Page { kModel = 0, kCategories = 1, kSets = 2, kEstimation = 3, kDeciles = 4 };

class LogitDialog : public HeadlessDialogTest {
protected:
    LogitDialog() : HeadlessDialogTest({u"Y", u"R$", u"X", u"X2", u"A", u"G$", u"S1", u"S2", u"S3"})
    {
        host.sheet.variables[4].categorical = true; // A
    }

    INT_PTR Run(const Script& script) { return Open<CLogitTabDlg>(data, {2146, 2216, 2145, 0}, script, true); }
    Lines16 Commands() const { return LinesOf(data); }
    static void Move(CHeadlessSession& s, std::initializer_list<std::u16string> names, UINT button,
                     UINT source = Model::IDC_SOURCE_LIST)
    {
        HeadlessDialogTest::Move(s, source, names, button);
    }
    static void UseSets(CHeadlessSession& s)
    {
        s.Page(kSets);
        s.Check(Sets::IDC_USE_SETS, 1);
        Move(s, {u"S1", u"S2"}, Sets::IDC_ADD_SET, Sets::IDC_SOURCE_LIST);
    }

    CLogitTabData data;
};

} // namespace

TEST_F(LogitDialog, EveryNumericEditRefusesBadEntriesAndKeepsTheFocus)
{
    const auto run = [this](int page, UINT, const Script& refuse) {
        data = CLogitTabData();
        return Run([&](CHeadlessSession& s) {
            // The confidence is in use with choice sets, the other edits
            // with stepwise estimation and the deciles table.
            if (page == kModel) {
                UseSets(s);
            } else {
                s.Page(kEstimation);
                s.Click(Opts::IDC_STEPWISE);
                s.Page(kDeciles);
                s.Check(Deciles::IDC_DECILES, 1);
            }
            refuse(s);
        });
    };
    ExpectRangedEditsRefuse<CLogitData>(host, kModel, kCategories, run);
    ExpectRangedEditsRefuse<CLogitOptsData>(host, kEstimation, kCategories, run);
    ExpectRangedEditsRefuse<CLogitDecilesData>(host, kDeciles, kCategories, run);
}

TEST_F(LogitDialog, ThePagesOwnRulesRefuseWhatCannotBeRun)
{
    const INT_PTR result = Run([this](CHeadlessSession& s) {
        // A choice needs two set variables.
        s.Page(kSets);
        s.Check(Sets::IDC_USE_SETS, 1);
        Move(s, {u"S1"}, Sets::IDC_ADD_SET, Sets::IDC_SOURCE_LIST);
        s.Page(kModel);
        s.Ok();
        ASSERT_TRUE(s.IsOpen());
        EXPECT_EQ(s.Dialog().GetFocusCtrl(), &s.Find(Sets::IDC_SET_LIST));
        Move(s, {u"S2"}, Sets::IDC_ADD_SET, Sets::IDC_SOURCE_LIST);
        s.Check(Sets::IDC_USE_SETS, 0); // the rules below are stepwise ones

        // A term may not leave more easily than it enters.
        s.Page(kEstimation);
        s.Click(Opts::IDC_STEPWISE);
        s.Type(Opts::IDC_ENTER, u"0.3");
        s.Type(Opts::IDC_REMOVE, u"0.2");
        s.Ok();
        ASSERT_TRUE(s.IsOpen());
        EXPECT_EQ(s.Dialog().GetFocusCtrl(), &s.Find(Opts::IDC_REMOVE));
        s.Type(Opts::IDC_REMOVE, u"0.3");

        // Saving needs a file.
        s.Page(kModel);
        s.Check(Model::IDC_SAVE_CHECK, 1);
        s.Ok();
        ASSERT_TRUE(s.IsOpen());
        s.Type(Model::IDC_SAVE_EDIT, u"coefficients.kvd");
        s.Ok();
        EXPECT_FALSE(s.IsOpen());
        EXPECT_EQ(host.messages, (std::vector<UINT>{2770, 2771, 2015}));
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(Commands(), (Lines16{u"LOGIT", u"MODEL  = CONSTANT", u"SAVE 'coefficients.kvd' / COEFFICIENTS",
                                   u"START / BACKWARD ENTER = 0.3 REMOVE = 0.3", u"STEP / AUTO", u"STOP "}));
}

TEST_F(LogitDialog, AStoredLogitWritesTheSameLinesAfterARestart)
{
    CRegressionMsg handler(&host);
    driver.SetScript([](CHeadlessSession& s) {
        Move(s, {u"Y"}, Model::IDC_ADD_DEPENDENT);
        Move(s, {u"X", u"G$"}, Model::IDC_ADD_INDEPENDENT);
        Move(s, {u"X2"}, Model::IDC_ADD_CONDITIONAL);
        s.Check(Model::IDC_SAVE_CHECK, 1);
        s.Choose(Model::IDC_SAVE_COMBO, 2);
        s.Type(Model::IDC_SAVE_EDIT, u"fit.kvd");
        s.Page(kCategories);
        s.Click(Categories::IDC_DUMMY);
        UseSets(s);
        s.Page(kModel);
        s.Type(Model::IDC_CONFIDENCE, u"0.9");
        s.Page(kEstimation);
        s.Type(Opts::IDC_ITERATIONS, u"80");
        s.Ok();
    });
    handler.OnKVCommand(2004);
    ASSERT_EQ(host.runs.size(), 1u);
    const Lines16 printed = host.runs[0].second;
    EXPECT_EQ(printed,
              (Lines16{u"LOGIT", u"CATEGORY G$ / DUMMY REF = LAST", u"SET S1 S2", u"MODEL Y = X2; CONSTANT+X+G$",
                       u"SAVE 'fit.kvd' / RESIDUALS", u"ESTIMATE / CONFI = 0.9 ITER = 80"}));

    // Reopened, the page shows the stored save choice.
    driver.SetScript([](CHeadlessSession& s) {
        EXPECT_EQ(s.ComboSelection(Model::IDC_SAVE_COMBO), 2);
        s.Ok();
    });
    handler.OnKVCommand(2004);
    ASSERT_EQ(host.runs.size(), 2u);
    EXPECT_EQ(host.runs[1].second, printed);

    // A restart: the record is all that is left of the session.
    EXPECT_EQ(LinesAfterRestart<CLogitTabData>(host, handler, 2004), printed);
}
