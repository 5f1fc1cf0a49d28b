#include "shell/taskmanage.h"

#include "device/deviceinit.h"
#include "shell/menupage.h"
#include "services/modbuspublisher.h"
#include "shell/quveraglobal.h"
#include "task/unitask.h"
#include "pages/functionpage.h"

namespace {

/// Pages that hold and run the task, in the order in which they are wired.
constexpr _quvera_ui_type kViewPages[] = { UI_SCOPE,   UI_VIF,       UI_DIPS_SWELLS, UI_HARMONICS, UI_POWER,
                                           UI_FLICKER, UI_UNBALANCE, UI_TRANSIENTS,  UI_INRUSH,    UI_MAINS_SIG };

/// Makes or undoes a connection; what is not built is left out.
void link(bool connected, const QObject *sender, const char *signal, const QObject *receiver, const char *slot)
{
    if (!sender || !receiver)
        return;
    if (connected)
        QObject::connect(sender, signal, receiver, slot);
    else
        QObject::disconnect(sender, signal, receiver, slot);
}

} // namespace

TaskManage::TaskManage(QObject *parent) : QObject(parent) { }

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
    g_unitask = new UniTask(this);
    connectTask(true);
    return g_unitask;
}

void TaskManage::connectTask(bool connected)
{
    const auto page = [](_quvera_ui_type type) { return functionPage(type); };

    link(connected, g_unitask, SIGNAL(refreshEventList(void *)), page(UI_DIPS_SWELLS), SLOT(refreshEventList(void *)));
    link(connected, g_unitask, SIGNAL(refreshEventList(void *)), page(UI_INRUSH), SLOT(refreshEventList(void *)));
    link(connected, g_unitask, SIGNAL(recordingStoped()), page(UI_LOGGER), SLOT(recordingStoped()));
    link(connected, g_unitask, SIGNAL(taskStoped()), m_menupage, SLOT(clearSystemStatus()));
    link(connected, g_unitask, SIGNAL(hasEvents()), m_menupage, SLOT(eventsChanged()));
    link(connected, g_unitask, SIGNAL(hasTransEvents()), m_menupage, SLOT(transEventsChanged()));
    link(connected, g_unitask, SIGNAL(hasTransEvents()), page(UI_TRANSIENTS), SLOT(hasTransEvents()));
    for (_quvera_ui_type type : kViewPages)
        link(connected, page(type), SIGNAL(run()), this, SLOT(continueTask()));
    for (_quvera_ui_type type : kViewPages)
        link(connected, page(type), SIGNAL(pause()), this, SLOT(pauseTask()));
    for (_quvera_ui_type type : kViewPages)
        link(connected, g_unitask, SIGNAL(taskPaused()), page(type), SIGNAL(taskPaused()));
    for (_quvera_ui_type type : kViewPages)
        link(connected, g_unitask, SIGNAL(taskContinued()), page(type), SIGNAL(taskContinued()));
    link(connected, m_idevice, SIGNAL(datagramAggregation(QByteArray)), g_unitask,
         SLOT(datagramAggregation(QByteArray)));
    link(connected, m_idevice, SIGNAL(datagramRMS_1_2(QByteArray)), g_unitask, SLOT(datagramRMS_1_2(QByteArray)));
    link(connected, m_idevice, SIGNAL(datagramWave(QByteArray)), g_unitask, SLOT(datagramWave(QByteArray)));
    link(connected, m_idevice, SIGNAL(datagramFlicker(QByteArray)), g_unitask, SLOT(datagramFlicker(QByteArray)));
    link(connected, g_unitask, SIGNAL(buzzerRing(unsigned int)), m_idevice, SLOT(buzzerRing(unsigned int)));
    // A start empties what the pages show.
    for (_quvera_ui_type type : kViewPages)
        link(connected, g_unitask, SIGNAL(init_param()), page(type), SLOT(init_parameter()));
    if (connected)
        ModbusPublisher::follow(g_unitask);
}

void TaskManage::connectDisplay(_quvera_ui_type type)
{
    linkDisplay(type, true);
}

void TaskManage::disconnectDisplay(_quvera_ui_type type)
{
    linkDisplay(type, false);
}

void TaskManage::linkDisplay(_quvera_ui_type type, bool connected)
{
    FunctionPage *page = functionPage(type);
    if (!page || !g_unitask)
        return;
    link(connected, g_unitask, SIGNAL(updateDisplay(void *)), page, SLOT(updateDisplay(void *)));
    link(connected, g_unitask,
         type == UI_LOGGER ? SIGNAL(recordTimeChanged(QString)) : SIGNAL(stopWatchChanged(QString)), page,
         SLOT(stopWatchChanged(QString)));
    switch (type) {
    case UI_HARMONICS:
        link(connected, page, SIGNAL(changeFlag(int)), g_unitask, SLOT(changeFlag(int)));
        break;
    case UI_POWER:
        link(connected, page, SIGNAL(resetEnergy()), g_unitask, SLOT(resetEnergy()));
        break;
    case UI_WAVE:
        link(connected, g_unitask, SIGNAL(taskStoped(uint)), page, SLOT(taskStoped(uint)));
        link(connected, page, SIGNAL(stopTaskWithSave(bool)), this, SLOT(stopTaskWithSave(bool)));
        link(connected, page, SIGNAL(exitTask()), this, SLOT(exitTask()));
        break;
    case UI_LOGGER:
        link(connected, page, SIGNAL(stopRecordWithSave(bool)), this, SLOT(stopRecordWithSave(bool)));
        break;
    case UI_MONITOR:
        link(connected, g_unitask, SIGNAL(refreshEventList(void *)), page, SLOT(refreshEventList(void *)));
        break;
    default:
        break;
    }
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
    connectTask(false);
    g_unitask = nullptr;
    m_curTask = nullptr;
    task->retire(); // it may be the task's own timer or datagram that led here
    ModbusPublisher::clear();
}
