#include "private/Anova/KDGAnovaTabDlg.h"

#include "private/Anova/KDGGLMTabData.h"

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
    // The pages shared with the general linear model take its defaults.
    *m_pData->GetRepeatMeasuresData() = CGLMTabData::GetDefaultRepeatMeasures();
    // The option values only: the enable states stay.
    kal::WithFields(*m_pData->GetAnovaOptionsData(),
                    [](auto&... values) { return CGLMTabData::GetDefaultAnovaOptions().GetAll(values...); });
    *m_pData->GetBootStrapData() = CGLMTabData::GetDefaultBootStrap();
    return 1;
}
