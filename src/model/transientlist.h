#pragma once

#include "model/transparam.h"

#include <cstddef>
#include <deque>

/// The transients captured since the start of a measurement, oldest first. Beyond the limit the oldest goes, so that
/// places move: who shows one knows it by its number and time. While the measurement is held, pages read what is shown:
/// the transients of that moment. Neither a hold nor a capture costs more for a longer list. Main thread.
class TransientList
{
public:
    using Items = std::deque<__trans_data>;

    int size() const { return int(m_items.size()); }
    bool isEmpty() const { return m_items.empty(); }
    /// \a index from 0 to size() - 1; valid until the list changes.
    const __trans_data &at(int index) const { return m_items[std::size_t(index)]; }
    const __trans_data &last() const { return m_items.back(); }
    Items::const_iterator begin() const { return m_items.begin(); }
    Items::const_iterator end() const { return m_items.end(); }

    void append(const __trans_data &record);
    /// The measurement has ended. What is held is shown until it is released.
    void clear();

    /// What pages show: the list as it is now or, while it is held, as it was then.
    int shownSize() const { return m_held ? m_heldSize : size(); }
    /// \a index from 0 to shownSize() - 1; valid until the list changes.
    const __trans_data &shownAt(int index) const;
    /// Keeps the transients of this moment as what is shown; while already held it changes nothing.
    void hold();
    /// The list is shown as it is again; harmless when nothing is held.
    void run();

private:
    void dropOldest();

    Items m_items;
    bool m_held = false;
    int m_heldSize = 0;
    Items m_gone; // the oldest of what is held, where the list has them no more
};
