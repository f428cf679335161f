#include "private/Multivariate/KDGCorrelationsTabData.h"

#include "framework/StringUtil.h"

IMPLEMENT_SERIAL(CCorrelationsTabData, CGUITabData, 1)

void CCorrelationsTabData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    // Page by page, each while in use. This analysis writes no ESTIMATE
    // line for the resampling clause to join: it joins the measure line,
    // which the first page wrote last and the options tail has joined.
    if (!m_CorrelationsData.GetWindowState())
        return;
    m_CorrelationsData.GetCommandInfoList(list);
    if (m_CorrOptionsData.GetWindowState())
        m_CorrOptionsData.GetCommandInfoList(list);
    if (!m_BootStrapData.GetWindowState() || list.IsEmpty())
        return;
    const CString clause = m_BootStrapData.GetClause();
    if (clause.IsEmpty())
        return;
    // Options of the line follow one "/"; the line may end in a blank.
    CString text = clause;
    if (!CStringUtil::StringFoundAtIndex(list, u"/", -1)) {
        const CString& line = list.GetAt(list.GetCount() - 1).m_strCommand;
        text = (line.IsEmpty() || line[line.GetLength() - 1] == u' ' ? u"/" : u" /") + clause;
    }
    CStringUtil::ConcatStringAt(list, text, -1);
}
