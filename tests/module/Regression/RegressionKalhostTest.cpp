// Linear regression through kalhost as a user runs it: the sample script,
// the settings store across a restart, and the host's data kind and
// current module reaching the lines.
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

const std::string kSample = std::string(KAL_SOURCE_DIR) + "/samples/regression.kal";

const char* const kStepwiseLines = "REGRESS\n"
                                   "MODEL Y = CONSTANT+X+X2+W\n"
                                   "SAVE 'residuals.kvd' / RESIDUALS\n"
                                   "START / FORWARD FENTER = 5\n"
                                   "STEP / AUTO\n"
                                   "STOP / CONFI = 0.9\n";

} // namespace

TEST(KalhostRegression, TheSampleWritesItsTwoSessionsAndIsRememberedAcrossARestart)
{
    TempDir dir;
    const std::string store = dir.Path() + "/settings.store";
    const auto r = Kalhost({"--store", store, "play", kSample});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.err, "");
    EXPECT_EQ(r.out, std::string("REGRESS\n"
                                 "MODEL Y = CONSTANT+X+X2\n"
                                 "SAVE 'residuals.kvd' / RESIDUALS\n"
                                 "ESTIMATE / CONFI = 0.9 NTEST = SW\n") +
                         kStepwiseLines);

    EXPECT_EQ(Kalhost({"--store", store, "commands", "2051"}).out, kStepwiseLines);
    // After quality charts the module is left first.
    EXPECT_EQ(Kalhost({"--store", store, "--module-state", "QC", "commands", "2051"}).out,
              std::string("EXIT\n") + kStepwiseLines);
    const auto reopened = Kalhost({"--store", store, "open", "2051", "--actions", "-"},
                                  "expect items 4103 X X2 W\npage 1\nexpect checked 4172 1\nexpect text 4153 5\n"
                                  "expect enabled 4151 0\npage 3\nexpect enabled 4176 0\ncancel\n");
    EXPECT_EQ(reopened.status, 1) << reopened.err;
}

TEST(KalhostRegression, MatrixDataStateTheCasesAndHaveNoConstant)
{
    const auto r = Kalhost({"--matrix", "open", "2051", "--actions", "-"},
                           "select 4101 Y\nclick 4104\nselect 4101 X\nclick 4106\nexpect enabled 4108 0\n"
                           "type 4109 -5\nok\ntype 4109 270\nok\n");
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.err, "message 2012: The value is out of range.\n");
    EXPECT_EQ(r.out, "REGRESS\nMODEL Y = X/N=270\nESTIMATE /\n");
}
