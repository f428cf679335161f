#include "private/Regression/KDGRidgeRegressionDlg.h"

IMPLEMENT_DYNAMIC(CRidgeRegressionDlg, CGUITabDlg)

CRidgeRegressionDlg::CRidgeRegressionDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_ModelDlg);
    AddPage(m_RidgeDlg);
}
