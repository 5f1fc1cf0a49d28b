#pragma once

#include "task/abstracttask.h"
#include "pages/uitype.h"

#include <QObject>

class LiveData;
class TaskLinks;

/// Owns the current task and, in its links, what ties it to the pages and to the device. All operations tolerate that
/// there is none.
class TaskManage : public QObject
{
    Q_OBJECT

public:
    enum __type { Universal = 13 };

    /// \a data, which each task writes, outlives this.
    explicit TaskManage(LiveData &data, QObject *parent = nullptr);

    LiveData &data() { return m_data; }

    AbstractTask *currentTask() const { return m_curTask; }
    int curTaskType() const { return m_curTaskType; }
    QString curTaskName() const;
    /// 0 for no task, else 1.
    int startTask(AbstractTask *task);
    /// A new task, or null when one of this type is there already: the running task is kept.
    AbstractTask *initTask(TaskManage::__type type);
    void stopTask();
    void saveTask(bool keep);

    /// What the task and the pages say to each other; made with this object.
    TaskLinks &links() const { return *m_links; }
    /// The page of this type is in front: it alone is refreshed.
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

    LiveData &m_data;
    TaskLinks *m_links;
    qint32 m_curTaskType = 0; // __type of the current task, 0 without one
    AbstractTask *m_curTask = nullptr;
};
