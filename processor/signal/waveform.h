#pragma once

#include "signal/signalspec.h"

#include <memory>
#include <array>
#include <vector>

namespace processor {

/// out[i] = amplitude * sin(2 pi x[i]), x in cycles; exact to 1e-11 for |x| below 1e6. No call to the maths library, so
/// that the loop runs in vector registers.
void sinCycles(const double *x, double amplitude, double *out, int n);

/// One cycle of a fundamental of amplitude 1 with its harmonics, read at any phase by cubic interpolation. The table's
/// own error stays below 1e-6 of the highest harmonic's amplitude.
class WaveTable
{
public:
    explicit WaveTable(const std::vector<HarmonicSpec> &harmonics);

    /// out[i] = amplitude * wave(x[i]), x in cycles; n is a multiple of four.
    void play(const double *x, double amplitude, double *out, int n) const;
    bool holds(const std::vector<HarmonicSpec> &harmonics) const;

private:
    std::vector<HarmonicSpec> m_harmonics;
    int m_points; // in the cycle: no more than the highest order needs, since a small table stays in the cache
    /// The wave between two points, as a cubic of the way from the one (0) to the other (1): its four factors.
    using Cell = std::array<double, 4>;
    std::vector<Cell> m_cells; // one for each point, and the first once more
};

} // namespace processor
