#pragma once

#include <cstdint>

namespace processor {

/// Phase of a fundamental as a closed formula of the sample number: a start phase, a frequency and a linear drift that
/// may stop at a distance. A change goes on from the phase reached.
class PhaseClock
{
public:
    void setRate(double sampleRate) { m_sampleRate = sampleRate; }

    /// Takes another course from `sample` on. The same course as before changes nothing, so that a drift goes on.
    void setCourse(double frequencyHz, double driftHzPerSecond, double driftLimitHz, std::int64_t sample);

    /// Cycles since the start of the course, with the start's own part of a cycle.
    double cycles(double sample) const;
    double frequency(double sample) const;
    /// First sample at or after `from` at which the phase plus `offsetCycles` is `targetCycles`, both modulo 1.
    double nextAt(double from, double offsetCycles, double targetCycles) const;

private:
    double m_sampleRate = 20480.0;
    double m_frequency = 0.0; // Hz at the start of the course
    double m_drift = 0.0; // Hz per second
    double m_limit = 0.0; // Hz, 0: none
    double m_start = 0.0; // sample
    double m_startCycles = 0.0; // 0 up to 1
};

} // namespace processor
