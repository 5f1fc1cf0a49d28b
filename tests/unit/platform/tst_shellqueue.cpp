#include "platform/shellqueue.h"
#include "platform/target.h"
#include "unit/storage/rootfiles.h"

#include <QFile>
#include <QTest>
#include <QTimer>

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

/// What the commands of a test wrote into one file, line by line.
QByteArrayList ran()
{
    return RootFiles::lines(QStringLiteral("/var/log/ran"));
}

} // namespace

void TstShellQueue::init()
{
    QFile::remove(Target::path(QStringLiteral("/var/log/ran")));
}

void TstShellQueue::commandsRunOneAfterTheOther()
{
    ShellQueue queue;
    queue.run(QStringLiteral("sleep 0.1; echo first >> /var/log/ran"));
    queue.run(QStringLiteral("/no/such/command"));
    queue.run(QStringLiteral("echo second >> /var/log/ran"));
    QVERIFY(ran().isEmpty());
    QTRY_COMPARE(ran(), QByteArrayList({ "first", "second" }));
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
    QTRY_COMPARE(ran(), QByteArrayList({ "joined", "left" }));
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
    int turns = 0;
    QTimer screen;
    connect(&screen, &QTimer::timeout, this, [&turns] { ++turns; });
    screen.start(10);
    queue.run(QStringLiteral("sleep 0.5; echo slow >> /var/log/ran"));
    QCOMPARE(turns, 0);
    QTRY_COMPARE(ran(), QByteArrayList({ "slow" }));
    QVERIFY2(turns >= 5, qPrintable(QString::number(turns)));
}

void TstShellQueue::commandsAreThoseOfTheDesk()
{
    ShellQueue queue;
    queue.run(QStringLiteral("udhcpc -i wlan0 > /dev/null 2>&1 &"));
    QFile noted(Target::path(QStringLiteral("/var/log/commands")));
    QTRY_VERIFY(noted.exists() && noted.size() > 0);
    QVERIFY(noted.open(QIODevice::ReadOnly));
    QCOMPARE(noted.readAll(), QByteArray("udhcpc -i wlan0\n"));
}

void TstShellQueue::commandThatReadsItsInputEnds()
{
    ShellQueue queue;
    queue.run(QStringLiteral("cat; echo read >> /var/log/ran"));
    QTRY_COMPARE(ran(), QByteArrayList({ "read" }));
}

void TstShellQueue::shellThatCannotBeStartedDoesNotHoldUpTheNext()
{
    constexpr int kTooLong = 300000; // for one argument of a program, which ends at 128 KiB
    ShellQueue queue;
    queue.run(QLatin1String("echo lost >> /var/log/ran #") + QString(kTooLong, QLatin1Char('x')));
    queue.run(QStringLiteral("echo first >> /var/log/ran"));
    queue.run(QStringLiteral("echo second >> /var/log/ran"));
    QTRY_COMPARE(ran(), QByteArrayList({ "first", "second" }));
}

QTEST_GUILESS_MAIN(TstShellQueue)
#include "tst_shellqueue.moc"
