// Grids whose rows follow a list of names on another page: a row per name,
// in the list's order, the name in the first column after the row number
// and the user's entries in the columns after it. Rows keep their entries
// by name when the list changes.
#pragma once

#include "platform/CString.h"
#include "platform/Wnd.h"

#include <vector>

namespace kal::rsm {

using RowTexts = std::vector<CString>;

// The entries of every row now shown, by the row's name.
std::vector<std::pair<CString, RowTexts>> ShownRows(const CGridCtrl& grid);
// Shows a row per name with the entries `rows` gives for it (none: empty).
void ShowRows(CGridCtrl& grid, const std::vector<CString>& names,
              const std::vector<std::pair<CString, RowTexts>>& rows);
// A number as a cell shows it: NaN (none given) as an empty cell.
CString CellText(double value);
// A cell's number: NaN for an empty cell; false when the text is no number.
bool ReadCell(const CString& text, double& value);

} // namespace kal::rsm
