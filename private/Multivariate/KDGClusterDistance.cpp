#include "private/Multivariate/KDGClusterDistance.h"

#include "framework/ResourceUtil.h"

namespace kal::multivariate {

CString DistanceClause(const CGUIBaseObj& settings, int distance, const CGUIData<double>& power)
{
    CString clause = u" DISTANCE = " + CComboUtil::GetComboString(kDistanceList, distance, 0);
    // The power is what the Minkowski distance is: written whenever it is.
    clause += settings.AddEditValueCmd(power, u" POWER = ", distance == kMinkowskiEntry ? 1 : 0);
    return clause;
}

} // namespace kal::multivariate
