// Driving dialogs through their Qt widgets in tests: real mouse and key
// events through the (offscreen) window system, the headless driver's
// actions done the way a user does them, and one description format for
// the model and for what the widgets show.
#pragma once

#include "platform/HeadlessDriver.h"

#include <QDialog>
#include <QPoint>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace kalqttest {

// Runs `actions` on the dialog window once it is up; closes it behind them
// if they leave it open, so that DoModal returns.
void WhenShown(std::function<void(QDialog&)> actions);
// Runs `actions` once the next pop-up menu or modal window is up.
void WhenPopupShown(std::function<void(QWidget&)> actions);

// The widget of control `id` on the current tab page, else on the dialog.
QWidget* Control(QDialog& window, UINT id);

// Mouse input through the window holding `widget`, at `local` (default:
// the centre).
void Click(QWidget* widget, QPoint local = {}, Qt::MouseButton button = Qt::LeftButton,
           Qt::KeyboardModifiers modifiers = {});
void Key(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {});

// Every control of the dialog and its pages, a line each: id, kind, own
// enable state and visibility, tool tip and contents.
std::vector<std::string> DescribeModel(const CDialog& dialog);
std::vector<std::string> DescribeWidgets(QDialog& window, const CDialog& dialog);
// The lines in which two descriptions differ; empty when they agree.
std::string Differences(const std::vector<std::string>& found, const std::vector<std::string>& expected);

// One user action, named as in an action script.
struct Action {
    enum Kind { Select, Click, Check, Choose, Type, Cell, DoubleClick, Drag, Menu, Page, Ok };
    Kind kind = Ok;
    UINT id = 0;
    std::vector<std::u16string> names = {}; // Select; DoubleClick: the item
    int number = 0;                         // Check value, Choose index, Page, Cell row
    int column = 0;                         // Cell
    std::u16string text = {};               // Type, Cell
    UINT target = 0;                        // Drag target, Menu command
};

// What actions left behind: the model after each, each drag's cursor, each
// menu's entries.
struct Trace {
    std::vector<std::vector<std::string>> states;
    std::vector<CursorShape> dragCursors;
    std::vector<std::string> menus;
};

// Short builders for action lists.
namespace act {
inline Action Select(UINT list, std::vector<std::u16string> names)
{
    return {Action::Select, list, std::move(names)};
}
inline Action Click(UINT id)
{
    return {Action::Click, id};
}
inline Action Check(UINT id, int check)
{
    return {Action::Check, id, {}, check};
}
inline Action Choose(UINT combo, int index)
{
    return {Action::Choose, combo, {}, index};
}
inline Action Type(UINT edit, std::u16string text)
{
    return {Action::Type, edit, {}, 0, 0, std::move(text)};
}
inline Action Cell(UINT grid, int row, int column, std::u16string text)
{
    return {Action::Cell, grid, {}, row, column, std::move(text)};
}
inline Action DoubleClick(UINT list, std::u16string item)
{
    return {Action::DoubleClick, list, {std::move(item)}};
}
inline Action Drag(UINT list, UINT target)
{
    return {Action::Drag, list, {}, 0, 0, {}, target};
}
inline Action Menu(UINT list, UINT command)
{
    return {Action::Menu, list, {}, 0, 0, {}, command};
}
inline Action Page(int index)
{
    return {Action::Page, 0, {}, index};
}
inline const Action Ok{Action::Ok};
} // namespace act

void RunHeadless(CHeadlessSession& session, const CHeadlessDriver& driver, const std::vector<Action>& actions,
                 Trace& trace);
// The same through the widgets; after each action the widgets must show
// what the model holds.
void RunWidgets(QDialog& window, CDialog& dialog, const std::vector<Action>& actions, Trace& trace);

} // namespace kalqttest
