#pragma once

#include "metrology/measurementsink.h"
#include "metrology/setup.h"

#include <cstdint>
#include <memory>

namespace processor {

/// The whole measurement: takes converter samples of the eight inputs and hands finished payloads to a sink.
///
/// For each slot of 4096 samples (200 ms) the sink sees, in this order: the flicker and aggregation payloads that
/// became ready, the half-cycle values whose time lies in the slot, and the slot's wave. An event that a receiver finds
/// in the half-cycle values therefore lies in the wave that follows next. Results come within 80 ms of the slot's last
/// sample.
///
/// Results depend on the samples alone, not on the lengths in which they arrive.
/// Nothing is allocated after construction. Not thread safe; one owner.
class MeasurementChain
{
public:
    explicit MeasurementChain(const ProcessorSetup &setup, MeasurementSink &sink);
    ~MeasurementChain();
    MeasurementChain(const MeasurementChain &) = delete;
    MeasurementChain &operator=(const MeasurementChain &) = delete;

    /// Time of the next sample that process() will get, milliseconds since 1970. Later samples count on by the sample
    /// rate; samples taken before keep their times. Call it at the start and whenever the clock is set.
    void setTime(std::int64_t msSince1970);
    /// Time of the next sample that process() will get, milliseconds since 1970, with its fraction.
    double time() const;

    /// Takes n samples of each input: U1, U2, U3, UN, I1, I2, I3, IN; the value is sample * 10 / 32768.
    void process(const std::int16_t *const samples[8], int n);

    /// Takes a new set-up from the next sample on. Another nominal frequency starts the measurement anew, another lamp
    /// or wiring the flickermeter; everything else goes on without a gap.
    void setSetup(const ProcessorSetup &setup);
    const ProcessorSetup &setup() const;

    /// Forgets all samples and starts anew, as after the stream has been stopped and started.
    void restart();

    /// Frequency of the latest window in Hz, negative without lock. For status lines.
    double frequency() const;
    /// Whether the flickermeter runs; it is on at the start. For benches.
    void setFlickerEnabled(bool on);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace processor
