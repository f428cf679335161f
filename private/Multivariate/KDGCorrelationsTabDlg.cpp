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
    return {};
}

void CCorrelationsTabDlg::SetDlgCaptionID(UINT captionId)
{
    CGUITabDlg::SetDlgCaptionID(captionId);
    m_BootStrapDlg.SetDlgCaptionID(kResamplingCaption);
}

void CCorrelationsTabDlg::SetCaptionIDs(const std::array<UINT, 4>& captionIds)
{
    CGUIBaseDlg::SetCaptionIDs(captionIds);
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
