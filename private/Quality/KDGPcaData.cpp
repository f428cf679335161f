#include "private/Quality/KDGPcaData.h"

#include "framework/BaseGui.h"
#include "framework/ResourceUtil.h"
#include "private/Quality/KDGChartLine.h"

IMPLEMENT_SERIAL(CPcaData, CGUIBaseObj, 1)

void CPcaData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleQc, list);

    CString line = kal::quality::ChartLineHead(*this, u"CAPABILITY ", m_MeasureVariables, m_GroupVariables);
    line += AddEditValueCmd(m_LowerEdit, u" LSL=", kal::quality::IsGiven(m_LowerEdit));
    line += AddEditValueCmd(m_UpperEdit, u" USL=", kal::quality::IsGiven(m_UpperEdit));
    line += AddEditValueCmd(m_TargetEdit, u" TARGET=", kal::quality::IsGiven(m_TargetEdit));
    line += AddOnConditionCmd(u" SIGMA=OVERALL", CRadioUtil::GetRadioItem(kSigmaRadio, m_SigmaRadio) == kItemOverall);
    line += AddOnConditionCmd(u" CP", m_PotentialCheck);
    line += AddOnConditionCmd(u" PP", m_PerformanceCheck);
    line += AddOnConditionCmd(u" NORMTEST", m_NormalityCheck);
    kal::quality::PushChartLine(list, line, u"CAPABILITY ");
}

void CPcaData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceVariables, &all, 1);
}

void CPcaData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_SigmaRadio, m_PotentialCheck, m_PerformanceCheck, m_NormalityCheck, m_SourceVariables,
                         m_MeasureVariables, m_GroupVariables, m_LowerEdit, m_UpperEdit, m_TargetEdit);
}
