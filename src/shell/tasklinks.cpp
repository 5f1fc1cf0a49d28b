#include "shell/tasklinks.h"

#include "device/idevice.h"
#include "pages/functionpage.h"
#include "services/modbuspublisher.h"
#include "shell/pagetable.h"
#include "task/unitask.h"

#include <algorithm>

void TaskLinks::take(FunctionPage *page, const PageRow &row)
{
    m_listeners.push_back({ page, row.type, row.hears });
    if (row.hears & Hears::Hold) {
        connect(page, &LivePage::run, this, &TaskLinks::runWanted);
        connect(page, &LivePage::pause, this, &TaskLinks::pauseWanted);
        connect(this, &TaskLinks::paused, page, &LivePage::setPause);
        connect(this, &TaskLinks::continued, page, &LivePage::setContinue);
    }
    if (row.hears & Hears::Begin)
        connect(this, &TaskLinks::begun, page, &LivePage::init_parameter);
}

void TaskLinks::follow(UniTask *task)
{
    m_task = task;
    connect(task, &UniTask::hasTransEvents, this, &TaskLinks::transientsChanged);
    connect(task, qOverload<>(&AbstractTask::taskStoped), this, &TaskLinks::ended);
    connect(task, &AbstractTask::recordingStoped, this, &TaskLinks::recordEnded);
    connect(task, &AbstractTask::taskPaused, this, &TaskLinks::paused);
    connect(task, &AbstractTask::taskContinued, this, &TaskLinks::continued);
    connect(task, &UniTask::updateDisplay, this, &TaskLinks::refresh);
    connect(task, &AbstractTask::stopWatchChanged, this,
            [this](const QString &text) { showTime(Hears::StopWatch, text); });
    connect(task, &AbstractTask::recordTimeChanged, this,
            [this](const QString &text) { showTime(Hears::RecordTime, text); });
    connect(m_idevice, &IDevice::datagramAggregation, task, &UniTask::datagramAggregation);
    connect(m_idevice, &IDevice::datagramRMS_1_2, task, &UniTask::datagramRMS_1_2);
    connect(m_idevice, &IDevice::datagramWave, task, &UniTask::datagramWave);
    connect(m_idevice, &IDevice::datagramFlicker, task, &UniTask::datagramFlicker);
    connect(task, &UniTask::buzzerRing, m_idevice, &IDevice::buzzerRing);
    // A start empties what the pages show.
    connect(task, &AbstractTask::init_param, this, &TaskLinks::begun);
    ModbusPublisher::follow(task);
}

void TaskLinks::forget(UniTask *task)
{
    m_task = nullptr;
    m_front = {};
    m_times.clear();
    m_idevice->disconnect(task);
    task->disconnect(this);
    task->disconnect(m_idevice);
    ModbusPublisher::clear();
}

void TaskLinks::setFront(_quvera_ui_type type)
{
    const auto found = std::find_if(m_listeners.begin(), m_listeners.end(),
                                    [type](const Listener &listener) { return listener.type == type; });
    if (found == m_listeners.end())
        return;
    m_front = *found;
    const unsigned kind = m_front.hears & (Hears::StopWatch | Hears::RecordTime);
    if (m_times.contains(kind))
        m_front.page->stopWatchChanged(m_times.value(kind));
}

void TaskLinks::clearFront(_quvera_ui_type type)
{
    if (m_front.page && m_front.type == type)
        m_front = {};
}

void TaskLinks::ask(const FunctionPage *page, const std::function<void(UniTask &)> &request) const
{
    if (m_task && page == m_front.page)
        request(*m_task);
}

void TaskLinks::refresh(void *data)
{
    if (m_front.hears & Hears::Refresh)
        m_front.page->updateDisplay(data);
}

void TaskLinks::showTime(unsigned kind, const QString &text)
{
    m_times[kind] = text;
    if (m_front.hears & kind)
        m_front.page->stopWatchChanged(text);
}
