#pragma once

#include "settings/limits.h"

#include <QtGlobal>

#include <limits>

/// What is judged.
enum class Quantity : quint8 {
    Frequency,
    Voltage,
    Unbalance,
    ZeroUnbalance,
    Thd,
    Harmonic,
    Pst,
    Plt,
    Signal1,
    Signal2
};

inline bool isSignal(Quantity quantity)
{
    return quantity == Quantity::Signal1 || quantity == Quantity::Signal2;
}

/// One quantity of one phase.
struct QuantityKey
{
    Quantity quantity = Quantity::Frequency;
    qint8 phase = -1; // 0 to 2; -1 where there is one for all
    qint16 order = 0; // of a harmonic

    bool operator==(const QuantityKey &other) const
    {
        return quantity == other.quantity && phase == other.phase && order == other.order;
    }
};

/// What a limit set asks of one quantity, in the unit of its values. What it does not ask is infinite.
struct Bounds
{
    static constexpr double kNone = std::numeric_limits<double>::infinity();

    double nominal = 0; // from which distances count
    double share = 100; // percent of the values that have to lie within low to high
    double low = -kNone, high = kNone;
    double wholeLow = -kNone, wholeHigh = kNone; // all values

    bool hasPartial() const { return low > -kNone || high < kNone; }
    bool hasWhole() const { return wholeLow > -kNone || wholeHigh < kNone; }
    bool holdsPartial(double value) const { return value >= lowered(low) && value <= raised(high); }
    bool holdsWhole(double value) const { return value >= lowered(wholeLow) && value <= raised(wholeHigh); }
    /// How much of the way to the bound on its side \a value goes: 1 lies on it. Without partial bounds it is the way
    /// to the bounds of all values, without any the distance itself.
    double ratio(double value) const;
    /// The same by the partial bounds alone, where there are any: a side without one is free.
    double partialRatio(double value) const;

private:
    // A stored float and the float of a limit are not more exact than this.
    static constexpr double kExactness = 1e-6;
    static double raised(double bound) { return bound + kExactness * (bound < 0 ? -bound : bound); }
    static double lowered(double bound) { return bound - kExactness * (bound < 0 ? -bound : bound); }
};

/// The bounds that \a limits has for a quantity.
Bounds boundsOf(const QuantityKey &key, const monitor_limit &limits, double nominalVolt, double nominalFrequency);

/// How long one value counts for, in ms, as the standards have it.
qint64 intervalOf(Quantity quantity);
