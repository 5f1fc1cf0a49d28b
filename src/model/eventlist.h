#pragma once

#include "model/pqaeventitem.h"

#include <QObject>

#include <deque>
#include <map>
#include <utility>

/// The events of a measurement in the order of their detection. They exist here once: the detector writes, pages,
/// Modbus and files read. Places stay the same until the list is emptied, and an entry is never moved by a change.
/// While the measurement is held, pages read what is shown: the events of that moment, whatever is detected behind it.
/// Neither a hold nor a change costs more for a longer list. Main thread only; the signals are direct.
class EventList : public QObject
{
    Q_OBJECT

public:
    using Items = std::deque<PQAEventItem>;

    explicit EventList(QObject *parent = nullptr) : QObject(parent) { }

    int size() const { return int(m_items.size()); }
    bool isEmpty() const { return m_items.empty(); }
    /// \a place from 0 to size() - 1.
    const PQAEventItem &at(int place) const { return m_items[std::size_t(place)]; }
    Items::const_iterator begin() const { return m_items.begin(); }
    Items::const_iterator end() const { return m_items.end(); }

    /// What pages show: the list as it is now or, while it is held, as it was then.
    int shownSize() const { return m_held ? m_heldSize : size(); }
    /// \a place from 0 to shownSize() - 1.
    const PQAEventItem &shownAt(int place) const;
    bool isHeld() const { return m_held; }
    /// Keeps the events of this moment as what is shown; while already held it changes nothing.
    void hold();
    /// The list is shown as it is again, and says so; harmless when nothing is held.
    void run();

    /// Counts how often the list was emptied: places of another generation mean nothing any more.
    quint32 generation() const { return m_generation; }
    /// The measurement has ended: its events stay for pages and files, but the status of the instrument counts none.
    bool isOver() const { return m_over; }

    /// Enters an event behind all others and says so.
    void append(PQAEventItem event);
    /// Lets \a edit, which takes a PQAEventItem &, change the event at \a place, and says so.
    template <typename Edit> void change(int place, const Edit &edit)
    {
        if (m_held && place < m_heldSize)
            m_before.emplace(place, m_items[std::size_t(place)]);
        edit(m_items[std::size_t(place)]);
        emit changed(place);
    }
    /// The same for what no page and no table shows: nothing is said.
    PQAEventItem &quietly(int place) { return m_items[std::size_t(place)]; }
    /// Forgets all events, also held ones, and says so; a new measurement begins.
    void clear();
    /// See isOver().
    void finish() { m_over = true; }

signals:
    /// The event at this place is new or differs from before.
    void changed(int place);
    void cleared();
    /// What was held is shown as it is now.
    void released();

private:
    Items m_items;
    quint32 m_generation = 0;
    bool m_over = false;
    bool m_held = false;
    int m_heldSize = 0;
    std::map<int, PQAEventItem> m_before; // by place: held events that changed since, as they were
};
