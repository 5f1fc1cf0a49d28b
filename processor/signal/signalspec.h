#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace processor {

/// The eight inputs in the order in which every array of this folder keeps them.
/// Voltages stand between the terminal and the instrument's reference, currents at the primary side of the clamp.
enum Input { U1, U2, U3, UN, I1, I2, I3, IN, InputCount };

/// One bit for each input, for events and bursts that touch several of them.
using InputMask = std::uint32_t;
constexpr InputMask maskOf(int input)
{
    return 1u << input;
}
constexpr InputMask PhaseVoltages = maskOf(U1) | maskOf(U2) | maskOf(U3);
constexpr InputMask PhaseCurrents = maskOf(I1) | maskOf(I2) | maskOf(I3);

/// A harmonic of an input. With the input's own fundamental sin(x), it is percent / 100 * sin(order * x + phase): the
/// phase counts from the zero crossing of that input's own fundamental, so one table serves all phases of a balanced
/// system and a record of L1 shows this very phase.
struct HarmonicSpec
{
    int order = 3; ///< 2 to 100
    double percent = 0.0; ///< of the input's fundamental
    double phaseDeg = 0.0;
};

/// A component that is no multiple of the fundamental: percent / 100 * sin(2 pi f t + phase), t from the first sample.
struct InterharmonicSpec
{
    double frequencyHz = 0.0;
    double percent = 0.0; ///< of the input's fundamental
    double phaseDeg = 0.0;
};

/// Amplitude modulation in the terms of IEC 61000-4-15: the amplitude swings by depthPercent from its lowest to its
/// highest value around the steady one, a(t) = 1 + depthPercent / 200 * m(t) with m a sine or a square wave.
/// A table of "changes per minute" c is a rectangular rate of c / 120 Hz.
struct ModulationSpec
{
    enum class Shape { None, Sinusoidal, Rectangular };
    Shape shape = Shape::None;
    double rateHz = 0.0;
    double depthPercent = 0.0; ///< dV / V, peak to peak
    double phaseDeg = 0.0; ///< of m(t) at the first sample
};

/// What stands at one input for as long as no event touches it.
struct InputSpec
{
    double rms = 0.0; ///< r.m.s. of the fundamental, V or A
    double phaseDeg = 0.0; ///< the fundamental is sqrt(2) * rms * sin(2 pi * integral of f + phase)
    double frequencyHz = 0.0; ///< 0: the common frequency of the signal; else this input runs on its own
    double driftHzPerSecond = 0.0; ///< only together with a frequency of its own
    std::vector<HarmonicSpec> harmonics;
    std::vector<InterharmonicSpec> interharmonics;
    ModulationSpec modulation; ///< of the fundamental with its harmonics and interharmonics
    double noiseRms = 0.0; ///< white noise up to half the sample rate, V or A
    double dc = 0.0; ///< V or A
};

/// A mains-signalling telegram: bursts of one frequency on top of the voltage.
struct SignallingSpec
{
    InputMask inputs = PhaseVoltages;
    double frequencyHz = 0.0;
    double percent = 0.0; ///< of each input's fundamental
    double startSeconds = 0.0; ///< first burst
    double onSeconds = 1.0; ///< length of a burst; 0: without end
    double periodSeconds = 0.0; ///< from burst to burst; 0: a single burst
};

/// Something that happens at a moment. Which members count stands at each kind; the others are left alone.
enum class EventKind {
    Dip, ///< amplitude falls by `percent` of the steady one (40: 60 % are left)
    Swell, ///< amplitude rises by `percent`
    Interruption, ///< amplitude falls to `percent` of the steady one (0: nothing is left)
    RapidChange, ///< amplitude changes by `percent`, either sign, over `riseSeconds`, and back after `durationSeconds`
    PhaseJump, ///< fundamental and harmonics are advanced by `angleDeg` of the fundamental
    ImpulsiveTransient, ///< adds amplitude * double exponential (`riseSeconds`, `decaySeconds`) with that peak
    OscillatoryTransient, ///< adds amplitude * exp(-t / decaySeconds) * sin(2 pi frequencyHz t)
    Inrush, ///< current amplitude starts at `percent` of the steady one and decays to it with `decaySeconds`
    LoadStep ///< current amplitude becomes `percent` of the steady one, its phase is advanced by `angleDeg`
};

/// A timed event of the signal. The change begins exactly at a sample or between two, never "at the next block".
struct SignalEvent
{
    EventKind kind = EventKind::Dip;
    InputMask inputs = PhaseVoltages;
    double startSeconds = 0.0; ///< from the first sample of the run
    /// Dip, Swell, Interruption, RapidChange, PhaseJump, LoadStep: length in seconds, 0 for one that stays for good.
    /// Inrush and the transients end by their decay and need none.
    double durationSeconds = 0.0;
    double percent = 0.0; ///< meaning by kind
    double amplitude = 0.0; ///< peak of a transient, V or A, either sign
    double frequencyHz = 1000.0; ///< ring of an oscillatory transient
    double angleDeg = 0.0; ///< PhaseJump, LoadStep
    /// LoadStep: the power factor that the load of each line gets, inductive as in setLoad, whatever it was before. Not
    /// a number: angleDeg counts.
    double powerFactor = std::numeric_limits<double>::quiet_NaN();
    double riseSeconds = 0.0; ///< RapidChange: ramp; ImpulsiveTransient: time constant of the front
    double decaySeconds = 0.001; ///< Inrush and transients: time constant
    /// Point on wave, degrees of the fundamental of the first input of the mask: the event waits, up to one cycle, from
    /// startSeconds for this phase. Not a number: it begins at startSeconds exactly.
    double startPhaseDeg = std::numeric_limits<double>::quiet_NaN();
};

/// Everything that stands at the eight inputs. Plain data: a scenario fills it, the synthesiser plays it.
struct SignalSpec
{
    double frequencyHz = 50.0; ///< common to all inputs without one of their own
    double driftHzPerSecond = 0.0; ///< of the common frequency
    double driftLimitHz = 0.0; ///< the drift stops when the frequency is this far from its start; 0: never
    std::array<InputSpec, InputCount> inputs;
    std::vector<SignallingSpec> signalling;
    std::vector<SignalEvent> events;
    /// The neutral clamp sees the sum of the three phase currents besides what the description gives for IN.
    bool neutralCarriesPhaseCurrents = true;

    /// A balanced three-phase supply: L1 at 0, L2 at -120, L3 at +120 degrees, `volts` between phase and neutral,
    /// loads of `amps` with the given power factor (see setLoad).
    static SignalSpec threePhase(double volts, double frequencyHz, double amps = 0.0, double powerFactor = 1.0,
                                 bool capacitive = false);
};

/// Degrees by which a current of that power factor stands behind its voltage, 0 to 180.
double loadAngle(double powerFactor);

/// Makes the current of `line` (0 to 2) that of a load: `amps`, shifted against the voltage of the same line by
/// acos(powerFactor), behind it, or before it with `capacitive`. A negative power factor feeds power back.
void setLoad(SignalSpec &spec, int line, double amps, double powerFactor, bool capacitive = false);

/// First thing in `spec` that cannot be played, as "inputs[4].harmonics[1].order: 2 to 100 expected", or an empty text.
std::string validate(const SignalSpec &spec);
/// The same for one event.
std::string validate(const SignalEvent &event);

} // namespace processor
