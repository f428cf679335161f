// Helpers the mixed-model and mixed-regression pages share: refreshing
// their lists from the data sheet and the checks of their variable roles.
#pragma once

#include "framework/GUIBaseObj.h"

#include <initializer_list>
#include <vector>

namespace kal::mixed {

// The source list follows the data sheet; the role lists lose the
// variables the sheet no longer has (while a sheet is open).
void RefreshLists(CGUIBaseObj& page, CGUIArray<CGUIDataVariable>& source,
                  std::initializer_list<CGUIArray<CGUIDataVariable>*> roles);

// Whether some variable stands in two of `lists`.
bool SharesVariable(std::initializer_list<const CGUIArray<CGUIDataVariable>*> lists);

// Whether every variable of `part` is in `whole`.
bool IsSubset(const CGUIArray<CGUIDataVariable>& part, const CGUIArray<CGUIDataVariable>& whole);

// The names of a list, in order.
std::vector<CString> Names(const CGUIArray<CGUIDataVariable>& list);

} // namespace kal::mixed
