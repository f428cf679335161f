#include "private/Multivariate/KDGManovaHypothesisTabDlg.h"

#include "framework/StringUtil.h"

IMPLEMENT_SERIAL(CManovaStatisticsData, CGUIBaseObj, 1)
IMPLEMENT_SERIAL(CManovaHypothesisTabData, CGUITabData, 1)
IMPLEMENT_DYNAMIC(CManovaStatisticsDlg, CGUIBaseDlg)
IMPLEMENT_DYNAMIC(CManovaHypothesisTabDlg, CGUITabDlg)

void CManovaStatisticsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    const CString clause = GetStatistics().Clause();
    const int test = CStringUtil::SearchStringAtBeginning(list, u"TEST");
    if (test >= 0 && !clause.IsEmpty())
        CStringUtil::ConcatStringAt(list, u" /" + clause, test);
}

void CManovaStatisticsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_WilksCheck, m_PillaiCheck, m_HotellingCheck, m_RoyCheck);
}

void CManovaStatisticsDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (pDX->m_bSaveAndValidate)
        DDX_ControlWarn(pDX, IDC_WILKS, m_Work.GetStatistics().Any() ? 0 : kal::manova::kMsgNoStatistic);
}

CManovaHypothesisTabDlg::CManovaHypothesisTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_HypothesisDlg);
    AddPage(m_ErrorDlg);
    AddPage(m_StatisticsDlg);
}

int CManovaHypothesisTabDlg::GetAllDefault()
{
    if (!m_pData)
        return 0;
    *m_pData->GetHypothesisData() = CHypothesisData();
    *m_pData->GetHypothesisErrorData() = CHypothesisErrorData();
    *m_pData->GetStatisticsData() = CManovaHypothesisTabData::GetDefaultStatistics();
    return 1;
}
