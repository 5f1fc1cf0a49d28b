#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace processor {

// The payloads as they go onto the wire behind the package head: 32-bit little-endian words, without the two words of
// the time stamp that the receiver puts in front. So word w of the instrument's table is word w - 2 here.
// Values are in converter units (full scale 10), powers in their square; the instrument owns the scale.

/// Power, r.m.s., peak and offset of one channel pair (9 words).
struct ChannelAggregate
{
    float activePower; ///< mean of u * i; delta: see docs in the folder's README
    float apparentPower; ///< U r.m.s. times I r.m.s. of the row; 0 in delta wirings
    float reserved; ///< 0
    float voltageRms;
    float currentRms;
    float voltagePeak; ///< largest magnitude of a sample in the window
    float voltageOffset; ///< mean
    float currentPeak;
    float currentOffset;
};
static_assert(sizeof(ChannelAggregate) == 9 * 4, "wire layout");

/// One order of one channel (4 words).
struct SpectralEntry
{
    float interharmonic; ///< r.m.s. of the centred interharmonic subgroup below the order
    float reserved; ///< 0
    float magnitude; ///< r.m.s. of the harmonic subgroup of order index + 1
    float phase; ///< of the order itself, cosine at the window's first sample, radians, -pi to pi
};
static_assert(sizeof(SpectralEntry) == 4 * 4, "wire layout");

constexpr int Orders = 100;

/// Aggregated values of one window of ten cycles (3248 words).
struct AggregationPayload
{
    float frequency; ///< Hz; negative: no lock, the magnitude is what the windows run at
    std::array<std::uint32_t, 2> reserved0; ///< 0
    std::array<ChannelAggregate, 4> channel; ///< L1, L2, L3, N
    std::uint32_t reserved1; ///< 0
    /// Voltages L1, L2, L3, N, then currents. At 400 Hz the rows stand at multiples of an eighth of the fundamental, so
    /// that order n of the 400 Hz system is row 8 n - 1.
    std::array<std::array<SpectralEntry, Orders>, 8> spectrum;
    std::array<std::array<float, 2>, 4> signalling; ///< of each voltage, at the two frequencies of the set-up, r.m.s.
};
static_assert(sizeof(AggregationPayload) == 3248 * 4, "wire layout");
static_assert(offsetof(AggregationPayload, channel) == (5 - 2) * 4, "wire layout");
static_assert(offsetof(AggregationPayload, spectrum) == (42 - 2) * 4, "wire layout");
static_assert(offsetof(AggregationPayload, signalling) == (3242 - 2) * 4, "wire layout");

/// One half-cycle value of a channel pair (6 words). The time is the middle of the one-cycle window.
struct HalfCycleEntry
{
    std::uint32_t voltageSeconds;
    std::uint32_t voltageMilliseconds;
    float voltage;
    std::uint32_t currentSeconds;
    std::uint32_t currentMilliseconds;
    float current;
};
static_assert(sizeof(HalfCycleEntry) == 6 * 4, "wire layout");

constexpr int MaxHalfCycles = 30;

/// Half-cycle values of one phase (181 words).
struct HalfCycleBlock
{
    std::uint32_t count; ///< number of values, a voltage and a current each: twice the number of entries
    std::array<HalfCycleEntry, MaxHalfCycles> entry;
};
static_assert(sizeof(HalfCycleBlock) == 181 * 4, "wire layout");

/// Half-cycle r.m.s. values of some 200 ms (543 words).
struct RmsPayload
{
    std::array<HalfCycleBlock, 3> phase;
};
static_assert(sizeof(RmsPayload) == 543 * 4, "wire layout");

constexpr int WaveSamples = 4096;

/// Samples of 200 ms (16385 words).
struct WavePayload
{
    struct Pair
    {
        std::array<std::int16_t, WaveSamples> voltage;
        std::array<std::int16_t, WaveSamples> current;
    };
    std::array<Pair, 4> pair; ///< L1, L2, L3, N
    std::uint32_t transient; ///< channel code 1 to 3 in the high 8 bits, sample in the low 24; 0: no transient
};
static_assert(sizeof(WavePayload) == 16385 * 4, "wire layout");

constexpr int FlickerValues = 500;
constexpr int FlickerRate = 2000; ///< instantaneous values a second

/// Instantaneous flicker sensation of 250 ms (1501 words).
struct FlickerPayload
{
    std::array<std::array<float, FlickerValues>, 3> pinst;
    std::uint32_t samplesPerWindow; ///< values in a window of one second: 2000
};
static_assert(sizeof(FlickerPayload) == 1501 * 4, "wire layout");

/// Takes what the chain measures, in the order in which it goes onto the wire. `timeMs` is the time of the first sample
/// (wave, aggregation), of the first value (flicker) and of the 200 ms slot (rms), in milliseconds since 1970.
/// Called from MeasurementChain::process, in its thread; the payload is valid during the call only.
class MeasurementSink
{
public:
    virtual ~MeasurementSink() = default;
    virtual void aggregation(const AggregationPayload &payload, std::int64_t timeMs) = 0;
    virtual void rms(const RmsPayload &payload, std::int64_t timeMs) = 0;
    virtual void wave(const WavePayload &payload, std::int64_t timeMs) = 0;
    virtual void flicker(const FlickerPayload &payload, std::int64_t timeMs) = 0;
};

} // namespace processor
