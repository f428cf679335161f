#include "bench/BenchRatio.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace kalbench {

namespace {

double Min(const std::vector<double>& v)
{
    return *std::min_element(v.begin(), v.end());
}

double Median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    const std::size_t n = v.size();
    return n % 2 ? v[n / 2] : (v[n / 2 - 1] + v[n / 2]) / 2;
}

} // namespace

void RatioReporter::ReportRuns(const std::vector<Run>& runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const auto& run : runs) {
        if (run.run_type != Run::RT_Iteration || run.error_occurred)
            continue;
        // Compare by the registered name, without the suffixes the library
        // adds.
        std::string name = run.benchmark_name();
        for (const char* suffix : {"/iterations:", "/repeats:"})
            if (const auto at = name.find(suffix); at != std::string::npos)
                name.erase(at);
        auto& times = m_seconds[name];
        times.push_back(run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit));
        for (const auto& [counter, value] : run.counters)
            m_counters[name][counter].push_back(value.value);
        if (times.size() > 1)
            continue; // the goals are known from the first repetition
        const std::string& label = run.report_label;
        std::size_t from = 0;
        while (from < label.size()) {
            const std::size_t end = std::min(label.find(';', from), label.size());
            const std::string entry = label.substr(from, end - from);
            from = end + 1;
            const std::size_t equals = entry.find('=');
            if (equals == std::string::npos)
                continue;
            const std::string key = entry.substr(0, equals);
            std::string target = entry.substr(equals + 1);
            double limit = 0;
            if (const auto at = target.find('@'); at != std::string::npos) {
                limit = std::strtod(target.c_str() + at + 1, nullptr);
                target.erase(at);
            }
            if (key == "baseline")
                m_goals.push_back({Kind::Ratio, name, target, limit});
            else if (key == "over")
                m_goals.push_back({Kind::Over, name, target, limit});
            else if (key == "at_most")
                m_goals.push_back({Kind::AtMost, name, target, limit});
        }
    }
}

void RatioReporter::Finalize()
{
    ConsoleReporter::Finalize();
    std::printf("\n%-30s %-34s %10s %10s %8s\n", "measurement", "against (same run)", "min", "median", "goal");
    for (const auto& goal : m_goals) {
        const auto mine = m_seconds.find(goal.name);
        if (mine == m_seconds.end())
            continue;
        double min = 0;
        double median = 0;
        std::string against = goal.against;
        if (goal.kind == Kind::AtMost) {
            if (goal.against == "ms") {
                min = Min(mine->second) * 1e3;
                median = Median(mine->second) * 1e3;
            } else {
                const auto& counters = m_counters[goal.name];
                const auto counter = counters.find(goal.against);
                if (counter == counters.end())
                    continue;
                min = Min(counter->second);
                median = Median(counter->second);
            }
            against = "(" + against + ")";
        } else {
            const auto base = m_seconds.find(goal.against);
            if (base == m_seconds.end() || Min(base->second) <= 0)
                continue;
            if (goal.kind == Kind::Ratio) {
                min = Min(mine->second) / Min(base->second);
                median = Median(mine->second) / Median(base->second);
            } else {
                min = (Min(mine->second) - Min(base->second)) * 1e3;
                median = (Median(mine->second) - Median(base->second)) * 1e3;
                against = "ms over " + against;
            }
        }
        std::printf("%-30s %-34s %10.2f %10.2f", goal.name.c_str(), against.c_str(), min, median);
        if (goal.limit > 0)
            std::printf(" %8.1f %s", goal.limit, min <= goal.limit ? "met" : "OVER");
        std::printf("\n");
    }
}

namespace {

std::string Entry(const char* key, const std::string& target, double limit)
{
    std::string entry = std::string(key) + "=" + target;
    if (limit > 0) {
        char number[32];
        std::snprintf(number, sizeof number, "@%g", limit);
        entry += number;
    }
    return entry;
}

} // namespace

std::string Baseline(const std::string& name, double ratio)
{
    return Entry("baseline", name, ratio);
}

std::string Over(const std::string& name, double ms)
{
    return Entry("over", name, ms);
}

std::string AtMost(const std::string& counter, double value)
{
    return Entry("at_most", counter, value);
}

std::string Label(std::initializer_list<std::string> entries)
{
    std::string label;
    for (const auto& entry : entries)
        if (!entry.empty())
            label += (label.empty() ? "" : ";") + entry;
    return label;
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
