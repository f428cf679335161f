// CRobustOptionsData: the options page the robust regressions share: least
// median of squares, least trimmed squares, S- and MM-estimation, least
// absolute deviations on a minimum-covariance-determinant design, and
// M-regression. One settings class for them all, so the page, its
// validation and its record are written once; the estimator it serves is
// fixed by the dialog that owns it (see CRobustOptionsDataFor) and decides
// which clauses the "ESTIMATE" line carries:
//
//   estimator  clauses after its keyword
//   LMS, LTS   COVERAGE, SUBSAMPLES, SEED
//   LADMCD     COVERAGE, SUBSAMPLES, SEED
//   S          BREAKDOWN, SUBSAMPLES, SEED, ITER, CONVERGE
//   MM         BREAKDOWN, EFFICIENCY, SUBSAMPLES, SEED, ITER, CONVERGE
//   M          WEIGHT and its constant C, SCALE, ITER, CONVERGE
//
// The weight function and its constant of M-regression are always written
// (the constant's meaning depends on the function); every number else
// follows the changed-value rule. An optional save line comes first.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/regression-models.h"

#include <climits>

enum class RobustEstimator { Lms, Lts, S, Mm, LadMcd, M };

class CRobustOptionsData : public CGUIBaseObj {
    DECLARE_SERIAL(CRobustOptionsData)
public:
    static constexpr UINT kFunctionCombo = 7094;
    static constexpr UINT kScaleCombo = 7096;
    static constexpr UINT kSaveCombo = 7102;
    static constexpr UINT kMsgAboveZero = 7110;

    explicit CRobustOptionsData(RobustEstimator estimator = RobustEstimator::Lms) : m_Estimator(estimator)
    {
        kal::ResetFields(*this);
    }

    RobustEstimator GetEstimator() const { return m_Estimator; }
    // Which of the page's values the estimator uses.
    bool UsesCoverage() const;
    bool UsesBreakdown() const { return m_Estimator == RobustEstimator::S || m_Estimator == RobustEstimator::Mm; }
    bool UsesEfficiency() const { return m_Estimator == RobustEstimator::Mm; }
    bool UsesSubsamples() const { return m_Estimator != RobustEstimator::M; }
    bool UsesWeightFunction() const { return m_Estimator == RobustEstimator::M; }
    bool UsesIterations() const { return UsesBreakdown() || UsesWeightFunction(); }
    // The usual tuning constant of the weight function at `index` of its
    // list: 95% efficiency at normal errors (Hampel's a of a, 2a, 4a).
    static double UsualTuningConstant(int index);

    // Coverage and breakdown at 0.5 resist the most outliers; 500 subsets
    // find a good start for a handful of regressors.
    static CGUIData<double> GetDefaultCoverageEdit() { return Number(0.5); }
    static CGUIData<double> GetDefaultBreakdownEdit() { return Number(0.5); }
    static CGUIData<double> GetDefaultEfficiencyEdit() { return Number(0.95); }
    static CGUIData<int> GetDefaultSubsamplesEdit() { return Whole(500); }
    static CGUIData<int> GetDefaultSeedEdit() { return Whole(0); }
    static int GetDefaultZero() { return 0; }
    static CGUIData<double> GetDefaultTuningEdit() { return Number(UsualTuningConstant(0)); }
    static CGUIData<int> GetDefaultIterationsEdit() { return Whole(50); }
    static CGUIData<double> GetDefaultConvergenceEdit() { return Number(1e-4); }
    static int GetDefaultSaveCombo() { return 2; }
    static CString GetDefaultSaveEdit() { return {}; }

    int GetAll(CGUIData<double>& coverage, CGUIData<double>& breakdown, CGUIData<double>& efficiency,
               CGUIData<int>& subsamples, CGUIData<int>& seed, int& function, CGUIData<double>& tuning, int& scale,
               CGUIData<int>& iterations, CGUIData<double>& convergence, int& saveCheck, int& saveCombo,
               CString& saveEdit) const
    {
        return kal::CopyFieldsOut(*this, coverage, breakdown, efficiency, subsamples, seed, function, tuning, scale,
                                  iterations, convergence, saveCheck, saveCombo, saveEdit);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIData<double>& coverage, const CGUIData<double>& breakdown, const CGUIData<double>& efficiency,
               const CGUIData<int>& subsamples, const CGUIData<int>& seed, int function, const CGUIData<double>& tuning,
               int scale, const CGUIData<int>& iterations, const CGUIData<double>& convergence, int saveCheck,
               int saveCombo, const CString& saveEdit)
    {
        return kal::CopyFieldsIn(*this, coverage, breakdown, efficiency, subsamples, seed, function, tuning, scale,
                                 iterations, convergence, saveCheck, saveCombo, saveEdit);
    }

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The members in order and the controls of the options page (template
    // 7080). The lower ends of breakdown, tuning constant and convergence
    // are open: the page refuses 0 itself.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CRobustOptionsData>;
        using Ids = CRobustOptionsDlgIds;
        using D = CRobustOptionsData;
        return std::tuple{
            F::Value(&D::m_CoverageEdit, Ids::IDC_COVERAGE_EDIT, &GetDefaultCoverageEdit).Range(0.5, 1),
            F::Value(&D::m_BreakdownEdit, Ids::IDC_BREAKDOWN_EDIT, &GetDefaultBreakdownEdit).Range(0, 0.5),
            F::Value(&D::m_EfficiencyEdit, Ids::IDC_EFFICIENCY_EDIT, &GetDefaultEfficiencyEdit).Range(0.5, 0.99),
            F::Value(&D::m_SubsamplesEdit, Ids::IDC_SUBSAMPLES_EDIT, &GetDefaultSubsamplesEdit).Range(1, 10000000),
            F::Value(&D::m_SeedEdit, Ids::IDC_SEED_EDIT, &GetDefaultSeedEdit).Range(0, INT_MAX),
            F::Value(&D::m_FunctionCombo, Ids::IDC_FUNCTION_COMBO, &GetDefaultZero),
            F::Value(&D::m_TuningEdit, Ids::IDC_TUNING_EDIT, &GetDefaultTuningEdit).Range(0, 100),
            F::Value(&D::m_ScaleCombo, Ids::IDC_SCALE_COMBO, &GetDefaultZero),
            F::Value(&D::m_IterationsEdit, Ids::IDC_ITERATIONS_EDIT, &GetDefaultIterationsEdit).Range(1, 10000),
            F::Value(&D::m_ConvergenceEdit, Ids::IDC_CONVERGENCE_EDIT, &GetDefaultConvergenceEdit).Range(0, 0.1),
            F::Value(&D::m_SaveCheck, Ids::IDC_SAVE_CHECK, &GetDefaultZero),
            F::Value(&D::m_SaveCombo, Ids::IDC_SAVE_COMBO, &GetDefaultSaveCombo),
            F::Value(&D::m_SaveEdit, Ids::IDC_SAVE_EDIT, &GetDefaultSaveEdit).RequiredBy(Ids::IDC_SAVE_CHECK),
        };
    }

private:
    friend class CRobustOptionsDlg; // reads the values it validates

    static CGUIData<double> Number(double value) { return CGUIData<double>(1, value, value, 0, 1); }
    static CGUIData<int> Whole(int value) { return CGUIData<int>(1, value, value, 0, 1); }
    CString EstimatorKeyword() const;
    CString ValueClause(const CGUIData<double>& value, const char16_t* keyword, bool used) const;
    CString ValueClause(const CGUIData<int>& value, const char16_t* keyword, bool used) const;

    RobustEstimator m_Estimator;
    CGUIData<double> m_CoverageEdit;
    CGUIData<double> m_BreakdownEdit;
    CGUIData<double> m_EfficiencyEdit;
    CGUIData<int> m_SubsamplesEdit;
    CGUIData<int> m_SeedEdit;
    int m_FunctionCombo;
    CGUIData<double> m_TuningEdit;
    int m_ScaleCombo;
    CGUIData<int> m_IterationsEdit;
    CGUIData<double> m_ConvergenceEdit;
    int m_SaveCheck;
    int m_SaveCombo;
    CString m_SaveEdit;
};

// The options page as one dialog owns it: the estimator is part of the
// type, so a reset or a default-constructed copy keeps it.
template <RobustEstimator Estimator>
class CRobustOptionsDataFor : public CRobustOptionsData {
public:
    CRobustOptionsDataFor() : CRobustOptionsData(Estimator) {}
};
