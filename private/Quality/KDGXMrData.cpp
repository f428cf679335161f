#include "private/Quality/KDGXMrData.h"

#include "framework/BaseGui.h"
#include "framework/ResourceUtil.h"
#include "private/Quality/KDGControlLimits.h"

IMPLEMENT_SERIAL(CXMrData, CGUIBaseObj, 1)

void CXMrData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleQc, list);

    CString line(u"XMR   ");
    AddVariables(line, m_ChartVariables, u" ");
    line += u" / ";
    if (!GetValueState(m_WidthEdit))
        line += AddEditValueCmd(m_WidthEdit, GetDefaultWidthEdit(), 0, u" WIDTH = ", 1);
    line += AddEditValueCmd(m_CenterEdit, u"  CENTER = ", !GetValueState(m_CenterEdit));
    line += AddEditValueCmd(m_MrEdit, u"    MR = ", !GetValueState(m_MrEdit));
    line += AddEditValueCmd(m_SigmaEdit, u"  SIGMA = ", !GetValueState(m_SigmaEdit));

    const UINT limits = CRadioUtil::GetRadioItem(kLimitsRadio, m_LimitsRadio);
    line +=
        kal::quality::ChosenLimitsClause(*this, limits, kItemProbabilityLimits, kItemSigmaLimits, m_PLimitsLowerEdit,
                                         m_PLimitsUpperEdit, m_SigmaLowerEdit, m_SigmaUpperEdit);

    switch (CRadioUtil::GetRadioItem(kCenterLineRadio, m_CenterLineRadio)) {
    case kItemMean: line += u" MEAN "; break;
    case kItemMedian: line += u" MEDIAN "; break;
    default: break;
    }
    AppendCommandLine(list, line);
}

void CXMrData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceVariables, &all, 1);
}

void CXMrData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_CenterLineRadio, m_LimitsRadio, m_SourceVariables, m_ChartVariables, m_WidthEdit,
                         m_CenterEdit, m_MrEdit, m_SigmaEdit, m_PLimitsLowerEdit, m_PLimitsUpperEdit, m_SigmaLowerEdit,
                         m_SigmaUpperEdit);
}
