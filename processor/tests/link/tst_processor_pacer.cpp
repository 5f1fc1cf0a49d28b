#include "scenario/pacer.h"

#include <QTest>

using scenario::Pacer;
using std::chrono::milliseconds;

/// When simulated time may go on: computed moments only, no waiting.
class TstProcessorPacer : public QObject
{
    Q_OBJECT

private slots:
    void momentsLieOnAnAbsoluteSchedule();
    void speedDividesTheWait();
    void speedChangeGoesOnFromThePresentMoment();
    void smallDelayIsMadeUpAndALargeOneMovesTheSchedule();
};

void TstProcessorPacer::momentsLieOnAnAbsoluteSchedule()
{
    const Pacer::Clock::time_point zero = Pacer::Clock::now();
    Pacer pacer;
    pacer.start(0.0, zero);
    // A late look does not move the next moment.
    QCOMPARE(pacer.wait(0.05, zero).count(), 50000000L);
    QCOMPARE(pacer.wait(0.05, zero + milliseconds(63)).count(), 0L);
    QVERIFY(qAbs(pacer.wait(0.10, zero + milliseconds(63)).count() - 37000000L) < 10);
    QVERIFY(qAbs(pacer.wait(3600.0, zero + milliseconds(3599999)).count() - 1000000L) < 1000);
    QCOMPARE(pacer.lateSeconds(), 0.0);
}

void TstProcessorPacer::speedDividesTheWait()
{
    const Pacer::Clock::time_point zero = Pacer::Clock::now();
    Pacer pacer(200.0);
    pacer.start(10.0, zero);
    QVERIFY(qAbs(pacer.wait(12.0, zero).count() - 10000000L) < 10); // 2 s at speed 200: 10 ms
}

void TstProcessorPacer::speedChangeGoesOnFromThePresentMoment()
{
    const Pacer::Clock::time_point zero = Pacer::Clock::now();
    Pacer pacer;
    pacer.start(0.0, zero);
    pacer.setSpeed(10.0, 5.0, zero + milliseconds(5000));
    QVERIFY(qAbs(pacer.wait(6.0, zero + milliseconds(5000)).count() - 100000000L) < 10);
}

void TstProcessorPacer::smallDelayIsMadeUpAndALargeOneMovesTheSchedule()
{
    const Pacer::Clock::time_point zero = Pacer::Clock::now();
    Pacer pacer;
    pacer.start(0.0, zero);
    QCOMPARE(pacer.wait(0.1, zero + milliseconds(500)).count(), 0L); // 0.4 s late
    QCOMPARE(pacer.lateSeconds(), 0.0);
    QCOMPARE(pacer.wait(0.1, zero + milliseconds(2100)).count(), 0L); // 2 s late
    QVERIFY(qAbs(pacer.lateSeconds() - 2.0) < 1e-6);
    QVERIFY(qAbs(pacer.wait(0.2, zero + milliseconds(2100)).count() - 100000000L) < 10);
}

QTEST_GUILESS_MAIN(TstProcessorPacer)
#include "tst_processor_pacer.moc"
