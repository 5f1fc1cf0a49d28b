#pragma once

#include <QtGlobal>

#include <array>
#include <cstddef>
#include <iterator>

/// The wire between the measurement processor and the instrument: packages out, frames in (docs/simulator.md).
/// Every word on it is 32 bits, little-endian.
namespace wire {

constexpr int kPackageBytes = 8192; // one read of the device node
constexpr int kFirstHeadBytes = 40; // head of the first package of a datagram
constexpr int kNextHeadBytes = 16; // head of any following package
constexpr int kFirstPayloadWords = (kPackageBytes - kFirstHeadBytes) / 4;
constexpr int kNextPayloadWords = (kPackageBytes - kNextHeadBytes) / 4;
static_assert(kFirstPayloadWords == 2038 && kNextPayloadWords == 2044, "as on the wire");

constexpr quint32 kFlagFirst = 0x80000000;
constexpr quint32 kFlagLast = 0x40000000;
constexpr quint32 kFlagPattern = 0x00A5FF00; // each bit of it is set in every package
constexpr quint32 kFlagNumber = 0x000000FF; // number of the package within its datagram

/// Kinds of datagram, by the value that travels in the head of the first package.
enum class Kind : quint8 {
    Aggregation = 0,
    HalfCycleRms = 1,
    Transient = 2,
    Wave = 3,
    Flicker = 4,
    FirmwareInfo = 5,
    Update = 6,
};

constexpr int kStampWords = 2; // words that the receiver itself puts in front of the payload

/// What both ends know of a kind although the wire does not carry it.
struct KindInfo
{
    Kind kind;
    const char *name; // as in logs and in the status line
    int words; // with the two time-stamp words of the receiver
    int packages;

    constexpr int payloadWords() const { return words - kStampWords; }
};

constexpr KindInfo kKinds[] = {
    { Kind::Aggregation, "aggregation", 3250, 2 },
    { Kind::HalfCycleRms, "rms", 545, 1 },
    { Kind::Transient, "transient", 4005, 2 },
    { Kind::Wave, "wave", 16387, 9 },
    { Kind::Flicker, "flicker", 1503, 1 },
    { Kind::FirmwareInfo, "firmware", 1026, 1 },
    { Kind::Update, "update", 6, 1 },
};
constexpr int kKindCount = int(std::size(kKinds));
static_assert(kKindCount == 7, "one row per kind");

constexpr const KindInfo &kindInfo(Kind kind)
{
    return kKinds[std::size_t(kind)];
}

#pragma pack(push, 1)
/// Head of the first package of a datagram.
struct FirstHead
{
    quint32 flag;
    quint32 id; // running count of datagrams
    quint32 spare1[2];
    quint32 type; // low 8 bits: Kind
    quint32 bdsWord; // not 0: the processor's time comes from its satellite receiver
    quint32 spare2[2];
    quint32 seconds; // s since 1970
    quint32 milliseconds; // ms to add
};

/// Head of any following package of a datagram.
struct NextHead
{
    quint32 flag;
    quint32 id; // repeated, for whoever looks at a recorded stream; no receiver needs it
    quint32 spare[2];
};
#pragma pack(pop)
static_assert(sizeof(FirstHead) == kFirstHeadBytes, "payload of a first package starts at byte 40");
static_assert(offsetof(FirstHead, type) == 16 && offsetof(FirstHead, bdsWord) == 20, "as on the wire");
static_assert(offsetof(FirstHead, seconds) == 32 && offsetof(FirstHead, milliseconds) == 36, "as on the wire");
static_assert(sizeof(NextHead) == kNextHeadBytes, "payload of a following package starts at byte 16");

using Package = std::array<quint8, kPackageBytes>;

} // namespace wire
