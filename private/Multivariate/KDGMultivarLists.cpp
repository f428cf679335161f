#include "private/Multivariate/KDGMultivarLists.h"

#include "framework/BaseGui.h"
#include "framework/HostLink.h"
#include "host/IGlobal.h"

namespace kal::multivariate {

void RefreshLists(CGUIBaseObj& settings, CGUIArray<CGUIDataVariable>& source,
                  std::initializer_list<CGUIArray<CGUIDataVariable>*> roles)
{
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    settings.UpdateCtrlList(&source, &all, 1);

    // Without a valid sheet there is nothing to compare the choices with.
    IGlobal* host = kal::framework::Host();
    IDataSheet* sheet = host ? host->GetActiveDataSheet() : nullptr;
    if (!sheet || !sheet->IsValid())
        return;
    for (CGUIArray<CGUIDataVariable>* role : roles)
        settings.UpdateCtrlList(role, &all, 0);
}

int CaseCount()
{
    IGlobal* host = kal::framework::Host();
    IDataSheet* sheet = host ? host->GetActiveDataSheet() : nullptr;
    if (!sheet || !sheet->IsValid() || kal::framework::IsMatrixData())
        return -1;
    return sheet->GetCaseCount();
}

} // namespace kal::multivariate
