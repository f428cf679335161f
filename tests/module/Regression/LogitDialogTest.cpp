// The logistic regression tab dialog driven headless, as a user would drive
// it: the model page's lists and enable rules, the categories page following
// the model, choice sets switching the other pages, refused entries, reset,
// and a stored session confirmed again after a restart.
#include "Msg/LaunchDialog.h"
#include "Msg/RegressionMsg.h"
#include "Source/DlgStat2.h"
#include "platform/HeadlessDriver.h"
#include "private/Regression/KDGLogitTabDlg.h"
#include "tests/support/ArchiveBytes.h"
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

TEST_F(LogitDialog, TheExampleThroughTheButtonsWithTheRowsCaptions)
{
    const INT_PTR result = Run([this](CHeadlessSession& s) {
        EXPECT_EQ(s.Dialog().GetWindowText(), CString(u"Logistic Regression"));
        auto& tabs = dynamic_cast<CTabCtrl&>(s.Find(CLogitTabDlg::IDC_TAB));
        ASSERT_EQ(tabs.GetItemCount(), 5);
        const char16_t* captions[] = {u"Model", u"Categories", u"Choice Sets", u"Estimation", u"Deciles of Risk"};
        for (int i = 0; i < 5; ++i)
            EXPECT_EQ(tabs.GetItemText(i), CString(captions[i]));
        EXPECT_EQ(data.GetLogitData()->GetOwnerID(), 2216u);
        EXPECT_EQ(data.GetLogitCategoriesData()->GetOwnerID(), 2145u);
        Move(s, {u"Y"}, Model::IDC_ADD_DEPENDENT);
        Move(s, {u"X", u"X2"}, Model::IDC_ADD_INDEPENDENT);
        s.Ok();
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(Commands(), (Lines16{u"LOGIT", u"MODEL Y = CONSTANT+X+X2", u"ESTIMATE "}));
}

TEST_F(LogitDialog, ListsTakeTheirTypesAndADoubleClickFillsTheDependentFirst)
{
    Run([this](CHeadlessSession& s) {
        // A response may be text; conditional terms are numbers.
        s.Select(Model::IDC_SOURCE_LIST, Names({u"R$"}));
        EXPECT_TRUE(s.IsEnabled(Model::IDC_ADD_DEPENDENT));
        EXPECT_TRUE(s.IsEnabled(Model::IDC_ADD_INDEPENDENT));
        EXPECT_FALSE(s.IsEnabled(Model::IDC_ADD_CONDITIONAL));
        s.DoubleClick(Model::IDC_SOURCE_LIST);
        s.Select(Model::IDC_SOURCE_LIST, Names({u"X"}));
        s.DoubleClick(Model::IDC_SOURCE_LIST);
        EXPECT_EQ(s.Items(Model::IDC_DEPENDENT_LIST), Names({u"R$"}));
        EXPECT_EQ(s.Items(Model::IDC_INDEPENDENT_LIST), Names({u"X"}));

        s.Select(Model::IDC_SOURCE_LIST, Names({u"X2"}));
        EXPECT_TRUE(s.Menu(Model::IDC_SOURCE_LIST, Model::ID_MENU_CONDITIONAL));
        const CMenu& menu = driver.LastMenu();
        ASSERT_EQ(menu.Items().size(), 3u);
        EXPECT_EQ(menu.Items()[2].caption, CString(u"Conditional"));
        s.Ok();
    });
    EXPECT_EQ(Commands()[1], u"MODEL R$ = X2; CONSTANT+X");
}

TEST_F(LogitDialog, MatrixDataHaveNoConstantAndNothingToSave)
{
    Run([](CHeadlessSession& s) {
        Move(s, {u"Y"}, Model::IDC_ADD_DEPENDENT);
        Move(s, {u"X"}, Model::IDC_ADD_INDEPENDENT);
        EXPECT_FALSE(s.IsEnabled(Model::IDC_SAVE_COMBO));
        s.Check(Model::IDC_SAVE_CHECK, 1);
        EXPECT_TRUE(s.IsEnabled(Model::IDC_SAVE_COMBO) && s.IsEnabled(Model::IDC_SAVE_EDIT));
        s.Type(Model::IDC_SAVE_EDIT, u"fit.kvd");
        s.Ok();
    });
    EXPECT_EQ(Commands(), (Lines16{u"LOGIT", u"MODEL Y = CONSTANT+X", u"SAVE 'fit.kvd' / COEFFICIENTS", u"ESTIMATE "}));

    host.dataTypeCode = KAL_DATA_MATRIX;
    Run([](CHeadlessSession& s) {
        for (const UINT id : {Model::IDC_CONSTANT, Model::IDC_SAVE_CHECK, Model::IDC_SAVE_COMBO, Model::IDC_SAVE_EDIT})
            EXPECT_FALSE(s.IsEnabled(id)) << id;
        EXPECT_EQ(s.IsChecked(Model::IDC_CONSTANT), 1); // kept for ordinary data
        s.Ok();
    });
    EXPECT_EQ(Commands(), (Lines16{u"LOGIT", u"MODEL Y = X", u"ESTIMATE "}));
}

TEST_F(LogitDialog, TheCategoriesPageFollowsTheModelsIndependentVariables)
{
    Run([](CHeadlessSession& s) {
        Move(s, {u"X", u"A", u"G$"}, Model::IDC_ADD_INDEPENDENT);
        s.Page(kCategories);
        EXPECT_EQ(s.Items(Categories::IDC_SOURCE_LIST), Names({u"X", u"A", u"G$"}));
        // A is marked categorical by the sheet, G$ holds text.
        EXPECT_EQ(s.Items(Categories::IDC_CATEGORY_LIST), Names({u"A", u"G$"}));
        s.Select(Categories::IDC_CATEGORY_LIST, Names({u"G$"}));
        EXPECT_FALSE(s.IsEnabled(Categories::IDC_REMOVE_CATEGORY));
        s.Select(Categories::IDC_CATEGORY_LIST, Names({u"A"}));
        s.Click(Categories::IDC_REMOVE_CATEGORY);
        Move(s, {u"X"}, Categories::IDC_ADD_CATEGORY, Categories::IDC_SOURCE_LIST);
        EXPECT_EQ(s.Items(Categories::IDC_CATEGORY_LIST), Names({u"G$", u"X"}));

        // X leaves the model and the categories; A, left numeric, stays so.
        s.Page(kModel);
        Move(s, {u"X"}, Model::IDC_REMOVE_INDEPENDENT, Model::IDC_INDEPENDENT_LIST);
        Move(s, {u"X2"}, Model::IDC_ADD_INDEPENDENT);
        s.Page(kCategories);
        EXPECT_EQ(s.Items(Categories::IDC_SOURCE_LIST), Names({u"A", u"G$", u"X2"}));
        EXPECT_EQ(s.Items(Categories::IDC_CATEGORY_LIST), Names({u"G$"}));

        EXPECT_FALSE(s.IsEnabled(Categories::IDC_REF_FIRST));
        s.Click(Categories::IDC_DUMMY);
        EXPECT_TRUE(s.IsEnabled(Categories::IDC_REF_FIRST) && s.IsEnabled(Categories::IDC_REFERENCE_LABEL));
        s.Click(Categories::IDC_REF_FIRST);
        Move(s, {u"A"}, Categories::IDC_ADD_CATEGORY, Categories::IDC_SOURCE_LIST);
        s.Check(Categories::IDC_MISSING, 1);
        s.Ok();
    });
    EXPECT_EQ(Commands(), (Lines16{u"LOGIT", u"CATEGORY G$ A / DUMMY REF = FIRST MISS", u"MODEL  = CONSTANT+A+G$+X2",
                                   u"ESTIMATE "}));

    // Reset: only the string variable stays categorical.
    Run([](CHeadlessSession& s) {
        s.Page(kCategories);
        s.Reset();
        EXPECT_EQ(s.Items(Categories::IDC_CATEGORY_LIST), Names({u"G$"}));
        EXPECT_EQ(s.IsChecked(Categories::IDC_EFFECT), 1);
        s.Ok();
    });
    EXPECT_EQ(Commands()[1], u"CATEGORY G$ / EFFECT");
}

TEST_F(LogitDialog, ChoiceSetsSwitchTheConfidenceTheMethodAndTheDeciles)
{
    Run([](CHeadlessSession& s) {
        Move(s, {u"Y"}, Model::IDC_ADD_DEPENDENT);
        Move(s, {u"X"}, Model::IDC_ADD_INDEPENDENT);
        EXPECT_FALSE(s.IsEnabled(Model::IDC_CONFIDENCE));
        s.Page(kEstimation);
        s.Click(Opts::IDC_STEPWISE);
        EXPECT_TRUE(s.IsEnabled(Opts::IDC_ENTER));
        s.Page(kSets);
        s.Select(Sets::IDC_SOURCE_LIST, Names({u"S1"}));
        EXPECT_FALSE(s.IsEnabled(Sets::IDC_ADD_SET));
        EXPECT_FALSE(s.IsEnabled(Sets::IDC_INDICATORS));
        UseSets(s);
        s.Click(Sets::IDC_INDICATORS);

        s.Page(kModel);
        EXPECT_TRUE(s.IsEnabled(Model::IDC_CONFIDENCE) && s.IsEnabled(Model::IDC_CONFIDENCE_LABEL));
        s.Type(Model::IDC_CONFIDENCE, u"0.9");
        s.Page(kEstimation);
        EXPECT_FALSE(s.IsEnabled(Opts::IDC_STEPWISE) || s.IsEnabled(Opts::IDC_COMPLETE));
        EXPECT_EQ(s.IsChecked(Opts::IDC_STEPWISE), 1); // waits for the sets to go
        EXPECT_FALSE(s.IsEnabled(Opts::IDC_ENTER) || s.IsEnabled(Opts::IDC_MAXSTEP));
        EXPECT_THROW(s.Page(kDeciles), HeadlessError);
        auto& tabs = dynamic_cast<CTabCtrl&>(s.Find(CLogitTabDlg::IDC_TAB));
        EXPECT_EQ(tabs.GetItemReason(kDeciles),
                  CString(u"Deciles of risk need a binary response: not with choice sets (Choice Sets page)."));
        s.Ok();
    });
    EXPECT_EQ(Commands(),
              (Lines16{u"LOGIT", u"SET S1 S2 / INDICATORS", u"MODEL Y = CONSTANT+X", u"ESTIMATE / CONFI = 0.9"}));
    EXPECT_EQ(data.GetLogitData()->GetSetsPresent(), 1);
    EXPECT_EQ(data.GetLogitDecilesData()->GetWindowState(), 0);

    // Without the sets the stepwise choice is back and the confidence out
    // of use.
    Run([](CHeadlessSession& s) {
        s.Page(kSets);
        s.Check(Sets::IDC_USE_SETS, 0);
        s.Page(kEstimation);
        EXPECT_TRUE(s.IsEnabled(Opts::IDC_COMPLETE) && s.IsEnabled(Opts::IDC_ENTER));
        s.Page(kDeciles);
        s.Check(Deciles::IDC_DECILES, 1);
        s.Page(kModel);
        EXPECT_FALSE(s.IsEnabled(Model::IDC_CONFIDENCE));
        s.Ok();
    });
    EXPECT_EQ(Commands(),
              (Lines16{u"LOGIT", u"MODEL Y = CONSTANT+X", u"START / BACKWARD", u"STEP / AUTO", u"STOP ", u"DECILE "}));
    EXPECT_EQ(data.GetLogitData()->GetSetsPresent(), 0);
}

TEST_F(LogitDialog, EveryNumericEditRefusesBadEntriesAndKeepsTheFocus)
{
    struct Edit {
        int page;
        UINT id;
        std::u16string outOfRange;  // besides a negative number
        std::vector<UINT> messages; // for text, a negative, outOfRange, an empty edit
    };
    const Edit edits[] = {
        {kModel, Model::IDC_CONFIDENCE, u"1.5", {2010, 2012, 2012, 2010}},
        {kEstimation, Opts::IDC_CONVERGENCE, u"0", {2010, 2012, 2012, 2010}},
        {kEstimation, Opts::IDC_TOLERANCE, u"1.01", {2010, 2012, 2012, 2010}},
        {kEstimation, Opts::IDC_ITERATIONS, u"10001", {2011, 2012, 2012, 2011}},
        {kEstimation, Opts::IDC_ENTER, u"2", {2010, 2012, 2012, 2010}},
        {kEstimation, Opts::IDC_REMOVE, u"1e3", {2010, 2012, 2012, 2010}},
        {kEstimation, Opts::IDC_FORCE, u"2147483648", {2011, 2012, 2011, 2011}},
        {kEstimation, Opts::IDC_MAXSTEP, u"0", {2011, 2012, 2012, 2011}},
        {kDeciles, Deciles::IDC_GROUPS, u"101", {2011, 2012, 2012, 2011}},
    };
    for (const auto& e : edits) {
        SCOPED_TRACE(e.id);
        host.messages.clear();
        data = CLogitTabData();
        const INT_PTR result = Run([&e](CHeadlessSession& s) {
            // The edit in use: the confidence with choice sets, the others
            // with stepwise estimation and the deciles table.
            if (e.page == kModel) {
                UseSets(s);
            } else {
                s.Page(kEstimation);
                s.Click(Opts::IDC_STEPWISE);
                s.Page(kDeciles);
                s.Check(Deciles::IDC_DECILES, 1);
            }
            ExpectEditRefusesBadEntries(s, e.page, e.id, e.outOfRange, e.page == kCategories ? kModel : kCategories);
        });
        EXPECT_EQ(result, IDOK);
        EXPECT_EQ(host.messages, e.messages);
    }
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

TEST_F(LogitDialog, ResetPutsEachPageBackAndTheOtherPagesFollow)
{
    Run([](CHeadlessSession& s) {
        Move(s, {u"Y"}, Model::IDC_ADD_DEPENDENT);
        Move(s, {u"G$"}, Model::IDC_ADD_INDEPENDENT);
        s.Check(Model::IDC_CONSTANT, 0);
        s.Check(Model::IDC_SAVE_CHECK, 1);
        s.Choose(Model::IDC_SAVE_COMBO, 3);
        s.Reset();
        EXPECT_TRUE(s.Items(Model::IDC_INDEPENDENT_LIST).empty());
        EXPECT_EQ(s.Items(Model::IDC_SOURCE_LIST).size(), 9u);
        EXPECT_EQ(s.IsChecked(Model::IDC_CONSTANT), 1);
        EXPECT_EQ(s.ComboSelection(Model::IDC_SAVE_COMBO), 0);
        s.Page(kCategories);
        EXPECT_TRUE(s.Items(Categories::IDC_CATEGORY_LIST).empty());

        UseSets(s);
        s.Reset();
        EXPECT_EQ(s.IsChecked(Sets::IDC_USE_SETS), 0);
        EXPECT_TRUE(s.Items(Sets::IDC_SET_LIST).empty());
        EXPECT_TRUE(s.Page(kDeciles)); // available again
        s.Check(Deciles::IDC_DECILES, 1);
        s.Type(Deciles::IDC_GROUPS, u"5");
        s.Reset();
        EXPECT_EQ(s.IsChecked(Deciles::IDC_DECILES), 0);
        EXPECT_EQ(s.Text(Deciles::IDC_GROUPS), CString(u"10"));
        EXPECT_FALSE(s.IsEnabled(Deciles::IDC_GROUPS));

        s.Page(kEstimation);
        s.Click(Opts::IDC_STEPWISE);
        s.Type(Opts::IDC_CONVERGENCE, u"0.01");
        s.Reset();
        EXPECT_EQ(s.IsChecked(Opts::IDC_COMPLETE), 1);
        EXPECT_EQ(s.Text(Opts::IDC_CONVERGENCE), CString(u"1e-06"));
        EXPECT_FALSE(s.IsEnabled(Opts::IDC_FORCE));
        s.Ok();
    });
    EXPECT_EQ(Commands(), (Lines16{u"LOGIT", u"MODEL  = CONSTANT", u"ESTIMATE "}));
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
    const Bytes record = Store([&](CArchive& ar) { host.store.at(2004)->Serialize(ar); }, CArchive::namedLists);
    CLogitTabData restored;
    Load(record, CArchive::namedLists, [&](CArchive& ar) { restored.Serialize(ar); });
    const MenuCommandRow* row = handler.FindRow(2004);
    ASSERT_NE(row, nullptr);
    ASSERT_TRUE(row->IsAvailable());
    CLIST<CCmdInfo> lines;
    ASSERT_TRUE(row->confirm(&host, 2004, *row, &restored, lines));
    EXPECT_EQ(Lines(lines), printed);
}
