#include "scenario/setcommand.h"

#include "scenario/quantities.h"

#include <QRegularExpression>

#include <algorithm>

namespace scenario {

namespace {

using processor::InputMask;
using processor::InputSpec;
using processor::SignalSpec;

/// The words of one "set", and the signal that is being changed.
struct Change
{
    QStringList words; // behind the key
    SignalSpec signal;
    processor::FrontEnd *frontEnd = nullptr;
    QString problem;

    bool fail(const QString &expected)
    {
        problem = QStringLiteral("expected ") + expected;
        return false;
    }
    bool count(int least, int most, const char *usage)
    {
        return (words.size() >= least && words.size() <= most) || fail(QString::fromLatin1(usage));
    }
    bool value(int at, Unit unit, double least, double most, double *into)
    {
        const auto number = quantity(words.value(at), unit);
        if (!number || *number < least || *number > most)
            return fail(QStringLiteral("%1, %2 to %3").arg(expectation(unit)).arg(least).arg(most));
        *into = *number;
        return true;
    }
    bool mask(int at, Side side, InputMask *into)
    {
        *into = inputs(words.value(at), side);
        return *into != 0 || fail(QStringLiteral("inputs as u1, i, l1+l2"));
    }
};

bool setPowerFactor(Change &change, InputMask lines)
{
    double pf = 1.0;
    if (!change.count(1, 2, "a power factor, and cap for a capacitive one")
        || !change.value(0, Unit::None, -1.0, 1.0, &pf))
        return false;
    const bool capacitive = change.words.size() == 2;
    if (capacitive && change.words[1] != QLatin1String("cap"))
        return change.fail(QStringLiteral("cap or nothing behind the power factor"));
    for (int line = 0; line < 3; ++line) {
        if (lines & processor::maskOf(processor::I1 + line))
            setLoad(change.signal, line, change.signal.inputs[std::size_t(processor::I1 + line)].rms, pf, capacitive);
    }
    return true;
}

/// Replaces the component that \a same finds, or adds \a component; 0 percent takes it out.
template <typename Component, typename Same>
void putComponent(std::vector<Component> *list, const Component &component, Same same)
{
    list->erase(std::remove_if(list->begin(), list->end(), same), list->end());
    if (component.percent > 0.0)
        list->push_back(component);
}

bool setHarmonic(Change &change)
{
    InputMask mask = 0;
    double order = 0.0;
    processor::HarmonicSpec harmonic;
    if (!change.count(3, 4, "INPUTS ORDER PERCENT [DEGREES]") || !change.mask(0, Side::Voltage, &mask)
        || !change.value(1, Unit::None, 2, 100, &order) || !change.value(2, Unit::Percent, 0, 1000, &harmonic.percent)
        || (change.words.size() > 3 && !change.value(3, Unit::Degrees, -360, 360, &harmonic.phaseDeg)))
        return false;
    harmonic.order = int(order);
    if (harmonic.order != order)
        return change.fail(QStringLiteral("a whole order"));
    forEachInput(&change.signal, mask, [&](InputSpec &input) {
        putComponent(&input.harmonics, harmonic, [&](const auto &other) { return other.order == harmonic.order; });
    });
    return true;
}

bool setInterharmonic(Change &change)
{
    InputMask mask = 0;
    processor::InterharmonicSpec component;
    if (!change.count(3, 4, "INPUTS HERTZ PERCENT [DEGREES]") || !change.mask(0, Side::Voltage, &mask)
        || !change.value(1, Unit::Hertz, 0.1, 10000, &component.frequencyHz)
        || !change.value(2, Unit::Percent, 0, 1000, &component.percent)
        || (change.words.size() > 3 && !change.value(3, Unit::Degrees, -360, 360, &component.phaseDeg)))
        return false;
    const auto same = [&](const auto &other) { return other.frequencyHz == component.frequencyHz; };
    forEachInput(&change.signal, mask, [&](InputSpec &input) { putComponent(&input.interharmonics, component, same); });
    return true;
}

bool setFlicker(Change &change)
{
    using Shape = processor::ModulationSpec::Shape;
    processor::ModulationSpec modulation;
    InputMask mask = processor::PhaseVoltages;
    double changes = 0.0;
    if (change.words != QStringList { QStringLiteral("off") }) {
        if (!change.count(3, 4, "INPUTS CHANGES-PER-MINUTE PERCENT [sinusoidal], or off")
            || !change.mask(0, Side::Voltage, &mask) || !change.value(1, Unit::None, 0.001, 1.2e6, &changes)
            || !change.value(2, Unit::Percent, 0, 100, &modulation.depthPercent))
            return false;
        if (change.words.size() == 4 && change.words[3] != QLatin1String("sinusoidal"))
            return change.fail(QStringLiteral("sinusoidal or nothing behind the percentage"));
        modulation.shape = change.words.size() == 4 ? Shape::Sinusoidal : Shape::Rectangular;
        modulation.rateHz = changes / 120.0;
    }
    forEachInput(&change.signal, mask, [&](InputSpec &input) { input.modulation = modulation; });
    return true;
}

bool setSignalling(Change &change)
{
    change.signal.signalling.clear();
    if (change.words == QStringList { QStringLiteral("off") })
        return true;
    const char usage[] = "HERTZ PERCENT [HERTZ PERCENT], or off";
    if (!change.count(2, 4, usage))
        return false;
    for (int at = 0; at < change.words.size(); at += 2) {
        processor::SignallingSpec tone;
        tone.onSeconds = 0.0;
        if (at + 1 == change.words.size())
            return change.fail(QString::fromLatin1(usage));
        if (!change.value(at, Unit::Hertz, 1, 10000, &tone.frequencyHz)
            || !change.value(at + 1, Unit::Percent, 0, 100, &tone.percent))
            return false;
        change.signal.signalling.push_back(tone);
    }
    return true;
}

/// Lets inputs run at a frequency of their own, or with all others again.
bool setFrequency(Change &change)
{
    InputMask mask = 0;
    double hertz = 0.0, drift = 0.0;
    if (!change.count(2, 3, "INPUTS HERTZ [HERTZ-PER-SECOND], or INPUTS off") || !change.mask(0, Side::Voltage, &mask))
        return false;
    const bool off = change.words.size() == 2 && change.words[1] == QLatin1String("off");
    if (!off
        && (!change.value(1, Unit::Hertz, 10, 1000, &hertz)
            || (change.words.size() > 2 && !change.value(2, Unit::None, -10, 10, &drift))))
        return false;
    forEachInput(&change.signal, mask, [&](InputSpec &input) {
        input.frequencyHz = hertz;
        input.driftHzPerSecond = drift;
    });
    return true;
}

/// Keys of the form INPUTS VALUE.
bool setOfInputs(Change &change, const QString &key)
{
    struct Row
    {
        const char *key;
        Unit unit;
        double least, most;
        double InputSpec::*member;
    };
    static constexpr Row kRows[] = {
        { "phase", Unit::Degrees, -360, 360, &InputSpec::phaseDeg },
        { "noise", Unit::None, 0, 10000, &InputSpec::noiseRms },
        { "dc", Unit::None, -10000, 10000, &InputSpec::dc },
    };
    for (const Row &row : kRows) {
        InputMask mask = 0;
        double value = 0.0;
        if (key != QLatin1String(row.key))
            continue;
        if (!change.count(2, 2, "INPUTS VALUE") || !change.mask(0, Side::Voltage, &mask)
            || !change.value(1, row.unit, row.least, row.most, &value))
            return false;
        forEachInput(&change.signal, mask, [&](InputSpec &input) { input.*row.member = value; });
        return true;
    }
    return change.fail(QStringLiteral("what to set: %1").arg(setUsage().join(QLatin1String("; "))));
}

bool setClamp(Change &change, bool neutral)
{
    double ratio = 0.0;
    if (!change.count(1, 1, "microvolts per ampere") || !change.value(0, Unit::None, 0.001, 1e9, &ratio))
        return false;
    processor::FrontEnd &stage = *change.frontEnd;
    stage.setClampRatio(neutral ? stage.phaseClampRatio() : ratio, neutral ? ratio : stage.neutralClampRatio());
    return true;
}

bool setOne(Change &change, const QString &key)
{
    static const QRegularExpression input(QStringLiteral("^([ui])([123n]?)$"));
    static const QRegularExpression factor(QStringLiteral("^pf([123]?)$"));
    double value = 0.0;
    if (input.match(key).hasMatch()) {
        const bool volts = key.startsWith(QLatin1Char('u'));
        if (!change.count(1, 1, "one value")
            || !change.value(0, volts ? Unit::Volts : Unit::Amperes, 0, volts ? 10000 : 100000, &value))
            return false;
        forEachInput(&change.signal, inputs(key, Side::Voltage), [&](InputSpec &one) { one.rms = value; });
        return true;
    }
    if (factor.match(key).hasMatch()) {
        const QString line = factor.match(key).captured(1);
        return setPowerFactor(change, inputs(QLatin1Char('i') + line, Side::Current));
    }
    if (key == QLatin1String("f"))
        return change.count(1, 1, "a frequency") && change.value(0, Unit::Hertz, 10, 1000, &change.signal.frequencyHz);
    if (key == QLatin1String("drift"))
        return change.count(1, 1, "hertz per second")
            && change.value(0, Unit::None, -10, 10, &change.signal.driftHzPerSecond);
    if (key == QLatin1String("frequency"))
        return setFrequency(change);
    if (key == QLatin1String("harmonic"))
        return setHarmonic(change);
    if (key == QLatin1String("interharmonic"))
        return setInterharmonic(change);
    if (key == QLatin1String("flicker"))
        return setFlicker(change);
    if (key == QLatin1String("signalling"))
        return setSignalling(change);
    if (key == QLatin1String("clamp") || key == QLatin1String("neutralclamp"))
        return setClamp(change, key == QLatin1String("neutralclamp"));
    return setOfInputs(change, key);
}

} // namespace

QStringList setUsage()
{
    return { QStringLiteral("u|u1|u2|u3|un VOLTS"),
             QStringLiteral("i|i1|i2|i3|in AMPERES"),
             QStringLiteral("f HERTZ"),
             QStringLiteral("drift HERTZ-PER-SECOND"),
             QStringLiteral("frequency INPUTS HERTZ [HERTZ-PER-SECOND] | off"),
             QStringLiteral("pf|pf1|pf2|pf3 FACTOR [cap]"),
             QStringLiteral("phase INPUTS DEGREES"),
             QStringLiteral("harmonic INPUTS ORDER PERCENT [DEGREES]"),
             QStringLiteral("interharmonic INPUTS HERTZ PERCENT [DEGREES]"),
             QStringLiteral("flicker INPUTS CHANGES-PER-MINUTE PERCENT [sinusoidal] | off"),
             QStringLiteral("signalling HERTZ PERCENT [HERTZ PERCENT] | off"),
             QStringLiteral("noise INPUTS RMS"),
             QStringLiteral("dc INPUTS LEVEL"),
             QStringLiteral("clamp|neutralclamp MICROVOLTS-PER-AMPERE") };
}

QString obeySet(Simulator *simulator, const QStringList &words)
{
    Change change;
    change.words = words.mid(1);
    change.signal = simulator->signal();
    change.frontEnd = &simulator->frontEnd();
    if (!setOne(change, words.value(0).toLower()))
        return change.problem;
    const std::string problem = processor::validate(change.signal);
    if (!problem.empty())
        return QString::fromStdString(problem);
    simulator->setSignal(change.signal);
    return {};
}

} // namespace scenario
