#include "private/Anova/KDGHypPairwiseDlg.h"

#include "framework/HostLink.h"
#include "private/Anova/KDGHypothesisDlg.h"

IMPLEMENT_DYNAMIC(CHypPairwiseDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CHypPairwiseDlg, CGUIBaseDlg)
    ON_BN_CLICKED(IDC_RESET, &CHypPairwiseDlg::OnReset)
END_MESSAGE_MAP()

BOOL CHypPairwiseDlg::OnInitDialog()
{
    CComboBox* factors = GetComboBoxWnd(IDC_FACTOR);
    CComboBox* errors = GetComboBoxWnd(IDC_ERROR_TERM);
    if (!factors || !errors) {
        ReportAssertion(__LINE__);
        return CGUIBaseDlg::OnInitDialog();
    }
    if (m_pData) {
        m_Model = CLastModel::For(m_pData->GetDialogID());
        m_pData->FollowModel(m_Model);
    }
    for (const CString& factor : m_Model.GetFactors())
        factors->AddString(factor);
    errors->AddString(kal::framework::LoadResourceString(kResidualText));
    for (const CString& term : m_Model.GetTerms())
        errors->AddString(term);
    return CGUIBaseDlg::OnInitDialog();
}

int CHypPairwiseDlg::GetAllDefault()
{
    CGUIPageDlg::GetAllDefault();
    m_Work.FollowModel(m_Model);
    return 1;
}

void CHypPairwiseDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    CComboBox* factors = GetComboBoxWnd(IDC_FACTOR);
    CComboBox* errors = GetComboBoxWnd(IDC_ERROR_TERM);
    if (!factors || !errors)
        return;
    // The list entries are the model's: the stored texts pick among them.
    const auto indexOf = [](const CComboBox& combo, const CString& text, int first) {
        for (int i = first; i < combo.GetCount(); ++i)
            if (combo.GetLBText(i) == text)
                return i;
        return combo.GetCount() > 0 ? 0 : -1;
    };
    if (!pDX->m_bSaveAndValidate) {
        factors->SetCurSel(indexOf(*factors, m_Work.m_Factor, 0));
        errors->SetCurSel(m_Work.m_ErrorTerm.IsEmpty() ? 0 : indexOf(*errors, m_Work.m_ErrorTerm, 1));
        return;
    }
    const int factor = factors->GetCurSel();
    m_Work.m_Factor = factor >= 0 ? factors->GetLBText(factor) : CString();
    const int error = errors->GetCurSel();
    m_Work.m_ErrorTerm = error > 0 ? errors->GetLBText(error) : CString();
    if (!m_Model.IsEstimated() || m_Work.m_Factor.IsEmpty()) {
        DDX_ControlWarn(pDX, IDC_FACTOR, CLastModel::NoFactorMessage(m_pData->GetDialogID()));
        return;
    }
    // The model was confirmed on another data sheet, perhaps: its factor
    // and error term must still name variables of this one.
    DDX_ControlWarn(pDX, IDC_FACTOR, CHypothesisDlg::TermProblem(m_Work.m_Factor));
    if (!m_Work.m_ErrorTerm.IsEmpty()) {
        DDX_ControlWarn(pDX, IDC_ERROR_TERM, CHypothesisDlg::TermProblem(m_Work.m_ErrorTerm));
        DDX_ControlWarn(pDX, IDC_ERROR_TERM, m_Work.m_ErrorTerm == m_Work.m_Factor ? kMsgErrorIsEffect : 0);
    }
}
