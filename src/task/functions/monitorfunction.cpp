#include "task/functions/monitorfunction.h"

#include "detect/flickerprocessor.h"
#include "detect/powerevents.h"
#include "device/trace.h"
#include "model/livedata.h"
#include "platform/clock.h"
#include "record/pqa2device.h"
#include "settings/monitorinfo.h"
#include "task/functions/eventblocks.h"
#include "task/recordfolder.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int kNearlyFull = 29899; // means; an interval that holds more is judged at the end of a run
constexpr int kShortClosing = 12; // bytes; a closing flicker block is stored when it is longer
constexpr qint64 kTenMinutesAnHour = 6;

template <typename Value> void append(QByteArray &block, Value value)
{
    block.append(reinterpret_cast<const char *>(&value), int(sizeof value));
}

QByteArray timed(quint32 seconds)
{
    QByteArray block;
    append(block, seconds);
    return block;
}

/// 10-minute values of a run of that many hours.
qint32 valuesOf(qint64 hours)
{
    constexpr qint64 kMost = std::numeric_limits<qint32>::max();
    return qint32(std::clamp(hours * kTenMinutesAnHour, -kMost, kMost));
}

} // namespace

MonitorFunction::MonitorFunction(MonitorLinks links) : m_links(std::move(links)) { }

MonitorFunction::~MonitorFunction() = default;

void MonitorFunction::start()
{
    openFile();
    MonitorInfo::_10min_data_counter = valuesOf(MonitorInfo::m_duration);
    DisplayRecords &live = m_links.data.live();
    live.monitor = __monitor_data();
    live.monitorTrend = __monitor_trend();
    m_sums = MonitorSums();
    m_time = Clock::msecs();
    m_judge.emplace(currentMonitorSetup(), live.monitor, live.monitorTrend, m_links.events);
}

void MonitorFunction::openFile()
{
    RecordFolder folder;
    if (!folder.create(*MonitorInfo::m_monitor_file))
        return; // the run goes on without a file
    m_run = folder.name();
    m_monitorFile = m_links.device ? std::make_unique<Pqa2FF>(m_links.device()) : std::make_unique<Pqa2FF>();
    m_monitorFile->open(folder.file(QStringLiteral("Monitor.pqa2")));
    // A month of transients can be more than one file holds.
    m_monitorFile->continueInParts([this](Pqa2FF &part) { part.addDataBlock(Pqa2StartTime, timed(m_start)); });
    m_file.set(m_monitorFile.get());
}

void MonitorFunction::measure()
{
    m_ticks = m_minuteTicks = 0;
    m_start = Clock::seconds();
    m_file.add(Pqa2StartTime, timed(m_start));
}

void MonitorFunction::aggregation(const __datagram_aggregation &record)
{
    m_time = record.time;
    m_sums.add(record);
}

void MonitorFunction::tick()
{
    flush();
    if (++m_ticks >= kTenSeconds)
        endTenSeconds();
    if (++m_minuteTicks >= kTenMinutes)
        endTenMinutes();
    if (MonitorInfo::_10min_data_counter > m_links.data.live().monitorTrend.row[MonitorTrendVoltage].size())
        return;
    QV_TRACE("task/unitask") << "data enough";
    m_links.enough();
}

void MonitorFunction::endTenSeconds()
{
    m_ticks = 0;
    const float mean = m_sums.takeTenSeconds();
    QByteArray block = timed(seconds());
    append(block, mean);
    m_file.add(Pqa2MonitorFrequency, block);
    m_judge->frequency(mean, m_time);
}

void MonitorFunction::endTenMinutes()
{
    m_minuteTicks = 0;
    m_judge->meanFrequency(m_sums.frequency());
    endVoltages();
    endUnbalance();
    endHarmonics();
    m_judge->signal(m_sums);
    m_sums.clearTenMinutes();
    m_links.refresh();
}

void MonitorFunction::endVoltages()
{
    QByteArray block = timed(seconds());
    for (int phase = 0; phase < m_judge->setup().phases; ++phase) {
        append(block, m_sums.voltage(phase));
        m_judge->voltage(phase, m_sums.voltage(phase), m_time);
    }
    m_file.add(Pqa2MonitorVoltage, block);
}

void MonitorFunction::endUnbalance()
{
    if (m_judge->setup().phases < kMonitorPhases)
        return;
    QByteArray block = timed(seconds());
    append(block, m_sums.unbalance(0));
    append(block, m_sums.unbalance(1));
    m_file.add(Pqa2MonitorUnbalance, block);
    m_judge->unbalance(m_sums.unbalance(0), m_time);
}

void MonitorFunction::endHarmonics()
{
    const int phases = m_judge->setup().phases;
    QByteArray voltages = timed(seconds());
    QByteArray currents = timed(seconds());
    for (int phase = 0; phase < phases; ++phase) {
        for (int row = 0; row < kMonitorSpectrumRows; ++row) {
            append(voltages, m_sums.spectrumA(phase, row));
            append(currents, m_sums.spectrumB(phase, row));
        }
    }
    m_file.add(Pqa2MonitorHarmonics, voltages);
    m_file.add(Pqa2MonitorSecondSpectrum, currents);
    for (int row = 0; row < kMonitorHarmonics; ++row) {
        for (int phase = 0; phase < phases; ++phase)
            m_judge->harmonic(phase, row, m_sums.spectrumA(phase, row), m_time);
    }
}

// Flicker and events

void MonitorFunction::flicker(const __datagram_flicker &record, const FlickerOutput &out)
{
    m_time = record.time;
    storePlt(out, m_time);
    if (out.shortTerm)
        m_file.add(Pqa2MonitorFlickerShort, timed(seconds()) + out.shortBlock);
    if (out.longTerm)
        m_file.add(Pqa2MonitorFlickerLong, timed(seconds()) + out.longBlock);
    if (out.shortTerm)
        flush(); // on hold there is no tick
}

/// A power cut may take what was written in the last second.
void MonitorFunction::flush()
{
    if (m_monitorFile)
        m_monitorFile->flushBehind();
}

void MonitorFunction::storePlt(const FlickerOutput &out, qint64 time)
{
    for (int phase = 0; phase < kMonitorPhases; ++phase) {
        if (m_judge && (out.longTerm & (1u << phase)))
            m_judge->plt(phase, out.plt[phase], time);
    }
}

void MonitorFunction::closeFlicker()
{
    const FlickerOutput out
        = m_links.flicker.closeIntervals(kNearlyFull, timed(seconds()), m_links.data.live().flicker);
    storePlt(out, m_time);
    // Kept: a block of fewer than three phases is too short to be stored here.
    if (out.shortBlock.size() > kShortClosing)
        m_file.add(Pqa2MonitorFlickerShort, out.shortBlock);
    if (out.longBlock.size() > kShortClosing)
        m_file.add(Pqa2MonitorFlickerLong, out.longBlock);
    if (out.longTerm)
        m_links.refresh(); // of two hours this is the only one, and no other refresh follows
}

void MonitorFunction::transient(const __trans_data &record)
{
    m_file.add(Pqa2Transient, EventBlocks::transient(record));
}

void MonitorFunction::storeEvents(EventChoice choice)
{
    QList<QByteArray> heads;
    EventBlocks::forEach(m_links.data.events(), choice,
                         [&heads](const PQAEventItem &event) { heads.append(EventBlocks::head(event)); });
    m_file.addAll(Pqa2EventHead, heads);
}

void MonitorFunction::stop(Keep)
{
    storeEvents(EventChoice::All);
    closeFlicker();
    m_file.add(Pqa2EndTime, timed(Clock::seconds()));
    m_file.set(nullptr);
    m_monitorFile.reset();
    RecordFolder::ended(m_run);
    m_judge.reset();
    m_sums = MonitorSums();
}
