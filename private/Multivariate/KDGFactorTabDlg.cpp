#include "private/Multivariate/KDGFactorTabDlg.h"

IMPLEMENT_DYNAMIC(CFactorTabDlg, CGUITabDlg)

CFactorTabDlg::CFactorTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_FactorDlg);
    AddPage(m_FactorOptionsDlg);
}

BOOL CFactorTabDlg::OnInitDialog()
{
    CGUITabDlg::OnInitDialog();
    OnPageChanged(nullptr);
    return TRUE;
}

int CFactorTabDlg::SetAllDefault()
{
    if (!m_pData)
        return 0;
    CFactorTabData defaults;
    return m_pData->SetAll(*defaults.GetFactorData(), *defaults.GetFactorOptionsData());
}
