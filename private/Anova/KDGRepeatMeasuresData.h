// CRepeatMeasuresData: the repeated-measures factors of an ANOVA or
// general linear model: names, numbers of levels and optional metrics.
// Writes no line of its own: " REPEAT = ..." joins the "DEPEND " line
// (owner 2263) or the "MODEL" line (any other owner).
#pragma once

#include "framework/GUIBaseObj.h"

class CRepeatMeasuresData : public CGUIBaseObj {
    DECLARE_SERIAL(CRepeatMeasuresData)
public:
    static constexpr UINT kAnovaOwner = 2263;

    CRepeatMeasuresData();

    static int GetDefaultMeasureAnalysisOnOffCheck() { return 0; }
    static void GetDefaultName(CGUIArray<CString>& names);
    static void GetDefaultLevels(CGUIArray<int>& levels);
    static void GetDefaultMetric(CGUIArray<CString>& metric);

    int GetAll(int& onOff, CGUIArray<CString>& names, CGUIArray<int>& levels, CGUIArray<CString>& metric) const;
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int onOff, const CGUIArray<CString>& names, const CGUIArray<int>& levels,
               const CGUIArray<CString>& metric);

    int GetMeasureAnalysisOnOffCheck() const { return m_MeasureAnalysisOnOff; }
    CGUIArray<CString> GetarrStrName() const { return m_arrStrName; }
    CGUIArray<CString> GetarrStrMetric() const { return m_arrStrMetric; }
    CGUIArray<int> GetarrLevels() const { return m_arrLevels; }

    // True when any name is blank or the names are "a", "b", "c", ... in
    // order: such names are not written.
    bool IsNamesDefault() const;

    // " REPEAT = ..." for the current factors; throws CInvalidArgException
    // when the metric list is shorter than the levels list.
    CString GetClause(bool anchorHasSlash) const;

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

private:
    int m_MeasureAnalysisOnOff;
    CGUIArray<CString> m_arrStrName;
    CGUIArray<int> m_arrLevels;
    CGUIArray<CString> m_arrStrMetric;
};
