#include "private/Multivariate/KDGManovaStatistics.h"

#include "framework/HostLink.h"

namespace kal::manova {

CString Statistics::Clause() const
{
    if (wilks && pillai && hotelling && roy && !kal::framework::WriteEveryOption())
        return {};
    CString names;
    const std::pair<int, const char16_t*> all[] = {
        {wilks, u"WILKS"}, {pillai, u"PILLAI"}, {hotelling, u"HOTELLING"}, {roy, u"ROY"}};
    for (const auto& [checked, name] : all) {
        if (!checked)
            continue;
        if (!names.IsEmpty())
            names += u", ";
        names += name;
    }
    return names.IsEmpty() ? CString() : CString(u" MTEST = ") + names;
}

} // namespace kal::manova
