#pragma once

#include "model/datagramrecords.h"
#include "settings/derived.h"
#include "task/abstracttask.h"
#include "task/energymeter.h"
#include "task/eventwave.h"
#include "task/functions/inverterfunction.h"
#include "task/functions/loggerfunction.h"
#include "task/functions/monitorfunction.h"
#include "task/functions/recorderfunction.h"
#include "task/functions/secondtrends.h"
#include "task/functions/wavefunction.h"
#include "task/halfcycletrends.h"

#include <QByteArray>
#include <QTimer>

#include <memory>
#include <vector>

class FlickerProcessor;
class LiveData;
class PowerEvents;

/// The one concrete task: it receives every datagram, decodes it, keeps the live records fresh and hands on what
/// arrived to the functions that run (task/functions/). Datagrams are queued calls on the main thread, so its slots,
/// timers and key handling never overlap.
class UniTask : public AbstractTask
{
    Q_OBJECT

public:
    /// \a data, whose live records and lists the task writes, outlives it.
    explicit UniTask(LiveData &data, QObject *parent = nullptr);
    ~UniTask() override;

    QString getTaskName() override { return tr("Power Quality"); }
    /// Ends what runs beside basic measuring.
    void save(bool keep) override;
    /// Plans a recording by the user's choice (RecordInfo).
    void initRecording();
    /// What becomes of the recording that ended: its folder stays, or goes with all that is in it.
    void saveRecord(bool keep);
    /// Takes away the last recording when it ended by itself, and no other was planned since: one answers a question
    /// about it that was asked while it ran.
    void removeEndedRecord();

    /// Chooses the function and plans the run for it. Values out of 1 to 5 only clear the event list.
    void initUniFunction(AbstractTask::UniFunction function);
    AbstractTask::UniFunction getUniFunction() const { return m_function; }
    int channels() const { return m_channels; }
    int energySeconds() const { return m_energy.seconds(); }

    const __datagram_aggregation &aggregation() const { return *m_aggregation; }
    const __datagram_rms &halfCycles() const { return *m_rms; }
    const __datagram_wave &wave() const { return *m_wave; }
    /// What calls tick(); who makes time himself stops it.
    QTimer &secondTimer() { return m_secondTimer; }
    /// The records that it writes, whatever the pages show.
    const DisplayRecords &live() const;

    /// Runs while basic measuring runs and the recording window is open.
    RecorderFunction &recorder() { return m_recorder; }
    MonitorFunction &monitor() { return m_monitor; }
    LoggerFunction &logger() { return m_logger; }
    /// Lets \a function run from now to the end of the run, beside those that run already; it outlives the task. One
    /// that runs goes on undisturbed.
    void begin(TaskFunction *function);
    /// Ends a function; harmless for one that does not run.
    void end(TaskFunction *function, Keep keep);
    /// The events so far go to the files that are open.
    void storeEvents(EventChoice choice);

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
    /// A second has passed: the task's own timer calls it while a measurement runs.
    void tick();
    /// The waveform around \a time (ms since 1970) is wanted.
    void changeEventsWave(long long time) { m_eventWaves.want(time); }

signals:
    void updateDisplay(void *);
    void buzzerRing(unsigned int);
    void hasTransEvents();
    // What the plant's master may read: emitted as it arrives, the records are valid during the call.
    void aggregationTaken(const __datagram_aggregation *record);
    void waveTaken(const __datagram_wave *record);
    void transientTaken(const __trans_data *record);
    void flickerTaken();
    void eventTableChanged(const QByteArray &table);

private:
    bool isLive() const { return isTaskRunning() || isTaskPaused(); }
    void connectDetector();
    void connectStates();

    // Functions
    /// The one that \a function runs beside the live records; null: none.
    TaskFunction *functionOf(AbstractTask::UniFunction function);
    bool isRunning(const TaskFunction *function) const;
    void beginFunctions();
    void endFunctions(Keep keep);
    /// Calls \a hear of each function that runs. One may end itself, the others or the task meanwhile.
    template <typename Hear> void tell(const Hear &hear);

    // Recording
    RecorderSetUp recorderSetUp() const;
    void startRecording();
    void stopRecording();
    void clearRecording();
    void driveRecording();

    // Live records
    void beginRecords();
    void holdRecords();
    void feedDisplayRecords(float signedFrequency);
    void copyScope();

    // Datagrams
    void checkHalfCycles();
    void tellAggregation();
    void captureTransient();

    LiveData &m_data;
    const ScaleTable m_scales; // of aggregations: as the settings stood when the task was made
    std::unique_ptr<__datagram_aggregation> m_aggregation;
    std::unique_ptr<__datagram_rms> m_rms;
    std::unique_ptr<__datagram_wave> m_wave;
    std::unique_ptr<__datagram_flicker> m_flicker;
    PowerEvents *m_events = nullptr; // child of this task
    std::unique_ptr<FlickerProcessor> m_flickerProcessor;
    HalfCycleTrends m_halfCycleTrends;
    EnergyMeter m_energy;
    EventWaveQueue m_eventWaves;

    SecondTrends m_trends;
    InverterFunction m_inverter;
    MonitorFunction m_monitor;
    RecorderFunction m_recorder;
    RecordFolder m_ended; // of the recording that ended by itself
    WaveFunction m_capture;
    LoggerFunction m_logger;
    std::vector<TaskFunction *> m_running;
    QTimer m_secondTimer;

    qint32 m_channels = 3; // measured phases
    AbstractTask::UniFunction m_function = UniBasic;
    bool m_servesFlicker = true; // the function's plan
    bool m_aggregationFresh = false; // one came that no waveform followed yet
    qint32 m_toldSecond = 0; // of the energy counting
    qint32 m_transientNumber = 0;
};
