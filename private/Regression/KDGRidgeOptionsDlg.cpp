#include "private/Regression/KDGRidgeOptionsDlg.h"

#include "framework/ResourceUtil.h"

#include <cmath>

IMPLEMENT_DYNAMIC(CRidgeOptionsDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CRidgeOptionsDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CRidgeOptionsDlg::IDC_SINGLE_RADIO, &CRidgeOptionsDlg::OnRuleChange)
    ON_BN_CLICKED(CRidgeOptionsDlg::IDC_GRID_RADIO, &CRidgeOptionsDlg::OnRuleChange)
    ON_BN_CLICKED(CRidgeOptionsDlg::IDC_SAVE_CHECK, &CRidgeOptionsDlg::OnRuleChange)
END_MESSAGE_MAP()

CRidgeOptionsDlg::CRidgeOptionsDlg(CWnd* parent) : CGUIPageDlg(IDD, parent) {}

BOOL CRidgeOptionsDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CRidgeOptionsData::kConstantRadio);
    UpdateDependentWindows();
    return TRUE;
}

void CRidgeOptionsDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate || !IsGrid())
        return;
    const double from = m_Work.m_FromEdit.m_Value;
    const double to = m_Work.m_ToEdit.m_Value;
    const double step = m_Work.m_StepEdit.m_Value;
    DDX_ControlWarn(pDX, IDC_TO_EDIT, to > from ? 0 : kMsgGridOrder);
    // A little room for steps that do not divide the range exactly in binary.
    const bool tooMany = !(step > 0) || std::floor((to - from) / step + 1e-9) + 1 > CRidgeOptionsData::kMaxGridValues;
    DDX_ControlWarn(pDX, IDC_STEP_EDIT, tooMany ? kMsgGridStep : 0);
}

void CRidgeOptionsDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool grid = IsGrid();
    EnableCtrl(IDC_K_EDIT, !grid);
    for (const UINT id : {IDC_FROM_LABEL, IDC_FROM_EDIT, IDC_TO_LABEL, IDC_TO_EDIT, IDC_STEP_LABEL, IDC_STEP_EDIT})
        EnableCtrl(id, grid);
    EnableCtrl(IDC_SAVE_EDIT, IsDlgButtonChecked(IDC_SAVE_CHECK));
}

void CRidgeOptionsDlg::OnRuleChange()
{
    UpdateDependentWindows();
}
