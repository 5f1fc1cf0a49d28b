#include "task/functions/recordblocks.h"

#include "model/channelset.h"
#include "task/functions/recordstatistics.h"

#include <cstring>

namespace RecordBlocks {

namespace {

void append(QByteArray *bytes, const __datagram_aggregation &record, int place, int count)
{
    bytes->append(reinterpret_cast<const char *>(&record) + place, count);
}

bool isRecorded(const ChannelSet &wiring, int channel)
{
    return wiring.recordMask >> channel & 1;
}

/// A line of a group of spectra, counted from the first of all lines of its kind.
int firstLine(const RecordGroup &group)
{
    constexpr int kKind = kHarmonicOrders * int(sizeof(SpectrumLine));
    constexpr int kLines = int(offsetof(__datagram_aggregation, spectrum) + offsetof(ChannelSpectrum, voltageInter));
    return (group.first - kLines) % kKind / int(sizeof(SpectrumLine));
}

/// Harmonics and interharmonics stand in turn, interharmonics first.
bool isInterharmonic(const RecordGroup &group)
{
    constexpr int kKind = kHarmonicOrders * int(sizeof(SpectrumLine));
    constexpr int kLines = int(offsetof(__datagram_aggregation, spectrum) + offsetof(ChannelSpectrum, voltageInter));
    return (group.first - kLines) / kKind % 2 == 0;
}

/// So many lines of a group were measured; the others are not.
int measuredLines(const RecordGroup &group, int orders)
{
    if (orders >= kHarmonicOrders)
        return group.count;
    return isInterharmonic(group) ? 0 : qBound(0, orders - firstLine(group), group.count);
}

void storeAngles(qint64 time, const RecordAngles &angles, const ChannelSet &wiring, const Store &store)
{
    static_assert(kRecordAngleGroups == RecordAngles::kGroups, "a block for each group");
    for (int group = 0; group < kRecordAngleGroups; ++group) {
        float means[kChannels];
        int count = 0;
        for (int c = 0; c < kChannels; ++c) {
            if (isRecorded(wiring, c))
                means[count++] = angles.mean(RecordAngles::Group(group), c);
        }
        store(CommonFile, kRecordFirstAngleType + quint32(group), payload(time, means, count * int(sizeof(float))));
    }
}

/// The payload without the lines that the instrument does not measure.
QByteArray measuredPayload(qint64 time, const RecordGroup &group, const __datagram_aggregation &record,
                           const ChannelSet &wiring, int orders)
{
    QByteArray bytes = groupPayload(time, group, record, wiring);
    const int lines = group.distortion ? measuredLines(group, orders) : group.count;
    const int channelBytes = (2 + group.count) * int(sizeof(float));
    const int unmeasured = (group.count - lines) * int(sizeof(float));
    for (int end = kRecordTimeBytes + channelBytes; unmeasured > 0 && end <= bytes.size(); end += channelBytes)
        std::memset(bytes.data() + end - unmeasured, 0, std::size_t(unmeasured));
    return bytes;
}

} // namespace

QByteArray payload(qint64 time, const void *values, int bytes)
{
    static_assert(sizeof time == kRecordTimeBytes, "as stored");
    QByteArray block(reinterpret_cast<const char *>(&time), kRecordTimeBytes);
    return block.append(static_cast<const char *>(values), bytes);
}

QByteArray groupPayload(qint64 time, const RecordGroup &group, const __datagram_aggregation &record,
                        const ChannelSet &wiring)
{
    QByteArray block = payload(time, nullptr, 0);
    block.reserve(kRecordTimeBytes + recordGroupBytes(group, wiring));
    for (int c = 0; c < (group.channelStride ? kChannels : 1); ++c) {
        if (group.channelStride && !isRecorded(wiring, c))
            continue;
        const int offset = c * group.channelStride;
        if (group.distortion) {
            append(&block, record, group.distortion + offset, sizeof(float));
            append(&block, record, group.fundamental + offset, sizeof(float));
        }
        for (int i = 0; i < group.count; ++i)
            append(&block, record, group.first + offset + i * group.stride, group.bytes);
    }
    return block;
}

void storeInterval(qint64 time, quint32 items, const RecordStatistics &statistics, const ChannelSet &wiring, int orders,
                   const Store &store)
{
    for (const RecordGroup &group : recordGroups()) {
        if (!(items & group.item))
            continue;
        const auto put = [&](quint32 type, const __datagram_aggregation &record) {
            if (type)
                store(group.file, type, measuredPayload(time, group, record, wiring, orders));
        };
        put(group.mean, statistics.mean());
        put(group.maximum, statistics.maximum());
        put(group.minimum, statistics.minimum());
        if (group.item == RecordInfo::CommonRms)
            storeAngles(time, statistics.angles(), wiring, store);
    }
}

} // namespace RecordBlocks
