#include "private/Multivariate/KDGCorrelationsTabDlg.h"

#include "framework/HostLink.h"

IMPLEMENT_DYNAMIC(CCorrelationsTabDlg, CGUITabDlg)

CCorrelationsTabDlg::CCorrelationsTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_CorrelationsDlg);
    AddPage(m_CorrOptionsDlg);
    AddPage(m_BootStrapDlg);
}

BOOL CCorrelationsTabDlg::OnInitDialog()
{
    CGUITabDlg::OnInitDialog();
    OnPageChanged(nullptr);
    return TRUE;
}

CString CCorrelationsTabDlg::GetUnavailableReason(CGUIBaseDlg& page)
{
    if (&page == &m_CorrOptionsDlg && !m_CorrelationsDlg.IsOptionsPageAvailable())
        return kal::framework::LoadResourceString(kOptionsUnavailableText);
    return CGUITabDlg::GetUnavailableReason(page);
}

void CCorrelationsTabDlg::SetDlgCaptionID(UINT captionId)
{
    CGUITabDlg::SetDlgCaptionID(captionId);
    m_BootStrapDlg.SetDlgCaptionID(kResamplingCaption);
}

void CCorrelationsTabDlg::SetCaptionIDs(const std::array<UINT, 4>& captionIds)
{
    // Not the tab's rule (caption n names page n): this row's second
    // caption names the resampling page.
    CGUIBaseDlg::SetCaptionIDs(captionIds); // NOLINT(bugprone-parent-virtual-call)
    if (captionIds[1] != 0)
        m_BootStrapDlg.SetDlgCaptionID(captionIds[1]);
}

int CCorrelationsTabDlg::SetAllDefault()
{
    if (!m_pData)
        return 0;
    CCorrelationsTabData defaults;
    return m_pData->SetAll(*defaults.GetCorrelationsData(), *defaults.GetCorrOptionsData(),
                           *defaults.GetBootStrapData());
}
