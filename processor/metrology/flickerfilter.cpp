#include "metrology/flickerfilter.h"

#include "signal/angles.h"

#include <cmath>
#include <complex>
#include <cstring>

namespace processor {

namespace {

constexpr double HighPassHz = 0.05;
constexpr double MeanSeconds = 0.3;
constexpr double PeakHz = 8.8; // where lamp and eye are most sensitive

// Weighting filter of IEC 61000-4-15, 5.6, table of lamp coefficients: frequencies in hertz, k without unit.
struct LampCurve
{
    double k, lambda, w1, w2, w3, w4;
    double thresholdPercent; // sinusoidal change at 8.8 Hz of Pinst 1
};
constexpr LampCurve Lamp230 { 1.74802, 4.05981, 9.15494, 2.27979, 1.22535, 21.9, 0.250 };
constexpr LampCurve Lamp120 { 1.6357, 4.167375, 9.077169, 2.939902, 1.394468, 17.31512, 0.321 };

const LampCurve &lampOf(int curve)
{
    return curve == 230 ? Lamp230 : Lamp120;
}

double lowPassHz(int systemHz)
{
    return systemHz == 60 ? 42.0 : 35.0;
}

// Damping of the three sections of a Butterworth filter of sixth order: 2 sin(15, 45, 75 degrees).
constexpr double Butterworth[3] = { 0.51763809020504152, 1.4142135623730950, 1.9318516525781366 };

std::complex<double> analogResponse(const LampCurve &lamp, double lowPass, double hertz)
{
    const std::complex<double> s(0.0, TwoPi * hertz);
    const double wh = TwoPi * HighPassHz;
    const double wl = TwoPi * lowPass;
    std::complex<double> h = s / (s + wh);
    for (double damping : Butterworth)
        h *= wl * wl / (s * s + damping * wl * s + wl * wl);
    const double w1 = TwoPi * lamp.w1, w2 = TwoPi * lamp.w2, w3 = TwoPi * lamp.w3, w4 = TwoPi * lamp.w4;
    h *= lamp.k * w1 * s / (s * s + 2.0 * TwoPi * lamp.lambda * s + w1 * w1);
    h *= (1.0 + s / w2) / ((1.0 + s / w3) * (1.0 + s / w4));
    return h;
}

} // namespace

FilterSection FilterSection::fromAnalog(const std::array<double, 3> &n, const std::array<double, 3> &d, double rate,
                                        double matchHz)
{
    // s = c (z - 1) / (z + 1)
    const double c = matchHz > 0.0 ? TwoPi * matchHz / std::tan(TwoPi * matchHz / 2.0 / rate) : 2.0 * rate;
    const auto digital = [c](const std::array<double, 3> &p) {
        return std::array<double, 3> { { p[0] + p[1] * c + p[2] * c * c, 2.0 * (p[0] - p[2] * c * c),
                                         p[0] - p[1] * c + p[2] * c * c } };
    };
    const std::array<double, 3> b = digital(n);
    const std::array<double, 3> a = digital(d);
    FilterSection section;
    section.m_b = { { b[0] / a[0], b[1] / a[0], b[2] / a[0] } };
    section.m_a = { { a[1] / a[0], a[2] / a[0] } };
    return section;
}

double FilterSection::settle(std::size_t lane, double x)
{
    const double gain = (m_b[0] + m_b[1] + m_b[2]) / (1.0 + m_a[0] + m_a[1]);
    const double y = gain * x;
    m_s[1][lane] = m_b[2] * x - m_a[1] * y;
    m_s[0][lane] = m_b[1] * x - m_a[0] * y + m_s[1][lane];
    return y;
}

FlickerFilter::FlickerFilter(int curve, int systemHz, double rate)
{
    const LampCurve &lamp = lampOf(curve);
    const double wh = TwoPi * HighPassHz;
    const double lowPass = lowPassHz(systemHz);
    const double wl = TwoPi * lowPass;
    const double w1 = TwoPi * lamp.w1, w2 = TwoPi * lamp.w2, w3 = TwoPi * lamp.w3, w4 = TwoPi * lamp.w4;
    m_sections[0] = FilterSection::fromAnalog({ { 0.0, 1.0, 0.0 } }, { { wh, 1.0, 0.0 } }, rate);
    for (std::size_t i = 0; i < 3; ++i)
        m_sections[1 + i] = FilterSection::fromAnalog({ { wl * wl, 0.0, 0.0 } },
                                                      { { wl * wl, Butterworth[i] * wl, 1.0 } }, rate, lowPass);
    m_sections[4] = FilterSection::fromAnalog({ { 0.0, lamp.k * w1, 0.0 } },
                                              { { w1 * w1, 2.0 * TwoPi * lamp.lambda, 1.0 } }, rate, PeakHz);
    m_sections[5] = FilterSection::fromAnalog({ { 1.0, 1.0 / w2, 0.0 } },
                                              { { 1.0, 1.0 / w3 + 1.0 / w4, 1.0 / (w3 * w4) } }, rate);
    m_mean = FilterSection::fromAnalog({ { 1.0, 0.0, 0.0 } }, { { 1.0, MeanSeconds, 0.0 } }, rate);

    // A modulation of d per unit swings the square by d to either side of 1. Behind the filters that is a sine of
    // amplitude a = d |H|; its square has the mean a^2 / 2 and as much ripple at twice the frequency, of which the mean
    // over 300 ms lets some pass. The scale makes the highest value 1.
    const double a = lamp.thresholdPercent / 100.0 * std::abs(analogResponse(lamp, lowPass, PeakHz));
    const double ripple = 1.0 / std::sqrt(1.0 + std::pow(2.0 * TwoPi * PeakHz * MeanSeconds, 2));
    m_scale = 1.0 / (a * a / 2.0 * (1.0 + ripple));
}

PROCESSOR_VECTOR_CODE void FlickerFilter::step(Values &squares)
{
    Four x;
    std::memcpy(&x, squares.data(), sizeof(x));
    for (FilterSection &section : m_sections)
        section.step(x);
    x *= x;
    m_mean.step(x);
    x *= m_scale;
    std::memcpy(squares.data(), &x, sizeof(x));
}

void FlickerFilter::settle(std::size_t phase, double square)
{
    double x = square;
    for (FilterSection &section : m_sections)
        x = section.settle(phase, x);
    m_mean.settle(phase, x * x);
}

double FlickerFilter::response(int curve, int systemHz, double hertz)
{
    const LampCurve &lamp = lampOf(curve);
    const double lowPass = lowPassHz(systemHz);
    return std::abs(analogResponse(lamp, lowPass, hertz)) / std::abs(analogResponse(lamp, lowPass, PeakHz));
}

double FlickerFilter::thresholdPercent(int curve)
{
    return lampOf(curve).thresholdPercent;
}

} // namespace processor
