#pragma once

#include "task/energymeter.h"
#include "task/functions/recordclocks.h"
#include "task/functions/recordfiles.h"
#include "task/functions/recordstatistics.h"
#include "task/functions/taskfunction.h"
#include "task/functions/waitingblocks.h"
#include "task/recordfolder.h"

#include <QTimer>

#include <functional>
#include <memory>

class FlickerProcessor;
class LiveData;

/// The measurement as it stands when a recording begins.
struct RecorderSetUp
{
    const ChannelSet *wiring; // null: no interval is stored
    double nominalFrequency; // Hz
    float frequency; // Hz, measured
};

/// What the recorder needs of the task that it runs in. What is referred to outlives it.
struct RecorderLinks
{
    LiveData &data;
    FlickerProcessor &flicker;
    std::function<RecorderSetUp()> setUp; // asked at each start
    RecordFiles::MakeDevice device = {}; // makes what lies below each file
};

/// The recorder: mean, maximum and minimum of the chosen items of every interval, events with their curves and
/// waveforms, transients and flicker severities, in the files of one folder (docs/formats/recorder.md). It runs inside
/// basic measuring, while the recording window is open.
class RecorderFunction : public TaskFunction
{
public:
    static constexpr int kNearlyFull = 29499; // means, above which the last flicker interval counts

    explicit RecorderFunction(RecorderLinks links);

    /// The folder of the recording: it is held until it is released or removed, also behind the end of the recording.
    RecordFolder &folder() { return m_folder; }

    /// Begins a folder and files by the user's choice (RecordInfo), which counts until the end, and flicker anew.
    void start() override;
    void aggregation(const __datagram_aggregation &record) override;
    /// One that came just before the end: it belongs to the interval that has begun, and begins none.
    void lastAggregation(const __datagram_aggregation &record);
    void wave(const __datagram_wave &record) override { m_time = record.time; }
    void flicker(const __datagram_flicker &record, const FlickerOutput &out) override;
    void transient(const __trans_data &record) override;
    void eventComplete(const PQAEventItem &event) override;
    void eventWave(const EventWave &wave, const ChannelSet &wiring) override;
    /// All: their heads. Else with curves; with the finished ones go the transients. They are as they stand now and
    /// come into the file a piece at a time.
    void storeEvents(EventChoice choice) override;
    bool refused() const override { return m_files && m_files->refuses(); }
    /// Stores what is there of the interval, the events that go on, the severities of flicker intervals that are nearly
    /// full, and the end.
    void stop(Keep keep) override;

    /// A tenth of a second has passed: its own timer calls it while it runs.
    void beat();

private:
    void statisticAggregation(const __datagram_aggregation &record);
    void write10sFreq2PQA2File();
    void writePQA2File();
    /// No interval has ended in the time of three.
    void recordTimeout(RecordWatchdog::Sign sign);
    void appendEnd();

    const RecorderLinks m_links;

    // Of the recording
    RecorderSetUp m_setUp = {};
    quint32 m_items = 0; // RecordInfo::Item
    RecordFolder m_folder;
    QString m_run; // name of the folder that is written into
    std::shared_ptr<RecordFiles> m_files; // null: no recording
    WaitingBlocks m_waiting; // for the common file
    qint64 m_time = 0; // of the last datagram, ms since 1970
    EnergyMeter m_energyMeter;
    EnergyRow m_energy[kChannels] = {}; // counted since the start

    // Of the interval
    RecordStatistics m_statistics;
    IntervalClock m_interval;
    FrequencyWindow m_tenSeconds;
    IntervalClock m_tenSecondClock;

    QTimer m_beat;
    int m_beats = 0;
    RecordWatchdog m_watchdog;
};
