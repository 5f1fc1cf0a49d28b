#include "setup/limitvalue.h"

#include "settings/derived.h"
#include "settings/limits.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int kPerUnit = 100;

struct UnitText
{
    const char *sign; // before the number
    const char *unit; // behind it
};
const UnitText kUnits[]
    = { { "", " %" }, { "+", " %" }, { "-", " %" }, { "", " %/s" }, { "", " s" }, { "", " Hz" }, { "", "" } };

/// Decimals that show every multiple of a number of hundredths.
int decimalsOf(int hundredths)
{
    if (hundredths % kPerUnit == 0)
        return 0;
    return hundredths % 10 == 0 ? 1 : 2;
}

} // namespace

float LimitValue::intTofloat(int hundredths)
{
    return static_cast<float>(hundredths / double(kPerUnit));
}

int LimitValue::floatToint(float value)
{
    if (std::isnan(value))
        return 0;
    return static_cast<int>(std::clamp(std::round(double(value) * kPerUnit), double(std::numeric_limits<int>::min()),
                                       double(std::numeric_limits<int>::max())));
}

bool LimitValue::isNone(int hundredths)
{
    return intTofloat(hundredths) > kLimitNotApplied;
}

int LimitValue::stepped(int value, int steps, const Span &span)
{
    if (steps == 0)
        return value;
    const bool none = span.mayBeNone && isNone(value);
    if (none)
        return steps > 0 ? value : span.highest;
    if (span.mayBeNone && steps > 0 && value == span.highest)
        return kNone;
    // Off the grid, the first step leads onto it.
    const qint64 below = qint64(std::floor(double(value) / span.step)) * span.step;
    const qint64 from = steps < 0 && below != value ? below + span.step : below;
    return int(std::clamp(from + qint64(steps) * span.step, qint64(span.lowest), qint64(span.highest)));
}

QString LimitValue::getVoltageVal(int value, Unit unit, const Span &span)
{
    if (span.mayBeNone && isNone(value))
        return QStringLiteral("N/A");
    const int decimals = std::max(decimalsOf(span.step), decimalsOf(value));
    return QLatin1String(kUnits[unit].sign) + QString::number(value / double(kPerUnit), 'f', decimals)
        + QLatin1String(kUnits[unit].unit);
}

QString LimitValue::nominalText(int value, Unit unit, Base base, const Span &span, const Derived &derived)
{
    if (base == NoBase || (span.mayBeNone && isNone(value)))
        return {};
    const double share = value / double(kPerUnit) / 100.0;
    if (base == OfFrequency)
        return QStringLiteral("%1 Hz").arg(share * derived.nominalFrequency, 0, 'f', 2);
    constexpr int kDecimals = 1, kDecimalsOfKilo = 3;
    const DisplayUnits &shown = derived.units;
    const int decimals = shown.factorVolt < 1.0 ? kDecimalsOfKilo : kDecimals;
    const QString volts = QString::number(share * double(derived.realNominalVolt) * shown.factorVolt, 'f', decimals);
    return volts + QLatin1Char(' ') + shown.volt + (unit == PercentPerSecond ? QStringLiteral("/s") : QString());
}
