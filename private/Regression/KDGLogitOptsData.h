// CLogitOptsData: how the logistic model is estimated. The convergence,
// tolerance and iterations of the fit, and stepwise estimation with its
// direction, probabilities to enter and remove, forced terms and maximum
// number of steps.
//
// Complete estimation joins the "ESTIMATE" line when the model page wrote
// one (choice sets) and writes "ESTIMATE /" with its clauses otherwise.
// Stepwise estimation writes "START /", "STEP / AUTO" and "STOP "; a model
// with choice sets is always estimated completely, so a stepwise choice
// counts as complete while the model page has written its estimate line.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/logit.h"

#include <climits>

class CLogitOptsData : public CGUIBaseObj {
    DECLARE_SERIAL(CLogitOptsData)
public:
    // Radio groups, named by their first buttons.
    static constexpr UINT kEstimationRadio = CLogitOptsDlgIds::IDC_COMPLETE;
    static constexpr UINT kDirectionRadio = CLogitOptsDlgIds::IDC_BACKWARD;
    static constexpr int kMaxIterations = 10000;

    CLogitOptsData() { kal::ResetFields(*this); }

    static CGUIData<double> GetDefaultConvergenceEdit() { return CGUIData<double>(1e-6); }
    static CGUIData<double> GetDefaultToleranceEdit() { return CGUIData<double>(1e-12); }
    static CGUIData<double> GetDefaultEnterEdit() { return CGUIData<double>(0.15); }
    static CGUIData<double> GetDefaultRemoveEdit() { return CGUIData<double>(0.15); }
    static CGUIData<int> GetDefaultIterationsEdit() { return CGUIData<int>(50); }
    static CGUIData<int> GetDefaultMaxStepEdit() { return CGUIData<int>(10); }
    static CGUIData<int> GetDefaultForceEdit() { return CGUIData<int>(0); }
    static int GetDefaultCompleteRadio() { return 0; }
    static int GetDefaultBackwardRadio() { return 0; }

    int GetAll(CGUIData<double>& convergence, CGUIData<double>& tolerance, CGUIData<double>& enter,
               CGUIData<double>& remove, CGUIData<int>& iterations, CGUIData<int>& maxStep, CGUIData<int>& force,
               int& estimationRadio, int& directionRadio) const
    {
        return kal::CopyFieldsOut(*this, convergence, tolerance, enter, remove, iterations, maxStep, force,
                                  estimationRadio, directionRadio);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIData<double>& convergence, const CGUIData<double>& tolerance, const CGUIData<double>& enter,
               const CGUIData<double>& remove, const CGUIData<int>& iterations, const CGUIData<int>& maxStep,
               const CGUIData<int>& force, int estimationRadio, int directionRadio)
    {
        return kal::CopyFieldsIn(*this, convergence, tolerance, enter, remove, iterations, maxStep, force,
                                 estimationRadio, directionRadio);
    }

    const CGUIData<double>& GetConvergence() const { return m_Convergence; }
    const CGUIData<double>& GetEnter() const { return m_Enter; }
    const CGUIData<double>& GetRemove() const { return m_Remove; }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The members in order, the controls of the estimation page (template
    // 2740) that show them, their defaults and ranges.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CLogitOptsData>;
        using Ids = CLogitOptsDlgIds;
        using D = CLogitOptsData;
        return std::tuple{
            F::Value(&D::m_Convergence, Ids::IDC_CONVERGENCE, &GetDefaultConvergenceEdit).Range(0, 1),
            F::Value(&D::m_Tolerance, Ids::IDC_TOLERANCE, &GetDefaultToleranceEdit).Range(0, 1),
            F::Value(&D::m_Enter, Ids::IDC_ENTER, &GetDefaultEnterEdit).Range(0, 1),
            F::Value(&D::m_Remove, Ids::IDC_REMOVE, &GetDefaultRemoveEdit).Range(0, 1),
            F::Value(&D::m_Iterations, Ids::IDC_ITERATIONS, &GetDefaultIterationsEdit).Range(1, kMaxIterations),
            F::Value(&D::m_MaxStep, Ids::IDC_MAXSTEP, &GetDefaultMaxStepEdit).Range(1, INT_MAX),
            F::Value(&D::m_Force, Ids::IDC_FORCE, &GetDefaultForceEdit).Range(0, INT_MAX),
            F::Value(&D::m_EstimationRadio, Ids::IDC_COMPLETE, &GetDefaultCompleteRadio),
            F::Value(&D::m_DirectionRadio, Ids::IDC_BACKWARD, &GetDefaultBackwardRadio),
        };
    }

private:
    // The clauses both methods write: convergence, tolerance, iterations.
    CString FitClauses() const;
    void AppendCompleteEstimation(CLIST<CCmdInfo>& list) const;
    void AppendStepwiseLines(CLIST<CCmdInfo>& list) const;

    CGUIData<double> m_Convergence;
    CGUIData<double> m_Tolerance;
    CGUIData<double> m_Enter;
    CGUIData<double> m_Remove;
    CGUIData<int> m_Iterations;
    CGUIData<int> m_MaxStep;
    CGUIData<int> m_Force;
    int m_EstimationRadio;
    int m_DirectionRadio;
};
