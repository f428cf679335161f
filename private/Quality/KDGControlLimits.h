// The control-limits clause of the quality charts (" PLIMITS=", " LIMITS=",
// " SLIMITS="). A bound edit shows its number, 0 included, and the user may
// empty it: an empty bound holds no number and leaves its place before or
// after the separator empty (" LIMITS=,8" is an upper limit alone). Both
// bounds given write the framework's limits clause; both empty write no
// clause, and the chart keeps its usual limits.
#pragma once

#include "framework/GUIBaseDlg.h"
#include "framework/GUIBaseObj.h"

#include <cmath>
#include <limits>

namespace kal::quality {

CString LimitsClause(const CGUIBaseObj& settings, const CGUIData<double>& lower, const CGUIData<double>& upper,
                     const CString& keyword, int bCondition);

// The controls of a chart's choice of limits: the radios of probability
// limits and of sigma multiples, and the two bounds of each kind.
struct LimitsControls {
    UINT probabilityRadio = 0;
    UINT sigmaRadio = 0;
    UINT probabilityLower = 0;
    UINT probabilityUpper = 0;
    UINT sigmaLower = 0;
    UINT sigmaUpper = 0;
};

// The bounds of the kind chosen are edited, those of the other kept; none
// while the limits are out of use.
void EnableLimits(CGUIBaseDlg& dlg, const LimitsControls& controls, bool inUse = true);
// Sigma multiples need a bound at least: kMsgNoBound when both are empty.
UINT ValidateSigmaBounds(const CGUIBaseDlg& dlg, const LimitsControls& controls, const CGUIData<double>& lower,
                         const CGUIData<double>& upper);
// The clause of the kind of limits chosen, the radio item `item`:
// " PLIMITS=" for `probabilityItem`, " SLIMITS=" for `sigmaItem`, none for
// any other.
CString ChosenLimitsClause(const CGUIBaseObj& settings, UINT item, UINT probabilityItem, UINT sigmaItem,
                           const CGUIData<double>& pLower, const CGUIData<double>& pUpper,
                           const CGUIData<double>& sLower, const CGUIData<double>& sUpper);

constexpr UINT kMsgNoBound = 12864;

// Whether the bound holds a number: the user did not empty its edit.
inline bool IsGiven(const CGUIData<double>& bound)
{
    return !std::isnan(bound.m_Value);
}

// A number the user has not given yet: its edit shows empty, and an
// emptied edit (a field marked Blank) comes back to it.
inline CGUIData<double> NoNumber()
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    return CGUIData<double>(1, none, none, 0, 1);
}

// Limits given on both sides (tolerance limits, probabilities) must be in
// order (0 when they are), and a target given must lie within the limits
// given.
inline UINT LimitsOrder(const CGUIData<double>& lower, const CGUIData<double>& upper, UINT message)
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
