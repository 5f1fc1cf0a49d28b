#include "panel/controltable.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>

namespace panel {

namespace {

Field number(const char *name, const char *label, double least, double most, double step, double value,
             const char *unit = "")
{
    return { name, label, least, most, step, value, unit, nullptr };
}

/// @param unit how a choice is shown, % standing for it; empty: as it is.
Field choice(const char *name, const char *label, const char *choices, const char *unit = "")
{
    return { name, label, 0, 0, 0, 0, unit, choices };
}

Field where()
{
    return choice("on", "On", "all l1 l2 l3 l1+l2 l2+l3 l1+l3", "%");
}

Field length(double value)
{
    return number("ms", "Length", 10, 10000, 10, value, "ms");
}

const char kScenarioField[] = "scenario";

const std::vector<Control> kTable = {
    { "scenario", "Scenario", "Play", false, "scenario %scenario", { choice(kScenarioField, "Scenario", "") } },
    { "volts",
      "Supply",
      "Voltage",
      true,
      "set u%phase %volts",
      { choice("phase", "Phase", "all 1 2 3", "L%"), number("volts", "Voltage", 0, 300, 0.5, 230, "V") } },
    { "frequency",
      "Supply",
      "Frequency",
      true,
      "set f %hertz",
      { number("hertz", "Frequency", 40, 70, 0.01, 50, "Hz") } },
    { "amps",
      "Supply",
      "Load",
      true,
      "set i%phase %amps",
      { choice("phase", "Phase", "all 1 2 3", "L%"), number("amps", "Load", 0, 20, 0.1, 3, "A") } },
    { "factor",
      "Supply",
      "Power factor",
      true,
      "set pf %factor",
      { number("factor", "Power factor", -1, 1, 0.01, 0.9) } },
    { "harmonic",
      "Supply",
      "Voltage harmonic",
      true,
      "set harmonic u %order %percent",
      { choice("order", "Order", "3 5 7 9 11 13 17 19 23 25 49", "H%"),
        number("percent", "Share", 0, 30, 0.1, 0, "%") } },
    { "harmonicAmps",
      "Supply",
      "Current harmonic",
      true,
      "set harmonic i %order %percent",
      { choice("order", "Order", "3 5 7 9 11 13 17 19 23 25 49", "H%"),
        number("percent", "Share", 0, 100, 1, 0, "%") } },
    { "flicker",
      "Supply",
      "Flicker",
      true,
      "set flicker u %changes %percent",
      { choice("changes", "Changes a minute", "1 7 39 110 1056 1620", "% / min"),
        number("percent", "Depth", 0, 20, 0.1, 0, "%") } },
    { "dip",
      "Events",
      "Dip",
      false,
      "event dip %on %level% %msms",
      { where(), number("level", "Remaining", 0, 95, 1, 40, "%"), length(200) } },
    { "swell",
      "Events",
      "Swell",
      false,
      "event swell %on %level% %msms",
      { where(), number("level", "Level", 105, 200, 1, 120, "%"), length(200) } },
    { "interruption", "Events", "Interruption", false, "event interruption %on %msms", { where(), length(500) } },
    { "rvc",
      "Events",
      "Rapid change",
      false,
      "event rvc %on %change% %msms",
      { where(), number("change", "Change", -9, 9, 0.5, -5, "%"), length(3000) } },
    { "transient",
      "Events",
      "Transient",
      false,
      "event transient %on %amplitude",
      { where(), number("amplitude", "Amplitude", 100, 2000, 50, 600, "V") } },
    { "inrush",
      "Events",
      "Inrush",
      false,
      "event inrush %on %level% %msms",
      { where(), number("level", "Level", 150, 1000, 10, 400, "%"), number("ms", "Decay", 50, 5000, 50, 500, "ms") } },
    { "clear", "Events", "End all events", false, "event clear", {} },
    { "usbIn",
      "Board",
      "Plug in the USB disk",
      false,
      "usb insert STICK %size",
      { choice("size", "Size", "16M 64k 1G", "%B") } },
    { "usbOut", "Board", "Pull the USB disk", false, "usb pull STICK", {} },
    { "battery", "Board", "Battery", true, "battery %volts", { number("volts", "Battery", 5.5, 8.4, 0.1, 8.1, "V") } },
    { "charger", "Board", "Charger", true, "charger %state", { choice("state", "Charger", "off on full") } },
    { "cable", "Board", "Network cable", true, "net %state", { choice("state", "Network cable", "up down") } },
    { "speed",
      "Time",
      "Speed",
      true,
      "speed %factor",
      { choice("factor", "Speed of the supply", "1 2 5 10 20 50", "% ×") } },
    { "fault",
      "Link faults",
      "Spoil packages",
      false,
      "fault %kind %count",
      { choice("kind", "How", "drop repeat torn reorder garbage"), number("count", "Packages", 1, 100, 1, 3) } },
    { "late",
      "Link faults",
      "Hold packages back",
      false,
      "fault late %msms",
      { number("ms", "For", 100, 10000, 100, 500, "ms") } },
    { "faultRate",
      "Link faults",
      "Spoil at random",
      false,
      "fault rate %kind %share",
      { choice("kind", "How", "drop repeat torn reorder garbage"), number("share", "Share", 0, 0.2, 0.005, 0.01) } },
    { "faultOff", "Link faults", "No more faults", false, "fault off", {} },
};

QStringList choicesOf(const Field &field, const QStringList &scenarios)
{
    return field.name == kScenarioField ? scenarios : QString::fromLatin1(field.choices).split(QLatin1Char(' '));
}

QJsonObject asJson(const Field &field, const QStringList &scenarios)
{
    QJsonObject json { { QStringLiteral("name"), QLatin1String(field.name) },
                       { QStringLiteral("label"), QLatin1String(field.label) } };
    json.insert(QStringLiteral("unit"), QString::fromUtf8(field.unit));
    if (field.choices) {
        json.insert(QStringLiteral("choices"), QJsonArray::fromStringList(choicesOf(field, scenarios)));
        return json;
    }
    json.insert(QStringLiteral("least"), field.least);
    json.insert(QStringLiteral("most"), field.most);
    json.insert(QStringLiteral("step"), field.step);
    json.insert(QStringLiteral("value"), field.value);
    return json;
}

/// What a wish says for a field, as it stands in a command; empty when it is nothing that the field takes.
QString wordOf(const Field &field, const QJsonValue &value, const QStringList &scenarios)
{
    if (field.choices) {
        const QString word = value.toString();
        if (word.isEmpty() || !choicesOf(field, scenarios).contains(word))
            return {};
        return word;
    }
    const double number = value.toDouble(std::nan(""));
    return number >= field.least && number <= field.most ? QString::number(number, 'g', 10) : QString();
}

} // namespace

const std::vector<Control> &controlTable()
{
    return kTable;
}

QByteArray controlsAsJson(const QStringList &scenarios)
{
    QJsonArray rows;
    for (const Control &control : controlTable()) {
        QJsonArray fields;
        for (const Field &field : control.fields)
            fields.append(asJson(field, scenarios));
        rows.append(QJsonObject { { QStringLiteral("id"), QLatin1String(control.id) },
                                  { QStringLiteral("group"), QLatin1String(control.group) },
                                  { QStringLiteral("label"), QLatin1String(control.label) },
                                  { QStringLiteral("live"), control.isLive },
                                  { QStringLiteral("fields"), fields } });
    }
    return QJsonDocument(rows).toJson(QJsonDocument::Compact);
}

QString commandFor(const QJsonObject &wish, const QStringList &scenarios, QString *why)
{
    const QString id = wish.value(QStringLiteral("control")).toString();
    for (const Control &control : controlTable()) {
        if (id != QLatin1String(control.id))
            continue;
        QString command = QString::fromLatin1(control.command);
        for (const Field &field : control.fields) {
            QString word = wordOf(field, wish.value(QLatin1String(field.name)), scenarios);
            if (word.isEmpty()) {
                *why = QStringLiteral("%1: that is no value for it.").arg(QLatin1String(field.label));
                return {};
            }
            // "All phases" has no sign of its own in the names of the inputs.
            if (qstrcmp(field.name, "phase") == 0 && word == QLatin1String("all"))
                word.clear();
            command.replace(QLatin1Char('%') + QLatin1String(field.name), word);
        }
        return command;
    }
    *why = QStringLiteral("There is no such control.");
    return {};
}

} // namespace panel
