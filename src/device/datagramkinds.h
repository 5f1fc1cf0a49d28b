#pragma once

#include "device/datagramtypes.h"

#include <iterator>

/// What the link knows of a kind of datagram beforehand; none of it travels on the wire.
struct DatagramKind
{
    __datagramtype type;
    const char *name; // of the signal that carries it
    int words; // with the two time words
    int skippedBytes; // cut off in front before it is emitted
    bool emitted;
};

/// One row per kind, in the order of the values.
inline constexpr DatagramKind kDatagramKinds[] = {
    { DatagramAggregation, "datagramAggregation", Link::kAggregationWords, 0, true },
    { DatagramRMS_1_2, "datagramRMS_1_2", Link::kRmsWords, 0, true },
    { DatagramTransient, "datagramTransient", Link::kTransientWords, 0, false }, // Kept: assembled, not emitted
    { DatagramWave, "datagramWave", Link::kWaveWords, 0, true },
    { DatagramFlicker, "datagramFlicker", Link::kFlickerWords, 0, true },
    { DatagramFirmwareInfo, "datagramFirmwareInfo", Link::kFirmwareInfoWords, 4 * Link::kTimeWords, true },
    { DatagramUpdate, "datagramUpdate", Link::kUpdateWords, 0, true },
};
constexpr int kDatagramKindCount = static_cast<int>(std::size(kDatagramKinds));
static_assert(kDatagramKinds[kDatagramKindCount - 1].type == kDatagramKindCount - 1, "a row is found by its value");

/// Bytes of the array that the signal of a kind carries.
constexpr int emittedBytes(const DatagramKind &kind)
{
    return 4 * kind.words - kind.skippedBytes;
}

/// Packages that a datagram of a kind takes on the wire.
constexpr int packagesOnWire(const DatagramKind &kind)
{
    const int payload = kind.words - Link::kTimeWords;
    return payload <= Link::kFirstPayloadWords
        ? 1
        : 1 + (payload - Link::kFirstPayloadWords + Link::kNextPayloadWords - 1) / Link::kNextPayloadWords;
}
