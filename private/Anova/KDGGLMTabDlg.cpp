#include "private/Anova/KDGGLMTabDlg.h"

#include "framework/HostLink.h"
#include "private/Regression/KDGRegressionTabDlg.h"

IMPLEMENT_DYNAMIC(CGLMTabDlg, CGUITabDlg)

CGLMTabDlg::CGLMTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_GLMDlg);
    AddPage(m_RegressionOptionsDlg);
    AddPage(m_RepeatMeasuresDlg);
    AddPage(m_AnovaOptionsDlg);
    AddPage(m_BootStrapDlg);
}

void CGLMTabDlg::OnDataSet()
{
    CGUIDataDlg::OnDataSet();
    m_RegressionOptionsDlg.SetDlgCaptionID(kEstimationOwner);
    m_RepeatMeasuresDlg.SetDlgCaptionID(kRepeatMeasuresOwner);
}

BOOL CGLMTabDlg::OnInitDialog()
{
    CGUIDataDlg::OnInitDialog();
    // The model page's constant follows the estimation page created after it.
    OnPageChanged(nullptr);
    return TRUE;
}

CString CGLMTabDlg::GetUnavailableReason(CGUIBaseDlg& page)
{
    if ((&page == &m_AnovaOptionsDlg || &page == &m_BootStrapDlg) && !IsBootStrapWindowEnabled())
        return kal::framework::LoadResourceString(CRegressionTabDlg::kCompleteEstimationOnly);
    return {};
}

int CGLMTabDlg::GetAllDefault()
{
    if (!m_pData)
        return 0;
    *m_pData->GetGLMData() = CGLMTabData::GetDefaultGLM();
    CRegressionOptionsData* estimation = m_pData->GetRegressionOptionsData();
    *estimation = CGLMTabData::GetDefaultRegressionOptions();
    estimation->ReassignDefaultValue();
    *m_pData->GetRepeatMeasuresData() = CGLMTabData::GetDefaultRepeatMeasures();
    // The option values only: the enable states stay.
    kal::ResetFields(*m_pData->GetAnovaOptionsData());
    *m_pData->GetBootStrapData() = CGLMTabData::GetDefaultBootStrap();
    return 1;
}
