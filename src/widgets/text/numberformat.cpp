#include "widgets/text/numberformat.h"

#include "settings/derived.h"
#include "widgets/text/f_to_str.h"

QString NumberFormat::volt(float value, const Derived &by)
{
    // Kept: channel U1 stands for all.
    return F_to_Str::scaled(value, by.units.factorVolt, F_to_Str::precision_num(by.voltGain[0]));
}

QString NumberFormat::ampere(float value, const Derived &by)
{
    // Kept: the decimals follow clamp and ratio; the resolution of the current range has no say.
    return F_to_Str::scaled(value, by.units.factorAmpere, by.currentDigits + 1);
}

QString NumberFormat::ampereN(float value, const Derived &by)
{
    return F_to_Str::scaled(value, by.unitsN.factorAmpere, by.currentNDigits + 1);
}

QString NumberFormat::watt(float value, const Derived &by)
{
    return F_to_Str::scaled(value, by.units.factorWatt, 2);
}

QString NumberFormat::wattHour(float value, const Derived &by)
{
    return F_to_Str::scaled(value, by.units.factorWattHour, 3);
}
