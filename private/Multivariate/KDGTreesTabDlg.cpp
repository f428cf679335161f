#include "private/Multivariate/KDGTreesTabDlg.h"

IMPLEMENT_DYNAMIC(CTreesTabDlg, CGUITabDlg)

CTreesTabDlg::CTreesTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_TreesDlg);
    AddPage(m_TreesOptionsDlg);
}

BOOL CTreesTabDlg::OnInitDialog()
{
    CGUITabDlg::OnInitDialog();
    OnPageChanged(nullptr);
    return TRUE;
}

int CTreesTabDlg::SetAllDefault()
{
    if (!m_pData)
        return 0;
    CTreesTabData defaults;
    return m_pData->SetAll(*defaults.GetTreesData(), *defaults.GetTreesOptionsData());
}
