// CXMrData: the chart page of the individuals and moving-range chart. The
// chart variables, the span of the moving ranges, known values of the
// center, the average moving range and sigma, the limits and the kind of
// center line. Written as the module line and the "XMR   " line; a known
// value is written only when the user gave one (or the host asks for every
// option).
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/quality.h"

#include <limits>

class CXMrData : public CGUIBaseObj {
    DECLARE_SERIAL(CXMrData)
public:
    static constexpr UINT kModuleQc = 12933;
    // The center-line radio group: mean, median.
    static constexpr UINT kCenterLineRadio = 5436;
    static constexpr UINT kItemMean = 5436;
    static constexpr UINT kItemMedian = 5437;
    // The limits radio group: probability, sigma limits.
    static constexpr UINT kLimitsRadio = 5439;
    static constexpr UINT kItemProbabilityLimits = 5439;
    static constexpr UINT kItemSigmaLimits = 5444;
    // The moving ranges span 2 to this many successive measurements.
    static constexpr int kMaxWidth = 100;
    static constexpr double kMaxSigmaMultiple = 10;

    CXMrData() { kal::ResetFields(*this); }

    static CGUIData<int> GetDefaultWidthEdit() { return CGUIData<int>(1, 2, 2, 0, 1); }
    // The known values and bounds start at 0: none given.
    static CGUIData<double> GetDefaultCenterEdit() { return DefaultNumber(); }
    static CGUIData<double> GetDefaultMrEdit() { return DefaultNumber(); }
    static CGUIData<double> GetDefaultSigmaEdit() { return DefaultNumber(); }
    static CGUIData<double> GetDefaultPLimitsLowerEdit() { return DefaultNumber(); }
    static CGUIData<double> GetDefaultPLimitsUpperEdit() { return DefaultNumber(); }
    static CGUIData<double> GetDefaultSigmaLowerEdit() { return DefaultNumber(); }
    static CGUIData<double> GetDefaultSigmaUpperEdit() { return DefaultNumber(); }
    static int GetDefaultCenterLineRadio() { return 0; }
    static int GetDefaultLimitsRadio() { return 0; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& chart, CGUIData<int>& width,
               CGUIData<double>& center, CGUIData<double>& mr, CGUIData<double>& sigma, CGUIData<double>& pLimitsLower,
               CGUIData<double>& pLimitsUpper, CGUIData<double>& sigmaLower, CGUIData<double>& sigmaUpper,
               int& centerLineRadio, int& limitsRadio) const
    {
        return kal::CopyFieldsOut(*this, source, chart, width, center, mr, sigma, pLimitsLower, pLimitsUpper,
                                  sigmaLower, sigmaUpper, centerLineRadio, limitsRadio);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& chart,
               const CGUIData<int>& width, const CGUIData<double>& center, const CGUIData<double>& mr,
               const CGUIData<double>& sigma, const CGUIData<double>& pLimitsLower,
               const CGUIData<double>& pLimitsUpper, const CGUIData<double>& sigmaLower,
               const CGUIData<double>& sigmaUpper, int centerLineRadio, int limitsRadio)
    {
        return kal::CopyFieldsIn(*this, source, chart, width, center, mr, sigma, pLimitsLower, pLimitsUpper, sigmaLower,
                                 sigmaUpper, centerLineRadio, limitsRadio);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the chart page (template
    // 5430). The known values and the bounds may be left empty.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CXMrData>;
        using Ids = CXMrDlgIds;
        constexpr double kHuge = std::numeric_limits<double>::max();
        return std::tuple{
            F::Source(&CXMrData::m_SourceVariables, Ids::IDC_SOURCE_LIST),
            F::List(&CXMrData::m_ChartVariables, Ids::IDC_CHART_LIST),
            F::Value(&CXMrData::m_WidthEdit, Ids::IDC_WIDTH_EDIT, &GetDefaultWidthEdit).Range(2, kMaxWidth),
            F::Value(&CXMrData::m_CenterEdit, Ids::IDC_CENTER_EDIT, &GetDefaultCenterEdit).Optional(),
            F::Value(&CXMrData::m_MrEdit, Ids::IDC_MR_EDIT, &GetDefaultMrEdit).Range(0, kHuge).Optional(),
            F::Value(&CXMrData::m_SigmaEdit, Ids::IDC_SIGMA_EDIT, &GetDefaultSigmaEdit).Range(0, kHuge).Optional(),
            F::Value(&CXMrData::m_PLimitsLowerEdit, Ids::IDC_PLIMITS_LOWER, &GetDefaultPLimitsLowerEdit)
                .Range(0, 1)
                .Blank(),
            F::Value(&CXMrData::m_PLimitsUpperEdit, Ids::IDC_PLIMITS_UPPER, &GetDefaultPLimitsUpperEdit)
                .Range(0, 1)
                .Blank(),
            F::Value(&CXMrData::m_SigmaLowerEdit, Ids::IDC_SLIMITS_LOWER, &GetDefaultSigmaLowerEdit)
                .Range(0, kMaxSigmaMultiple)
                .Blank(),
            F::Value(&CXMrData::m_SigmaUpperEdit, Ids::IDC_SLIMITS_UPPER, &GetDefaultSigmaUpperEdit)
                .Range(0, kMaxSigmaMultiple)
                .Blank(),
            F::Value(&CXMrData::m_CenterLineRadio, Ids::IDC_MEAN_RADIO, &GetDefaultCenterLineRadio),
            F::Value(&CXMrData::m_LimitsRadio, Ids::IDC_PLIMITS_RADIO, &GetDefaultLimitsRadio),
        };
    }

private:
    friend class CXMrDlg; // reads the bounds it validates

    static CGUIData<double> DefaultNumber() { return CGUIData<double>(1, 0.0, 0.0, 0, 1); }

    CGUIArray<CGUIDataVariable> m_SourceVariables;
    CGUIArray<CGUIDataVariable> m_ChartVariables;
    CGUIData<int> m_WidthEdit;
    CGUIData<double> m_CenterEdit;
    CGUIData<double> m_MrEdit;
    CGUIData<double> m_SigmaEdit;
    CGUIData<double> m_PLimitsLowerEdit;
    CGUIData<double> m_PLimitsUpperEdit;
    CGUIData<double> m_SigmaLowerEdit;
    CGUIData<double> m_SigmaUpperEdit;
    int m_CenterLineRadio;
    int m_LimitsRadio;
};
