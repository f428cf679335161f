#include "private/Survival/KDGSurvivalOptionsDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CSurvivalOptionsDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CSurvivalOptionsDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CSurvivalOptionsDlg::IDC_COX_RADIO, &CSurvivalOptionsDlg::OnRuleChange)
    ON_BN_CLICKED(CSurvivalOptionsDlg::IDC_PARAMETRIC_RADIO, &CSurvivalOptionsDlg::OnRuleChange)
    ON_BN_CLICKED(IDC_RESET, &CSurvivalOptionsDlg::OnReset)
END_MESSAGE_MAP()

CSurvivalOptionsDlg::CSurvivalOptionsDlg(CWnd* parent) : CGUIPageDlg(IDD, parent) {}

BOOL CSurvivalOptionsDlg::OnInitDialog()
{
    for (const UINT id : {IDC_TIES_COMBO, IDC_DISTRIBUTION_COMBO}) {
        if (CComboBox* combo = GetComboBoxWnd(id))
            CComboUtil::FillCombo(id, *combo, 0);
        else
            ReportAssertion(__LINE__);
    }
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CSurvivalOptionsData::kModelRadio);
    UpdateDependentWindows();
    return TRUE;
}

void CSurvivalOptionsDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, IDC_CONVERGENCE_EDIT,
                    RefuseUnlessInsideUnit(m_Work.m_ConvergenceEdit.m_Value, CSurvivalOptionsData::kMsgConvergence));
    DDX_ControlWarn(pDX, IDC_CONFIDENCE_EDIT,
                    RefuseUnlessInsideUnit(m_Work.m_ConfidenceEdit.m_Value, CSurvivalOptionsData::kMsgConfidence));
}

void CSurvivalOptionsDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool cox = IsDlgButtonChecked(IDC_COX_RADIO) != 0;
    EnableCtrl(IDC_TIES_LABEL, cox);
    EnableCtrl(IDC_TIES_COMBO, cox);
    EnableCtrl(IDC_DISTRIBUTION_LABEL, !cox);
    EnableCtrl(IDC_DISTRIBUTION_COMBO, !cox);
}

void CSurvivalOptionsDlg::OnRuleChange()
{
    UpdateDependentWindows();
}

void CSurvivalOptionsDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    UpdateDependentWindows();
}
