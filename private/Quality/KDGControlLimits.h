// The control-limits clause of the quality charts (" PLIMITS=", " LIMITS=",
// " SLIMITS="), whose bounds the user may leave empty. A bound counts as
// given when the value clauses rule writes it: the user entered a value
// other than its default 0, or the host asks for every option and the
// holder may be forced. A bound not given leaves its place before or after
// the comma empty (" LIMITS=,8" is an upper limit alone); with neither
// bound given the clause is left out and the chart keeps its usual limits.
#pragma once

#include "framework/GUIBaseObj.h"

namespace kal::quality {

CString LimitsClause(const CGUIBaseObj& settings, const CGUIData<double>& lower, const CGUIData<double>& upper,
                     const CString& keyword, int bCondition);

// Whether the user gave a value: the holder no longer holds its default.
inline bool IsGiven(const CGUIData<double>& bound)
{
    return bound.m_nState == 0;
}

// Specification limits given on both sides must be in order (0 when they
// are), and a target given must lie within the limits given.
inline UINT SpecLimitsOrder(const CGUIData<double>& lower, const CGUIData<double>& upper, UINT message)
{
    return IsGiven(lower) && IsGiven(upper) && lower.m_Value >= upper.m_Value ? message : 0;
}
inline UINT TargetWithin(const CGUIData<double>& lower, const CGUIData<double>& upper, const CGUIData<double>& target,
                         UINT message)
{
    if (!IsGiven(target))
        return 0;
    const bool aboveLower = !IsGiven(lower) || target.m_Value >= lower.m_Value;
    const bool belowUpper = !IsGiven(upper) || target.m_Value <= upper.m_Value;
    return aboveLower && belowUpper ? 0 : message;
}

} // namespace kal::quality
