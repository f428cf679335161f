// The resource loader: lookups, fallbacks and malformed files.
#include "refhost/Resources.h"

#include <gtest/gtest.h>

#include <functional>

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
        {"{\"dialogs\": [{\"id\": 1, \"size\": [10, 10], \"controls\": [{\"id\": 2, \"kind\": \"knob\", \"rect\": "
         "[0,0,1,1]}]}]}",
         "unknown kind"},
        {"{\"dialogs\": [{\"id\": 1, \"size\": [10, 10], \"controls\": [{\"id\": 2, \"kind\": \"edit\", \"rect\": "
         "[0,0,1,1]},"
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

// A table that parses its files at the first lookup answers and fails as
// one that was given them one by one.
TEST(Resources, FilesParsedAtTheFirstLookupFailAsFilesAddedAtOnce)
{
    const std::string good = R"({"strings": {"1": "one"}, "messages": {"9": "nine"},
                                  "menus": [{"text": "M", "items": [{"text": "X", "id": 5, "handler": "H",
                                                                    "help": "a.md#x"}]}]})";
    const std::string clash = R"({"strings": {"1": "uno"}})";
    std::string eager;
    try {
        ResourceTable table;
        table.AddFile("good.json", good);
        table.AddFile("clash.json", clash);
    } catch (const ResourceError& e) {
        eager = e.what();
    }
    ASSERT_NE(eager.find("clash.json string 1: defined twice"), std::string::npos) << eager;

    const std::vector<std::function<void(ResourceTable&)>> lookups = {
        [](ResourceTable& t) { t.GetString(1); },
        [](ResourceTable& t) { t.GetMessageText(9); },
        [](ResourceTable& t) { t.GetMenuBar(); },
        [](ResourceTable& t) { t.GetHelpTopic(5); },
        [](ResourceTable& t) { t.GetDialogTemplate(1); },
        [](ResourceTable& t) { t.GetDialogIds(); },
        [](ResourceTable& t) { t.GetComboList(1, 1); },
        [](ResourceTable& t) { t.GetRadioGroup(1); },
        [](ResourceTable& t) { t.Load(); },
        [](ResourceTable& t) { t.AddFile("more.json", "{}"); },
    };
    for (std::size_t i = 0; i < lookups.size(); ++i) {
        ResourceTable lazy({{"good.json", good}, {"clash.json", clash}}); // nothing parsed yet
        for (int attempt = 0; attempt < 2; ++attempt) {
            try {
                lookups[i](lazy);
                ADD_FAILURE() << "lookup " << i << " succeeded";
            } catch (const ResourceError& e) {
                EXPECT_EQ(e.what(), eager) << "lookup " << i << ", attempt " << attempt;
            }
        }
    }

    ResourceTable lazy({{"good.json", good}});
    EXPECT_EQ(lazy.GetString(1), CString(u"one"));
    EXPECT_EQ(lazy.GetMessageText(9), CString(u"nine"));
    EXPECT_EQ(lazy.GetHelpTopic(5), "a.md#x");
    // A file added later comes after the waiting ones.
    try {
        ResourceTable later({{"good.json", good}});
        later.AddFile("clash.json", clash);
        ADD_FAILURE() << "the clash went unnoticed";
    } catch (const ResourceError& e) {
        EXPECT_EQ(e.what(), eager);
    }
    EXPECT_EQ(ResourceTable::Embedded()->GetDialogIds(), ResourceTable::LoadEmbedded()->GetDialogIds());
}
