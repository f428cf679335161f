#include "private/Regression/KDGRegressionPredictDlg.h"

#include "framework/GUITabDlg.h"
#include "framework/ResourceUtil.h"
#include "private/Regression/KDGRegressionOptionsDlg.h"

IMPLEMENT_DYNAMIC(CRegressionPredictDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CRegressionPredictDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CRegressionPredictDlg::IDC_PREDICT, &CRegressionPredictDlg::OnPredictCheck)
    ON_BN_CLICKED(CRegressionPredictDlg::IDC_SAVE_CHECK, &CRegressionPredictDlg::OnSaveCheck)
    ON_CBN_SELCHANGE(CRegressionPredictDlg::IDC_SAVE_COMBO, &CRegressionPredictDlg::OnSelchangeSaveCombo)
    ON_EN_CHANGE(CRegressionPredictDlg::IDC_USE_EDIT, &CRegressionPredictDlg::OnChangeUseEdit)
    ON_EN_CHANGE(CRegressionPredictDlg::IDC_SAVE_EDIT, &CRegressionPredictDlg::OnChangeSaveEdit)
END_MESSAGE_MAP()

BOOL CRegressionPredictDlg::OnInitDialog()
{
    FillComboSaveCombo();
    return CGUIBaseDlg::OnInitDialog();
}

void CRegressionPredictDlg::AddToolTips()
{
    CGUIBaseDlg::AddToolTips();
    ShowFileTip(IDC_USE_EDIT);
    ShowFileTip(IDC_SAVE_EDIT);
}

void CRegressionPredictDlg::FillComboSaveCombo()
{
    CComboBox* combo = GetComboBoxWnd(IDC_SAVE_COMBO);
    if (!combo) {
        ReportAssertion(__LINE__);
        return;
    }
    CComboUtil::FillCombo(CRegressionPredictData::kSaveCombo, *combo, 0);
}

BOOL CRegressionPredictDlg::IsWindowEnabled()
{
    CGUITabDlg* tab = GetTabDlg();
    const auto* options = tab ? tab->FindPage<CRegressionOptionsDlg>() : nullptr;
    return !options || options->IsCompeteRadioChecked();
}

void CRegressionPredictDlg::UpdateDependentWindows()
{
    CGUIBaseDlg::UpdateDependentWindows();
    // The hint says why the page is grey, so it shows only while it is.
    ShowCtrl(IDC_COMPLETE_HINT, !IsWindowEnabled());
    OnPredictCheck();
}

void CRegressionPredictDlg::OnPredictCheck()
{
    const bool predict = IsDlgButtonChecked(IDC_PREDICT) != 0;
    for (const UINT id : {IDC_USE_LABEL, IDC_USE_EDIT, IDC_CONFIDENCE_LABEL, IDC_CONFIDENCE, IDC_SAVE_CHECK})
        EnableCtrl(id, predict);
    OnSaveCheck();
}

void CRegressionPredictDlg::OnSaveCheck()
{
    const bool save = IsDlgButtonChecked(IDC_PREDICT) && IsDlgButtonChecked(IDC_SAVE_CHECK);
    EnableCtrl(IDC_SAVE_COMBO, save);
    EnableCtrl(IDC_SAVE_EDIT, save);
}

void CRegressionPredictDlg::OnSelchangeSaveCombo()
{
    if (GetComboCurSel(IDC_SAVE_COMBO) == -1)
        ReportAssertion(__LINE__);
}

void CRegressionPredictDlg::OnChangeUseEdit()
{
    ShowFileTip(IDC_USE_EDIT);
}

void CRegressionPredictDlg::OnChangeSaveEdit()
{
    ShowFileTip(IDC_SAVE_EDIT);
}

void CRegressionPredictDlg::ShowFileTip(UINT id)
{
    const CWnd* edit = GetDlgItem(id);
    const CString name = GetDlgItemText(id);
    const CString tip = !name.IsEmpty() || !edit || !edit->GetTemplate() ? name : edit->GetTemplate()->tip;
    UpdateToolTipText(id, tip, 1);
}
