// The control-limits clause of the quality charts (" PLIMITS=", " LIMITS=",
// " SLIMITS="). A bound edit shows its number, 0 included, and the user may
// empty it: an empty bound holds no number and leaves its place before or
// after the separator empty (" LIMITS=,8" is an upper limit alone). Both
// bounds given write the framework's limits clause; both empty write no
// clause, and the chart keeps its usual limits.
#pragma once

#include "framework/GUIBaseObj.h"

#include <cmath>

namespace kal::quality {

CString LimitsClause(const CGUIBaseObj& settings, const CGUIData<double>& lower, const CGUIData<double>& upper,
                     const CString& keyword, int bCondition);

// Whether the bound holds a number: the user did not empty its edit.
inline bool IsGiven(const CGUIData<double>& bound)
{
    return !std::isnan(bound.m_Value);
}

} // namespace kal::quality
