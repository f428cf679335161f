#include "private/ResponseSurface/KDGRsmPlotDlg.h"

IMPLEMENT_DYNAMIC(CRsmPlotDlg, CGUITabDlg)

CRsmPlotDlg::CRsmPlotDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_FactorsDlg);
    AddPage(m_PlotDlg);
}
