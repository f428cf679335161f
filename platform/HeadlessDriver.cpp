#include "platform/HeadlessDriver.h"

#include "platform/UserInput.h"

#include <algorithm>
#include <unordered_map>

namespace {

constexpr UINT kResetButton = 14;

std::string IdText(UINT id)
{
    return std::to_string(id);
}

CTabCtrl* TabControlOf(const CDialog& dialog)
{
    for (CWnd* child : dialog.GetChildren())
        if (auto* tabs = dynamic_cast<CTabCtrl*>(child))
            return tabs;
    return nullptr;
}

} // namespace

CDialog* CHeadlessSession::CurrentPage() const
{
    CTabCtrl* tabs = TabControlOf(m_dialog);
    return tabs ? dynamic_cast<CDialog*>(tabs->GetItemPage(tabs->GetCurSel())) : nullptr;
}

CWnd& CHeadlessSession::Find(UINT id) const
{
    if (CDialog* page = CurrentPage())
        if (CWnd* control = page->GetDlgItem(id))
            return *control;
    if (CWnd* control = m_dialog.GetDlgItem(id))
        return *control;
    throw HeadlessError("no control " + IdText(id) + " on the current page or the dialog");
}

template <class T>
T& CHeadlessSession::As(UINT id, const char* kind) const
{
    auto* control = dynamic_cast<T*>(&Find(id));
    if (!control)
        throw HeadlessError("control " + IdText(id) + " is not " + kind);
    return *control;
}

bool CHeadlessSession::Page(int index)
{
    CTabCtrl* tabs = TabControlOf(m_dialog);
    if (!tabs)
        throw HeadlessError("the dialog has no pages");
    if (index < 0 || index >= tabs->GetItemCount())
        throw HeadlessError("no page " + std::to_string(index) + " (the dialog has " +
                            std::to_string(tabs->GetItemCount()) + ", counted from 0)");
    if (!tabs->IsItemAvailable(index)) {
        const CString reason = tabs->GetItemReason(index);
        throw HeadlessError("page " + std::to_string(index) + " is not available" +
                            (reason.IsEmpty() ? std::string() : ": " + reason.ToUtf8()));
    }
    return CUserInput::SelectTab(*tabs, index);
}

bool CHeadlessSession::Select(UINT list, const std::vector<CString>& names)
{
    auto& control = As<CListCtrl>(list, "a list");
    const std::vector<int> indexes = control.FindItems(names);
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (indexes[i] < 0)
            throw HeadlessError("list " + IdText(list) + " has no item \"" + names[i].ToUtf8() + "\"");
        if (!control.IsItemShown(indexes[i]))
            throw HeadlessError("list " + IdText(list) + " does not show \"" + names[i].ToUtf8() + "\": its filter \"" +
                                control.GetFilter().ToUtf8() + "\" hides it");
    }
    return CUserInput::SelectItems(control, indexes);
}

bool CHeadlessSession::Filter(UINT list, const CString& text)
{
    return CUserInput::FilterItems(As<CListCtrl>(list, "a list"), text);
}

bool CHeadlessSession::Click(UINT id)
{
    CWnd& control = Find(id);
    if (!dynamic_cast<CButton*>(&control))
        throw HeadlessError("control " + IdText(id) + " is not a button");
    return CUserInput::Click(control);
}

bool CHeadlessSession::Check(UINT id, int check)
{
    auto& box = As<CButton>(id, "a check box");
    if (box.GetKind() != ControlKind::CheckBox && box.GetKind() != ControlKind::RadioButton)
        throw HeadlessError("control " + IdText(id) + " is not a check box");
    if (box.GetKind() == ControlKind::RadioButton)
        return check ? CUserInput::Click(box) : CUserInput::IsReachable(box);
    return CUserInput::SetCheck(box, check);
}

bool CHeadlessSession::Choose(UINT combo, int index)
{
    auto& control = As<CComboBox>(combo, "a combo box");
    if (index < 0 || index >= control.GetCount())
        throw HeadlessError("combo box " + IdText(combo) + " has no entry " + std::to_string(index) + " (it has " +
                            std::to_string(control.GetCount()) + ")");
    return CUserInput::ChooseItem(control, index);
}

bool CHeadlessSession::Type(UINT edit, const CString& text)
{
    CWnd& control = Find(edit);
    if (control.GetKind() != ControlKind::Edit && control.GetKind() != ControlKind::FileEdit)
        throw HeadlessError("control " + IdText(edit) + " is not an edit field");
    return CUserInput::TypeText(control, text);
}

bool CHeadlessSession::Cell(UINT grid, int row, int column, const CString& text)
{
    auto& control = As<CGridCtrl>(grid, "a grid");
    if (row < 1 || row > control.GetRowCount() || column < 1 || column >= control.GetColumnCount())
        throw HeadlessError("grid " + IdText(grid) + " has no editable cell " + std::to_string(row) + "," +
                            std::to_string(column));
    return CUserInput::EditCell(control, row, column, text);
}

bool CHeadlessSession::DoubleClick(UINT list)
{
    return CUserInput::DoubleClick(As<CListCtrl>(list, "a list"));
}

bool CHeadlessSession::Drag(UINT list, UINT target)
{
    auto& from = As<CListCtrl>(list, "a list");
    CWnd& over = Find(target);
    if (!CUserInput::BeginDrag(from))
        return false;
    CUserInput::DragOver(from, &over);
    m_lastDragCursor = GetCursor();
    CUserInput::Drop(from, &over);
    return true;
}

bool CHeadlessSession::Menu(UINT list, UINT command)
{
    auto& control = As<CListCtrl>(list, "a list");
    const std::size_t menusBefore = m_menus.ShownCount();
    m_menus.SetChoice(command);
    const bool shown = CUserInput::ContextMenu(control);
    m_menus.SetChoice(0);
    // A command the menu does not list is a mistake of the script; one it
    // lists greyed out is a choice the user cannot make, and does nothing;
    // command 0 shows the menu and chooses nothing.
    if (command != 0 && m_menus.ShownCount() != menusBefore) {
        const auto& items = m_menus.LastMenu().Items();
        if (std::none_of(items.begin(), items.end(), [command](const CMenuItem& i) { return i.id == command; })) {
            std::string listed;
            for (const auto& item : items)
                listed += (listed.empty() ? "" : ", ") + std::to_string(item.id);
            throw HeadlessError("the context menu of list " + IdText(list) + " has no command " +
                                std::to_string(command) + " (it has " + listed + ")");
        }
    }
    return shown;
}

bool CHeadlessSession::Reset()
{
    CDialog* page = CurrentPage();
    CWnd* button = (page ? page : &m_dialog)->GetDlgItem(kResetButton);
    if (!button)
        throw HeadlessError("the current page has no reset button");
    return CUserInput::Click(*button);
}

bool CHeadlessSession::Ok()
{
    if (CWnd* button = m_dialog.GetDlgItem(static_cast<UINT>(IDOK)))
        return CUserInput::Click(*button);
    m_dialog.OnOK();
    return true;
}

bool CHeadlessSession::Cancel()
{
    if (CWnd* button = m_dialog.GetDlgItem(static_cast<UINT>(IDCANCEL)))
        return CUserInput::Click(*button);
    m_dialog.OnCancel();
    return true;
}

int CHeadlessSession::IsChecked(UINT id) const
{
    return As<CButton>(id, "a button").GetCheck();
}

std::vector<CString> CHeadlessSession::Items(UINT list) const
{
    const auto& control = As<CListCtrl>(list, "a list");
    std::vector<CString> items;
    items.reserve(static_cast<std::size_t>(control.GetItemCount()));
    for (int i = 0; i < control.GetItemCount(); ++i)
        if (control.IsItemShown(i))
            items.push_back(control.GetItemText(i));
    return items;
}

int CHeadlessSession::ComboSelection(UINT combo) const
{
    return As<CComboBox>(combo, "a combo box").GetCurSel();
}

CString CHeadlessSession::Text(UINT id) const
{
    CWnd& control = Find(id);
    if (auto* combo = dynamic_cast<CComboBox*>(&control))
        return combo->GetLBText(combo->GetCurSel());
    return control.GetWindowText();
}

INT_PTR CHeadlessDriver::RunModal(CDialog& dialog)
{
    CHeadlessSession session(dialog, m_menus);
    if (m_script)
        m_script(session);
    m_lastLeftOpen = dialog.IsRunning();
    if (m_lastLeftOpen)
        dialog.EndDialog(IDCANCEL);
    return dialog.GetModalResult();
}

INT_PTR CConfirmDriver::RunModal(CDialog& dialog)
{
    dialog.OnCmdMsg(WM_COMMAND, BN_CLICKED, static_cast<UINT>(IDOK));
    if (dialog.IsRunning())
        dialog.EndDialog(IDCANCEL);
    return dialog.GetModalResult();
}

UINT CHeadlessDriver::TrackPopupMenu(CWnd&, const CMenu& menu)
{
    return m_menus.Choose(menu);
}
