#include "device/datatypes.h"
#include "monitorcase.h"
#include "settings/config_data.h"
#include "task/functions/sortedvalues.h"

#include <QScopeGuard>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

using namespace MonitorCase;

namespace {

const float kNone = std::numeric_limits<float>::quiet_NaN();

} // namespace

/// What the monitor is made of: the ordered list, the bands of limits, the sums.
class TstMonitorParts : public QObject
{
    Q_OBJECT

private slots:
    void orderedListIsTheSortedListOfItsValues();
    void orderedListLeavesOutWhatIsNoNumber();
    void percentileIsThatOfTheWholeSortedList();
    void percentileOfOneValueIsItAndOfNoneNothing();
    void ratiosOfABandAreHandWorked_data();
    void ratiosOfABandAreHandWorked();
    void wholeLimitOf100Point1CountsForNothing();
    void bandHoldsWithinHundredthsOfTheUnit_data();
    void bandHoldsWithinHundredthsOfTheUnit();
    void oneValueInsideIsEnoughForTheRun();
    void withoutValuesTheRunComplies();
    void tenSecondsAndTenMinutesAreSummedApart();
    void spectraArePercentOfTheFundamentalAndOfTheDistortion();
    void phaseWithoutFundamentalAddsNothingToTheSpectra();
    void currentWithoutDistortionAddsNothingToItsLines();
    void unbalanceIsTheRootOfTheMeanSquare();
    void meansOfNoAggregationAreNoNumbers();
    void signalsOfALongHoldStayBounded();
    void setUpOfARunIsThatOfTheInstrument();
};

void TstMonitorParts::orderedListIsTheSortedListOfItsValues()
{
    std::mt19937 random(7);
    std::uniform_int_distribution<int> few(0, 400); // many are equal
    std::vector<float> all;
    SortedValues values;
    for (int i = 0; i < 12000; ++i) {
        // Rising, falling and mixed stretches: each splits blocks at another place.
        const float value = i < 3000 ? float(i) : i < 6000 ? float(-i) : 50 + 0.001f * float(few(random));
        values.insert(value);
        all.push_back(value);
    }
    std::sort(all.begin(), all.end());
    QCOMPARE(values.size(), 12000);
    for (int i = 0; i < 12000; ++i)
        QCOMPARE(values.at(i), all[std::size_t(i)]);
}

void TstMonitorParts::orderedListLeavesOutWhatIsNoNumber()
{
    SortedValues values;
    for (float value : { 3.0f, kNone, 1.0f, kNone, 2.0f })
        values.insert(value);
    QCOMPARE(values.size(), 3);
    QCOMPARE(values.at(0), 1.0f);
    QCOMPARE(values.at(2), 3.0f);
}

void TstMonitorParts::percentileIsThatOfTheWholeSortedList()
{
    SortedValues values;
    QList<float> list;
    for (int i = 0; i < 5000; ++i) {
        const float value = std::fmod(float(i) * 0.377f, 7.0f);
        values.insert(value);
        list.append(value);
        if (i % 611 != 0)
            continue;
        std::sort(list.begin(), list.end());
        for (float share : { 0.0f, 0.5f, 0.95f, 0.99f, 1.0f, 1.5f, kNone })
            QCOMPARE(values.percentile(share), DataTypes::percentiles(share, &list, unsigned(list.size())));
    }
    // By hand: 20 values 1 to 20; 20 x 0.95 = 19, so the 19th and nothing of the way to the 20th.
    SortedValues twenty;
    for (int i = 20; i >= 1; --i)
        twenty.insert(float(i));
    QVERIFY(std::fabs(twenty.percentile(0.95f) - 19.0f) < 1e-4f);
    QVERIFY(std::fabs(twenty.percentile(0.52f) - 10.4f) < 1e-4f); // 10.4: the tenth and 0.4 of the step
    QCOMPARE(twenty.percentile(1), 20.0f);
}

void TstMonitorParts::percentileOfOneValueIsItAndOfNoneNothing()
{
    SortedValues values;
    QCOMPARE(values.percentile(0.95f), 0.0f);
    values.insert(49.9f);
    QCOMPARE(values.percentile(0.01f), 49.9f);
    QCOMPARE(values.percentile(1), 49.9f);
}

void TstMonitorParts::ratiosOfABandAreHandWorked_data()
{
    QTest::addColumn<bool>("volts");
    QTest::addColumn<float>("value");
    QTest::addColumn<double>("partial");
    QTest::addColumn<double>("whole");
    // 230 V: 10 percent are 23 V, 15 percent 34.5 V. 50 Hz: 1, 4 and 6 percent are 0.5, 2 and 3 Hz.
    QTest::newRow("nominal voltage") << true << 230.0f << 0.0 << 0.0;
    QTest::newRow("half of the upper band") << true << 241.5f << 50.0 << 50.0;
    QTest::newRow("at the lower limit") << true << 207.0f << 100.0 << 23 * 100 / 34.5;
    QTest::newRow("no voltage") << true << 0.0f << 1000.0 << 230 * 100 / 34.5;
    QTest::newRow("above 50 Hz") << false << 50.25f << 50.0 << 12.5;
    QTest::newRow("below 50 Hz") << false << 49.25f << 150.0 << 25.0;
    QTest::newRow("at 50 Hz") << false << 50.0f << 0.0 << 0.0;
}

void TstMonitorParts::ratiosOfABandAreHandWorked()
{
    QFETCH(bool, volts);
    QFETCH(float, value);
    QFETCH(double, partial);
    QFETCH(double, whole);
    const monitor_limit limits = LimitBuiltins::en50160();
    const MonitorBand band = volts ? MonitorBand(limits.voltage, 230) : MonitorBand(limits.frequency, 50);
    const MonitorBand::Ratios ratios = band.ratios(value);
    QVERIFY2(std::fabs(double(ratios.partial) - partial) < 1e-3, qPrintable(QString::number(double(ratios.partial))));
    QVERIFY2(std::fabs(double(ratios.whole) - whole) < 1e-3, qPrintable(QString::number(double(ratios.whole))));
}

void TstMonitorParts::wholeLimitOf100Point1CountsForNothing()
{
    const MonitorBand band({ 95, 10, 100.1f, 10, 100.0f }, 230);
    QVERIFY(!band.hasWhole(231));
    QVERIFY(band.hasWhole(229)); // the side decides
    QVERIFY(band.hasWhole(230)); // nominal counts as the lower side
}

void TstMonitorParts::bandHoldsWithinHundredthsOfTheUnit_data()
{
    QTest::addColumn<double>("nominal");
    QTest::addColumn<float>("value");
    QTest::addColumn<bool>("partial");
    QTest::addColumn<bool>("whole");
    // Upper 1 and 4, lower 1 and 6 hundredths of a hertz.
    QTest::newRow("50 Hz just above the partial limit") << 50.0 << 50.0101f << false << true;
    QTest::newRow("50 Hz just below it") << 50.0 << 50.0099f << true << true;
    QTest::newRow("50 Hz just above the whole limit") << 50.0 << 50.0401f << false << false;
    QTest::newRow("50 Hz just below it, whole") << 50.0 << 50.0399f << false << true;
    QTest::newRow("50 Hz, lower partial limit passed") << 50.0 << 49.9899f << false << true;
    QTest::newRow("50 Hz, lower partial limit kept") << 50.0 << 49.9901f << true << true;
    QTest::newRow("50 Hz, lower whole limit passed") << 50.0 << 49.9399f << false << false;
    QTest::newRow("50 Hz, lower whole limit kept") << 50.0 << 49.9401f << false << true;
    QTest::newRow("no number") << 50.0 << kNone << false << false;
}

void TstMonitorParts::bandHoldsWithinHundredthsOfTheUnit()
{
    QFETCH(double, nominal);
    QFETCH(float, value);
    const MonitorBand band(LimitBuiltins::en50160().frequency, nominal);
    QTEST(band.holdsPartial(value), "partial");
    QTEST(band.holdsWhole(value), "whole");
}

void TstMonitorParts::oneValueInsideIsEnoughForTheRun()
{
    const MonitorBand band(LimitBuiltins::en50160().frequency, 50);
    MonitorBandRecord record;
    for (int i = 0; i < 100; ++i)
        record.take(band, 51);
    QCOMPARE(record.partialOk(), 0);
    QCOMPARE(record.wholeOk(), 0);
    record.take(band, 50.03f);
    QCOMPARE(record.partialOk(), 0);
    QCOMPARE(record.wholeOk(), 1);
    record.take(band, 50);
    for (int i = 0; i < 100; ++i)
        record.take(band, 45);
    QCOMPARE(record.partialOk(), 1);
    QCOMPARE(record.wholeOk(), 1);
}

void TstMonitorParts::withoutValuesTheRunComplies()
{
    const MonitorBand band(LimitBuiltins::en50160().frequency, 50);
    MonitorBandRecord record;
    QCOMPARE(record.partialOk(), 1);
    record.take(band, kNone);
    QCOMPARE(record.partialOk(), 1);
    QCOMPARE(record.wholeOk(), 1);
    QCOMPARE(record.size(), 0);
}

void TstMonitorParts::tenSecondsAndTenMinutesAreSummedApart()
{
    MonitorSums sums;
    sums.add(*supply(229, 49.9f));
    sums.add(*supply(231, 50.1f));
    QVERIFY(std::fabs(sums.takeTenSeconds() - 50.0f) < 1e-5f);
    sums.add(*supply(233, 50.6f));
    QCOMPARE(sums.takeTenSeconds(), 50.6f);
    QCOMPARE(sums.count(), 3);
    QVERIFY(std::fabs(sums.frequency() - 50.2f) < 1e-5f); // 150.6 / 3
    QCOMPARE(sums.voltage(0), 231.0f);
    QCOMPARE(sums.voltage(2), 231.0f);
    sums.clearTenMinutes();
    sums.add(*supply(240, 50));
    QCOMPARE(sums.voltage(1), 240.0f);
    QCOMPARE(sums.frequency(), 50.0f);
}

void TstMonitorParts::spectraArePercentOfTheFundamentalAndOfTheDistortion()
{
    MonitorSums sums;
    auto record = supply(200, 50);
    ChannelSpectrum &spectrum = record->spectrum[1];
    spectrum.voltageDistortion = 10; // V: 5 percent of the fundamental
    spectrum.voltage[1].magnitude = 4; // order 2: 2 percent
    spectrum.voltage[49].magnitude = 1; // order 50: 0.5 percent
    spectrum.currentDistortion = 8; // A: 4 percent of 200 V
    spectrum.current[1].magnitude = 2; // a quarter of the distortion
    spectrum.current[49].magnitude = 6;
    sums.add(*record);
    QCOMPARE(sums.spectrumA(1, 0), 5.0f);
    QCOMPARE(sums.spectrumA(1, 1), 2.0f);
    QCOMPARE(sums.spectrumA(1, 49), 0.5f);
    QCOMPARE(sums.spectrumA(0, 0), 0.0f);
    QCOMPARE(sums.spectrumB(1, 0), 4.0f);
    QCOMPARE(sums.spectrumB(1, 1), 25.0f);
    QCOMPARE(sums.spectrumB(1, 49), 75.0f);
    spectrum.voltageDistortion = 20;
    sums.add(*record);
    QCOMPARE(sums.spectrumA(1, 0), 7.5f); // mean of 5 and 10
    spectrum.voltage[2].magnitude = -3;
    sums.add(*record);
    QCOMPARE(sums.spectrumA(1, 2), 0.0f); // nothing is negative
    sums.clearTenMinutes();
    sums.add(*supply(200, 50));
    QCOMPARE(sums.spectrumA(1, 0), 0.0f);
    QCOMPARE(sums.spectrumB(1, 49), 0.0f);
}

void TstMonitorParts::phaseWithoutFundamentalAddsNothingToTheSpectra()
{
    MonitorSums sums;
    auto record = supply(200, 50);
    record->spectrum[0].voltageDistortion = 10;
    sums.add(*record);
    record->channel[0].voltageFundamental = 0;
    sums.add(*record);
    record->channel[0].voltageFundamental = kNone;
    sums.add(*record);
    record->channel[0].voltageFundamental = -200;
    sums.add(*record);
    QCOMPARE(sums.spectrumA(0, 0), 1.25f); // 5 percent of one in four
}

void TstMonitorParts::currentWithoutDistortionAddsNothingToItsLines()
{
    MonitorSums sums;
    auto record = supply(200, 50);
    record->spectrum[0].current[3].magnitude = 1;
    sums.add(*record);
    QCOMPARE(sums.spectrumB(0, 3), 0.0f);
    record->spectrum[0].currentDistortion = 2;
    sums.add(*record);
    QCOMPARE(sums.spectrumB(0, 3), 25.0f); // 50 percent in one of two
}

void TstMonitorParts::unbalanceIsTheRootOfTheMeanSquare()
{
    MonitorSums sums;
    auto record = supply(230, 50);
    record->voltageSequence.negativeRatio = 1;
    record->voltageSequence.zeroRatio = 3;
    sums.add(*record);
    record->voltageSequence.negativeRatio = 7;
    record->voltageSequence.zeroRatio = 4;
    sums.add(*record);
    QCOMPARE(sums.unbalance(0), 5.0f); // root of (1 + 49) / 2
    QVERIFY(std::fabs(sums.unbalance(1) - 3.5355339f) < 1e-6f); // root of (9 + 16) / 2
    sums.clearTenMinutes();
    record->voltageSequence = {};
    sums.add(*record);
    QCOMPARE(sums.unbalance(0), 0.0f);
}

void TstMonitorParts::meansOfNoAggregationAreNoNumbers()
{
    MonitorSums sums;
    QVERIFY(std::isnan(sums.takeTenSeconds()));
    QVERIFY(std::isnan(sums.frequency()));
    QVERIFY(std::isnan(sums.voltage(0)));
    QVERIFY(std::isnan(sums.unbalance(0)));
    QVERIFY(std::isnan(sums.spectrumA(0, 0)));
    QVERIFY(sums.sortedSignal(1, 2).empty());
}

void TstMonitorParts::signalsOfALongHoldStayBounded()
{
    MonitorSums sums;
    auto record = supply(230, 50);
    record->mainsSignal[2].ratio2 = kNone;
    for (int i = 0; i < 108100; ++i) {
        record->mainsSignal[0].ratio1 = float(200000 - i);
        sums.add(*record);
    }
    QCOMPARE(int(sums.sortedSignal(0, 0).size()), 108000);
    QCOMPARE(sums.sortedSignal(0, 0).front(), 200000.0f - 107999);
    QCOMPARE(sums.sortedSignal(0, 0).back(), 200000.0f);
    QVERIFY(sums.sortedSignal(1, 2).empty());
    sums.clearTenMinutes();
    QVERIFY(sums.sortedSignal(0, 0).empty());
}

void TstMonitorParts::setUpOfARunIsThatOfTheInstrument()
{
    const int selected = m_settingConfig_g.getNomFreqSelect();
    const auto restore = qScopeGuard([selected] {
        m_settingConfig_g.setRatioVFenzi(1);
        m_settingConfig_g.setNomFreq(selected);
        m_settingConfig_g.setJoinMode(1);
        m_limits_g.changeActiveLimits(QStringLiteral("EN50160"));
    });
    m_settingConfig_g.setRatioVFenzi(3); // the transformer's ratio
    m_settingConfig_g.setNomFreq(2);
    m_settingConfig_g.setJoinMode(5);
    m_limits_g.changeActiveLimits(QStringLiteral("GOST32144"));
    const MonitorSetup setup = currentMonitorSetup();
    QCOMPARE(setup.nominalVolt, 3.0 * m_settingConfig_g.getNomVolt());
    QCOMPARE(setup.nominalFrequency, 60.0);
    QCOMPARE(setup.phases, 2);
    QCOMPARE(setup.limits.harmonicWhole[0], 12.0f); // the European set has 8
}

QTEST_GUILESS_MAIN(TstMonitorParts)
#include "tst_monitorparts.moc"
