#include "task/functions/recordclocks.h"
#include "task/functions/waitingblocks.h"

#include <QTest>

#include <limits>

/// What ends an interval, and what notices that none does.
class TstRecordClocks : public QObject
{
    Q_OBJECT

private slots:
    void aLimitIsANumberOfNominalCycles_data();
    void aLimitIsANumberOfNominalCycles();
    void intervalsHoldTheAggregationsOfTheirCycles_data();
    void intervalsHoldTheAggregationsOfTheirCycles();
    void aDatagramMayComeTenMillisecondsEarly();
    void aLimitMayChangeInsideAnInterval();
    void aClockThatGoesBackProlongsNothing();
    void anyTimesAreTaken();
    void aFrequencyWindowKnowsItsExtremes();
    void theWatchdogFiresAfterThreeIntervalsWithoutAnEnd();
    void theTenthLossInARowIsAnInterruption();
    void waitingBlocksAreStoredInPiecesAndInOrder();
};

void TstRecordClocks::aLimitIsANumberOfNominalCycles_data()
{
    QTest::addColumn<int>("interval");
    QTest::addColumn<float>("frequency");
    QTest::addColumn<double>("nominal");
    QTest::addColumn<qint64>("limit");
    QTest::newRow("500 cycles at 50 Hz") << 10000 << 50.0f << 50.0 << qint64(10000);
    QTest::newRow("500 cycles at 49.5 Hz, cut off") << 10000 << 49.5f << 50.0 << qint64(10101);
    QTest::newRow("500 cycles at 50.5 Hz, cut off") << 10000 << 50.5f << 50.0 << qint64(9900);
    QTest::newRow("600 cycles at 60 Hz") << 10000 << 60.0f << 60.0 << qint64(10000);
    QTest::newRow("60 cycles at 57 Hz") << 1000 << 57.0f << 60.0 << qint64(1052);
    QTest::newRow("without a lock the sign is no matter") << 300000 << -49.5f << 50.0 << qint64(303030);
    QTest::newRow("400 Hz") << 3000 << 399.0f << 400.0 << qint64(3007);
    QTest::newRow("no frequency") << 10000 << 0.0f << 50.0 << qint64(10000);
    QTest::newRow("no number") << 10000 << std::numeric_limits<float>::quiet_NaN() << 50.0 << qint64(10000);
    QTest::newRow("endless") << 10000 << std::numeric_limits<float>::infinity() << 50.0 << qint64(10000);
}

void TstRecordClocks::aLimitIsANumberOfNominalCycles()
{
    QFETCH(int, interval);
    QFETCH(float, frequency);
    QFETCH(double, nominal);
    QTEST(intervalLimit(interval, frequency, nominal), "limit");
}

void TstRecordClocks::intervalsHoldTheAggregationsOfTheirCycles_data()
{
    QTest::addColumn<double>("frequency");
    QTest::addColumn<double>("nominal");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<int>("aggregations"); // of 10 cycles at 50 Hz, of 12 at 60 Hz
    for (const double frequency : { 50.0, 49.5, 50.4, 47.03 }) {
        QTest::addRow("1 s at %g Hz", frequency) << frequency << 50.0 << 1 << 5;
        QTest::addRow("10 s at %g Hz", frequency) << frequency << 50.0 << 10 << 50;
        QTest::addRow("300 s at %g Hz", frequency) << frequency << 50.0 << 300 << 1500;
    }
    for (const double frequency : { 60.0, 59.7 })
        QTest::addRow("10 s at %g Hz", frequency) << frequency << 60.0 << 10 << 50;
}

void TstRecordClocks::intervalsHoldTheAggregationsOfTheirCycles()
{
    QFETCH(double, frequency);
    QFETCH(double, nominal);
    QFETCH(int, seconds);
    QFETCH(int, aggregations);
    IntervalClock clock;
    clock.begin(intervalLimit(1000 * seconds, float(frequency), nominal));
    const double length = nominal / 5 / frequency * 1000; // ms
    constexpr double kStart = 1.7e12;
    QVERIFY(!clock.take(qint64(kStart)));
    int since = 0;
    for (int i = 1; i <= 5 * aggregations; ++i) {
        ++since;
        if (!clock.take(qint64(kStart + i * length)))
            continue;
        QCOMPARE(since, aggregations);
        since = 0;
    }
    QCOMPARE(since, 0);
}

void TstRecordClocks::aDatagramMayComeTenMillisecondsEarly()
{
    IntervalClock clock;
    clock.begin(1000);
    QVERIFY(!clock.take(5000));
    QVERIFY(!clock.take(5989));
    QVERIFY(clock.take(5990));
    QVERIFY(!clock.take(6979)); // the next one is counted from there
    QVERIFY(clock.take(6980));
}

void TstRecordClocks::aLimitMayChangeInsideAnInterval()
{
    IntervalClock clock;
    clock.begin(1000);
    clock.take(0);
    clock.setLimit(2000);
    QVERIFY(!clock.take(1500));
    QVERIFY(clock.take(1990));
}

void TstRecordClocks::aClockThatGoesBackProlongsNothing()
{
    IntervalClock clock;
    clock.begin(1000);
    clock.take(100'000);
    QVERIFY(!clock.take(100'600));
    QVERIFY(!clock.take(50'000)); // set back: this step counts nothing
    QVERIFY(!clock.take(50'200));
    QVERIFY(clock.take(50'400));
}

void TstRecordClocks::anyTimesAreTaken()
{
    constexpr qint64 kLeast = std::numeric_limits<qint64>::min(), kMost = std::numeric_limits<qint64>::max();
    IntervalClock clock;
    clock.begin(1000);
    QVERIFY(!clock.take(kLeast));
    QVERIFY(clock.take(kMost));
    QVERIFY(!clock.take(kLeast));
    QVERIFY(!clock.take(kLeast + 500));
    QVERIFY(clock.take(kLeast + 1000));
}

void TstRecordClocks::aFrequencyWindowKnowsItsExtremes()
{
    FrequencyWindow window;
    QCOMPARE(window.mean(), 0.0f);
    for (const float frequency : { 50.0f, 50.2f, 49.9f })
        window.take(frequency);
    QVERIFY(qAbs(double(window.mean()) - 150.1 / 3) < 1e-5);
    QCOMPARE(window.maximum, 50.2f);
    QCOMPARE(window.minimum, 49.9f);
    window.clear();
    window.take(-1.0f);
    QCOMPARE(window.maximum, -1.0f);
    QCOMPARE(window.minimum, -1.0f);
    QCOMPARE(window.count, 1);
}

void TstRecordClocks::theWatchdogFiresAfterThreeIntervalsWithoutAnEnd()
{
    qint64 now = 1000;
    RecordWatchdog watchdog([&now] { return now; });
    QCOMPARE(watchdog.check(), RecordWatchdog::Nothing); // stopped
    watchdog.begin(10);
    now += 29'999;
    QCOMPARE(watchdog.check(), RecordWatchdog::Nothing);
    now += 1;
    QCOMPARE(watchdog.check(), RecordWatchdog::Lost);
    QCOMPARE(watchdog.check(), RecordWatchdog::Nothing);
    now += 20'000;
    watchdog.restart();
    now += 29'999;
    QCOMPARE(watchdog.check(), RecordWatchdog::Nothing);
    now += 1;
    QCOMPARE(watchdog.check(), RecordWatchdog::Lost);
    watchdog.stop();
    now += 100'000;
    QCOMPARE(watchdog.check(), RecordWatchdog::Nothing);
}

void TstRecordClocks::theTenthLossInARowIsAnInterruption()
{
    qint64 now = 0;
    RecordWatchdog watchdog([&now] { return now; });
    watchdog.begin(300);
    const auto next = [&] {
        now += 900'000;
        return watchdog.check();
    };
    for (int i = 1; i <= 9; ++i)
        QCOMPARE(next(), RecordWatchdog::Lost);
    watchdog.restart(); // an interval ended: the row begins anew
    for (int i = 1; i <= 9; ++i)
        QCOMPARE(next(), RecordWatchdog::Lost);
    QVERIFY(watchdog.isRunning());
    QCOMPARE(next(), RecordWatchdog::Interrupted);
    QVERIFY(!watchdog.isRunning());
    QCOMPARE(next(), RecordWatchdog::Nothing);
    watchdog.restart(); // an interval ended after all
    QVERIFY(watchdog.isRunning());
    QCOMPARE(next(), RecordWatchdog::Lost);
}

void TstRecordClocks::waitingBlocksAreStoredInPiecesAndInOrder()
{
    WaitingBlocks waiting;
    constexpr int kBlocks = 100;
    for (int i = 0; i < kBlocks; ++i)
        waiting.append(quint32(i), [i] { return QByteArray(100'000, char(i)); });
    int stored = 0, slices = 0;
    const auto store = [&stored](quint32 type, const QByteArray &payload) {
        QCOMPARE(int(type), stored);
        QCOMPARE(payload, QByteArray(100'000, char(stored)));
        ++stored;
    };
    while (!waiting.isEmpty()) {
        const int before = stored;
        waiting.storeSlice(store);
        QVERIFY(stored > before && stored - before <= 11); // no more than reach a megabyte
        ++slices;
    }
    QCOMPARE(stored, kBlocks);
    QVERIFY(slices >= 10);
    waiting.append(7, [] { return QByteArray("x"); });
    waiting.clear();
    waiting.storeAll(store);
    QCOMPARE(stored, kBlocks);
}

QTEST_GUILESS_MAIN(TstRecordClocks)
#include "tst_recordclocks.moc"
