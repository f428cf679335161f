#include "private/ResponseSurface/KDGRsmGrid.h"

#include "framework/DDXVDlg.h"
#include "framework/GUIBaseObj.h"

#include <cmath>
#include <limits>

namespace kal::rsm {

namespace {

constexpr int kNameColumn = 1;

} // namespace

std::vector<std::pair<CString, RowTexts>> ShownRows(const CGridCtrl& grid)
{
    std::vector<std::pair<CString, RowTexts>> rows;
    for (int row = 1; row < grid.GetRowCount(); ++row) {
        RowTexts texts;
        for (int column = kNameColumn + 1; column < grid.GetColumnCount(); ++column)
            texts.push_back(grid.GetItemText(row, column));
        rows.emplace_back(grid.GetItemText(row, kNameColumn), std::move(texts));
    }
    return rows;
}

void ShowRows(CGridCtrl& grid, const std::vector<CString>& names, const std::vector<std::pair<CString, RowTexts>>& rows)
{
    grid.SetRowCount(static_cast<int>(names.size()) + 1);
    for (std::size_t i = 0; i < names.size(); ++i) {
        const int row = static_cast<int>(i) + 1;
        grid.SetItemText(row, kNameColumn, names[i]);
        RowTexts texts;
        for (const auto& [name, entries] : rows)
            if (name == names[i]) {
                texts = entries;
                break;
            }
        for (int column = kNameColumn + 1; column < grid.GetColumnCount(); ++column) {
            const auto at = static_cast<std::size_t>(column - kNameColumn - 1);
            grid.SetItemText(row, column, at < texts.size() ? texts[at] : CString());
        }
    }
}

CString CellText(double value)
{
    return std::isnan(value) ? CString() : CGUIBaseObj::NumberText(value);
}

bool ReadCell(const CString& text, double& value)
{
    value = std::numeric_limits<double>::quiet_NaN();
    if (CString(text).Trim().IsEmpty())
        return true;
    return CDDXVDlg::ReadNumberText(text, value);
}

} // namespace kal::rsm
