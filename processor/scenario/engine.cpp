#include "scenario/engine.h"

#include "scenario/scenariofile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace scenario {

namespace {

constexpr std::chrono::milliseconds kBoardPeriod(250); // between two looks at the range lines
constexpr std::chrono::milliseconds kIdleWait(250); // while nothing is due
constexpr double kReplayStep = 0.01; // s

quint64 seedOf(const Options &options, const Scenario *scenario)
{
    return options.seed.value_or(scenario ? scenario->seed.value_or(1) : 1);
}

/// The steady values of four inputs, joined by commas.
QString rmsOf(const processor::SignalSpec &signal, int first)
{
    QStringList values;
    for (int input = first; input < first + 4; ++input)
        values << QString::number(signal.inputs[std::size_t(input)].rms);
    return values.join(QLatin1Char(','));
}

} // namespace

QString Engine::nodePath(const QString &root)
{
    return QDir(root).absolutePath() + QLatin1String("/dev/mcasp");
}

QString Engine::controlPath(const QString &root)
{
    return QDir(root).absolutePath() + QLatin1String("/run/processor.ctl");
}

Engine::Engine(const Options &options)
    : m_options(options), m_files(options.root), m_disks(QDir(options.root).absolutePath()),
      m_link([this](const std::vector<QByteArray> &messages) { transmit(messages); }), m_pacer(options.speed)
{ }

Engine::~Engine() = default;

void Engine::say(const QString &text) const
{
    std::printf("quvera-processor: %s\n", qPrintable(text));
}

bool Engine::lockRoot(QString *error)
{
    const QString path = m_files.path(QStringLiteral("/run/processor.lock"));
    m_lock = wire::Descriptor(::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666));
    if (!m_lock.isOpen()) {
        *error = QStringLiteral("cannot write %1").arg(path);
        return false;
    }
    if (::flock(m_lock.fd(), LOCK_EX | LOCK_NB) == 0)
        return true;
    *error = QStringLiteral("another processor runs under %1").arg(m_files.path(QString()));
    return false;
}

bool Engine::prepareSource(QString *error)
{
    if (!m_options.replay.isEmpty()) {
        if (!m_replay.open(m_options.replay, error))
            return false;
        m_nextMessage = m_replay.next();
        m_scenarioName = QStringLiteral("replay");
        return true;
    }
    const std::optional<Scenario> scenario = ScenarioFile::load(m_options.scenario, error);
    if (!scenario)
        return false;
    m_scenarioName = scenario->name;
    const qint64 host = QDateTime::currentMSecsSinceEpoch();
    m_link.setSeed(seedOf(m_options, &*scenario));
    m_link.setSetup(scenario->setup);
    m_link.setClock(m_options.clockStart.value_or(scenario->clockStart >= 0 ? scenario->clockStart : host));
    m_simulator = std::make_unique<Simulator>(*scenario, seedOf(m_options, &*scenario), &m_link);
    return m_simulator->prepare(error);
}

bool Engine::prepareSignals(QString *error)
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGINT);
    sigaddset(&set, SIGTERM);
    sigaddset(&set, SIGHUP);
    ::sigprocmask(SIG_BLOCK, &set, nullptr);
    ::signal(SIGPIPE, SIG_IGN);
    m_signals = wire::Descriptor(::signalfd(-1, &set, SFD_NONBLOCK | SFD_CLOEXEC));
    if (!m_signals.isOpen())
        *error = QStringLiteral("cannot wait for signals");
    return m_signals.isOpen();
}

bool Engine::prepare(QString *error)
{
    if (!prepareSource(error) || !m_files.prepare(error) || !lockRoot(error))
        return false;
    if (!m_options.record.isEmpty() && !m_record.open(m_options.record, error))
        return false;
    if (!m_options.frameLog.isEmpty() && !m_link.frameLog().open(m_options.frameLog, error))
        return false;
    if (!m_node.open(nodePath(m_options.root), error) || !m_control.open(controlPath(m_options.root), error))
        return false;
    CommandTargets targets;
    targets.simulator = m_simulator.get();
    targets.link = &m_link;
    targets.files = &m_files;
    targets.disks = &m_disks;
    targets.status = [this] { return status(); };
    targets.setSpeed = [this](double speed) { m_pacer.setSpeed(speed, seconds(), Pacer::Clock::now()); };
    targets.quit = [this] { m_ended = true; };
    m_commands = std::make_unique<Commands>(targets);
    return prepareSignals(error);
}

double Engine::seconds() const
{
    return m_simulator ? m_simulator->seconds() : m_replaySeconds;
}

void Engine::watchClock()
{
    if (m_clockSeen == m_link.clockCount())
        return;
    m_clockSeen = m_link.clockCount();
    m_clockSetAt = QDateTime::currentMSecsSinceEpoch();
}

// The frame names what the processor works out from the inputs; which leads are plugged in stands in the settings only.
void Engine::watchSetup()
{
    if (!m_simulator || m_setupSeen == m_link.setupCount())
        return;
    m_setupSeen = m_link.setupCount();
    m_simulator->setWiring(m_files.wiring());
}

void Engine::begin()
{
    m_begun = true;
    m_pacer.start(seconds(), Pacer::Clock::now());
    // The clock went on while time stood still, unless a repeatable run gave it its start.
    const bool given = m_simulator && (m_options.clockStart || m_simulator->scenario().clockStart >= 0);
    if (m_simulator && !(given && m_link.clockCount() == 1))
        m_link.shiftClock(QDateTime::currentMSecsSinceEpoch() - m_clockSetAt);
}

int Engine::run()
{
    say(QStringLiteral("%1 at speed %2, node %3")
            .arg(m_scenarioName)
            .arg(m_pacer.speed())
            .arg(nodePath(m_options.root)));
    m_link.setStreaming(m_options.stream);
    while (!m_ended) {
        const Pacer::Clock::time_point now = Pacer::Clock::now();
        readBoard(now);
        watchClock();
        watchSetup();
        if (!m_begun && m_link.needsTime())
            begin();
        Pacer::Nanoseconds left = kIdleWait;
        if (m_begun) {
            const double step = m_simulator ? Simulator::kBlockSeconds : kReplayStep;
            left = m_pacer.wait(seconds() + step, now); // results of a block exist when its last sample has passed
            if (left.count() == 0)
                m_simulator ? advance() : advanceReplay();
        }
        wait(std::min<Pacer::Nanoseconds>(left, kIdleWait));
        serve();
        if (m_options.forSeconds > 0.0 && seconds() >= m_options.forSeconds)
            m_ended = true;
    }
    return m_exitCode;
}

void Engine::wait(Pacer::Nanoseconds time)
{
    std::vector<pollfd> polls = { { m_signals.fd(), POLLIN, 0 } };
    m_node.addPolls(&polls);
    m_control.addPolls(&polls);
    const timespec left = { time_t(time.count() / 1000000000), long(time.count() % 1000000000) };
    if (::ppoll(polls.data(), polls.size(), &left, nullptr) > 0 && (polls[0].revents & POLLIN))
        m_ended = true;
}

void Engine::serve()
{
    using Kind = wire::PackageSocket::Event::Kind;
    for (const wire::PackageSocket::Event &event : m_node.serve()) {
        const bool streamed = m_link.streaming();
        if (event.kind == Kind::Frame) {
            m_link.takeFrame(event.frame);
            m_boardRead = {}; // the instrument switches ranges before it sends what belongs to them
        } else if (event.kind == Kind::Disconnected) {
            m_link.disconnected();
        }
        if (event.kind != Kind::Frame)
            say(event.kind == Kind::Connected ? QStringLiteral("instrument connected")
                                              : QStringLiteral("instrument gone"));
        else if (m_link.streaming() != streamed)
            say(m_link.streaming() ? QStringLiteral("stream on") : QStringLiteral("stream off"));
    }
    m_control.serve([this](const QString &line) { return m_commands->obey(line); });
}

void Engine::advance()
{
    QStringList commands;
    m_simulator->step(&commands);
    for (const QString &command : qAsConst(commands)) {
        const QString answer = m_commands->obey(command);
        if (!answer.startsWith(QLatin1String("ok")))
            say(QStringLiteral("%1: %2: %3").arg(m_scenarioName, command, answer));
    }
}

void Engine::advanceReplay()
{
    if (!m_link.streaming()) { // a recording stands still in silence, so that nothing of it is lost
        m_pacer.start(m_replaySeconds, Pacer::Clock::now());
        return;
    }
    m_replaySeconds += kReplayStep;
    while (m_nextMessage && double(m_nextMessage->microseconds) <= m_replaySeconds * 1e6) {
        m_node.send({ m_nextMessage->bytes });
        m_nextMessage = m_replay.next();
    }
    if (m_nextMessage || m_node.queued() > 0)
        return;
    if (m_replay.damaged())
        say(QStringLiteral("%1 is damaged: played to the damage").arg(m_options.replay));
    else
        say(QStringLiteral("end of %1").arg(m_options.replay));
    m_exitCode = m_replay.damaged() ? 1 : 0;
    m_ended = true;
}

void Engine::transmit(const std::vector<QByteArray> &messages)
{
    if (!m_simulator)
        return; // the recording's own answers are in it
    m_node.send(messages);
    const quint64 microseconds = quint64(seconds() * 1e6);
    for (const QByteArray &message : messages) {
        if (m_record.isOpen() && !m_record.write({ microseconds, message })) {
            say(QStringLiteral("%1 could not be written to its end").arg(m_options.record));
            m_exitCode = 1;
        }
    }
}

void Engine::readBoard(Pacer::Clock::time_point now)
{
    if (!m_simulator || now - m_boardRead < kBoardPeriod)
        return;
    m_boardRead = now;
    const board::RangeSelectors ranges = m_files.ranges(m_ranges);
    if (ranges != m_ranges)
        m_simulator->setRanges(ranges);
    m_ranges = ranges;
}

QString Engine::status() const
{
    const wire::ProcessorLink::Counters &counters = m_link.counters();
    QStringList text = {
        QStringLiteral("scenario=%1").arg(m_simulator ? m_simulator->scenario().name : m_scenarioName),
        QStringLiteral("t=%1").arg(seconds(), 0, 'f', 3),
        QStringLiteral("clock=%1").arg(wire::DeviceClock::text(m_link.clock().at(m_link.nowMs()))),
        QStringLiteral("speed=%1").arg(m_pacer.speed()),
        QStringLiteral("late=%1").arg(m_pacer.lateSeconds(), 0, 'f', 3),
        QStringLiteral("instrument=%1").arg(m_node.connected() ? "yes" : "no"),
        QStringLiteral("stream=%1").arg(m_link.streaming() ? "on" : "off"),
        QStringLiteral("packages=%1").arg(m_node.sentPackages()),
        QStringLiteral("dropped=%1").arg(m_node.droppedDatagrams()),
        QStringLiteral("frames=%1").arg(counters.frames),
        QStringLiteral("malformed=%1").arg(counters.malformed),
        QStringLiteral("faults=%1").arg(m_link.faults().total()),
        QStringLiteral("bds=%1").arg(m_link.bds() ? "on" : "off"),
        QStringLiteral("buzzer=%1").arg(m_link.buzzer()),
        QStringLiteral("updates=%1").arg(m_link.firmware().updates()),
        QStringLiteral("ranges=%1,%2,%3,%4")
            .arg(m_ranges.phaseVoltage)
            .arg(m_ranges.neutralVoltage)
            .arg(m_ranges.phaseCurrent)
            .arg(m_ranges.neutralCurrent),
        QStringLiteral("nominal=%1").arg(m_link.setup().nominalFrequency),
        QStringLiteral("wiring=%1").arg(int(m_link.setup().wiring)),
        QStringLiteral("lamp=%1").arg(m_link.setup().flickerCurve),
        QStringLiteral("usb=%1").arg(m_disks.inserted().join(QLatin1Char(','))),
        QStringLiteral("overfull=%1").arg(m_disks.overfull().join(QLatin1Char(','))),
    };
    for (const wire::KindInfo &kind : wire::kKinds)
        text << QStringLiteral("%1=%2").arg(QLatin1String(kind.name)).arg(counters.datagrams[std::size_t(kind.kind)]);
    if (m_simulator) {
        const processor::SignalSpec &signal = m_simulator->signal();
        text << QStringLiteral("volts=%1").arg(rmsOf(signal, processor::U1))
             << QStringLiteral("amps=%1").arg(rmsOf(signal, processor::I1))
             << QStringLiteral("hertz=%1").arg(signal.frequencyHz)
             << QStringLiteral("f=%1").arg(m_simulator->measuredFrequency(), 0, 'f', 4)
             << QStringLiteral("clipped=%1").arg(m_simulator->clipped() ? "yes" : "no");
    }
    return text.join(QLatin1Char(' '));
}

} // namespace scenario
