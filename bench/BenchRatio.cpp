#include "bench/BenchRatio.h"

#include <cstdio>

namespace kalbench {

void RatioReporter::ReportRuns(const std::vector<Run>& runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const auto& run : runs) {
        if (run.run_type != Run::RT_Iteration || run.error_occurred)
            continue;
        // Compare by the registered name: drop a "/iterations:N" suffix.
        std::string name = run.benchmark_name();
        if (const auto at = name.find("/iterations:"); at != std::string::npos)
            name.erase(at);
        m_seconds[name] = run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
        // The label lists "baseline=<name>" entries separated by ';'.
        const std::string& label = run.report_label;
        for (std::size_t at = label.find("baseline="); at != std::string::npos; at = label.find("baseline=", at)) {
            at += 9;
            const std::size_t end = label.find(';', at);
            m_pairs.emplace_back(name, label.substr(at, end == std::string::npos ? std::string::npos : end - at));
        }
    }
}

void RatioReporter::Finalize()
{
    ConsoleReporter::Finalize();
    std::printf("\n%-58s %-40s %10s\n", "measurement", "baseline (same run)", "ratio");
    for (const auto& [name, baseline] : m_pairs) {
        const auto a = m_seconds.find(name);
        const auto b = m_seconds.find(baseline);
        if (a == m_seconds.end() || b == m_seconds.end() || b->second <= 0)
            continue;
        std::printf("%-58s %-40s %10.2f\n", name.c_str(), baseline.c_str(), a->second / b->second);
    }
}

int RunBenchmarks(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}

} // namespace kalbench
