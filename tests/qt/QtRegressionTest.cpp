// The linear regression tab dialog in Qt widgets: a user's clicks, drags,
// menus, typing and tab switches give the command lines and control states
// the same actions give headless, across the pages' enable rules and a
// refused entry; every page renders.
#include "Source/DlgStat2.h"
#include "private/Regression/KDGRegressionTabDlg.h"
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
using Model = CRegressionDlg;
using Estimation = CRegressionOptionsDlg;
using Predict = CRegressionPredictDlg;

namespace {

Action Select(UINT list, std::vector<std::u16string> names) { return {Action::Select, list, std::move(names)}; }
Action Click(UINT id) { return {Action::Click, id}; }
Action Check(UINT id, int check) { return {Action::Check, id, {}, check}; }
Action Choose(UINT combo, int index) { return {Action::Choose, combo, {}, index}; }
Action Type(UINT edit, std::u16string text) { return {Action::Type, edit, {}, 0, 0, std::move(text)}; }
Action DoubleClick(UINT list, std::u16string item) { return {Action::DoubleClick, list, {std::move(item)}}; }
Action Drag(UINT list, UINT target) { return {Action::Drag, list, {}, 0, 0, {}, target}; }
Action Menu(UINT command) { return {Action::Menu, Model::IDC_SOURCE_LIST, {}, 0, 0, {}, command}; }
Action Page(int index) { return {Action::Page, 0, {}, index}; }
const Action Ok{Action::Ok};

struct Outcome {
    INT_PTR result = 0;
    bool leftOpen = false;
    Lines16 commands;
    kalqttest::Trace trace;
};

class QtRegression : public ::testing::Test {
protected:
    QtRegression()
    {
        host.SetVariables({u"Yield", u"Growth", u"Rain", u"Sun", u"Soil$", u"Weight"});
        module = GetModuleFactory(&host);
    }
    ~QtRegression() override { module->Release(); }

    // Opens the dialog as the launch routine does, with `driver` running it.
    static INT_PTR Open(CDialogDriver& driver, CRegressionTabData& data,
                        const std::function<void(CRegressionTabDlg&)>& beforeModal = {})
    {
        CDialogDriver* previous = AfxSetDialogDriver(&driver);
        CRegressionTabDlg dialog;
        dialog.SetData(&data);
        dialog.SetCaptionIDs({2261, 0, 0, 0});
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
        CRegressionTabData data;
        CHeadlessDriver headless;
        kalhost::qt::QtDialogDriver qt;
        if (inWidgets) {
            out.result = Open(qt, data, [&](CRegressionTabDlg& dialog) {
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

TEST_F(QtRegression, ModelMovesAndTheMixtureRuleMatchHeadless)
{
    const Outcome outcome = ExpectSame({
        Select(Model::IDC_SOURCE_LIST, {u"Yield"}),
        Click(Model::IDC_ADD_DEPENDENT),
        DoubleClick(Model::IDC_SOURCE_LIST, u"Rain"), // the dependent list is filled: an independent
        Select(Model::IDC_SOURCE_LIST, {u"Sun", u"Weight"}),
        Drag(Model::IDC_SOURCE_LIST, Model::IDC_INDEPENDENT_LIST),
        Select(Model::IDC_SOURCE_LIST, {u"Soil$"}),
        Menu(Model::ID_MENU_INDEPENDENT), // the menu tests movability only
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
    EXPECT_EQ(outcome.commands, (Lines16{u"REGRESS", u"MODEL Yield = Rain+Sun", u"SAVE 'fit results.kvd' / COEFFICIENTS",
                                         u"ESTIMATE / MIX CONFI = 0.9"}));
}

TEST_F(QtRegression, StepwisePagesAndARefusedEntryMatchHeadless)
{
    const Outcome outcome = ExpectSame({
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
    EXPECT_EQ(outcome.commands, (Lines16{u"REGRESS", u"MODEL Growth = CONSTANT+Rain+Sun+Weight",
                                         u"START / FORWARD FORCE = 1 FENTER = 5", u"STEP / AUTO", u"STOP "}));
}

TEST_F(QtRegression, EveryPageRendersToAPicture)
{
    // (The pictures of the documentation are drawn by kalhost; see
    // docs/images/README.md.)
    QTemporaryDir scratch;
    const QDir directory(scratch.path());
    const char* names[] = {"regression-model", "regression-estimation", "regression-options",
                           "regression-prediction", "regression-resampling"};

    std::vector<QImage> images;
    for (int page = 0; page < 5; ++page) {
        CRegressionTabData data;
        kalhost::qt::QtDialogDriver driver;
        driver.SetScript([page](CHeadlessSession& s) {
            s.Select(Model::IDC_SOURCE_LIST, {u"Yield"});
            s.Click(Model::IDC_ADD_DEPENDENT);
            s.Select(Model::IDC_SOURCE_LIST, {u"Rain", u"Sun"});
            s.Click(Model::IDC_ADD_INDEPENDENT);
            s.Check(Model::IDC_SAVE_CHECK, 1);
            s.Type(Model::IDC_SAVE_EDIT, u"regression results.kvd");
            s.Page(2);
            s.Check(CAnovaOptionsDlg::IDC_SW, 1);
            s.Page(3);
            s.Check(Predict::IDC_PREDICT, 1);
            s.Type(Predict::IDC_USE_EDIT, u"next season.kvd");
            s.Page(4);
            s.Click(CBootStrapDlg::IDC_METHOD_BOOTSTRAP);
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
