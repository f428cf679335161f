#include "private/Regression/KDGPlsTabDlg.h"

IMPLEMENT_DYNAMIC(CPlsTabDlg, CGUITabDlg)

CPlsTabDlg::CPlsTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_PlsDlg);
}
