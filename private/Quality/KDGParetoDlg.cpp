#include "private/Quality/KDGParetoDlg.h"

IMPLEMENT_DYNAMIC(CParetoDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CParetoDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CParetoDlg::IDC_OTHER_CHECK, &CParetoDlg::OnRuleChange)
    ON_BN_CLICKED(IDC_RESET, &CParetoDlg::OnReset)
END_MESSAGE_MAP()

CParetoDlg::CParetoDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_CATEGORY_LIST,
                 .add = IDC_ADD_CATEGORY,
                 .remove = IDC_REMOVE_CATEGORY,
                 .menuCommand = ID_MENU_CATEGORY,
                 .menuLabel = IDC_CATEGORY_LABEL,
                 .maxItems = 1});
    AddRoleList({.list = IDC_COUNT_LIST,
                 .add = IDC_ADD_COUNT,
                 .remove = IDC_REMOVE_COUNT,
                 .menuCommand = ID_MENU_COUNT,
                 .menuLabel = IDC_COUNT_LABEL,
                 .acceptsStrings = [] { return false; },
                 .maxItems = 1});
}

BOOL CParetoDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    UpdateDependentWindows();
    return TRUE;
}

void CParetoDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, IDC_CATEGORY_LIST, m_Work.m_CategoryVariables.IsEmpty() ? kMsgNoCategory : 0);
    // The field's range closes the upper end; a share of 0 pools nothing.
    const bool noShare = m_Work.m_OtherCheck && !(m_Work.m_OtherShareEdit.m_Value > 0);
    DDX_ControlWarn(pDX, IDC_OTHER_EDIT, noShare ? CParetoData::kMsgShare : 0);
}

void CParetoDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool pooled = IsDlgButtonChecked(IDC_OTHER_CHECK) != 0;
    EnableCtrl(IDC_OTHER_EDIT, pooled);
    EnableCtrl(IDC_OTHER_UNIT, pooled);
}

void CParetoDlg::OnRuleChange()
{
    UpdateDependentWindows();
}

void CParetoDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    ListCtrl(IDC_CATEGORY_LIST).ResetOptions();
    ListCtrl(IDC_COUNT_LIST).ResetOptions();
    UpdateDependentWindows();
}
