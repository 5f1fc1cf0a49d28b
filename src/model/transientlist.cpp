#include "model/transientlist.h"

void TransientList::append(const __trans_data &record)
{
    if (size() >= TransParam::kMaxEvents)
        dropOldest();
    m_items.push_back(record);
}

void TransientList::clear()
{
    while (m_held && int(m_gone.size()) < m_heldSize)
        dropOldest();
    m_items.clear();
}

void TransientList::dropOldest()
{
    if (m_held && int(m_gone.size()) < m_heldSize)
        m_gone.push_back(m_items.front());
    m_items.pop_front();
}

const __trans_data &TransientList::shownAt(int index) const
{
    const int gone = int(m_gone.size());
    return index < gone ? m_gone[std::size_t(index)] : at(index - gone);
}

void TransientList::hold()
{
    if (m_held)
        return;
    m_held = true;
    m_heldSize = size();
}

void TransientList::run()
{
    m_held = false;
    m_gone.clear();
}
