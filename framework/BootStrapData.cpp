#include "framework/BootStrapData.h"

#include "framework/StringUtil.h"

IMPLEMENT_SERIAL(CBootStrapData, CGUIBaseObj, 1)

CBootStrapData::CBootStrapData()
    : m_nMethod(GetDefaultMethodRadio()), m_Samples(GetDefaultSamplesEdit()), m_SampleSize(GetDefaultSampleSizeEdit()),
      m_RandomSeed(GetDefaultRandomSeedEdit())
{
}

int CBootStrapData::GetAll(int& method, CGUIData<int>& samples, CGUIData<int>& sampleSize,
                           CGUIData<unsigned int>& seed) const
{
    method = m_nMethod;
    samples = m_Samples;
    sampleSize = m_SampleSize;
    seed = m_RandomSeed;
    return 1;
}

int CBootStrapData::SetAll(int method, const CGUIData<int>& samples, const CGUIData<int>& sampleSize,
                           const CGUIData<unsigned int>& seed)
{
    m_nMethod = method;
    m_Samples = samples;
    m_SampleSize = sampleSize;
    m_RandomSeed = seed;
    return 1;
}

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
    const CString samples = NumberText(m_Samples.m_Value);
    const CString size = m_SampleSize.m_Value > 0 ? u", " + NumberText(m_SampleSize.m_Value) : CString();
    CString clause;
    switch (m_nMethod) {
    case methodBootstrap: clause = u" SAMPLE = BOOT(" + samples + size + u")"; break;
    case methodJackknife: clause = u" SAMPLE = JACK"; break;
    default: clause = u" SAMPLE = SIMPLE(" + samples + size + u")"; break;
    }
    if (m_nMethod != methodJackknife && m_RandomSeed.m_Value != 0)
        clause += u" RSEED = " + NumberText(m_RandomSeed.m_Value);
    return clause;
}

void CBootStrapData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    if (ar.IsStoring())
        ar << m_nMethod << m_nContinuousType << m_nDeletionTypePairwise << m_nEMEstimation;
    else
        ar >> m_nMethod >> m_nContinuousType >> m_nDeletionTypePairwise >> m_nEMEstimation;
    m_Samples.Serialize(ar);
    m_SampleSize.Serialize(ar);
    m_RandomSeed.Serialize(ar);
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
