#include "private/ResponseSurface/KDGRsmEstimateDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CRsmEstimateDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CRsmEstimateDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CRsmEstimateDlg::IDC_LINEAR_RADIO, &CRsmEstimateDlg::OnRuleChange)
    ON_BN_CLICKED(CRsmEstimateDlg::IDC_INTERACTION_RADIO, &CRsmEstimateDlg::OnRuleChange)
    ON_BN_CLICKED(CRsmEstimateDlg::IDC_QUADRATIC_RADIO, &CRsmEstimateDlg::OnRuleChange)
    ON_BN_CLICKED(IDC_RESET, &CRsmEstimateDlg::OnReset)
END_MESSAGE_MAP()

CRsmEstimateDlg::CRsmEstimateDlg(CWnd* parent) : CGUIPageDlg(IDD, parent) {}

BOOL CRsmEstimateDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CRsmEstimateData::kOrderRadio);
    UpdateDependentWindows();
    return TRUE;
}

void CRsmEstimateDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    const double confidence = m_Work.m_ConfidenceEdit.m_Value;
    DDX_ControlWarn(pDX, IDC_CONFIDENCE_EDIT, confidence > 0 && confidence < 1 ? 0 : CRsmEstimateData::kMsgConfidence);
}

void CRsmEstimateDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    EnableCtrl(IDC_CANONICAL_CHECK, IsDlgButtonChecked(IDC_QUADRATIC_RADIO) != 0);
}

void CRsmEstimateDlg::OnRuleChange()
{
    UpdateDependentWindows();
}

void CRsmEstimateDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    UpdateDependentWindows();
}
