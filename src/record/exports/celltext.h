#pragma once

#include "record/tables/recordtable.h"

#include <charconv>
#include <cmath>

// How the exports that are text write a number. The shortest digits that give the stored number back bit for bit, with
// a decimal point whatever the language.
namespace CellText {

constexpr int kMost = 32; // bytes of the longest number

/// Whether a value is one of a column of whole numbers.
inline bool isWhole(double value)
{
    return std::fabs(value) < 9.2e18 && value == std::floor(value);
}

/// Whether there is a value: what is infinite was measured by nobody.
inline bool hasValue(double value, CellType type)
{
    if (type == CellType::Integer)
        return isWhole(value);
    return type == CellType::Single ? std::isfinite(float(value)) : std::isfinite(value);
}

/// Writes a value at \a at, where there is room for kMost bytes, and answers its end.
inline char *print(char *at, double value, CellType type)
{
    if (type == CellType::Single)
        return std::to_chars(at, at + kMost, float(value)).ptr;
    if (type == CellType::Integer)
        return std::to_chars(at, at + kMost, qint64(value)).ptr;
    return std::to_chars(at, at + kMost, value).ptr;
}

} // namespace CellText
