#pragma once

#include "model/transparam.h"

#include <cstddef>
#include <deque>

/// The transients captured since the start of a measurement, oldest first. Beyond the limit the oldest goes, so that
/// places move: who shows one knows it by its number and time. Main thread.
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

    void append(const __trans_data &record)
    {
        if (size() >= TransParam::kMaxEvents)
            m_items.pop_front();
        m_items.push_back(record);
    }
    void clear() { m_items.clear(); }

private:
    Items m_items;
};
