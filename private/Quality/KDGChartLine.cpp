#include "private/Quality/KDGChartLine.h"

#include "framework/StringUtil.h"

namespace kal::quality {

CString ChartLineHead(const CGUIBaseObj& settings, const CString& keyword,
                      const CGUIArray<CGUIDataVariable>& measurements, const CGUIArray<CGUIDataVariable>& groups)
{
    CString line = keyword;
    settings.AddVariables(line, measurements, u" ");
    if (!groups.IsEmpty()) {
        line += u"*";
        settings.AddVariables(line, groups, u" ");
    }
    line += u" /";
    return line;
}

void PushChartLine(CLIST<CCmdInfo>& list, const CString& line, const CString& keyword)
{
    AppendCommandLine(list, line);
    CStringUtil::RemoveRedundantSlash(list, CStringUtil::SearchStringAtBeginning(list, keyword));
}

} // namespace kal::quality
