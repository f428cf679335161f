#include "private/Anova/KDGHypothesisTabDlg.h"

IMPLEMENT_SERIAL(CHypothesisTabData, CGUITabData, 1)
IMPLEMENT_SERIAL(CAnovaTestTabData, CHypothesisTabData, 1)
IMPLEMENT_DYNAMIC(CHypothesisTabDlg, CGUITabDlg)
IMPLEMENT_DYNAMIC(CAnovaTestTabDlg, CHypothesisTabDlg)

CHypothesisTabDlg::CHypothesisTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_HypothesisDlg);
    AddPage(m_ErrorDlg);
}

int CHypothesisTabDlg::GetAllDefault()
{
    if (!m_pData)
        return 0;
    *m_pData->GetHypothesisData() = CHypothesisTabData::GetDefaultHypothesis();
    *m_pData->GetHypothesisErrorData() = CHypothesisTabData::GetDefaultHypothesisError();
    return 1;
}
