#include "framework/BootStrapData.h"

#include "framework/StringUtil.h"

IMPLEMENT_SERIAL(CBootStrapData, CGUIBaseObj, 1)

bool CBootStrapData::IsMethodAvailable(int method) const
{
    switch (method) {
    case methodNone: return true;
    case methodBootstrap: return true;
    case methodJackknife: return m_nContinuousType != 0 && !m_nEMEstimation;
    case methodSubsampling: return !m_nDeletionTypePairwise && !m_nEMEstimation;
    default: return false;
    }
}

CString CBootStrapData::GetClause() const
{
    if (m_nMethod == methodNone || !IsMethodAvailable(m_nMethod))
        return {};
    // A size of 0 draws as many cases as the data has, a seed of 0 a new
    // seed each run: both go without saying unless the host asks for every
    // option.
    const CString samples = NumberText(m_Samples.m_Value);
    const bool writeSize = m_SampleSize.m_Value != 0 || IsToBeWritten(m_SampleSize);
    const CString size = writeSize ? u", " + NumberText(m_SampleSize.m_Value) : CString();
    CString clause;
    switch (m_nMethod) {
    case methodBootstrap: clause = u" SAMPLE = BOOT(" + samples + size + u")"; break;
    case methodJackknife: clause = u" SAMPLE = JACK"; break;
    default: clause = u" SAMPLE = SIMPLE(" + samples + size + u")"; break;
    }
    if (m_nMethod != methodJackknife && (m_RandomSeed.m_Value != 0 || IsToBeWritten(m_RandomSeed)))
        clause += u" RSEED = " + NumberText(m_RandomSeed.m_Value);
    return clause;
}

void CBootStrapData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_nMethod, m_nContinuousType, m_nDeletionTypePairwise, m_nEMEstimation, m_Samples,
                         m_SampleSize, m_RandomSeed);
}

void CBootStrapData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    AttachToEstimateLine(list, GetClause(), false);
}

void AttachToEstimateLine(CLIST<CCmdInfo>& list, const CString& clause, bool bAlways)
{
    const int index = CStringUtil::SearchStringAtBeginning(list, u"ESTIMATE");
    if (index < 0 || (clause.IsEmpty() && !bAlways))
        return;
    const CString text = CStringUtil::StringFoundAtIndex(list, u"/", index) ? clause : u"/" + clause;
    CStringUtil::ConcatStringAt(list, text, index);
}
