#pragma once

#include <QtGlobal>

#include <algorithm>
#include <limits>

/// A setting without its fraction; a ratio that someone wrote into the settings may lead beyond 32 bits.
inline qint32 truncated(double value)
{
    constexpr double kLowest = std::numeric_limits<qint32>::min();
    constexpr double kHighest = std::numeric_limits<qint32>::max();
    return qint32(std::clamp(value, kLowest, kHighest));
}
