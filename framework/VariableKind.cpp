#include "framework/VariableKind.h"

#include "framework/GUIListCtrl.h"
#include "framework/HostLink.h"
#include "host/IGlobal.h"

#include <unordered_map>
#include <unordered_set>

namespace kal::framework {

std::vector<VariableKind> VariableKindsOf(const CGUIListCtrl& list)
{
    IGlobal* host = Host();
    IDataSheet* sheet = host ? host->GetActiveDataSheet() : nullptr;
    if (sheet && !sheet->IsValid())
        sheet = nullptr;

    std::unordered_set<CString> categorical;
    if (sheet)
        for (const int index : sheet->GetCategoricalIndexes())
            categorical.insert(sheet->GetVariableName(index, 1));
    // Built only when an entry lacks a type: a whole sheet can be large.
    std::unordered_map<CString, NmsEnum::VARIABLETYPE> sheetTypes;
    const auto typeInSheet = [&](const CString& name) {
        if (!sheet)
            return NmsEnum::VT_UNKNOWN;
        if (sheetTypes.empty())
            for (int i = 0; i < sheet->GetVariableCount(); ++i)
                sheetTypes.emplace(sheet->GetVariableName(i, 1), sheet->GetVariableType(i));
        const auto it = sheetTypes.find(name);
        return it == sheetTypes.end() ? NmsEnum::VT_UNKNOWN : it->second;
    };

    std::vector<VariableKind> kinds;
    kinds.reserve(static_cast<std::size_t>(list.GetItemCount()));
    for (int i = 0; i < list.GetItemCount(); ++i) {
        const CGUIDataVariable& variable = list.GetVariable(i);
        NmsEnum::VARIABLETYPE type = variable.GetVariableType();
        if (type == NmsEnum::VT_UNKNOWN)
            type = typeInSheet(variable.GetVariableName());
        if (type == NmsEnum::VT_STRING)
            kinds.push_back(VariableKind::String);
        else if (type == NmsEnum::VT_NUMERIC)
            kinds.push_back(categorical.count(variable.GetVariableName()) ? VariableKind::Categorical
                                                                          : VariableKind::Numeric);
        else
            kinds.push_back(VariableKind::Unknown);
    }
    return kinds;
}

CString VariableKindText(VariableKind kind)
{
    switch (kind) {
    case VariableKind::Numeric: return u"numeric variable";
    case VariableKind::String: return u"string variable";
    case VariableKind::Categorical: return u"categorical variable";
    case VariableKind::Unknown: break;
    }
    return {};
}

} // namespace kal::framework
