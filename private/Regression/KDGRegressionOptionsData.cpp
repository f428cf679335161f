#include "private/Regression/KDGRegressionOptionsData.h"

#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"
#include "host/KalAssertDlg.h"

IMPLEMENT_SERIAL(CRegressionOptionsData, CGUIBaseObj, 1)

namespace {

// The lines the assertion reports of this class name, one per choice that
// can hold an unexpected value.
enum ReportLine : int {
    kReportDirection = 337,
    kReportMaxStepOwner = 362,
    kReportCriterion = 387,
    kReportStepOwner = 425,
    kReportEstimation = 449,
};

void Report(ReportLine line)
{
    CKalAssertDlg("Source/KDGRegressionOptionsData", line).DoPrint();
}

} // namespace

int CRegressionOptionsData::SetMixtureModelState(int enabled, int checkStatus)
{
    m_MixtureModelEnabled = enabled;
    m_MMCheckStatus = checkStatus;
    return 1;
}

BOOL CRegressionOptionsData::IsCompleteRadioChecked() const
{
    return CRadioUtil::GetRadioItem(kEstimationRadio, m_EstimationRadio) == CRegressionOptionsDlgIds::IDC_COMPLETE;
}

bool CRegressionOptionsData::IsRegressionLikeOwner(UINT owner)
{
    return owner == kOwnerRegression || owner == kOwnerGlmFirst || owner == kOwnerGlmSecond || owner == kOwnerGlmThird;
}

void CRegressionOptionsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    switch (CRadioUtil::GetRadioItem(kEstimationRadio, m_EstimationRadio)) {
    case CRegressionOptionsDlgIds::IDC_COMPLETE: AppendEstimateLine(list); break;
    case CRegressionOptionsDlgIds::IDC_STEPWISE: AppendStepwiseLines(list); break;
    default: Report(kReportEstimation); break;
    }
}

void CRegressionOptionsData::AppendEstimateLine(CLIST<CCmdInfo>& list) const
{
    // "ESTIMATE /" keeps its slash even with no option: later pages attach
    // their clauses behind it.
    CString line(u"ESTIMATE /");
    if (m_MixtureModelEnabled)
        line += AddOnConditionCmd(u" MIX", m_MixtureModelCheck && kal::framework::IsOrdinaryData());
    line += AddChangedValueCmd(u" TOL = ", m_Tolerance);
    if (GetOwnerID() != kOwnerDiscriminant)
        line += AddChangedValueCmd(u" CONFI = ", m_Confidence);
    AppendCommandLine(list, line);
}

void CRegressionOptionsData::AppendStepwiseLines(CLIST<CCmdInfo>& list) const
{
    const UINT owner = GetOwnerID();

    CString start(u"START /");
    switch (CRadioUtil::GetRadioItem(kDirectionRadio, m_DirectionRadio)) {
    case CRegressionOptionsDlgIds::IDC_BACKWARD: start += u" BACKWARD"; break;
    case CRegressionOptionsDlgIds::IDC_FORWARD: start += u" FORWARD"; break;
    default: Report(kReportDirection); break;
    }
    start += AddChangedValueCmd(u" TOL = ", m_Tolerance);
    start += AddChangedValueCmd(u" FORCE = ", m_Force);
    if (IsRegressionLikeOwner(owner))
        start += AddChangedValueCmd(u" MAXSTEP = ", m_MaxStep);
    else if (owner != kOwnerDiscriminant)
        Report(kReportMaxStepOwner);
    switch (CRadioUtil::GetRadioItem(kCriterionRadio, m_CriterionRadio)) {
    case CRegressionOptionsDlgIds::IDC_PROBABILITY:
        start += AddChangedValueCmd(u" ENTER = ", m_ProbabilityEnter);
        start += AddChangedValueCmd(u" REMOVE = ", m_ProbabilityRemove);
        break;
    case CRegressionOptionsDlgIds::IDC_FSTATISTIC:
        start += AddChangedValueCmd(u" FENTER = ", m_FStatisticEnter);
        start += AddChangedValueCmd(u" FREMOVE = ", m_FStatisticRemove);
        break;
    default: Report(kReportCriterion); break;
    }
    AppendCommandLine(list, start);

    // Interactive stepping leaves the steps to the user, except for the
    // discriminant owner, which names their number.
    const bool automatic =
        CRadioUtil::GetRadioItem(kSteppingRadio, m_SteppingRadio) == CRegressionOptionsDlgIds::IDC_AUTOMATIC;
    CString step(u"STEP /");
    bool writeStep = automatic;
    if (automatic) {
        step += u" AUTO";
    } else if (owner == kOwnerDiscriminant) {
        step += AddChangedValueCmd(u" NUMBER = ", m_MaxStep);
        writeStep = true;
    } else if (!IsRegressionLikeOwner(owner)) {
        Report(kReportStepOwner);
    }
    if (writeStep)
        AppendCommandLine(list, step);

    if (automatic) {
        CString stop(u"STOP ");
        if (owner != kOwnerDiscriminant)
            stop += AddChangedValueCmd(u"/ CONFI = ", m_Confidence);
        AppendCommandLine(list, stop);
    }
}

void CRegressionOptionsData::ReassignDefaultValue()
{
    if (GetOwnerID() == kOwnerDiscriminant && m_Tolerance.m_Value == GetDefaultToleranceEdit().m_Value)
        m_Tolerance = GetDefaultClassicalToleranceEdit();
}

void CRegressionOptionsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    // The ints in member order; then the values, the confidence last.
    kal::SerializeValues(ar, m_MixtureModelCheck, m_EstimationRadio, m_DirectionRadio, m_SteppingRadio,
                         m_CriterionRadio, m_MixtureModelEnabled, m_MMCheckStatus, m_Tolerance, m_ProbabilityEnter,
                         m_ProbabilityRemove, m_FStatisticEnter, m_FStatisticRemove, m_MaxStep, m_Force, m_Confidence);
}
