// CBootStrapData: the resampling page that several tab dialogs end with.
// The user picks a method (none, bootstrap, jackknife, subsampling), the
// number of samples, a sample size (0: as many cases as the data) and a
// random seed (0: a new seed each run). Pages of the analysis tell it what
// the analysis is when the user confirms; the methods the analysis cannot
// use are not offered and write nothing.
//
// Its clause joins the "ESTIMATE" line, the way the options page's does:
//   " SAMPLE = BOOT(n[, m])", " SAMPLE = JACK", " SAMPLE = SIMPLE(n[, m])",
//   then " RSEED = s" for a fixed seed. No resampling writes nothing.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/shared.h"

#include <climits>

class CBootStrapData : public CGUIBaseObj {
    DECLARE_SERIAL(CBootStrapData)
public:
    enum Method { methodNone = 0, methodBootstrap = 1, methodJackknife = 2, methodSubsampling = 3 };

    CBootStrapData() { kal::ResetFields(*this); }

    static int GetDefaultMethodRadio() { return methodNone; }
    static CGUIData<int> GetDefaultSamplesEdit() { return CGUIData<int>(1000); }
    static CGUIData<int> GetDefaultSampleSizeEdit() { return CGUIData<int>(0); }
    static CGUIData<unsigned int> GetDefaultRandomSeedEdit() { return CGUIData<unsigned int>(0u); }

    int GetAll(int& method, CGUIData<int>& samples, CGUIData<int>& sampleSize, CGUIData<unsigned int>& seed) const
    {
        return kal::CopyFieldsOut(*this, method, samples, sampleSize, seed);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int method, const CGUIData<int>& samples, const CGUIData<int>& sampleSize,
               const CGUIData<unsigned int>& seed)
    {
        return kal::CopyFieldsIn(*this, method, samples, sampleSize, seed);
    }

    // What the analysis is: continuous dependent variables (jackknife needs
    // them), pairwise deletion of missing values (no subsampling: every
    // pair has its own cases), EM estimation (bootstrap only).
    void SetContinuousType(int continuous) { m_nContinuousType = continuous; }
    void SetDeletionTypePairwise(int pairwise) { m_nDeletionTypePairwise = pairwise; }
    void SetEMEstimation(int em) { m_nEMEstimation = em; }
    int GetContinuousType() const { return m_nContinuousType; }
    int GetDeletionTypePairwise() const { return m_nDeletionTypePairwise; }
    int GetEMEstimation() const { return m_nEMEstimation; }
    bool IsMethodAvailable(int method) const;

    // The clause alone (empty when nothing is to be written).
    CString GetClause() const;

    void Serialize(CArchive& ar) override;
    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void ReassignDefaultValue() override {}

    // The page's controls (template 5400); the counts are checked while
    // their edits are in use.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CBootStrapData>;
        using Ids = CBootStrapDlgIds;
        return std::tuple{
            F::Value(&CBootStrapData::m_nMethod, Ids::IDC_METHOD_NONE, &GetDefaultMethodRadio),
            F::Value(&CBootStrapData::m_Samples, Ids::IDC_SAMPLES, &GetDefaultSamplesEdit).Range(1, INT_MAX),
            F::Value(&CBootStrapData::m_SampleSize, Ids::IDC_SAMPLE_SIZE, &GetDefaultSampleSizeEdit).Range(0, INT_MAX),
            F::Value(&CBootStrapData::m_RandomSeed, Ids::IDC_RANDOM_SEED, &GetDefaultRandomSeedEdit),
        };
    }

private:
    int m_nMethod;
    int m_nContinuousType = 1;
    int m_nDeletionTypePairwise = 0;
    int m_nEMEstimation = 0;
    CGUIData<int> m_Samples;
    CGUIData<int> m_SampleSize;
    CGUIData<unsigned int> m_RandomSeed;
};

// Attaches `clause` to the line that begins with "ESTIMATE": a "/" goes in
// front when the line has none yet. Nothing happens without such a line or
// with an empty clause unless bAlways is set.
void AttachToEstimateLine(CLIST<CCmdInfo>& list, const CString& clause, bool bAlways);
