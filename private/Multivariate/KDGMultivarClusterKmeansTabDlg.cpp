#include "private/Multivariate/KDGMultivarClusterKmeansTabDlg.h"

IMPLEMENT_DYNAMIC(CMultivarClusterKmeansTabDlg, CGUITabDlg)

CMultivarClusterKmeansTabDlg::CMultivarClusterKmeansTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_KmeansDlg);
    AddPage(m_KmeansOptionsDlg);
}

int CMultivarClusterKmeansTabDlg::SetAllDefault()
{
    if (!m_pData)
        return 0;
    CMultivarClusterKmeansTabData defaults;
    return m_pData->SetAll(*defaults.GetKmeansData(), *defaults.GetKmeansOptionsData());
}
