#include "monitorcase.h"
#include "unit/wildfloats.h"

#include <QTest>

#include <cmath>
#include <limits>
#include <vector>

using namespace MonitorCase;

namespace {

const float kNone = std::numeric_limits<float>::quiet_NaN();

/// Kinds of the events that \a events holds, those that still run in parentheses.
QString kinds(const PowerEvents &events)
{
    QStringList all;
    for (const PQAEventItem &event : events.getAllEvents())
        all << (event.finished ? QStringLiteral("%1") : QStringLiteral("(%1)")).arg(event.type);
    return all.join(QLatin1Char(' '));
}

} // namespace

/// How the monitor judges its values by the limits: each rule by numbers worked out by hand.
class TstMonitorJudge : public QObject
{
    Q_OBJECT

private slots:
    void frequencyExtremesBeginWithTheFirstValue();
    void minimumIsLookedAtOnlyWhenTheMaximumDidNotRise();
    void frequencyExtremesStayWithinTenHertz();
    void largestFrequencyRatiosAreKeptWithTheirValues();
    void tenSecondsWithoutFrequencyLeaveRatiosAndPercentiles();
    void frequencyPercentilesFollowTheSortedValues();
    void frequencyOutsideItsBandIsAnEvent();
    void frequencyPassesAndFailsAtItsLimits();

    void voltageExtremesAndWorstValuesAreKept();
    void wholeVoltageRatioIsNothingWithoutThatLimit();
    void tenMinutesWithoutVoltageTakeThePlaceOfTheWholeRatio();
    void voltagePassesAndFailsAtItsLimits_data();
    void voltagePassesAndFailsAtItsLimits();

    void unbalanceIsJudgedByTheNewestValues();
    void unbalanceWholeRatioNeedsItsLimit();
    void unbalanceForgetsWhatLeftTheTrend();

    void harmonicRatiosAreHandWorked_data();
    void harmonicRatiosAreHandWorked();
    void oneHarmonicAtItsLimitFailsTheRun_data();
    void oneHarmonicAtItsLimitFailsTheRun();
    void distortionGoesToTheTrendAndNoOrder();

    void longTermFlickerRatiosAreQuotients();
    void longTermFlickerPassesAndFailsAtItsLimit();
    void signalPercentilesAreThoseOfTheTenMinutes();
    void phasesAreJudgedApart();
    void eventsNameTheirPhase();
    void nominalValuesAreThoseOfTheSetUp();
    void percentilesGoByTheShareOfTheLimitSet();
    void anyLimitsAndValuesAreJudged();
};

// Frequency

void TstMonitorJudge::frequencyExtremesBeginWithTheFirstValue()
{
    Judged j;
    QCOMPARE(j.data.freqReady, 0);
    j.judge.frequency(49.9f, 0);
    QCOMPARE(j.data.freqReady, 1);
    QCOMPARE(j.data.freqMax, 49.9f);
    QCOMPARE(j.data.freqMin, 49.9f);
}

void TstMonitorJudge::minimumIsLookedAtOnlyWhenTheMaximumDidNotRise()
{
    Judged j;
    for (float mean : { 50.0f, 50.2f, 49.8f, 49.9f })
        j.judge.frequency(mean, 0);
    QCOMPARE(j.data.freqMax, 50.2f);
    QCOMPARE(j.data.freqMin, 49.8f);
    // Below the minimum and above the maximum at once: only the maximum moves.
    j.data.freqMax = 49.0f;
    j.judge.frequency(49.5f, 0);
    QCOMPARE(j.data.freqMax, 49.5f);
    QCOMPARE(j.data.freqMin, 49.8f);
}

void TstMonitorJudge::frequencyExtremesStayWithinTenHertz()
{
    Judged j;
    j.judge.frequency(50, 0);
    j.judge.frequency(75, 0);
    j.judge.frequency(5, 0);
    QCOMPARE(j.data.freqMax, 60.0f);
    QCOMPARE(j.data.freqMin, 40.0f);
    Judged first;
    first.judge.frequency(0, 0);
    QCOMPARE(first.data.freqMax, 40.0f);
    QCOMPARE(first.data.freqMin, 40.0f);
}

void TstMonitorJudge::largestFrequencyRatiosAreKeptWithTheirValues()
{
    Judged j;
    j.judge.frequency(50, 0); // the first: without comparison
    QCOMPARE(j.data.freqWorstPartial, 50.0f);
    QCOMPARE(j.data.freqPartialRatio, 0.0f);
    j.judge.frequency(50.25f, 0); // 0.25 of 0.5 and 2 Hz
    QCOMPARE(j.data.freqPartialRatio, 50.0f);
    QCOMPARE(j.data.freqWholeRatio, 12.5f);
    j.judge.frequency(49.75f, 0); // 0.25 of 0.5 and 3 Hz: no larger
    QCOMPARE(j.data.freqWorstPartial, 50.25f);
    QCOMPARE(j.data.freqWorstWhole, 50.25f);
    j.judge.frequency(49.65f, 0); // 0.35 of 0.5 and 3 Hz
    QVERIFY(std::fabs(j.data.freqPartialRatio - 70.0f) < 0.01f);
    QCOMPARE(j.data.freqWorstPartial, 49.65f);
    QCOMPARE(j.data.freqWorstWhole, 50.25f); // 11.67 percent
}

void TstMonitorJudge::tenSecondsWithoutFrequencyLeaveRatiosAndPercentiles()
{
    Judged j;
    j.judge.frequency(kNone, 0);
    QCOMPARE(j.data.freqReady, 1);
    QCOMPARE(j.data.freqPartialOk, 1);
    QCOMPARE(j.data.freqPercentileAll, 0.0f);
    j.judge.frequency(50.25f, 0);
    j.judge.frequency(kNone, 0);
    QCOMPARE(j.data.freqMax, 50.25f);
    QCOMPARE(j.data.freqMin, 50.25f);
    QCOMPARE(j.data.freqPartialRatio, 50.0f);
    QCOMPARE(j.data.freqWorstPartial, 50.25f);
    QCOMPARE(j.data.freqPercentileNep, 50.25f);
    QCOMPARE(j.data.freqPercentileAll, 50.25f);
}

void TstMonitorJudge::frequencyPercentilesFollowTheSortedValues()
{
    Judged j;
    for (int i = 20; i >= 1; --i)
        j.judge.frequency(49.0f + 0.1f * float(i), 0); // 49.1 to 51
    QVERIFY(std::fabs(j.data.freqPercentileNep - 50.9f) < 1e-4f); // 95 percent: the 19th
    QVERIFY(std::fabs(j.data.freqPercentileAll - 51.0f) < 1e-4f);
}

void TstMonitorJudge::frequencyOutsideItsBandIsAnEvent()
{
    Judged j;
    j.judge.frequency(50.4f, 1000); // 0.5 Hz are allowed
    QCOMPARE(kinds(j.events), QString());
    j.judge.frequency(50.6f, 11000);
    QCOMPARE(kinds(j.events), QStringLiteral("(32)"));
    j.judge.frequency(50.7f, 21000);
    j.judge.frequency(50.1f, 31000);
    QCOMPARE(kinds(j.events), QStringLiteral("32"));
    const PQAEventItem &event = j.events.getAllEvents().at(0);
    QCOMPARE(event.startTime, qint64(11000));
    QCOMPARE(event.duration, 20000);
    QCOMPARE(event.value, 50.7f);
}

void TstMonitorJudge::frequencyPassesAndFailsAtItsLimits()
{
    Judged passes;
    passes.judge.frequency(50.0099f, 0);
    QCOMPARE(passes.data.freqPartialOk, 1);
    Judged fails;
    fails.judge.frequency(50.0101f, 0);
    QCOMPARE(fails.data.freqPartialOk, 0);
    QCOMPARE(fails.data.freqWholeOk, 1);
    fails.judge.frequency(49.9399f, 0);
    QCOMPARE(fails.data.freqWholeOk, 1); // the first one still counts
    Judged lower;
    lower.judge.frequency(49.9399f, 0);
    QCOMPARE(lower.data.freqWholeOk, 0);
    lower.judge.frequency(49.9401f, 0);
    QCOMPARE(lower.data.freqWholeOk, 1);
    QCOMPARE(lower.data.freqPartialOk, 0);
}

// Voltage

void TstMonitorJudge::voltageExtremesAndWorstValuesAreKept()
{
    Judged j;
    j.judge.voltage(1, 235, 0);
    QCOMPARE(j.data.voltMax[1], 235.0f);
    QCOMPARE(j.data.voltMin[1], 235.0f);
    j.judge.voltage(1, 241.5f, 0); // 11.5 of 23 V, upper
    QCOMPARE(j.data.voltPartialRatio[1], 50.0f);
    QCOMPARE(j.data.voltWholeRatio[1], 50.0f);
    j.judge.voltage(1, 216.2f, 0); // 13.8 of 23 and of 34.5 V, lower
    QVERIFY(std::fabs(j.data.voltPartialRatio[1] - 60.0f) < 0.001f);
    QCOMPARE(j.data.voltWorstPartial[1], 216.2f);
    QCOMPARE(j.data.voltWholeRatio[1], 50.0f); // 40 percent is less
    QCOMPARE(j.data.voltWorstWhole[1], 241.5f);
    QCOMPARE(j.data.voltMax[1], 241.5f);
    QCOMPARE(j.data.voltMin[1], 216.2f);
    QCOMPARE(j.trend.row[5], QList<float>({ 235, 241.5f, 216.2f }));
    QVERIFY(j.trend.row[4].isEmpty());
    QCOMPARE(j.data.voltMax[0], 0.0f);
    QCOMPARE(j.data.voltPercentileAll[1], 241.5f);
    QVERIFY(std::fabs(j.data.voltPercentileNep[1] - 240.525f) < 0.01f); // 3 x 0.95 = 2.85: 235 + 0.85 x 6.5
}

void TstMonitorJudge::wholeVoltageRatioIsNothingWithoutThatLimit()
{
    MonitorSetup setup = european();
    setup.limits.voltage.wholeUpper = 100.1f;
    Judged j(setup);
    j.judge.voltage(0, 241.5f, 0);
    QCOMPARE(j.data.voltWholeRatio[0], 0.0f);
    QCOMPARE(j.data.voltWorstWhole[0], 241.5f); // not smaller than what stood there
    j.judge.voltage(0, 195.5f, 0); // the lower one counts: all of 34.5 V
    QCOMPARE(j.data.voltWholeRatio[0], 100.0f);
    QCOMPARE(j.data.voltWorstWhole[0], 195.5f);
}

void TstMonitorJudge::tenMinutesWithoutVoltageTakeThePlaceOfTheWholeRatio()
{
    Judged j;
    j.judge.voltage(2, 241.5f, 0);
    j.judge.voltage(2, kNone, 0);
    QVERIFY(std::isnan(j.data.voltWholeRatio[2]));
    QVERIFY(std::isnan(j.data.voltWorstWhole[2]));
    QCOMPARE(j.data.voltPartialRatio[2], 50.0f);
    QCOMPARE(j.data.voltMax[2], 241.5f);
    QCOMPARE(j.data.voltMin[2], 241.5f);
    QCOMPARE(j.data.voltPercentileAll[2], 241.5f);
    QCOMPARE(j.trend.row[6].size(), 2); // the place of these ten minutes
    j.judge.voltage(2, 232.3f, 0);
    QVERIFY(std::fabs(j.data.voltWholeRatio[2] - 10.0f) < 0.001f);
    QCOMPARE(j.data.voltWorstWhole[2], 232.3f);
}

void TstMonitorJudge::voltagePassesAndFailsAtItsLimits_data()
{
    QTest::addColumn<float>("volts");
    QTest::addColumn<int>("partial");
    QTest::addColumn<int>("whole");
    // 10 and 15 hundredths of a volt.
    QTest::newRow("just inside, above") << 230.09f << 1 << 1;
    QTest::newRow("just outside, above") << 230.11f << 0 << 0;
    QTest::newRow("just inside, below") << 229.91f << 1 << 1;
    QTest::newRow("outside the partial limit, below") << 229.89f << 0 << 1;
    QTest::newRow("just inside the whole limit") << 229.86f << 0 << 1;
    QTest::newRow("outside the whole limit") << 229.84f << 0 << 0;
}

void TstMonitorJudge::voltagePassesAndFailsAtItsLimits()
{
    QFETCH(float, volts);
    Judged j;
    j.judge.voltage(0, 250, 0);
    QCOMPARE(j.data.voltPartialOk[0], 0);
    j.judge.voltage(0, volts, 0);
    QTEST(j.data.voltPartialOk[0], "partial");
    QTEST(j.data.voltWholeOk[0], "whole");
    QCOMPARE(j.data.voltPartialOk[1], 1); // a phase without values
}

// Unbalance

void TstMonitorJudge::unbalanceIsJudgedByTheNewestValues()
{
    Judged j;
    j.judge.unbalance(2, 600000); // at the limit of 2 percent: not below
    QCOMPARE(j.data.unbalPartialRatio, 100.0f);
    QCOMPARE(j.data.unbalOk, 0);
    j.judge.unbalance(3, 1200000);
    QCOMPARE(j.data.unbalPartialRatio, 150.0f);
    QCOMPARE(j.data.unbalOk, 0);
    QCOMPARE(kinds(j.events), QStringLiteral("(31)"));
    j.judge.unbalance(1.99f, 1800000);
    QCOMPARE(j.data.unbalOk, 1);
    j.judge.unbalance(5, 2400000);
    QCOMPARE(j.data.unbalOk, 1); // one below is enough
    QCOMPARE(j.trend.row[28], QList<float>({ 2, 3, 1.99f, 5 }));
}

void TstMonitorJudge::unbalanceWholeRatioNeedsItsLimit()
{
    Judged european;
    european.judge.unbalance(1, 0);
    QCOMPARE(european.data.unbalWholeRatio, 0.0f);
    MonitorSetup setup = MonitorCase::european();
    setup.limits.neg = { 95, 2, 4 };
    Judged j(setup);
    j.judge.unbalance(1, 0);
    QCOMPARE(j.data.unbalPartialRatio, 50.0f);
    QCOMPARE(j.data.unbalWholeRatio, 25.0f);
}

void TstMonitorJudge::unbalanceForgetsWhatLeftTheTrend()
{
    Judged j;
    j.judge.unbalance(1, 0);
    for (int i = 0; i < 1023; ++i)
        j.judge.unbalance(3, 0);
    QCOMPARE(j.data.unbalOk, 1);
    j.judge.unbalance(3, 0); // the only one below is gone
    QCOMPARE(j.data.unbalOk, 0);
}

// Harmonics

void TstMonitorJudge::harmonicRatiosAreHandWorked_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<float>("distortionWhole");
    QTest::addColumn<float>("rowPartial");
    QTest::addColumn<float>("rowWhole");
    QTest::addColumn<float>("partial");
    QTest::addColumn<float>("whole");
    // A value of 3 percent.
    QTest::newRow("THD") << 0 << 12.0f << 8.0f << 12.0f << 37.5f << 25.0f;
    QTest::newRow("THD without whole limit") << 0 << 100.1f << 8.0f << 100.1f << 37.5f << 0.0f;
    QTest::newRow("order below the limit of the distortion") << 4 << 12.0f << 6.0f << 7.5f << 50.0f << 40.0f;
    QTest::newRow("order at it") << 24 << 12.0f << 1.5f << 12.0f << 200.0f << 25.0f;
    QTest::newRow("order above it") << 24 << 8.0f << 1.5f << 8.5f << 200.0f << 0.0f;
    QTest::newRow("order without whole limit, as the distortion") << 1 << 100.1f << 2.0f << 100.0f << 150.0f << 3.0f;
}

void TstMonitorJudge::harmonicRatiosAreHandWorked()
{
    QFETCH(int, row);
    QFETCH(float, distortionWhole);
    QFETCH(float, rowPartial);
    QFETCH(float, rowWhole);
    MonitorSetup setup = european();
    setup.limits.harmonicWhole[0] = distortionWhole;
    setup.limits.harmonicPartial[row] = rowPartial;
    setup.limits.harmonicWhole[row] = rowWhole;
    Judged j(setup);
    j.judge.harmonic(2, row, 3, 0);
    QTEST(j.data.harmPartialRatio[2][row], "partial");
    QTEST(j.data.harmWholeRatio[2][row], "whole");
    QCOMPARE(j.data.harmPartialRatio[1][row], 0.0f);
}

void TstMonitorJudge::oneHarmonicAtItsLimitFailsTheRun_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<float>("limit");
    QTest::newRow("THD") << 0 << 8.0f;
    QTest::newRow("even order") << 1 << 2.0f;
    QTest::newRow("odd order, no multiple of three") << 4 << 6.0f;
    QTest::newRow("odd multiple of three") << 8 << 1.5f;
    QTest::newRow("last row") << 24 << 1.5f;
}

void TstMonitorJudge::oneHarmonicAtItsLimitFailsTheRun()
{
    QFETCH(int, row);
    QFETCH(float, limit);
    Judged j;
    for (int i = 0; i < 50; ++i)
        j.judge.harmonic(0, row, limit * 0.999f, 1000);
    QCOMPARE(j.data.harmOk[0][row], 1);
    QCOMPARE(kinds(j.events), QString());
    j.judge.harmonic(0, row, limit, 2000); // at the limit: not within, and no event yet
    QCOMPARE(j.data.harmOk[0][row], 0);
    QCOMPARE(kinds(j.events), QString());
    j.judge.harmonic(0, row, limit * 1.001f, 3000);
    QCOMPARE(kinds(j.events), QStringLiteral("(%1)").arg(row));
    for (int i = 0; i < 50; ++i)
        j.judge.harmonic(0, row, 0, 4000);
    QCOMPARE(j.data.harmOk[0][row], 0); // one outside is enough
    QCOMPARE(j.data.harmOk[1][row], 1);
}

void TstMonitorJudge::distortionGoesToTheTrendAndNoOrder()
{
    Judged j;
    j.judge.harmonic(1, 0, 3.5f, 0);
    j.judge.harmonic(1, 1, 1.5f, 0);
    for (int row = 0; row < kMonitorTrendRows; ++row)
        QCOMPARE(j.trend.row[row], row == 13 ? QList<float>({ 3.5f }) : QList<float>());
}

// Flicker and mains signals

void TstMonitorJudge::longTermFlickerRatiosAreQuotients()
{
    Judged j;
    QCOMPARE(j.data.flickerReady, 0);
    j.judge.plt(1, 0.5f, 0);
    QCOMPARE(j.data.flickerReady, 1);
    QCOMPARE(j.data.pltValue[1], 0.5f);
    QCOMPARE(j.data.pltPartialRatio[1], 0.5f); // of 1.0
    QVERIFY(std::fabs(j.data.pltWholeRatio[1] - 0.5f / 100.1f) < 1e-8f); // a limit that others leave out counts
    MonitorSetup setup = european();
    setup.limits.plt.whole = 2;
    Judged applied(setup);
    applied.judge.plt(0, 0.5f, 0);
    QCOMPARE(applied.data.pltWholeRatio[0], 0.0f);
    setup.limits.plt.whole = 100;
    Judged border(setup);
    border.judge.plt(0, 0.5f, 0);
    QCOMPARE(border.data.pltWholeRatio[0], 0.0f); // above 100 only
}

void TstMonitorJudge::longTermFlickerPassesAndFailsAtItsLimit()
{
    Judged j;
    j.judge.plt(0, 1.0f, 1000);
    QCOMPARE(j.data.pltOk[0], 0); // at the limit: not below
    QCOMPARE(kinds(j.events), QString());
    j.judge.plt(0, 1.01f, 2000);
    QCOMPARE(kinds(j.events), QStringLiteral("(26)"));
    QCOMPARE(j.data.pltOk[0], 0);
    j.judge.plt(0, 0.99f, 3000);
    QCOMPARE(j.data.pltOk[0], 1);
    QCOMPARE(kinds(j.events), QStringLiteral("26"));
    QCOMPARE(j.trend.row[20], QList<float>({ 1.0f, 1.01f, 0.99f }));
    QCOMPARE(j.data.pltPercentileAll[0], 1.01f);
    QVERIFY(std::fabs(j.data.pltPercentileNep[0] - 1.0085f) < 1e-4f); // 2.85: 1.0 + 0.85 x 0.01
    QCOMPARE(j.data.pltOk[2], 1);
}

void TstMonitorJudge::signalPercentilesAreThoseOfTheTenMinutes()
{
    MonitorSetup setup = european();
    setup.limits.frequency1.nep = 50;
    setup.limits.frequency2.nep = 90;
    Judged j(setup);
    MonitorSums sums;
    auto record = supply(230, 50);
    for (int i = 10; i >= 1; --i) {
        record->mainsSignal[0].ratio1 = float(i);
        record->mainsSignal[0].volt1 = 999; // only the ratios count
        record->mainsSignal[2].ratio2 = float(10 * i);
        sums.add(*record);
    }
    j.judge.signal(sums);
    QCOMPARE(j.data.signal1PercentileNep[0], 5.0f);
    QCOMPARE(j.data.signal1PercentileAll[0], 10.0f);
    QCOMPARE(j.data.signal2PercentileNep[2], 90.0f);
    QCOMPARE(j.data.signal2PercentileAll[2], 100.0f);
    QCOMPARE(j.data.signal2PercentileAll[0], 0.0f);
    sums.clearTenMinutes();
    record->mainsSignal[0].ratio1 = 3;
    sums.add(*record);
    j.judge.signal(sums);
    QCOMPARE(j.data.signal1PercentileAll[0], 3.0f); // nothing of the ten minutes before
}

void TstMonitorJudge::phasesAreJudgedApart()
{
    Judged j;
    const float volts[3] = { 230, 225, 240 }, plts[3] = { 0.5f, 1.5f, 0.25f };
    for (int phase = 0; phase < 3; ++phase) {
        j.judge.voltage(phase, volts[phase], 0);
        j.judge.plt(phase, plts[phase], 0);
        j.judge.harmonic(phase, 4, phase == 0 ? 7.0f : 5.0f, 0); // 6 percent are allowed
    }
    for (int phase = 0; phase < 3; ++phase) {
        QCOMPARE(j.data.voltMax[phase], volts[phase]);
        QCOMPARE(j.data.voltMin[phase], volts[phase]);
        QCOMPARE(j.data.voltPercentileNep[phase], volts[phase]);
        QCOMPARE(j.data.voltPercentileAll[phase], volts[phase]);
        QCOMPARE(j.data.voltWholeOk[phase], phase == 0 ? 1 : 0);
        QCOMPARE(j.data.pltPercentileNep[phase], plts[phase]);
        QCOMPARE(j.data.pltPercentileAll[phase], plts[phase]);
        QCOMPARE(j.data.pltOk[phase], phase == 1 ? 0 : 1);
        QCOMPARE(j.data.harmOk[phase][4], phase == 0 ? 0 : 1);
    }
}

void TstMonitorJudge::eventsNameTheirPhase()
{
    Judged j;
    j.judge.voltage(1, 260, 0);
    j.judge.harmonic(2, 4, 7, 0);
    j.judge.plt(1, 2, 0);
    j.judge.unbalance(3, 0);
    QList<QPair<int, int>> found;
    for (const PQAEventItem &event : j.events.getAllEvents())
        found << qMakePair(int(event.type), int(event.channel));
    const QList<QPair<int, int>> wanted { { EventRms, 1 }, { 4, 2 }, { EventFlicker, 1 }, { EventUnbalance, 0 } };
    QCOMPARE(found, wanted);
}

void TstMonitorJudge::nominalValuesAreThoseOfTheSetUp()
{
    MonitorSetup setup = european();
    setup.nominalVolt = 20000; // behind a transformer
    setup.nominalFrequency = 60;
    Judged j(setup);
    j.judge.voltage(0, 21000, 0); // half of ten percent
    QCOMPARE(j.data.voltPartialRatio[0], 50.0f);
    j.judge.frequency(60.3f, 0); // half of one percent
    QVERIFY(std::fabs(j.data.freqPartialRatio - 50.0f) < 0.01f);
    j.judge.frequency(75, 0);
    QCOMPARE(j.data.freqMax, 70.0f);
}

void TstMonitorJudge::percentilesGoByTheShareOfTheLimitSet()
{
    MonitorSetup setup = european();
    setup.limits.frequency.nep = 50;
    setup.limits.voltage.nep = 20;
    setup.limits.plt.nep = 80;
    Judged j(setup);
    for (int i = 10; i >= 1; --i) {
        j.judge.frequency(45.0f + float(i), 0);
        j.judge.voltage(0, 220.0f + float(i), 0);
        j.judge.plt(0, 0.5f * float(i), 0);
    }
    QCOMPARE(j.data.freqPercentileNep, 50.0f); // the fifth of ten
    QCOMPARE(j.data.voltPercentileNep[0], 222.0f);
    QCOMPARE(j.data.pltPercentileNep[0], 4.0f);
}

void TstMonitorJudge::anyLimitsAndValuesAreJudged()
{
    std::vector<float> numbers(std::begin(kWildFloats), std::end(kWildFloats));
    for (float number : { 0.0f, -1.0f, 100.0f, 230.0f })
        numbers.push_back(number);
    for (float limit : numbers) {
        MonitorSetup setup = european();
        auto *fields = reinterpret_cast<float *>(&setup.limits);
        std::fill(fields, fields + sizeof(monitor_limit) / sizeof(float), limit);
        Judged j(setup);
        MonitorSums sums;
        for (float value : numbers) {
            sums.add(*supply(value, value));
            j.judge.frequency(value, 0);
            j.judge.voltage(2, value, 0);
            j.judge.unbalance(value, 0);
            j.judge.harmonic(2, 24, value, 0);
            j.judge.plt(2, value, 0);
            j.judge.signal(sums);
        }
        for (int ok : { j.data.freqPartialOk, j.data.voltWholeOk[2], j.data.unbalOk, j.data.harmOk[2][24] })
            QVERIFY(ok == 0 || ok == 1);
        QCOMPARE(j.trend.row[6].size(), int(numbers.size()));
    }
}

QTEST_GUILESS_MAIN(TstMonitorJudge)
#include "tst_monitorjudge.moc"
