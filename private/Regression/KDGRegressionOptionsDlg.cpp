#include "private/Regression/KDGRegressionOptionsDlg.h"

#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CRegressionOptionsDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CRegressionOptionsDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CRegressionOptionsDlg::IDC_COMPLETE, &CRegressionOptionsDlg::OnCompleteEstimationRadio)
    ON_BN_CLICKED(CRegressionOptionsDlg::IDC_STEPWISE, &CRegressionOptionsDlg::OnCompleteEstimationRadio)
    ON_BN_CLICKED(CRegressionOptionsDlg::IDC_PROBABILITY, &CRegressionOptionsDlg::OnProbabilityRadio)
    ON_BN_CLICKED(CRegressionOptionsDlg::IDC_FSTATISTIC, &CRegressionOptionsDlg::OnProbabilityRadio)
    ON_BN_CLICKED(CRegressionOptionsDlg::IDC_MIXTURE, &CRegressionOptionsDlg::OnMixtureModelCheck)
END_MESSAGE_MAP()

BOOL CRegressionOptionsDlg::OnInitDialog()
{
    CGUIBaseDlg::OnInitDialog();
    for (const UINT group : {CRegressionOptionsData::kEstimationRadio, CRegressionOptionsData::kDirectionRadio,
                             CRegressionOptionsData::kSteppingRadio, CRegressionOptionsData::kCriterionRadio})
        CRadioUtil::FillRadio(this, group);
    return TRUE;
}

bool CRegressionOptionsDlg::IsMixtureAvailable(bool complete) const
{
    return complete && kal::framework::IsOrdinaryData() &&
           GetDlgCaptionID() != CRegressionOptionsData::kOwnerDiscriminant;
}

bool CRegressionOptionsDlg::IsStepwiseAvailable() const
{
    return !(m_bQuadraticModel && GetDlgCaptionID() == CRegressionOptionsData::kOwnerDiscriminant);
}

void CRegressionOptionsDlg::OnDiscrimQuadraticCheckChange(bool quadratic)
{
    m_bQuadraticModel = quadratic;
    if (!IsCreated())
        return;
    if (!IsStepwiseAvailable() && IsDlgButtonChecked(IDC_STEPWISE)) {
        // The two buttons alone: the ids between them belong to other groups.
        CheckDlgButton(IDC_STEPWISE, BST_UNCHECKED);
        CheckDlgButton(IDC_COMPLETE, BST_CHECKED);
    }
    UpdateDependentWindows();
}

BOOL CRegressionOptionsDlg::IsMixtureChecked() const
{
    if (IsCreated())
        return IsDlgButtonChecked(IDC_MIXTURE) && IsCtrlEnabled(IDC_MIXTURE);
    return m_pData && m_pData->GetMixtureModelCheck() && IsMixtureAvailable(m_pData->IsCompleteRadioChecked());
}

BOOL CRegressionOptionsDlg::IsCompeteRadioChecked() const
{
    if (IsCreated())
        return IsDlgButtonChecked(IDC_COMPLETE) != 0;
    return !m_pData || m_pData->IsCompleteRadioChecked();
}

void CRegressionOptionsDlg::UpdateDependentWindows()
{
    CGUIBaseDlg::UpdateDependentWindows();
    const bool stepwise = IsDlgButtonChecked(IDC_STEPWISE) != 0;
    for (const UINT id : {IDC_STEPWISE_GROUP, IDC_DIRECTION_LABEL, IDC_BACKWARD, IDC_FORWARD, IDC_STEPPING_LABEL,
                          IDC_AUTOMATIC, IDC_INTERACTIVE, IDC_CRITERION_LABEL, IDC_PROBABILITY, IDC_FSTATISTIC,
                          IDC_FORCE_LABEL, IDC_FORCE, IDC_MAXSTEP_LABEL, IDC_MAXSTEP})
        EnableCtrl(id, stepwise);
    OnProbabilityRadio();
    EnableCtrl(IDC_MIXTURE, IsMixtureAvailable(!stepwise));
    EnableCtrl(IDC_STEPWISE, IsStepwiseAvailable());
    // The discriminant analysis writes no confidence.
    const bool confidence = GetDlgCaptionID() != CRegressionOptionsData::kOwnerDiscriminant;
    EnableCtrl(IDC_CONFIDENCE_LABEL, confidence);
    EnableCtrl(IDC_CONFIDENCE, confidence);
}

void CRegressionOptionsDlg::OnCompleteEstimationRadio()
{
    UpdateDependentWindows();
    // The other pages follow the method (and the mixture check it enables).
    NotifyTab();
}

void CRegressionOptionsDlg::OnProbabilityRadio()
{
    const bool stepwise = IsDlgButtonChecked(IDC_STEPWISE) != 0;
    const bool probability = IsDlgButtonChecked(IDC_PROBABILITY) != 0;
    for (const UINT id :
         {IDC_PROBABILITY_ENTER_LABEL, IDC_PROBABILITY_ENTER, IDC_PROBABILITY_REMOVE_LABEL, IDC_PROBABILITY_REMOVE})
        EnableCtrl(id, stepwise && probability);
    for (const UINT id : {IDC_FENTER_LABEL, IDC_FENTER, IDC_FREMOVE_LABEL, IDC_FREMOVE})
        EnableCtrl(id, stepwise && !probability);
}

void CRegressionOptionsDlg::OnMixtureModelCheck()
{
    NotifyTab();
}

int CRegressionOptionsDlg::GetAllDefault()
{
    CGUIPageDlg::GetAllDefault();
    m_Work.SetOwnerID(GetDlgCaptionID());
    m_Work.ReassignDefaultValue();
    return 1;
}

void CRegressionOptionsDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    NotifyTab();
}

int CRegressionOptionsDlg::OKLike()
{
    const int result = CGUIPageDlg::OKLike();
    if (result && m_pData) {
        const BOOL enabled = IsCtrlEnabled(IDC_MIXTURE);
        m_pData->SetMixtureModelState(enabled ? 1 : 0, enabled && IsDlgButtonChecked(IDC_MIXTURE) ? 1 : 0);
    }
    return result;
}
