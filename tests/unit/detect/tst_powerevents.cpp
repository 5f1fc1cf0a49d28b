#include "eventstream.h"

#include <QSignalSpy>
#include <QTest>

// Times: the first half cycle is at 1000000 ms, each next one 10 ms later.

class TstPowerEvents : public QObject
{
    Q_OBJECT

private slots:
    void dipOnOnePhaseIsOneEventOnTheLowestPhase();
    void dipEndsWhenAllPhasesReachedLevelPlusHysteresis();
    void dipDeepeningOnAllPhasesBecomesAnInterruption();
    void changedDipRestartsAndIsNotCounted();
    void valueAtTheDipLevelIsNoDip();
    void interruptionEndsWhenOnePhaseRecovers();
    void noNewDipUntilASampleReArmed();
    void risingIntoNormalValuesReArmsOnceWithoutAnEvent();
    void reArmNeedsAPresentPhase();
    void swellBeginsAboveTheLevelOnAnyPhase();
    void swellHasTheTimeOfItsPhase();
    void swellEndsWhenAllPhasesFellToLevelMinusHysteresis();
    void swellAndDipRunSideBySide();
    void scanMovesTheExtremeOnlyBehindTheFirstPhaseBeyondTheLevel();
    void inrushBeginsAtTheLevelAndEndsAtLevelMinusHysteresis();
    void wiringDecidesPhasesAndInrushInputs_data();
    void wiringDecidesPhasesAndInrushInputs();
    void splitItWiringComparesTwoPhases();
    void unknownWiringCountsAsInterrupted();
    void fewerInputsAreTakenAsFarAsTheyGo();
};

namespace {

QList<_value_with_time> single(qint64 time, float value)
{
    return { { time, value } };
}

} // namespace

void TstPowerEvents::dipOnOnePhaseIsOneEventOnTheLowestPhase()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(3, 200);
    in.feed(200, 150, 200); // starts at 1000030
    in.feed(200, 120, 200);
    in.feed(200, 140, 200);
    QCOMPARE(events.getAllEvents().size(), 1);
    in.feed(200, 200, 200); // ends at 1000060
    const PQAEventItem event = events.getAllEvents().at(0);
    QCOMPARE(event.type, 27);
    QCOMPARE(event.channel, 1);
    QCOMPARE(event.finished, 1);
    QCOMPARE(event.value, 120.0f);
    QCOMPARE(event.startTime, qint64(1000030));
    QCOMPARE(event.startSeconds, 1000u);
    QCOMPARE(event.endTime, qint64(1000060));
    QCOMPARE(event.duration, 30);
}

void TstPowerEvents::dipEndsWhenAllPhasesReachedLevelPlusHysteresis()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(150, 150, 150);
    in.feed(200, 183, 200); // 183 lies above the level and below level + hysteresis
    QCOMPARE(events.getAllEvents().at(0).finished, 0);
    in.feed(184, 200, 200); // exactly level + hysteresis
    QCOMPARE(events.getAllEvents().at(0).finished, 1);
    QCOMPARE(events.getAllEvents().size(), 1);
}

void TstPowerEvents::dipDeepeningOnAllPhasesBecomesAnInterruption()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(100, 150, 150); // dip at 1000000 on L1
    in.feed(5, 5, 20); // L3 is still there
    QCOMPARE(events.getAllEvents().at(0).type, 27);
    in.feed(6, 4, 5); // 1000020: all below 10
    QCOMPARE(events.getAllEvents().size(), 1);
    const PQAEventItem event = events.getAllEvents().at(0);
    QCOMPARE(event.type, 29);
    QCOMPARE(event.channel, 1);
    QCOMPARE(event.value, 4.0f);
    QCOMPARE(event.startTime, qint64(1000020));
    QCOMPARE(event.finished, 0);
}

void TstPowerEvents::changedDipRestartsAndIsNotCounted()
{
    PowerEvents events(exactSettings(), 1);
    QSignalSpy buzzer(&events, &PowerEvents::buzzerRing);
    EventStream in(events, 5'999'990);
    in.feed(100, 150, 150); // dip in second 5999
    in.feed(5, 5, 5); // 6000000
    QCOMPARE(events.eventCounter(), 1);
    QCOMPARE(buzzer.count(), 1);
    const PQAEventItem event = events.getAllEvents().at(0);
    QCOMPARE(event.startSeconds, 6000u);
    QCOMPARE(event.endTime, qint64(6'000'000));
    QCOMPARE(event.duration, 0);
    in.feed(12, 5, 5); // 6000010: L1 recovers, the interruption ends
    QCOMPARE(events.getAllEvents().at(0).finished, 1);
    QCOMPARE(events.getAllEvents().at(0).type, 29);
    QCOMPARE(events.getAllEvents().at(0).duration, 10);
}

void TstPowerEvents::valueAtTheDipLevelIsNoDip()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(180, 180, 180);
    QVERIFY(events.getAllEvents().isEmpty());
    in.feed(180, 179.5f, 180);
    QCOMPARE(events.getAllEvents().size(), 1);
}

void TstPowerEvents::interruptionEndsWhenOnePhaseRecovers()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(200, 200, 200);
    in.feed(3, 2, 4); // 1000010
    in.feed(11, 1, 4); // 11 is below level + hysteresis
    QCOMPARE(events.getAllEvents().at(0).finished, 0);
    in.feed(3, 12, 0.5f); // 1000030: L2 recovers at exactly 12; the walk ends there and does not see L3
    const PQAEventItem event = events.getAllEvents().at(0);
    QCOMPARE(event.type, 29);
    QCOMPARE(event.finished, 1);
    QCOMPARE(event.value, 1.0f);
    QCOMPARE(event.channel, 1);
    QCOMPARE(event.duration, 20);
}

void TstPowerEvents::noNewDipUntilASampleReArmed()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(2, 2, 2);
    in.feed(2, 2, 200); // ends; L1 and L2 are still away
    in.feed(2, 2, 200);
    in.feed(2, 2, 2); // would be an interruption, were detection armed
    in.feed(150, 150, 150); // would be a dip
    QCOMPARE(events.getAllEvents().size(), 1);
    in.feed(200, 200, 200); // re-arms
    in.feed(150, 200, 200);
    QCOMPARE(events.getAllEvents().size(), 2);
    QCOMPARE(events.getAllEvents().at(1).type, 27);
}

void TstPowerEvents::risingIntoNormalValuesReArmsOnceWithoutAnEvent()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(150, 150, 150);
    in.feed(200, 200, 200); // ends the dip; does not yet re-arm
    in.feed(150, 150, 150); // one half cycle below: no event, no re-arm
    in.feed(200, 200, 200); // re-arms
    in.feed(200, 200, 200);
    QCOMPARE(events.getAllEvents().size(), 1);
    in.feed(150, 150, 150);
    QCOMPARE(events.getAllEvents().size(), 2);
}

void TstPowerEvents::reArmNeedsAPresentPhase()
{
    EventSettings settings = exactSettings();
    settings.dipLevel = 5; // below the interruption level, so that a phase may be neither below one nor above the other
    settings.dipHysteresis = 0;
    PowerEvents events(settings, 1);
    EventStream in(events);
    in.feed(2, 2, 2); // interruption: all below 10
    in.feed(20, 20, 20); // ends
    in.feed(7, 7, 7); // no phase below 5, none at or above 10: not re-armed
    in.feed(2, 2, 2);
    QCOMPARE(events.getAllEvents().size(), 1);
    in.feed(7, 7, 10); // 10 is at the level: re-armed
    in.feed(2, 2, 2);
    QCOMPARE(events.getAllEvents().size(), 2);
}

void TstPowerEvents::swellBeginsAboveTheLevelOnAnyPhase()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(220, 220, 220); // at the level: none
    QVERIFY(events.getAllEvents().isEmpty());
    in.feed(221, 200, 222);
    const PQAEventItem event = events.getAllEvents().at(0);
    QCOMPARE(event.type, 28);
    QCOMPARE(event.channel, 2);
    QCOMPARE(event.value, 222.0f);
}

void TstPowerEvents::swellHasTheTimeOfItsPhase()
{
    PowerEvents events(exactSettings(), 1);
    QList<_value_with_time> values;
    for (qint64 channel = 0; channel < 8; ++channel)
        values.append({ 1'000'000 + channel, channel == 2 ? 230.0f : 200.0f });
    events.checkPowerEvents(values);
    QCOMPARE(events.getAllEvents().at(0).startTime, qint64(1'000'002));
}

void TstPowerEvents::swellEndsWhenAllPhasesFellToLevelMinusHysteresis()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(230, 200, 200); // 1000000
    in.feed(200, 240, 200);
    in.feed(200, 217, 200); // above 216
    QCOMPARE(events.getAllEvents().at(0).finished, 0);
    in.feed(216, 216, 200); // 1000030: at 216
    const PQAEventItem event = events.getAllEvents().at(0);
    QCOMPARE(event.finished, 1);
    QCOMPARE(event.channel, 1);
    QCOMPARE(event.value, 240.0f);
    QCOMPARE(event.duration, 30);
}

void TstPowerEvents::swellAndDipRunSideBySide()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(230, 150, 200);
    QCOMPARE(events.getAllEvents().size(), 2);
    QCOMPARE(events.getAllEvents().at(0).type, 28); // the swell is looked for first
    QCOMPARE(events.getAllEvents().at(1).type, 27);
    in.feed(200, 150, 200);
    QCOMPARE(events.getAllEvents().at(0).finished, 1);
    QCOMPARE(events.getAllEvents().at(1).finished, 0);
}

void TstPowerEvents::scanMovesTheExtremeOnlyBehindTheFirstPhaseBeyondTheLevel()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    // At the end the scan's extreme stays on L1, since no phase is below 184 any more: its time is that of L1.
    QList<_value_with_time> dip;
    QList<_value_with_time> end;
    for (int i = 0; i < 8; ++i) {
        dip.append({ 1000 + i, i < 3 ? 150.0f - i : 0.0f });
        end.append({ 2000 + i, i < 3 ? 200.0f - i : 0.0f });
    }
    events.checkPowerEvents(dip);
    events.checkPowerEvents(end);
    const PQAEventItem event = events.getAllEvents().at(0);
    QCOMPARE(event.channel, 2);
    QCOMPARE(event.startTime, qint64(1002)); // the time of L3's sample
    QCOMPARE(event.endTime, qint64(2000));
}

void TstPowerEvents::inrushBeginsAtTheLevelAndEndsAtLevelMinusHysteresis()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(200, 200, 200, 0, 99, 0);
    in.feed(200, 200, 200, 0, 100, 0); // 1000010
    in.feed(200, 200, 200, 0, 160, 0);
    in.feed(200, 200, 200, 0, 93, 0); // above 92
    QCOMPARE(events.getAllEvents().size(), 1);
    QCOMPARE(events.getAllEvents().at(0).finished, 0);
    in.feed(200, 200, 200, 0, 92, 0); // 1000040
    const PQAEventItem event = events.getAllEvents().at(0);
    QCOMPARE(event.type, 33);
    QCOMPARE(event.channel, 1);
    QCOMPARE(event.value, 160.0f);
    QCOMPARE(event.duration, 30);
}

void TstPowerEvents::wiringDecidesPhasesAndInrushInputs_data()
{
    QTest::addColumn<int>("joinMode");
    QTest::addColumn<int>("phases");
    QTest::addColumn<QList<int>>("inrush");
    const QList<int> all { 0, 1, 2 };
    QTest::newRow("3P WYE") << 1 << 3 << all;
    QTest::newRow("3P IT") << 2 << 3 << all;
    QTest::newRow("1P +NEUTRAL") << 3 << 1 << QList<int> { 0 };
    QTest::newRow("3P DELTA") << 4 << 3 << all;
    QTest::newRow("1P SPLIT PHASE") << 5 << 2 << QList<int> { 0, 1 };
    QTest::newRow("1P IT NO NEUTRAL") << 6 << 2 << QList<int> { 0, 1 };
    QTest::newRow("3P HIGH LEG") << 7 << 3 << all;
    QTest::newRow("3P OPEN LEG") << 8 << 3 << all;
    QTest::newRow("2.5-ELEMENT") << 9 << 3 << QList<int> { 0, 2 };
    QTest::newRow("2-ELEMENT") << 10 << 3 << all;
}

void TstPowerEvents::wiringDecidesPhasesAndInrushInputs()
{
    QFETCH(int, joinMode);
    QFETCH(int, phases);
    QFETCH(QList<int>, inrush);
    // The last phase that is looked at makes a swell, the next one does not.
    for (int phase = 0; phase < 3; ++phase) {
        PowerEvents events(exactSettings(), joinMode);
        EventStream in(events);
        in.feed(phase == 0 ? 230 : 200, phase == 1 ? 230 : 200, phase == 2 ? 230 : 200);
        QCOMPARE(events.getAllEvents().size(), phase < phases ? 1 : 0);
    }
    PowerEvents events(exactSettings(), joinMode);
    EventStream in(events);
    in.feed(200, 200, 200, 150, 150, 150);
    QList<int> channels;
    for (const PQAEventItem &event : events.getAllEvents()) {
        QCOMPARE(event.type, 33);
        channels.append(event.channel);
    }
    QCOMPARE(channels, inrush);
}

void TstPowerEvents::splitItWiringComparesTwoPhases()
{
    // The second phase of "1P IT NO NEUTRAL" is not measured by the task and reads 0: with a present first phase this
    // is a dip, not an interruption.
    PowerEvents events(exactSettings(), 6);
    EventStream in(events);
    in.feed(200, 0, 0);
    QCOMPARE(events.getAllEvents().size(), 1);
    QCOMPARE(events.getAllEvents().at(0).type, 27);
    QCOMPARE(events.getAllEvents().at(0).channel, 1);
}

void TstPowerEvents::unknownWiringCountsAsInterrupted()
{
    PowerEvents events(exactSettings(), 0);
    EventStream in(events);
    in.feed(200, 210, 220, 500, 500, 500);
    QCOMPARE(events.getAllEvents().size(), 1);
    QCOMPARE(events.getAllEvents().at(0).type, 29);
    QCOMPARE(events.getAllEvents().at(0).channel, 0);
    QCOMPARE(events.getAllEvents().at(0).value, 200.0f);
    in.feed(500, 200);
    QCOMPARE(events.getAllEvents().size(), 1);
    QCOMPARE(events.getAllEvents().at(0).finished, 0);
    QVERIFY(events.getAllEvents().at(0).startRms[0].isEmpty());
}

void TstPowerEvents::fewerInputsAreTakenAsFarAsTheyGo()
{
    PowerEvents events(exactSettings(), 1);
    events.checkPowerEvents({});
    events.checkPowerEvents(single(0, 200));
    QVERIFY(events.getAllEvents().isEmpty());
    events.checkPowerEvents(single(10, 5)); // the one phase given is below: all are
    QCOMPARE(events.getAllEvents().size(), 1);
    QCOMPARE(events.getAllEvents().at(0).type, 29);
    for (int i = 2; i < 400; ++i)
        events.checkPowerEvents(single(10 * i, 200));
    QCOMPARE(events.getFullEvents().size(), 1);
    QVERIFY(events.getFullEvents().at(0).startRms[1].isEmpty());
}

QTEST_GUILESS_MAIN(TstPowerEvents)
#include "tst_powerevents.moc"
