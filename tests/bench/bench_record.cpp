// What the recorder does with one aggregation, mean, maximum, minimum and the directions of its angles, beside one
// plain pass over the same words that adds, compares and compares.
#include "bench/ratios.h"
#include "task/functions/recordstatistics.h"

#include <cstring>
#include <memory>

namespace {

constexpr int kWords = sizeof(__datagram_aggregation) / sizeof(float);
constexpr EnergyRow kEnergy[kChannels] = {};

/// Two plausible records that differ everywhere.
std::unique_ptr<__datagram_aggregation> makeRecord(float factor)
{
    auto record = std::make_unique<__datagram_aggregation>();
    auto *words = reinterpret_cast<float *>(record.get());
    for (int word = 0; word < kWords; ++word)
        words[word] = factor * float(word % 97) - 20.0f;
    return record;
}

void statisticsOfOneAggregation(benchmark::State &state)
{
    const auto first = makeRecord(1.0f), second = makeRecord(1.5f);
    RecordStatistics statistics;
    for (auto _ : state) {
        statistics.take(*first, kEnergy);
        statistics.take(*second, kEnergy);
        benchmark::ClobberMemory();
    }
}

void plainPass(benchmark::State &state)
{
    const auto first = makeRecord(1.0f), second = makeRecord(1.5f);
    static float sum[kWords], maximum[kWords], minimum[kWords];
    benchmark::DoNotOptimize(&sum[0]);
    for (auto _ : state) {
        for (const auto *record : { first.get(), second.get() }) {
            const auto *words = reinterpret_cast<const float *>(record);
            for (int i = 0; i < kWords; ++i) {
                sum[i] += words[i];
                maximum[i] = words[i] > maximum[i] ? words[i] : maximum[i];
                minimum[i] = words[i] < minimum[i] ? words[i] : minimum[i];
            }
            benchmark::ClobberMemory();
        }
    }
}

BENCHMARK(statisticsOfOneAggregation);
BENCHMARK(plainPass);

} // namespace

int main(int argc, char **argv)
{
    return Ratios::run(
        argc, argv, Ratios::ProcessorTime,
        { { "statistics of an aggregation / add, compare, compare", "statisticsOfOneAggregation", "plainPass", 1.5 } });
}
