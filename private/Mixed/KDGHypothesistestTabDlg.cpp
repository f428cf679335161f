#include "private/Mixed/KDGHypothesistestTabDlg.h"

IMPLEMENT_SERIAL(CHypothesistestTabData, CGUITabData, 1)
IMPLEMENT_DYNAMIC(CHypothesistestTabDlg, CGUITabDlg)

CHypothesistestTabDlg::CHypothesistestTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_HypothesisDlg);
    AddPage(m_TestDlg);
}

int CHypothesistestTabDlg::GetAllDefault()
{
    if (!m_pData)
        return 0;
    *m_pData->GetHypothesisData() = CHypothesistestTabData::GetDefaultHypothesis();
    *m_pData->GetTestData() = CHypothesistestTabData::GetDefaultTest();
    return 1;
}
