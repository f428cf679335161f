// The Help button of every available dialog, headless through kalhost: it
// names the user's page of the analysis and where that page is, and leaves
// the dialog as it was; the page leads to the section of docs/commands.md
// that documents the analysis's lines (the heading that carries its command
// id, anchored as GitHub renders it).
#include "tests/support/Kalhost.h"

#include <gtest/gtest.h>

#include <cctype>
#include <fstream>
#include <map>
#include <sstream>

using namespace kaltest;

namespace {

// A heading's anchor as GitHub makes it: lower case, punctuation dropped,
// blanks turned into hyphens.
std::string Anchor(const std::string& heading)
{
    std::string anchor;
    for (const char c : heading) {
        if (std::isalnum(static_cast<unsigned char>(c)) || c == '-' || c == '_')
            anchor += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        else if (c == ' ')
            anchor += '-';
    }
    return anchor;
}

// Command id -> the anchor of the section whose heading names it.
std::map<std::string, std::string> SectionsByCommand()
{
    std::map<std::string, std::string> sections;
    std::ifstream doc(std::string(KAL_SOURCE_DIR) + "/docs/commands.md");
    for (std::string line; std::getline(doc, line);) {
        if (!line.starts_with("## "))
            continue;
        const std::string heading = line.substr(3);
        for (std::size_t open = heading.find('('); open != std::string::npos; open = heading.find('(', open + 1)) {
            const std::size_t close = heading.find(')', open);
            const std::string inside = heading.substr(open + 1, close - open - 1);
            if (!inside.empty() && inside.find_first_not_of("0123456789") == std::string::npos)
                sections[inside] = Anchor(heading);
        }
    }
    return sections;
}

} // namespace

TEST(Help, EveryAvailableDialogOpensAUsersPageThatLeadsToItsSection)
{
    if (kUnderSanitizers)
        GTEST_SKIP() << "a repeat sweep: the plain build runs it";
    const auto sections = SectionsByCommand();
    ASSERT_FALSE(sections.empty());
    const auto rows = AvailableRows();
    ASSERT_FALSE(rows.empty());
    for (const std::string& id : rows) {
        SCOPED_TRACE("command " + id);
        ASSERT_TRUE(sections.count(id)) << "docs/commands.md has no section headed with (" << id << ")";
        // Help, then Help again from the keyboard's page: the dialog stays
        // open and unchanged, so OK writes (or refuses) what it would have.
        const auto plain = Kalhost({"open", id, "--actions", "-"}, "ok\n");
        const auto r = Kalhost({"open", id, "--actions", "-"}, "click 9\nclick 9\nok\n");
        EXPECT_EQ(r.status, plain.status) << r.err;
        EXPECT_EQ(r.out, plain.out);
        EXPECT_EQ(r.err.find("assertion:"), std::string::npos) << r.err;
        // The user's page of the analysis, found in the docs, names the
        // command and links to the reference of its lines.
        const std::string said = "kalhost: help for command " + id + ": ";
        const std::size_t at = r.err.find(said);
        ASSERT_NE(at, std::string::npos) << r.err;
        const std::size_t from = at + said.size();
        const std::string topic = r.err.substr(from, r.err.find(' ', from) - from);
        ASSERT_TRUE(topic.starts_with("help/")) << r.err;
        EXPECT_NE(r.err.find("/docs/" + topic + ")"), std::string::npos) << r.err;
        std::ifstream file(std::string(KAL_SOURCE_DIR) + "/docs/" + topic);
        std::stringstream text;
        text << file.rdbuf();
        EXPECT_NE(text.str().find("(command " + id + ")"), std::string::npos) << topic;
        EXPECT_NE(text.str().find("../commands.md#" + sections.at(id) + ")"), std::string::npos) << topic;
    }
}

TEST(Help, GitHubAnchorsAreMadeAsGitHubMakesThem)
{
    EXPECT_EQ(Anchor("Analysis of variance: estimate model (2008)"), "analysis-of-variance-estimate-model-2008");
    EXPECT_EQ(Anchor("Control charts: Shewhart (2041) and individuals and moving range (2043)"),
              "control-charts-shewhart-2041-and-individuals-and-moving-range-2043");
}
