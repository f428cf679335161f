#include "private/Quality/KDGQaHistogramData.h"

#include "framework/BaseGui.h"
#include "private/Quality/KDGChartLine.h"

IMPLEMENT_SERIAL(CQaHistogramData, CGUIBaseObj, 1)

void CQaHistogramData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleQc, list);
    CString line = kal::quality::ChartLineHead(*this, u"HISTOGRAM ", m_MeasureVariables, {});
    line += AddEditValueCmd(m_BinsEdit, u" BINS=", IsToBeWritten(m_BinsEdit));
    line += AddEditValueCmd(m_LowerEdit, u" LSL=", kal::quality::IsGiven(m_LowerEdit));
    line += AddEditValueCmd(m_UpperEdit, u" USL=", kal::quality::IsGiven(m_UpperEdit));
    line += AddEditValueCmd(m_TargetEdit, u" TARGET=", kal::quality::IsGiven(m_TargetEdit));
    line += AddOnConditionCmd(u" NORMAL", m_NormalCheck);
    kal::quality::PushChartLine(list, line, u"HISTOGRAM ");
}

void CQaHistogramData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceVariables, &all, 1);
}

void CQaHistogramData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_NormalCheck, m_SourceVariables, m_MeasureVariables, m_BinsEdit, m_LowerEdit, m_UpperEdit,
                         m_TargetEdit);
}
