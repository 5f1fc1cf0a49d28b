#include "scenario/scenariofile.h"

#include "link/deviceclock.h"
#include "scenario/commands.h"
#include "scenario/eventforms.h"
#include "scenario/jsonkeys.h"
#include "scenario/signalreader.h"
#include "signal/eventplay.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <cmath>

namespace scenario {

namespace {

constexpr double kMaxSeconds = 1e7;
constexpr double kLeastPeriod = 0.02; // s
constexpr double kMostAtOnce = 64.0; // of one recurring event
constexpr qint64 kMaxFileBytes = 4 << 20;
constexpr char kOwnScenarios[] = ":/scenarios/";

struct Times
{
    double at;
    double every;
};

Times readTimes(JsonKeys *keys)
{
    keys->require(QStringLiteral("at"), QStringLiteral("a time in seconds"));
    const double at = keys->number(QStringLiteral("at"), 0.0, 0.0, kMaxSeconds);
    const double every = keys->number(QStringLiteral("every"), 0.0, 0.0, kMaxSeconds);
    if (every > 0.0 && every < kLeastPeriod)
        keys->wrong(QStringLiteral("every"),
                    QStringLiteral("0 for once, or a period of %1 s or more").arg(kLeastPeriod));
    return { at, every };
}

/// An event that comes again has to end, and soon enough that they do not pile up.
void checkRecurrence(JsonKeys *keys, const TimedEvent &timed)
{
    const double length = processor::lengthOf(timed.event);
    if (timed.every <= 0.0 || length <= kMostAtOnce * timed.every)
        return;
    if (std::isinf(length))
        keys->wrong(QStringLiteral("length"), QStringLiteral("more than 0, since the event comes again"));
    else
        keys->wrong(QStringLiteral("every"),
                    QStringLiteral("%1 s or more, so that at most %2 of these run at once")
                        .arg(length / kMostAtOnce)
                        .arg(kMostAtOnce));
}

TimedEvent readEvent(JsonErrors *errors, const QString &path, const QJsonValue &value)
{
    JsonKeys keys(errors, path, value);
    const Times times = readTimes(&keys);
    const EventForm *form = eventForm(keys.text(QStringLiteral("type")));
    if (!form) {
        keys.wrong(QStringLiteral("type"), QStringLiteral("one of %1").arg(eventNames()));
        return {};
    }
    const processor::InputMask mask = inputs(keys.text(QStringLiteral("inputs"), QStringLiteral("all")), form->side);
    if (mask == 0)
        keys.wrong(QStringLiteral("inputs"), QStringLiteral("inputs as \"l1\", \"all\" or \"l1+l2\""));
    QMap<QString, double> values;
    for (const EventValue &one : form->values) {
        const QString key = QString::fromLatin1(one.key);
        if (one.required)
            keys.require(key, one.expectation());
        const double number = keys.number(key, one.least, one.least, one.most);
        if (keys.has(key))
            values.insert(key, number);
    }
    keys.finish();
    TimedEvent timed = { makeEvent(*form, mask, values), times.every };
    timed.event.startSeconds = times.at;
    const std::string problem = processor::validate(timed.event);
    if (!problem.empty())
        errors->add(path, QString::fromStdString(problem));
    checkRecurrence(&keys, timed);
    return timed;
}

Step readStep(JsonErrors *errors, const QString &path, const QJsonValue &value)
{
    JsonKeys keys(errors, path, value);
    const Times times = readTimes(&keys);
    Step step;
    step.at = times.at;
    step.every = times.every;
    step.tell = keys.text(QStringLiteral("tell"));
    const QJsonValue signal = keys.any(QStringLiteral("signal"));
    if (!signal.isUndefined())
        step.signal = readSignal(errors, keys.path(QStringLiteral("signal")), signal);
    if (signal.isUndefined() && step.tell.isEmpty())
        keys.require(QStringLiteral("tell"), QStringLiteral("a command, or a \"signal\""));
    if (!step.tell.isEmpty() && !Commands::knows(step.tell))
        keys.wrong(QStringLiteral("tell"),
                   QStringLiteral("a command that begins with one of %1").arg(Commands::names()));
    keys.finish();
    return step;
}

wire::DatagramFault readFault(JsonErrors *errors, const QString &path, const QJsonValue &value)
{
    static constexpr const char *kKeys[wire::kFaultCount] = { "lose", "repeat", "tear", "reorder", "garbage" };
    JsonKeys keys(errors, path, value);
    keys.require(QStringLiteral("atDatagram"), QStringLiteral("the number of a datagram, the first is 0"));
    wire::DatagramFault fault;
    fault.datagram = quint64(keys.integer(QStringLiteral("atDatagram"), 0, 0, 1000000000));
    fault.bytes = keys.integer(QStringLiteral("bytes"), fault.bytes, 0, wire::kPackageBytes - 1);
    int named = 0;
    for (int i = 0; i < wire::kFaultCount; ++i) {
        const QString key = QString::fromLatin1(kKeys[i]);
        const int package = keys.integer(key, 0, 0, 8);
        if (!keys.has(key))
            continue;
        fault.fault = wire::Fault(i);
        fault.package = package;
        ++named;
    }
    if (named != 1)
        errors->add(
            path, QStringLiteral("expected one of lose, repeat, tear, reorder, garbage with the number of a package"));
    keys.finish();
    return fault;
}

void readLink(JsonErrors *errors, const QJsonValue &value, Scenario *scenario)
{
    JsonKeys keys(errors, QStringLiteral("link"), value);
    for (int i = 0; i < wire::kFaultCount; ++i)
        scenario->faultRates[std::size_t(i)] = keys.number(QString::fromLatin1(wire::kFaultNames[i]), 0.0, 0.0, 1.0);
    keys.list(QStringLiteral("at"), [&](const QString &path, const QJsonValue &one) {
        scenario->faults.push_back(readFault(errors, path, one));
    });
    keys.finish();
}

void readClock(JsonErrors *errors, const QJsonValue &value, Scenario *scenario)
{
    JsonKeys keys(errors, QStringLiteral("clock"), value);
    const QString start = keys.text(QStringLiteral("start"));
    if (!start.isEmpty()) {
        scenario->clockStart = wire::DeviceClock::fromText(start);
        if (scenario->clockStart < 0)
            keys.wrong(QStringLiteral("start"), QStringLiteral("a time as 2024-01-18T16:15:00"));
    }
    scenario->bds = keys.flag(QStringLiteral("bds"), false);
    keys.finish();
}

HardwareError readHardwareError(JsonErrors *errors, const QString &path, const QJsonValue &value)
{
    JsonKeys keys(errors, path, value);
    HardwareError error;
    error.inputs = inputs(keys.text(QStringLiteral("inputs"), QStringLiteral("u+un+i+in")), Side::Voltage);
    if (error.inputs == 0)
        keys.wrong(QStringLiteral("inputs"), QStringLiteral("inputs as \"u1\", \"i\" or \"u1+u2\""));
    const int row = keys.integer(QStringLiteral("row"), 0, 0, 3);
    if (keys.has(QStringLiteral("row")))
        error.row = row;
    error.gain = keys.number(QStringLiteral("gain"), 0.0, -90.0, 1000.0);
    error.offset = keys.number(QStringLiteral("offset"), 0.0, -10.0, 10.0);
    keys.finish();
    return error;
}

void readFrontEnd(JsonErrors *errors, const QString &folder, const QJsonValue &value, FrontEndSpec *frontEnd)
{
    JsonKeys keys(errors, QStringLiteral("frontEnd"), value);
    const auto optional = [&keys](const char *name, double least, double most) {
        const QString key = QString::fromLatin1(name);
        const double number = keys.number(key, least, least, most);
        return keys.has(key) ? std::optional(number) : std::nullopt;
    };
    frontEnd->noise = optional("noise", 0.0, 1000.0);
    frontEnd->clamp = optional("clamp", 0.001, 1e9);
    frontEnd->neutralClamp = optional("neutralClamp", 0.001, 1e9);
    const bool rogowski = keys.flag(QStringLiteral("rogowski"), false);
    if (keys.has(QStringLiteral("rogowski")))
        frontEnd->rogowski = rogowski;
    const QString calibration = keys.text(QStringLiteral("calibration"));
    if (!calibration.isEmpty())
        frontEnd->calibration = QDir(folder).absoluteFilePath(calibration);
    keys.list(QStringLiteral("errors"), [&](const QString &path, const QJsonValue &one) {
        frontEnd->errors.push_back(readHardwareError(errors, path, one));
    });
    frontEnd->gainDrift = keys.number(QStringLiteral("gainDrift"), 0.0, -100.0, 100.0);
    frontEnd->offsetDrift = keys.number(QStringLiteral("offsetDrift"), 0.0, -10.0, 10.0);
    keys.finish();
}

void readSetup(JsonErrors *errors, const QJsonValue &value, processor::ProcessorSetup *setup)
{
    JsonKeys keys(errors, QStringLiteral("setup"), value);
    setup->nominalFrequency = keys.integer(QStringLiteral("nominal"), 50, 50, 400);
    if (setup->nominalFrequency != 50 && setup->nominalFrequency != 60 && setup->nominalFrequency != 400)
        keys.wrong(QStringLiteral("nominal"), QStringLiteral("50, 60 or 400"));
    setup->flickerCurve = keys.integer(QStringLiteral("lamp"), 230, 120, 230);
    if (setup->flickerCurve != 230 && setup->flickerCurve != 120)
        keys.wrong(QStringLiteral("lamp"), QStringLiteral("230 or 120"));
    setup->wiring = processor::Wiring(keys.integer(QStringLiteral("wiring"), 0, 0, 4));
    keys.finish();
}

void readScenario(JsonErrors *errors, const QString &folder, const QJsonValue &value, Scenario *scenario)
{
    JsonKeys keys(errors, QString(), value);
    scenario->name = keys.text(QStringLiteral("name"), scenario->name);
    scenario->description = keys.text(QStringLiteral("description"));
    const int seed = keys.integer(QStringLiteral("seed"), 1, 0, 2147483647);
    if (keys.has(QStringLiteral("seed")))
        scenario->seed = quint64(seed);
    const auto section = [&keys](const char *name, const std::function<void(const QJsonValue &)> &read) {
        const QJsonValue value = keys.any(QString::fromLatin1(name));
        if (!value.isUndefined())
            read(value);
    };
    section("setup", [&](const QJsonValue &one) { readSetup(errors, one, &scenario->setup); });
    section("signal",
            [&](const QJsonValue &one) { scenario->signal = readSignal(errors, QStringLiteral("signal"), one); });
    scenario->followsSetup = keys.flag(QStringLiteral("followSetup"), false);
    section("frontEnd", [&](const QJsonValue &one) { readFrontEnd(errors, folder, one, &scenario->frontEnd); });
    section("clock", [&](const QJsonValue &one) { readClock(errors, one, scenario); });
    section("link", [&](const QJsonValue &one) { readLink(errors, one, scenario); });
    keys.list(QStringLiteral("events"), [&](const QString &path, const QJsonValue &one) {
        scenario->events.push_back(readEvent(errors, path, one));
    });
    keys.list(QStringLiteral("steps"), [&](const QString &path, const QJsonValue &one) {
        scenario->steps.push_back(readStep(errors, path, one));
    });
    keys.finish();
}

/// "line 3, column 7" of a byte offset.
QString placeOf(const QByteArray &json, int offset)
{
    const QByteArray before = json.left(offset);
    return QStringLiteral("line %1, column %2")
        .arg(before.count('\n') + 1)
        .arg(before.size() - before.lastIndexOf('\n'));
}

} // namespace

std::optional<Scenario> ScenarioFile::parse(const QString &fileName, const QByteArray &json, QString *error)
{
    QJsonParseError problem;
    const QJsonDocument document = QJsonDocument::fromJson(json, &problem);
    if (problem.error != QJsonParseError::NoError) {
        *error = QStringLiteral("%1: %2: %3").arg(fileName, placeOf(json, problem.offset), problem.errorString());
        return std::nullopt;
    }
    JsonErrors errors(fileName);
    Scenario scenario;
    scenario.name = QFileInfo(fileName).completeBaseName();
    const QJsonValue root = document.isObject() ? QJsonValue(document.object()) : QJsonValue(document.array());
    readScenario(&errors, QFileInfo(fileName).path(), root, &scenario);
    if (errors.none())
        return scenario;
    *error = errors.text();
    return std::nullopt;
}

std::optional<Scenario> ScenarioFile::load(const QString &fileOrName, QString *error)
{
    QFile file(fileOrName);
    if (!QFileInfo(fileOrName).isFile() && !fileOrName.contains(QLatin1Char('/')))
        file.setFileName(QLatin1String(kOwnScenarios) + fileOrName + QLatin1String(".json"));
    if (!file.exists()) {
        *error = QStringLiteral("no scenario %1: neither a file nor one of %2")
                     .arg(fileOrName, names().join(QLatin1String(", ")));
        return std::nullopt;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("cannot read %1: %2").arg(fileOrName, file.errorString());
        return std::nullopt;
    }
    if (file.size() > kMaxFileBytes) {
        *error = QStringLiteral("%1: larger than %2 bytes").arg(fileOrName).arg(kMaxFileBytes);
        return std::nullopt;
    }
    return parse(file.fileName(), file.readAll(), error);
}

QStringList ScenarioFile::names()
{
    QStringList names;
    for (const QString &file : QDir(QLatin1String(kOwnScenarios)).entryList(QDir::Files, QDir::Name))
        names << QFileInfo(file).completeBaseName();
    return names;
}

} // namespace scenario
