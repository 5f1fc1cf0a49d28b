#include "task/unitask.h"

#include "model/channelset.h"
#include "settings/config_data.h"
#include "settings/dipswellinfo.h"
#include "settings/harmdata.h"
#include "settings/inrushinfo.h"
#include "settings/monitorinfo.h"
#include "settings/waveinfo.h"
#include "device/datatypes.h"
#include "model/displayrecords.h"
#include "device/trace.h"
#include "platform/clock.h"
#include "detect/flickerprocessor.h"
#include "detect/powerevents.h"
#include "task/displayfeed.h"
#include "task/triggersearch.h"

#include <cmath>
#include <cstring>
#include <limits>

namespace {

/// A longer gap between two aggregation datagrams, or a negative one, is a step of the clock or a lost link, not time
/// in which energy was measured: nothing is counted for it.
constexpr qint64 kLongestGap = 60'000'000; // us

/// As required: seconds of a monitor's run for each of its hours.
constexpr qint64 kMonitorHour = 3601;

template <typename T> std::unique_ptr<T> makeRecord()
{
    auto record = std::unique_ptr<T>(new T);
    std::memset(static_cast<void *>(record.get()), 0, sizeof(T));
    return record;
}

/// Length of a monitor's run; -1, the longest, for hours that no run can have.
int monitorSeconds(int hours)
{
    const qint64 seconds = kMonitorHour * hours;
    return seconds > 0 && seconds <= std::numeric_limits<int>::max() ? int(seconds) : -1;
}

} // namespace

UniTask::UniTask(QObject *parent) : AbstractTask(parent)
{
    initLimitsData();
    m_events = new PowerEvents(this);
    connect(m_events, &PowerEvents::buzzerRing, this, &UniTask::buzzerRing);
    connect(m_events, &PowerEvents::eventListChanged, this, &UniTask::changeEventsList);
    connect(m_events, &PowerEvents::eventFinished, this, &UniTask::eventFinished);
    connect(m_events, &PowerEvents::eventFinishedWithRMS, this, &UniTask::eventFinishedWithRMS);
    connect(m_events, &PowerEvents::changeEventsWave, this, &UniTask::changeEventsWave);
    connect(m_events, &PowerEvents::mbEventsChanged, this, &UniTask::eventTableChanged);

    m_aggregation = makeRecord<__datagram_aggregation>();
    m_rms = makeRecord<__datagram_rms>();
    m_wave = makeRecord<__datagram_wave>();
    m_flicker = makeRecord<__datagram_flicker>();
    m_flickerProcessor = std::make_unique<FlickerProcessor>();

    setTaskType(0, 1000);
    connect(this, &AbstractTask::taskStarted, this, &UniTask::startBaseTimer);
    connect(this, QOverload<>::of(&AbstractTask::taskStoped), this, &UniTask::stopBaseTimer);
    DataTypes::calculateK_viw();
}

UniTask::~UniTask() = default;

void UniTask::initLimitsData()
{
    m_dipTrendLimit = DipSwellInfo::m_rms_numb_per_sec * 60;
    m_inrushTrendLimit = InrushInfo::m_rms_numb_per_sec * InrushInfo::m_dura_time[InrushInfo::m_duration_index].seconds;
}

void UniTask::initUniFunction(AbstractTask::UniFunction function)
{
    const ChannelSet *set = m_settingConfig_g.channels();
    m_channels = set ? set->taskPhases : 3;
    g_events_list.clear();
    m_function = function;
    // The set-up of the recording functions comes with their files.
    switch (function) {
    case UniWave:
        setTaskLifeCycle(WaveInfo::m_begain_time, -1);
        break;
    case UniMonitor:
        setTaskLifeCycle(MonitorInfo::m_begain_time, monitorSeconds(MonitorInfo::m_duration));
        break;
    case UniPowerInverter:
        QV_TRACE("task/unitask") << "Uni_PowerInverter";
        initPowerInverterData();
        setTaskLifeCycle(0, -1);
        break;
    case UniBasic:
    case UniLogger: // it ends by the user's key
        setTaskLifeCycle(0, -1);
        break;
    }
}

void UniTask::initPowerInverterData()
{
    // The page makes its record out of the live ones: the task has nothing to hold for it.
    QV_TRACE("task/unitask") << "initPowerInverterData";
}

void UniTask::setFiles(Pqa2FF *common, Pqa2FF *monitor)
{
    m_commonFile = common;
    m_monitorFile = monitor;
}

void UniTask::startBaseTimer()
{
    m_lastTime = Clock::timeOfDay();
}

void UniTask::stopBaseTimer() { }

void UniTask::save(bool)
{
    if (m_function == UniMonitor)
        saveAllEvents();
}

void UniTask::saveRecord(bool) { }

void UniTask::initRecording() { }

void UniTask::datagramAggregation(const QByteArray &bytes)
{
    const Call call(this);
    if (!DataTypes::fits(DatagramAggregation, bytes))
        return;
    DataTypes::datagramAggregation(m_aggregation.get(), bytes.constData());

    if (!isLive()) {
        startRecordTimer(quint64(m_aggregation->time));
        m_lastTime = Clock::timeOfDay();
        m_energyMicroseconds = 0;
        m_aggregationFresh = false;
        return;
    }

    const float signedFrequency = m_aggregation->frequency;
    m_aggregation->frequency = std::fabs(signedFrequency);
    integrateEnergy();
    feedDisplayRecords(signedFrequency);
    m_aggregationFresh = true;
    emit aggregationTaken(m_aggregation.get());
}

void UniTask::integrateEnergy()
{
    const timeval now = Clock::timeOfDay();
    const qint64 elapsed
        = (qint64(now.tv_sec) - m_lastTime.tv_sec) * 1'000'000 + (qint64(now.tv_usec) - m_lastTime.tv_usec);
    m_lastTime = now;
    if (elapsed < 0 || elapsed > kLongestGap)
        return;

    m_energyMicroseconds += elapsed;
    while (m_energyMicroseconds > 999'999) {
        m_energyMicroseconds -= 1'000'000;
        ++m_energySeconds;
        if (!g_power_data || ++g_power_data->seconds <= 59)
            continue;
        g_power_data->seconds = 0;
        if (++g_power_data->minutes <= 59)
            continue;
        g_power_data->minutes = 0;
        ++g_power_data->hours;
    }

    const float hours = float(double(elapsed) / 3.6e9);
    for (int c = 0; c < kChannels; ++c) {
        const PowerRow &power = m_aggregation->power[c];
        EnergyRow &energy = m_aggregation->energy[c];
        energy.active += double(hours * power.active);
        energy.apparent += double(hours * power.apparent);
        energy.reactive += double(hours * power.reactive);
    }
}

void UniTask::feedDisplayRecords(float signedFrequency)
{
    if (g_vif_data) {
        g_vif_data->frequency = signedFrequency;
        DisplayFeed::feedVif(*m_aggregation, *g_vif_data);
    }
    if (g_power_data)
        DisplayFeed::feedPower(*m_aggregation, *g_power_data);
    if (g_harm_data)
        DisplayFeed::feedHarmonics(*m_aggregation, HarmData::m_harm_max_numb, *g_harm_data);
    if (g_unbalance_data)
        DisplayFeed::feedUnbalance(*m_aggregation, *g_unbalance_data);
    if (g_mains_sig)
        DisplayFeed::feedMainsSignal(*m_aggregation, signedFrequency, *g_mains_sig);
}

void UniTask::appendSecondTrends()
{
    if (!m_aggregationFresh)
        return;
    m_aggregationFresh = false;
    if (m_function != UniBasic || m_energySeconds == m_trendSecond)
        return;
    m_trendSecond = m_energySeconds;
    if (g_vif_data)
        DisplayFeed::trendVif(*g_vif_data);
    if (g_power_data)
        DisplayFeed::trendPower(*g_power_data);
    if (g_mains_sig)
        DisplayFeed::trendMainsSignal(*g_mains_sig);
}

void UniTask::updatedata()
{
    const Call call(this);
    if (!isTaskRunning())
        return;
    copyScope();
    emit updateDisplay(nullptr);
}

void UniTask::copyScope()
{
    if (!g_scope_data || !g_vif_data)
        return;
    using namespace TriggerSearch;
    g_scope_data->frequency = g_vif_data->frequency;
    const int start = findTrigger(m_wave->voltage[0]);
    for (int c = 0; c < kChannels; ++c) {
        std::memcpy(g_scope_data->voltageSamples[c], m_wave->voltage[c] + start, kShownSamples * sizeof(qint16));
        std::memcpy(g_scope_data->currentSamples[c], m_wave->current[c] + start, kShownSamples * sizeof(qint16));
        g_scope_data->voltage[c] = g_vif_data->voltage[c];
        g_scope_data->current[c] = g_vif_data->current[c];
    }
    if (!g_trans_data)
        return;
    g_trans_data->frequency = g_vif_data->frequency;
    for (int c = 0; c < kChannels; ++c) {
        g_trans_data->rms[c] = g_vif_data->voltage[c];
        DataTypes::lineInterpolation(g_trans_data->samples[c], m_wave->voltage[c] + start, 600, kShownSamples);
    }
}

void UniTask::changeFlag(int value)
{
    if (g_harm_data)
        g_harm_data->reference = value == 1 ? 2 : 1;
    emit updateDisplay(nullptr);
}

void UniTask::resetEnergy()
{
    for (EnergyRow &row : m_aggregation->energy)
        row = { 0, 0, 0 };
    if (g_power_data) {
        g_power_data->hours = g_power_data->minutes = g_power_data->seconds = 0;
        for (int c = 0; c < kChannels; ++c)
            g_power_data->activeEnergy[c] = g_power_data->apparentEnergy[c] = g_power_data->reactiveEnergy[c] = 0;
    }
    emit updateDisplay(nullptr);
}
