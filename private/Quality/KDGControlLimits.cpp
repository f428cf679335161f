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

void EnableLimits(CGUIBaseDlg& dlg, const LimitsControls& controls, bool inUse)
{
    const bool probability = inUse && dlg.IsDlgButtonChecked(controls.probabilityRadio);
    dlg.EnableCtrl(controls.probabilityLower, probability);
    dlg.EnableCtrl(controls.probabilityUpper, probability);
    const bool sigma = inUse && dlg.IsDlgButtonChecked(controls.sigmaRadio);
    dlg.EnableCtrl(controls.sigmaLower, sigma);
    dlg.EnableCtrl(controls.sigmaUpper, sigma);
}

UINT ValidateSigmaBounds(const CGUIBaseDlg& dlg, const LimitsControls& controls, const CGUIData<double>& lower,
                         const CGUIData<double>& upper)
{
    if (!dlg.IsDlgButtonChecked(controls.sigmaRadio))
        return 0;
    return IsGiven(lower) || IsGiven(upper) ? 0 : kMsgNoBound;
}

CString ChosenLimitsClause(const CGUIBaseObj& settings, UINT item, UINT probabilityItem, UINT sigmaItem,
                           const CGUIData<double>& pLower, const CGUIData<double>& pUpper,
                           const CGUIData<double>& sLower, const CGUIData<double>& sUpper)
{
    return LimitsClause(settings, pLower, pUpper, u" PLIMITS=", item == probabilityItem) +
           LimitsClause(settings, sLower, sUpper, u" SLIMITS=", item == sigmaItem);
}

} // namespace kal::quality
