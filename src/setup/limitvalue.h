#pragma once

#include <QString>

struct Derived;

/// Numbers of a limit set as their editors show and step them: in hundredths, so that no step leaves a rest.
namespace LimitValue {

/// What follows the number.
enum Unit {
    Percent,
    PercentAbove, // of a nominal value, above it
    PercentBelow,
    PercentPerSecond,
    Seconds,
    Hertz,
    Plain, // a flicker severity, a number of events
};

/// What a percentage is of: then the same is shown in volts or hertz as well.
enum Base { NoBase, OfVoltage, OfFrequency };

/// How a value is stepped, in hundredths.
struct Span
{
    int lowest;
    int highest;
    int step;
    bool mayBeNone = false; // one step above the highest: not applied
};

constexpr int kNone = 10010; // 100.1 percent: not applied

float intTofloat(int hundredths);
/// Rounded; what is no number is 0, what 32 bits do not hold the nearest that they do.
int floatToint(float value);
/// Whether a stored value stands for "not applied".
bool isNone(int hundredths);

/// Moves by so many steps, onto their grid, and stops at the bounds. Above the highest only a step from there leads.
int stepped(int value, int steps, const Span &span);

/// A value with its unit: "+10.0 %", "N/A" for a limit that is not applied. The decimals are those of the steps, so
/// that numbers do not jump; a value off their grid has both.
QString getVoltageVal(int value, Unit unit, const Span &span);
/// The same in volts, volts per second or hertz; empty without a base and for what is not applied.
QString nominalText(int value, Unit unit, Base base, const Span &span, const Derived &derived);

} // namespace LimitValue
