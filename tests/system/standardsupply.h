#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QVector>

#include <cmath>

/// A supply of the standards' tables, and what an instrument must make of it, each by formulas one can follow by hand.
namespace Standards {

constexpr int kPhases = 3;

/// What is looked at, each through the screen, the registers and the recorded file.
enum Quantity { Hertz, Volts, Order, Between, Negative, Zero, Signal1, Signal2, Pinst, Pst };

struct Expectation
{
    Quantity what;
    int phase; // 0 is L1
    int number; // of an order, or the one below what lies between two; else 0
    double value; // Hz, V, percent or none, as the quantity has it; without flicker
    double tolerance; // in the same unit
};

/// A component of one phase.
struct Tone
{
    int phase;
    double hertz;
    double volts; // r.m.s.
    double degrees = 0; // of a harmonic, against the fundamental's zero crossing
};

struct Flicker
{
    double rate = 0; // Hz
    double percent = 0; // dV / V
    bool isSinusoidal = false;
};

struct Supply
{
    QString name;
    double hertz = 50;
    double volts[kPhases] = {}; // of the fundamentals
    QVector<Tone> tones;
    Flicker flicker[kPhases];
    bool isInPhase = false; // all three voltages rise together
    double alternateHertz = 0, alternateVolts = 0; // every four seconds the other pair; 0: steady
    QVector<Expectation> expected;
};

/// R.m.s. of the lines \a first to \a last of a window in which a component of 1 makes \a turns turns: a rectangular
/// window gives line k the share sin(pi d) / (pi d), d = turns - k.
inline double shareOfLines(double turns, int first, int last)
{
    double sum = 0;
    for (int line = first; line <= last; ++line) {
        const double angle = M_PI * (turns - line);
        sum += std::fabs(angle) < 1e-9 ? 1 : std::pow(std::sin(angle) / angle, 2);
    }
    return std::sqrt(sum);
}

/// Whole multiples of the fundamental are harmonics to the stand-in: they keep to it.
inline bool isHarmonic(const Supply &supply, const Tone &tone)
{
    const double order = tone.hertz / supply.hertz;
    return std::fabs(order - std::round(order)) < 1e-9 && order > 1.5;
}

/// The supply as the stand-in reads it.
inline QJsonObject signalOf(const Supply &supply, double hertz, double factor)
{
    QJsonArray volts, harmonics, between, flicker;
    for (int phase = 0; phase < kPhases; ++phase) {
        volts.append(supply.volts[phase] * factor);
        const Flicker &one = supply.flicker[phase];
        if (one.percent > 0)
            flicker.append(QJsonObject {
                { "inputs", QStringLiteral("u%1").arg(phase + 1) },
                { "shape", one.isSinusoidal ? QStringLiteral("sinusoidal") : QStringLiteral("rectangular") },
                { "rate", one.rate },
                { "percent", one.percent } });
    }
    for (const Tone &tone : supply.tones) {
        QJsonObject object { { "inputs", QStringLiteral("u%1").arg(tone.phase + 1) },
                             { "percent", 100 * tone.volts / supply.volts[tone.phase] },
                             { "phase", tone.degrees } };
        if (isHarmonic(supply, tone)) {
            object.insert("order", int(std::lround(tone.hertz / supply.hertz)));
            harmonics.append(object);
        } else {
            object.insert("f", tone.hertz);
            between.append(object);
        }
    }
    QJsonObject signal {
        { "u", volts },        { "f", hertz }, { "i", 1 }, { "harmonics", harmonics }, { "interharmonics", between },
        { "flicker", flicker }
    };
    if (supply.isInPhase)
        signal.insert("angles", 0);
    return signal;
}

/// A scenario that plays nothing else.
inline QJsonObject scenarioOf(const Supply &supply)
{
    QJsonObject scenario { { "signal", signalOf(supply, supply.hertz, 1) } };
    if (supply.alternateHertz > 0) {
        constexpr double kEach = 4, kTwice = 8; // s
        const double factor = supply.alternateVolts / supply.volts[0];
        scenario.insert("steps",
                        QJsonArray { QJsonObject { { "at", kEach },
                                                   { "every", kTwice },
                                                   { "signal", signalOf(supply, supply.alternateHertz, factor) } },
                                     QJsonObject { { "at", kTwice },
                                                   { "every", kTwice },
                                                   { "signal", signalOf(supply, supply.hertz, 1) } } });
    }
    return scenario;
}

/// Two bounds, which are the same unless the supply itself changes between them.
struct Span
{
    double low, high;
};

/// What a rectangular flicker makes of a value between two moments of the signal: it stands at its upper level in the
/// first half of each turn, at its lower one in the second; between both where it changes.
inline Span flickering(const Flicker &flicker, double value, double from, double to)
{
    const double swing = value * flicker.percent / 200;
    const auto half = [&](double t) { return std::floor(2 * flicker.rate * t); };
    if (half(from) != half(to))
        return { value - swing, value + swing };
    const double level = std::fmod(half(from), 2) == 0 ? value + swing : value - swing;
    return { level, level };
}

} // namespace Standards
