// CNonLinOptsData: the estimation page of the nonlinear regressions (2030,
// 2031): the method (Gauss-Newton, Marquardt, quasi-Newton, simplex), the
// largest number of iterations, the convergence criterion, the step
// halvings of the Gauss-Newton and Marquardt steps and the confidence of
// the parameters' intervals. Written as the "ESTIMATE" line, its options
// after "/" when any differs from its default.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/nonlinear.h"

class CNonLinOptsData : public CGUIBaseObj {
    DECLARE_SERIAL(CNonLinOptsData)
public:
    // The method radio group and its buttons.
    static constexpr UINT kMethodRadio = 7641;
    enum Method : UINT { kGauss = 7641, kMarquardt = 7642, kQuasi = 7643, kSimplex = 7644 };

    CNonLinOptsData() { kal::ResetFields(*this); }

    static int GetDefaultMethodRadio() { return 0; }
    static CGUIData<int> GetDefaultIterationsEdit() { return CGUIData<int>(100); }
    static CGUIData<double> GetDefaultConvergenceEdit() { return CGUIData<double>(1e-8); }
    static CGUIData<int> GetDefaultHalvingsEdit() { return CGUIData<int>(10); }
    static CGUIData<double> GetDefaultConfidenceEdit() { return CGUIData<double>(0.95); }

    int GetAll(int& method, CGUIData<int>& iterations, CGUIData<double>& convergence, CGUIData<int>& halvings,
               CGUIData<double>& confidence) const
    {
        return kal::CopyFieldsOut(*this, method, iterations, convergence, halvings, confidence);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int method, const CGUIData<int>& iterations, const CGUIData<double>& convergence,
               const CGUIData<int>& halvings, const CGUIData<double>& confidence)
    {
        return kal::CopyFieldsIn(*this, method, iterations, convergence, halvings, confidence);
    }

    // The chosen method's button; step halvings belong to the first two.
    UINT ChosenMethod() const;
    static bool HalvesSteps(UINT method) { return method == kGauss || method == kMarquardt; }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The page's controls (template 7640).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CNonLinOptsData>;
        using Ids = CNonLinOptsDlgIds;
        using D = CNonLinOptsData;
        return std::tuple{
            F::Value(&D::m_MethodRadio, Ids::IDC_GAUSS_RADIO, &GetDefaultMethodRadio),
            F::Value(&D::m_IterationsEdit, Ids::IDC_ITERATIONS_EDIT, &GetDefaultIterationsEdit).Range(1, 10000),
            F::Value(&D::m_ConvergenceEdit, Ids::IDC_CONVERGENCE_EDIT, &GetDefaultConvergenceEdit).Range(0, 1),
            F::Value(&D::m_HalvingsEdit, Ids::IDC_HALVINGS_EDIT, &GetDefaultHalvingsEdit).Range(0, 100),
            F::Value(&D::m_ConfidenceEdit, Ids::IDC_CONFIDENCE_EDIT, &GetDefaultConfidenceEdit).Range(0, 1),
        };
    }

private:
    friend class CNonLinOptsDlg; // reads the convergence it checks

    int m_MethodRadio;
    CGUIData<int> m_IterationsEdit;
    CGUIData<double> m_ConvergenceEdit;
    CGUIData<int> m_HalvingsEdit;
    CGUIData<double> m_ConfidenceEdit;
};
