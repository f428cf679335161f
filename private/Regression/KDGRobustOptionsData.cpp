#include "private/Regression/KDGRobustOptionsData.h"

#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"

#include <array>

IMPLEMENT_SERIAL(CRobustOptionsData, CGUIBaseObj, 1)

bool CRobustOptionsData::UsesCoverage() const
{
    return m_Estimator == RobustEstimator::Lms || m_Estimator == RobustEstimator::Lts ||
           m_Estimator == RobustEstimator::LadMcd;
}

double CRobustOptionsData::UsualTuningConstant(int index)
{
    // Huber, bisquare, Hampel, Andrews, Cauchy, Welsch: the order of combo 7094.
    constexpr std::array<double, 6> kUsual{1.345, 4.685, 2, 1.339, 2.385, 2.985};
    return index >= 0 && index < static_cast<int>(kUsual.size()) ? kUsual[static_cast<std::size_t>(index)] : kUsual[0];
}

CString CRobustOptionsData::EstimatorKeyword() const
{
    switch (m_Estimator) {
    case RobustEstimator::Lts: return u" LTS";
    case RobustEstimator::S: return u" S";
    case RobustEstimator::Mm: return u" MM";
    case RobustEstimator::LadMcd: return u" LADMCD";
    case RobustEstimator::M: return u" M";
    case RobustEstimator::Lms: break;
    }
    return u" LMS";
}

CString CRobustOptionsData::ValueClause(const CGUIData<double>& value, const char16_t* keyword, bool used) const
{
    return AddEditValueCmd(value, keyword, used && IsToBeWritten(value) ? 1 : 0);
}

CString CRobustOptionsData::ValueClause(const CGUIData<int>& value, const char16_t* keyword, bool used) const
{
    return AddEditValueCmd(value, keyword, used && IsToBeWritten(value) ? 1 : 0);
}

void CRobustOptionsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    if (m_SaveCheck)
        AddSaveCmd(m_SaveEdit, list, CComboUtil::GetComboString(kSaveCombo, m_SaveCombo, 0), u"");

    CString line = u"ESTIMATE /" + EstimatorKeyword();
    if (UsesWeightFunction()) {
        line += u" WEIGHT = " + CComboUtil::GetComboString(kFunctionCombo, m_FunctionCombo, 0);
        line += AddEditValueCmd(m_TuningEdit, u" C = ", 1);
        if (m_ScaleCombo != 0 || kal::framework::WriteEveryOption())
            line += u" SCALE = " + CComboUtil::GetComboString(kScaleCombo, m_ScaleCombo, 0);
    }
    line += ValueClause(m_CoverageEdit, u" COVERAGE = ", UsesCoverage());
    line += ValueClause(m_BreakdownEdit, u" BREAKDOWN = ", UsesBreakdown());
    line += ValueClause(m_EfficiencyEdit, u" EFFICIENCY = ", UsesEfficiency());
    line += ValueClause(m_SubsamplesEdit, u" SUBSAMPLES = ", UsesSubsamples());
    line += ValueClause(m_SeedEdit, u" SEED = ", UsesSubsamples());
    line += ValueClause(m_IterationsEdit, u" ITER = ", UsesIterations());
    line += ValueClause(m_ConvergenceEdit, u" CONVERGE = ", UsesIterations());
    AppendCommandLine(list, line);
}

void CRobustOptionsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_CoverageEdit, m_BreakdownEdit, m_EfficiencyEdit, m_SubsamplesEdit, m_SeedEdit,
                         m_FunctionCombo, m_TuningEdit, m_ScaleCombo, m_IterationsEdit, m_ConvergenceEdit, m_SaveCheck,
                         m_SaveCombo, m_SaveEdit);
}
