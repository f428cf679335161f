// kalhost as a user runs it: scripts and data files in, command lines,
// messages and exit statuses out. Dialog sessions that need nothing but a
// script and its lines live in tests/scripts.
#include "tests/support/Kalhost.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

using namespace kaltest;

namespace {

std::string Sample(const std::string& name)
{
    return std::string(KAL_SOURCE_DIR) + "/samples/" + name;
}

const char* const kExampleLines = "ANOVA\n"
                                  "DEPEND Y\n"
                                  "CATEGORY A B / REPLACE MISS\n"
                                  "COVAR X\n"
                                  "ESTIMATE / SS = TYPE3\n";

} // namespace

TEST(KalhostAnova, ReopeningShowsTheLastChoicesInOnePlayAndAcrossRuns)
{
    const auto r = Kalhost({"play", Sample("anova-reopen.kal")});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_NE(r.out.find("SAVE 'results 2026.kvd' / MODEL\n"), std::string::npos) << r.out;

    TempDir dir;
    const std::string store = dir.Path() + "/settings.store";
    // The README's example, remembered across runs.
    const auto example = Kalhost({"--store", store, "play", Sample("anova.kal")});
    EXPECT_EQ(example.status, 0) << example.err;
    EXPECT_EQ(example.out, kExampleLines);
    const auto again = Kalhost({"--store", store, "open", "2008", "--actions", "-"},
                               "expect items 1071 Y\nexpect items 1069 X\nexpect checked 1076 1\nok\n");
    EXPECT_EQ(again.status, 0) << again.err;
    EXPECT_EQ(again.out, kExampleLines);

    const auto dump = Kalhost({"store-dump", store});
    EXPECT_EQ(dump.status, 0);
    EXPECT_NE(dump.out.find("command 2008, CAnovaTabData"), std::string::npos) << dump.out;
    EXPECT_NE(dump.out.find("  DEPEND Y\n"), std::string::npos);
    // After a restart the stored settings write what the OK printed.
    const auto lines = Kalhost({"--store", store, "commands", "2008"});
    EXPECT_EQ(lines.out, kExampleLines);
}

TEST(KalhostStore, AStoreCutShortLosesOnlyItsLastEntry)
{
    TempDir dir;
    const std::string store = dir.Path() + "/s.store";
    ASSERT_EQ(Kalhost({"--store", store, "play", Sample("anova.kal")}).status, 0);
    ASSERT_EQ(Kalhost({"--store", store, "play", Sample("regression.kal")}).status, 0);
    // The dump writes what the stored settings write, the constant included.
    const auto whole = Kalhost({"store-dump", store});
    EXPECT_NE(whole.out.find("  MODEL Y = CONSTANT+X+X2+W\n"), std::string::npos) << whole.out;
    std::filesystem::resize_file(store, std::filesystem::file_size(store) - 5);

    const auto r = Kalhost({"--store", store, "commands", "2008"});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, kExampleLines); // the intact entry is used
    EXPECT_NE(r.err.find("entry for command 2051: the file ends inside it"), std::string::npos) << r.err;
    EXPECT_NE(r.err.find("set aside in " + store + ".unreadable"), std::string::npos) << r.err;
    // The part set aside can be read as far as it goes; the store keeps the rest.
    const auto aside = Kalhost({"store-dump", store + ".unreadable"});
    EXPECT_EQ(aside.status, 0);
    EXPECT_NE(aside.out.find("0 entries, 1 damaged part\n"), std::string::npos) << aside.out;
    const auto kept = Kalhost({"store-dump", store});
    EXPECT_NE(kept.out.find(": 1 entry\ncommand 2008"), std::string::npos) << kept.out;
}

TEST(KalhostRouting, UnknownCommandsAreBadUsageAndTheListShowsTheRows)
{
    // Refused commands: tests/scripts/refused-command.kal; a row without its
    // analysis: HandlerTest.
    const auto unknown = Kalhost({"open", "2044"});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_EQ(unknown.err, "kalhost: no menu command 2044\n");

    const auto list = Kalhost({"list"});
    EXPECT_EQ(list.status, 0);
    EXPECT_EQ(list.out.rfind("DlgStat2 Module\n", 0), 0u) << list.out;
    // A row reads id, menu path and title, classes, status.
    const auto row = [](const std::string& out, const std::string& id) {
        const std::size_t at = out.find("\n" + id + " ");
        return at == std::string::npos ? std::string() : out.substr(at + 1, out.find('\n', at + 1) - at - 1);
    };
    const std::string anova = row(list.out, "2008");
    EXPECT_LT(anova.find("Analysis of Variance > Estimate Model..."), anova.find("CAnalysisofVarianceMsg")) << anova;
    EXPECT_TRUE(anova.ends_with(" available")) << anova;
    const std::string plots = row(list.out, "2079");
    EXPECT_TRUE(plots.ends_with(" available") && !plots.ends_with(" not available")) << plots;
    // The filter leaves out exactly the rows whose analysis the module
    // lacks, if any.
    const auto available = Kalhost({"list", "--available"});
    EXPECT_EQ(row(available.out, "2008"), anova);
    std::istringstream rows(list.out);
    for (std::string line; std::getline(rows, line);) {
        const std::string id = line.substr(0, line.find(' '));
        if (line.ends_with(" not available")) {
            EXPECT_EQ(row(available.out, id), "") << line;
        } else if (line.ends_with(" available")) {
            EXPECT_EQ(row(available.out, id), line);
        }
    }
}

TEST(KalhostScripts, FiltersNarrowSourceListsAndRefusedNumbersNameTheirField)
{
    // Hidden variables keep their selection but stay where they are; a
    // hidden name cannot be picked, and target lists have no filter.
    const auto filtered = Kalhost({"open", "2008", "--actions", "-"},
                                  "select 1075 X Y\nfilter 1075 y\nexpect items 1075 Y Y2\nclick 1067\n"
                                  "filter 1075\nclick 1066\nok\n");
    EXPECT_EQ(filtered.status, 0) << filtered.err;
    EXPECT_EQ(filtered.out, "ANOVA\nDEPEND Y\nCATEGORY A B / REPLACE\nCOVAR X\nESTIMATE / SS = TYPE3\n");
    const auto hidden = Kalhost({"open", "2008", "--actions", "-"}, "filter 1075 T\nselect 1075 X\n");
    EXPECT_EQ(hidden.status, 2);
    EXPECT_NE(hidden.err.find("does not show \"X\": its filter \"T\" hides it"), std::string::npos) << hidden.err;
    EXPECT_EQ(Kalhost({"open", "2008", "--actions", "-"}, "filter 1071 Y\n").status, 2);

    const auto refused = Kalhost({"open", "2051", "--actions", "-"}, "page 1\nclick 4172\ntype 4156 0\nok\n");
    EXPECT_EQ(refused.err.rfind("message 2012: The value is out of range. Maximum steps: a whole number from 1 to "
                                "2147483647.\n",
                                0),
              0u)
        << refused.err;
    const auto open =
        Kalhost({"--data", Sample("commute.csv"), "open", "2004", "--actions", "-"}, "page 3\ntype 2744 0\nok\n");
    EXPECT_NE(open.err.find("Convergence: a number greater than 0.\n"), std::string::npos) << open.err;
}

TEST(KalhostScripts, StandardInputIsNamedAndBadUsageSaysSo)
{
    const auto bad = Kalhost({"play", "-"}, "open 2008\nselect 1075 Y\nclik 1067\nok\n");
    EXPECT_EQ(bad.status, 2);
    EXPECT_EQ(bad.out, ""); // nothing ran
    EXPECT_EQ(bad.err, "kalhost: standard input line 3: unknown action \"clik\"\n");

    // Other bad lines and failed checks: tests/scripts/script-*.kal.
    const auto cancelled = Kalhost({"open", "2008", "--actions", "-"}, "cancel\n");
    EXPECT_EQ(cancelled.status, 1);
    const auto nested = Kalhost({"open", "2008", "--actions", "-"}, "open 2008\n");
    EXPECT_EQ(nested.status, 2);
    EXPECT_EQ(Kalhost({"open"}).status, 2);
    EXPECT_EQ(Kalhost({"--decimal", "ab", "list"}).status, 2);
}

TEST(KalhostPreferences, DecimalSeparatorsThatWouldReadAsSomethingElseAreRefused)
{
    for (const char* bad : {"5", " ", "'", "\"", "e", "/", "\t", "\xC3\xA9"}) {
        const auto r = Kalhost({"--decimal", bad, "commands", "2008"});
        EXPECT_EQ(r.status, 2) << bad;
        EXPECT_EQ(r.out, "");
        EXPECT_NE(r.err.find("--decimal takes one punctuation character"), std::string::npos) << r.err;
    }
    EXPECT_EQ(Kalhost({"--decimal", ",", "commands", "2008"}).status, 0);
}

TEST(KalhostStore, QuotedNamesAndRepeatedMeasuresSurviveARestart)
{
    TempDir dir;
    const auto csv = dir.Write("d.csv", "\"a/b\",c\n1,2\n3,4\n");
    const std::string store = dir.Path() + "/s.store";
    const auto ok = Kalhost({"--data", csv, "--store", store, "open", "2008", "--actions", "-"},
                            "select 1075 a/b c\nclick 1067\npage 1\ncheck 4193 1\nok\n");
    EXPECT_EQ(ok.status, 0) << ok.err;
    // The slash inside the name introduces no option: the clause brings its own.
    EXPECT_NE(ok.out.find("DEPEND 'a/b' c/ REPEAT = 2\n"), std::string::npos) << ok.out;
    EXPECT_EQ(Kalhost({"--data", csv, "--store", store, "commands", "2008"}).out, ok.out);
    const auto dump = Kalhost({"store-dump", store});
    EXPECT_NE(dump.out.find("  DEPEND 'a/b' c/ REPEAT = 2\n  CATEGORY / OFF\n"), std::string::npos) << dump.out;
}

TEST(KalhostCommandLine, TellsWhatItIsWhatItWantsAndHowItEnded)
{
    const auto version = Kalhost({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.out.rfind("kalhost ", 0), 0u) << version.out;

    const auto bare = Kalhost({"--store", "x.store"});
    EXPECT_EQ(bare.status, 2);
    EXPECT_EQ(bare.out.rfind("Usage: kalhost", 0), 0u) << bare.out;
    EXPECT_NE(bare.out.find("samples/anova.kal"), std::string::npos) << bare.out;

    const auto bogus = Kalhost({"--write-all", "bogus", "2008"});
    EXPECT_EQ(bogus.status, 2);
    EXPECT_NE(bogus.err.find("unknown subcommand \"bogus\""), std::string::npos) << bogus.err;

    for (const char* sub : {"list", "open", "play", "commands", "store-dump"}) {
        const auto help = Kalhost({sub, "--help"});
        EXPECT_EQ(help.status, 0) << sub;
        EXPECT_NE(help.out.find("Exit status: 0 done; 1 the last dialog"), std::string::npos) << sub;
        EXPECT_NE(help.out.find("docs/action-language.md"), std::string::npos) << sub;
    }

    // A dialog nobody can act in says what to do instead.
    const auto idle = Kalhost({"open", "2008"});
    EXPECT_EQ(idle.status, 1);
    EXPECT_NE(idle.err.find("give it an action script (--actions FILE"), std::string::npos) << idle.err;

    // Output that cannot be written is a failure.
    const auto full = RunProcess("/bin/sh", {"-c", std::string("'") + KALHOST_PATH + "' list > /dev/full"});
    EXPECT_EQ(full.status, 2);
    EXPECT_NE(full.err.find("standard output cannot be written"), std::string::npos) << full.err;
}

TEST(KalhostScripts, EveryCommandOfAPlayIsCheckedBeforeTheFirstDialogOpens)
{
    TempDir dir;
    const std::string store = dir.Path() + "/s.store";
    const auto r =
        Kalhost({"--store", store, "play", "-"}, "open 2008\nselect 1075 Y\nclick 1067\nok\n\nopen 4242\nok\n");
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(r.out, ""); // nothing ran
    EXPECT_EQ(r.err, "kalhost: standard input line 6: no menu command 4242\n");

    // A failure after confirmed work keeps that work in the store.
    const auto later = Kalhost({"--store", store, "play", "-"},
                               "open 2008\nselect 1075 Y\nclick 1067\nok\nopen 2008\nselect 1075 Nope\n");
    EXPECT_EQ(later.status, 2);
    EXPECT_NE(Kalhost({"--store", store, "commands", "2008"}).out.find("DEPEND Y\n"), std::string::npos);
}

TEST(KalhostData, BadDataFilesAreRefusedWithFileLineAndColumn)
{
    TempDir dir;
    const auto dup = dir.Write("dup.csv", "a,b,a\n1,2,3\n");
    const auto ragged = dir.Write("ragged.csv", "a,b\n1,2\n3\n");
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{"--data", dup, "list"}, dup + " line 1, column 3: variable name \"a\" is already used in column 1"},
        {{"--data", ragged, "list"}, ragged + " line 3, column 2: 1 values where the header names 2 variables"},
        {{"--data", dir.Path() + "/none.csv", "list"}, "none.csv: cannot be read"},
        {{"--categorical", "Q", "list"}, "--categorical: the data sheet has no variable named \"Q\""},
    };
    for (const auto& [args, message] : cases) {
        const auto r = Kalhost(args);
        EXPECT_EQ(r.status, 2);
        EXPECT_NE(r.err.find(message), std::string::npos) << r.err;
        EXPECT_EQ(r.out, "");
    }
    const auto plants =
        Kalhost({"--data", Sample("plants.csv"), "--categorical", "dose", "play", Sample("plants.kal")});
    EXPECT_EQ(plants.status, 0) << plants.err;
    EXPECT_NE(plants.out.find("CATEGORY dose soil$ / REPLACE\n"), std::string::npos);
}

TEST(KalhostWindow, ScreenshotsRenderWithoutADisplayAndOkStillRuns)
{
    const auto plugin = std::filesystem::path(KALHOST_PATH).parent_path() / "libkalqtview.so";
    if (!std::filesystem::exists(plugin))
        GTEST_SKIP() << "built without the Qt view";
    TempDir dir;
    const std::string picture = dir.Path() + "/anova.png";
    const auto script = dir.Write("a.kal", "select 1075 Y\nclick 1067\npage 2\ncheck 1081 1\n");
    const auto open = Kalhost({"open", "2008", "--gui", "--screenshot", picture, "--actions", script});
    EXPECT_EQ(open.status, 0) << open.err; // the picture was the point: the dialog may stay open
    EXPECT_EQ(open.err, "");
    std::ifstream png(picture, std::ios::binary);
    char signature[8] = {};
    png.read(signature, sizeof signature);
    EXPECT_EQ(std::string(signature, 8), "\x89PNG\r\n\x1a\n");
    EXPECT_GT(std::filesystem::file_size(picture), 5000u);

    const auto ok = dir.Write("ok.kal", "select 1075 Y\nclick 1067\nok\n");
    const auto confirmed = Kalhost({"open", "2008", "--gui", "--screenshot", picture, "--actions", ok});
    EXPECT_EQ(confirmed.status, 0) << confirmed.err;
    EXPECT_EQ(confirmed.out, "ANOVA\nDEPEND Y\nCATEGORY A B / REPLACE\nCOVAR \nESTIMATE / SS = TYPE3\n");

    EXPECT_EQ(Kalhost({"open", "2008", "--screenshot", picture}).status, 2); // needs --gui
    // A window needs a display; a picture does not.
    const auto headless = RunProcess(
        "/bin/sh", {"-c", std::string("env -u DISPLAY -u WAYLAND_DISPLAY '") + KALHOST_PATH + "' open 2008 --gui"});
    EXPECT_EQ(headless.status, 2);
    EXPECT_NE(headless.err.find("--gui needs a display"), std::string::npos) << headless.err;

    // The file name's extension chooses the format.
    const std::string jpeg = dir.Path() + "/anova.jpg";
    EXPECT_EQ(Kalhost({"open", "2008", "--gui", "--screenshot", jpeg, "--actions", script}).status, 0);
    std::ifstream jpg(jpeg, std::ios::binary);
    char start[3] = {};
    jpg.read(start, sizeof start);
    EXPECT_EQ(std::string(start, 3), "\xFF\xD8\xFF");
    const auto unknown =
        Kalhost({"open", "2008", "--gui", "--screenshot", dir.Path() + "/anova.nope", "--actions", script});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_NE(unknown.err.find("the file name's extension chooses the format"), std::string::npos) << unknown.err;
}
