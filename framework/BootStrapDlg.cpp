#include "framework/BootStrapDlg.h"

#include <climits>

IMPLEMENT_DYNAMIC(CBootStrapDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CBootStrapDlg, CGUIBaseDlg)
    ON_COMMAND_RANGE(CBootStrapDlg::IDC_METHOD_NONE, CBootStrapDlg::IDC_METHOD_SUBSAMPLING, &CBootStrapDlg::OnMethodRadio)
END_MESSAGE_MAP()

CBootStrapDlg::CBootStrapDlg(CWnd* parent) : CGUIDataDlg(IDD, parent) {}

int CBootStrapDlg::GetAll()
{
    return m_pData ? m_pData->GetAll(m_nMethod, m_Samples, m_SampleSize, m_RandomSeed) : 0;
}

int CBootStrapDlg::SetAll()
{
    return m_pData ? m_pData->SetAll(m_nMethod, m_Samples, m_SampleSize, m_RandomSeed) : 0;
}

int CBootStrapDlg::GetAllDefault()
{
    m_nMethod = CBootStrapData::GetDefaultMethodRadio();
    m_Samples = CBootStrapData::GetDefaultSamplesEdit();
    m_SampleSize = CBootStrapData::GetDefaultSampleSizeEdit();
    m_RandomSeed = CBootStrapData::GetDefaultRandomSeedEdit();
    return 1;
}

int CBootStrapDlg::SetAllDefault()
{
    if (m_pData)
        *m_pData = CBootStrapData();
    return 1;
}

void CBootStrapDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIBaseDlg::DoDataExchange(pDX);
    DDX_Radio(pDX, IDC_METHOD_NONE, m_nMethod);
    DDX_KVText(pDX, IDC_SAMPLES, m_Samples, kMsgNotWhole);
    DDX_KVText(pDX, IDC_SAMPLE_SIZE, m_SampleSize, kMsgNotWhole);
    DDX_KVText(pDX, IDC_RANDOM_SEED, m_RandomSeed, kMsgNotWhole);
    if (m_nMethod != CBootStrapData::methodNone && m_nMethod != CBootStrapData::methodJackknife) {
        DDV_MinMaxInt(pDX, m_Samples, 1, INT_MAX, kMsgOutOfRange);
        DDV_MinMaxInt(pDX, m_SampleSize, 0, INT_MAX, kMsgOutOfRange);
    }
}

void CBootStrapDlg::UpdateDependentWindows()
{
    const UINT methods[] = {IDC_METHOD_NONE, IDC_METHOD_BOOTSTRAP, IDC_METHOD_JACKKNIFE, IDC_METHOD_SUBSAMPLING};
    int checked = 0;
    for (int i = 0; i < 4; ++i) {
        EnableCtrl(methods[i], !m_pData || m_pData->IsMethodAvailable(i));
        if (IsDlgButtonChecked(methods[i]))
            checked = i;
    }
    // Jackknife leaves out one case at a time: no count, size or seed.
    const bool random = checked == CBootStrapData::methodBootstrap || checked == CBootStrapData::methodSubsampling;
    EnableCtrl(IDC_SAMPLES, random);
    EnableCtrl(IDC_SAMPLE_SIZE, random);
    EnableCtrl(IDC_RANDOM_SEED, random);
}

void CBootStrapDlg::OnMethodRadio()
{
    UpdateDependentWindows();
}
