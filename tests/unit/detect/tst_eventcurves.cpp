#include "eventstream.h"
#include "detect/eventraw.h"

#include <QSignalSpy>
#include <QTest>

#include <cstring>

// Curves around an event, and the stored form. Half cycles are 10 ms apart, the first at 1000000 ms.

class TstEventCurves : public QObject
{
    Q_OBJECT

private slots:
    void historyDropsOneSampleACallBeyondThreeSeconds();
    void historyMeasuresTheFirstInputAlone();
    void historyStaysBoundedWhenTimeStandsStill();
    void historyGoesSampleBySampleAfterAStepOfTheClock_data();
    void historyGoesSampleBySampleAfterAStepOfTheClock();
    void clockSetBackTakesTheCurvesAtOnce();
    void startCurveIsTakenAfterMoreThan1500Ms();
    void interruptionWaits1800And1600Ms();
    void completeEventLeavesThePendingListOnce();
    void shortEventGetsOverlappingWindows();
    void inrushGetsCurvesAndOtherKindsDoNot();
    void wiringDecidesTheCurves_data();
    void wiringDecidesTheCurves();
    void longEventKeepsBothCurves();
    void entriesStayWhereTheyAre();
    void rawFormHoldsHeadAndBothSections();
    void overlappingCurvesMergeIntoTheFirstSection();
    void rawFormSkipsInputsWithoutStart();
    void eventWithoutCurvesHasNoRawForm();
    void headAloneIsTheFirst32Bytes();
};

namespace {

/// `count` samples from `time` on, 10 ms apart, values from `value` up.
RmsCurve curve(qint64 time, int count, float value)
{
    RmsCurve list;
    for (int i = 0; i < count; ++i)
        list.append({ time + 10 * i, value + i });
    return list;
}

template <typename T> T at(const QByteArray &bytes, int offset)
{
    T value {};
    if (offset + int(sizeof value) <= bytes.size())
        std::memcpy(&value, bytes.constData() + offset, sizeof value);
    return value;
}

_value_with_time sampleAt(const QByteArray &bytes, int offset)
{
    return at<_value_with_time>(bytes, offset);
}

} // namespace

void TstEventCurves::historyDropsOneSampleACallBeyondThreeSeconds()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(500, 200);
    in.feed(230, 200, 200); // swell at 1005000
    in.feed(151, 200);
    const PQAEventItem event = events.getAllEvents().at(0);
    const RmsCurve &start = event.startRms[0];
    // Taken at the first sample more than 1500 ms later, 1006510. A sample goes when the span before the append is
    // beyond 3000 ms, so that 302 samples stay: 1003500 to 1006510.
    QCOMPARE(qint64(start.constLast().time), qint64(1'006'510));
    QCOMPARE(start.size(), 302);
    QCOMPARE(qint64(start.constFirst().time), qint64(1'003'500));
}

void TstEventCurves::historyMeasuresTheFirstInputAlone()
{
    PowerEvents events(exactSettings(), 1);
    // Input 0 advances by 10 ms, all others by a day: nothing is dropped before input 0 spans three seconds.
    for (int i = 0; i <= 151; ++i) {
        QList<_value_with_time> values;
        for (int k = 0; k < 8; ++k)
            values.append({ k == 0 ? 1000 + 10 * i : qint64(i) * 86'400'000, k == 0 && i == 0 ? 230.0f : 200.0f });
        events.checkPowerEvents(values);
    }
    const PQAEventItem event = events.getAllEvents().at(0);
    QCOMPARE(event.startRms[0].size(), 152); // 1000 to 2510
    QCOMPARE(event.startRms[4].size(), 152);
}

void TstEventCurves::historyStaysBoundedWhenTimeStandsStill()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    for (int i = 0; i < 20'000; ++i) {
        in.time = 1'000'000;
        in.feed(1, 200);
    }
    in.feed(230, 200, 200);
    in.time += 10'000;
    in.feed(200, 200, 200);
    const PQAEventItem event = events.getAllEvents().at(0);
    QVERIFY(event.startRms[0].size() > 0);
    QVERIFY(event.startRms[0].size() <= 8192);
}

void TstEventCurves::historyGoesSampleBySampleAfterAStepOfTheClock_data()
{
    QTest::addColumn<qint64>("step"); // ms
    QTest::newRow("a day on") << qint64(86'400'000);
    QTest::newRow("a day back") << qint64(-86'400'000);
    QTest::newRow("a year back") << qint64(-365) * 86'400'000;
}

void TstEventCurves::historyGoesSampleBySampleAfterAStepOfTheClock()
{
    QFETCH(qint64, step);
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(500, 200); // the history holds 302 samples
    in.time += step;
    const qint64 start = in.time;
    in.feed(230, 200, 200);
    in.feed(151, 200);
    // Whatever the step, the span is more than three seconds, and one sample goes for each that comes: 152 new ones
    // stand behind 150 old ones when the curve is taken, 1510 ms after the start.
    const RmsCurve curve = events.getAllEvents().at(0).startRms[0];
    QCOMPARE(curve.size(), 302);
    QCOMPARE(qint64(curve.at(149).time), start - step - 10);
    QCOMPARE(qint64(curve.at(150).time), start);
    in.feed(600, 200);
    QCOMPARE(events.getFullEvents().size(), 1);
    QCOMPARE(events.getFullEvents().at(0).duration, 10);
}

void TstEventCurves::clockSetBackTakesTheCurvesAtOnce()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(100, 200);
    in.feed(2, 230); // from 1001000
    in.time -= 86'400'000;
    // Kept: times are subtracted without a sign, and what lies in the future counts as long ago.
    in.feed(1, 230);
    QCOMPARE(events.getAllEvents().at(0).startRms[0].size(), 103);
    in.feed(1, 200); // ends a day and 30 ms before it began
    QCOMPARE(events.getAllEvents().at(0).finished, 1);
    QCOMPARE(events.getAllEvents().at(0).duration, -86'400'000 + 30);
}

void TstEventCurves::startCurveIsTakenAfterMoreThan1500Ms()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(150, 150, 150); // dip at 1000000
    in.feed(150, 150); // up to 1001500: not more than 1500 ms later
    QVERIFY(events.getAllEvents().at(0).startRms[0].isEmpty());
    in.feed(1, 150); // 1001510
    QCOMPARE(events.getAllEvents().at(0).startRms[0].size(), 152);
    QVERIFY(events.getAllEvents().at(0).endRms[0].isEmpty());
    in.feed(1, 200); // ends at 1001520
    in.feed(150, 200); // up to 1003020
    QVERIFY(events.getAllEvents().at(0).endRms[0].isEmpty());
    QCOMPARE(events.getFullEvents().size(), 0);
    in.feed(1, 200); // 1003030
    // The two windows overlap: 152 half cycles to 1001510, and the 152 later ones of the end's.
    QCOMPARE(events.getFullEvents().size(), 1);
    QCOMPARE(events.getAllEvents().at(0).startRms[0].size(), 304);
    QCOMPARE(qint64(events.getAllEvents().at(0).startRms[0].constLast().time), qint64(1'003'030));
}

void TstEventCurves::interruptionWaits1800And1600Ms()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(1, 5); // 1000000
    in.feed(180, 5);
    QVERIFY(events.getAllEvents().at(0).startRms[0].isEmpty());
    in.feed(1, 5);
    QVERIFY(!events.getAllEvents().at(0).startRms[0].isEmpty());
    in.feed(1, 200);
    in.feed(160, 200);
    QVERIFY(events.getFullEvents().isEmpty());
    in.feed(1, 200);
    QCOMPARE(events.getFullEvents().size(), 1);
    QCOMPARE(qint64(events.getAllEvents().at(0).startRms[0].constLast().time), qint64(1'001'820 + 1610));
}

void TstEventCurves::completeEventLeavesThePendingListOnce()
{
    PowerEvents events(exactSettings(), 1);
    QSignalSpy complete(&events, &PowerEvents::eventFinishedWithRMS);
    EventStream in(events);
    in.feed(230, 150, 200); // swell and dip at once
    in.feed(3, 200);
    in.feed(400, 200);
    QCOMPARE(complete.count(), 2); // both became complete in the same walk
    QCOMPARE(events.getFullEvents().size(), 2);
    QCOMPARE(events.getFullEvents().at(0).type, 28);
    QCOMPARE(events.getFullEvents().at(1).type, 27);
    QCOMPARE(events.getAllEvents().size(), 2);
}

void TstEventCurves::shortEventGetsOverlappingWindows()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(100, 200);
    in.feed(150, 200, 200); // 1001000
    in.feed(300, 200);
    const PQAEventItem event = events.getFullEvents().at(0);
    QCOMPARE(event.duration, 10);
    // The start curve ends at 1002510, the end curve one half cycle later: they overlap but for one sample.
    // Each half cycle is kept once.
    QCOMPARE(event.startRms[0].size(), 253);
    QVERIFY(event.endRms[0].isEmpty());
    QCOMPARE(event.startRms[0].capacity(), 253);
    QCOMPARE(event.endRms[0].capacity(), 0);
    for (int i = 1; i < event.startRms[0].size(); ++i)
        QCOMPARE(event.startRms[0].at(i).time - event.startRms[0].at(i - 1).time, qint64(10));
    const QByteArray raw = PowerEvents::toRawData(event);
    QCOMPARE(at<qint32>(raw, 32), 3 * 2 * 253 * 12); // three voltages and three currents
    QCOMPARE(at<qint32>(raw, raw.size() - 4), 0);
    QCOMPARE(raw.size(), 40 + 3 * 2 * 253 * 12);
}

void TstEventCurves::inrushGetsCurvesAndOtherKindsDoNot()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    events.checkEventFreq({ 1'000'000, 60 });
    in.feed(200, 200, 200, 0, 0, 150);
    events.checkEventFreq({ 1'000'010, 50 });
    in.feed(400, 200);
    QCOMPARE(events.getFullEvents().size(), 1);
    QCOMPARE(events.getFullEvents().at(0).type, 33);
    QCOMPARE(events.getFullEvents().at(0).channel, 2);
    QVERIFY(events.getAllEvents().at(0).startRms[0].isEmpty());
}

void TstEventCurves::wiringDecidesTheCurves_data()
{
    QTest::addColumn<int>("joinMode");
    QTest::addColumn<int>("phases");
    QTest::newRow("3P WYE") << 1 << 3;
    QTest::newRow("1P +NEUTRAL") << 3 << 1;
    QTest::newRow("1P SPLIT PHASE") << 5 << 2;
    QTest::newRow("1P IT NO NEUTRAL") << 6 << 1;
    QTest::newRow("2.5-ELEMENT") << 9 << 3;
    QTest::newRow("2-ELEMENT") << 10 << 3;
}

void TstEventCurves::wiringDecidesTheCurves()
{
    QFETCH(int, joinMode);
    QFETCH(int, phases);
    PowerEvents events(exactSettings(), joinMode);
    EventStream in(events);
    in.feed(1, 230);
    in.feed(400, 200);
    QCOMPARE(events.getFullEvents().size(), 1);
    const PQAEventItem event = events.getFullEvents().at(0);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(!event.startRms[i].isEmpty(), i < phases);
        QCOMPARE(!event.startRms[i + 4].isEmpty(), i < phases);
        // Its end was taken, too, and stands behind the start: 1510 ms after the end of 10 ms.
        QCOMPARE(event.startRms[i].isEmpty() ? 0 : qint64(event.startRms[i].constLast().time),
                 i < phases ? qint64(1'001'520) : 0);
    }
}

void TstEventCurves::longEventKeepsBothCurves()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(400, 200);
    in.feed(500, 230); // five seconds, from 1004000
    in.feed(400, 200);
    const PQAEventItem event = events.getFullEvents().at(0);
    QCOMPARE(event.startRms[0].size(), 302);
    QCOMPARE(event.endRms[0].size(), 302);
    QCOMPARE(qint64(event.startRms[0].constLast().time), qint64(1'004'000 + 1510));
    QCOMPARE(qint64(event.endRms[0].constLast().time), qint64(1'009'000 + 1510));
}

void TstEventCurves::entriesStayWhereTheyAre()
{
    // Who reads an event may hold it by reference: later events and the curves of this one move nothing.
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(1, 230);
    const PQAEventItem *first = &events.getAllEvents().at(0);
    QCOMPARE(first->finished, 0);
    in.feed(400, 200);
    for (int i = 0; i < 5000; ++i) {
        events.checkEventUnbal({ in.time, 3 });
        events.checkEventUnbal({ in.time, 1 });
    }
    QCOMPARE(events.getAllEvents().size(), 5001);
    QCOMPARE(&events.getAllEvents().at(0), first);
    QCOMPARE(first->finished, 1);
    QCOMPARE(first->startRms[0].size(), 153);
}

void TstEventCurves::rawFormHoldsHeadAndBothSections()
{
    PQAEventItem event;
    event.channel = 1;
    event.type = 27;
    event.finished = 1;
    event.value = 150.5f;
    event.startTime = 0x0102030405060708LL;
    event.endTime = 0x1112131415161718LL;
    event.startRms[0] = curve(1000, 2, 200);
    event.startRms[4] = curve(1000, 1, 5);
    event.startRms[1] = curve(1000, 1, 210);
    event.endRms[0] = curve(5000, 1, 220);
    event.endRms[4] = curve(5000, 1, 6);
    event.endRms[1] = curve(5000, 1, 230);
    const QByteArray raw = PowerEvents::toRawData(event);
    // 32 head, 4 count, 4 samples, 4 count, 3 samples
    QCOMPARE(raw.size(), 32 + 4 + 4 * 12 + 4 + 3 * 12);
    QCOMPARE(raw.left(12), QByteArray::fromHex("010000001b00000001000000"));
    QCOMPARE(at<float>(raw, 12), 150.5f);
    QCOMPARE(raw.mid(16, 16), QByteArray::fromHex("08070605040302011817161514131211"));
    QCOMPARE(at<qint32>(raw, 32), 48);
    QCOMPARE(sampleAt(raw, 36).value, 200.0f);
    QCOMPARE(qint64(sampleAt(raw, 36).time), qint64(1000));
    QCOMPARE(sampleAt(raw, 48).value, 201.0f);
    QCOMPARE(sampleAt(raw, 60).value, 5.0f); // the current of L1 directly behind its voltage
    QCOMPARE(sampleAt(raw, 72).value, 210.0f);
    QCOMPARE(at<qint32>(raw, 84), 36);
    QCOMPARE(sampleAt(raw, 88).value, 220.0f);
    QCOMPARE(sampleAt(raw, 100).value, 6.0f);
    QCOMPARE(sampleAt(raw, 112).value, 230.0f);
}

void TstEventCurves::overlappingCurvesMergeIntoTheFirstSection()
{
    PQAEventItem event;
    event.startRms[0] = curve(1000, 3, 1); // 1000, 1010, 1020
    event.endRms[0] = curve(1010, 4, 11); // 1010 to 1040: 1030 and 1040 are later
    event.startRms[1] = curve(1000, 3, 1);
    event.endRms[1] = curve(1020, 2, 21); // begins with the last of the start: overlaps
    const QByteArray raw = PowerEvents::toRawData(event);
    QCOMPARE(at<qint32>(raw, 32), (5 + 4) * 12);
    QCOMPARE(qint64(sampleAt(raw, 36 + 3 * 12).time), qint64(1030));
    QCOMPARE(sampleAt(raw, 36 + 3 * 12).value, 13.0f);
    QCOMPARE(sampleAt(raw, 36 + 8 * 12).value, 22.0f);
    QCOMPARE(at<qint32>(raw, 36 + 9 * 12), 0);
    QCOMPARE(raw.size(), 40 + 9 * 12);
}

void TstEventCurves::rawFormSkipsInputsWithoutStart()
{
    PQAEventItem event;
    event.startRms[0] = curve(1000, 1, 1);
    event.endRms[1] = curve(1000, 5, 1); // no start: skipped altogether
    event.startRms[5] = curve(1000, 5, 1); // current of a voltage without curve
    const QByteArray raw = PowerEvents::toRawData(event);
    QCOMPARE(raw.size(), 40 + 12);
}

void TstEventCurves::eventWithoutCurvesHasNoRawForm()
{
    PQAEventItem event;
    QVERIFY(PowerEvents::toRawData(event).isEmpty());
    event.startRms[4] = curve(1000, 3, 1);
    event.endRms[0] = curve(1000, 3, 1);
    QVERIFY(PowerEvents::toRawData(event).isEmpty());
}

void TstEventCurves::headAloneIsTheFirst32Bytes()
{
    PQAEventItem event;
    event.type = 28;
    event.startRms[0] = curve(1000, 1, 1);
    QCOMPARE(PowerEvents::rawHead(event), PowerEvents::toRawData(event).left(32));
    QCOMPARE(PowerEvents::rawHead(PQAEventItem()).size(), 32);
}

QTEST_GUILESS_MAIN(TstEventCurves)
#include "tst_eventcurves.moc"
