#include "private/Mixed/KDGHlmLevelsData.h"

#include "framework/ResourceUtil.h"
#include "private/Anova/KDGGLMData.h"
#include "private/Anova/KDGModelTerms.h"
#include "private/Mixed/KDGMixedLists.h"
#include "private/Mixed/KDGMixedRandomData.h"

IMPLEMENT_SERIAL(CHlmLevelsData, CGUIBaseObj, 1)

CGUIArray<CString> CHlmLevelsData::Terms() const
{
    std::vector<CString> terms;
    for (const auto* list : {&m_Level1List, &m_Level2List})
        for (const CString& name : kal::mixed::Names(*list))
            terms.push_back(CModelTerms::MainEffect(name));
    if (m_CrossLevelCheck)
        for (const CString& slope : kal::mixed::Names(m_SlopeList))
            for (const CString& unitPredictor : kal::mixed::Names(m_Level2List))
                terms.push_back(CModelTerms::Interaction({slope, unitPredictor}));
    CGUIArray<CString> unique;
    CModelTerms::AddUnique(unique, terms);
    return unique;
}

void CHlmLevelsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(CGLMData::kModuleMixed, list);

    const CGUIArray<CString> terms = Terms();
    CString model(u"MODEL ");
    AddVariables(model, m_DependentList, u" ");
    model += u" = CONSTANT";
    for (const CString& term : terms)
        model += u"+" + term;
    if (m_CenterCombo != 0)
        model += u" / CENTER = " + CComboUtil::GetComboString(kCenterCombo, m_CenterCombo, 0);
    AppendCommandLine(list, model);

    AppendCommandLine(
        list, CMixedRandomData::RandomLine(*this, m_InterceptCheck, m_SlopeList, m_UnitList, m_CovarianceCombo));
}

void CHlmLevelsData::FillListSource()
{
    kal::mixed::RefreshLists(*this, m_SourceList,
                             {&m_DependentList, &m_UnitList, &m_Level1List, &m_Level2List, &m_SlopeList});
}

void CHlmLevelsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_InterceptCheck, m_CrossLevelCheck, m_CenterCombo, m_CovarianceCombo, m_SourceList,
                         m_DependentList, m_UnitList, m_Level1List, m_Level2List, m_SlopeList);
}
