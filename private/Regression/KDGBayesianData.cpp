#include "private/Regression/KDGBayesianData.h"

#include "framework/BaseGui.h"
#include "framework/ResourceUtil.h"

IMPLEMENT_SERIAL(CBayesianData, CGUIBaseObj, 1)

bool CBayesianData::IsNormalPrior() const
{
    return CRadioUtil::GetRadioItem(kCoefficientPriorRadio, m_CoefficientPriorRadio) != kCoefficientPriorRadio;
}

bool CBayesianData::IsInverseGammaPrior() const
{
    return CRadioUtil::GetRadioItem(kVariancePriorRadio, m_VariancePriorRadio) != kVariancePriorRadio;
}

void CBayesianData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(kModuleBayes, list);
    CString model(u"MODEL ");
    AddVariables(model, m_DependentList, u" ");
    model += u" = ";
    model += AddOnConditionCmd(u"CONSTANT", m_ConstantCheck);
    model += AddOnConditionCmd(u"+", m_ConstantCheck && m_IndependentList.GetSize() > 0);
    AddVariables(model, m_IndependentList, u"+");
    AppendCommandLine(list, model);

    // Both priors are always stated, their parameters with them.
    const CString separator = LimitsSeparator() + u" ";
    CString prior(u"PRIOR / COEF = ");
    prior += IsNormalPrior() ? u"NORMAL(" + NumberText(m_PriorMeanEdit.m_Value) + separator +
                                   NumberText(m_PriorVarianceEdit.m_Value) + u")"
                             : CString(u"FLAT");
    prior += u" VARIANCE = ";
    prior += IsInverseGammaPrior()
                 ? u"IGAMMA(" + NumberText(m_ShapeEdit.m_Value) + separator + NumberText(m_ScaleEdit.m_Value) + u")"
                 : CString(u"JEFFREYS");
    AppendCommandLine(list, prior);

    CString clauses = AddChangedValueCmd(u" DRAWS = ", m_DrawsEdit);
    clauses += AddChangedValueCmd(u" BURNIN = ", m_BurnInEdit);
    clauses += AddChangedValueCmd(u" RSEED = ", m_SeedEdit);
    clauses += AddChangedValueCmd(u" CREDIBLE = ", m_CredibleEdit);
    AppendCommandLine(list, clauses.IsEmpty() ? CString(u"ESTIMATE ") : u"ESTIMATE /" + clauses);
}

void CBayesianData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceList, &all, 1);
}

void CBayesianData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_SourceList, m_DependentList, m_IndependentList, m_ConstantCheck, m_CoefficientPriorRadio,
                         m_PriorMeanEdit, m_PriorVarianceEdit, m_VariancePriorRadio, m_ShapeEdit, m_ScaleEdit,
                         m_DrawsEdit, m_BurnInEdit, m_SeedEdit, m_CredibleEdit);
}
