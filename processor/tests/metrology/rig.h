#pragma once

#include "frontend/frontend.h"
#include "metrology/measurementchain.h"
#include "signal/angles.h"
#include "signal/synthesiser.h"

#include <cstdint>
#include <vector>

namespace rig {

using namespace processor;

constexpr double VoltsPerUnit = 79.25; // voltage range 1
constexpr double AmpsPerUnit = 99.4; // current range 0, clamp of 1 mV/A

/// Keeps everything that the chain delivers, in order.
class Recorder : public MeasurementSink
{
public:
    enum class Kind { Aggregation, Rms, Wave, Flicker };
    template <typename Payload> struct Item
    {
        Payload payload;
        std::int64_t timeMs;
    };

    void aggregation(const AggregationPayload &payload, std::int64_t timeMs) override;
    void rms(const RmsPayload &payload, std::int64_t timeMs) override;
    void wave(const WavePayload &payload, std::int64_t timeMs) override;
    void flicker(const FlickerPayload &payload, std::int64_t timeMs) override;

    std::vector<Kind> order;
    std::vector<Item<AggregationPayload>> aggregations;
    std::vector<Item<RmsPayload>> rmsValues;
    std::vector<Item<WavePayload>> waves;
    std::vector<Item<FlickerPayload>> flickers;

    /// All half-cycle entries of a phase, one after the other.
    std::vector<HalfCycleEntry> halfCycles(int phase) const;
    /// All instantaneous flicker values of a phase from `second` on.
    std::vector<float> pinst(int phase, double second) const;
};

/// Milliseconds since 1970 of an entry's voltage.
std::int64_t timeOf(const HalfCycleEntry &entry);

/// Synthesiser, front end and chain in a row, as in the program. Voltage range 1, current range 0, no noise.
class Rig
{
public:
    explicit Rig(const SignalSpec &spec, const ProcessorSetup &setup = ProcessorSetup(), std::uint64_t seed = 1);

    /// Lets time go on, `step` samples at a time.
    void run(double seconds, int step = 1024);

    Synthesiser synthesiser;
    FrontEnd frontEnd;
    Recorder recorder;
    MeasurementChain chain;

    static constexpr std::int64_t StartMs = 1700000000000;

private:
    std::int64_t m_target = 0;
};

/// What the instrument makes of a phase: p0 is the phase word of the L1 fundamental, index h the row (order h + 1).
double shownPhase(double raw, double p0, int h);

/// Angle brought into -pi to pi.
double wrapped(double angle);

/// Pst of IEC 61000-4-15 from instantaneous values, by the smoothed percentiles.
double shortTermSeverity(std::vector<float> values);

} // namespace rig
