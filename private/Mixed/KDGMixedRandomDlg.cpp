#include "private/Mixed/KDGMixedRandomDlg.h"

#include "framework/GUITabDlg.h"
#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CMixedRandomDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CMixedRandomDlg, CGUIBaseDlg)
    ON_BN_CLICKED(IDC_RESET, &CMixedRandomDlg::OnReset)
END_MESSAGE_MAP()

CMixedRandomDlg::CMixedRandomDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_RANDOM_LIST,
                 .add = IDC_ADD_RANDOM,
                 .remove = IDC_REMOVE_RANDOM,
                 .menuCommand = ID_MENU_RANDOM,
                 .menuLabel = IDC_RANDOM_LABEL,
                 .acceptsStrings = [] { return false; }});
    AddRoleList({.list = IDC_SUBJECT_LIST,
                 .add = IDC_ADD_SUBJECT,
                 .remove = IDC_REMOVE_SUBJECT,
                 .menuCommand = ID_MENU_SUBJECT,
                 .menuLabel = IDC_SUBJECT_LABEL,
                 .maxItems = 1});
}

BOOL CMixedRandomDlg::OnInitDialog()
{
    if (CComboBox* combo = GetComboBoxWnd(IDC_COVARIANCE_COMBO))
        CComboUtil::FillCombo(CMixedRandomData::kCovarianceCombo, *combo, 0);
    else
        ReportAssertion(__LINE__);
    return CGUIPageDlg::OnInitDialog();
}

void CMixedRandomDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    const bool random = m_Work.m_InterceptCheck || !m_Work.m_RandomList.IsEmpty();
    DDX_ControlWarn(pDX, IDC_INTERCEPT_CHECK, random ? 0 : kMsgNoRandomPart);
    DDX_ControlWarn(pDX, IDC_SUBJECT_LIST, m_Work.m_SubjectList.IsEmpty() ? kMsgNoSubject : 0);
    // The model page's check that only a mixed model makes.
    CGUITabDlg* tab = GetTabDlg();
    DDX_ControlWarn(pDX, IDC_SOURCE_LIST, tab && tab->GetDependentVariableCount() != 1 ? kMsgOneDependent : 0);
}

void CMixedRandomDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    ListCtrl(IDC_RANDOM_LIST).ResetOptions();
    ListCtrl(IDC_SUBJECT_LIST).ResetOptions();
    UpdateDependentWindows();
}
