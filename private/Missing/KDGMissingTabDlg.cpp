#include "private/Missing/KDGMissingTabDlg.h"

IMPLEMENT_DYNAMIC(CMissingTabDlg, CGUITabDlg)

CMissingTabDlg::CMissingTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_MissingDlg);
    AddPage(m_EstimateDlg);
}
