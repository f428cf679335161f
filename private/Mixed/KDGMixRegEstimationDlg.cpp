#include "private/Mixed/KDGMixRegEstimationDlg.h"

#include "framework/GUITabDlg.h"
#include "framework/ResourceUtil.h"
#include "private/Mixed/KDGMixRegModelDlg.h"
#include "private/Mixed/KDGMixedEstimationDlg.h"

IMPLEMENT_DYNAMIC(CMixRegEstimationDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CMixRegEstimationDlg, CGUIBaseDlg)
    ON_BN_CLICKED(IDC_RESET, &CMixRegEstimationDlg::OnReset)
END_MESSAGE_MAP()

BOOL CMixRegEstimationDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CMixRegEstimationData::kCovarianceRadio);
    UpdateDependentWindows();
    return TRUE;
}

void CMixRegEstimationDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (pDX->m_bSaveAndValidate)
        CMixedEstimationDlg::WarnOpenUnit(pDX, IDC_CONV_EDIT, m_Work.m_ConvEdit.m_Value, true);
}

void CMixRegEstimationDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    CGUITabDlg* tab = GetTabDlg();
    const auto* model = tab ? tab->FindPage<CMixRegModelDlg>() : nullptr;
    const bool integrates = model && model->IsNonLinearLink();
    for (const UINT id : {IDC_QUAD_LABEL, IDC_QUAD_EDIT, IDC_ADAPTIVE_CHECK})
        EnableCtrl(id, integrates);
}
