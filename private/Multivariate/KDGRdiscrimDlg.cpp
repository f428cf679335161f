#include "private/Multivariate/KDGRdiscrimDlg.h"

IMPLEMENT_DYNAMIC(CRdiscrimDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CRdiscrimDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CRdiscrimDlg::IDC_MCD, &CRdiscrimDlg::OnChoice)
    ON_BN_CLICKED(CRdiscrimDlg::IDC_S_ESTIMATE, &CRdiscrimDlg::OnChoice)
    ON_BN_CLICKED(CRdiscrimDlg::IDC_PRIORS_EQUAL, &CRdiscrimDlg::OnChoice)
    ON_BN_CLICKED(CRdiscrimDlg::IDC_PRIORS_SAMPLE, &CRdiscrimDlg::OnChoice)
    ON_BN_CLICKED(CRdiscrimDlg::IDC_PRIORS_TYPED, &CRdiscrimDlg::OnChoice)
    ON_BN_CLICKED(CRdiscrimDlg::IDC_SAVE_CHECK, &CRdiscrimDlg::OnChoice)
    ON_BN_CLICKED(IDC_RESET, &CRdiscrimDlg::OnReset)
END_MESSAGE_MAP()

void CRdiscrimDlg::UpdateDependentWindows()
{
    CDiscrimRolesDlg::UpdateDependentWindows();
    const bool mcd = IsDlgButtonChecked(IDC_MCD) != 0;
    EnableCtrl(IDC_TRIM_LABEL, mcd);
    EnableCtrl(IDC_TRIM_EDIT, mcd);
    EnableCtrl(IDC_BREAKDOWN_LABEL, !mcd);
    EnableCtrl(IDC_BREAKDOWN_EDIT, !mcd);
}
