#pragma once

#include "signal/signalspec.h"

#include <QString>

#include <optional>

namespace scenario {

/// What a number in a command may carry as its unit.
enum class Unit { None, Percent, Seconds, Degrees, Volts, Amperes, Hertz };

/// The number in \a text in the base unit: "40%" is 40, "200ms" 0.2, "1.5kV" 1500. A number without a unit is taken in
/// the base unit. Nothing for any other text, and for what is no finite number.
std::optional<double> quantity(const QString &text, Unit unit);

/// What quantity() would take, for error texts: "a time as 200ms or 0.2s".
QString expectation(Unit unit);

/// Which inputs a bare "l1", "n" or "all" means.
enum class Side { Voltage, Current };

/// The inputs named in \a text, joined by '+': "u1", "i2", "un", "in", "u" and "i" for the three phases, and, by
/// \a side, "l1", "l2", "l3", "n", "all". 0 for any other text.
processor::InputMask inputs(const QString &text, Side side);

/// Name of an input: "u1" to "in".
QString inputName(int input);

/// Calls \a function with the steady signal of each input of \a mask.
template <typename Function>
void forEachInput(processor::SignalSpec *signal, processor::InputMask mask, Function function)
{
    for (int input = 0; input < processor::InputCount; ++input) {
        if (mask & processor::maskOf(input))
            function(signal->inputs[std::size_t(input)]);
    }
}

} // namespace scenario
