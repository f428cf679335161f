#include "framework/GUITabCtrl.h"

#include "framework/GUIBaseDlg.h"
#include "framework/GUITabDlg.h"

IMPLEMENT_DYNAMIC(CGUITabCtrl, CTabCtrl)

int CGUITabCtrl::AddPage(CGUIBaseDlg* page, CWnd* tabDialog)
{
    page->CreateChild(tabDialog);
    m_pages.push_back(page);
    const int index = InsertItem(GetItemCount(), page->GetWindowText(), page);
    UpdatePageStates();
    return index;
}

CGUIBaseDlg* CGUITabCtrl::GetPage(int index) const
{
    return index >= 0 && index < GetPageCount() ? m_pages[static_cast<std::size_t>(index)] : nullptr;
}

void CGUITabCtrl::SelectPage(int index)
{
    SetCurSel(index);
    UpdatePageStates();
}

void CGUITabCtrl::UpdatePageStates()
{
    auto* tabDialog = dynamic_cast<CGUITabDlg*>(GetParent());
    for (int i = 0; i < GetPageCount(); ++i) {
        CGUIBaseDlg* page = m_pages[static_cast<std::size_t>(i)];
        const CString reason = tabDialog ? tabDialog->GetUnavailableReason(*page) : CString();
        SetItemAvailable(i, reason.IsEmpty(), reason);
        page->EnableWindow(reason.IsEmpty() && page->IsWindowEnabled());
        page->ShowWindow(i == GetCurSel() ? SW_SHOW : SW_HIDE);
    }
}
