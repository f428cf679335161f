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
    WarnOpenUnit(pDX, IDC_CONV_EDIT, m_Work.m_ConvEdit.m_Value, true);
    WarnOpenUnit(pDX, IDC_CONFI_EDIT, m_Work.m_ConfiEdit.m_Value, true);
}

void CMixedEstimationDlg::WarnOpenUnit(CDataExchange* pDX, UINT id, double value, bool inUse)
{
    const NumberRule rule{.whole = false, .bounded = true, .min = 0, .max = 1, .minOpen = true, .maxOpen = true};
    DDX_ControlWarn(pDX, id, inUse && !(value > 0 && value < 1) ? kMsgOutOfRange : 0, rule);
}
