#include "private/Quality/KDGXMrDlg.h"

#include "framework/ResourceUtil.h"
#include "private/Quality/KDGControlLimits.h"

IMPLEMENT_DYNAMIC(CXMrDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CXMrDlg, CGUIBaseDlg)
    ON_EN_CHANGE(CXMrDlg::IDC_MR_EDIT, &CXMrDlg::OnRuleChange)
    ON_EN_CHANGE(CXMrDlg::IDC_SIGMA_EDIT, &CXMrDlg::OnRuleChange)
    ON_BN_CLICKED(CXMrDlg::IDC_PLIMITS_RADIO, &CXMrDlg::OnRuleChange)
    ON_BN_CLICKED(CXMrDlg::IDC_SLIMITS_RADIO, &CXMrDlg::OnRuleChange)
    ON_BN_CLICKED(IDC_RESET, &CXMrDlg::OnReset)
END_MESSAGE_MAP()

CXMrDlg::CXMrDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_CHART_LIST,
                 .add = IDC_ADD_CHART,
                 .remove = IDC_REMOVE_CHART,
                 .menuCommand = ID_MENU_CHART,
                 .menuLabel = IDC_CHART_LABEL,
                 .acceptsStrings = [] { return false; }});
}

BOOL CXMrDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CXMrData::kCenterLineRadio);
    CRadioUtil::FillRadio(this, CXMrData::kLimitsRadio);
    return TRUE;
}

void CXMrDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (pDX->m_bSaveAndValidate)
        DDX_ControlWarn(pDX, IDC_SLIMITS_LOWER, ValidateSigmaLowerUpperEdit());
}

UINT CXMrDlg::ValidateSigmaLowerUpperEdit() const
{
    return kal::quality::ValidateSigmaBounds(*this, kLimits, m_Work.m_SigmaLowerEdit, m_Work.m_SigmaUpperEdit);
}

bool CXMrDlg::HoldsValue(UINT edit) const
{
    CString text = GetDlgItemText(edit);
    text.Trim();
    if (text.IsEmpty())
        return false;
    if (!CGUIBaseObj::IsNumeric(text))
        return true; // refused at OK, but a value all the same
    // A number is zero when every digit before its exponent is.
    for (const char16_t ch : text.Str()) {
        if (ch == u'e' || ch == u'E')
            break;
        if (ch >= u'1' && ch <= u'9')
            return true;
    }
    return false;
}

void CXMrDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();

    const bool mr = HoldsValue(IDC_MR_EDIT);
    if (mr && HoldsValue(IDC_SIGMA_EDIT))
        SetDlgItemText(IDC_SIGMA_EDIT, CString());
    const bool sigma = HoldsValue(IDC_SIGMA_EDIT);
    EnableCtrl(IDC_MR_EDIT, !sigma);
    EnableCtrl(IDC_MR_LABEL, !sigma);
    EnableCtrl(IDC_SIGMA_EDIT, !mr);
    EnableCtrl(IDC_SIGMA_LABEL, !mr);

    kal::quality::EnableLimits(*this, kLimits);
}

void CXMrDlg::OnRuleChange()
{
    UpdateDependentWindows();
}

void CXMrDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    ListCtrl(IDC_CHART_LIST).ResetOptions();
    UpdateDependentWindows();
}
