#include "private/Survival/KDGSurvivalNParTabDlg.h"

IMPLEMENT_DYNAMIC(CSurvivalNParTabDlg, CGUITabDlg)

CSurvivalNParTabDlg::CSurvivalNParTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_ModelDlg);
    AddPage(m_NParDlg);
}
