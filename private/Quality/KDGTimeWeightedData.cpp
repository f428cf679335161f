#include "private/Quality/KDGTimeWeightedData.h"

#include "framework/BaseGui.h"
#include "framework/ResourceUtil.h"
#include "private/Quality/KDGChartLine.h"
#include "private/Quality/KDGControlLimits.h"

IMPLEMENT_SERIAL(CTimeWeightedData, CGUIBaseObj, 1)

CString CTimeWeightedData::ChartKeyword() const
{
    switch (m_Chart) {
    case TimeWeightedChart::Ewma: return u"EWMA ";
    case TimeWeightedChart::MovingAverage: return u"MA ";
    case TimeWeightedChart::Cusum: break;
    }
    return u"CUSUM ";
}

CString CTimeWeightedData::ChartClauses() const
{
    CString text;
    switch (m_Chart) {
    case TimeWeightedChart::Ewma:
        text += AddEditValueCmd(m_WeightEdit, u" LAMBDA=", IsToBeWritten(m_WeightEdit));
        break;
    case TimeWeightedChart::MovingAverage:
        text += AddEditValueCmd(m_SpanEdit, u" SPAN=", IsToBeWritten(m_SpanEdit));
        break;
    case TimeWeightedChart::Cusum: break;
    }
    text += AddEditValueCmd(m_TargetEdit, u" TARGET=", IsToBeWritten(m_TargetEdit));
    text += AddEditValueCmd(m_SigmaEdit, u" SIGMA=", IsToBeWritten(m_SigmaEdit));
    if (m_Chart == TimeWeightedChart::Cusum) {
        text += AddEditValueCmd(m_KEdit, u" K=", IsToBeWritten(m_KEdit));
        text += AddEditValueCmd(m_HEdit, u" H=", IsToBeWritten(m_HEdit));
        switch (CRadioUtil::GetRadioItem(kSidesRadio, m_SidesRadio)) {
        case kItemUpper: text += u" UPPER"; break;
        case kItemLower: text += u" LOWER"; break;
        default: break;
        }
        text += AddOnConditionCmd(u" FIR", m_FirCheck);
        return text;
    }
    const UINT limits = CRadioUtil::GetRadioItem(kLimitsRadio, m_LimitsRadio);
    return text + kal::quality::ChosenLimitsClause(*this, limits, kItemProbabilityLimits, kItemSigmaLimits,
                                                   m_PLimitsLowerEdit, m_PLimitsUpperEdit, m_SigmaLowerEdit,
                                                   m_SigmaUpperEdit);
}

void CTimeWeightedData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleQc, list);

    const CString keyword = ChartKeyword();
    const CString line = kal::quality::ChartLineHead(*this, keyword, m_ChartVariables, m_GroupVariables);
    kal::quality::PushChartLine(list, line + ChartClauses(), keyword);
}

void CTimeWeightedData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceVariables, &all, 1);
}

void CTimeWeightedData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_SidesRadio, m_FirCheck, m_LimitsRadio, m_SourceVariables, m_ChartVariables,
                         m_GroupVariables, m_SpanEdit, m_TargetEdit, m_SigmaEdit, m_WeightEdit, m_KEdit, m_HEdit,
                         m_PLimitsLowerEdit, m_PLimitsUpperEdit, m_SigmaLowerEdit, m_SigmaUpperEdit);
}
