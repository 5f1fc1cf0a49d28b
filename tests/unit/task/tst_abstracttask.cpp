#include "platform/clock.h"
#include "task/abstracttask.h"

#include <QSignalSpy>
#include <QTest>

namespace {

constexpr qint64 kNow = 1'700'000'000; // s

class PlainTask : public AbstractTask
{
public:
    QString getTaskName() override { return QStringLiteral("Plain"); }
    void save(bool) override { }
    void updatedata() override { ++updates; }
    int updates = 0;
};

} // namespace

class TstAbstractTask : public QObject
{
    Q_OBJECT

private slots:
    void init() { Clock::setForTest(kNow * 1000); }
    void cleanup() { Clock::useSystem(); }

    void requestIntervalIsAtLeast200();
    void lifeCycleWithoutStartBeginsInTenSeconds();
    void lifeCycleKeepsTheCurrentSecondAsStart();
    void lifeCycleWithPastStartBeginsInTenSeconds();
    void lifeCycleBoundsTheDuration_data();
    void lifeCycleBoundsTheDuration();
    void lifeCycleIsRefusedWhileWaitingOrRunning();
    void lifeCycleMayChangeWhilePausedOrStopped();
    void preStartAsksForDataInItsFixedOrder();
    void pauseOnlyWhileRunningAndContinueOnlyWhilePaused();
    void stopTwiceEmitsOnce();
    void stoppedTaskDoesNotStartAgain();
    void taskStoppedBeforeItsStartCarriesZero();
    void stopTellsTheRunTime();
    void stopWatchText_data();
    void stopWatchText();
    void baseTickCountsDownStartsAndEndsAtTheLifeCycle();
    void dataTimerRunsOnlyAfterTheStart();
    void recordWindowFollowsTheProcessorsTime();
    void recordWindowInThePastBeginsInTenSeconds();
    void recordClockDoesNothingWhenNotEnabled();
    void stopClosesAnArmedRecordingWindow();
};

void TstAbstractTask::requestIntervalIsAtLeast200()
{
    PlainTask task;
    task.setTaskType(3, 199);
    QCOMPARE(task.taskInterval(), 200);
    task.setTaskType(3, 200);
    QCOMPARE(task.taskInterval(), 200);
    task.setTaskType(3, 1000);
    QCOMPARE(task.taskInterval(), 1000);
    QCOMPARE(task.taskType(), 3);
}

void TstAbstractTask::lifeCycleWithoutStartBeginsInTenSeconds()
{
    PlainTask task;
    task.setTaskLifeCycle(0, 0);
    QCOMPARE(task.startTime(), quint32(kNow + 10));
    QCOMPARE(task.endTime(), quint32(kNow + 10 + 86400000));
    QCOMPARE(task.lifeCycle(), 86400000);
}

void TstAbstractTask::lifeCycleKeepsTheCurrentSecondAsStart()
{
    PlainTask task;
    task.setTaskLifeCycle(kNow, 5);
    QCOMPARE(task.startTime(), quint32(kNow));
    QCOMPARE(task.endTime(), quint32(kNow + 5));
}

void TstAbstractTask::lifeCycleWithPastStartBeginsInTenSeconds()
{
    PlainTask task;
    task.setTaskLifeCycle(kNow - 1, 5);
    QCOMPARE(task.startTime(), quint32(kNow + 10));
    QCOMPARE(task.endTime(), quint32(kNow + 15));
}

void TstAbstractTask::lifeCycleBoundsTheDuration_data()
{
    QTest::addColumn<int>("life");
    QTest::addColumn<int>("kept");
    QTest::newRow("none") << 0 << 86400000;
    QTest::newRow("negative") << -1 << 86400000;
    QTest::newRow("shortest") << 1 << 1;
    QTest::newRow("longest") << 86400000 << 86400000;
    QTest::newRow("too long") << 86400001 << 86400000;
}

void TstAbstractTask::lifeCycleBoundsTheDuration()
{
    QFETCH(int, life);
    QFETCH(int, kept);
    PlainTask task;
    task.setTaskLifeCycle(kNow + 100, life);
    QCOMPARE(task.lifeCycle(), kept);
    QCOMPARE(task.endTime(), quint32(kNow + 100 + kept));
}

void TstAbstractTask::lifeCycleIsRefusedWhileWaitingOrRunning()
{
    PlainTask task;
    task.setTaskLifeCycle(kNow + 20, 30);
    task.preStartTask();
    task.setTaskLifeCycle(kNow + 40, 50);
    QCOMPARE(task.startTime(), quint32(kNow + 20));
    task.startTask();
    QVERIFY(task.isTaskRunning());
    task.setTaskLifeCycle(kNow + 40, 50);
    QCOMPARE(task.endTime(), quint32(kNow + 50));
}

void TstAbstractTask::lifeCycleMayChangeWhilePausedOrStopped()
{
    PlainTask task;
    task.startTask();
    task.pauseTask();
    task.setTaskLifeCycle(kNow + 40, 50);
    QCOMPARE(task.startTime(), quint32(kNow + 40));
    task.stopTask();
    task.setTaskLifeCycle(kNow + 60, 1);
    QCOMPARE(task.startTime(), quint32(kNow + 60));
}

void TstAbstractTask::preStartAsksForDataInItsFixedOrder()
{
    PlainTask task;
    task.setTaskType(7, 1000);
    task.setTaskLifeCycle(0, -1);
    QStringList order;
    connect(&task, &AbstractTask::requestDSPData, this,
            [&](int type, int interval) { order << QStringLiteral("request %1 %2").arg(type).arg(interval); });
    connect(&task, &AbstractTask::init_param, this, [&] { order << QStringLiteral("init"); });
    connect(&task, &AbstractTask::stopWatchChanged, this, [&](const QString &text) { order << text; });
    task.preStartTask();
    QCOMPARE(order, QStringList({ "request 7 150", "init", "--:--:--" }));
    QVERIFY(!task.isTaskRunning() && !task.isTaskPaused() && !task.isTaskStoped());
}

void TstAbstractTask::pauseOnlyWhileRunningAndContinueOnlyWhilePaused()
{
    PlainTask task;
    QSignalSpy paused(&task, &AbstractTask::taskPaused);
    QSignalSpy continued(&task, &AbstractTask::taskContinued);
    task.pauseTask();
    task.continueTask();
    QCOMPARE(paused.count() + continued.count(), 0);
    task.startTask();
    task.continueTask();
    QCOMPARE(continued.count(), 0);
    task.pauseTask();
    task.pauseTask();
    QVERIFY(task.isTaskPaused());
    QCOMPARE(paused.count(), 1);
    task.continueTask();
    QVERIFY(task.isTaskRunning());
    QCOMPARE(continued.count(), 1);
}

void TstAbstractTask::stopTwiceEmitsOnce()
{
    PlainTask task;
    task.startTask();
    QSignalSpy stopped(&task, QOverload<>::of(&AbstractTask::taskStoped));
    QSignalSpy stoppedAfter(&task, QOverload<quint32>::of(&AbstractTask::taskStoped));
    QSignalSpy request(&task, &AbstractTask::requestDSPData);
    task.stopTask();
    task.stopTask();
    QCOMPARE(stopped.count(), 1);
    QCOMPARE(stoppedAfter.count(), 1);
    QCOMPARE(request.count(), 1);
    QCOMPARE(request[0][0].toInt(), 0);
    QCOMPARE(request[0][1].toInt(), 100);
}

void TstAbstractTask::stoppedTaskDoesNotStartAgain()
{
    PlainTask task;
    task.startTask();
    task.stopTask();
    QSignalSpy started(&task, &AbstractTask::taskStarted);
    task.startTask();
    QVERIFY(task.isTaskStoped());
    QCOMPARE(started.count(), 0);
}

void TstAbstractTask::taskStoppedBeforeItsStartCarriesZero()
{
    PlainTask task;
    task.setTaskLifeCycle(kNow + 100, 10);
    task.preStartTask();
    QSignalSpy stopped(&task, QOverload<quint32>::of(&AbstractTask::taskStoped));
    task.stopTask();
    QCOMPARE(stopped[0][0].toUInt(), 0u);
}

void TstAbstractTask::stopTellsTheRunTime()
{
    PlainTask task;
    task.setTaskLifeCycle(kNow, 100);
    task.preStartTask();
    Clock::advance(42'000);
    QSignalSpy stopped(&task, QOverload<quint32>::of(&AbstractTask::taskStoped));
    task.stopTask();
    QCOMPARE(stopped[0][0].toUInt(), 42u);
}

void TstAbstractTask::stopWatchText_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("start") << qint64(0) << "-00:00:00";
    QTest::newRow("first second") << qint64(1) << "00:00:01";
    QTest::newRow("countdown") << qint64(-9) << "-00:00:09";
    QTest::newRow("long countdown") << qint64(-3725) << "-01:02:05";
    QTest::newRow("hours without bound") << qint64(360000) << "100:00:00";
}

void TstAbstractTask::stopWatchText()
{
    QFETCH(qint64, seconds);
    QFETCH(QString, text);
    QCOMPARE(AbstractTask::stopWatchText(seconds), text);
}

void TstAbstractTask::baseTickCountsDownStartsAndEndsAtTheLifeCycle()
{
    PlainTask task;
    task.setTaskLifeCycle(kNow + 2, 3);
    task.preStartTask();
    QStringList texts;
    connect(&task, &AbstractTask::stopWatchChanged, this, [&](const QString &text) { texts << text; });
    for (int i = 0; i < 7; ++i) {
        task.baseTimerTimeout();
        task.baseTimerTimeout(); // the same second is not shown twice
        if (!task.isTaskStoped())
            Clock::advance(1000);
    }
    QCOMPARE(texts, QStringList({ "-00:00:02", "-00:00:01", "-00:00:00", "00:00:01", "00:00:02", "00:00:03" }));
    QVERIFY(task.isTaskStoped());
    QCOMPARE(Clock::seconds(), kNow + 5); // in the second of its end, not behind it
}

void TstAbstractTask::dataTimerRunsOnlyAfterTheStart()
{
    PlainTask task;
    task.setTaskLifeCycle(kNow + 1000, 1000);
    task.preStartTask();
    QSignalSpy started(&task, &AbstractTask::taskStarted);
    QCOMPARE(task.updates, 0);
    task.startTask();
    QCOMPARE(started.count(), 1);
    QTRY_VERIFY(task.updates >= 1);
    task.stopTask();
    const int updates = task.updates;
    QCoreApplication::processEvents();
    QCOMPARE(task.updates, updates);
}

void TstAbstractTask::recordWindowFollowsTheProcessorsTime()
{
    PlainTask task;
    QStringList texts;
    connect(&task, &AbstractTask::recordTimeChanged, this, [&](const QString &text) { texts << text; });
    task.setTaskLifeCycle(kNow + 1000, 1000);
    task.setRecordLifeCycle(kNow + 20, 3);
    QCOMPARE(task.recordStart(), (kNow + 20) * 1000);
    QCOMPARE(task.recordLife(), qint64(3000));
    QCOMPARE(task.recordEnd(), (kNow + 23) * 1000 + 100);
    QCOMPARE(texts, QStringList({ "-00:00:00" }));
    texts.clear();

    task.preStartTask();
    task.enableRecord();
    QSignalSpy begun(&task, &AbstractTask::recordingStarted);
    QSignalSpy ended(&task, &AbstractTask::recordingStoped);
    task.startRecordTimer(quint64((kNow + 18) * 1000));
    QCOMPARE(texts, QStringList({ "-00:00:02" }));
    QVERIFY(!task.isRecording());

    task.startRecordTimer(quint64((kNow + 20) * 1000));
    QVERIFY(task.isRecording());
    QVERIFY(task.isTaskRunning());
    QCOMPARE(begun.count(), 1);

    texts.clear();
    task.recordTimer(quint64((kNow + 22) * 1000 + 900));
    QCOMPARE(texts, QStringList({ "00:00:02" }));
    task.recordTimer(quint64((kNow + 23) * 1000 + 99)); // the window is open to its end and 100 ms
    QVERIFY(task.isRecording());
    task.recordTimer(quint64((kNow + 23) * 1000 + 100));
    QVERIFY(!task.isRecording());
    QVERIFY(!task.recordEnabled());
    QCOMPARE(ended.count(), 1);
    QCOMPARE(texts.last(), QStringLiteral("00:00:03"));
}

void TstAbstractTask::recordWindowInThePastBeginsInTenSeconds()
{
    PlainTask task;
    task.setRecordLifeCycle(kNow - 1, 0);
    QCOMPARE(task.recordStart(), (kNow + 10) * 1000);
    QCOMPARE(task.recordLife(), qint64(86400000) * 1000);
    task.setRecordLifeCycle(kNow, 1);
    QCOMPARE(task.recordStart(), kNow * 1000);
}

void TstAbstractTask::recordClockDoesNothingWhenNotEnabled()
{
    PlainTask task;
    task.setRecordLifeCycle(kNow, 10);
    QSignalSpy texts(&task, &AbstractTask::recordTimeChanged);
    task.startRecordTimer(quint64((kNow + 1) * 1000));
    task.recordTimer(quint64((kNow + 2) * 1000));
    QVERIFY(!task.isRecording());
    QCOMPARE(texts.count(), 0);
}

void TstAbstractTask::stopClosesAnArmedRecordingWindow()
{
    PlainTask task;
    task.startTask();
    task.enableRecord();
    QSignalSpy ended(&task, &AbstractTask::recordingStoped);
    task.stopTask();
    QCOMPARE(ended.count(), 1);
    QVERIFY(!task.recordEnabled());
}

QTEST_GUILESS_MAIN(TstAbstractTask)
#include "tst_abstracttask.moc"
