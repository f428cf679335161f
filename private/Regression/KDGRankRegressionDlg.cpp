#include "private/Regression/KDGRankRegressionDlg.h"

IMPLEMENT_DYNAMIC(CRankRegressionDlg, CGUITabDlg)

CRankRegressionDlg::CRankRegressionDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_ModelDlg);
    AddPage(m_OptionsDlg);
}
