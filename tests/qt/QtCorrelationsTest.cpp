// The correlations tab dialog in Qt widgets: a user's clicks, choices,
// drags, menus, typing and tab switches give the command lines and control
// states the same actions give headless; the options tab is greyed with
// its reason while it does not apply.
#include "Source/DlgStat2.h"
#include "private/Multivariate/KDGCorrelationsTabDlg.h"
#include "refhost/qt/QtView.h"
#include "tests/qt/QtTestSupport.h"
#include "tests/support/FakeHost.h"

#include <QTabBar>
#include <QTabWidget>

#include <gtest/gtest.h>

using namespace kaltest;
using kalqttest::Action;
using Lines16 = std::vector<std::u16string>;
using Page0 = CCorrelationsDlg;
using Options = CCorrOptionsDlg;

namespace {

Action Select(UINT list, std::vector<std::u16string> names) { return {Action::Select, list, std::move(names)}; }
Action Click(UINT id) { return {Action::Click, id}; }
Action Check(UINT id, int check) { return {Action::Check, id, {}, check}; }
Action Choose(UINT combo, int index) { return {Action::Choose, combo, {}, index}; }
Action Type(UINT edit, std::u16string text) { return {Action::Type, edit, {}, 0, 0, std::move(text)}; }
Action DoubleClick(UINT list, std::u16string item) { return {Action::DoubleClick, list, {std::move(item)}}; }
Action Drag(UINT list, UINT target) { return {Action::Drag, list, {}, 0, 0, {}, target}; }
Action Menu(UINT command) { return {Action::Menu, Page0::IDC_SOURCE_LIST, {}, 0, 0, {}, command}; }
Action Page(int index) { return {Action::Page, 0, {}, index}; }
const Action Ok{Action::Ok};

struct Outcome {
    INT_PTR result = 0;
    bool leftOpen = false;
    Lines16 commands;
    kalqttest::Trace trace;
};

class QtCorrelations : public ::testing::Test {
protected:
    QtCorrelations()
    {
        host.SetVariables({u"Yield", u"Growth", u"Height", u"Variety$", u"Rain"});
        module = GetModuleFactory(&host);
    }
    ~QtCorrelations() override { module->Release(); }

    // Opens the dialog as the launch routine does, with `driver` running it.
    static INT_PTR Open(CDialogDriver& driver, CCorrelationsTabData& data,
                        const std::function<void(CCorrelationsTabDlg&)>& beforeModal = {})
    {
        CDialogDriver* previous = AfxSetDialogDriver(&driver);
        CCorrelationsTabDlg dialog;
        dialog.SetData(&data);
        dialog.SetCaptionIDs({2057, 2363, 0, 0});
        data.FillListSource();
        if (beforeModal)
            beforeModal(dialog);
        const INT_PTR result = dialog.DoModal();
        AfxSetDialogDriver(previous);
        return result;
    }

    static Outcome Run(const std::vector<Action>& actions, bool inWidgets)
    {
        Outcome out;
        CCorrelationsTabData data;
        CHeadlessDriver headless;
        kalhost::qt::QtDialogDriver qt;
        if (inWidgets) {
            out.result = Open(qt, data, [&](CCorrelationsTabDlg& dialog) {
                kalqttest::WhenShown(
                    [&](QDialog& window) { kalqttest::RunWidgets(window, dialog, actions, out.trace); });
            });
        } else {
            headless.SetScript([&](CHeadlessSession& s) { kalqttest::RunHeadless(s, headless, actions, out.trace); });
            out.result = Open(headless, data);
        }
        out.leftOpen = inWidgets ? qt.LastLeftOpen() : headless.LastLeftOpen();
        CLIST<CCmdInfo> list;
        data.GetCommandInfoList(list);
        out.commands = Lines(list);
        return out;
    }

    // Runs the actions both ways; returns the headless outcome.
    static Outcome ExpectSame(const std::vector<Action>& actions)
    {
        const Outcome headless = Run(actions, false);
        const Outcome widgets = Run(actions, true);
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

TEST_F(QtCorrelations, AUsersActionsMatchHeadless)
{
    const Outcome outcome = ExpectSame({
        Select(Page0::IDC_SOURCE_LIST, {u"Yield", u"Growth"}),
        Drag(Page0::IDC_SOURCE_LIST, Page0::IDC_COLUMN_LIST), // one set: the column list takes nothing
        Click(Page0::IDC_ADD_ROWS),
        Click(Page0::IDC_TWO_SETS),
        Select(Page0::IDC_SOURCE_LIST, {u"Rain"}),
        Menu(Page0::ID_MENU_COLUMNS),
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

TEST_F(QtCorrelations, TheOptionsTabIsGreyedWithItsReasonAndCannotBeChosen)
{
    CCorrelationsTabData data;
    kalhost::qt::QtDialogDriver driver;
    bool checked = false;
    Open(driver, data, [&](CCorrelationsTabDlg& dialog) {
        kalqttest::WhenShown([&](QDialog& window) {
            QTabBar* bar = window.findChild<QTabWidget*>(QString(), Qt::FindDirectChildrenOnly)->tabBar();
            EXPECT_TRUE(bar->isTabEnabled(1));
            kalqttest::Click(kalqttest::Control(window, Page0::IDC_BINARY));
            EXPECT_FALSE(bar->isTabEnabled(1));
            EXPECT_EQ(bar->tabToolTip(1).toStdString(),
                      "The options apply to Pearson correlations and to the Spearman, Kendall, gamma and "
                      "Goodman-Kruskal measures only.");
            kalqttest::Click(bar, bar->tabRect(1).center());
            EXPECT_EQ(bar->currentIndex(), 0);
            EXPECT_EQ(dialog.GetTabCtrl().GetCurSel(), 0);
            kalqttest::Click(kalqttest::Control(window, Page0::IDC_RANK_ORDER));
            EXPECT_TRUE(bar->isTabEnabled(1));
            kalqttest::Click(bar, bar->tabRect(1).center());
            EXPECT_EQ(dialog.GetTabCtrl().GetCurSel(), 1);
            checked = true;
        });
    });
    EXPECT_TRUE(checked);
}
