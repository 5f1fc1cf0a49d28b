#include "signal/waveform.h"

#include "signal/angles.h"
#include "signal/vectorcode.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace processor {

namespace {

// Adding and taking off 1.5 * 2^52 rounds a double to the nearest integer, without a call and in vector registers.
constexpr double RoundingMagic = 6755399441055744.0;

inline double roundedToInteger(double x)
{
    return (x + RoundingMagic) - RoundingMagic;
}

// Lagrange's cubic is off by up to 0.0234 h^4 for a sine whose points stand h radians apart: 8e-7 at 82 points a
// period.
int pointsFor(const std::vector<HarmonicSpec> &harmonics)
{
    int highest = 1;
    for (const HarmonicSpec &h : harmonics)
        highest = std::max(highest, h.order);
    int points = 256;
    while (points < 81.9 * highest)
        points *= 2;
    return points;
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

WaveTable::WaveTable(const std::vector<HarmonicSpec> &harmonics)
    : m_harmonics(harmonics), m_points(pointsFor(harmonics))
{
    std::vector<double> points(static_cast<std::size_t>(m_points) + 4); // one before the cycle and three past it
    for (int i = 0; i < m_points + 4; ++i) {
        const double angle = TwoPi * (i - 1) / m_points;
        double value = std::sin(angle);
        for (const HarmonicSpec &h : harmonics)
            value += h.percent / 100.0 * std::sin(h.order * angle + h.phaseDeg * TwoPi / 360.0);
        points[static_cast<std::size_t>(i)] = value;
    }
    // Lagrange's cubic through the four points around, by powers of the place in the cell.
    m_cells.resize(static_cast<std::size_t>(m_points) + 1);
    for (std::size_t cell = 0; cell < m_cells.size(); ++cell) {
        const double *p = points.data() + cell; // p[1] stands at the cell's start
        m_cells[cell] = { { p[1], p[2] - p[0] / 3.0 - p[1] / 2.0 - p[3] / 6.0, (p[0] + p[2]) / 2.0 - p[1],
                            (p[3] - p[0]) / 6.0 + (p[1] - p[2]) / 2.0 } };
    }
}

PROCESSOR_VECTOR_CODE void WaveTable::play(const double *__restrict x, double amplitude, double *__restrict out,
                                           int n) const
{
    typedef int FourCells __attribute__((vector_size(16)));
    static_assert(sizeof(Cell) == sizeof(Four), "a cell fills the vector");
    const Four none = {};
    const Cell *cells = m_cells.data();
    for (int i = 0; i + 4 <= n; i += 4) {
        Four place;
        std::memcpy(&place, x + i, sizeof(place));
        place -= (place + RoundingMagic) - RoundingMagic; // -0.5 to 0.5
        place = (place < none ? place + 1.0 : place) * m_points; // the last cell stands past the cycle's end
        const FourCells cell = __builtin_convertvector(place, FourCells);
        const Four t = place - __builtin_convertvector(cell, Four);
        Four rows[4], factor[4];
        for (int j = 0; j < 4; ++j)
            std::memcpy(&rows[j], cells[cell[j]].data(), sizeof(Four));
        transpose(rows, factor);
        const Four value = amplitude * (factor[0] + t * (factor[1] + t * (factor[2] + t * factor[3])));
        std::memcpy(out + i, &value, sizeof(value));
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
