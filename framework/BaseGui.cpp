#include "framework/BaseGui.h"

#include "framework/HostLink.h"
#include "host/IGlobal.h"

void CBaseGui::GetSourceVariable(CGUIArray<CGUIDataVariable>* out, NmsEnum::ADD_VARIABLE_TYPE which, int)
{
    if (!out)
        return;
    out->RemoveAll();
    IGlobal* host = kal::framework::Host();
    IDataSheet* sheet = host ? host->GetActiveDataSheet() : nullptr;
    if (!sheet || !sheet->IsValid())
        return;
    const int count = sheet->GetVariableCount();
    out->Reserve(static_cast<std::size_t>(count > 0 ? count : 0));
    for (int i = 0; i < count; ++i) {
        const auto type = sheet->GetVariableType(i);
        if ((which == NmsEnum::ADD_NUMERIC_VARIABLES && type != NmsEnum::VT_NUMERIC) ||
            (which == NmsEnum::ADD_STRING_VARIABLES && type != NmsEnum::VT_STRING))
            continue;
        out->Add(CGUIDataVariable(sheet->GetVariableName(i, 1), type, i));
    }
}
