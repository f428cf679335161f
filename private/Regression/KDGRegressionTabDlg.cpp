#include "private/Regression/KDGRegressionTabDlg.h"

#include "framework/HostLink.h"

IMPLEMENT_DYNAMIC(CRegressionTabDlg, CGUITabDlg)

CRegressionTabDlg::CRegressionTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_RegressionDlg);
    AddPage(m_RegressionOptionsDlg);
    AddPage(m_AnovaOptionsDlg);
    AddPage(m_RegressionPredictDlg);
    AddPage(m_BootStrapDlg);
}

void CRegressionTabDlg::OnDataSet()
{
    CGUIDataDlg::OnDataSet();
    // The options page without the Levene test and the type of sums of
    // squares, captioned "Options"; the other pages keep owner 0.
    m_AnovaOptionsDlg.SetDlgCaptionID(CAnovaOptionsDlg::kOwnerWithoutLeveneAndSs);
}

BOOL CRegressionTabDlg::OnInitDialog()
{
    CGUIDataDlg::OnInitDialog();
    // Each page was created before the pages after it: now that all exist,
    // the rules that look at a later page run again.
    OnPageChanged(nullptr);
    return TRUE;
}

CString CRegressionTabDlg::GetUnavailableReason(CGUIBaseDlg& page)
{
    if ((&page == &m_AnovaOptionsDlg || &page == &m_BootStrapDlg) && !IsBootStrapWindowEnabled())
        return kal::framework::LoadResourceString(kCompleteEstimationOnly);
    return CGUITabDlg::GetUnavailableReason(page);
}

int CRegressionTabDlg::GetAllDefault()
{
    if (!m_pData)
        return 0;
    *m_pData->GetRegressionData() = CRegressionTabData::GetDefaultRegression();
    CRegressionOptionsData* options = m_pData->GetRegressionOptionsData();
    *options = CRegressionTabData::GetDefaultRegressionOptions();
    options->ReassignDefaultValue();
    // The option values only: the enable states stay.
    kal::ResetFields(*m_pData->GetAnovaOptionsData());
    *m_pData->GetRegressionPredictData() = CRegressionTabData::GetDefaultRegressionPredict();
    *m_pData->GetBootStrapData() = CRegressionTabData::GetDefaultBootStrap();
    return 1;
}
