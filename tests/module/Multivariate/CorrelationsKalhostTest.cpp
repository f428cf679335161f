// The correlations dialog through kalhost: the sample script, and the lines
// a stored session writes after a restart.
#include "tests/support/Process.h"

#include <gtest/gtest.h>

using kaltest::ProcessResult;
using kaltest::RunProcess;
using kaltest::TempDir;

namespace {

ProcessResult Kalhost(const std::vector<std::string>& args, const std::string& input = {})
{
    return RunProcess(KALHOST_PATH, args, input);
}

const std::string kSample = std::string(KAL_SOURCE_DIR) + "/samples/correlations.kal";

} // namespace

TEST(KalhostCorrelations, TheSampleScriptWritesItsThreeAnalyses)
{
    const auto r = Kalhost({"play", kSample});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.err, "");
    EXPECT_EQ(r.out, "CORR\n"
                     "SAVE 'harvests.kvd'\n"
                     "PEARSON T1 T2 T3 / PAIRWISE BONF\n"
                     "CORR\n"
                     "SPEARMAN Y Y2*X X2 / EM T = 8\n"
                     "CORR\n"
                     "CITYBLOCK Y Y2 X X2 / SAMPLE = BOOT(500)\n");
}

TEST(KalhostCorrelations, ARestartWritesWhatTheLastOkWrote)
{
    TempDir dir;
    const std::string store = dir.Path() + "/settings.store";
    const auto played = Kalhost({"--store", store, "play", kSample});
    ASSERT_EQ(played.status, 0) << played.err;
    const auto stored = Kalhost({"--store", store, "commands", "2002"});
    EXPECT_EQ(stored.status, 0) << stored.err;
    EXPECT_EQ(stored.out, "CORR\nCITYBLOCK Y Y2 X X2 / SAMPLE = BOOT(500)\n");

    // The options page, out of use for distances, is back with its
    // choices for a measure it serves.
    const auto reopened = Kalhost({"--store", store, "open", "2002", "--actions", "-"},
                                  "click 1423\nexpect items 1438 Y Y2 X X2\npage 1\n"
                                  "expect checked 1402 1\nexpect checked 1412 1\nexpect text 1399 8\nok\n");
    EXPECT_EQ(reopened.status, 0) << reopened.err;
    EXPECT_EQ(reopened.out, "CORR\nPEARSON Y Y2 X X2 / EM T = 8 SAMPLE = BOOT(500)\n");
    EXPECT_EQ(Kalhost({"--store", store, "commands", "2002"}).out, reopened.out);
}
