#include "private/Anova/KDGGLMData.h"

#include "framework/BaseGui.h"
#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"
#include "host/IGlobal.h"
#include "private/Anova/KDGAnovaData.h"
#include "private/Anova/KDGModelTerms.h"

IMPLEMENT_SERIAL(CGLMData, CGUIBaseObj, 1)

void CGLMData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AddModuleCmd(GetOwnerID() == kOwnerLinearMixedModel ? kModuleMixed : kModuleGlm, list);

    // The constant counts only while its check box is both checked and
    // enabled: a mixture model or matrix data have none.
    const int constant = m_IncludeConstantCheck.m_Value && m_IncludeConstantCheck.m_nWindowState ? 1 : 0;
    CString model(u"MODEL ");
    AddVariables(model, m_DependentList, u" ");
    model += u" = ";
    model += AddOnConditionCmd(u"CONSTANT", constant);
    model += AddOnConditionCmd(u"+", constant && m_Terms.GetSize() > 0);
    bool first = true;
    for (const CString& term : m_Terms) {
        // A term is built from quoted names; one that could start a line of
        // its own never came from the page and is not written.
        if (term.IsEmpty() || ContainsControlCharacter(term))
            continue;
        if (!first)
            model += u"+";
        model += term;
        first = false;
    }
    model += AddEditValueCmd(m_CasesEdit, u"/N=", kal::framework::IsMatrixData() ? 1 : 0);
    AppendCommandLine(list, model);

    // Only the categorical variables the model uses.
    std::vector<CString> names;
    for (const auto& variable : m_CategoryList)
        names.push_back(variable.GetVariableName());
    const auto used = CModelTerms::UsedAmong(m_Terms, names);
    CGUIArray<CGUIDataVariable> categorical;
    for (const auto& variable : m_CategoryList)
        if (used.count(variable.GetVariableName()))
            categorical.Add(variable);
    AppendCommandLine(list, CAnovaData::CategoryLine(*this, categorical, m_MissingValCheck));

    if (m_SaveCheck)
        AddSaveCmd(m_SaveEdit, list, CComboUtil::GetComboString(kSaveCombo, m_SaveCombo, 0), u"");
}

void CGLMData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceList, &all, 1);

    IGlobal* host = kal::framework::Host();
    IDataSheet* sheet = host ? host->GetActiveDataSheet() : nullptr;
    if (!sheet || !sheet->IsValid())
        return;
    UpdateCtrlList(&m_DependentList, &all, 0);
    UpdateCtrlList(&m_CategoryList, &all, 0);
    const CGUIArray<CGUIDataVariable> categorical = CAnovaData::SheetCategoricalVariables();
    if (!categorical.IsEmpty())
        UpdateCtrlList(&m_CategoryList, &categorical, 1);
}

void CGLMData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    // The plain members first, then the holders in member order.
    kal::SerializeValues(ar, m_MissingValCheck, m_SaveCheck, m_SaveCombo, m_SaveEdit, m_SourceList, m_DependentList,
                         m_CategoryList, m_Terms, m_DegreeEdit, m_CasesEdit, m_IncludeConstantCheck);
}
