#include "pages/eventfollower.h"

#include <QEvent>
#include <QWidget>

EventFollower::EventFollower(QWidget *page, const EventList &list, EventKinds kinds, Show show)
    : m_page(page), m_events(list, kinds), m_show(std::move(show)), m_list(list), m_stale(!list.isEmpty())
{
    m_page->installEventFilter(this);
    connect(&list, &EventList::changed, this, &EventFollower::takeChange);
    connect(&list, &EventList::cleared, this, &EventFollower::takeAll);
    connect(&list, &EventList::released, this, &EventFollower::takeAll);
}

void EventFollower::catchUp()
{
    m_stale = false;
    m_events.refresh();
    m_show(m_events);
}

const EventSelection &EventFollower::events()
{
    if (m_stale)
        catchUp();
    return m_events;
}

void EventFollower::takeChange(int place)
{
    if (m_list.isHeld())
        return; // its release is heard
    if (m_stale || !m_page->isVisible())
        m_stale = true;
    else if (m_events.update(place))
        m_show(m_events);
}

void EventFollower::takeAll()
{
    m_stale = true;
    if (m_page->isVisible())
        catchUp();
}

bool EventFollower::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && m_stale)
        catchUp();
    return QObject::eventFilter(watched, event);
}
