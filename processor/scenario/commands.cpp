#include "scenario/commands.h"

#include "scenario/eventforms.h"
#include "scenario/quantities.h"
#include "scenario/scenariofile.h"
#include "scenario/setcommand.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>

namespace scenario {

namespace {

QString ok(const QString &text = QString())
{
    return text.isEmpty() ? QStringLiteral("ok") : QStringLiteral("ok ") + text;
}

QString error(const QString &reason)
{
    return QStringLiteral("error: ") + reason;
}

QString noSimulation()
{
    return error(QStringLiteral("a recorded stream is played, there is no signal to change"));
}

QString written(bool good)
{
    return good ? ok() : error(QStringLiteral("the file of the board cannot be written"));
}

/// The place of \a word in \a names, or -1.
int which(const QString &word, std::initializer_list<const char *> names)
{
    int at = 0;
    for (const char *name : names) {
        if (word == QLatin1String(name))
            return at;
        ++at;
    }
    return -1;
}

/// The fault called \a word, or -1.
int faultKind(const QString &word)
{
    for (int kind = 0; kind < wire::kFaultCount; ++kind) {
        if (word == QLatin1String(wire::kFaultNames[kind]))
            return kind;
    }
    return -1;
}

/// What stands behind the inputs of an event.
struct EventWords
{
    QMap<QString, double> values;
    double waitSeconds = 0.0;
};

/// Reads the required values in their order and the others as key=value. Empty on success, otherwise why not.
QString readEventWords(const EventForm &form, const QStringList &words, EventWords *read)
{
    const auto wrong = [](const EventValue &value) {
        return QStringLiteral("%1: expected %2").arg(QLatin1String(value.key), value.expectation());
    };
    auto required = form.values.begin();
    for (const QString &word : words) {
        const bool named = word.contains(QLatin1Char('='));
        const QString text = word.section(QLatin1Char('='), -1);
        if (word.startsWith(QLatin1String("in="))) {
            const auto seconds = quantity(text, Unit::Seconds);
            if (!seconds || *seconds < 0.0)
                return QStringLiteral("in: expected %1").arg(expectation(Unit::Seconds));
            read->waitSeconds = *seconds;
            continue;
        }
        if (!named)
            required = std::find_if(required, form.values.end(), [](const EventValue &one) { return one.required; });
        const EventValue *value = named     ? form.value(word.section(QLatin1Char('='), 0, 0))
            : required == form.values.end() ? nullptr
                                            : &*required++;
        if (!value)
            return QStringLiteral("%1: expected event %2").arg(word, form.usage());
        const auto number = quantity(text, value->unit);
        if (!number || *number < value->least || *number > value->most)
            return wrong(*value);
        read->values.insert(QString::fromLatin1(value->key), *number);
    }
    for (const EventValue &value : form.values) {
        if (value.required && !read->values.contains(QString::fromLatin1(value.key)))
            return wrong(value);
    }
    return {};
}

/// Changes one thing about the firmware update's answers. False: the words make no sense.
bool setAnswer(wire::FirmwareExchange *firmware, wire::FirmwareExchange::Step step, const QString &how,
               const QString &text)
{
    constexpr quint32 kMostRepeats = 100;
    constexpr double kLatest = 3600.0; // s
    bool number = false;
    const quint32 value = text.toUInt(&number, 0);
    const auto seconds = quantity(text, Unit::Seconds);
    if (how == QLatin1String("result") && number)
        firmware->replaceResult(step, value);
    else if (how == QLatin1String("code") && number)
        firmware->replaceCode(step, value);
    else if (how == QLatin1String("repeat") && number && value <= kMostRepeats)
        firmware->repeat(step, int(value));
    else if (how == QLatin1String("late") && seconds && *seconds >= 0.0 && *seconds <= kLatest)
        firmware->delay(step, int(*seconds * 1000.0));
    else
        return false;
    return true;
}

} // namespace

/// A command: how it is written, what it does, and who does it.
struct Commands::Row
{
    const char *name;
    const char *usage; // behind the name
    const char *help;
    QString (Commands::*obey)(const Words &);
};

const std::vector<Commands::Row> &Commands::table()
{
    static const std::vector<Row> rows = {
        { "set", "WHAT VALUE...", "change the steady signal or the input stage; 'help set' lists what",
          &Commands::set },
        { "event", "KIND INPUTS VALUES... [key=value] [in=TIME] | clear",
          "let something happen to the signal; 'help event' lists the kinds", &Commands::event },
        { "fault",
          "drop|repeat|torn|reorder|garbage COUNT | rate KIND 0..1 | late TIME | off | "
          "update announce|data|flash result N|code N|silent|late TIME|repeat COUNT | update off",
          "spoil the next packages, hold them back, or choose the firmware update's answers", &Commands::fault },
        { "scenario", "NAME|FILE | list", "play another scenario from now on, or name those there are",
          &Commands::scenario },
        { "clock", "+TIME|-TIME|YYYY-MM-DDThh:mm:ss|host|unset", "move or set the processor's clock (UTC)",
          &Commands::clock },
        { "bds", "on|off", "say that the time comes from the satellite receiver", &Commands::bds },
        { "battery", "VOLTS", "what the battery gauge reads", &Commands::battery },
        { "charger", "on|full|off", "state of the charger's lines", &Commands::charger },
        { "mains", "on|off", "put in or pull the mains lead: the charger follows", &Commands::mains },
        { "usb", "insert NAME [SIZE] | pull NAME | list", "put in and pull USB disks; SIZE as 64k, 16M, 2G",
          &Commands::usb },
        { "net", "up|down", "state of the network cable", &Commands::net },
        { "speed", "FACTOR", "let time run so many times faster", &Commands::speed },
        { "status", "", "one line of key=value", &Commands::status },
        { "help", "[set|event]", "this text", &Commands::help },
        { "quit", "", "end the processor", &Commands::quit },
    };
    return rows;
}

const Commands::Row *Commands::row(const QString &name)
{
    for (const Row &row : table()) {
        if (name == QLatin1String(row.name))
            return &row;
    }
    return nullptr;
}

bool Commands::knows(const QString &line)
{
    return row(line.simplified().section(QLatin1Char(' '), 0, 0)) != nullptr;
}

QString Commands::names()
{
    QStringList names;
    for (const Row &row : table())
        names << QString::fromLatin1(row.name);
    return names.join(QLatin1String(", "));
}

QString Commands::obey(const QString &line)
{
    const Words words = line.simplified().split(QLatin1Char(' '));
    const Row *found = row(words[0]);
    if (!found)
        return error(QStringLiteral("unknown command %1, expected one of %2").arg(words[0].left(40), names()));
    return (this->*found->obey)(words.mid(1));
}

QString Commands::set(const Words &words)
{
    if (!m_on.simulator)
        return noSimulation();
    const QString problem = obeySet(m_on.simulator, words);
    return problem.isEmpty() ? ok() : error(problem);
}

QString Commands::event(const Words &words)
{
    if (!m_on.simulator)
        return noSimulation();
    if (words == Words { QStringLiteral("clear") }) {
        m_on.simulator->clearEvents();
        return ok();
    }
    const EventForm *form = eventForm(words.value(0));
    if (!form)
        return error(QStringLiteral("expected one of %1").arg(eventNames()));
    const processor::InputMask mask = inputs(words.value(1), form->side);
    if (mask == 0)
        return error(QStringLiteral("expected inputs as l1, all or l1+l2 behind %1").arg(words[0]));
    EventWords read;
    QString problem = readEventWords(*form, words.mid(2), &read);
    if (!problem.isEmpty())
        return error(problem);
    const processor::SignalEvent event = makeEvent(*form, mask, read.values);
    problem = QString::fromStdString(processor::validate(event));
    if (!problem.isEmpty())
        return error(problem);
    if (m_on.simulator->addEvent(event, read.waitSeconds))
        return ok();
    return error(QStringLiteral("%1 events are not over, event clear ends them").arg(Simulator::kMostRunning));
}

QString Commands::fault(const Words &words)
{
    wire::LinkFaults &faults = m_on.link->faults();
    const QString what = words.value(0);
    if (what == QLatin1String("update"))
        return faultUpdate(words.mid(1));
    if (words == Words { QStringLiteral("off") }) {
        faults.clear();
        return ok();
    }
    if (what == QLatin1String("late")) {
        const auto seconds = quantity(words.value(1), Unit::Seconds);
        if (words.size() != 2 || !seconds || *seconds < 0.0 || *seconds > 3600.0)
            return error(QStringLiteral("expected %1, up to an hour").arg(expectation(Unit::Seconds)));
        m_on.link->holdBack(qint64(*seconds * 1000.0));
        return ok();
    }
    if (what == QLatin1String("rate")) {
        const int kind = faultKind(words.value(1));
        const auto rate = quantity(words.value(2), Unit::None);
        if (words.size() != 3 || kind < 0 || !rate || *rate < 0.0 || *rate > 1.0)
            return error(QStringLiteral("expected fault rate drop|repeat|torn|reorder|garbage 0..1"));
        faults.random(wire::Fault(kind), *rate);
        return ok();
    }
    const int kind = faultKind(what);
    bool number = false;
    const int count = words.value(1).toInt(&number);
    if (words.size() != 2 || kind < 0 || !number || count < 0)
        return error(QStringLiteral("expected fault %1").arg(QLatin1String(row(QStringLiteral("fault"))->usage)));
    faults.next(wire::Fault(kind), count);
    return ok();
}

QString Commands::faultUpdate(const Words &words)
{
    using wire::FirmwareExchange;
    FirmwareExchange &firmware = m_on.link->firmware();
    if (words == Words { QStringLiteral("off") }) {
        firmware.answerWell();
        return ok();
    }
    const int step = which(words.value(0), { "announce", "data", "flash" });
    const bool silent = words.value(1) == QLatin1String("silent") && words.size() == 2;
    if (step >= 0 && silent)
        firmware.silence(FirmwareExchange::Step(step));
    else if (step < 0 || words.size() != 3 || !setAnswer(&firmware, FirmwareExchange::Step(step), words[1], words[2]))
        return error(QStringLiteral("expected fault update announce|data|flash "
                                    "result N|code N|silent|late TIME|repeat COUNT, or off"));
    return ok();
}

QString Commands::scenario(const Words &words)
{
    if (words == Words { QStringLiteral("list") })
        return ok(ScenarioFile::names().join(QLatin1Char(' ')));
    if (!m_on.simulator)
        return noSimulation();
    QString problem = QStringLiteral("expected the name of a scenario; scenario list tells them");
    if (words.size() != 1 || words[0].isEmpty())
        return error(problem);
    const auto scenario = ScenarioFile::load(words[0], &problem);
    if (!scenario || !m_on.simulator->play(*scenario, &problem))
        return error(problem);
    return ok();
}

QString Commands::clock(const Words &words)
{
    const QString text = words.value(0);
    const bool shift = text.startsWith(QLatin1Char('+')) || text.startsWith(QLatin1Char('-'));
    const auto seconds = quantity(text, Unit::Seconds);
    const qint64 time = wire::DeviceClock::fromText(text);
    if (words.size() == 1 && shift && seconds && std::abs(*seconds) <= 1e10)
        m_on.link->shiftClock(qint64(*seconds * 1000.0));
    else if (words.size() == 1 && text == QLatin1String("host"))
        m_on.link->setClock(QDateTime::currentMSecsSinceEpoch());
    else if (words.size() == 1 && text == QLatin1String("unset"))
        m_on.link->setClock(0);
    else if (words.size() == 1 && time >= 0)
        m_on.link->setClock(time);
    else
        return error(QStringLiteral("expected clock %1").arg(QLatin1String(row(QStringLiteral("clock"))->usage)));
    return ok(wire::DeviceClock::text(m_on.link->clock().at(m_on.link->nowMs())));
}

QString Commands::bds(const Words &words)
{
    const int on = which(words.value(0), { "off", "on" });
    if (on < 0)
        return error(QStringLiteral("expected bds on|off"));
    m_on.link->setBds(on == 1);
    return ok();
}

QString Commands::battery(const Words &words)
{
    const auto volts = quantity(words.value(0), Unit::Volts);
    if (words.size() != 1 || !volts || *volts < 0.0 || *volts > 13.0)
        return error(QStringLiteral("expected %1, 0 to 13").arg(expectation(Unit::Volts)));
    return written(m_on.files->setBattery(*volts));
}

QString Commands::charger(const Words &words)
{
    const int state = which(words.value(0), { "off", "on", "full" });
    if (state < 0)
        return error(QStringLiteral("expected charger on|full|off"));
    return written(m_on.files->setCharger(board::Charger(state)));
}

QString Commands::mains(const Words &words)
{
    const int on = which(words.value(0), { "off", "on" });
    if (on < 0)
        return error(QStringLiteral("expected mains on|off"));
    return written(m_on.files->setCharger(on ? board::Charger::Charging : board::Charger::Off));
}

QString Commands::usb(const Words &words)
{
    const QString what = words.value(0);
    QString problem = QStringLiteral("expected usb insert NAME [SIZE], usb pull NAME or usb list");
    if (words == Words { QStringLiteral("list") })
        return ok(m_on.disks->inserted().join(QLatin1Char(' ')));
    if (what == QLatin1String("pull") && words.size() == 2) {
        problem = m_on.disks->pull(words[1]);
    } else if (what == QLatin1String("insert") && (words.size() == 2 || words.size() == 3)) {
        const qint64 size = words.size() == 3 ? board::UsbDisks::sizeFromText(words[2]) : 0;
        problem = size < 0 ? QStringLiteral("expected a size as 64k, 16M or 2G") : m_on.disks->insert(words[1], size);
    }
    return problem.isEmpty() ? ok() : error(problem);
}

QString Commands::net(const Words &words)
{
    const int up = which(words.value(0), { "down", "up" });
    if (up < 0)
        return error(QStringLiteral("expected net up|down"));
    return written(m_on.files->setNetwork(up == 1));
}

QString Commands::speed(const Words &words)
{
    const auto factor = quantity(words.value(0), Unit::None);
    if (words.size() != 1 || !factor || *factor < 0.01 || *factor > 10000.0)
        return error(QStringLiteral("expected a factor from 0.01 to 10000"));
    m_on.setSpeed(*factor);
    return ok();
}

QString Commands::status(const Words &)
{
    return ok(m_on.status());
}

QString Commands::help(const Words &words)
{
    QStringList lines;
    if (words.value(0) == QLatin1String("set")) {
        for (const QString &usage : setUsage())
            lines << QStringLiteral("  set ") + usage;
    } else if (words.value(0) == QLatin1String("event")) {
        for (const EventForm &form : eventForms())
            lines << QStringLiteral("  event %1: %2").arg(form.usage(), QLatin1String(form.help));
        lines << QStringLiteral(
            "  in=TIME lets it begin later; phase= waits for that point on wave; event clear ends all");
    } else {
        for (const Row &row : table())
            lines << QStringLiteral("  %1 %2: %3")
                         .arg(QLatin1String(row.name), QLatin1String(row.usage), QLatin1String(row.help));
    }
    lines << ok();
    return lines.join(QLatin1Char('\n'));
}

QString Commands::quit(const Words &)
{
    m_on.quit();
    return ok();
}

} // namespace scenario
