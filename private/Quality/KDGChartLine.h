// The chart line of the quality analyses: its keyword, the measurements
// separated by blanks, "*" and the subgroup variables when there are any,
// then " /" and the options. The line is pushed with the slash removed when
// no option follows it, so a chart at its defaults reads "EWMA Y ".
#pragma once

#include "framework/GUIBaseObj.h"

namespace kal::quality {

CString ChartLineHead(const CGUIBaseObj& settings, const CString& keyword,
                      const CGUIArray<CGUIDataVariable>& measurements, const CGUIArray<CGUIDataVariable>& groups);

// Appends `line`, then removes a slash that introduces nothing from the
// line that starts with `keyword`.
void PushChartLine(CLIST<CCmdInfo>& list, const CString& line, const CString& keyword);

} // namespace kal::quality
