#include "private/Regression/KDGSmoothTabDlg.h"

IMPLEMENT_DYNAMIC(CSmoothTabDlg, CGUITabDlg)

CSmoothTabDlg::CSmoothTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_SmoothDlg);
}
