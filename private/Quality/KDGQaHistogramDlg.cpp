#include "private/Quality/KDGQaHistogramDlg.h"

#include "private/Quality/KDGControlLimits.h"

IMPLEMENT_DYNAMIC(CQaHistogramDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CQaHistogramDlg, CGUIBaseDlg)
    ON_BN_CLICKED(IDC_RESET, &CQaHistogramDlg::OnReset)
END_MESSAGE_MAP()

void CQaHistogramDlg::DoDataExchange(CDataExchange* pDX)
{
    CQcGraphDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, IDC_USL_EDIT,
                    kal::quality::LimitsOrder(m_Work.m_LowerEdit, m_Work.m_UpperEdit, kMsgLimitsOrder));
    DDX_ControlWarn(
        pDX, IDC_TARGET_EDIT,
        kal::quality::TargetWithin(m_Work.m_LowerEdit, m_Work.m_UpperEdit, m_Work.m_TargetEdit, kMsgOutOfRange));
}
