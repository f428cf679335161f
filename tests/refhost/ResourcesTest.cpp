// The resource loader: lookups, fallbacks and malformed files.
#include "refhost/Resources.h"

#include <gtest/gtest.h>

using kalhost::ResourceError;
using kalhost::ResourceTable;

TEST(Resources, UnknownIdsGiveEmptyResultsNeverAFailure)
{
    auto table = ResourceTable::LoadEmbedded();
    EXPECT_EQ(table->GetString(12894), CString(u"ANOVA"));
    EXPECT_TRUE(table->GetString(1).IsEmpty());
    EXPECT_TRUE(table->GetComboList(1, 1).empty());
    EXPECT_TRUE(table->GetRadioGroup(1).empty());
    EXPECT_EQ(table->GetDialogTemplate(1), nullptr);
    EXPECT_TRUE(table->GetMessageText(1).IsEmpty());
    EXPECT_EQ(table->GetMessageText(100190500),
              CString(u"This analysis is not available in this version of the module."));
}

TEST(Resources, ComboListsFallBackToTheSharedList)
{
    ResourceTable table;
    table.AddFile("a.json", R"({"combos": [
        {"combo": 7, "dialog": 0, "entries": ["SHARED"]},
        {"combo": 7, "dialog": 9, "entries": [{"text": "OWN", "item": 123}, "PLAIN"]}]})");
    EXPECT_EQ(table.GetComboList(7, 9).size(), 2u);
    EXPECT_EQ(table.GetComboList(7, 9)[0].itemId, 123u);
    EXPECT_EQ(table.GetComboList(7, 9)[1].itemId, 0u);
    EXPECT_EQ(table.GetComboList(7, 5)[0].text, CString(u"SHARED"));
}

TEST(Resources, MalformedFilesNameTheFileAndTheProblem)
{
    const std::pair<const char*, const char*> cases[] = {
        {"{\"strings\": {\"12\": }", "parse error"},
        {"{\"strings\": {\"x1\": \"a\"}}", "\"x1\" is not a resource id"},
        {"{\"strings\": {\"1\": 5}}", "expected a text"},
        {"{\"dialogs\": [{\"id\": 1, \"size\": [10, 10], \"controls\": [{\"id\": 2, \"kind\": \"knob\", \"rect\": [0,0,1,1]}]}]}",
         "unknown kind"},
        {"{\"dialogs\": [{\"id\": 1, \"size\": [10, 10], \"controls\": [{\"id\": 2, \"kind\": \"edit\", \"rect\": [0,0,1,1]},"
         " {\"id\": 2, \"kind\": \"edit\", \"rect\": [0,0,1,1]}]}]}",
         "id used twice"},
        {"{\"menus\": [{\"text\": \"M\", \"items\": [{\"text\": \"X\", \"id\": 5}]}]}", "has no handler"},
    };
    for (const auto& [json, reason] : cases) {
        ResourceTable table;
        try {
            table.AddFile("bad.json", json);
            ADD_FAILURE() << "accepted: " << json;
        } catch (const ResourceError& e) {
            const std::string what = e.what();
            EXPECT_NE(what.find("bad.json"), std::string::npos) << what;
            EXPECT_NE(what.find(reason), std::string::npos) << what;
        }
    }
}
