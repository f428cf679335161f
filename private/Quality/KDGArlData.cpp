#include "private/Quality/KDGArlData.h"

#include "framework/ResourceUtil.h"
#include "private/Quality/KDGChartLine.h"

IMPLEMENT_SERIAL(CArlData, CGUIBaseObj, 1)

double CArlData::UsualLimit(UINT chart)
{
    switch (chart) {
    case kEwma: return 2.7;
    case kCusum: return 5;
    default: return 3;
    }
}

double CArlData::UsualParameter(UINT chart)
{
    switch (chart) {
    case kEwma: return 0.1;
    case kCusum: return 0.5;
    case kMovingAverage: return 3;
    default: return 0;
    }
}

UINT CArlData::ChosenChart() const
{
    return CComboUtil::GetComboItem(kChartCombo, m_ChartCombo, ChartList());
}

void CArlData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleQc, list);

    // The table depends on every number, so each is written.
    const UINT chart = ChosenChart();
    CString line(u"ARL ");
    line += CComboUtil::GetComboString(kChartCombo, m_ChartCombo, ChartList());
    line += u" /";
    line += AddEditValueCmd(m_SubgroupEdit, u" N=", 1);
    line += AddEditValueCmd(m_MaxShiftEdit, u" MAXSHIFT=", 1);
    line += AddEditValueCmd(m_StepEdit, u" STEP=", 1);
    line += AddEditValueCmd(m_LimitEdit, chart == kCusum ? u" H=" : u" L=", 1);
    switch (chart) {
    case kEwma: line += AddEditValueCmd(m_ParameterEdit, u" LAMBDA=", 1); break;
    case kCusum: line += AddEditValueCmd(m_ParameterEdit, u" K=", 1); break;
    case kMovingAverage: line += AddEditValueCmd(m_ParameterEdit, u" SPAN=", 1); break;
    default: break;
    }
    kal::quality::PushChartLine(list, line, u"ARL ");
}

void CArlData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_ChartCombo, m_SubgroupEdit, m_MaxShiftEdit, m_StepEdit, m_LimitEdit, m_ParameterEdit);
}
