#include "private/Mixed/KDGMixRegModelData.h"

#include "framework/ResourceUtil.h"
#include "private/Anova/KDGModelTerms.h"
#include "private/Mixed/KDGMixedLists.h"

IMPLEMENT_SERIAL(CMixRegModelData, CGUIBaseObj, 1)

void CMixRegModelData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleMixReg, list);

    std::vector<CString> terms;
    for (const auto* regressors : {&m_FixedList, &m_RandomList})
        for (const CString& name : kal::mixed::Names(*regressors))
            terms.push_back(CModelTerms::MainEffect(name));
    CGUIArray<CString> unique;
    CModelTerms::AddUnique(unique, terms);
    CString model(u"MODEL ");
    AddVariables(model, m_DependentList, u" ");
    model += u" = CONSTANT";
    for (const CString& term : unique)
        model += u"+" + term;
    model += u" / LINK = " + CComboUtil::GetComboString(kLinkCombo, m_LinkCombo, 0);
    AppendCommandLine(list, model);

    CString effects;
    AddVariables(effects, m_RandomList, u"+");
    if (!m_InterceptCheck && effects.IsEmpty())
        return;
    CString random(u"RANDOM ");
    random += AddOnConditionCmd(u"INTERCEPT", m_InterceptCheck);
    random += AddOnConditionCmd(u"+", m_InterceptCheck && !effects.IsEmpty());
    random += effects + u" / GROUP = ";
    AddVariables(random, m_GroupList, u" ");
    AppendCommandLine(list, random);
}

void CMixRegModelData::FillListSource()
{
    kal::mixed::RefreshLists(*this, m_SourceList, {&m_DependentList, &m_FixedList, &m_RandomList, &m_GroupList});
}

void CMixRegModelData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_InterceptCheck, m_LinkCombo, m_SourceList, m_DependentList, m_FixedList, m_RandomList,
                         m_GroupList);
}
