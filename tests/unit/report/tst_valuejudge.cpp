#include "report/clockmeans.h"
#include "report/timespans.h"
#include "report/trendband.h"
#include "report/valuejudge.h"
#include "settings/limitbuiltins.h"
#include "unit/report/fedrecording.h"

#include <QTest>

#include <cmath>

namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
constexpr qint64 kStep = FedRecording::kTenMinutes;
constexpr qint64 kStart = FedRecording::kStart;
const QuantityKey kVoltage { Quantity::Voltage, 0, 0 };
const Weeks kOneWeek(kStart, kStart + Weeks::kWeek);

Bounds en50160(const QuantityKey &key)
{
    return boundsOf(key, LimitBuiltins::en50160(), 230, 50);
}

} // namespace

/// How values are judged: limits, shares, weeks, ten minutes. All expected numbers are worked out by hand.
class TstValueJudge : public QObject
{
    Q_OBJECT

private slots:
    void limitsOfASetAreValuesInTheUnitOfTheQuantity();
    void limitsThatAreNotAppliedAreNone();
    void aRatioOfOneLiesOnTheBound();
    void aStoredFloatOnTheLimitKeepsIt();
    void aMillivoltBeyondTheLimitIsOutside();
    void distanceIsMeasuredByTheLimitOfAllWhereThereIsNoOther();
    void fiftyOfAWeekMayLieOutside();
    void fiftyOneAreTooMany();
    void oneValueBeyondTheWholeLimitFails();
    void theWorstValueIsKeptWithItsTime();
    void interruptedIntervalsAreLeftOut();
    void flaggedIntervalsCountAndTheirEffectIsKnown();
    void whatIsNoNumberIsCounted();
    void nothingIsNotJudged();
    void withoutALimitNothingIsJudged();
    void eachWeekIsJudgedByItself();
    void aValueOfAWeekThatIsOverCountsForThePresentOne();
    void aFewSecondsMoreAreNoWeekOfTheirOwn();
    void aWeekWithEndlessValuesTakesNoMoreMemory();
    void tenMinutesAreRootMeanSquares();
    void tenMinutesWithGapsAreNotMade();
    void tenMinuteRowsAreTakenAsTheyAre();
    void whatIsReachedIsRankedByTheBoundsOfTheShare();
    void intervalsThatDriftAgainstTheClockLoseNoTenMinutes();
    void anIntervalCountsInBothTenMinutesThatItTouches();
    void spansMergeAndAreFound();
    void spansOfWildTimesAreNone();
    void aTrendKeepsItsExtremes();
};

void TstValueJudge::limitsOfASetAreValuesInTheUnitOfTheQuantity()
{
    const Bounds voltage = en50160(kVoltage);
    QCOMPARE(voltage.share, 95.0);
    QCOMPARE(voltage.low, 207.0);
    QCOMPARE(voltage.high, 253.0);
    QCOMPARE(voltage.wholeLow, 195.5);
    QCOMPARE(voltage.wholeHigh, 253.0);
    const Bounds frequency = en50160({ Quantity::Frequency, -1, 0 });
    QCOMPARE(frequency.low, 49.5);
    QCOMPARE(frequency.high, 50.5);
    QCOMPARE(frequency.wholeLow, 47.0);
    QCOMPARE(frequency.wholeHigh, 52.0);
    QCOMPARE(en50160({ Quantity::Thd, 0, 0 }).high, 8.0);
    QCOMPARE(en50160({ Quantity::Harmonic, 0, 5 }).high, 6.0);
    QCOMPARE(en50160({ Quantity::Harmonic, 0, 25 }).high, 1.5);
    QCOMPARE(en50160({ Quantity::Unbalance, -1, 0 }).high, 2.0);
    QCOMPARE(en50160({ Quantity::Plt, 0, 0 }).high, 1.0);
    QCOMPARE(en50160({ Quantity::Signal1, 0, 0 }).share, 99.0);
    QCOMPARE(en50160({ Quantity::Signal1, 0, 0 }).high, 5.0);
}

void TstValueJudge::limitsThatAreNotAppliedAreNone()
{
    QVERIFY(!en50160({ Quantity::Harmonic, 0, 5 }).hasWhole()); // 100.1
    QVERIFY(!en50160({ Quantity::Harmonic, 0, 26 }).hasPartial()); // 25 rows are in use
    QVERIFY(!en50160({ Quantity::Harmonic, 0, 51 }).hasPartial());
    QVERIFY(!en50160({ Quantity::Pst, 0, 0 }).hasPartial()); // the top of the scale
    QVERIFY(!en50160({ Quantity::ZeroUnbalance, -1, 0 }).hasPartial()); // 100 percent
    QVERIFY(!boundsOf(kVoltage, LimitBuiltins::en50160(), 0, 50).hasPartial()); // nominal value not known
    QVERIFY(!boundsOf(kVoltage, LimitBuiltins::en50160(), kNone, 50).hasPartial());
    monitor_limit wild = LimitBuiltins::en50160();
    wild.harmonicCount = 2000000000;
    QVERIFY(!boundsOf({ Quantity::Harmonic, 0, 32000 }, wild, 230, 50).hasPartial());
}

void TstValueJudge::aRatioOfOneLiesOnTheBound()
{
    const Bounds bounds = en50160(kVoltage);
    QCOMPARE(bounds.ratio(230), 0.0);
    QCOMPARE(bounds.ratio(253), 1.0);
    QCOMPARE(bounds.ratio(207), 1.0);
    QCOMPARE(bounds.ratio(218.5), 0.5);
    QCOMPARE(bounds.ratio(276), 2.0);
}

void TstValueJudge::aStoredFloatOnTheLimitKeepsIt()
{
    monitor_limit limits = LimitBuiltins::en50160();
    limits.harmonicPartial[14] = 0.3f; // as a float it is larger than 0.3
    const Bounds bounds = boundsOf({ Quantity::Harmonic, 0, 15 }, limits, 230, 50);
    QVERIFY(bounds.holdsPartial(double(0.3f)));
    QVERIFY(!bounds.holdsPartial(0.3001));
}

void TstValueJudge::aMillivoltBeyondTheLimitIsOutside()
{
    const Bounds bounds = boundsOf(kVoltage, LimitBuiltins::en50160(), 230, 50);
    QVERIFY(bounds.holdsPartial(253) && bounds.holdsPartial(207));
    QVERIFY(!bounds.holdsPartial(253.001) && !bounds.holdsPartial(206.999));
    QVERIFY(bounds.holdsWhole(195.5) && !bounds.holdsWhole(195.499));
}

void TstValueJudge::distanceIsMeasuredByTheLimitOfAllWhereThereIsNoOther()
{
    Bounds bounds;
    bounds.nominal = 230;
    bounds.wholeLow = 200;
    bounds.wholeHigh = 250;
    QCOMPARE(bounds.ratio(240), 0.5);
    QCOMPARE(bounds.ratio(185), 1.5);
    bounds.high = 235; // the limit of a share counts where there is one
    QCOMPARE(bounds.ratio(240), 2.0);
}

void TstValueJudge::fiftyOfAWeekMayLieOutside()
{
    // 95 percent of 1008 are 957.6: 958 have to lie inside.
    ValueJudge judge(kVoltage, en50160(kVoltage), kOneWeek);
    for (int i = 0; i < 1008; ++i)
        judge.take(kStart + (i + 1) * kStep, i < 50 ? 200 : 231);
    const QuantityVerdict &verdict = judge.finish();
    QCOMPARE(verdict.partial, Outcome::Pass);
    QCOMPARE(verdict.whole, Outcome::Pass);
    QCOMPARE(verdict.atShare, 231.0);
    QCOMPARE(verdict.shareWithin, 958 * 100.0 / 1008);
    QCOMPARE(verdict.judged, 1008);
    QCOMPARE(verdict.covered(Weeks::kWeek), 100.0);
    QCOMPARE(verdict.worst, 200.0);
    QCOMPARE(verdict.highest, 231.0);
}

void TstValueJudge::fiftyOneAreTooMany()
{
    ValueJudge judge(kVoltage, en50160(kVoltage), kOneWeek);
    for (int i = 0; i < 1008; ++i)
        judge.take(kStart + (i + 1) * kStep, i < 51 ? 200 : 231);
    const QuantityVerdict &verdict = judge.finish();
    QCOMPARE(verdict.partial, Outcome::Fail);
    QCOMPARE(verdict.atShare, 200.0);
    QCOMPARE(verdict.outcome(), Outcome::Fail);
}

void TstValueJudge::oneValueBeyondTheWholeLimitFails()
{
    ValueJudge judge(kVoltage, en50160(kVoltage), kOneWeek);
    for (int i = 0; i < 1008; ++i)
        judge.take(kStart + (i + 1) * kStep, i == 500 ? 195.4 : 230);
    const QuantityVerdict &verdict = judge.finish();
    QCOMPARE(verdict.partial, Outcome::Pass);
    QCOMPARE(verdict.whole, Outcome::Fail);
    QCOMPARE(verdict.weeksFailed, 1);
}

void TstValueJudge::theWorstValueIsKeptWithItsTime()
{
    // 245 is 15 V above, on the way to 253: 0.65. 220 is 10 V below, on the way to 207: 0.43.
    ValueJudge judge(kVoltage, en50160(kVoltage), kOneWeek);
    judge.take(kStart + kStep, 220);
    judge.take(kStart + 2 * kStep, 245);
    judge.take(kStart + 3 * kStep, 231);
    const QuantityVerdict &verdict = judge.finish();
    QCOMPARE(verdict.worst, 245.0);
    QCOMPARE(verdict.worstTime, kStart + 2 * kStep);
    QCOMPARE(verdict.lowest, 220.0);
    QCOMPARE(verdict.highest, 245.0);
    QVERIFY(std::abs(verdict.covered(6 * kStep) - 50) < 1e-9);
}

void TstValueJudge::interruptedIntervalsAreLeftOut()
{
    ValueJudge judge(kVoltage, en50160(kVoltage), kOneWeek);
    judge.take(kStart + kStep, 230);
    judge.take(kStart + 2 * kStep, 12, ValueJudge::LeftOut);
    const QuantityVerdict &verdict = judge.finish();
    QCOMPARE(verdict.outcome(), Outcome::Pass);
    QCOMPARE(verdict.leftOut, 1);
    QCOMPARE(verdict.judged, 1);
    QCOMPARE(verdict.lowest, 230.0);
}

void TstValueJudge::flaggedIntervalsCountAndTheirEffectIsKnown()
{
    ValueJudge judge(kVoltage, en50160(kVoltage), kOneWeek);
    for (int i = 0; i < 10; ++i)
        judge.take(kStart + (i + 1) * kStep, 230);
    judge.take(kStart + 11 * kStep, 200, ValueJudge::Flagged);
    const QuantityVerdict &verdict = judge.finish();
    QCOMPARE(verdict.flagged, 1);
    QCOMPARE(verdict.partial, Outcome::Fail); // 10 of 11
    QCOMPARE(verdict.partialUnflagged, Outcome::Pass); // 10 of 10
}

void TstValueJudge::whatIsNoNumberIsCounted()
{
    ValueJudge judge(kVoltage, en50160(kVoltage), kOneWeek);
    judge.take(kStart + kStep, kNone);
    judge.take(kStart + 2 * kStep, std::numeric_limits<double>::infinity());
    judge.take(kStart + 3 * kStep, 230);
    const QuantityVerdict &verdict = judge.finish();
    QCOMPARE(verdict.withoutNumber, 2);
    QCOMPARE(verdict.judged, 1);
    QCOMPARE(verdict.outcome(), Outcome::Pass);
}

void TstValueJudge::nothingIsNotJudged()
{
    ValueJudge judge(kVoltage, en50160(kVoltage), kOneWeek);
    const QuantityVerdict &verdict = judge.finish();
    QCOMPARE(verdict.outcome(), Outcome::NotJudged);
    QVERIFY(std::isnan(verdict.atShare));
}

void TstValueJudge::withoutALimitNothingIsJudged()
{
    ValueJudge judge({ Quantity::Pst, 0, 0 }, en50160({ Quantity::Pst, 0, 0 }), kOneWeek);
    judge.take(kStart + kStep, 3);
    const QuantityVerdict &verdict = judge.finish();
    QCOMPARE(verdict.outcome(), Outcome::NotApplied);
    QCOMPARE(verdict.worst, 3.0);
    QCOMPARE(verdict.weeksFailed, 0);
}

void TstValueJudge::eachWeekIsJudgedByItself()
{
    // 60 of 2016 lie outside: three percent of all, but six percent of the second week.
    ValueJudge judge(kVoltage, en50160(kVoltage), Weeks(kStart, kStart + 2 * Weeks::kWeek));
    for (int i = 0; i < 2016; ++i)
        judge.take(kStart + (i + 1) * kStep, i >= 1008 && i < 1068 ? 200 : 230);
    const QuantityVerdict &verdict = judge.finish();
    QCOMPARE(verdict.weeks, 2);
    QCOMPARE(verdict.weeksFailed, 1);
    QCOMPARE(verdict.partial, Outcome::Fail);
    QCOMPARE(verdict.worstWeek, kStart + Weeks::kWeek);
    QCOMPARE(verdict.shareWithin, 948 * 100.0 / 1008);
}

void TstValueJudge::aValueOfAWeekThatIsOverCountsForThePresentOne()
{
    ValueJudge judge(kVoltage, en50160(kVoltage), Weeks(kStart, kStart + 2 * Weeks::kWeek));
    judge.take(kStart + kStep, 230);
    judge.take(kStart + Weeks::kWeek + kStep, 231);
    judge.take(kStart + 2 * kStep, 180); // a clock that was set back
    judge.take(kStart + Weeks::kWeek + 2 * kStep, 231);
    const QuantityVerdict &verdict = judge.finish();
    QCOMPARE(verdict.judged, 4);
    QCOMPARE(verdict.weeks, 2);
    QCOMPARE(verdict.weeksFailed, 1);
    QCOMPARE(verdict.worstWeek, kStart + Weeks::kWeek);
    QCOMPARE(verdict.shareWithin, 2 * 100.0 / 3);
}

void TstValueJudge::aFewSecondsMoreAreNoWeekOfTheirOwn()
{
    QCOMPARE(Weeks(kStart, kStart + Weeks::kWeek + 168000).count, 1);
    QCOMPARE(Weeks(kStart, kStart + Weeks::kWeek + Weeks::kDay).count, 2);
    QCOMPARE(Weeks(kStart, kStart + 2 * Weeks::kWeek).count, 2);
    QCOMPARE(Weeks(kStart, kStart).count, 1);
    QCOMPARE(Weeks(kStart, kStart - 5).count, 1);
    QCOMPARE(Weeks(0, std::numeric_limits<qint64>::max()).count, 1);
    QCOMPARE(Weeks(kStart, kStart + Weeks::kWeek + 168000).indexOf(kStart + Weeks::kWeek + 1), 0);
    QCOMPARE(Weeks(kStart, kStart + 2 * Weeks::kWeek).indexOf(kStart + Weeks::kWeek), 0);
    QCOMPARE(Weeks(kStart, kStart + 2 * Weeks::kWeek).indexOf(kStart + Weeks::kWeek + 1), 1);
    QVERIFY(!Weeks(kStart, kStart + 6 * Weeks::kDay).isWhole());
    QVERIFY(kOneWeek.isWhole());
    QVERIFY(Weeks(kStart, kStart + Weeks::kWeek - 3600000).isWhole()); // a percent of a week is 101 minutes
    QVERIFY(!Weeks(kStart, kStart + Weeks::kWeek - 2 * 3600000).isWhole());
}

void TstValueJudge::aWeekWithEndlessValuesTakesNoMoreMemory()
{
    ValueJudge judge(kVoltage, en50160(kVoltage), kOneWeek);
    for (int i = 0; i < 3000; ++i)
        judge.take(kStart + 1, 230);
    const QuantityVerdict &verdict = judge.finish();
    QCOMPARE(verdict.judged, 2016); // twice a week's
    QCOMPARE(verdict.unread, 984);
}

void TstValueJudge::tenMinutesAreRootMeanSquares()
{
    std::vector<std::pair<qint64, std::vector<double>>> made;
    ClockMeans tenMinutes(2, 3000, kStep,
                          [&made](qint64 time, const std::vector<double> &v) { made.emplace_back(time, v); });
    for (int i = 0; i < 400; ++i)
        tenMinutes.take(kStart + (i + 1) * 3000, { i % 2 ? 3.0 : 4.0, i < 200 ? 1.0 : kNone });
    tenMinutes.finish();
    QCOMPARE(made.size(), std::size_t(2));
    QCOMPARE(made[0].first, kStart + kStep);
    QCOMPARE(made[0].second[0], std::sqrt(12.5));
    QCOMPARE(made[0].second[1], 1.0);
    QCOMPARE(made[1].first, kStart + 2 * kStep);
    QVERIFY(std::isnan(made[1].second[1]));
}

void TstValueJudge::tenMinutesWithGapsAreNotMade()
{
    int made = 0;
    ClockMeans tenMinutes(1, 3000, kStep, [&made](qint64, const std::vector<double> &) { ++made; });
    for (int i = 0; i < 179; ++i) // 537 s of 600; 540 s would be enough
        tenMinutes.take(kStart + (i + 1) * 3000, { 1.0 });
    for (int i = 0; i < 180; ++i)
        tenMinutes.take(kStart + kStep + (i + 1) * 3000, { 1.0 });
    tenMinutes.finish();
    QCOMPARE(made, 1);
    QCOMPARE(tenMinutes.incomplete(), 1);
}

void TstValueJudge::tenMinuteRowsAreTakenAsTheyAre()
{
    std::vector<qint64> times;
    ClockMeans tenMinutes(1, 599800, kStep,
                          [&times](qint64 time, const std::vector<double> &) { times.push_back(time); });
    tenMinutes.take(kStart + 100, { 1.0 });
    tenMinutes.take(kStart + 599900, { 1.0 }); // the same ten minutes of the clock
    tenMinutes.finish();
    QCOMPARE(times, (std::vector<qint64> { kStart + 100, kStart + 599900 }));
}

void TstValueJudge::whatIsReachedIsRankedByTheBoundsOfTheShare()
{
    // 99 percent at 207 V or more; above, only 253 V for all values. Six lie too low, four too high.
    Bounds bounds;
    bounds.nominal = 230;
    bounds.share = 99;
    bounds.low = 207;
    bounds.wholeHigh = 253;
    ValueJudge judge({ Quantity::Voltage, 0, 0 }, bounds, Weeks(kStart, kStart + 100 * kStep));
    for (int i = 1; i <= 100; ++i)
        judge.take(kStart + i * kStep, i <= 6 ? 200 : i <= 10 ? 300 : 230);
    const QuantityVerdict &v = judge.finish();
    QCOMPARE(v.partial, Outcome::Fail);
    QCOMPARE(v.shareWithin, 94.0);
    QCOMPARE(v.atShare, 200.0); // what breaks the share, not what breaks the limit of all
    QCOMPARE(v.worst, 300.0);
    QCOMPARE(v.whole, Outcome::Fail);
}

void TstValueJudge::intervalsThatDriftAgainstTheClockLoseNoTenMinutes()
{
    // 120.12 s on a supply slightly below its nominal frequency: now and then only four of them end in ten minutes.
    std::vector<double> made;
    ClockMeans tenMinutes(1, 120120, kStep, [&made](qint64, const std::vector<double> &v) { made.push_back(v[0]); });
    for (int i = 0; i < 5000; ++i)
        tenMinutes.take(kStart + qint64(i + 1) * 120120, { 230.0 });
    tenMinutes.finish();
    // 600,600 s are 1001 times ten minutes.
    QCOMPARE(made.size(), std::size_t(1001));
    QCOMPARE(tenMinutes.incomplete(), 0);
    QVERIFY(std::all_of(made.begin(), made.end(), [](double value) { return std::fabs(value - 230) < 1e-9; }));
}

void TstValueJudge::anIntervalCountsInBothTenMinutesThatItTouches()
{
    std::vector<double> made;
    ClockMeans tenMinutes(1, 400000, kStep, [&made](qint64, const std::vector<double> &v) { made.push_back(v[0]); });
    for (const double value : { 3.0, 5.0, 7.0 }) // the second lies in both by halves
        tenMinutes.take(kStart + (value < 4 ? 400000 : value < 6 ? 800000 : 1200000), { value });
    tenMinutes.finish();
    QCOMPARE(made.size(), std::size_t(2));
    QVERIFY(std::fabs(made[0] - std::sqrt((4 * 9.0 + 2 * 25.0) / 6)) < 1e-9);
    QVERIFY(std::fabs(made[1] - std::sqrt((2 * 25.0 + 4 * 49.0) / 6)) < 1e-9);
}

void TstValueJudge::spansMergeAndAreFound()
{
    TimeSpans spans;
    spans.add(100, 200);
    spans.add(300, 400);
    spans.add(150, 300); // closes the gap
    spans.add(700, 700); // a moment
    QCOMPARE(spans.size(), 2);
    QCOMPARE(spans.length(), qint64(300));
    QVERIFY(spans.touch(0, 101));
    QVERIFY(!spans.touch(0, 100)); // begins where the interval ends
    QVERIFY(spans.touch(399, 500));
    QVERIFY(!spans.touch(400, 500));
    QVERIFY(spans.touch(600, 800));
    QVERIFY(!spans.touch(800, 900));
    spans.add(400, 450); // behind the one that ends there
    QCOMPARE(spans.size(), 2);
    spans.add(650, 700); // in front of the one that begins there
    QCOMPARE(spans.size(), 2);
    QCOMPARE(spans.length(), qint64(400));
}

void TstValueJudge::spansOfWildTimesAreNone()
{
    TimeSpans spans;
    spans.add(std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max());
    spans.add(10, 5);
    QVERIFY(spans.isEmpty());
    for (int i = 0; i < 2 * TimeSpans::kMost; ++i)
        spans.add(i * 10, i * 10 + 1);
    QCOMPARE(spans.size(), TimeSpans::kMost);
    QVERIFY(spans.touch(19 * TimeSpans::kMost, 20 * TimeSpans::kMost));
}

void TstValueJudge::aTrendKeepsItsExtremes()
{
    TrendBand band(kStart, kStart + TrendBand::kColumns * 10);
    QVERIFY(band.isEmpty());
    band.take(kStart + 5, 230);
    band.take(kStart + 6, 180);
    band.take(kStart + 15, kNone);
    band.take(kStart - 1000000, 240); // before the begin: the first column
    band.take(std::numeric_limits<qint64>::max() / 2, 235);
    QCOMPARE(band.columns().front().lowest, 180.0f);
    QCOMPARE(band.columns().front().highest, 240.0f);
    QVERIFY(band.columns()[1].isEmpty());
    QCOMPARE(band.columns().back().highest, 235.0f);
}

QTEST_APPLESS_MAIN(TstValueJudge)
#include "tst_valuejudge.moc"
