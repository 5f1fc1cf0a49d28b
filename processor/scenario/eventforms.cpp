#include "scenario/eventforms.h"

#include <QStringList>

namespace scenario {

namespace {

using processor::EventKind;

constexpr double kDay = 86400.0; // s

EventValue level(double least, double most, bool required = true)
{
    return { "level", Unit::Percent, least, most, required };
}

const EventValue kLength = { "length", Unit::Seconds, 0.0, kDay, true };
const EventValue kPhase = { "phase", Unit::Degrees, 0.0, 360.0, false };
const EventValue kDecay = { "decay", Unit::Seconds, 1e-6, 60.0, false };
const EventValue kAmplitude = { "amplitude", Unit::Volts, -20000.0, 20000.0, true };

} // namespace

QString EventValue::expectation() const
{
    return QStringLiteral("%1, %2 to %3").arg(scenario::expectation(unit)).arg(least).arg(most);
}

const EventValue *EventForm::value(const QString &key) const
{
    for (const EventValue &value : values) {
        if (key == QLatin1String(value.key))
            return &value;
    }
    return nullptr;
}

QString EventForm::usage() const
{
    QString text = QLatin1String(name) + QLatin1String(" INPUTS");
    for (const EventValue &value : values) {
        if (value.required)
            text += QLatin1Char(' ') + QString::fromLatin1(value.key).toUpper();
        else
            text += QStringLiteral(" [%1=]").arg(QLatin1String(value.key));
    }
    return text;
}

const std::vector<EventForm> &eventForms()
{
    static const std::vector<EventForm> forms = {
        { "dip", EventKind::Dip, Side::Voltage, { level(0, 100), kLength, kPhase }, "LEVEL percent are left" },
        { "swell", EventKind::Swell, Side::Voltage, { level(100, 300), kLength, kPhase }, "rises to LEVEL percent" },
        { "interruption",
          EventKind::Interruption,
          Side::Voltage,
          { kLength, level(0, 100, false), kPhase },
          "nothing is left, or level= percent" },
        { "rvc",
          EventKind::RapidChange,
          Side::Voltage,
          { { "change", Unit::Percent, -100, 200, true },
            kLength,
            { "ramp", Unit::Seconds, 0.0, 10.0, false },
            kPhase },
          "rapid voltage change by CHANGE percent, either sign" },
        { "phasejump",
          EventKind::PhaseJump,
          Side::Voltage,
          { { "angle", Unit::Degrees, -360.0, 360.0, true }, kLength, kPhase },
          "jumps ahead by ANGLE degrees" },
        { "transient",
          EventKind::ImpulsiveTransient,
          Side::Voltage,
          { kAmplitude, { "rise", Unit::Seconds, 0.0, 0.1, false }, kDecay, kPhase },
          "impulse of AMPLITUDE volts" },
        { "ring",
          EventKind::OscillatoryTransient,
          Side::Voltage,
          { kAmplitude, { "f", Unit::Hertz, 1.0, 10000.0, true }, kDecay, kPhase },
          "decaying oscillation of AMPLITUDE volts at F hertz" },
        { "inrush",
          EventKind::Inrush,
          Side::Current,
          { level(100, 5000), { "decay", Unit::Seconds, 1e-6, 60.0, true }, kPhase },
          "current starts at LEVEL percent and decays to the steady one" },
        { "loadstep",
          EventKind::LoadStep,
          Side::Current,
          { level(0, 5000),
            kLength,
            { "angle", Unit::Degrees, -360.0, 360.0, false },
            { "pf", Unit::None, -1.0, 1.0, false },
            kPhase },
          "current becomes LEVEL percent, angle= degrees ahead, or of the power factor pf=" },
    };
    return forms;
}

const EventForm *eventForm(const QString &name)
{
    for (const EventForm &form : eventForms()) {
        if (name == QLatin1String(form.name))
            return &form;
    }
    return nullptr;
}

QString eventNames()
{
    QStringList names;
    for (const EventForm &form : eventForms())
        names << QString::fromLatin1(form.name);
    return names.join(QLatin1String(", "));
}

processor::SignalEvent makeEvent(const EventForm &form, processor::InputMask mask, const QMap<QString, double> &values)
{
    processor::SignalEvent event;
    const auto take = [&values](const char *key, double *into) {
        const auto found = values.constFind(QString::fromLatin1(key));
        if (found != values.constEnd())
            *into = *found;
    };
    event.kind = form.kind;
    event.inputs = mask;
    take("length", &event.durationSeconds);
    take("amplitude", &event.amplitude);
    take("f", &event.frequencyHz);
    take("angle", &event.angleDeg);
    take("pf", &event.powerFactor);
    take("decay", &event.decaySeconds);
    take("rise", &event.riseSeconds);
    take("ramp", &event.riseSeconds);
    take("phase", &event.startPhaseDeg);
    take("change", &event.percent);
    take("level", &event.percent);
    if (form.kind == EventKind::Dip)
        event.percent = 100.0 - event.percent;
    else if (form.kind == EventKind::Swell)
        event.percent -= 100.0;
    return event;
}

} // namespace scenario
