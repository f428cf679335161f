// The kalhost command line: parses the arguments, sets up the host and runs
// one command. Returns the process exit status.
#pragma once

namespace kalhost {

enum ExitStatus : int {
    kExitDone = 0,
    kExitDialogNotConfirmed = 1,
    kExitUsage = 2,
    kExitExpectFailed = 3,
};

int Run(int argc, char** argv);

} // namespace kalhost
