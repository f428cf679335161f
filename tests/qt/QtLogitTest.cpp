// The logistic regression tab dialog in Qt widgets: a user's clicks, drags,
// menus, typing and tab switches give the command lines and control states
// the same actions give headless, across the categories page following the
// model, choice sets switching the other pages and a refused entry; every
// page renders.
#include "Source/DlgStat2.h"
#include "private/Regression/KDGLogitTabDlg.h"
#include "refhost/qt/QtView.h"
#include "tests/qt/QtTestSupport.h"
#include "tests/support/FakeHost.h"

#include <QColor>
#include <QDir>
#include <QImage>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace kaltest;
using kalqttest::Action;
using Lines16 = std::vector<std::u16string>;
using Model = CLogitDlg;
using Categories = CLogitCategoriesDlg;
using Sets = CLogitSetsDlg;
using Opts = CLogitOptsDlg;
using Deciles = CLogitDecilesDlg;

namespace {

Action Select(UINT list, std::vector<std::u16string> names) { return {Action::Select, list, std::move(names)}; }
Action Click(UINT id) { return {Action::Click, id}; }
Action Check(UINT id, int check) { return {Action::Check, id, {}, check}; }
Action Choose(UINT combo, int index) { return {Action::Choose, combo, {}, index}; }
Action Type(UINT edit, std::u16string text) { return {Action::Type, edit, {}, 0, 0, std::move(text)}; }
Action DoubleClick(UINT list, std::u16string item) { return {Action::DoubleClick, list, {std::move(item)}}; }
Action Drag(UINT list, UINT target) { return {Action::Drag, list, {}, 0, 0, {}, target}; }
Action Menu(UINT list, UINT command) { return {Action::Menu, list, {}, 0, 0, {}, command}; }
Action Page(int index) { return {Action::Page, 0, {}, index}; }
const Action Ok{Action::Ok};

struct Outcome {
    INT_PTR result = 0;
    bool leftOpen = false;
    Lines16 commands;
    kalqttest::Trace trace;
};

class QtLogit : public ::testing::Test {
protected:
    QtLogit()
    {
        host.SetVariables({u"Drove", u"Mode", u"Income", u"Age", u"Region$", u"Cost1", u"Cost2", u"Avail1", u"Avail2"});
        module = GetModuleFactory(&host);
    }
    ~QtLogit() override { module->Release(); }

    // Opens the dialog as the launch routine does, with `driver` running it.
    static INT_PTR Open(CDialogDriver& driver, CLogitTabData& data,
                        const std::function<void(CLogitTabDlg&)>& beforeModal = {})
    {
        CDialogDriver* previous = AfxSetDialogDriver(&driver);
        CLogitTabDlg dialog;
        dialog.SetData(&data);
        dialog.SetCaptionIDs({2146, 2216, 2145, 0});
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
        CLogitTabData data;
        CHeadlessDriver headless;
        kalhost::qt::QtDialogDriver qt;
        if (inWidgets) {
            out.result = Open(qt, data, [&](CLogitTabDlg& dialog) {
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

TEST_F(QtLogit, ModelMovesAndTheCategoriesPageMatchHeadless)
{
    const Outcome outcome = ExpectSame({
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
    EXPECT_EQ(outcome.commands,
              (Lines16{u"LOGIT", u"CATEGORY Region$ / DUMMY REF = FIRST", u"MODEL Drove = Cost1; CONSTANT+Income+Region$",
                       u"SAVE 'logit fit.kvd' / RESIDUALS/DATA", u"ESTIMATE ", u"DECILE / WIDTH"}));
}

TEST_F(QtLogit, ChoiceSetsAndARefusedEntryMatchHeadless)
{
    const Outcome outcome = ExpectSame({
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
    EXPECT_EQ(outcome.commands, (Lines16{u"LOGIT", u"SET Avail1 Avail2 / INDICATORS", u"MODEL Mode = Cost1+Cost2; CONSTANT",
                                         u"ESTIMATE / CONFI = 0.99 ITER = 200"}));
}

TEST_F(QtLogit, EveryPageRendersToAPicture)
{
    // (The pictures of the documentation are drawn by kalhost; see
    // docs/images/README.md.)
    QTemporaryDir scratch;
    const QDir directory(scratch.path());
    const char* names[] = {"logit-model", "logit-categories", "logit-choice-sets", "logit-estimation",
                           "logit-deciles-of-risk"};

    std::vector<QImage> images;
    for (int page = 0; page < 5; ++page) {
        CLogitTabData data;
        kalhost::qt::QtDialogDriver driver;
        driver.SetScript([page](CHeadlessSession& s) {
            s.Select(Model::IDC_SOURCE_LIST, {u"Drove"});
            s.Click(Model::IDC_ADD_DEPENDENT);
            s.Select(Model::IDC_SOURCE_LIST, {u"Income", u"Region$"});
            s.Click(Model::IDC_ADD_INDEPENDENT);
            s.Page(3);
            s.Click(Opts::IDC_STEPWISE);
            s.Page(4);
            s.Check(Deciles::IDC_DECILES, 1);
            if (page == 2) {
                s.Page(2);
                s.Check(Sets::IDC_USE_SETS, 1);
            }
            s.Page(page);
        });
        const QString file = directory.filePath(QString::fromLatin1(names[page]) + QStringLiteral(".png"));
        driver.SetScreenshotFile(file.toStdString());
        EXPECT_EQ(Open(driver, data), IDCANCEL);
        EXPECT_TRUE(driver.LastLeftOpen());

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
