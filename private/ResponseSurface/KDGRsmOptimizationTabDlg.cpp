#include "private/ResponseSurface/KDGRsmOptimizationTabDlg.h"

IMPLEMENT_DYNAMIC(CRsmOptimizationTabDlg, CGUITabDlg)

CRsmOptimizationTabDlg::CRsmOptimizationTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_FactorsDlg);
    AddPage(m_OptimizationDlg);
}
