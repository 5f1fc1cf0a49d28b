#include "signal/phaseclock.h"

#include <algorithm>
#include <cmath>

namespace processor {

void PhaseClock::setCourse(double frequencyHz, double driftHzPerSecond, double driftLimitHz, std::int64_t sample)
{
    if (frequencyHz == m_frequency && driftHzPerSecond == m_drift && driftLimitHz == m_limit)
        return;
    const double reached = cycles(static_cast<double>(sample));
    m_startCycles = reached - std::floor(reached);
    m_start = static_cast<double>(sample);
    m_frequency = frequencyHz;
    m_drift = driftHzPerSecond;
    m_limit = driftLimitHz;
}

double PhaseClock::cycles(double sample) const
{
    const double t = (sample - m_start) / m_sampleRate;
    double drifting = t;
    if (m_drift != 0.0 && m_limit > 0.0)
        drifting = std::min(t, m_limit / std::fabs(m_drift));
    const double settled = t - drifting;
    return m_startCycles + m_frequency * t + m_drift * drifting * (0.5 * drifting + settled);
}

double PhaseClock::frequency(double sample) const
{
    double t = (sample - m_start) / m_sampleRate;
    if (m_drift != 0.0 && m_limit > 0.0)
        t = std::min(t, m_limit / std::fabs(m_drift));
    return m_frequency + m_drift * t;
}

double PhaseClock::nextAt(double from, double offsetCycles, double targetCycles) const
{
    const double wait = targetCycles - offsetCycles - cycles(from);
    double rest = wait - std::floor(wait);
    if (rest > 1.0 - 1e-6)
        rest = 0.0; // it is there already, but for the rounding
    const double goal = cycles(from) + rest;
    double at = from;
    for (int i = 0; i < 4; ++i) {
        const double f = frequency(at);
        if (!(f > 0.0))
            return from;
        at += (goal - cycles(at)) / f * m_sampleRate;
    }
    return std::max(at, from);
}

} // namespace processor
