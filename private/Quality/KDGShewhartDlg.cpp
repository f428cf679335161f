#include "private/Quality/KDGShewhartDlg.h"

#include "framework/ResourceUtil.h"
#include "private/Quality/KDGControlLimits.h"

IMPLEMENT_DYNAMIC(CShewhartDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CShewhartDlg, CGUIBaseDlg)
    ON_CBN_SELCHANGE(CShewhartDlg::IDC_CHART_TYPE_COMBO, &CShewhartDlg::OnSelchangeChartTypeCombo)
    ON_EN_CHANGE(CShewhartDlg::IDC_CENTER_EDIT, &CShewhartDlg::OnDisableSigma)
    ON_EN_CHANGE(CShewhartDlg::IDC_SIGMA_EDIT, &CShewhartDlg::OnDisableCenter)
    ON_BN_CLICKED(CShewhartDlg::IDC_CENTER_CHECK, &CShewhartDlg::OnRuleChange)
    ON_BN_CLICKED(CShewhartDlg::IDC_SIGMA_CHECK, &CShewhartDlg::OnRuleChange)
    ON_BN_CLICKED(CShewhartDlg::IDC_PLIMITS_RADIO, &CShewhartDlg::OnRuleChange)
    ON_BN_CLICKED(CShewhartDlg::IDC_LIMITS_RADIO, &CShewhartDlg::OnRuleChange)
    ON_BN_CLICKED(CShewhartDlg::IDC_SLIMITS_RADIO, &CShewhartDlg::OnRuleChange)
    ON_BN_CLICKED(IDC_RESET, &CShewhartDlg::OnReset)
END_MESSAGE_MAP()

namespace {

// The line a missing chart-type selection is reported from.
constexpr int kNoChartTypeLine = 1364;

bool IsEmptyText(CString text)
{
    return text.Trim().IsEmpty();
}

} // namespace

CShewhartDlg::CShewhartDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    const auto noStrings = [] { return false; };
    SetSourceList(IDC_SOURCE_LIST);
    // The chart list comes first: a double click on the source fills it.
    AddRoleList({.list = IDC_CHART_LIST,
                 .add = IDC_ADD_CHART,
                 .remove = IDC_REMOVE_CHART,
                 .menuCommand = ID_MENU_CHART,
                 .menuLabel = IDC_CHART_LABEL,
                 .acceptsStrings = noStrings});
    AddRoleList({.list = IDC_GROUP_LIST,
                 .add = IDC_ADD_GROUP,
                 .remove = IDC_REMOVE_GROUP,
                 .menuCommand = ID_MENU_GROUP,
                 .menuLabel = IDC_GROUP_LABEL});
    AddRoleList({.list = IDC_FREQUENCY_LIST,
                 .add = IDC_ADD_FREQUENCY,
                 .remove = IDC_REMOVE_FREQUENCY,
                 .menuCommand = ID_MENU_FREQUENCY,
                 .menuLabel = IDC_FREQUENCY_LABEL,
                 .acceptsStrings = noStrings,
                 .enabled = [this] { return !IsMedianChart(); },
                 .maxItems = 1});
}

BOOL CShewhartDlg::OnInitDialog()
{
    FillAllCombo();
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CShewhartData::kLimitsRadio);
    return TRUE;
}

void CShewhartDlg::FillAllCombo()
{
    CComboBox* combo = GetComboBoxWnd(IDC_CHART_TYPE_COMBO);
    if (!combo) {
        ReportAssertion(__LINE__);
        return;
    }
    CComboUtil::FillCombo(CShewhartData::kChartTypeCombo, *combo, 0);
}

void CShewhartDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        return;
    DDX_ControlWarn(pDX, IDC_SIGMA_EDIT, ValidateSigmaEdit());
    DDX_ControlWarn(pDX, IDC_LIMITS_LOWER, ValidatePresetLowerUpperEdit());
    // Preset limits given on both sides must enclose something.
    const bool bothPresets = IsDlgButtonChecked(IDC_LIMITS_RADIO) && kal::quality::IsGiven(m_Work.m_LimitsLowerEdit) &&
                             kal::quality::IsGiven(m_Work.m_LimitsUpperEdit);
    DDX_ControlWarn(pDX, IDC_LIMITS_UPPER,
                    bothPresets && m_Work.m_LimitsLowerEdit.m_Value >= m_Work.m_LimitsUpperEdit.m_Value ? kMsgOutOfRange
                                                                                                        : 0);
    DDX_ControlWarn(pDX, IDC_SLIMITS_LOWER, ValidateSigmaLowerUpperEdit());
    // The two options count only while the page offers them.
    m_Work.m_AggEnabled = IsCtrlEnabled(IDC_AGG_CHECK) ? 1 : 0;
    m_Work.m_TotalEnabled = IsCtrlEnabled(IDC_TOTAL_CHECK) ? 1 : 0;
}

UINT CShewhartDlg::ValidateSigmaEdit() const
{
    if (!IsDlgButtonChecked(IDC_SIGMA_CHECK))
        return 0;
    return IsEmptyText(GetDlgItemText(IDC_SIGMA_EDIT)) ? kMsgSigmaEmpty : 0;
}

UINT CShewhartDlg::ValidateSigmaLowerUpperEdit() const
{
    if (!IsDlgButtonChecked(IDC_SLIMITS_RADIO))
        return 0;
    const bool none =
        !kal::quality::IsGiven(m_Work.m_SigmaLowerEdit) && !kal::quality::IsGiven(m_Work.m_SigmaUpperEdit);
    return none ? kMsgLimitsEmpty : 0;
}

UINT CShewhartDlg::ValidatePresetLowerUpperEdit() const
{
    if (!IsDlgButtonChecked(IDC_LIMITS_RADIO))
        return 0;
    const bool none =
        !kal::quality::IsGiven(m_Work.m_LimitsLowerEdit) && !kal::quality::IsGiven(m_Work.m_LimitsUpperEdit);
    return none ? kMsgLimitsEmpty : 0;
}

UINT CShewhartDlg::GetChartTypeItem() const
{
    const int index = GetComboCurSel(IDC_CHART_TYPE_COMBO);
    return index < 0 ? 0 : CComboUtil::GetComboItem(CShewhartData::kChartTypeCombo, index, 0);
}

bool CShewhartDlg::ExcludesCenterAndSigma() const
{
    const UINT item = GetChartTypeItem();
    return item == CShewhartData::kItemXbar || item == CShewhartData::kItemRange || item == CShewhartData::kItemSd;
}

void CShewhartDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();

    const bool center = IsDlgButtonChecked(IDC_CENTER_CHECK) != 0;
    EnableCtrl(IDC_CENTER_EDIT, center);
    EnableCtrl(IDC_CENTER_LABEL, center);
    const bool sigma = IsDlgButtonChecked(IDC_SIGMA_CHECK) != 0;
    EnableCtrl(IDC_SIGMA_EDIT, sigma);
    EnableCtrl(IDC_SIGMA_LABEL, sigma);

    const bool probability = IsDlgButtonChecked(IDC_PLIMITS_RADIO) != 0;
    EnableCtrl(IDC_PLIMITS_LOWER, probability);
    EnableCtrl(IDC_PLIMITS_UPPER, probability);
    const bool preset = IsDlgButtonChecked(IDC_LIMITS_RADIO) != 0;
    EnableCtrl(IDC_LIMITS_LOWER, preset);
    EnableCtrl(IDC_LIMITS_UPPER, preset);
    const bool sigmaLimits = IsDlgButtonChecked(IDC_SLIMITS_RADIO) != 0;
    EnableCtrl(IDC_SLIMITS_LOWER, sigmaLimits);
    EnableCtrl(IDC_SLIMITS_UPPER, sigmaLimits);

    // Aggregated proportions need their subgroup sizes as a weight.
    const UINT item = GetChartTypeItem();
    const bool proportions = item == CShewhartData::kItemP || item == CShewhartData::kItemNp;
    EnableCtrl(IDC_AGG_CHECK, proportions && ListCtrl(IDC_FREQUENCY_LIST).GetItemCount() > 0);
    EnableCtrl(IDC_TOTAL_CHECK, ListCtrl(IDC_CHART_LIST).GetItemCount() >= 2);
}

void CShewhartDlg::OnSelchangeChartTypeCombo()
{
    if (GetComboCurSel(IDC_CHART_TYPE_COMBO) == -1) {
        ReportAssertion(kNoChartTypeLine);
        return;
    }
    // A median chart keeps the frequency variable chosen so far (its line is
    // still written) but takes no other and gives it up only with another
    // chart type: the frequency row's buttons are locked meanwhile.
    UpdateDependentWindows();
}

void CShewhartDlg::OnDisableSigma()
{
    if (!ExcludesCenterAndSigma())
        return;
    CheckDlgButton(IDC_SIGMA_CHECK, BST_UNCHECKED);
    EnableCtrl(IDC_SIGMA_EDIT, FALSE);
    EnableCtrl(IDC_SIGMA_LABEL, FALSE);
}

void CShewhartDlg::OnDisableCenter()
{
    if (!ExcludesCenterAndSigma())
        return;
    CheckDlgButton(IDC_CENTER_CHECK, BST_UNCHECKED);
    EnableCtrl(IDC_CENTER_EDIT, FALSE);
    EnableCtrl(IDC_CENTER_LABEL, FALSE);
}

void CShewhartDlg::OnRuleChange()
{
    UpdateDependentWindows();
}

bool CShewhartDlg::RefusesFrequency(const CWnd* target)
{
    return IsMedianChart() && target == &ListCtrl(IDC_FREQUENCY_LIST);
}

BOOL CShewhartDlg::OnUpdateAddTarget(CCmdUI* pCmdUI)
{
    CGUIPageDlg::OnUpdateAddTarget(pCmdUI);
    if (pCmdUI->m_nID == ID_MENU_FREQUENCY && IsMedianChart())
        pCmdUI->Enable(FALSE);
    return TRUE;
}

void CShewhartDlg::MouseMoveListCtrlHelper(const CWnd* over, HICON& cursor)
{
    if (GetDragList() == GetSourceList() && RefusesFrequency(over))
        return;
    CGUIPageDlg::MouseMoveListCtrlHelper(over, cursor);
}

void CShewhartDlg::LButtonUpListCtrlHelper(const CWnd* over)
{
    if (GetDragList() == GetSourceList() && RefusesFrequency(over))
        return;
    CGUIPageDlg::LButtonUpListCtrlHelper(over);
}

void CShewhartDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    for (const UINT list : {IDC_CHART_LIST, IDC_GROUP_LIST, IDC_FREQUENCY_LIST})
        ListCtrl(list).ResetOptions();
    UpdateDependentWindows();
}
