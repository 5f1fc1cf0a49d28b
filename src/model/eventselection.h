#pragma once

#include "model/eventlist.h"

#include <QVector>

#include <limits>

/// First and last PQAEventType of a family of events.
struct EventKinds
{
    qint32 first;
    qint32 last;

    bool take(const __event_item &event) const { return event.type >= first && event.type <= last; }
};
constexpr EventKinds kAllEvents = { std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max() };

/// The events of some kinds out of what a list shows, in their order: it keeps their places and no copy. It must hear
/// of changes; until then it shows the events that it knew, as the list shows them, and none when the list was emptied.
/// On hold there is nothing to hear until the list is released. Main thread only.
class EventSelection
{
public:
    /// \a list outlives the selection.
    EventSelection(const EventList &list, EventKinds kinds) : m_list(&list), m_kinds(kinds) { }

    int size() const { return isCurrent() ? m_places.size() : 0; }
    bool isEmpty() const { return size() == 0; }
    /// \a index from 0 to size() - 1.
    const PQAEventItem &at(int index) const { return m_list->shownAt(m_places.at(index)); }

    /// Looks through the whole list.
    void refresh();
    /// Takes in one event of the list that is new or changed, without a look at the others. True: one of ours came,
    /// changed or went.
    bool update(int place);
    /// The events of these kinds among ours, as they stand.
    EventSelection among(EventKinds kinds) const;

private:
    bool isCurrent() const { return m_generation == m_list->generation(); }

    const EventList *m_list;
    EventKinds m_kinds;
    QVector<int> m_places; // rising
    quint32 m_generation = 0;
};
