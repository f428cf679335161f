// Every dialog the module holds, in Qt widgets and worked from the keyboard
// as a user does: on every page each mnemonic lands on the control it
// names, every control Tab reaches shows that it has the focus, and a
// screen reader hears each control by its label, with its role and state.
// A menu row is covered the moment its dialog is part of the module.
#include "Msg/AnalysisofVarianceMsg.h"
#include "Msg/CorrelationsMsg.h"
#include "Msg/GeneralLinearModelMsg.h"
#include "Msg/MixedModelMsg.h"
#include "Msg/MixedRegressionMsg.h"
#include "Msg/MultivariateAnalysisMsg.h"
#include "Msg/QualityAnalysisMsg.h"
#include "Msg/RegressionMsg.h"
#include "Msg/Stat2SingleMenuItemsMsg.h"
#include "Source/DlgStat2.h"
#include "refhost/qt/QtView.h"
#include "tests/qt/QtTestSupport.h"
#include "tests/support/FakeHost.h"
#include "tests/support/Mnemonics.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>
#include <set>

using namespace kaltest;

namespace {

constexpr UINT kTabDialogTemplate = 101;

// The widget of control `id` on `container` and the one of its children
// that takes the focus.
QWidget* ControlWidget(QWidget* container, UINT id)
{
    return container->findChild<QWidget*>(QStringLiteral("ctl%1").arg(id), Qt::FindDirectChildrenOnly);
}

QWidget* FocusTarget(QWidget* control)
{
    if (auto* edit = control->findChild<QLineEdit*>();
        edit && !qobject_cast<QLineEdit*>(control) && control->focusProxy() == edit)
        return edit;
    return control;
}

// The control whose widget holds `widget`.
QString ControlOf(QWidget* widget)
{
    for (; widget; widget = widget->parentWidget())
        if (widget->objectName().startsWith(QStringLiteral("ctl")))
            return widget->objectName();
    return QStringLiteral("nothing");
}

void Walk(QAccessibleInterface* node, const std::function<void(QAccessibleInterface&)>& visit)
{
    visit(*node);
    for (int i = 0; i < node->childCount(); ++i)
        if (QAccessibleInterface* child = node->child(i))
            Walk(child, visit);
}

// Where the keyboard tests start and end a round: the tab bar, or the
// window itself when it has no pages.
void FocusHome(QDialog& window)
{
    if (auto* tabs = window.findChild<QTabWidget*>(QString(), Qt::FindDirectChildrenOnly))
        tabs->tabBar()->setFocus(Qt::OtherFocusReason);
    else
        window.setFocus(Qt::OtherFocusReason);
}

// The radio buttons of each group, by widget name: a group starts at a
// radio button with the group style or after any other control.
std::vector<std::vector<QString>> RadioGroups(const DialogTemplate& t)
{
    std::vector<std::vector<QString>> groups;
    bool inGroup = false;
    for (const ControlTemplate& c : t.controls) {
        if (c.kind != ControlKind::RadioButton) {
            inGroup = false;
            continue;
        }
        if (!inGroup || (c.style & WS_GROUP))
            groups.emplace_back();
        groups.back().push_back(QStringLiteral("ctl%1").arg(c.id));
        inGroup = true;
    }
    return groups;
}

class QtEveryDialog : public ::testing::Test {
protected:
    QtEveryDialog()
    {
        host.SetVariables({u"Yield", u"Growth", u"Dose", u"Soil$", u"Rain", u"Weight"});
        host.sheet.variables[2].categorical = true;
        module = static_cast<CDlgStat2*>(GetModuleFactory(&host));
        previous = AfxSetDialogDriver(&driver);
    }
    ~QtEveryDialog() override
    {
        AfxSetDialogDriver(previous);
        module->Release();
    }

    std::vector<const MenuCommandRow*> AvailableRows() const
    {
        IDlgStat2& m = *module;
        const std::vector<CMenuGroupMsg*> handlers = {
            m.GetAnalysisofVarianceMsg(), m.GetCorrelationsMsg(),    m.GetGeneralLinearModelMsg(),
            m.GetMixedModelMsg(),         m.GetMixedRegressionMsg(), m.GetMultivariateAnalysisMsg(),
            m.GetQualityAnalysisMsg(),    m.GetRegressionMsg(),      m.GetStat2SingleMenuItemsMsg()};
        std::vector<const MenuCommandRow*> rows;
        for (CMenuGroupMsg* handler : handlers)
            for (const MenuCommandRow& row : handler->Rows())
                if (row.IsAvailable())
                    rows.push_back(&row);
        return rows;
    }

    // Opens the dialog of every available row as its menu command does and
    // runs `onPage` on each page the user can turn to.
    void ForEveryPage(const std::function<void(QDialog&, QWidget& page, const DialogTemplate&)>& onPage)
    {
        const auto rows = AvailableRows();
        ASSERT_FALSE(rows.empty());
        for (const MenuCommandRow* row : rows) {
            SCOPED_TRACE("command " + std::to_string(row->id));
            int pages = 0;
            kalqttest::WhenShown([&](QDialog& window) {
                auto* tabs = window.findChild<QTabWidget*>(QString(), Qt::FindDirectChildrenOnly);
                if (!tabs) {
                    // A dialog without pages is its one page.
                    const auto t = host.Resources().GetDialogTemplate(window.objectName().mid(3).toUInt());
                    ASSERT_NE(t, nullptr) << window.objectName().toStdString();
                    onPage(window, window, *t);
                    ++pages;
                    return;
                }
                for (int i = 0; i < tabs->count(); ++i) {
                    if (!tabs->isTabEnabled(i))
                        continue;
                    kalqttest::Click(tabs->tabBar(), tabs->tabBar()->tabRect(i).center());
                    ASSERT_EQ(tabs->currentIndex(), i);
                    QWidget* page = tabs->currentWidget();
                    const UINT templateId = page->objectName().mid(3).toUInt();
                    const auto t = host.Resources().GetDialogTemplate(templateId);
                    ASSERT_NE(t, nullptr) << page->objectName().toStdString();
                    SCOPED_TRACE("page " + std::to_string(i) + ", template " + std::to_string(templateId));
                    onPage(window, *page, *t);
                    ++pages;
                }
            });
            row->launch(&host, row->id, nullptr, *row, nullptr);
            EXPECT_GT(pages, 0);
        }
    }

    FakeHost host;
    CDlgStat2* module = nullptr;
    kalhost::qt::QtDialogDriver driver;
    CDialogDriver* previous = nullptr;
};

} // namespace

TEST_F(QtEveryDialog, EveryMnemonicLandsOnTheControlItNames)
{
    int pressed = 0;
    ForEveryPage([&](QDialog& window, QWidget& page, const DialogTemplate& t) {
        for (std::size_t i = 0; i < t.controls.size(); ++i) {
            const ControlTemplate& c = t.controls[i];
            const auto key = MnemonicOf(c.caption);
            if (!key || c.kind == ControlKind::GroupBox)
                continue;
            // A label's mnemonic focuses the next control after it.
            const ControlTemplate* target = &c;
            if (c.kind == ControlKind::Static) {
                target = BuddyOf(t.controls, i);
                ASSERT_NE(target, nullptr) << "label " << c.caption.ToUtf8() << " names nothing";
            }
            QWidget* control = ControlWidget(&page, target->id);
            ASSERT_NE(control, nullptr) << "no widget for " << target->id;
            // The rules may have disabled it: a disabled control takes no
            // focus, from a mnemonic or otherwise.
            if (!control->isEnabled() || !control->isVisible())
                continue;
            FocusHome(window);
            const std::string what = "Alt+" + QString(QChar(*key)).toStdString() + " (" + c.caption.ToUtf8() + ")";
            auto* push = target->kind == ControlKind::PushButton ? qobject_cast<QPushButton*>(control) : nullptr;
            std::optional<QSignalSpy> clicks;
            if (push)
                clicks.emplace(push, &QAbstractButton::clicked);
            QTest::keyClick(&window, static_cast<Qt::Key>(QChar(*key).toUpper().unicode()), Qt::AltModifier);
            QCoreApplication::processEvents();
            if (push) {
                // A push button's mnemonic presses it where it is.
                EXPECT_TRUE(clicks->count() > 0 || clicks->wait(2000)) << what << " does not press its button";
            } else {
                EXPECT_EQ(ControlOf(QApplication::focusWidget()), control->objectName()) << what;
                EXPECT_EQ(QApplication::focusWidget(), FocusTarget(control)) << what;
            }
            ++pressed;
        }
    });
    EXPECT_GT(pressed, 50);
}

TEST_F(QtEveryDialog, TabReachesEveryControlAndEachShowsTheFocus)
{
    int shown = 0;
    ForEveryPage([&](QDialog& window, QWidget& page, const DialogTemplate& t) {
        auto* tabs = window.findChild<QTabWidget*>(QString(), Qt::FindDirectChildrenOnly);
        FocusHome(window);
        QCoreApplication::processEvents();
        // Each control as it looks without the focus.
        std::map<QString, QImage> without;
        std::map<QString, const ControlTemplate*> templates;
        for (const ControlTemplate& c : t.controls) {
            QWidget* control = c.id ? ControlWidget(&page, c.id) : nullptr;
            if (control && control->isEnabled() && control->isVisible() &&
                (FocusTarget(control)->focusPolicy() & Qt::TabFocus)) {
                without[control->objectName()] = control->grab().toImage();
                templates[control->objectName()] = &c;
            }
        }
        // Tab round the window once, as a keyboard user does.
        std::set<QString> reached;
        for (int step = 0; step < 200; ++step) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCoreApplication::processEvents();
            QWidget* focus = QApplication::focusWidget();
            if (tabs && focus == tabs->tabBar())
                break;
            const QString name = ControlOf(focus);
            QWidget* control = ControlWidget(&page, name.mid(3).toUInt());
            if (!control || !without.count(name) || !reached.insert(name).second)
                continue;
            const ControlTemplate& c = *templates[name];
            // The default button is drawn emphasised already; the focus
            // adds nothing a picture tells apart.
            if (c.style & BS_DEFPUSHBUTTON)
                continue;
            EXPECT_NE(control->grab().toImage(), without[name])
                << ControlKindName(c.kind) << " " << c.id << " " << c.caption.ToUtf8()
                << " looks the same with the focus";
            ++shown;
        }
        // A radio group is one Tab stop; the arrow keys move within it.
        for (const std::vector<QString>& group : RadioGroups(t)) {
            const auto entered =
                std::find_if(group.begin(), group.end(), [&](const QString& name) { return reached.count(name) > 0; });
            if (entered == group.end())
                continue;
            // Moving the choice may switch off later controls: the group's
            // first choice is restored after the walk.
            QAbstractButton* chosen = nullptr;
            for (const QString& name : group)
                if (auto* b = qobject_cast<QAbstractButton*>(ControlWidget(&page, name.mid(3).toUInt()));
                    b && b->isChecked())
                    chosen = b;
            ControlWidget(&page, entered->mid(3).toUInt())->setFocus(Qt::TabFocusReason);
            for (std::size_t i = 0; i < 2 * group.size(); ++i) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
                reached.insert(ControlOf(QApplication::focusWidget()));
            }
            if (chosen && !chosen->isChecked())
                QTest::mouseClick(chosen, Qt::LeftButton);
        }
        for (const auto& [name, picture] : without)
            EXPECT_TRUE(reached.count(name)) << "the keyboard never reaches " << name.toStdString();
    });
    EXPECT_GT(shown, 60);
}

TEST_F(QtEveryDialog, EveryPageTellsReadersNamesRolesAndStates)
{
    int named = 0;
    ForEveryPage([&](QDialog& window, QWidget& page, const DialogTemplate&) {
        // Tabs: a greyed one is disabled for readers too, and its tip says why.
        if (auto* tabs = window.findChild<QTabWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(tabs->tabBar());
            for (int i = 0; i < tabs->count(); ++i) {
                QAccessibleInterface* tab = bar->child(i);
                ASSERT_NE(tab, nullptr);
                EXPECT_EQ(tab->role(), QAccessible::PageTab);
                EXPECT_EQ(tab->state().disabled, !tabs->isTabEnabled(i)) << "tab " << i;
                EXPECT_EQ(tabs->tabToolTip(i).isEmpty(), tabs->isTabEnabled(i)) << "tab " << i;
            }
        }
        Walk(QAccessible::queryAccessibleInterface(&page), [&](QAccessibleInterface& node) {
            auto* widget = qobject_cast<QWidget*>(node.object());
            if (!widget || !widget->isVisibleTo(&window))
                return;
            const std::string where = widget->objectName().toStdString();
            EXPECT_EQ(node.state().disabled, !widget->isEnabled()) << where;
            if (qobject_cast<QRadioButton*>(widget)) {
                EXPECT_EQ(node.role(), QAccessible::RadioButton) << where;
            }
            const QAccessible::Role role = node.role();
            if (role == QAccessible::List || role == QAccessible::Table || role == QAccessible::EditableText ||
                role == QAccessible::ComboBox) {
                EXPECT_FALSE(node.text(QAccessible::Name).isEmpty()) << where << " has no name";
                ++named;
            }
            // A hint names no control: its text is no buddy's.
            if (auto* label = qobject_cast<QLabel*>(widget); label && !label->text().endsWith(u':')) {
                EXPECT_EQ(label->buddy(), nullptr) << where << " " << label->text().toStdString();
            }
        });
        // Each variable of a list tells its kind.
        for (auto* list : page.findChildren<QListWidget*>())
            for (int row = 0; row < list->count(); ++row)
                EXPECT_FALSE(list->item(row)->data(Qt::AccessibleDescriptionRole).toString().isEmpty())
                    << list->objectName().toStdString();
    });
    EXPECT_GT(named, 200);
}
