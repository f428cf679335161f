#include "private/Multivariate/KDGJoinTabDlg.h"

IMPLEMENT_DYNAMIC(CJoinTabDlg, CGUITabDlg)

CJoinTabDlg::CJoinTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_JoinDlg);
    AddPage(m_JoinOptionsDlg);
}

BOOL CJoinTabDlg::OnInitDialog()
{
    CGUITabDlg::OnInitDialog();
    OnPageChanged(nullptr);
    return TRUE;
}

int CJoinTabDlg::SetAllDefault()
{
    if (!m_pData)
        return 0;
    CJoinTabData defaults;
    return m_pData->SetAll(*defaults.GetJoinData(), *defaults.GetJoinOptionsData());
}
