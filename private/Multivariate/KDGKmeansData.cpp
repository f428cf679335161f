#include "private/Multivariate/KDGKmeansData.h"

#include "private/Multivariate/KDGMultivarLists.h"

IMPLEMENT_SERIAL(CKmeansData, CGUIBaseObj, 1)

void CKmeansData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleCluster, list);
    CString line(u"KMEANS ");
    AddVariables(line, m_VariableList, u" ");
    line += AddEditValueCmd(m_NumberEdit, u" / NUMBER = ", 1);
    line += kal::multivariate::DistanceClause(*this, m_DistanceCombo, m_PowerEdit);
    line += AddOnConditionCmd(u" STANDARDIZE", m_StandardizeCheck);
    AppendCommandLine(list, line);
}

void CKmeansData::FillListSource()
{
    kal::multivariate::RefreshLists(*this, m_SourceList, {&m_VariableList});
}

void CKmeansData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_DistanceCombo, m_StandardizeCheck, m_SourceList, m_VariableList, m_NumberEdit,
                         m_PowerEdit);
}
