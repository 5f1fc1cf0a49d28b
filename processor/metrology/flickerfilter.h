#pragma once

#include "signal/vectorcode.h"

#include <array>
#include <cstddef>

namespace processor {

/// One section of a digital filter, up to second order, made from the analog one by the bilinear transformation. It
/// filters four signals beside each other.
class FilterSection
{
public:
    /// H(s) = (n0 + n1 s + n2 s^2) / (d0 + d1 s + d2 s^2), at `rate` samples a second. With `matchHz` above 0 the
    /// digital filter has the analog one's response at that frequency exactly.
    static FilterSection fromAnalog(const std::array<double, 3> &n, const std::array<double, 3> &d, double rate,
                                    double matchHz = 0.0);

    /// Replaces the four values of `x` by the filter's output.
    void step(Four &x)
    {
        const Four y = m_b[0] * x + m_s[0];
        m_s[0] = m_b[1] * x - m_a[0] * y + m_s[1];
        m_s[1] = m_b[2] * x - m_a[1] * y;
        x = y;
    }
    /// Puts signal `lane` into the state that an endless input of `x` leaves behind; gives its output.
    double settle(std::size_t lane, double x);

private:
    std::array<double, 3> m_b { { 1.0, 0.0, 0.0 } };
    std::array<double, 2> m_a {};
    std::array<Four, 2> m_s {};
};

/// Blocks 2 (its filters) to 4 of the flickermeter of IEC 61000-4-15, for up to four phases at once. The input is the
/// square of each voltage over the square of its reference, at a steady rate; the output the instantaneous flicker
/// sensation Pinst.
class FlickerFilter
{
public:
    /// `curve` 230 or 120: the lamp. `systemHz`: 50 or 60, which decides the corner of the low pass (35 or 42 Hz).
    FlickerFilter(int curve, int systemHz, double rate);

    using Values = std::array<double, 4>; ///< one for each phase

    /// Replaces the squares by Pinst.
    void step(Values &squares);
    /// As if the voltage of `phase` had stood steady for ever.
    void settle(std::size_t phase, double square);

    /// Magnitude of the analog blocks 2 and 3 at a frequency, relative to 8.8 Hz: the shape of the lamp-eye curve.
    static double response(int curve, int systemHz, double hertz);
    /// Relative voltage change, percent, of the sinusoidal modulation at 8.8 Hz that gives Pinst 1.
    static double thresholdPercent(int curve);

private:
    static constexpr std::size_t Sections = 6;
    std::array<FilterSection, Sections> m_sections; // high pass, low pass (3), weighting (2)
    FilterSection m_mean; // 300 ms
    double m_scale = 1.0; // makes Pinst 1 at the threshold
};

} // namespace processor
