#include "desk/deskinstrument.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSaveFile>
#include <QTcpServer>
#include <QThread>
#include <csignal>
#include <sys/prctl.h>

namespace {

constexpr int kStartMs = 60000; // generous: a loaded machine, or an executable under a sanitizer
constexpr int kEndMs = 30000;
constexpr int kAnswerMs = 5000; // a program that a busy machine holds up is not asked again at once
constexpr int kAttempts = 6;
constexpr int kLookMs = 20;
constexpr char kInstrumentLog[] = "/instrument.log";
constexpr char kProcessorLog[] = "/processor.log";

/// The instrument's program: beside the tools in a build; its package keeps it off the search path.
QString instrumentProgram(const QString &binDir)
{
    const QString built = binDir + QStringLiteral("/quvera");
    return QFileInfo(built).isFile() ? built : binDir + QStringLiteral("/../lib/quvera/bin/quvera");
}

bool waitUntil(const std::function<bool()> &condition, int waitMs)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > waitMs)
            return false;
        QThread::msleep(kLookMs);
    }
    return true;
}

} // namespace

// Between fork and exec: system calls only.
void DeskInstrument::Child::setupChildProcess()
{
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
}

DeskInstrument::DeskInstrument(const QString &binDir, const QString &root)
    : m_binDir(binDir), m_root(root), m_remotePort(freeUdpPort()), m_modbusPort(freeTcpPort())
{
    if (m_root.isEmpty()) {
        m_temporary.reset(new QTemporaryDir(QDir::tempPath() + QStringLiteral("/quvera-desk.XXXXXX")));
        m_root = m_temporary->path();
    }
    QDir().mkpath(m_root);
    m_remote.reset(new RemoteClient(QHostAddress(QHostAddress::LocalHost), m_remotePort));
    m_remote->setPatience(kAnswerMs, kAttempts);
}

DeskInstrument::~DeskInstrument()
{
    stop();
}

quint16 DeskInstrument::freePort(const std::function<bool(quint16)> &isFree)
{
    constexpr int kFirst = 20000, kBehind = 32000, kTries = 1000;
    for (int i = 0; i < kTries; ++i) {
        const auto port = quint16(QRandomGenerator::system()->bounded(kFirst, kBehind));
        if (isFree(port))
            return port;
    }
    return 0;
}

quint16 DeskInstrument::freeUdpPort()
{
    return freePort([](quint16 port) { return QUdpSocket().bind(QHostAddress(QHostAddress::AnyIPv4), port); });
}

quint16 DeskInstrument::freeTcpPort()
{
    return freePort([](quint16 port) { return QTcpServer().listen(QHostAddress(QHostAddress::AnyIPv4), port); });
}

bool DeskInstrument::setSetting(const QString &boardFile, const QString &key, const QString &value)
{
    const QString name = path(boardFile);
    QDir().mkpath(QFileInfo(name).path());
    QList<QByteArray> lines;
    QFile old(name);
    if (old.open(QIODevice::ReadOnly))
        lines = old.readAll().split('\n');
    const QByteArray head = key.toUtf8() + '=';
    QByteArray text;
    for (const QByteArray &line : qAsConst(lines)) {
        if (!line.isEmpty() && !line.startsWith(head))
            text += line + '\n';
    }
    text += head + value.toUtf8() + '\n';
    QSaveFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
}

QString DeskInstrument::setting(const QString &boardFile, const QString &key) const
{
    QFile file(path(boardFile));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString value;
    const QByteArray head = key.toUtf8() + '=';
    const auto lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(head))
            value = QString::fromUtf8(line.mid(head.size())).trimmed();
    }
    return value;
}

QProcessEnvironment DeskInstrument::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QUVERA_ROOT"), m_root);
    environment.insert(QStringLiteral("QUVERA_REMOTE_PORT"), QString::number(m_remotePort));
    environment.insert(QStringLiteral("QUVERA_MODBUS_PORT"), QString::number(m_modbusPort));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
    return environment;
}

bool DeskInstrument::setSpeed(int times)
{
    // The packages put it below the folder of the machine's kind.
    const QString libraries = QStringLiteral("/usr/lib/");
    const QStringList kinds = QDir(libraries).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    m_clock.clear();
    for (const QString &kind : kinds) {
        const QString file = libraries + kind + QStringLiteral("/faketime/libfaketimeMT.so.1");
        if (QFileInfo::exists(file))
            m_clock = file;
    }
    if (m_clock.isEmpty())
        m_error = QStringLiteral("faketime is not installed");
    m_speed = times;
    return !m_clock.isEmpty();
}

bool DeskInstrument::startProcessor(const QStringList &arguments)
{
    const QString node = path(QStringLiteral("/dev/mcasp"));
    QFile::remove(node);
    m_processor.setProcessEnvironment(environment());
    m_processor.setProcessChannelMode(QProcess::MergedChannels);
    m_processor.setStandardOutputFile(m_root + QLatin1String(kProcessorLog), QIODevice::Append);
    m_processor.setStandardInputFile(QProcess::nullDevice());
    m_processor.start(
        m_binDir + QStringLiteral("/quvera-processor"),
        QStringList { QStringLiteral("--root"), m_root, QStringLiteral("--speed"), QString::number(m_speed) }
            + arguments);
    const bool stands = m_processor.waitForStarted(kStartMs)
        && waitUntil(
                            [&] {
                                m_processor.waitForFinished(0);
                                return m_processor.state() != QProcess::Running || QFileInfo::exists(node);
                            },
                            kStartMs)
        && m_processor.state() == QProcess::Running;
    if (!stands)
        m_error = QStringLiteral("the processor stand-in did not start: ")
            + QString::fromUtf8(processorOutput().right(1000));
    return stands;
}

bool DeskInstrument::startInstrument()
{
    QProcessEnvironment instrumentEnvironment = environment();
    if (m_speed != 1) {
        instrumentEnvironment.insert(QStringLiteral("LD_PRELOAD"), m_clock);
        instrumentEnvironment.insert(QStringLiteral("FAKETIME"), QStringLiteral("+0 x%1").arg(m_speed));
    }
    m_instrument.setProcessEnvironment(instrumentEnvironment);
    m_instrument.setProcessChannelMode(QProcess::MergedChannels);
    m_instrument.setStandardOutputFile(m_root + QLatin1String(kInstrumentLog), QIODevice::Append);
    m_instrument.setStandardInputFile(QProcess::nullDevice());
    const QString program = instrumentProgram(m_binDir);
    if (!QFileInfo(program).isFile()) {
        m_error = QStringLiteral("the instrument is missing: ") + program;
        return false;
    }
    m_instrument.start(program, QStringList());
    RemoteClient client(QHostAddress(QHostAddress::LocalHost), m_remotePort);
    client.setPatience(100, 1);
    const bool answers = m_instrument.waitForStarted(kStartMs)
        && waitUntil(
                             [&] {
                                 QString name;
                                 return !isInstrumentRunning() || client.identify(&name);
                             },
                             kStartMs)
        && isInstrumentRunning();
    if (!answers)
        m_error = QStringLiteral("the instrument did not start: ") + QString::fromUtf8(instrumentOutput().right(1000));
    return answers;
}

bool DeskInstrument::start(const QStringList &processorArguments)
{
    return startProcessor(processorArguments) && startInstrument();
}

bool DeskInstrument::end(QProcess &process)
{
    if (process.state() == QProcess::NotRunning)
        return true;
    process.terminate();
    if (process.waitForFinished(kEndMs))
        return true;
    process.kill();
    process.waitForFinished(kEndMs);
    return false;
}

void DeskInstrument::stopProcessor()
{
    end(m_processor);
}

bool DeskInstrument::stopInstrument()
{
    return end(m_instrument);
}

void DeskInstrument::stop()
{
    stopInstrument();
    stopProcessor();
}

bool DeskInstrument::isInstrumentRunning() const
{
    // QProcess learns of an end only when it is asked to look.
    auto &process = const_cast<Child &>(m_instrument);
    if (process.state() == QProcess::Running)
        process.waitForFinished(0);
    return process.state() == QProcess::Running;
}

bool DeskInstrument::press(const QStringList &keys)
{
    for (const QString &key : keys) {
        const int code = RemoteClient::keyCode(key);
        if (code < 0) {
            m_error = QStringLiteral("no key is called \"%1\"").arg(key);
            return false;
        }
        if (!m_remote->pressKey(code)) {
            m_error = m_remote->error();
            return false;
        }
        // A picture is made by the thread that handles the keys, behind them: when it is here, the key has been
        // handled.
        if (screen().isNull())
            return false;
    }
    return true;
}

QImage DeskInstrument::screen()
{
    const QByteArray png = m_remote->screen();
    if (png.isEmpty())
        m_error = m_remote->error();
    return QImage::fromData(png, "PNG");
}

QImage DeskInstrument::waitForScreen(const std::function<bool(const QImage &)> &condition, int waitMs)
{
    QElapsedTimer timer;
    timer.start();
    for (;;) {
        const QImage image = screen();
        if (image.isNull())
            return {};
        if (condition(image))
            return image;
        if (timer.elapsed() > waitMs) {
            m_error = QStringLiteral("the screen did not come to show what was waited for");
            return {};
        }
        QThread::msleep(kLookMs);
    }
}

QByteArray DeskInstrument::readLog(const QString &name) const
{
    QFile file(m_root + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray DeskInstrument::instrumentOutput() const
{
    return readLog(QLatin1String(kInstrumentLog));
}

QByteArray DeskInstrument::processorOutput() const
{
    return readLog(QLatin1String(kProcessorLog));
}
