// CQaHistogramData: the quality histogram: measurements in bins, with the
// tolerance limits and the target drawn as lines and a fitted normal
// curve over the bars. The number of bins may be left to the data; a limit
// or target left empty is not drawn.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/quality.h"
#include "private/Quality/KDGControlLimits.h"

class CQaHistogramData : public CGUIBaseObj {
    DECLARE_SERIAL(CQaHistogramData)
public:
    static constexpr UINT kModuleQc = 12933;
    static constexpr int kMaxBins = 1000;

    CQaHistogramData() { kal::ResetFields(*this); }

    // 0 bins: as many as the data suggests.
    static CGUIData<int> GetDefaultBinsEdit() { return CGUIData<int>(1, 0, 0, 0, 1); }
    // Limits and target start empty: not given.
    static CGUIData<double> GetDefaultNoneGiven() { return kal::quality::NoNumber(); }
    static int GetDefaultNormalCheck() { return 1; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& measures, CGUIData<int>& bins,
               CGUIData<double>& lower, CGUIData<double>& upper, CGUIData<double>& target, int& normal) const
    {
        return kal::CopyFieldsOut(*this, source, measures, bins, lower, upper, target, normal);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& measures,
               const CGUIData<int>& bins, const CGUIData<double>& lower, const CGUIData<double>& upper,
               const CGUIData<double>& target, int normal)
    {
        return kal::CopyFieldsIn(*this, source, measures, bins, lower, upper, target, normal);
    }

    const CGUIArray<CGUIDataVariable>& Measurements() const { return m_MeasureVariables; }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CQaHistogramData>;
        using Ids = CQaHistogramDlgIds;
        return std::tuple{
            F::Source(&CQaHistogramData::m_SourceVariables, Ids::IDC_SOURCE_LIST),
            F::List(&CQaHistogramData::m_MeasureVariables, Ids::IDC_MEASURE_LIST),
            F::Value(&CQaHistogramData::m_BinsEdit, Ids::IDC_BINS_EDIT, &GetDefaultBinsEdit)
                .Range(0, kMaxBins)
                .Optional(),
            F::Value(&CQaHistogramData::m_LowerEdit, Ids::IDC_LSL_EDIT, &GetDefaultNoneGiven).Blank(),
            F::Value(&CQaHistogramData::m_UpperEdit, Ids::IDC_USL_EDIT, &GetDefaultNoneGiven).Blank(),
            F::Value(&CQaHistogramData::m_TargetEdit, Ids::IDC_TARGET_EDIT, &GetDefaultNoneGiven).Blank(),
            F::Value(&CQaHistogramData::m_NormalCheck, Ids::IDC_NORMAL_CHECK, &GetDefaultNormalCheck),
        };
    }

private:
    friend class CQaHistogramDlg; // reads the limits it validates

    CGUIArray<CGUIDataVariable> m_SourceVariables;
    CGUIArray<CGUIDataVariable> m_MeasureVariables;
    CGUIData<int> m_BinsEdit;
    CGUIData<double> m_LowerEdit;
    CGUIData<double> m_UpperEdit;
    CGUIData<double> m_TargetEdit;
    int m_NormalCheck;
};
