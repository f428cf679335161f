#include "private/Mixed/KDGMixedTabDlg.h"

IMPLEMENT_SERIAL(CMixedTabData, CGUITabData, 1)
IMPLEMENT_DYNAMIC(CMixedTabDlg, CGUITabDlg)

CMixedTabDlg::CMixedTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_ModelDlg);
    AddPage(m_EstimationDlg);
}

int CMixedTabDlg::GetAllDefault()
{
    if (!m_pData)
        return 0;
    *m_pData->GetModelData() = CMixedTabData::GetDefaultModel();
    *m_pData->GetEstimationData() = CMixedTabData::GetDefaultEstimation();
    return 1;
}
