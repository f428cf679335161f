#include "private/Quality/KDGRunChartDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CRunChartDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CRunChartDlg, CGUIBaseDlg)
    ON_BN_CLICKED(IDC_RESET, &CRunChartDlg::OnReset)
END_MESSAGE_MAP()

BOOL CRunChartDlg::OnInitDialog()
{
    CQcGraphDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CRunChartData::kCenterRadio);
    return TRUE;
}
