#include "private/Anova/KDGRepeatMeasuresDlg.h"

#include "framework/GUITabDlg.h"
#include "framework/HostLink.h"

#include <charconv>
#include <unordered_set>

IMPLEMENT_DYNAMIC(CRepeatMeasuresDlg, CKVGridMultiCtrlBaseDlg)

BEGIN_MESSAGE_MAP(CRepeatMeasuresDlg, CKVGridMultiCtrlBaseDlg)
    ON_BN_CLICKED(CRepeatMeasuresDlg::IDC_ON_OFF, &CRepeatMeasuresDlg::OnOnOffCheck)
END_MESSAGE_MAP()

BOOL CRepeatMeasuresDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    // The row-number column needs half the room of the others.
    GetGrid().SetColumnWidth(colNumber, GetGrid().GetColumnWidth(colName) / 2);
    return TRUE;
}

void CRepeatMeasuresDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate)
        FillGridFromData();
    if (pDX->m_bSaveAndValidate) {
        const UINT levels = ValidateLevels();
        DDX_ControlWarn(pDX, IDC_GRID, levels ? levels : ValidateNamesAndMetrics());
    }
}

int CRepeatMeasuresDlg::OKLike()
{
    FillDataFromGrid();
    return CGUIPageDlg::OKLike();
}

void CRepeatMeasuresDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    const bool on = IsDlgButtonChecked(IDC_ON_OFF) != 0;
    EnableCtrl(IDC_GRID, on);
    EnableCtrl(IDC_INSERT_ROW, on);
    EnableCtrl(IDC_DELETE_ROW, on);
}

void CRepeatMeasuresDlg::OnOnOffCheck()
{
    UpdateDependentWindows();
}

BOOL CRepeatMeasuresDlg::IsWindowEnabled()
{
    return GetDependentVariableCount() >= 2;
}

CString CRepeatMeasuresDlg::GetOutOfUseReason()
{
    return IsWindowEnabled() ? CString() : kal::framework::LoadResourceString(kNeedsTwoDependents);
}

int CRepeatMeasuresDlg::GetDependentVariableCount() const
{
    const UINT owner = GetDlgCaptionID();
    if (owner != 2263 && owner != 2264 && owner != 2265)
        return 0;
    CGUITabDlg* tab = GetTabDlg();
    return tab ? tab->GetDependentVariableCount() : 0;
}

UINT CRepeatMeasuresDlg::ValidateLevels()
{
    if (!m_Work.m_MeasureAnalysisOnOff || !IsWindowEnabled())
        return 0;
    return LevelsProblem(m_Work.m_arrLevels, GetDependentVariableCount());
}

UINT CRepeatMeasuresDlg::ValidateNamesAndMetrics()
{
    if (!m_Work.m_MeasureAnalysisOnOff || !IsWindowEnabled())
        return 0;
    return NamesAndMetricsProblem(m_Work.m_arrStrName, m_Work.m_arrLevels, m_Work.m_arrStrMetric);
}

UINT CRepeatMeasuresDlg::LevelsProblem(const CGUIArray<int>& levelList, int dependents)
{
    if (levelList.GetSize() == 1)
        return levelList[0] == dependents ? 0 : kMsgSingleLevel;
    long long product = 1;
    for (const int levels : levelList) {
        if (levels < 2 || levels > dependents)
            return kMsgLevelRange;
        product *= levels;
    }
    return product == dependents ? 0 : kMsgLevelProduct;
}

UINT CRepeatMeasuresDlg::NamesAndMetricsProblem(const CGUIArray<CString>& names, const CGUIArray<int>& levels,
                                                const CGUIArray<CString>& metrics)
{
    std::unordered_set<CString> seen;
    for (const CString& name : names) {
        if (ContainsControlCharacter(name))
            return kMsgControlCharacter;
        if (!CString(name).Trim().IsEmpty() && !seen.insert(name).second)
            return kMsgDuplicateName;
    }
    // A metric spaces the levels of its factor: one number per level.
    for (int i = 0; i < metrics.GetSize() && i < levels.GetSize(); ++i) {
        CString metric = metrics[i];
        if (metric.Trim().IsEmpty())
            continue;
        int count = 0;
        for (int start = 0;;) {
            const int comma = metric.Find(u',', start);
            const CString part = metric.Mid(start, comma < 0 ? metric.GetLength() - start : comma - start);
            if (!CGUIBaseObj::IsNumeric(part))
                return kMsgMetric;
            ++count;
            if (comma < 0)
                break;
            start = comma + 1;
        }
        if (count != levels[i])
            return kMsgMetric;
    }
    return 0;
}

void CRepeatMeasuresDlg::FillGridFromData()
{
    FillGrid(GetGrid(), m_Work.m_arrStrName, m_Work.m_arrLevels, m_Work.m_arrStrMetric);
}

void CRepeatMeasuresDlg::FillDataFromGrid()
{
    ReadGrid(GetGrid(), m_Work.m_arrStrName, m_Work.m_arrLevels, m_Work.m_arrStrMetric);
}

void CRepeatMeasuresDlg::FillGrid(CGridCtrl& grid, const CGUIArray<CString>& names, const CGUIArray<int>& levels,
                                  const CGUIArray<CString>& metric)
{
    const int rows = std::max({names.GetSize(), levels.GetSize(), metric.GetSize()});
    grid.SetRowCount(rows + 1);
    for (int i = 0; i < rows; ++i) {
        grid.SetItemText(i + 1, colName, i < names.GetSize() ? names[i] : CString());
        grid.SetItemText(i + 1, colLevels, i < levels.GetSize() ? CString::FromNumber(levels[i]) : CString());
        grid.SetItemText(i + 1, colMetric, i < metric.GetSize() ? metric[i] : CString());
    }
}

void CRepeatMeasuresDlg::ReadGrid(const CGridCtrl& grid, CGUIArray<CString>& names, CGUIArray<int>& levelList,
                                  CGUIArray<CString>& metricList)
{
    names.RemoveAll();
    levelList.RemoveAll();
    metricList.RemoveAll();
    for (int row = 1; row < grid.GetRowCount(); ++row) {
        CString name = grid.GetItemText(row, colName);
        CString levelsText = grid.GetItemText(row, colLevels);
        CString metric = grid.GetItemText(row, colMetric);
        if (CString(name).Trim().IsEmpty() && CString(levelsText).Trim().IsEmpty() && CString(metric).Trim().IsEmpty())
            continue; // a row the user left empty
        const std::string digits = levelsText.Trim().ToUtf8();
        int levels = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), levels);
        if (error != std::errc() || end != digits.data() + digits.size())
            levels = 0; // not a number: the level check refuses it
        names.Add(name.Trim());
        levelList.Add(levels);
        metricList.Add(metric.Trim());
    }
}
