#include "task/abstracttask.h"

#include "platform/clock.h"

#include <QTimer>

namespace {

constexpr int kDataInterval = 500; // ms between display refreshes
constexpr int kBaseInterval = 200; // ms between looks at the clock
constexpr int kMinRequestInterval = 200;

/// Longest window, s. Kept: the figure reads like a day in milliseconds.
constexpr int kMaxLife = 86400000;
constexpr int kStartDelay = 10; // s, when no start or a past one was asked for

int boundedLife(int life)
{
    return life >= 1 && life <= kMaxLife ? life : kMaxLife;
}

} // namespace

AbstractTask::AbstractTask(QObject *parent) : QObject(parent), m_dataTimer(new QTimer), m_baseTimer(new QTimer)
{
    m_dataTimer->setInterval(kDataInterval);
    m_baseTimer->setInterval(kBaseInterval);
    m_baseTimer->setTimerType(Qt::PreciseTimer);
    connect(m_dataTimer, &QTimer::timeout, this, &AbstractTask::updatedata);
    connect(m_baseTimer, &QTimer::timeout, this, &AbstractTask::baseTimerTimeout);
}

AbstractTask::~AbstractTask()
{
    disconnect(m_dataTimer, nullptr, this, nullptr);
    disconnect(m_baseTimer, nullptr, this, nullptr);
    delete m_dataTimer;
    delete m_baseTimer;
}

void AbstractTask::setTaskType(int type, int interval)
{
    m_taskType = type;
    m_taskInterval = qMax(interval, kMinRequestInterval);
}

void AbstractTask::setTaskLifeCycle(unsigned int start, int life)
{
    if (m_status == Waiting || m_status == Running)
        return;

    m_plannedAt = Clock::msecs();
    m_plannedElapsed = Clock::elapsed();
    const quint32 now = quint32(m_plannedAt / 1000);
    m_atOnce = start == 0 || start < now;
    m_startTime = m_atOnce ? now + kStartDelay : start;
    m_lifeCycle = boundedLife(life);
    m_endTime = m_startTime + quint32(m_lifeCycle);
}

void AbstractTask::setRecordLifeCycle(unsigned int start, int life)
{
    const qint64 time = Clock::msecs();
    const qint64 now = time / 1000 * 1000;
    const qint64 wanted = qint64(start) * 1000;
    m_recordAtOnce = start == 0 || wanted < now;
    m_recordClock.begin(time, Clock::elapsed());
    m_recordStart = m_recordAtOnce ? now + kStartDelay * 1000 : wanted;
    m_recordLife = qint64(boundedLife(life)) * 1000;
    m_recordEnd = m_recordStart + m_recordLife + 100;
    emit recordTimeChanged(stopWatchText(0));
}

void AbstractTask::preStartTask()
{
    const Call call(this);
    m_status = Waiting;
    m_baseTimer->start();
    requestDSP();
    emit init_param();
    emit stopWatchChanged(QStringLiteral("--:--:--"));
}

void AbstractTask::requestDSP()
{
    emit requestDSPData(m_taskType, 150);
}

void AbstractTask::startTask()
{
    const Call call(this);
    if (m_status == Running || m_status == Stopped)
        return;
    m_dataTimer->start();
    m_status = Running;
    emit taskStarted();
}

void AbstractTask::pauseTask()
{
    if (m_status != Running)
        return;
    m_status = Paused;
    emit taskPaused();
}

void AbstractTask::continueTask()
{
    if (m_status != Paused)
        return;
    m_status = Running;
    emit taskContinued();
}

AbstractTask::Call::~Call()
{
    if (--m_task->m_calls == 0 && m_task->m_retired)
        m_task->deleteLater();
}

void AbstractTask::retire()
{
    const Call call(this);
    m_retired = true;
    blockSignals(true);
}

void AbstractTask::stopTask()
{
    const Call call(this);
    if (m_status == Stopped)
        return;
    if (m_recordEnabled)
        stopRecordTask();
    emit requestDSPData(0, 100);
    m_baseTimer->stop();
    m_dataTimer->stop();
    m_status = Stopped;
    emit taskStoped();
    emit taskStoped(quint32(qMax(runTime() - qint64(m_startTime), qint64(0))));
}

QString AbstractTask::stopWatchText(qint64 seconds)
{
    const bool countsDown = seconds < 1;
    const qint64 s = countsDown ? -seconds : seconds;
    const QString pattern = countsDown ? QStringLiteral("-%1:%2:%3") : QStringLiteral("%1:%2:%3");
    const QLatin1Char zero('0');
    return pattern.arg(s / 3600, 2, 10, zero).arg(s / 60 % 60, 2, 10, zero).arg(s % 60, 2, 10, zero);
}

qint64 AbstractTask::runTime() const
{
    const qint64 now = m_atOnce ? m_plannedAt + Clock::elapsed() - m_plannedElapsed : Clock::msecs();
    return now / 1000;
}

void AbstractTask::baseTimerTimeout()
{
    const Call call(this);
    // Shared by all tasks and outliving each: a new task that starts at the same reading shows nothing new.
    static qint64 lastShown = 0;

    const qint64 now = runTime();
    if (m_status == Waiting && now >= m_startTime)
        startTask();

    qint64 elapsed;
    if (now >= m_endTime) {
        elapsed = m_lifeCycle;
        stopTask();
    } else {
        elapsed = now - qint64(m_startTime);
    }
    if (elapsed == lastShown)
        return;
    lastShown = elapsed;
    emit stopWatchChanged(stopWatchText(elapsed));
}

void AbstractTask::startRecordTask()
{
    m_recording = true;
    emit recordingStarted();
}

void AbstractTask::stopRecordTask()
{
    m_recording = false;
    emit recordingStoped();
    m_recordEnabled = false;
}

void AbstractTask::followRecordClock(qint64 msec)
{
    if (!m_recordAtOnce)
        return;
    const qint64 step = m_recordClock.take(msec, Clock::elapsed());
    m_recordStart = qint64(quint64(m_recordStart) + quint64(step));
    m_recordEnd = qint64(quint64(m_recordEnd) + quint64(step));
}

void AbstractTask::recordClock(qint64 msec, qint64 &lastShown, bool endsWindow)
{
    if (!m_recordEnabled)
        return;
    followRecordClock(msec);

    qint64 elapsed;
    const bool beforeStart = !m_recording && msec < m_recordStart;
    if (!m_recording && !beforeStart) {
        startRecordTask();
        startTask();
    }
    if (!beforeStart && msec >= m_recordEnd) {
        if (endsWindow)
            stopRecordTask();
        elapsed = m_recordLife / 1000;
    } else {
        elapsed = msec / 1000 + m_recordStart / -1000;
    }
    if (elapsed == lastShown)
        return;
    lastShown = elapsed;
    emit recordTimeChanged(stopWatchText(elapsed));
}

void AbstractTask::startRecordTimer(unsigned long long msec)
{
    static qint64 lastShown = 0;
    recordClock(qint64(msec), lastShown, false);
}

void AbstractTask::recordTimer(unsigned long long msec)
{
    static qint64 lastShown = 0;
    recordClock(qint64(msec), lastShown, true);
}
