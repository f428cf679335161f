// Benchmarks here report each measurement against a baseline measured in
// the same run (copying the same bytes, the same work at a smaller size,
// starting `true`), so that figures compare across machines. A benchmark
// names what it is held to in its label, entries separated by ';':
//   baseline=<name>[@<ratio>]   its time over <name>'s, at most <ratio>
//   over=<name>@<ms>            its time minus <name>'s, at most <ms>
//   at_most=<counter>@<value>   a counter it sets (or "ms", its time)
// Run with --benchmark_repetitions=N, minimum is compared with minimum and
// median with median; the reporter prints one row per entry after the
// usual table, marking each goal met or OVER.
#pragma once

#include <benchmark/benchmark.h>

#include <initializer_list>
#include <map>
#include <string>
#include <vector>

namespace kalbench {

class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    enum class Kind { Ratio, Over, AtMost };
    struct Goal {
        Kind kind;
        std::string name;    // the measurement
        std::string against; // a baseline's name, or a counter's
        double limit = 0;    // 0: none
    };
    // Per measurement, every repetition: its time in seconds per iteration
    // and its counters.
    std::map<std::string, std::vector<double>> m_seconds;
    std::map<std::string, std::map<std::string, std::vector<double>>> m_counters;
    std::vector<Goal> m_goals;
};

// Label entries, and a label of several.
std::string Baseline(const std::string& name, double ratio = 0);
std::string Over(const std::string& name, double ms);
std::string AtMost(const std::string& counter, double value);
std::string Label(std::initializer_list<std::string> entries);

// Runs the registered benchmarks with the ratio reporter; a main for bench
// programs.
int RunBenchmarks(int argc, char** argv);

} // namespace kalbench
