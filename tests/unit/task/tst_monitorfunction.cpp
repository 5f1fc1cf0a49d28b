#include "monitorrun.h"
#include "unit/record/fakepqa2device.h"

#include <QRegularExpression>
#include <QTest>

#include <cmath>
#include <limits>
#include <malloc.h>

using namespace MonitorCase;

namespace {

const float kNone = std::numeric_limits<float>::quiet_NaN();

} // namespace

/// A run of the monitor: its stages, its file, its end.
class TstMonitorFunction : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void folderAndFileAreMadeWhenTheRunIsPlanned();
    void fileBeginsWithTheTimeAtWhichMeasuringBegins();
    void tenSecondsGiveAFrequencyBlock();
    void tenMinutesGiveTheirBlocks();
    void tenMinutesGiveTheirResultsAndRefreshThePages();
    void frequencyOfTenMinutesIsTheMeanOfAllAggregations();
    void monitorOfTwoHoursHasEnoughAfterTwelveValues();
    void durationBeyond170HoursNeverHasEnough();
    void stopBeforeTheFirstTenMinutesLeavesFrequenciesEventsAndTheTime();
    void plannedRunThatIsStoppedEndsItsFile();
    void singlePhaseHasOneVoltageAndNoUnbalance_data();
    void singlePhaseHasOneVoltageAndNoUnbalance();
    void withoutAggregationsTheBlocksHoldNoNumbers();
    void wildValuesPassWithTheirTenMinutes();
    void limitsAreThoseOfTheBeginning();
    void flickerOfAnIntervalIsJudgedAndStored();
    void nearlyFullIntervalsAreJudgedAtTheEnd_data();
    void nearlyFullIntervalsAreJudgedAtTheEnd();
    void closingValueOfTwelveIntervalsIsHeldToTwenty();
    void closingBlockOfOnePhaseIsNotStored();
    void withoutStorageTheRunGoesOn();
    void whatIsWrittenIsOnItsWayToTheCardASecondLater();
    void nextRunBeginsWithEmptyRecords();
    void recordsOutlastTheRun();
    void weekTakesNoMoreMemoryThanItsValues();

private:
    void fillFlicker(Run &run, int means, float value, int phases = 3);
};

void TstMonitorFunction::init()
{
    beginCase();
}

void TstMonitorFunction::cleanup()
{
    endCase();
}

void TstMonitorFunction::folderAndFileAreMadeWhenTheRunIsPlanned()
{
    Run run;
    run.m_function->start();
    QVERIFY(QFile::exists(Target::path(QStringLiteral("/mnt/storage/231114_221320 Monitor-EN50160-1/Monitor.pqa2"))));
    QCOMPARE(MonitorInfo::_10min_data_counter, 12);
    run.end();
}

void TstMonitorFunction::fileBeginsWithTheTimeAtWhichMeasuringBegins()
{
    Run run;
    run.m_function->start();
    Clock::advance(10'000);
    run.m_function->measure();
    run.end();
    QCOMPARE(Run::kinds(), QList<quint32>({ 0xA1000018, 0xA1000019 }));
    QCOMPARE(secondsOf(Run::blocks()[0]), quint32(kBegin / 1000 + 10));
    QCOMPARE(Run::blocks()[0].payload.size(), 4);
}

void TstMonitorFunction::tenSecondsGiveAFrequencyBlock()
{
    Run run;
    run.begin();
    run.pass(5, supply(230, 49.9f).get());
    run.pass(4, supply(230, 50.1f).get());
    QCOMPARE(run.results().freqReady, 0);
    run.pass(1, supply(230, 50.1f).get());
    QCOMPARE(run.results().freqReady, 1);
    QCOMPARE(run.results().freqMax, 50.0f);
    run.pass(10, supply(230, 50.3f).get());
    run.end();
    QCOMPARE(Run::kinds(), QList<quint32>({ 0xA1000018, 0xA1010000, 0xA1010000, 0xA1000019 }));
    const QList<ReadBlock> blocks = Run::blocks();
    QCOMPARE(blocks[1].payload.size(), 8);
    QCOMPARE(secondsOf(blocks[1]), quint32(kBegin / 1000 + 10));
    QVERIFY(std::fabs(floatOf(blocks[1], 0) - 50.0f) < 1e-5f);
    QCOMPARE(floatOf(blocks[2], 0), 50.3f);
    QCOMPARE(run.refreshed, 0);
}

void TstMonitorFunction::tenMinutesGiveTheirBlocks()
{
    Run run;
    run.begin();
    run.pass(600, distortedSupply().get());
    QCOMPARE(Run::kinds().count(0xA1010000), 60);
    const QList<ReadBlock> blocks = Run::blocks().mid(61); // the time of the beginning, 60 frequencies
    QCOMPARE(blocks.size(), 4);
    for (const ReadBlock &block : blocks)
        QCOMPARE(secondsOf(block), quint32(kBegin / 1000 + 600));
    QCOMPARE(blocks[0].type, 0xA1010001u);
    QCOMPARE(blocks[0].payload.size(), 4 + 3 * 4);
    QCOMPARE(floatOf(blocks[0], 0), 231.0f);
    QCOMPARE(floatOf(blocks[0], 2), 233.0f);
    QCOMPARE(blocks[1].type, 0xA1010004u);
    QCOMPARE(blocks[1].payload.size(), 4 + 2 * 4);
    QCOMPARE(floatOf(blocks[1], 0), 1.5f);
    QCOMPARE(floatOf(blocks[1], 1), 0.5f);
    QCOMPARE(blocks[2].type, 0xA1010005u);
    QCOMPARE(blocks[2].payload.size(), 4 + 3 * 50 * 4);
    QCOMPARE(floatOf(blocks[2], 0), 1.0f);
    QCOMPARE(floatOf(blocks[2], 50), 2.0f);
    QCOMPARE(floatOf(blocks[2], 104), 1.5f);
    QCOMPARE(blocks[3].type, 0xA1010006u);
    QCOMPARE(blocks[3].payload.size(), 4 + 3 * 50 * 4);
    QCOMPARE(floatOf(blocks[3], 0), 2.0f);
    QCOMPARE(floatOf(blocks[3], 104), 50.0f);
    QCOMPARE(floatOf(blocks[3], 149), 0.0f);
}

void TstMonitorFunction::tenMinutesGiveTheirResultsAndRefreshThePages()
{
    Run run;
    run.begin();
    const auto record = distortedSupply();
    record->spectrum[2].voltage[24].magnitude = 6; // order 25, the last one that is judged
    run.pass(599, record.get());
    QCOMPARE(run.results().voltReady, 0);
    QCOMPARE(run.refreshed, 0);
    run.pass(1, record.get());
    const __monitor_data &results = run.results();
    QCOMPARE(results.voltReady, 1);
    QCOMPARE(run.refreshed, 1);
    QCOMPARE(results.voltMax[1], 232.0f);
    QVERIFY(std::fabs(results.harmPartialRatio[2][0] - 37.5f) < 1e-3f); // 3 of 8 percent
    QVERIFY(std::fabs(results.harmPartialRatio[0][4] - 25.0f) < 1e-3f); // 1.5 of 6 percent
    QVERIFY(std::fabs(results.harmPartialRatio[2][24] - 200.0f) < 1e-3f); // 3 of 1.5 percent
    QCOMPARE(results.harmOk[2][24], 0);
    QCOMPARE(results.unbalPartialRatio, 75.0f);
    QCOMPARE(results.signal1PercentileAll[1], 0.01f);
    QCOMPARE(run.trend().row[5], QList<float>({ 232 }));
    QCOMPARE(run.trend().row[14], QList<float>({ 3 }));
    QCOMPARE(run.trend().row[28], QList<float>({ 1.5f }));
    QCOMPARE(run.trend().row[36], QList<float>({ 50 }));

    run.pass(600, supply(240, 50).get()); // nothing of before
    QCOMPARE(run.trend().row[4], QList<float>({ 231, 240 }));
    QCOMPARE(run.trend().row[12].last(), 0.0f);
    QCOMPARE(results.signal1PercentileAll[1], 0.0f);
    QCOMPARE(run.refreshed, 2);
}

void TstMonitorFunction::frequencyOfTenMinutesIsTheMeanOfAllAggregations()
{
    Run run;
    run.begin();
    run.pass(300, supply(230, 49.5f).get());
    for (int i = 0; i < 2; ++i) { // three in each of these seconds
        run.m_function->aggregation(*supply(230, 51));
        run.m_function->aggregation(*supply(230, 51));
        run.pass(1, supply(230, 51).get());
    }
    run.pass(298, nullptr);
    QCOMPARE(run.trend().row[36].size(), 1);
    QVERIFY(std::fabs(run.trend().row[36][0] - float((300 * 49.5 + 6 * 51) / 306)) < 1e-4f);
}

void TstMonitorFunction::monitorOfTwoHoursHasEnoughAfterTwelveValues()
{
    Run run;
    run.begin();
    run.pass(7199, supply(230, 50).get());
    QCOMPARE(run.enough, 0);
    QCOMPARE(run.trend().row[4].size(), 11);
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("> data enough$")));
    run.pass(1, supply(230, 50).get());
    QCOMPARE(run.enough, 1);
    QCOMPARE(run.trend().row[4].size(), 12);
}

void TstMonitorFunction::durationBeyond170HoursNeverHasEnough()
{
    for (int hours : { 170, 171, std::numeric_limits<int>::max() }) {
        MonitorInfo::m_duration = hours;
        Run run;
        run.begin();
        // As if the run had lasted for 1030 values.
        for (int i = 0; i < 1030; ++i)
            run.m_data.live().monitorTrend.append(MonitorTrendVoltage, 230);
        QCOMPARE(run.trend().row[4].size(), 1024);
        if (hours == 170) // 1020 values
            QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("data enough")));
        run.pass(1, supply(230, 50).get());
        QCOMPARE(run.enough, hours == 170 ? 1 : 0);
        run.end();
    }
}

void TstMonitorFunction::stopBeforeTheFirstTenMinutesLeavesFrequenciesEventsAndTheTime()
{
    Run run;
    run.begin();
    run.pass(20, supply(230, 50).get());
    run.pass(10, supply(230, 53).get()); // outside its band
    run.end();
    QCOMPARE(Run::kinds(), QList<quint32>({ 0xA1000018, 0xA1010000, 0xA1010000, 0xA1010000, 0xA1010080, 0xA1000019 }));
    const QList<ReadBlock> blocks = Run::blocks();
    QCOMPARE(blocks[4].payload.size(), 32);
    QCOMPARE(secondsOf(blocks[5]), quint32(kBegin / 1000 + 30));
    QCOMPARE(blocks[5].payload.size(), 4);
}

void TstMonitorFunction::plannedRunThatIsStoppedEndsItsFile()
{
    Run run;
    run.m_function->start(); // and measuring never begins
    run.end();
    QCOMPARE(Run::kinds(), QList<quint32>({ 0xA1000019 }));
}

void TstMonitorFunction::singlePhaseHasOneVoltageAndNoUnbalance_data()
{
    QTest::addColumn<int>("joinMode");
    QTest::addColumn<int>("phases");
    QTest::newRow("1P +NEUTRAL") << 3 << 1;
    QTest::newRow("1P SPLIT PHASE") << 5 << 2;
    QTest::newRow("1P IT NO NEUTRAL") << 6 << 1;
    QTest::newRow("3P DELTA") << 4 << 3;
}

void TstMonitorFunction::singlePhaseHasOneVoltageAndNoUnbalance()
{
    QFETCH(int, joinMode);
    QFETCH(int, phases);
    Run run(joinMode);
    run.begin();
    auto record = supply(230, 50);
    record->voltageSequence.negativeRatio = 50;
    run.pass(600, record.get());
    const QList<ReadBlock> blocks = Run::blocks().mid(61);
    QList<quint32> kinds { 0xA1010001, 0xA1010005, 0xA1010006 };
    if (phases == 3)
        kinds.insert(1, 0xA1010004);
    QCOMPARE(Run::kinds().mid(61), kinds);
    QCOMPARE(blocks.first().payload.size(), 4 + 4 * phases);
    QCOMPARE(blocks.last().payload.size(), 4 + 200 * phases);
    for (int phase = 0; phase < 3; ++phase) {
        QCOMPARE(run.trend().row[4 + phase].size(), phase < phases ? 1 : 0);
        QCOMPARE(run.trend().row[12 + phase].size(), phase < phases ? 1 : 0);
    }
    QCOMPARE(run.trend().row[28].size(), phases == 3 ? 1 : 0);
    QCOMPARE(run.results().unbalOk, phases == 3 ? 0 : 1);
}

void TstMonitorFunction::withoutAggregationsTheBlocksHoldNoNumbers()
{
    Run run;
    run.begin();
    run.pass(600, nullptr);
    const QList<ReadBlock> blocks = Run::blocks();
    QCOMPARE(blocks.size(), 1 + 60 + 4);
    for (int place : { 1, 60, 61, 62, 63, 64 })
        QVERIFY2(std::isnan(floatOf(blocks[place], 0)), qPrintable(QString::number(place)));
    QCOMPARE(secondsOf(blocks[61]), quint32(kBegin / 1000)); // no datagram brought a later time
    QCOMPARE(run.trend().row[4].size(), 1); // counts for the length of the run
    run.pass(600, supply(230, 50).get());
    QCOMPARE(run.trend().row[4].last(), 230.0f);
    QCOMPARE(run.results().voltPercentileAll[0], 230.0f);
    QCOMPARE(run.results().voltPartialOk[0], 1);
    QCOMPARE(run.results().voltMin[0], 230.0f);
    QCOMPARE(run.results().freqPercentileNep, 50.0f);
    QCOMPARE(run.results().harmPartialRatio[0][0], 0.0f);
    QCOMPARE(run.results().harmOk[0][0], 0); // ten minutes without a value are not within the limit
}

void TstMonitorFunction::wildValuesPassWithTheirTenMinutes()
{
    const float wild[] = { kNone, std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
                           std::numeric_limits<float>::max(), -1e30f };
    Run run;
    run.begin();
    for (float value : wild) {
        auto record = supply(value, value);
        for (int phase = 0; phase < 3; ++phase) {
            record->spectrum[phase].voltageDistortion = value;
            record->spectrum[phase].currentDistortion = value;
            record->spectrum[phase].voltage[7].magnitude = value;
            record->spectrum[phase].current[7].magnitude = value;
            record->mainsSignal[phase].ratio1 = value;
        }
        record->voltageSequence.negativeRatio = value;
        run.pass(600, record.get());
    }
    run.pass(600, supply(230, 50).get());
    QCOMPARE(run.trend().row[4].last(), 230.0f);
    QCOMPARE(run.trend().row[12].last(), 0.0f);
    QCOMPARE(run.trend().row[28].last(), 0.0f);
    QCOMPARE(run.trend().row[36].last(), 50.0f);
    QCOMPARE(run.results().signal1PercentileAll[0], 0.0f);
    QCOMPARE(run.results().freqMax, 60.0f);
    QCOMPARE(run.results().freqMin, 40.0f);
    QCOMPARE(run.results().unbalOk, 1);
    run.end();
}

void TstMonitorFunction::limitsAreThoseOfTheBeginning()
{
    Run run;
    run.begin();
    m_settingConfig_g.setJoinMode(3);
    run.pass(600, supply(230, 50).get());
    QCOMPARE(run.trend().row[6].size(), 1);
}

// Flicker

/// \a means of \a value for the running intervals of \a phases.
void TstMonitorFunction::fillFlicker(Run &run, int means, float value, int phases)
{
    for (int phase = 0; phase < phases; ++phase) {
        for (int i = 0; i < means; ++i)
            run.m_flicker.insertFlickerPinst(phase, value);
    }
}

void TstMonitorFunction::flickerOfAnIntervalIsJudgedAndStored()
{
    Run run;
    run.begin();
    FlickerOutput out;
    const float pst[3] = { 0.4f, 0.5f, 0.6f }, plt[3] = { 0.7f, 1.2f, 0.9f };
    out.shortTerm = out.longTerm = 7;
    std::memcpy(out.plt, plt, sizeof plt);
    out.shortBlock = QByteArray(reinterpret_cast<const char *>(pst), sizeof pst);
    out.longBlock = QByteArray(reinterpret_cast<const char *>(plt), sizeof plt);
    auto record = std::make_unique<__datagram_flicker>();
    record->time = kBegin + 7'200'900;
    run.m_function->flicker(*record, out);
    QCOMPARE(run.results().flickerReady, 1);
    QCOMPARE(run.results().pltValue[1], 1.2f);
    QCOMPARE(run.results().pltOk[1], 0);
    QCOMPARE(run.results().pltOk[0], 1);
    QCOMPARE(run.trend().row[21], QList<float>({ 1.2f }));
    QCOMPARE(run.m_data.events().size(), 1);
    QCOMPARE(run.m_data.events().at(0).type, qint32(EventFlicker));
    QCOMPARE(run.m_data.events().at(0).startTime, kBegin + 7'200'900);
    const QList<ReadBlock> blocks = Run::blocks();
    QCOMPARE(blocks.size(), 3);
    QCOMPARE(blocks[1].type, 0xA1010002u);
    QCOMPARE(blocks[2].type, 0xA1010003u);
    QCOMPARE(secondsOf(blocks[1]), quint32(kBegin / 1000 + 7200));
    QCOMPARE(floatOf(blocks[1], 2), 0.6f);
    QCOMPARE(floatOf(blocks[2], 1), 1.2f);
}

void TstMonitorFunction::nearlyFullIntervalsAreJudgedAtTheEnd_data()
{
    QTest::addColumn<int>("means");
    QTest::addColumn<bool>("stored");
    QTest::newRow("29899: too few") << 29899 << false;
    QTest::newRow("29900") << 29900 << true;
}

void TstMonitorFunction::nearlyFullIntervalsAreJudgedAtTheEnd()
{
    QFETCH(int, means);
    QFETCH(bool, stored);
    Run run;
    run.begin();
    fillFlicker(run, means, 1);
    Clock::advance(600'000);
    run.end();
    QList<quint32> kinds { 0xA1000018, 0xA1000019 };
    if (stored)
        kinds.insert(1, 0xA1010002);
    QCOMPARE(Run::kinds(), kinds);
    if (!stored)
        return;
    const ReadBlock block = Run::blocks()[1];
    QCOMPARE(block.payload.size(), 16);
    QVERIFY(std::fabs(floatOf(block, 2) - float(std::sqrt(0.5096))) < 1e-5f); // equal values
    QCOMPARE(run.m_data.live().flicker.pstTrend[0].size(), 1);
    QCOMPARE(run.results().flickerReady, 0);
    QCOMPARE(run.refreshed, 0); // no page shows it
}

void TstMonitorFunction::closingValueOfTwelveIntervalsIsHeldToTwenty()
{
    Run run;
    run.begin();
    for (int i = 0; i < 11; ++i) {
        fillFlicker(run, 10, 3000);
        run.m_flicker.closeIntervals(0, QByteArray(), run.m_data.live().flicker);
    }
    fillFlicker(run, 29900, 3000); // root of 0.5096 x 3000 is 39.1
    run.end();
    QCOMPARE(run.refreshed, 1);
    QCOMPARE(Run::kinds(), QList<quint32>({ 0xA1000018, 0xA1010002, 0xA1010003, 0xA1000019 }));
    QCOMPARE(Run::blocks()[2].payload.size(), 16);
    QCOMPARE(floatOf(Run::blocks()[2], 0), 20.0f);
    QCOMPARE(run.results().flickerReady, 1);
    QCOMPARE(run.results().pltValue[2], 20.0f);
    QCOMPARE(run.results().pltPartialRatio[2], 20.0f);
    QCOMPARE(run.trend().row[22], QList<float>({ 20 }));
}

void TstMonitorFunction::closingBlockOfOnePhaseIsNotStored()
{
    for (int phases : { 1, 2 }) {
        init();
        Run run;
        run.begin();
        fillFlicker(run, 29900, 1, phases);
        run.end();
        QCOMPARE(Run::kinds(), QList<quint32>({ 0xA1000018, 0xA1000019 }));
        QCOMPARE(run.m_data.live().flicker.pstTrend[0].size(), 1);
    }
}

// Around the run

void TstMonitorFunction::withoutStorageTheRunGoesOn()
{
    QVERIFY(QDir(Target::path(QStringLiteral("/mnt/storage"))).removeRecursively());
    Run run;
    run.begin();
    run.pass(600, supply(230, 50).get());
    QCOMPARE(run.trend().row[4].size(), 1);
    run.end();
    QVERIFY(!QFile::exists(Target::path(QStringLiteral("/mnt/storage"))));
}

void TstMonitorFunction::whatIsWrittenIsOnItsWayToTheCardASecondLater()
{
    FakePqa2Device::State state;
    Run run(1, [&state] { return std::make_unique<FakePqa2Device>(&state); });
    run.begin();
    // Something is written when measuring begins and at every tenth second: it goes with the next one. Nobody waits.
    for (int second = 1; second <= 1201; ++second) {
        state.calls.clear();
        run.pass(1, supply(230, 50).get());
        QCOMPARE(state.calls.contains("syncBehind"), second % 10 == 1);
        QVERIFY(!state.calls.contains("sync"));
    }
    run.end();
}

void TstMonitorFunction::nextRunBeginsWithEmptyRecords()
{
    Run run;
    run.begin();
    run.pass(655, supply(200, 51).get());
    run.end();
    run.begin();
    QCOMPARE(run.results().voltReady, 0);
    QCOMPARE(run.results().freqPartialOk, 1);
    QVERIFY(run.trend().row[4].isEmpty());
    run.pass(9, supply(230, 50).get()); // ticks and sums begin anew, too
    QCOMPARE(run.results().freqReady, 0);
    run.pass(590, supply(230, 50).get());
    QVERIFY(run.trend().row[4].isEmpty());
    run.pass(1, supply(230, 50).get());
    QCOMPARE(run.trend().row[4], QList<float>({ 230 }));
    QCOMPARE(run.results().freqPercentileAll, 50.0f);
    QCOMPARE(run.results().voltMin[0], 230.0f);
}

void TstMonitorFunction::recordsOutlastTheRun()
{
    Run run;
    run.begin();
    run.pass(600, supply(230, 50).get());
    run.end();
    QCOMPARE(run.results().voltReady, 1);
    QCOMPARE(run.trend().row[4].size(), 1);
}

void TstMonitorFunction::weekTakesNoMoreMemoryThanItsValues()
{
    MonitorInfo::m_duration = 168;
    Run run;
    run.begin();
    const auto record = supply(230, 50);
    const auto passSeconds = [&](int seconds) {
        for (int i = 0; i < seconds; i += 10) {
            run.pass(1, record.get());
            run.pass(9, nullptr);
        }
    };
    constexpr int kDay = 24 * 3600;
    passSeconds(kDay);
    const std::size_t before = mallinfo2().uordblks;
    passSeconds(6 * kDay - 10);
    run.pass(9, record.get());
    // Six days of a 10-second frequency are 51840 floats, each block at most twice what it holds; three phases of a
    // 10-minute voltage and eight rows of trend are less than 30 kB.
    QVERIFY2(mallinfo2().uordblks < before + 600'000, qPrintable(QString::number(mallinfo2().uordblks - before)));
    QCOMPARE(run.enough, 0);
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("data enough")));
    run.pass(1, record.get());
    QCOMPARE(run.enough, 1); // at the last second of the week
    QCOMPARE(run.trend().row[4].size(), 1008);
    run.end();
}

QTEST_GUILESS_MAIN(TstMonitorFunction)
#include "tst_monitorfunction.moc"
