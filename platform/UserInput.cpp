#include "platform/UserInput.h"

bool CUserInput::IsReachable(const CWnd& wnd)
{
    for (const CWnd* w = &wnd; w; w = w->GetParent())
        if (!w->IsWindowEnabled() || !w->IsWindowVisible())
            return false;
    return wnd.IsCreated();
}

CDialog* CUserInput::OwnerDialog(const CWnd& control)
{
    for (CWnd* w = control.GetParent(); w; w = w->GetParent())
        if (auto* dialog = dynamic_cast<CDialog*>(w))
            return dialog;
    return nullptr;
}

bool CUserInput::Click(CWnd& control)
{
    if (!IsReachable(control))
        return false;
    if (auto* button = dynamic_cast<CButton*>(&control)) {
        if (control.GetKind() == ControlKind::CheckBox) {
            button->SetCheck(button->GetCheck() ? BST_UNCHECKED : BST_CHECKED);
        } else if (control.GetKind() == ControlKind::RadioButton) {
            if (CDialog* dialog = OwnerDialog(control))
                for (CButton* other : dialog->GetRadioGroup(&control))
                    other->SetCheck(other == button ? BST_CHECKED : BST_UNCHECKED);
            button->SetCheck(BST_CHECKED);
        }
    }
    control.NotifyParent(BN_CLICKED);
    return true;
}

bool CUserInput::SetCheck(CButton& box, int check)
{
    if (!IsReachable(box))
        return false;
    if ((box.GetCheck() != 0) != (check != 0))
        Click(box);
    return true;
}

bool CUserInput::SelectItems(CListCtrl& list, const std::vector<int>& indexes)
{
    if (!IsReachable(list))
        return false;
    list.SetSelection(indexes);
    list.NotifyParentEx(LVN_ITEMCHANGED);
    return true;
}

bool CUserInput::FilterItems(CListCtrl& list, const CString& text)
{
    if (!IsReachable(list))
        return false;
    list.SetFilter(text);
    list.NotifyParentEx(LVN_ITEMCHANGED);
    return true;
}

bool CUserInput::DoubleClick(CListCtrl& list)
{
    if (!IsReachable(list))
        return false;
    list.NotifyParentEx(NM_DBLCLK);
    return true;
}

bool CUserInput::ChooseItem(CComboBox& combo, int index)
{
    if (!IsReachable(combo) || index < 0 || index >= combo.GetCount())
        return false;
    combo.SetCurSel(index);
    combo.NotifyParent(CBN_SELCHANGE);
    return true;
}

bool CUserInput::TypeText(CWnd& edit, const CString& text)
{
    if (!IsReachable(edit))
        return false;
    edit.SetWindowText(text);
    edit.NotifyParent(EN_CHANGE);
    return true;
}

bool CUserInput::EditCell(CGridCtrl& grid, int row, int column, const CString& text)
{
    if (!IsReachable(grid) || row < 1 || row > grid.GetRowCount() || column < 1 || column >= grid.GetColumnCount())
        return false;
    grid.SetItemText(row, column, text);
    grid.SetFocusRow(row);
    grid.NotifyParentEx(GVN_ENDLABELEDIT);
    return true;
}

bool CUserInput::SelectTab(CTabCtrl& tabs, int index)
{
    if (!IsReachable(tabs) || !tabs.IsItemAvailable(index))
        return false;
    tabs.SetCurSel(index);
    tabs.NotifyParentEx(TCN_SELCHANGE);
    return true;
}

bool CUserInput::BeginDrag(CListCtrl& from)
{
    if (!IsReachable(from) || from.GetSelectedCount() == 0)
        return false;
    from.NotifyParentEx(LVN_BEGINDRAG);
    return true;
}

void CUserInput::DragOver(CListCtrl& from, CWnd* over)
{
    if (CDialog* dialog = OwnerDialog(from))
        dialog->OnDragOver(over);
}

void CUserInput::Drop(CListCtrl& from, CWnd* over)
{
    if (CDialog* dialog = OwnerDialog(from))
        dialog->OnDragRelease(over);
}

bool CUserInput::ContextMenu(CWnd& control)
{
    if (!IsReachable(control))
        return false;
    if (CDialog* dialog = OwnerDialog(control))
        dialog->OnContextMenu(&control);
    return true;
}
