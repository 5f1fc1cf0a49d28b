#include "task/functions/recordstatistics.h"

#include <cstring>

namespace {

/// Sums are folded away after so many: a sum of single precision that grows for all the 1500 aggregations of the
/// longest interval would lose the last digits of what it takes.
constexpr int kMostInPart = 32;

/// The floats of a record: two runs, with the counters of energy between them.
struct Run
{
    int first, count; // words
};
constexpr int kWord = sizeof(float);
constexpr int kEnergy = offsetof(__datagram_aggregation, energy) / kWord;
constexpr int kBehindEnergy = offsetof(__datagram_aggregation, spectrum) / kWord;
constexpr int kFrequency = offsetof(__datagram_aggregation, frequency) / kWord;
constexpr int kReserved = offsetof(__datagram_aggregation, reserved) / kWord;
static_assert(kEnergy == kReserved + 1, "no float stands between");
constexpr Run kRuns[] = {
    { kFrequency, kReserved - kFrequency },
    { kBehindEnergy, int(sizeof(__datagram_aggregation)) / kWord - kBehindEnergy },
};

const float *words(const __datagram_aggregation &record)
{
    return reinterpret_cast<const float *>(&record);
}

float *words(__datagram_aggregation &record)
{
    return reinterpret_cast<float *>(&record);
}

void sweep(const float *__restrict value, float *__restrict sum, float *__restrict maximum, float *__restrict minimum,
           int count)
{
    for (int i = 0; i < count; ++i) {
        sum[i] += value[i];
        maximum[i] = value[i] > maximum[i] ? value[i] : maximum[i];
        minimum[i] = value[i] < minimum[i] ? value[i] : minimum[i];
    }
}

} // namespace

RecordStatistics::RecordStatistics() : m_records(new Records)
{
    clear();
}

void RecordStatistics::clear()
{
    std::memset(static_cast<void *>(m_records.get()), 0, sizeof(Records));
    m_angles.clear();
    m_count = 0;
    m_partCount = 0;
}

void RecordStatistics::take(const __datagram_aggregation &record, const EnergyRow (&energy)[kChannels])
{
    Records &r = *m_records;
    if (m_count++ == 0) {
        r.part = r.maximum = r.minimum = record;
        for (auto *extreme : { &r.maximum, &r.minimum })
            std::memset(extreme->energy, 0, sizeof extreme->energy);
    } else {
        for (const Run &run : kRuns)
            sweep(words(record) + run.first, words(r.part) + run.first, words(r.maximum) + run.first,
                  words(r.minimum) + run.first, run.count);
    }
    std::memcpy(r.sum.energy, energy, sizeof r.sum.energy);
    m_angles.take(record);
    if (++m_partCount == kMostInPart)
        foldPart();
}

void RecordStatistics::foldPart()
{
    for (const Run &run : kRuns) {
        float *sum = words(m_records->sum) + run.first, *part = words(m_records->part) + run.first;
        for (int i = 0; i < run.count; ++i) {
            sum[i] += part[i];
            part[i] = 0;
        }
    }
    m_partCount = 0;
}

void RecordStatistics::finish()
{
    if (m_count == 0)
        return;
    foldPart();
    for (const Run &run : kRuns) {
        float *sum = words(m_records->sum) + run.first;
        for (int i = 0; i < run.count; ++i)
            sum[i] /= float(m_count);
    }
    m_angles.putInto(m_records->sum);
}
