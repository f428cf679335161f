#include "private/Quality/KDGCusumDlg.h"

IMPLEMENT_DYNAMIC(CCusumDlg, CGUITabDlg)

CCusumDlg::CCusumDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_ChartDlg);
}
