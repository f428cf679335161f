#include "private/Quality/KDGEWMATabDlg.h"

IMPLEMENT_DYNAMIC(CEWMATabDlg, CGUITabDlg)

CEWMATabDlg::CEWMATabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_ChartDlg);
    AddPage(m_QcTestsDlg);
}
