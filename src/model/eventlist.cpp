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
    emit cleared();
}
