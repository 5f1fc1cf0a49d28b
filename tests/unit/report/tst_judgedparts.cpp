#include "unit/report/fedrecording.h"

#include <QTest>

namespace {
constexpr qint64 kStart = FedRecording::kStart;
constexpr qint64 kStep = FedRecording::kTenMinutes;
} // namespace

/// Which parts of a recording are judged, and what is said of those that are not.
class TstJudgedParts : public QObject
{
    Q_OBJECT

private slots:
    void mainsSignalsNeedThreeSeconds();
    void mainsSignalsOfASecondAreJudgedByTheirThreeSeconds();
    void mainsSignalsBehindATransformerAreTakenOfItsPrimaryVoltage();
    void sequencesOfFewerThanThreePhasesAreNotJudged_data();
    void sequencesOfFewerThanThreePhasesAreNotJudged();
    void aWeekOfWhichMostIsMissingIsNotGreen();
    void aSingleRowIsNoIntervalOfTenMinutes();
    void eventsOfTheDayBeforeAreNotCountedWhenTheClocksDiffer();
    void mainsSignalsAreJudgedDayByDay();
    void whatIsMissingIsNamed();
    void whatWasFoundBeforeTheRecordingIsListedAndNotCounted();
};

void TstJudgedParts::mainsSignalsNeedThreeSeconds()
{
    const QVector<RecordColumn> columns { { "U_signal1", Statistic::Mean, "L1", "V" } };
    const QuantityKey key { Quantity::Signal1, 0, 0 };
    for (const qint64 interval : { 1000, 3000, 6000, 10000 }) {
        FedRecording r;
        r.facts.end = kStart + 6 * kStep;
        r.fill(r.table("signalling", columns), interval, [](int) { return std::vector<double> { 13.8 }; });
        const Judgement j = judged(r);
        if (interval <= 3000) {
            QCOMPARE(j.find(key)->judged, 1200);
            QCOMPARE(j.find(key)->partial, Outcome::Fail); // 6 percent, 5 are allowed
        } else {
            QCOMPARE(j.find(key)->judged, 0);
        }
    }
}

void TstJudgedParts::mainsSignalsOfASecondAreJudgedByTheirThreeSeconds()
{
    FedRecording r;
    r.facts.end = kStart + 6 * kStep;
    const int table = r.table("signalling", { { "U_signal1", Statistic::Mean, "L1", "V" } });
    // 14 V of each third second are 6.1 percent; of the three seconds the r.m.s. is 8.1 V, 3.5 percent.
    r.fill(table, 1000, [](int i) { return std::vector<double> { i % 3 == 0 ? 14.0 : 0.0 }; });
    const QuantityVerdict v = *judged(r).find({ Quantity::Signal1, 0, 0 });
    QCOMPARE(v.judged, 1200);
    QCOMPARE(v.partial, Outcome::Pass);
    QVERIFY(std::fabs(v.worst - 100 * std::sqrt(14.0 * 14 / 3) / 230) < 1e-4);
    // Twenty minutes of the hour are a third of it.
    FedRecording part;
    part.facts.end = kStart + 6 * kStep;
    const int rows = part.table("signalling", { { "U_signal1", Statistic::Mean, "L1", "V" } });
    for (int second = 1; second <= 1200; ++second)
        part.row(rows, kStart + second * 1000, { 1 });
    QCOMPARE(judged(part).find({ Quantity::Signal1, 0, 0 })->judged, 400);
}

void TstJudgedParts::mainsSignalsBehindATransformerAreTakenOfItsPrimaryVoltage()
{
    // 20 kV by a transformer of 20000/100: the recorded ratio is that of 200 V and 100 V, the truth is 1 percent.
    FedRecording r;
    r.facts.end = kStart + 6 * kStep;
    r.facts.nominalVolt = 20000;
    const int table
        = r.table("signalling",
                  { { "U_signal1_ratio", Statistic::Mean, "L1", "" }, { "U_signal1", Statistic::Mean, "L1", "V" } });
    r.fill(table, 3000, [](int) { return std::vector<double> { 2, 200 }; });
    const QuantityVerdict v = *judged(r).find({ Quantity::Signal1, 0, 0 });
    QCOMPARE(v.worst, 1.0);
    QCOMPARE(v.partial, Outcome::Pass);
    r.facts.nominalVolt = 0;
    const Judgement without = judged(r);
    const auto isSignal = [](const NotJudged &rest) { return rest.quantity == Quantity::Signal1; };
    const auto at = std::find_if(without.notJudged.begin(), without.notJudged.end(), isSignal);
    QVERIFY(at != without.notJudged.end());
    QCOMPARE(at->why, NotJudgedBecause::NoNominal);
}

void TstJudgedParts::sequencesOfFewerThanThreePhasesAreNotJudged_data()
{
    QTest::addColumn<int>("joinMode");
    QTest::addColumn<bool>("isJudged");
    for (int mode = 1; mode <= 10; ++mode)
        QTest::addRow("wiring %d", mode) << mode << (mode != 3 && mode != 5 && mode != 6);
}

void TstJudgedParts::sequencesOfFewerThanThreePhasesAreNotJudged()
{
    QFETCH(int, joinMode);
    QFETCH(bool, isJudged);
    FedRecording r;
    r.facts.joinMode = joinMode;
    r.facts.end = kStart + 6 * kStep;
    r.fill(r.table("unbalance", { { "U_negative_ratio", Statistic::Mean, "", "%" } }), 3000,
           [](int) { return std::vector<double> { 100 }; });
    const Judgement j = judged(r);
    QCOMPARE(j.outcome() == Outcome::Fail, isJudged);
    QCOMPARE(j.find({ Quantity::Unbalance, -1, 0 }) != nullptr, isJudged);
    QVERIFY(std::none_of(j.notJudged.begin(), j.notJudged.end(),
                         [](const NotJudged &rest) { return rest.quantity == Quantity::Unbalance; }));
}

void TstJudgedParts::aWeekOfWhichMostIsMissingIsNotGreen()
{
    FedRecording r;
    const int table = r.table("monitor_voltage", FedRecording::voltages());
    for (int i = 1; i <= 72; ++i) // its first twelve hours
        r.row(table, kStart + i * kStep, { 230, 230, 230 });
    const Judgement j = judged(r);
    QCOMPARE(j.gaps.size(), 1);
    QCOMPARE(j.gaps[0].quantity, Quantity::Voltage);
    QVERIFY(std::fabs(j.gaps[0].covered - 100.0 / 14) < 1e-6);
    Judgement alone = j;
    alone.notJudged.clear();
    QVERIFY(alone.leavesOut());
    // A tenth may be missing, and what an interruption took is not missing.
    FedRecording most;
    const int nearly = most.table("monitor_voltage", FedRecording::voltages());
    for (int i = 1; i <= 908; ++i)
        most.row(nearly, kStart + i * kStep, { 230, 230, 230 });
    most.event(EventInterruption, kStart + 10 * kStep, kStart + 300 * kStep, 0);
    QVERIFY(judged(most).gaps.isEmpty());
}

void TstJudgedParts::aSingleRowIsNoIntervalOfTenMinutes()
{
    FedRecording r;
    r.facts.end = kStart + 6 * kStep;
    r.row(r.table("rms", FedRecording::voltages()), kStart + 1000, { 230, 230, 230 });
    const Judgement j = judged(r);
    const auto isVoltage = [](const NotJudged &rest) { return rest.quantity == Quantity::Voltage; };
    const auto at = std::find_if(j.notJudged.begin(), j.notJudged.end(), isVoltage);
    QVERIFY(at != j.notJudged.end());
    QCOMPARE(at->why, NotJudgedBecause::NoValue); // how long it is cannot be known
}

void TstJudgedParts::eventsOfTheDayBeforeAreNotCountedWhenTheClocksDiffer()
{
    // The processor's clock is five seconds behind the instrument's: the first value lies before the start.
    FedRecording r;
    r.facts.end = kStart + FedRecording::kDay;
    r.fill(r.table("rms", FedRecording::voltages()), 1000, [](int) { return std::vector<double> { 230, 230, 230 }; });
    r.row(0, kStart - 4000, { 230, 230, 230 });
    for (int i = 0; i < 5; ++i)
        r.event(EventInterruption, kStart - FedRecording::kDay + i * 60000,
                kStart - FedRecording::kDay + i * 60000 + 500, 0);
    r.event(EventDip, kStart - 4500, kStart - 4100, 150); // in the first value
    const Judgement j = judged(r);
    for (const EventCount &count : j.eventCounts)
        QCOMPARE(count.count, count.type == EventDip ? 1 : 0);
}

void TstJudgedParts::mainsSignalsAreJudgedDayByDay()
{
    // One percent of a day are 288 values. 400 lie outside, all on the second day: seven in a thousand of both days.
    FedRecording r;
    r.facts.end = kStart + 2 * FedRecording::kDay;
    const int table = r.table("signalling", { { "U_signal1", Statistic::Mean, "L1", "V" } });
    r.fill(table, 3000, [](int i) { return std::vector<double> { i >= 30000 && i < 30400 ? 13.8 : 9.2 }; });
    const Judgement j = judged(r);
    const QuantityVerdict *v = j.find({ Quantity::Signal1, 0, 0 });
    QCOMPARE(v->judged, 57600);
    QCOMPARE(v->weeks, 2);
    QCOMPARE(v->weeksFailed, 1);
    QCOMPARE(v->partial, Outcome::Fail);
    QCOMPARE(v->worstWeek, kStart + FedRecording::kDay);
}

void TstJudgedParts::whatIsMissingIsNamed()
{
    FedRecording r;
    r.fill(r.table("monitor_voltage", FedRecording::voltages()), kStep, [](int) {
        return std::vector<double> { 230, 230, 230 };
    });
    QVector<Quantity> missing;
    for (const NotJudged &rest : judged(r).notJudged) {
        QCOMPARE(rest.why, NotJudgedBecause::NotRecorded);
        missing.append(rest.quantity);
    }
    QCOMPARE(missing,
             (QVector<Quantity> { Quantity::Frequency, Quantity::Unbalance, Quantity::Thd, Quantity::Harmonic,
                                  Quantity::Plt, Quantity::Signal1, Quantity::Signal2 }));
}

void TstJudgedParts::whatWasFoundBeforeTheRecordingIsListedAndNotCounted()
{
    FedRecording r;
    const int u = r.table("monitor_voltage", FedRecording::voltages(1));
    r.fill(u, kStep, [](int) { return std::vector<double> { 230 }; });
    const int events = r.table("events", {});
    const qint64 begins[] = { kStart - 90000, kStart - 50, kStart + 5000 }; // over; runs into the recording; in it
    for (const qint64 begin : begins) {
        r.event(EventDip, begin, begin + 100, 180);
        r.row(events, begin, {});
    }
    const Judgement j = judged(r);
    QCOMPARE(j.overview.start, kStart);
    QCOMPARE(j.overview.events.size(), 3);
    QCOMPARE(j.eventCounts.first().all, 3);
    QCOMPARE(j.eventCounts.first().count, 2);

    // With clocks apart the start says nothing about an event: the interval of the first value does.
    r.facts.start = kStart + 12 * kStep;
    QCOMPARE(judged(r).eventCounts.first().count, 2);
}

QTEST_GUILESS_MAIN(TstJudgedParts)
#include "tst_judgedparts.moc"
