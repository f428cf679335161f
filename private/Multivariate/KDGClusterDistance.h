// The distances the two cluster analyses share (hierarchical clustering and
// k-means): one list of distances (list 6590), the power of the Minkowski
// distance, and the clause both write, " DISTANCE = X" with " POWER = p"
// for Minkowski.
#pragma once

#include "framework/GUIBaseObj.h"

namespace kal::multivariate {

inline constexpr UINT kDistanceList = 6590;
// The entry of the Minkowski distance in the list.
inline constexpr int kMinkowskiEntry = 4;
inline constexpr double kMinPower = 1;
inline constexpr double kMaxPower = 100;

inline CGUIData<double> DefaultPower()
{
    return CGUIData<double>(3.0);
}

// " DISTANCE = " and the keyword of entry `distance`, then the power for
// Minkowski.
CString DistanceClause(const CGUIBaseObj& settings, int distance, const CGUIData<double>& power);

} // namespace kal::multivariate
