#include "private/Regression/KDGLogitOptsData.h"

#include "framework/BootStrapData.h"
#include "framework/ResourceUtil.h"
#include "framework/StringUtil.h"
#include "host/KalAssertDlg.h"

IMPLEMENT_SERIAL(CLogitOptsData, CGUIBaseObj, 1)

namespace {

void ReportOptsAssertion(int line)
{
    CKalAssertDlg("Source/KDGLogitOptsData", line).DoPrint();
}

} // namespace

CString CLogitOptsData::FitClauses() const
{
    return AddChangedValueCmd(u" CONV = ", m_Convergence) + AddChangedValueCmd(u" TOL = ", m_Tolerance) +
           AddChangedValueCmd(u" ITER = ", m_Iterations);
}

void CLogitOptsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    // An estimate line of the model page means choice sets, which are
    // estimated completely whatever the method says.
    const bool modelEstimates = CStringUtil::SearchStringAtBeginning(list, u"ESTIMATE") >= 0;
    switch (CRadioUtil::GetRadioItem(kEstimationRadio, m_EstimationRadio)) {
    case CLogitOptsDlgIds::IDC_COMPLETE: AppendCompleteEstimation(list); break;
    case CLogitOptsDlgIds::IDC_STEPWISE:
        if (modelEstimates)
            AppendCompleteEstimation(list);
        else
            AppendStepwiseLines(list);
        break;
    default: ReportOptsAssertion(__LINE__); break;
    }
}

void CLogitOptsData::AppendCompleteEstimation(CLIST<CCmdInfo>& list) const
{
    const CString clauses = FitClauses();
    if (CStringUtil::SearchStringAtBeginning(list, u"ESTIMATE") >= 0) {
        AttachToEstimateLine(list, clauses, false);
        return;
    }
    // Without an option the slash goes: "ESTIMATE ".
    CString line = u"ESTIMATE /" + clauses;
    CStringUtil::RemoveTrailingChar(line, u'/');
    AppendCommandLine(list, line);
}

void CLogitOptsData::AppendStepwiseLines(CLIST<CCmdInfo>& list) const
{
    CString start(u"START /");
    switch (CRadioUtil::GetRadioItem(kDirectionRadio, m_DirectionRadio)) {
    case CLogitOptsDlgIds::IDC_BACKWARD: start += u" BACKWARD"; break;
    case CLogitOptsDlgIds::IDC_FORWARD: start += u" FORWARD"; break;
    default: ReportOptsAssertion(__LINE__); break;
    }
    start += FitClauses();
    start += AddChangedValueCmd(u" FORCE = ", m_Force);
    start += AddChangedValueCmd(u" MAXSTEP = ", m_MaxStep);
    start += AddChangedValueCmd(u" ENTER = ", m_Enter);
    start += AddChangedValueCmd(u" REMOVE = ", m_Remove);
    AppendCommandLine(list, start);
    AppendCommandLine(list, u"STEP / AUTO");
    AppendCommandLine(list, u"STOP ");
}

void CLogitOptsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    // The two radio indexes, then the values in member order.
    kal::SerializeValues(ar, m_EstimationRadio, m_DirectionRadio, m_Convergence, m_Tolerance, m_Enter, m_Remove,
                         m_Iterations, m_MaxStep, m_Force);
}
