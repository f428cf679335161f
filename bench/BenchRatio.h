// Benchmarks here report each measurement as a ratio to a baseline measured
// in the same run (copying the same bytes, or the same work at a smaller
// size), so that figures compare across machines. Each benchmark names its
// baselines in its label ("baseline=<name>;baseline=<name>"); the reporter
// prints the ratios after the usual table.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace kalbench {

class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    std::map<std::string, double> m_seconds; // per iteration, by benchmark name
    std::vector<std::pair<std::string, std::string>> m_pairs; // name, baseline name
};

// Runs the registered benchmarks with the ratio reporter; a main for bench
// programs.
int RunBenchmarks(int argc, char** argv);

} // namespace kalbench
