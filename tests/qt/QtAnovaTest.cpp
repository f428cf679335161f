// The ANOVA tab dialog in Qt widgets: a user's clicks, selections, drags,
// menus, typing, tab switches and grid edits give the command lines and
// control states the same actions give headless; every page renders.
#include "Source/DlgStat2.h"
#include "private/Anova/KDGAnovaTabDlg.h"
#include "refhost/qt/QtView.h"
#include "tests/qt/QtTestSupport.h"
#include "tests/support/AnovaControls.h"
#include "tests/support/FakeHost.h"

#include <QColor>
#include <QDir>
#include <QImage>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace kaltest;
using namespace kaltest::anova;
using kalqttest::Action;
using Lines16 = std::vector<std::u16string>;

namespace {


Action Select(UINT list, std::vector<std::u16string> names) { return {Action::Select, list, std::move(names)}; }
Action Click(UINT id) { return {Action::Click, id}; }
Action Check(UINT id, int check) { return {Action::Check, id, {}, check}; }
Action Choose(UINT combo, int index) { return {Action::Choose, combo, {}, index}; }
Action Type(UINT edit, std::u16string text) { return {Action::Type, edit, {}, 0, 0, std::move(text)}; }
Action Cell(int row, int column, std::u16string text)
{
    return {Action::Cell, RM_GRID, {}, row, column, std::move(text)};
}
Action DoubleClick(UINT list, std::u16string item) { return {Action::DoubleClick, list, {std::move(item)}}; }
Action Drag(UINT list, UINT target) { return {Action::Drag, list, {}, 0, 0, {}, target}; }
Action Menu(UINT command) { return {Action::Menu, SOURCE, {}, 0, 0, {}, command}; }
Action Page(int index) { return {Action::Page, 0, {}, index}; }
const Action Ok{Action::Ok};

struct Outcome {
    INT_PTR result = 0;
    bool leftOpen = false;
    Lines16 commands;
    kalqttest::Trace trace;
};

class QtAnova : public ::testing::Test {
protected:
    QtAnova()
    {
        host.SetVariables({u"Yield", u"Growth", u"Height", u"Weight", u"Block", u"Variety$", u"Rain"});
        module = GetModuleFactory(&host);
    }
    ~QtAnova() override { module->Release(); }

    // Opens the dialog as the launch routine does, with `driver` running it.
    static INT_PTR Open(CDialogDriver& driver, CAnovaTabData& data,
                        const std::function<void(CAnovaTabDlg&)>& beforeModal = {})
    {
        CDialogDriver* previous = AfxSetDialogDriver(&driver);
        CAnovaTabDlg dialog;
        dialog.SetData(&data);
        dialog.SetCaptionIDs({2023, 2022, 2263, 0});
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
        CAnovaTabData data;
        CHeadlessDriver headless;
        kalhost::qt::QtDialogDriver qt;
        if (inWidgets) {
            out.result = Open(qt, data, [&](CAnovaTabDlg& dialog) {
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

TEST_F(QtAnova, ClicksSelectionsMenusAndTypingMatchHeadless)
{
    const Outcome outcome = ExpectSame({
        Select(SOURCE, {u"Yield", u"Growth"}),
        Click(CAnovaDlg::IDC_ADD_DEPENDENT),
        Select(SOURCE, {u"Block"}),
        Click(CAnovaDlg::IDC_ADD_FACTOR),
        Check(CAnovaDlg::IDC_MISSING_VALUES, 1),
        Select(SOURCE, {u"Variety$"}),
        Menu(CAnovaDlg::ID_MENU_FACTOR),
        Select(SOURCE, {u"Rain"}),
        Menu(CAnovaDlg::ID_MENU_COVARIATE),
        Menu(CAnovaDlg::ID_MENU_COVARIATE), // nothing selected now: every entry disabled
        DoubleClick(SOURCE, u"Height"),
        DoubleClick(DEPENDENT, u"Growth"),
        Select(FACTOR, {u"Block"}),
        Click(CAnovaDlg::IDC_REMOVE_FACTOR),
        Check(CAnovaDlg::IDC_SAVE_FILE_CHECK, 1),
        Choose(CAnovaDlg::IDC_SAVE_FILE_COMBO, 3),
        Type(SAVE_EDIT, u"anova out.kvd"),
        Ok,
    });
    EXPECT_EQ(outcome.result, IDOK);
    EXPECT_EQ(outcome.commands,
              (Lines16{u"ANOVA", u"DEPEND Yield Height", u"CATEGORY Variety$ / REPLACE MISS", u"COVAR Rain",
                       u"SAVE 'anova out.kvd' / RESIDUALS", u"ESTIMATE / SS = TYPE3"}));
}

TEST_F(QtAnova, DragsTabsAndGridEditsMatchHeadless)
{
    const Outcome outcome = ExpectSame({
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
        Check(CRepeatMeasuresDlg::IDC_ON_OFF, 1),
        Cell(1, 1, u"time"),
        Cell(1, 2, u"2"),
        Cell(2, 1, u"dose"), // the empty row after the last one
        Cell(2, 2, u"x"),
        Click(CKVGridMultiCtrlBaseDlg::IDC_INSERT_ROW),
        Click(CKVGridMultiCtrlBaseDlg::IDC_DELETE_ROW),
        Cell(2, 2, u"2"),
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

TEST_F(QtAnova, EveryPageRendersToAPicture)
{
    // The pictures of the documentation are drawn by ./dev.sh screenshots.
    QTemporaryDir scratch;
    const QDir directory(scratch.path());
    const char* names[] = {"anova-model", "anova-repeated-measures", "anova-options", "anova-resampling"};

    std::vector<QImage> images;
    for (int page = 0; page < 4; ++page) {
        CAnovaTabData data;
        kalhost::qt::QtDialogDriver driver;
        driver.SetScript([page](CHeadlessSession& s) {
            s.Select(SOURCE, {u"Yield", u"Growth"});
            s.Click(CAnovaDlg::IDC_ADD_DEPENDENT);
            s.Select(SOURCE, {u"Variety$", u"Block"});
            s.Click(CAnovaDlg::IDC_ADD_FACTOR);
            s.Select(SOURCE, {u"Rain"});
            s.Click(CAnovaDlg::IDC_ADD_COVARIATE);
            s.Check(CAnovaDlg::IDC_MISSING_VALUES, 1);
            s.Check(CAnovaDlg::IDC_SAVE_FILE_CHECK, 1);
            s.Type(SAVE_EDIT, u"anova results.kvd");
            s.Page(1);
            s.Check(CRepeatMeasuresDlg::IDC_ON_OFF, 1);
            s.Cell(RM_GRID, 1, 1, u"time");
            s.Page(2);
            s.Check(CAnovaOptionsDlg::IDC_KS, 1);
            s.Check(CAnovaOptionsDlg::IDC_LEVENE, 1);
            s.Page(3);
            s.Click(CBootStrapDlg::IDC_METHOD_BOOTSTRAP);
            s.Page(page);
        });
        const QString file = directory.filePath(QString::fromLatin1(names[page]) + QStringLiteral(".png"));
        driver.SetScreenshotFile(file.toStdString());
        EXPECT_EQ(Open(driver, data), IDCANCEL);
        EXPECT_TRUE(driver.LastLeftOpen());
        EXPECT_EQ(data.GetAnovaData()->GetDependentVariableListCount(), 0); // left open: nothing stored

        // A drawn dialog: many colours, and text in the dark window-text colour.
        const QImage image(file);
        ASSERT_FALSE(image.isNull()) << names[page];
        QSet<QRgb> colours;
        int dark = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                colours.insert(image.pixel(x, y));
                dark += QColor(image.pixel(x, y)).lightness() < 80;
            }
        EXPECT_GT(colours.size(), 8) << names[page];
        EXPECT_GT(dark, 200) << names[page];
        for (const QImage& other : images)
            EXPECT_NE(image, other) << names[page] << " looks like an earlier page";
        images.push_back(image);
    }
}
