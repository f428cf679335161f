#include "private/ResponseSurface/KDGRsmPlotPageData.h"

#include "framework/ResourceUtil.h"

#include <cmath>

IMPLEMENT_SERIAL(CRsmPlotPageData, CGUIBaseObj, 1)

CString CRsmPlotPageData::NameText(const CString& name) const
{
    CGUIArray<CGUIDataVariable> one;
    one.Add(CGUIDataVariable(name, NmsEnum::VT_NUMERIC));
    CString text;
    AddVariables(text, one, u"");
    return text;
}

void CRsmPlotPageData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    CString line(u"PLOT ");
    const CString x = NameText(m_XFactor);
    const CString y = NameText(m_YFactor);
    if (!x.IsEmpty() && !y.IsEmpty())
        line += x + u"*" + y;
    line += CRadioUtil::GetRadioItem(kDrawRadio, m_DrawRadio) == kItemSurface ? u" / SURFACE" : u" / CONTOUR";
    line += AddEditValueCmd(m_PointsEdit, GetDefaultPointsEdit(), 0, u" POINTS = ", 1);
    // The factors off the axes that are held at a value of the user's.
    CString held;
    for (int i = 0; i < m_HeldNames.GetSize() && i < m_HeldValues.GetSize(); ++i) {
        const CString& name = m_HeldNames[i];
        const CString text = NameText(name);
        if (name == m_XFactor || name == m_YFactor || std::isnan(m_HeldValues[i]) || text.IsEmpty())
            continue;
        held += (held.IsEmpty() ? u" HOLD " : u", ") + text + u" = " + NumberText(m_HeldValues[i]);
    }
    AppendCommandLine(list, line + held);
}

void CRsmPlotPageData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_DrawRadio, m_XFactor, m_YFactor, m_HeldNames, m_HeldValues, m_PointsEdit);
}
