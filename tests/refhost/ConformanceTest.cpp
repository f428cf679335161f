// Every menu row that has a dialog, through kalhost as a user would: the
// dialog opens headless, every page it can reach is reset, OK runs; after a
// restart `commands` writes what that OK printed; cancel and reopen, OK
// again, and `commands` follows. No assertion report anywhere (and, in the
// sanitizer build, no finding: kalhost would not exit normally). A row is
// covered the moment it becomes available.
#include "tests/support/Kalhost.h"

#include <gtest/gtest.h>

using namespace kaltest;

namespace {

// Rows whose OK is refused until a variable is chosen, and the actions on
// their first page that choose one from the built-in data sheet.
std::string ChooseRequiredVariables(const std::string& id)
{
    if (id == "2035" || id == "2036" || id == "2037")
        return "page 0\nselect 5461 Y\nclick 5463\n";
    if (id == "2033")
        return "select 5571 Y\nclick 5573\n";
    if (id == "2040")
        return "select 5651 Y\nclick 5653\n";
    if (id == "2045")
        return "select 5591 Y\nclick 5593\n";
    if (id == "2047")
        return "select 5541 Y\nclick 5543\ntype 5558 10\n";
    if (id == "2014")
        return "page 0\nselect 8501 Y Y2\nclick 8503\n";
    if (id == "2059" || id == "2065")
        return "page 0\nselect 8601 Y\nclick 8603\n";
    if (id == "2063" || id == "2078" || id == "2079") {
        const std::string factors = "page 0\nselect 8701 Y\nclick 8703\nselect 8701 X X2\nclick 8707\n"
                                    "cell 8710 1 2 0\ncell 8710 1 3 1\ncell 8710 2 2 0\ncell 8710 2 3 1\n";
        return id == "2078" ? factors + "page 1\ncell 8761 1 2 max\ncell 8761 1 3 0\ncell 8761 1 5 1\n" : factors;
    }
    if (id == "2023")
        return "page 0\nselect 6501 Y Y2\nclick 6502\n";
    if (id == "2018")
        return "page 0\nselect 6541 Y\nclick 6542\n";
    if (id == "2019")
        return "page 0\nselect 6601 Y\nclick 6602\n";
    if (id == "2020")
        return "page 0\nselect 6641 A\nclick 6642\nselect 6641 B\nclick 6646\n";
    if (id == "2057")
        return "page 0\nselect 6681 Y\nclick 6682\nselect 6681 X\nclick 6690\n";
    if (id == "2029")
        return "page 0\nselect 6721 B\nclick 6722\nselect 6721 X\nclick 6728\n";
    if (id == "2017")
        return "select 6781 Y Y2 X\nclick 6782\n";
    if (id == "2030" || id == "2031")
        return "page 0\nselect 7601 Y\nclick 7602\ntype 7607 b0*X\ntype 7609 ABS(RESIDUAL)\ncell 7611 1 1 b0\n"
               "cell 7611 1 2 1\n";
    if (id == "2058")
        return "select 7804 Y\nclick 7805\nselect 7804 X\nclick 7809\n";
    if (id == "2064")
        return "select 7851 Y\nclick 7852\nselect 7851 X X2\nclick 7856\n";
    if (id == "2032")
        return "page 0\nselect 7701 Y\nclick 7702\nselect 7701 X\nclick 7714\n";
    if (id == "2050")
        return "select 7751 Y\nclick 7752\n";
    // The mixed models and mixed regression: a dependent variable and the
    // subjects, groups or ids.
    if (id == "2067")
        return "page 0\nselect 2121 Y\nclick 2123\npage 1\nselect 8101 B\nclick 8107\n";
    if (id == "2068")
        return "page 0\nselect 8141 Y\nclick 8143\nselect 8141 B\nclick 8147\n";
    if (id == "2069")
        return "select 8181 Y\nclick 8183\nselect 8181 B\nclick 8187\n";
    if (id == "2015")
        return "page 0\nselect 8241 Y\nclick 8243\nselect 8241 B\nclick 8255\n";
    if (id == "2016")
        return "select 8324 B\nclick 8326\nselect 8324 A\nclick 8330\n";
    // The regressions on the shared model page; two-stage least squares
    // also needs an endogenous regressor and its instrument.
    constexpr const char* kModel = "page 0\nselect 7001 Y\nclick 7004\nselect 7001 X\nclick 7006\n";
    if (id == "2001")
        return std::string(kModel) + "page 1\nselect 7141 X\nclick 7144\nselect 7141 W\nclick 7146\n";
    for (const char* row : {"2052", "2053", "2054", "2055", "2056", "2070", "2071", "2072", "2074", "2075", "2076"})
        if (id == row)
            return kModel;
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
    std::string glm = "open 2010\nselect 2121 Y Y2\nclick 2123\nselect 2121 A B\nclick 2137\nok\n";
    std::string anova = "open 2008\nselect 1075 Y\nclick 1067\nok\n";
    if (id == "2011" || id == "2012" || id == "2013" || id == "2027")
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
    for (const auto& id : AvailableRows())
        CheckRow(id, {"--write-all", "--decimal", ",", "--matrix", "--module-state", "QC"});
}
