#include "private/Regression/KDGRobustOptionsDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CRobustOptionsDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CRobustOptionsDlg, CGUIBaseDlg)
    ON_CBN_SELCHANGE(CRobustOptionsDlg::IDC_FUNCTION_COMBO, &CRobustOptionsDlg::OnSelchangeFunction)
    ON_BN_CLICKED(CRobustOptionsDlg::IDC_SAVE_CHECK, &CRobustOptionsDlg::OnRuleChange)
END_MESSAGE_MAP()

CRobustOptionsDlg::CRobustOptionsDlg(CWnd* parent) : CGUIPageDlg(IDD, parent) {}

void CRobustOptionsDlg::FillCombo(UINT control, UINT list)
{
    if (CComboBox* combo = GetComboBoxWnd(control))
        CComboUtil::FillCombo(list, *combo, 0);
    else
        ReportAssertion(__LINE__);
}

BOOL CRobustOptionsDlg::OnInitDialog()
{
    FillCombo(IDC_FUNCTION_COMBO, CRobustOptionsData::kFunctionCombo);
    FillCombo(IDC_SCALE_COMBO, CRobustOptionsData::kScaleCombo);
    FillCombo(IDC_SAVE_COMBO, CRobustOptionsData::kSaveCombo);
    CGUIPageDlg::OnInitDialog();
    UpdateDependentWindows();
    return TRUE;
}

void CRobustOptionsDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    // The fields' ranges close the lower ends; these values must pass them.
    const auto aboveZero = [&](UINT control, double value, bool used) {
        DDX_ControlWarn(pDX, control, used && !(value > 0) ? CRobustOptionsData::kMsgAboveZero : 0);
    };
    const CRobustOptionsData& owner = Owner();
    aboveZero(IDC_BREAKDOWN_EDIT, m_Work.m_BreakdownEdit.m_Value, owner.UsesBreakdown());
    aboveZero(IDC_TUNING_EDIT, m_Work.m_TuningEdit.m_Value, owner.UsesWeightFunction());
    aboveZero(IDC_CONVERGENCE_EDIT, m_Work.m_ConvergenceEdit.m_Value, owner.UsesIterations());
}

void CRobustOptionsDlg::ShowBlock(std::initializer_list<UINT> controls, bool show)
{
    for (const UINT id : controls) {
        ShowCtrl(id, show);
        EnableCtrl(id, show);
    }
}

void CRobustOptionsDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const CRobustOptionsData& data = Owner();
    ShowBlock({IDC_COVERAGE_LABEL, IDC_COVERAGE_EDIT}, data.UsesCoverage());
    ShowBlock({IDC_BREAKDOWN_LABEL, IDC_BREAKDOWN_EDIT}, data.UsesBreakdown());
    ShowBlock({IDC_EFFICIENCY_LABEL, IDC_EFFICIENCY_EDIT}, data.UsesEfficiency());
    ShowBlock({IDC_SUBSAMPLES_LABEL, IDC_SUBSAMPLES_EDIT, IDC_SEED_LABEL, IDC_SEED_EDIT}, data.UsesSubsamples());
    ShowBlock(
        {IDC_FUNCTION_LABEL, IDC_FUNCTION_COMBO, IDC_TUNING_LABEL, IDC_TUNING_EDIT, IDC_SCALE_LABEL, IDC_SCALE_COMBO},
        data.UsesWeightFunction());
    ShowBlock({IDC_ITERATIONS_LABEL, IDC_ITERATIONS_EDIT, IDC_CONVERGENCE_LABEL, IDC_CONVERGENCE_EDIT},
              data.UsesIterations());
    const bool save = IsDlgButtonChecked(IDC_SAVE_CHECK) != 0;
    EnableCtrl(IDC_SAVE_COMBO, save);
    EnableCtrl(IDC_SAVE_EDIT, save);
}

void CRobustOptionsDlg::OnSelchangeFunction()
{
    const int function = GetComboCurSel(IDC_FUNCTION_COMBO);
    SetDlgItemText(IDC_TUNING_EDIT, CGUIBaseObj::NumberText(CRobustOptionsData::UsualTuningConstant(function)));
}

void CRobustOptionsDlg::OnRuleChange()
{
    UpdateDependentWindows();
}
