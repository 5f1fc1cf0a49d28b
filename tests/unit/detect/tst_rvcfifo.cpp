#include "detect/powerevents.h"
#include "eventstream.h"

#include <QTest>

#include <limits>

// A window of one second at 50 Hz is 100 half cycles of 10 ms. Steps are only recorded when they exceed the reference
// itself, so the references here are a few volts.

class TstRvcFifo : public QObject
{
    Q_OBJECT

private slots:
    void ringHoldsFourWindows_data();
    void ringHoldsFourWindows();
    void ringAt60HzAndOneSecondHolds480Samples();
    void steadyAfterOneWindow();
    void unsteadyWindowKeepsSeeking();
    void referenceFollowsTheWindow();
    void leavingTheBandStartsATransition();
    void stepBetweenSteadyStatesIsRecorded();
    void stepNotLargerThanTheReferenceIsNotRecorded();
    void stepAsLargeAsADipOrSwellIsNotRecorded();
    void slowSmallStepNeedsTheRate();
    void unsettledChangeIsGivenUpAfterTheWindowTime();
    void atTheEventLimitTheChangeIsLeftStanding();
    void changeLeftStandingIsRecordedAlsoFromAFullRing();
    void recordedStepIsAFinishedEventWithoutCurves();
    void stepAtTenThousandEventsIsNotAnEvent();
    void ordinaryMainsStepMakesNoEvent();
    void detectorWithoutWindowIsOff();
    void longSteadyTimeIsBounded();
    void anyFloatAndAnyTimeEndsAtOnce();
};

namespace {

/// One ring fed at 10 ms.
struct Ring
{
    Ring(float band = 1.0f, float settle = 0.2f, float minStep = 5.0f, float minRate = 1.0f)
    {
        fifo.init_rvc_fifo(50, 1, band, settle, minStep, minRate);
    }
    bool feed(float volts, int times = 1)
    {
        bool recorded = false;
        for (int i = 0; i < times; ++i) {
            fifo.rvc_fifo_push({ time, volts });
            time += 10;
            recorded = fifo.rvc_events_loop(limits, mayRecord, &change) || recorded;
        }
        return recorded;
    }
    RvcFifo fifo;
    RvcLimits limits = { 23, 23 };
    RvcChange change = {};
    bool mayRecord = true;
    qint64 time = 0;
};

} // namespace

void TstRvcFifo::ringHoldsFourWindows_data()
{
    QTest::addColumn<int>("frequency");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<int>("samples");
    QTest::newRow("50 Hz, 1 s") << 50 << 1 << 400;
    QTest::newRow("400 Hz, 2 s") << 400 << 2 << 6400;
}

void TstRvcFifo::ringHoldsFourWindows()
{
    QFETCH(int, frequency);
    QFETCH(int, seconds);
    QFETCH(int, samples);
    RvcFifo fifo;
    fifo.init_rvc_fifo(frequency, seconds, 0.2f, 0.2f, 5, 1);
    QCOMPARE(fifo.capacity(), samples);
    QCOMPARE(fifo.state(), RvcFifo::Seeking);
}

void TstRvcFifo::ringAt60HzAndOneSecondHolds480Samples()
{
    RvcFifo fifo;
    fifo.init_rvc_fifo(60, 1, 0.2f, 0.2f, 5, 1);
    QCOMPARE(fifo.capacity(), 480); // four windows of 60 x 1 x 2 half cycles
}

void TstRvcFifo::steadyAfterOneWindow()
{
    Ring ring;
    ring.feed(5, 99);
    QCOMPARE(ring.fifo.state(), RvcFifo::Seeking);
    ring.feed(5);
    QCOMPARE(ring.fifo.state(), RvcFifo::Steady);
    QCOMPARE(ring.fifo.reference(), 5.0f);
}

void TstRvcFifo::unsteadyWindowKeepsSeeking()
{
    Ring ring;
    ring.feed(5, 50);
    ring.feed(6); // beyond 1 % of the mean of 5.01
    ring.feed(5, 99);
    QCOMPARE(ring.fifo.state(), RvcFifo::Seeking); // the 6 is the first of the window of 100
    ring.feed(5);
    QCOMPARE(ring.fifo.state(), RvcFifo::Steady);
    QCOMPARE(ring.fifo.reference(), 5.0f);
}

void TstRvcFifo::referenceFollowsTheWindow()
{
    // Kept: the difference of the times is taken the wrong way round and unsigned, so that every later half
    // cycle renews the reference.
    Ring ring;
    ring.feed(5, 100);
    ring.feed(5.04f, 1);
    QCOMPARE(ring.fifo.state(), RvcFifo::Steady);
    QVERIFY(qAbs(ring.fifo.reference() - 5.0004f) < 1e-5f); // 99 x 5 and 1 x 5.04 over 100
}

void TstRvcFifo::leavingTheBandStartsATransition()
{
    Ring ring;
    ring.feed(5, 100);
    ring.feed(5.06f); // above 5.05
    QCOMPARE(ring.fifo.state(), RvcFifo::Transition);
}

void TstRvcFifo::stepBetweenSteadyStatesIsRecorded()
{
    Ring ring;
    ring.feed(5, 110); // steady since half cycle 100
    const qint64 transition = ring.time;
    // The step is judged when the ring holds two windows since the header: 99 half cycles are kept before the step, the
    // step itself makes 100, and 100 more fill it. The sub-window begins one half cycle behind the step.
    QVERIFY(!ring.feed(15, 101));
    QVERIFY(ring.feed(15, 1));
    QCOMPARE(ring.change.value, 10.0f);
    QCOMPARE(ring.change.startTime, transition);
    QCOMPARE(ring.change.endTime, transition + 10);
    QCOMPARE(ring.fifo.state(), RvcFifo::Seeking);
}

void TstRvcFifo::stepNotLargerThanTheReferenceIsNotRecorded()
{
    Ring ring;
    ring.feed(10, 110);
    QVERIFY(!ring.feed(20, 400)); // 10 is not above 1.01 x 10
    Ring larger;
    larger.feed(10, 110);
    QVERIFY(larger.feed(20.5f, 400)); // 10.5 is
}

void TstRvcFifo::stepAsLargeAsADipOrSwellIsNotRecorded()
{
    for (const RvcLimits &limits : { RvcLimits { 10, 23 }, RvcLimits { 23, 10 } }) {
        Ring ring;
        ring.limits = limits;
        ring.feed(5, 110);
        QVERIFY(!ring.feed(15, 400)); // 10 is not below 10
    }
}

void TstRvcFifo::slowSmallStepNeedsTheRate()
{
    // A step of 2.2 V on 2 V (110 %) with a least step of 200 %: only the rate can record it. The sub-window begins 10
    // ms behind the step: 2.2 / 2 / 10 ms x 1000 = 110 per second.
    Ring fast(1.0f, 0.2f, 200.0f, 10'900.0f);
    fast.feed(2, 110);
    QVERIFY(fast.feed(4.2f, 400));
    Ring slow(1.0f, 0.2f, 200.0f, 11'100.0f);
    slow.feed(2, 110);
    QVERIFY(!slow.feed(4.2f, 400));
    // Without any time between step and sub-window there is no rate.
    Ring frozen(1.0f, 0.2f, 200.0f, 1.0f);
    frozen.feed(2, 110);
    const qint64 moment = frozen.time;
    bool recorded = false;
    for (int i = 0; i < 400; ++i) {
        frozen.time = moment;
        recorded = frozen.feed(4.2f) || recorded;
    }
    QVERIFY(!recorded);
}

void TstRvcFifo::unsettledChangeIsGivenUpAfterTheWindowTime()
{
    Ring ring;
    ring.feed(5, 110);
    int halfCycles = 0;
    while (halfCycles < 1000 && (halfCycles == 0 || ring.fifo.state() == RvcFifo::Transition)) {
        QVERIFY(!ring.feed(halfCycles % 2 ? 10 : 15));
        ++halfCycles;
    }
    QCOMPARE(ring.fifo.state(), RvcFifo::Seeking);
    // First look after 102 half cycles with the sub-window 10 ms behind the step, then one step on each half cycle
    // until the sub-window is more than 1000 ms behind: 1010 ms, 100 half cycles later.
    QCOMPARE(halfCycles, 202);
}

void TstRvcFifo::atTheEventLimitTheChangeIsLeftStanding()
{
    Ring ring;
    ring.feed(5, 110);
    ring.mayRecord = false;
    QVERIFY(!ring.feed(15, 300));
    QCOMPARE(ring.fifo.state(), RvcFifo::Transition);
    ring.mayRecord = true;
    QVERIFY(ring.feed(15));
}

void TstRvcFifo::changeLeftStandingIsRecordedAlsoFromAFullRing()
{
    // The ring of 400 is full from half cycle 410 on, ten behind its header. Its oldest values give way, so that it
    // still holds the two windows that a change is judged by.
    Ring ring;
    ring.feed(5, 110);
    ring.mayRecord = false;
    QVERIFY(!ring.feed(15, 320));
    ring.mayRecord = true;
    QVERIFY(ring.feed(15));
    QCOMPARE(ring.change.value, 10.0f);
}

namespace {

/// A detector whose nominal voltage leaves room for steps of a few volts.
EventSettings lowReference()
{
    EventSettings s = exactSettings();
    s.dipLevel = 4; // the reference of 5 V is no dip
    s.dipHysteresis = 0;
    s.interruptionLevel = 1;
    s.interruptionHysteresis = 0;
    s.nominalVolt = 100;
    s.swellLevel = 150;
    return s;
}

} // namespace

void TstRvcFifo::recordedStepIsAFinishedEventWithoutCurves()
{
    PowerEvents events(lowReference(), 1);
    int buzzers = 0;
    int waves = 0;
    int tables = 0;
    connect(&events, &PowerEvents::buzzerRing, this, [&](unsigned int) { ++buzzers; });
    connect(&events, &PowerEvents::changeEventsWave, this, [&](long long) { ++waves; });
    connect(&events, &PowerEvents::mbEventsChanged, this, [&](const QByteArray &) { ++tables; });
    EventStream in(events);
    in.feed(110, 5);
    for (int i = 0; i < 600; ++i)
        in.feed(5, 15, 5);
    QCOMPARE(events.getAllEvents().size(), 1);
    const PQAEventItem event = events.getAllEvents().at(0);
    QCOMPARE(event.type, 30);
    QCOMPARE(event.channel, 1);
    QCOMPARE(event.finished, 1);
    QCOMPARE(event.value, 10.0f);
    QCOMPARE(event.startTime, qint64(1'001'100));
    QCOMPARE(event.startSeconds, 1001u);
    QCOMPARE(event.endTime, qint64(1'001'110));
    QCOMPARE(event.duration, 0);
    QCOMPARE(events.eventCounter(), 1);
    QCOMPARE(buzzers, 0);
    QCOMPARE(waves, 0);
    QCOMPARE(tables, 1);
    QVERIFY(events.getFullEvents().isEmpty());
    QVERIFY(event.startRms[0].isEmpty());
}

void TstRvcFifo::stepAtTenThousandEventsIsNotAnEvent()
{
    PowerEvents events(lowReference(), 1);
    countTo(events, 10'000);
    EventStream in(events);
    in.feed(110, 5);
    in.feed(600, 15);
    QCOMPARE(events.getAllEvents().size(), 10'000);
}

void TstRvcFifo::ordinaryMainsStepMakesNoEvent()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(300, 200);
    in.feed(300, 212); // 6 %: beyond the band, no swell
    in.feed(300, 200);
    QVERIFY(events.getAllEvents().isEmpty());
}

void TstRvcFifo::detectorWithoutWindowIsOff()
{
    RvcFifo fifo;
    RvcChange change;
    fifo.init_rvc_fifo(50, 0, 0.2f, 0.2f, 5, 1);
    QCOMPARE(fifo.capacity(), 0);
    for (int i = 0; i < 1000; ++i) {
        fifo.rvc_fifo_push({ i, float(i) });
        QVERIFY(!fifo.rvc_events_loop({ 23, 23 }, true, &change));
    }
    fifo.init_rvc_fifo(50, -1, 0.2f, 0.2f, 5, 1);
    QCOMPARE(fifo.capacity(), 0);
}

void TstRvcFifo::longSteadyTimeIsBounded()
{
    RvcFifo fifo;
    fifo.init_rvc_fifo(400, std::numeric_limits<int>::max(), 0.2f, 0.2f, 5, 1);
    QCOMPARE(fifo.capacity(), 4 * 400 * 60 * 2);
}

void TstRvcFifo::anyFloatAndAnyTimeEndsAtOnce()
{
    const float odd[] = {
        std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(), 1e30f, -1e30f, 5.0f, 0.0f
    };
    Ring ring;
    quint32 pick = 7;
    for (int i = 0; i < 20'000; ++i) {
        pick = pick * 1664525u + 1013904223u;
        ring.time += i % 3 ? qint64(pick) - 2'000'000'000 : 10;
        ring.feed(i % 500 < 400 ? 5.0f : odd[(pick >> 20) % std::size(odd)]);
    }
    Ring again;
    again.feed(std::numeric_limits<float>::quiet_NaN(), 500);
    again.feed(5, 1000); // flushed out: it finds its steady state again
    QCOMPARE(again.fifo.state(), RvcFifo::Steady);
}

QTEST_GUILESS_MAIN(TstRvcFifo)
#include "tst_rvcfifo.moc"
