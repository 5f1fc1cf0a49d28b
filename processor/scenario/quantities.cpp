#include "scenario/quantities.h"

#include <QRegularExpression>
#include <QStringList>

#include <cmath>

namespace scenario {

namespace {

/// A suffix and what it multiplies by.
struct Suffix
{
    Unit unit;
    const char *text;
    double factor;
};
constexpr Suffix kSuffixes[] = {
    { Unit::Percent, "%", 1.0 },   { Unit::Seconds, "s", 1.0 },    { Unit::Seconds, "ms", 1e-3 },
    { Unit::Seconds, "us", 1e-6 }, { Unit::Seconds, "min", 60.0 }, { Unit::Seconds, "h", 3600.0 },
    { Unit::Degrees, "deg", 1.0 }, { Unit::Volts, "v", 1.0 },      { Unit::Volts, "kv", 1e3 },
    { Unit::Volts, "mv", 1e-3 },   { Unit::Amperes, "a", 1.0 },    { Unit::Amperes, "ka", 1e3 },
    { Unit::Amperes, "ma", 1e-3 }, { Unit::Hertz, "hz", 1.0 },     { Unit::Hertz, "khz", 1e3 },
};

constexpr const char *kNames[processor::InputCount] = { "u1", "u2", "u3", "un", "i1", "i2", "i3", "in" };

processor::InputMask oneInput(const QString &name, Side side)
{
    for (int input = 0; input < processor::InputCount; ++input) {
        if (name == QLatin1String(kNames[input]))
            return processor::maskOf(input);
    }
    const int first = side == Side::Voltage ? processor::U1 : processor::I1;
    const processor::InputMask phases = side == Side::Voltage ? processor::PhaseVoltages : processor::PhaseCurrents;
    if (name == QLatin1String("u"))
        return processor::PhaseVoltages;
    if (name == QLatin1String("i"))
        return processor::PhaseCurrents;
    if (name == QLatin1String("all"))
        return phases;
    if (name == QLatin1String("n"))
        return processor::maskOf(first + 3);
    static const QRegularExpression line(QStringLiteral("^l([123])$"));
    const QRegularExpressionMatch match = line.match(name);
    return match.hasMatch() ? processor::maskOf(first + match.captured(1).toInt() - 1) : 0;
}

} // namespace

std::optional<double> quantity(const QString &text, Unit unit)
{
    static const QRegularExpression pattern(
        QStringLiteral("^([+-]?(?:[0-9]+\\.?[0-9]*|\\.[0-9]+)(?:[eE][+-]?[0-9]+)?)([a-zA-Z%]*)$"));
    const QRegularExpressionMatch match = pattern.match(text);
    bool good = match.hasMatch();
    const double value = match.captured(1).toDouble(&good);
    if (!good || !std::isfinite(value))
        return std::nullopt;
    const QString suffix = match.captured(2).toLower();
    if (suffix.isEmpty())
        return value;
    for (const Suffix &row : kSuffixes) {
        if (row.unit == unit && suffix == QLatin1String(row.text))
            return value * row.factor;
    }
    return std::nullopt;
}

QString expectation(Unit unit)
{
    switch (unit) {
    case Unit::None:
        return QStringLiteral("a number");
    case Unit::Percent:
        return QStringLiteral("a percentage as 40%");
    case Unit::Seconds:
        return QStringLiteral("a time as 200ms or 0.2s");
    case Unit::Degrees:
        return QStringLiteral("an angle in degrees");
    case Unit::Volts:
        return QStringLiteral("a voltage as 230 or 230V");
    case Unit::Amperes:
        return QStringLiteral("a current as 10 or 10A");
    case Unit::Hertz:
        return QStringLiteral("a frequency as 50.1 or 50.1Hz");
    }
    return {};
}

processor::InputMask inputs(const QString &text, Side side)
{
    processor::InputMask mask = 0;
    const QStringList names = text.toLower().split(QLatin1Char('+'));
    for (const QString &name : names) {
        const processor::InputMask one = oneInput(name, side);
        if (one == 0)
            return 0;
        mask |= one;
    }
    return mask;
}

QString inputName(int input)
{
    return QString::fromLatin1(kNames[input]);
}

} // namespace scenario
