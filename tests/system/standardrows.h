#pragma once

#include "standardsupply.h"

#include <QVector>

#include <array>

/// The rows of the standards' tables: supplies, expected values, allowed errors. docs/quality.md lists them, with what
/// is left out.
namespace Standards {

using Supplies = QVector<Supply>;

constexpr double kVoltError = 0.001; // class A, of the declared voltage
constexpr double kHertzError = 0.01;
constexpr double kUnbalanceError = 0.15; // percent
constexpr double kFlickerError = 0.05;

/// What an instrument is made for: nominal frequency and declared voltage.
struct Rating
{
    double hertz, volts;

    int cycles() const { return hertz > 55 ? 12 : 10; } // of a window
    /// Class I of IEC 61000-4-7: 5 % of a value of at least 1 % of the declared voltage, else 0.05 % of that.
    double lineError(double value) const { return value >= 0.01 * volts ? 0.05 * value : 0.0005 * volts; }
};

/// The r.m.s. value of a phase, from fundamental and tones.
inline double rmsOf(const Supply &supply, int phase)
{
    double sum = supply.volts[phase] * supply.volts[phase];
    for (const Tone &tone : supply.tones)
        sum += tone.phase == phase ? tone.volts * tone.volts : 0;
    return std::sqrt(sum);
}

/// Ratio of the negative sequence, and of the zero sequence, where the phases differ in size only, by 120 degrees.
inline double unbalanceOf(const Supply &supply)
{
    const double a = supply.volts[0], b = supply.volts[1], c = supply.volts[2];
    return 100 * std::sqrt(a * a + b * b + c * c - a * b - b * c - c * a) / (a + b + c);
}

/// The testing states of IEC 61000-4-30, and what is measured while the other quantities stand as a state says.
class TestingStates
{
public:
    explicit TestingStates(const Rating &rating) : m_rating(rating) { }

    Supplies all()
    {
        for (int state = 1; state <= 3; ++state) {
            addState(state);
            addFrequencies(state);
            addMagnitudes(state);
            addComponents(state);
        }
        Supply supply = withMagnitudes(1, { 0.73, 0.80, 0.87 });
        supply.name = inState(1, "73, 80 and 87 %");
        expectBasics(&supply);
        return m_list << supply;
    }

    /// Shares of the declared voltage; frequencies by the nominal one.
    Supply state(int state) const
    {
        Supply supply;
        supply.hertz = m_rating.hertz + (state == 1 ? 0 : state == 2 ? -1 : 1);
        const double levels[3][kPhases] = { { 1, 1, 1 }, { 0.73, 0.80, 0.87 }, { 1.52, 1.40, 1.28 } };
        const struct
        {
            int order;
            double share, degrees;
        } orders[2][3] = { { { 3, 0.10, 0 }, { 5, 0.05, 0 }, { 29, 0.05, 0 } },
                           { { 7, 0.10, 180 }, { 13, 0.05, 0 }, { 25, 0.05, 0 } } };
        const double between[2] = { 7.5, 3.5 };
        // Severities of 1 and 4.
        const bool isAt60 = m_rating.hertz > 55;
        const Flicker flicker[2]
            = { { 39 / 120.0, isAt60 ? 1.040 : 0.894 }, { 110 / 120.0, 4 * (isAt60 ? 0.844 : 0.722) } };
        for (int phase = 0; phase < kPhases; ++phase) {
            supply.volts[phase] = levels[state - 1][phase] * m_rating.volts;
            if (state == 1)
                continue;
            for (const auto &one : orders[state - 2])
                supply.tones.append({ phase, one.order * supply.hertz, one.share * m_rating.volts, one.degrees });
            supply.tones.append({ phase, between[state - 2] * m_rating.hertz, 0.01 * m_rating.volts });
            supply.flicker[phase] = flicker[state - 2];
        }
        return supply;
    }

    static QString inState(int state, const char *what)
    {
        return QStringLiteral("state %1, ").arg(state) + QLatin1String(what);
    }

private:
    Supply withMagnitudes(int state, const std::array<double, kPhases> &shares) const
    {
        Supply supply = this->state(state);
        for (int phase = 0; phase < kPhases; ++phase)
            supply.volts[phase] = shares[std::size_t(phase)] * m_rating.volts;
        return supply;
    }

    void expectVolts(Supply *supply) const
    {
        for (int phase = 0; phase < kPhases; ++phase)
            supply->expected.append({ Volts, phase, 0, rmsOf(*supply, phase), kVoltError * m_rating.volts });
    }
    /// What is steady in all states.
    void expectBasics(Supply *supply) const
    {
        supply->expected.append({ Hertz, 0, 0, supply->hertz, kHertzError });
        expectVolts(supply);
        const double unbalance = unbalanceOf(*supply);
        supply->expected.append({ Negative, 0, 0, unbalance, kUnbalanceError });
        supply->expected.append({ Zero, 0, 0, unbalance, kUnbalanceError });
    }

    /// All quantities as the state has them.
    void addState(int state)
    {
        Supply supply = this->state(state);
        supply.name = inState(state, "as it is");
        expectBasics(&supply);
        const int cycles = m_rating.cycles();
        for (const Tone &tone : supply.tones) {
            const int order = int(tone.hertz / supply.hertz + 1e-9);
            const double error = m_rating.lineError(tone.volts);
            if (isHarmonic(supply, tone)) {
                supply.expected.append({ Order, tone.phase, order, tone.volts, error });
                continue;
            }
            const double share
                = shareOfLines(cycles * tone.hertz / supply.hertz, cycles * order + 2, cycles * (order + 1) - 2);
            supply.expected.append({ Between, tone.phase, order, share * tone.volts, error });
        }
        m_list.append(supply);
    }

    /// The ends of the range of frequencies: 15 % from the nominal one.
    void addFrequencies(int state)
    {
        for (const double end : { 0.85, 1.15 }) {
            Supply supply = this->state(state);
            const double hertz = end * m_rating.hertz;
            for (Tone &tone : supply.tones)
                tone.hertz *= isHarmonic(supply, tone) ? hertz / supply.hertz : 1;
            supply.hertz = hertz;
            supply.name = inState(state, end < 1 ? "lowest frequency" : "highest frequency");
            expectBasics(&supply);
            m_list.append(supply);
        }
    }

    /// 10 to 150 % of the declared voltage.
    void addMagnitudes(int state)
    {
        Supply low = withMagnitudes(state, { 0.10, 0.45, 0.80 }), high = withMagnitudes(state, { 1.15, 1.50, 1.00 });
        low.name = inState(state, "10, 45 and 80 %");
        high.name = inState(state, "115, 150 and 100 %");
        for (Supply *supply : { &low, &high }) {
            expectVolts(supply);
            m_list.append(*supply);
        }
    }

    /// Orders, what lies between them, and signals that the state itself does not have.
    void addComponents(int state)
    {
        Supply supply = this->state(state);
        supply.name = inState(state, "other components");
        const double orders[kPhases] = { 0.01, 0.10, 0.20 }, between[kPhases] = { 0.01, 0.05, 0.09 };
        const double signalHertz[2] = { 1375, 285 }; // of the limit set in use
        const double signal[kPhases] = { 0.03, 0.09, 0.15 };
        for (int phase = 0; phase < kPhases; ++phase) {
            const double order = orders[phase] * m_rating.volts, inter = between[phase] * m_rating.volts;
            supply.tones.append({ phase, 11 * supply.hertz, order });
            supply.expected.append({ Order, phase, 11, order, m_rating.lineError(order) });
            supply.tones.append({ phase, 9.5 * supply.hertz, inter });
            supply.expected.append({ Between, phase, 9, inter, m_rating.lineError(inter) });
            for (int number = 0; number < 2; ++number) {
                const double turns = m_rating.cycles() * signalHertz[number] / supply.hertz;
                const int below = int(turns + 1e-9); // the line itself, or the four around a place between two
                const double share = turns - below < 1e-6 ? 1 : shareOfLines(turns, below - 1, below + 2);
                supply.tones.append({ phase, signalHertz[number], signal[phase] * m_rating.volts });
                supply.expected.append(
                    { number == 0 ? Signal1 : Signal2, phase, 0, 100 * share * signal[phase], 5 * signal[phase] });
            }
        }
        m_list.append(supply);
    }

    const Rating m_rating;
    Supplies m_list;
};

/// Groups of IEC 61000-4-7: tones by their place, in orders of the fundamental and lines beside it.
class Groups
{
public:
    explicit Groups(const Rating &rating) : m_rating(rating) { }

    void begin(const char *name)
    {
        Supply supply;
        supply.name = QLatin1String(name);
        supply.hertz = m_rating.hertz;
        std::fill_n(supply.volts, kPhases, m_rating.volts);
        m_list.append(supply);
    }
    void tone(int phase, int order, double lines, double volts)
    {
        m_list.last().tones.append({ phase, m_rating.hertz * (order + lines / cycles()), volts });
    }
    void order(int phase, int number, double volts) { expect(Order, phase, number, volts); }
    void between(int phase, int number, double volts) { expect(Between, phase, number, volts); }
    /// The lines that make up what lies between two orders, counted from the one below.
    int lastBetween() const { return cycles() - 2; }
    int cycles() const { return m_rating.cycles(); }
    const Supplies &list() const { return m_list; }

private:
    void expect(Quantity what, int phase, int number, double volts)
    {
        m_list.last().expected.append({ what, phase, number, volts, 0.005 * volts + 0.03 });
    }

    const Rating m_rating;
    Supplies m_list;
};

/// A single tone on each phase, so many lines beside an order; either that order or the place between has it all.
inline void addBeside(Groups &groups, const char *name, double lines)
{
    groups.begin(name);
    const int orders[kPhases] = { 3, 5, 49 };
    for (int phase = 0; phase < kPhases; ++phase) {
        const int order = orders[phase], between = lines < 0 ? order - 1 : order;
        const bool isOrder = std::fabs(lines) <= 1;
        groups.tone(phase, order, lines, 6);
        groups.order(phase, order, isOrder ? 6 : 0);
        groups.between(phase, between, isOrder ? 0 : 6);
    }
}

/// Several tones at once, and one that lies on no line.
inline void addTogether(Groups &groups)
{
    groups.begin("an order and a line beside it: 8 and 6 make 10");
    groups.tone(0, 3, 0, 8);
    groups.tone(0, 3, 1, 6);
    groups.order(0, 3, 10);
    groups.tone(1, 5, -1, 6);
    groups.tone(1, 5, 0, 8);
    groups.order(1, 5, 10);
    groups.tone(2, 7, -1, 6);
    groups.tone(2, 7, 1, 8);
    groups.order(2, 7, 10);

    // An amplitude that swings by the share m at the rate of one line: two lines of m / 2 beside the order.
    groups.begin("a fluctuating order, slowly and fast");
    groups.tone(0, 5, 0, 10);
    groups.tone(0, 5, -1, 2);
    groups.tone(0, 5, 1, 2);
    groups.order(0, 5, 10.392); // root of 100 + 4 + 4
    groups.tone(1, 5, 0, 10); // by two lines: what lies between has its sides
    groups.tone(1, 5, -2, 2);
    groups.tone(1, 5, 2, 2);
    groups.order(1, 5, 10);
    groups.between(1, 4, 2);
    groups.between(1, 5, 2);

    groups.begin("every line between two orders");
    for (int line = 1; line < groups.cycles(); ++line)
        groups.tone(0, 3, line, 1);
    groups.order(0, 3, 1);
    groups.order(0, 4, 1);
    groups.between(0, 3, std::sqrt(groups.lastBetween() - 1)); // seven lines, or nine

    groups.begin("between two lines");
    const double place = 3 * groups.cycles() + 1.5;
    const int order = 3 * groups.cycles();
    groups.tone(0, 3, 1.5, 6);
    groups.order(0, 3, 6 * shareOfLines(place, order - 1, order + 1));
    groups.between(0, 3, 6 * shareOfLines(place, order + 2, order + groups.lastBetween()));
}

inline Supplies groupsOfLines(const Rating &rating)
{
    Groups groups(rating);
    addBeside(groups, "on an order", 0);
    addBeside(groups, "a line above", 1);
    addBeside(groups, "a line below", -1);
    addBeside(groups, "two lines above", 2);
    addBeside(groups, "two lines below", -2);
    addBeside(groups, "half way up", groups.cycles() / 2);
    addBeside(groups, "half way down", -groups.cycles() / 2);

    groups.begin("ends of the range");
    groups.tone(0, 2, 0, 5);
    groups.tone(1, 50, 0, 5);
    groups.tone(2, 50, 1, 5);
    groups.order(0, 2, 5);
    groups.order(1, 50, 5);
    groups.order(2, 50, 5);

    groups.begin("below the fundamental");
    groups.tone(0, 0, 5, 4);
    groups.tone(1, 0, 2, 4);
    groups.tone(2, 0, groups.lastBetween(), 4);
    for (int phase = 0; phase < kPhases; ++phase)
        groups.between(phase, 0, 4);
    addTogether(groups);
    return groups.list();
}

} // namespace Standards
