#pragma once

#include "task/abstracttask.h"
#include "pages/uitype.h"

#include <QObject>

/// Owns the current task and ties it to the pages and to the link. All operations tolerate that there is none.
class TaskManage : public QObject
{
    Q_OBJECT

public:
    enum __type { Universal = 13 };

    explicit TaskManage(QObject *parent = nullptr);

    AbstractTask *currentTask() const { return m_curTask; }
    int curTaskType() const { return m_curTaskType; }
    QString curTaskName() const;
    /// 0 for no task, else 1.
    int startTask(AbstractTask *task);
    /// A new task, or null when one of this type is there already: the running task is kept.
    AbstractTask *initTask(TaskManage::__type type);
    void stopTask();
    void saveTask(bool keep);

    /// Wires the task to the page in front; a second call adds a second link, which is harmless.
    void connectDisplay(_quvera_ui_type type);
    void disconnectDisplay(_quvera_ui_type type);

    void changeUniFunction(AbstractTask::UniFunction function);
    /// 0 without a task.
    int getUniFunction() const;
    void enableRecord();
    void stopRecord();
    void saveRecord(bool keep);

public slots:
    void exitTaskWithSave(bool keep);
    void stopTaskWithSave(bool keep);
    void stopRecordWithSave(bool keep);
    void exitTask();
    void pauseTask();
    void continueTask();

private:
    void saveAndStopRecord(bool keep);
    void connectTask(bool connected);
    void linkDisplay(_quvera_ui_type type, bool connected);

    qint32 m_curTaskType = 0; // __type of the current task, 0 without one
    AbstractTask *m_curTask = nullptr;
};
