#include "task/functions/recordstatistics.h"
#include "unit/wildfloats.h"

#include <QTest>

#include <array>
#include <cmath>
#include <cstring>

namespace {

using Record = __datagram_aggregation;

constexpr int kWords = sizeof(Record) / 4;
constexpr int kEnergyWords = 24; // from word 80 on
constexpr EnergyRow kNoEnergy[kChannels] = {};

std::unique_ptr<Record> makeRecord()
{
    auto record = std::make_unique<Record>();
    std::memset(static_cast<void *>(record.get()), 0, sizeof *record);
    return record;
}

/// Every float of the record gets the value that a function of its word gives.
template <typename Value> std::unique_ptr<Record> filled(Value value)
{
    auto record = makeRecord();
    auto *words = reinterpret_cast<float *>(record.get());
    for (int word = 2; word < kWords; ++word) {
        if (word < 80 || word >= 80 + kEnergyWords)
            words[word] = value(word);
    }
    return record;
}

float wordOf(const Record &record, int word)
{
    return reinterpret_cast<const float *>(&record)[word];
}

/// Words that are angles, which have a mean of their own kind.
bool isAngle(int word)
{
    return word >= 3 && word < 55 && (word - 3) % 13 >= 10;
}

bool near(float value, double expected, double tolerance = 1e-3)
{
    return std::fabs(double(value) - expected) <= tolerance;
}

/// Takes records whose angle of the L1 voltage is given, in degrees.
void takeAngles(RecordAngles &angles, std::initializer_list<float> degrees)
{
    const auto record = makeRecord();
    for (const float angle : degrees) {
        record->channel[0].voltageAngle = angle;
        record->channel[0].angleDifference = angle;
        angles.take(*record);
    }
}

} // namespace

/// Mean, maximum and minimum of an interval.
class TstRecordStatistics : public QObject
{
    Q_OBJECT

private slots:
    void directionsAreAveragedByTheirVectorSum_data();
    void directionsAreAveragedByTheirVectorSum();
    void anglesThatLieOnBothSidesOfTheWrapStayThere();
    void harmonicsHaveTheDifferenceOfTheirPhases();
    void everyFloatHasMeanMaximumAndMinimum();
    void oneAggregationIsItsOwnStatistic();
    void anglesOfTheRowsAreDirections();
    void anotherIntervalBeginsAtZero();
    void energiesAreThoseOfTheLastAggregation();
    void longIntervalsLoseNoDigits();
    void anIntervalOfNothingIsZero();
    void whatIsNoNumberIsAnExtremeWhereItCameFirst();
    void anyFloatIsTaken();
};

void TstRecordStatistics::directionsAreAveragedByTheirVectorSum_data()
{
    QTest::addColumn<double>("cosine");
    QTest::addColumn<double>("sine");
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("degrees");
    QTest::newRow("none") << 0.0 << 0.0 << 0 << 0.0;
    QTest::newRow("along the axis") << 3.0 << 0.0 << 3 << 0.0;
    QTest::newRow("a right angle") << 0.0 << 2.0 << 2 << 90.0;
    QTest::newRow("below") << 1.0 << -1.0 << 2 << -45.0;
    QTest::newRow("opposite") << -5.0 << 0.0 << 5 << 180.0;
    QTest::newRow("two that cancel each other") << 0.0 << 0.0 << 2 << 0.0;
}

void TstRecordStatistics::directionsAreAveragedByTheirVectorSum()
{
    QFETCH(double, cosine);
    QFETCH(double, sine);
    QFETCH(int, count);
    QFETCH(double, degrees);
    QVERIFY(near(averageAngles({ cosine, sine }, count), degrees, 1e-5));
}

void TstRecordStatistics::anglesThatLieOnBothSidesOfTheWrapStayThere()
{
    RecordAngles angles;
    takeAngles(angles, { -170.0f, 170.0f, -160.0f, 160.0f });
    QVERIFY(near(std::fabs(angles.mean(RecordAngles::Difference, 0)), 180.0));
    angles.clear();
    takeAngles(angles, { -350.0f, -20.0f }); // 10 degrees and -20
    QVERIFY(near(angles.mean(RecordAngles::Voltage, 0), -5.0));
    angles.clear();
    takeAngles(angles, { -340.0f, -350.0f }); // 20 degrees and 10: as the records have it, below zero
    QVERIFY(near(angles.mean(RecordAngles::Voltage, 0), -345.0));
    QVERIFY(near(angles.mean(RecordAngles::Difference, 0), 15.0)); // the difference has its own range
    angles.clear();
    takeAngles(angles, { 0.0f, 0.0f }); // the reference
    QCOMPARE(angles.mean(RecordAngles::Voltage, 0), 0.0f);
    QCOMPARE(angles.mean(RecordAngles::Current, 3), 0.0f);
}

void TstRecordStatistics::harmonicsHaveTheDifferenceOfTheirPhases()
{
    const auto record = makeRecord();
    const double quarter = std::acos(0.0);
    record->spectrum[1].voltage[2].phase = float(quarter); // order 3
    record->spectrum[1].current[4].phase = float(quarter / 2); // order 5
    record->spectrum[1].voltage[6].phase = 3.0f; // order 7, on both sides of the wrap
    record->spectrum[1].current[6].phase = -3.0f;
    RecordAngles angles;
    angles.take(*record);
    QVERIFY(near(angles.mean(RecordAngles::ThirdOrder, 1), 90.0));
    QVERIFY(near(angles.mean(RecordAngles::FifthOrder, 1), -45.0));
    QVERIFY(near(angles.mean(RecordAngles::SeventhOrder, 1), 6.0 * 90.0 / quarter - 360.0));
    QVERIFY(near(angles.mean(RecordAngles::SeventhOrder, 0), 0.0));
}

void TstRecordStatistics::everyFloatHasMeanMaximumAndMinimum()
{
    RecordStatistics statistics;
    statistics.take(*filled([](int word) { return float(word); }), kNoEnergy);
    statistics.take(*filled([](int word) { return float(-3 * word); }), kNoEnergy);
    statistics.take(*filled([](int word) { return float(word) / 2; }), kNoEnergy);
    QCOMPARE(statistics.count(), 3);
    statistics.finish();
    for (int word = 2; word < kWords; ++word) {
        if ((word >= 79 && word < 80 + kEnergyWords) || isAngle(word))
            continue;
        QVERIFY2(near(wordOf(statistics.mean(), word), -0.5 * word), qPrintable(QString::number(word)));
        QCOMPARE(wordOf(statistics.maximum(), word), float(word));
        QCOMPARE(wordOf(statistics.minimum(), word), float(-3 * word));
    }
}

void TstRecordStatistics::oneAggregationIsItsOwnStatistic()
{
    RecordStatistics statistics;
    const auto record = filled([](int word) { return -1.0f / float(word); });
    for (ChannelRms &channel : record->channel)
        channel.voltageAngle = channel.currentAngle = channel.angleDifference = -120.0f;
    statistics.take(*record, kNoEnergy);
    statistics.finish();
    for (const Record *stored : { &statistics.mean(), &statistics.maximum(), &statistics.minimum() }) {
        for (int word = 2; word < 79; ++word)
            QVERIFY(near(wordOf(*stored, word), double(wordOf(*record, word)), 1e-4));
        for (int word = 80 + kEnergyWords; word < kWords; ++word)
            QCOMPARE(wordOf(*stored, word), wordOf(*record, word));
    }
}

void TstRecordStatistics::anglesOfTheRowsAreDirections()
{
    RecordStatistics statistics;
    const auto record = filled([](int) { return 1.0f; });
    for (const float angle : { -350.0f, -50.0f }) { // 10 and -50 degrees: around -20, and not -200
        record->channel[3].voltageAngle = record->channel[3].currentAngle = angle;
        record->channel[3].angleDifference = angle / 2; // -175 and -25: around -100
        statistics.take(*record, kNoEnergy);
    }
    statistics.finish();
    QVERIFY(near(statistics.mean().channel[3].voltageAngle, -20.0));
    QVERIFY(near(statistics.mean().channel[3].currentAngle, -20.0));
    QVERIFY(near(statistics.mean().channel[3].angleDifference, -100.0));
    QCOMPARE(statistics.maximum().channel[3].voltageAngle, -50.0f);
    QCOMPARE(statistics.minimum().channel[3].voltageAngle, -350.0f);
}

void TstRecordStatistics::anotherIntervalBeginsAtZero()
{
    RecordStatistics statistics;
    statistics.take(*filled([](int) { return 1000.0f; }), kNoEnergy);
    statistics.finish();
    statistics.clear();
    QCOMPARE(statistics.count(), 0);
    QCOMPARE(wordOf(statistics.maximum(), 3), 0.0f);
    statistics.take(*filled([](int) { return -7.0f; }), kNoEnergy);
    statistics.take(*filled([](int) { return -9.0f; }), kNoEnergy);
    statistics.finish();
    QCOMPARE(statistics.mean().channel[2].voltage, -8.0f);
    QCOMPARE(statistics.maximum().spectrum[3].current[99].magnitude, -7.0f);
    QCOMPARE(statistics.minimum().mainsSignal[3].volt2, -9.0f);
}

void TstRecordStatistics::energiesAreThoseOfTheLastAggregation()
{
    RecordStatistics statistics;
    const auto record = filled([](int) { return 1.0f; });
    record->energy[1].active = 5.0; // of the pages; not asked for
    EnergyRow energy[kChannels] = {};
    for (int i = 1; i <= 40; ++i) {
        energy[1] = { 10.0 * i, 20.0 * i, -1e12 * i };
        statistics.take(*record, energy);
    }
    statistics.finish();
    QCOMPARE(statistics.mean().energy[1].active, 400.0);
    QCOMPARE(statistics.mean().energy[1].apparent, 800.0);
    QCOMPARE(statistics.mean().energy[1].reactive, -4e13);
    QCOMPARE(statistics.mean().energy[0].active, 0.0);
    QCOMPARE(statistics.maximum().energy[1].active, 0.0);
    QCOMPARE(statistics.minimum().energy[1].reactive, 0.0);
}

void TstRecordStatistics::longIntervalsLoseNoDigits()
{
    // 300 s of five aggregations each. One sum of single precision is 1 mHz off here.
    RecordStatistics statistics;
    const auto record = filled([](int) { return 49.5918f; });
    for (int i = 0; i < 1500; ++i)
        statistics.take(*record, kNoEnergy);
    statistics.finish();
    QVERIFY2(near(statistics.mean().frequency, double(49.5918f), 1e-4),
             qPrintable(QString::number(double(statistics.mean().frequency), 'g', 9)));
}

void TstRecordStatistics::anIntervalOfNothingIsZero()
{
    RecordStatistics statistics;
    statistics.finish();
    for (int word = 0; word < kWords; ++word)
        QCOMPARE(wordOf(statistics.mean(), word), 0.0f);
}

void TstRecordStatistics::whatIsNoNumberIsAnExtremeWhereItCameFirst()
{
    const float none = std::nanf("");
    const auto extremes = [](std::initializer_list<float> values) {
        RecordStatistics statistics;
        const auto record = makeRecord();
        for (const float value : values) {
            record->channel[0].voltage = value;
            statistics.take(*record, kNoEnergy);
        }
        statistics.finish();
        const auto voltage = [](const Record &of) { return of.channel[0].voltage; };
        return std::array<float, 3> { voltage(statistics.mean()), voltage(statistics.maximum()),
                                      voltage(statistics.minimum()) };
    };
    const auto first = extremes({ none, 1, 2 });
    QVERIFY(std::isnan(first[0]) && std::isnan(first[1]) && std::isnan(first[2]));
    const auto later = extremes({ 1, none, 2, none });
    QVERIFY(std::isnan(later[0]));
    QCOMPARE(later[1], 2.0f);
    QCOMPARE(later[2], 1.0f);
}

void TstRecordStatistics::anyFloatIsTaken()
{
    RecordStatistics statistics;
    for (const float value : kWildFloats)
        statistics.take(*filled([value](int) { return value; }), kNoEnergy);
    statistics.finish();
    statistics.clear();
    statistics.take(*filled([](int) { return 2.0f; }), kNoEnergy);
    statistics.finish();
    QCOMPARE(statistics.mean().channel[0].voltage, 2.0f); // nothing of it is left
}

QTEST_GUILESS_MAIN(TstRecordStatistics)
#include "tst_recordstatistics.moc"
