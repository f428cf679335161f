#include "refhost/DataSheet.h"

#include <csv.h>

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>

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

bool HasControlCharacter(const std::string& text)
{
    for (const unsigned char ch : text)
        if (ch < 0x20 || ch == 0x7F)
            return true;
    return false;
}

// Collects the records of a CSV file, fed one physical line at a time so
// that every record knows the line it started on.
struct CsvReader {
    struct Record {
        std::size_t line;
        std::vector<std::string> fields;
    };
    std::vector<Record> records;
    std::vector<std::string> fields;
    std::size_t line = 0;
    std::size_t recordLine = 0;

    static void OnField(void* text, std::size_t length, void* self)
    {
        auto& r = *static_cast<CsvReader*>(self);
        if (r.fields.empty())
            r.recordLine = r.line;
        r.fields.emplace_back(text ? static_cast<const char*>(text) : "", text ? length : 0);
    }
    static void OnRecordEnd(int, void* self)
    {
        auto& r = *static_cast<CsvReader*>(self);
        if (r.fields.empty())
            r.recordLine = r.line;
        r.records.push_back({r.recordLine, std::move(r.fields)});
        r.fields.clear();
    }
};

} // namespace

bool IsNumberText(const std::string& text)
{
    const std::string t = Trimmed(text);
    if (t.empty() || t == ".")
        return true; // a missing value
    char* end = nullptr;
    errno = 0;
    const double value = std::strtod(t.c_str(), &end);
    return end == t.c_str() + t.size() && std::isfinite(value);
}

DataSheet::DataSheet(std::vector<Variable> variables, std::string source)
    : m_variables(std::move(variables)), m_source(std::move(source))
{
    for (std::size_t i = 0; i < m_variables.size(); ++i)
        if (m_variables[i].type == NmsEnum::VT_STRING)
            m_categorical.insert(static_cast<int>(i));
}

DataSheet DataSheet::LoadCsv(const std::filesystem::path& file)
{
    const std::string name = file.string();
    std::ifstream in(file, std::ios::binary);
    if (!in)
        throw DataError(name + ": cannot be read: " + std::strerror(errno));

    csv_parser parser;
    if (csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI | CSV_APPEND_NULL) != 0)
        throw DataError(name + ": cannot set up the CSV reader");
    CsvReader reader;
    std::string text;
    bool failed = false;
    while (std::getline(in, text)) {
        ++reader.line;
        text += '\n';
        if (csv_parse(&parser, text.data(), text.size(), CsvReader::OnField, CsvReader::OnRecordEnd, &reader) !=
            text.size()) {
            failed = true;
            break;
        }
    }
    if (!failed && csv_fini(&parser, CsvReader::OnField, CsvReader::OnRecordEnd, &reader) != 0)
        failed = true;
    const std::string why = failed ? csv_strerror(csv_error(&parser)) : "";
    csv_free(&parser);
    if (failed)
        throw DataError(name + " line " + std::to_string(reader.line) + ": " + why);
    if (in.bad())
        throw DataError(name + ": read error");
    if (reader.records.empty())
        throw DataError(name + " line 1: the file has no header row of variable names");

    const auto& header = reader.records.front();
    std::vector<Variable> variables;
    std::map<std::string, std::size_t> seen;
    for (std::size_t c = 0; c < header.fields.size(); ++c) {
        const std::string where = name + " line " + std::to_string(header.line) + ", column " + std::to_string(c + 1);
        const std::string varName = Trimmed(header.fields[c]);
        if (varName.empty())
            throw DataError(where + ": empty variable name");
        if (HasControlCharacter(header.fields[c]))
            throw DataError(where + ": the variable name holds a control character");
        if (const auto it = seen.find(varName); it != seen.end())
            throw DataError(where + ": variable name \"" + varName + "\" is already used in column " +
                            std::to_string(it->second + 1));
        seen.emplace(varName, c);
        variables.push_back({CString::FromUtf8(varName), NmsEnum::VT_NUMERIC, {}});
    }
    for (std::size_t r = 1; r < reader.records.size(); ++r) {
        const auto& record = reader.records[r];
        if (record.fields.size() != variables.size()) {
            const bool shortRow = record.fields.size() < variables.size();
            throw DataError(name + " line " + std::to_string(record.line) + ", column " +
                            std::to_string((shortRow ? record.fields.size() : variables.size()) + 1) + ": " +
                            std::to_string(record.fields.size()) + " values where the header names " +
                            std::to_string(variables.size()) + " variables");
        }
        for (std::size_t c = 0; c < variables.size(); ++c)
            variables[c].values.push_back(record.fields[c]);
    }
    for (auto& v : variables) {
        bool numeric = !v.name.Str().ends_with(u"$");
        for (const auto& value : v.values)
            numeric = numeric && IsNumberText(value);
        v.type = numeric ? NmsEnum::VT_NUMERIC : NmsEnum::VT_STRING;
    }
    return DataSheet(std::move(variables), name);
}

DataSheet DataSheet::Sample()
{
    // Three fertiliser doses (A) crossed with three soil types (B), 30 plots
    // each. Y and Y2 are the yields of two seasons, T1-T3 three harvests, X
    // and X2 covariates, W a sampling weight. Values come from a fixed
    // generator so that every run shows the same sheet.
    std::vector<Variable> v = {
        {u"Y", NmsEnum::VT_NUMERIC, {}},  {u"Y2", NmsEnum::VT_NUMERIC, {}}, {u"T1", NmsEnum::VT_NUMERIC, {}},
        {u"T2", NmsEnum::VT_NUMERIC, {}}, {u"T3", NmsEnum::VT_NUMERIC, {}}, {u"A", NmsEnum::VT_NUMERIC, {}},
        {u"B", NmsEnum::VT_STRING, {}},   {u"X", NmsEnum::VT_NUMERIC, {}},  {u"X2", NmsEnum::VT_NUMERIC, {}},
        {u"W", NmsEnum::VT_NUMERIC, {}},
    };
    std::uint32_t state = 20261121;
    const auto noise = [&state] {
        state = state * 1664525u + 1013904223u;
        return (static_cast<double>(state >> 8) / 16777216.0) - 0.5;
    };
    const auto fmt = [](double value) {
        char buffer[32];
        std::snprintf(buffer, sizeof buffer, "%.2f", value);
        return std::string(buffer);
    };
    const char* soils[] = {"clay", "loam", "sand"};
    for (int a = 1; a <= 3; ++a) {
        for (int b = 0; b < 3; ++b) {
            for (int rep = 0; rep < 30; ++rep) {
                const double x = 20 + 10 * noise();
                const double x2 = 5 + 2 * noise();
                const double base = 40 + 6 * a - 4 * b + 0.5 * x + 3 * noise();
                v[0].values.push_back(fmt(base));
                v[1].values.push_back(fmt(base + 2 + 4 * noise()));
                v[2].values.push_back(fmt(base / 3 + noise()));
                v[3].values.push_back(fmt(base / 3 + 1 + noise()));
                v[4].values.push_back(fmt(base / 3 + 2 + noise()));
                v[5].values.push_back(std::to_string(a));
                v[6].values.push_back(soils[b]);
                v[7].values.push_back(fmt(x));
                v[8].values.push_back(fmt(x2));
                v[9].values.push_back(fmt(1 + 0.5 * (noise() + 0.5)));
            }
        }
    }
    DataSheet sheet(std::move(v), "built-in sample");
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
