#include "eventstream.h"

#include <QSignalSpy>
#include <QtTest>

#include <cmath>
#include <limits>

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
    void swellEndsWhenAllPhasesFellToLevelMinusHysteresis();
    void swellAndDipRunSideBySide();
    void scanMovesTheExtremeOnlyBehindTheFirstPhaseBeyondTheLevel();
    void inrushBeginsAtTheLevelAndEndsAtLevelMinusHysteresis();
    void wiringDecidesPhasesAndInrushInputs_data();
    void wiringDecidesPhasesAndInrushInputs();
    void splitItWiringComparesTwoPhases();
    void unknownWiringCountsAsInterrupted();
    void slowChecksStartKeepTheExtremeAndEnd_data();
    void slowChecksStartKeepTheExtremeAndEnd();
    void frequencyExtremeMovesOnlyFartherFromNominal();
    void harmonicsOfEachPhaseAndOrderRunApart();
    void finishTakesTheFirstUnfinishedEventOfTheType();
    void atTenThousandASwellStartsAndAFrequencyEventDoesNot();
    void atTenThousandAndOneNothingStartsButRunningEventsEnd();
    void newEventTellsListWaveTableAndBuzzerInThisOrder();
    void clearEmptiesTheListsAndKeepsCounterAndStates();
    void runningEventHasNoDurationAndEndsWithIt();
    void timeBackwardsGivesLow32BitsOfTheDifference();
    void tableHoldsTheNewestTenOldestFirst();
    void tableKeepsTheRegistersOfAnUnusedRow();
    void refreshWithoutEventsMarksAllRowsUnused();
    void indicesBeyondTheTablesAreIgnored();
    void fewerInputsAreTakenAsFarAsTheyGo();
    void notNumbersEndNothingEarlyAndHangNothing();
    void aMillionEventsStopAtTheLimit();
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

using Check = void (*)(PowerEvents &, const _value_with_time &);
Q_DECLARE_METATYPE(Check)

void TstPowerEvents::slowChecksStartKeepTheExtremeAndEnd_data()
{
    QTest::addColumn<Check>("check");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("channel");
    QTest::addColumn<QList<float>>("inside"); // values that start nothing and end an event
    QTest::addColumn<QList<float>>("outside"); // the first starts, the others go on
    QTest::addColumn<float>("extreme");
    QTest::newRow("frequency high") << Check([](PowerEvents &e, const _value_with_time &v) { e.checkEventFreq(v); })
                                    << 32 << 0 << QList<float> { 50, 51, 49 } << QList<float> { 51.5f, 53, 52 }
                                    << 53.0f;
    QTest::newRow("frequency both sides")
        << Check([](PowerEvents &e, const _value_with_time &v) { e.checkEventFreq(v); }) << 32 << 0
        << QList<float> { 49 } << QList<float> { 51.5f, 46, 53 } << 46.0f;
    QTest::newRow("voltage") << Check([](PowerEvents &e, const _value_with_time &v) { e.checkEventVolt(2, v); }) << 25
                             << 2 << QList<float> { 200, 210, 190 } << QList<float> { 189, 170, 220 } << 170.0f;
    QTest::newRow("unbalance") << Check([](PowerEvents &e, const _value_with_time &v) { e.checkEventUnbal(v); }) << 31
                               << 0 << QList<float> { 2 } << QList<float> { 2.5f, 4, 3 } << 4.0f;
    QTest::newRow("THD") << Check([](PowerEvents &e, const _value_with_time &v) { e.checkEventHarm(1, 0, v); }) << 0
                         << 1 << QList<float> { 5 } << QList<float> { 6, 9, 7 } << 9.0f;
    QTest::newRow("order 25") << Check([](PowerEvents &e, const _value_with_time &v) { e.checkEventHarm(0, 24, v); })
                              << 24 << 0 << QList<float> { 5 } << QList<float> { 6, 9, 7 } << 9.0f;
    QTest::newRow("flicker") << Check([](PowerEvents &e, const _value_with_time &v) { e.checkEventFlicker(1, v); })
                             << 26 << 1 << QList<float> { 1, 0.5f } << QList<float> { 1.5f, 2, 1.25f } << 2.0f;
}

void TstPowerEvents::slowChecksStartKeepTheExtremeAndEnd()
{
    QFETCH(Check, check);
    QFETCH(int, type);
    QFETCH(int, channel);
    QFETCH(QList<float>, inside);
    QFETCH(QList<float>, outside);
    QFETCH(float, extreme);
    PowerEvents events(exactSettings(), 1);
    qint64 time = 60'000;
    for (const float value : inside)
        check(events, { time, value });
    QVERIFY(events.getAllEvents().isEmpty());
    for (const float value : outside)
        check(events, { time += 10'000, value });
    QCOMPARE(events.getAllEvents().size(), 1);
    QCOMPARE(events.getAllEvents().at(0).value, outside.first());
    check(events, { time += 10'000, inside.first() });
    const PQAEventItem event = events.getAllEvents().at(0);
    QCOMPARE(event.type, type);
    QCOMPARE(event.channel, channel);
    QCOMPARE(event.finished, 1);
    QCOMPARE(event.value, extreme);
    QCOMPARE(event.startTime, qint64(70'000));
    QCOMPARE(event.duration, int(10'000 * outside.size()));
}

void TstPowerEvents::frequencyExtremeMovesOnlyFartherFromNominal()
{
    PowerEvents events(exactSettings(), 1);
    events.checkEventFreq({ 0, 48.0f });
    events.checkEventFreq({ 10, 51.5f }); // 1.5 away: not farther than 2.0
    events.checkEventFreq({ 20, 52.0f }); // 2.0 away: not farther
    events.checkEventFreq({ 30, 50.0f });
    QCOMPARE(events.getAllEvents().at(0).value, 48.0f);
}

void TstPowerEvents::harmonicsOfEachPhaseAndOrderRunApart()
{
    PowerEvents events(exactSettings(), 1);
    for (int phase = 0; phase < 3; ++phase) {
        for (int index = 0; index < 25; ++index)
            events.checkEventHarm(phase, index, { 0, 6 });
    }
    QCOMPARE(events.getAllEvents().size(), 75);
    for (int phase = 0; phase < 3; ++phase) {
        for (int index = 0; index < 25; ++index)
            events.checkEventHarm(phase, index, { 100, 1 });
    }
    for (const PQAEventItem &event : events.getAllEvents())
        QCOMPARE(event.finished, 1);
}

void TstPowerEvents::finishTakesTheFirstUnfinishedEventOfTheType()
{
    // As required: the entry is found by its type alone, and its channel is overwritten.
    PowerEvents events(exactSettings(), 1);
    events.checkEventVolt(0, { 10, 150 });
    events.checkEventVolt(1, { 20, 160 });
    events.checkEventVolt(1, { 30, 200 });
    QCOMPARE(events.getAllEvents().at(0).finished, 1);
    QCOMPARE(events.getAllEvents().at(0).channel, 1);
    QCOMPARE(events.getAllEvents().at(0).value, 160.0f);
    QCOMPARE(events.getAllEvents().at(1).finished, 0);
}

namespace {

/// Brings the counter to the given number with unbalance events.
void countTo(PowerEvents &events, int number)
{
    while (events.eventCounter() < number) {
        events.checkEventUnbal({ 0, 3 });
        events.checkEventUnbal({ 1, 1 });
    }
}

} // namespace

void TstPowerEvents::atTenThousandASwellStartsAndAFrequencyEventDoesNot()
{
    PowerEvents events(exactSettings(), 1);
    countTo(events, 10'000);
    EventStream in(events);
    events.checkEventFreq({ 0, 60 });
    events.checkEventVolt(0, { 0, 300 });
    events.checkEventUnbal({ 0, 50 });
    events.checkEventHarm(0, 0, { 0, 50 });
    events.checkEventFlicker(0, { 0, 50 });
    in.feed(200, 200, 200, 500, 500, 500); // inrush
    QCOMPARE(events.eventCounter(), 10'000);
    in.feed(230, 200, 200);
    QCOMPARE(events.eventCounter(), 10'001);
    QCOMPARE(events.getAllEvents().constLast().type, 28);
}

void TstPowerEvents::atTenThousandAndOneNothingStartsButRunningEventsEnd()
{
    PowerEvents events(exactSettings(), 1);
    countTo(events, 9'999);
    EventStream in(events);
    events.checkEventFreq({ 0, 60 }); // 10000
    in.feed(230, 200, 200); // 10001
    in.feed(230, 150, 200);
    QCOMPARE(events.eventCounter(), 10'001);
    in.feed(200, 150, 200);
    events.checkEventFreq({ 1000, 50 });
    const QList<PQAEventItem> all = events.getAllEvents();
    QCOMPARE(all.size(), 10'001);
    QCOMPARE(all.at(9'999).finished, 1);
    QCOMPARE(all.at(10'000).finished, 1);
    in.feed(230, 5, 5);
    in.feed(5, 5, 5);
    QCOMPARE(events.eventCounter(), 10'001);
}

void TstPowerEvents::newEventTellsListWaveTableAndBuzzerInThisOrder()
{
    PowerEvents events(exactSettings(), 1);
    QStringList told;
    connect(&events, &PowerEvents::eventListChanged, this,
            [&](const QList<PQAEventItem> &list) { told << QStringLiteral("list %1").arg(list.size()); });
    connect(&events, &PowerEvents::changeEventsWave, this,
            [&](long long time) { told << QStringLiteral("wave %1").arg(time); });
    connect(&events, &PowerEvents::mbEventsChanged, this,
            [&](const QByteArray &table) { told << QStringLiteral("table %1").arg(table.size()); });
    connect(&events, &PowerEvents::buzzerRing, this,
            [&](unsigned int ring) { told << QStringLiteral("buzzer %1").arg(ring); });
    connect(&events, &PowerEvents::eventFinished, this,
            [&](const PQAEventItem &event) { told << QStringLiteral("finished %1").arg(event.type); });
    EventStream in(events);
    in.feed(230, 200, 200);
    QCOMPARE(told, (QStringList { "list 1", "wave 1000000", "table 208", "buzzer 0" }));
    told.clear();
    in.feed(200, 200, 200);
    QCOMPARE(told, (QStringList { "finished 28", "list 1", "table 208" }));
}

void TstPowerEvents::clearEmptiesTheListsAndKeepsCounterAndStates()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(230, 200, 200);
    QSignalSpy changed(&events, &PowerEvents::eventListChanged);
    events.clear();
    QCOMPARE(changed.count(), 1);
    QVERIFY(events.getAllEvents().isEmpty());
    QVERIFY(events.getFullEvents().isEmpty());
    QCOMPARE(events.eventCounter(), 1);
    in.feed(230, 200, 200); // the swell still runs: no new entry
    QVERIFY(events.getAllEvents().isEmpty());
    in.feed(200, 200, 200); // its end finds no entry
    QVERIFY(events.getAllEvents().isEmpty());
    in.feed(230, 200, 200);
    QCOMPARE(events.getAllEvents().size(), 1);
    QCOMPARE(events.eventCounter(), 2);
}

void TstPowerEvents::runningEventHasNoDurationAndEndsWithIt()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(10, 230);
    const PQAEventItem event = events.getAllEvents().at(0);
    QCOMPARE(event.finished, 0);
    QCOMPARE(event.duration, 0);
    QCOMPARE(event.endTime, event.startTime);
}

void TstPowerEvents::timeBackwardsGivesLow32BitsOfTheDifference()
{
    PowerEvents events(exactSettings(), 1);
    events.checkEventFreq({ 10'000, 60 });
    events.checkEventFreq({ 9'000, 50 });
    QCOMPARE(events.getAllEvents().at(0).duration, -1000);
    events.checkEventFreq({ 0, 60 });
    events.checkEventFreq({ (qint64(1) << 32) + 5, 50 });
    QCOMPARE(events.getAllEvents().at(1).duration, 5);
}

void TstPowerEvents::tableHoldsTheNewestTenOldestFirst()
{
    PowerEvents events(exactSettings(), 1);
    ModbusEventTable table;
    connect(&events, &PowerEvents::mbEventsChanged, this, [&](const QByteArray &bytes) {
        QCOMPARE(bytes.size(), int(sizeof table));
        memcpy(&table, bytes.constData(), sizeof table);
    });
    for (int i = 0; i < 11; ++i) {
        events.checkEventUnbal({ 1000 * (i + 1), 10.0f + i });
        if (i == 9) {
            QCOMPARE(table.row[0].value, 10.0f);
            QCOMPARE(table.row[9].finished, quint16(0));
        }
        events.checkEventUnbal({ 1000 * (i + 1) + 250, 1 });
    }
    QCOMPARE(table.head.start, 5000u);
    QCOMPARE(table.head.length, 100u);
    for (int row = 0; row < 10; ++row) {
        QCOMPARE(table.row[row].valid, quint16(1));
        QCOMPARE(table.row[row].finished, quint16(1));
        QCOMPARE(table.row[row].type, quint16(31));
        QCOMPARE(table.row[row].channel, quint16(0));
        QCOMPARE(table.row[row].startSeconds, quint32(row + 2));
        QCOMPARE(table.row[row].value, 11.0f + row);
        QCOMPARE(table.row[row].duration, 250);
    }
}

void TstPowerEvents::tableKeepsTheRegistersOfAnUnusedRow()
{
    PowerEvents events(exactSettings(), 1);
    ModbusEventTable table;
    connect(&events, &PowerEvents::mbEventsChanged, this,
            [&](const QByteArray &bytes) { memcpy(&table, bytes.constData(), sizeof table); });
    events.checkEventUnbal({ 5000, 3 });
    events.clear();
    events.refreshMbEvents();
    QCOMPARE(table.row[0].valid, quint16(0));
    QCOMPARE(table.row[0].type, quint16(31));
    QCOMPARE(table.row[0].value, 3.0f);
}

void TstPowerEvents::refreshWithoutEventsMarksAllRowsUnused()
{
    PowerEvents events(exactSettings(), 1);
    QSignalSpy table(&events, &PowerEvents::mbEventsChanged);
    events.refreshMbEvents();
    QCOMPARE(table.count(), 1);
    const QByteArray bytes = table.at(0).at(0).toByteArray();
    QCOMPARE(bytes.mid(8), QByteArray(200, '\0'));
}

void TstPowerEvents::indicesBeyondTheTablesAreIgnored()
{
    PowerEvents events(exactSettings(), 1);
    for (const int phase : { -1, 3, 1 << 30 }) {
        events.checkEventVolt(phase, { 0, 500 });
        events.checkEventFlicker(phase, { 0, 500 });
        events.checkEventHarm(phase, 0, { 0, 500 });
    }
    for (const int index : { -1, 25, 1 << 30 })
        events.checkEventHarm(0, index, { 0, 500 });
    QVERIFY(events.getAllEvents().isEmpty());
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

void TstPowerEvents::notNumbersEndNothingEarlyAndHangNothing()
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float inf = std::numeric_limits<float>::infinity();
    const float odd[] = { nan, inf, -inf, 1e30f, -1e30f, 1e-45f, std::numeric_limits<float>::max(), 0, -0.0f };
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(nan, nan, nan, nan, nan, nan); // neither below nor above anything
    QVERIFY(events.getAllEvents().isEmpty());
    quint32 pick = 1;
    const auto next = [&] {
        pick = pick * 1664525u + 1013904223u;
        return odd[(pick >> 16) % std::size(odd)];
    };
    for (int i = 0; i < 20'000; ++i) {
        in.feed(next(), next(), next(), next(), next(), next());
        if (i % 7 == 0)
            in.time -= 86'400'000; // a day back
        if (i % 11 == 0)
            in.time += 86'400'000LL * 3;
        const _value_with_time value = { in.time, next() };
        events.checkEventFreq(value);
        events.checkEventVolt(i % 3, value);
        events.checkEventUnbal(value);
        events.checkEventHarm(i % 3, i % 25, value);
        events.checkEventFlicker(i % 3, value);
    }
    QVERIFY(events.eventCounter() <= 10'001);
    QVERIFY(events.getAllEvents().size() <= 10'001);
}

void TstPowerEvents::aMillionEventsStopAtTheLimit()
{
    PowerEvents events(exactSettings(), 1);
    for (int i = 0; i < 1'000'000; ++i) {
        events.checkEventUnbal({ i, 3 });
        events.checkEventUnbal({ i, 1 });
    }
    QCOMPARE(events.eventCounter(), 10'000);
    QCOMPARE(events.getAllEvents().size(), 10'000);
}

QTEST_GUILESS_MAIN(TstPowerEvents)
#include "tst_powerevents.moc"
