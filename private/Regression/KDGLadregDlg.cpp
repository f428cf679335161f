#include "private/Regression/KDGLadregDlg.h"

IMPLEMENT_DYNAMIC(CLadregDlg, CGUITabDlg)

CLadregDlg::CLadregDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_ModelDlg);
    AddPage(m_OptionsDlg);
}
