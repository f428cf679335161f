#include "private/Regression/KDGRegressionData.h"

#include "framework/BaseGui.h"
#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"
#include "host/IGlobal.h"

#include <string_view>
#include <unordered_set>

IMPLEMENT_SERIAL(CRegressionData, CGUIBaseObj, 1)

void CRegressionData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    // The quality-control module has to be left first; from any other
    // module (or from this one) the host switches by itself.
    if (kal::framework::CurrentCommandModule() == u"QC")
        AppendCommandLine(list, u"EXIT");
    AppendCommandLine(list, u"REGRESS");

    // The constant counts only while its check box is both checked and
    // enabled: a mixture model or matrix data have none.
    const int constant = m_IncludeConstantCheck.m_Value && m_IncludeConstantCheck.m_nWindowState ? 1 : 0;
    CString model(u"MODEL ");
    AddVariables(model, m_DependentList, u" ");
    model += u" = ";
    model += AddOnConditionCmd(u"CONSTANT", constant);
    model += AddOnConditionCmd(u"+", constant && m_IndependentList.GetSize() > 0);
    AddVariables(model, m_IndependentList, u"+");
    model += AddEditValueCmd(m_CasesEdit, u"/N=", kal::framework::IsMatrixData() ? 1 : 0);
    AppendCommandLine(list, model);

    if (m_SaveCheck)
        AddSaveCmd(m_SaveEdit, list, CComboUtil::GetComboString(kSaveCombo, m_SaveCombo, 0), u"");
}

void CRegressionData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceList, &all, 1);

    // Variables the open data sheet no longer has leave the model too.
    IGlobal* host = kal::framework::Host();
    IDataSheet* sheet = host ? host->GetActiveDataSheet() : nullptr;
    if (!sheet || !sheet->IsValid() || (m_DependentList.GetSize() == 0 && m_IndependentList.GetSize() == 0))
        return;
    std::unordered_set<std::u16string_view> names;
    names.reserve(static_cast<std::size_t>(all.GetSize()));
    for (const auto& variable : all)
        names.insert(variable.GetVariableName().Str());
    for (CGUIArray<CGUIDataVariable>* list : {&m_DependentList, &m_IndependentList}) {
        CGUIArray<CGUIDataVariable> kept;
        for (const auto& variable : *list)
            if (names.count(variable.GetVariableName().Str()))
                kept.Add(variable);
        *list = std::move(kept);
    }
}

void CRegressionData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    // The plain members first, then the holders: not member order.
    kal::SerializeValues(ar, m_SaveCheck, m_SaveCombo, m_SaveEdit, m_nStateWord, m_IncludeConstantCheck, m_SourceList,
                         m_DependentList, m_IndependentList, m_CasesEdit);
}
