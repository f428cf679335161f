#include "tests/qt/QtTestSupport.h"

#include "refhost/qt/QtText.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

#include <algorithm>

using kalhost::qt::ToQt;

namespace kalqttest {

namespace {

// Polls until `find` names a shown window, then runs `actions` on it.
void WhenFound(std::function<QWidget*()> find, std::function<void(QWidget&)> actions)
{
    auto* timer = new QTimer;
    QObject::connect(timer, &QTimer::timeout, [timer, tries = 0, find, actions]() mutable {
        QWidget* window = find();
        if ((!window || !window->isVisible()) && ++tries < 1000)
            return;
        timer->stop();
        timer->deleteLater();
        ASSERT_TRUE(window && window->isVisible()) << "the window did not show up";
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window));
        actions(*window);
    });
    timer->start(5);
}

QWindow* WindowOf(QWidget* widget, QPoint local, QPoint& inWindow)
{
    inWindow = widget->mapTo(widget->window(), local.isNull() ? widget->rect().center() : local);
    return widget->window()->windowHandle();
}

void DoubleClick(QWidget* widget, QPoint local)
{
    QPoint at;
    QTest::mouseDClick(WindowOf(widget, local, at), Qt::LeftButton, {}, at);
}

// What a control shows, read from the model or from its widget.
struct Shown {
    bool enabled = false;
    bool visible = false;
    QString tip = {};
    int check = -1;
    QString text = {};
    QStringList items = {};
    std::vector<int> selected = {};
};

std::string Line(UINT dialogId, const CWnd& control, const Shown& s)
{
    QString line = QStringLiteral("%1/%2 %3 enabled=%4 visible=%5 tip=%6")
                       .arg(dialogId)
                       .arg(control.GetDlgCtrlID())
                       .arg(QString::fromLatin1(ControlKindName(control.GetKind())))
                       .arg(s.enabled)
                       .arg(s.visible)
                       .arg(s.tip);
    if (s.check >= 0)
        line += QStringLiteral(" check=%1").arg(s.check);
    switch (control.GetKind()) {
    case ControlKind::List:
    case ControlKind::ComboBox:
    case ControlKind::Grid:
    case ControlKind::Tab: break; // no text of their own
    default: line += QStringLiteral(" text=") + kalhost::qt::WithoutMnemonic(s.text);
    }
    line += QStringLiteral(" items=[") + s.items.join(u'|') + QStringLiteral("] sel=");
    for (const int i : s.selected)
        line += QString::number(i) + u' ';
    return line.toStdString();
}

Shown FromModel(const CWnd& c)
{
    Shown s{c.IsWindowEnabled() != 0, c.IsWindowVisible() != 0, ToQt(c.GetToolTipText())};
    s.text = ToQt(c.GetWindowText());
    if (const auto* button = dynamic_cast<const CButton*>(&c);
        button && (c.GetKind() == ControlKind::CheckBox || c.GetKind() == ControlKind::RadioButton))
        s.check = button->GetCheck();
    if (const auto* combo = dynamic_cast<const CComboBox*>(&c)) {
        for (const CString& item : combo->Items())
            s.items << ToQt(item);
        s.selected = {combo->GetCurSel()};
    } else if (const auto* list = dynamic_cast<const CListCtrl*>(&c)) {
        for (int i = 0; i < list->GetItemCount(); ++i)
            s.items << ToQt(list->GetItemText(i));
        s.selected = list->GetSelectedItems();
    } else if (const auto* grid = dynamic_cast<const CGridCtrl*>(&c)) {
        for (int r = 0; r < grid->GetRowCount(); ++r) {
            QStringList cells;
            for (int col = 0; col < grid->GetColumnCount(); ++col)
                cells << ToQt(grid->GetItemText(r, col));
            s.items << cells.join(u',');
        }
    } else if (const auto* tabs = dynamic_cast<const CTabCtrl*>(&c)) {
        for (int i = 0; i < tabs->GetItemCount(); ++i)
            s.items << ToQt(tabs->GetItemText(i));
        s.selected = {tabs->GetCurSel()};
    }
    return s;
}

Shown FromWidget(const CWnd& c, QWidget* w)
{
    Shown s{w->isEnabledTo(w->parentWidget()), !w->isHidden(), w->toolTip()};
    if (auto* box = qobject_cast<QGroupBox*>(w))
        s.text = box->title();
    else if (auto* label = qobject_cast<QLabel*>(w))
        s.text = label->text();
    else if (auto* edit = w->findChild<QLineEdit*>(); edit && c.GetKind() == ControlKind::FileEdit)
        s.text = edit->text();
    else if (auto* line = qobject_cast<QLineEdit*>(w))
        s.text = line->text();
    else if (auto* button = qobject_cast<QAbstractButton*>(w)) {
        s.text = button->text();
        if (button->isCheckable())
            s.check = button->isChecked() ? 1 : 0;
    }
    if (auto* combo = qobject_cast<QComboBox*>(w)) {
        for (int i = 0; i < combo->count(); ++i)
            s.items << combo->itemText(i);
        s.selected = {combo->currentIndex()};
    } else if (auto* list = qobject_cast<QListWidget*>(w)) {
        for (int i = 0; i < list->count(); ++i) {
            s.items << list->item(i)->text();
            if (list->item(i)->isSelected())
                s.selected.push_back(i);
        }
    } else if (auto* table = qobject_cast<QTableWidget*>(w)) {
        QStringList header;
        for (int col = 0; col < table->columnCount(); ++col)
            header << table->horizontalHeaderItem(col)->text();
        s.items << header.join(u',');
        for (int r = 0; r + 1 < table->rowCount(); ++r) { // the last row is the one that adds a row
            QStringList cells;
            for (int col = 0; col < table->columnCount(); ++col)
                cells << table->item(r, col)->text();
            s.items << cells.join(u',');
        }
    } else if (auto* tabs = qobject_cast<QTabWidget*>(w)) {
        for (int i = 0; i < tabs->count(); ++i)
            s.items << tabs->tabText(i);
        s.selected = {tabs->currentIndex()};
    }
    return s;
}

// `container` null: from the model.
void Describe(const CDialog& dialog, QWidget* container, std::vector<std::string>& lines)
{
    for (const CWnd* control : dialog.GetChildren()) {
        if (control->GetDlgCtrlID() == 0)
            continue; // unnamed labels
        QWidget* widget = container
                              ? container->findChild<QWidget*>(QStringLiteral("ctl%1").arg(control->GetDlgCtrlID()),
                                                               Qt::FindDirectChildrenOnly)
                              : nullptr;
        if (container && !widget) {
            lines.push_back("no widget for " + std::to_string(control->GetDlgCtrlID()));
            continue;
        }
        lines.push_back(
            Line(dialog.GetTemplateID(), *control, widget ? FromWidget(*control, widget) : FromModel(*control)));
        const auto* tabs = dynamic_cast<const CTabCtrl*>(control);
        for (int i = 0; tabs && i < tabs->GetItemCount(); ++i) {
            const auto* page = dynamic_cast<const CDialog*>(tabs->GetItemPage(i));
            QWidget* pageWidget =
                widget ? widget->findChild<QWidget*>(QStringLiteral("dlg%1").arg(page->GetTemplateID())) : nullptr;
            const bool enabled =
                widget ? pageWidget && pageWidget->isEnabledTo(pageWidget->parentWidget()) : page->IsWindowEnabled();
            lines.push_back("page " + std::to_string(page->GetTemplateID()) + " enabled=" + std::to_string(enabled));
            Describe(*page, pageWidget, lines);
        }
    }
}

std::string MenuText(const std::vector<std::pair<QString, bool>>& entries)
{
    std::string text;
    for (const auto& [caption, enabled] : entries)
        text += caption.toStdString() + (enabled ? "; " : " (disabled); ");
    return text;
}

QListWidgetItem* Item(QListWidget* list, const std::u16string& name)
{
    const auto found = list->findItems(QString::fromStdU16String(name), Qt::MatchExactly);
    EXPECT_FALSE(found.isEmpty()) << "no item " << QString::fromStdU16String(name).toStdString();
    return found.isEmpty() ? nullptr : found.front();
}

// On the first selected item; below the items when nothing is selected.
QPoint OnSelection(QListWidget* list)
{
    const QList<QListWidgetItem*> selected = list->selectedItems();
    if (selected.isEmpty())
        return QPoint(list->viewport()->width() / 2, list->viewport()->height() - 4);
    const auto first = std::min_element(selected.begin(), selected.end(),
                                        [list](auto* a, auto* b) { return list->row(a) < list->row(b); });
    return list->visualItemRect(*first).center();
}

void Perform(QDialog& window, const Action& a, Trace& trace)
{
    QWidget* widget = Control(window, a.id);
    auto* list = qobject_cast<QListWidget*>(widget);
    // A check box or radio button toggles when clicked on its indicator.
    const QPoint indicator(6, widget ? widget->height() / 2 : 0);
    switch (a.kind) {
    case Action::Select:
        for (std::size_t i = 0; i < a.names.size(); ++i)
            if (QListWidgetItem* item = Item(list, a.names[i]))
                Click(list->viewport(), list->visualItemRect(item).center(), Qt::LeftButton,
                      i == 0 ? Qt::NoModifier : Qt::ControlModifier);
        break;
    case Action::Click: Click(widget, qobject_cast<QPushButton*>(widget) ? QPoint() : indicator); break;
    case Action::Check:
        if (qobject_cast<QAbstractButton*>(widget)->isChecked() != (a.number != 0))
            Click(widget, indicator);
        break;
    case Action::Choose: {
        auto* combo = qobject_cast<QComboBox*>(widget);
        Click(combo); // opens the drop-down list
        EXPECT_TRUE(combo->view()->isVisible());
        Key(combo->view(), Qt::Key_Home);
        for (int i = 0; i < a.number; ++i)
            Key(combo->view(), Qt::Key_Down);
        Key(combo->view(), Qt::Key_Return);
        break;
    }
    case Action::Type: {
        auto* edit =
            qobject_cast<QLineEdit*>(widget) ? qobject_cast<QLineEdit*>(widget) : widget->findChild<QLineEdit*>();
        Click(edit);
        Key(edit, Qt::Key_A, Qt::ControlModifier);
        Key(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, QString::fromStdU16String(a.text));
        break;
    }
    case Action::Cell: {
        auto* table = qobject_cast<QTableWidget*>(widget);
        DoubleClick(table->viewport(), table->visualItemRect(table->item(a.number - 1, a.column)).center());
        auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        ASSERT_NE(editor, nullptr) << "no cell editor";
        Key(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor, QString::fromStdU16String(a.text));
        Key(editor, Qt::Key_Return);
        QCoreApplication::processEvents();
        break;
    }
    case Action::DoubleClick:
        if (QListWidgetItem* item = Item(list, a.names.at(0)))
            DoubleClick(list->viewport(), list->visualItemRect(item).center());
        break;
    case Action::Drag: {
        QWidget* target = Control(window, a.target);
        const QPoint from = list->viewport()->mapToGlobal(OnSelection(list));
        const QPoint to = target->mapToGlobal(target->rect().center());
        QWindow* handle = window.windowHandle();
        QTest::mousePress(handle, Qt::LeftButton, {}, handle->mapFromGlobal(from));
        for (int i = 1; i <= 8; ++i)
            QTest::mouseMove(handle, handle->mapFromGlobal(from + (to - from) * i / 8));
        const QCursor* shown = QApplication::overrideCursor();
        CursorShape cursor = CursorShape::Arrow;
        for (const CursorShape shape : {CursorShape::Drop, CursorShape::NoDrop, CursorShape::Remove})
            if (shown && shown->shape() == kalhost::qt::ToQtCursor(shape))
                cursor = shape;
        trace.dragCursors.push_back(cursor);
        QTest::mouseRelease(handle, Qt::LeftButton, {}, handle->mapFromGlobal(to));
        break;
    }
    case Action::Menu: {
        std::string seen = "no menu";
        WhenPopupShown([&seen, command = a.target](QWidget& popup) {
            auto* menu = qobject_cast<QMenu*>(&popup);
            ASSERT_NE(menu, nullptr);
            std::vector<std::pair<QString, bool>> entries;
            QAction* chosen = nullptr;
            for (QAction* action : menu->actions()) {
                entries.emplace_back(action->text(), action->isEnabled());
                if (action->data().toUInt() == command && action->isEnabled())
                    chosen = action;
            }
            seen = MenuText(entries);
            if (chosen)
                Click(menu, menu->actionGeometry(chosen).center());
            else
                Key(menu, Qt::Key_Escape); // a disabled entry cannot be chosen
        });
        Click(list->viewport(), OnSelection(list), Qt::RightButton);
        trace.menus.push_back(seen);
        break;
    }
    case Action::Page: {
        QTabBar* bar = window.findChild<QTabWidget*>(QString(), Qt::FindDirectChildrenOnly)->tabBar();
        Click(bar, bar->tabRect(a.number).center());
        break;
    }
    case Action::Ok: Click(Control(window, static_cast<UINT>(IDOK))); break;
    }
}

} // namespace

void WhenShown(std::function<void(QDialog&)> actions)
{
    WhenFound([] { return QApplication::activeModalWidget(); },
              [actions](QWidget& widget) {
                  auto& window = dynamic_cast<QDialog&>(widget);
                  actions(window);
                  if (window.isVisible())
                      window.done(QDialog::Rejected);
              });
}

void WhenPopupShown(std::function<void(QWidget&)> actions)
{
    WhenFound(
        [current = QApplication::activeModalWidget()]() -> QWidget* {
            if (QWidget* popup = QApplication::activePopupWidget())
                return popup;
            return QApplication::activeModalWidget() != current ? QApplication::activeModalWidget() : nullptr;
        },
        std::move(actions));
}

QWidget* Control(QDialog& window, UINT id)
{
    const QString name = QStringLiteral("ctl%1").arg(id);
    if (auto* tabs = window.findChild<QTabWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (QWidget* control = tabs->currentWidget()->findChild<QWidget*>(name, Qt::FindDirectChildrenOnly))
            return control;
    return window.findChild<QWidget*>(name, Qt::FindDirectChildrenOnly);
}

void Click(QWidget* widget, QPoint local, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    QPoint at;
    QTest::mouseClick(WindowOf(widget, local, at), button, modifiers, at);
}

void Key(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(widget, key, modifiers);
}

std::vector<std::string> DescribeModel(const CDialog& dialog)
{
    std::vector<std::string> lines;
    Describe(dialog, nullptr, lines);
    return lines;
}

std::vector<std::string> DescribeWidgets(QDialog& window, const CDialog& dialog)
{
    std::vector<std::string> lines;
    Describe(dialog, &window, lines);
    return lines;
}

std::string Differences(const std::vector<std::string>& found, const std::vector<std::string>& expected)
{
    std::string text;
    for (std::size_t i = 0; i < std::max(found.size(), expected.size()); ++i) {
        const std::string a = i < found.size() ? found[i] : "(nothing)";
        const std::string b = i < expected.size() ? expected[i] : "(nothing)";
        if (a != b)
            text += "\n  found:    " + a + "\n  expected: " + b;
    }
    return text;
}

void RunHeadless(CHeadlessSession& s, const CHeadlessDriver& driver, const std::vector<Action>& actions, Trace& trace)
{
    for (const Action& a : actions) {
        const std::vector<CString> names(a.names.begin(), a.names.end());
        switch (a.kind) {
        case Action::Select: s.Select(a.id, names); break;
        case Action::Click: s.Click(a.id); break;
        case Action::Check: s.Check(a.id, a.number); break;
        case Action::Choose: s.Choose(a.id, a.number); break;
        case Action::Type: s.Type(a.id, a.text); break;
        case Action::Cell: s.Cell(a.id, a.number, a.column, a.text); break;
        case Action::DoubleClick: // the double-clicked item becomes the selection first
            s.Select(a.id, names);
            s.DoubleClick(a.id);
            break;
        case Action::Drag:
            s.Drag(a.id, a.target);
            trace.dragCursors.push_back(s.LastDragCursor());
            break;
        case Action::Menu: {
            s.Menu(a.id, a.target);
            std::vector<std::pair<QString, bool>> entries;
            for (const CMenuItem& item : driver.LastMenu().Items())
                entries.emplace_back(ToQt(item.caption), item.enabled);
            trace.menus.push_back(MenuText(entries));
            break;
        }
        case Action::Page: s.Page(a.number); break;
        case Action::Ok: s.Ok(); break;
        }
        trace.states.push_back(DescribeModel(s.Dialog()));
    }
}

void RunWidgets(QDialog& window, CDialog& dialog, const std::vector<Action>& actions, Trace& trace)
{
    for (std::size_t i = 0; i < actions.size(); ++i) {
        Perform(window, actions[i], trace);
        trace.states.push_back(DescribeModel(dialog));
        if (dialog.IsRunning()) {
            EXPECT_EQ(Differences(DescribeWidgets(window, dialog), trace.states.back()), "")
                << "widgets after action " << i;
        }
    }
}

} // namespace kalqttest
