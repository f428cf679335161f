// What the Qt view shows beyond the model's controls: each variable's kind
// and whole name, lists that treat long names alike, a page the dialog
// cannot use now, help, and names in other scripts drawn with real glyphs.
#include "Msg/CorrelationsMsg.h"
#include "Msg/RegressionMsg.h"
#include "Source/DlgStat2.h"
#include "refhost/qt/QtText.h"
#include "refhost/qt/QtView.h"
#include "tests/qt/QtTestSupport.h"
#include "tests/qt/UrlCatcher.h"
#include "tests/support/FakeHost.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDesktopServices>
#include <QGlyphRun>
#include <QHelpEvent>
#include <QImage>
#include <QListWidget>
#include <QMessageBox>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTextLayout>
#include <QToolTip>
#include <QUrl>

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

using namespace kaltest;
using kalqttest::Click;
using kalqttest::Control;
using kalqttest::Key;

namespace {

constexpr UINT kSource = 4101; // the regression model page's lists
constexpr UINT kDependent = 4102;
constexpr UINT kIndependent = 4103;
constexpr UINT kMeasureCombo = 1422; // the correlations page's continuous measure

// The tool tip the widget shows when the mouse rests at `local`.
QString ToolTipAt(QWidget* widget, QPoint local)
{
    QHelpEvent event(QEvent::ToolTip, local, widget->mapToGlobal(local));
    QApplication::sendEvent(widget, &event);
    const QString text = QToolTip::text();
    QToolTip::hideText();
    return text;
}

QListWidget* List(QDialog& window, UINT id)
{
    return qobject_cast<QListWidget*>(Control(window, id));
}

// Selects the item named `name` with a click, as a user does.
void SelectItem(QListWidget* list, const QString& name)
{
    const auto found = list->findItems(name, Qt::MatchExactly);
    ASSERT_FALSE(found.isEmpty()) << name.toStdString();
    Click(list->viewport(), list->visualItemRect(found.front()).center());
}

// The square at the start of an item: where its icon is.
QImage IconArea(QListWidget* list, int row)
{
    const QRect item = list->visualItemRect(list->item(row));
    return list->viewport()->grab(QRect(item.topLeft(), QSize(item.height(), item.height()))).toImage();
}

class QtDesktop : public ::testing::Test {
protected:
    QtDesktop()
    {
        module = static_cast<CDlgStat2*>(GetModuleFactory(&host));
        previous = AfxSetDialogDriver(&driver);
    }
    ~QtDesktop() override
    {
        AfxSetDialogDriver(previous);
        module->Release();
    }

    // Opens the dialog of menu command `id` as the menu does, `actions`
    // running once its window is up.
    void Open(CMenuGroupMsg* handler, UINT id, std::function<void(QDialog&)> actions)
    {
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

TEST_F(QtDesktop, EachVariableShowsItsKindAndItsWholeNameAlikeInEveryList)
{
    const QString longName = QStringLiteral("Moisture_of_the_soil_at_thirty_centimetres_depth_in_spring");
    host.SetVariables({u"Yield", u"Soil$", u"Dose", longName.toStdU16String()});
    host.sheet.variables[2].categorical = true;
    Open(module->GetRegressionMsg(), 2051, [&](QDialog& window) {
        QListWidget* source = List(window, kSource);
        ASSERT_EQ(source->count(), 4);
        const auto tip = [](QListWidget* list, int row) {
            return ToolTipAt(list->viewport(), list->visualItemRect(list->item(row)).center());
        };
        EXPECT_EQ(tip(source, 0), QStringLiteral("Yield \u2014 numeric variable"));
        EXPECT_EQ(tip(source, 1), QStringLiteral("Soil$ \u2014 string variable"));
        EXPECT_EQ(tip(source, 2), QStringLiteral("Dose \u2014 categorical variable"));
        EXPECT_EQ(tip(source, 3), longName + QStringLiteral(" \u2014 numeric variable"));
        // Below the items the list's own tip shows.
        EXPECT_EQ(ToolTipAt(source->viewport(), QPoint(5, source->viewport()->height() - 3)), source->toolTip());

        // One icon per kind.
        const QImage numeric = IconArea(source, 0), string = IconArea(source, 1), categorical = IconArea(source, 2);
        EXPECT_NE(numeric, string);
        EXPECT_NE(numeric, categorical);
        EXPECT_NE(string, categorical);
        EXPECT_EQ(IconArea(source, 3), numeric);

        // The long name and a categorical variable in target lists: the same
        // icons, the same tips, no sideways scrolling in any list.
        SelectItem(source, longName);
        Click(Control(window, 4104));
        SelectItem(source, QStringLiteral("Dose"));
        Click(Control(window, 4106));
        QListWidget* dependent = List(window, kDependent);
        QListWidget* independent = List(window, kIndependent);
        ASSERT_EQ(dependent->count(), 1);
        ASSERT_EQ(independent->count(), 1);
        for (QListWidget* list : {source, dependent, independent})
            list->clearSelection();
        QCoreApplication::processEvents();
        EXPECT_EQ(IconArea(independent, 0), categorical);
        EXPECT_EQ(tip(dependent, 0), longName + QStringLiteral(" \u2014 numeric variable"));
        for (QListWidget* list : {source, dependent}) {
            const QListWidgetItem* item = list->findItems(longName, Qt::MatchExactly).value(0);
            ASSERT_NE(item, nullptr);
            EXPECT_FALSE(list->horizontalScrollBar()->isVisible());
            EXPECT_LE(list->visualItemRect(item).right(), list->viewport()->width());
            EXPECT_GT(list->fontMetrics().horizontalAdvance(longName), list->viewport()->width());
        }
    });
}

TEST_F(QtDesktop, APageTheDialogCannotUseIsGreyedStruckThroughAndSaysWhy)
{
    host.SetVariables({u"Yield", u"Growth"});
    Open(module->GetCorrelationsMsg(), 2002, [&](QDialog& window) {
        auto* tabs = window.findChild<QTabWidget*>(QString(), Qt::FindDirectChildrenOnly);
        QTabBar* bar = tabs->tabBar();
        constexpr int options = 1;
        ASSERT_TRUE(tabs->isTabEnabled(options));
        EXPECT_TRUE(tabs->tabIcon(options).isNull());
        const QImage available = bar->grab(bar->tabRect(options)).toImage();

        // COVARIANCE: the options apply to none of its statistics.
        const auto choose = [&](int index) {
            auto* combo = qobject_cast<QComboBox*>(Control(window, kMeasureCombo));
            Click(combo);
            Key(combo->view(), Qt::Key_Home);
            for (int i = 0; i < index; ++i)
                Key(combo->view(), Qt::Key_Down);
            Key(combo->view(), Qt::Key_Return);
            ASSERT_EQ(combo->currentIndex(), index);
        };
        choose(1);
        EXPECT_FALSE(tabs->isTabEnabled(options));
        EXPECT_FALSE(tabs->tabIcon(options).isNull());
        EXPECT_NE(bar->grab(bar->tabRect(options)).toImage(), available);
        const QString reason = kalhost::qt::ToQt(host.Resources().GetString(13120));
        ASSERT_FALSE(reason.isEmpty());
        EXPECT_EQ(ToolTipAt(bar, bar->tabRect(options).center()), reason);
        Click(bar, bar->tabRect(options).center());
        EXPECT_EQ(tabs->currentIndex(), 0);

        choose(0);
        EXPECT_TRUE(tabs->isTabEnabled(options));
        EXPECT_TRUE(tabs->tabIcon(options).isNull());
        EXPECT_EQ(bar->grab(bar->tabRect(options)).toImage(), available);
        EXPECT_EQ(ToolTipAt(bar, bar->tabRect(options).center()), QString());
    });
}

TEST_F(QtDesktop, F1AndTheHelpButtonAskForTheHelpOfTheAnalysis)
{
    host.SetVariables({u"Yield", u"Growth"});
    std::vector<UINT> asked;
    kal::HelpSink before = kal::SetHelpSink([&asked](UINT context) { asked.push_back(context); });
    bool stillOpen = false;
    Open(module->GetRegressionMsg(), 2051, [&](QDialog& window) {
        Key(List(window, kSource), Qt::Key_F1);
        Click(Control(window, static_cast<UINT>(IDHELP)));
        QTabBar* bar = window.findChild<QTabWidget*>(QString(), Qt::FindDirectChildrenOnly)->tabBar();
        Click(bar, bar->tabRect(1).center());
        Key(QApplication::focusWidget(), Qt::Key_F1);
        stillOpen = window.isVisible();
    });
    kal::SetHelpSink(std::move(before));
    EXPECT_EQ(asked, (std::vector<UINT>{2051, 2051, 2051}));
    EXPECT_TRUE(stillOpen);
}

TEST_F(QtDesktop, HelpOpensItsDocumentOrSaysWhereItLooked)
{
    kalqttest::UrlCatcher catcher;
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &catcher, "Open");
    const QString url = QStringLiteral("file:///usr/share/doc/kaldlgstat2/commands.md#correlations-2002");
    kalhost::qt::ShowHelpDocument(nullptr, url, QStringLiteral("unused"));
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    EXPECT_EQ(catcher.urls, QStringList{url});

    QString shown;
    kalqttest::WhenPopupShown([&shown](QWidget& popup) {
        auto* box = qobject_cast<QMessageBox*>(&popup);
        ASSERT_NE(box, nullptr);
        shown = box->informativeText();
        box->accept();
    });
    const QString where = QStringLiteral("commands.md#correlations-2002: the document is not installed here "
                                         "(looked for /opt/kal/share/doc/kaldlgstat2/commands.md)");
    kalhost::qt::ShowHelpDocument(nullptr, QString(), where);
    EXPECT_EQ(shown, where);
}

TEST_F(QtDesktop, NamesInOtherScriptsAreDrawnWithRealGlyphs)
{
    // The header of a sample data sheet named in Cyrillic, Chinese,
    // Japanese, Korean, Arabic and Latin letters.
    std::ifstream csv(std::string(KAL_SOURCE_DIR) + "/samples/multilingual.csv");
    std::string header;
    ASSERT_TRUE(std::getline(csv, header));
    std::vector<QString> names;
    std::istringstream columns(header);
    for (std::string name; std::getline(columns, name, ',');)
        names.push_back(QString::fromUtf8(name));
    ASSERT_EQ(names.size(), 7u);
    host.sheet.variables.clear();
    for (const QString& name : names)
        host.sheet.variables.push_back(
            {name.toStdU16String(), name.endsWith(u'$') ? NmsEnum::VT_STRING : NmsEnum::VT_NUMERIC, false});

    // The glyphs a font (with the system's fallbacks) draws for `text`;
    // glyph 0 is the font's box for a character it cannot draw.
    const auto missingGlyphs = [](const QString& text, const QFont& font) {
        QTextLayout layout(text, font);
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        int missing = 0;
        for (const QGlyphRun& run : layout.glyphRuns())
            for (const quint32 glyph : run.glyphIndexes())
                missing += glyph == 0 ? 1 : 0;
        return missing;
    };
    Open(module->GetRegressionMsg(), 2051, [&](QDialog& window) {
        QListWidget* source = List(window, kSource);
        ASSERT_EQ(source->count(), static_cast<int>(names.size()));
        const QFont font = source->font();
        // The check itself: characters no font has are found as boxes.
        const QString unknown = QString::fromUcs4(U"\U0010FFFD\U0010FFFD");
        ASSERT_EQ(missingGlyphs(unknown, font), 2);
        for (int row = 0; row < source->count(); ++row) {
            const QString name = source->item(row)->text();
            SCOPED_TRACE(name.toStdString());
            EXPECT_EQ(missingGlyphs(name, font), 0) << "drawn as boxes: install the fonts of dev.sh";
        }
        // And the list draws every item: each row holds ink beyond its icon.
        const QImage shown = source->viewport()->grab().toImage();
        for (int row = 0; row < source->count(); ++row) {
            const QRect item = source->visualItemRect(source->item(row));
            const QRect text = item.adjusted(item.height() + 4, 0, 0, 0);
            int dark = 0;
            for (int y = text.top(); y <= text.bottom(); ++y)
                for (int x = text.left(); x <= text.right() && x < shown.width(); ++x)
                    dark += qGray(shown.pixel(x, y)) < 128 ? 1 : 0;
            EXPECT_GT(dark, 5) << "row " << row;
        }
    });
}
