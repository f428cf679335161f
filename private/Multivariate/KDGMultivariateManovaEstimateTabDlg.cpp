#include "private/Multivariate/KDGMultivariateManovaEstimateTabDlg.h"

IMPLEMENT_DYNAMIC(CManovaModelDlg, CGLMDlg)
IMPLEMENT_DYNAMIC(CMultivariateManovaEstimateTabDlg, CGUITabDlg)

void CManovaModelDlg::DoDataExchange(CDataExchange* pDX)
{
    // The dependent variables come first, as on the page.
    if (pDX->m_bSaveAndValidate)
        DDX_ControlWarn(pDX, IDC_DEPENDENT_LIST, GetDependentListCount() < 2 ? kMsgTwoDependents : 0);
    CGLMDlg::DoDataExchange(pDX);
}

CMultivariateManovaEstimateTabDlg::CMultivariateManovaEstimateTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_ModelDlg);
    AddPage(m_RepeatMeasuresDlg);
    AddPage(m_AnovaOptionsDlg);
    AddPage(m_BootStrapDlg);
}

void CMultivariateManovaEstimateTabDlg::OnDataSet()
{
    CGUIDataDlg::OnDataSet();
    m_RepeatMeasuresDlg.SetDlgCaptionID(kRepeatMeasuresOwner);
}

int CMultivariateManovaEstimateTabDlg::GetAllDefault()
{
    if (!m_pData)
        return 0;
    *m_pData->GetModelData() = CMultivariateManovaEstimateTabData::GetDefaultModel();
    *m_pData->GetRepeatMeasuresData() = CGLMTabData::GetDefaultRepeatMeasures();
    // The option values only: the enable states stay.
    kal::ResetFields(*m_pData->GetAnovaOptionsData());
    *m_pData->GetBootStrapData() = CGLMTabData::GetDefaultBootStrap();
    return 1;
}
