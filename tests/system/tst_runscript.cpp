// ./run.sh as a person calls it, in a folder of its own with the programs as they are built; nothing is installed or
// built.
#include "desk/deskinstrument.h"
#include "testpaths.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>
#include <QUdpSocket>

#include <algorithm>
#include <csignal>

namespace {

constexpr int kPatience = 60000; // ms, ends a hang only
const QString kSource = QStringLiteral(QUVERA_SOURCE_DIR "/");
const QString kGoesOn = QStringLiteral("configuring failed"); // what is said where cmake fails

QByteArray contentOf(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The ports that the script is told; each belongs to the test until the script begins.
class Ports
{
public:
    Ports()
    {
        const QHostAddress any(QHostAddress::Any);
        modbus = DeskInstrument::freePort([&](quint16 port) { return m_modbus.listen(any, port); });
        panel = DeskInstrument::freePort([&](quint16 port) { return m_panel.listen(any, port); });
        remote = DeskInstrument::freePort([&](quint16 port) { return m_remote.bind(any, port); });
        QVERIFY(modbus && panel && remote);
    }
    /// Gives them away, but for one that stays taken.
    void giveAllBut(quint16 kept)
    {
        if (kept != modbus)
            m_modbus.close();
        if (kept != panel)
            m_panel.close();
        if (kept != remote)
            m_remote.close();
    }
    static bool isServed(quint16 tcpPort)
    {
        QTcpSocket socket;
        socket.connectToHost(QHostAddress(QHostAddress::LocalHost), tcpPort);
        return socket.waitForConnected(kPatience);
    }
    static bool isBound(quint16 udpPort)
    {
        QUdpSocket socket;
        return !socket.bind(QHostAddress(QHostAddress::AnyIPv4), udpPort, QAbstractSocket::DontShareAddress);
    }

    quint16 modbus = 0;
    quint16 panel = 0;
    quint16 remote = 0;

private:
    QTcpServer m_modbus;
    QTcpServer m_panel;
    QUdpSocket m_remote;
};

/// The script beside the parts of the repository that it reads.
class Desk
{
public:
    Desk()
    {
        QVERIFY(QDir(m_top.path()).mkpath(QStringLiteral("build/commands")));
        for (const char *part : { "packaging", "processor" })
            QVERIFY(QFile::link(kSource + QLatin1String(part), file(part)));
        QVERIFY(QFile::link(QStringLiteral(QUVERA_BIN_DIR), file("build/bin")));
        QVERIFY(QFile::copy(kSource + QStringLiteral("run.sh"), file("run.sh")));
        addCommand("cmake", "exit 0");
        addCommand("dpkg-query", "shift 2; for name; do echo \"$name install ok installed\"; done");
        m_script.setReadChannel(QProcess::StandardError); // what says() waits for
    }
    ~Desk() { end(); }
    void start(const Ports &ports, const QStringList &options = {})
    {
        m_script.setProcessEnvironment(environment());
        m_script.start(file("run.sh"),
                       QStringList { "--offscreen", "--modbus-port", QString::number(ports.modbus), "--remote-port",
                                     QString::number(ports.remote), "--panel-port", QString::number(ports.panel) }
                           + options);
    }
    /// Starts that build only, under a cmake that takes its time and notes when it is not alone.
    void startBuild(QProcess *script)
    {
        addCommand("cmake",
                   "cd \"${0%/*}\"\n"
                   "mkdir alone || echo collided >>faults\n"
                   "ls -l /proc/$$/fd | grep 'build$' >>faults\n" // the lock would stay with what it leaves behind
                   "echo \"$1\" >>calls\n"
                   "until [ -e ends ] || [ ! -e calls ]; do sleep 0.1; done\n"
                   "rmdir alone");
        script->setProcessEnvironment(environment());
        script->start(file("run.sh"), { "--build-only", "--modbus-port", "1502", "--remote-port", "3527" });
    }
    /// Whether it says so before it ends.
    bool says(const QByteArray &text)
    {
        while (!m_said.contains(text) && m_script.waitForReadyRead(kPatience))
            m_said += m_script.readAllStandardError();
        return m_said.contains(text);
    }
    /// The number of the script's own child of that name, or 0.
    qint64 child(const QByteArray &name) const
    {
        const QString script = QStringLiteral("/proc/%1/task/%1/children").arg(m_script.processId());
        for (const QByteArray &number : contentOf(script).simplified().split(' ')) {
            if (contentOf(QStringLiteral("/proc/%1/comm").arg(QString::fromLatin1(number))) == name + '\n')
                return number.toLongLong();
        }
        return 0;
    }
    /// Ends it as Ctrl-C does.
    int end()
    {
        m_script.terminate();
        return status();
    }
    /// Waits for its end. Its status, or -1 when it does not end by itself.
    int status()
    {
        const bool hasEnded = m_script.state() == QProcess::NotRunning || m_script.waitForFinished(kPatience);
        m_said += m_script.readAllStandardError();
        return hasEnded && m_script.exitStatus() == QProcess::NormalExit ? m_script.exitCode() : -1;
    }
    const QByteArray &said() const { return m_said; }
    QString file(const char *name) const { return m_top.filePath(QLatin1String(name)); }
    /// A command that the script finds before the system's.
    void addCommand(const char *name, const QByteArray &does)
    {
        QFile command(file("build/commands/") + QLatin1String(name));
        QVERIFY(command.open(QIODevice::WriteOnly));
        command.write("#!/bin/sh\n" + does + "\n");
        QVERIFY(command.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

private:
    QProcessEnvironment environment() const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("PATH"), file("build/commands:") + environment.value(QStringLiteral("PATH")));
        return environment;
    }

    QTemporaryDir m_top;
    QProcess m_script;
    QByteArray m_said;
};

using Port = quint16 Ports::*;

} // namespace

Q_DECLARE_METATYPE(Port)

class TstRunScript : public QObject
{
    Q_OBJECT

private slots:
    void startsThePanelAndPrintsItsAddress();
    void withoutThePanelItsPortIsLeftAlone();
    void usedPortIsOneClearLine_data();
    void usedPortIsOneClearLine();
    void portOfTheSystemNeedsRoot_data();
    void portOfTheSystemNeedsRoot();
    void secondBuildWaitsForTheFirst();
    void reasonOfTheProcessorIsHeard();
    void killedInstrumentIsToldInOneLine();
};

void TstRunScript::startsThePanelAndPrintsItsAddress()
{
    Ports ports;
    Desk desk;
    ports.giveAllBut(0);
    desk.start(ports);
    QVERIFY2(desk.says("Ctrl-C ends."), desk.said());
    QVERIFY2(desk.said().contains("\nIn a browser: http://127.0.0.1:" + QByteArray::number(ports.panel) + "/\n"),
             desk.said());
    QVERIFY(Ports::isServed(ports.panel));
    QVERIFY(Ports::isServed(ports.modbus));
    QVERIFY(Ports::isBound(ports.remote));
    // Others may build meanwhile.
    QCOMPARE(QProcess::execute(QStringLiteral("flock"), { "--nonblock", desk.file("build"), "true" }), 0);
    QCOMPARE(desk.end(), 0);
    QVERIFY(!Ports::isServed(ports.panel));
    QVERIFY(!Ports::isServed(ports.modbus));
    QVERIFY(!Ports::isBound(ports.remote));
}

void TstRunScript::withoutThePanelItsPortIsLeftAlone()
{
    Ports ports;
    Desk desk;
    ports.giveAllBut(ports.panel); // that of somebody else
    desk.start(ports, { QStringLiteral("--no-panel") });
    QVERIFY2(desk.says("Ctrl-C ends."), desk.said());
    QVERIFY2(!desk.said().contains("browser"), desk.said());
    QVERIFY(Ports::isServed(ports.modbus));
    QCOMPARE(desk.end(), 0);
}

void TstRunScript::usedPortIsOneClearLine_data()
{
    QTest::addColumn<Port>("taken");
    QTest::addColumn<QString>("line");
    QTest::newRow("Modbus") << &Ports::modbus << "TCP port %1 is in use; choose another with --modbus-port";
    QTest::newRow("remote control") << &Ports::remote << "UDP port %1 is in use; choose another with --remote-port";
    QTest::newRow("panel") << &Ports::panel
                           << "TCP port %1 is in use; choose another with --panel-port, or leave the panel out with "
                              "--no-panel";
}

void TstRunScript::usedPortIsOneClearLine()
{
    QFETCH(Port, taken);
    QFETCH(QString, line);
    Ports ports;
    Desk desk;
    ports.giveAllBut(ports.*taken);
    desk.start(ports);
    QCOMPARE(desk.status(), 1);
    QCOMPARE(QString::fromUtf8(desk.said()), QStringLiteral("quvera: %1\n").arg(line.arg(ports.*taken)));
    QVERIFY(!QFile::exists(desk.file("build/desk/dev/mcasp"))); // nothing was started
}

void TstRunScript::portOfTheSystemNeedsRoot_data()
{
    QTest::addColumn<Port>("low");
    QTest::addColumn<QByteArray>("user");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("line");
    const QString modbus = QStringLiteral("TCP port %1 needs root; choose one above %1 with --modbus-port\n");
    const QString panel = QStringLiteral("TCP port %1 needs root; choose one above %1 with --panel-port, or leave the "
                                         "panel out with --no-panel\n");
    QTest::newRow("Modbus") << &Ports::modbus << QByteArray("1000") << QStringList {} << modbus;
    QTest::newRow("panel") << &Ports::panel << QByteArray("1000") << QStringList {} << panel;
    QTest::newRow("no panel") << &Ports::panel << QByteArray("1000") << QStringList { "--no-panel" } << kGoesOn;
    QTest::newRow("Modbus, root") << &Ports::modbus << QByteArray("0") << QStringList {} << kGoesOn;
    QTest::newRow("panel, root") << &Ports::panel << QByteArray("0") << QStringList {} << kGoesOn;
}

// Whoever the test belongs to: the script is told another user.
void TstRunScript::portOfTheSystemNeedsRoot()
{
    QFETCH(Port, low);
    QFETCH(QByteArray, user);
    QFETCH(QStringList, options);
    QFETCH(QString, line);
    QFile first(QStringLiteral("/proc/sys/net/ipv4/ip_unprivileged_port_start"));
    QVERIFY(first.open(QIODevice::ReadOnly));
    const int highest = first.readAll().trimmed().toInt() - 1;
    Ports ports;
    Desk desk;
    desk.addCommand("id", "echo " + user);
    desk.addCommand("cmake", "exit 1");
    ports.giveAllBut(0);
    ports.*low = quint16(std::max(highest, 1));
    desk.start(ports, options);
    QCOMPARE(desk.status(), 1);
    if (highest < 1) // every port is everybody's
        line = kGoesOn;
    else if (line.contains(QLatin1String("%1")))
        line = line.arg(highest);
    QVERIFY2(desk.said().startsWith("quvera: " + line.toUtf8()), desk.said());
}

void TstRunScript::secondBuildWaitsForTheFirst()
{
    Desk desk;
    QProcess first, second;
    const QString calls = desk.file("build/commands/calls");
    desk.startBuild(&first);
    QTRY_VERIFY2_WITH_TIMEOUT(QFile::exists(calls), first.readAllStandardError(), kPatience);
    desk.startBuild(&second);
    second.setReadChannel(QProcess::StandardError);
    QVERIFY(second.waitForReadyRead(kPatience));
    QFile ends(desk.file("build/commands/ends"));
    QVERIFY(ends.open(QIODevice::WriteOnly));
    for (QProcess *script : { &first, &second }) {
        QVERIFY(script->state() == QProcess::NotRunning || script->waitForFinished(kPatience));
        QCOMPARE(script->exitCode(), 0);
    }
    QCOMPARE(first.readAllStandardError(), QByteArray());
    QCOMPARE(QString::fromUtf8(second.readAllStandardError()),
             QStringLiteral("Another start builds in %1; this one waits for it.\n").arg(desk.file("build")));
    QCOMPARE(contentOf(calls), QByteArray("--preset\n--build\n--preset\n--build\n"));
    QCOMPARE(contentOf(desk.file("build/commands/faults")), QByteArray());
}

void TstRunScript::reasonOfTheProcessorIsHeard()
{
    Ports ports;
    Desk desk;
    ports.giveAllBut(0);
    desk.start(ports, { QStringLiteral("--seed"), QStringLiteral("many") });
    QCOMPARE(desk.status(), 1);
    const QList<QByteArray> lines = desk.said().split('\n');
    QVERIFY2(lines.value(0).startsWith("quvera-processor: --seed: "), desk.said());
    QVERIFY2(desk.said().endsWith("quvera: the processor stand-in did not start\n"), desk.said());
}

void TstRunScript::killedInstrumentIsToldInOneLine()
{
    Ports ports;
    Desk desk;
    ports.giveAllBut(0);
    desk.start(ports, { QStringLiteral("--no-panel") });
    QVERIFY2(desk.says("Ctrl-C ends.\n"), desk.said());
    const QByteArray before = desk.said();
    const qint64 instrument = desk.child("quvera");
    QVERIFY(instrument > 0);
    QCOMPARE(::kill(pid_t(instrument), SIGKILL), 0);
    QCOMPARE(desk.status(), 128 + SIGKILL);
    // The instrument's own log may come in between.
    const QString said = QString::fromUtf8(desk.said().mid(before.size()));
    QCOMPARE(said.split(QLatin1Char('\n')).filter(QRegularExpression(QStringLiteral("^(?!F: )."))),
             QStringList { QStringLiteral("The instrument ended with status 137.") });
}

QTEST_GUILESS_MAIN(TstRunScript)
#include "tst_runscript.moc"
