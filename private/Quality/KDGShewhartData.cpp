#include "private/Quality/KDGShewhartData.h"

#include "framework/BaseGui.h"
#include "framework/ResourceUtil.h"
#include "private/Quality/KDGControlLimits.h"

IMPLEMENT_SERIAL(CShewhartData, CGUIBaseObj, 1)

UINT CShewhartData::GetChartTypeItem() const
{
    return CComboUtil::GetComboItem(kChartTypeCombo, m_ChartTypeCombo, 0);
}

void CShewhartData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleQc, list);

    // Aggregated proportions are weighted by their subgroup sizes; every
    // other frequency variable counts cases.
    const UINT chartType = GetChartTypeItem();
    if (!GetMixedDataVariable(m_FrequencyVariables, u" ").IsEmpty()) {
        const bool weight = m_AggOption && (chartType == kItemP || chartType == kItemNp);
        CString frequency(weight ? u"WEIGHT  " : u"FREQUENCY  ");
        AddVariables(frequency, m_FrequencyVariables, u" ");
        AppendCommandLine(list, frequency);
    }

    CString line(u"SHEWHART ");
    AddVariables(line, m_ChartVariables, u" ");
    line += u"*";
    AddVariables(line, m_GroupVariables, u" ");
    line += u" / TYPE=" + CComboUtil::GetComboString(kChartTypeCombo, m_ChartTypeCombo, 0);
    if (m_CenterInUse)
        line += AddEditValueCmd(m_CenterEdit, u" CENTER=", 1);
    if (m_SigmaInUse)
        line += AddEditValueCmd(m_SigmaEdit, u" SIGMA=", 1);

    const UINT limits = CRadioUtil::GetRadioItem(kLimitsRadio, m_LimitsRadio);
    line += kal::quality::LimitsClause(*this, m_PLimitsLowerEdit, m_PLimitsUpperEdit, u" PLIMITS=",
                                       limits == kItemProbabilityLimits);
    line += kal::quality::LimitsClause(*this, m_LimitsLowerEdit, m_LimitsUpperEdit, u" LIMITS=",
                                       limits == kItemPresetLimits);
    line +=
        kal::quality::LimitsClause(*this, m_SigmaLowerEdit, m_SigmaUpperEdit, u" SLIMITS=", limits == kItemSigmaLimits);

    line += AddOnConditionCmd(u" AVGN", m_AvgnCheck);
    line += AddOnConditionCmd(u" AGG", m_AggOption && m_AggEnabled);
    line += AddOnConditionCmd(u" TOTAL", m_TotalOption && m_TotalEnabled);
    line += AddOnConditionCmd(u" Z", m_ZCheck);
    AppendCommandLine(list, line);
}

void CShewhartData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceVariables, &all, 1);
}

void CShewhartData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    // The options and choices, the lists, then the numbers; the page's four
    // own integers are not part of the record.
    kal::SerializeValues(ar, m_AvgnCheck, m_AggOption, m_TotalOption, m_ZCheck, m_LimitsRadio, m_ChartTypeCombo,
                         m_SourceVariables, m_GroupVariables, m_ChartVariables, m_FrequencyVariables, m_CenterEdit,
                         m_SigmaEdit, m_PLimitsLowerEdit, m_PLimitsUpperEdit, m_LimitsLowerEdit, m_LimitsUpperEdit,
                         m_SigmaLowerEdit, m_SigmaUpperEdit);
}
