#include "private/Mixed/KDGMixedModelLinearMixedModelTabDlg.h"

IMPLEMENT_SERIAL(CMixedModelLinearMixedModelTabData, CGUITabData, 1)
IMPLEMENT_DYNAMIC(CMixedModelLinearMixedModelTabDlg, CGUITabDlg)

CMixedModelLinearMixedModelTabDlg::CMixedModelLinearMixedModelTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_FixedDlg);
    AddPage(m_RandomDlg);
    AddPage(m_EstimationDlg);
}

int CMixedModelLinearMixedModelTabDlg::GetAllDefault()
{
    if (!m_pData)
        return 0;
    *m_pData->GetFixedEffectsData() = CMixedModelLinearMixedModelTabData::GetDefaultFixedEffects();
    *m_pData->GetRandomData() = CMixedModelLinearMixedModelTabData::GetDefaultRandomEffects();
    *m_pData->GetEstimationData() = CMixedModelLinearMixedModelTabData::GetDefaultEstimation();
    return 1;
}
