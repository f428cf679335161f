#include "private/Multivariate/KDGJoinOptionsDlg.h"

#include "framework/GUITabDlg.h"
#include "private/Multivariate/KDGJoinDlg.h"
#include "private/Multivariate/KDGMultivarLists.h"

IMPLEMENT_DYNAMIC(CJoinOptionsDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CJoinOptionsDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CJoinOptionsDlg::IDC_SAVE_CHECK, &CJoinOptionsDlg::OnRuleChange)
END_MESSAGE_MAP()

void CJoinOptionsDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate || !IsCtrlInUse(IDC_NUMBER_EDIT))
        return;
    const int cases = kal::multivariate::CaseCount();
    DDX_ControlWarn(pDX, IDC_NUMBER_EDIT, cases >= 0 && m_Work.m_NumberEdit.m_Value > cases ? kMsgTooManyClusters : 0);
}

void CJoinOptionsDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const CJoinDlg* join = GetTabDlg() ? GetTabDlg()->FindPage<CJoinDlg>() : nullptr;
    const bool cases = !join || join->JoinsCases();
    EnableCtrl(IDC_SAVE_CHECK, cases);
    const bool save = cases && IsDlgButtonChecked(IDC_SAVE_CHECK);
    for (const UINT id : {IDC_NUMBER_LABEL, IDC_NUMBER_EDIT, IDC_FILE_LABEL, IDC_SAVE_EDIT})
        EnableCtrl(id, save);
}

void CJoinOptionsDlg::OnRuleChange()
{
    UpdateDependentWindows();
}
