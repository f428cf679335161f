#include "private/Mixed/KDGMixedRandomData.h"

#include "framework/BaseGui.h"
#include "framework/ResourceUtil.h"
#include "private/Mixed/KDGMixedLists.h"

IMPLEMENT_SERIAL(CMixedRandomData, CGUIBaseObj, 1)

CString CMixedRandomData::RandomLine(const CGUIBaseObj& writer, int intercept,
                                     const CGUIArray<CGUIDataVariable>& slopes,
                                     const CGUIArray<CGUIDataVariable>& subject, int covariance)
{
    CString effects;
    writer.AddVariables(effects, slopes, u"+");
    if (!intercept && effects.IsEmpty())
        return {};
    CString line(u"RANDOM ");
    line += writer.AddOnConditionCmd(u"INTERCEPT", intercept);
    line += writer.AddOnConditionCmd(u"+", intercept && !effects.IsEmpty());
    line += effects;
    line += u" /";
    if (!subject.IsEmpty()) {
        line += u" SUBJECT = ";
        writer.AddVariables(line, subject, u" ");
    }
    line += u" TYPE = " + CComboUtil::GetComboString(kCovarianceCombo, covariance, 0);
    return line;
}

void CMixedRandomData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AppendCommandLine(list, RandomLine(*this, m_InterceptCheck, m_RandomList, m_SubjectList, m_CovarianceCombo));
}

void CMixedRandomData::FillListSource()
{
    kal::mixed::RefreshLists(*this, m_SourceList, {&m_RandomList, &m_SubjectList});
}

void CMixedRandomData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_InterceptCheck, m_CovarianceCombo, m_SourceList, m_RandomList, m_SubjectList);
}
