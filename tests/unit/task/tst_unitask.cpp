#include "settings/inrushinfo.h"
#include "settings/monitorinfo.h"
#include "settings/loggerinfo.h"
#include "settings/waveinfo.h"
#include "task/inverterfeed.h"
#include "unitaskcase.h"

#include <QRegularExpression>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <limits>

/// Functions, clocks and display records of the universal task.
class TstUniTask : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void isCalledPowerQuality();
    void startsInTenSecondsForTheLongestTime();
    void waveAndMonitorStartAtTheirPlannedTime();
    void monitorRunsASecondMoreForEachHour_data();
    void monitorRunsASecondMoreForEachHour();
    void inverterRunsLikeBasicMeasuring();
    void loggerRunsAsItIsPlanned();
    void functionOutsideTheTableOnlyClearsTheEvents();
    void channelsFollowTheWiring_data();
    void channelsFollowTheWiring();
    void datagramsBeforeTheStartFillNoRecordAndAddNoEnergy();
    void aggregationBeforeTheStartMovesTheRecordingCountdown();
    void aggregationFillsTheDisplayRecords();
    void aggregationsKeepTheScalesThatTheRunBeganWith();
    void negativeFrequencyIsShownSignedAndUsedByMagnitude();
    void energyIntegratesByTheLocalClock();
    void clockStepsCountNoEnergy();
    void pausedTaskStillTakesData();
    void pausedTaskHoldsWhatIsShown();
    void resetOnHoldClearsTheLiveCountersOnly();
    void startEmptiesTheRecordsAndHoldsNothing();
    void inverterValuesAreFedByItsFunctionOnly();
    void updateDisplayComesOnlyWhileRunning();
    void changeFlagSetsTheReference();
    void resetEnergyClearsCountersAndShowsIt();
    void secondTrendsNeedAFreshAggregation();
    void secondTrendsAreKeptByBasicMeasuringOnly();
    void inrushTrendHoldsTheChosenDuration();
    void scopeStartsAtTheTrigger();
    void inverterFunctionTellsTheDebugLog();

private:
    void start()
    {
        m_task->initUniFunction(AbstractTask::UniBasic);
        m_task->startTask();
    }
    std::unique_ptr<UniTask> m_task;
};

void TstUniTask::init()
{
    renewRecords();
    m_task = std::make_unique<UniTask>(liveData());
}

void TstUniTask::cleanup()
{
    m_task.reset();
    dropRecords();
}

void TstUniTask::isCalledPowerQuality()
{
    QCOMPARE(m_task->getTaskName(), QStringLiteral("Power Quality"));
    QCOMPARE(m_task->taskInterval(), 1000);
}

void TstUniTask::startsInTenSecondsForTheLongestTime()
{
    m_task->initUniFunction(AbstractTask::UniBasic);
    QCOMPARE(m_task->startTime(), quint32(kNow / 1000 + 10));
    QCOMPARE(m_task->lifeCycle(), 86400000);
    QCOMPARE(m_task->getUniFunction(), AbstractTask::UniBasic);
}

void TstUniTask::waveAndMonitorStartAtTheirPlannedTime()
{
    const quint32 planned = quint32(kNow / 1000) + 3600;
    WaveInfo::m_begain_time = planned;
    m_task->initUniFunction(AbstractTask::UniWave);
    QCOMPARE(m_task->startTime(), planned);
    QCOMPARE(m_task->lifeCycle(), 86400000);
    WaveInfo::m_begain_time = 0; // no time planned: ten seconds from now
    m_task->initUniFunction(AbstractTask::UniWave);
    QCOMPARE(m_task->startTime(), quint32(kNow / 1000 + 10));
    MonitorInfo::m_begain_time = planned + 60;
    m_task->initUniFunction(AbstractTask::UniMonitor);
    QCOMPARE(m_task->startTime(), planned + 60);
    QCOMPARE(m_task->endTime(), planned + 60 + 2 * 3601);
    MonitorInfo::m_begain_time = 0;
}

void TstUniTask::monitorRunsASecondMoreForEachHour_data()
{
    QTest::addColumn<int>("hours");
    QTest::addColumn<int>("seconds");
    QTest::newRow("2 h") << 2 << 7202;
    QTest::newRow("a week") << 168 << 604968;
    QTest::newRow("none: the longest") << 0 << 86400000;
    QTest::newRow("less than none") << -5 << 86400000;
    QTest::newRow("beyond the longest") << 23994 << 86400000; // 86402394 s
    QTest::newRow("beyond 32 bits") << 1193047 << 86400000; // 4296162247 s: cut to 32 bits it were 1194951
    QTest::newRow("the largest number") << std::numeric_limits<int>::max() << 86400000;
}

void TstUniTask::monitorRunsASecondMoreForEachHour()
{
    QFETCH(int, hours);
    QFETCH(int, seconds);
    MonitorInfo::m_duration = hours;
    m_task->initUniFunction(AbstractTask::UniMonitor);
    MonitorInfo::m_duration = 2;
    QCOMPARE(m_task->lifeCycle(), seconds);
}

void TstUniTask::inverterRunsLikeBasicMeasuring()
{
    m_task->initUniFunction(AbstractTask::UniPowerInverter);
    QCOMPARE(m_task->getUniFunction(), AbstractTask::UniPowerInverter);
    QCOMPARE(m_task->startTime(), quint32(kNow / 1000 + 10));
    QCOMPARE(m_task->lifeCycle(), 86400000);
}

void TstUniTask::loggerRunsAsItIsPlanned()
{
    m_task->initUniFunction(AbstractTask::UniLogger);
    QCOMPARE(m_task->getUniFunction(), AbstractTask::UniLogger);
    QCOMPARE(m_task->startTime(), quint32(kNow / 1000 + 10));
    QCOMPARE(m_task->lifeCycle(), 2 * 3601); // two hours, and time for the last line
    LoggerInfo::m_begain_time = quint32(kNow / 1000) + 3600;
    LoggerInfo::m_duration = 0; // none
    m_task->initUniFunction(AbstractTask::UniLogger);
    QCOMPARE(m_task->startTime(), LoggerInfo::m_begain_time);
    QCOMPARE(m_task->lifeCycle(), 86400000);
    LoggerInfo::m_begain_time = 0;
    LoggerInfo::m_duration = 2;
}

void TstUniTask::functionOutsideTheTableOnlyClearsTheEvents()
{
    liveData().events().append({});
    m_task->initUniFunction(AbstractTask::UniFunction(9));
    QVERIFY(liveData().events().isEmpty());
    QCOMPARE(m_task->startTime(), 0u);
}

void TstUniTask::channelsFollowTheWiring_data()
{
    QTest::addColumn<int>("joinMode");
    QTest::addColumn<int>("channels");
    const int channels[] = { 3, 3, 1, 3, 2, 1, 3, 3, 3, 3 };
    for (int mode = 1; mode <= 10; ++mode)
        QTest::newRow(qPrintable(QStringLiteral("join mode %1").arg(mode))) << mode << channels[mode - 1];
}

void TstUniTask::channelsFollowTheWiring()
{
    QFETCH(int, joinMode);
    QFETCH(int, channels);
    m_settingConfig_g.setJoinMode(joinMode);
    m_task->initUniFunction(AbstractTask::UniBasic);
    QCOMPARE(m_task->channels(), channels);
}

void TstUniTask::datagramsBeforeTheStartFillNoRecordAndAddNoEnergy()
{
    m_task->initUniFunction(AbstractTask::UniBasic);
    Payload p = aggregation();
    p.set(5, 10.0f);
    m_task->datagramAggregation(p.bytes());
    Clock::advance(3'600'000);
    m_task->datagramAggregation(p.bytes());
    m_task->datagramRMS_1_2(halfCycles(20, 2.9f, 1.0f).bytes());
    QCOMPARE(live().vif.voltage[0], 0.0f);
    QCOMPARE(m_task->aggregation().energy[0].active, 0.0);
    QVERIFY(live().dips.voltage[0].isEmpty());
    QCOMPARE(m_task->aggregation().channel[0].voltage, 2.0f * kVolt); // decoded all the same
    QCOMPARE(m_task->halfCycles().voltage[0].count, 20u);
}

void TstUniTask::aggregationBeforeTheStartMovesTheRecordingCountdown()
{
    m_task->initUniFunction(AbstractTask::UniBasic);
    m_task->setRecordLifeCycle(quint32(kNow / 1000 + 30), 10);
    m_task->enableRecord();
    QSignalSpy clock(m_task.get(), &AbstractTask::recordTimeChanged);
    m_task->datagramAggregation(aggregation().bytes());
    QCOMPARE(clock.count(), 1);
    QCOMPARE(clock[0][0].toString(), QStringLiteral("-00:00:30"));
}

void TstUniTask::aggregationFillsTheDisplayRecords()
{
    start();
    Payload p = aggregation();
    p.set(5, 4.0f); // active power of L1, raw
    p.set(44, 2.0f).set(45, 0.5f); // fundamental of U1
    p.set(3242, 0.029f).set(3243, 0.058f); // signalling voltages of L1, raw
    m_task->datagramAggregation(p.bytes());

    QCOMPARE(live().vif.voltage[0], 2.0f * kVolt);
    QCOMPARE(live().vif.voltage[3], 5.0f * kVolt);
    QCOMPARE(live().vif.current[1], 2.0f * kAmpere);
    QCOMPARE(live().vif.voltageCrest[0], 1.5f);
    QCOMPARE(live().vif.frequency, 50.0f);
    QCOMPARE(live().power.voltage[1], 3.0f * kVolt);
    QCOMPARE(live().power.row[0].active, 4.0f * kVolt * kAmpere);
    QCOMPARE(live().harmonics.channel[0].rms, 2.0f * kVolt);
    QCOMPARE(live().harmonics.channel[0].harmonic[0].magnitude, 2.0f * kVolt);
    QCOMPARE(live().unbalance.voltageFundamental[0], 2.0f * kVolt);
    QCOMPARE(live().mainsSignal.signal1Mean[0], 0.029f * kVolt);
    QCOMPARE(live().mainsSignal.signal1[0], 0.029f * kVolt / 230.0f);
    QCOMPARE(live().mainsSignal.signal2Mean[0], 0.058f * kVolt);
}

void TstUniTask::aggregationsKeepTheScalesThatTheRunBeganWith()
{
    const auto restore = qScopeGuard([] { m_settingConfig_g.setRatioVFenzi(1); });
    start();
    m_task->datagramRMS_1_2(halfCycles(20, 2.0f, 1.0f).bytes());
    const float before = live().mainsSignal.rms1[0];
    m_settingConfig_g.setRatioVFenzi(3);
    m_task->datagramAggregation(aggregation().bytes());
    QCOMPARE(live().vif.voltage[0], 2.0f * kVolt);
    m_task->datagramRMS_1_2(halfCycles(20, 2.0f, 1.0f).bytes()); // half cycles take those of the moment
    QCOMPARE(live().mainsSignal.rms1[0], 3.0f * before);
    m_task = std::make_unique<UniTask>(liveData());
    start();
    m_task->datagramAggregation(aggregation().bytes());
    QCOMPARE(live().vif.voltage[0], 2.0f * 3.0f * kVolt);
}

void TstUniTask::negativeFrequencyIsShownSignedAndUsedByMagnitude()
{
    start();
    m_task->datagramAggregation(aggregation(-49.9f).bytes());
    QCOMPARE(live().vif.frequency, -49.9f);
    QCOMPARE(live().mainsSignal.frequency, -49.9f);
    QCOMPARE(m_task->aggregation().frequency, 49.9f);
    QCOMPARE(live().unbalance.frequency, 49.9f);
}

void TstUniTask::energyIntegratesByTheLocalClock()
{
    start();
    Payload p = aggregation();
    p.set(5, 4.0f);
    // Fundamentals of U1 and I1, the current a quarter turn behind.
    p.set(44, 3.0f).set(1644, 1.0f).set(1645, -1.5707964f);
    const double watts = 4.0 * kVolt * kAmpere;
    for (int i = 0; i < 3600; ++i) { // an hour by the local clock; the stamps of the processor stand still
        Clock::advance(1000);
        m_task->datagramAggregation(p.bytes());
    }
    QVERIFY(std::fabs(m_task->aggregation().energy[0].active / watts - 1.0) < 1e-4);
    QVERIFY(std::fabs(live().power.activeEnergy[0] / watts - 1.0) < 1e-4);
    const double voltAmperes = 2.0 * kVolt * 1.0 * kAmpere;
    QVERIFY(std::fabs(m_task->aggregation().energy[0].apparent / voltAmperes - 1.0) < 1e-4);
    const double vars = 3.0 * kVolt * 1.0 * kAmpere;
    QVERIFY(std::fabs(m_task->aggregation().energy[0].reactive / vars - 1.0) < 1e-4);
    QVERIFY(std::fabs(live().power.reactiveEnergy[0] / vars - 1.0) < 1e-4);
    QCOMPARE(live().power.hours, 1);
    QCOMPARE(live().power.minutes, 0);
    QCOMPARE(live().power.seconds, 0);
    QCOMPARE(m_task->energySeconds(), 3600);
}

void TstUniTask::clockStepsCountNoEnergy()
{
    start();
    Payload p = aggregation();
    p.set(5, 4.0f);
    m_task->datagramAggregation(p.bytes());
    Clock::advance(-5'000'000);
    m_task->datagramAggregation(p.bytes());
    Clock::advance(qint64(400) * 86'400'000);
    m_task->datagramAggregation(p.bytes());
    QCOMPARE(m_task->aggregation().energy[0].active, 0.0);
    QCOMPARE(m_task->energySeconds(), 0);
    Clock::advance(2000);
    m_task->datagramAggregation(p.bytes());
    QCOMPARE(m_task->energySeconds(), 2);
    QVERIFY(m_task->aggregation().energy[0].active > 0);
    Clock::advance(60'001);
    m_task->datagramAggregation(p.bytes());
    QCOMPARE(m_task->energySeconds(), 2);
    Clock::advance(60'000); // the longest gap that counts
    m_task->datagramAggregation(p.bytes());
    QCOMPARE(m_task->energySeconds(), 62);
}

void TstUniTask::pausedTaskStillTakesData()
{
    start();
    m_task->pauseTask();
    m_task->datagramAggregation(aggregation().bytes());
    QCOMPARE(live().vif.voltage[0], 2.0f * kVolt);
    m_task->datagramRMS_1_2(halfCycles(20, 2.9f, 1.0f).bytes());
    QCOMPARE(live().dips.voltage[0].size(), 20);
}

void TstUniTask::pausedTaskHoldsWhatIsShown()
{
    start();
    m_task->datagramAggregation(aggregation().bytes());
    m_task->pauseTask();
    m_task->datagramAggregation(aggregation(51).set(8, 7.0f).bytes());
    m_task->datagramRMS_1_2(halfCycles(20, 2.9f, 1.0f).bytes());
    QCOMPARE(liveData().shown().vif.voltage[0], 2.0f * kVolt);
    QCOMPARE(liveData().shown().vif.frequency, 50.0f);
    QVERIFY(liveData().shown().dips.voltage[0].isEmpty());
    m_task->continueTask();
    QCOMPARE(liveData().shown().vif.voltage[0], 7.0f * kVolt);
    QCOMPARE(liveData().shown().dips.voltage[0].size(), 20); // no gap
}

void TstUniTask::resetOnHoldClearsTheLiveCountersOnly()
{
    start();
    live().power.activeEnergy[2] = 5;
    live().power.minutes = 3;
    m_task->pauseTask();
    m_task->resetEnergy();
    QCOMPARE(liveData().shown().power.activeEnergy[2], 5.0f);
    QCOMPARE(liveData().shown().power.minutes, 3);
    QCOMPARE(live().power.activeEnergy[2], 0.0f);
    m_task->continueTask();
    QCOMPARE(liveData().shown().power.minutes, 0);
}

void TstUniTask::startEmptiesTheRecordsAndHoldsNothing()
{
    live().vif.voltage[0] = 5;
    liveData().hold();
    m_task->preStartTask();
    QVERIFY(!liveData().isHeld());
    QCOMPARE(live().vif.voltage[0], 0.0f);
    QCOMPARE(live().vif.frequency, 50.0f);
}

void TstUniTask::inverterValuesAreFedByItsFunctionOnly()
{
    start();
    Payload p = aggregation();
    m_task->datagramAggregation(p.bytes());
    m_task->datagramWave(wave().bytes());
    QCOMPARE(live().inverter.outputVoltage[0], 0.0f);
    m_task = std::make_unique<UniTask>(liveData());
    m_task->initUniFunction(AbstractTask::UniPowerInverter);
    m_task->startTask();
    for (int i = 1; i <= 4; ++i) { // two a second
        Clock::advance(500);
        m_task->datagramAggregation(p.bytes());
        m_task->datagramWave(wave().bytes());
    }
    QCOMPARE(live().inverter.outputVoltage[0], 2.0f * kVolt);
    QCOMPARE(live().inverter.outputCurrent[2], 3.0f * kAmpere);
    QCOMPARE(live().inverter.frequency, 50.0f);
    QCOMPARE(live().inverter.trend[InverterFeed::OutputVoltage].series[0].size(), 2); // one point a second
    QVERIFY(live().vif.trend[VifTrendURms].series[0].isEmpty());
    m_task->pauseTask();
    Clock::advance(1000);
    m_task->datagramAggregation(p.set(8, 7.0f).bytes());
    m_task->datagramWave(wave().bytes());
    QCOMPARE(liveData().shown().inverter.outputVoltage[0], 2.0f * kVolt);
    QCOMPARE(live().inverter.trend[InverterFeed::OutputVoltage].series[0].size(), 3); // they go on behind a hold
}

void TstUniTask::updateDisplayComesOnlyWhileRunning()
{
    QSignalSpy display(m_task.get(), &UniTask::updateDisplay);
    m_task->updatedata();
    QCOMPARE(display.count(), 0);
    start();
    m_task->updatedata();
    QCOMPARE(display.count(), 1);
    QCOMPARE(display[0][0].value<void *>(), nullptr);
    m_task->pauseTask();
    QCOMPARE(display.count(), 2); // the moment that is held
    m_task->updatedata();
    m_task->datagramAggregation(aggregation().bytes());
    QCOMPARE(display.count(), 2);
}

void TstUniTask::changeFlagSetsTheReference()
{
    QSignalSpy display(m_task.get(), &UniTask::updateDisplay);
    m_task->changeFlag(1);
    QCOMPARE(live().harmonics.reference, 2);
    m_task->changeFlag(2);
    QCOMPARE(live().harmonics.reference, 1);
    QCOMPARE(display.count(), 2);
}

void TstUniTask::resetEnergyClearsCountersAndShowsIt()
{
    start();
    Payload p = aggregation();
    p.set(5, 4.0f);
    Clock::advance(30'000);
    m_task->datagramAggregation(p.bytes());
    QVERIFY(live().power.activeEnergy[0] > 0);
    QCOMPARE(live().power.seconds, 30);
    QSignalSpy display(m_task.get(), &UniTask::updateDisplay);
    m_task->resetEnergy();
    QCOMPARE(live().power.activeEnergy[0], 0.0f);
    QCOMPARE(live().power.apparentEnergy[0], 0.0f);
    QCOMPARE(live().power.seconds, 0);
    QCOMPARE(m_task->aggregation().energy[0].active, 0.0);
    QCOMPARE(display.count(), 1);
}

void TstUniTask::secondTrendsAreKeptByBasicMeasuringOnly()
{
    start();
    for (auto function : { AbstractTask::UniWave, AbstractTask::UniLogger, AbstractTask::UniMonitor }) {
        m_task->initUniFunction(function);
        Clock::advance(1000);
        m_task->datagramAggregation(aggregation().bytes());
        m_task->datagramWave(wave().bytes());
        QVERIFY(live().vif.trend[VifTrendURms].series[0].isEmpty());
    }
}

void TstUniTask::inrushTrendHoldsTheChosenDuration()
{
    for (int row : { 0, 1 }) { // 6 s, 60 s
        InrushInfo::m_duration_index = row;
        renewLive();
        m_task = std::make_unique<UniTask>(liveData());
        start();
        for (int i = 0; i < 301; ++i)
            m_task->datagramRMS_1_2(halfCycles(20, 2.9f, 1.0f, kNow + 200 * i).bytes());
        QCOMPARE(live().inrush.voltage[0].size(), row == 0 ? 600 : 6000); // 100 a second
    }
    // The duration may be changed while the task runs.
    InrushInfo::m_duration_index = 0;
    m_task->datagramRMS_1_2(halfCycles(20, 2.9f, 1.0f, kNow + 200 * 301).bytes());
    QCOMPARE(live().inrush.voltage[0].size(), 600);
}

void TstUniTask::secondTrendsNeedAFreshAggregation()
{
    start();
    Clock::advance(1000);
    m_task->datagramAggregation(aggregation().bytes());
    m_task->datagramWave(wave().bytes());
    QCOMPARE(live().vif.trend[VifTrendURms].series[0].size(), 1);
    m_task->datagramWave(wave().bytes()); // the aggregation is used up
    QCOMPARE(live().vif.trend[VifTrendURms].series[0].size(), 1);
    Clock::advance(200);
    m_task->datagramAggregation(aggregation().bytes());
    m_task->datagramWave(wave().bytes()); // the second is not over
    QCOMPARE(live().vif.trend[VifTrendURms].series[0].size(), 1);
    Clock::advance(800);
    m_task->datagramAggregation(aggregation().bytes());
    m_task->datagramWave(wave().bytes());
    QCOMPARE(live().vif.trend[VifTrendURms].series[0].size(), 2);
    QCOMPARE(live().power.trend[6].series[0].size(), 2);
    QCOMPARE(live().mainsSignal.frequencyTrend.size(), 2);
}

void TstUniTask::scopeStartsAtTheTrigger()
{
    start();
    std::vector<qint16> samples(32768 + 2, 0);
    QByteArray bytes = wave().bytes();
    qint16 sine[4096];
    for (int i = 0; i < 4096; ++i)
        sine[i] = qint16(std::lround(20000 * std::sin((i + 307.2) / 409.6 * 2 * M_PI)));
    std::memcpy(bytes.data() + 8, sine, sizeof(sine));
    m_task->datagramAggregation(aggregation(50.0f).bytes());
    m_task->datagramWave(bytes);
    m_task->updatedata();
    // The crossing is at sample 102.4.
    QCOMPARE(live().scope.voltageSamples[0][0], sine[102]);
    QCOMPARE(live().scope.voltageSamples[0][3686], sine[102 + 3686]);
    QCOMPARE(live().scope.frequency, 50.0f);
    QCOMPARE(live().scope.voltage[1], 3.0f * kVolt);
    QCOMPARE(live().transient.samples[0][0], sine[102]);
    QCOMPARE(live().transient.samples[0][599], sine[102 + 3686]);
}

void TstUniTask::inverterFunctionTellsTheDebugLog()
{
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("^F: task/unitask L: \\d+ > Uni_PowerInverter$"));
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("^F: task/unitask L: \\d+ > initPowerInverterData$"));
    m_task->initUniFunction(AbstractTask::UniPowerInverter);
    QCOMPARE(m_task->getUniFunction(), AbstractTask::UniPowerInverter);
}

QTEST_GUILESS_MAIN(TstUniTask)
#include "tst_unitask.moc"
