#pragma once

#include "metrology/resampler.h"

#include <complex>
#include <memory>
#include <vector>

namespace processor {

/// Spectra of all channels over one synchronised window, by FFTW.
class Spectrum
{
public:
    static constexpr int Lines = Resampler::Points / 2;

    Spectrum();
    ~Spectrum();
    Spectrum(const Spectrum &) = delete;
    Spectrum &operator=(const Spectrum &) = delete;

    /// Analyses the window of `length` frames from `from` on.
    void analyse(const SampleStore &store, double from, double length);

    /// Squared r.m.s. values of the lines of a channel; line k lies at k / length cycles per frame.
    const double *power(int channel) const { return m_power.data() + std::size_t(channel) * Lines; }
    /// Phase of line k as a cosine at the window's start, radians; 0 for a line without magnitude.
    double phase(int channel, int line) const;

    /// Only the transforms, on whatever was analysed last. For benches.
    void transformOnly();

private:
    struct Plan;
    std::unique_ptr<Plan> m_plan;
    Resampler m_resampler;
    std::vector<double> m_power;
};

} // namespace processor
