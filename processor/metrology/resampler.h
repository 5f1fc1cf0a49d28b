#pragma once

#include "metrology/samplestore.h"

#include <vector>

namespace processor {

/// Puts a stretch of samples of any length onto an even grid of 4096 points, all channels at once.
///
/// The points are read under a Kaiser-Bessel kernel eight samples wide. It is too short to leave the passband flat, but
/// it is known in closed form: correction() gives, for each frequency, the factor that the spectrum has to be
/// multiplied by. What is left are images below 1e-5 of a component at 7 kHz, and below 1e-6 up to 5 kHz.
class Resampler
{
public:
    static constexpr int Points = 4096;
    static constexpr int Taps = 8;
    /// Distance of two channels in the output: a power of two would put all of them on the same lines of the cache.
    static constexpr int Stride = Points + 40;

    Resampler();

    /// Reads Points points from `from` on, `length` frames in all, from a store that holds three frames more at either
    /// end. out[c * Stride + m] is channel c.
    void resample(const SampleStore &store, double from, double length, double *out) const;

    /// Factor for a component of `cyclesPerFrame` (0 to 0.5).
    double correction(double cyclesPerFrame) const;

private:
    static constexpr int Fractions = 1024; // kernel places between two samples
    static constexpr int Steps = 2048; // of the correction between 0 and half the sample rate
    using Row = std::array<float, Taps>;
    std::vector<Row> m_kernel; // Fractions + 1 rows
    std::vector<double> m_correction;
};

} // namespace processor
