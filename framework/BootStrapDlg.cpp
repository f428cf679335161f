#include "framework/BootStrapDlg.h"

IMPLEMENT_DYNAMIC(CBootStrapDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CBootStrapDlg, CGUIBaseDlg)
    ON_COMMAND_RANGE(CBootStrapDlg::IDC_METHOD_NONE, CBootStrapDlg::IDC_METHOD_SUBSAMPLING,
                     &CBootStrapDlg::OnMethodRadio)
END_MESSAGE_MAP()

void CBootStrapDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
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
