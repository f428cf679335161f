// CGUITabDlg: a dialog whose pages sit on a tab control. Pages are
// registered in page order by the derived dialog's constructor and created
// when the dialog initialises; they live as long as the dialog. Data
// exchange runs over the pages in page order; OK gives each page's settings
// the page's IsWindowEnabled as window state.
#pragma once

#include "framework/GUIBaseDlg.h"
#include "framework/GUITabCtrl.h"

#include <vector>

class CGUITabDlg : public CGUIBaseDlg {
    DECLARE_DYNAMIC(CGUITabDlg)
public:
    CGUITabDlg(UINT templateId, CWnd* parent, UINT tabControlId);

    CGUITabCtrl& GetTabCtrl() { return m_TabCtrl; }
    const std::vector<CGUIBaseDlg*>& GetPages() const { return m_pages; }

    // Saving: every page's OKLike in page order, the first refusal ends it
    // with 0. Loading: InitDialogLike on every page already created.
    int KVUpdateData(int bSaveAndValidate) override;
    // The first caption is the dialog's, the others go to the pages in order.
    void SetCaptionIDs(const std::array<UINT, 4>& captionIds) override;

    BOOL OnInitDialog() override;
    void OnOK() override;
    void DoDataExchange(CDataExchange* pDX) override;

protected:
    void AddPage(CGUIBaseDlg& page) { m_pages.push_back(&page); }
    CGUITabCtrl* GetTabControl() override { return m_TabCtrl.IsCreated() ? &m_TabCtrl : nullptr; }

private:
    UINT m_nTabControlId;
    CGUITabCtrl m_TabCtrl;
    std::vector<CGUIBaseDlg*> m_pages;
};
