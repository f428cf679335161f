#include "private/ResponseSurface/KDGRsmOptimizationData.h"

#include "framework/ResourceUtil.h"

#include <cmath>

IMPLEMENT_SERIAL(CRsmOptimizationData, CGUIBaseObj, 1)

namespace {

double At(const CGUIArray<double>& values, int i)
{
    return i < values.GetSize() ? values[i] : std::nan("");
}

} // namespace

bool CRsmOptimizationData::IsRidge() const
{
    return CRadioUtil::GetRadioItem(kSearchRadio, m_SearchRadio) == kItemRidge;
}

CString CRsmOptimizationData::GoalLine(int i) const
{
    const int goal = i < m_Goals.GetSize() ? m_Goals[i] : goalNone;
    if (goal == goalNone)
        return {};
    CGUIArray<CGUIDataVariable> response;
    response.Add(CGUIDataVariable(m_Names[i], NmsEnum::VT_NUMERIC));
    CString line(u"GOAL ");
    AddVariables(line, response, u"");
    if (line == u"GOAL ")
        return {};
    const auto bound = [&](const CString& keyword, double value) {
        return std::isnan(value) ? CString() : keyword + NumberText(value);
    };
    switch (goal) {
    case goalMaximize: line += u" / MAXIMIZE"; break;
    case goalMinimize: line += u" / MINIMIZE"; break;
    default: line += u" /" + bound(u" TARGET = ", At(m_Target, i)); break;
    }
    // A ridge follows the response itself: no desirability, no bounds.
    if (IsRidge())
        return goal == goalTarget ? CString() : line;
    line += bound(u" LOW = ", At(m_Low, i));
    line += bound(u" HIGH = ", At(m_High, i));
    const double weight = At(m_Weight, i);
    if (!std::isnan(weight) && weight != 1)
        line += bound(u" WEIGHT = ", weight);
    return line;
}

void CRsmOptimizationData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    for (int i = 0; i < m_Names.GetSize(); ++i)
        AppendCommandLine(list, GoalLine(i));
    CString line(u"OPTIMIZE /");
    if (IsRidge())
        line += u" RIDGE" + AddEditValueCmd(m_RadiusEdit, GetDefaultRadiusEdit(), 0, u" RADIUS = ", 1);
    else
        line += u" DESIRABILITY";
    AppendCommandLine(list, line);
}

void CRsmOptimizationData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_SearchRadio, m_Names, m_Goals, m_Low, m_Target, m_High, m_Weight, m_RadiusEdit);
}
