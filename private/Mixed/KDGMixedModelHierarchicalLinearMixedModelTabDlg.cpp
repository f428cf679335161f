#include "private/Mixed/KDGMixedModelHierarchicalLinearMixedModelTabDlg.h"

IMPLEMENT_SERIAL(CMixedModelHierarchicalLinearMixedModelTabData, CGUITabData, 1)
IMPLEMENT_DYNAMIC(CMixedModelHierarchicalLinearMixedModelTabDlg, CGUITabDlg)

CMixedModelHierarchicalLinearMixedModelTabDlg::CMixedModelHierarchicalLinearMixedModelTabDlg(CWnd* parent)
    : CGUIDataDlg(IDD, parent)
{
    AddPage(m_LevelsDlg);
    AddPage(m_EstimationDlg);
}

int CMixedModelHierarchicalLinearMixedModelTabDlg::GetAllDefault()
{
    if (!m_pData)
        return 0;
    *m_pData->GetLevelsData() = CMixedModelHierarchicalLinearMixedModelTabData::GetDefaultLevels();
    *m_pData->GetEstimationData() = CMixedModelHierarchicalLinearMixedModelTabData::GetDefaultEstimation();
    return 1;
}
