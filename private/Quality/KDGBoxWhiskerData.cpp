#include "private/Quality/KDGBoxWhiskerData.h"

#include "framework/BaseGui.h"
#include "private/Quality/KDGChartLine.h"

IMPLEMENT_SERIAL(CBoxWhiskerData, CGUIBaseObj, 1)

void CBoxWhiskerData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleQc, list);
    CString line = kal::quality::ChartLineHead(*this, u"BOX ", m_MeasureVariables, m_GroupVariables);
    line += AddOnConditionCmd(u" NOTCH", m_NotchCheck);
    line += AddOnConditionCmd(u" OUTLIERS", m_OutliersCheck);
    line += AddOnConditionCmd(u" CENTER", m_CenterCheck);
    kal::quality::PushChartLine(list, line, u"BOX ");
}

void CBoxWhiskerData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceVariables, &all, 1);
}

void CBoxWhiskerData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_NotchCheck, m_OutliersCheck, m_CenterCheck, m_SourceVariables, m_MeasureVariables,
                         m_GroupVariables);
}
