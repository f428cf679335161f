#include "private/Multivariate/KDGCorrelationsDlg.h"

#include "framework/BootStrapDlg.h"
#include "framework/GUITabDlg.h"
#include "framework/HostLink.h"
#include "framework/ResourceUtil.h"
#include "private/Multivariate/KDGCorrOptionsDlg.h"

IMPLEMENT_DYNAMIC(CCorrelationsDlg, CGUIBaseDlg)

BEGIN_MESSAGE_MAP(CCorrelationsDlg, CGUIBaseDlg)
    ON_BN_CLICKED(CCorrelationsDlg::IDC_ONE_SET, &CCorrelationsDlg::OnSetsOneRadio)
    ON_BN_CLICKED(CCorrelationsDlg::IDC_TWO_SETS, &CCorrelationsDlg::OnSetsOneRadio)
    ON_BN_CLICKED(CCorrelationsDlg::IDC_CONTINUOUS, &CCorrelationsDlg::OnContinuousDataRadio)
    ON_BN_CLICKED(CCorrelationsDlg::IDC_DISTANCE, &CCorrelationsDlg::OnContinuousDataRadio)
    ON_BN_CLICKED(CCorrelationsDlg::IDC_RANK_ORDER, &CCorrelationsDlg::OnContinuousDataRadio)
    ON_BN_CLICKED(CCorrelationsDlg::IDC_UNORDERED, &CCorrelationsDlg::OnContinuousDataRadio)
    ON_BN_CLICKED(CCorrelationsDlg::IDC_BINARY, &CCorrelationsDlg::OnContinuousDataRadio)
    ON_CBN_SELCHANGE(CCorrelationsDlg::IDC_CONTINUOUS_COMBO, &CCorrelationsDlg::OnSelchangeContinuousDataCombo)
    ON_CBN_SELCHANGE(CCorrelationsDlg::IDC_DISTANCE_COMBO, &CCorrelationsDlg::OnSelchangeDistanceCombo)
    ON_CBN_SELCHANGE(CCorrelationsDlg::IDC_RANK_ORDER_COMBO, &CCorrelationsDlg::OnSelchangeRankOrderDataCombo)
    ON_CBN_SELCHANGE(CCorrelationsDlg::IDC_UNORDERED_COMBO, &CCorrelationsDlg::OnSelchangeUnorderedDataCombo)
    ON_CBN_SELCHANGE(CCorrelationsDlg::IDC_BINARY_COMBO, &CCorrelationsDlg::OnSelchangeBinaryDataCombo)
    ON_BN_CLICKED(CCorrelationsDlg::IDC_SAVE_CHECK, &CCorrelationsDlg::OnSaveCheck)
    ON_EN_CHANGE(CCorrelationsDlg::IDC_SAVE_FILE_EDIT, &CCorrelationsDlg::OnChangeSaveFileEdit)
END_MESSAGE_MAP()

namespace {

// Continuous, distance and binary data are measured on one footing, rank
// order and unordered categories on another.
bool IsCategoryClass(int dataType)
{
    return dataType == CCorrelationsData::dataRankOrder || dataType == CCorrelationsData::dataUnordered;
}

} // namespace

CCorrelationsDlg::CCorrelationsDlg(CWnd* parent) : CGUIPageDlg(IDD, parent)
{
    SetSourceList(IDC_SOURCE_LIST);
    // The row list comes first: a double click on the source fills it.
    // String variables may be rows of unordered data only, and columns of
    // rank-order or unordered data.
    AddRoleList({.list = IDC_ROW_LIST,
                 .add = IDC_ADD_ROWS,
                 .remove = IDC_REMOVE_ROWS,
                 .menuCommand = ID_MENU_ROWS,
                 .menuLabel = IDC_ROW_LABEL,
                 .acceptsStrings = [this] { return IsDlgButtonChecked(IDC_UNORDERED) != 0; }});
    AddRoleList(
        {.list = IDC_COLUMN_LIST,
         .add = IDC_ADD_COLUMNS,
         .remove = IDC_REMOVE_COLUMNS,
         .menuCommand = ID_MENU_COLUMNS,
         .menuLabel = IDC_COLUMN_LABEL,
         .acceptsStrings = [this] { return IsDlgButtonChecked(IDC_RANK_ORDER) || IsDlgButtonChecked(IDC_UNORDERED); },
         .enabled = [this] { return IsTwoSets(); }});
}

BOOL CCorrelationsDlg::OnInitDialog()
{
    FillAllCombo();
    return CGUIBaseDlg::OnInitDialog();
}

void CCorrelationsDlg::AddToolTips()
{
    CGUIBaseDlg::AddToolTips();
    AddToolTip(IDC_SAVE_FILE_EDIT, GetDlgItemText(IDC_SAVE_FILE_EDIT), 1);
}

void CCorrelationsDlg::FillAllCombo()
{
    for (const auto& type : CCorrelationsData::kDataTypes) {
        CComboBox* combo = GetComboBoxWnd(type.combo);
        if (!combo) {
            ReportAssertion(__LINE__);
            continue;
        }
        CComboUtil::FillCombo(type.combo, *combo, 0);
    }
}

int CCorrelationsDlg::InitDialogLike()
{
    const int result = CGUIPageDlg::InitDialogLike();
    m_nDataType = m_Work.GetContinuousDataRadio();
    return result;
}

int CCorrelationsDlg::GetCheckedDataType() const
{
    for (std::size_t i = 0; i < CCorrelationsData::kDataTypes.size(); ++i)
        if (IsDlgButtonChecked(CCorrelationsData::kDataTypes[i].radio))
            return static_cast<int>(i);
    return -1;
}

bool CCorrelationsDlg::OptionsApply() const
{
    switch (GetCheckedDataType()) {
    case CCorrelationsData::dataContinuous: return GetComboCurSel(IDC_CONTINUOUS_COMBO) == 0;
    case CCorrelationsData::dataRankOrder: {
        // Spearman, Kendall, gamma and Goodman-Kruskal; not MU2.
        const int measure = GetComboCurSel(IDC_RANK_ORDER_COMBO);
        return measure >= 0 && measure <= 3;
    }
    default: return false;
    }
}

bool CCorrelationsDlg::OptionsEstimateMissingValues(bool optionsInUse) const
{
    CGUITabDlg* tab = GetTabDlg();
    const CCorrOptionsDlg* options = tab ? tab->FindPage<CCorrOptionsDlg>() : nullptr;
    if (!optionsInUse || !options || !options->IsCreated())
        return false;
    return options->IsDlgButtonChecked(CCorrOptionsDlg::IDC_EM) ||
           options->IsDlgButtonChecked(CCorrOptionsDlg::IDC_HADI);
}

void CCorrelationsDlg::UpdateDependentWindows()
{
    // The buttons of the two lists: moves possible, string variables as
    // the data type allows, the columns only with two sets.
    CGUIPageDlg::UpdateDependentWindows();

    const bool twoSets = IsTwoSets();
    EnableCtrl(IDC_COLUMN_LIST, twoSets);
    EnableCtrl(IDC_COLUMN_LABEL, twoSets);
    EnableCtrl(IDC_SAVE_FILE_EDIT, IsDlgButtonChecked(IDC_SAVE_CHECK) != 0);
    for (const auto& type : CCorrelationsData::kDataTypes)
        EnableCtrl(type.combo, IsDlgButtonChecked(type.radio) != 0);

    // EM and Hadi estimation take the place of the deletion choice.
    const bool optionsApply = OptionsApply();
    const bool estimated = OptionsEstimateMissingValues(optionsApply);
    EnableCtrl(IDC_LISTWISE, !estimated);
    EnableCtrl(IDC_PAIRWISE, !estimated);

    // The row list's caption, and the source list's menu entry named after it.
    SetDlgItemText(IDC_ROW_LABEL, kal::framework::LoadResourceString(twoSets ? kRowsCaption : kSelectedCaption));
    if (CGUIListCtrl* source = GetSourceList()) {
        CArray<CMenuIdStr> entries = source->GetMenuIDArray();
        for (int i = 0; i < entries.GetSize(); ++i)
            if (entries[i].id == ID_MENU_ROWS)
                entries[i].caption = GetDlgItemText(IDC_ROW_LABEL);
        source->SetMenuIDArray(entries);
    }

    // The tabs show whether the options page is available now.
    m_bOptionsPageAvailable = optionsApply;
    if (CWnd* tab = GetParent())
        tab->Invalidate(TRUE);
}

void CCorrelationsDlg::OnSetsOneRadio()
{
    UpdateDependentWindows();
}

void CCorrelationsDlg::ResetRowsAndColumnListCtrls()
{
    for (const UINT list : {IDC_ROW_LIST, IDC_COLUMN_LIST}) {
        ListCtrl(list).SetVariables({});
        ListCtrl(list).ResetOptions();
    }
}

void CCorrelationsDlg::OnContinuousDataRadio()
{
    const int dataType = GetCheckedDataType();
    if (dataType < 0) {
        ReportAssertion(698);
        return;
    }
    for (const auto& type : CCorrelationsData::kDataTypes)
        EnableCtrl(type.combo, IsDlgButtonChecked(type.radio) != 0);
    // Variables chosen for one class of data rarely suit the other: the
    // lists empty when the class changes, except on the way back to
    // continuous data.
    if (IsCategoryClass(m_nDataType) != IsCategoryClass(dataType) && dataType != CCorrelationsData::dataContinuous)
        ResetRowsAndColumnListCtrls();
    m_nDataType = dataType;
    UpdateDependentWindows();
    NotifyTab();
}

void CCorrelationsDlg::OnMeasureChanged(UINT combo, int line)
{
    if (GetComboCurSel(combo) == -1)
        ReportAssertion(line);
    UpdateDependentWindows();
    NotifyTab();
}

void CCorrelationsDlg::OnSelchangeContinuousDataCombo()
{
    OnMeasureChanged(IDC_CONTINUOUS_COMBO, __LINE__);
}

void CCorrelationsDlg::OnSelchangeDistanceCombo()
{
    OnMeasureChanged(IDC_DISTANCE_COMBO, __LINE__);
}

void CCorrelationsDlg::OnSelchangeRankOrderDataCombo()
{
    OnMeasureChanged(IDC_RANK_ORDER_COMBO, __LINE__);
}

void CCorrelationsDlg::OnSelchangeUnorderedDataCombo()
{
    OnMeasureChanged(IDC_UNORDERED_COMBO, __LINE__);
}

void CCorrelationsDlg::OnSelchangeBinaryDataCombo()
{
    OnMeasureChanged(IDC_BINARY_COMBO, __LINE__);
}

void CCorrelationsDlg::OnSaveCheck()
{
    UpdateDependentWindows();
}

void CCorrelationsDlg::OnChangeSaveFileEdit()
{
    UpdateToolTipText(IDC_SAVE_FILE_EDIT, GetDlgItemText(IDC_SAVE_FILE_EDIT), 1);
}

void CCorrelationsDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    for (const UINT list : {IDC_ROW_LIST, IDC_COLUMN_LIST})
        ListCtrl(list).ResetOptions();
    m_nDataType = m_Work.GetContinuousDataRadio();
    NotifyTab();
}

int CCorrelationsDlg::OKLike()
{
    const int result = CGUIPageDlg::OKLike();
    CGUITabDlg* tab = GetTabDlg();
    if (!tab) {
        ReportAssertion(1427);
        return result;
    }
    // What the resampling page needs to know of the data.
    if (CBootStrapDlg* resampling = tab->FindPage<CBootStrapDlg>()) {
        CBootStrapData* settings = nullptr;
        resampling->GetData(settings);
        if (settings) {
            settings->SetContinuousType(IsDlgButtonChecked(IDC_CONTINUOUS) != 0);
            settings->SetDeletionTypePairwise(IsCtrlEnabled(IDC_PAIRWISE) && IsDlgButtonChecked(IDC_PAIRWISE));
        }
    }
    return result;
}
