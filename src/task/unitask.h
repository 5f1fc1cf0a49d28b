#pragma once

#include "model/datagramrecords.h"
#include "settings/derived.h"
#include "task/abstracttask.h"
#include "task/eventwave.h"
#include "task/rmsring.h"

#include <QByteArray>
#include <QList>

#include <memory>
#include <sys/time.h>

class FlickerProcessor;
class LiveData;
struct DisplayRecords;
class Pqa2FF;
class PowerEvents;
struct PQAEventItem;
struct __trans_data;

/// The one concrete task: it receives every datagram, decodes it, fills the live records and feeds the active function.
/// Datagrams are queued calls on the main thread, so its slots, timers and key handling never overlap.
class UniTask : public AbstractTask
{
    Q_OBJECT

public:
    /// \a data, whose live records the task writes, outlives it.
    explicit UniTask(LiveData &data, QObject *parent = nullptr);
    ~UniTask() override;

    QString getTaskName() override { return QStringLiteral("Power Quality"); }
    void save(bool keep) override;
    /// Ends the recording's files; without a recorder there are none.
    void saveRecord(bool keep);
    void initRecording();

    /// Chooses the function and plans the run for it. Values out of 1 to 5 only clear the event list.
    void initUniFunction(AbstractTask::UniFunction function);
    AbstractTask::UniFunction getUniFunction() const { return m_function; }
    int channels() const { return m_channels; }
    int energySeconds() const { return m_energySeconds; }

    const __datagram_aggregation &aggregation() const { return *m_aggregation; }
    const __datagram_rms &halfCycles() const { return *m_rms; }
    const __datagram_wave &wave() const { return *m_wave; }
    /// The records that it writes, whatever the pages show.
    const DisplayRecords &live() const;

    /// Heads of all events to the files that are open.
    void saveAllEvents();
    /// Events that ended, with their curves, and the transients captured so far.
    void saveFinishedEvents();
    /// Events still running.
    void saveUnFinishedEvents();

    /// Files that the recording functions open; null or closed: nothing is stored.
    void setFiles(Pqa2FF *common, Pqa2FF *monitor);

public slots:
    void updatedata() override;
    void datagramAggregation(const QByteArray &bytes);
    void datagramRMS_1_2(const QByteArray &bytes);
    void datagramWave(const QByteArray &bytes);
    void datagramFlicker(const QByteArray &bytes);
    /// Reference of the harmonics view: 1 gives percent of the fundamental, anything else percent of r.m.s.
    void changeFlag(int value);
    void resetEnergy();
    void startBaseTimer();
    void stopBaseTimer();
    void eventFinishedWithRMS(const PQAEventItem &event);
    /// The waveform around \a time (ms since 1970) is wanted for the recorder.
    void changeEventsWave(long long time);

signals:
    void updateDisplay(void *);
    void buzzerRing(unsigned int);
    void hasTransEvents();
    // What the plant's master may read: told as it arrives, the records are valid during the call.
    void aggregationTaken(const __datagram_aggregation *record);
    void waveTaken(const __datagram_wave *record);
    void transientTaken(const __trans_data *record);
    void flickerTaken();
    void eventTableChanged(const QByteArray &table);

private:
    void initLimitsData();
    bool isLive() const { return isTaskRunning() || isTaskPaused(); }

    // unitask.cpp
    void integrateEnergy();
    void feedDisplayRecords(float signedFrequency);
    void appendSecondTrends();
    void initPowerInverterData();
    void beginRecords();
    void holdRecords();
    void continueRecords();
    void copyScope();
    // unitask_events.cpp
    void pushHalfCycles();
    void checkHalfCycles();
    void drainRings();
    void saveEvents(bool finished);
    // unitask_wave.cpp
    void captureTransient();
    void fillEventWaves();
    static QByteArray transientBlock(const __trans_data &record);

    LiveData &m_data;
    const ScaleTable m_scales; // of aggregations: as the settings stood when the task was made
    std::unique_ptr<__datagram_aggregation> m_aggregation;
    std::unique_ptr<__datagram_rms> m_rms;
    std::unique_ptr<__datagram_wave> m_wave;
    std::unique_ptr<__datagram_flicker> m_flicker;
    PowerEvents *m_events = nullptr; // child of this task
    std::unique_ptr<FlickerProcessor> m_flickerProcessor;
    Pqa2FF *m_commonFile = nullptr;
    Pqa2FF *m_monitorFile = nullptr;

    QList<EventWave> m_eventWaves; // oldest first
    RmsRing m_rings[2 * kChannels]; // voltages, then currents
    int m_dipTrendLimit = 0; // values
    int m_inrushTrendLimit = 0; // values

    qint32 m_channels = 3; // measured phases
    AbstractTask::UniFunction m_function = UniBasic;
    timeval m_lastTime = {}; // local time of the last aggregation datagram
    qint32 m_energySeconds = 0; // whole seconds of energy counting
    qint64 m_energyMicroseconds = 0; // rest below a second
    qint32 m_trendSecond = 0; // m_energySeconds at the last trend point
    bool m_aggregationFresh = false;
    qint32 m_transientNumber = 0;
};
