#include "platform/Wnd.h"

#include "platform/Collections.h"
#include "platform/Dialog.h"

#include <algorithm>
#include <cwctype>

IMPLEMENT_DYNAMIC(CWnd, CCmdTarget)
IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)
IMPLEMENT_DYNAMIC(CListCtrl, CWnd)
IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)
IMPLEMENT_DYNAMIC(CGridCtrl, CWnd)

namespace {

constexpr int kDefaultColumnWidth = 60;

} // namespace

CWnd::~CWnd() = default;

void CWnd::Changed(WndAspect aspect)
{
    if (m_pView)
        m_pView->Refresh(*this, aspect);
}

BOOL CWnd::EnableWindow(BOOL enable)
{
    const BOOL wasDisabled = !m_bEnabled;
    if (m_bEnabled != (enable != FALSE)) {
        m_bEnabled = enable != FALSE;
        Changed(WndAspect::Enabled);
    }
    return wasDisabled;
}

void CWnd::ShowWindow(int command)
{
    const bool visible = command != SW_HIDE;
    if (m_bVisible != visible) {
        m_bVisible = visible;
        Changed(WndAspect::Visible);
    }
}

void CWnd::SetWindowText(const CString& text)
{
    if (m_strText == text)
        return;
    m_strText = text;
    Changed(WndAspect::Text);
}

void CWnd::Invalidate(BOOL)
{
    OnInvalidated();
    Changed(WndAspect::Invalidated);
}

void CWnd::SetFocus()
{
    for (CWnd* w = m_pParent; w; w = w->m_pParent)
        if (auto* dialog = dynamic_cast<CDialog*>(w); dialog && !dialog->GetParent()) {
            dialog->m_pFocus = this;
            break;
        }
    Changed(WndAspect::Focus);
}

void CWnd::SetToolTipText(const CString& text)
{
    if (m_strToolTip == text)
        return;
    m_strToolTip = text;
    Changed(WndAspect::ToolTip);
}

CWnd* CWnd::GetDlgItem(UINT id) const
{
    for (CWnd* child : m_children)
        if (child->m_nID == id)
            return child;
    return nullptr;
}

bool CWnd::SubclassDlgItem(UINT id, CWnd* parent)
{
    CWnd* old = parent ? parent->GetDlgItem(id) : nullptr;
    if (!old || old == this)
        return old == this;
    CopyBaseStateFrom(*old);
    parent->ReplaceChild(old, this);
    old->m_pView = nullptr;
    old->m_bCreated = false;
    return true;
}

void CWnd::CopyBaseStateFrom(const CWnd& other)
{
    m_nID = other.m_nID;
    m_kind = other.m_kind;
    m_pTemplate = other.m_pTemplate;
    m_pParent = other.m_pParent;
    m_bCreated = other.m_bCreated;
    m_bEnabled = other.m_bEnabled;
    m_bVisible = other.m_bVisible;
    m_strText = other.m_strText;
    m_strToolTip = other.m_strToolTip;
    m_pView = other.m_pView;
}

void CWnd::InitFromTemplate(const ControlTemplate& t, CWnd* parent)
{
    m_nID = t.id;
    m_kind = t.kind;
    m_pTemplate = &t;
    m_pParent = parent;
    m_bCreated = true;
    m_bEnabled = (t.style & WS_DISABLED) == 0;
    m_bVisible = (t.style & WS_HIDDEN) == 0;
    m_strText = t.caption;
    if (auto* grid = dynamic_cast<CGridCtrl*>(this)) {
        grid->SetColumnCount(static_cast<int>(t.columns.size()));
        grid->SetRowCount(1);
        for (std::size_t c = 0; c < t.columns.size(); ++c)
            grid->SetItemText(0, static_cast<int>(c), t.columns[c]);
    }
}

void CWnd::ReplaceChild(CWnd* oldChild, CWnd* newChild)
{
    std::replace(m_children.begin(), m_children.end(), oldChild, newChild);
}

void CWnd::Detach()
{
    m_bCreated = false;
    m_pView = nullptr;
    m_children.clear();
}

BOOL CWnd::NotifyParent(int code)
{
    return m_pParent ? m_pParent->OnCmdMsg(WM_COMMAND, code, m_nID) : FALSE;
}

BOOL CWnd::NotifyParentEx(int code)
{
    if (!m_pParent)
        return FALSE;
    NMHDR header{this, m_nID, code};
    LRESULT result = 0;
    return m_pParent->OnCmdMsg(WM_NOTIFY, code, m_nID, &header, &result);
}

void CButton::SetCheck(int check)
{
    if (m_nCheck == check)
        return;
    m_nCheck = check;
    Changed(WndAspect::Check);
}

void CComboBox::ResetContent()
{
    m_items.clear();
    m_nCurSel = CB_ERR;
    Changed(WndAspect::Items);
}

int CComboBox::AddString(const CString& text)
{
    m_items.push_back(text);
    Changed(WndAspect::Items);
    return GetCount() - 1;
}

int CComboBox::SetCurSel(int index)
{
    const int selected = index >= 0 && index < GetCount() ? index : CB_ERR;
    if (selected != m_nCurSel) {
        m_nCurSel = selected;
        Changed(WndAspect::Selection);
    }
    return selected;
}

CString CComboBox::GetLBText(int index) const
{
    return index >= 0 && index < GetCount() ? m_items[static_cast<std::size_t>(index)] : CString();
}

int CListCtrl::InsertItem(int index, const CString& text)
{
    index = std::clamp(index, 0, GetItemCount());
    const bool appended = index == GetItemCount();
    m_items.insert(m_items.begin() + index, Item(text));
    m_items[static_cast<std::size_t>(index)].hidden = FilterHides(text.Str());
    // An item appended extends the index; one inserted renumbers the rest.
    const auto textOf = [this](int i) { return TextOf(i); };
    if (!appended || !m_index.Add(index, HashOf(index), textOf))
        m_index.Clear();
    if (!appended)
        ForgetSelection();
    Changed(WndAspect::Items);
    return index;
}

BOOL CListCtrl::DeleteItem(int index)
{
    if (index < 0 || index >= GetItemCount())
        return FALSE;
    m_items.erase(m_items.begin() + index);
    m_index.Clear();
    ForgetSelection();
    Changed(WndAspect::Items);
    return TRUE;
}

void CListCtrl::DeleteItems(const std::vector<bool>& marked)
{
    if (kal::EraseMarked(m_items, marked) == 0)
        return;
    m_index.Clear();
    ForgetSelection();
    Changed(WndAspect::Items);
}

BOOL CListCtrl::DeleteAllItems()
{
    m_items.clear();
    m_index.Clear();
    m_selection.clear();
    m_selectionKnown = true;
    Changed(WndAspect::Items);
    return TRUE;
}

int CListCtrl::FindItem(std::u16string_view text) const
{
    const auto textOf = [this](int i) { return TextOf(i); };
    if (!m_index.IsBuilt())
        m_index.Build(GetItemCount(), textOf, [this](int i) { return HashOf(i); });
    return m_index.Find(text, textOf);
}

std::vector<int> CListCtrl::FindItems(const std::vector<CString>& texts) const
{
    std::vector<int> found(texts.size(), -1);
    if (m_index.IsBuilt() || texts.size() * 4 > m_items.size()) {
        for (std::size_t i = 0; i < texts.size(); ++i)
            found[i] = FindItem(texts[i].Str());
        return found;
    }
    const auto wantedText = [&texts](int i) -> std::u16string_view { return texts[static_cast<std::size_t>(i)].Str(); };
    CTextIndex wanted;
    wanted.Build(static_cast<int>(texts.size()), wantedText);
    std::size_t left = texts.size();
    const Item* items = m_items.data();
    const std::size_t count = m_items.size();
    for (std::size_t item = 0; item < count && left > 0; ++item) {
        // Compared by hash first: most items' texts are never read.
        const Item& shown = items[item];
        const int w = wanted.FindIf(shown.hash, [&](int i) { return wantedText(i) == shown.text.Str(); });
        if (w >= 0 && found[static_cast<std::size_t>(w)] < 0) {
            found[static_cast<std::size_t>(w)] = static_cast<int>(item);
            --left;
        }
    }
    // A text asked for twice gets the answer of its first asking.
    for (std::size_t i = 0; i < texts.size(); ++i)
        found[i] = found[static_cast<std::size_t>(wanted.Find(texts[i].Str(), wantedText))];
    return found;
}

CString CListCtrl::GetItemText(int index) const
{
    return index >= 0 && index < GetItemCount() ? m_items[static_cast<std::size_t>(index)].text : CString();
}

bool CListCtrl::IsItemSelected(int index) const
{
    return index >= 0 && index < GetItemCount() && m_items[static_cast<std::size_t>(index)].selected;
}

void CListCtrl::SetItemSelected(int index, bool selected)
{
    if (index < 0 || index >= GetItemCount() || m_items[static_cast<std::size_t>(index)].selected == selected)
        return;
    m_items[static_cast<std::size_t>(index)].selected = selected;
    ForgetSelection();
    Changed(WndAspect::Selection);
}

void CListCtrl::SetSelection(const std::vector<int>& indexes)
{
    // Only the items whose flag changes are touched.
    for (const int i : Selection())
        m_items[static_cast<std::size_t>(i)].selected = false;
    m_selection.clear();
    // Hidden items keep their flags; only shown ones are chosen.
    for (const int i : indexes)
        if (i >= 0 && i < GetItemCount() && !m_items[static_cast<std::size_t>(i)].selected &&
            !m_items[static_cast<std::size_t>(i)].hidden) {
            m_items[static_cast<std::size_t>(i)].selected = true;
            m_selection.push_back(i);
        }
    std::sort(m_selection.begin(), m_selection.end());
    m_selectionKnown = true;
    Changed(WndAspect::Selection);
}

const std::vector<int>& CListCtrl::Selection() const
{
    if (!m_selectionKnown) {
        m_selection.clear();
        for (std::size_t i = 0; i < m_items.size(); ++i)
            if (m_items[i].selected && !m_items[i].hidden)
                m_selection.push_back(static_cast<int>(i));
        m_selectionKnown = true;
    }
    return m_selection;
}

std::vector<int> CListCtrl::GetSelectedItems() const
{
    return Selection();
}

int CListCtrl::GetSelectedCount() const
{
    return static_cast<int>(Selection().size());
}

void CListCtrl::SetItems(std::vector<CString> texts)
{
    SetItems(texts.size(), [&texts](std::size_t i) { return std::move(texts[i]); });
}

namespace {

char16_t Fold(char16_t c)
{
    if (c < 0x80)
        return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c;
    return static_cast<char16_t>(std::towlower(static_cast<wint_t>(c)));
}

} // namespace

bool CListCtrl::FilterHides(std::u16string_view text) const
{
    const std::u16string_view wanted = m_filterFold;
    if (wanted.empty())
        return false;
    const auto same = [](char16_t a, char16_t b) { return Fold(a) == b; };
    return std::search(text.begin(), text.end(), wanted.begin(), wanted.end(), same) == text.end();
}

void CListCtrl::ApplyFilter()
{
    for (Item& item : m_items)
        item.hidden = FilterHides(item.text.Str());
}

void CListCtrl::SetFilter(const CString& text)
{
    if (text == m_filter)
        return;
    m_filter = text;
    m_filterFold.clear();
    for (const char16_t c : text.Str())
        m_filterFold += Fold(c);
    ApplyFilter();
    ForgetSelection();
    Changed(WndAspect::Items);
}

bool CListCtrl::IsItemShown(int index) const
{
    return index >= 0 && index < GetItemCount() && !m_items[static_cast<std::size_t>(index)].hidden;
}

std::vector<int> CListCtrl::GetShownItems() const
{
    std::vector<int> shown;
    shown.reserve(m_items.size());
    for (std::size_t i = 0; i < m_items.size(); ++i)
        if (!m_items[i].hidden)
            shown.push_back(static_cast<int>(i));
    return shown;
}

void CListCtrl::ItemsReplaced()
{
    if (!m_filterFold.empty())
        ApplyFilter();
    m_index.Clear();
    m_selection.clear();
    m_selectionKnown = true;
    Changed(WndAspect::Items);
}

int CTabCtrl::InsertItem(int index, const CString& caption, CWnd* page)
{
    index = std::clamp(index, 0, GetItemCount());
    m_tabs.insert(m_tabs.begin() + index, Tab{caption, page, true, {}});
    if (m_nCurSel < 0)
        m_nCurSel = 0;
    Changed(WndAspect::Pages);
    return index;
}

CString CTabCtrl::GetItemText(int index) const
{
    return index >= 0 && index < GetItemCount() ? m_tabs[static_cast<std::size_t>(index)].caption : CString();
}

CWnd* CTabCtrl::GetItemPage(int index) const
{
    return index >= 0 && index < GetItemCount() ? m_tabs[static_cast<std::size_t>(index)].page : nullptr;
}

void CTabCtrl::SetItemAvailable(int index, bool available, const CString& reason)
{
    if (index < 0 || index >= GetItemCount())
        return;
    Tab& tab = m_tabs[static_cast<std::size_t>(index)];
    const CString why = available ? CString() : reason;
    if (tab.available == available && tab.reason == why)
        return;
    tab.available = available;
    tab.reason = why;
    Changed(WndAspect::Pages);
}

bool CTabCtrl::IsItemAvailable(int index) const
{
    return index >= 0 && index < GetItemCount() && m_tabs[static_cast<std::size_t>(index)].available;
}

CString CTabCtrl::GetItemReason(int index) const
{
    return index >= 0 && index < GetItemCount() ? m_tabs[static_cast<std::size_t>(index)].reason : CString();
}

int CTabCtrl::SetCurSel(int index)
{
    if (index < 0 || index >= GetItemCount())
        return -1;
    const int previous = m_nCurSel;
    if (index != m_nCurSel) {
        m_nCurSel = index;
        Changed(WndAspect::Selection);
    }
    return previous;
}

void CGridCtrl::SetColumnCount(int columns)
{
    m_nColumns = std::max(0, columns);
    for (auto& row : m_cells)
        row.resize(static_cast<std::size_t>(m_nColumns));
    m_widths.resize(static_cast<std::size_t>(m_nColumns), kDefaultColumnWidth);
    Changed(WndAspect::Cells);
}

void CGridCtrl::SetRowCount(int rows)
{
    m_cells.resize(static_cast<std::size_t>(std::max(0, rows)),
                   std::vector<CString>(static_cast<std::size_t>(m_nColumns)));
    NumberRows();
    if (m_nFocusRow >= GetRowCount())
        m_nFocusRow = -1;
    Changed(WndAspect::Cells);
}

CString CGridCtrl::GetItemText(int row, int column) const
{
    if (row < 0 || row >= GetRowCount() || column < 0 || column >= m_nColumns)
        return {};
    return m_cells[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

BOOL CGridCtrl::SetItemText(int row, int column, const CString& text)
{
    if (column < 0 || column >= m_nColumns || row < 0 || row > GetRowCount())
        return FALSE;
    if (row == GetRowCount())
        SetRowCount(row + 1);
    m_cells[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = text;
    Changed(WndAspect::Cells);
    return TRUE;
}

int CGridCtrl::InsertRow(int before)
{
    before = std::clamp(before, 1, GetRowCount());
    m_cells.insert(m_cells.begin() + before, std::vector<CString>(static_cast<std::size_t>(m_nColumns)));
    NumberRows();
    Changed(WndAspect::Cells);
    return before;
}

BOOL CGridCtrl::DeleteRow(int row)
{
    if (row < 1 || row >= GetRowCount())
        return FALSE;
    m_cells.erase(m_cells.begin() + row);
    NumberRows();
    if (m_nFocusRow >= GetRowCount())
        m_nFocusRow = GetRowCount() - 1 >= 1 ? GetRowCount() - 1 : -1;
    Changed(WndAspect::Cells);
    return TRUE;
}

int CGridCtrl::GetColumnWidth(int column) const
{
    return column >= 0 && column < m_nColumns ? m_widths[static_cast<std::size_t>(column)] : 0;
}

void CGridCtrl::SetColumnWidth(int column, int width)
{
    if (column < 0 || column >= m_nColumns)
        return;
    m_widths[static_cast<std::size_t>(column)] = width;
    Changed(WndAspect::Cells);
}

void CGridCtrl::SetFocusRow(int row)
{
    m_nFocusRow = row >= 1 && row < GetRowCount() ? row : -1;
}

void CGridCtrl::NumberRows()
{
    if (m_nColumns == 0)
        return;
    for (std::size_t r = 1; r < m_cells.size(); ++r)
        m_cells[r][0] = CString::FromNumber(static_cast<int>(r));
}

void CGridCtrl::CopyBaseStateFrom(const CWnd& other)
{
    CWnd::CopyBaseStateFrom(other);
    if (const auto* grid = dynamic_cast<const CGridCtrl*>(&other)) {
        m_cells = grid->m_cells;
        m_widths = grid->m_widths;
        m_nColumns = grid->m_nColumns;
    }
}
