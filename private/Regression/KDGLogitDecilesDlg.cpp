#include "private/Regression/KDGLogitDecilesDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CLogitDecilesDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CLogitDecilesDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CLogitDecilesDlg::IDC_DECILES, &CLogitDecilesDlg::OnDecilesCheck)
END_MESSAGE_MAP()

BOOL CLogitDecilesDlg::OnInitDialog()
{
    CRadioUtil::FillRadio(this, CLogitDecilesData::kGroupingRadio);
    return CGUIBaseDlg::OnInitDialog();
}

void CLogitDecilesDlg::UpdateDependentWindows()
{
    CGUIBaseDlg::UpdateDependentWindows();
    OnDecilesCheck();
}

void CLogitDecilesDlg::OnDecilesCheck()
{
    const bool deciles = IsDlgButtonChecked(IDC_DECILES) != 0;
    for (const UINT id : {IDC_GROUPING_GROUP, IDC_EQUAL_COUNTS, IDC_EQUAL_WIDTHS, IDC_GROUPS_LABEL, IDC_GROUPS})
        EnableCtrl(id, deciles);
}
