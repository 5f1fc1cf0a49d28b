#include "report/bounds.h"

#include <cmath>

namespace {

/// A share or a percentage as a person wrote it: 99.9, where the float of the set holds 99.90000153.
double written(float number)
{
    constexpr double kSteps = 1e4;
    return std::round(double(number) * kSteps) / kSteps;
}

/// Limits of 100.1 are none; so is one of 0, which rows hold that were never filled.
double applied(float percent)
{
    return percent > 0 && percent < kLimitNotApplied ? written(percent) : Bounds::kNone;
}

bool isUsable(double nominal)
{
    return std::isfinite(nominal) && nominal > 0;
}

Bounds band(const LimitBand<float> &limit, double nominal)
{
    Bounds bounds;
    bounds.nominal = nominal;
    bounds.share = written(limit.nep);
    const auto away = [nominal](float percent) { return nominal * applied(percent) / 100; };
    bounds.low = nominal - away(limit.partialLower);
    bounds.high = nominal + away(limit.partialUpper);
    bounds.wholeLow = nominal - away(limit.wholeLower);
    bounds.wholeHigh = nominal + away(limit.wholeUpper);
    return bounds;
}

Bounds upper(float nep, float partial, float whole)
{
    Bounds bounds;
    bounds.share = written(nep);
    bounds.high = applied(partial);
    bounds.wholeHigh = applied(whole);
    return bounds;
}

/// The top of the scale is no limit.
Bounds flicker(const LimitFlicker<float> &limit)
{
    const float partial = limit.partial < limit.max ? limit.partial : 0;
    return upper(limit.nep, partial, limit.whole);
}

Bounds harmonic(const monitor_limit &limits, int row)
{
    if (row < 0 || row >= limits.harmonicCount || row >= monitor_limit::kRows)
        return {};
    return upper(limits.harmonicNep[row], limits.harmonicPartial[row], limits.harmonicWhole[row]);
}

/// A hundred percent is no limit of a share that cannot be larger.
Bounds unbalance(const LimitTolerance<float> &limit)
{
    return upper(limit.nep, limit.partial < 100 ? limit.partial : 0, limit.whole);
}

} // namespace

double Bounds::ratio(double value) const
{
    const double way = value - nominal;
    double width = way > 0 ? high - nominal : nominal - low;
    if (!std::isfinite(width))
        width = way > 0 ? wholeHigh - nominal : nominal - wholeLow;
    if (!std::isfinite(width)) // a side without bounds: what lies there is as good as nominal, when there are others
        return hasPartial() || hasWhole() ? 0 : std::abs(way);
    return width > 0 ? std::abs(way) / width : way == 0 ? 0 : kNone;
}

double Bounds::partialRatio(double value) const
{
    const bool isBounded = std::isfinite(value > nominal ? high : low);
    return hasPartial() && !isBounded ? 0 : ratio(value);
}

Bounds boundsOf(const QuantityKey &key, const monitor_limit &limits, double nominalVolt, double nominalFrequency)
{
    switch (key.quantity) {
    case Quantity::Frequency:
        return isUsable(nominalFrequency) ? band(limits.frequency, nominalFrequency) : Bounds();
    case Quantity::Voltage:
        return isUsable(nominalVolt) ? band(limits.voltage, nominalVolt) : Bounds();
    case Quantity::Unbalance:
        return unbalance(limits.neg);
    case Quantity::ZeroUnbalance:
        return unbalance(limits.zero);
    case Quantity::Thd:
        return harmonic(limits, 0);
    case Quantity::Harmonic:
        return harmonic(limits, key.order - 1);
    case Quantity::Pst:
        return flicker(limits.pst);
    case Quantity::Plt:
        return flicker(limits.plt);
    case Quantity::Signal1:
        return upper(limits.frequency1.nep, limits.frequency1.partial, limits.frequency1.whole);
    case Quantity::Signal2:
        return upper(limits.frequency2.nep, limits.frequency2.partial, limits.frequency2.whole);
    }
    return {};
}

qint64 intervalOf(Quantity quantity)
{
    constexpr qint64 kSecond = 1000;
    constexpr qint64 kMinute = 60 * kSecond;
    switch (quantity) {
    case Quantity::Frequency:
        return 10 * kSecond;
    case Quantity::Plt:
        return 120 * kMinute;
    case Quantity::Signal1:
    case Quantity::Signal2:
        return 3 * kSecond;
    default:
        return 10 * kMinute;
    }
}
