#include "private/Regression/KDGLogitSetsDlg.h"

#include "framework/ResourceUtil.h"

IMPLEMENT_DYNAMIC(CLogitSetsDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CLogitSetsDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CLogitSetsDlg::IDC_USE_SETS, &CLogitSetsDlg::OnUseSetsCheck)
END_MESSAGE_MAP()

CLogitSetsDlg::CLogitSetsDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    // Set variables hold codes or indicators: numbers, and only while
    // choice sets are used.
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_SET_LIST,
                 .add = IDC_ADD_SET,
                 .remove = IDC_REMOVE_SET,
                 .menuCommand = ID_MENU_SET,
                 .menuLabel = IDC_SET_LABEL,
                 .acceptsStrings = [] { return false; },
                 .enabled = [this] { return IsDlgButtonChecked(IDC_USE_SETS) != 0; }});
}

BOOL CLogitSetsDlg::OnInitDialog()
{
    CRadioUtil::FillRadio(this, CLogitSetsData::kHoldRadio);
    return CGUIBaseDlg::OnInitDialog();
}

BOOL CLogitSetsDlg::IsChoiceSetsChecked() const
{
    if (IsCreated())
        return IsDlgButtonChecked(IDC_USE_SETS) != 0;
    return m_pData && m_pData->IsInUse();
}

void CLogitSetsDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    const bool tooFew = IsDlgButtonChecked(IDC_USE_SETS) && m_Work.GetSetList().GetSize() < kMinSetVariables;
    DDX_ControlWarn(pDX, IDC_SET_LIST, tooFew ? kMsgTooFewSetVariables : 0);
}

void CLogitSetsDlg::UpdateDependentWindows()
{
    CGUIBaseDlg::UpdateDependentWindows();
    const bool use = IsDlgButtonChecked(IDC_USE_SETS) != 0;
    for (const UINT id : {IDC_SET_LABEL, IDC_SET_LIST, IDC_HOLD_GROUP, IDC_CODES, IDC_INDICATORS})
        EnableCtrl(id, use);
}

void CLogitSetsDlg::OnUseSetsCheck()
{
    UpdateDependentWindows();
    NotifyTab();
}

void CLogitSetsDlg::OnReset()
{
    CGUIBaseDlg::OnReset();
    ListCtrl(IDC_SET_LIST).ResetOptions();
    NotifyTab();
}
