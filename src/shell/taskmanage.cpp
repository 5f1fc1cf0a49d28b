#include "shell/taskmanage.h"

#include "device/deviceinit.h"
#include "shell/quveraglobal.h"
#include "shell/tasklinks.h"
#include "task/unitask.h"

TaskManage::TaskManage(LiveData &data, QObject *parent) : QObject(parent), m_data(data), m_links(new TaskLinks(this))
{
    connect(m_links, &TaskLinks::runWanted, this, &TaskManage::continueTask);
    connect(m_links, &TaskLinks::pauseWanted, this, &TaskManage::pauseTask);
    connect(m_links, &TaskLinks::recordEndWanted, this, &TaskManage::stopRecordWithSave);
    connect(m_links, &TaskLinks::endWanted, this, &TaskManage::stopTaskWithSave);
}

QString TaskManage::curTaskName() const
{
    return m_curTask ? m_curTask->getTaskName() : QStringLiteral(" ");
}

int TaskManage::startTask(AbstractTask *task)
{
    if (!task)
        return 0;
    m_curTask = task;
    m_curTask->preStartTask();
    return 1;
}

AbstractTask *TaskManage::initTask(TaskManage::__type type)
{
    if (type == m_curTaskType)
        return nullptr;
    DeviceInit::startDataStream();
    m_curTaskType = type;
    if (type != Universal)
        return nullptr;
    delete g_unitask;
    g_unitask = new UniTask(m_data, this);
    m_links->follow(g_unitask);
    return g_unitask;
}

void TaskManage::connectDisplay(_quvera_ui_type type)
{
    m_links->setFront(type);
}

void TaskManage::disconnectDisplay(_quvera_ui_type type)
{
    m_links->clearFront(type);
}

void TaskManage::stopTask()
{
    if (m_curTask)
        m_curTask->stopTask();
}

void TaskManage::pauseTask()
{
    if (m_curTask)
        m_curTask->pauseTask();
}

void TaskManage::continueTask()
{
    if (m_curTask)
        m_curTask->continueTask();
}

void TaskManage::saveTask(bool keep)
{
    if (m_curTask)
        m_curTask->save(keep);
}

void TaskManage::changeUniFunction(AbstractTask::UniFunction function)
{
    if (g_unitask)
        g_unitask->initUniFunction(function);
}

int TaskManage::getUniFunction() const
{
    return g_unitask ? g_unitask->getUniFunction() : 0;
}

void TaskManage::enableRecord()
{
    if (!g_unitask)
        return;
    g_unitask->initRecording();
    g_unitask->enableRecord();
    emit m_links->recordPlanned(g_unitask->recordStart(), g_unitask->recordStart() + g_unitask->recordLife());
}

void TaskManage::stopRecord()
{
    if (g_unitask)
        g_unitask->stopRecordTask();
}

void TaskManage::saveRecord(bool keep)
{
    if (g_unitask)
        g_unitask->saveRecord(keep);
}

void TaskManage::saveAndStopRecord(bool keep)
{
    saveTask(keep);
    stopRecord();
    saveRecord(keep);
}

void TaskManage::exitTaskWithSave(bool keep)
{
    saveAndStopRecord(keep);
    exitTask();
}

void TaskManage::stopTaskWithSave(bool keep)
{
    saveAndStopRecord(keep);
    stopTask();
}

void TaskManage::stopRecordWithSave(bool keep)
{
    saveAndStopRecord(keep);
    if (!keep && g_unitask)
        g_unitask->removeEndedRecord(); // it was asked for while the recording ran
}

void TaskManage::exitTask()
{
    // Also without a task: the stream ends.
    DeviceInit::stopDataStream();
    if (!m_curTask)
        return;
    AbstractTask *task = m_curTask;
    m_curTaskType = 0;
    task->stopTask();
    if (m_curTask != task)
        return; // who heard of the stop ended it already
    m_links->forget(g_unitask);
    g_unitask = nullptr;
    m_curTask = nullptr;
    task->retire(); // it may be the task's own timer or datagram that led here
}
