#pragma once

#include "model/eventselection.h"

#include <QObject>

#include <functional>

class QWidget;

/// Keeps what a page shows of the event list up to date. A change costs the same however many events there are, and a
/// page that is not visible only notes that there was one: it catches up when it is shown. While the list is held the
/// page stays as it is, and it catches up when the list is released. Main thread.
class EventFollower : public QObject
{
public:
    using Show = std::function<void(const EventSelection &events)>;

    /// \a show brings the events of \a kinds onto \a page. Page and list outlive the follower.
    EventFollower(QWidget *page, const EventList &list, EventKinds kinds, Show show);

    /// Looks through the list anew and shows it, visible or not.
    void catchUp();
    /// The page's events as they stand now.
    const EventSelection &events();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void takeChange(int place);
    void takeAll();

    QWidget *m_page;
    EventSelection m_events;
    Show m_show;
    const EventList &m_list;
    bool m_stale; // there is something that the page does not show
};
