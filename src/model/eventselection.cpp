#include "model/eventselection.h"

#include <algorithm>

void EventSelection::refresh()
{
    m_places.clear();
    m_generation = m_list->generation();
    for (int place = 0; place < m_list->shownSize(); ++place) {
        if (m_kinds.take(m_list->shownAt(place)))
            m_places.append(place);
    }
}

bool EventSelection::update(int place)
{
    if (!isCurrent()) {
        refresh();
        return true;
    }
    const bool ours = m_kinds.take(m_list->shownAt(place));
    const auto found = std::lower_bound(m_places.begin(), m_places.end(), place);
    const bool known = found != m_places.end() && *found == place;
    if (ours && !known)
        m_places.insert(found, place);
    else if (known && !ours)
        m_places.erase(found); // it turned into an event of another family
    return ours || known;
}

EventSelection EventSelection::among(EventKinds kinds) const
{
    EventSelection part(*m_list, { std::max(m_kinds.first, kinds.first), std::min(m_kinds.last, kinds.last) });
    part.m_generation = m_generation;
    for (const int place : isCurrent() ? m_places : QVector<int>()) {
        if (part.m_kinds.take(m_list->shownAt(place)))
            part.m_places.append(place);
    }
    return part;
}
