#include <QTest>

#include "platform/clock.h"

/// The clock that every stamp and plan comes from.
class TstClock : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Clock::useSystem(); }

    void aHeldClockStandsStillUntilItIsMoved()
    {
        Clock::setForTest(1700000000123);
        QCOMPARE(Clock::msecs(), qint64(1700000000123));
        QCOMPARE(Clock::seconds(), quint32(1700000000));
        QCOMPARE(Clock::now().toMSecsSinceEpoch(), qint64(1700000000123));
        Clock::advance(877);
        QCOMPARE(Clock::msecs(), qint64(1700000001000));
        QCOMPARE(Clock::seconds(), quint32(1700000001));
    }

    void timeOfDayCarriesTheMillisecondsAsMicroseconds()
    {
        Clock::setForTest(1700000000123);
        QCOMPARE(qint64(Clock::timeOfDay().tv_sec), qint64(1700000000));
        QCOMPARE(qint64(Clock::timeOfDay().tv_usec), qint64(123000));
    }

    void theSystemClockRunsAgainAfterAHold()
    {
        Clock::setForTest(5);
        Clock::useSystem();
        const qint64 before = QDateTime::currentMSecsSinceEpoch();
        const qint64 taken = Clock::msecs();
        const qint64 after = QDateTime::currentMSecsSinceEpoch();
        QVERIFY(before <= taken && taken <= after);
    }

    void advancingARunningClockHoldsItAtThatMoment()
    {
        const qint64 before = Clock::msecs();
        Clock::advance(60000);
        const qint64 held = Clock::msecs();
        QVERIFY(held >= before + 60000);
        QCOMPARE(Clock::msecs(), held);
    }

    void elapsedTimeFollowsWhatPassesAndNoSettingOfTheClock()
    {
        Clock::setForTest(1700000000000);
        const qint64 begin = Clock::elapsed();
        Clock::advance(1500);
        QCOMPARE(Clock::elapsed() - begin, qint64(1500));
        Clock::setForTest(1700003600000);
        QCOMPARE(Clock::elapsed() - begin, qint64(1500));
        Clock::setForTest(1384380800000);
        QCOMPARE(Clock::elapsed() - begin, qint64(1500));
        Clock::useSystem();
        const qint64 running = Clock::elapsed();
        QTRY_VERIFY(Clock::elapsed() > running);
    }
};

QTEST_GUILESS_MAIN(TstClock)
#include "tst_clock.moc"
