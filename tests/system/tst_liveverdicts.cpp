// What the monitor says of supplies that just keep each limit of EN 50160, and of such that just break it.
#include "monitoredrun.h"

#include "model/channelset.h"
#include "settings/config_data.h"
#include "views/monitor/monitorvalues.h"

using namespace SystemTest;

namespace {

/// Limits of EN 50160 by row: the distortion, then the orders 2 to 25. Percent of the fundamental.
constexpr double kHarmonicLimits[kMonitorHarmonics]
    = { 8, 2, 5, 1, 6, 0.5, 5, 0.5, 1.5, 0.5, 3.5, 0.5, 3, 0.5, 0.5, 0.5, 2, 0.5, 1.5, 0.5, 0.5, 0.5, 1.5, 0.5, 1.5 };
constexpr double kKept = 0.98, kBroken = 1.02; // of a limit

/// A supply, as the stand-in is told it. What is not named stands at 230 V and 50 Hz.
struct Supply
{
    const char *name;
    QStringList commands;
    bool tenSeconds; // that is as long as it has to be watched; else ten minutes
};

QString command(const char *form, double value)
{
    return QString::fromLatin1(form).arg(value);
}

Supply hertz(const char *name, double value)
{
    return { name, { command("set f %1", value) }, true };
}

Supply volts(const char *name, double l1, double l2, double l3)
{
    return { name, { command("set u1 %1", l1), command("set u2 %1", l2), command("set u3 %1", l3) }, false };
}

/// All orders of L1 at a share of their limits, of L2 at another; L3 keeps or breaks that of the distortion by three.
Supply orders(const char *name, double seventhOfL3)
{
    Supply supply { name, {}, false };
    for (int row = 1; row < kMonitorHarmonics; ++row) {
        supply.commands << QStringLiteral("set harmonic u1 %1 %2%").arg(row + 1).arg(kKept * kHarmonicLimits[row]);
        supply.commands << QStringLiteral("set harmonic u2 %1 %2%").arg(row + 1).arg(kBroken * kHarmonicLimits[row]);
    }
    supply.commands << QStringLiteral("set harmonic u3 3 4.9%") << QStringLiteral("set harmonic u3 5 5.9%")
                    << QStringLiteral("set harmonic u3 7 %1%").arg(seventhOfL3);
    return supply;
}

Supply telegrams(const char *name, double first, double second)
{
    return { name, { QStringLiteral("set signalling 1375 %1% 285 %2%").arg(first).arg(second) }, false };
}

/// So many disturbances, one behind the other.
Supply events(const char *name, const char *form, int count)
{
    Supply supply { name, {}, false };
    for (int i = 0; i < count; ++i)
        supply.commands << command(form, 3 + 0.8 * i);
    return supply;
}

QVector<Supply> allSupplies()
{
    return {
        hertz("50.009 Hz", 50.009),
        hertz("50.011 Hz", 50.011),
        hertz("50.039 Hz", 50.039),
        hertz("50.041 Hz", 50.041),
        hertz("49.991 Hz", 49.991),
        hertz("49.989 Hz", 49.989),
        hertz("49.941 Hz", 49.941),
        hertz("49.939 Hz", 49.939),
        hertz("50.495 Hz", 50.495),
        hertz("50.505 Hz", 50.505),
        hertz("49.505 Hz", 49.505),
        hertz("49.495 Hz", 49.495),
        hertz("51.99 Hz", 51.99),
        hertz("52.01 Hz", 52.01),
        hertz("47.01 Hz", 47.01),
        hertz("46.99 Hz", 46.99),
        volts("around the nominal voltage", 230.08, 230.12, 229.92),
        volts("below the nominal voltage", 229.88, 229.87, 229.83),
        volts("at the upper limit", 252.9, 253.1, 207.1),
        volts("at the lower limits", 206.9, 195.6, 195.4),
        // Against 230 V in the others a voltage of 230 V (1 + d) has a negative sequence of d / (3 + d).
        volts("a negative sequence of 1.98 %", 230 * (1 + 3 * 0.0198 / (1 - 0.0198)), 230, 230),
        volts("a negative sequence of 2.02 %", 230 * (1 + 3 * 0.0202 / (1 - 0.0202)), 230, 230),
        orders("orders, and 7.91 % in all on L3", 1.95),
        orders("orders, and 8.07 % in all on L3", 2.5),
        telegrams("telegrams of 4.9 % and 8.9 %", 4.9, 8.9),
        telegrams("telegrams of 5.1 % and 8.9 %", 5.1, 8.9),
        telegrams("telegrams of 4.9 % and 9.1 %", 4.9, 9.1),
        events("20 dips", "event dip l1 50% 100ms in=%1s", 20),
        events("21 dips", "event dip l2 50% 100ms in=%1s", 21),
        events("20 swells", "event swell l1 120% 100ms in=%1s", 20),
        events("21 swells", "event swell all 120% 100ms in=%1s", 21),
        events("2 interruptions", "event interruption all 200ms in=%1s", 2),
        events("3 interruptions", "event interruption all 200ms in=%1s", 3),
    };
}

/// What the pages are given of a supply when its time is over.
struct Judged
{
    __monitor_data data;
    std::array<ComplianceBar, MonitorHistogram::kBars> bars;
    std::array<int, MonitorHistogram::kBars> verdicts;
    QVector<int> events; // kinds
};

} // namespace

/// Each limit from both sides.
class TstLiveVerdicts : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void frequencyIsJudgedByItsBands_data();
    void frequencyIsJudgedByItsBands();
    void voltageIsJudgedByItsBands_data();
    void voltageIsJudgedByItsBands();
    void unbalanceIsJudgedByItsLimit_data();
    void unbalanceIsJudgedByItsLimit();
    void ordersAreJudgedByTheirLimits();
    void distortionIsJudgedByItsLimit_data();
    void distortionIsJudgedByItsLimit();
    void telegramsAreJudgedByTheirLimits_data();
    void telegramsAreJudgedByTheirLimits();
    void eventsAreJudgedByTheirNumber_data();
    void eventsAreJudgedByTheirNumber();

private:
    void judge(const Supply &supply, Judged *judged);
    void letPass(double seconds);

    QMap<QString, Judged> m_judged; // by the name of the supply
    std::unique_ptr<LiveGraph> m_live;
};

void TstLiveVerdicts::initTestCase()
{
    m_live.reset(new LiveGraph);
    QVERIFY2(m_live->start({}), qPrintable(m_live->desk().error()));
    QCOMPARE(m_limits_g.activeLimitsName(), QStringLiteral("EN50160"));
    for (const Supply &supply : allSupplies()) {
        judge(supply, &m_judged[QLatin1String(supply.name)]);
        if (QTest::currentTestFailed())
            return;
    }
}

void TstLiveVerdicts::cleanupTestCase()
{
    m_live.reset(); // ends the stand-in
}

/// Of the signal's time, with or without a measurement.
void TstLiveVerdicts::letPass(double seconds)
{
    const auto now = [] { return LiveGraph::status(QStringLiteral("t")).toDouble(); };
    const double end = now() + seconds;
    QVERIFY(LiveGraph::setSpeed(20));
    QTRY_VERIFY_WITH_TIMEOUT(now() > end, kPatienceMs);
    QVERIFY(LiveGraph::setSpeed(LiveGraph::kStandStill));
}

/// A run of the monitor, from its start page on. Its seconds are tenths of those of the signal, so that ten minutes
/// hold the aggregations of one; the arithmetic is the same.
void TstLiveVerdicts::judge(const Supply &supply, Judged *judged)
{
    LiveGraph::key(Qt::Key_A); // menu
    LiveGraph::key(Qt::Key_U); // Monitor
    QTRY_COMPARE(LiveGraph::text("name"), QStringLiteral("Monitor"));
    for (const QString &one : supply.commands) {
        if (!one.startsWith(QLatin1String("event")))
            QVERIFY2(!LiveGraph::tell(one).isNull(), qPrintable(one));
    }
    letPass(3); // until nothing of the supply before is under way
    QVERIFY(MonitoredRun::begin(this, 100));
    for (const QString &one : supply.commands) {
        if (one.startsWith(QLatin1String("event")))
            QVERIFY2(!LiveGraph::tell(one).isNull(), qPrintable(one));
    }

    const DisplayRecords &live = m_taskmanage->data().live();
    QVERIFY(LiveGraph::runUntil(
        [&] { return supply.tenSeconds ? live.monitor.freqReady != 0 : live.monitor.voltReady != 0; }, 60));

    MonitorEventCounts counts;
    for (const PQAEventItem &event : m_taskmanage->data().events()) {
        judged->events << event.type;
        counts.dips += event.type == EventDip;
        counts.swells += event.type == EventSwell;
        counts.interruptions += event.type == EventInterruption;
    }
    judged->data = live.monitor;
    const MonitorView view { judged->data, live.monitorTrend, *m_limits_g.getLimitsInUsed(), *channelSet(1), counts };
    judged->bars = MonitorValues::histogram(view);
    for (int bar = 0; bar < MonitorHistogram::kBars; ++bar)
        judged->verdicts[std::size_t(bar)] = MonitorValues::verdict(view, bar);
    g_unitask->stopTask();
    for (const char *one : { "event clear", "set f 50", "set u 230", "set signalling off" })
        QVERIFY2(!LiveGraph::tell(QLatin1String(one)).isNull(), one);
    for (const QString &one : supply.commands) {
        if (one.startsWith(QLatin1String("set harmonic")))
            QVERIFY(!LiveGraph::tell(one.section(QLatin1Char(' '), 0, 3) + QStringLiteral(" 0%")).isNull());
    }
}

// Within: distance from 50 Hz in percent of 0.5 Hz (partial), and of 2 Hz above or 3 Hz below (whole). The results of
// the record compare a hundred times the distance in Hz with 1 (partial), 4 above and 6 below (whole).
void TstLiveVerdicts::frequencyIsJudgedByItsBands_data()
{
    QTest::addColumn<double>("partialRatio");
    QTest::addColumn<double>("wholeRatio");
    QTest::addColumn<int>("partialOk");
    QTest::addColumn<int>("wholeOk");
    QTest::addColumn<bool>("event"); // beyond 1 percent
    QTest::newRow("50.009 Hz") << 1.8 << 0.45 << 1 << 1 << false;
    QTest::newRow("50.011 Hz") << 2.2 << 0.55 << 0 << 1 << false;
    QTest::newRow("50.039 Hz") << 7.8 << 1.95 << 0 << 1 << false;
    QTest::newRow("50.041 Hz") << 8.2 << 2.05 << 0 << 0 << false;
    QTest::newRow("49.991 Hz") << 1.8 << 0.3 << 1 << 1 << false;
    QTest::newRow("49.989 Hz") << 2.2 << 0.367 << 0 << 1 << false;
    QTest::newRow("49.941 Hz") << 11.8 << 1.967 << 0 << 1 << false;
    QTest::newRow("49.939 Hz") << 12.2 << 2.033 << 0 << 0 << false;
    QTest::newRow("50.495 Hz") << 99.0 << 24.75 << 0 << 0 << false;
    QTest::newRow("50.505 Hz") << 101.0 << 25.25 << 0 << 0 << true;
    QTest::newRow("49.505 Hz") << 99.0 << 16.5 << 0 << 0 << false;
    QTest::newRow("49.495 Hz") << 101.0 << 16.833 << 0 << 0 << true;
    QTest::newRow("51.99 Hz") << 398.0 << 99.5 << 0 << 0 << true;
    QTest::newRow("52.01 Hz") << 402.0 << 100.5 << 0 << 0 << true;
    QTest::newRow("47.01 Hz") << 598.0 << 99.667 << 0 << 0 << true;
    QTest::newRow("46.99 Hz") << 602.0 << 100.333 << 0 << 0 << true;
}

void TstLiveVerdicts::frequencyIsJudgedByItsBands()
{
    QFETCH(double, partialRatio);
    QFETCH(double, wholeRatio);
    QFETCH(int, partialOk);
    QFETCH(int, wholeOk);
    QFETCH(bool, event);
    const Judged &judged = m_judged[QLatin1String(QTest::currentDataTag())];
    constexpr double kAllowed = 0.15; // percent of the band: less than a thousandth of a hertz
    QVERIFY2(std::fabs(double(judged.data.freqPartialRatio) - partialRatio) < kAllowed,
             qPrintable(QString::number(double(judged.data.freqPartialRatio))));
    QVERIFY2(std::fabs(double(judged.data.freqWholeRatio) - wholeRatio) < kAllowed,
             qPrintable(QString::number(double(judged.data.freqWholeRatio))));
    QCOMPARE(judged.data.freqPartialOk, partialOk);
    QCOMPARE(judged.data.freqWholeOk, wholeOk);
    QCOMPARE(judged.events.contains(EventFrequency), event);
    const int verdict = partialRatio > 100 ? MonitorValues::Exceeded : MonitorValues::Within;
    QCOMPARE(judged.verdicts[MonitorBarFrequency], verdict);
    QCOMPARE(judged.bars[MonitorBarFrequency].limit > 100, wholeRatio > 100);
}

// Within: distance from 230 V in percent of 23 V (partial, and whole above), of 34.5 V (whole below). The results of
// the record compare a hundred times the distance in V with 10 and 15.
void TstLiveVerdicts::voltageIsJudgedByItsBands_data()
{
    QTest::addColumn<QString>("supply");
    QTest::addColumn<int>("phase");
    QTest::addColumn<double>("partialRatio");
    QTest::addColumn<double>("wholeRatio");
    QTest::addColumn<int>("partialOk");
    QTest::addColumn<int>("wholeOk");
    const auto add = [](const char *name, const char *supply, int phase, double partial, double whole, int partialOk,
                        int wholeOk) {
        QTest::newRow(name) << QString::fromLatin1(supply) << phase << partial << whole << partialOk << wholeOk;
    };
    const char near[] = "around the nominal voltage", below[] = "below the nominal voltage",
               upper[] = "at the upper limit", lower[] = "at the lower limits";
    add("230.08 V", near, 0, 0.348, 0.348, 1, 1);
    add("230.12 V", near, 1, 0.522, 0.522, 0, 0);
    add("229.92 V", near, 2, 0.348, 0.232, 1, 1);
    add("229.88 V", below, 0, 0.522, 0.348, 0, 1);
    add("229.87 V", below, 1, 0.565, 0.377, 0, 1);
    add("229.83 V", below, 2, 0.739, 0.493, 0, 0);
    add("252.9 V", upper, 0, 99.565, 99.565, 0, 0);
    add("253.1 V", upper, 1, 100.435, 100.435, 0, 0);
    add("207.1 V", upper, 2, 99.565, 66.377, 0, 0);
    add("206.9 V", lower, 0, 100.435, 66.957, 0, 0);
    add("195.6 V", lower, 1, 149.565, 99.710, 0, 0);
    add("195.4 V", lower, 2, 150.435, 100.290, 0, 0);
}

void TstLiveVerdicts::voltageIsJudgedByItsBands()
{
    QFETCH(QString, supply);
    QFETCH(int, phase);
    QFETCH(double, partialRatio);
    QFETCH(double, wholeRatio);
    QFETCH(int, partialOk);
    QFETCH(int, wholeOk);
    const Judged &judged = m_judged[supply];
    constexpr double kAllowed = 0.08; // percent of the band: 18 mV
    QVERIFY2(std::fabs(double(judged.data.voltPartialRatio[phase]) - partialRatio) < kAllowed,
             qPrintable(QString::number(double(judged.data.voltPartialRatio[phase]))));
    QVERIFY2(std::fabs(double(judged.data.voltWholeRatio[phase]) - wholeRatio) < kAllowed,
             qPrintable(QString::number(double(judged.data.voltWholeRatio[phase]))));
    QCOMPARE(judged.data.voltPartialOk[phase], partialOk);
    QCOMPARE(judged.data.voltWholeOk[phase], wholeOk);
    const int bar = MonitorBarVoltage + phase;
    QCOMPARE(judged.verdicts[std::size_t(bar)],
             int(partialRatio > 100 ? MonitorValues::Exceeded : MonitorValues::Within));
    QCOMPARE(judged.bars[std::size_t(bar)].limit > 100, wholeRatio > 100);
    QVERIFY(judged.events.contains(EventRms)); // kept: these run at any voltage but one
}

void TstLiveVerdicts::unbalanceIsJudgedByItsLimit_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<int>("ok");
    QTest::newRow("a negative sequence of 1.98 %") << 99.0 << 1;
    QTest::newRow("a negative sequence of 2.02 %") << 101.0 << 0;
}

void TstLiveVerdicts::unbalanceIsJudgedByItsLimit()
{
    QFETCH(double, ratio);
    QFETCH(int, ok);
    const Judged &judged = m_judged[QLatin1String(QTest::currentDataTag())];
    QVERIFY2(std::fabs(double(judged.data.unbalPartialRatio) - ratio) < 0.3,
             qPrintable(QString::number(double(judged.data.unbalPartialRatio))));
    QCOMPARE(judged.data.unbalOk, ok);
    QCOMPARE(judged.data.unbalWholeRatio, 0.0f); // no limit for all the time
    QCOMPARE(judged.events.contains(EventUnbalance), ok == 0);
    QCOMPARE(judged.verdicts[MonitorBarUnbalance], int(ok ? MonitorValues::Within : MonitorValues::Exceeded));
}

void TstLiveVerdicts::ordersAreJudgedByTheirLimits()
{
    const Judged &judged = m_judged[QStringLiteral("orders, and 7.91 % in all on L3")];
    const double wanted[] = { 100 * kKept, 100 * kBroken };
    for (int row = 1; row < kMonitorHarmonics; ++row) {
        for (int phase = 0; phase < 2; ++phase) {
            const double ratio = double(judged.data.harmPartialRatio[phase][row]);
            QVERIFY2(std::fabs(ratio - wanted[phase]) < 1,
                     qPrintable(QStringLiteral("order %1: %2").arg(row + 1).arg(ratio)));
            QCOMPARE(judged.data.harmOk[phase][row], phase == 0 ? 1 : 0);
            QCOMPARE(judged.data.harmWholeRatio[phase][row], 0.0f); // no limit for all the time
        }
        QCOMPARE(judged.events.count(row), 1); // of L2
    }
    QCOMPARE(judged.verdicts[MonitorBarHarmonics + 1], int(MonitorValues::Exceeded));
}

void TstLiveVerdicts::distortionIsJudgedByItsLimit_data()
{
    QTest::addColumn<double>("ratio"); // root of the sum of squares of 4.9, 5.9 and the seventh, of 8 percent
    QTest::addColumn<int>("ok");
    QTest::newRow("orders, and 7.91 % in all on L3") << 98.914 << 1;
    QTest::newRow("orders, and 8.07 % in all on L3") << 100.827 << 0;
}

void TstLiveVerdicts::distortionIsJudgedByItsLimit()
{
    QFETCH(double, ratio);
    QFETCH(int, ok);
    const Judged &judged = m_judged[QLatin1String(QTest::currentDataTag())];
    QVERIFY2(std::fabs(double(judged.data.harmPartialRatio[2][0]) - ratio) < 0.3,
             qPrintable(QString::number(double(judged.data.harmPartialRatio[2][0]))));
    QVERIFY(std::fabs(double(judged.data.harmWholeRatio[2][0]) - ratio) < 0.3); // the same limit for all the time
    QCOMPARE(judged.data.harmOk[2][0], ok);
    QCOMPARE(judged.data.harmOk[0][0], 0); // all orders at once are 11.1 %
    QCOMPARE(judged.events.count(0), ok ? 2 : 3);
    QCOMPARE(judged.verdicts[MonitorBarHarmonics + 2], int(ok ? MonitorValues::Within : MonitorValues::Exceeded));
}

void TstLiveVerdicts::telegramsAreJudgedByTheirLimits_data()
{
    QTest::addColumn<double>("first"); // share of the nominal voltage
    QTest::addColumn<double>("second");
    QTest::addColumn<bool>("within"); // 5 percent and 9 percent
    QTest::newRow("telegrams of 4.9 % and 8.9 %") << 0.049 << 0.089 << true;
    QTest::newRow("telegrams of 5.1 % and 8.9 %") << 0.051 << 0.089 << false;
    QTest::newRow("telegrams of 4.9 % and 9.1 %") << 0.049 << 0.091 << false;
}

void TstLiveVerdicts::telegramsAreJudgedByTheirLimits()
{
    QFETCH(double, first);
    QFETCH(double, second);
    QFETCH(bool, within);
    const Judged &judged = m_judged[QLatin1String(QTest::currentDataTag())];
    for (int phase = 0; phase < kMonitorPhases; ++phase) {
        QVERIFY2(std::fabs(double(judged.data.signal1PercentileNep[phase]) - first) < 0.0005,
                 qPrintable(QString::number(double(judged.data.signal1PercentileNep[phase]))));
        QVERIFY2(std::fabs(double(judged.data.signal2PercentileNep[phase]) - second) < 0.0005,
                 qPrintable(QString::number(double(judged.data.signal2PercentileNep[phase]))));
    }
    QCOMPARE(judged.verdicts[MonitorBarSignals], int(within ? MonitorValues::Within : MonitorValues::Exceeded));
}

// EN 50160 as it is built in allows 20 dips, 20 swells and 2 interruptions.
void TstLiveVerdicts::eventsAreJudgedByTheirNumber_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("percent");
    QTest::newRow("20 dips") << int(EventDip) << 20 << 100.0;
    QTest::newRow("21 dips") << int(EventDip) << 21 << 105.0;
    QTest::newRow("20 swells") << int(EventSwell) << 20 << 100.0;
    QTest::newRow("21 swells") << int(EventSwell) << 21 << 105.0;
    QTest::newRow("2 interruptions") << int(EventInterruption) << 2 << 100.0;
    QTest::newRow("3 interruptions") << int(EventInterruption) << 3 << 150.0;
}

void TstLiveVerdicts::eventsAreJudgedByTheirNumber()
{
    QFETCH(int, kind);
    QFETCH(int, count);
    QFETCH(double, percent);
    const Judged &judged = m_judged[QLatin1String(QTest::currentDataTag())];
    QCOMPARE(judged.events.count(kind), count);
    QCOMPARE(double(judged.bars[MonitorBarDirs].allowed), percent);
    QCOMPARE(judged.verdicts[MonitorBarDirs], int(percent > 100 ? MonitorValues::Exceeded : MonitorValues::Within));
}

int main(int argc, char **argv)
{
    return runInInstrument<TstLiveVerdicts>(argc, argv);
}

#include "tst_liveverdicts.moc"
