#include "private/ResponseSurface/KDGRsmFactorsData.h"

#include "framework/BaseGui.h"
#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"
#include "host/IGlobal.h"

#include <cmath>
#include <limits>

IMPLEMENT_SERIAL(CRsmFactorsData, CGUIBaseObj, 1)

double CRsmFactorsData::None()
{
    return std::numeric_limits<double>::quiet_NaN();
}

bool CRsmFactorsData::IsCoded() const
{
    return CRadioUtil::GetRadioItem(kUnitsRadio, m_UnitsRadio) == kItemCoded;
}

void CRsmFactorsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleRsm, list);

    CString model(u"MODEL ");
    AddVariables(model, m_ResponseList, u" ");
    model += u" = ";
    AddVariables(model, m_FactorList, u"+");
    AppendCommandLine(list, model);

    if (m_Kind == RsmKind::Estimate && !m_BlockList.IsEmpty()) {
        CString block(u"BLOCK ");
        AddVariables(block, m_BlockList, u" ");
        AppendCommandLine(list, block);
    }

    // Each factor with both ends of its range, as name(low,high).
    CString ranges;
    for (int i = 0; i < m_FactorList.GetSize(); ++i) {
        const double low = GetLow(i);
        const double high = GetHigh(i);
        if (std::isnan(low) || std::isnan(high))
            continue;
        CGUIArray<CGUIDataVariable> one;
        one.Add(m_FactorList[i]);
        CString name;
        AddVariables(name, one, u"");
        if (name.IsEmpty())
            continue;
        ranges += u" " + name + u"(" + NumberText(low) + LimitsSeparator() + NumberText(high) + u")";
    }
    if (!ranges.IsEmpty())
        AppendCommandLine(list, u"FACTOR" + ranges + AddOnConditionCmd(u" / CODED", IsCoded() ? 1 : 0));
}

void CRsmFactorsData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceList, &all, 1);

    IGlobal* host = kal::framework::Host();
    IDataSheet* sheet = host ? host->GetActiveDataSheet() : nullptr;
    if (!sheet || !sheet->IsValid())
        return;
    UpdateCtrlList(&m_ResponseList, &all, 0);
    UpdateCtrlList(&m_BlockList, &all, 0);
    // The ranges stay with the factors that remain.
    CGUIArray<CGUIDataVariable> factors;
    CGUIArray<double> low;
    CGUIArray<double> high;
    for (int i = 0; i < m_FactorList.GetSize(); ++i) {
        if (!CheckStringPresentinListCtrlArray(all, m_FactorList[i].GetVariableName()))
            continue;
        factors.Add(m_FactorList[i]);
        low.Add(GetLow(i));
        high.Add(GetHigh(i));
    }
    m_FactorList = factors;
    m_LowList = low;
    m_HighList = high;
}

void CRsmFactorsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_UnitsRadio, m_SourceList, m_ResponseList, m_FactorList, m_BlockList, m_LowList,
                         m_HighList);
}
