#include "private/Anova/KDGAnovaTabDlg.h"

IMPLEMENT_DYNAMIC(CAnovaTabDlg, CGUITabDlg)

CAnovaTabDlg::CAnovaTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_AnovaDlg);
    AddPage(m_RepeatMeasuresDlg);
    AddPage(m_AnovaOptionsDlg);
    AddPage(m_BootStrapDlg);
}

int CAnovaTabDlg::GetAllDefault()
{
    if (!m_pData)
        return 0;
    *m_pData->GetAnovaData() = CAnovaTabData::GetDefaultAnova();
    *m_pData->GetRepeatMeasuresData() = CAnovaTabData::GetDefaultRepeatMeasures();
    // The option values only: the enable states stay.
    kal::ResetFields(*m_pData->GetAnovaOptionsData());
    *m_pData->GetBootStrapData() = CAnovaTabData::GetDefaultBootStrap();
    return 1;
}
