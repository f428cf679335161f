#include "private/Mixed/KDGVarCompData.h"

#include "framework/ResourceUtil.h"
#include "private/Anova/KDGAnovaData.h"
#include "private/Anova/KDGModelTerms.h"
#include "private/Mixed/KDGMixedLists.h"

IMPLEMENT_SERIAL(CVarCompData, CGUIBaseObj, 1)

std::vector<CString> CVarCompData::Factors() const
{
    std::vector<CString> factors = kal::mixed::Names(m_FixedList);
    for (const CString& name : kal::mixed::Names(m_RandomList))
        factors.push_back(name);
    return factors;
}

void CVarCompData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleVarComp, list);

    const std::vector<CString> factors = Factors();
    std::vector<CString> terms;
    if (m_InteractionsCheck)
        terms = CModelTerms::FullFactorial(factors);
    if (terms.empty())
        for (const CString& factor : factors)
            terms.push_back(CModelTerms::MainEffect(factor));
    for (const CString& covariate : kal::mixed::Names(m_CovariateList))
        terms.push_back(CModelTerms::MainEffect(covariate));
    CGUIArray<CString> model;
    CModelTerms::AddUnique(model, terms);

    CString line(u"MODEL ");
    AddVariables(line, m_DependentList, u" ");
    line += u" = CONSTANT";
    for (const CString& term : model)
        line += u"+" + term;
    AppendCommandLine(list, line);

    CGUIArray<CGUIDataVariable> categorical = m_FixedList;
    for (const auto& variable : m_RandomList)
        categorical.Add(variable);
    AppendCommandLine(list, CAnovaData::CategoryLine(*this, categorical, 0));

    // Every term that names a random factor is random.
    const std::vector<CString> random = kal::mixed::Names(m_RandomList);
    CString randomLine(u"RANDOM ");
    bool first = true;
    for (const CString& term : model) {
        CGUIArray<CString> one;
        one.Add(term);
        if (CModelTerms::UsedAmong(one, random).empty())
            continue;
        randomLine += first ? u"" : u" ";
        randomLine += term;
        first = false;
    }
    AppendCommandLine(list, randomLine);

    CString estimate(u"ESTIMATE / METHOD = ");
    estimate += CComboUtil::GetComboString(kMethodCombo, m_MethodCombo, 0);
    if (m_MethodCombo == kMethodAnova)
        estimate += CRadioUtil::GetRadioItem(kSumsRadio, m_SumsRadio) == CVarCompDlgIds::IDC_TYPE1_RADIO
                        ? u" SS = TYPE1"
                        : u" SS = TYPE3";
    if (IsIterative()) {
        estimate += AddChangedValueCmd(u" ITER = ", m_IterEdit);
        estimate += AddChangedValueCmd(u" CONV = ", m_ConvEdit);
    }
    AppendCommandLine(list, estimate);
}

void CVarCompData::FillListSource()
{
    kal::mixed::RefreshLists(*this, m_SourceList, {&m_DependentList, &m_RandomList, &m_FixedList, &m_CovariateList});
}

void CVarCompData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_MethodCombo, m_SumsRadio, m_InteractionsCheck, m_SourceList, m_DependentList,
                         m_RandomList, m_FixedList, m_CovariateList, m_IterEdit, m_ConvEdit);
}
