// CGUITabCtrl: the tab control of a tab dialog. Its pages are dialogs,
// created as children of the tab dialog when added; only the current page
// is visible, and each page is enabled as its IsWindowEnabled says, unless
// the tab dialog shows it as unavailable.
#pragma once

#include "platform/Wnd.h"

#include <vector>

class CGUIBaseDlg;

class CGUITabCtrl : public CTabCtrl {
    DECLARE_DYNAMIC(CGUITabCtrl)
public:
    // Creates `page` inside `tabDialog` and adds its tab; the caption is the
    // page's caption.
    int AddPage(CGUIBaseDlg* page, CWnd* tabDialog);
    int GetPageCount() const { return static_cast<int>(m_pages.size()); }
    CGUIBaseDlg* GetPage(int index) const;
    // Makes `index` the current page: shows it, hides the others.
    void SelectPage(int index);
    // Shows the current page and refreshes every page's enable state.
    void UpdatePageStates();

private:
    std::vector<CGUIBaseDlg*> m_pages;
};
