#include "framework/GUITabDlg.h"

#include "framework/GUITabData.h"
#include "host/IGlobal.h"

IMPLEMENT_DYNAMIC(CGUITabDlg, CGUIBaseDlg)

CGUITabDlg::CGUITabDlg(UINT templateId, CWnd* parent, UINT tabControlId)
    : CGUIBaseDlg(templateId, parent), m_nTabControlId(tabControlId)
{
}

void CGUITabDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIBaseDlg::DoDataExchange(pDX);
    DDX_Control(pDX, m_nTabControlId, m_TabCtrl);
}

int CGUITabDlg::KVUpdateData(int bSaveAndValidate)
{
    if (!CGUIBaseDlg::KVUpdateData(bSaveAndValidate))
        return 0;
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        CGUIBaseDlg* page = m_pages[i];
        if (bSaveAndValidate) {
            if (!page->OKLike()) {
                // The user sees the page whose entry was refused.
                if (m_TabCtrl.IsCreated())
                    m_TabCtrl.SelectPage(static_cast<int>(i));
                return 0;
            }
        } else if (page->IsCreated()) {
            page->InitDialogLike();
        }
    }
    return 1;
}

void CGUITabDlg::OnDataSet()
{
    CGUIBaseObj* data = nullptr;
    GetData(data);
    auto* tab = dynamic_cast<CGUITabData*>(data);
    const CGUITabData::PageList settings = tab ? tab->Pages() : CGUITabData::PageList{};
    for (std::size_t i = 0; i < m_pages.size(); ++i)
        m_pages[i]->SetData(i < settings.size() ? settings[i] : nullptr);
}

CString CGUITabDlg::GetUnavailableReason(CGUIBaseDlg& page)
{
    return page.GetOutOfUseReason();
}

void CGUITabDlg::OnPageChanged(CGUIBaseDlg* page)
{
    for (CGUIBaseDlg* other : m_pages)
        if (other != page && other->IsCreated())
            other->UpdateDependentWindows();
    if (m_TabCtrl.IsCreated())
        m_TabCtrl.UpdatePageStates();
}

void CGUITabDlg::SetCaptionIDs(const std::array<UINT, 4>& captionIds)
{
    CGUIBaseDlg::SetCaptionIDs(captionIds);
    for (std::size_t i = 1; i < captionIds.size() && i - 1 < m_pages.size(); ++i)
        if (captionIds[i] != 0)
            m_pages[i - 1]->SetDlgCaptionID(captionIds[i]);
}

BOOL CGUITabDlg::OnInitDialog()
{
    CGUIBaseDlg::OnInitDialog();
    for (CGUIBaseDlg* page : m_pages)
        m_TabCtrl.AddPage(page, this);
    m_TabCtrl.SelectPage(0);
    return TRUE;
}

void CGUITabDlg::OnOK()
{
    CGUIBaseDlg::OnOK();
    if (!IsRunFlagSet())
        return;
    for (CGUIBaseDlg* page : m_pages) {
        CGUIBaseObj* data = nullptr;
        page->GetData(data);
        if (data)
            data->SetWindowState(page->IsWindowEnabled() && GetUnavailableReason(*page).IsEmpty() ? 1 : 0);
    }
    if (IGlobal* host = kal::framework::Host()) {
        host->UpdateViews(2);
        host->RestoreFocus();
    }
}
