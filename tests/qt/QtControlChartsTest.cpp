// The control-chart tab dialogs in Qt widgets: clicks, selections, drags,
// menus, typing, tab switches and refused entries give the command lines
// and control states the same actions give headless; every page renders.
#include "Source/DlgStat2.h"
#include "private/Quality/KDGShewhartTabDlg.h"
#include "private/Quality/KDGXMrTabDlg.h"
#include "refhost/qt/QtView.h"
#include "tests/qt/QtTestSupport.h"
#include "tests/support/FakeHost.h"

#include <QColor>
#include <QDir>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace kaltest;
using kalqttest::Action;
using Lines16 = std::vector<std::u16string>;
using S = CShewhartDlg;
using X = CXMrDlg;
using T = CQcTestsDlg;

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
    Lines16 commands;
    kalqttest::Trace trace;
};

class QtControlCharts : public ::testing::Test {
protected:
    QtControlCharts()
    {
        host.SetVariables({u"Weight", u"Fill", u"Lot", u"Shift$", u"Size"});
        module = GetModuleFactory(&host);
    }
    ~QtControlCharts() override { module->Release(); }

    // Opens the dialog as the launch routine does, with `driver` running it.
    template <class TDlg, class TData>
    static INT_PTR Open(CDialogDriver& driver, TData& data, UINT caption,
                        const std::function<void(TDlg&)>& beforeModal = {})
    {
        CDialogDriver* previous = AfxSetDialogDriver(&driver);
        TDlg dialog;
        dialog.SetData(&data);
        dialog.SetCaptionIDs({caption, 0, 0, 0});
        data.FillListSource();
        if (beforeModal)
            beforeModal(dialog);
        const INT_PTR result = dialog.DoModal();
        AfxSetDialogDriver(previous);
        return result;
    }

    template <class TDlg, class TData>
    static Outcome Run(const std::vector<Action>& actions, UINT caption, bool inWidgets)
    {
        Outcome out;
        TData data;
        CHeadlessDriver headless;
        kalhost::qt::QtDialogDriver qt;
        if (inWidgets) {
            out.result = Open<TDlg>(qt, data, caption, std::function<void(TDlg&)>([&](TDlg& dialog) {
                                        kalqttest::WhenShown([&](QDialog& window) {
                                            kalqttest::RunWidgets(window, dialog, actions, out.trace);
                                        });
                                    }));
        } else {
            headless.SetScript([&](CHeadlessSession& s) { kalqttest::RunHeadless(s, headless, actions, out.trace); });
            out.result = Open<TDlg>(headless, data, caption);
        }
        CLIST<CCmdInfo> list;
        data.GetCommandInfoList(list);
        out.commands = Lines(list);
        return out;
    }

    // Runs the actions both ways; returns the headless outcome.
    template <class TDlg, class TData>
    Outcome ExpectSame(const std::vector<Action>& actions, UINT caption)
    {
        const Outcome headless = Run<TDlg, TData>(actions, caption, false);
        host.messages.clear();
        const Outcome widgets = Run<TDlg, TData>(actions, caption, true);
        EXPECT_EQ(widgets.result, headless.result);
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

TEST_F(QtControlCharts, ShewhartInWidgetsMatchesHeadless)
{
    const Outcome outcome = ExpectSame<CShewhartTabDlg, CShewhartTabData>(
        {
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
        },
        2279);
    EXPECT_EQ(outcome.result, IDOK);
    EXPECT_EQ(host.messages, std::vector<UINT>{S::kMsgSigmaEmpty});
    EXPECT_EQ(outcome.commands,
              (Lines16{u"QC", u"WEIGHT  Size", u"SHEWHART Weight Fill*Lot / TYPE=P CENTER=0.1 LIMITS=,0.4 AGG"
                                               u"  TEST = 1 2 3 5 6 7 8 "}));
}

TEST_F(QtControlCharts, XMrInWidgetsMatchesHeadless)
{
    const Outcome outcome = ExpectSame<CXMrTabDlg, CXMrTabData>(
        {
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
        },
        2338);
    EXPECT_EQ(outcome.result, IDOK);
    EXPECT_EQ(outcome.commands,
              (Lines16{u"QC", u"XMR   Weight /  WIDTH = 4  CENTER = 500    MR = 2.5 SLIMITS=,3 MEDIAN   TEST = 1 "}));
}

TEST_F(QtControlCharts, EveryPageRendersToAPicture)
{
    // The pictures of the documentation are drawn by ./dev.sh screenshots.
    QTemporaryDir scratch;
    const QDir directory(scratch.path());

    std::vector<QImage> images;
    const auto render = [&](const char* name, const std::function<INT_PTR(kalhost::qt::QtDialogDriver&)>& open) {
        kalhost::qt::QtDialogDriver driver;
        const QString file = directory.filePath(QString::fromLatin1(name) + QStringLiteral(".png"));
        driver.SetScreenshotFile(file.toStdString());
        EXPECT_EQ(open(driver), IDCANCEL) << name;
        EXPECT_TRUE(driver.LastLeftOpen()) << name;
        const QImage image(file);
        ASSERT_FALSE(image.isNull()) << name;
        int dark = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                dark += QColor(image.pixel(x, y)).lightness() < 80;
        EXPECT_GT(dark, 200) << name;
        for (const QImage& other : images)
            EXPECT_NE(image, other) << name << " looks like an earlier page";
        images.push_back(image);
    };
    for (const int page : {0, 1}) {
        render(page == 0 ? "shewhart-chart-chart" : "shewhart-chart-run-tests", [&](auto& driver) {
            CShewhartTabData data;
            driver.SetScript([page](CHeadlessSession& s) {
                s.Select(S::IDC_SOURCE_LIST, {u"Weight"});
                s.Click(S::IDC_ADD_CHART);
                s.Select(S::IDC_SOURCE_LIST, {u"Lot"});
                s.Click(S::IDC_ADD_GROUP);
                s.Check(S::IDC_SIGMA_CHECK, 1);
                s.Type(S::IDC_SIGMA_EDIT, u"1.5");
                s.Click(S::IDC_SLIMITS_RADIO);
                s.Type(S::IDC_SLIMITS_LOWER, u"3");
                s.Type(S::IDC_SLIMITS_UPPER, u"3");
                s.Page(1);
                s.Check(T::IDC_TEST2, 0);
                s.Page(page);
            });
            return Open<CShewhartTabDlg>(driver, data, 2279);
        });
        render(page == 0 ? "xmr-chart-chart" : "xmr-chart-run-tests", [&](auto& driver) {
            CXMrTabData data;
            driver.SetScript([page](CHeadlessSession& s) {
                s.Select(X::IDC_SOURCE_LIST, {u"Weight"});
                s.Click(X::IDC_ADD_CHART);
                s.Type(X::IDC_CENTER_EDIT, u"500");
                s.Type(X::IDC_SIGMA_EDIT, u"1.4");
                s.Page(1);
                s.Check(T::IDC_PERFORM_ALL, 0);
                s.Check(T::IDC_TEST1, 1);
                s.Page(page);
            });
            return Open<CXMrTabDlg>(driver, data, 2338);
        });
    }
}
