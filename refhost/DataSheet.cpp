#include "refhost/DataSheet.h"

#include <csv.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <memory>
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
    // Only a regular file has an end: a device or a pipe could block or
    // grow without bound, a directory reads as nothing.
    std::error_code error;
    const auto status = std::filesystem::status(file, error);
    if (!error && std::filesystem::exists(status) && !std::filesystem::is_regular_file(status))
        throw DataError(file.string() + ": cannot be read: it is " +
                        (std::filesystem::is_directory(status) ? "a directory" : "not a regular file") +
                        "; give --data a CSV file");
    std::ifstream in(file, std::ios::binary);
    if (!in)
        throw DataError(file.string() + ": cannot be read: " + std::strerror(errno));
    return LoadCsv(in, file.string());
}

namespace {

// A number in its plain form (sign, up to 15 digits, one point, blanks
// around it) is finite whatever its digits; anything else is left to
// IsNumberText.
bool IsPlainNumber(std::string_view text, bool& decided)
{
    std::size_t i = 0;
    const std::size_t n = text.size();
    while (i < n && text[i] == ' ')
        ++i;
    if (i < n && (text[i] == '-' || text[i] == '+'))
        ++i;
    int digits = 0;
    bool point = false;
    for (; i < n; ++i) {
        const char c = text[i];
        if (c >= '0' && c <= '9')
            ++digits;
        else if (c == '.' && !point)
            point = true;
        else
            break;
    }
    while (i < n && (text[i] == ' ' || text[i] == '\r'))
        ++i;
    decided = i == n && digits > 0 && digits <= 15;
    return decided;
}

bool IsAscii(std::string_view text)
{
    for (const char c : text)
        if (static_cast<unsigned char>(c) >= 0x80)
            return false;
    return true;
}

bool IsUtf8(std::string_view text)
{
    for (std::size_t i = 0; i < text.size();) {
        const auto c = static_cast<unsigned char>(text[i]);
        const std::size_t length = c < 0x80 ? 1 : (c >> 5) == 0x6 ? 2 : (c >> 4) == 0xE ? 3 : (c >> 3) == 0x1E ? 4 : 0;
        if (length == 0 || i + length > text.size())
            return false;
        std::uint32_t code = length == 1 ? c : c & (0x3F >> (length - 1));
        for (std::size_t k = 1; k < length; ++k) {
            const auto next = static_cast<unsigned char>(text[i + k]);
            if ((next & 0xC0) != 0x80)
                return false;
            code = (code << 6) | (next & 0x3F);
        }
        // No overlong forms, no surrogates, nothing past U+10FFFF.
        static constexpr std::uint32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
        if (code < kLeast[length] || (code >= 0xD800 && code <= 0xDFFF) || code > 0x10FFFF)
            return false;
        i += length;
    }
    return true;
}

int IsBlankOnly(unsigned char c)
{
    return c == ' ';
}

// The header's names, for telling a repeated one: an open-addressing table
// of column numbers hashed by name, one block of memory instead of a node
// per name.
class NameIndex {
public:
    // The column that already holds `name`, or `column` after recording it.
    std::size_t Insert(const std::vector<Variable>& variables, std::size_t column)
    {
        if (2 * (m_count + 1) > m_slots.size())
            Grow(variables);
        const CString& name = variables[column].name;
        for (std::size_t slot = Hash(name);; slot = (slot + 1) & (m_slots.size() - 1)) {
            if (m_slots[slot] == 0) {
                m_slots[slot] = static_cast<std::uint32_t>(column + 1);
                ++m_count;
                return column;
            }
            if (variables[m_slots[slot] - 1].name == name)
                return m_slots[slot] - 1;
        }
    }

    void Clear() { std::vector<std::uint32_t>().swap(m_slots); }

private:
    std::size_t Hash(const CString& name) const { return std::hash<CString>{}(name) & (m_slots.size() - 1); }

    void Grow(const std::vector<Variable>& variables)
    {
        std::vector<std::uint32_t> old(std::max<std::size_t>(64, 2 * m_slots.size()));
        old.swap(m_slots);
        for (const std::uint32_t entry : old) {
            if (entry == 0)
                continue;
            std::size_t slot = Hash(variables[entry - 1].name);
            while (m_slots[slot] != 0)
                slot = (slot + 1) & (m_slots.size() - 1);
            m_slots[slot] = entry;
        }
    }

    std::vector<std::uint32_t> m_slots; // column + 1; 0 is free
    std::size_t m_count = 0;
};

// Reads a CSV sheet in large blocks, a physical line at a time, so that
// every record knows the line it started on. (Blocks rather than a mapping
// of the whole file: mapped pages would count as the host's memory.) Lines without a quote are
// split directly; a line with one, and the lines of a quoted value it
// opens, go through libcsv. The header becomes the variables; each later
// record only updates the column types.
class CsvSheetReader {
public:
    explicit CsvSheetReader(std::string name) : m_name(std::move(name)) {}
    ~CsvSheetReader() { csv_free(&m_parser); }
    CsvSheetReader(const CsvSheetReader&) = delete;
    CsvSheetReader& operator=(const CsvSheetReader&) = delete;

    DataSheet Read(std::istream& in)
    {
        if (csv_init(&m_parser, CSV_STRICT | CSV_STRICT_FINI | CSV_APPEND_NULL) != 0)
            throw DataError(m_name + ": cannot set up the CSV reader");
        // Left uninitialised: only the pages a read fills are ever touched,
        // so a small file costs no more than its size.
        std::size_t capacity = kCsvReadBlock;
        auto buffer = std::make_unique_for_overwrite<char[]>(capacity);
        std::size_t begin = 0;
        std::size_t end = 0;
        bool eof = false;
        while (m_error.empty()) {
            const char* first = buffer.get() + begin;
            if (!m_lineEndKnown)
                m_lineEndKnown = ChooseLineEnd({first, end - begin}, eof);
            const auto* newline =
                m_lineEndKnown ? static_cast<const char*>(std::memchr(first, m_lineEnd, end - begin)) : nullptr;
            if (newline) {
                Line({first, static_cast<std::size_t>(newline - first)});
                begin = static_cast<std::size_t>(newline - buffer.get()) + 1;
                continue;
            }
            if (eof) {
                if (end > begin)
                    Line({first, end - begin});
                break;
            }
            // Keep the unfinished line, make room, read the next block.
            end -= begin;
            if (end >= kCsvMaxLine) {
                m_error = m_name + " line " + std::to_string(m_line + 1) + ": the line is longer than " +
                          std::to_string(kCsvMaxLine >> 20) + " MiB (is this a CSV file?)";
                break;
            }
            if (end == capacity) {
                auto larger = std::make_unique_for_overwrite<char[]>(2 * capacity);
                std::memcpy(larger.get(), first, end);
                buffer = std::move(larger);
                capacity *= 2;
            } else {
                std::memmove(buffer.get(), first, end);
            }
            begin = 0;
            in.read(buffer.get() + end, static_cast<std::streamsize>(capacity - end));
            end += static_cast<std::size_t>(in.gcount());
            eof = !in;
        }
        if (in.bad())
            throw DataError(m_name + ": read error");
        return Finish();
    }

private:
    void Line(std::string_view text)
    {
        ++m_line;
        if (m_line == 1) {
            if (text.starts_with("\xEF\xBB\xBF"))
                text.remove_prefix(3); // a byte-order mark says UTF-8, and no more
            ChooseDelimiter(text);
        }
        if (!text.empty() && text.back() == '\r')
            text.remove_suffix(1);
        // A record starts on the first line with text after the last record
        // ended; a quoted value may carry it over more lines.
        const bool inRecord = !m_betweenRecords;
        const bool blank = text.find_first_not_of(" \t") == std::string_view::npos;
        if (!inRecord && !blank) {
            m_recordStart = m_line;
            m_betweenRecords = false;
        }
        if (inRecord || blank || text.find('"') != std::string_view::npos)
            return QuotedLine(text);
        if (m_haveHeader)
            return ValueLine(text);
        // No quote, so every delimiter separates two values.
        for (std::size_t start = 0;;) {
            const std::size_t stop = text.find(m_delimiter, start);
            Field(Trim(text.substr(start, stop == std::string_view::npos ? std::string_view::npos : stop - start)));
            if (stop == std::string_view::npos || !m_error.empty())
                break;
            start = stop + 1;
        }
        RecordEnd();
    }

    // A record of values without a quote, the bulk of a file. In a column
    // still numeric, a value in IsPlainNumber's form with no blanks around
    // it is settled by the scan that finds its end; anything else goes the
    // general way, through Field, which also checks the encoding.
    void ValueLine(std::string_view text)
    {
        const char* p = text.data();
        const char* const end = p + text.size();
        const std::size_t columns = m_variables.size();
        for (;;) {
            if (m_column < columns && m_numeric[m_column]) {
                const char* q = p;
                if (q != end && (*q == '-' || *q == '+'))
                    ++q;
                const char* const digits = q;
                const char* point = nullptr;
                for (; q != end; ++q) {
                    if (static_cast<unsigned char>(*q - '0') < 10)
                        continue;
                    if (*q != '.' || point)
                        break;
                    point = q;
                }
                const auto count = (q - digits) - (point ? 1 : 0);
                if (count > 0 && count <= 15) {
                    if (q == end) {
                        ++m_column;
                        break;
                    }
                    if (*q == m_delimiter) {
                        ++m_column;
                        p = q + 1;
                        continue;
                    }
                }
            }
            const auto* stop = static_cast<const char*>(std::memchr(p, m_delimiter, static_cast<std::size_t>(end - p)));
            Field(Trim({p, static_cast<std::size_t>((stop ? stop : end) - p)}));
            if (!stop || !m_error.empty())
                break;
            p = stop + 1;
        }
        RecordEnd();
    }

    void QuotedLine(std::string_view text)
    {
        m_quoted.assign(text);
        m_quoted += '\n';
        if (csv_parse(&m_parser, m_quoted.data(), m_quoted.size(), OnField, OnRecordEnd, this) != m_quoted.size())
            ParserFailed(false);
        // A quoted value may run over many lines; it may not grow for ever.
        if (m_parser.entry_pos > kCsvMaxField)
            FieldTooLong();
    }

    void FieldTooLong()
    {
        Fail(m_column + 1,
             "a value longer than " + std::to_string(kCsvMaxField >> 20) + " MiB (is a quote not closed?)");
    }

    DataSheet Finish()
    {
        if (m_error.empty() && csv_fini(&m_parser, OnField, OnRecordEnd, this) != 0)
            ParserFailed(true);
        if (!m_error.empty())
            throw DataError(m_error);
        if (!m_haveHeader)
            throw DataError(m_name + " line 1: the file has no header row of variable names");
        for (std::size_t c = 0; c < m_variables.size(); ++c)
            m_variables[c].type = m_numeric[c] ? NmsEnum::VT_NUMERIC : NmsEnum::VT_STRING;
        m_variables.shrink_to_fit(); // the sheet lives as long as the session
        return DataSheet(std::move(m_variables), m_cases, m_name);
    }

    void ParserFailed(bool atEnd)
    {
        if (!m_error.empty())
            return;
        if (csv_error(&m_parser) == CSV_EPARSE)
            m_error = m_name + " line " + std::to_string(m_recordStart) + ": " +
                      (atEnd ? "a quoted value is not closed"
                             : "badly quoted value (a quote inside an unquoted value, or text after a closing quote)");
        else
            m_error = m_name + " line " + std::to_string(m_line) + ": " + csv_strerror(csv_error(&m_parser));
    }

    // Lines end with LF or CR LF; files of old Macintosh programs end them
    // with CR alone. Decided once, from the first line end, so that the
    // bulk of a file is scanned for one byte. False until a line end (or
    // the end of the file) is in `text`.
    bool ChooseLineEnd(std::string_view text, bool eof)
    {
        const std::size_t cr = text.find('\r');
        const std::size_t lf = text.find('\n');
        if (cr == std::string_view::npos || (lf != std::string_view::npos && lf < cr)) {
            m_lineEnd = '\n';
            return lf != std::string_view::npos || eof;
        }
        if (cr + 1 == text.size() && !eof)
            return false; // an LF may follow in the next block
        m_lineEnd = cr + 1 < text.size() && text[cr + 1] == '\n' ? '\n' : '\r';
        return true;
    }

    // A header without a comma but with semicolons or tabs separates its
    // values with those (as spreadsheets save CSV in some languages).
    void ChooseDelimiter(std::string_view header)
    {
        if (header.find(',') != std::string_view::npos)
            return;
        if (header.find(';') != std::string_view::npos)
            m_delimiter = ';';
        else if (header.find('\t') != std::string_view::npos)
            m_delimiter = '\t';
        csv_set_delim(&m_parser, static_cast<unsigned char>(m_delimiter));
        if (m_delimiter == '\t')
            csv_set_space_func(&m_parser, IsBlankOnly);
    }

    std::string_view Trim(std::string_view field) const
    {
        const auto blank = [this](char c) { return c == ' ' || (c == '\t' && m_delimiter != '\t'); };
        while (!field.empty() && blank(field.front()))
            field.remove_prefix(1);
        while (!field.empty() && blank(field.back()))
            field.remove_suffix(1);
        return field;
    }

    // The callbacks run inside the C library: they record the first error
    // and ignore the rest instead of throwing through it.
    static void OnField(void* text, std::size_t length, void* self)
    {
        auto& r = *static_cast<CsvSheetReader*>(self);
        r.Field(std::string_view(text ? static_cast<const char*>(text) : "", text ? length : 0));
    }

    static void OnRecordEnd(int, void* self) { static_cast<CsvSheetReader*>(self)->RecordEnd(); }

    void Field(std::string_view field)
    {
        if (!m_error.empty())
            return;
        if (field.size() > kCsvMaxField)
            return FieldTooLong();
        if (!IsAscii(field) && !IsUtf8(field))
            return Fail(m_column + 1, "bytes that are not UTF-8 (save the file as UTF-8)");
        if (!m_haveHeader)
            AddVariable(field);
        else
            AddValue(field);
        ++m_column;
    }

    void RecordEnd()
    {
        if (!m_error.empty())
            return;
        if (!m_haveHeader) {
            m_haveHeader = true;
            m_names.Clear();
        } else {
            if (m_column < m_variables.size())
                Fail(m_column + 1, std::to_string(m_column) + " values where the header names " +
                                       std::to_string(m_variables.size()) + " variables");
            ++m_cases;
        }
        m_column = 0;
        m_betweenRecords = true;
    }

    void AddVariable(std::string_view field)
    {
        std::string_view name = field;
        name.remove_prefix(std::min(name.find_first_not_of(" \t"), name.size()));
        name = name.substr(0, name.find_last_not_of(" \t\r") + 1);
        if (name.empty())
            return Fail(m_column + 1, "empty variable name");
        for (const unsigned char ch : field)
            if (ch < 0x20 || ch == 0x7F)
                return Fail(m_column + 1, "the variable name holds a control character");
        m_variables.push_back({CString::FromUtf8(name), NmsEnum::VT_NUMERIC});
        if (const std::size_t first = m_names.Insert(m_variables, m_column); first != m_column)
            return Fail(m_column + 1, "variable name \"" + std::string(name) + "\" is already used in column " +
                                          std::to_string(first + 1));
        // A name ending in '$' makes a string variable whatever its values.
        m_numeric.push_back(!name.ends_with('$'));
    }

    void AddValue(std::string_view field)
    {
        if (m_column >= m_variables.size())
            return Fail(m_variables.size() + 1,
                        "more values than the header names variables (" + std::to_string(m_variables.size()) + ")");
        if (!m_numeric[m_column])
            return;
        bool decided = false;
        if (IsPlainNumber(field, decided) || decided)
            return;
        // Files that separate values with semicolons write decimal commas.
        if (m_delimiter == ';' && field.find(',') != std::string_view::npos) {
            std::string point(field);
            point[point.find(',')] = '.';
            m_numeric[m_column] = IsNumberText(point);
            return;
        }
        m_numeric[m_column] = IsNumberText(field);
    }

    void Fail(std::size_t column, const std::string& why)
    {
        if (m_error.empty())
            m_error =
                m_name + " line " + std::to_string(m_recordStart) + ", column " + std::to_string(column) + ": " + why;
    }

    std::string m_name;
    csv_parser m_parser{};
    char m_delimiter = ',';
    char m_lineEnd = '\n';
    bool m_lineEndKnown = false;
    std::string m_quoted;
    std::vector<Variable> m_variables;
    std::vector<std::uint8_t> m_numeric; // per column: no value so far says otherwise
    NameIndex m_names;                   // while the header is read
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

namespace {

// The sample's design: its variables in column order, and doses x soils x
// plots cases. Cells are numbers except for the soil, B.
constexpr const char* kSampleNames[] = {"Y", "Y2", "T1", "T2", "T3", "A", "B", "X", "X2", "W"};
constexpr std::string_view kSampleStringVariable = "B";
constexpr const char* kSoils[] = {"clay", "loam", "sand"};
constexpr int kDoses = 3;
constexpr int kPlots = 30;

} // namespace

std::string DataSheet::SampleCsv()
{
    // Values come from a fixed generator so that every run shows the same
    // sheet.
    std::uint32_t state = 20261121;
    const auto noise = [&state] {
        state = state * 1664525u + 1013904223u;
        return (static_cast<double>(state >> 8) / 16777216.0) - 0.5;
    };
    std::string csv;
    for (const char* name : kSampleNames)
        csv.append(csv.empty() ? "" : ",").append(name);
    csv += '\n';
    char row[256];
    for (int a = 1; a <= kDoses; ++a) {
        for (int b = 0; b < static_cast<int>(std::size(kSoils)); ++b) {
            for (int plot = 0; plot < kPlots; ++plot) {
                const double x = 20 + 10 * noise();
                const double x2 = 5 + 2 * noise();
                const double yield = 40 + 6 * a - 4 * b + 0.5 * x + 3 * noise();
                std::snprintf(row, sizeof row, "%.2f,%.2f,%.2f,%.2f,%.2f,%d,%s,%.2f,%.2f,%.2f\n", yield,
                              yield + 2 + 4 * noise(), yield / 3 + noise(), yield / 3 + 1 + noise(),
                              yield / 3 + 2 + noise(), a, kSoils[b], x, x2, 1 + 0.5 * (noise() + 0.5));
                csv += row;
            }
        }
    }
    return csv;
}

DataSheet DataSheet::Sample()
{
    // What reading SampleCsv() gives, built directly: a sheet keeps no
    // values, and the sample's types are known from its design.
    std::vector<Variable> variables;
    for (const char* name : kSampleNames)
        variables.push_back(
            {CString::FromUtf8(name), name == kSampleStringVariable ? NmsEnum::VT_STRING : NmsEnum::VT_NUMERIC});
    DataSheet sheet(std::move(variables), kDoses * std::size(kSoils) * kPlots, "built-in sample");
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

int DataSheet::GetCaseCount()
{
    return static_cast<int>(std::min<std::size_t>(m_cases, INT_MAX));
}

} // namespace kalhost
