#include "private/ResponseSurface/KDGRsmEstimateTabDlg.h"

IMPLEMENT_DYNAMIC(CRsmEstimateTabDlg, CGUITabDlg)

CRsmEstimateTabDlg::CRsmEstimateTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_FactorsDlg);
    AddPage(m_EstimateDlg);
}
