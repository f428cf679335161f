// The headless driver: runs a modal dialog by replaying actions, with no
// window system. A script (a function given the running dialog's session)
// acts and checks until it closes the dialog or returns; a dialog still
// running then counts as left open and ends with IDCANCEL.
#pragma once

#include "platform/Dialog.h"

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

// The answer a driver gives a pop-up menu while a script acts: the command
// the script asked for, if the menu has it enabled. Any driver that runs
// scripted actions owns one.
class CMenuScript {
public:
    void SetChoice(UINT id) { m_choice = id; }
    bool HasChoice() const { return m_choice != 0; }
    // Records the menu; returns the scripted command when it is enabled.
    UINT Choose(const CMenu& menu)
    {
        m_lastMenu = menu;
        ++m_shown;
        return menu.IsEnabled(m_choice) ? m_choice : 0;
    }
    const CMenu& LastMenu() const { return m_lastMenu; }
    // How many menus have been shown, so that a caller can tell whether its
    // action showed one.
    std::size_t ShownCount() const { return m_shown; }

private:
    UINT m_choice = 0;
    std::size_t m_shown = 0;
    CMenu m_lastMenu;
};

// An action the dialog cannot take as asked: an unknown control, item or
// index, a control of the wrong kind.
class HeadlessError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// One running dialog as a script sees it. Controls are addressed by id on
// the current page of the dialog's tab control, then on the dialog itself.
// Actions on controls the user cannot reach have no effect and return false.
class CHeadlessSession {
public:
    CHeadlessSession(CDialog& dialog, CMenuScript& menus) : m_dialog(dialog), m_menus(menus) {}

    CDialog& Dialog() const { return m_dialog; }
    bool IsOpen() const { return m_dialog.IsRunning(); }
    CDialog* CurrentPage() const;
    CWnd& Find(UINT id) const; // throws HeadlessError

    bool Page(int index); // 0 is the first page
    // Names a hidden item (see Filter) cannot be selected: it is not shown.
    bool Select(UINT list, const std::vector<CString>& names);
    bool Filter(UINT list, const CString& text);
    bool Click(UINT id);
    bool Check(UINT id, int check);
    bool Choose(UINT combo, int index);
    bool Type(UINT edit, const CString& text);
    bool Cell(UINT grid, int row, int column, const CString& text);
    bool DoubleClick(UINT list);
    bool Drag(UINT list, UINT target);
    bool Menu(UINT list, UINT command);
    bool Reset(); // the current page's reset button (14)
    bool Ok();
    bool Cancel();

    bool IsEnabled(UINT id) const { return Find(id).IsWindowEnabled(); }
    bool IsVisible(UINT id) const { return Find(id).IsWindowVisible(); }
    int IsChecked(UINT id) const;
    // The items the list shows, in order.
    std::vector<CString> Items(UINT list) const;
    int ComboSelection(UINT combo) const;
    // The window text; for a combo box the text of its selected entry.
    CString Text(UINT id) const;
    // The cursor shown during the last drag (Arrow when there was none).
    HCURSOR LastDragCursor() const { return m_lastDragCursor; }

private:
    template <class T>
    T& As(UINT id, const char* kind) const;

    CDialog& m_dialog;
    CMenuScript& m_menus;
    HCURSOR m_lastDragCursor = CursorShape::Arrow;
};

// Runs a dialog as a user who presses OK at once would: what the dialog
// shows for its settings goes back through its OK path. A dialog that
// refuses the OK ends left open (IDCANCEL).
class CConfirmDriver : public CDialogDriver {
public:
    INT_PTR RunModal(CDialog& dialog) override;
    UINT TrackPopupMenu(CWnd&, const CMenu&) override { return 0; }
};

class CHeadlessDriver : public CDialogDriver {
public:
    using Script = std::function<void(CHeadlessSession&)>;

    // The script for the next dialogs; without one they end left open.
    void SetScript(Script script) { m_script = std::move(script); }
    // Whether the last dialog ended because its script stopped with it open.
    bool LastLeftOpen() const { return m_lastLeftOpen; }

    INT_PTR RunModal(CDialog& dialog) override;
    UINT TrackPopupMenu(CWnd& owner, const CMenu& menu) override;

    // Items and enable states of the last menu shown.
    const CMenu& LastMenu() const { return m_menus.LastMenu(); }

private:
    Script m_script;
    bool m_lastLeftOpen = false;
    CMenuScript m_menus;
};
