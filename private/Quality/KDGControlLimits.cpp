#include "private/Quality/KDGControlLimits.h"

namespace kal::quality {

CString LimitsClause(const CGUIBaseObj& settings, const CGUIData<double>& lower, const CGUIData<double>& upper,
                     const CString& keyword, int bCondition)
{
    const bool hasLower = IsGiven(lower);
    const bool hasUpper = IsGiven(upper);
    if (!bCondition || (!hasLower && !hasUpper))
        return {};
    if (hasLower && hasUpper)
        return settings.AppendLimits(lower, upper, keyword, 1);
    const CString lowerText = hasLower ? CGUIBaseObj::NumberText(lower.m_Value) : CString();
    const CString upperText = hasUpper ? CGUIBaseObj::NumberText(upper.m_Value) : CString();
    return keyword + lowerText + CGUIBaseObj::LimitsSeparator() + upperText;
}

} // namespace kal::quality
