// The analyses' tab dialogs in Qt widgets: a user's clicks, selections,
// drags, menus, typing, grid edits, tab switches and refused entries give
// the command lines, control states, drag cursors and menus the same
// actions give headless. Together the runs use every kind of control the
// analyses' pages hold; the other dialogs render and take the keyboard in
// the every-dialog and gallery tests.
#include "Source/DlgStat2.h"
#include "private/Anova/KDGAnovaTabDlg.h"
#include "private/Multivariate/KDGCorrelationsTabDlg.h"
#include "private/Quality/KDGShewhartTabDlg.h"
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
    Outcome ExpectSame(const std::vector<Action>& actions)
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
    std::array<UINT, 4> captions{}; // the tab captions the menu command gives
};

} // namespace

TEST_F(QtAnalyses, AnovaClicksSelectionsMenusAndTyping)
{
    using namespace kaltest::anova;
    Variables({u"Yield", u"Growth", u"Height", u"Weight", u"Block", u"Variety$", u"Rain"});
    captions = {2023, 2022, 2263, 0};
    const Outcome outcome = ExpectSame<CAnovaTabDlg, CAnovaTabData>({
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
    captions = {2023, 2022, 2263, 0};
    const Outcome outcome = ExpectSame<CAnovaTabDlg, CAnovaTabData>({
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

TEST_F(QtAnalyses, RegressionStepwisePagesAndARefusedEntry)
{
    using Model = CRegressionDlg;
    using Estimation = CRegressionOptionsDlg;
    using Predict = CRegressionPredictDlg;
    Variables({u"Yield", u"Growth", u"Rain", u"Sun", u"Soil$", u"Weight"});
    captions = {2261, 0, 0, 0};
    const Outcome outcome = ExpectSame<CRegressionTabDlg, CRegressionTabData>({
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

TEST_F(QtAnalyses, CorrelationsChoicesDragsMenusAndTabs)
{
    using Page0 = CCorrelationsDlg;
    using Options = CCorrOptionsDlg;
    Variables({u"Yield", u"Growth", u"Height", u"Variety$", u"Rain"});
    captions = {2057, 2363, 0, 0};
    const Outcome outcome = ExpectSame<CCorrelationsTabDlg, CCorrelationsTabData>({
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
    captions = {2279, 0, 0, 0};
    const Outcome outcome = ExpectSame<CShewhartTabDlg, CShewhartTabData>({
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
        Type(S::IDC_LIMITS_LOWER, u""),
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
