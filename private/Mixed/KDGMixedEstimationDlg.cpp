#include "private/Mixed/KDGMixedEstimationDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CMixedEstimationDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CMixedEstimationDlg, CGUIBaseDlg)
    ON_BN_CLICKED(IDC_RESET, &CMixedEstimationDlg::OnReset)
END_MESSAGE_MAP()

BOOL CMixedEstimationDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CMixedEstimationData::kMethodRadio);
    return TRUE;
}

void CMixedEstimationDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, IDC_CONV_EDIT, OpenUnitProblem(m_Work.m_ConvEdit.m_Value));
    DDX_ControlWarn(pDX, IDC_CONFI_EDIT, OpenUnitProblem(m_Work.m_ConfiEdit.m_Value));
}
