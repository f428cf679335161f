#include "private/Multivariate/KDGCorrOptionsDlg.h"

#include "framework/BootStrapDlg.h"
#include "framework/GUITabDlg.h"
#include "framework/ResourceUtil.h"
#include "private/Multivariate/KDGCorrelationsDlg.h"

IMPLEMENT_DYNAMIC(CCorrOptionsDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CCorrOptionsDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CCorrOptionsDlg::IDC_PROBABILITIES, &CCorrOptionsDlg::OnCheckOrRadio)
    ON_BN_CLICKED(CCorrOptionsDlg::IDC_NORMAL, &CCorrOptionsDlg::OnCheckOrRadio)
    ON_BN_CLICKED(CCorrOptionsDlg::IDC_T, &CCorrOptionsDlg::OnCheckOrRadio)
    ON_BN_CLICKED(CCorrOptionsDlg::IDC_EM, &CCorrOptionsDlg::OnEstimationChange)
    ON_BN_CLICKED(CCorrOptionsDlg::IDC_HADI, &CCorrOptionsDlg::OnEstimationChange)
END_MESSAGE_MAP()

BOOL CCorrOptionsDlg::OnInitDialog()
{
    CRadioUtil::FillRadio(this, IDC_BONFERRONI);
    CRadioUtil::FillRadio(this, IDC_DISTRIBUTION_GROUP);
    return CGUIBaseDlg::OnInitDialog();
}

void CCorrOptionsDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    // The ranges include 0; a convergence or tolerance of 0 is never met.
    const auto aboveZero = [&](UINT id, const CGUIData<double>& value) {
        DDX_ControlWarn(pDX, id, IsCtrlEnabled(id) && value.m_Value <= 0 ? kMsgOutOfRange : 0, NumberRule::Positive());
    };
    aboveZero(IDC_CONVERGENCE, m_Work.GetConvergenceEdit());
    aboveZero(IDC_TOLERANCE, m_Work.GetToleranceEdit());
}

bool CCorrOptionsDlg::IsInUse()
{
    CGUITabDlg* tab = GetTabDlg();
    return !tab || tab->GetUnavailableReason(*this).IsEmpty();
}

void CCorrOptionsDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();

    // Probabilities are those of the Pearson correlation: the first page's
    // continuous measure decides, whatever its data type.
    CGUITabDlg* tab = GetTabDlg();
    const CCorrelationsDlg* correlations = tab ? tab->FindPage<CCorrelationsDlg>() : nullptr;
    const int measure = correlations ? correlations->GetComboCurSel(CCorrelationsDlg::IDC_CONTINUOUS_COMBO) : -1;
    if (measure == -1) {
        ReportAssertion(562);
        return;
    }
    EnableCtrl(IDC_PROBABILITIES, CComboUtil::GetComboItem(CCorrelationsDlg::IDC_CONTINUOUS_COMBO, measure, 0) ==
                                      CCorrOptionsData::kPearsonItem);

    // EM and Hadi exclude each other.
    EnableCtrl(IDC_HADI, !IsOn(IDC_EM));
    EnableCtrl(IDC_EM, !IsOn(IDC_HADI));

    const bool probabilities = IsOn(IDC_PROBABILITIES);
    for (const UINT id : {IDC_BONFERRONI, IDC_DUNN_SIDAK, IDC_UNADJUSTED})
        EnableCtrl(id, probabilities);

    const bool em = IsOn(IDC_EM);
    for (const UINT id : {IDC_NORMAL, IDC_DISTRIBUTION_GROUP, IDC_T, IDC_ITERATIONS, IDC_CONVERGENCE,
                          IDC_ITERATIONS_LABEL, IDC_CONVERGENCE_LABEL})
        EnableCtrl(id, em);

    const bool normal = IsOn(IDC_NORMAL);
    for (const UINT id : {IDC_NORMAL_FIRST, IDC_NORMAL_FIRST_LABEL, IDC_NORMAL_SECOND, IDC_NORMAL_SECOND_LABEL})
        EnableCtrl(id, normal);

    const bool t = IsOn(IDC_T);
    for (const UINT id : {IDC_DF, IDC_DF_LABEL})
        EnableCtrl(id, t);

    const bool hadi = IsOn(IDC_HADI);
    for (const UINT id : {IDC_TOLERANCE, IDC_TOLERANCE_LABEL})
        EnableCtrl(id, hadi);
}

void CCorrOptionsDlg::OnCheckOrRadio()
{
    UpdateDependentWindows();
}

void CCorrOptionsDlg::OnEstimationChange()
{
    // The first page offers the deletion choice only without EM and Hadi.
    UpdateDependentWindows();
    NotifyTab();
}

void CCorrOptionsDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    NotifyTab();
}

int CCorrOptionsDlg::OKLike()
{
    CGUITabDlg* tab = GetTabDlg();
    // A page out of use keeps its last settings: its entries can neither
    // be seen nor corrected now, and it writes nothing.
    const bool inUse = IsInUse();
    const int result = inUse ? CGUIPageDlg::OKLike() : 1;
    if (!tab) {
        ReportAssertion(625);
        return result;
    }
    if (CBootStrapDlg* resampling = tab->FindPage<CBootStrapDlg>()) {
        CBootStrapData* settings = nullptr;
        resampling->GetData(settings);
        if (settings)
            settings->SetEMEstimation(inUse && IsDlgButtonChecked(IDC_EM));
    }
    return result;
}
