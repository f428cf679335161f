// Logistic regression through kalhost as a user runs it: the sample script
// on its data file, and the settings store across a restart.
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

const std::string kSamples = std::string(KAL_SOURCE_DIR) + "/samples/";

const char* const kChoiceLines = "LOGIT\n"
                                 "SET avail1 avail2 avail3 / INDICATORS\n"
                                 "MODEL mode = cost1+cost2+cost3; CONSTANT+income\n"
                                 "ESTIMATE / CONFI = 0.9 ITER = 100\n";

} // namespace

TEST(KalhostLogit, TheSampleWritesItsTwoSessionsAndIsRememberedAcrossARestart)
{
    TempDir dir;
    const std::vector<std::string> options{"--data", kSamples + "commute.csv", "--store",
                                           dir.Path() + "/settings.store"};
    const auto with = [&](std::vector<std::string> more) {
        std::vector<std::string> all = options;
        all.insert(all.end(), more.begin(), more.end());
        return all;
    };
    const auto r = Kalhost(with({"play", kSamples + "logit.kal"}));
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.err, "");
    EXPECT_EQ(r.out, std::string("LOGIT\n"
                                 "CATEGORY region / DUMMY REF = FIRST\n"
                                 "MODEL car = CONSTANT+income+age+region\n"
                                 "ESTIMATE / ITER = 100\n"
                                 "DECILE / GROUPS = 8\n") +
                         kChoiceLines);

    EXPECT_EQ(Kalhost(with({"commands", "2004"})).out, kChoiceLines);
    const auto reopened = Kalhost(with({"open", "2004", "--actions", "-"}),
                                  "expect items 2684 cost1 cost2 cost3\nexpect text 2694 0.9\npage 2\n"
                                  "expect checked 2727 1\npage 3\nexpect enabled 2742 0\npage 4\ncancel\n");
    EXPECT_EQ(reopened.status, 2);
    EXPECT_NE(reopened.err.find("page 4 is not available"), std::string::npos) << reopened.err;
}
