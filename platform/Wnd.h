// The window model: windows and controls by id, built from a dialog
// template, holding all the state a view shows (enable, visibility, texts,
// checks, list items and selection, combo entries, grid cells, tab pages,
// tool tips). It has no idea how it is drawn: a driver attaches a CWndView
// to each window it shows and is told about every change.
//
// Changes made by code never notify the dialog (as with the desktop
// framework's Set* calls); user input does, through CUserInput, which both
// the headless and the Qt driver use.
#pragma once

#include "platform/CString.h"
#include "platform/CmdTarget.h"
#include "platform/DialogTemplate.h"
#include "platform/TextIndex.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

class CWnd;
class CDialog;

enum class WndAspect {
    Enabled,
    Visible,
    Text,
    Check,
    Items,     // list or combo entries changed
    Selection, // list selection or combo / tab current item
    Cells,     // grid contents or shape
    ToolTip,
    Pages, // tab pages
    Invalidated,
    Focus, // the window was given the keyboard focus
};

// A driver's window for one model window.
class CWndView {
public:
    virtual ~CWndView() = default;
    virtual void Refresh(CWnd& wnd, WndAspect aspect) = 0;
};

enum : int {
    SW_HIDE = 0,
    SW_SHOW = 5,
};

enum : int {
    BST_UNCHECKED = 0,
    BST_CHECKED = 1,
};

class CWnd : public CCmdTarget {
    DECLARE_DYNAMIC(CWnd)
public:
    CWnd() = default;
    ~CWnd() override;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    UINT GetDlgCtrlID() const { return m_nID; }
    ControlKind GetKind() const { return m_kind; }
    const ControlTemplate* GetTemplate() const { return m_pTemplate; }
    CWnd* GetParent() const { return m_pParent; }
    bool IsCreated() const { return m_bCreated; }

    BOOL IsWindowEnabled() const { return m_bEnabled; }
    BOOL EnableWindow(BOOL enable = TRUE);
    BOOL IsWindowVisible() const { return m_bVisible; }
    void ShowWindow(int command);
    void SetWindowText(const CString& text);
    CString GetWindowText() const { return m_strText; }
    void Invalidate(BOOL erase = TRUE);
    // Gives this window the keyboard focus: its dialog remembers it, a view
    // moves the focus there.
    void SetFocus();

    void SetToolTipText(const CString& text);
    const CString& GetToolTipText() const { return m_strToolTip; }

    // Child controls, in template order.
    CWnd* GetDlgItem(UINT id) const;
    const std::vector<CWnd*>& GetChildren() const { return m_children; }

    // Takes over the control `id` of `parent` that the template created: this
    // object becomes that control (same id, template, state) and the generic
    // one is dropped. Returns false when `parent` has no such control.
    bool SubclassDlgItem(UINT id, CWnd* parent);

    void SetView(CWndView* view) { m_pView = view; }
    CWndView* GetView() const { return m_pView; }

    // Sends a command notification (WM_COMMAND) or a control notification
    // (WM_NOTIFY) to the parent, as the control does on user input.
    BOOL NotifyParent(int code);
    BOOL NotifyParentEx(int code);

protected:
    void Changed(WndAspect aspect);
    // Called by Invalidate: a window that derives state from others (a tab
    // dialog's page states) refreshes it here.
    virtual void OnInvalidated() {}
    // Kind-specific state of a subclassed control is empty at that point;
    // the base state travels.
    virtual void CopyBaseStateFrom(const CWnd& other);

    friend class CDialog;
    void InitFromTemplate(const ControlTemplate& t, CWnd* parent);
    void AddChild(CWnd* child) { m_children.push_back(child); }
    void ReplaceChild(CWnd* oldChild, CWnd* newChild);
    void Detach();

    UINT m_nID = 0;
    ControlKind m_kind = ControlKind::Static;
    const ControlTemplate* m_pTemplate = nullptr;
    CWnd* m_pParent = nullptr;
    bool m_bCreated = false;
    bool m_bEnabled = true;
    bool m_bVisible = true;
    CString m_strText;
    CString m_strToolTip;
    std::vector<CWnd*> m_children;
    CWndView* m_pView = nullptr;
};

class CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)
};

// Push button, check box, radio button and group box.
class CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)
public:
    int GetCheck() const { return m_nCheck; }
    void SetCheck(int check);

private:
    int m_nCheck = BST_UNCHECKED;
};

class CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)
};

class CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)
public:
    static constexpr int CB_ERR = -1;

    void ResetContent();
    int AddString(const CString& text);
    int GetCount() const { return static_cast<int>(m_items.size()); }
    int GetCurSel() const { return m_nCurSel; }
    // -1 clears the selection; an index out of range selects nothing and
    // returns CB_ERR.
    int SetCurSel(int index);
    CString GetLBText(int index) const;
    const std::vector<CString>& Items() const { return m_items; }

private:
    std::vector<CString> m_items;
    int m_nCurSel = CB_ERR;
};

// A multi-selection list of text items.
class CListCtrl : public CWnd {
    DECLARE_DYNAMIC(CListCtrl)
public:
    int GetItemCount() const { return static_cast<int>(m_items.size()); }
    int InsertItem(int index, const CString& text);
    BOOL DeleteItem(int index);
    BOOL DeleteAllItems();
    // Deletes the items whose mark is set in one pass; the others keep their
    // order and selection. One change for views.
    void DeleteItems(const std::vector<bool>& marked);
    CString GetItemText(int index) const;
    bool IsItemSelected(int index) const;
    void SetItemSelected(int index, bool selected);
    void SetSelection(const std::vector<int>& indexes);
    // The selected items that are shown (see SetFilter), in order.
    std::vector<int> GetSelectedItems() const;
    int GetSelectedCount() const;

    // Shows only the items whose text holds `text`, in any case (empty: all
    // of them). A hidden item keeps its place and its selection flag but
    // takes no part in what the user does: the selection reported, set or
    // moved is that of the shown items. Items added later follow it.
    void SetFilter(const CString& text);
    const CString& GetFilter() const { return m_filter; }
    bool IsItemShown(int index) const;
    // The indexes of the shown items, in order.
    std::vector<int> GetShownItems() const;
    // Replaces every item at once, selection cleared; one change for views.
    void SetItems(std::vector<CString> texts);
    // The same with the items' texts handed over one by one: text(i) for i
    // below count, without a list of them on the way; hash(i), when given,
    // is CTextIndex::Hash of text(i), known to the caller.
    template <class TextOf, class HashOf>
    void SetItems(std::size_t count, const TextOf& text, const HashOf& hash)
    {
        m_items.clear();
        m_items.reserve(count);
        for (std::size_t i = 0; i < count; ++i)
            m_items.emplace_back(text(i), hash(i));
        ItemsReplaced();
    }
    template <class TextOf>
    void SetItems(std::size_t count, const TextOf& text)
    {
        m_items.clear();
        m_items.reserve(count);
        for (std::size_t i = 0; i < count; ++i)
            m_items.emplace_back(text(i));
        ItemsReplaced();
    }
    // The first item showing `text`, or -1. The index behind it is built
    // when first asked after a change and follows items appended since.
    int FindItem(std::u16string_view text) const;
    // FindItem for several texts at once (-1 for each not shown). Without
    // the list's index, the texts are indexed instead and the list is read
    // once: picking 1,000 of 1,000,000 items builds no index of a million.
    std::vector<int> FindItems(const std::vector<CString>& texts) const;

private:
    // Each item keeps its text's hash: finding names in a long list then
    // reads a text only where a hash agrees.
    struct Item {
        CString text;
        std::uint32_t hash = 0;
        bool selected = false;
        bool hidden = false;

        explicit Item(CString t) : text(std::move(t)), hash(CTextIndex::Hash(text.Str())) {}
        Item(CString t, std::uint32_t h) : text(std::move(t)), hash(h) {}
    };
    std::u16string_view TextOf(int i) const { return m_items[static_cast<std::size_t>(i)].text.Str(); }
    std::uint32_t HashOf(int i) const { return m_items[static_cast<std::size_t>(i)].hash; }
    std::vector<Item> m_items;

    // The selected items in order, kept beside the items' flags so that a
    // list of 100,000 entries answers "what is selected" by its selection.
    void ForgetSelection() { m_selectionKnown = false; }
    bool FilterHides(std::u16string_view text) const;
    void ApplyFilter();
    void ItemsReplaced();
    const std::vector<int>& Selection() const;

    mutable CTextIndex m_index;
    CString m_filter;            // as the user typed it
    std::u16string m_filterFold; // the same in lower case
    mutable std::vector<int> m_selection;
    mutable bool m_selectionKnown = true;
};

// Tab control: captions and, per tab, the page window it shows. A tab the
// dialog shows as unavailable cannot be chosen; it carries the reason.
class CTabCtrl : public CWnd {
    DECLARE_DYNAMIC(CTabCtrl)
public:
    int InsertItem(int index, const CString& caption, CWnd* page = nullptr);
    int GetItemCount() const { return static_cast<int>(m_tabs.size()); }
    CString GetItemText(int index) const;
    CWnd* GetItemPage(int index) const;
    int GetCurSel() const { return m_nCurSel; }
    int SetCurSel(int index);
    void SetItemAvailable(int index, bool available, const CString& reason = {});
    bool IsItemAvailable(int index) const;
    // Why the tab is unavailable (empty while it is available).
    CString GetItemReason(int index) const;

private:
    struct Tab {
        CString caption;
        CWnd* page;
        bool available = true;
        CString reason;
    };
    std::vector<Tab> m_tabs;
    int m_nCurSel = -1;
};

// A grid of texts: row 0 holds the column headers, column 0 is the fixed
// row-number column; data rows start at 1. Writing a cell of the row just
// after the last row adds that row.
class CGridCtrl : public CWnd {
    DECLARE_DYNAMIC(CGridCtrl)
public:
    int GetRowCount() const { return static_cast<int>(m_cells.size()); }
    int GetColumnCount() const { return m_nColumns; }
    void SetColumnCount(int columns);
    void SetRowCount(int rows);
    CString GetItemText(int row, int column) const;
    BOOL SetItemText(int row, int column, const CString& text);
    int InsertRow(int before); // returns the new row's index
    BOOL DeleteRow(int row);
    int GetColumnWidth(int column) const;
    void SetColumnWidth(int column, int width);
    // The row holding the cell being edited (focus row), -1 for none.
    int GetFocusRow() const { return m_nFocusRow; }
    void SetFocusRow(int row);

protected:
    void CopyBaseStateFrom(const CWnd& other) override;

private:
    void NumberRows();

    std::vector<std::vector<CString>> m_cells;
    std::vector<int> m_widths;
    int m_nColumns = 0;
    int m_nFocusRow = -1;
};
