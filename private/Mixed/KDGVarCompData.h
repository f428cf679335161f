// CVarCompData: the page of variance components: the dependent variable,
// the random factors whose variances are estimated, fixed factors and
// covariates; main effects only or the full factorial of the factors; the
// method (ANOVA by expected mean squares, ML, REML, MINQUE) with the type
// of the sums of squares for ANOVA and the iteration limit and convergence
// criterion for ML and REML.
//
// Written as the module line, "MODEL", "CATEGORY" (every factor), "RANDOM"
// (every term of a random factor) and "ESTIMATE" with the method.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/mixed.h"

class CVarCompData : public CGUIBaseObj {
    DECLARE_SERIAL(CVarCompData)
public:
    static constexpr UINT kModuleVarComp = 13001;
    // ANOVA, ML, REML, MINQUE.
    static constexpr UINT kMethodCombo = 8198;
    static constexpr int kMethodLast = 3;
    static constexpr int kMethodAnova = 0;
    static constexpr int kMethodMl = 1;
    static constexpr int kMethodReml = 2;
    static constexpr UINT kSumsRadio = CVarCompDlgIds::IDC_TYPE1_RADIO;
    static constexpr int kMaxIterations = 10000;

    CVarCompData() { kal::ResetFields(*this); }

    static int GetDefaultMethodCombo() { return kMethodAnova; }
    static int GetDefaultSumsRadio() { return 1; }
    static CGUIData<int> GetDefaultIterEdit() { return CGUIData<int>(100); }
    static CGUIData<double> GetDefaultConvEdit() { return CGUIData<double>(1, 1e-6, 1e-6, 0, 1); }
    static int GetDefaultInteractionsCheck() { return 0; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& dependent,
               CGUIArray<CGUIDataVariable>& random, CGUIArray<CGUIDataVariable>& fixed,
               CGUIArray<CGUIDataVariable>& covariates, int& method, int& sums, CGUIData<int>& iterations,
               CGUIData<double>& convergence, int& interactions) const
    {
        return kal::CopyFieldsOut(*this, source, dependent, random, fixed, covariates, method, sums, iterations,
                                  convergence, interactions);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& dependent,
               const CGUIArray<CGUIDataVariable>& random, const CGUIArray<CGUIDataVariable>& fixed,
               const CGUIArray<CGUIDataVariable>& covariates, int method, int sums, const CGUIData<int>& iterations,
               const CGUIData<double>& convergence, int interactions)
    {
        return kal::CopyFieldsIn(*this, source, dependent, random, fixed, covariates, method, sums, iterations,
                                 convergence, interactions);
    }

    bool IsIterative() const { return m_MethodCombo == kMethodMl || m_MethodCombo == kMethodReml; }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the page (template 8180).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CVarCompData>;
        using Ids = CVarCompDlgIds;
        using D = CVarCompData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_DependentList, Ids::IDC_DEPENDENT_LIST),
            F::List(&D::m_RandomList, Ids::IDC_RANDOM_LIST),
            F::List(&D::m_FixedList, Ids::IDC_FIXED_LIST),
            F::List(&D::m_CovariateList, Ids::IDC_COVARIATE_LIST),
            F::Value(&D::m_MethodCombo, Ids::IDC_METHOD_COMBO, &GetDefaultMethodCombo).Range(0, kMethodLast),
            F::Value(&D::m_SumsRadio, Ids::IDC_TYPE1_RADIO, &GetDefaultSumsRadio).Range(0, 1),
            F::Value(&D::m_IterEdit, Ids::IDC_ITER_EDIT, &GetDefaultIterEdit).Range(1, kMaxIterations),
            F::Value(&D::m_ConvEdit, Ids::IDC_CONV_EDIT, &GetDefaultConvEdit).Range(0, 1),
            F::Value(&D::m_InteractionsCheck, Ids::IDC_INTERACTIONS_CHECK, &GetDefaultInteractionsCheck).Range(0, 1),
        };
    }

private:
    friend class CVarCompDlg; // validates what it shows

    // The factors, fixed before random.
    std::vector<CString> Factors() const;

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_DependentList;
    CGUIArray<CGUIDataVariable> m_RandomList;
    CGUIArray<CGUIDataVariable> m_FixedList;
    CGUIArray<CGUIDataVariable> m_CovariateList;
    int m_MethodCombo;
    int m_SumsRadio;
    CGUIData<int> m_IterEdit;
    CGUIData<double> m_ConvEdit;
    int m_InteractionsCheck;
};
