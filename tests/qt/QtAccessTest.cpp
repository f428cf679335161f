// What readers, keyboard users and statisticians meet in the Qt view: the
// keys that move between cells, pages and menus, messages that name the
// field, hints that fit the state, windows that grow and filters on long
// variable lists. (The accessible tree of every page is checked with every
// dialog, in QtEveryDialogTest.)
#include "Msg/AnalysisofVarianceMsg.h"
#include "Msg/CorrelationsMsg.h"
#include "Msg/RegressionMsg.h"
#include "Source/DlgStat2.h"
#include "framework/HostLink.h"
#include "refhost/qt/QtView.h"
#include "tests/qt/QtTestSupport.h"
#include "tests/support/FakeHost.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>

#include <gtest/gtest.h>

using namespace kaltest;
using kalqttest::Control;
using kalqttest::Key;

namespace {

QTabWidget* Tabs(QDialog& window)
{
    return window.findChild<QTabWidget*>(QString(), Qt::FindDirectChildrenOnly);
}

QWidget* Focus()
{
    return QApplication::focusWidget();
}

// Window shortcuts answer in the active window only.
void Activate(QDialog& window)
{
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

class QtAccess : public ::testing::Test {
protected:
    QtAccess()
    {
        host.SetVariables({u"Y", u"Y2", u"X", u"Group$"});
        module = static_cast<CDlgStat2*>(GetModuleFactory(&host));
        previous = AfxSetDialogDriver(&driver);
    }
    ~QtAccess() override
    {
        AfxSetDialogDriver(previous);
        module->Release();
    }

    // Opens menu command `id`; `script` acts on the model first, `actions`
    // once the window is up.
    void Open(CMenuGroupMsg* handler, UINT id, std::function<void(CHeadlessSession&)> script,
              std::function<void(QDialog&)> actions)
    {
        driver.SetScript(std::move(script));
        kalqttest::WhenShown(std::move(actions));
        const MenuCommandRow* row = handler->FindRow(id);
        ASSERT_NE(row, nullptr);
        row->launch(&host, id, nullptr, *row, nullptr);
    }

    FakeHost host;
    CDlgStat2* module = nullptr;
    kalhost::qt::QtDialogDriver driver;
    CDialogDriver* previous = nullptr;
};

} // namespace

TEST_F(QtAccess, GridCellsTakeArrowsTabLeavesAndPageKeysWorkFromAnywhere)
{
    const auto twoDependents = [](CHeadlessSession& s) {
        s.Select(1075, {CString(u"Y"), CString(u"Y2")});
        s.Click(1067);
        s.Page(1);
        s.Check(4193, 1);
    };
    Open(module->GetAnalysisofVarianceMsg(), 2008, twoDependents, [](QDialog& window) {
        Activate(window);
        auto* grid = qobject_cast<QTableWidget*>(Control(window, 4192));
        ASSERT_NE(grid, nullptr);
        EXPECT_EQ(QAccessible::queryAccessibleInterface(grid)->text(QAccessible::Name),
                  QStringLiteral("Repeated-measures analysis"));
        grid->setFocus();
        grid->setCurrentCell(0, 1);
        Key(grid, Qt::Key_Right);
        EXPECT_EQ(grid->currentColumn(), 2);
        Key(grid, Qt::Key_Tab);
        EXPECT_NE(Focus(), grid);
        Key(Focus(), Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(Focus(), grid);

        // From OK, Ctrl+Tab and Ctrl+PgUp still switch pages.
        QWidget* ok = window.findChild<QWidget*>(QStringLiteral("ctl1"));
        ok->setFocus();
        Key(ok, Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(Tabs(window)->currentIndex(), 2);
        EXPECT_TRUE(Tabs(window)->currentWidget()->isAncestorOf(Focus()));
        Key(Focus(), Qt::Key_PageUp, Qt::ControlModifier);
        EXPECT_EQ(Tabs(window)->currentIndex(), 1);
    });

    // Stepwise leaves the prediction page without a usable control: Ctrl+Tab
    // puts the focus on the tabs, and the keys go on switching.
    const auto stepwise = [](CHeadlessSession& s) {
        s.Page(1);
        s.Click(4172);
    };
    Open(module->GetRegressionMsg(), 2051, stepwise, [](QDialog& window) {
        Activate(window);
        QTabWidget* tabs = Tabs(window);
        Key(Focus(), Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(tabs->currentIndex(), 3);
        EXPECT_EQ(Focus(), tabs->tabBar());
        Key(Focus(), Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(tabs->currentIndex(), 0);
        Key(Focus(), Qt::Key_PageUp, Qt::ControlModifier);
        EXPECT_EQ(tabs->currentIndex(), 3);
    });
}

TEST_F(QtAccess, ShiftF10OpensTheContextMenuOfTheFocusedList)
{
    bool shown = false;
    Open(module->GetAnalysisofVarianceMsg(), 2008, {}, [&shown](QDialog& window) {
        kalqttest::WhenPopupShown([&shown](QWidget& popup) {
            shown = qobject_cast<QMenu*>(&popup) != nullptr;
            popup.close();
        });
        Activate(window);
        QWidget* source = Control(window, 1075);
        source->setFocus();
        Key(source, Qt::Key_F10, Qt::ShiftModifier);
    });
    EXPECT_TRUE(shown);
}

TEST_F(QtAccess, RefusedNumbersNameTheFieldAndHintsFitTheState)
{
    std::vector<std::pair<UINT, std::string>> said;
    kal::SetMessageBoxSink([&said](UINT id, const CString& detail) { said.emplace_back(id, detail.ToUtf8()); });
    Open(
        module->GetRegressionMsg(), 2051, [](CHeadlessSession& s) { s.Page(1); },
        [](QDialog& window) {
            auto* confidence = qobject_cast<QLineEdit*>(Control(window, 4155));
            ASSERT_NE(confidence, nullptr);
            confidence->selectAll();
            QTest::keyClicks(confidence, QStringLiteral("95"));
            kalqttest::Click(window.findChild<QWidget*>(QStringLiteral("ctl1")));
            EXPECT_TRUE(window.isVisible());
            // The prediction page's hint shows only while stepwise greys it.
            Tabs(window)->setCurrentIndex(3);
            EXPECT_FALSE(Control(window, 4184)->isVisible());
        });
    kal::SetMessageBoxSink([](UINT id, const CString& detail) { kal::framework::ReportMessage(id, detail); });
    EXPECT_EQ(said, (std::vector<std::pair<UINT, std::string>>{{2012, "Confidence: a number from 0 to 1."}}));

    // A string variable keeps the Add button grey, and its tip says why.
    Open(
        module->GetCorrelationsMsg(), 2002, [](CHeadlessSession& s) { s.Select(1427, {CString(u"Group$")}); },
        [](QDialog& window) {
            QWidget* add = Control(window, 1419);
            EXPECT_FALSE(add->isEnabled());
            EXPECT_TRUE(add->toolTip().startsWith(QStringLiteral("Selected variables takes no string variables")))
                << add->toolTip().toStdString();
        });
}

TEST_F(QtAccess, DialogsGrowTheirListsKeepTheirSizeAndFilterLongLists)
{
    QSize grown;
    Open(module->GetAnalysisofVarianceMsg(), 2008, {}, [&grown](QDialog& window) {
        auto* source = qobject_cast<QListWidget*>(Control(window, 1075));
        QWidget* reset = Control(window, 14);
        const int listWidth = source->width();
        const int resetMargin = reset->parentWidget()->width() - reset->geometry().right();
        window.resize(window.size() + QSize(240, 120));
        QTest::qWait(20);
        EXPECT_GT(source->width(), listWidth + 80);
        EXPECT_EQ(reset->parentWidget()->width() - reset->geometry().right(), resetMargin);
        grown = window.size();

        // The filter keeps what it hides selected and hands on what it shows.
        auto* filter = window.findChild<QLineEdit*>(QStringLiteral("filter1075"));
        ASSERT_NE(filter, nullptr);
        source->selectAll();
        QTest::keyClicks(filter, QStringLiteral("y"));
        ASSERT_EQ(source->count(), 2);
        EXPECT_EQ(source->item(1)->text(), QStringLiteral("Y2"));
        kalqttest::Click(Control(window, 1067));
        EXPECT_EQ(qobject_cast<QListWidget*>(Control(window, 1071))->count(), 2);
        filter->clear();
        EXPECT_EQ(source->count(), 4);
        EXPECT_EQ(source->selectedItems().size(), 2); // X and Group$, hidden while the filter was on
    });
    Open(module->GetAnalysisofVarianceMsg(), 2008, {}, [&grown](QDialog& window) { EXPECT_EQ(window.size(), grown); });
}
