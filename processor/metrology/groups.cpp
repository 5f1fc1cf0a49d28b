#include "metrology/groups.h"

#include <algorithm>
#include <cmath>

namespace processor {

namespace {

// A frequency this close to a line, in line spacings, falls on it.
constexpr double OnLine = 0.01;

double sumOf(const double *power, int lines, int from, int to)
{
    double sum = 0.0;
    for (int k = std::max(from, 0); k <= std::min(to, lines - 1); ++k)
        sum += power[k];
    return sum;
}

} // namespace

double harmonicSubgroup(const double *power, int lines, int spacing, int order)
{
    const int centre = spacing * order;
    return std::sqrt(sumOf(power, lines, centre - 1, centre + 1));
}

double harmonicGroup(const double *power, int lines, int spacing, int order)
{
    const int centre = spacing * order;
    const int half = spacing / 2;
    const double edges
        = sumOf(power, lines, centre - half, centre - half) + sumOf(power, lines, centre + half, centre + half);
    return std::sqrt(sumOf(power, lines, centre - half + 1, centre + half - 1) + 0.5 * edges);
}

double interharmonicSubgroup(const double *power, int lines, int spacing, int order)
{
    const int below = spacing * order;
    return std::sqrt(sumOf(power, lines, below + 2, below + spacing - 2));
}

double interharmonicGroup(const double *power, int lines, int spacing, int order)
{
    const int below = spacing * order;
    return std::sqrt(sumOf(power, lines, below + 1, below + spacing - 1));
}

double signallingVoltage(const double *power, int lines, double place)
{
    if (!(place >= 2.0 && place < lines - 3))
        return 0.0;
    const int nearest = static_cast<int>(place + 0.5);
    if (std::fabs(place - nearest) < OnLine)
        return std::sqrt(power[nearest]);
    const int below = static_cast<int>(place);
    return std::sqrt(sumOf(power, lines, below - 1, below + 2));
}

} // namespace processor
