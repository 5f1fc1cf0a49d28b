#include "config/config_data.h"
#include "config/monitorinfo.h"
#include "config/waveinfo.h"
#include "device/datagramtypes.h"
#include "device/displayrecords.h"
#include "platform/clock.h"
#include "pqa2/pqa2ff.h"
#include "task/unitask.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <vector>

namespace {

constexpr qint64 kNow = 1'700'000'000'000; // ms
// Factory calibration at 230 V in a star wiring, clamp of 10 mV/A: row 1 of the voltage gains, row 3 of the current
// gains.
constexpr float kVolt = 79.25f;
constexpr float kAmpere = 71.45f / 10.0f;

/// A payload of 32-bit words as it leaves the link.
class Payload
{
public:
    explicit Payload(int words, qint64 time = kNow) : m_words(std::size_t(words), 0)
    {
        m_words[0] = quint32(time);
        m_words[1] = quint32(quint64(time) >> 32);
    }
    Payload &set(int word, float value)
    {
        std::memcpy(&m_words[std::size_t(word)], &value, sizeof(value));
        return *this;
    }
    Payload &set(int word, quint32 value)
    {
        m_words[std::size_t(word)] = value;
        return *this;
    }
    QByteArray bytes() const { return { reinterpret_cast<const char *>(m_words.data()), int(m_words.size() * 4) }; }

private:
    std::vector<quint32> m_words;
};

Payload aggregation(float frequency = 50.0f)
{
    Payload p(Link::kAggregationWords);
    p.set(2, frequency);
    for (int c = 0; c < 4; ++c)
        p.set(8 + 9 * c, 2.0f + c).set(9 + 9 * c, 1.0f + c).set(10 + 9 * c, 3.0f);
    return p;
}

/// \a entries half cycles of \a volts raw and \a amps raw in each block.
Payload halfCycles(int entries, float volts, float amps, qint64 time = kNow)
{
    Payload p(Link::kRmsWords, time);
    for (int c = 0; c < 3; ++c) {
        const int block = 2 + 181 * c;
        p.set(block, quint32(2 * entries));
        for (int i = 0; i < entries; ++i) {
            const qint64 at = time + 10 * i;
            const int entry = block + 1 + 6 * i;
            p.set(entry, quint32(at / 1000)).set(entry + 1, quint32(at % 1000)).set(entry + 2, volts + 0.001f * i);
            p.set(entry + 3, quint32(at / 1000)).set(entry + 4, quint32(at % 1000)).set(entry + 5, amps);
        }
    }
    return p;
}

Payload wave(quint32 transient = 0, qint64 time = kNow)
{
    Payload p(Link::kWaveWords, time);
    p.set(16386, transient);
    return p;
}

template <typename T> void renew(T *&record)
{
    delete record;
    record = new T();
}

} // namespace

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
    void loggerAndInverterRunLikeBasicMeasuring();
    void functionOutsideTheTableOnlyClearsTheEvents();
    void channelsFollowTheWiring_data();
    void channelsFollowTheWiring();
    void datagramsBeforeTheStartFillNoRecordAndAddNoEnergy();
    void aggregationBeforeTheStartMovesTheRecordingCountdown();
    void aggregationFillsTheDisplayRecords();
    void negativeFrequencyIsShownSignedAndUsedByMagnitude();
    void energyIntegratesByTheLocalClock();
    void clockStepsCountNoEnergy();
    void pausedTaskStillTakesData();
    void updateDisplayComesOnlyWhileRunning();
    void changeFlagSetsTheReference();
    void resetEnergyClearsCountersAndShowsIt();
    void halfCyclesFeedTrendsAndMeans();
    void trendsKeepTheirLength();
    void singlePhaseWiringFeedsOneChannel();
    void dipIsListed();
    void secondTrendsNeedAFreshAggregation();
    void transientIsCutAndListed();
    void transientCodesFollowTheWiring();
    void oldestTransientGoesAtThousand();
    void scopeStartsAtTheTrigger();
    void shortPayloadsAreDropped();
    void wildValuesHurtNothing();
    void recordersStoreTransientAndEvents();
    void countsOutOfRangeFeedAtMostThirtyHalfCycles_data();
    void countsOutOfRangeFeedAtMostThirtyHalfCycles();
    void anyPayloadAtAnyTimeInAnyWiringKeepsTheListsBounded();
    void recorderStoresTheWaveformOfAnEvent();
    void transientOfCode3IsIgnoredInSplitPhase();
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
    Clock::setForTest(kNow);
    m_settingConfig_g.setJoinMode(1);
    renew(g_vif_data);
    renew(g_power_data);
    renew(g_harm_data);
    renew(g_unbalance_data);
    renew(g_scope_data);
    renew(g_trans_data);
    renew(g_flicker_data);
    renew(g_mains_sig);
    renew(g_dipswell_trend);
    renew(g_inrush_data);
    qDeleteAll(g_trans_events);
    g_trans_events.clear();
    g_events_list.clear();
    m_task = std::make_unique<UniTask>();
}

void TstUniTask::cleanup()
{
    m_task.reset();
    qDeleteAll(g_trans_events);
    g_trans_events.clear();
    Clock::useSystem();
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

void TstUniTask::loggerAndInverterRunLikeBasicMeasuring()
{
    for (auto function : { AbstractTask::UniLogger, AbstractTask::UniPowerInverter }) {
        m_task->initUniFunction(function);
        QCOMPARE(m_task->getUniFunction(), function);
        QCOMPARE(m_task->startTime(), quint32(kNow / 1000 + 10));
        QCOMPARE(m_task->lifeCycle(), 86400000);
    }
}

void TstUniTask::functionOutsideTheTableOnlyClearsTheEvents()
{
    g_events_list.append(__event_item());
    m_task->initUniFunction(AbstractTask::UniFunction(9));
    QVERIFY(g_events_list.isEmpty());
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
    QCOMPARE(g_vif_data->voltage[0], 0.0f);
    QCOMPARE(m_task->aggregation().energy[0].active, 0.0);
    QVERIFY(g_dipswell_trend->voltage[0].isEmpty());
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

    QCOMPARE(g_vif_data->voltage[0], 2.0f * kVolt);
    QCOMPARE(g_vif_data->voltage[3], 5.0f * kVolt);
    QCOMPARE(g_vif_data->current[1], 2.0f * kAmpere);
    QCOMPARE(g_vif_data->voltageCrest[0], 1.5f);
    QCOMPARE(g_vif_data->frequency, 50.0f);
    QCOMPARE(g_power_data->voltage[1], 3.0f * kVolt);
    QCOMPARE(g_power_data->row[0].active, 4.0f * kVolt * kAmpere);
    QCOMPARE(g_harm_data->channel[0].rms, 2.0f * kVolt);
    QCOMPARE(g_harm_data->channel[0].harmonic[0].magnitude, 2.0f * kVolt);
    QCOMPARE(g_unbalance_data->voltageFundamental[0], 2.0f * kVolt);
    QCOMPARE(g_mains_sig->signal1Mean[0], 0.029f * kVolt);
    QCOMPARE(g_mains_sig->signal1[0], 0.029f * kVolt / 230.0f);
    QCOMPARE(g_mains_sig->signal2Mean[0], 0.058f * kVolt);
}

void TstUniTask::negativeFrequencyIsShownSignedAndUsedByMagnitude()
{
    start();
    m_task->datagramAggregation(aggregation(-49.9f).bytes());
    QCOMPARE(g_vif_data->frequency, -49.9f);
    QCOMPARE(g_mains_sig->frequency, -49.9f);
    QCOMPARE(m_task->aggregation().frequency, 49.9f);
    QCOMPARE(g_unbalance_data->frequency, 49.9f);
}

void TstUniTask::energyIntegratesByTheLocalClock()
{
    start();
    Payload p = aggregation();
    p.set(5, 4.0f);
    const double watts = 4.0 * kVolt * kAmpere;
    for (int i = 0; i < 3600; ++i) { // an hour by the local clock; the stamps of the processor stand still
        Clock::advance(1000);
        m_task->datagramAggregation(p.bytes());
    }
    QVERIFY(std::fabs(m_task->aggregation().energy[0].active / watts - 1.0) < 1e-4);
    QVERIFY(std::fabs(g_power_data->activeEnergy[0] / watts - 1.0) < 1e-4);
    const double voltAmperes = 2.0 * kVolt * 1.0 * kAmpere;
    QVERIFY(std::fabs(m_task->aggregation().energy[0].apparent / voltAmperes - 1.0) < 1e-4);
    QCOMPARE(g_power_data->hours, 1);
    QCOMPARE(g_power_data->minutes, 0);
    QCOMPARE(g_power_data->seconds, 0);
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
}

void TstUniTask::pausedTaskStillTakesData()
{
    start();
    m_task->pauseTask();
    m_task->datagramAggregation(aggregation().bytes());
    QCOMPARE(g_vif_data->voltage[0], 2.0f * kVolt);
    m_task->datagramRMS_1_2(halfCycles(20, 2.9f, 1.0f).bytes());
    QCOMPARE(g_dipswell_trend->voltage[0].size(), 20);
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
    m_task->updatedata();
    QCOMPARE(display.count(), 1);
    m_task->datagramAggregation(aggregation().bytes());
    QCOMPARE(display.count(), 1);
}

void TstUniTask::changeFlagSetsTheReference()
{
    QSignalSpy display(m_task.get(), &UniTask::updateDisplay);
    m_task->changeFlag(1);
    QCOMPARE(g_harm_data->reference, 2);
    m_task->changeFlag(2);
    QCOMPARE(g_harm_data->reference, 1);
    QCOMPARE(display.count(), 2);
}

void TstUniTask::resetEnergyClearsCountersAndShowsIt()
{
    start();
    Payload p = aggregation();
    p.set(5, 4.0f);
    Clock::advance(30'000);
    m_task->datagramAggregation(p.bytes());
    QVERIFY(g_power_data->activeEnergy[0] > 0);
    QCOMPARE(g_power_data->seconds, 30);
    QSignalSpy display(m_task.get(), &UniTask::updateDisplay);
    m_task->resetEnergy();
    QCOMPARE(g_power_data->activeEnergy[0], 0.0f);
    QCOMPARE(g_power_data->apparentEnergy[0], 0.0f);
    QCOMPARE(g_power_data->seconds, 0);
    QCOMPARE(m_task->aggregation().energy[0].active, 0.0);
    QCOMPARE(display.count(), 1);
}

void TstUniTask::halfCyclesFeedTrendsAndMeans()
{
    start();
    m_task->datagramRMS_1_2(halfCycles(20, 2.9f, 1.0f).bytes());
    for (int c = 0; c < 3; ++c) {
        QCOMPARE(g_dipswell_trend->voltage[c].size(), 20);
        QCOMPARE(g_dipswell_trend->voltage[c].first(), 2.9f * kVolt);
        QCOMPARE(g_dipswell_trend->voltage[c].last(), (2.9f + 0.001f * 19) * kVolt);
        QCOMPARE(g_dipswell_trend->current[c].last(), kAmpere);
        QCOMPARE(g_inrush_data->current[c].size(), 20);
        QVERIFY(std::fabs(g_mains_sig->rms1[c] - (2.9f + 0.0095f) * kVolt) < 0.001f); // mean of 0 to 19 is 9.5
        QCOMPARE(g_mains_sig->rms2[c], kAmpere);
    }
    QVERIFY(g_dipswell_trend->voltage[3].isEmpty());
}

void TstUniTask::trendsKeepTheirLength()
{
    start();
    for (int i = 0; i < 320; ++i)
        m_task->datagramRMS_1_2(halfCycles(20, 2.9f, 1.0f, kNow + 200 * i).bytes());
    QCOMPARE(g_dipswell_trend->voltage[0].size(), 6000); // a minute at 100 values a second
    QCOMPARE(g_inrush_data->current[0].size(), 600); // the first duration is six seconds
}

void TstUniTask::singlePhaseWiringFeedsOneChannel()
{
    m_settingConfig_g.setJoinMode(3);
    start();
    m_task->datagramRMS_1_2(halfCycles(20, 2.9f, 1.0f).bytes());
    QCOMPARE(g_dipswell_trend->voltage[0].size(), 20);
    QVERIFY(g_dipswell_trend->voltage[1].isEmpty());
    QVERIFY(g_dipswell_trend->voltage[2].isEmpty());
}

void TstUniTask::dipIsListed()
{
    start();
    QSignalSpy lists(m_task.get(), &UniTask::refreshEventList);
    QSignalSpy events(m_task.get(), &UniTask::hasEvents);
    QSignalSpy buzzer(m_task.get(), &UniTask::buzzerRing);
    m_task->datagramRMS_1_2(halfCycles(10, 2.9f, 0.001f).bytes());
    QCOMPARE(lists.count(), 0);
    m_task->datagramRMS_1_2(halfCycles(10, 1.5f, 0.001f, kNow + 100).bytes()); // 118.9 V of 230 V
    QCOMPARE(g_events_list.size(), 1);
    QCOMPARE(g_events_list[0].type, qint32(EventDip));
    QCOMPARE(g_events_list[0].startTime, kNow + 100);
    QCOMPARE(g_events_list[0].finished, 0);
    QCOMPARE(buzzer.count(), 1);
    QVERIFY(events.count() >= 1);
    m_task->datagramRMS_1_2(halfCycles(10, 2.9f, 0.001f, kNow + 200).bytes());
    QCOMPARE(g_events_list[0].finished, 1);
    QCOMPARE(g_events_list[0].duration, 100);
    QCOMPARE(g_events_list[0].value, 1.5f * kVolt);
}

void TstUniTask::secondTrendsNeedAFreshAggregation()
{
    start();
    Clock::advance(1000);
    m_task->datagramAggregation(aggregation().bytes());
    m_task->datagramWave(wave().bytes());
    QCOMPARE(g_vif_data->trend[VifTrendURms].series[0].size(), 1);
    m_task->datagramWave(wave().bytes()); // the aggregation is used up
    QCOMPARE(g_vif_data->trend[VifTrendURms].series[0].size(), 1);
    Clock::advance(200);
    m_task->datagramAggregation(aggregation().bytes());
    m_task->datagramWave(wave().bytes()); // the second is not over
    QCOMPARE(g_vif_data->trend[VifTrendURms].series[0].size(), 1);
    Clock::advance(800);
    m_task->datagramAggregation(aggregation().bytes());
    m_task->datagramWave(wave().bytes());
    QCOMPARE(g_vif_data->trend[VifTrendURms].series[0].size(), 2);
    QCOMPARE(g_power_data->trend[6].series[0].size(), 2);
    QCOMPARE(g_mains_sig->frequencyTrend.size(), 2);
}

void TstUniTask::transientIsCutAndListed()
{
    start();
    m_task->datagramAggregation(aggregation(-50.1f).bytes());
    QSignalSpy spy(m_task.get(), &UniTask::hasTransEvents);
    m_task->datagramWave(wave((2u << 24) | 2000).bytes());
    m_task->datagramWave(wave((1u << 24) | 100).bytes());
    QCOMPARE(spy.count(), 2);
    QCOMPARE(g_trans_events.size(), 2);
    QCOMPARE(g_trans_events[0]->number, 1);
    QCOMPARE(g_trans_events[1]->number, 2);
    QCOMPARE(g_trans_events[0]->position, (2u << 24) | 301u);
    QCOMPARE(g_trans_events[0]->frequency, 50.1f);
    QCOMPARE(g_trans_events[0]->rms[0], 2.0f * kVolt);
    m_task = std::make_unique<UniTask>(); // the number restarts with the task
    start();
    m_task->datagramWave(wave((2u << 24) | 2000).bytes());
    QCOMPARE(g_trans_events.last()->number, 1);
}

void TstUniTask::transientCodesFollowTheWiring()
{
    const struct
    {
        int joinMode;
        int highest;
    } rows[] = { { 1, 3 }, { 2, 3 }, { 3, 1 }, { 5, 2 }, { 6, 1 }, { 10, 3 } };
    for (const auto &row : rows) {
        m_settingConfig_g.setJoinMode(row.joinMode);
        m_task = std::make_unique<UniTask>();
        start();
        qDeleteAll(g_trans_events);
        g_trans_events.clear();
        for (quint32 code = 0; code < 256; ++code)
            m_task->datagramWave(wave(code << 24 | 500).bytes());
        QCOMPARE(g_trans_events.size(), row.highest);
    }
}

void TstUniTask::oldestTransientGoesAtThousand()
{
    start();
    const QByteArray bytes = wave((1u << 24) | 500).bytes();
    for (int i = 0; i < 1003; ++i)
        m_task->datagramWave(bytes);
    QCOMPARE(g_trans_events.size(), 1000);
    QCOMPARE(g_trans_events.first()->number, 4);
    QCOMPARE(g_trans_events.last()->number, 1003);
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
    QCOMPARE(g_scope_data->voltageSamples[0][0], sine[102]);
    QCOMPARE(g_scope_data->voltageSamples[0][3686], sine[102 + 3686]);
    QCOMPARE(g_scope_data->frequency, 50.0f);
    QCOMPARE(g_scope_data->voltage[1], 3.0f * kVolt);
    QCOMPARE(g_trans_data->samples[0][0], sine[102]);
    QCOMPARE(g_trans_data->samples[0][599], sine[102 + 3686]);
}

void TstUniTask::shortPayloadsAreDropped()
{
    start();
    for (int size : { 0, 1, 7, 8, 100, 2179, 12999 }) {
        const QByteArray bytes(size, '\x7f');
        m_task->datagramAggregation(bytes);
        m_task->datagramWave(bytes);
        m_task->datagramFlicker(bytes.left(6011));
        m_task->datagramRMS_1_2(bytes.left(2179));
    }
    QCOMPARE(g_vif_data->voltage[0], 0.0f);
    QVERIFY(g_trans_events.isEmpty());
    QVERIFY(g_dipswell_trend->voltage[0].isEmpty());
}

void TstUniTask::wildValuesHurtNothing()
{
    start();
    const float wild[] = { std::numeric_limits<float>::quiet_NaN(),
                           std::numeric_limits<float>::infinity(),
                           -std::numeric_limits<float>::infinity(),
                           1e30f,
                           -1e30f,
                           1e-40f };
    for (float value : wild) {
        Payload a(Link::kAggregationWords);
        for (int word = 2; word < Link::kAggregationWords; ++word)
            a.set(word, value);
        m_task->datagramAggregation(a.bytes());
        Payload r(Link::kRmsWords);
        for (int word = 2; word < Link::kRmsWords; ++word)
            r.set(word, value);
        m_task->datagramRMS_1_2(r.bytes());
        Payload f(Link::kFlickerWords);
        for (int word = 2; word < Link::kFlickerWords; ++word)
            f.set(word, value);
        m_task->datagramFlicker(f.bytes());
        m_task->updatedata();
    }
    QVERIFY(m_task->isTaskRunning());
    for (int c = 0; c < kChannels; ++c)
        QVERIFY(std::isfinite(g_vif_data->voltage[c]));
}

void TstUniTask::recordersStoreTransientAndEvents()
{
    start();
    m_task->datagramRMS_1_2(halfCycles(10, 1.5f, 0.001f).bytes());
    m_task->datagramWave(wave((3u << 24) | 2000).bytes());

    Pqa2FF common("/tmp/common.pqa2");
    Pqa2FF monitor("/tmp/monitor.pqa2");
    if (!common.open() || !monitor.open())
        QFAIL("no room for the files");
    const qint64 before = common.size();
    const qint64 beforeMonitor = monitor.size();
    m_task->setFiles(&common, &monitor);
    m_task->saveUnFinishedEvents(); // the dip runs and has no curves yet: no record but an empty block
    QCOMPARE(monitor.size() - beforeMonitor, 12 + 32);
    m_task->saveFinishedEvents();
    // Block head, then time, frequency, position and 600 samples of the channel.
    QCOMPARE(common.size() - before, 12 + (12 + 16 + 1200));
    m_task->setFiles(nullptr, nullptr);
}

void TstUniTask::countsOutOfRangeFeedAtMostThirtyHalfCycles_data()
{
    QTest::addColumn<quint32>("count");
    QTest::addColumn<int>("entries");
    QTest::newRow("0") << 0u << 0;
    QTest::newRow("1: half an entry") << 1u << 0;
    QTest::newRow("59") << 59u << 29;
    QTest::newRow("60") << 60u << 30;
    QTest::newRow("61") << 61u << 30;
    QTest::newRow("not a number as a float") << 0x7FC00000u << 30;
    QTest::newRow("negative as an integer") << 0x80000000u << 30;
    QTest::newRow("all ones") << 0xFFFFFFFFu << 30;
}

void TstUniTask::countsOutOfRangeFeedAtMostThirtyHalfCycles()
{
    QFETCH(quint32, count);
    QFETCH(int, entries);
    start();
    Payload payload = halfCycles(30, 2.9f, 0.001f);
    for (int c = 0; c < 3; ++c)
        payload.set(2 + 181 * c, count);
    m_task->datagramRMS_1_2(payload.bytes());
    for (int c = 0; c < 3; ++c) {
        QCOMPARE(g_dipswell_trend->voltage[c].size(), entries);
        QCOMPARE(g_dipswell_trend->current[c].size(), entries);
    }
    QVERIFY(std::isfinite(g_mains_sig->rms1[0]));
}

void TstUniTask::anyPayloadAtAnyTimeInAnyWiringKeepsTheListsBounded()
{
    // Bits of: 0, -0, the smallest denormal, 1, -1, 10, 1e30, the infinities, two that are no numbers, and counts.
    const quint32 words[]
        = { 0,           0x80000000u, 1,           0x3F800000u, 0xBF800000u, 0x41200000u, 0x7149F2CAu,
            0x7F800000u, 0xFF800000u, 0x7FC00000u, 0xFFFFFFFFu, 60,          61,          1u << 24 | 4095 };
    constexpr qint64 kDay = 86'400'000;
    const qint64 times[] = { kNow,
                             kNow - kDay,
                             kNow + 3 * kDay,
                             0,
                             -1,
                             std::numeric_limits<qint64>::min(),
                             std::numeric_limits<qint64>::max() };
    quint32 pick = 1;
    const auto next = [&pick](std::size_t of) {
        pick = pick * 1664525u + 1013904223u;
        return (pick >> 8) % of;
    };
    const auto any = [&](int count) {
        Payload payload(count, times[next(std::size(times))]);
        for (int word = 2; word < count; ++word)
            payload.set(word, words[next(std::size(words))]);
        return payload.bytes();
    };
    for (int joinMode = 1; joinMode <= 10; ++joinMode) {
        m_settingConfig_g.setJoinMode(joinMode);
        m_task = std::make_unique<UniTask>();
        start();
        for (int i = 0; i < 40; ++i) {
            m_task->datagramAggregation(any(Link::kAggregationWords));
            m_task->datagramRMS_1_2(any(Link::kRmsWords));
            m_task->datagramFlicker(any(Link::kFlickerWords));
            m_task->datagramWave(any(Link::kWaveWords));
            Clock::setForTest(times[next(3)]);
            m_task->updatedata();
        }
        QVERIFY(m_task->isTaskRunning());
        QVERIFY(g_events_list.size() <= 10'001);
        QVERIFY(g_trans_events.size() <= 1000);
        for (int p = 0; p < kFlickerPhases; ++p)
            QVERIFY(g_flicker_data->pinstTrend[p].size() <= 600);
        for (int c = 0; c < kChannels; ++c) {
            QVERIFY(g_dipswell_trend->voltage[c].size() <= 6000);
            QVERIFY(g_inrush_data->current[c].size() <= 600);
            QVERIFY(g_mains_sig->mean1[c].size() <= 15);
        }
    }
}

void TstUniTask::recorderStoresTheWaveformOfAnEvent()
{
    Pqa2FF common("/tmp/common.pqa2");
    if (!common.open())
        QFAIL("no room for the file");
    start();
    m_task->setFiles(&common, nullptr);
    m_task->startRecordTask();
    const qint64 before = common.size();
    m_task->datagramRMS_1_2(halfCycles(10, 1.5f, 0.001f).bytes()); // a dip
    m_task->datagramWave(wave(0, kNow - 100).bytes());
    QCOMPARE(common.size(), before);
    m_task->datagramWave(wave(0, kNow + 100).bytes());
    // Block head, time, eight channels of 2048 samples.
    QCOMPARE(common.size() - before, 12 + 8 + 8 * 4096);
    m_task->datagramWave(wave(0, kNow + 300).bytes()); // stored once
    QCOMPARE(common.size() - before, 12 + 8 + 8 * 4096);

    m_task->stopRecordTask(); // without a recording the queue empties all the same
    m_task->changeEventsWave(kNow + 400);
    m_task->datagramWave(wave(0, kNow + 300).bytes());
    m_task->datagramWave(wave(0, kNow + 500).bytes());
    m_task->startRecordTask();
    m_task->datagramWave(wave(0, kNow + 700).bytes());
    QCOMPARE(common.size() - before, 12 + 8 + 8 * 4096);
    m_task->setFiles(nullptr, nullptr);
}

void TstUniTask::transientOfCode3IsIgnoredInSplitPhase()
{
    m_settingConfig_g.setJoinMode(5);
    m_task = std::make_unique<UniTask>();
    start();
    QSignalSpy told(m_task.get(), &UniTask::hasTransEvents);
    m_task->datagramWave(wave((3u << 24) | 2000).bytes());
    QCOMPARE(told.count(), 0);
    QVERIFY(g_trans_events.isEmpty());
    m_task->datagramWave(wave((2u << 24) | 2000).bytes());
    QCOMPARE(told.count(), 1);
    QCOMPARE(g_trans_events.last()->number, 1); // what is ignored is not counted
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
