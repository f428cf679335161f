#include "private/Quality/KDGXMrTabDlg.h"

IMPLEMENT_DYNAMIC(CXMrTabDlg, CGUITabDlg)

CXMrTabDlg::CXMrTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_XMrDlg);
    AddPage(m_QcTestsDlg);
}
