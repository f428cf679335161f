// The four multivariate test statistics a multivariate analysis of variance
// reports for each effect: Wilks' lambda, Pillai's trace, the
// Hotelling-Lawley trace and Roy's largest root. Each MANOVA dialog offers
// them as four check boxes, all checked by default; the clause names the
// checked ones only when the user left some out (or every option is
// written), so that the default lines stay short.
#pragma once

#include "platform/CString.h"
#include "platform/Types.h"

namespace kal::manova {

// At least one statistic must stay checked.
inline constexpr UINT kMsgNoStatistic = 6402;

struct Statistics {
    int wilks = 1;
    int pillai = 1;
    int hotelling = 1;
    int roy = 1;

    bool Any() const { return wilks || pillai || hotelling || roy; }
    // " MTEST = WILKS, ROY", or an empty text for all four at their default.
    CString Clause() const;
};

} // namespace kal::manova
