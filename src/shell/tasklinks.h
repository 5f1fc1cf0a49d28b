#pragma once

#include "pages/uitype.h"
#include "task/abstracttask.h"

#include <QMap>
#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class FunctionPage;
class UniTask;
struct PageRow;

/// What the task and the pages say to each other. It outlives the tasks: a page is taken in once and never
/// disconnected, each new task is tied to this object alone. What a page in front hears goes straight to the one in
/// front, so that it is refreshed once per update however often it was visited. Main thread.
class TaskLinks : public QObject
{
    Q_OBJECT

public:
    explicit TaskLinks(QObject *parent = nullptr) : QObject(parent) { }

    /// Ties a page to the task for good, by what its row says that it hears.
    void take(FunctionPage *page, const PageRow &row);
    /// Ties the device and a new task to each other and to this object.
    void follow(UniTask *task);
    /// Undoes follow: nothing of this task is heard any more, and no page is in front of a run.
    void forget(UniTask *task);

    /// The page of this type hears what the one in front hears, and no other does. Without a page it changes nothing.
    void setFront(_quvera_ui_type type);
    /// The page of this type no longer does, if it did.
    void clearFront(_quvera_ui_type type);

    /// Hands the task to \a request, if there is one and \a page is the one in front.
    void ask(const FunctionPage *page, const std::function<void(UniTask &)> &request) const;

signals:
    // of the task
    void paused();
    void continued();
    void begun(); // a run begins: what was shown is to be forgotten
    void ended();
    void transientsChanged();
    void recordPlanned(qint64 begin, qint64 end); // a recording, ms since 1970
    void recordEnded(); // its files are complete
    // of the pages
    void pauseWanted();
    void runWanted();
    /// A commanded function is to start and to show itself on the page of this type.
    void startWanted(AbstractTask::UniFunction function, _quvera_ui_type page);
    /// A recording is to begin, as the recorder's choices say.
    void recordWanted();
    void recordEndWanted(bool keep);
    /// The run is to end with what its function wrote.
    void endWanted(bool keep);

private:
    /// A page that was taken in.
    struct Listener
    {
        FunctionPage *page;
        _quvera_ui_type type;
        unsigned hears;
    };

    void refresh(void *data);
    void showTime(unsigned kind, const QString &text);

    std::vector<Listener> m_listeners;
    Listener m_front {};
    QMap<unsigned, QString> m_times; // last text of each kind, for the page that comes to the front
    UniTask *m_task = nullptr;
};
