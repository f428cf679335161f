// CMixRegEstimationData: the estimation page of mixed regression: the
// quadrature points and adaptive quadrature that integrate the random
// effects out of a logistic or ordinal model, the iteration limit, the
// convergence criterion, and whether the random effects are independent or
// correlated. Written as the closing "ESTIMATE" line; the quadrature
// clauses only for the links that integrate (the model page's link).
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/mixed.h"

class CMixRegEstimationData : public CGUIBaseObj {
    DECLARE_SERIAL(CMixRegEstimationData)
public:
    static constexpr UINT kCovarianceRadio = CMixRegEstimationDlgIds::IDC_INDEPENDENT_RADIO;
    static constexpr int kMinPoints = 2;
    static constexpr int kMaxPoints = 50;
    static constexpr int kMaxIterations = 10000;

    CMixRegEstimationData() { kal::ResetFields(*this); }

    static CGUIData<int> GetDefaultQuadEdit() { return CGUIData<int>(10); }
    static int GetDefaultAdaptiveCheck() { return 1; }
    static CGUIData<int> GetDefaultIterEdit() { return CGUIData<int>(100); }
    static CGUIData<double> GetDefaultConvEdit() { return CGUIData<double>(1, 1e-6, 1e-6, 0, 1); }
    static int GetDefaultCovarianceRadio() { return 1; }

    int GetAll(CGUIData<int>& points, int& adaptive, CGUIData<int>& iterations, CGUIData<double>& convergence,
               int& covariance) const
    {
        return kal::CopyFieldsOut(*this, points, adaptive, iterations, convergence, covariance);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIData<int>& points, int adaptive, const CGUIData<int>& iterations,
               const CGUIData<double>& convergence, int covariance)
    {
        return kal::CopyFieldsIn(*this, points, adaptive, iterations, convergence, covariance);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the page (template 8280).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CMixRegEstimationData>;
        using Ids = CMixRegEstimationDlgIds;
        using D = CMixRegEstimationData;
        return std::tuple{
            F::Value(&D::m_QuadEdit, Ids::IDC_QUAD_EDIT, &GetDefaultQuadEdit).Range(kMinPoints, kMaxPoints),
            F::Value(&D::m_AdaptiveCheck, Ids::IDC_ADAPTIVE_CHECK, &GetDefaultAdaptiveCheck).Range(0, 1),
            F::Value(&D::m_IterEdit, Ids::IDC_ITER_EDIT, &GetDefaultIterEdit).Range(1, kMaxIterations),
            F::Value(&D::m_ConvEdit, Ids::IDC_CONV_EDIT, &GetDefaultConvEdit).Range(0, 1),
            F::Value(&D::m_CovarianceRadio, Ids::IDC_INDEPENDENT_RADIO, &GetDefaultCovarianceRadio).Range(0, 1),
        };
    }

private:
    friend class CMixRegEstimationDlg; // validates what it shows

    // Whether the model page of the same tab asks for quadrature.
    bool Integrates() const;

    CGUIData<int> m_QuadEdit;
    int m_AdaptiveCheck;
    CGUIData<int> m_IterEdit;
    CGUIData<double> m_ConvEdit;
    int m_CovarianceRadio;
};
