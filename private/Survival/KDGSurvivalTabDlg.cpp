#include "private/Survival/KDGSurvivalTabDlg.h"

IMPLEMENT_DYNAMIC(CSurvivalTabDlg, CGUITabDlg)

CSurvivalTabDlg::CSurvivalTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_ModelDlg);
    AddPage(m_OptionsDlg);
}
