// CMatrixText: a matrix as the user types it and as a line writes it. Rows
// are separated by semicolons, entries by blanks; every entry must be a
// number and every row as long as the first. Written with single blanks
// and "; " between rows: "1 -1 0; 0 1 -1".
#pragma once

#include "platform/CString.h"

#include <vector>

class CMatrixText {
public:
    enum class Problem { None, NotANumber, Ragged };
    using Rows = std::vector<std::vector<CString>>;

    // Blank rows are skipped.
    static Rows Parse(const CString& text);
    // NotANumber before Ragged; an empty matrix has no problem.
    static Problem Check(const Rows& rows);
    static CString Format(const Rows& rows);
    // The sum of a row of numbers (checked ones).
    static double RowSum(const std::vector<CString>& row);
};
