#include "private/Missing/KDGMissingEstimateDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CMissingEstimateDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CMissingEstimateDlg, CGUIBaseDlg)
    ON_CBN_SELCHANGE(CMissingEstimateDlg::IDC_METHOD_COMBO, &CMissingEstimateDlg::OnSelchangeMethod)
    ON_BN_CLICKED(IDC_RESET, &CMissingEstimateDlg::OnReset)
END_MESSAGE_MAP()

CMissingEstimateDlg::CMissingEstimateDlg(CWnd* parent) : CGUIPageDlg(IDD, parent) {}

BOOL CMissingEstimateDlg::OnInitDialog()
{
    for (const UINT id : {IDC_METHOD_COMBO, IDC_MATRIX_COMBO}) {
        if (CComboBox* combo = GetComboBoxWnd(id))
            CComboUtil::FillCombo(id, *combo, 0);
        else
            ReportAssertion(__LINE__);
    }
    CGUIPageDlg::OnInitDialog();
    UpdateDependentWindows();
    return TRUE;
}

bool CMissingEstimateDlg::IsEmChosen() const
{
    return CComboUtil::GetComboItem(CMissingEstimateData::kMethodCombo, GetComboCurSel(IDC_METHOD_COMBO), 0) ==
           CMissingEstimateData::kItemEm;
}

void CMissingEstimateDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate || !IsEmChosen())
        return;
    // The field's range is closed; EM needs a convergence inside it.
    const double convergence = m_Work.m_ConvergenceEdit.m_Value;
    DDX_ControlWarn(pDX, IDC_CONVERGENCE_EDIT,
                    convergence > 0 && convergence < 1 ? 0 : CMissingEstimateData::kMsgConvergence);
}

void CMissingEstimateDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool em = IsEmChosen();
    for (const UINT id :
         {IDC_ITERATIONS_LABEL, IDC_ITERATIONS_EDIT, IDC_CONVERGENCE_LABEL, IDC_CONVERGENCE_EDIT, IDC_MCAR_CHECK})
        EnableCtrl(id, em);
}

void CMissingEstimateDlg::OnSelchangeMethod()
{
    UpdateDependentWindows();
}

void CMissingEstimateDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    UpdateDependentWindows();
}
