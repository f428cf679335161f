#include "private/ResponseSurface/KDGRsmOptimizationDlg.h"

#include "framework/GUITabDlg.h"
#include "framework/ResourceUtil.h"
#include "private/ResponseSurface/KDGRsmFactorsDlg.h"
#include "private/ResponseSurface/KDGRsmGrid.h"

#include <array>
#include <cmath>

IMPLEMENT_DYNAMIC(CRsmOptimizationDlg, CKVGridMultiCtrlBaseDlg)

BEGIN_MESSAGE_MAP(CRsmOptimizationDlg, CKVGridMultiCtrlBaseDlg)
    ON_BN_CLICKED(CRsmOptimizationDlg::IDC_DESIRABILITY_RADIO, &CRsmOptimizationDlg::OnRuleChange)
    ON_BN_CLICKED(CRsmOptimizationDlg::IDC_RIDGE_RADIO, &CRsmOptimizationDlg::OnRuleChange)
    ON_BN_CLICKED(IDC_RESET, &CRsmOptimizationDlg::OnReset)
END_MESSAGE_MAP()

namespace {

using Goal = CRsmOptimizationData::Goal;

// The goal words of the grid, in the order of the goal codes.
constexpr std::array<const char16_t*, 4> kGoalWords = {u"", u"MAX", u"MIN", u"TARGET"};

bool ReadGoal(CString text, int& goal)
{
    text.Trim();
    text.MakeUpper();
    for (std::size_t i = 0; i < kGoalWords.size(); ++i)
        if (text == kGoalWords[i]) {
            goal = static_cast<int>(i);
            return true;
        }
    return false;
}

} // namespace

CRsmOptimizationDlg::CRsmOptimizationDlg(CWnd* parent) : CGUIPageDlg(IDD, parent, IDC_GOAL_GRID) {}

BOOL CRsmOptimizationDlg::OnInitDialog()
{
    CGUIPageDlg::OnInitDialog();
    CRadioUtil::FillRadio(this, CRsmOptimizationData::kSearchRadio);
    GetGrid().SetColumnWidth(colNumber, GetGrid().GetColumnWidth(colName) / 2);
    UpdateDependentWindows();
    return TRUE;
}

void CRsmOptimizationDlg::SyncGoals()
{
    CGUITabDlg* tab = GetTabDlg();
    auto* factors = tab ? tab->FindPage<CRsmFactorsDlg>() : nullptr;
    if (factors)
        kal::rsm::ShowRows(GetGrid(), factors->ResponseNames(), kal::rsm::ShownRows(GetGrid()));
}

UINT CRsmOptimizationDlg::ReadGoals()
{
    CRsmOptimizationData& w = m_Work;
    for (auto* values : {&w.m_Low, &w.m_Target, &w.m_High, &w.m_Weight})
        values->RemoveAll();
    w.m_Names.RemoveAll();
    w.m_Goals.RemoveAll();
    const CGridCtrl& grid = GetGrid();
    UINT message = 0;
    for (int row = 1; row < grid.GetRowCount(); ++row) {
        int goal = CRsmOptimizationData::goalNone;
        if (!ReadGoal(grid.GetItemText(row, colGoal), goal) && message == 0)
            message = kMsgGoalWord;
        w.m_Names.Add(grid.GetItemText(row, colName));
        w.m_Goals.Add(goal);
        const std::array<std::pair<int, CGUIArray<double>*>, 4> cells = {
            {{colLow, &w.m_Low}, {colTarget, &w.m_Target}, {colHigh, &w.m_High}, {colWeight, &w.m_Weight}}};
        for (const auto& [column, values] : cells) {
            double value = 0;
            if (!kal::rsm::ReadCell(grid.GetItemText(row, column), value) && message == 0)
                message = kMsgNotANumber;
            values->Add(value);
        }
    }
    return message;
}

UINT CRsmOptimizationDlg::ValidateGoals() const
{
    const CRsmOptimizationData& w = m_Work;
    int goals = 0;
    int ridgeGoals = 0;
    for (int i = 0; i < w.m_Goals.GetSize(); ++i) {
        const int goal = w.m_Goals[i];
        if (goal == CRsmOptimizationData::goalNone)
            continue;
        ++goals;
        ridgeGoals += goal == CRsmOptimizationData::goalTarget ? 0 : 1;
        if (w.IsRidge())
            continue;
        const double low = w.m_Low[i];
        const double target = w.m_Target[i];
        const double high = w.m_High[i];
        const bool isTarget = goal == CRsmOptimizationData::goalTarget;
        if (std::isnan(low) || std::isnan(high) || (isTarget && std::isnan(target)))
            return kMsgBoundsMissing;
        if (isTarget ? !(low < target && target < high) : !(low < high))
            return kMsgBoundsOrder;
        const double weight = w.m_Weight[i];
        if (!std::isnan(weight) && (weight < kMinWeight || weight > kMaxWeight))
            return kMsgWeight;
    }
    if (goals == 0)
        return kMsgNoGoal;
    return w.IsRidge() && (goals != 1 || ridgeGoals != 1) ? kMsgRidgeGoal : 0;
}

void CRsmOptimizationDlg::DoDataExchange(CDataExchange* pDX)
{
    CGUIPageDlg::DoDataExchange(pDX);
    if (!pDX->m_bSaveAndValidate) {
        const CRsmOptimizationData& w = m_Work;
        std::vector<CString> names;
        std::vector<std::pair<CString, kal::rsm::RowTexts>> rows;
        for (int i = 0; i < w.m_Names.GetSize(); ++i) {
            const int goal = i < w.m_Goals.GetSize() ? w.m_Goals[i] : 0;
            const auto cell = [i](const CGUIArray<double>& values) {
                return kal::rsm::CellText(i < values.GetSize() ? values[i] : std::nan(""));
            };
            names.push_back(w.m_Names[i]);
            rows.emplace_back(names.back(),
                              kal::rsm::RowTexts{goal >= 0 && goal < static_cast<int>(kGoalWords.size())
                                                     ? CString(kGoalWords[static_cast<std::size_t>(goal)])
                                                     : CString(),
                                                 cell(w.m_Low), cell(w.m_Target), cell(w.m_High), cell(w.m_Weight)});
        }
        kal::rsm::ShowRows(GetGrid(), names, rows);
        SyncGoals();
        return;
    }
    const UINT read = ReadGoals();
    DDX_ControlWarn(pDX, IDC_GOAL_GRID, read ? read : ValidateGoals());
    const double radius = m_Work.m_RadiusEdit.m_Value;
    DDX_ControlWarn(pDX, IDC_RADIUS_EDIT, !m_Work.IsRidge() || radius > 0 ? 0 : CRsmOptimizationData::kMsgRadius);
}

void CRsmOptimizationDlg::UpdateDependentWindows()
{
    CGUIPageDlg::UpdateDependentWindows();
    SyncGoals();
    const bool ridge = IsDlgButtonChecked(IDC_RIDGE_RADIO) != 0;
    EnableCtrl(IDC_RADIUS_LABEL, ridge);
    EnableCtrl(IDC_RADIUS_EDIT, ridge);
}

void CRsmOptimizationDlg::OnRuleChange()
{
    UpdateDependentWindows();
}

void CRsmOptimizationDlg::OnReset()
{
    CGUIPageDlg::OnReset();
    UpdateDependentWindows();
}
