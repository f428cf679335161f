#include "private/Anova/KDGAnovaOptionsData.h"

#include "framework/BootStrapData.h"
#include "framework/ResourceUtil.h"
#include "framework/StringUtil.h"
#include "host/KalAssertDlg.h"

IMPLEMENT_SERIAL(CAnovaOptionsData, CGUIBaseObj, 1)

int CAnovaOptionsData::SetAllCheckState(int ks, int ad, int sw, int levene, int ss)
{
    m_KsState = ks;
    m_AdState = ad;
    m_SwState = sw;
    m_LeveneState = levene;
    m_SsState = ss;
    return 1;
}

CString CAnovaOptionsData::GetClause() const
{
    const bool ks = m_KsCheck && m_KsState;
    const bool ad = m_AdCheck && m_AdState;
    const bool sw = m_SwCheck && m_SwState;
    const bool levene = m_LeveneCheck && m_LeveneState;

    CString clause = AddOnConditionCmd(u" NTEST =", ks || ad || sw);
    clause += AddOnConditionCmd(u" KS,", ks);
    clause += AddOnConditionCmd(u" AD,", ad);
    clause += AddOnConditionCmd(u" SW", sw);
    CStringUtil::RemoveTrailingChar(clause, u',');
    clause += AddOnConditionCmd(u" HTEST =", levene);
    clause += AddOnConditionCmd(u" LEVENE", levene);
    if (m_SsState) {
        clause += u" SS =";
        switch (CRadioUtil::GetRadioItem(kSsTypeRadio, m_SsTypeRadio)) {
        case 1084: clause += u" TYPE1"; break;
        case 1085: clause += u" TYPE2"; break;
        case 1086: clause += u" TYPE3"; break;
        default: CKalAssertDlg("Source/KDGAnovaOptionsData", __LINE__).DoPrint(); break;
        }
    }
    return clause;
}

void CAnovaOptionsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    // The "/" goes in even when the clause is empty.
    AttachToEstimateLine(list, GetClause(), true);
}

void CAnovaOptionsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_KsCheck, m_AdCheck, m_SwCheck, m_LeveneCheck, m_SsTypeRadio);
}
