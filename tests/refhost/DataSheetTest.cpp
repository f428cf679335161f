// CSV data sheets: types, categorical marks, and files that must be refused
// with their line and column.
#include "refhost/DataSheet.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

using kalhost::DataError;
using kalhost::DataSheet;

namespace {

DataSheet Load(const std::string& csv)
{
    std::istringstream in(csv);
    return DataSheet::LoadCsv(in, "t.csv");
}

std::string Refusal(const std::string& csv)
{
    try {
        Load(csv);
    } catch (const DataError& e) {
        return e.what();
    }
    return "accepted";
}

} // namespace

TEST(CsvSheet, TypesComeFromNamesAndValues)
{
    DataSheet sheet = Load("id,group$,score,label,note\n"
                           "1,7,2.5,a,\n"
                           "2,8,-1e3,b,\n"
                           "3,9, .,\"c, d\",\n");
    ASSERT_EQ(sheet.GetVariableCount(), 5);
    EXPECT_EQ(sheet.CaseCount(), 3u);
    EXPECT_EQ(sheet.GetVariableType(0), NmsEnum::VT_NUMERIC);
    EXPECT_EQ(sheet.GetVariableType(1), NmsEnum::VT_STRING);  // '$' wins over numeric values
    EXPECT_EQ(sheet.GetVariableType(2), NmsEnum::VT_NUMERIC); // '.' is missing
    EXPECT_EQ(sheet.GetVariableType(3), NmsEnum::VT_STRING);
    EXPECT_EQ(sheet.GetVariableType(4), NmsEnum::VT_NUMERIC); // all missing
    EXPECT_EQ(sheet.GetCategoricalIndexes(), (std::vector<int>{1, 3}));
    sheet.MarkCategorical({"id", " score "});
    EXPECT_EQ(sheet.GetCategoricalIndexes(), (std::vector<int>{0, 1, 2, 3}));
    EXPECT_THROW(sheet.MarkCategorical({"missing"}), DataError);
    EXPECT_EQ(sheet.GetVariableName(2, 1), CString(u"score"));
    EXPECT_EQ(sheet.GetVariableName(9, 1), CString());
}

TEST(CsvSheet, NonNumbersMakeStringVariables)
{
    for (const char* value : {"NA", "inf", "nan", "1,5", "0x10", "12abc", "+-1"}) {
        DataSheet sheet = Load(std::string("v\n1\n\"") + value + "\"\n");
        EXPECT_EQ(sheet.GetVariableType(0), NmsEnum::VT_STRING) << value;
    }
    EXPECT_EQ(Load("v\n+4\n 5 \n-6.5e-3\n").GetVariableType(0), NmsEnum::VT_NUMERIC);
}

TEST(CsvSheet, BadFilesAreRefusedWithLineAndColumn)
{
    EXPECT_EQ(Refusal(""), "t.csv line 1: the file has no header row of variable names");
    EXPECT_EQ(Refusal("a,,b\n1,2,3\n"), "t.csv line 1, column 2: empty variable name");
    EXPECT_EQ(Refusal("a,b,a\n"), "t.csv line 1, column 3: variable name \"a\" is already used in column 1");
    EXPECT_EQ(Refusal("a,\"b\tc\"\n"), "t.csv line 1, column 2: the variable name holds a control character");
    EXPECT_EQ(Refusal("a,b\n1,2\n3\n"), "t.csv line 3, column 2: 1 values where the header names 2 variables");
    EXPECT_EQ(Refusal("a,b\n1,2,3\n"), "t.csv line 2, column 3: more values than the header names variables (2)");
    EXPECT_EQ(Refusal("a,b\n\"x\ny\",1,2\n"),
              "t.csv line 2, column 3: more values than the header names variables (2)");
    EXPECT_EQ(Refusal("a,b\n1,\"2\n"), "t.csv line 2: a quoted value is not closed");
    EXPECT_EQ(Refusal("a,b\n1,x\"y\n"),
              "t.csv line 2: badly quoted value (a quote inside an unquoted value, or text after a closing quote)");
}

TEST(CsvSheet, ByteOrderMarksOtherDelimitersAndTheEncoding)
{
    DataSheet marked = Load("\xEF\xBB\xBFweight,group\n1,a\n");
    EXPECT_EQ(marked.GetVariableName(0, 1), CString(u"weight")); // the mark is not part of the name

    // A header without a comma but with semicolons or tabs says how the file
    // separates its values.
    DataSheet semicolons = Load("a;b;\"c;d\"\n1,5;2;x\n3;4,5,6;\"y\n z\"\n");
    ASSERT_EQ(semicolons.GetVariableCount(), 3);
    EXPECT_EQ(semicolons.GetVariableName(2, 1), CString(u"c;d"));
    EXPECT_EQ(semicolons.GetVariableType(0), NmsEnum::VT_NUMERIC); // with a decimal comma
    EXPECT_EQ(semicolons.GetVariableType(1), NmsEnum::VT_STRING);  // "4,5,6" is no number
    EXPECT_EQ(semicolons.CaseCount(), 2u);
    DataSheet tabs = Load("a b\tc\n 1 \t2\n");
    EXPECT_EQ(tabs.GetVariableName(0, 1), CString(u"a b"));
    EXPECT_EQ(tabs.GetVariableType(0), NmsEnum::VT_NUMERIC);
    EXPECT_EQ(Refusal("a\tb\n1,2\n"), "t.csv line 2, column 2: 1 values where the header names 2 variables");

    // Names in another encoding would decode to other names: refused.
    EXPECT_EQ(Refusal("dose,\xE9t\xE9\n1,2\n"),
              "t.csv line 1, column 2: bytes that are not UTF-8 (save the file as UTF-8)");
    EXPECT_EQ(Refusal("a,b\n1,2\n3,\"caf\xE9\"\n"),
              "t.csv line 3, column 2: bytes that are not UTF-8 (save the file as UTF-8)");
    EXPECT_EQ(Refusal("a\n\xC0\xAF\n"), "t.csv line 2, column 1: bytes that are not UTF-8 (save the file as UTF-8)");
    EXPECT_EQ(Load("d\xC3\xA9j\xC3\xA0,\xE6\x97\xA5\n1,2\n").GetVariableName(1, 1), CString(u"\u65E5"));
}

TEST(CsvSheet, LongLinesAndManyColumnsCrossTheReadBlocks)
{
    // The header alone is longer than a read block, so the block must grow.
    std::string csv;
    for (int c = 0; c < 100000; ++c)
        csv += (c ? "," : "") + std::string("variable_") + std::to_string(c);
    csv += '\n';
    ASSERT_GT(csv.size(), kalhost::kCsvReadBlock);
    for (int r = 0; r < 3; ++r) {
        for (int c = 0; c < 100000; ++c)
            csv += (c ? "," : "") + std::to_string(r * c % 97) + (c == 99999 && r == 2 ? "x" : "");
        csv += "\r\n";
    }
    DataSheet sheet = Load(csv);
    EXPECT_EQ(sheet.GetVariableCount(), 100000);
    EXPECT_EQ(sheet.CaseCount(), 3u);
    EXPECT_EQ(sheet.GetVariableType(99998), NmsEnum::VT_NUMERIC);
    EXPECT_EQ(sheet.GetVariableType(99999), NmsEnum::VT_STRING);
}

TEST(CsvSheet, TheBuiltInSampleIsADesignedExperiment)
{
    DataSheet sheet = DataSheet::Sample();
    EXPECT_EQ(sheet.CaseCount(), 270u);
    ASSERT_EQ(sheet.GetVariableCount(), 10);
    EXPECT_EQ(sheet.GetVariableName(6, 1), CString(u"B"));
    EXPECT_EQ(sheet.GetVariableType(6), NmsEnum::VT_STRING);
    EXPECT_EQ(sheet.GetCategoricalIndexes(), (std::vector<int>{5, 6})); // A and B
}

TEST(CsvSheet, UnquotedValuesInOneRowAreJudgedOneByOne)
{
    // Each value in its own column of one quote-free row, after a row of
    // ones: numbers read in place must be told apart from look-alikes.
    const std::vector<std::pair<std::string, NmsEnum::VARIABLETYPE>> values = {
        {"+4", NmsEnum::VT_NUMERIC},
        {" 5 ", NmsEnum::VT_NUMERIC},
        {"-6.5e-3", NmsEnum::VT_NUMERIC},
        {".", NmsEnum::VT_NUMERIC},
        {"", NmsEnum::VT_NUMERIC},
        {".5", NmsEnum::VT_NUMERIC},
        {"5.", NmsEnum::VT_NUMERIC},
        {"-123456789012345", NmsEnum::VT_NUMERIC},
        {"12345678901234567890", NmsEnum::VT_NUMERIC},
        {"7\t", NmsEnum::VT_NUMERIC},
        {"1.2.3", NmsEnum::VT_STRING},
        {"-", NmsEnum::VT_STRING},
        {"+", NmsEnum::VT_STRING},
        {"1-", NmsEnum::VT_STRING},
        {"--1", NmsEnum::VT_STRING},
        {"+-1", NmsEnum::VT_STRING},
        {"12abc", NmsEnum::VT_STRING},
        {"1e999", NmsEnum::VT_STRING},
        {"NA", NmsEnum::VT_STRING},
        {"1 2", NmsEnum::VT_STRING},
        {std::string(400, '9'), NmsEnum::VT_STRING}}; // beyond a double
    std::string header, ones, row;
    for (std::size_t i = 0; i < values.size(); ++i) {
        header += (i ? ",v" : "v") + std::to_string(i);
        ones += i ? ",1" : "1";
        row += (i ? "," : "") + values[i].first;
    }
    DataSheet sheet = Load(header + "\n" + ones + "\n" + row + "\n");
    ASSERT_EQ(sheet.GetVariableCount(), static_cast<int>(values.size()));
    for (std::size_t i = 0; i < values.size(); ++i)
        EXPECT_EQ(sheet.GetVariableType(static_cast<int>(i)), values[i].second) << '"' << values[i].first << '"';
}

TEST(CsvSheet, QuotesLateInAWideFile)
{
    std::string header, numbers;
    for (int c = 0; c < 2000; ++c) {
        header += (c ? ",V" : "V") + std::to_string(c);
        numbers += (c ? "," : "") + std::to_string(c % 10);
    }
    std::string csv = header + "\n";
    for (int r = 0; r < 50; ++r)
        csv += numbers + "\n";
    // Line 52 quotes a number and a text; line 53 opens a value that ends
    // on line 54.
    const std::string head = numbers.substr(0, numbers.rfind(','));
    const std::string first1998 = head.substr(0, head.rfind(','));
    csv += first1998 + ",\"7\",\"1,5\"\n" + first1998 + ",8,\"two\nlines\"\n";
    DataSheet sheet = Load(csv + numbers + "\n");
    EXPECT_EQ(sheet.CaseCount(), 53u);
    EXPECT_EQ(sheet.GetVariableType(1997), NmsEnum::VT_NUMERIC);
    EXPECT_EQ(sheet.GetVariableType(1998), NmsEnum::VT_NUMERIC);
    EXPECT_EQ(sheet.GetVariableType(1999), NmsEnum::VT_STRING);

    EXPECT_EQ(Refusal(csv + first1998 + ",\"open,3\n"), "t.csv line 55: a quoted value is not closed");
    EXPECT_EQ(Refusal(csv + "1,2\n"), "t.csv line 55, column 3: 2 values where the header names 2000 variables");
    EXPECT_EQ(Refusal(header + ",V1234\n"),
              "t.csv line 1, column 2001: variable name \"V1234\" is already used in column 1235");
}

TEST(CsvSheet, RowsAcrossTheEndOfAReadBlock)
{
    // Rows of "1,2" up to `offset` bytes; `row` follows, so that its byte
    // `at` is the first of the reader's second block.
    const auto across = [](const std::string& row, std::size_t at) {
        std::string csv = "a,b\n";
        while (csv.size() + 64 < kalhost::kCsvReadBlock)
            csv += "1,2\n";
        // The last one takes up the slack with blanks, which are no part of
        // the value, so every file has as many lines before `row`.
        csv += std::string(kalhost::kCsvReadBlock - at - csv.size() - 4, ' ') + "1,2\n";
        return csv + row;
    };
    const std::string rows = across("", 0);
    const auto before = static_cast<std::size_t>(std::count(rows.begin(), rows.end(), '\n'));
    const std::string line = std::to_string(before + 1); // the row's

    DataSheet crlf = Load(across("3,4\r\n5,6\r\n", 4)); // the line feed opens the block
    EXPECT_EQ(crlf.GetVariableType(1), NmsEnum::VT_NUMERIC);
    EXPECT_EQ(crlf.CaseCount(), before - 1 + 2);
    EXPECT_EQ(Load(across("3,\xC3\xA9\n", 3)).GetVariableType(1), NmsEnum::VT_STRING); // a character split in two
    EXPECT_EQ(Refusal(across("3,\xE9x\n", 2)),
              "t.csv line " + line + ", column 2: bytes that are not UTF-8 (save the file as UTF-8)");
    EXPECT_EQ(Refusal(across("3\n", 1)),
              "t.csv line " + line + ", column 2: 1 values where the header names 2 variables");
    EXPECT_EQ(Refusal(across("3,4,5\n", 3)),
              "t.csv line " + line + ", column 3: more values than the header names variables (2)");
}

// The sample is built without reading its CSV text; reading it must give
// the same sheet.
TEST(CsvSheet, TheBuiltInSampleIsItsCsvTextAsRead)
{
    std::istringstream in(DataSheet::SampleCsv());
    DataSheet read = DataSheet::LoadCsv(in, "built-in sample");
    read.MarkCategorical({"A"});
    DataSheet built = DataSheet::Sample();
    EXPECT_EQ(built.Source(), read.Source());
    EXPECT_EQ(built.CaseCount(), read.CaseCount());
    EXPECT_EQ(built.GetCategoricalIndexes(), read.GetCategoricalIndexes());
    ASSERT_EQ(built.GetVariableCount(), read.GetVariableCount());
    for (int i = 0; i < read.GetVariableCount(); ++i) {
        EXPECT_EQ(built.GetVariableName(i, 1), read.GetVariableName(i, 1)) << i;
        EXPECT_EQ(built.GetVariableType(i), read.GetVariableType(i)) << i;
    }
}
