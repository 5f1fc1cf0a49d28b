#include "signal/eventplay.h"

#include "signal/angles.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace processor {

namespace {

// After this many time constants a decay is below 1e-12 of its start.
constexpr double DecayLength = 28.0;

// Peak of exp(-t / decay) - exp(-t / rise), reached where both slopes are alike.
double doubleExponentialPeak(double rise, double decay)
{
    const double t = std::log(decay / rise) * rise * decay / (decay - rise);
    return std::exp(-t / decay) - std::exp(-t / rise);
}

bool hasFront(const SignalEvent &event)
{
    return event.riseSeconds > 0.0 && event.decaySeconds > event.riseSeconds * 1.0001;
}

} // namespace

double lengthOf(const SignalEvent &e)
{
    switch (e.kind) {
    case EventKind::Inrush:
    case EventKind::ImpulsiveTransient:
    case EventKind::OscillatoryTransient:
        return std::max(e.decaySeconds, 0.0) * DecayLength;
    case EventKind::RapidChange:
        if (e.durationSeconds > 0.0)
            return e.durationSeconds + e.riseSeconds;
        break;
    default:
        if (e.durationSeconds > 0.0)
            return e.durationSeconds;
    }
    return std::numeric_limits<double>::infinity();
}

EventPlay::EventPlay(const SignalEvent &e, double startSample, double sampleRate, const SignalSpec &signal)
    : event(e), start(startSample), end(startSample + lengthOf(e) * sampleRate), m_sampleRate(sampleRate)
{
    if (changesPhase())
        m_advance.fill(e.angleDeg / 360.0);
    for (std::size_t line = 0; line < 3 && e.kind == EventKind::LoadStep && !std::isnan(e.powerFactor); ++line) {
        const double target = signal.inputs[U1 + line].phaseDeg - loadAngle(e.powerFactor);
        m_advance[I1 + line] = (target - signal.inputs[I1 + line].phaseDeg) / 360.0;
    }
    if (e.kind == EventKind::ImpulsiveTransient && hasFront(e))
        m_impulseScale = 1.0 / doubleExponentialPeak(e.riseSeconds, e.decaySeconds);
}

// 0 to 1 over riseSeconds, and down again after durationSeconds.
double EventPlay::rampAt(double seconds) const
{
    const double rise = event.riseSeconds;
    double up = 1.0;
    if (rise > 0.0)
        up = std::min(seconds / rise, 1.0);
    if (event.durationSeconds > 0.0 && seconds > event.durationSeconds)
        up = rise > 0.0 ? std::max(1.0 - (seconds - event.durationSeconds) / rise, 0.0) : 0.0;
    return up;
}

double EventPlay::amplitudeFactor(double sample) const
{
    if (sample < start || sample >= end)
        return 1.0;
    const double seconds = (sample - start) / m_sampleRate;
    const double part = event.percent / 100.0;
    switch (event.kind) {
    case EventKind::Dip:
        return 1.0 - part;
    case EventKind::Swell:
        return 1.0 + part;
    case EventKind::Interruption:
    case EventKind::LoadStep:
        return part;
    case EventKind::RapidChange:
        return 1.0 + part * rampAt(seconds);
    case EventKind::Inrush:
        return 1.0 + (part - 1.0) * std::exp(-seconds / event.decaySeconds);
    default:
        return 1.0;
    }
}

double EventPlay::phaseAdvance(int input, double sample) const
{
    if (sample < start || sample >= end)
        return 0.0;
    return m_advance[static_cast<std::size_t>(input)];
}

double EventPlay::addition(double sample) const
{
    if (!adds() || sample < start || sample >= end)
        return 0.0;
    const double seconds = (sample - start) / m_sampleRate;
    const double decay = std::exp(-seconds / event.decaySeconds);
    if (event.kind == EventKind::OscillatoryTransient)
        return event.amplitude * decay * std::sin(TwoPi * event.frequencyHz * seconds);
    const double front = hasFront(event) ? std::exp(-seconds / event.riseSeconds) : 0.0;
    return event.amplitude * m_impulseScale * (decay - front);
}

bool EventPlay::changesAmplitude() const
{
    return !adds() && event.kind != EventKind::PhaseJump;
}

bool EventPlay::changesPhase() const
{
    return event.kind == EventKind::PhaseJump || event.kind == EventKind::LoadStep;
}

bool EventPlay::adds() const
{
    return event.kind == EventKind::ImpulsiveTransient || event.kind == EventKind::OscillatoryTransient;
}

bool sameEvent(const SignalEvent &a, const SignalEvent &b)
{
    const auto same = [](double x, double y) { return x == y || (std::isnan(x) && std::isnan(y)); };
    return a.kind == b.kind && a.inputs == b.inputs && a.startSeconds == b.startSeconds
        && a.durationSeconds == b.durationSeconds && a.percent == b.percent && a.amplitude == b.amplitude
        && a.frequencyHz == b.frequencyHz && a.angleDeg == b.angleDeg && a.riseSeconds == b.riseSeconds
        && a.decaySeconds == b.decaySeconds && same(a.powerFactor, b.powerFactor)
        && same(a.startPhaseDeg, b.startPhaseDeg);
}

} // namespace processor
