// kalhost as a user runs it: scripts and data files in, command lines,
// messages and exit statuses out.
#include "tests/support/Process.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using kaltest::ProcessResult;
using kaltest::RunProcess;
using kaltest::TempDir;

namespace {

ProcessResult Kalhost(const std::vector<std::string>& args, const std::string& input = {})
{
    return RunProcess(KALHOST_PATH, args, input);
}

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

TEST(KalhostAnova, TheExampleThroughTheMenuCommand)
{
    const auto r = Kalhost({"play", Sample("anova.kal")});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, kExampleLines);
    EXPECT_EQ(r.err, "");

    // The same from standard input with open --actions.
    const auto piped = Kalhost({"open", "2008", "--actions", "-"},
                               "select 1075 Y\nclick 1067\ncheck 1076 1\nselect 1075 X\nclick 1066\nok\n");
    EXPECT_EQ(piped.status, 0) << piped.err;
    EXPECT_EQ(piped.out, kExampleLines);
}

TEST(KalhostAnova, RepeatedMeasuresAndNoFactors)
{
    TempDir dir;
    const auto csv = dir.Write("d.csv", "Y1,Y2,G$\n1,2,a\n3,4,b\n");
    const auto r = Kalhost({"--data", csv, "open", "2008", "--actions", "-"},
                           "select 1075 Y1 Y2\nclick 1067\nexpect items 1073 G$\nselect 1073 G$\nclick 1090\n"
                           "page 1\ncheck 4193 1\nok\n");
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "ANOVA\nDEPEND Y1 Y2/ REPEAT = 2\nCATEGORY / OFF\nCOVAR \nESTIMATE / SS = TYPE3\n");
}

TEST(KalhostAnova, ReopeningShowsTheLastChoicesInOnePlayAndAcrossRuns)
{
    const auto r = Kalhost({"play", Sample("anova-reopen.kal")});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_NE(r.out.find("SAVE 'results 2026.kvd' / MODEL\n"), std::string::npos) << r.out;

    TempDir dir;
    const std::string store = dir.Path() + "/settings.store";
    EXPECT_EQ(Kalhost({"--store", store, "play", Sample("anova.kal")}).status, 0);
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

TEST(KalhostRouting, RefusedAndUnavailableCommandsOpenNothing)
{
    const auto refused = Kalhost({"--no-data", "open", "2008", "--actions", "-"}, "ok\n");
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.out, "");
    EXPECT_EQ(refused.err, "message 100190495: This command cannot be run now.\n");

    // 2070 is in the regression menu; its analysis is not in this module.
    const auto routed = Kalhost({"open", "2070"});
    EXPECT_EQ(routed.status, 1);
    EXPECT_EQ(routed.err, "message 100190500: This analysis is not available in this version of the module.\n");

    const auto unknown = Kalhost({"open", "2044"});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_EQ(unknown.err, "kalhost: no menu command 2044\n");

    const auto list = Kalhost({"list"});
    EXPECT_EQ(list.status, 0);
    EXPECT_EQ(list.out.rfind("DlgStat2 Module\n", 0), 0u) << list.out;
    EXPECT_NE(list.out.find("2008  CAnalysisofVarianceMsg"), std::string::npos);
    EXPECT_NE(list.out.find("2070  CRegressionMsg"), std::string::npos);
}

TEST(KalhostScripts, BadLinesFailedChecksAndDialogsLeftOpen)
{
    const auto bad = Kalhost({"play", "-"}, "open 2008\nselect 1075 Y\nclik 1067\nok\n");
    EXPECT_EQ(bad.status, 2);
    EXPECT_EQ(bad.out, ""); // nothing ran
    EXPECT_EQ(bad.err, "kalhost: standard input line 3: unknown action \"clik\"\n");

    const auto missing = Kalhost({"play", "-"}, "open 2008\nselect 1075 Nope\nok\n");
    EXPECT_EQ(missing.status, 2);
    EXPECT_EQ(missing.err, "kalhost: standard input line 2: list 1075 has no item \"Nope\"\n");

    const auto expect = Kalhost({"play", "-"}, "open 2008\nselect 1075 Y\nclick 1067\nexpect items 1071 X\nok\n");
    EXPECT_EQ(expect.status, 3);
    EXPECT_EQ(expect.err, "kalhost: standard input line 4: expected X, found Y\n");

    const auto open = Kalhost({"play", "-"}, "open 2008\nselect 1075 Y\n");
    EXPECT_EQ(open.status, 1);
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

TEST(KalhostPreferences, WriteAllWritesTheValuesThatGoWithoutSaying)
{
    const std::string script = "open 2008\nselect 1075 Y\nclick 1067\npage 3\nclick 5402\nok\n";
    EXPECT_NE(Kalhost({"play", "-"}, script).out.find("ESTIMATE / SS = TYPE3 SAMPLE = BOOT(1000)\n"),
              std::string::npos);
    const auto all = Kalhost({"--write-all", "play", "-"}, script);
    EXPECT_NE(all.out.find("ESTIMATE / SS = TYPE3 SAMPLE = BOOT(1000, 0) RSEED = 0\n"), std::string::npos) << all.out;
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

TEST(KalhostScripts, TypedTextCannotAddAClause)
{
    // Names are quoted like variable names; a metric must be numbers.
    const auto r = Kalhost({"play", "-"}, "open 2008\nselect 1075 T1 T2 T3\nclick 1067\npage 1\ncheck 4193 1\n"
                                          "cell 4192 1 1 \"harvest / SS = TYPE1\"\ncell 4192 1 2 3\n"
                                          "cell 4192 1 3 \"1,2,4; ANOVA\"\nok\n"
                                          "cell 4192 1 3 1,2\nok\n"
                                          "cell 4192 1 3 \"1, 2,4\"\nok\n");
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.err, "message 2013: A metric lists one number for each level of its factor, separated by commas, "
                     "such as 1,2,4.\nmessage 2013: A metric lists one number for each level of its factor, "
                     "separated by commas, such as 1,2,4.\n");
    EXPECT_NE(r.out.find("DEPEND T1 T2 T3/ REPEAT = 3(1, 2,4), NAMES = 'harvest / SS = TYPE1'\n"), std::string::npos)
        << r.out;

    const auto twice = Kalhost({"open", "2008", "--actions", "-"},
                               "select 1075 T1 T2 T3 Y\nclick 1067\npage 1\ncheck 4193 1\ncell 4192 1 1 t\n"
                               "cell 4192 1 2 2\ncell 4192 2 1 t\ncell 4192 2 2 2\nok\ncancel\n");
    EXPECT_EQ(twice.err, "message 2014: Each factor needs a name of its own.\n");

    // A checked save box needs a file; no text may hold a control character.
    const auto save = Kalhost({"open", "2008", "--actions", "-"},
                              "select 1075 Y\nclick 1067\ncheck 1091 1\nok\ntype 1093 \"a\tb.kvd\"\nok\n"
                              "type 1093 out.kvd\nok\n");
    EXPECT_EQ(save.status, 0) << save.err;
    EXPECT_EQ(save.err, "message 2015: Please enter the name of the file to save to.\n"
                        "message 2016: The text cannot hold line breaks, tabs or other control characters.\n");
    EXPECT_NE(save.out.find("SAVE 'out.kvd' / RESIDUALS/DATA\n"), std::string::npos) << save.out;
}

TEST(KalhostSessions, ARegressionAfterAChartLeavesTheQualityModuleFirst)
{
    const std::string chart = "open 2041\nselect 4386 weight\nclick 4367\nselect 4386 lot\nclick 4366\nok\n";
    const std::string regression = "open 2051\nselect 4101 weight\nclick 4104\nselect 4101 lot\nclick 4106\nok\n";
    const auto r = Kalhost({"--data", Sample("fill-weights.csv"), "play", "-"}, chart + regression + regression);
    EXPECT_EQ(r.status, 0) << r.err;
    // QC, then EXIT before the first REGRESS only: the host is in the
    // regression module from then on.
    const auto qc = r.out.find("QC\n");
    const auto exit = r.out.find("EXIT\nREGRESS\n");
    ASSERT_NE(qc, std::string::npos) << r.out;
    ASSERT_NE(exit, std::string::npos) << r.out;
    EXPECT_LT(qc, exit);
    EXPECT_EQ(r.out.find("EXIT", exit + 1), std::string::npos) << r.out;
    EXPECT_NE(r.out.find("MODEL weight = CONSTANT+lot\n"), std::string::npos) << r.out;
}

TEST(KalhostScripts, AValidationFailureKeepsTheDialogOpen)
{
    const auto r = Kalhost({"play", "-"}, "open 2008\nselect 1075 Y Y2\nclick 1067\npage 1\ncheck 4193 1\n"
                                          "cell 4192 1 2 3\nok\ncell 4192 1 2 2\nok\n");
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.err, "message 2007: With one repeated-measures factor its number of levels must equal the number "
                     "of dependent variables.\n");
    EXPECT_NE(r.out.find("DEPEND Y Y2/ REPEAT = 2\n"), std::string::npos);
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
