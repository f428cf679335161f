// What a variable list shows beside each name: whether the variable is
// numeric, a string, or numeric codes the data sheet treats as categories.
#pragma once

#include "platform/CString.h"

#include <vector>

class CGUIListCtrl;

namespace kal::framework {

enum class VariableKind {
    Unknown, // no data sheet knows the variable
    Numeric,
    String,      // string variables are categorical as well
    Categorical, // numeric codes the data sheet marks categorical
};

// The kind of every variable of `list`, in list order, as the host's active
// data sheet marks it. An entry without a type of its own (a factor list
// filled from the sheet's categorical variables) takes the type of the
// sheet's variable of that name.
std::vector<VariableKind> VariableKindsOf(const CGUIListCtrl& list);

// "numeric variable", "string variable", "categorical variable", or an
// empty text for an unknown one.
CString VariableKindText(VariableKind kind);

} // namespace kal::framework
