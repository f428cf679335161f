// CBayesianData: Bayesian linear regression (2050). The model (one numeric
// dependent variable, numeric independent variables, the constant), the
// prior of the coefficients (flat, or normal with a mean and a variance
// shared by every coefficient), the prior of the error variance (Jeffreys',
// or inverse gamma with a shape and a scale), and the sampling of the
// posterior: draws kept, burn-in draws discarded before them, the random
// seed and the level of the credible intervals.
//
// Written as the module line, the "MODEL" line, the "PRIOR" line (always:
// a Bayesian analysis states its priors) and the "ESTIMATE" line.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/bayesian.h"

class CBayesianData : public CGUIBaseObj {
    DECLARE_SERIAL(CBayesianData)
public:
    static constexpr UINT kModuleBayes = 12987;
    // Coefficients: flat (0), normal (1); variance: Jeffreys (0), inverse gamma (1).
    static constexpr UINT kCoefficientPriorRadio = 7762;
    static constexpr UINT kVariancePriorRadio = 7769;
    static constexpr int kMaxDraws = 1000000;

    CBayesianData() { kal::ResetFields(*this); }

    static int GetDefaultConstantCheck() { return 1; }
    static int GetDefaultCoefficientPriorRadio() { return 0; }
    static CGUIData<double> GetDefaultPriorMeanEdit() { return CGUIData<double>(0.0); }
    static CGUIData<double> GetDefaultPriorVarianceEdit() { return CGUIData<double>(100.0); }
    static int GetDefaultVariancePriorRadio() { return 0; }
    static CGUIData<double> GetDefaultShapeEdit() { return CGUIData<double>(0.01); }
    static CGUIData<double> GetDefaultScaleEdit() { return CGUIData<double>(0.01); }
    static CGUIData<int> GetDefaultDrawsEdit() { return CGUIData<int>(10000); }
    static CGUIData<int> GetDefaultBurnInEdit() { return CGUIData<int>(1000); }
    static CGUIData<unsigned int> GetDefaultSeedEdit() { return CGUIData<unsigned int>(0u); }
    static CGUIData<double> GetDefaultCredibleEdit() { return CGUIData<double>(0.95); }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& dependent,
               CGUIArray<CGUIDataVariable>& independent, int& constant, int& coefficientPrior,
               CGUIData<double>& priorMean, CGUIData<double>& priorVariance, int& variancePrior,
               CGUIData<double>& shape, CGUIData<double>& scale, CGUIData<int>& draws, CGUIData<int>& burnIn,
               CGUIData<unsigned int>& seed, CGUIData<double>& credible) const
    {
        return kal::CopyFieldsOut(*this, source, dependent, independent, constant, coefficientPrior, priorMean,
                                  priorVariance, variancePrior, shape, scale, draws, burnIn, seed, credible);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& dependent,
               const CGUIArray<CGUIDataVariable>& independent, int constant, int coefficientPrior,
               const CGUIData<double>& priorMean, const CGUIData<double>& priorVariance, int variancePrior,
               const CGUIData<double>& shape, const CGUIData<double>& scale, const CGUIData<int>& draws,
               const CGUIData<int>& burnIn, const CGUIData<unsigned int>& seed, const CGUIData<double>& credible)
    {
        return kal::CopyFieldsIn(*this, source, dependent, independent, constant, coefficientPrior, priorMean,
                                 priorVariance, variancePrior, shape, scale, draws, burnIn, seed, credible);
    }

    bool IsNormalPrior() const;
    bool IsInverseGammaPrior() const;

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The dialog's controls (template 7750).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CBayesianData>;
        using Ids = CBayesianDlgIds;
        using D = CBayesianData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_DependentList, Ids::IDC_DEPENDENT_LIST),
            F::List(&D::m_IndependentList, Ids::IDC_INDEPENDENT_LIST),
            F::Value(&D::m_ConstantCheck, Ids::IDC_CONSTANT_CHECK, &GetDefaultConstantCheck),
            F::Value(&D::m_CoefficientPriorRadio, Ids::IDC_FLAT_RADIO, &GetDefaultCoefficientPriorRadio),
            F::Value(&D::m_PriorMeanEdit, Ids::IDC_MEAN_EDIT, &GetDefaultPriorMeanEdit),
            F::Value(&D::m_PriorVarianceEdit, Ids::IDC_VARIANCE_EDIT, &GetDefaultPriorVarianceEdit),
            F::Value(&D::m_VariancePriorRadio, Ids::IDC_JEFFREYS_RADIO, &GetDefaultVariancePriorRadio),
            F::Value(&D::m_ShapeEdit, Ids::IDC_SHAPE_EDIT, &GetDefaultShapeEdit),
            F::Value(&D::m_ScaleEdit, Ids::IDC_SCALE_EDIT, &GetDefaultScaleEdit),
            F::Value(&D::m_DrawsEdit, Ids::IDC_DRAWS_EDIT, &GetDefaultDrawsEdit).Range(100, kMaxDraws),
            F::Value(&D::m_BurnInEdit, Ids::IDC_BURNIN_EDIT, &GetDefaultBurnInEdit).Range(0, kMaxDraws),
            F::Value(&D::m_SeedEdit, Ids::IDC_SEED_EDIT, &GetDefaultSeedEdit),
            F::Value(&D::m_CredibleEdit, Ids::IDC_CREDIBLE_EDIT, &GetDefaultCredibleEdit).Range(0, 1),
        };
    }

private:
    friend class CBayesianDlg; // checks the model and the priors

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_DependentList;
    CGUIArray<CGUIDataVariable> m_IndependentList;
    int m_ConstantCheck;
    int m_CoefficientPriorRadio;
    CGUIData<double> m_PriorMeanEdit;
    CGUIData<double> m_PriorVarianceEdit;
    int m_VariancePriorRadio;
    CGUIData<double> m_ShapeEdit;
    CGUIData<double> m_ScaleEdit;
    CGUIData<int> m_DrawsEdit;
    CGUIData<int> m_BurnInEdit;
    CGUIData<unsigned int> m_SeedEdit;
    CGUIData<double> m_CredibleEdit;
};
