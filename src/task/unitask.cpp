#include "task/unitask.h"

#include "model/channelset.h"
#include "settings/config_data.h"
#include "settings/dipswellinfo.h"
#include "settings/harmdata.h"
#include "settings/inrushinfo.h"
#include "settings/monitorinfo.h"
#include "settings/waveinfo.h"
#include "device/datatypes.h"
#include "model/livedata.h"
#include "device/trace.h"
#include "platform/clock.h"
#include "detect/flickerprocessor.h"
#include "detect/powerevents.h"
#include "task/displayfeed.h"
#include "task/inverterfeed.h"
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

/// Output phases of the inverter, as the wiring and the user's choice have them.
int inverterOutputs()
{
    const ChannelSet *set = m_settingConfig_g.channels();
    return InverterFeed::outputMask(set ? set->trendFlags() : 0, singleOrThree != 0);
}

/// Length of a monitor's run; -1, the longest, for hours that no run can have.
int monitorSeconds(int hours)
{
    const qint64 seconds = kMonitorHour * hours;
    return seconds > 0 && seconds <= std::numeric_limits<int>::max() ? int(seconds) : -1;
}

} // namespace

UniTask::UniTask(LiveData &data, QObject *parent)
    : AbstractTask(parent), m_data(data), m_scales(m_settingConfig_g.derived().scales)
{
    initLimitsData();
    m_events = new PowerEvents(data.events(), this);
    connect(m_events, &PowerEvents::buzzerRing, this, &UniTask::buzzerRing);
    connect(m_events, &PowerEvents::eventFinishedWithRMS, this, &UniTask::eventFinishedWithRMS);
    connect(m_events, &PowerEvents::changeEventsWave, this, &UniTask::changeEventsWave);
    connect(m_events, &PowerEvents::mbEventsChanged, this, &UniTask::eventTableChanged);

    m_aggregation = makeRecord<__datagram_aggregation>();
    m_rms = makeRecord<__datagram_rms>();
    m_wave = makeRecord<__datagram_wave>();
    m_flicker = makeRecord<__datagram_flicker>();
    m_flickerProcessor = std::make_unique<FlickerProcessor>();

    setTaskType(0, 1000);
    // First of all that listen: the pages find the records as their new state has them.
    connect(this, &AbstractTask::init_param, this, &UniTask::beginRecords);
    connect(this, &AbstractTask::taskPaused, this, &UniTask::holdRecords);
    connect(this, &AbstractTask::taskContinued, this, &UniTask::continueRecords);
    connect(this, &AbstractTask::taskStarted, this, &UniTask::startBaseTimer);
    connect(this, QOverload<>::of(&AbstractTask::taskStoped), this, &UniTask::stopBaseTimer);
}

UniTask::~UniTask() = default;

const DisplayRecords &UniTask::live() const
{
    return m_data.live();
}

void UniTask::beginRecords()
{
    m_data.empty(float(m_settingConfig_g.getNomFreq()));
}

void UniTask::holdRecords()
{
    // The page in front is drawn once more, so that what a key brings to light later is of the same moment.
    copyScope();
    emit updateDisplay(nullptr);
    m_data.hold();
}

void UniTask::continueRecords()
{
    m_data.run();
}

void UniTask::initLimitsData()
{
    m_dipTrendLimit = DipSwellInfo::m_rms_numb_per_sec * 60;
    m_inrushTrendLimit = InrushInfo::m_rms_numb_per_sec * InrushInfo::m_dura_time[InrushInfo::m_duration_index].seconds;
}

void UniTask::initUniFunction(AbstractTask::UniFunction function)
{
    const ChannelSet *set = m_settingConfig_g.channels();
    m_channels = set ? set->taskPhases : 3;
    m_data.events().clear();
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
    // Its record is derived from the live ones with each aggregation: there is nothing to hold for it.
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

void UniTask::stopBaseTimer()
{
    m_data.finish();
}

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
    DataTypes::datagramAggregation(m_aggregation.get(), bytes.constData(), { m_scales, m_settingConfig_g.derived() });

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

    __power_data &power = m_data.live().power;
    m_energyMicroseconds += elapsed;
    while (m_energyMicroseconds > 999'999) {
        m_energyMicroseconds -= 1'000'000;
        ++m_energySeconds;
        if (++power.seconds <= 59)
            continue;
        power.seconds = 0;
        if (++power.minutes <= 59)
            continue;
        power.minutes = 0;
        ++power.hours;
    }

    const float hours = float(double(elapsed) / 3.6e9);
    for (int c = 0; c < kChannels; ++c) {
        const PowerRow &row = m_aggregation->power[c];
        EnergyRow &energy = m_aggregation->energy[c];
        energy.active += double(hours * row.active);
        energy.apparent += double(hours * row.apparent);
        energy.reactive += double(hours * row.reactive);
    }
}

void UniTask::feedDisplayRecords(float signedFrequency)
{
    DisplayRecords &live = m_data.live();
    live.vif.frequency = signedFrequency;
    DisplayFeed::feedVif(*m_aggregation, live.vif);
    DisplayFeed::feedPower(*m_aggregation, live.power);
    DisplayFeed::feedHarmonics(*m_aggregation, HarmData::m_harm_max_numb, live.harmonics);
    DisplayFeed::feedUnbalance(*m_aggregation, live.unbalance);
    DisplayFeed::feedMainsSignal(*m_aggregation, signedFrequency, live.mainsSignal);
    if (m_function == UniPowerInverter)
        InverterFeed::feed(live.vif, live.power, singleOrThree != 0, inverterOutputs(), live.inverter);
}

void UniTask::appendSecondTrends()
{
    const bool inverter = m_function == UniPowerInverter;
    if ((m_function != UniBasic && !inverter) || m_energySeconds == m_trendSecond)
        return;
    m_trendSecond = m_energySeconds;
    DisplayRecords &live = m_data.live();
    if (inverter) {
        InverterFeed::appendTrends(inverterOutputs(), live.inverter);
        return;
    }
    DisplayFeed::trendVif(live.vif);
    DisplayFeed::trendPower(live.power);
    DisplayFeed::trendMainsSignal(live.mainsSignal);
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
    using namespace TriggerSearch;
    const __vif_data &vif = m_data.live().vif;
    __scope_data &scope = m_data.live().scope;
    __trans_data &transient = m_data.live().transient;
    const int start = findTrigger(m_wave->voltage[0]);
    scope.frequency = transient.frequency = vif.frequency;
    for (int c = 0; c < kChannels; ++c) {
        std::memcpy(scope.voltageSamples[c], m_wave->voltage[c] + start, kShownSamples * sizeof(qint16));
        std::memcpy(scope.currentSamples[c], m_wave->current[c] + start, kShownSamples * sizeof(qint16));
        scope.voltage[c] = transient.rms[c] = vif.voltage[c];
        scope.current[c] = vif.current[c];
        DataTypes::lineInterpolation(transient.samples[c], m_wave->voltage[c] + start, 600, kShownSamples);
    }
}

void UniTask::changeFlag(int value)
{
    m_data.setHarmonicReference(value == 1 ? 2 : 1);
    emit updateDisplay(nullptr);
}

void UniTask::resetEnergy()
{
    for (EnergyRow &row : m_aggregation->energy)
        row = { 0, 0, 0 };
    // On hold the page goes on showing the energies of its moment; the zeros appear when it runs again.
    __power_data &power = m_data.live().power;
    power.hours = power.minutes = power.seconds = 0;
    for (int c = 0; c < kChannels; ++c)
        power.activeEnergy[c] = power.apparentEnergy[c] = power.reactiveEnergy[c] = 0;
    emit updateDisplay(nullptr);
}
