#include "private/Regression/KDGLadregOptionsDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CLadregOptionsDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CLadregOptionsDlg, CGUIBaseDlg)
    ON_CBN_SELCHANGE(CLadregOptionsDlg::IDC_CI_COMBO, &CLadregOptionsDlg::OnRuleChange)
    ON_BN_CLICKED(CLadregOptionsDlg::IDC_SAVE_CHECK, &CLadregOptionsDlg::OnRuleChange)
END_MESSAGE_MAP()

CLadregOptionsDlg::CLadregOptionsDlg(CWnd* parent) : CGUIPageDlg(IDD, parent) {}

BOOL CLadregOptionsDlg::OnInitDialog()
{
    if (CComboBox* combo = GetComboBoxWnd(IDC_CI_COMBO))
        CComboUtil::FillCombo(CLadregOptionsData::kCiCombo, *combo, 0);
    else
        ReportAssertion(__LINE__);
    CGUIPageDlg::OnInitDialog();
    UpdateDependentWindows();
    return TRUE;
}

void CLadregOptionsDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    // The field's range closes both ends; the 0 and 1 quantiles have no fit.
    const double quantile = m_Work.m_QuantileEdit.m_Value;
    if (pDX->m_bSaveAndValidate)
        DDX_ControlWarn(pDX, IDC_QUANTILE_EDIT, quantile > 0 && quantile < 1 ? 0 : CLadregOptionsData::kMsgQuantile);
}

void CLadregOptionsDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool bootstrap = GetComboCurSel(IDC_CI_COMBO) == CLadregOptionsData::kBootstrapEntry;
    EnableCtrl(IDC_SAMPLES_LABEL, bootstrap);
    EnableCtrl(IDC_SAMPLES_EDIT, bootstrap);
    EnableCtrl(IDC_SAVE_EDIT, IsDlgButtonChecked(IDC_SAVE_CHECK));
}

void CLadregOptionsDlg::OnRuleChange()
{
    UpdateDependentWindows();
}
