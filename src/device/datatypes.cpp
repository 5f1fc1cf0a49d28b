#include "device/datatypes.h"

#include "device/datagramkinds.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr float kConverterLimit = 10; // converter units that a half-cycle value is held to
constexpr quint32 kMaxCountWord = 2 * kRmsEntries; // the count word counts voltages and currents

/// One pair of half-cycle values on the wire.
struct WireEntry
{
    quint32 voltageSeconds; // s since 1970
    quint32 voltageMilliseconds; // ms to add
    float voltage; // converter units
    quint32 currentSeconds;
    quint32 currentMilliseconds;
    float current;
};

/// Half-cycle values of one channel on the wire.
struct WireBlock
{
    quint32 count; // of values: twice the entries
    WireEntry entry[kRmsEntries];
};
static_assert(sizeof(WireBlock) == 4 * 181, "as on the wire");
static_assert(4 * Link::kTimeWords + 3 * sizeof(WireBlock) == 4 * Link::kRmsWords, "three channels");

qint64 wireTime(quint32 seconds, quint32 milliseconds)
{
    return qint64(1000) * seconds + milliseconds;
}

float limited(float value)
{
    return value > kConverterLimit ? kConverterLimit : value < -kConverterLimit ? -kConverterLimit : value;
}

} // namespace

bool DataTypes::fits(__datagramtype kind, const QByteArray &payload)
{
    return kind >= 0 && kind < kDatagramKindCount && payload.size() >= emittedBytes(kDatagramKinds[kind]);
}

void DataTypes::datagramRMS_1_2(__datagram_rms *record, const char *payload, const ScaleTable &scales)
{
    for (int c = 0; c < 3; ++c) {
        WireBlock block;
        memcpy(&block, payload + 4 * Link::kTimeWords + static_cast<size_t>(c) * sizeof(block), sizeof(block));
        const quint32 n = std::min(block.count, kMaxCountWord) / 2;
        RmsSeries &voltage = record->voltage[c];
        RmsSeries &current = record->current[c];
        voltage.count = n;
        current.count = n;
        for (quint32 i = 0; i < n; ++i) {
            const WireEntry &from = block.entry[i];
            voltage.entry[i].time = wireTime(from.voltageSeconds, from.voltageMilliseconds);
            voltage.entry[i].value = limited(from.voltage) * scales.voltage[c];
            current.entry[i].time = wireTime(from.currentSeconds, from.currentMilliseconds);
            current.entry[i].value = limited(from.current) * scales.current[c];
        }
    }
}

void DataTypes::datagramWave(__datagram_wave *record, const char *payload)
{
    constexpr size_t kBlock = sizeof(record->voltage[0]);
    memcpy(&record->time, payload, sizeof(record->time));
    payload += sizeof(record->time);
    for (int c = 0; c < kChannels; ++c, payload += 2 * kBlock) {
        memcpy(record->voltage[c], payload, kBlock);
        memcpy(record->current[c], payload + kBlock, kBlock);
    }
    memcpy(&record->transient, payload, sizeof(record->transient));
}

void DataTypes::datagramFlicker(__datagram_flicker *record, const char *payload)
{
    static_assert(sizeof(*record) == sizeof(qint64) + 6004, "the record is the payload");
    memcpy(record, payload, sizeof(*record));
}

void DataTypes::datagramAggregation(__datagram_aggregation *record, const char *payload, const DecodeSettings &by)
{
    // The arrays of the link are aligned for words; others are moved first.
    alignas(16) float moved[Link::kAggregationWords];
    if (reinterpret_cast<quintptr>(payload) % alignof(float) != 0) {
        memcpy(moved, payload, sizeof(moved));
        payload = reinterpret_cast<const char *>(moved);
    }
    const float *values = reinterpret_cast<const float *>(payload);
    memcpy(&record->time, payload, sizeof(record->time));
    memcpy(&record->frequency, payload + sizeof(record->time), sizeof(record->frequency));
    aggregation_vif(record, values, by);
    aggregation_harm(record, values, by);
    aggregation_unbalance(record);
    aggregation_power(record, values, by);
    aggregation_mainssig(record, values, by);
}
