// CRegressionOptionsData: how a linear model is estimated. Complete
// estimation writes one "ESTIMATE /" line; stepwise estimation writes the
// "START /" line and, for automatic stepping, "STEP /" and "STOP ".
//
// The page is shared: the regression, general-linear-model and discriminant
// tabs hold it, and it adapts a few clauses to the owner id its page was
// given: 0 (regression) and the general-linear-model owners 2213, 2217 and
// 2259 write the maximum step and the confidence; the discriminant owner
// 2211 writes neither, steps interactively with a number of steps, and
// starts from a tolerance of 0.001.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/regression.h"

#include <climits>

class CRegressionOptionsData : public CGUIBaseObj {
    DECLARE_SERIAL(CRegressionOptionsData)
public:
    // Owner ids the page knows.
    static constexpr UINT kOwnerRegression = 0;
    static constexpr UINT kOwnerDiscriminant = 2211;
    static constexpr UINT kOwnerGlmFirst = 2213;
    static constexpr UINT kOwnerGlmSecond = 2217;
    static constexpr UINT kOwnerGlmThird = 2259;
    // Radio groups, named by their first buttons.
    static constexpr UINT kEstimationRadio = CRegressionOptionsDlgIds::IDC_COMPLETE;
    static constexpr UINT kDirectionRadio = CRegressionOptionsDlgIds::IDC_BACKWARD;
    static constexpr UINT kSteppingRadio = CRegressionOptionsDlgIds::IDC_AUTOMATIC;
    static constexpr UINT kCriterionRadio = CRegressionOptionsDlgIds::IDC_PROBABILITY;
    // The largest F-statistic an edit accepts.
    static constexpr double kMaxFStatistic = 100000;

    CRegressionOptionsData() { kal::ResetFields(*this); }

    static CGUIData<double> GetDefaultToleranceEdit() { return CGUIData<double>(1e-12); }
    static CGUIData<double> GetDefaultClassicalToleranceEdit() { return CGUIData<double>(0.001); }
    static CGUIData<double> GetDefaultProbabilityEnterEdit() { return CGUIData<double>(0.15); }
    static CGUIData<double> GetDefaultProbabilityRemoveEdit() { return CGUIData<double>(0.15); }
    static CGUIData<double> GetDefaultFStatisticEnterEdit() { return CGUIData<double>(4.0); }
    static CGUIData<double> GetDefaultFStatisticRemoveEdit() { return CGUIData<double>(3.9); }
    static CGUIData<double> GetDefaultConfiEdit() { return CGUIData<double>(0.95); }
    static CGUIData<int> GetDefaultMaxStepEdit() { return CGUIData<int>(15); }
    static CGUIData<int> GetDefaultForceEdit() { return CGUIData<int>(0); }
    static int GetDefaultMixtureModelCheck() { return 0; }
    static int GetDefaultCompleteEstimationRadio() { return 0; }
    static int GetDefaultBackwardRadio() { return 0; }
    static int GetDefaultAutomaticRadio() { return 0; }
    static int GetDefaultProbabilityRadio() { return 0; }
    static int GetDefaultMixtureModelEnabled() { return 0; }
    static int GetDefaultMMCheckStatus() { return 0; }

    int GetAll(CGUIData<double>& tolerance, CGUIData<double>& probabilityEnter, CGUIData<double>& probabilityRemove,
               CGUIData<double>& fEnter, CGUIData<double>& fRemove, CGUIData<double>& confidence,
               CGUIData<int>& maxStep, CGUIData<int>& force, int& mixtureModelCheck, int& estimationRadio,
               int& directionRadio, int& steppingRadio, int& criterionRadio, int& mixtureModelEnabled,
               int& mixtureCheckStatus) const
    {
        return kal::CopyFieldsOut(*this, tolerance, probabilityEnter, probabilityRemove, fEnter, fRemove, confidence,
                                  maxStep, force, mixtureModelCheck, estimationRadio, directionRadio, steppingRadio,
                                  criterionRadio, mixtureModelEnabled, mixtureCheckStatus);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIData<double>& tolerance, const CGUIData<double>& probabilityEnter,
               const CGUIData<double>& probabilityRemove, const CGUIData<double>& fEnter,
               const CGUIData<double>& fRemove, const CGUIData<double>& confidence, const CGUIData<int>& maxStep,
               const CGUIData<int>& force, int mixtureModelCheck, int estimationRadio, int directionRadio,
               int steppingRadio, int criterionRadio, int mixtureModelEnabled, int mixtureCheckStatus)
    {
        return kal::CopyFieldsIn(*this, tolerance, probabilityEnter, probabilityRemove, fEnter, fRemove, confidence,
                                 maxStep, force, mixtureModelCheck, estimationRadio, directionRadio, steppingRadio,
                                 criterionRadio, mixtureModelEnabled, mixtureCheckStatus);
    }

    // What the page showed of the mixture model check at its last OK:
    // whether the check was enabled, and whether it was enabled and checked.
    int SetMixtureModelState(int enabled, int checkStatus);
    int GetMixtureModelCheck() const { return m_MixtureModelCheck; }
    int GetMixtureModelEnabled() const { return m_MixtureModelEnabled; }
    int GetMMCheckStatus() const { return m_MMCheckStatus; }

    BOOL IsCompleteRadioChecked() const;
    const CGUIData<double>& GetTolerance() const { return m_Tolerance; }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    // Under the discriminant owner a tolerance still at the regression
    // default becomes the classical 0.001.
    void ReassignDefaultValue() override;
    void Serialize(CArchive& ar) override;

    // The members in order, the controls of the estimation page (template
    // 4140) that show them, their defaults and the ranges it accepts. The
    // mixture model's enable state and status have no control: the page
    // records them at OK.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRegressionOptionsData>;
        using Ids = CRegressionOptionsDlgIds;
        using D = CRegressionOptionsData;
        return std::tuple{
            F::Value(&D::m_Tolerance, Ids::IDC_TOLERANCE, &GetDefaultToleranceEdit).Range(0, 1),
            F::Value(&D::m_ProbabilityEnter, Ids::IDC_PROBABILITY_ENTER, &GetDefaultProbabilityEnterEdit).Range(0, 1),
            F::Value(&D::m_ProbabilityRemove, Ids::IDC_PROBABILITY_REMOVE, &GetDefaultProbabilityRemoveEdit)
                .Range(0, 1),
            F::Value(&D::m_FStatisticEnter, Ids::IDC_FENTER, &GetDefaultFStatisticEnterEdit).Range(0, kMaxFStatistic),
            F::Value(&D::m_FStatisticRemove, Ids::IDC_FREMOVE, &GetDefaultFStatisticRemoveEdit)
                .Range(0, kMaxFStatistic),
            F::Value(&D::m_Confidence, Ids::IDC_CONFIDENCE, &GetDefaultConfiEdit).Range(0, 1),
            F::Value(&D::m_MaxStep, Ids::IDC_MAXSTEP, &GetDefaultMaxStepEdit).Range(1, INT_MAX),
            F::Value(&D::m_Force, Ids::IDC_FORCE, &GetDefaultForceEdit).Range(0, INT_MAX),
            F::Value(&D::m_MixtureModelCheck, Ids::IDC_MIXTURE, &GetDefaultMixtureModelCheck),
            F::Value(&D::m_EstimationRadio, Ids::IDC_COMPLETE, &GetDefaultCompleteEstimationRadio),
            F::Value(&D::m_DirectionRadio, Ids::IDC_BACKWARD, &GetDefaultBackwardRadio),
            F::Value(&D::m_SteppingRadio, Ids::IDC_AUTOMATIC, &GetDefaultAutomaticRadio),
            F::Value(&D::m_CriterionRadio, Ids::IDC_PROBABILITY, &GetDefaultProbabilityRadio),
            F::Value(&D::m_MixtureModelEnabled, 0, &GetDefaultMixtureModelEnabled),
            F::Value(&D::m_MMCheckStatus, 0, &GetDefaultMMCheckStatus),
        };
    }

private:
    void AppendEstimateLine(CLIST<CCmdInfo>& list) const;
    void AppendStepwiseLines(CLIST<CCmdInfo>& list) const;
    // Whether the owner is one that writes the maximum step and the
    // confidence (every known owner but the discriminant).
    static bool IsRegressionLikeOwner(UINT owner);

    CGUIData<double> m_Tolerance;
    CGUIData<double> m_ProbabilityEnter;
    CGUIData<double> m_ProbabilityRemove;
    CGUIData<double> m_FStatisticEnter;
    CGUIData<double> m_FStatisticRemove;
    CGUIData<double> m_Confidence;
    CGUIData<int> m_MaxStep;
    CGUIData<int> m_Force;
    int m_MixtureModelCheck;
    int m_EstimationRadio;
    int m_DirectionRadio;
    int m_SteppingRadio;
    int m_CriterionRadio;
    int m_MixtureModelEnabled;
    int m_MMCheckStatus;
};
