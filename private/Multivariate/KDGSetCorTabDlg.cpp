#include "private/Multivariate/KDGSetCorTabDlg.h"

IMPLEMENT_DYNAMIC(CSetCorTabDlg, CGUITabDlg)

CSetCorTabDlg::CSetCorTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_SetCorDlg);
    AddPage(m_BootStrapDlg);
}

void CSetCorTabDlg::SetCaptionIDs(const std::array<UINT, 4>& captionIds)
{
    // Not the tab's rule (caption n names page n): this row's second
    // caption names the resampling page.
    CGUIBaseDlg::SetCaptionIDs(captionIds); // NOLINT(bugprone-parent-virtual-call)
    if (captionIds[1] != 0)
        m_BootStrapDlg.SetDlgCaptionID(captionIds[1]);
}

int CSetCorTabDlg::SetAllDefault()
{
    if (!m_pData)
        return 0;
    CSetCorTabData defaults;
    return m_pData->SetAll(*defaults.GetSetCorData(), *defaults.GetBootStrapData());
}
