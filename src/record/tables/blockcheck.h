#pragma once

#include "record/pqa2format.h"
#include "record/pqa2reader.h"

#include <array>

/// What a block is to a reader.
enum class BlockRole : quint8 {
    Passed, // nothing is read from it
    Opening, // what the file says of its instrument
    Start,
    End,
    Values,
    Log,
    Transient,
    EventWave,
    EventHead,
    EventCurves
};

/// Whether a block can be what its kind tells: its length in this wiring, its time. A file has no check sums, so this
/// is all that there is to find damage inside a block by.
class BlockCheck
{
public:
    static constexpr qint64 kLastTime = 253402300799999; // ms since 1970: the end of the year 9999
    static constexpr int kTransientSamples = 600;
    static constexpr int kWaveSamples = 2048; // of each channel of an event's waveform
    static constexpr int kShortestCurves = int(sizeof(EventHead)) + 8; // bytes, with two empty sections
    static constexpr quint32 kLongestCurves = 4 << 20; // bytes, far above every writer's

    static constexpr int kPage = 256; // types; those of the format lie in three stretches of this length
    static constexpr int kOtherPlace = 3 * kPage;
    static constexpr int kPlaces = kOtherPlace + 1;

    explicit BlockCheck(int joinMode = 0) { setWiring(joinMode); }
    void setWiring(int joinMode);

    /// Types of the format apart; all others share one place.
    static int placeOf(quint32 type)
    {
        const int low = int(type & 0xFF);
        switch (type >> 8) {
        case 0xA10000:
            return low;
        case 0xA10010:
            return kPage + low;
        case 0xA10100:
            return 2 * kPage + low;
        default:
            return kOtherPlace;
        }
    }
    BlockRole role(quint32 type) const { return rule(type).role; }
    /// Bytes of the payload that inspect() looks at.
    static constexpr qint64 kLook = 32;
    /// What a block is found to be.
    struct Finding
    {
        BlockRole role;
        const char *problem; // null: none
        qint64 time; // ms since 1970; -1: the block has none
    };
    /// \a look: the first bytes of the payload, at most kLook, null when they cannot be read.
    Finding inspect(const Pqa2Block &block, const char *look) const
    {
        const Rule &rule = this->rule(block.type);
        if (block.size < rule.least || block.size > rule.most)
            return { rule.role, "a block has another length than its kind", -1 };
        if (rule.time == Time::None || block.size == 0)
            return { rule.role, nullptr, -1 };
        return timed(rule.role, rule.time, block, look);
    }

    /// Whether this is a moment that a recording can have been made at. The first one of 1970 is none: where a lost
    /// supply kept the bytes of a block from the disk, they read as zeros.
    static bool isTime(qint64 ms) { return ms > 0 && ms <= kLastTime; }
    static bool isTime(double ms) { return ms > 0 && ms <= double(kLastTime); }

private:
    enum class Time : quint8 { None, Seconds, Milliseconds, Double, EventStart };
    struct Rule
    {
        BlockRole role = BlockRole::Passed;
        Time time = Time::None;
        quint32 least = 0; // bytes of the payload
        quint32 most = 0xFFFFFFFF;
    };
    Finding timed(BlockRole role, Time time, const Pqa2Block &block, const char *look) const;
    const Rule &rule(quint32 type) const { return m_rules[std::size_t(placeOf(type))]; }
    void set(quint32 type, BlockRole role, Time time, quint32 least, quint32 most);

    std::array<Rule, kPlaces> m_rules; // the last one is of all other types
};
