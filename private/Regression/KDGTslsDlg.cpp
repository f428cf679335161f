#include "private/Regression/KDGTslsDlg.h"

IMPLEMENT_DYNAMIC(CTslsDlg, CGUITabDlg)

CTslsDlg::CTslsDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_ModelDlg);
    AddPage(m_InstrumentsDlg);
}
