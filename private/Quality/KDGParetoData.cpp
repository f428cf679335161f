#include "private/Quality/KDGParetoData.h"

#include "framework/BaseGui.h"
#include "private/Quality/KDGChartLine.h"

IMPLEMENT_SERIAL(CParetoData, CGUIBaseObj, 1)

void CParetoData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleQc, list);
    if (!m_CountVariables.IsEmpty()) {
        CString frequency = u"FREQUENCY  ";
        AddVariables(frequency, m_CountVariables, u" ");
        AppendCommandLine(list, frequency);
    }
    CString line = kal::quality::ChartLineHead(*this, u"PARETO ", m_CategoryVariables, {});
    line += AddOnConditionCmd(u" CUMULATIVE", m_CumulativeCheck);
    line += AddEditValueCmd(m_OtherShareEdit, u" OTHER=", m_OtherCheck);
    line += AddOnConditionCmd(u" PERCENT", m_PercentCheck);
    kal::quality::PushChartLine(list, line, u"PARETO ");
}

void CParetoData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceVariables, &all, 1);
}

void CParetoData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_CumulativeCheck, m_OtherCheck, m_PercentCheck, m_SourceVariables, m_CategoryVariables,
                         m_CountVariables, m_OtherShareEdit);
}
