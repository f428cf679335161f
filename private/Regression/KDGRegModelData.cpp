#include "private/Regression/KDGRegModelData.h"

#include "framework/BaseGui.h"
#include "framework/HostLink.h"
#include "host/IGlobal.h"

#include <string_view>
#include <unordered_set>

IMPLEMENT_SERIAL(CRegModelData, CGUIBaseObj, 1)

void CRegModelData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    // The quality-control module has to be left first; from any other
    // module the host switches by itself.
    if (kal::framework::CurrentCommandModule() == u"QC")
        AppendCommandLine(list, u"EXIT");
    AddModuleCmd(m_nModuleId, list);

    // The constant counts only while its check box is both checked and
    // enabled: matrix data have none. A case weight needs the cases.
    const bool matrix = kal::framework::IsMatrixData();
    const int constant = m_IncludeConstantCheck.m_Value && m_IncludeConstantCheck.m_nWindowState ? 1 : 0;
    CString model(u"MODEL ");
    AddVariables(model, m_DependentList, u" ");
    model += u" = ";
    model += AddOnConditionCmd(u"CONSTANT", constant);
    model += AddOnConditionCmd(u"+", constant && m_RegressorList.GetSize() > 0);
    AddVariables(model, m_RegressorList, u"+");
    if (!matrix && m_WeightList.GetSize() > 0) {
        model += u" / WEIGHT = ";
        AddVariables(model, m_WeightList, u" ");
    }
    model += AddEditValueCmd(m_CasesEdit, u"/N=", matrix ? 1 : 0);
    AppendCommandLine(list, model);
}

void CRegModelData::FillListSource()
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    UpdateCtrlList(&m_SourceList, &all, 1);

    // Variables the open data sheet no longer has leave the model too.
    IGlobal* host = kal::framework::Host();
    IDataSheet* sheet = host ? host->GetActiveDataSheet() : nullptr;
    if (!sheet || !sheet->IsValid())
        return;
    std::unordered_set<std::u16string_view> names;
    names.reserve(static_cast<std::size_t>(all.GetSize()));
    for (const auto& variable : all)
        names.insert(variable.GetVariableName().Str());
    for (CGUIArray<CGUIDataVariable>* list : {&m_DependentList, &m_RegressorList, &m_WeightList}) {
        CGUIArray<CGUIDataVariable> kept;
        for (const auto& variable : *list)
            if (names.count(variable.GetVariableName().Str()))
                kept.Add(variable);
        *list = std::move(kept);
    }
}

void CRegModelData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_SourceList, m_DependentList, m_RegressorList, m_WeightList, m_CasesEdit,
                         m_IncludeConstantCheck);
}
