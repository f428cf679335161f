#include "private/Regression/KDGLogitOptsDlg.h"

#include "framework/GUITabDlg.h"
#include "framework/ResourceUtil.h"
#include "private/Regression/KDGLogitSetsDlg.h"

IMPLEMENT_DYNAMIC(CLogitOptsDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CLogitOptsDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CLogitOptsDlg::IDC_COMPLETE, &CLogitOptsDlg::OnEstimationRadio)
    ON_BN_CLICKED(CLogitOptsDlg::IDC_STEPWISE, &CLogitOptsDlg::OnEstimationRadio)
END_MESSAGE_MAP()

BOOL CLogitOptsDlg::OnInitDialog()
{
    CRadioUtil::FillRadio(this, CLogitOptsData::kEstimationRadio);
    CRadioUtil::FillRadio(this, CLogitOptsData::kDirectionRadio);
    return CGUIBaseDlg::OnInitDialog();
}

bool CLogitOptsDlg::IsChoiceSetsInUse() const
{
    CGUITabDlg* tab = GetTabDlg();
    const auto* sets = tab ? tab->FindPage<CLogitSetsDlg>() : nullptr;
    return sets && sets->IsChoiceSetsChecked();
}

bool CLogitOptsDlg::IsStepwise() const
{
    return IsDlgButtonChecked(IDC_STEPWISE) && !IsChoiceSetsInUse();
}

void CLogitOptsDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    // The range includes 0, but a convergence of 0 is never reached.
    DDX_ControlWarn(pDX, IDC_CONVERGENCE,
                    IsCtrlInUse(IDC_CONVERGENCE) && m_Work.GetConvergence().m_Value <= 0 ? kMsgOutOfRange : 0,
                    NumberRule::Positive());
    // A term that may leave as soon as it entered would step forever.
    DDX_ControlWarn(
        pDX, IDC_REMOVE,
        IsCtrlInUse(IDC_REMOVE) && m_Work.GetRemove().m_Value < m_Work.GetEnter().m_Value ? kMsgRemoveBelowEnter : 0);
}

void CLogitOptsDlg::UpdateDependentWindows()
{
    CGUIBaseDlg::UpdateDependentWindows();
    const bool sets = IsChoiceSetsInUse();
    EnableCtrl(IDC_COMPLETE, !sets);
    EnableCtrl(IDC_STEPWISE, !sets);
    ShowCtrl(IDC_CHOICE_SETS_HINT, sets);
    const bool stepwise = IsStepwise();
    for (const UINT id : {IDC_DIRECTION_LABEL, IDC_BACKWARD, IDC_FORWARD, IDC_ENTER_LABEL, IDC_ENTER, IDC_REMOVE_LABEL,
                          IDC_REMOVE, IDC_FORCE_LABEL, IDC_FORCE, IDC_MAXSTEP_LABEL, IDC_MAXSTEP})
        EnableCtrl(id, stepwise);
}

void CLogitOptsDlg::OnEstimationRadio()
{
    UpdateDependentWindows();
}
