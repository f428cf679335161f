#include "private/Multivariate/KDGTreesOptionsDlg.h"

#include "framework/GUITabDlg.h"
#include "framework/ResourceUtil.h"
#include "private/Multivariate/KDGTreesDlg.h"

IMPLEMENT_DYNAMIC(CTreesOptionsDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CTreesOptionsDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CTreesOptionsDlg::IDC_PRUNE_CHECK, &CTreesOptionsDlg::OnRuleChange)
END_MESSAGE_MAP()

BOOL CTreesOptionsDlg::OnInitDialog()
{
    for (const auto& [control, list] :
         {std::pair{IDC_CLASS_SPLIT_COMBO, CTreesOptionsData::kClassSplitList},
          std::pair{IDC_REGRESSION_SPLIT_COMBO, CTreesOptionsData::kRegressionSplitList}}) {
        if (CComboBox* combo = GetComboBoxWnd(control))
            CComboUtil::FillCombo(list, *combo, 0);
        else
            ReportAssertion(__LINE__);
    }
    CGUIPageDlg::OnInitDialog();
    UpdateDependentWindows();
    return TRUE;
}

void CTreesOptionsDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const CTreesDlg* model = GetTabDlg() ? GetTabDlg()->FindPage<CTreesDlg>() : nullptr;
    const bool classification = !model || model->IsClassification();
    EnableCtrl(IDC_CLASS_SPLIT_LABEL, classification);
    EnableCtrl(IDC_CLASS_SPLIT_COMBO, classification);
    EnableCtrl(IDC_REGRESSION_SPLIT_LABEL, !classification);
    EnableCtrl(IDC_REGRESSION_SPLIT_COMBO, !classification);
    const bool prune = IsDlgButtonChecked(IDC_PRUNE_CHECK) != 0;
    EnableCtrl(IDC_FOLDS_LABEL, prune);
    EnableCtrl(IDC_FOLDS_EDIT, prune);
}

void CTreesOptionsDlg::OnRuleChange()
{
    UpdateDependentWindows();
}
