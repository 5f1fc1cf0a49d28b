#pragma once

#include "task/clockstep.h"

#include <QObject>
#include <QString>

class QTimer;

/// Life of one measurement: it waits for its start time, runs, pauses, ends at its end time, keeps a stop watch and
/// opens and closes a recording window inside the run. A stopped task cannot be restarted; a new one must be made.
/// A run or a recording that begins at once keeps its length when a clock is corrected meanwhile; one that is planned
/// for a time keeps that time. Main thread only. Times are seconds since 1970 unless a name says otherwise.
class AbstractTask : public QObject
{
    Q_OBJECT

public:
    /// What the universal task does besides keeping the display records fresh.
    enum UniFunction : int { UniBasic = 1, UniWave = 2, UniLogger = 3, UniMonitor = 4, UniPowerInverter = 5 };

    explicit AbstractTask(QObject *parent = nullptr);
    ~AbstractTask() override;

    virtual QString getTaskName() = 0;
    virtual void save(bool keep) = 0;

public slots:
    virtual void updatedata() = 0;

public:
    bool isTaskRunning() const { return m_status == Running; }
    bool isTaskPaused() const { return m_status == Paused; }
    bool isTaskStoped() const { return m_status == Stopped; }
    bool isRecording() const { return m_recording; }

    int taskType() const { return m_taskType; }
    int taskInterval() const { return m_taskInterval; } // ms
    quint32 startTime() const { return m_startTime; } // by the clock as it stood when the run was planned
    quint32 endTime() const { return m_endTime; }
    qint32 lifeCycle() const { return m_lifeCycle; } // s
    qint64 recordStart() const { return m_recordStart; } // ms
    qint64 recordEnd() const { return m_recordEnd; } // ms
    qint64 recordLife() const { return m_recordLife; } // ms
    bool recordEnabled() const { return m_recordEnabled; }

    /// \a interval in ms; below 200 it becomes 200.
    void setTaskType(int type, int interval);
    /// Plans the run: \a start in s since 1970 (0 or past: ten seconds from now), \a life in s (out of 1 to 86400000:
    /// that). Ignored while the task waits or runs. A run for ten seconds from now takes no notice of a clock that is
    /// corrected later; a planned one begins and ends by the clock.
    void setTaskLifeCycle(unsigned int start, int life);
    /// Plans the recording window, same arguments; kept in ms of the processor's time. A window for ten seconds from
    /// now moves along with the processor's time where this differs from our clock or is set anew.
    void setRecordLifeCycle(unsigned int start, int life);

    void preStartTask();
    void startTask();
    void pauseTask();
    void continueTask();
    void stopTask();
    /// Says nothing any more and is deleted when none of its own calls is under way, at the earliest from the event
    /// loop: a page may end the task from within one of the task's signals.
    void retire();

    void enableRecord() { m_recordEnabled = true; }
    void startRecordTask();
    void stopRecordTask();
    /// Recording clock while the task waits; \a msec is the processor's time of an aggregation datagram.
    void startRecordTimer(unsigned long long msec);
    /// Recording clock while the task runs; \a msec is the processor's time of a wave datagram.
    void recordTimer(unsigned long long msec);

    /// "-hh:mm:ss" for \a seconds below 1, else "hh:mm:ss"; hours without a bound.
    static QString stopWatchText(qint64 seconds);

public slots:
    void requestDSP();
    void baseTimerTimeout();

signals:
    void requestDSPData(int, int);
    void taskStarted();
    void taskStoped();
    void taskStoped(quint32);
    void taskPaused();
    void taskContinued();
    void stopWatchChanged(const QString &);
    void recordTimeChanged(const QString &);
    void init_param();
    void recordingStarted();
    void recordingStoped();

protected:
    /// Stands in each function that the outside calls and that emits: the task is not deleted under it.
    class Call
    {
    public:
        explicit Call(AbstractTask *task) : m_task(task) { ++m_task->m_calls; }
        ~Call();
        Q_DISABLE_COPY(Call)

    private:
        AbstractTask *m_task;
    };

private:
    enum Status { Idle = 0, Waiting = 1, Running = 2, Paused = 3, Stopped = 4 };

    /// s since 1970 on the clock that the run was planned by.
    qint64 runTime() const;
    /// Moves a window that was opened at once by what the processor's time \a msec was set on or back.
    void followRecordClock(qint64 msec);
    /// Common step of both recording clocks. \a endsWindow: the clock closes the window at its end.
    void recordClock(qint64 msec, qint64 &lastShown, bool endsWindow);

    QTimer *m_dataTimer;
    qint32 m_status = Idle;
    qint32 m_taskType = 0;
    qint32 m_taskInterval = 200; // ms
    QTimer *m_baseTimer;
    quint32 m_startTime = 0;
    quint32 m_endTime = 0;
    qint32 m_lifeCycle = 0;
    bool m_atOnce = false; // the run was not planned for a time
    qint64 m_plannedAt = 0; // ms since 1970
    qint64 m_plannedElapsed = 0; // Clock::elapsed() of the same moment
    qint64 m_recordStart = 0;
    qint64 m_recordEnd = 0;
    qint64 m_recordLife = 0;
    bool m_recordAtOnce = false; // the window was not planned for a time
    ClockStep m_recordClock;
    bool m_recordEnabled = false;
    bool m_recording = false;
    int m_calls = 0; // under way
    bool m_retired = false;
};
