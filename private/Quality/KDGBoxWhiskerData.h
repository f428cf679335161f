// CBoxWhiskerData: box-and-whisker plots of measurements, one box per
// subgroup (the values of the grouping variables) or one per measurement
// without them: notches for comparing medians, outliers marked beyond the
// whiskers, and the center line of all the data across the boxes.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/quality.h"

class CBoxWhiskerData : public CGUIBaseObj {
    DECLARE_SERIAL(CBoxWhiskerData)
public:
    static constexpr UINT kModuleQc = 12933;

    CBoxWhiskerData() { kal::ResetFields(*this); }

    static int GetDefaultNotchCheck() { return 0; }
    static int GetDefaultOutliersCheck() { return 1; }
    static int GetDefaultCenterCheck() { return 1; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& measures,
               CGUIArray<CGUIDataVariable>& groups, int& notch, int& outliers, int& center) const
    {
        return kal::CopyFieldsOut(*this, source, measures, groups, notch, outliers, center);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& measures,
               const CGUIArray<CGUIDataVariable>& groups, int notch, int outliers, int center)
    {
        return kal::CopyFieldsIn(*this, source, measures, groups, notch, outliers, center);
    }

    const CGUIArray<CGUIDataVariable>& Measurements() const { return m_MeasureVariables; }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CBoxWhiskerData>;
        using Ids = CBoxWhiskerDlgIds;
        return std::tuple{
            F::Source(&CBoxWhiskerData::m_SourceVariables, Ids::IDC_SOURCE_LIST),
            F::List(&CBoxWhiskerData::m_MeasureVariables, Ids::IDC_MEASURE_LIST),
            F::List(&CBoxWhiskerData::m_GroupVariables, Ids::IDC_GROUP_LIST),
            F::Value(&CBoxWhiskerData::m_NotchCheck, Ids::IDC_NOTCH_CHECK, &GetDefaultNotchCheck),
            F::Value(&CBoxWhiskerData::m_OutliersCheck, Ids::IDC_OUTLIERS_CHECK, &GetDefaultOutliersCheck),
            F::Value(&CBoxWhiskerData::m_CenterCheck, Ids::IDC_CENTER_CHECK, &GetDefaultCenterCheck),
        };
    }

private:
    CGUIArray<CGUIDataVariable> m_SourceVariables;
    CGUIArray<CGUIDataVariable> m_MeasureVariables;
    CGUIArray<CGUIDataVariable> m_GroupVariables;
    int m_NotchCheck;
    int m_OutliersCheck;
    int m_CenterCheck;
};
