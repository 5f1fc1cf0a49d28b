#pragma once

#include <array>
#include <cstddef>

namespace processor {

/// One section of a digital filter, up to second order, made from the analog one by the bilinear transformation.
class FilterSection
{
public:
    /// H(s) = (n0 + n1 s + n2 s^2) / (d0 + d1 s + d2 s^2), at `rate` samples a second. With `matchHz` above 0 the
    /// digital filter has the analog one's response at that frequency exactly.
    static FilterSection fromAnalog(const std::array<double, 3> &n, const std::array<double, 3> &d, double rate,
                                    double matchHz = 0.0);

    double step(double x)
    {
        const double y = m_b[0] * x + m_s[0];
        m_s[0] = m_b[1] * x - m_a[0] * y + m_s[1];
        m_s[1] = m_b[2] * x - m_a[1] * y;
        return y;
    }
    /// Puts the section into the state that an endless input of `x` leaves behind; gives its output.
    double settle(double x);

private:
    std::array<double, 3> m_b { { 1.0, 0.0, 0.0 } };
    std::array<double, 2> m_a {};
    std::array<double, 2> m_s {};
};

/// Blocks 2 (its filters) to 4 of the flickermeter of IEC 61000-4-15 for one phase. The input is the square of the
/// voltage over the square of its reference, at a steady rate; the output the instantaneous flicker sensation Pinst.
class FlickerFilter
{
public:
    /// `curve` 230 or 120: the lamp. `systemHz`: 50 or 60, which decides the corner of the low pass (35 or 42 Hz).
    FlickerFilter(int curve, int systemHz, double rate);

    double step(double square);
    /// As if the voltage had stood steady for ever.
    void settle(double square);

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
