// Parsing action scripts: arguments, quoting, rest-of-line texts, and the
// errors that stop a run before it starts.
#include "refhost/ActionScript.h"

#include <gtest/gtest.h>

using kalhost::ParseScript;
using kalhost::ScriptError;

TEST(ActionScriptParse, ArgumentsQuotesAndComments)
{
    const auto lines = ParseScript("\xEF\xBB\xBF# heading\r\n"
                                   "\n"
                                   "  select 1075 Y \"plot size\" \"say \\\"hi\\\" \\\\ now\" # the rest\r\n"
                                   "cell 4192 1 1 two words\n"
                                   "select 1071\n");
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0].number, 3u);
    EXPECT_EQ(lines[0].verb, "select");
    EXPECT_EQ(lines[0].args, (std::vector<std::string>{"1075", "Y", "plot size", "say \"hi\" \\ now"}));
    EXPECT_EQ(lines[1].args, (std::vector<std::string>{"4192", "1", "1", "two", "words"}));
    EXPECT_EQ(lines[2].args, (std::vector<std::string>{"1071"}));
}

TEST(ActionScriptParse, TypeAndExpectTextTakeTheRestOfTheLine)
{
    const auto lines = ParseScript("type 1093 results #2.kvd   \n"
                                   "type 1093 \"  padded # \"  # comment\n"
                                   "type 1093\n"
                                   "expect text 1092 RESIDUALS/DATA\n");
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(lines[0].text, "results #2.kvd");
    EXPECT_EQ(lines[1].text, "  padded # ");
    EXPECT_EQ(lines[2].text, "");
    EXPECT_EQ(lines[3].args, (std::vector<std::string>{"text", "1092"}));
    EXPECT_EQ(lines[3].text, "RESIDUALS/DATA");
}

TEST(ActionScriptParse, BadLinesNameTheirLineAndWhy)
{
    const std::pair<const char*, const char*> cases[] = {
        {"ok\nclik 1067\n", "line 2: unknown action \"clik\""},
        {"select 1075 \"Y\n", "line 1: a quote that is not closed"},
        {"select 1075 a\"b\n", "line 1: a quote inside an unquoted argument"},
        {"click\n", "line 1: wrong arguments; the form is: click ID"},
        {"check 1076 2\n", "line 1: the state must be a number from 0"},
        {"choose 1092 -1\n", "line 1: the index must be a number from 0"},
        {"cell 4192 0 1 x\n", "line 1: the row must be a number from 1"},
        {"expect colour 1 1\n", "line 1: unknown check \"colour\""},
        {"expect cursor MAYBE\n", "line 1: the cursor is NONE, DROP, NODROP or REMOVE"},
        {"expect enabled 1067\n", "line 1: wrong arguments; the form is: expect enabled ID 0|1"},
        {"click 12x\n", "line 1: a control id must be a number"},
        {"type 1093 \"a\" b\n", "line 1: text after the quoted text"},
    };
    for (const auto& [script, message] : cases) {
        try {
            ParseScript(script);
            ADD_FAILURE() << "accepted: " << script;
        } catch (const ScriptError& e) {
            EXPECT_NE(std::string(e.what()).find(message), std::string::npos) << e.what();
        }
    }
    EXPECT_THROW(ParseScript(std::string_view("ok\0\n", 4)), ScriptError);
}
