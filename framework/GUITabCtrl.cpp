#include "framework/GUITabCtrl.h"

#include "framework/GUIBaseDlg.h"

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
    for (int i = 0; i < GetPageCount(); ++i) {
        CGUIBaseDlg* page = m_pages[static_cast<std::size_t>(i)];
        page->EnableWindow(page->IsWindowEnabled());
        page->ShowWindow(i == GetCurSel() ? SW_SHOW : SW_HIDE);
    }
}
