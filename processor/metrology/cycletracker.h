#pragma once

#include "metrology/samplestore.h"

#include <complex>

namespace processor {

/// The end of a cycle of the fundamental, and the start of the next.
struct CycleEnd
{
    double position = 0.0; ///< frame, with fraction
    double period = 0.0; ///< frames of a base cycle at the tracked frequency
    bool locked = false; ///< found in the signal; else counted on at the last known frequency
    bool steady = false; ///< the cycle lies where the cycles before let it be expected
    bool fresh = false; ///< lock was just gained: what was counted before has no relation to this place
};

/// Finds the cycles of the fundamental in a stream of samples.
///
/// At each expected zero crossing the phase of the fundamental is measured by a correlation under a Hann window four
/// cycles wide. The window's zeros fall on the offset and on all harmonics, so distortion does not move the crossings
/// (IEC 61000-4-30, 5.1, asks for that attenuation before crossings are counted). A voltage is the reference for as
/// long as one is there, then a current; without any, cycles are counted on at the last frequency and are marked as not
/// locked.
///
/// A base cycle is one cycle at 50 and 60 Hz, and eight cycles at 400 Hz, where values are wanted at the same pace.
class CycleTracker
{
public:
    /// Starts anew for a nominal frequency of 50, 60 or 400 Hz.
    void start(int nominalFrequency);

    /// The next end of a cycle, in order of time. False when the store does not reach far enough past it yet.
    bool next(const SampleStore &store, CycleEnd &out);

    /// Frequency of the fundamental, Hz: the tracked one, or the last known.
    double frequency() const { return m_frequency; }
    bool locked() const { return m_locked; }
    /// Fundamental cycles in a base cycle.
    int baseCycles() const { return m_baseCycles; }
    /// First frame that will still be looked at.
    std::int64_t needs() const;

private:
    std::complex<double> phasor(const SampleStore &store, int channel, double at, double frequency,
                                double cycles) const;
    bool acquire(const SampleStore &store, CycleEnd &out);
    bool track(const SampleStore &store, CycleEnd &out);
    bool chooseReference(const SampleStore &store, double at, std::complex<double> &value, double &offset);
    void learnFrequency(const CycleEnd &end);
    double basePeriod() const;

    double m_nominal = 50.0;
    int m_baseCycles = 1;
    double m_frequency = 50.0;
    double m_position = 0.0; // last end of a cycle
    bool m_searching = true;
    bool m_locked = false;
    int m_reference = -1; // channel, -1: none
    double m_offset = 0.0; // phase of the reference where the counted cycle ends, cycles
    // Ends of the latest undisturbed cycles; the frequency is taken over all of them.
    static constexpr std::size_t RunLength = 6;
    std::array<double, RunLength> m_run {};
    std::size_t m_runLength = 0;
    double m_amplitude = 0.0; // of the reference at the last crossing
    double m_level = 0.0; // the same when it was last steady
    int m_away = 0; // cycles without a reference
    int m_unsteady = 0; // disturbed cycles in a row
};

} // namespace processor
