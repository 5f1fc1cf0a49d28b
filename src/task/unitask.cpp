#include "task/unitask.h"

#include "model/channelset.h"
#include "settings/config_data.h"
#include "settings/dipswellinfo.h"
#include "settings/harmdata.h"
#include "settings/inrushinfo.h"
#include "settings/recordinfo.h"
#include "storage/runjournal.h"
#include "device/datatypes.h"
#include "model/livedata.h"
#include "device/trace.h"
#include "detect/flickerprocessor.h"
#include "detect/powerevents.h"
#include "platform/clock.h"
#include "task/displayfeed.h"
#include "task/functions/functionplan.h"
#include "task/inverterfeed.h"
#include "task/transientcutter.h"
#include "task/triggersearch.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <utility>

namespace {

template <typename T> std::unique_ptr<T> makeRecord()
{
    auto record = std::unique_ptr<T>(new T);
    std::memset(static_cast<void *>(record.get()), 0, sizeof(T));
    return record;
}

/// The inverter's output, as the wiring and the user's choice have it.
InverterFunction::Output inverterOutput()
{
    const ChannelSet *set = m_settingConfig_g.channels();
    const bool single = singleOrThree != 0;
    return { single, InverterFeed::outputMask(set ? set->trendFlags() : 0, single) };
}

const Derived &setUpInUse()
{
    return m_settingConfig_g.derived();
}

/// Longest trends of half-cycle values; another duration may be chosen while a task runs.
HalfCycleTrends::Limits trendLimits()
{
    return { DipSwellInfo::m_rms_numb_per_sec * 60,
             InrushInfo::m_rms_numb_per_sec * InrushInfo::m_dura_time[InrushInfo::m_duration_index].seconds };
}

/// Length of a recording of so many hours; -1, the longest, for what none can have.
int recordSeconds(int hours)
{
    constexpr int kHour = 3600;
    return hours > 0 && hours <= std::numeric_limits<int>::max() / kHour ? kHour * hours : -1;
}

/// A run that waits for a time that the user chose is told at the next start, should the supply be lost before.
void keepPlan(const QString &name, quint32 start)
{
    if (start > Clock::seconds())
        RunJournal::instance().plan({ name, start });
    else
        RunJournal::instance().endPlan();
}

} // namespace

UniTask::UniTask(LiveData &data, QObject *parent)
    : AbstractTask(parent), m_data(data), m_scales(m_settingConfig_g.derived().scales),
      m_aggregation(makeRecord<__datagram_aggregation>()), m_rms(makeRecord<__datagram_rms>()),
      m_wave(makeRecord<__datagram_wave>()), m_flicker(makeRecord<__datagram_flicker>()),
      m_events(new PowerEvents(data.events(), this)), m_flickerProcessor(std::make_unique<FlickerProcessor>()),
      m_trends(data.live()), m_inverter(data.live(), inverterOutput),
      m_monitor(
          { data, *m_events, *m_flickerProcessor, [this] { emit updateDisplay(nullptr); }, [this] { stopTask(); } }),
      m_recorder({ data, *m_flickerProcessor, [this] { return recorderSetUp(); } }),
      m_capture(data.live().wave, setUpInUse, [this] { stopTask(); }), m_logger(data.live(), setUpInUse)
{
    connectDetector();
    setTaskType(0, 1000);
    connectStates();
    m_secondTimer.setInterval(1000);
    connect(&m_secondTimer, &QTimer::timeout, this, &UniTask::tick);
}

UniTask::~UniTask() = default;

void UniTask::connectDetector()
{
    connect(m_events, &PowerEvents::buzzerRing, this, &UniTask::buzzerRing);
    connect(m_events, &PowerEvents::eventFinishedWithRMS, this, [this](const PQAEventItem &event) {
        tell([&event](TaskFunction &function) { function.eventComplete(event); });
    });
    connect(m_events, &PowerEvents::changeEventsWave, this, &UniTask::changeEventsWave);
    connect(m_events, &PowerEvents::mbEventsChanged, this, &UniTask::eventTableChanged);
}

void UniTask::connectStates()
{
    // First of all that listen: pages find the records as their new state has them, and files are complete before
    // anyone hears of the end.
    connect(this, &AbstractTask::init_param, this, &UniTask::beginRecords);
    connect(this, &AbstractTask::taskPaused, this, &UniTask::holdRecords);
    connect(this, &AbstractTask::taskContinued, this, [this] { m_data.run(); });
    connect(this, &AbstractTask::taskStarted, this, &UniTask::startBaseTimer);
    connect(this, QOverload<>::of(&AbstractTask::taskStoped), this, &UniTask::stopBaseTimer);
    connect(this, &AbstractTask::recordingStarted, this, &UniTask::startRecording);
    connect(this, &AbstractTask::recordingStoped, this, &UniTask::stopRecording);
}

// Functions

void UniTask::initUniFunction(AbstractTask::UniFunction function)
{
    const ChannelSet *set = m_settingConfig_g.channels();
    m_channels = set ? set->taskPhases : 3;
    if (isRecording())
        stopRecordTask(); // it runs inside one measurement
    endFunctions(Keep::Data);
    m_recorder.folder().release();
    m_ended.release();
    m_data.events().clear();
    m_function = function;
    const std::optional<FunctionPlan> plan = functionPlan(function);
    m_servesFlicker = plan && plan->servesFlicker;
    if (function == UniPowerInverter) {
        QV_TRACE("task/unitask") << "Uni_PowerInverter";
        // Its record is derived from the live ones: there is nothing to hold for it.
        QV_TRACE("task/unitask") << "initPowerInverterData";
    }
    if (plan) {
        setTaskLifeCycle(plan->start, plan->life);
        keepPlan(plan->name, plan->start);
    }
    beginFunctions();
    if (isLive())
        tell([](TaskFunction &running) { running.measure(); });
}

TaskFunction *UniTask::functionOf(AbstractTask::UniFunction function)
{
    switch (function) {
    case UniBasic:
        return &m_trends;
    case UniMonitor:
        return &m_monitor;
    case UniPowerInverter:
        return &m_inverter;
    case UniWave:
        return &m_capture;
    case UniLogger:
        return &m_logger;
    }
    return nullptr;
}

void UniTask::beginFunctions()
{
    if (TaskFunction *function = functionOf(m_function))
        begin(function);
    if (m_function == UniBasic && isRecording())
        begin(&m_recorder);
}

void UniTask::endFunctions(Keep keep)
{
    while (!m_running.empty())
        end(m_running.back(), keep);
}

bool UniTask::isRunning(const TaskFunction *function) const
{
    return std::find(m_running.begin(), m_running.end(), function) != m_running.end();
}

void UniTask::begin(TaskFunction *function)
{
    if (isRunning(function))
        return;
    m_running.push_back(function);
    function->start();
}

void UniTask::end(TaskFunction *function, Keep keep)
{
    const auto found = std::find(m_running.begin(), m_running.end(), function);
    if (found == m_running.end())
        return;
    m_running.erase(found);
    function->stop(keep);
}

template <typename Hear> void UniTask::tell(const Hear &hear)
{
    const std::vector<TaskFunction *> now = m_running;
    for (TaskFunction *function : now) {
        if (isRunning(function))
            hear(*function);
    }
}

void UniTask::storeEvents(EventChoice choice)
{
    m_recorder.storeEvents(choice);
    m_monitor.storeEvents(choice);
}

void UniTask::startBaseTimer()
{
    m_energy.resume();
    if (m_function != UniBasic)
        RunJournal::instance().endPlan();
    beginFunctions();
    tell([](TaskFunction &function) { function.measure(); });
    m_secondTimer.start();
}

void UniTask::stopBaseTimer()
{
    m_secondTimer.stop();
    RunJournal::instance().endPlan();
    endFunctions(Keep::Data);
    m_data.finish();
}

void UniTask::tick()
{
    const Call call(this);
    if (isTaskRunning())
        tell([](TaskFunction &function) { function.tick(); });
}

void UniTask::save(bool keep)
{
    // Basic measuring keeps nothing itself, and goes on where only its recording ends.
    if (m_function != UniBasic)
        endFunctions(keep ? Keep::Data : Keep::Nothing);
}

// The recording inside basic measuring

RecorderSetUp UniTask::recorderSetUp() const
{
    return { m_settingConfig_g.channels(), m_settingConfig_g.getNomFreq(), m_aggregation->frequency };
}

void UniTask::initRecording()
{
    m_recorder.folder().release();
    m_ended.release();
    setTaskLifeCycle(RecordInfo::m_begain_time, -1);
    setRecordLifeCycle(RecordInfo::m_begain_time, recordSeconds(RecordInfo::m_duration));
    keepPlan(*RecordInfo::m_record_file, RecordInfo::m_begain_time);
    RecordInfo::m_in_recording = 1;
}

void UniTask::startRecording()
{
    if (m_function != UniBasic)
        return;
    RunJournal::instance().endPlan();
    begin(&m_recorder);
}

void UniTask::stopRecording()
{
    // The one that waits for its waveform, which may be the one that closed the window.
    if (m_aggregationFresh && isRunning(&m_recorder))
        m_recorder.lastAggregation(*m_aggregation);
    end(&m_recorder, Keep::Data);
    clearRecording();
}

void UniTask::clearRecording()
{
    RunJournal::instance().endPlan();
    RecordInfo::m_in_recording = 0;
}

void UniTask::saveRecord(bool keep)
{
    if (keep)
        m_recorder.folder().release();
    else
        m_recorder.folder().remove();
}

void UniTask::driveRecording()
{
    const bool recorded = isRecording();
    recordTimer(quint64(m_wave->time));
    if (recorded && !isRecording())
        m_ended = std::exchange(m_recorder.folder(), RecordFolder()); // whatever is discarded later is not this one
}

void UniTask::removeEndedRecord()
{
    m_ended.remove();
}

// Live records

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

void UniTask::feedDisplayRecords(float signedFrequency)
{
    DisplayRecords &live = m_data.live();
    live.vif.frequency = signedFrequency;
    DisplayFeed::feedVif(*m_aggregation, live.vif);
    DisplayFeed::feedPower(*m_aggregation, live.power);
    DisplayFeed::feedHarmonics(*m_aggregation, HarmData::m_harm_max_numb, live.harmonics);
    DisplayFeed::feedUnbalance(*m_aggregation, live.unbalance);
    DisplayFeed::feedMainsSignal(*m_aggregation, signedFrequency, live.mainsSignal);
}

void UniTask::updatedata()
{
    const Call call(this);
    m_data.setStorageRefuses(
        std::any_of(m_running.begin(), m_running.end(), [](const TaskFunction *f) { return f->refused(); }));
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

// Datagrams

void UniTask::datagramAggregation(const QByteArray &bytes)
{
    const Call call(this);
    if (!DataTypes::fits(DatagramAggregation, bytes))
        return;
    // Above the nominal frequency its cycles are shorter than the waveforms: at times two come between two of these.
    if (m_aggregationFresh && isLive())
        tellAggregation();
    DataTypes::datagramAggregation(m_aggregation.get(), bytes.constData(), { m_scales, m_settingConfig_g.derived() });

    if (!isLive()) {
        startRecordTimer(quint64(m_aggregation->time));
        m_energy.restart();
        m_aggregationFresh = false;
        return;
    }

    const float signedFrequency = m_aggregation->frequency;
    m_aggregation->frequency = std::fabs(signedFrequency);
    m_energy.count(*m_aggregation, m_data.live().power);
    feedDisplayRecords(signedFrequency);
    m_aggregationFresh = true;
    emit aggregationTaken(m_aggregation.get());
}

void UniTask::tellAggregation()
{
    m_aggregationFresh = false; // used up, however many ask for a new one
    tell([this](TaskFunction &function) { function.aggregation(*m_aggregation); });
    if (m_toldSecond == m_energy.seconds())
        return;
    m_toldSecond = m_energy.seconds();
    tell([](TaskFunction &function) { function.second(); });
}

void UniTask::datagramRMS_1_2(const QByteArray &bytes)
{
    const Call call(this);
    if (!DataTypes::fits(DatagramRMS_1_2, bytes))
        return;
    DataTypes::datagramRMS_1_2(m_rms.get(), bytes.constData(), m_settingConfig_g.derived().scales);
    if (!isLive())
        return;
    m_halfCycleTrends.push(*m_rms, m_channels, m_data.live().mainsSignal);
    checkHalfCycles();
    m_halfCycleTrends.drain(m_channels, trendLimits(), m_data.live());
    tell([this](TaskFunction &function) { function.halfCycles(*m_rms); });
}

void UniTask::checkHalfCycles()
{
    int entries = kRmsEntries;
    for (int c = 0; c < m_channels; ++c)
        entries = std::min({ entries, int(m_rms->voltage[c].count), int(m_rms->current[c].count) });

    QList<_value_with_time> values;
    values.reserve(2 * kChannels);
    // An event may end the measurement: what came behind it is not looked at.
    for (int i = 0; i < entries && isLive(); ++i) {
        values.clear();
        for (const RmsSeries &series : m_rms->voltage)
            values.append(series.entry[i]);
        for (const RmsSeries &series : m_rms->current)
            values.append(series.entry[i]);
        m_events->checkPowerEvents(values);
    }
}

void UniTask::datagramWave(const QByteArray &bytes)
{
    const Call call(this);
    if (!DataTypes::fits(DatagramWave, bytes))
        return;
    DataTypes::datagramWave(m_wave.get(), bytes.constData());
    driveRecording();
    if (!isLive())
        return;
    if (m_aggregationFresh)
        tellAggregation();
    captureTransient();
    const QList<EventWave> complete = m_eventWaves.take(*m_wave);
    if (const ChannelSet *wiring = m_settingConfig_g.channels()) {
        for (const EventWave &wave : complete)
            tell([&wave, wiring](TaskFunction &function) { function.eventWave(wave, *wiring); });
    }
    tell([this](TaskFunction &function) { function.wave(*m_wave); });
    emit waveTaken(m_wave.get());
}

void UniTask::captureTransient()
{
    const int code = TransientCutter::channelCode(m_wave->transient);
    if (!transientCodeCounts(m_settingConfig_g.getJoinMode(), code))
        return;

    __trans_data &record = m_data.live().transient; // until the next refresh puts the running waveform there
    record.number = ++m_transientNumber;
    record.frequency = std::fabs(m_aggregation->frequency);
    for (int c = 0; c < kChannels; ++c)
        record.rms[c] = m_aggregation->channel[c].voltage;
    TransientCutter::cut(*m_wave, record);
    m_data.transients().append(record);
    tell([&record](TaskFunction &function) { function.transient(record); });
    emit hasTransEvents();
    emit transientTaken(&record);
}

void UniTask::datagramFlicker(const QByteArray &bytes)
{
    const Call call(this);
    if (!DataTypes::fits(DatagramFlicker, bytes))
        return;
    DataTypes::datagramFlicker(m_flicker.get(), bytes.constData());
    if (!isLive())
        return;
    // Each function puts the head of its own file before the blocks.
    const FlickerOutput out = m_flickerProcessor->process(*m_flicker, QByteArray(), m_data.live().flicker);
    tell([this, &out](TaskFunction &function) { function.flicker(*m_flicker, out); });
    if (m_servesFlicker)
        emit flickerTaken();
}
