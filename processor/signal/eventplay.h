#pragma once

#include "signal/signalspec.h"

namespace processor {

/// An event with its place on the time axis, and what it does to the inputs of its mask at a sample.
struct EventPlay
{
    SignalEvent event;
    double start = 0.0; ///< sample, with fraction
    double end = 0.0; ///< first sample it no longer touches; infinite for one that stays

    /// `start` is where the event begins in samples; `signal` the steady one that it changes.
    EventPlay(const SignalEvent &event, double start, double sampleRate, const SignalSpec &signal);

    bool touches(int input) const { return (event.inputs & maskOf(input)) != 0; }
    bool activeWithin(double first, double last) const { return start <= last && end > first; }

    /// Factor on the amplitude at `sample`, 1 outside the event.
    double amplitudeFactor(double sample) const;
    /// Advance of the phase of an input of the mask at `sample` in cycles, 0 outside.
    double phaseAdvance(int input, double sample) const;
    /// What is added at `sample`, V or A, 0 outside.
    double addition(double sample) const;

    bool changesAmplitude() const;
    bool changesPhase() const;
    bool adds() const;

private:
    double rampAt(double seconds) const;

    double m_sampleRate;
    std::array<double, InputCount> m_advance {}; // cycles
    double m_impulseScale = 1.0; // makes the double exponential's peak 1
};

/// Seconds from an event's begin until nothing of it is left; infinite for one that stays for good.
double lengthOf(const SignalEvent &event);

/// Whether both describe the same thing.
bool sameEvent(const SignalEvent &a, const SignalEvent &b);

} // namespace processor
