// Every menu row that has a dialog, through kalhost as a user would: the
// dialog opens headless, every page it can reach is reset, OK runs; after a
// restart `commands` writes what that OK printed; cancel and reopen, OK
// again, and `commands` follows. No assertion report anywhere (and, in the
// sanitizer build, no finding: kalhost would not exit normally). A row is
// covered the moment it becomes available.
#include "tests/support/Kalhost.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

using namespace kaltest;

namespace {

// Rows whose OK is refused until a variable is chosen, and the actions on
// their first page that choose one from the built-in data sheet.
std::string ChooseRequiredVariables(const std::string& id)
{
    // The regressions on the shared model page, the response-surface factor
    // page, the quality charts' measurement list: each shared first page.
    const std::string model = "page 0\nselect 7001 Y\nclick 7004\nselect 7001 X\nclick 7006\n";
    const std::string factors = "page 0\nselect 8701 Y\nclick 8703\nselect 8701 X X2\nclick 8707\n"
                                "cell 8710 1 2 0\ncell 8710 1 3 1\ncell 8710 2 2 0\ncell 8710 2 3 1\n";
    const std::string chart = "page 0\nselect 5461 Y\nclick 5463\n";
    const std::map<std::string, std::string> actions = {
        // Quality
        {"2033", "select 5571 Y\nclick 5573\n"},
        {"2035", chart},
        {"2036", chart},
        {"2037", chart},
        {"2039", "select 9101 Y\nclick 9103\nselect 9101 X\nclick 9107\n"},
        {"2040", "select 5651 Y\nclick 5653\n"},
        {"2042", "select 9201 Y Y2\nclick 9203\n"},
        {"2045", "select 5591 Y\nclick 5593\n"},
        {"2046", "select 9001 B\nclick 9003\n"},
        {"2047", "select 5541 Y\nclick 5543\ntype 5558 10\n"},
        // Multivariate
        {"2017", "select 6781 Y Y2 X\nclick 6782\n"},
        {"2018", "page 0\nselect 6541 Y\nclick 6542\n"},
        {"2019", "page 0\nselect 6601 Y\nclick 6602\n"},
        {"2020", "page 0\nselect 6641 A\nclick 6642\nselect 6641 B\nclick 6646\n"},
        {"2021", "page 0\nselect 6101 B\nclick 6103\nselect 6101 X\nclick 6107\n"},
        {"2022", "select 6151 B\nclick 6153\nselect 6151 X\nclick 6157\n"},
        {"2023", "page 0\nselect 6501 Y Y2\nclick 6502\n"},
        {"2024", "select 6001 Y Y2\nclick 6003\nselect 6001 A\nclick 6007\n"},
        {"2025", "page 0\nselect 2121 Y Y2\nclick 2123\n"},
        {"2028", "select 6201 T1 T2\nclick 6203\n"},
        {"2029", "page 0\nselect 6721 B\nclick 6722\nselect 6721 X\nclick 6728\n"},
        {"2057", "page 0\nselect 6681 Y\nclick 6682\nselect 6681 X\nclick 6690\n"},
        // Regression; two-stage least squares also needs an endogenous
        // regressor and its instrument.
        {"2001", model + "page 1\nselect 7141 X\nclick 7144\nselect 7141 W\nclick 7146\n"},
        {"2030", "page 0\nselect 7601 Y\nclick 7602\ntype 7607 b0*X\ntype 7609 ABS(RESIDUAL)\ncell 7611 1 1 b0\n"
                 "cell 7611 1 2 1\n"},
        {"2032", "page 0\nselect 7701 Y\nclick 7702\nselect 7701 X\nclick 7714\n"},
        {"2050", "select 7751 Y\nclick 7752\n"},
        {"2058", "select 7804 Y\nclick 7805\nselect 7804 X\nclick 7809\n"},
        {"2064", "select 7851 Y\nclick 7852\nselect 7851 X X2\nclick 7856\n"},
        // Mixed models and mixed regression: a dependent variable and the
        // subjects, groups or ids.
        {"2015", "page 0\nselect 8241 Y\nclick 8243\nselect 8241 B\nclick 8255\n"},
        {"2016", "select 8324 B\nclick 8326\nselect 8324 A\nclick 8330\n"},
        {"2067", "page 0\nselect 2121 Y\nclick 2123\npage 1\nselect 8101 B\nclick 8107\n"},
        {"2068", "page 0\nselect 8141 Y\nclick 8143\nselect 8141 B\nclick 8147\n"},
        {"2069", "select 8181 Y\nclick 8183\nselect 8181 B\nclick 8187\n"},
        // Missing values, survival, response surfaces
        {"2014", "page 0\nselect 8501 Y Y2\nclick 8503\n"},
        {"2059", "page 0\nselect 8601 Y\nclick 8603\n"},
        {"2063", factors},
        {"2078", factors + "page 1\ncell 8761 1 2 max\ncell 8761 1 3 0\ncell 8761 1 5 1\n"},
        {"2079", factors},
    };
    static const std::map<std::string, std::string> sameAs = {{"2031", "2030"}, {"2065", "2059"}};
    const auto same = sameAs.find(id);
    if (const auto it = actions.find(same != sameAs.end() ? same->second : id); it != actions.end())
        return it->second;
    for (const char* row : {"2052", "2053", "2054", "2055", "2056", "2070", "2071", "2072", "2074", "2075", "2076"})
        if (id == row)
            return model;
    return {};
}

void ExpectNoAssertion(const ProcessResult& r, const std::string& what)
{
    EXPECT_EQ(r.err.find("assertion:"), std::string::npos) << what << ": " << r.err;
}

// Rows that test the last model a user confirmed: the session that
// confirms one comes first, in the same store.
std::string ModelSessionFor(const std::string& id)
{
    if (id == "2026" || id == "2027")
        return "open 2025\nselect 2121 Y Y2\nclick 2123\nselect 2121 A B\nclick 2137\nok\n";
    std::string glm = "open 2010\nselect 2121 Y Y2\nclick 2123\nselect 2121 A B\nclick 2137\nok\n";
    std::string anova = "open 2008\nselect 1075 Y\nclick 1067\nok\n";
    if (id == "2011" || id == "2012" || id == "2013")
        return glm;
    if (id == "2005" || id == "2006" || id == "2007")
        return "open 2004\nselect 2681 Y\nclick 2685\nselect 2681 X\nclick 2687\nok\n";
    if (id == "2073")
        return "open 2067\nselect 2121 Y\nclick 2123\nselect 2121 A\nclick 2132\npage 1\nselect 8101 B\nclick "
               "8107\nok\n";
    return id == "2009" || id == "2077" ? anova : std::string();
}

void CheckRow(const std::string& id, const std::vector<std::string>& options)
{
    SCOPED_TRACE("command " + id);
    TempDir dir;
    std::vector<std::string> args = options;
    args.insert(args.end(), {"--store", dir.Path() + "/settings.store"});
    const auto with = [&](std::vector<std::string> more) {
        std::vector<std::string> all = args;
        all.insert(all.end(), more.begin(), more.end());
        return all;
    };
    if (const std::string model = ModelSessionFor(id); !model.empty()) {
        ASSERT_EQ(Kalhost(with({"play", "-"}), model).status, 0);
    }

    std::string resetAll;
    const std::vector<int> pages = ReachablePages(id);
    for (const int page : pages)
        resetAll += "page " + std::to_string(page) + "\nreset\n";
    if (pages.empty())
        resetAll = "reset\n";

    const auto first = Kalhost(with({"open", id, "--actions", "-"}), resetAll + ChooseRequiredVariables(id) + "ok\n");
    ASSERT_EQ(first.status, 0) << first.err;
    ExpectNoAssertion(first, "reset and OK");
    EXPECT_FALSE(first.out.empty());
    const auto stored = Kalhost(with({"commands", id}));
    EXPECT_EQ(stored.status, 0) << stored.err;
    EXPECT_EQ(stored.out, first.out);
    ExpectNoAssertion(stored, "commands");

    const auto again = Kalhost(with({"play", "-"}), "open " + id + "\ncancel\nopen " + id + "\nok\n");
    ASSERT_EQ(again.status, 0) << again.err;
    ExpectNoAssertion(again, "cancel, reopen and OK");
    EXPECT_EQ(Kalhost(with({"commands", id})).out, again.out);

    const auto dump = Kalhost({"store-dump", dir.Path() + "/settings.store"});
    EXPECT_EQ(dump.status, 0) << dump.err;
    ExpectNoAssertion(dump, "store-dump");
}

} // namespace

TEST(Conformance, EveryAvailableRowResetsConfirmsAndReloads)
{
    const auto rows = AvailableRows();
    ASSERT_FALSE(rows.empty());
    for (const auto& id : rows)
        CheckRow(id, {});
}

TEST(Conformance, EveryAvailableRowUnderTheHostsOtherPreferences)
{
    if (kUnderSanitizers)
        GTEST_SKIP() << "a repeat sweep: the plain build runs it";
    for (const auto& id : AvailableRows())
        CheckRow(id, {"--write-all", "--decimal", ",", "--matrix", "--module-state", "QC"});
}
