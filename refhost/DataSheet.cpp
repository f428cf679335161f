#include "refhost/DataSheet.h"

#include <csv.h>

#include <charconv>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <map>
#include <sstream>

namespace kalhost {

namespace {

std::string Trimmed(const std::string& text)
{
    const auto first = text.find_first_not_of(" \t\r");
    if (first == std::string::npos)
        return {};
    const auto last = text.find_last_not_of(" \t\r");
    return text.substr(first, last - first + 1);
}

} // namespace

bool IsNumberText(std::string_view text)
{
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t' || text.back() == '\r'))
        text.remove_suffix(1);
    if (text.empty() || text == ".")
        return true; // a missing value
    if (text.front() == '+') {
        text.remove_prefix(1);
        if (text.empty() || text.front() == '+' || text.front() == '-')
            return false;
    }
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() && std::isfinite(value);
}

DataSheet::DataSheet(std::vector<Variable> variables, std::size_t cases, std::string source)
    : m_variables(std::move(variables)), m_cases(cases), m_source(std::move(source))
{
    for (std::size_t i = 0; i < m_variables.size(); ++i)
        if (m_variables[i].type == NmsEnum::VT_STRING)
            m_categorical.insert(static_cast<int>(i));
}

DataSheet DataSheet::LoadCsv(const std::filesystem::path& file)
{
    std::ifstream in(file, std::ios::binary);
    if (!in)
        throw DataError(file.string() + ": cannot be read: " + std::strerror(errno));
    return LoadCsv(in, file.string());
}

namespace {

// Reads CSV records one physical line at a time, so that every record
// knows the line it started on. The header becomes the variables; each
// later record only updates the column types.
class CsvSheetReader {
public:
    explicit CsvSheetReader(std::string name) : m_name(std::move(name)) {}

    DataSheet Read(std::istream& in)
    {
        csv_parser parser;
        if (csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI | CSV_APPEND_NULL) != 0)
            throw DataError(m_name + ": cannot set up the CSV reader");
        std::string text;
        bool failed = false;
        while (!failed && m_error.empty() && std::getline(in, text)) {
            ++m_line;
            // A record starts on the first line with text after the last
            // record ended; a quoted value may carry it over more lines.
            if (m_betweenRecords && text.find_first_not_of(" \t\r") != std::string::npos) {
                m_recordStart = m_line;
                m_betweenRecords = false;
            }
            text += '\n';
            failed = csv_parse(&parser, text.data(), text.size(), OnField, OnRecordEnd, this) != text.size();
        }
        const bool atEnd = !failed && m_error.empty();
        if (atEnd)
            failed = csv_fini(&parser, OnField, OnRecordEnd, this) != 0;
        const bool quoting = failed && csv_error(&parser) == CSV_EPARSE;
        const std::string why = failed ? csv_strerror(csv_error(&parser)) : "";
        csv_free(&parser);
        if (!m_error.empty())
            throw DataError(m_error);
        if (failed && quoting)
            throw DataError(m_name + " line " + std::to_string(m_recordStart) + ": " +
                            (atEnd ? "a quoted value is not closed"
                                   : "badly quoted value (a quote inside an unquoted value, or text after a closing quote)"));
        if (failed)
            throw DataError(m_name + " line " + std::to_string(m_line) + ": " + why);
        if (in.bad())
            throw DataError(m_name + ": read error");
        if (!m_haveHeader)
            throw DataError(m_name + " line 1: the file has no header row of variable names");
        for (std::size_t c = 0; c < m_variables.size(); ++c)
            m_variables[c].type = m_numeric[c] ? NmsEnum::VT_NUMERIC : NmsEnum::VT_STRING;
        return DataSheet(std::move(m_variables), m_cases, m_name);
    }

private:
    // The callbacks run inside the C library: they record the first error
    // and ignore the rest instead of throwing through it.
    static void OnField(void* text, std::size_t length, void* self)
    {
        auto& r = *static_cast<CsvSheetReader*>(self);
        if (!r.m_error.empty())
            return;
        const std::string_view field(text ? static_cast<const char*>(text) : "", text ? length : 0);
        if (!r.m_haveHeader)
            r.AddVariable(field);
        else
            r.AddValue(field);
        ++r.m_column;
    }

    static void OnRecordEnd(int, void* self)
    {
        auto& r = *static_cast<CsvSheetReader*>(self);
        if (!r.m_error.empty())
            return;
        if (!r.m_haveHeader) {
            r.m_haveHeader = true;
        } else {
            if (r.m_column < r.m_variables.size())
                r.Fail(r.m_column + 1, std::to_string(r.m_column) + " values where the header names " +
                                           std::to_string(r.m_variables.size()) + " variables");
            ++r.m_cases;
        }
        r.m_column = 0;
        r.m_betweenRecords = true;
    }

    void AddVariable(std::string_view field)
    {
        std::string name(field);
        name.erase(0, name.find_first_not_of(" \t"));
        name.erase(name.find_last_not_of(" \t\r") + 1);
        if (name.empty())
            return Fail(m_column + 1, "empty variable name");
        for (const unsigned char ch : field)
            if (ch < 0x20 || ch == 0x7F)
                return Fail(m_column + 1, "the variable name holds a control character");
        if (const auto it = m_seen.find(name); it != m_seen.end())
            return Fail(m_column + 1, "variable name \"" + name + "\" is already used in column " +
                                          std::to_string(it->second + 1));
        m_seen.emplace(name, m_column);
        m_variables.push_back({CString::FromUtf8(name), NmsEnum::VT_NUMERIC});
        // A name ending in '$' makes a string variable whatever its values.
        m_numeric.push_back(!name.ends_with('$'));
    }

    void AddValue(std::string_view field)
    {
        if (m_column >= m_variables.size())
            return Fail(m_variables.size() + 1, "more values than the header names variables (" +
                                                    std::to_string(m_variables.size()) + ")");
        if (m_numeric[m_column] && !IsNumberText(field))
            m_numeric[m_column] = false;
    }

    void Fail(std::size_t column, const std::string& why)
    {
        if (m_error.empty())
            m_error = m_name + " line " + std::to_string(m_recordStart) + ", column " + std::to_string(column) + ": " + why;
    }

    std::string m_name;
    std::vector<Variable> m_variables;
    std::vector<bool> m_numeric;
    std::map<std::string, std::size_t> m_seen;
    bool m_haveHeader = false;
    std::size_t m_cases = 0;
    std::size_t m_line = 0;
    std::size_t m_recordStart = 1; // where the record being read began
    bool m_betweenRecords = true;
    std::size_t m_column = 0;
    std::string m_error;
};

} // namespace

DataSheet DataSheet::LoadCsv(std::istream& in, const std::string& name)
{
    return CsvSheetReader(name).Read(in);
}

std::string DataSheet::SampleCsv()
{
    // Values come from a fixed generator so that every run shows the same
    // sheet.
    std::uint32_t state = 20261121;
    const auto noise = [&state] {
        state = state * 1664525u + 1013904223u;
        return (static_cast<double>(state >> 8) / 16777216.0) - 0.5;
    };
    std::string csv = "Y,Y2,T1,T2,T3,A,B,X,X2,W\n";
    const char* soils[] = {"clay", "loam", "sand"};
    char row[256];
    for (int a = 1; a <= 3; ++a) {
        for (int b = 0; b < 3; ++b) {
            for (int plot = 0; plot < 30; ++plot) {
                const double x = 20 + 10 * noise();
                const double x2 = 5 + 2 * noise();
                const double yield = 40 + 6 * a - 4 * b + 0.5 * x + 3 * noise();
                std::snprintf(row, sizeof row, "%.2f,%.2f,%.2f,%.2f,%.2f,%d,%s,%.2f,%.2f,%.2f\n", yield,
                              yield + 2 + 4 * noise(), yield / 3 + noise(), yield / 3 + 1 + noise(),
                              yield / 3 + 2 + noise(), a, soils[b], x, x2, 1 + 0.5 * (noise() + 0.5));
                csv += row;
            }
        }
    }
    return csv;
}

DataSheet DataSheet::Sample()
{
    std::istringstream in(SampleCsv());
    DataSheet sheet = LoadCsv(in, "built-in sample");
    sheet.MarkCategorical({"A"});
    return sheet;
}

void DataSheet::MarkCategorical(const std::vector<std::string>& names)
{
    for (const auto& name : names) {
        const CString wanted = CString::FromUtf8(Trimmed(name));
        bool found = false;
        for (std::size_t i = 0; i < m_variables.size(); ++i) {
            if (m_variables[i].name == wanted) {
                m_categorical.insert(static_cast<int>(i));
                found = true;
            }
        }
        if (!found)
            throw DataError("--categorical: the data sheet has no variable named \"" + Trimmed(name) + "\"");
    }
}

CString DataSheet::GetVariableName(int index, int)
{
    return index >= 0 && index < GetVariableCount() ? m_variables[static_cast<std::size_t>(index)].name : CString();
}

NmsEnum::VARIABLETYPE DataSheet::GetVariableType(int index)
{
    return index >= 0 && index < GetVariableCount() ? m_variables[static_cast<std::size_t>(index)].type
                                                    : NmsEnum::VT_UNKNOWN;
}

std::vector<int> DataSheet::GetCategoricalIndexes()
{
    return {m_categorical.begin(), m_categorical.end()};
}

} // namespace kalhost
