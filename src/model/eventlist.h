#pragma once

#include "model/pqaeventitem.h"

#include <QObject>

#include <deque>
#include <utility>

/// The events of a measurement in the order of their detection. They exist here once: the detector writes, pages,
/// Modbus and files read. Places stay the same until the list is emptied, and an entry is never moved or copied by a
/// change. Main thread only; the signals are direct.
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
    /// Counts how often the list was emptied: places of another generation mean nothing any more.
    quint32 generation() const { return m_generation; }
    /// The measurement has ended: its events stay for pages and files, but the status of the instrument counts none.
    bool isOver() const { return m_over; }

    /// Enters an event behind all others and says so.
    void append(PQAEventItem event);
    /// Lets \a edit, which takes a PQAEventItem &, change the event at \a place, and says so.
    template <typename Edit> void change(int place, const Edit &edit)
    {
        edit(m_items[std::size_t(place)]);
        emit changed(place);
    }
    /// The same for what no page and no table shows: nothing is said.
    PQAEventItem &quietly(int place) { return m_items[std::size_t(place)]; }
    /// Forgets all events and says so; a new measurement begins.
    void clear();
    /// See isOver().
    void finish() { m_over = true; }

signals:
    /// The event at this place is new or differs from before.
    void changed(int place);
    void cleared();

private:
    Items m_items;
    quint32 m_generation = 0;
    bool m_over = false;
};
