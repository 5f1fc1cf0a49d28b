#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

/// Runs the registered benchmarks several times in turn and prints pairs of them as ratios: the machine's mood then
/// touches a figure and its limit alike. The smallest time of each counts.
class Ratios : public benchmark::ConsoleReporter
{
public:
    struct Pair
    {
        const char *what;
        const char *figure; // name of a benchmark
        const char *limit; // name of the one beside it
        double goal; // 0: for comparison only
    };
    /// What a figure is measured in. A busy machine leaves the processor time alone.
    enum Time { RealTime, ProcessorTime };

    void ReportRuns(const std::vector<Run> &runs) override
    {
        benchmark::ConsoleReporter::ReportRuns(runs);
        for (const Run &run : runs) {
            if (run.run_type != Run::RT_Iteration)
                continue;
            const double time = m_time == RealTime ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime();
            const auto known = m_times.find(run.run_name.function_name);
            if (known == m_times.end())
                m_times[run.run_name.function_name] = time;
            else
                known->second = std::min(known->second, time);
        }
    }

    /// Answers the exit status: 0. A missed goal is printed, not failed: a busy machine misses it too.
    static int run(int argc, char **argv, Time time, const std::vector<Pair> &pairs)
    {
        benchmark::Initialize(&argc, argv);
        Ratios reporter;
        reporter.m_time = time;
        constexpr int kRounds = 5;
        for (int round = 0; round < kRounds; ++round)
            benchmark::RunSpecifiedBenchmarks(&reporter);
        for (const Pair &pair : pairs) {
            const auto figure = reporter.m_times.find(pair.figure), limit = reporter.m_times.find(pair.limit);
            if (figure == reporter.m_times.end() || limit == reporter.m_times.end() || limit->second <= 0)
                continue;
            const double ratio = figure->second / limit->second;
            if (pair.goal > 0)
                std::printf("ratio %s: %.2f (goal: at most %.2f)%s\n", pair.what, ratio, pair.goal,
                            ratio <= pair.goal ? "" : " MISSED");
            else
                std::printf("ratio %s: %.2f\n", pair.what, ratio);
        }
        return 0;
    }

private:
    Time m_time = ProcessorTime;
    std::map<std::string, double> m_times;
};
