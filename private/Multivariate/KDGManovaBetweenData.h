// CManovaBetweenData: the multivariate analysis of variance of two or more
// dependent variables between the groups of one or more factors, with
// covariates: the ANOVA's lines (dependent, factors, covariates) under the
// MANOVA module, the full factorial of the factors being the model. The
// estimate line names the multivariate statistics to report, the contrast
// of the factors' levels and the univariate F tests.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/manova.h"
#include "private/Multivariate/KDGManovaStatistics.h"

class CManovaBetweenData : public CGUIBaseObj {
    DECLARE_SERIAL(CManovaBetweenData)
public:
    static constexpr UINT kModuleManova = 12910;
    static constexpr UINT kContrastRadio = CManovaBetweenDlgIds::IDC_CONTRAST_NONE;

    CManovaBetweenData() { kal::ResetFields(*this); }

    static int GetDefaultMissingValCheck() { return 0; }
    static int GetDefaultUnivariateCheck() { return 0; }
    static int GetDefaultWilksCheck() { return 1; }
    static int GetDefaultPillaiCheck() { return 1; }
    static int GetDefaultHotellingCheck() { return 1; }
    static int GetDefaultRoyCheck() { return 1; }
    static int GetDefaultContrastRadio() { return 0; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& dependent,
               CGUIArray<CGUIDataVariable>& factor, CGUIArray<CGUIDataVariable>& covariate, int& missing,
               int& univariate, int& wilks, int& pillai, int& hotelling, int& roy, int& contrast) const
    {
        return kal::CopyFieldsOut(*this, source, dependent, factor, covariate, missing, univariate, wilks, pillai,
                                  hotelling, roy, contrast);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& dependent,
               const CGUIArray<CGUIDataVariable>& factor, const CGUIArray<CGUIDataVariable>& covariate, int missing,
               int univariate, int wilks, int pillai, int hotelling, int roy, int contrast)
    {
        return kal::CopyFieldsIn(*this, source, dependent, factor, covariate, missing, univariate, wilks, pillai,
                                 hotelling, roy, contrast);
    }

    const CGUIArray<CGUIDataVariable>& GetDependentList() const { return m_DependentList; }
    const CGUIArray<CGUIDataVariable>& GetFactorList() const { return m_FactorList; }
    kal::manova::Statistics GetStatistics() const
    {
        return {m_WilksCheck, m_PillaiCheck, m_HotellingCheck, m_RoyCheck};
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    // The source list follows the data sheet, role variables it no longer
    // has leave their lists, and its categorical variables join the factors.
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CManovaBetweenData>;
        using Ids = CManovaBetweenDlgIds;
        using D = CManovaBetweenData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_DependentList, Ids::IDC_DEPENDENT_LIST),
            F::List(&D::m_FactorList, Ids::IDC_FACTOR_LIST),
            F::List(&D::m_CovariateList, Ids::IDC_COVARIATE_LIST),
            F::Value(&D::m_MissingValCheck, Ids::IDC_MISSING_VALUES, &GetDefaultMissingValCheck),
            F::Value(&D::m_UnivariateCheck, Ids::IDC_UNIVARIATE, &GetDefaultUnivariateCheck),
            F::Value(&D::m_WilksCheck, Ids::IDC_WILKS, &GetDefaultWilksCheck),
            F::Value(&D::m_PillaiCheck, Ids::IDC_PILLAI, &GetDefaultPillaiCheck),
            F::Value(&D::m_HotellingCheck, Ids::IDC_HOTELLING, &GetDefaultHotellingCheck),
            F::Value(&D::m_RoyCheck, Ids::IDC_ROY, &GetDefaultRoyCheck),
            F::Value(&D::m_ContrastRadio, Ids::IDC_CONTRAST_NONE, &GetDefaultContrastRadio),
        };
    }

private:
    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_DependentList;
    CGUIArray<CGUIDataVariable> m_FactorList;
    CGUIArray<CGUIDataVariable> m_CovariateList;
    int m_MissingValCheck;
    int m_UnivariateCheck;
    int m_WilksCheck;
    int m_PillaiCheck;
    int m_HotellingCheck;
    int m_RoyCheck;
    int m_ContrastRadio;
};
