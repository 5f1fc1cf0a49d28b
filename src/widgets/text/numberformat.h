#pragma once

#include <QString>

struct Derived;

/// Measured values as text, in the units and decimals of a set-up; no globals. A value that is no number, is infinite,
/// or is smaller than 0.0001 in magnitude counts as 0. Any thread.
namespace NumberFormat {

QString volt(float value, const Derived &by); // V; decimals by the voltage range
QString ampere(float value, const Derived &by); // A; decimals by clamp and ratio
QString ampereN(float value, const Derived &by); // the same for the neutral channel
QString watt(float value, const Derived &by); // W, var or VA, 2 decimals
QString wattHour(float value, const Derived &by); // Wh, varh or VAh, 3 decimals

}
