#include "private/ResponseSurface/KDGRsmEstimateData.h"

#include "framework/ResourceUtil.h"
#include "host/KalAssertDlg.h"

IMPLEMENT_SERIAL(CRsmEstimateData, CGUIBaseObj, 1)

void CRsmEstimateData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    CString line(u"ESTIMATE /");
    const UINT order = CRadioUtil::GetRadioItem(kOrderRadio, m_OrderRadio);
    switch (order) {
    case kItemLinear: line += u" LINEAR"; break;
    case kItemInteraction: line += u" INTERACTION"; break;
    case kItemQuadratic: line += u" QUADRATIC"; break;
    default: CKalAssertDlg("Source/KDGRsmEstimateData", __LINE__).DoPrint(); break;
    }
    // Only a second-order surface has a stationary point.
    line += AddOnConditionCmd(u" CANONICAL", order == kItemQuadratic && m_CanonicalCheck ? 1 : 0);
    line += AddOnConditionCmd(u" LACKFIT", m_LackOfFitCheck);
    line += AddEditValueCmd(m_ConfidenceEdit, GetDefaultConfidenceEdit(), 0, u" CONFI = ", 1);
    AppendCommandLine(list, line);
}

void CRsmEstimateData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_OrderRadio, m_CanonicalCheck, m_LackOfFitCheck, m_ConfidenceEdit);
}
