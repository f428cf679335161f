// CRepeatMeasuresData: the repeated-measures factors of an ANOVA or
// general linear model: names, numbers of levels and optional metrics.
// Writes no line of its own: " REPEAT = ..." joins the "DEPEND " line
// (owner 2263) or the "MODEL" line (any other owner).
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/anova.h"

class CRepeatMeasuresData : public CGUIBaseObj {
    DECLARE_SERIAL(CRepeatMeasuresData)
public:
    static constexpr UINT kAnovaOwner = 2263;

    CRepeatMeasuresData() { kal::ResetFields(*this); }

    static int GetDefaultMeasureAnalysisOnOffCheck() { return 0; }
    static void GetDefaultName(CGUIArray<CString>& names);
    static void GetDefaultLevels(CGUIArray<int>& levels);
    static void GetDefaultMetric(CGUIArray<CString>& metric);

    int GetAll(int& onOff, CGUIArray<CString>& names, CGUIArray<int>& levels, CGUIArray<CString>& metric) const
    {
        return kal::CopyFieldsOut(*this, onOff, names, levels, metric);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int onOff, const CGUIArray<CString>& names, const CGUIArray<int>& levels,
               const CGUIArray<CString>& metric)
    {
        return kal::CopyFieldsIn(*this, onOff, names, levels, metric);
    }

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

    // The on/off check of the page (template 2011); the grid shows the
    // three lists, one row per factor.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRepeatMeasuresData>;
        return std::tuple{
            F::Value(&CRepeatMeasuresData::m_MeasureAnalysisOnOff, CRepeatMeasuresDlgIds::IDC_ON_OFF,
                     &GetDefaultMeasureAnalysisOnOffCheck),
            F::Value(&CRepeatMeasuresData::m_arrStrName, 0, &GetDefaultName),
            F::Value(&CRepeatMeasuresData::m_arrLevels, 0, &GetDefaultLevels),
            F::Value(&CRepeatMeasuresData::m_arrStrMetric, 0, &GetDefaultMetric),
        };
    }

private:
    friend class CRepeatMeasuresDlg; // fills its grid from the lists

    int m_MeasureAnalysisOnOff;
    CGUIArray<CString> m_arrStrName;
    CGUIArray<int> m_arrLevels;
    CGUIArray<CString> m_arrStrMetric;
};
