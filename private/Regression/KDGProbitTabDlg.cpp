#include "private/Regression/KDGProbitTabDlg.h"

IMPLEMENT_DYNAMIC(CProbitTabDlg, CGUITabDlg)

CProbitTabDlg::CProbitTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_ProbitDlg);
    AddPage(m_BootStrapDlg);
}
