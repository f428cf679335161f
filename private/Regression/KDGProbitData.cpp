#include "private/Regression/KDGProbitData.h"

#include "framework/BaseGui.h"
#include "framework/ResourceUtil.h"

IMPLEMENT_SERIAL(CProbitData, CGUIBaseObj, 1)

bool CProbitData::IsCounts() const
{
    return CRadioUtil::GetRadioItem(kResponseRadio, m_ResponseRadio) != kResponseRadio;
}

UINT CProbitData::ChosenNatural() const
{
    return CRadioUtil::GetRadioItem(kNaturalRadio, m_NaturalRadio);
}

void CProbitData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleProbit, list);

    // The dose term: the name, quoted where it has to be, inside the
    // transform's function.
    CString dose;
    AddVariables(dose, m_DoseList, u"+");
    const CString transform = CComboUtil::GetComboString(kTransformCombo, m_TransformCombo, 0);
    if (!dose.IsEmpty() && !transform.IsEmpty() && transform != u"NONE")
        dose = transform + u"(" + dose + u")";
    CString terms = dose;
    CString covariates;
    AddVariables(covariates, m_CovariateList, u"+");
    if (!covariates.IsEmpty())
        terms += (terms.IsEmpty() ? u"" : u"+") + covariates;

    CString model(u"MODEL ");
    AddVariables(model, m_ResponseList, u" ");
    model += u" = ";
    model += AddOnConditionCmd(u"CONSTANT", m_ConstantCheck);
    model += AddOnConditionCmd(u"+", m_ConstantCheck && !terms.IsEmpty());
    model += terms;
    if (IsCounts() && m_TotalList.GetSize() > 0) {
        model += u" / TOTAL = ";
        AddVariables(model, m_TotalList, u" ");
    }
    AppendCommandLine(list, model);

    CString clauses;
    switch (ChosenNatural()) {
    case kEstimatedNatural: clauses += u" NATURAL = ESTIMATE"; break;
    case kKnownNatural: clauses += u" NATURAL = " + NumberText(m_NaturalEdit.m_Value); break;
    default: break;
    }
    clauses += AddChangedValueCmd(u" CONFI = ", m_ConfidenceEdit);
    AppendCommandLine(list, clauses.IsEmpty() ? CString(u"ESTIMATE ") : u"ESTIMATE /" + clauses);
}

void CProbitData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceList, &all, 1);
}

void CProbitData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_SourceList, m_ResponseList, m_TotalList, m_DoseList, m_CovariateList, m_ResponseRadio,
                         m_ConstantCheck, m_TransformCombo, m_NaturalRadio, m_NaturalEdit, m_ConfidenceEdit);
}
