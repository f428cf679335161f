#include "private/Regression/KDGNonLinSaveDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CNonLinSaveDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CNonLinSaveDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CNonLinSaveDlg::IDC_SAVE_CHECK, &CNonLinSaveDlg::OnSaveCheck)
    ON_BN_CLICKED(IDC_RESET, &CNonLinSaveDlg::OnReset)
END_MESSAGE_MAP()

BOOL CNonLinSaveDlg::OnInitDialog()
{
    if (CComboBox* combo = GetComboBoxWnd(IDC_SAVE_COMBO))
        CComboUtil::FillCombo(CNonLinSaveData::kSaveCombo, *combo, 0);
    else
        ReportAssertion(__LINE__);
    CGUIPageDlg::OnInitDialog();
    UpdateDependentWindows();
    return TRUE;
}

void CNonLinSaveDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool save = IsDlgButtonChecked(IDC_SAVE_CHECK) != 0;
    EnableCtrl(IDC_SAVE_COMBO, save);
    EnableCtrl(IDC_SAVE_EDIT, save);
}

void CNonLinSaveDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    UpdateDependentWindows();
}
