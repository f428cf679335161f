#include "private/Quality/KDGShewhartTabDlg.h"

IMPLEMENT_DYNAMIC(CShewhartTabDlg, CGUITabDlg)

CShewhartTabDlg::CShewhartTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_ShewhartDlg);
    AddPage(m_QcTestsDlg);
}
