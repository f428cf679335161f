#include "private/Anova/KDGAnovaTabDlg.h"

IMPLEMENT_DYNAMIC(CAnovaTabDlg, CGUITabDlg)

CAnovaTabDlg::CAnovaTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent, IDC_TAB)
{
    AddPage(m_AnovaDlg);
    AddPage(m_RepeatMeasuresDlg);
    AddPage(m_AnovaOptionsDlg);
    AddPage(m_BootStrapDlg);
}

void CAnovaTabDlg::OnDataSet()
{
    CAnovaTabData* data = m_pData;
    m_AnovaDlg.SetData(data ? data->GetAnovaData() : nullptr);
    m_RepeatMeasuresDlg.SetData(data ? data->GetRepeatMeasuresData() : nullptr);
    m_AnovaOptionsDlg.SetData(data ? data->GetAnovaOptionsData() : nullptr);
    m_BootStrapDlg.SetData(data ? data->GetBootStrapData() : nullptr);
}

int CAnovaTabDlg::GetAllDefault()
{
    if (!m_pData)
        return 0;
    *m_pData->GetAnovaData() = CAnovaTabData::GetDefaultAnova();
    *m_pData->GetRepeatMeasuresData() = CAnovaTabData::GetDefaultRepeatMeasures();
    // The option values only: the enable states stay.
    int ks, ad, sw, levene, ss;
    CAnovaTabData::GetDefaultAnovaOptions().GetAll(ks, ad, sw, levene, ss);
    m_pData->GetAnovaOptionsData()->SetAll(ks, ad, sw, levene, ss);
    *m_pData->GetBootStrapData() = CAnovaTabData::GetDefaultBootStrap();
    return 1;
}
