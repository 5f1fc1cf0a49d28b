#include "platform/clock.h"
#include "task/abstracttask.h"
#include "task/clockstep.h"

#include <QSignalSpy>
#include <QTest>

#include <limits>

namespace {

constexpr qint64 kNow = 1'700'000'000; // s
constexpr qint64 kHour = 3600;
constexpr qint64 kTenYears = 10 * 365 * 24 * kHour;

class PlainTask : public AbstractTask
{
public:
    QString getTaskName() override { return QStringLiteral("Plain"); }
    void save(bool) override { }
    void updatedata() override { }
};

/// What the task was doing when the clock was set.
enum Moment { Waiting, Running, Paused };

/// The clock is set, as a correction by the processor's time does it; no time passes.
void setClockOn(qint64 seconds)
{
    Clock::setForTest(Clock::msecs() + 1000 * seconds);
}

/// Lets time pass in ticks of a second.
void pass(AbstractTask &task, int seconds)
{
    for (int i = 0; i < seconds; ++i) {
        Clock::advance(1000);
        task.baseTimerTimeout();
    }
}

void stepRows()
{
    QTest::addColumn<qint64>("step");
    QTest::newRow("an hour on") << kHour;
    QTest::newRow("an hour back") << -kHour;
    QTest::newRow("ten years on") << kTenYears;
    QTest::newRow("ten years back") << -kTenYears;
}

} // namespace

/// Runs and recordings when a wrong clock is corrected under them.
class TstClockSteps : public QObject
{
    Q_OBJECT

private slots:
    void init() { Clock::setForTest(kNow * 1000 + 400); }
    void cleanup() { Clock::useSystem(); }

    void runAtOnceLastsAsLongAsAsked_data();
    void runAtOnceLastsAsLongAsAsked();
    void longestRunOutlivesTenYears();
    void plannedRunKeepsItsTime_data();
    void plannedRunKeepsItsTime();
    void plannedRunBeginsWhenTheClockPassesItsTime();
    void recordingAtOnceFollowsTheProcessor_data() { stepRows(); }
    void recordingAtOnceFollowsTheProcessor();
    void recordingAtOnceLastsWhenTheProcessorsClockIsSet_data() { stepRows(); }
    void recordingAtOnceLastsWhenTheProcessorsClockIsSet();
    void plannedRecordingKeepsItsTime();
    void valuesThatWaitedAreNoStep();
    void anyNumberIsAStamp();
};

void TstClockSteps::runAtOnceLastsAsLongAsAsked_data()
{
    QTest::addColumn<qint64>("step");
    QTest::addColumn<int>("moment");
    const std::pair<const char *, qint64> steps[] = { { "an hour on", kHour },
                                                      { "an hour back", -kHour },
                                                      { "ten years on", kTenYears },
                                                      { "ten years back", -kTenYears } };
    const std::pair<const char *, int> moments[]
        = { { "waiting", Waiting }, { "running", Running }, { "paused", Paused } };
    for (const auto &step : steps) {
        for (const auto &moment : moments)
            QTest::addRow("%s while %s", step.first, moment.first) << step.second << moment.second;
    }
}

void TstClockSteps::runAtOnceLastsAsLongAsAsked()
{
    QFETCH(qint64, step);
    QFETCH(int, moment);
    PlainTask task;
    task.setTaskLifeCycle(0, 60); // from 10 s from now to 70 s from now
    task.preStartTask();
    QStringList texts;
    connect(&task, &AbstractTask::stopWatchChanged, this, [&](const QString &text) { texts << text; });
    QSignalSpy ran(&task, QOverload<quint32>::of(&AbstractTask::taskStoped));

    const int before = moment == Waiting ? 5 : 25;
    pass(task, before);
    if (moment == Paused)
        task.pauseTask();
    QCOMPARE(texts.last(), moment == Waiting ? QStringLiteral("-00:00:05") : QStringLiteral("00:00:15"));
    setClockOn(step);
    task.baseTimerTimeout();
    QCOMPARE(texts.last(), moment == Waiting ? QStringLiteral("-00:00:05") : QStringLiteral("00:00:15"));
    QCOMPARE(task.isTaskRunning(), moment == Running);
    QCOMPARE(task.isTaskPaused(), moment == Paused);

    pass(task, 69 - before);
    QVERIFY(!task.isTaskStoped());
    QCOMPARE(texts.last(), QStringLiteral("00:00:59"));
    pass(task, 1);
    QVERIFY(task.isTaskStoped());
    QCOMPARE(texts.last(), QStringLiteral("00:01:00"));
    QCOMPARE(ran.at(0).at(0).toUInt(), 60u);
}

void TstClockSteps::longestRunOutlivesTenYears()
{
    // The longest run is 1000 days: a board whose clock was lost used to stop measuring at its first correction.
    PlainTask task;
    task.setTaskLifeCycle(0, -1);
    task.preStartTask();
    pass(task, 12);
    QVERIFY(task.isTaskRunning());
    setClockOn(kTenYears);
    pass(task, 2);
    QVERIFY(task.isTaskRunning());
}

void TstClockSteps::plannedRunKeepsItsTime_data()
{
    QTest::addColumn<qint64>("step");
    QTest::addColumn<int>("passed"); // s before the clock is set
    QTest::addColumn<bool>("begins");
    QTest::addColumn<bool>("ends");
    // Planned from two hours to three hours from now.
    QTest::newRow("waiting, an hour on: it waits on") << kHour << 100 << false << false;
    QTest::newRow("waiting, an hour back: it waits on") << -kHour << 100 << false << false;
    QTest::newRow("waiting, two hours on: it begins") << 2 * kHour << 100 << true << false;
    QTest::newRow("waiting, ten years on: its time is over") << kTenYears << 100 << true << true;
    QTest::newRow("waiting, ten years back: it waits on") << -kTenYears << 100 << false << false;
    QTest::newRow("running, an hour on: its time is over") << kHour << 7300 << true << true;
    QTest::newRow("running, an hour back: it runs on") << -kHour << 7300 << true << false;
    QTest::newRow("running, ten years on: its time is over") << kTenYears << 7300 << true << true;
    QTest::newRow("running, ten years back: it runs on") << -kTenYears << 7300 << true << false;
}

void TstClockSteps::plannedRunKeepsItsTime()
{
    QFETCH(qint64, step);
    QFETCH(int, passed);
    PlainTask task;
    task.setTaskLifeCycle(kNow + 2 * kHour, kHour);
    task.preStartTask();
    QSignalSpy started(&task, &AbstractTask::taskStarted);
    Clock::advance(1000 * qint64(passed));
    task.baseTimerTimeout();
    setClockOn(step);
    task.baseTimerTimeout();
    QTEST(started.count() == 1, "begins");
    QTEST(task.isTaskStoped(), "ends");
    if (task.isTaskStoped())
        return;
    Clock::setForTest((kNow + 3 * kHour) * 1000 - 1);
    task.baseTimerTimeout();
    QVERIFY(task.isTaskRunning());
    Clock::setForTest((kNow + 3 * kHour) * 1000);
    task.baseTimerTimeout();
    QVERIFY(task.isTaskStoped());
}

void TstClockSteps::plannedRunBeginsWhenTheClockPassesItsTime()
{
    PlainTask task;
    task.setTaskLifeCycle(kNow + 2 * kHour, kHour);
    task.preStartTask();
    setClockOn(-kHour);
    Clock::advance(1000 * (3 * kHour - 1));
    task.baseTimerTimeout();
    QVERIFY(!task.isTaskRunning());
    Clock::advance(1000);
    task.baseTimerTimeout();
    QVERIFY(task.isTaskRunning());
}

void TstClockSteps::recordingAtOnceFollowsTheProcessor()
{
    // The processor's clock is right and ours is not: the window opens ten seconds from now all the same.
    QFETCH(qint64, step);
    const qint64 processor = (kNow + step) * 1000 + 400;
    PlainTask task;
    task.setTaskLifeCycle(0, -1);
    task.setRecordLifeCycle(0, 30);
    task.preStartTask();
    task.enableRecord();
    int recorded = 0;
    for (int s = 0; s < 60; ++s) {
        if (s == 4)
            setClockOn(step); // the correction
        if (task.isTaskRunning())
            task.recordTimer(quint64(processor + 1000 * s));
        else
            task.startRecordTimer(quint64(processor + 1000 * s));
        QCOMPARE(task.isRecording(), s >= 10 && s <= 39);
        recorded += task.isRecording();
        Clock::advance(1000);
    }
    QCOMPARE(recorded, 30);
}

void TstClockSteps::recordingAtOnceLastsWhenTheProcessorsClockIsSet()
{
    QFETCH(qint64, step);
    PlainTask task;
    task.setTaskLifeCycle(0, -1);
    task.setRecordLifeCycle(0, 30);
    task.preStartTask();
    task.enableRecord();
    QStringList texts;
    connect(&task, &AbstractTask::recordTimeChanged, this, [&](const QString &text) { texts << text; });
    qint64 processor = kNow * 1000 + 400;
    for (int s = 0; s < 60; ++s) {
        if (s == 20)
            processor += 1000 * step;
        if (task.isTaskRunning())
            task.recordTimer(quint64(processor));
        else
            task.startRecordTimer(quint64(processor));
        QCOMPARE(task.isRecording(), s >= 10 && s <= 39);
        if (s == 21)
            QCOMPARE(texts.last(), QStringLiteral("00:00:11"));
        Clock::advance(1000);
        processor += 1000;
    }
}

void TstClockSteps::plannedRecordingKeepsItsTime()
{
    PlainTask task;
    task.setRecordLifeCycle(kNow + 2 * kHour, 30);
    task.enableRecord();
    task.startRecordTimer(quint64(kNow + kHour) * 1000); // the processor's clock is an hour ahead
    QVERIFY(!task.isRecording());
    task.startRecordTimer(quint64(kNow + 2 * kHour) * 1000);
    QVERIFY(task.isRecording());
    task.recordTimer(quint64(kNow - kTenYears) * 1000);
    QVERIFY(task.isRecording());
    task.recordTimer(quint64(kNow + 2 * kHour + 31) * 1000);
    QVERIFY(!task.isRecording());
}

void TstClockSteps::valuesThatWaitedAreNoStep()
{
    ClockStep clock;
    clock.begin(1000, 50);
    QCOMPARE(clock.take(1200, 250), qint64(0));
    QCOMPARE(clock.take(1400, 10'250), qint64(0)); // it waited for ten seconds ...
    for (int i = 1; i <= 49; ++i)
        QCOMPARE(clock.take(1400 + 200 * i, 10'250), qint64(0)); // ... and so did the next ones
    QCOMPARE(clock.take(11'400 + 2000, 10'450), qint64(0)); // within the tolerance
    QCOMPARE(clock.take(13'400 + 2201, 10'650), qint64(2001)); // beyond it
    QCOMPARE(clock.take(13'601, 10'850), qint64(0)); // 2000 ms back
    QCOMPARE(clock.take(11'600, 11'050), qint64(-2201)); // 2001 ms back while 200 ms passed
}

void TstClockSteps::anyNumberIsAStamp()
{
    PlainTask task;
    task.setRecordLifeCycle(0, 30);
    task.enableRecord();
    for (quint64 stamp :
         { std::numeric_limits<quint64>::max(), quint64(0), quint64(1) << 63, (quint64(1) << 63) - 1 }) {
        task.startRecordTimer(stamp);
        task.recordTimer(stamp);
    }
    QVERIFY(task.recordLife() == 30'000);
}

QTEST_GUILESS_MAIN(TstClockSteps)
#include "tst_clocksteps.moc"
