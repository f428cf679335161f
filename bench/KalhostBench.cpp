// kalhost as a whole process.
//  - start-up: `kalhost list` (load the library, build the module, list,
//    release) against `true`, both started in the same run with their
//    output discarded: at most 1 ms more;
//  - a CSV of 1,000 cases and 10,000 or 100,000 variables: load the sheet,
//    open 2008, move 1,000 variables, confirm. Linear work gives a ratio
//    near 10 between the two. Each run's peak resident set is reported as
//    peak_MB; the large sheet is held to a ceiling.
#include "bench/BenchRatio.h"
#include "tests/support/Process.h"

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <memory>
#include <spawn.h>
#include <string>
#include <sys/wait.h>

extern char** environ;

namespace {

constexpr int kCases = 1000;
constexpr int kMoved = 1000;

kaltest::TempDir& Scratch()
{
    static kaltest::TempDir dir;
    return dir;
}

// Writes the CSV and the script for `variables` once per run.
std::pair<std::string, std::string> Inputs(int variables)
{
    const std::string csv = Scratch().Path() + "/wide-" + std::to_string(variables) + ".csv";
    const std::string script = Scratch().Path() + "/move-" + std::to_string(variables) + ".kal";
    if (!std::ifstream(csv)) {
        std::ofstream out(csv, std::ios::binary);
        std::string line;
        for (int v = 0; v < variables; ++v)
            line += (v ? ",V" : "V") + std::to_string(v);
        out << line << '\n';
        // One digit per cell keeps the file as small as such a sheet can be.
        line.clear();
        for (int v = 0; v < variables; ++v) {
            line += static_cast<char>('0' + v % 10);
            line += v + 1 < variables ? ',' : '\n';
        }
        for (int c = 0; c < kCases; ++c)
            out << line;
        std::ofstream s(script);
        s << "select 1075";
        for (int i = 0; i < kMoved; ++i)
            s << " V" << i * (variables / kMoved);
        s << "\nclick 1066\nok\n";
    }
    return {csv, script};
}

void Spawn(benchmark::State& state, const std::string& program, const std::vector<std::string>& args,
           const std::string& label)
{
    long peakKiB = 0;
    for (auto _ : state) {
        const auto result = kaltest::RunProcess(program, args);
        if (result.status != 0)
            state.SkipWithError(("exit status " + std::to_string(result.status) + ": " + result.err).c_str());
        peakKiB = std::max(peakKiB, result.peakKiB);
    }
    // The largest resident set any of the runs reached.
    state.counters["peak_MB"] = static_cast<double>(peakKiB) / 1024;
    state.SetLabel(label);
}

// Starts `program` with every standard stream on /dev/null and waits for
// it. Start-up is about a millisecond; the temporary files RunProcess
// creates and removes for each run vary by several on a busy disk.
int StartAndWait(const std::string& program, const std::vector<std::string>& args)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
    std::vector<char*> argv{const_cast<char*>(program.c_str())};
    for (const auto& a : args)
        argv.push_back(const_cast<char*>(a.c_str()));
    argv.push_back(nullptr);
    pid_t pid = 0;
    int status = -1;
    if (posix_spawn(&pid, program.c_str(), &actions, nullptr, argv.data(), environ) == 0)
        while (waitpid(pid, &status, 0) < 0) {
        }
    posix_spawn_file_actions_destroy(&actions);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void StartUp(benchmark::State& state, const std::string& program, const std::vector<std::string>& args,
             const std::string& label)
{
    for (auto _ : state) {
        if (StartAndWait(program, args) != 0) {
            const auto result = kaltest::RunProcess(program, args); // again, for the message
            state.SkipWithError(("exit status " + std::to_string(result.status) + ": " + result.err).c_str());
        }
    }
    state.SetLabel(label);
}

void WideSheet(benchmark::State& state, int variables, const std::string& label)
{
    const auto [csv, script] = Inputs(variables);
    Spawn(state, KALHOST_PATH, {"--data", csv, "open", "2008", "--actions", script}, label);
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::RegisterBenchmark("spawn_true", StartUp, std::string("/bin/true"), std::vector<std::string>{},
                                 std::string())
        ->Unit(benchmark::kMillisecond);
    // Start-up is a fixed cost, so its goal is a time over `true`, not a ratio.
    benchmark::RegisterBenchmark("kalhost_list", StartUp, std::string(KALHOST_PATH), std::vector<std::string>{"list"},
                                 kalbench::Over("spawn_true", 1))
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("kalhost_wide_csv/10000", WideSheet, 10'000, std::string())
        ->Unit(benchmark::kMillisecond)
        ->Iterations(5);
    benchmark::RegisterBenchmark(
        "kalhost_wide_csv/100000", WideSheet, 100'000,
        kalbench::Label({kalbench::Baseline("kalhost_wide_csv/10000"), kalbench::AtMost("peak_MB", 30)}))
        ->Unit(benchmark::kMillisecond)
        ->Iterations(2);
    return kalbench::RunBenchmarks(argc, argv);
}
