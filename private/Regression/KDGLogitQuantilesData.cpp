#include "private/Regression/KDGLogitQuantilesData.h"

#include "framework/BaseGui.h"
#include "framework/ResourceUtil.h"

IMPLEMENT_SERIAL(CLogitQuantilesData, CGUIBaseObj, 1)

void CLogitQuantilesData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleLogit, list);
    CString line(u"QUANTILES ");
    AddVariables(line, m_ByList, u" ");
    CString clauses = AddChangedValueCmd(u" GROUPS = ", m_GroupsEdit);
    clauses += AddOnConditionCmd(u" LOGIT", CRadioUtil::GetRadioItem(kScaleRadio, m_ScaleRadio) != kScaleRadio);
    // The options only when there are any: "QUANTILES " alone reads the
    // usual ten groups of probabilities.
    if (!clauses.IsEmpty())
        line += (m_ByList.GetSize() > 0 ? u" /" : u"/") + clauses;
    AppendCommandLine(list, line);
}

void CLogitQuantilesData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceList, &all, 1);
}

void CLogitQuantilesData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_SourceList, m_ByList, m_GroupsEdit, m_ScaleRadio);
}
