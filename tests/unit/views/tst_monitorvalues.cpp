#include "pagetest.h"
#include "views/monitor/monitorreadout.h"
#include "views/monitor/monitortrend.h"

#include <cmath>
#include <limits>

using namespace PageTest;

namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

/// Fields as "caption value" lines.
QStringList lines(const MonitorReadout &readout)
{
    QStringList lines;
    for (const auto &field : readout.fields) {
        if (!field.caption.isEmpty())
            lines << field.caption + QLatin1Char(' ') + field.value;
    }
    return lines;
}

} // namespace

using Change = void (*)(__monitor_data &, __monitor_trend &);
Q_DECLARE_METATYPE(Change)

/// What the pages of the monitor make of its results.
class TstMonitorValues : public QObject
{
    Q_OBJECT

private slots:
    void init();

    // bars
    void wiringDecidesTheBars_data();
    void wiringDecidesTheBars();
    void voltageBarsAreTheRatiosOfTheRecord();
    void harmonicsBarIsTheWorstOfAllRows();
    void flickerBarIsThePercentageOfTheQuotient();
    void eventsBarIsTheCountNearestToItsAllowedNumber();
    void anEventOfWhichNoneIsAllowedReachesBeyondTheLimit();
    void signalsBarIsTheWorstOfBothFrequencies();
    void aSignalLimitThatIsNotAppliedHasNoBar();
    void whatIsNoNumberDrawsNoBar();
    void harmonicBarsAreThoseOfThePhase();
    void aLimitThatIsNotAppliedHasNoWidePart();

    // verdicts
    void nothingIsJudgedBeforeTheFirstValue();
    void whatExceedsItsLimitIsSaid_data();
    void whatExceedsItsLimitIsSaid();
    void resultsThatCompareVoltsWithPercentsAreNotAsked();
    void moreEventsThanAllowedExceedTheLimit();
    void eventsAreCountedByTheirKind();

    // numbers
    void placeholdersStandBeforeTheFirstValue();
    void voltageNumbersAreThoseOfTheRecord();
    void frequencyNumbersAreThoseOfTheRecord();
    void otherNumbersAreThoseOfTheRecord();
    void worstHarmonicIsNamed();
    void harmonicNumbersStandBesideTheirLimits();
    void aLimitThatIsNotAppliedIsNoPercentage();
    void deltaWiringsNameLineVoltages();

    // trend
    void zoomHasRoomForTheWholeRun_data();
    void zoomHasRoomForTheWholeRun();
    void axisOfTheFinestZoomReads21hTo3h();
    void axisOfAWeekReadsInDays();
    void scaleIsRoundedOutward();
    void scaleWithoutValuesIsOneStep();
    void scaleLeavesOutWhatIsNoNumber();
    void finestZoomGivesAValueFourPoints();
    void widestZoomKeepsTheValueFarthestFromTheReference();
    void moreValuesThanThePlotHasRoomForAreTheNewest();
    void offsetsLieBetweenTheEndsOfTheScale();

private:
    MonitorView view(int joinMode = 1) const { return { m_data, m_trend, m_limit, *channelSet(joinMode), m_events }; }

    __monitor_data m_data;
    __monitor_trend m_trend;
    monitor_limit m_limit {};
    MonitorEventCounts m_events;
};

void TstMonitorValues::init()
{
    setUpMeasurement(1);
    m_data = {};
    m_trend = {};
    m_events = {};
    MonitorLimits2 set;
    set.initEN50160();
    m_limit = set.limit();
}

void TstMonitorValues::wiringDecidesTheBars_data()
{
    // Bits: voltages 0 to 2, harmonics 3 to 5, flicker 6 to 8, events 9, unbalance 10, frequency 11, signals 12.
    constexpr int three = 0b1111111111111, two = 0b1101011011011, one = 0b1101001001001;
    addWirings("flags", { three, three, one, three, two, one, three, three, three, three });
}

void TstMonitorValues::wiringDecidesTheBars()
{
    QFETCH(int, joinMode);
    QTEST(MonitorValues::histogramFlags(*channelSet(joinMode)), "flags");
}

void TstMonitorValues::voltageBarsAreTheRatiosOfTheRecord()
{
    for (int phase = 0; phase < 3; ++phase) {
        m_data.voltPartialRatio[phase] = 40.0f + phase;
        m_data.voltWholeRatio[phase] = 25.0f + phase;
    }
    m_data.unbalPartialRatio = 51;
    m_data.unbalWholeRatio = 52;
    m_data.freqPartialRatio = 53;
    m_data.freqWholeRatio = 54;
    const auto bars = MonitorValues::histogram(view());
    for (std::size_t phase = 0; phase < 3; ++phase) {
        QCOMPARE(bars[phase].allowed, 40.0f + float(phase));
        QCOMPARE(bars[phase].limit, 25.0f + float(phase));
    }
    QCOMPARE(bars[10].allowed, 51.0f);
    QCOMPARE(bars[10].limit, 52.0f);
    QCOMPARE(bars[11].allowed, 53.0f);
    QCOMPARE(bars[11].limit, 54.0f);
}

void TstMonitorValues::harmonicsBarIsTheWorstOfAllRows()
{
    m_data.harmPartialRatio[1][0] = 30;
    m_data.harmPartialRatio[1][24] = 120;
    m_limit.harmonicWhole[7] = 0.75f;
    m_data.harmWholeRatio[1][7] = 12;
    const auto bars = MonitorValues::histogram(view());
    QCOMPARE(bars[4].allowed, 120.0f);
    QCOMPARE(bars[4].limit, 12.0f);
    QCOMPARE(bars[3].allowed, 0.0f);
    QCOMPARE(bars[5].allowed, 0.0f);
    QCOMPARE(MonitorValues::worstHarmonic(m_data, 1), 24);
}

void TstMonitorValues::flickerBarIsThePercentageOfTheQuotient()
{
    m_data.pltPartialRatio[2] = 0.75f;
    m_data.pltWholeRatio[2] = 0.5f; // to a limit that is not applied
    m_data.pltPercentileAll[2] = 0.9f; // the largest
    QCOMPARE(MonitorValues::histogram(view())[8].allowed, 75.0f);
    QCOMPARE(MonitorValues::histogram(view())[8].limit, 0.0f);
    QCOMPARE(MonitorValues::histogram(view())[6].allowed, 0.0f);
    m_limit.plt.whole = 2;
    QCOMPARE(MonitorValues::histogram(view())[8].limit, 45.0f);
}

void TstMonitorValues::eventsBarIsTheCountNearestToItsAllowedNumber()
{
    // Allowed: 20 dips, 20 swells, 2 interruptions, 70 rapid changes.
    m_events = { 10, 5, 0, 7 };
    QCOMPARE(MonitorValues::histogram(view())[9].limit, 50.0f);
    m_events.interruptions = 3;
    QCOMPARE(MonitorValues::histogram(view())[9].limit, 150.0f);
    QCOMPARE(MonitorValues::histogram(view())[9].allowed, 150.0f);
    m_limit.dips.maxAllowed = 5;
    QCOMPARE(MonitorValues::histogram(view())[9].limit, 200.0f);
    m_events.swells = 44;
    QCOMPARE(MonitorValues::histogram(view())[9].limit, 220.0f);
    m_events.rvc = 161;
    QCOMPARE(MonitorValues::histogram(view())[9].limit, 230.0f);
}

void TstMonitorValues::anEventOfWhichNoneIsAllowedReachesBeyondTheLimit()
{
    m_limit.swells.maxAllowed = 0;
    QCOMPARE(MonitorValues::histogram(view())[9].limit, 0.0f);
    m_events.swells = 1;
    QVERIFY(MonitorValues::histogram(view())[9].limit > 100.0f);
}

void TstMonitorValues::signalsBarIsTheWorstOfBothFrequencies()
{
    m_limit.frequency1.whole = 10; // percent
    m_limit.frequency2.whole = 10;
    m_data.signal1PercentileNep[0] = 0.025f; // 2.5 percent of 5: half
    m_data.signal2PercentileNep[1] = 0.072f; // 7.2 percent of 9: 80 percent
    m_data.signal1PercentileAll[0] = 0.03f; // 3 percent of 10
    m_data.signal2PercentileAll[1] = 0.02f;
    const ComplianceBar bar = MonitorValues::histogram(view())[12];
    QCOMPARE(bar.allowed, 80.0f);
    QCOMPARE(bar.limit, 30.0f);
    // A phase that is not measured is not looked at.
    QCOMPARE(MonitorValues::histogram(view(3))[12].allowed, 50.0f);
}

void TstMonitorValues::aSignalLimitThatIsNotAppliedHasNoBar()
{
    m_data.signal1PercentileAll[0] = 0.5f;
    QCOMPARE(MonitorValues::histogram(view())[12].limit, 0.0f);
}

void TstMonitorValues::whatIsNoNumberDrawsNoBar()
{
    m_data.harmPartialRatio[0][3] = kNaN;
    m_data.harmPartialRatio[0][4] = 60;
    m_data.signal1PercentileNep[0] = kNaN;
    const auto bars = MonitorValues::histogram(view());
    QCOMPARE(bars[3].allowed, 60.0f);
    QCOMPARE(bars[12].allowed, 0.0f);
}

void TstMonitorValues::harmonicBarsAreThoseOfThePhase()
{
    m_data.harmPartialRatio[2][0] = 10;
    m_data.harmWholeRatio[2][0] = 11;
    m_data.harmPartialRatio[2][24] = 12;
    const auto bars = MonitorValues::harmonics(view(), 2);
    QCOMPARE(bars[0].allowed, 10.0f);
    QCOMPARE(bars[0].limit, 11.0f);
    QCOMPARE(bars[24].allowed, 12.0f);
    QCOMPARE(MonitorValues::harmonics(view(), 1)[0].allowed, 0.0f);
}

void TstMonitorValues::aLimitThatIsNotAppliedHasNoWidePart()
{
    for (int row = 0; row < kMonitorHarmonics; ++row) {
        m_limit.harmonicWhole[row] = 100.1f;
        m_data.harmWholeRatio[0][row] = 7; // of 100.1 percent, as the record has it
    }
    m_limit.frequency.wholeUpper = m_limit.frequency.wholeLower = 100.1f;
    m_data.freqWholeRatio = 5;
    m_data.voltReady = 1;
    QCOMPARE(MonitorValues::histogram(view())[MonitorBarHarmonics].limit, 0.0f);
    QCOMPARE(MonitorValues::histogram(view())[MonitorBarFrequency].limit, 0.0f);
    QCOMPARE(lines(MonitorReadout::ofBar(view(), MonitorBarHarmonics)).last(), QStringLiteral("Limit -"));
    // One order with a limit is enough for the bar, and it alone has one of its own.
    m_limit.harmonicWhole[4] = 9;
    m_data.harmWholeRatio[0][4] = 6;
    QCOMPARE(MonitorValues::histogram(view())[MonitorBarHarmonics].limit, 6.0f);
    QCOMPARE(lines(MonitorReadout::ofBar(view(), MonitorBarHarmonics)).last(), QStringLiteral("Limit 6.0%"));
    QCOMPARE(lines(MonitorReadout::ofHarmonic(view(), 0, 4)).last(), QStringLiteral("Limit 6.0%"));
    QCOMPARE(MonitorValues::harmonics(view(), 0)[3].limit, 0.0f);
    // The record leaves out an order that may go beyond the distortion.
    m_limit.harmonicWhole[0] = 8;
    m_data.harmWholeRatio[0][4] = 0;
    QCOMPARE(lines(MonitorReadout::ofHarmonic(view(), 0, 4)).last(), QStringLiteral("Limit -"));
}

void TstMonitorValues::nothingIsJudgedBeforeTheFirstValue()
{
    for (int bar = 0; bar < MonitorHistogram::kBars; ++bar)
        QCOMPARE(MonitorValues::verdict(view(), bar), MonitorValues::None);
    const auto judged = [this] { // a bit for each bar
        int bars = 0;
        for (int bar = 0; bar < MonitorHistogram::kBars; ++bar)
            bars |= (MonitorValues::verdict(view(), bar) == MonitorValues::Within) << bar;
        return bars;
    };
    m_data.freqReady = 1;
    QCOMPARE(judged(), 0b0101000000000);
    m_data.voltReady = 1;
    QCOMPARE(judged(), 0b1111000111111);
    m_data.flickerReady = 1;
    QCOMPARE(judged(), 0b1111111111111);
}

void TstMonitorValues::whatExceedsItsLimitIsSaid_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("bar");
    const auto row = [](const char *name, int bar, Change change) { QTest::newRow(name) << change << bar; };
    row("voltage L2, partial", 1, [](__monitor_data &d, __monitor_trend &) { d.voltPartialRatio[1] = 100.5f; });
    row("voltage L3, whole", 2, [](__monitor_data &d, __monitor_trend &) { d.voltWholeRatio[2] = 100.5f; });
    row("distortion L1 now", 3, [](__monitor_data &d, __monitor_trend &) { d.harmPartialRatio[0][0] = 101; });
    row("order 25 L2 before", 4, [](__monitor_data &d, __monitor_trend &) { d.harmOk[1][24] = 0; });
    row("flicker L3 now", 8, [](__monitor_data &d, __monitor_trend &) { d.pltPartialRatio[2] = 1.01f; });
    row("flicker L1 before", 6, [](__monitor_data &d, __monitor_trend &) { d.pltPercentileAll[0] = 1.01f; });
    row("unbalance now", 10, [](__monitor_data &d, __monitor_trend &) { d.unbalPartialRatio = 101; });
    row("unbalance before", 10, [](__monitor_data &, __monitor_trend &t) { t.row[28] = { 0.5f, 2.5f, 0.5f }; });
    row("frequency, partial", 11, [](__monitor_data &d, __monitor_trend &) { d.freqPartialRatio = 101; });
    row("frequency, whole", 11, [](__monitor_data &d, __monitor_trend &) { d.freqWholeRatio = 101; });
    row("mains signal", 12, [](__monitor_data &d, __monitor_trend &) { d.signal1PercentileNep[0] = 0.051f; });
}

void TstMonitorValues::whatExceedsItsLimitIsSaid()
{
    QFETCH(Change, change);
    QFETCH(int, bar);
    m_data.freqReady = m_data.voltReady = m_data.flickerReady = 1;
    change(m_data, m_trend);
    for (int other = 0; other < MonitorHistogram::kBars; ++other)
        QCOMPARE(MonitorValues::verdict(view(), other), other == bar ? MonitorValues::Exceeded : MonitorValues::Within);
}

void TstMonitorValues::resultsThatCompareVoltsWithPercentsAreNotAsked()
{
    // 230.9 V on a supply of 230 V: 4 percent of the limit, and the results say 0.
    m_data.freqReady = m_data.voltReady = 1;
    m_data.voltPartialRatio[0] = 4;
    m_data.voltPartialOk[0] = m_data.voltWholeOk[0] = m_data.freqPartialOk = m_data.freqWholeOk = 0;
    QCOMPARE(MonitorValues::verdict(view(), 0), MonitorValues::Within);
    QCOMPARE(MonitorValues::verdict(view(), 11), MonitorValues::Within);
}

void TstMonitorValues::moreEventsThanAllowedExceedTheLimit()
{
    m_data.freqReady = 1;
    m_events.interruptions = 2;
    QCOMPARE(MonitorValues::verdict(view(), MonitorBarDirs), MonitorValues::Within);
    m_events.interruptions = 3;
    QCOMPARE(MonitorValues::verdict(view(), MonitorBarDirs), MonitorValues::Exceeded);
}

void TstMonitorValues::eventsAreCountedByTheirKind()
{
    EventList list;
    for (const qint32 type :
         { EventDip, EventSwell, EventDip, EventRms, EventRvc, EventInterruption, EventRvc, EventRvc }) {
        PQAEventItem event;
        event.type = type;
        list.append(event);
    }
    EventSelection all(list, kAllEvents);
    all.refresh();
    const MonitorEventCounts counts = MonitorValues::count(all);
    QCOMPARE(counts.dips, 2);
    QCOMPARE(counts.swells, 1);
    QCOMPARE(counts.interruptions, 1);
    QCOMPARE(counts.rvc, 3);
}

void TstMonitorValues::placeholdersStandBeforeTheFirstValue()
{
    QCOMPARE(
        lines(MonitorReadout::ofBar(view(), MonitorBarVoltage)),
        QStringList({ "Max ___._V", "95% ___._V", "Allowed% ___._", "Min ___._V", "100% ___._V", "Limit ___._%" }));
    QCOMPARE(lines(MonitorReadout::ofBar(view(), MonitorBarFlicker)),
             QStringList({ "Plt __.__", "95% __.__", "Allowed% ___._", "100% __.__", "Limit ___._%" }));
    QCOMPARE(lines(MonitorReadout::ofBar(view(), MonitorBarUnbalance)),
             QStringList({ "Neg. ___.__%", "Allowed% ___._", "Limit ___._%" }));
    QCOMPARE(lines(MonitorReadout::ofBar(view(), MonitorBarFrequency)),
             QStringList({ "Max ___.__Hz", "95% ___.__Hz", "Allowed% ___._", "Min ___.__Hz", "100% ___.__Hz",
                           "Limit ___._%" }));
    QCOMPARE(lines(MonitorReadout::ofBar(view(), MonitorBarSignals)).value(0), QStringLiteral("1: 99% ___.__%"));
    QCOMPARE(lines(MonitorReadout::ofBar(view(), MonitorBarDirs)),
             QStringList({ "Dips 0/20", "Swells 0/20", "Interr. 0/2", "RVC 0/70" }));
}

void TstMonitorValues::voltageNumbersAreThoseOfTheRecord()
{
    m_data.voltReady = 1;
    m_data.voltMax[1] = 242.0f;
    m_data.voltMin[1] = 225.0f;
    m_data.voltPercentileNep[1] = 240.0f;
    m_data.voltPercentileAll[1] = 242.0f;
    m_data.voltPartialRatio[1] = 52.2f;
    m_data.voltWholeRatio[1] = 34.8f;
    const MonitorReadout readout = MonitorReadout::ofBar(view(), MonitorBarVoltage + 1);
    QCOMPARE(readout.quantity, QStringLiteral("L2 Vrms"));
    QCOMPARE(readout.phase, 1);
    const QStringList shown = lines(readout);
    QVERIFY(shown.at(0).startsWith("Max 242") && shown.at(0).endsWith("V"));
    QVERIFY(shown.at(1).startsWith("95% 240"));
    QCOMPARE(shown.at(2), QStringLiteral("Allowed% 52.2"));
    QVERIFY(shown.at(3).startsWith("Min 225"));
    QVERIFY(shown.at(4).startsWith("100% 242"));
    QCOMPARE(shown.at(5), QStringLiteral("Limit 34.8%"));
}

void TstMonitorValues::frequencyNumbersAreThoseOfTheRecord()
{
    m_data.freqReady = 1;
    m_data.freqMax = 50.07f;
    m_data.freqMin = 49.91f;
    m_data.freqPercentileNep = 50.03f;
    m_data.freqPercentileAll = 50.07f;
    m_data.freqPartialRatio = 18;
    m_data.freqWholeRatio = 3.5f;
    const MonitorReadout readout = MonitorReadout::ofBar(view(), MonitorBarFrequency);
    QCOMPARE(readout.quantity, QStringLiteral("Frequency"));
    QCOMPARE(readout.phase, -1);
    QCOMPARE(
        lines(readout),
        QStringList({ "Max 50.07Hz", "95% 50.03Hz", "Allowed% 18.0", "Min 49.91Hz", "100% 50.07Hz", "Limit 3.5%" }));
}

void TstMonitorValues::otherNumbersAreThoseOfTheRecord()
{
    m_data.voltReady = m_data.flickerReady = 1;
    m_limit.plt.nep = 90;
    m_data.pltValue[2] = 0.5f;
    m_data.pltPercentileNep[2] = 0.6f;
    m_data.pltPercentileAll[2] = 0.7f;
    m_data.pltPartialRatio[2] = 0.5f;
    QCOMPARE(lines(MonitorReadout::ofBar(view(), MonitorBarFlicker + 2)),
             QStringList({ "Plt 0.50", "90% 0.60", "Allowed% 50.0", "100% 0.70", "Limit -" }));

    m_events = { 1, 2, 3, 4 }; // dips, swells, interruptions, rapid changes
    QCOMPARE(lines(MonitorReadout::ofBar(view(), MonitorBarDirs)),
             QStringList({ "Dips 1/20", "Swells 2/20", "Interr. 3/2", "RVC 4/70" }));

    m_trend.append(MonitorTrendUnbalance, 1.25f);
    m_trend.append(MonitorTrendFrequency, 50);
    m_data.unbalPartialRatio = 62.5f;
    m_data.unbalWholeRatio = 1;
    QCOMPARE(lines(MonitorReadout::ofBar(view(), MonitorBarUnbalance)),
             QStringList({ "Neg. 1.25%", "Allowed% 62.5", "Limit -" }));

    m_limit.frequency2.nep = 98;
    m_limit.frequency2.whole = 20;
    m_data.signal1PercentileNep[0] = 0.01f;
    m_data.signal1PercentileAll[0] = 0.02f;
    m_data.signal2PercentileNep[0] = 0.03f;
    m_data.signal2PercentileAll[0] = 0.04f; // of 20 percent
    QCOMPARE(lines(MonitorReadout::ofBar(view(), MonitorBarSignals)),
             QStringList(
                 { "1: 99% 1.00%", "2: 98% 3.00%", "Allowed% 33.3", "1: 100% 2.00%", "2: 100% 4.00%", "Limit 20.0%" }));
}

void TstMonitorValues::worstHarmonicIsNamed()
{
    m_data.voltReady = 1;
    m_data.harmPartialRatio[0][4] = 88;
    m_trend.append(MonitorTrendThd, 3.25f);
    m_trend.append(MonitorTrendThd, 4.5f);
    const QStringList shown = lines(MonitorReadout::ofBar(view(), MonitorBarHarmonics));
    QCOMPARE(shown.at(0), QStringLiteral("THD 4.5%")); // the newest
    QCOMPARE(shown.at(1), QStringLiteral("Worst H5"));
    QCOMPARE(shown.at(2), QStringLiteral("Allowed% 88.0"));
}

void TstMonitorValues::harmonicNumbersStandBesideTheirLimits()
{
    m_data.voltReady = 1;
    m_data.harmPartialRatio[2][4] = 50; // of 6 percent
    m_limit.harmonicNep[4] = 97;
    const MonitorReadout readout = MonitorReadout::ofHarmonic(view(), 2, 4);
    QCOMPARE(readout.quantity, QStringLiteral("L3 H5"));
    QCOMPARE(lines(readout), QStringList({ "Value 3.00%", "97% 6.00%", "Allowed% 50.0", "100% -", "Limit -" }));
    QCOMPARE(MonitorReadout::ofHarmonic(view(), 0, 0).quantity, QStringLiteral("L1 THD"));
    m_data.harmOk[2][4] = 0;
    QCOMPARE(MonitorReadout::ofHarmonic(view(), 2, 4).verdict, MonitorValues::Exceeded);
}

void TstMonitorValues::aLimitThatIsNotAppliedIsNoPercentage()
{
    m_data.voltReady = 1;
    QCOMPARE(lines(MonitorReadout::ofBar(view(), MonitorBarUnbalance)).last(), QStringLiteral("Limit -"));
    m_limit.neg.whole = 4;
    m_data.unbalWholeRatio = 20;
    QCOMPARE(lines(MonitorReadout::ofBar(view(), MonitorBarUnbalance)).last(), QStringLiteral("Limit 20.0%"));
}

void TstMonitorValues::deltaWiringsNameLineVoltages()
{
    QCOMPARE(MonitorReadout::ofBar(view(4), MonitorBarVoltage).quantity, QStringLiteral("L12 Vrms"));
    QCOMPARE(MonitorReadout::ofBar(view(4), MonitorBarFlicker + 2).quantity, QStringLiteral("L31 Flicker"));
}

void TstMonitorValues::zoomHasRoomForTheWholeRun_data()
{
    QTest::addColumn<int>("hours");
    QTest::addColumn<int>("zoom");
    QTest::newRow("2 hours") << 2 << 3;
    QTest::newRow("21 hours") << 21 << 3;
    QTest::newRow("a day") << 24 << 2;
    QTest::newRow("42 hours") << 42 << 2;
    QTest::newRow("3 days") << 72 << 1;
    QTest::newRow("a week") << 168 << 0;
    QTest::newRow("a month") << 744 << 0;
}

void TstMonitorValues::zoomHasRoomForTheWholeRun()
{
    QFETCH(int, hours);
    QTEST(MonitorTrend::zoomFor(hours), "zoom");
}

void TstMonitorValues::axisOfTheFinestZoomReads21hTo3h()
{
    QCOMPARE(MonitorTrend::axisLabels(21), QStringList({ "21h", "18h", "15h", "12h", "9h", "6h", "3h" }));
}

void TstMonitorValues::axisOfAWeekReadsInDays()
{
    QCOMPARE(MonitorTrend::axisLabels(168), QStringList({ "168h", "144h", "120h", "96h", "72h", "48h", "24h" }));
}

void TstMonitorValues::scaleIsRoundedOutward()
{
    const QList<float> first { 231, 228 }, second { 240, 233 };
    const MonitorTrend::Scale scale = MonitorTrend::scaleOf({ &first, &second }, 10);
    QCOMPARE(scale.max, 250.0); // above, not on, the edge
    QCOMPARE(scale.min, 220.0);
}

void TstMonitorValues::scaleWithoutValuesIsOneStep()
{
    const QList<float> none;
    const MonitorTrend::Scale scale = MonitorTrend::scaleOf({ &none }, 10);
    QCOMPARE(scale.max, 10.0);
    QCOMPARE(scale.min, 0.0);
}

void TstMonitorValues::scaleLeavesOutWhatIsNoNumber()
{
    const QList<float> list { kNaN, 49.9f, std::numeric_limits<float>::infinity(), 50.1f };
    const MonitorTrend::Scale scale = MonitorTrend::scaleOf({ &list }, 1);
    QCOMPARE(scale.max, 51.0);
    QCOMPARE(scale.min, 49.0);
}

void TstMonitorValues::finestZoomGivesAValueFourPoints()
{
    const auto points = MonitorTrend::offsets({ 0, 10 }, 0.25, 0, { 10, 0 });
    QCOMPARE(points, QVector<qint16>({ 99, 99, 99, 99, 0, 0, 0, 0 }));
}

void TstMonitorValues::widestZoomKeepsTheValueFarthestFromTheReference()
{
    // Pairs from the newest back: (7, 2), (5, 9); the oldest stands alone.
    const auto points = MonitorTrend::offsets({ 1, 9, 5, 2, 7 }, 2, 0, { 10, 0 });
    QCOMPARE(points, QVector<qint16>({ qint16(0.9 * 99), qint16(0.1 * 99), qint16(0.3 * 99) }));
    // Around 5 the 2 and the 9 are farther away.
    QCOMPARE(MonitorTrend::offsets({ 9, 5, 2, 7 }, 2, 5, { 10, 0 }),
             QVector<qint16>({ qint16(0.1 * 99), qint16(0.8 * 99) }));
    // Of equals the newest; what is no number stands for no other value.
    QCOMPARE(MonitorTrend::offsets({ 9, kNaN, 2, 8 }, 2, 5, { 10, 0 }),
             QVector<qint16>({ qint16(0.1 * 99), qint16(0.2 * 99) }));
}

void TstMonitorValues::moreValuesThanThePlotHasRoomForAreTheNewest()
{
    QList<float> week;
    for (int i = 0; i < kMonitorTrendValues; ++i)
        week << (i < kMonitorTrendValues - 506 ? 10.0f : 0.0f);
    const auto points = MonitorTrend::offsets(week, 1, 0, { 10, 0 });
    QCOMPARE(points.size(), 506);
    QVERIFY(!points.contains(0));
    QCOMPARE(MonitorTrend::offsets(week, 2, 0, { 10, 0 }).size(), 506);
    QCOMPARE(MonitorTrend::offsets(week, 0.25, 0, { 10, 0 }).size(), 506);
}

void TstMonitorValues::offsetsLieBetweenTheEndsOfTheScale()
{
    const auto points = MonitorTrend::offsets({ kNaN, -1e30f, 1e30f, 5 }, 1, 0, { 10, 0 });
    QCOMPARE(points, QVector<qint16>({ 99, 99, 0, 49 }));
}

PAGE_TEST_MAIN(TstMonitorValues)
#include "tst_monitorvalues.moc"
