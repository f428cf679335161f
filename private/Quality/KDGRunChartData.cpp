#include "private/Quality/KDGRunChartData.h"

#include "framework/BaseGui.h"
#include "framework/ResourceUtil.h"
#include "private/Quality/KDGChartLine.h"

IMPLEMENT_SERIAL(CRunChartData, CGUIBaseObj, 1)

void CRunChartData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleQc, list);
    CString line = kal::quality::ChartLineHead(*this, u"RUNCHART ", m_MeasureVariables, m_GroupVariables);
    line += AddOnConditionCmd(u" MEAN", CRadioUtil::GetRadioItem(kCenterRadio, m_CenterRadio) == kItemMean);
    line += AddOnConditionCmd(u" RUNS", m_RunsCheck);
    kal::quality::PushChartLine(list, line, u"RUNCHART ");
}

void CRunChartData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceVariables, &all, 1);
}

void CRunChartData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_CenterRadio, m_RunsCheck, m_SourceVariables, m_MeasureVariables, m_GroupVariables);
}
