#include "private/Anova/KDGPairwiseDlg.h"

#include "framework/HostLink.h"

IMPLEMENT_DYNAMIC(CPairwiseDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CPairwiseDlg, CGUIBaseDlg)
    ON_BN_CLICKED(IDC_RESET, &CPairwiseDlg::OnReset)
END_MESSAGE_MAP()

namespace {

// The entry of `combo` showing `text` (0, the first, when none does).
int EntryOf(const CComboBox& combo, const CString& text, int first)
{
    for (int i = first; i < combo.GetCount(); ++i)
        if (combo.GetLBText(i) == text)
            return i;
    return 0;
}

} // namespace

CPairwiseDlg::CPairwiseDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_DEPENDENT_LIST, .add = IDC_ADD_DEPENDENT, .remove = IDC_REMOVE_DEPENDENT});
}

BOOL CPairwiseDlg::OnInitDialog()
{
    if (m_pData) {
        m_Model = CLastModel::For(m_pData->GetTestCommand());
        m_pData->FollowModel(m_Model);
    }
    FillModelLists();
    return CGUIBaseDlg::OnInitDialog();
}

void CPairwiseDlg::FillModelLists()
{
    CComboBox* factors = GetComboBoxWnd(IDC_FACTOR);
    CComboBox* errors = GetComboBoxWnd(IDC_ERROR_TERM);
    if (!factors || !errors) {
        ReportAssertion(__LINE__);
        return;
    }
    factors->ResetContent();
    for (const CString& factor : m_Model.GetFactors())
        factors->AddString(factor);
    errors->ResetContent();
    errors->AddString(kal::framework::LoadResourceString(kResidualText));
    for (const CString& term : m_Model.GetTerms())
        errors->AddString(term);
}

void CPairwiseDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    CComboBox* factors = GetComboBoxWnd(IDC_FACTOR);
    CComboBox* errors = GetComboBoxWnd(IDC_ERROR_TERM);
    if (!factors || !errors)
        return;
    if (!pDX->m_bSaveAndValidate) {
        factors->SetCurSel(factors->GetCount() > 0 ? EntryOf(*factors, m_Work.m_Factor, 0) : -1);
        errors->SetCurSel(m_Work.m_ErrorTerm.IsEmpty() ? 0 : EntryOf(*errors, m_Work.m_ErrorTerm, 1));
        return;
    }
    const int factor = factors->GetCurSel();
    m_Work.m_Factor = factor >= 0 ? factors->GetLBText(factor) : CString();
    const int error = errors->GetCurSel();
    m_Work.m_ErrorTerm = error > 0 ? errors->GetLBText(error) : CString();
    if (!m_Model.IsEstimated() || m_Work.m_Factor.IsEmpty())
        DDX_ControlWarn(pDX, IDC_FACTOR, kMsgNoModel);
}

void CPairwiseDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    ListCtrl(IDC_DEPENDENT_LIST).ResetOptions();
}
