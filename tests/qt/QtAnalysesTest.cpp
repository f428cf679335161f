// Each analysis's tab dialog in Qt widgets: a user's clicks, selections,
// drags, menus, typing, grid edits, tab switches and refused entries give
// the command lines, control states, drag cursors and menus the same
// actions give headless.
#include "Source/DlgStat2.h"
#include "private/Anova/KDGAnovaTabDlg.h"
#include "private/Multivariate/KDGCorrelationsTabDlg.h"
#include "private/Quality/KDGShewhartTabDlg.h"
#include "private/Quality/KDGXMrTabDlg.h"
#include "private/Regression/KDGLogitTabDlg.h"
#include "private/Regression/KDGRegressionTabDlg.h"
#include "refhost/qt/QtView.h"
#include "tests/qt/QtTestSupport.h"
#include "tests/support/AnovaControls.h"
#include "tests/support/FakeHost.h"

#include <gtest/gtest.h>

#include <array>

using namespace kaltest;
using namespace kalqttest::act;
using kalqttest::Action;
using Lines16 = std::vector<std::u16string>;

namespace {

struct Outcome {
    INT_PTR result = 0;
    bool leftOpen = false;
    Lines16 commands;
    kalqttest::Trace trace;
};

class QtAnalyses : public ::testing::Test {
protected:
    ~QtAnalyses() override
    {
        if (module)
            module->Release();
    }
    void Variables(std::initializer_list<std::u16string> names)
    {
        host.SetVariables(names);
        module = GetModuleFactory(&host);
    }

    // Opens the dialog as the launch routine does and runs the actions in
    // it, headless or through the widgets.
    template <class TDlg, class TData>
    static Outcome Run(const std::vector<Action>& actions, const std::array<UINT, 4>& captions, bool inWidgets)
    {
        Outcome out;
        TData data;
        CHeadlessDriver headless;
        kalhost::qt::QtDialogDriver qt;
        CDialogDriver* previous = AfxSetDialogDriver(inWidgets ? static_cast<CDialogDriver*>(&qt) : &headless);
        TDlg dialog;
        dialog.SetData(&data);
        dialog.SetCaptionIDs(captions);
        data.FillListSource();
        if (inWidgets)
            kalqttest::WhenShown([&](QDialog& window) { kalqttest::RunWidgets(window, dialog, actions, out.trace); });
        else
            headless.SetScript([&](CHeadlessSession& s) { kalqttest::RunHeadless(s, headless, actions, out.trace); });
        out.result = dialog.DoModal();
        AfxSetDialogDriver(previous);
        out.leftOpen = inWidgets ? qt.LastLeftOpen() : headless.LastLeftOpen();
        CLIST<CCmdInfo> list;
        data.GetCommandInfoList(list);
        out.commands = Lines(list);
        return out;
    }

    // Runs the actions both ways; returns the headless outcome. The host's
    // messages are those of the widgets' run.
    template <class TDlg, class TData>
    Outcome ExpectSame(const std::array<UINT, 4>& captions, const std::vector<Action>& actions)
    {
        const Outcome headless = Run<TDlg, TData>(actions, captions, false);
        host.messages.clear();
        const Outcome widgets = Run<TDlg, TData>(actions, captions, true);
        EXPECT_EQ(widgets.result, headless.result);
        EXPECT_EQ(widgets.leftOpen, headless.leftOpen);
        EXPECT_EQ(widgets.commands, headless.commands);
        EXPECT_EQ(widgets.trace.dragCursors, headless.trace.dragCursors);
        EXPECT_EQ(widgets.trace.menus, headless.trace.menus);
        EXPECT_EQ(widgets.trace.states.size(), actions.size());
        for (std::size_t i = 0; i < std::min(widgets.trace.states.size(), headless.trace.states.size()); ++i)
            EXPECT_EQ(kalqttest::Differences(widgets.trace.states[i], headless.trace.states[i]), "")
                << "after action " << i;
        return headless;
    }

    FakeHost host;
    IModule* module = nullptr;
};

} // namespace

TEST_F(QtAnalyses, AnovaClicksSelectionsMenusAndTyping)
{
    using namespace kaltest::anova;
    Variables({u"Yield", u"Growth", u"Height", u"Weight", u"Block", u"Variety$", u"Rain"});
    const Outcome outcome = ExpectSame<CAnovaTabDlg, CAnovaTabData>(
        {2023, 2022, 2263, 0},
        {
            Select(SOURCE, {u"Yield", u"Growth"}),
            Click(ADD_DEP),
            Select(SOURCE, {u"Block"}),
            Click(ADD_FACTOR),
            Check(MISSING, 1),
            Select(SOURCE, {u"Variety$"}),
            Menu(SOURCE, CAnovaDlg::ID_MENU_FACTOR),
            Select(SOURCE, {u"Rain"}),
            Menu(SOURCE, CAnovaDlg::ID_MENU_COVARIATE),
            Menu(SOURCE, CAnovaDlg::ID_MENU_COVARIATE), // nothing selected now: every entry disabled
            DoubleClick(SOURCE, u"Height"),
            DoubleClick(DEPENDENT, u"Growth"),
            Select(FACTOR, {u"Block"}),
            Click(REMOVE_FACTOR),
            Check(SAVE_CHECK, 1),
            Choose(SAVE_COMBO, 3),
            Type(SAVE_EDIT, u"anova out.kvd"),
            Ok,
        });
    EXPECT_EQ(outcome.result, IDOK);
    EXPECT_EQ(outcome.commands,
              (Lines16{u"ANOVA", u"DEPEND Yield Height", u"CATEGORY Variety$ / REPLACE MISS", u"COVAR Rain",
                       u"SAVE 'anova out.kvd' / RESIDUALS", u"ESTIMATE / SS = TYPE3"}));
}

TEST_F(QtAnalyses, AnovaDragsTabsAndGridEdits)
{
    using namespace kaltest::anova;
    Variables({u"Yield", u"Growth", u"Height", u"Weight", u"Block", u"Variety$", u"Rain"});
    const Outcome outcome = ExpectSame<CAnovaTabDlg, CAnovaTabData>(
        {2023, 2022, 2263, 0}, {
                                   Select(SOURCE, {u"Yield", u"Growth"}),
                                   Drag(SOURCE, DEPENDENT),
                                   Select(SOURCE, {u"Height", u"Weight"}),
                                   Drag(SOURCE, DEPENDENT),
                                   Select(DEPENDENT, {u"Weight"}),
                                   Drag(DEPENDENT, FACTOR), // out of a target list: back to the source
                                   Select(SOURCE, {u"Yield"}),
                                   Drag(SOURCE, DEPENDENT), // there already: no drop
                                   Select(SOURCE, {u"Weight", u"Block"}),
                                   Drag(SOURCE, COVARIATE),
                                   Select(SOURCE, {u"Weight"}),
                                   Drag(SOURCE, DEPENDENT),
                                   Page(1),
                                   Check(RM_ON, 1),
                                   Cell(RM_GRID, 1, 1, u"time"),
                                   Cell(RM_GRID, 1, 2, u"2"),
                                   Cell(RM_GRID, 2, 1, u"dose"), // the empty row after the last one
                                   Cell(RM_GRID, 2, 2, u"x"),
                                   Click(CKVGridMultiCtrlBaseDlg::IDC_INSERT_ROW),
                                   Click(CKVGridMultiCtrlBaseDlg::IDC_DELETE_ROW),
                                   Cell(RM_GRID, 2, 2, u"2"),
                                   Page(2),
                                   Check(CAnovaOptionsDlg::IDC_KS, 1),
                                   Click(CAnovaOptionsDlg::IDC_SS_TYPE2),
                                   Page(3),
                                   Click(CBootStrapDlg::IDC_METHOD_BOOTSTRAP),
                                   Type(CBootStrapDlg::IDC_SAMPLES, u"250"),
                                   Page(0),
                                   Ok,
                               });
    EXPECT_EQ(outcome.result, IDOK);
    EXPECT_EQ(outcome.commands[1], u"DEPEND Yield Growth Height Weight/ REPEAT = 2, 2, NAMES = time, dose");
}

TEST_F(QtAnalyses, RegressionModelMovesAndTheMixtureRule)
{
    using Model = CRegressionDlg;
    using Estimation = CRegressionOptionsDlg;
    Variables({u"Yield", u"Growth", u"Rain", u"Sun", u"Soil$", u"Weight"});
    const Outcome outcome = ExpectSame<CRegressionTabDlg, CRegressionTabData>(
        {2261, 0, 0, 0},
        {
            Select(Model::IDC_SOURCE_LIST, {u"Yield"}),
            Click(Model::IDC_ADD_DEPENDENT),
            DoubleClick(Model::IDC_SOURCE_LIST, u"Rain"), // the dependent list is filled: an independent
            Select(Model::IDC_SOURCE_LIST, {u"Sun", u"Weight"}),
            Drag(Model::IDC_SOURCE_LIST, Model::IDC_INDEPENDENT_LIST),
            Select(Model::IDC_SOURCE_LIST, {u"Soil$"}),
            Menu(Model::IDC_SOURCE_LIST, Model::ID_MENU_INDEPENDENT), // the menu tests movability only
            Select(Model::IDC_INDEPENDENT_LIST, {u"Soil$"}),
            Click(Model::IDC_REMOVE_INDEPENDENT),
            Select(Model::IDC_INDEPENDENT_LIST, {u"Weight"}),
            Drag(Model::IDC_INDEPENDENT_LIST, Model::IDC_DEPENDENT_LIST), // out of a target list: back
            Check(Model::IDC_SAVE_CHECK, 1),
            Choose(Model::IDC_SAVE_COMBO, 2),
            Type(Model::IDC_SAVE_EDIT, u"fit results.kvd"),
            Page(1),
            Check(Estimation::IDC_MIXTURE, 1),
            Type(Estimation::IDC_CONFIDENCE, u"0.9"),
            Page(0), // the constant is disabled now
            Ok,
        });
    EXPECT_EQ(outcome.result, IDOK);
    EXPECT_EQ(outcome.commands, (Lines16{u"REGRESS", u"MODEL Yield = Rain+Sun",
                                         u"SAVE 'fit results.kvd' / COEFFICIENTS", u"ESTIMATE / MIX CONFI = 0.9"}));
}

TEST_F(QtAnalyses, RegressionStepwisePagesAndARefusedEntry)
{
    using Model = CRegressionDlg;
    using Estimation = CRegressionOptionsDlg;
    using Predict = CRegressionPredictDlg;
    Variables({u"Yield", u"Growth", u"Rain", u"Sun", u"Soil$", u"Weight"});
    const Outcome outcome = ExpectSame<CRegressionTabDlg, CRegressionTabData>(
        {2261, 0, 0, 0}, {
                             Select(Model::IDC_SOURCE_LIST, {u"Growth"}),
                             Click(Model::IDC_ADD_DEPENDENT),
                             Select(Model::IDC_SOURCE_LIST, {u"Rain", u"Sun", u"Weight"}),
                             Click(Model::IDC_ADD_INDEPENDENT),
                             Page(3),
                             Check(Predict::IDC_PREDICT, 1),
                             Type(Predict::IDC_USE_EDIT, u"next.kvd"),
                             Page(1),
                             Click(Estimation::IDC_STEPWISE), // prediction, options and resampling out of use
                             Click(Estimation::IDC_FORWARD),
                             Click(Estimation::IDC_FSTATISTIC),
                             Type(Estimation::IDC_FENTER, u"-2"),
                             Ok, // refused: the page stays, the focus on the entry
                             Type(Estimation::IDC_FENTER, u"5"),
                             Type(Estimation::IDC_FORCE, u"1"),
                             Page(3),
                             Ok,
                         });
    EXPECT_EQ(outcome.result, IDOK);
    EXPECT_EQ(host.messages, std::vector<UINT>{2012});
    EXPECT_EQ(outcome.commands, (Lines16{u"REGRESS", u"MODEL Growth = CONSTANT+Rain+Sun+Weight",
                                         u"START / FORWARD FORCE = 1 FENTER = 5", u"STEP / AUTO", u"STOP "}));
}

TEST_F(QtAnalyses, LogitModelMovesAndTheCategoriesPage)
{
    using Model = CLogitDlg;
    using Categories = CLogitCategoriesDlg;
    using Deciles = CLogitDecilesDlg;
    Variables({u"Drove", u"Mode", u"Income", u"Age", u"Region$", u"Cost1", u"Cost2", u"Avail1", u"Avail2"});
    const Outcome outcome = ExpectSame<CLogitTabDlg, CLogitTabData>(
        {2146, 2216, 2145, 0},
        {
            Select(Model::IDC_SOURCE_LIST, {u"Drove"}),
            Click(Model::IDC_ADD_DEPENDENT),
            DoubleClick(Model::IDC_SOURCE_LIST, u"Income"), // the dependent list is filled: an independent
            Select(Model::IDC_SOURCE_LIST, {u"Age", u"Region$"}),
            Drag(Model::IDC_SOURCE_LIST, Model::IDC_INDEPENDENT_LIST),
            Select(Model::IDC_SOURCE_LIST, {u"Cost1"}),
            Menu(Model::IDC_SOURCE_LIST, Model::ID_MENU_CONDITIONAL),
            Check(Model::IDC_SAVE_CHECK, 1),
            Choose(Model::IDC_SAVE_COMBO, 3),
            Type(Model::IDC_SAVE_EDIT, u"logit fit.kvd"),
            Page(1), // Region$ holds text: categorical already
            Select(Categories::IDC_SOURCE_LIST, {u"Age"}),
            Click(Categories::IDC_ADD_CATEGORY),
            Click(Categories::IDC_DUMMY),
            Click(Categories::IDC_REF_FIRST),
            Page(0),
            Select(Model::IDC_INDEPENDENT_LIST, {u"Age"}),
            Drag(Model::IDC_INDEPENDENT_LIST, Model::IDC_SOURCE_LIST), // out of the model and its categories
            Page(4),
            Check(Deciles::IDC_DECILES, 1),
            Click(Deciles::IDC_EQUAL_WIDTHS),
            Ok,
        });
    EXPECT_EQ(outcome.result, IDOK);
    EXPECT_EQ(outcome.commands, (Lines16{u"LOGIT", u"CATEGORY Region$ / DUMMY REF = FIRST",
                                         u"MODEL Drove = Cost1; CONSTANT+Income+Region$",
                                         u"SAVE 'logit fit.kvd' / RESIDUALS/DATA", u"ESTIMATE ", u"DECILE / WIDTH"}));
}

TEST_F(QtAnalyses, LogitChoiceSetsAndARefusedEntry)
{
    using Model = CLogitDlg;
    using Sets = CLogitSetsDlg;
    using Opts = CLogitOptsDlg;
    Variables({u"Drove", u"Mode", u"Income", u"Age", u"Region$", u"Cost1", u"Cost2", u"Avail1", u"Avail2"});
    const Outcome outcome = ExpectSame<CLogitTabDlg, CLogitTabData>(
        {2146, 2216, 2145, 0}, {
                                   Select(Model::IDC_SOURCE_LIST, {u"Mode"}),
                                   Click(Model::IDC_ADD_DEPENDENT),
                                   Select(Model::IDC_SOURCE_LIST, {u"Cost1", u"Cost2"}),
                                   Click(Model::IDC_ADD_CONDITIONAL),
                                   Page(3),
                                   Click(Opts::IDC_STEPWISE),
                                   Page(2),
                                   Check(Sets::IDC_USE_SETS, 1), // the method waits, deciles unavailable
                                   Select(Sets::IDC_SOURCE_LIST, {u"Avail1"}),
                                   Drag(Sets::IDC_SOURCE_LIST, Sets::IDC_SET_LIST),
                                   Ok, // refused: one set variable
                                   Select(Sets::IDC_SOURCE_LIST, {u"Avail2"}),
                                   Click(Sets::IDC_ADD_SET),
                                   Click(Sets::IDC_INDICATORS),
                                   Page(0),
                                   Type(Model::IDC_CONFIDENCE, u"0.99"),
                                   Page(3),
                                   Type(Opts::IDC_ITERATIONS, u"200"),
                                   Ok,
                               });
    EXPECT_EQ(outcome.result, IDOK);
    EXPECT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(outcome.commands,
              (Lines16{u"LOGIT", u"SET Avail1 Avail2 / INDICATORS", u"MODEL Mode = Cost1+Cost2; CONSTANT",
                       u"ESTIMATE / CONFI = 0.99 ITER = 200"}));
}

TEST_F(QtAnalyses, CorrelationsChoicesDragsMenusAndTabs)
{
    using Page0 = CCorrelationsDlg;
    using Options = CCorrOptionsDlg;
    Variables({u"Yield", u"Growth", u"Height", u"Variety$", u"Rain"});
    const Outcome outcome = ExpectSame<CCorrelationsTabDlg, CCorrelationsTabData>(
        {2057, 2363, 0, 0},
        {
            Select(Page0::IDC_SOURCE_LIST, {u"Yield", u"Growth"}),
            Drag(Page0::IDC_SOURCE_LIST, Page0::IDC_COLUMN_LIST), // one set: the column list takes nothing
            Click(Page0::IDC_ADD_ROWS),
            Click(Page0::IDC_TWO_SETS),
            Select(Page0::IDC_SOURCE_LIST, {u"Rain"}),
            Menu(Page0::IDC_SOURCE_LIST, Page0::ID_MENU_COLUMNS),
            DoubleClick(Page0::IDC_ROW_LIST, u"Growth"),
            Click(Page0::IDC_RANK_ORDER), // another class of data: the lists empty
            Select(Page0::IDC_SOURCE_LIST, {u"Variety$"}),
            Click(Page0::IDC_ADD_COLUMNS),
            Select(Page0::IDC_SOURCE_LIST, {u"Yield", u"Height"}),
            Drag(Page0::IDC_SOURCE_LIST, Page0::IDC_ROW_LIST),
            Choose(Page0::IDC_RANK_ORDER_COMBO, 1),
            Click(Page0::IDC_PAIRWISE),
            Check(Page0::IDC_SAVE_CHECK, 1),
            Type(Page0::IDC_SAVE_FILE_EDIT, u"rank.kvd"),
            Page(1),
            Check(Options::IDC_EM, 1),
            Click(Options::IDC_T),
            Type(Options::IDC_DF, u"7"),
            Page(2),
            Click(CBootStrapDlg::IDC_METHOD_BOOTSTRAP),
            Page(0),
            Ok,
        });
    EXPECT_EQ(outcome.result, IDOK);
    EXPECT_EQ(outcome.commands, (Lines16{u"CORR", u"SAVE 'rank.kvd'",
                                         u"KENDALL Yield Height*Variety$ / PAIRWISE / EM T = 7 SAMPLE = BOOT(1000)"}));
    EXPECT_EQ(outcome.trace.dragCursors, (std::vector<CursorShape>{CursorShape::Arrow, CursorShape::Drop}));
}

TEST_F(QtAnalyses, ShewhartChartMovesLimitsAndTests)
{
    using S = CShewhartDlg;
    using T = CQcTestsDlg;
    Variables({u"Weight", u"Fill", u"Lot", u"Shift$", u"Size"});
    const Outcome outcome = ExpectSame<CShewhartTabDlg, CShewhartTabData>(
        {2279, 0, 0, 0}, {
                             Select(S::IDC_SOURCE_LIST, {u"Weight", u"Fill"}),
                             Click(S::IDC_ADD_CHART),
                             Select(S::IDC_SOURCE_LIST, {u"Lot"}),
                             Drag(S::IDC_SOURCE_LIST, S::IDC_GROUP_LIST),
                             Select(S::IDC_SOURCE_LIST, {u"Shift$"}),
                             Menu(S::IDC_SOURCE_LIST, S::ID_MENU_GROUP),
                             DoubleClick(S::IDC_GROUP_LIST, u"Shift$"),
                             Choose(S::IDC_CHART_TYPE_COMBO, 8), // median: no frequency
                             Select(S::IDC_SOURCE_LIST, {u"Size"}),
                             Drag(S::IDC_SOURCE_LIST, S::IDC_FREQUENCY_LIST),
                             Choose(S::IDC_CHART_TYPE_COMBO, 4),
                             Select(S::IDC_SOURCE_LIST, {u"Size"}),
                             Click(S::IDC_ADD_FREQUENCY),
                             Check(S::IDC_AGG_CHECK, 1),
                             Check(S::IDC_SIGMA_CHECK, 1),
                             Ok, // refused: sigma is empty
                             Check(S::IDC_SIGMA_CHECK, 0),
                             Check(S::IDC_CENTER_CHECK, 1),
                             Type(S::IDC_CENTER_EDIT, u"0.1"),
                             Click(S::IDC_LIMITS_RADIO),
                             Type(S::IDC_LIMITS_UPPER, u"0.4"),
                             Page(1),
                             Check(T::IDC_TEST4, 0),
                             Page(0),
                             Ok,
                         });
    EXPECT_EQ(outcome.result, IDOK);
    EXPECT_EQ(host.messages, std::vector<UINT>{S::kMsgSigmaEmpty});
    EXPECT_EQ(outcome.commands, (Lines16{u"QC", u"WEIGHT  Size",
                                         u"SHEWHART Weight Fill*Lot / TYPE=P CENTER=0.1 LIMITS=,0.4 AGG"
                                         u"  TEST = 1 2 3 5 6 7 8 "}));
}

TEST_F(QtAnalyses, XMrChartRefusedWidthAndTests)
{
    using X = CXMrDlg;
    using T = CQcTestsDlg;
    Variables({u"Weight", u"Fill", u"Lot", u"Shift$", u"Size"});
    const Outcome outcome =
        ExpectSame<CXMrTabDlg, CXMrTabData>({2338, 0, 0, 0}, {
                                                                 DoubleClick(X::IDC_SOURCE_LIST, u"Weight"),
                                                                 Type(X::IDC_WIDTH_EDIT, u"1"),
                                                                 Ok, // refused: out of range
                                                                 Type(X::IDC_WIDTH_EDIT, u"4"),
                                                                 Type(X::IDC_MR_EDIT, u"2.5"),
                                                                 Type(X::IDC_CENTER_EDIT, u"500"),
                                                                 Click(X::IDC_MEDIAN_RADIO),
                                                                 Click(X::IDC_SLIMITS_RADIO),
                                                                 Type(X::IDC_SLIMITS_UPPER, u"3"),
                                                                 Page(1),
                                                                 Check(T::IDC_PERFORM_ALL, 0),
                                                                 Check(T::IDC_TEST1, 1),
                                                                 Ok,
                                                             });
    EXPECT_EQ(outcome.result, IDOK);
    EXPECT_EQ(outcome.commands,
              (Lines16{u"QC", u"XMR   Weight /  WIDTH = 4  CENTER = 500    MR = 2.5 SLIMITS=,3 MEDIAN   TEST = 1 "}));
}
