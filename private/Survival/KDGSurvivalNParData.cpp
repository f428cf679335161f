#include "private/Survival/KDGSurvivalNParData.h"

#include "framework/ResourceUtil.h"
#include "framework/StringUtil.h"
#include "private/Survival/KDGSurvivalNParTabData.h"

IMPLEMENT_SERIAL(CSurvivalNParData, CGUIBaseObj, 1)

bool CSurvivalNParData::HasStrata() const
{
    CGUIBaseObj* parent = nullptr;
    GetParent(parent);
    auto* tab = dynamic_cast<CSurvivalNParTabData*>(parent);
    return tab && tab->GetModelData()->HasStrata();
}

void CSurvivalNParData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    const bool lifeTable = CRadioUtil::GetRadioItem(kEstimatesRadio, m_EstimatesRadio) == kItemLifeTable;
    CString line(lifeTable ? u"LTAB /" : u"KM /");
    // A width of 0 leaves the intervals to the engine.
    line += AddEditValueCmd(m_WidthEdit, u" WIDTH = ", lifeTable && m_WidthEdit.m_Value > 0 ? 1 : 0);
    line += AddEditValueCmd(m_ConfidenceEdit, GetDefaultConfidenceEdit(), 0, u" CONFI = ", 1);
    CStringUtil::RemoveTrailingChar(line, u'/');
    AppendCommandLine(list, line);

    if (!HasStrata())
        return;
    CString tests;
    tests += AddOnConditionCmd(u" LOGRANK", m_LogRankCheck);
    tests += AddOnConditionCmd(u" BRESLOW", m_BreslowCheck);
    tests += AddOnConditionCmd(u" TARONE", m_TaroneCheck);
    tests += AddOnConditionCmd(u" PETO", m_PetoCheck);
    if (!tests.IsEmpty())
        AppendCommandLine(list, u"TEST /" + tests);
}

void CSurvivalNParData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_EstimatesRadio, m_LogRankCheck, m_BreslowCheck, m_TaroneCheck, m_PetoCheck, m_WidthEdit,
                         m_ConfidenceEdit);
}
