#include "private/Multivariate/KDGCoranTabDlg.h"

IMPLEMENT_DYNAMIC(CCoranTabDlg, CGUITabDlg)

CCoranTabDlg::CCoranTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_CoranDlg);
    AddPage(m_CoranOptionsDlg);
}

int CCoranTabDlg::SetAllDefault()
{
    if (!m_pData)
        return 0;
    CCoranTabData defaults;
    return m_pData->SetAll(*defaults.GetCoranData(), *defaults.GetCoranOptionsData());
}
