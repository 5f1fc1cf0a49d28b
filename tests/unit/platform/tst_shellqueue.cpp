#include "platform/shellqueue.h"
#include "platform/target.h"
#include "unit/letgo.h"

#include <QFile>
#include <QTest>

/// Commands of the board in the background.
class TstShellQueue : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void commandsRunOneAfterTheOther();
    void repeatedCommandsMoveToTheEnd();
    void queueMayGoWhileCommandsRun();
    void slowCommandStopsNoTimer();
    void commandThatReadsItsInputEnds();
    void commandsAreThoseOfTheDesk();
    void shellThatCannotBeStartedDoesNotHoldUpTheNext();
};

namespace {

/// What a command may begin with: it goes on when the test makes the file kLetGo, or after a minute.
const QString kUntilLetGo
    = QStringLiteral("for i in $(seq 600); do [ -e /var/log/let-go ] && break; sleep 0.1; done; ");

/// What the commands of a test wrote into one file, line by line.
QByteArrayList ran()
{
    return RootFiles::lines(QStringLiteral("/var/log/ran"));
}

} // namespace

void TstShellQueue::init()
{
    QFile::remove(Target::path(QStringLiteral("/var/log/ran")));
    QFile::remove(Target::path(kLetGo));
}

void TstShellQueue::commandsRunOneAfterTheOther()
{
    ShellQueue queue;
    queue.run(kUntilLetGo + QStringLiteral("echo first >> /var/log/ran"));
    queue.run(QStringLiteral("/no/such/command"));
    queue.run(QStringLiteral("echo second >> /var/log/ran"));
    QVERIFY(ran().isEmpty());
    RootFiles::write(kLetGo, "");
    QTRY_COMPARE_WITH_TIMEOUT(ran(), QByteArrayList({ "first", "second" }), 30000);
}

void TstShellQueue::repeatedCommandsMoveToTheEnd()
{
    ShellQueue queue;
    queue.run(QStringLiteral("sleep 0.2"));
    for (int i = 0; i < 1000; ++i) {
        queue.run(QStringLiteral("echo left >> /var/log/ran"));
        queue.run(QStringLiteral("echo joined >> /var/log/ran"));
    }
    queue.run(QStringLiteral("echo left >> /var/log/ran"));
    QTRY_COMPARE_WITH_TIMEOUT(ran(), QByteArrayList({ "joined", "left" }), 30000);
}

void TstShellQueue::queueMayGoWhileCommandsRun()
{
    {
        ShellQueue queue;
        queue.run(QStringLiteral("sleep 1"));
        queue.run(QStringLiteral("echo waited >> /var/log/ran"));
    }
    QTest::qWait(50);
    QVERIFY(ran().isEmpty());
}

void TstShellQueue::slowCommandStopsNoTimer()
{
    ShellQueue queue;
    const TurnsBeside screen;
    queue.run(kUntilLetGo + QStringLiteral("echo slow >> /var/log/ran"));
    QCOMPARE(screen.turns(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(ran(), QByteArrayList({ "slow" }), 30000);
    QVERIFY2(screen.turns() >= TurnsBeside::kTurns, qPrintable(QString::number(screen.turns())));
}

void TstShellQueue::commandsAreThoseOfTheDesk()
{
    ShellQueue queue;
    queue.run(QStringLiteral("udhcpc -i wlan0 > /dev/null 2>&1 &"));
    QFile noted(Target::path(QStringLiteral("/var/log/commands")));
    QTRY_VERIFY_WITH_TIMEOUT(noted.exists() && noted.size() > 0, 30000);
    QVERIFY(noted.open(QIODevice::ReadOnly));
    QCOMPARE(noted.readAll(), QByteArray("udhcpc -i wlan0\n"));
}

void TstShellQueue::commandThatReadsItsInputEnds()
{
    ShellQueue queue;
    queue.run(QStringLiteral("cat; echo read >> /var/log/ran"));
    QTRY_COMPARE_WITH_TIMEOUT(ran(), QByteArrayList({ "read" }), 30000);
}

void TstShellQueue::shellThatCannotBeStartedDoesNotHoldUpTheNext()
{
    constexpr int kTooLong = 300000; // for one argument of a program, which ends at 128 KiB
    ShellQueue queue;
    queue.run(QLatin1String("echo lost >> /var/log/ran #") + QString(kTooLong, QLatin1Char('x')));
    queue.run(QStringLiteral("echo first >> /var/log/ran"));
    queue.run(QStringLiteral("echo second >> /var/log/ran"));
    QTRY_COMPARE_WITH_TIMEOUT(ran(), QByteArrayList({ "first", "second" }), 30000);
}

QTEST_GUILESS_MAIN(TstShellQueue)
#include "tst_shellqueue.moc"
