#include "private/Regression/KDGLogitSimulateData.h"

IMPLEMENT_SERIAL(CLogitSimulateData, CGUIBaseObj, 1)

void CLogitSimulateData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleLogit, list);
    CString clauses = AddChangedValueCmd(u" DRAWS = ", m_DrawsEdit);
    clauses += AddChangedValueCmd(u" RSEED = ", m_SeedEdit);
    clauses += AddChangedValueCmd(u" CONFI = ", m_ConfidenceEdit);
    AppendCommandLine(list, clauses.IsEmpty() ? CString(u"SIMULATE ") : u"SIMULATE /" + clauses);
    // Scenarios were checked and rewritten at OK; text that could end the
    // line is never written.
    for (const CString& scenario : m_Scenarios)
        if (!scenario.IsEmpty() && !ContainsControlCharacter(scenario))
            AppendCommandLine(list, u"SCENARIO " + scenario);
}

void CLogitSimulateData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_DrawsEdit, m_SeedEdit, m_ConfidenceEdit, m_Scenarios);
}
