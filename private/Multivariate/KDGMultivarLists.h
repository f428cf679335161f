// The variable lists of the multivariate pages: the source list always lists
// the variables of the open data sheet, and the role lists keep only the
// variables the sheet still has; and the sheet's number of cases, which
// bounds the clusters a page may ask for.
#pragma once

#include "framework/GUIBaseObj.h"

#include <initializer_list>

namespace kal::multivariate {

// Fills `source` from the data sheet and trims each role list to the sheet's
// variables; without a valid sheet the role lists are left as they are.
void RefreshLists(CGUIBaseObj& settings, CGUIArray<CGUIDataVariable>& source,
                  std::initializer_list<CGUIArray<CGUIDataVariable>*> roles);

// The cases of the open data sheet, or -1 when it is not known (no sheet,
// or a matrix, whose rows are not cases).
int CaseCount();

} // namespace kal::multivariate
