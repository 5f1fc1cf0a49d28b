#include "board/wpachannel.h"
#include "scripteddaemon.h"
#include "testpaths.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <fcntl.h>
#include <thread>

/// The connection to the wireless daemon: it never waits, and no answer is taken for another.
class TstWifiChannel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void answersComeInTheOrderOfTheRequests();
    void oneRequestIsOnItsWayAtATime();
    void hangingDaemonStopsNoTimer();
    void fullSocketStopsNoTimer();
    void lateAnswerIsNotTakenForTheNext();
    void deadDaemonFailsAllThatWait();
    void daemonThatDiesInARequestFailsTheRest();
    void floodLeavesTheLoopItsTurn();
    void answersAreCutAtTheBufferAndAtAZeroByte();
    void unaskedAnswersAreDropped();
    void messagesOfTheWholeDaemonAreNoAnswers();
    void requestsBeyondTheQueueFail();
    void commandsWithControlCharactersAreNotSent();
    void whatIsNoSocketIsRefused();
    void askerThatIsGoneIsNotAnswered();
    void channelMayGoInItsOwnAnswer();
    void requestFromAnAnswerKeepsTheOrder();
    void socketIsNotInherited();
    void noCallOfTheLibraryWaits();

private:
    /// Notes the result of a request as "command result answer".
    WpaAnswer note(const QByteArray &command)
    {
        return [this, command](int result, const QByteArray &answer) {
            m_results << command + ' ' + QByteArray::number(result) + ' ' + answer.trimmed();
        };
    }
    void ask(WpaChannel *channel, const QByteArray &command) { channel->request(command, this, note(command)); }

    int failures() const
    {
        return static_cast<int>(std::count_if(m_results.begin(), m_results.end(),
                                              [](const QByteArray &one) { return one.endsWith(" -1 "); }));
    }

    QVector<QByteArray> m_results;
};

namespace {

const QString kFolder = QStringLiteral("/var/run/wpa_supplicant");
const QString kInterface = QStringLiteral("wlan0");

} // namespace

void TstWifiChannel::init()
{
    m_results.clear();
}

void TstWifiChannel::answersComeInTheOrderOfTheRequests()
{
    ScriptedDaemon daemon;
    daemon.answers["A"] = "1\n";
    daemon.answers["B"] = "2\n";
    WpaChannel channel;
    QVERIFY(channel.open(kFolder, kInterface));
    for (const char *command : { "A", "B", "PING", "A" })
        ask(&channel, command);
    QVERIFY2(m_results.isEmpty(), "answered from within the call");
    QTRY_COMPARE(m_results.size(), 4);
    const QVector<QByteArray> expected { "A 0 1", "B 0 2", "PING 0 PONG", "A 0 1" };
    QCOMPARE(m_results, expected);
}

void TstWifiChannel::oneRequestIsOnItsWayAtATime()
{
    ScriptedDaemon daemon;
    daemon.silent << "A";
    WpaChannel channel;
    QVERIFY(channel.open(kFolder, kInterface));
    ask(&channel, "A");
    ask(&channel, "B");
    QTRY_COMPARE(daemon.count("A"), 1);
    QTest::qWait(50);
    QCOMPARE(daemon.count("B"), 0);
    QVERIFY(channel.isWaiting("A"));
    QVERIFY(channel.isWaiting("B"));
    QVERIFY(!channel.isWaiting("C"));
    daemon.send(daemon.last, "fine\n");
    QTRY_COMPARE(m_results.size(), 2);
    QCOMPARE(m_results.first(), QByteArray("A 0 fine"));
    QVERIFY(!channel.isWaiting("A"));
}

void TstWifiChannel::hangingDaemonStopsNoTimer()
{
    ScriptedDaemon daemon;
    daemon.hang();
    int turns = 0; // of a timer that would run twenty times meanwhile
    QTimer screen;
    connect(&screen, &QTimer::timeout, this, [&turns] { ++turns; });
    screen.start(10);
    int most = 0;
    for (int i = 0; i < 50 && most < 5; ++i) { // a machine that stands still costs one of several tries
        WpaChannel channel;
        channel.setAnswerTime(200);
        QVERIFY(channel.open(kFolder, kInterface));
        int turnsAtTheEnd = -1;
        turns = 0;
        channel.request("PING", this, [&](int result, const QByteArray &) {
            QCOMPARE(result, int(WpaChannel::TimedOut));
            turnsAtTheEnd = turns;
        });
        QCOMPARE(turns, 0); // the call itself let nothing run, since it did not wait
        QTRY_VERIFY(turnsAtTheEnd >= 0);
        most = qMax(most, turnsAtTheEnd);
    }
    QVERIFY2(most >= 5, qPrintable(QString::number(most)));
}

void TstWifiChannel::fullSocketStopsNoTimer()
{
    ScriptedDaemon daemon;
    daemon.hang();
    const int other = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    sockaddr_un address {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, daemon.path().constData(), sizeof(address.sun_path));
    QCOMPARE(::connect(other, reinterpret_cast<const sockaddr *>(&address), sizeof(address)), 0);
    int sent = 0;
    while (sent < 100000 && ::send(other, "X", 1, MSG_NOSIGNAL) == 1)
        ++sent;
    QVERIFY2(sent < 100000, "the socket takes everything");

    WpaChannel channel;
    QVERIFY(channel.open(kFolder, kInterface));
    ask(&channel, "PING");
    int turns = 0;
    QTimer screen;
    connect(&screen, &QTimer::timeout, this, [&turns] { ++turns; });
    screen.start(10);
    QTRY_VERIFY(turns >= 5);
    QVERIFY(m_results.isEmpty());
    daemon.wake(); // the request goes out as soon as there is room
    QTRY_COMPARE(m_results, QVector<QByteArray>({ "PING 0 PONG" }));
    ::close(other);
}

void TstWifiChannel::lateAnswerIsNotTakenForTheNext()
{
    ScriptedDaemon daemon;
    daemon.silent << "A"
                  << "B";
    WpaChannel channel;
    channel.setAnswerTime(100);
    QVERIFY(channel.open(kFolder, kInterface));
    ask(&channel, "A");
    QTRY_COMPARE(daemon.count("A"), 1);
    const ScriptedDaemon::Client asker = daemon.last;
    channel.setAnswerTime(60000);
    ask(&channel, "B");
    QTRY_COMPARE(m_results, QVector<QByteArray>({ "A -2 " }));
    QTRY_COMPARE(daemon.count("B"), 1);
    daemon.send(asker, "answer to A\n"); // while B waits for its own
    QTest::qWait(50);
    QCOMPARE(m_results.size(), 1);
    daemon.send(daemon.last, "answer to B\n");
    QTRY_COMPARE(m_results, QVector<QByteArray>({ "A -2 ", "B 0 answer to B" }));
}

void TstWifiChannel::deadDaemonFailsAllThatWait()
{
    ScriptedDaemon daemon;
    WpaChannel channel;
    QVERIFY(channel.open(kFolder, kInterface));
    daemon.die();
    ask(&channel, "A");
    ask(&channel, "B");
    QVERIFY(m_results.isEmpty());
    QTRY_COMPARE(m_results, QVector<QByteArray>({ "A -1 ", "B -1 " }));
    QVERIFY(!channel.isOpen());
    QVERIFY(!channel.open(kFolder, kInterface));
    daemon.start();
    QVERIFY(channel.open(kFolder, kInterface));
    ask(&channel, "PING");
    QTRY_COMPARE(m_results.size(), 3);
    QCOMPARE(m_results.last(), QByteArray("PING 0 PONG"));
}

void TstWifiChannel::daemonThatDiesInARequestFailsTheRest()
{
    ScriptedDaemon daemon;
    WpaChannel channel;
    channel.setAnswerTime(100);
    QVERIFY(channel.open(kFolder, kInterface));
    ask(&channel, "A"); // has gone out
    ask(&channel, "B");
    daemon.die(); // before the time of the answer can run out
    QTRY_COMPARE(m_results, QVector<QByteArray>({ "A -2 ", "B -1 " }));
    QVERIFY(!channel.isOpen());
}

void TstWifiChannel::floodLeavesTheLoopItsTurn()
{
    ScriptedDaemon daemon;
    WpaChannel channel;
    QVERIFY(channel.open(kFolder, kInterface));
    ask(&channel, "PING");
    QTRY_COMPARE(m_results.size(), 1);
    const ScriptedDaemon::Client client = daemon.last;
    int inOneTurn = 0, most = 0, all = 0;
    connect(&channel, &WpaChannel::message, this, [&](const QByteArray &) {
        ++inOneTurn;
        ++all;
        QThread::usleep(20); // slower than the sender, so that there is always one more
    });
    std::atomic<bool> end { false };
    std::thread flood([&] {
        while (!end)
            daemon.send(client, "<3>CTRL-EVENT-BSS-ADDED 1 02:00:00:00:00:00");
    });
    QElapsedTimer time;
    time.start();
    while (all < 1000 && time.elapsed() < 30000) {
        inOneTurn = 0;
        QCoreApplication::processEvents();
        most = qMax(most, inOneTurn);
    }
    end = true;
    flood.join();
    QVERIFY(all >= 1000);
    QVERIFY2(most <= 32, qPrintable(QString::number(most)));
    for (int before = -1; before != all; QTest::qWait(20)) // what is left in the socket
        before = all;
    ask(&channel, "PING");
    QTRY_COMPARE(m_results.size(), 2);
    QCOMPARE(m_results.last(), QByteArray("PING 0 PONG"));
}

void TstWifiChannel::answersAreCutAtTheBufferAndAtAZeroByte()
{
    ScriptedDaemon daemon;
    daemon.answers["LONG"] = QByteArray(6000, 'x');
    daemon.answers["FITS"] = QByteArray(2047, 'y');
    daemon.answers["ZERO"] = QByteArray("ab\0cd", 5);
    daemon.answers["NONE"] = "";
    daemon.answers["BITS"] = "\xff\xfe\x80";
    WpaChannel channel;
    QVERIFY(channel.open(kFolder, kInterface));
    for (const char *command : { "LONG", "FITS", "ZERO", "NONE", "BITS" })
        ask(&channel, command);
    QTRY_COMPARE(m_results.size(), 5);
    QCOMPARE(m_results.at(0), "LONG 0 " + QByteArray(2047, 'x'));
    QCOMPARE(m_results.at(1), "FITS 0 " + QByteArray(2047, 'y'));
    QCOMPARE(m_results.at(2), QByteArray("ZERO 0 ab"));
    QCOMPARE(m_results.at(3), QByteArray("NONE 0 "));
    QCOMPARE(m_results.at(4), QByteArray("BITS 0 \xff\xfe\x80"));
}

void TstWifiChannel::unaskedAnswersAreDropped()
{
    ScriptedDaemon daemon;
    WpaChannel channel;
    QVERIFY(channel.open(kFolder, kInterface));
    QSignalSpy messages(&channel, &WpaChannel::message);
    ask(&channel, "PING");
    QTRY_COMPARE(m_results.size(), 1);
    daemon.send(daemon.last, "nobody asked\n");
    daemon.send(daemon.last, "<2>an event");
    QTRY_COMPARE(messages.size(), 1);
    QCOMPARE(messages.first().first().toByteArray(), QByteArray("<2>an event"));
    ask(&channel, "PING");
    QTRY_COMPARE(m_results.size(), 2);
    QCOMPARE(m_results.last(), QByteArray("PING 0 PONG"));
}

void TstWifiChannel::requestsBeyondTheQueueFail()
{
    ScriptedDaemon daemon;
    WpaChannel channel;
    QVERIFY(channel.open(kFolder, kInterface));
    for (int i = 0; i < WpaChannel::kMostWaiting + 3; ++i)
        ask(&channel, "R" + QByteArray::number(i));
    QTRY_COMPARE(m_results.size(), WpaChannel::kMostWaiting + 3);
    QCOMPARE(failures(), 3);
    QVERIFY(m_results.contains("R63 0 OK"));
    QVERIFY(m_results.contains("R64 -1 "));
}

void TstWifiChannel::commandsWithControlCharactersAreNotSent()
{
    ScriptedDaemon daemon;
    WpaChannel channel;
    QVERIFY(channel.open(kFolder, kInterface));
    ask(&channel, "SET_NETWORK 0 psk \"a\nb\"");
    ask(&channel, QByteArray("PI\0NG", 5));
    ask(&channel, "");
    ask(&channel, "PING");
    QTRY_COMPARE(m_results.size(), 4);
    QCOMPARE(daemon.commands, QVector<QByteArray>({ "PING" }));
    QVERIFY(m_results.contains("PING 0 PONG"));
    QCOMPARE(failures(), 3);
}

void TstWifiChannel::whatIsNoSocketIsRefused()
{
    const QString path = Target::path(kFolder);
    WpaChannel channel;
    QVERIFY(!channel.open(QStringLiteral("/no/such/folder"), kInterface));
    QVERIFY(!channel.open(kFolder, QStringLiteral("missing0")));
    QVERIFY(QDir().mkpath(path + QStringLiteral("/folder0")));
    QVERIFY(!channel.open(kFolder, QStringLiteral("folder0")));
    QFile file(path + QStringLiteral("/file0"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(!channel.open(kFolder, QStringLiteral("file0")));
    ask(&channel, "PING");
    QTRY_COMPARE(m_results, QVector<QByteArray>({ "PING -1 " }));
    QVERIFY(file.remove());
    QVERIFY(QDir(path).rmdir(QStringLiteral("folder0")));
}

void TstWifiChannel::askerThatIsGoneIsNotAnswered()
{
    ScriptedDaemon daemon;
    WpaChannel channel;
    QVERIFY(channel.open(kFolder, kInterface));
    bool called = false;
    {
        QObject asker;
        channel.request("A", &asker, [&called](int, const QByteArray &) { called = true; });
        channel.request("a\nb", &asker, [&called](int, const QByteArray &) { called = true; });
    }
    ask(&channel, "PING");
    QTRY_COMPARE(m_results, QVector<QByteArray>({ "PING 0 PONG" }));
    QVERIFY(!called);
}

void TstWifiChannel::channelMayGoInItsOwnAnswer()
{
    for (bool inTime : { true, false }) {
        ScriptedDaemon daemon;
        if (!inTime)
            daemon.hang();
        auto *channel = new WpaChannel;
        channel->setAnswerTime(inTime ? 5000 : 50);
        QVERIFY(channel->open(kFolder, kInterface));
        bool gone = false;
        channel->request("A", this, [&](int, const QByteArray &) {
            delete channel;
            gone = true;
        });
        ask(channel, "B");
        QTRY_VERIFY(gone);
    }
    QVERIFY(m_results.isEmpty());
}

void TstWifiChannel::requestFromAnAnswerKeepsTheOrder()
{
    ScriptedDaemon daemon;
    WpaChannel channel;
    QVERIFY(channel.open(kFolder, kInterface));
    channel.request("A", this, [&](int, const QByteArray &) { ask(&channel, "C"); });
    ask(&channel, "B");
    QTRY_COMPARE(m_results.size(), 2);
    QCOMPARE(daemon.commands, QVector<QByteArray>({ "A", "B", "C" }));
}

void TstWifiChannel::socketIsNotInherited()
{
    ScriptedDaemon daemon;
    WpaChannel channel;
    QVERIFY(channel.open(kFolder, kInterface));
    int found = 0;
    for (int fd = 0; fd < 1024; ++fd) {
        sockaddr_un address {};
        socklen_t size = sizeof(address);
        if (::getsockname(fd, reinterpret_cast<sockaddr *>(&address), &size) != 0 || address.sun_family != AF_UNIX
            || !QByteArray(address.sun_path).contains("wpa_ctrl_"))
            continue;
        ++found;
        QVERIFY(::fcntl(fd, F_GETFD) & FD_CLOEXEC);
        QVERIFY(::fcntl(fd, F_GETFL) & O_NONBLOCK);
        QVERIFY(QByteArray(address.sun_path).startsWith(QFile::encodeName(Target::path(QStringLiteral("/tmp/")))));
    }
    QCOMPARE(found, 1);
}

void TstWifiChannel::noCallOfTheLibraryWaits()
{
    // These wait for an answer, up to ten seconds, or hold descriptors in sets of 1024.
    static const QRegularExpression waiting(
        QStringLiteral("\\bwpa_ctrl_(request|attach|detach|pending)\\b|waitForFinished|waitForStarted"));
    const QDir folder(QStringLiteral(QUVERA_SOURCE_DIR "/src/board"));
    const QStringList sources = folder.entryList({ QStringLiteral("*.cpp"), QStringLiteral("*.h") });
    QVERIFY(sources.contains(QStringLiteral("wpachannel.cpp")));
    for (const QString &name : sources) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const auto match = waiting.match(QString::fromUtf8(file.readAll()));
        QVERIFY2(!match.hasMatch(), qPrintable(name + QLatin1String(": ") + match.captured()));
    }
}

void TstWifiChannel::messagesOfTheWholeDaemonAreNoAnswers()
{
    ScriptedDaemon daemon;
    daemon.silent << "PING";
    WpaChannel channel;
    QVERIFY(channel.open(kFolder, kInterface));
    ask(&channel, "PING");
    QTRY_COMPARE(daemon.count("PING"), 1);
    daemon.send(daemon.last, "IFNAME=wlan0 <3>CTRL-EVENT-SCAN-STARTED ");
    daemon.send(daemon.last, "PONG\n");
    QTRY_COMPARE(m_results.size(), 1);
    QVERIFY2(m_results.last().startsWith("PING 0 PONG"), m_results.last().constData());
}

QTEST_GUILESS_MAIN(TstWifiChannel)
#include "tst_wifichannel.moc"
