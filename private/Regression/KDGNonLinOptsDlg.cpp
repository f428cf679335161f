#include "private/Regression/KDGNonLinOptsDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CNonLinOptsDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CNonLinOptsDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CNonLinOptsDlg::IDC_GAUSS_RADIO, &CNonLinOptsDlg::OnMethod)
    ON_BN_CLICKED(CNonLinOptsDlg::IDC_MARQUARDT_RADIO, &CNonLinOptsDlg::OnMethod)
    ON_BN_CLICKED(CNonLinOptsDlg::IDC_QUASI_RADIO, &CNonLinOptsDlg::OnMethod)
    ON_BN_CLICKED(CNonLinOptsDlg::IDC_SIMPLEX_RADIO, &CNonLinOptsDlg::OnMethod)
    ON_BN_CLICKED(IDC_RESET, &CNonLinOptsDlg::OnReset)
END_MESSAGE_MAP()

BOOL CNonLinOptsDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CNonLinOptsData::kMethodRadio);
    UpdateDependentWindows();
    return TRUE;
}

void CNonLinOptsDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    // The iterations would never stop by a criterion of 0.
    if (pDX->m_bSaveAndValidate)
        DDX_ControlWarn(pDX, IDC_CONVERGENCE_EDIT, m_Work.m_ConvergenceEdit.m_Value > 0 ? 0 : kMsgOutOfRange,
                        NumberRule{false, true, 0, 1, true, false});
}

void CNonLinOptsDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const UINT method =
        CRadioUtil::GetRadioItem(CNonLinOptsData::kMethodRadio, IsDlgButtonChecked(IDC_MARQUARDT_RADIO) ? 1
                                                                : IsDlgButtonChecked(IDC_QUASI_RADIO)   ? 2
                                                                : IsDlgButtonChecked(IDC_SIMPLEX_RADIO) ? 3
                                                                                                        : 0);
    const bool halves = CNonLinOptsData::HalvesSteps(method);
    EnableCtrl(IDC_HALVINGS_LABEL, halves);
    EnableCtrl(IDC_HALVINGS_EDIT, halves);
}

void CNonLinOptsDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    UpdateDependentWindows();
}
