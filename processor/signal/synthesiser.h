#pragma once

#include "signal/signalspec.h"

#include <cstdint>
#include <memory>

namespace processor {

/// Samples per second of each channel: 4096 in ten cycles of 50 Hz.
constexpr double SampleRate = 20480.0;

/// Plays a SignalSpec, sample after sample. The same spec, seed and rate give the same samples, bit for bit, whatever
/// the lengths in which they are asked for. Phases are computed anew from the closed formula every 256 samples, so
/// nothing drifts in a run of days.
///
/// Besides the samples, the true values of the same signal can be asked for: they come from the textbook formula with
/// the C library's functions, sample by sample, and share no code with the fast path. Noise is not in them.
///
/// Not thread safe; one owner.
class Synthesiser
{
public:
    explicit Synthesiser(const SignalSpec &spec, std::uint64_t seed = 1, double sampleRate = SampleRate);
    ~Synthesiser();
    Synthesiser(const Synthesiser &) = delete;
    Synthesiser &operator=(const Synthesiser &) = delete;

    /// Writes the next n samples of each input, in volts and amperes. A null pointer leaves that input out.
    void render(double *const out[InputCount], int n);

    /// Adds an event. Its start counts from the first sample of the run; one that lies in the past begins where it
    /// would stand by now.
    void addEvent(const SignalEvent &event);
    /// Forgets all events, the running ones as well.
    void clearEvents();

    /// Replaces the steady part and the events from the next sample on; phase goes on without a jump.
    void setSpec(const SignalSpec &spec);
    const SignalSpec &spec() const;

    /// Number of samples rendered so far: the index of the next one.
    std::int64_t position() const;
    double sampleRate() const;
    /// position() in seconds: what an event that shall begin now has as its start.
    double seconds() const;

    /// True value of an input at a sample, V or A, without noise. Any index from the last setSpec on, rendered or not.
    double valueAt(int input, std::int64_t sample) const;
    /// True r.m.s. and mean product over `count` samples from `first` on, by direct sums of valueAt.
    double trueRms(int input, std::int64_t first, std::int64_t count) const;
    double truePower(int voltageInput, int currentInput, std::int64_t first, std::int64_t count) const;
    /// Frequency of the fundamental of an input at a sample, Hz.
    double trueFrequency(int input, std::int64_t sample) const;
    /// Phase of the fundamental of an input at a moment, in cycles, from 0 up to 1, phase jumps not counted.
    double truePhase(int input, double sample) const;
    /// Sample, with its fraction, at which an event really begins: its start time, or the point on wave after it.
    double startSample(const SignalEvent &event) const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace processor
