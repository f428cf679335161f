#include "private/Mixed/KDGMixRegDataDlg.h"

#include "framework/ResourceUtil.h"
#include "private/Anova/KDGMatrixText.h"
#include "private/Mixed/KDGHlmLevelsDlg.h"
#include "private/Mixed/KDGMixedLists.h"

IMPLEMENT_DYNAMIC(CMixRegDataDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CMixRegDataDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CMixRegDataDlg::IDC_LONG_RADIO, &CMixRegDataDlg::OnRuleChange)
    ON_BN_CLICKED(CMixRegDataDlg::IDC_WIDE_RADIO, &CMixRegDataDlg::OnRuleChange)
    ON_BN_CLICKED(CMixRegDataDlg::IDC_SAVE_CHECK, &CMixRegDataDlg::OnRuleChange)
    ON_BN_CLICKED(IDC_RESET, &CMixRegDataDlg::OnReset)
END_MESSAGE_MAP()

CMixRegDataDlg::CMixRegDataDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    const auto numeric = [] { return false; };
    SetSourceList(IDC_SOURCE_LIST);
    AddRoleList({.list = IDC_ID_LIST,
                 .add = IDC_ADD_ID,
                 .remove = IDC_REMOVE_ID,
                 .menuCommand = ID_MENU_ID,
                 .menuLabel = IDC_ID_LABEL,
                 .maxItems = 1});
    AddRoleList({.list = IDC_TIME_LIST,
                 .add = IDC_ADD_TIME,
                 .remove = IDC_REMOVE_TIME,
                 .menuCommand = ID_MENU_TIME,
                 .menuLabel = IDC_TIME_LABEL,
                 .acceptsStrings = numeric,
                 .enabled = [this] { return !IsWideShown(); },
                 .maxItems = 1});
    AddRoleList({.list = IDC_REPEATED_LIST,
                 .add = IDC_ADD_REPEATED,
                 .remove = IDC_REMOVE_REPEATED,
                 .menuCommand = ID_MENU_REPEATED,
                 .menuLabel = IDC_REPEATED_LABEL,
                 .acceptsStrings = numeric,
                 .enabled = [this] { return IsWideShown(); }});
}

BOOL CMixRegDataDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CMixRegDataData::kLayoutRadio);
    UpdateDependentWindows();
    return TRUE;
}

std::pair<UINT, UINT> CMixRegDataDlg::Validate() const
{
    const CMixRegDataData& w = m_Work;
    if (w.m_IdList.IsEmpty())
        return {kMsgNoId, IDC_ID_LIST};
    if (!w.IsWide()) {
        if (w.m_TimeList.IsEmpty())
            return {kMsgNoTime, IDC_TIME_LIST};
        if (kal::mixed::SharesVariable({&w.m_IdList, &w.m_TimeList}))
            return {CHlmLevelsDlg::kMsgTwoRoles, IDC_TIME_LIST};
        return {0, 0};
    }
    if (w.m_RepeatedList.GetSize() < 2)
        return {kMsgTooFewOccasions, IDC_REPEATED_LIST};
    if (kal::mixed::SharesVariable({&w.m_IdList, &w.m_RepeatedList}))
        return {CHlmLevelsDlg::kMsgTwoRoles, IDC_REPEATED_LIST};
    // The times: empty, or one row of numbers, one per occasion.
    const CMatrixText::Rows rows = CMatrixText::Parse(w.m_TimesEdit);
    const bool fits = rows.empty() || (rows.size() == 1 && CMatrixText::Check(rows) == CMatrixText::Problem::None &&
                                       static_cast<int>(rows.front().size()) == w.m_RepeatedList.GetSize());
    return {fits ? 0 : kMsgTimes, IDC_TIMES_EDIT};
}

void CMixRegDataDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    const auto [message, control] = Validate();
    DDX_ControlWarn(pDX, control, message);
}

void CMixRegDataDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool wide = IsWideShown();
    for (const UINT id : {IDC_TIME_LABEL, IDC_TIME_LIST})
        EnableCtrl(id, !wide);
    for (const UINT id : {IDC_REPEATED_LABEL, IDC_REPEATED_LIST, IDC_TIMES_LABEL, IDC_TIMES_EDIT, IDC_SAVE_CHECK})
        EnableCtrl(id, wide);
    EnableCtrl(IDC_SAVE_EDIT, wide && IsDlgButtonChecked(IDC_SAVE_CHECK));
}

void CMixRegDataDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    for (const UINT list : {IDC_ID_LIST, IDC_TIME_LIST, IDC_REPEATED_LIST})
        ListCtrl(list).ResetOptions();
    UpdateDependentWindows();
}
