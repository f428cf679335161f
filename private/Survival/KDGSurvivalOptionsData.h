// CSurvivalOptionsData: the estimation page of the survival regression
// (2059): a proportional-hazards model with its handling of tied failure
// times, or a parametric model with its distribution; the iterations,
// convergence and confidence of the estimation. Written as the "ESTIMATE"
// line after the model page's lines.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/survival.h"

class CSurvivalOptionsData : public CGUIBaseObj {
    DECLARE_SERIAL(CSurvivalOptionsData)
public:
    // The model radio group: proportional hazards, parametric.
    static constexpr UINT kModelRadio = 8631;
    static constexpr UINT kItemCox = 8631;
    static constexpr UINT kItemParametric = 8632;
    static constexpr UINT kDistributionCombo = 8633;
    static constexpr UINT kTiesCombo = 8634;
    static constexpr int kDistributionLast = 4;
    static constexpr int kTiesLast = 2;
    static constexpr int kWeibull = 1;
    static constexpr int kMaxIterations = 10000;
    static constexpr UINT kMsgConvergence = 8683;
    static constexpr UINT kMsgConfidence = 8684;

    CSurvivalOptionsData() { kal::ResetFields(*this); }

    static int GetDefaultModelRadio() { return 0; }
    static int GetDefaultTiesCombo() { return 0; }
    static int GetDefaultDistributionCombo() { return kWeibull; }
    static CGUIData<int> GetDefaultIterationsEdit() { return CGUIData<int>(1, 25, 25, 0, 1); }
    static CGUIData<double> GetDefaultConvergenceEdit() { return CGUIData<double>(1, 0.0001, 0.0001, 0, 1); }
    static CGUIData<double> GetDefaultConfidenceEdit() { return CGUIData<double>(1, 0.95, 0.95, 0, 1); }

    int GetAll(int& model, int& ties, int& distribution, CGUIData<int>& iterations, CGUIData<double>& convergence,
               CGUIData<double>& confidence) const
    {
        return kal::CopyFieldsOut(*this, model, ties, distribution, iterations, convergence, confidence);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int model, int ties, int distribution, const CGUIData<int>& iterations,
               const CGUIData<double>& convergence, const CGUIData<double>& confidence)
    {
        return kal::CopyFieldsIn(*this, model, ties, distribution, iterations, convergence, confidence);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CSurvivalOptionsData>;
        using Ids = CSurvivalOptionsDlgIds;
        using D = CSurvivalOptionsData;
        return std::tuple{
            F::Value(&D::m_ModelRadio, Ids::IDC_COX_RADIO, &GetDefaultModelRadio),
            F::Value(&D::m_TiesCombo, Ids::IDC_TIES_COMBO, &GetDefaultTiesCombo).Range(0, kTiesLast),
            F::Value(&D::m_DistributionCombo, Ids::IDC_DISTRIBUTION_COMBO, &GetDefaultDistributionCombo)
                .Range(0, kDistributionLast),
            F::Value(&D::m_IterationsEdit, Ids::IDC_ITERATIONS_EDIT, &GetDefaultIterationsEdit)
                .Range(1, kMaxIterations),
            F::Value(&D::m_ConvergenceEdit, Ids::IDC_CONVERGENCE_EDIT, &GetDefaultConvergenceEdit)
                .Range(0, 1, kMsgConvergence),
            F::Value(&D::m_ConfidenceEdit, Ids::IDC_CONFIDENCE_EDIT, &GetDefaultConfidenceEdit)
                .Range(0, 1, kMsgConfidence),
        };
    }

private:
    friend class CSurvivalOptionsDlg; // reads the values it validates

    int m_ModelRadio;
    int m_TiesCombo;
    int m_DistributionCombo;
    CGUIData<int> m_IterationsEdit;
    CGUIData<double> m_ConvergenceEdit;
    CGUIData<double> m_ConfidenceEdit;
};
