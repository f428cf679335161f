// CGUITabDlg: a dialog whose pages sit on a tab control (template 101).
// Pages are registered in page order by the derived dialog's constructor
// and created when the dialog initialises; they live as long as the dialog.
// Given a CGUITabData, each page gets the page settings of the same place
// in page order. Data exchange runs over the pages in page order; OK gives
// each page's settings the page's IsWindowEnabled as window state.
//
// Pages ask their tab dialog what they need of the analysis through this
// class only: the dependent-variable count of the model page, a sibling page
// by its class, and a notice that they changed something the others depend
// on. A page never needs to know which tab it sits in.
#pragma once

#include "framework/GUIBaseDlg.h"
#include "framework/GUITabCtrl.h"
#include "ids/shared.h"

#include <vector>

class CGUITabDlg : public CGUIBaseDlg, public CGUITabDlgIds {
    DECLARE_DYNAMIC(CGUITabDlg)
public:
    CGUITabDlg(UINT templateId, CWnd* parent, UINT tabControlId = IDC_TAB);

    CGUITabCtrl& GetTabCtrl() { return m_TabCtrl; }
    const std::vector<CGUIBaseDlg*>& GetPages() const { return m_pages; }

    // The dependent variables the model page shows now (0 when the analysis
    // has none).
    virtual int GetDependentVariableCount() { return 0; }
    // The page of class T, or null.
    template <class T>
    T* FindPage() const
    {
        for (CGUIBaseDlg* page : m_pages)
            if (auto* found = dynamic_cast<T*>(page))
                return found;
        return nullptr;
    }
    // `page` changed what other pages depend on: their enable rules run
    // again and the tabs show which pages are in use.
    virtual void OnPageChanged(CGUIBaseDlg* page);
    // Why the dialog shows `page` as unavailable now, or an empty text while
    // it is available. An unavailable page's tab cannot be chosen, the page
    // is disabled and at OK its settings are out of use. The base asks the
    // page (GetOutOfUseReason); an override falls back to it.
    virtual CString GetUnavailableReason(CGUIBaseDlg& page);

    // Saving: every page's OKLike in page order; the first refusal shows
    // its page and ends it with 0. Loading: InitDialogLike on every page
    // already created.
    int KVUpdateData(int bSaveAndValidate) override;
    // The first caption is the dialog's, the others go to the pages in order.
    void SetCaptionIDs(const std::array<UINT, 4>& captionIds) override;

    BOOL OnInitDialog() override;
    void OnOK() override;
    void DoDataExchange(CDataExchange* pDX) override;

protected:
    void AddPage(CGUIBaseDlg& page) { m_pages.push_back(&page); }
    CGUITabCtrl* GetTabControl() override { return m_TabCtrl.IsCreated() ? &m_TabCtrl : nullptr; }
    // Hands each page its part of the tab settings.
    void OnDataSet() override;

private:
    UINT m_nTabControlId;
    CGUITabCtrl m_TabCtrl;
    std::vector<CGUIBaseDlg*> m_pages;
};
