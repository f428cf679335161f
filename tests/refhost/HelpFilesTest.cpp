// Where kalhost finds the help of a dialog: the topic its menu names, in
// the installed docs or in the sources of a build tree, and what it says
// when the document is in neither.
#include "refhost/HelpFiles.h"
#include "refhost/Resources.h"
#include "tests/support/Process.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using kalhost::FindHelpDocument;
using kalhost::ResourceError;
using kalhost::ResourceTable;

namespace fs = std::filesystem;

namespace {

void Touch(const fs::path& file, const std::string& text = "# Commands\n")
{
    fs::create_directories(file.parent_path());
    std::ofstream(file) << text;
}

} // namespace

TEST(HelpFiles, TheInstalledDocsComeFirstThenTheSourcesOfABuildTree)
{
    kaltest::TempDir dir;
    const fs::path root = dir.Path();
    const std::string topic = "commands.md#linear-regression-2051";

    // An installed tree: the docs beside the program's directory.
    Touch(root / "inst/bin/kalhost");
    const fs::path installed = (root / "inst/bin" / KAL_DOCDIR_FROM_BINDIR / "commands.md").lexically_normal();
    Touch(installed);
    const auto fromInstalled = FindHelpDocument(topic, root / "inst/bin");
    ASSERT_TRUE(fromInstalled.Found());
    EXPECT_EQ(fromInstalled.file, installed);
    EXPECT_EQ(fromInstalled.anchor, "linear-regression-2051");
    EXPECT_EQ(fromInstalled.Url(), "file://" + installed.string() + "#linear-regression-2051");

    // A build tree: the docs of the sources its cache names, which may lie
    // anywhere (here under a name that a URL must encode).
    const fs::path sources = root / "my sources";
    Touch(sources / "docs/commands.md");
    fs::create_directories(root / "build/bin");
    Touch(root / "build/CMakeCache.txt",
          "CMAKE_BUILD_TYPE:STRING=Debug\nCMAKE_HOME_DIRECTORY:INTERNAL=" + sources.string() + "\n");
    const auto fromBuild = FindHelpDocument(topic, root / "build/bin");
    ASSERT_TRUE(fromBuild.Found());
    EXPECT_EQ(fromBuild.file, sources / "docs/commands.md");
    EXPECT_NE(fromBuild.Url().find("/my%20sources/docs/commands.md#linear-regression-2051"), std::string::npos)
        << fromBuild.Url();
    EXPECT_EQ(fromBuild.searched.size(), 2u);
}

TEST(HelpFiles, AMissingDocumentSaysWhereItWasLookedFor)
{
    kaltest::TempDir dir;
    const fs::path root = dir.Path();
    fs::create_directories(root / "build/bin");
    Touch(root / "build/CMakeCache.txt", "CMAKE_HOME_DIRECTORY:INTERNAL=" + (root / "gone").string() + "\n");

    const auto missing = FindHelpDocument("commands.md#correlations-2002", root / "build/bin");
    EXPECT_FALSE(missing.Found());
    EXPECT_EQ(missing.Url(), "");
    ASSERT_EQ(missing.searched.size(), 2u);
    const std::string said = missing.Describe();
    EXPECT_NE(said.find("commands.md#correlations-2002"), std::string::npos) << said;
    for (const fs::path& place : missing.searched)
        EXPECT_NE(said.find(place.string()), std::string::npos) << said;
    EXPECT_EQ(missing.searched[1], root / "gone/docs/commands.md");

    // Without a topic there is nothing to look for.
    const auto none = FindHelpDocument("", root / "build/bin");
    EXPECT_TRUE(none.searched.empty());
    EXPECT_EQ(none.Describe(), "there is no help for this dialog");
}

TEST(HelpFiles, TheMenuNamesTheTopicOfEachCommand)
{
    ResourceTable table;
    table.AddFile("menu.json", R"({"menus": [{"text": "&Analysis", "handler": "CMsg", "items": [
        {"text": "&One", "items": [{"text": "&Two...", "id": 7, "help": "commands.md#two-7"}]},
        {"text": "&Three...", "id": 8}]}]})");
    EXPECT_EQ(table.GetHelpTopic(7), "commands.md#two-7");
    EXPECT_EQ(table.GetHelpTopic(8), "");
    EXPECT_EQ(table.GetHelpTopic(0), "");

    ResourceTable bad;
    EXPECT_THROW(bad.AddFile("bad.json", R"({"menus": [{"text": "M", "help": "commands.md"}]})"), ResourceError);
    EXPECT_THROW(bad.AddFile("bad.json", R"({"menus": [{"text": "M", "handler": "H", "id": 3, "help": 5}]})"),
                 ResourceError);
}
