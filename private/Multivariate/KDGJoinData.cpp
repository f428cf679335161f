#include "private/Multivariate/KDGJoinData.h"

#include "framework/ResourceUtil.h"
#include "private/Multivariate/KDGMultivarLists.h"

IMPLEMENT_SERIAL(CJoinData, CGUIBaseObj, 1)

bool CJoinData::JoinsCases() const
{
    return CRadioUtil::GetRadioItem(kJoinRadio, m_JoinRadio) != CJoinDlgIds::IDC_VARIABLES_RADIO;
}

void CJoinData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleCluster, list);
    CString line(u"JOIN ");
    AddVariables(line, m_VariableList, u" ");
    line += u" /";
    line += kal::multivariate::DistanceClause(*this, m_DistanceCombo, m_PowerEdit);
    line += u" LINKAGE = " + CComboUtil::GetComboString(kLinkageList, m_LinkageCombo, 0);
    line += AddOnConditionCmd(u" COLUMNS", JoinsCases() ? 0 : 1);
    AppendCommandLine(list, line);
}

void CJoinData::FillListSource()
{
    kal::multivariate::RefreshLists(*this, m_SourceList, {&m_VariableList});
}

void CJoinData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_JoinRadio, m_DistanceCombo, m_LinkageCombo, m_SourceList, m_VariableList, m_PowerEdit);
}
