#include "model/displayunits.h"

#include <QtGlobal>

namespace {

struct Prefix
{
    const char *text;
    double factor;
};
const Prefix kMilli = { "m", 1000.0 };
const Prefix kSteps[] = { { "", 1.0 }, { "k", 0.001 }, { "M", 1e-6 }, { "G", 1e-9 }, { "T", 1e-12 } };

/// The prefix of a quantity of that size: milli below 1, then one step per 1000 from 10,000 on, at most `highest`.
const Prefix &prefixFor(float fullScale, int highest)
{
    if (fullScale < 1.0f)
        return kMilli;
    int step = 0;
    // The bound also ends the walk for values that dividing cannot bring down (infinity, not a number).
    for (float quotient = fullScale / 1000.0f; step < highest && !(quotient < 10.0f); quotient /= 1000.0f)
        ++step;
    return kSteps[step];
}

} // namespace

void DisplayScale::chooseVolt(DisplayUnits &units, float fullScale)
{
    const Prefix &prefix = prefixFor(fullScale, 3);
    units.factorVolt = prefix.factor;
    units.volt = QLatin1String(prefix.text) + QLatin1String("V");
}

void DisplayScale::chooseAmpere(DisplayUnits &units, float fullScale)
{
    // Kept: the reverse of the other quantities.
    static const Prefix mega = { "M", 1e-6 };
    static const Prefix kilo = { "k", 0.001 };
    static const Prefix none = { "", 1.0 };
    const Prefix &prefix = fullScale < 1.0f ? mega : fullScale < 1000.0f ? kilo : fullScale < 1e6f ? none : kMilli;
    units.factorAmpere = prefix.factor;
    units.ampere = QLatin1String(prefix.text) + QLatin1String("A");
}

void DisplayScale::choosePower(DisplayUnits &units, float fullScale)
{
    const Prefix &prefix = prefixFor(fullScale, 4);
    const QLatin1String text(prefix.text);
    units.factorWatt = prefix.factor;
    units.factorWattHour = prefix.factor;
    units.watt = text + QLatin1String("W");
    units.voltAmpere = text + QLatin1String("VA");
    units.var = text + QLatin1String("var");
    units.wattHour = text + QLatin1String("Wh");
    units.voltAmpereHour = text + QLatin1String("VAh");
    units.varHour = text + QLatin1String("varh");
}

int DisplayScale::currentDigits(float fullScale, double factorAmpere)
{
    int digits = -1;
    for (float bound = 100.0f; digits < 5 && fullScale > bound; bound *= 10.0f)
        ++digits;
    if (factorAmpere == 1e-6)
        return qMin(digits + 6, 3);
    if (factorAmpere == 0.001)
        return qMin(digits + 3, 3);
    if (factorAmpere == 1000.0)
        return qMax(digits - 3, 0);
    return qBound(0, digits, 3);
}
