#include "unit/report/fedrecording.h"

#include <QTest>

namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
constexpr qint64 kStart = FedRecording::kStart;
constexpr qint64 kStep = FedRecording::kTenMinutes;

const QuantityKey kFrequency { Quantity::Frequency, -1, 0 };
QuantityKey voltage(int phase)
{
    return { Quantity::Voltage, qint8(phase), 0 };
}

QVector<RecordColumn> monitorHarmonics()
{
    QVector<RecordColumn> columns { { "U_distortion", Statistic::Mean, "L1", "percent" } };
    for (int order = 2; order <= 50; ++order)
        columns.append(
            { "Uh" + QByteArray::number(order), Statistic::Mean, "L1", "percent", CellType::Single, qint16(order) });
    columns.append({ "I_distortion", Statistic::Mean, "L1", "percent" });
    return columns;
}

} // namespace

/// What a whole recording comes to. Expected results are worked out by hand.
class TstRecordJudge : public QObject
{
    Q_OBJECT

private slots:
    void aCleanWeekPasses();
    void theInstrumentAgreesAboutACleanWeek();
    void aBadWeekFailsWhereTheInstrumentPasses();
    void harmonicsAreJudgedOrderByOrder();
    void anInterruptionTakesItsIntervalsOut();
    void longTermFlickerCountsForTwoHours();
    void aDipFlagsItsInterval();
    void timesWithoutAVoltageAreNotJudged();
    void shortIntervalsMakeTenMinutes();
    void intervalsThatAreTooLongAreNamed();
    void harmonicsInVoltsAreTakenOfTheirFundamental();
    void withoutANominalValueNothingIsHidden();
    void eventsAreCountedByTheWeek();
    void anEventAtMidnightBelongsToTheWeekThatBegins();
    void anInterruptionThatGoesOnLastsUntilTheEnd();
    void aVoltageAtTheThresholdIsOne();
    void timeWithoutAVoltageBeginsAtTheRowBefore();
    void extremesAreNotJudged();
    void theInstrumentsResultIsThatOfTheQuantity();
    void theWorstEventsGetTheirPicture();
    void anInterruptionThatGoesOnIsAsLongAsTheRecording();
    void theFirstTransientsGetTheirPicture();
    void aPictureHasNoMoreSamplesThanAreSeen();
    void aCurveOfAPictureHasItsBound();
    void theFirstLinesOfTheLogAreKept();
    void clocksThatAreApartLoseNoTime();
    void anEmptyRecordingIsNotJudged();
    void wildTimesAndTablesAreHarmless();
};

void TstRecordJudge::aCleanWeekPasses()
{
    FedRecording r;
    const int u = r.table("monitor_voltage", FedRecording::voltages());
    const int f = r.table("monitor_frequency", { { "f", Statistic::Mean, "", "Hz" } });
    r.fill(u, kStep, [](int) { return std::vector<double> { 230, 231, 229 }; });
    r.fill(f, 10000, [](int) { return std::vector<double> { 50.01 }; });
    const Judgement j = judged(r);
    QCOMPARE(j.outcome(), Outcome::Pass);
    QVERIFY(j.weeks.isWhole());
    for (int phase = 0; phase < 3; ++phase) {
        const QuantityVerdict *v = j.find(voltage(phase));
        QVERIFY(v);
        QCOMPARE(v->judged, 1008);
        QCOMPARE(v->shareWithin, 100.0);
    }
    QCOMPARE(j.find(voltage(1))->atShare, 231.0);
    QCOMPARE(j.find(kFrequency)->judged, 60480);
    QCOMPARE(j.find(kFrequency)->covered(j.overview.length()), 100.0);
    QCOMPARE(j.trends.size(), 4);
}

void TstRecordJudge::theInstrumentAgreesAboutACleanWeek()
{
    FedRecording r;
    const int u = r.table("monitor_voltage", FedRecording::voltages(1));
    r.fill(u, kStep, [](int) { return std::vector<double> { 230 }; });
    const Judgement j = judged(r);
    const InstrumentResult *own = j.instrumentOf(voltage(0));
    QVERIFY(own && own->partialOk && own->wholeOk);
    QVERIFY(!j.instrumentOf(kFrequency)); // nothing was stored
}

void TstRecordJudge::aBadWeekFailsWhereTheInstrumentPasses()
{
    // A tenth lies at 200 V. The instrument is content with one value within 0.1 V, since it compares hundred times the
    // volts with ten percent.
    FedRecording r;
    const int u = r.table("monitor_voltage", FedRecording::voltages(1));
    r.fill(u, kStep, [](int i) { return std::vector<double> { i % 10 ? 230.05 : 200 }; });
    const Judgement bad = judged(r);
    QCOMPARE(bad.find(voltage(0))->partial, Outcome::Fail);
    QCOMPARE(bad.find(voltage(0))->whole, Outcome::Pass);
    QVERIFY(bad.instrumentOf(voltage(0))->partialOk);
    // And the other way round: always 231 V is within ten percent of 230 V, but not within 0.1 V.
    FedRecording good;
    const int table = good.table("monitor_voltage", FedRecording::voltages(1));
    good.fill(table, kStep, [](int) { return std::vector<double> { 231 }; });
    const Judgement well = judged(good);
    QCOMPARE(well.find(voltage(0))->outcome(), Outcome::Pass);
    QVERIFY(!well.instrumentOf(voltage(0))->partialOk);
}

void TstRecordJudge::harmonicsAreJudgedOrderByOrder()
{
    // Order 5 may have 6 percent: a twentieth of the week has 7, 50 of 1008 are allowed. Order 7 has 5.1 in six
    // percent.
    FedRecording r;
    const int h = r.table("monitor_harmonics", monitorHarmonics());
    r.fill(h, kStep, [](int i) {
        std::vector<double> row(51, 0.1);
        row[0] = 4; // distortion
        row[4] = i < 50 ? 7 : 5.9; // order 5
        row[6] = i < 60 ? 5.1 : 1; // order 7
        row[50] = 90; // distortion of the current is not judged
        return row;
    });
    const Judgement j = judged(r);
    const auto of = [&j](int order) { return j.find({ Quantity::Harmonic, 0, qint16(order) }); };
    QCOMPARE(j.find({ Quantity::Thd, 0, 0 })->partial, Outcome::Pass);
    QCOMPARE(of(5)->partial, Outcome::Pass);
    QVERIFY(std::abs(of(5)->atShare - 5.9) < 1e-6); // a float
    QCOMPARE(of(7)->partial, Outcome::Fail);
    QCOMPARE(of(26)->outcome(), Outcome::NotApplied);
    QCOMPARE(j.outcome(), Outcome::Fail);
    QVERIFY(!j.instrumentOf({ Quantity::Harmonic, 0, 5 })->partialOk); // one value outside is enough there
    QVERIFY(!j.instrumentOf({ Quantity::Harmonic, 0, 26 }));
}

void TstRecordJudge::anInterruptionTakesItsIntervalsOut()
{
    FedRecording r;
    const int u = r.table("monitor_voltage", FedRecording::voltages(1));
    r.fill(u, kStep, [](int i) { return std::vector<double> { i == 10 || i == 11 ? 100.0 : 230.0 }; });
    r.event(EventInterruption, kStart + 10 * kStep + 300000, kStart + 11 * kStep + 100000, 0);
    const Judgement j = judged(r);
    QCOMPARE(j.find(voltage(0))->leftOut, 2);
    QCOMPARE(j.find(voltage(0))->judged, 1006);
    QCOMPARE(j.find(voltage(0))->outcome(), Outcome::Pass);
}

void TstRecordJudge::longTermFlickerCountsForTwoHours()
{
    constexpr qint64 kTwoHours = 12 * kStep;
    FedRecording r;
    r.facts.end = kStart + FedRecording::kDay;
    const int table = r.table("monitor_flicker_plt", { { "Plt", Statistic::None, "L1", "" } });
    r.fill(table, kTwoHours, [](int) { return std::vector<double> { 0.5 }; });
    // In the first ten minutes of the second value.
    r.event(EventInterruption, kStart + kTwoHours + 100000, kStart + kTwoHours + 200000, 0);
    const Judgement j = judged(r);
    const QuantityVerdict *v = j.find({ Quantity::Plt, 0, 0 });
    QCOMPARE(v->leftOut, 1);
    QCOMPARE(v->judged, 11);
    QVERIFY(std::abs(v->covered(FedRecording::kDay) - 11 * 100.0 / 12) < 1e-9);
}

void TstRecordJudge::aDipFlagsItsInterval()
{
    FedRecording r;
    const int u = r.table("monitor_voltage", FedRecording::voltages(1));
    r.fill(u, kStep, [](int) { return std::vector<double> { 230.0 }; });
    r.event(EventDip, kStart + 5 * kStep + 1000, kStart + 5 * kStep + 1200, 150);
    const Judgement j = judged(r);
    QCOMPARE(j.find(voltage(0))->flagged, 1);
    QCOMPARE(j.find(voltage(0))->judged, 1008);
}

void TstRecordJudge::timesWithoutAVoltageAreNotJudged()
{
    FedRecording r;
    r.facts.end = kStart + 12 * kStep;
    const int u = r.table("monitor_voltage", FedRecording::voltages());
    const int f = r.table("monitor_frequency", { { "f", Statistic::Mean, "", "Hz" } });
    r.fill(u, kStep, [](int) { return std::vector<double> { 0.3, 0.2, 0 }; }); // below 1 percent
    r.fill(f, 10000, [](int) { return std::vector<double> { 0 }; });
    const Judgement j = judged(r);
    QVERIFY(j.overview.hasVoltage);
    QVERIFY(!j.overview.hasLiveVoltage);
    QCOMPARE(j.find(voltage(0))->leftOut, 12);
    QCOMPARE(j.find(kFrequency)->leftOut, 720);
    QCOMPARE(j.outcome(), Outcome::NotJudged);
}

void TstRecordJudge::shortIntervalsMakeTenMinutes()
{
    FedRecording r;
    r.facts.kind = RecordKind::Recording;
    r.facts.end = kStart + 2 * kStep;
    QVector<RecordColumn> columns = FedRecording::voltages(1);
    columns.append({ "U_rms", Statistic::Maximum, "L1", "V" });
    columns.append({ "U_rms", Statistic::Mean, "N", "V" });
    const int u = r.table("rms", columns);
    r.fill(u, 1000, [](int i) { return std::vector<double> { i % 2 ? 220.0 : 240.0, 400, 900 }; });
    const Judgement j = judged(r);
    const QuantityVerdict *v = j.find(voltage(0));
    QCOMPARE(v->judged, 2);
    QVERIFY(std::abs(v->atShare - std::sqrt((220.0 * 220 + 240.0 * 240) / 2)) < 1e-4);
    QVERIFY(j.instrument.isEmpty()); // the monitor alone has results
    QVERIFY(!j.find({ Quantity::Voltage, -1, 0 })); // the neutral
}

void TstRecordJudge::intervalsThatAreTooLongAreNamed()
{
    FedRecording r;
    r.facts.kind = RecordKind::Recording;
    const int u = r.table("rms", FedRecording::voltages(1));
    r.fill(u, 3 * kStep, [](int) { return std::vector<double> { 230 }; });
    const Judgement j = judged(r);
    QCOMPARE(j.find(voltage(0))->judged, 0);
    const auto at = std::find_if(j.notJudged.begin(), j.notJudged.end(),
                                 [](const NotJudged &rest) { return rest.quantity == Quantity::Voltage; });
    QVERIFY(at != j.notJudged.end());
    QCOMPARE(at->why, NotJudgedBecause::IntervalTooLong);
}

void TstRecordJudge::harmonicsInVoltsAreTakenOfTheirFundamental()
{
    FedRecording r;
    r.facts.end = kStart + 4 * kStep;
    QVector<RecordColumn> columns { { "U_distortion", Statistic::Mean, "L1", "V" },
                                    { "U_fundamental", Statistic::Mean, "L1", "V" },
                                    { "U_fundamental", Statistic::Minimum, "L1", "V" },
                                    { "Uh05", Statistic::Mean, "L1", "V", CellType::Single, 5 } };
    const int h = r.table("harmonics_u", columns);
    r.fill(h, kStep, [](int i) { return std::vector<double> { 9.2, i == 2 ? 0.0 : i == 3 ? -230.0 : 230.0, 1, 4.6 }; });
    const Judgement j = judged(r);
    QCOMPARE(j.find({ Quantity::Thd, 0, 0 })->atShare, 4.0);
    QCOMPARE(j.find({ Quantity::Harmonic, 0, 5 })->atShare, 2.0);
    QCOMPARE(j.find({ Quantity::Harmonic, 0, 5 })->withoutNumber, 2); // without a fundamental
}

void TstRecordJudge::withoutANominalValueNothingIsHidden()
{
    FedRecording r;
    r.facts.nominalVolt = 0;
    r.fill(r.table("monitor_voltage", FedRecording::voltages()), kStep, [](int) {
        return std::vector<double> { 230, 230, 230 };
    });
    const Judgement j = judged(r);
    QCOMPARE(j.notJudged.at(1).quantity, Quantity::Voltage); // behind the frequency, which was not recorded
    QCOMPARE(j.notJudged.at(1).why, NotJudgedBecause::NoNominal);
    QVERIFY(j.outcome() != Outcome::Pass);
}

void TstRecordJudge::eventsAreCountedByTheWeek()
{
    FedRecording r;
    r.facts.end = kStart + 2 * FedRecording::kWeek;
    r.fill(r.table("monitor_voltage", FedRecording::voltages(1)), kStep,
           [](int) { return std::vector<double> { 230 }; });
    for (int i = 0; i < 42; ++i) // 21 in each week, 20 are allowed
        r.event(EventDip, kStart + i * FedRecording::kDay / 3 + 5000, kStart + i * FedRecording::kDay / 3 + 5100, 180);
    const Judgement j = judged(r);
    QCOMPARE(j.eventCounts.first().type, qint32(EventDip));
    QCOMPARE(j.eventCounts.first().all, 42);
    QCOMPARE(j.eventCounts.first().count, 21);
    QCOMPARE(j.outcomeOf(j.eventCounts.first()), Outcome::Fail);
    QCOMPARE(j.outcomeOf(j.eventCounts.at(1)), Outcome::Pass);
    QCOMPARE(j.outcome(), Outcome::Fail);
}

void TstRecordJudge::anEventAtMidnightBelongsToTheWeekThatBegins()
{
    FedRecording r;
    r.facts.end = kStart + 2 * FedRecording::kWeek;
    r.fill(r.table("monitor_voltage", FedRecording::voltages(1)), kStep,
           [](int) { return std::vector<double> { 230 }; });
    for (int i = 0; i < 20; ++i) // as many as are allowed
        r.event(EventDip, kStart + i * 10000 + 1, kStart + i * 10000 + 100, 180);
    r.event(EventDip, kStart + FedRecording::kWeek, kStart + FedRecording::kWeek + 100, 180);
    const Judgement j = judged(r);
    QCOMPARE(j.eventCounts.first().all, 21);
    QCOMPARE(j.eventCounts.first().count, 20);
    QCOMPARE(j.outcomeOf(j.eventCounts.first()), Outcome::Pass);
}

void TstRecordJudge::anInterruptionThatGoesOnLastsUntilTheEnd()
{
    FedRecording r;
    r.facts.end = kStart + 6 * kStep;
    r.fill(r.table("monitor_voltage", FedRecording::voltages(1)), kStep,
           [](int) { return std::vector<double> { 230 }; });
    r.event(EventInterruption, kStart + 3 * kStep + 1000, kStart + 3 * kStep + 1000, 0);
    r.events[0].item.finished = 0;
    const Judgement j = judged(r);
    QCOMPARE(j.find(voltage(0))->judged, 3);
    QCOMPARE(j.find(voltage(0))->leftOut, 3);
}

void TstRecordJudge::aVoltageAtTheThresholdIsOne()
{
    // One percent of 200 V.
    FedRecording r;
    r.facts.nominalVolt = 200;
    r.facts.end = kStart + 2 * kStep;
    const int u = r.table("monitor_voltage", FedRecording::voltages(1));
    r.row(u, kStart + kStep, { 2 });
    r.row(u, kStart + 2 * kStep, { 1.99 });
    const Judgement j = judged(r);
    QVERIFY(j.overview.hasLiveVoltage);
    QCOMPARE(j.find(voltage(0))->judged, 1);
    QCOMPARE(j.find(voltage(0))->leftOut, 1);
}

void TstRecordJudge::timeWithoutAVoltageBeginsAtTheRowBefore()
{
    FedRecording r;
    r.facts.end = kStart + 6 * kStep;
    const int u = r.table("rms", FedRecording::voltages(1));
    const int f = r.table("frequency_10s", { { "f", Statistic::None, "", "Hz" } });
    r.fill(u, 10000, [](int i) { return std::vector<double> { i == 200 ? 0.0 : 230.0 }; });
    r.fill(f, 10000, [](int) { return std::vector<double> { 50 }; });
    const Judgement j = judged(r);
    QCOMPARE(j.find(kFrequency)->leftOut, 1); // of 360
    QCOMPARE(j.find(kFrequency)->judged, 359);
}

void TstRecordJudge::extremesAreNotJudged()
{
    FedRecording r;
    r.facts.end = kStart + 6 * kStep;
    QVector<RecordColumn> columns { { "U_rms", Statistic::Maximum, "L1", "V" },
                                    { "U_rms", Statistic::Minimum, "L1", "V" } };
    r.fill(r.table("rms", columns), 10000, [](int) { return std::vector<double> { 400, 1 }; });
    QVERIFY(!judged(r).find(voltage(0)));
    columns.append(FedRecording::voltages(1));
    FedRecording whole;
    whole.facts.end = r.facts.end;
    whole.fill(whole.table("rms", columns), 10000, [](int) { return std::vector<double> { 400, 1, 230 }; });
    QCOMPARE(judged(whole).find(voltage(0))->outcome(), Outcome::Pass);
}

void TstRecordJudge::theInstrumentsResultIsThatOfTheQuantity()
{
    FedRecording r;
    const int plt = r.table("monitor_flicker_plt",
                            { { "Plt", Statistic::None, "L1", "" }, { "Plt", Statistic::None, "L2", "" } });
    const int unbalance = r.table("monitor_unbalance", { { "U_negative_ratio", Statistic::Mean, "", "percent" } });
    r.fill(plt, 12 * kStep, [](int) { return std::vector<double> { 0.5, 1.5 }; }); // 1 is allowed
    r.fill(unbalance, kStep, [](int) { return std::vector<double> { 3 }; }); // 2 is allowed
    const Judgement j = judged(r);
    const InstrumentResult *first = j.instrumentOf({ Quantity::Plt, 0, 0 });
    const InstrumentResult *second = j.instrumentOf({ Quantity::Plt, 1, 0 });
    const InstrumentResult *third = j.instrumentOf({ Quantity::Unbalance, -1, 0 });
    QVERIFY(first && second && third);
    QVERIFY(first->partialOk);
    QVERIFY(!second->partialOk);
    QVERIFY(!third->partialOk);
}

void TstRecordJudge::theWorstEventsGetTheirPicture()
{
    FedRecording r;
    for (int i = 0; i < 30; ++i)
        r.event(EventDip, kStart + i * 10000, kStart + i * 10000 + 100, float(190 - i));
    r.event(EventInterruption, kStart + 900000, kStart + 905000, 0);
    r.event(EventFrequency, kStart + 900000, kStart + 905000, 51);
    r.events[29].item.startRms[0] = { { kStart, 230 }, { kStart + 10, 161 } };
    const Judgement j = judged(r);
    QCOMPARE(j.moments.size(), 12);
    QCOMPARE(j.moments.at(0).event.item.type, qint32(EventInterruption));
    QCOMPARE(j.moments.at(1).event.number, 30); // the deepest
    QCOMPARE(j.moments.at(1).event.item.startRms[0].size(), 2);
    QCOMPARE(j.overview.events.at(29).item.startRms[0].size(), 0); // the others take no memory
}

void TstRecordJudge::anInterruptionThatGoesOnIsAsLongAsTheRecording()
{
    FedRecording r;
    for (int i = 0; i < 20; ++i) // more than there are pictures
        r.event(EventInterruption, kStart + i * 10000, kStart + i * 10000 + 5000, 0);
    r.event(EventInterruption, kStart + 900000, 0, 0);
    r.events[20].item.finished = 0;
    const Judgement j = judged(r);
    QCOMPARE(j.moments.size(), 12);
    QCOMPARE(j.moments.first().event.number, 21);
}

void TstRecordJudge::theFirstTransientsGetTheirPicture()
{
    FedRecording r;
    RecordedWaveform wave;
    wave.sampleRate = 1000;
    wave.channels = { { "U_L1", "L1", "V", 1 } };
    wave.origin = RecordedWaveform::Capture; // is none
    r.wave(wave, { 99 });
    wave.origin = RecordedWaveform::Transient;
    for (qint16 i = 0; i < 5; ++i)
        r.wave(wave, { i, i });
    const Judgement j = judged(r);
    QCOMPARE(j.moments.size(), 4);
    for (qint16 i = 0; i < 4; ++i)
        QCOMPARE(j.moments.at(i).samples, (QVector<qint16> { i, i }));
}

void TstRecordJudge::aPictureHasNoMoreSamplesThanAreSeen()
{
    FedRecording r;
    r.event(EventDip, kStart + 1000, kStart + 2000, 100);
    RecordedWaveform wave;
    wave.event = 1;
    wave.sampleRate = 1000;
    wave.channels = { { "U_L1", "L1", "V", 1 }, { "U_L2", "L2", "V", 1 }, { "U_L3", "L3", "V", 1 } };
    r.wave(wave, QVector<qint16>(3 * 30000, 7));
    QCOMPARE(judged(r).moments.first().samples.size(), 65535); // whole samples of three inputs within 65536
}

void TstRecordJudge::aCurveOfAPictureHasItsBound()
{
    FedRecording r;
    r.event(EventDip, kStart + 1000, kStart + 2000, 100);
    r.events[0].item.startRms[4].fill({ kStart, 5 }, 5000);
    r.events[0].item.endRms[7].fill({ kStart, 5 }, 5000);
    const Judgement j = judged(r);
    QCOMPARE(j.moments.first().event.item.startRms[4].size(), 4096);
    QCOMPARE(j.moments.first().event.item.endRms[7].size(), 4096);
}

void TstRecordJudge::theFirstLinesOfTheLogAreKept()
{
    OverviewSink overview(1);
    overview.begin(RecordFacts());
    overview.table(0, { "system_log", { { "text", Statistic::None, "", "", CellType::Text } } });
    for (int i = 0; i < 25; ++i) {
        const QByteArray text = "line " + QByteArray::number(i);
        RecordRow row;
        row.table = 0;
        row.time = kStart + i;
        row.texts = &text;
        QVERIFY(overview.row(row));
    }
    QCOMPARE(overview.overview().log.size(), 20);
    QCOMPARE(overview.overview().log.first(), QStringLiteral("line 0"));
    QCOMPARE(overview.overview().log.last(), QStringLiteral("line 19"));
}

void TstRecordJudge::clocksThatAreApartLoseNoTime()
{
    FedRecording r;
    r.facts.end = kStart + 6 * kStep;
    const int u = r.table("monitor_voltage", FedRecording::voltages(1));
    r.fill(u, kStep, [](int) { return std::vector<double> { 230 }; });
    r.facts.start = kStart + 12 * kStep; // behind all values
    r.facts.end = kStart + 12 * kStep;
    QCOMPARE(judged(r).overview.start, kStart + kStep);
    r.row(u, 1000, { 230 }); // in 1970
    QCOMPARE(judged(r).overview.start, kStart + 12 * kStep);
}

void TstRecordJudge::anEmptyRecordingIsNotJudged()
{
    FedRecording r;
    r.facts = RecordFacts();
    const Judgement j = judged(r);
    QVERIFY(j.outcome() != Outcome::Pass && j.outcome() != Outcome::Fail);
    QCOMPARE(j.overview.length(), 0);
    QCOMPARE(j.outcomeOf(j.eventCounts.first()), Outcome::NotJudged); // no dips, but nothing else either
    QVERIFY(!j.overview.hasVoltage);
}

void TstRecordJudge::wildTimesAndTablesAreHarmless()
{
    FedRecording r;
    r.facts.nominalVolt = kNone;
    r.facts.nominalFrequency = std::numeric_limits<double>::infinity();
    r.facts.joinMode = 99;
    r.facts.start = std::numeric_limits<qint64>::min();
    r.facts.end = std::numeric_limits<qint64>::max();
    const int u = r.table("monitor_voltage", FedRecording::voltages());
    const int odd = r.table("rms", { { "U_rms", Statistic::Mean, "Q", "V" }, { "Uh99", Statistic::Mean, "", "V" } });
    for (const qint64 time : { std::numeric_limits<qint64>::min(), qint64(-1), qint64(0), qint64(1), kStart,
                               std::numeric_limits<qint64>::max() }) {
        r.row(u, time, { kNone, 1e300, -1e300 });
        r.row(odd, time, { 1, 2 });
    }
    r.row(-1, kStart, { 1 });
    r.row(77, kStart, { 1 });
    r.event(EventDip, std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max(), float(kNone), -5);
    const Judgement j = judged(r);
    QVERIFY(j.overview.start <= j.overview.end);
    QCOMPARE(j.weeks.length >= 0, true);
}

QTEST_APPLESS_MAIN(TstRecordJudge)
#include "tst_recordjudge.moc"
