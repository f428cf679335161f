// CUserInput: what a user does to a dialog, turned into model changes and
// the notifications the dialog class handles. Both drivers go through it,
// so a dialog behaves the same headless and in real windows. Input to a
// control the user cannot reach (disabled or hidden, itself or a window
// above it) has no effect and returns false.
#pragma once

#include "platform/Dialog.h"

class CUserInput {
public:
    static bool IsReachable(const CWnd& wnd);
    // The dialog a control belongs to.
    static CDialog* OwnerDialog(const CWnd& control);

    // Push buttons send BN_CLICKED; check boxes toggle first; radio buttons
    // check themselves and uncheck the rest of their group first.
    static bool Click(CWnd& control);
    // Clicks the check box when its state differs from `check`.
    static bool SetCheck(CButton& box, int check);
    // Exactly these items selected, then one LVN_ITEMCHANGED.
    static bool SelectItems(CListCtrl& list, const std::vector<int>& indexes);
    // Types into the filter field of a list: only the items holding `text`
    // stay shown, then one LVN_ITEMCHANGED, as the shown selection may have
    // changed.
    static bool FilterItems(CListCtrl& list, const CString& text);
    static bool DoubleClick(CListCtrl& list);
    static bool ChooseItem(CComboBox& combo, int index);
    static bool TypeText(CWnd& edit, const CString& text);
    // Edits a data cell (row >= 1, column >= 1), the row just after the last
    // one included, then GVN_ENDLABELEDIT.
    static bool EditCell(CGridCtrl& grid, int row, int column, const CString& text);
    // A tab the dialog shows as unavailable cannot be chosen.
    static bool SelectTab(CTabCtrl& tabs, int index);

    // Drag and drop of a list's selection: LVN_BEGINDRAG, then the owning
    // dialog's OnDragOver / OnDragRelease with the window under the cursor.
    static bool BeginDrag(CListCtrl& from);
    static void DragOver(CListCtrl& from, CWnd* over);
    static void Drop(CListCtrl& from, CWnd* over);

    // Right click on a control: the owning dialog's OnContextMenu.
    static bool ContextMenu(CWnd& control);
};
