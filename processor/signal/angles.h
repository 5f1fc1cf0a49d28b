#pragma once

#include <cmath>

namespace processor {

constexpr double Pi = 3.14159265358979323846;
constexpr double TwoPi = 2.0 * Pi;
constexpr double Sqrt2 = 1.41421356237309504880;

/// Part of a cycle, 0 up to 1, for a finite x of any size.
inline double fractionOf(double cycles)
{
    return cycles - std::floor(cycles);
}

/// The same from -0.5 up to 0.5.
inline double centred(double cycles)
{
    return cycles - std::floor(cycles + 0.5);
}

} // namespace processor
