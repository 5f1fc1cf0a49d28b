#include "model/eventlist.h"

void EventList::append(PQAEventItem event)
{
    m_items.push_back(std::move(event));
    emit changed(size() - 1);
}

void EventList::clear()
{
    m_items.clear();
    ++m_generation;
    m_over = false;
    m_held = false;
    m_before.clear();
    emit cleared();
}

const PQAEventItem &EventList::shownAt(int place) const
{
    const auto before = m_before.find(place);
    return before == m_before.end() ? at(place) : before->second;
}

void EventList::hold()
{
    if (m_held)
        return;
    m_held = true;
    m_heldSize = size();
}

void EventList::run()
{
    if (!m_held)
        return;
    m_held = false;
    m_before.clear();
    emit released();
}
