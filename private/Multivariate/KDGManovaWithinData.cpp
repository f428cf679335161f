#include "private/Multivariate/KDGManovaWithinData.h"

#include "framework/BaseGui.h"
#include "framework/StringUtil.h"
#include "private/Anova/KDGAnovaData.h"
#include "private/Anova/KDGModelTerms.h"
#include "private/Anova/KDGRepeatMeasuresData.h"

IMPLEMENT_SERIAL(CManovaWithinData, CGUIBaseObj, 1)

void CManovaWithinData::GetDefaultName(CGUIArray<CString>& names)
{
    CRepeatMeasuresData::GetDefaultName(names);
}

void CManovaWithinData::GetDefaultLevels(CGUIArray<int>& levels)
{
    CRepeatMeasuresData::GetDefaultLevels(levels);
}

void CManovaWithinData::GetDefaultMetric(CGUIArray<CString>& metric)
{
    CRepeatMeasuresData::GetDefaultMetric(metric);
}

void CManovaWithinData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleManova, list);

    CString model(u"MODEL ");
    AddVariables(model, m_DependentList, u" ");
    model += u" = CONSTANT";
    std::vector<CString> factors;
    for (const auto& factor : m_FactorList)
        factors.push_back(factor.GetVariableName());
    std::vector<CString> terms = CModelTerms::FullFactorial(factors);
    if (terms.empty()) // one factor, or more than a full factorial takes
        for (const CString& factor : factors)
            terms.push_back(CModelTerms::MainEffect(factor));
    for (const CString& term : terms)
        if (!term.IsEmpty())
            model += u"+" + term;
    // The within factors as the repeated-measures page writes them; lists
    // of different lengths come only from a damaged record and write none.
    CRepeatMeasuresData within;
    within.SetAll(1, m_arrStrName, m_arrLevels, m_arrStrMetric);
    if (m_arrStrMetric.GetSize() >= m_arrLevels.GetSize() && !m_arrLevels.IsEmpty())
        model += within.GetClause(false);
    AppendCommandLine(list, model);

    AppendCommandLine(list, CAnovaData::CategoryLine(*this, m_FactorList, 0));

    CString clauses = GetStatistics().Clause();
    const std::pair<int, const char16_t*> corrections[] = {
        {m_GreenhouseCheck, u"GG"}, {m_HuynhCheck, u"HF"}, {m_LowerBoundCheck, u"LB"}};
    CString names;
    for (const auto& [checked, name] : corrections)
        if (checked)
            names += (names.IsEmpty() ? u"" : u", ") + CString(name);
    clauses += AddOnConditionCmd(u" SPHERICITY = " + names, !names.IsEmpty());
    AppendCommandLine(list, u"ESTIMATE " + AddOnConditionCmd(u"/" + clauses, !clauses.IsEmpty()));
}

void CManovaWithinData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceList, &all, 1);
    if (all.IsEmpty())
        return;
    UpdateCtrlList(&m_DependentList, &all, 0);
    UpdateCtrlList(&m_FactorList, &all, 0);
}

void CManovaWithinData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    // The checks, then the lists, then the factors as the repeated-measures
    // page keeps them: names, metrics, levels.
    kal::SerializeValues(ar, m_GreenhouseCheck, m_HuynhCheck, m_LowerBoundCheck, m_WilksCheck, m_PillaiCheck,
                         m_HotellingCheck, m_RoyCheck, m_SourceList, m_DependentList, m_FactorList, m_arrStrName,
                         m_arrStrMetric, m_arrLevels);
}
