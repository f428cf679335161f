#include "private/Anova/KDGMatrixText.h"

#include "framework/GUIBaseObj.h"

#include <cstdlib>
#include <string>

CMatrixText::Rows CMatrixText::Parse(const CString& text)
{
    Rows rows;
    std::vector<CString> row;
    CString cell;
    const auto endCell = [&] {
        if (!cell.IsEmpty())
            row.push_back(cell);
        cell.Empty();
    };
    const auto endRow = [&] {
        endCell();
        if (!row.empty())
            rows.push_back(std::move(row));
        row.clear();
    };
    for (const char16_t ch : text.Str()) {
        if (ch == u';')
            endRow();
        else if (ch == u' ')
            endCell();
        else
            cell += ch;
    }
    endRow();
    return rows;
}

CMatrixText::Problem CMatrixText::Check(const Rows& rows)
{
    for (const auto& row : rows)
        for (const CString& cell : row)
            if (!CGUIBaseObj::IsNumeric(cell))
                return Problem::NotANumber;
    for (const auto& row : rows)
        if (row.size() != rows.front().size())
            return Problem::Ragged;
    return Problem::None;
}

CString CMatrixText::Format(const Rows& rows)
{
    CString text;
    for (std::size_t r = 0; r < rows.size(); ++r) {
        if (r > 0)
            text += u"; ";
        for (std::size_t c = 0; c < rows[r].size(); ++c)
            text += (c > 0 ? u" " : u"") + rows[r][c];
    }
    return text;
}

double CMatrixText::RowSum(const std::vector<CString>& row)
{
    double sum = 0;
    for (CString cell : row) {
        cell.Replace(u",", u"."); // a decimal comma, as the host may take it
        sum += std::strtod(cell.ToUtf8().c_str(), nullptr);
    }
    return sum;
}
