// CManovaWithinData: the multivariate analysis of variance of repeated
// measures: the dependent variables are the levels of one or more
// within-subjects factors (names, numbers of levels and optional metrics,
// as on the repeated-measures page), optionally between the groups of
// between-subjects factors. Written as the "MODEL" line with its
// " REPEAT = " clause, the "CATEGORY" line of the between factors, and the
// "ESTIMATE" line with the multivariate statistics and the sphericity
// corrections of the univariate tests.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/manova.h"
#include "private/Multivariate/KDGManovaStatistics.h"

class CManovaWithinData : public CGUIBaseObj {
    DECLARE_SERIAL(CManovaWithinData)
public:
    static constexpr UINT kModuleManova = 12910;

    CManovaWithinData() { kal::ResetFields(*this); }

    static void GetDefaultName(CGUIArray<CString>& names);
    static void GetDefaultLevels(CGUIArray<int>& levels);
    static void GetDefaultMetric(CGUIArray<CString>& metric);
    static int GetDefaultGreenhouseCheck() { return 1; }
    static int GetDefaultHuynhCheck() { return 1; }
    static int GetDefaultLowerBoundCheck() { return 0; }
    static int GetDefaultWilksCheck() { return 1; }
    static int GetDefaultPillaiCheck() { return 1; }
    static int GetDefaultHotellingCheck() { return 1; }
    static int GetDefaultRoyCheck() { return 1; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& dependent,
               CGUIArray<CGUIDataVariable>& factor, CGUIArray<CString>& names, CGUIArray<int>& levels,
               CGUIArray<CString>& metric, int& greenhouse, int& huynh, int& lowerBound, int& wilks, int& pillai,
               int& hotelling, int& roy) const
    {
        return kal::CopyFieldsOut(*this, source, dependent, factor, names, levels, metric, greenhouse, huynh,
                                  lowerBound, wilks, pillai, hotelling, roy);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& dependent,
               const CGUIArray<CGUIDataVariable>& factor, const CGUIArray<CString>& names, const CGUIArray<int>& levels,
               const CGUIArray<CString>& metric, int greenhouse, int huynh, int lowerBound, int wilks, int pillai,
               int hotelling, int roy)
    {
        return kal::CopyFieldsIn(*this, source, dependent, factor, names, levels, metric, greenhouse, huynh, lowerBound,
                                 wilks, pillai, hotelling, roy);
    }

    kal::manova::Statistics GetStatistics() const
    {
        return {m_WilksCheck, m_PillaiCheck, m_HotellingCheck, m_RoyCheck};
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    // The source list follows the data sheet; roles it no longer has go.
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The factors' lists are shown by the grid, which the page exchanges
    // itself.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CManovaWithinData>;
        using Ids = CManovaWithinDlgIds;
        using D = CManovaWithinData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_DependentList, Ids::IDC_DEPENDENT_LIST),
            F::List(&D::m_FactorList, Ids::IDC_FACTOR_LIST),
            F::Value(&D::m_arrStrName, 0, &GetDefaultName),
            F::Value(&D::m_arrLevels, 0, &GetDefaultLevels),
            F::Value(&D::m_arrStrMetric, 0, &GetDefaultMetric),
            F::Value(&D::m_GreenhouseCheck, Ids::IDC_GREENHOUSE, &GetDefaultGreenhouseCheck),
            F::Value(&D::m_HuynhCheck, Ids::IDC_HUYNH, &GetDefaultHuynhCheck),
            F::Value(&D::m_LowerBoundCheck, Ids::IDC_LOWER_BOUND, &GetDefaultLowerBoundCheck),
            F::Value(&D::m_WilksCheck, Ids::IDC_WILKS, &GetDefaultWilksCheck),
            F::Value(&D::m_PillaiCheck, Ids::IDC_PILLAI, &GetDefaultPillaiCheck),
            F::Value(&D::m_HotellingCheck, Ids::IDC_HOTELLING, &GetDefaultHotellingCheck),
            F::Value(&D::m_RoyCheck, Ids::IDC_ROY, &GetDefaultRoyCheck),
        };
    }

private:
    friend class CManovaWithinDlg; // fills its grid from the factor lists

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_DependentList;
    CGUIArray<CGUIDataVariable> m_FactorList;
    CGUIArray<CString> m_arrStrName;
    CGUIArray<int> m_arrLevels;
    CGUIArray<CString> m_arrStrMetric;
    int m_GreenhouseCheck;
    int m_HuynhCheck;
    int m_LowerBoundCheck;
    int m_WilksCheck;
    int m_PillaiCheck;
    int m_HotellingCheck;
    int m_RoyCheck;
};
