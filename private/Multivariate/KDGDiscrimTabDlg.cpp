#include "private/Multivariate/KDGDiscrimTabDlg.h"

IMPLEMENT_DYNAMIC(CDiscrimDlg, CGUIBaseDlg)
IMPLEMENT_DYNAMIC(CDiscrimTabDlg, CGUITabDlg)

BEGIN_MESSAGE_MAP(CDiscrimDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CDiscrimDlg::IDC_QUADRATIC, &CDiscrimDlg::OnQuadraticCheck)
    ON_BN_CLICKED(CDiscrimDlg::IDC_PRIORS_EQUAL, &CDiscrimDlg::OnChoice)
    ON_BN_CLICKED(CDiscrimDlg::IDC_PRIORS_SAMPLE, &CDiscrimDlg::OnChoice)
    ON_BN_CLICKED(CDiscrimDlg::IDC_PRIORS_TYPED, &CDiscrimDlg::OnChoice)
    ON_BN_CLICKED(CDiscrimDlg::IDC_SAVE_CHECK, &CDiscrimDlg::OnChoice)
    ON_BN_CLICKED(IDC_RESET, &CDiscrimDlg::OnReset)
END_MESSAGE_MAP()

bool CDiscrimDlg::IsQuadraticChecked() const
{
    if (IsCreated())
        return IsDlgButtonChecked(IDC_QUADRATIC) != 0;
    return m_pData && m_pData->IsQuadratic();
}

void CDiscrimDlg::OnQuadraticCheck()
{
    if (auto* tab = dynamic_cast<CDiscrimTabDlg*>(GetTabDlg()))
        tab->OnDiscrimQuadraticCheckChange();
}

void CDiscrimDlg::OnReset()
{
    CDiscrimRolesDlg::OnReset();
    OnQuadraticCheck();
}

CDiscrimTabDlg::CDiscrimTabDlg(CWnd* parent) : CGUIDataDlg(IDD, parent)
{
    AddPage(m_DiscrimDlg);
    AddPage(m_RegressionOptionsDlg);
}

void CDiscrimTabDlg::OnDataSet()
{
    CGUIDataDlg::OnDataSet();
    m_RegressionOptionsDlg.SetDlgCaptionID(kEstimationOwner);
}

void CDiscrimTabDlg::SetCaptionIDs(const std::array<UINT, 4>& captionIds)
{
    // The first caption is the dialog's; no page takes its caption from the
    // list by position.
    if (captionIds[0] != 0)
        SetDlgCaptionID(captionIds[0]);
    m_RegressionOptionsDlg.SetDlgCaptionID(captionIds[1] != 0 ? captionIds[1] : kEstimationOwner);
}

BOOL CDiscrimTabDlg::OnInitDialog()
{
    CGUIDataDlg::OnInitDialog();
    OnDiscrimQuadraticCheckChange();
    return TRUE;
}

void CDiscrimTabDlg::OnDiscrimQuadraticCheckChange()
{
    m_RegressionOptionsDlg.OnDiscrimQuadraticCheckChange(m_DiscrimDlg.IsQuadraticChecked());
    OnPageChanged(&m_RegressionOptionsDlg);
}

int CDiscrimTabDlg::GetAllDefault()
{
    if (!m_pData)
        return 0;
    *m_pData->GetDiscrimData() = CDiscrimTabData::GetDefaultDiscrim();
    CRegressionOptionsData* estimation = m_pData->GetRegressionOptionsData();
    *estimation = CDiscrimTabData::GetDefaultRegressionOptions();
    estimation->ReassignDefaultValue();
    return 1;
}
