#include "link/frame.h"
#include "link/streamfile.h"
#include "link/unixsocket.h"
#include "testpaths.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QtEndian>
#include <QTest>

#include <csignal>
#include <poll.h>
#include <sys/socket.h>

using namespace wire;

namespace {

QString program()
{
    return QStringLiteral(QUVERA_BIN_DIR "/quvera-processor");
}

/// What a finished run left behind.
struct Finished
{
    int code = -1;
    QString out;
    QString err;
};

Finished run(const QStringList &arguments)
{
    QProcess process;
    process.start(program(), arguments);
    Finished finished;
    if (!process.waitForFinished(60000))
        return finished;
    finished.code = process.exitCode();
    finished.out = QString::fromLocal8Bit(process.readAllStandardOutput());
    finished.err = QString::fromLocal8Bit(process.readAllStandardError());
    return finished;
}

/// The next message, or nothing within \a ms.
QByteArray receive(const Descriptor &socket, int ms)
{
    pollfd poll = { socket.fd(), POLLIN, 0 };
    QByteArray bytes(9000, 0);
    if (::poll(&poll, 1, ms) <= 0)
        return {};
    const ssize_t got = ::recv(socket.fd(), bytes.data(), std::size_t(bytes.size()), 0);
    bytes.resize(int(qMax<ssize_t>(got, 0)));
    return bytes;
}

void say(const Descriptor &socket, const QByteArray &frame)
{
    QCOMPARE(::send(socket.fd(), frame.constData(), std::size_t(frame.size()), MSG_NOSIGNAL), ssize_t(frame.size()));
}

quint32 wordAt(const QByteArray &message, int byte)
{
    return message.size() >= byte + 4 ? qFromLittleEndian<quint32>(message.constData() + byte) : 0xFFFFFFFF;
}

} // namespace

/// The executable itself, as a person or another program meets it.
class TstProcessorProgram : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void helpExplainsEveryOption();
    void wrongCallsAreOneLine_data();
    void wrongCallsAreOneLine();
    void rootInUseIsOneLine();
    void rootComesFromTheEnvironment();
    void conversationOfAnInstrumentThatStarts();
    void tellReachesIt();
    void signalsEndItAndRemoveItsSockets_data();
    void signalsEndItAndRemoveItsSockets();
    void quitEndsIt();
    void killedProcessorIsFollowedByANewOne();
    void instrumentMayComeAgain();
    void rangesAreFollowed();
    void recordingsOfTheSameRunAreEqual();
    void recordedStreamReplaysByteForByte();
    void damagedRecordingIsPlayedToTheDamage();
    void firmwareUpdateOverTheNode();
    void clockSetInSilenceRunsOn();
    void framesAreLogged();
    void commaLocaleChangesNothing();

private:
    QString path(const char *name) const { return m_root->filePath(QString::fromLatin1(name)); }
    QStringList rooted(const QStringList &more = {}) const { return QStringList { "--root", m_root->path() } + more; }
    /// Starts the processor under the root, and waits until its sockets are there.
    bool start(const QStringList &more = {})
    {
        m_process.reset(new QProcess);
        m_process->start(program(), rooted(more));
        return QTest::qWaitFor([this] { return run(rooted({ "--tell", "status" })).code == 0; }, 30000);
    }
    QString tell(const QString &line) { return run(rooted({ "--tell", line })).out.trimmed(); }
    QString statusValue(const QString &key)
    {
        for (const QString &pair : tell("status").split(' ')) {
            if (pair.startsWith(key + '='))
                return pair.mid(key.size() + 1);
        }
        return {};
    }
    Descriptor connectNode()
    {
        QString error;
        return connectTo(path("dev/mcasp"), SOCK_SEQPACKET, &error);
    }

    QScopedPointer<QTemporaryDir> m_root;
    QScopedPointer<QProcess> m_process;
};

void TstProcessorProgram::init()
{
    m_root.reset(new QTemporaryDir);
}

void TstProcessorProgram::cleanup()
{
    if (m_process && m_process->state() != QProcess::NotRunning) {
        m_process->terminate();
        m_process->waitForFinished(30000);
    }
    m_process.reset();
}

void TstProcessorProgram::helpExplainsEveryOption()
{
    const Finished help = run({ "--help" });
    QCOMPARE(help.code, 0);
    for (const char *option : { "--root <DIR>", "--scenario <FILE|NAME>", "--list-scenarios", "--speed <N>",
                                "--seed <N>", "--clock <TIME>", "--record <FILE>", "--replay <FILE>",
                                "--log-frames <FILE>", "--for <SECONDS>", "--stream", "--tell <COMMAND>", "--help" })
        QVERIFY2(help.out.contains(option), option);
    QVERIFY(run({ "--list-scenarios" }).out.split('\n').contains("nominal"));
}

void TstProcessorProgram::wrongCallsAreOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    QTest::newRow("unknown option") << QStringList { "--sped", "2" } << "Unknown option 'sped'.";
    QTest::newRow("stray word") << QStringList { "nominal" } << "unexpected nominal; see --help";
    QTest::newRow("speed") << QStringList { "--speed", "fast" } << "--speed: expected a number from 0.01 to 10000";
    QTest::newRow("seed") << QStringList { "--seed", "x" } << "--seed: expected a whole number";
    QTest::newRow("clock") << QStringList { "--clock", "noon" } << "--clock: expected a time as 2024-01-18T16:15:00";
    QTest::newRow("length") << QStringList { "--for", "0" } << "--for: expected a time as 200ms or 0.2s";
    QTest::newRow("empty command") << QStringList { "--tell", "" } << "--tell: expected a command; \"help\" lists them";
    QTest::newRow("root of the host") << QStringList { "--root", "/" } << "the root must not be /";
    QTest::newRow("root in a device") << QStringList { "--root", "/dev/null/x" } << "cannot write /dev/null/x/dev";
    QTest::newRow("replay of nothing") << QStringList { "--replay", "/none" }
                                       << "cannot read /none: No such file or directory";
    QTest::newRow("replay and record") << QStringList { "--replay", "a", "--record", "b" }
                                       << "--replay goes with neither --record nor --scenario";
    QTest::newRow("record nowhere") << QStringList { "--record", "/none/x" }
                                    << "cannot write /none/x: No such file or directory";
    QTest::newRow("log nowhere") << QStringList { "--log-frames", "/none/x" }
                                 << "cannot write /none/x: No such file or directory";
}

void TstProcessorProgram::wrongCallsAreOneLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    const Finished finished = run(arguments.contains("--root") ? arguments : rooted(arguments));
    QCOMPARE(finished.code, 1);
    QCOMPARE(finished.err, "quvera-processor: " + error + '\n');
    QVERIFY(!QFile::exists(path("dev/mcasp")));
    const Finished missing = run(rooted({ "--scenario", "nonesuch" }));
    QCOMPARE(missing.code, 1);
    QCOMPARE(missing.err.count('\n'), 1);
    QVERIFY(missing.err.startsWith("quvera-processor: no scenario nonesuch: "));
}

void TstProcessorProgram::rootInUseIsOneLine()
{
    QVERIFY(start());
    const Finished second = run(rooted());
    QCOMPARE(second.code, 1);
    QCOMPARE(second.err, "quvera-processor: another processor runs under " + m_root->path() + '\n');
    QVERIFY(tell("status").startsWith("ok ")); // the first one does not mind
    const Finished nobody = run({ "--root", path("other"), "--tell", "status" });
    QCOMPARE(nobody.code, 1);
    QVERIFY(nobody.err.startsWith("quvera-processor: cannot reach "));
}

void TstProcessorProgram::rootComesFromTheEnvironment()
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QUVERA_ROOT", m_root->path());
    process.setProcessEnvironment(environment);
    process.start(program(), { "--stream", "--for", "1", "--speed", "1000" });
    QVERIFY(process.waitForFinished(30000));
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(QFile::exists(path("sys/class/gpio/gpio54/value")));
    environment.remove("QUVERA_ROOT");
    process.setProcessEnvironment(environment);
    process.start(program(), QStringList());
    QVERIFY(process.waitForFinished(30000));
    QCOMPARE(QString::fromLocal8Bit(process.readAllStandardError()),
             QString("quvera-processor: no root: give --root DIR or set QUVERA_ROOT\n"));
}

void TstProcessorProgram::conversationOfAnInstrumentThatStarts()
{
    QVERIFY(start({ "--speed", "50" }));
    Descriptor node = connectNode();
    QVERIFY(node.isOpen());
    say(node, buildFrame(193, { 0 }));
    node = connectNode(); // the instrument opens the node anew
    say(node, buildFrame(193, { 0 }));
    std::vector<quint32> setup(21, 0);
    setup[0] = 50u << 16;
    for (std::size_t i = 9; i < 18; ++i)
        setup[i] = 0x3F800000;
    setup[18] = 230;
    say(node, buildFrame(198, setup));
    say(node, buildFrame(194, { 0 }));
    QVERIFY(receive(node, 300).isEmpty()); // nothing before the stream is on
    say(node, buildFrame(193, { 1 }));
    const QByteArray text = receive(node, 30000);
    QCOMPARE(text.size(), 8192);
    QCOMPARE(wordAt(text, 16), 5u);
    QVERIFY(text.mid(40).startsWith("CPU:ADSP-21479;"));
    QSet<quint32> kinds;
    for (int i = 0; i < 2000 && kinds.size() < 4; ++i) {
        const QByteArray message = receive(node, 30000);
        QCOMPARE(message.size(), 8192);
        QCOMPARE(wordAt(message, 0) & 0x00A5FF00u, 0x00A5FF00u);
        if (wordAt(message, 0) & 0x80000000u)
            kinds.insert(wordAt(message, 16));
    }
    QCOMPARE(kinds, (QSet<quint32> { 0, 1, 3, 4 }));
    say(node, buildFrame(193, { 0 }));
    QTRY_COMPARE_WITH_TIMEOUT(statusValue("stream"), QString("off"), 30000);
    // What was under way still comes, no more than the sockets and the queue hold; then there is silence.
    bool isSilent = false;
    for (int i = 0; i < 10000 && !isSilent; ++i)
        isSilent = receive(node, 300).isEmpty();
    QVERIFY(isSilent);
    QCOMPARE(statusValue("frames"), QString("6"));
    QCOMPARE(statusValue("malformed"), QString("0"));
}

void TstProcessorProgram::tellReachesIt()
{
    QVERIFY(start());
    QCOMPARE(tell("set u1 110"), QString("ok"));
    QVERIFY(tell("help").contains("event KIND"));
    const Finished wrong = run(rooted({ "--tell", "set u1 much" }));
    QCOMPARE(wrong.code, 1);
    QCOMPARE(wrong.out, QString("error: expected a voltage as 230 or 230V, 0 to 10000\n"));
}

void TstProcessorProgram::signalsEndItAndRemoveItsSockets_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("Ctrl-C") << SIGINT;
    QTest::newRow("SIGTERM") << SIGTERM;
}

void TstProcessorProgram::signalsEndItAndRemoveItsSockets()
{
    QFETCH(int, signal);
    QVERIFY(start());
    QVERIFY(QFile::exists(path("dev/mcasp")) && QFile::exists(path("run/processor.ctl")));
    const Descriptor node = connectNode();
    ::kill(pid_t(m_process->processId()), signal);
    QVERIFY(m_process->waitForFinished(30000));
    QCOMPARE(m_process->exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_process->exitCode(), 0);
    QVERIFY(!QFile::exists(path("dev/mcasp")) && !QFile::exists(path("run/processor.ctl")));
    char byte;
    QCOMPARE(::recv(node.fd(), &byte, 1, 0), ssize_t(0)); // the far end reads the end
}

void TstProcessorProgram::quitEndsIt()
{
    QVERIFY(start());
    QCOMPARE(tell("quit"), QString("ok"));
    QVERIFY(m_process->waitForFinished(30000));
    QCOMPARE(m_process->exitCode(), 0);
}

void TstProcessorProgram::killedProcessorIsFollowedByANewOne()
{
    QVERIFY(start());
    m_process->kill();
    QVERIFY(m_process->waitForFinished(30000));
    QVERIFY(QFile::exists(path("dev/mcasp"))); // left behind
    QVERIFY(start());
    QVERIFY(connectNode().isOpen());
}

void TstProcessorProgram::instrumentMayComeAgain()
{
    QVERIFY(start({ "--speed", "20" }));
    for (int round = 0; round < 5; ++round) {
        Descriptor node = connectNode();
        QVERIFY(node.isOpen());
        QVERIFY(receive(node, 150).isEmpty()); // off again since the last one left
        say(node, buildFrame(193, { 1 }));
        QVERIFY(!receive(node, 30000).isEmpty());
    }
    QTRY_COMPARE_WITH_TIMEOUT(statusValue("instrument"), QString("no"), 30000);
    QCOMPARE(statusValue("stream"), QString("off"));
}

void TstProcessorProgram::rangesAreFollowed()
{
    QVERIFY(start());
    QCOMPARE(statusValue("ranges"), QString("0,0,0,0"));
    QFile line(path("sys/class/gpio/gpio52/value"));
    QVERIFY(line.open(QIODevice::WriteOnly));
    line.write("1\n");
    line.close();
    QTRY_COMPARE_WITH_TIMEOUT(statusValue("ranges"), QString("2,0,0,0"), 30000);
}

void TstProcessorProgram::recordingsOfTheSameRunAreEqual()
{
    const auto record = [this](const char *file, const char *seed) {
        return run(rooted({ "--scenario", "link-faults", "--stream", "--for", "14", "--speed", "10000", "--clock",
                            "2024-01-18T12:00:00", "--seed", seed, "--record", path(file) }))
                   .code
            == 0;
    };
    QVERIFY(record("a", "1") && record("b", "1") && record("c", "2"));
    const auto bytes = [this](const char *name) {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    QVERIFY(bytes("a").size() > 1000000);
    QVERIFY(bytes("a") == bytes("b"));
    QVERIFY(bytes("a") != bytes("c"));
}

void TstProcessorProgram::recordedStreamReplaysByteForByte()
{
    QCOMPARE(run(rooted({ "--scenario", "link-faults", "--stream", "--for", "14", "--speed", "10000", "--record",
                          path("r") }))
                 .code,
             0);
    StreamReader reader;
    QString error;
    QVERIFY2(reader.open(path("r"), &error), qPrintable(error));
    QVERIFY(start({ "--replay", path("r"), "--speed", "10" }));
    const Descriptor node = connectNode();
    QVERIFY(receive(node, 150).isEmpty());
    say(node, buildFrame(193, { 1 }));
    int messages = 0;
    while (const auto recorded = reader.next()) {
        QVERIFY(receive(node, 30000) == recorded->bytes);
        ++messages;
    }
    QVERIFY(!reader.damaged());
    QVERIFY(messages > 500);
    QVERIFY(m_process->waitForFinished(30000));
    QCOMPARE(m_process->exitCode(), 0);
    QVERIFY(m_process->readAllStandardOutput().contains("end of "));
}

void TstProcessorProgram::damagedRecordingIsPlayedToTheDamage()
{
    QCOMPARE(run(rooted({ "--stream", "--for", "2", "--speed", "10000", "--record", path("r") })).code, 0);
    QFile file(path("r"));
    QVERIFY(file.resize(file.size() - 5));
    const Finished finished = run(rooted({ "--replay", path("r"), "--stream", "--speed", "1000" }));
    QCOMPARE(finished.code, 1);
    QVERIFY(finished.out.contains("is damaged: played to the damage"));
}

void TstProcessorProgram::firmwareUpdateOverTheNode()
{
    QVERIFY(start({ "--speed", "50" })); // in silence, as the instrument does it
    const Descriptor node = connectNode();
    const auto answer = [&node] {
        for (int i = 0; i < 5000; ++i) {
            const QByteArray message = receive(node, 30000);
            if (wordAt(message, 0) == 0xC0A5FF00u && wordAt(message, 16) == 6)
                return std::pair(wordAt(message, 40), wordAt(message, 44));
        }
        return std::pair(0u, 0u);
    };
    say(node, buildFrame(196, { 1, 1, 8 }));
    QCOMPARE(answer(), std::pair(0xC401u, 0u));
    say(node, buildFrame(196, { 2, 1, 0x34333231, 0x38373635, 0x9AE0DAAF })); // "12345678" and its CRC-32
    QCOMPARE(answer(), std::pair(0xC402u, 0u));
    QCOMPARE(answer(), std::pair(0xC403u, 0u));
    QCOMPARE(statusValue("updates"), QString("1"));
    QCOMPARE(tell("fault update flash result 1"), QString("ok"));
    say(node, buildFrame(196, { 1, 1, 8 }));
    QCOMPARE(answer(), std::pair(0xC401u, 0u));
    say(node, buildFrame(196, { 2, 1, 0x34333231, 0x38373635, 0x9AE0DAAF }));
    QCOMPARE(answer(), std::pair(0xC402u, 0u));
    QCOMPARE(answer(), std::pair(0xC403u, 1u));
}

void TstProcessorProgram::clockSetInSilenceRunsOn()
{
    QVERIFY(start());
    const Descriptor node = connectNode();
    say(node, buildFrame(195, { 0x04000000, 0x07E80112 })); // 2024-01-18T00:00:00
    QTRY_VERIFY_WITH_TIMEOUT(statusValue("clock").startsWith("2024-01-18T00:00:00"),
                             30000); // it stands until it is asked
    QTest::qWait(300);
    say(node, buildFrame(194, { 0 }));
    say(node, buildFrame(193, { 1 }));
    const QByteArray text = receive(node, 30000);
    const quint64 stamp = wordAt(text, 32) * quint64(1000) + wordAt(text, 36);
    QVERIFY(stamp <= 1705536000000 + 60000);
    const QByteArray next = receive(node, 30000);
    QVERIFY(wordAt(next, 32) * quint64(1000) + wordAt(next, 36) >= 1705536000000 + 300);
}

void TstProcessorProgram::framesAreLogged()
{
    QVERIFY(start({ "--log-frames", path("frames") }));
    const Descriptor node = connectNode();
    say(node, buildFrame(193, { 1 }));
    say(node, bytesOf({ 194, 2 }));
    QTRY_COMPARE_WITH_TIMEOUT(statusValue("frames"), QString("2"), 30000);
    QFile file(path("frames"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = file.readAll().split('\n');
    QCOMPARE(lines.size(), 3);
    QVERIFY(lines[0].endsWith(" 0000007a 000000c1 00000001 0000007b  stream on"));
    QVERIFY(lines[1].endsWith(" 000000c2 00000002  buzzer 2"));
}

void TstProcessorProgram::commaLocaleChangesNothing()
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "de_DE.UTF-8");
    process.setProcessEnvironment(environment);
    process.start(program(), rooted({ "--stream", "--for", "0.5", "--speed", "12.5" }));
    QVERIFY(process.waitForFinished(30000));
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(process.readAllStandardOutput().contains("speed 12.5"));
}

QTEST_GUILESS_MAIN(TstProcessorProgram)
#include "tst_processor_program.moc"
