#include "private/Anova/KDGRepeatMeasuresData.h"

#include "framework/StringUtil.h"

IMPLEMENT_SERIAL(CRepeatMeasuresData, CGUIBaseObj, 1)

void CRepeatMeasuresData::GetDefaultName(CGUIArray<CString>& names)
{
    names.RemoveAll();
    names.Add(u"a");
}

void CRepeatMeasuresData::GetDefaultLevels(CGUIArray<int>& levels)
{
    levels.RemoveAll();
    levels.Add(2);
}

void CRepeatMeasuresData::GetDefaultMetric(CGUIArray<CString>& metric)
{
    metric.RemoveAll();
    metric.Add(CString());
}

bool CRepeatMeasuresData::IsNamesDefault() const
{
    bool lettersInOrder = true;
    for (int i = 0; i < m_arrStrName.GetSize(); ++i) {
        CString name = m_arrStrName[i];
        if (name.Trim().IsEmpty())
            return true;
        if (m_arrStrName[i] != CString(static_cast<char16_t>(u'a' + i)))
            lettersInOrder = false;
    }
    return lettersInOrder;
}

CString CRepeatMeasuresData::GetClause(bool anchorHasSlash) const
{
    if (m_arrStrMetric.GetSize() < m_arrLevels.GetSize())
        throw CInvalidArgException();
    CString clause = anchorHasSlash ? CString(u" REPEAT = ") : CString(u"/ REPEAT = ");
    for (int i = 0; i < m_arrLevels.GetSize(); ++i) {
        clause += NumberText(m_arrLevels[i]);
        CString metric = m_arrStrMetric[i];
        if (!metric.Trim().IsEmpty())
            clause += u"(" + m_arrStrMetric[i] + u")";
        if (i + 1 < m_arrLevels.GetSize())
            clause += u", ";
    }
    if (!IsNamesDefault()) {
        // Quoted like variable names unless plain, so no name adds a clause.
        clause += u", NAMES = ";
        for (int i = 0; i < m_arrStrName.GetSize(); ++i)
            clause += (i > 0 ? u", " : u"") + QuoteName(m_arrStrName[i]);
    }
    return clause;
}

void CRepeatMeasuresData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    if (!m_MeasureAnalysisOnOff)
        return;
    const int anchor = CStringUtil::SearchString(list, GetOwnerID() == kAnovaOwner ? u"DEPEND " : u"MODEL");
    if (anchor < 0)
        return;
    CString clause = GetClause(CStringUtil::StringFoundAtIndex(list, u"/", anchor));
    CStringUtil::RemoveTrailingChar(clause, u'/');
    CStringUtil::ConcatStringAt(list, clause, anchor);
}

void CRepeatMeasuresData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    // Names, metric, levels: not member order, and kept so.
    kal::SerializeValues(ar, m_MeasureAnalysisOnOff, m_arrStrName, m_arrStrMetric, m_arrLevels);
}
