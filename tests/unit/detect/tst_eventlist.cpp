#include "eventstream.h"

#include <QSignalSpy>
#include <QTest>

#include <cstring>
#include <limits>

// The slow checks, the list of events with its limit and signals, the Modbus table, and bad input.

class TstEventList : public QObject
{
    Q_OBJECT

private slots:
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
    void notNumbersEndNothingEarlyAndHangNothing();
    void aMillionEventsStopAtTheLimit();
    void aMillionSwellsLeaveListsCurvesAndTableBounded();
};

using Check = void (*)(PowerEvents &, const _value_with_time &);
Q_DECLARE_METATYPE(Check)

void TstEventList::slowChecksStartKeepTheExtremeAndEnd_data()
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

void TstEventList::slowChecksStartKeepTheExtremeAndEnd()
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

void TstEventList::frequencyExtremeMovesOnlyFartherFromNominal()
{
    PowerEvents events(exactSettings(), 1);
    events.checkEventFreq({ 0, 48.0f });
    events.checkEventFreq({ 10, 51.5f }); // 1.5 away: not farther than 2.0
    events.checkEventFreq({ 20, 52.0f }); // 2.0 away: not farther
    events.checkEventFreq({ 30, 50.0f });
    QCOMPARE(events.getAllEvents().at(0).value, 48.0f);
}

void TstEventList::harmonicsOfEachPhaseAndOrderRunApart()
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

void TstEventList::finishTakesTheFirstUnfinishedEventOfTheType()
{
    // Kept: the entry is found by its type alone, and its channel is overwritten.
    PowerEvents events(exactSettings(), 1);
    events.checkEventVolt(0, { 10, 150 });
    events.checkEventVolt(1, { 20, 160 });
    events.checkEventVolt(1, { 30, 200 });
    QCOMPARE(events.getAllEvents().at(0).finished, 1);
    QCOMPARE(events.getAllEvents().at(0).channel, 1);
    QCOMPARE(events.getAllEvents().at(0).value, 160.0f);
    QCOMPARE(events.getAllEvents().at(1).finished, 0);
}

void TstEventList::atTenThousandASwellStartsAndAFrequencyEventDoesNot()
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
    QCOMPARE(events.getAllEvents().at(events.getAllEvents().size() - 1).type, 28);
}

void TstEventList::atTenThousandAndOneNothingStartsButRunningEventsEnd()
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
    const EventList &all = events.getAllEvents();
    QCOMPARE(all.size(), 10'001);
    QCOMPARE(all.at(9'999).finished, 1);
    QCOMPARE(all.at(10'000).finished, 1);
    in.feed(230, 5, 5);
    in.feed(5, 5, 5);
    QCOMPARE(events.eventCounter(), 10'001);
}

void TstEventList::newEventTellsListWaveTableAndBuzzerInThisOrder()
{
    PowerEvents events(exactSettings(), 1);
    QStringList reported;
    connect(&events.getAllEvents(), &EventList::changed, this, [&](int place) {
        reported << QStringLiteral("place %1 of %2").arg(place).arg(events.getAllEvents().size());
    });
    connect(&events, &PowerEvents::changeEventsWave, this,
            [&](long long time) { reported << QStringLiteral("wave %1").arg(time); });
    connect(&events, &PowerEvents::mbEventsChanged, this,
            [&](const QByteArray &table) { reported << QStringLiteral("table %1").arg(table.size()); });
    connect(&events, &PowerEvents::buzzerRing, this,
            [&](unsigned int ring) { reported << QStringLiteral("buzzer %1").arg(ring); });
    connect(&events, &PowerEvents::eventFinished, this,
            [&](const PQAEventItem &event) { reported << QStringLiteral("finished %1").arg(event.type); });
    EventStream in(events);
    in.feed(230, 200, 200);
    QCOMPARE(reported, (QStringList { "place 0 of 1", "wave 1000000", "table 208", "buzzer 0" }));
    reported.clear();
    in.feed(200, 200, 200);
    QCOMPARE(reported, (QStringList { "finished 28", "place 0 of 1", "table 208" }));
}

void TstEventList::clearEmptiesTheListsAndKeepsCounterAndStates()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(230, 200, 200);
    QSignalSpy cleared(&events.getAllEvents(), &EventList::cleared);
    events.clear();
    QCOMPARE(cleared.count(), 1);
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

void TstEventList::runningEventHasNoDurationAndEndsWithIt()
{
    PowerEvents events(exactSettings(), 1);
    EventStream in(events);
    in.feed(10, 230);
    const PQAEventItem event = events.getAllEvents().at(0);
    QCOMPARE(event.finished, 0);
    QCOMPARE(event.duration, 0);
    QCOMPARE(event.endTime, event.startTime);
}

void TstEventList::timeBackwardsGivesLow32BitsOfTheDifference()
{
    PowerEvents events(exactSettings(), 1);
    events.checkEventFreq({ 10'000, 60 });
    events.checkEventFreq({ 9'000, 50 });
    QCOMPARE(events.getAllEvents().at(0).duration, -1000);
    events.checkEventFreq({ 0, 60 });
    events.checkEventFreq({ (qint64(1) << 32) + 5, 50 });
    QCOMPARE(events.getAllEvents().at(1).duration, 5);
}

void TstEventList::tableHoldsTheNewestTenOldestFirst()
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

void TstEventList::tableKeepsTheRegistersOfAnUnusedRow()
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

void TstEventList::refreshWithoutEventsMarksAllRowsUnused()
{
    PowerEvents events(exactSettings(), 1);
    QSignalSpy table(&events, &PowerEvents::mbEventsChanged);
    events.refreshMbEvents();
    QCOMPARE(table.count(), 1);
    const QByteArray bytes = table.at(0).at(0).toByteArray();
    QCOMPARE(bytes.mid(8), QByteArray(200, '\0'));
}

void TstEventList::indicesBeyondTheTablesAreIgnored()
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

void TstEventList::notNumbersEndNothingEarlyAndHangNothing()
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

void TstEventList::aMillionEventsStopAtTheLimit()
{
    PowerEvents events(exactSettings(), 1);
    for (int i = 0; i < 1'000'000; ++i) {
        events.checkEventUnbal({ i, 3 });
        events.checkEventUnbal({ i, 1 });
    }
    QCOMPARE(events.eventCounter(), 10'000);
    QCOMPARE(events.getAllEvents().size(), 10'000);
}

void TstEventList::aMillionSwellsLeaveListsCurvesAndTableBounded()
{
    EventSettings settings = exactSettings();
    settings.rvc = {}; // not what is looked at, and most of the work
    PowerEvents events(settings, 1);
    ModbusEventTable table;
    connect(&events, &PowerEvents::mbEventsChanged, this,
            [&](const QByteArray &bytes) { memcpy(&table, bytes.constData(), sizeof table); });
    int complete = 0;
    connect(&events, &PowerEvents::eventFinishedWithRMS, this, [&] { ++complete; });

    // Two seconds between half cycles: the history spans three seconds with two samples, and three at most are copied.
    qint64 time = 0;
    QList<_value_with_time> values;
    for (int input = 0; input < 8; ++input)
        values.append({ 0, input < 4 ? 200.0f : 0.0f });
    const auto feed = [&](float volts) {
        for (_value_with_time &value : values)
            value.time = time;
        values[0].value = volts;
        events.checkPowerEvents(values);
        time += 2000;
    };
    for (int i = 0; i < 1'000'000; ++i) {
        feed(230);
        feed(200);
    }
    QCOMPARE(events.eventCounter(), 10'001);
    const QList<PQAEventItem> full = events.getFullEvents();
    QCOMPARE(events.getAllEvents().size(), 10'001);
    QCOMPARE(full.size(), 10'001);
    QCOMPARE(complete, 10'001);
    for (const PQAEventItem &event : full) {
        for (int input = 0; input < 8; ++input) {
            // Two seconds before the start to two after the end, each half cycle once.
            QVERIFY(event.startRms[input].size() <= 4);
            QVERIFY(event.endRms[input].isEmpty());
        }
    }
    // Swell n began at 4 n seconds; the last is number 10000.
    for (int row = 0; row < 10; ++row) {
        QCOMPARE(table.row[row].valid, quint16(1));
        QCOMPARE(table.row[row].startSeconds, quint32(4 * (9'991 + row)));
        QCOMPARE(table.row[row].duration, 2000);
    }
}

QTEST_GUILESS_MAIN(TstEventList)
#include "tst_eventlist.moc"
