#pragma once

#include <QJsonObject>
#include <QString>
#include <QVector>

/// What stands at the eight inputs of an instrument before a supply of `processor/scenarios`, by the formula of each
/// parameter as docs/simulator.md tells it. It reads the scenario by itself and shares nothing with the stand-in. Times
/// are seconds of the signal. Noise has no formula: it adds its square to that of an r.m.s. value.
class TrueSignal
{
public:
    enum Input { U1, U2, U3, UN, I1, I2, I3, IN, kInputs };

    struct Component
    {
        double order; // or its frequency in Hz
        double share; // of the fundamental
        double phase; // turns
    };
    struct Source
    {
        double rms = 0; // of the fundamental, V or A
        double phase = 0; // turns
        QVector<Component> harmonics;
        QVector<Component> interharmonics;
        double flickerDepth = 0, flickerRate = 0, flickerPhase = 0; // peak to peak, Hz, turns
        bool flickerIsRectangular = true;
        double noise = 0, offset = 0;
    };
    struct Telegram
    {
        quint32 inputs;
        double hertz, share, start, on, period;
    };
    /// What holds from a moment until the next one.
    struct Supply
    {
        double from = 0; // s
        double hertz = 50, drift = 0, driftLimit = 0;
        Source inputs[kInputs];
        QVector<Telegram> telegrams;
        bool neutralSum = true;
    };
    /// Something that happens, each time by itself.
    struct Event
    {
        QString type;
        quint32 inputs; // bits
        double start, end; // s
        double length, level, ramp, decay; // s, factor, s, s
        double amplitude, hertz, turns; // of a transient, V and Hz; of a jump

        bool adds() const { return type == QLatin1String("transient") || type == QLatin1String("ring"); }
    };

    /// A supply by name; false when there is none. Events are played until \a end.
    bool load(const QString &name, double end);
    /// These inputs are connected to nothing.
    void unplug(quint32 inputs);
    /// The inputs stand open, and this is what the input stage itself makes of one.
    void setOpenInput(int input, double offset, double noise);
    /// Voltages beyond this on either side are cut.
    void setRange(double volts) { m_range = volts; }

    const QVector<Event> &events() const { return m_events; }
    const Supply &supplyAt(double t) const;
    double hertz(double t) const;
    /// Turns of the common fundamental since the beginning; L1 stands at this phase.
    double turns(double t) const;
    /// When the fundamental has made so many turns.
    double momentOf(double turns) const;
    // The same of L1 with the jumps of its phase.
    double turnsOfL1(double t) const { return turns(t) + advance(U1, t); }
    double momentOfL1(double turns) const;
    /// The values of an input at so many moments from one to another, which is not among them.
    QVector<double> values(int input, double from, double to, int places) const;
    /// Nothing begins, ends or goes on within: the supply is as its steady parameters say.
    bool isQuiet(double from, double to) const;
    /// No telegram is on at any time of it.
    bool isWithoutTelegrams(double from, double to) const;
    /// Every period of ten cycles in it is like the other.
    bool isUniform(double from, double to) const;

private:
    static Supply readSupply(const QJsonObject &signal);
    void readEvent(const QJsonObject &object, double end);
    double startOf(double moment, const QJsonObject &object, quint32 inputs) const;
    double advance(int input, double t) const;
    QVector<double> ownValues(int input, double from, double to, int places) const;

    QVector<Supply> m_supplies; // the first one holds from the beginning
    QVector<Event> m_events;
    double m_range = 1e9; // V
};
