#include "signal/waveform.h"

#include "signal/angles.h"
#include "signal/vectorcode.h"

#include <algorithm>
#include <cmath>

namespace processor {

namespace {

// Adding and taking off 1.5 * 2^52 rounds a double to the nearest integer, without a call and in vector registers.
constexpr double RoundingMagic = 6755399441055744.0;

inline double roundedToInteger(double x)
{
    return (x + RoundingMagic) - RoundingMagic;
}

// Sine of 2 pi r for |r| <= 0.25 by its power series up to the 15th power; the rest is below 1e-11.
inline double sineOfQuarter(double r)
{
    const double x = TwoPi * r;
    const double q = x * x;
    double s = -1.0 / 1307674368000.0;
    s = s * q + 1.0 / 6227020800.0;
    s = s * q - 1.0 / 39916800.0;
    s = s * q + 1.0 / 362880.0;
    s = s * q - 1.0 / 5040.0;
    s = s * q + 1.0 / 120.0;
    s = s * q - 1.0 / 6.0;
    return x + x * q * s;
}

} // namespace

PROCESSOR_VECTOR_CODE void sinCycles(const double *__restrict x, double amplitude, double *__restrict out, int n)
{
    for (int i = 0; i < n; ++i) {
        const double r = x[i] - roundedToInteger(x[i]); // -0.5 to 0.5
        const double folded = 0.25 - std::fabs(std::fabs(r) - 0.25); // 0 to 0.25
        out[i] = amplitude * sineOfQuarter(std::copysign(folded, r));
    }
}

WaveTable::WaveTable(const std::vector<HarmonicSpec> &harmonics) : m_harmonics(harmonics), m_points(Points + 3)
{
    for (int i = 0; i < Points + 3; ++i) {
        const double angle = TwoPi * (i - 1) / Points;
        double value = std::sin(angle);
        for (const HarmonicSpec &h : harmonics)
            value += h.percent / 100.0 * std::sin(h.order * angle + h.phaseDeg * TwoPi / 360.0);
        m_points[static_cast<std::size_t>(i)] = value;
    }
}

PROCESSOR_VECTOR_CODE void WaveTable::play(const double *__restrict x, double amplitude, double *__restrict out,
                                           int n) const
{
    const double *points = m_points.data();
    for (int i = 0; i < n; ++i) {
        const double r = x[i] - roundedToInteger(x[i]);
        const double place = (r < 0.0 ? r + 1.0 : r) * Points;
        const int cell = std::min(static_cast<int>(place), Points - 1);
        const double t = place - cell;
        const double *p = points + cell; // p[1] stands at the cell's start
        // Lagrange's cubic through the four points around.
        const double a = t + 1.0;
        const double b = t - 1.0;
        const double c = t - 2.0;
        out[i] = amplitude
            * (t * b * c * (-1.0 / 6.0) * p[0] + a * b * c * 0.5 * p[1] - a * t * c * 0.5 * p[2]
               + a * t * b * (1.0 / 6.0) * p[3]);
    }
}

bool WaveTable::holds(const std::vector<HarmonicSpec> &harmonics) const
{
    return std::equal(harmonics.begin(), harmonics.end(), m_harmonics.begin(), m_harmonics.end(),
                      [](const HarmonicSpec &a, const HarmonicSpec &b) {
                          return a.order == b.order && a.percent == b.percent && a.phaseDeg == b.phaseDeg;
                      });
}

} // namespace processor
