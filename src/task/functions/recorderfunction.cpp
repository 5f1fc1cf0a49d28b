#include "task/functions/recorderfunction.h"

#include "detect/flickerprocessor.h"
#include "detect/powerevents.h"
#include "model/channelset.h"
#include "model/livedata.h"
#include "platform/diskworker.h"
#include "record/pqa2format.h"
#include "settings/recordinfo.h"
#include "task/eventwave.h"
#include "task/functions/eventblocks.h"
#include "task/functions/recordblocks.h"

#include <cstring>
#include <utility>

namespace {

constexpr int kBeatMs = 100;
constexpr int kBeatsToFlush = 40; // a lost supply takes no more than the last 5 s along, those of the flush included
constexpr int kTenSeconds = 10000; // ms
constexpr int kMoreThanInFlicker = 16; // Kept: bytes; the last severities are stored where all three phases have one

int intervalSeconds()
{
    return RecordInfo::m_record_interval[RecordInfo::m_interval_index];
}

QByteArray timeHead(qint64 time)
{
    return RecordBlocks::payload(time, nullptr, 0);
}

} // namespace

RecorderFunction::RecorderFunction(RecorderLinks links) : m_links(std::move(links))
{
    m_beat.setInterval(kBeatMs);
    QObject::connect(&m_beat, &QTimer::timeout, &m_beat, [this] { beat(); });
}

void RecorderFunction::start()
{
    m_setUp = m_links.setUp();
    m_items = RecordInfo::m_recordItems;
    RecordInfo::initHarmMaxNumb(m_setUp.nominalFrequency);
    m_time = Clock::msecs();
    m_links.flicker.clear(m_links.data.live().flicker);
    std::memset(m_energy, 0, sizeof m_energy);
    m_energyMeter.resume();
    m_statistics.clear();
    m_tenSeconds.clear();
    m_interval.begin(intervalLimit(1000 * intervalSeconds(), m_setUp.frequency, m_setUp.nominalFrequency));
    m_tenSecondClock.begin(intervalLimit(kTenSeconds, m_setUp.frequency, m_setUp.nominalFrequency));
    m_watchdog.begin(intervalSeconds());

    m_files = std::make_shared<RecordFiles>(m_links.device);
    if (m_folder.create(*RecordInfo::m_record_file))
        m_files->open(m_folder, m_items, Clock::seconds());
    m_run = m_folder.name();
    storeEvents(EventChoice::Finished);
    m_beats = 0;
    m_beat.start();
}

// What is measured

void RecorderFunction::aggregation(const __datagram_aggregation &record)
{
    m_time = record.time;
    m_energyMeter.count(record.power, m_energy);
    statisticAggregation(record);
}

void RecorderFunction::lastAggregation(const __datagram_aggregation &record)
{
    if (m_statistics.count() > 0)
        aggregation(record);
}

void RecorderFunction::statisticAggregation(const __datagram_aggregation &record)
{
    m_statistics.take(record, m_energy);
    m_tenSeconds.take(record.frequency);
    if (m_tenSecondClock.take(record.time)) {
        write10sFreq2PQA2File();
        m_tenSeconds.clear();
        m_tenSecondClock.setLimit(intervalLimit(kTenSeconds, record.frequency, m_setUp.nominalFrequency));
    }
    if (m_interval.take(record.time)) {
        m_watchdog.restart();
        writePQA2File();
    }
}

void RecorderFunction::write10sFreq2PQA2File()
{
    if (!(m_items & RecordInfo::Frequency10s))
        return;
    const float mean = m_tenSeconds.mean();
    const auto add = [this](quint32 type, float value) {
        m_files->add(CommonFile, type, RecordBlocks::payload(m_time, &value, int(sizeof value)));
    };
    add(Pqa2Frequency10s, mean);
    add(Pqa2Frequency10sMaximum, m_tenSeconds.maximum);
    add(Pqa2Frequency10sMinimum, m_tenSeconds.minimum);
}

void RecorderFunction::writePQA2File()
{
    m_statistics.finish();
    if (m_setUp.wiring) {
        RecordBlocks::storeInterval(
            m_time, m_items, m_statistics, *m_setUp.wiring, RecordInfo::m_harm_max_numb,
            [this](RecordFile file, quint32 type, const QByteArray &payload) { m_files->add(file, type, payload); });
    }
    m_statistics.clear();
}

void RecorderFunction::flicker(const __datagram_flicker &record, const FlickerOutput &out)
{
    m_time = record.time;
    if (!(m_items & RecordInfo::Flicker))
        return;
    if (out.shortTerm)
        m_files->add(CommonFile, Pqa2FlickerShort, timeHead(m_time) + out.shortBlock);
    if (out.longTerm)
        m_files->add(CommonFile, Pqa2FlickerLong, timeHead(m_time) + out.longBlock);
}

// What happens

void RecorderFunction::transient(const __trans_data &record)
{
    m_files->add(CommonFile, Pqa2Transient, EventBlocks::transient(record));
}

void RecorderFunction::eventComplete(const PQAEventItem &event)
{
    m_files->add(CommonFile, Pqa2EventCurves, PowerEvents::toRawData(event));
}

void RecorderFunction::eventWave(const EventWave &wave, const ChannelSet &wiring)
{
    if (m_files->isOpen(CommonFile))
        m_files->add(CommonFile, Pqa2EventWave, EventWaveCutter::block(wave, wiring.mask));
}

void RecorderFunction::storeEvents(EventChoice choice)
{
    if (!m_files || !m_files->isOpen(CommonFile))
        return;
    const bool heads = choice == EventChoice::All;
    EventBlocks::forEach(m_links.data.events(), choice, [this, heads](const PQAEventItem &event) {
        if (heads)
            m_waiting.append(Pqa2EventHead, [head = EventBlocks::head(event)] { return head; });
        else
            m_waiting.append(Pqa2EventCurves, [event] { return PowerEvents::toRawData(event); });
    });
    if (choice != EventChoice::Finished)
        return;
    for (const __trans_data &record : m_links.data.transients())
        m_waiting.append(Pqa2Transient, [block = EventBlocks::transient(record)] { return block; });
}

void RecorderFunction::beat()
{
    m_waiting.storeSlice([this](quint32 type, const QByteArray &block) { m_files->add(CommonFile, type, block); });
    if (++m_beats % kBeatsToFlush == 0)
        m_files->flushBehind();
    if (!m_files->isOpen(CommonFile))
        return;
    const RecordWatchdog::Sign sign = m_watchdog.check();
    if (sign != RecordWatchdog::Nothing)
        recordTimeout(sign);
}

void RecorderFunction::recordTimeout(RecordWatchdog::Sign sign)
{
    m_files->log("Lost some data!");
    if (sign == RecordWatchdog::Interrupted)
        m_files->log("Communication Interrupted!");
}

// The end

void RecorderFunction::stop(Keep)
{
    m_beat.stop();
    m_watchdog.stop();
    if (m_statistics.count() > 0)
        writePQA2File();
    const bool eventsWait = !m_waiting.isEmpty(); // those of before the start
    storeEvents(EventChoice::Unfinished);
    appendEnd();
    const auto close = [name = m_run, files = std::exchange(m_files, nullptr),
                        waiting = std::make_shared<WaitingBlocks>(std::exchange(m_waiting, WaitingBlocks()))] {
        waiting->storeAll([&files](quint32 type, const QByteArray &block) { files->add(CommonFile, type, block); });
        files->close();
        RecordFolder::ended(name);
    };
    if (eventsWait)
        DiskWorker::slow().run(close);
    else
        close();
}

/// The severities of the last interval, and the time of the end.
void RecorderFunction::appendEnd()
{
    const auto append = [this](quint32 type, const QByteArray &block) {
        if (m_items & RecordInfo::Flicker && block.size() > kMoreThanInFlicker)
            m_waiting.append(type, [block] { return block; });
    };
    const FlickerOutput last
        = m_links.flicker.closeIntervals(kNearlyFull, timeHead(m_time), m_links.data.live().flicker);
    append(Pqa2FlickerShort, last.shortBlock);
    append(Pqa2FlickerLong, last.longBlock);
    const quint32 end = Clock::seconds();
    m_waiting.append(Pqa2EndTime, [end] { return QByteArray(reinterpret_cast<const char *>(&end), int(sizeof end)); });
}
