#include "private/Multivariate/KDGCoranOptionsDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CCoranOptionsDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CCoranOptionsDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CCoranOptionsDlg::IDC_SAVE_CHECK, &CCoranOptionsDlg::OnRuleChange)
END_MESSAGE_MAP()

BOOL CCoranOptionsDlg::OnInitDialog()
{
    if (CComboBox* combo = GetComboBoxWnd(IDC_NORMALIZATION_COMBO))
        CComboUtil::FillCombo(CCoranOptionsData::kNormalizationList, *combo, 0);
    else
        ReportAssertion(__LINE__);
    CGUIPageDlg::OnInitDialog();
    UpdateDependentWindows();
    return TRUE;
}

void CCoranOptionsDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    EnableCtrl(IDC_SAVE_EDIT, IsDlgButtonChecked(IDC_SAVE_CHECK));
}

void CCoranOptionsDlg::OnRuleChange()
{
    UpdateDependentWindows();
}
