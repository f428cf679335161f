// CSV data sheets: types, categorical marks, and files that must be refused
// with their line and column.
#include "refhost/DataSheet.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

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
    EXPECT_EQ(sheet.GetVariableType(1), NmsEnum::VT_STRING); // '$' wins over numeric values
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
    EXPECT_EQ(Refusal("a,b\n\"x\ny\",1,2\n"), "t.csv line 2, column 3: more values than the header names variables (2)");
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
    EXPECT_EQ(Refusal("dose,\xE9t\xE9\n1,2\n"), "t.csv line 1, column 2: bytes that are not UTF-8 (save the file as UTF-8)");
    EXPECT_EQ(Refusal("a,b\n1,2\n3,\"caf\xE9\"\n"), "t.csv line 3, column 2: bytes that are not UTF-8 (save the file as UTF-8)");
    EXPECT_EQ(Refusal("a\n\xC0\xAF\n"), "t.csv line 2, column 1: bytes that are not UTF-8 (save the file as UTF-8)");
    EXPECT_EQ(Load("d\xC3\xA9j\xC3\xA0,\xE6\x97\xA5\n1,2\n").GetVariableName(1, 1), CString(u"\u65E5"));
}

TEST(CsvSheet, LongLinesAndManyColumnsCrossTheReadBlocks)
{
    std::string csv;
    for (int c = 0; c < 60000; ++c)
        csv += (c ? "," : "") + std::string("variable_") + std::to_string(c);
    csv += '\n';
    for (int r = 0; r < 3; ++r) {
        for (int c = 0; c < 60000; ++c)
            csv += (c ? "," : "") + std::to_string(r * c % 97) + (c == 59999 && r == 2 ? "x" : "");
        csv += "\r\n";
    }
    DataSheet sheet = Load(csv);
    EXPECT_EQ(sheet.GetVariableCount(), 60000);
    EXPECT_EQ(sheet.CaseCount(), 3u);
    EXPECT_EQ(sheet.GetVariableType(59998), NmsEnum::VT_NUMERIC);
    EXPECT_EQ(sheet.GetVariableType(59999), NmsEnum::VT_STRING);
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
