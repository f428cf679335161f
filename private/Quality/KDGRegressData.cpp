#include "private/Quality/KDGRegressData.h"

#include "framework/BaseGui.h"
#include "framework/ResourceUtil.h"
#include "private/Quality/KDGChartLine.h"

IMPLEMENT_SERIAL(CRegressData, CGUIBaseObj, 1)

void CRegressData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleQc, list);

    CString line = u"REGCHART ";
    AddVariables(line, m_ResponseVariables, u" ");
    line += u" = ";
    AddVariables(line, m_PredictorVariables, u" ");
    line += u" /";
    line += AddEditValueCmd(m_SigmaEdit, u" SIGMA=", kal::quality::IsGiven(m_SigmaEdit));
    const UINT limits = CRadioUtil::GetRadioItem(kLimitsRadio, m_LimitsRadio);
    line +=
        kal::quality::ChosenLimitsClause(*this, limits, kItemProbabilityLimits, kItemSigmaLimits, m_PLimitsLowerEdit,
                                         m_PLimitsUpperEdit, m_SigmaLowerEdit, m_SigmaUpperEdit);
    kal::quality::PushChartLine(list, line, u"REGCHART ");
}

void CRegressData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceVariables, &all, 1);
}

void CRegressData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_LimitsRadio, m_SourceVariables, m_ResponseVariables, m_PredictorVariables, m_SigmaEdit,
                         m_PLimitsLowerEdit, m_PLimitsUpperEdit, m_SigmaLowerEdit, m_SigmaUpperEdit);
}
