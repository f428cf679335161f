#include "private/Regression/KDGNonLinOptsData.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_SERIAL(CNonLinOptsData, CGUIBaseObj, 1)

UINT CNonLinOptsData::ChosenMethod() const
{
    return CRadioUtil::GetRadioItem(kMethodRadio, m_MethodRadio);
}

void CNonLinOptsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    const UINT method = ChosenMethod();
    CString clauses;
    switch (method) {
    case kMarquardt: clauses += u" METHOD = MARQUARDT"; break;
    case kQuasi: clauses += u" METHOD = QUASI"; break;
    case kSimplex: clauses += u" METHOD = SIMPLEX"; break;
    default: break; // Gauss-Newton, the default, goes without saying
    }
    clauses += AddChangedValueCmd(u" ITER = ", m_IterationsEdit);
    clauses += AddChangedValueCmd(u" CONV = ", m_ConvergenceEdit);
    if (HalvesSteps(method))
        clauses += AddChangedValueCmd(u" HALVE = ", m_HalvingsEdit);
    clauses += AddChangedValueCmd(u" CONFI = ", m_ConfidenceEdit);
    AppendCommandLine(list, clauses.IsEmpty() ? CString(u"ESTIMATE ") : u"ESTIMATE /" + clauses);
}

void CNonLinOptsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_MethodRadio, m_IterationsEdit, m_ConvergenceEdit, m_HalvingsEdit, m_ConfidenceEdit);
}
