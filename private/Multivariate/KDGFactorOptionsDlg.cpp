#include "private/Multivariate/KDGFactorOptionsDlg.h"

#include "framework/GUITabDlg.h"
#include "framework/ResourceUtil.h"
#include "private/Multivariate/KDGFactorDlg.h"

IMPLEMENT_DYNAMIC(CFactorOptionsDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CFactorOptionsDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CFactorOptionsDlg::IDC_EIGEN_RADIO, &CFactorOptionsDlg::OnRuleChange)
    ON_BN_CLICKED(CFactorOptionsDlg::IDC_NUMBER_RADIO, &CFactorOptionsDlg::OnRuleChange)
    ON_BN_CLICKED(CFactorOptionsDlg::IDC_ROTATION_NONE, &CFactorOptionsDlg::OnRotationChange)
    ON_BN_CLICKED(CFactorOptionsDlg::IDC_OBLIMIN, &CFactorOptionsDlg::OnRotationChange)
    ON_BN_CLICKED(CFactorOptionsDlg::IDC_ORTHOMAX, &CFactorOptionsDlg::OnRotationChange)
    ON_BN_CLICKED(CFactorOptionsDlg::IDC_QUARTIMAX, &CFactorOptionsDlg::OnRotationChange)
    ON_BN_CLICKED(CFactorOptionsDlg::IDC_VARIMAX, &CFactorOptionsDlg::OnRotationChange)
    ON_BN_CLICKED(CFactorOptionsDlg::IDC_EQUAMAX, &CFactorOptionsDlg::OnRotationChange)
END_MESSAGE_MAP()

BOOL CFactorOptionsDlg::OnInitDialog()
{
    CRadioUtil::FillRadio(this, CFactorOptionsData::kCriterionRadio);
    CRadioUtil::FillRadio(this, CFactorOptionsData::kRotationRadio);
    CGUIPageDlg::OnInitDialog();
    UpdateDependentWindows();
    return TRUE;
}

UINT CFactorOptionsDlg::CheckedRotation() const
{
    for (const UINT id : {IDC_OBLIMIN, IDC_ORTHOMAX, IDC_QUARTIMAX, IDC_VARIMAX, IDC_EQUAMAX})
        if (IsDlgButtonChecked(id))
            return id;
    return IDC_ROTATION_NONE;
}

void CFactorOptionsDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    CFactorDlg* model = GetTabDlg() ? GetTabDlg()->FindPage<CFactorDlg>() : nullptr;
    if (model && IsCtrlInUse(IDC_NUMBER_EDIT))
        DDX_ControlWarn(pDX, IDC_NUMBER_EDIT,
                        m_Work.m_NumberEdit.m_Value > model->GetVariableCount() ? kMsgTooManyFactors : 0);
    if (CheckedRotation() == IDC_OBLIMIN)
        DDX_ControlWarn(pDX, IDC_GAMMA_EDIT,
                        m_Work.m_GammaEdit.m_Value > CFactorOptionsData::kMaxOblimin ? kMsgOutOfRange : 0,
                        NumberRule::Between(0, CFactorOptionsData::kMaxOblimin));
    if (IsCtrlInUse(IDC_CONV_EDIT))
        DDX_ControlWarn(pDX, IDC_CONV_EDIT, m_Work.m_ConvEdit.m_Value <= 0 ? kMsgOutOfRange : 0,
                        NumberRule::Positive());
}

void CFactorOptionsDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool number = IsDlgButtonChecked(IDC_NUMBER_RADIO) != 0;
    EnableCtrl(IDC_EIGEN_LABEL, !number);
    EnableCtrl(IDC_EIGEN_EDIT, !number);
    EnableCtrl(IDC_NUMBER_LABEL, number);
    EnableCtrl(IDC_NUMBER_EDIT, number);
    const UINT rotation = CheckedRotation();
    const bool parameter = CFactorOptionsData::HasParameter(rotation);
    EnableCtrl(IDC_GAMMA_LABEL, parameter);
    EnableCtrl(IDC_GAMMA_EDIT, parameter);
    CFactorDlg* model = GetTabDlg() ? GetTabDlg()->FindPage<CFactorDlg>() : nullptr;
    const bool iterations = rotation != IDC_ROTATION_NONE || (model && model->IsIterative());
    for (const UINT id : {IDC_ITER_LABEL, IDC_ITER_EDIT, IDC_CONV_LABEL, IDC_CONV_EDIT})
        EnableCtrl(id, iterations);
}

void CFactorOptionsDlg::OnRuleChange()
{
    UpdateDependentWindows();
}

void CFactorOptionsDlg::OnRotationChange()
{
    const UINT rotation = CheckedRotation();
    if (CFactorOptionsData::HasParameter(rotation))
        SetDlgItemText(IDC_GAMMA_EDIT, CGUIBaseObj::NumberText(CFactorOptionsData::UsualParameter(rotation)));
    UpdateDependentWindows();
}
