#include "private/Quality/KDGMaTabDlg.h"

IMPLEMENT_DYNAMIC(CMaTabDlg, CGUITabDlg)

CMaTabDlg::CMaTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_ChartDlg);
    AddPage(m_QcTestsDlg);
}
