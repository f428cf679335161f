#include "private/Mixed/KDGMixedLists.h"

#include "framework/BaseGui.h"
#include "host/IGlobal.h"

#include <unordered_set>

namespace kal::mixed {

void RefreshLists(CGUIBaseObj& page, CGUIArray<CGUIDataVariable>& source,
                  std::initializer_list<CGUIArray<CGUIDataVariable>*> roles)
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    page.UpdateCtrlList(&source, &all, 1);
    IGlobal* host = kal::framework::Host();
    IDataSheet* sheet = host ? host->GetActiveDataSheet() : nullptr;
    if (!sheet || !sheet->IsValid())
        return;
    for (CGUIArray<CGUIDataVariable>* role : roles)
        page.UpdateCtrlList(role, &all, 0);
}

bool SharesVariable(std::initializer_list<const CGUIArray<CGUIDataVariable>*> lists)
{
    std::unordered_set<CString> seen;
    for (const CGUIArray<CGUIDataVariable>* list : lists) {
        // A list holds a variable once: only repeats across lists count.
        std::unordered_set<CString> own;
        for (const auto& variable : *list) {
            const CString& name = variable.GetVariableName();
            if (own.insert(name).second && !seen.insert(name).second)
                return true;
        }
    }
    return false;
}

bool IsSubset(const CGUIArray<CGUIDataVariable>& part, const CGUIArray<CGUIDataVariable>& whole)
{
    std::unordered_set<CString> names;
    for (const auto& variable : whole)
        names.insert(variable.GetVariableName());
    for (const auto& variable : part)
        if (!names.count(variable.GetVariableName()))
            return false;
    return true;
}

std::vector<CString> Names(const CGUIArray<CGUIDataVariable>& list)
{
    std::vector<CString> names;
    for (const auto& variable : list)
        names.push_back(variable.GetVariableName());
    return names;
}

} // namespace kal::mixed
