// Clocks that are set and a processor that is silent, in the middle of runs of recorder and monitor; and long runs.
#include <QTest>

#include "endlessdevice.h"
#include "monitorrun.h"
#include "recorderrun.h"

#include <malloc.h>

namespace {

constexpr qint64 kHourMs = 3'600'000;
constexpr qint64 kTenYearsMs = 10 * 365 * 24 * kHourMs;
constexpr int kPerSecond = 5; // aggregations at 50 Hz

/// So many seconds of a recording.
void record(RecorderRun &run, int seconds)
{
    for (int second = 0; second < seconds; ++second) {
        run.take(kPerSecond, 200);
        for (int tenth = 0; tenth < 10; ++tenth)
            run.recorder().beat();
    }
}

/// So many seconds in which nothing comes.
void beSilent(RecorderRun &run, int seconds)
{
    for (int tenth = 0; tenth < 10 * seconds; ++tenth) {
        Clock::advance(100);
        run.recorder().beat();
    }
    run.record->time += 1000 * seconds;
}

/// A recorder of intervals of a second.
void beginSeconds(RecorderRun &run, quint32 items)
{
    m_userConfig_g.setTimeZone(QStringLiteral("UTC"));
    RecordInfo::m_interval_index = 0;
    QCOMPARE(RecordInfo::m_record_interval[0], 1);
    RecordInfo::m_recordItems = items;
    run.recorder().start();
}

} // namespace

class TstRecordedTrouble : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Clock::useSystem(); }
    void recordingGoesOnWhenTheClockIsSet_data() { steps(); }
    void recordingGoesOnWhenTheClockIsSet();
    void monitorGoesOnWhenTheClockIsSet_data() { steps(); }
    void monitorGoesOnWhenTheClockIsSet();
    void silentProcessorIsLoggedAndTheNextIntervalFollows();
    void hoursOfEverythingTakeNoMoreThanTheFirst();

private:
    static void steps()
    {
        QTest::addColumn<qint64>("step");
        QTest::newRow("an hour on") << kHourMs;
        QTest::newRow("an hour back") << -kHourMs;
        QTest::newRow("ten years on") << kTenYearsMs;
        QTest::newRow("ten years back") << -kTenYearsMs;
    }
};

void TstRecordedTrouble::recordingGoesOnWhenTheClockIsSet()
{
    QFETCH(qint64, step);
    RecorderRun run;
    beginSeconds(run, RecordInfo::CommonRms);
    record(run, 10);
    Clock::setForTest(Clock::msecs() + step);
    run.record->time += step;
    record(run, 10);
    const qint64 last = run.record->time;
    run.recorder().stop(Keep::Data);
    RootFiles::waitForDisks();
    // 19.8 s lie between the first and the last of 100 aggregations: 19 intervals and a part of one. An hour that the
    // clock leaps ends the one under way, at once.
    const QList<ReadBlock> means = run.blocks(0xA1000020);
    QCOMPARE(means.size(), 20);
    QCOMPARE(valueAt<qint64>(means[8].payload, 0), RecorderRun::kStart + 9200);
    QVERIFY(std::abs(valueAt<qint64>(means[18].payload, 0) - last) < 1000);
    QCOMPARE(run.blocks(Pqa2EndTime).size(), 1);
    QVERIFY(run.log().isEmpty()); // nothing was lost
}

void TstRecordedTrouble::monitorGoesOnWhenTheClockIsSet()
{
    QFETCH(qint64, step);
    MonitorCase::beginCase();
    MonitorCase::Run run;
    const auto supply = MonitorCase::distortedSupply();
    run.begin();
    run.pass(600, supply.get());
    Clock::setForTest(Clock::msecs() + step);
    run.pass(600, supply.get());
    run.end();
    RootFiles::waitForDisks();
    QList<quint32> times;
    QList<quint32> voltages;
    for (const ReadBlock &block : MonitorCase::Run::blocks()) {
        if (block.type == Pqa2MonitorFrequency)
            times << MonitorCase::secondsOf(block);
        else if (block.type == Pqa2MonitorVoltage)
            voltages << MonitorCase::secondsOf(block);
    }
    const quint32 begin = MonitorCase::kBegin / 1000;
    const quint32 set = quint32(qint64(begin) + step / 1000);
    QCOMPARE(times.size(), 120);
    QCOMPARE(times.first(), begin + 10);
    QCOMPARE(times[59], begin + 600);
    QCOMPARE(times[60], set + 610);
    QCOMPARE(voltages, QList<quint32>({ begin + 600, set + 1200 }));
    MonitorCase::endCase();
}

void TstRecordedTrouble::silentProcessorIsLoggedAndTheNextIntervalFollows()
{
    RecorderRun run;
    beginSeconds(run, RecordInfo::CommonRms);
    record(run, 10);
    beSilent(run, 60);
    const qint64 back = run.record->time;
    record(run, 10);
    // Every three seconds, ten times.
    QByteArrayList expected;
    for (int i = 0; i < 10; ++i)
        expected << "Lost some data!";
    expected << "Communication Interrupted!";
    QCOMPARE(run.log(), expected);
    const QList<ReadBlock> means = run.blocks(0xA1000020);
    QCOMPARE(means.size(), 19); // 9, the one that the silence cut, 9
    QCOMPARE(valueAt<qint64>(means[9].payload, 0), back + 200);
    QCOMPARE(valueAt<qint64>(means[10].payload, 0), back + 1200);
    beSilent(run, 4); // it watches again
    QCOMPARE(run.log(), expected << "Lost some data!");
    run.recorder().stop(Keep::Data);
    RootFiles::waitForDisks();
    QCOMPARE(run.blocks(Pqa2EndTime).size(), 1);
}

void TstRecordedTrouble::hoursOfEverythingTakeNoMoreThanTheFirst()
{
    constexpr int kIntervals = 3600; // of a second; measured beside each other
    RecorderRun run([] { return std::make_unique<EndlessDevice>(); });
    beginSeconds(run, 0xFFFF);
    EndlessCounts counts;
    std::size_t memory = 0;
    const auto pass = [&] {
        counts = EndlessDevice::s_counts;
        for (int interval = 0; interval < kIntervals; ++interval) {
            run.take(1000);
            run.recorder().beat();
        }
        counts = EndlessDevice::s_counts - counts;
        memory = ::mallinfo2().uordblks;
    };
    pass();
    pass();
    const EndlessCounts first = counts;
    const std::size_t firstMemory = memory;
    for (int hour = 3; hour <= 12; ++hour)
        pass();
    QVERIFY(first.bytes > qint64(kIntervals) * 9 * 1000); // nine files
    QVERIFY(counts == first);
    QVERIFY2(memory < firstMemory + 64 * 1024, qPrintable(QString::number(qint64(memory) - qint64(firstMemory))));
    run.recorder().stop(Keep::Data);
}

QTEST_GUILESS_MAIN(TstRecordedTrouble)
#include "tst_recordedtrouble.moc"
