#include "device/deliveryqueue.h"

#include "platform/lineoutput.h"

#include <algorithm>
#include <malloc.h>
#include <string>

namespace {

constexpr qint64 kWorthReturning = 4 << 20; // bytes; less is soon used again

const char *nameOf(int kind)
{
    if (kind < kDatagramKindCount)
        return kDatagramKinds[kind].name;
    return kind == Delivery::TimeStamp ? "dspTimeStamp" : "usingBDS";
}

} // namespace

bool DeliveryQueue::put(Delivery delivery)
{
    const int kind = delivery.kind;
    if (kind < 0 || kind >= Delivery::KindCount)
        return false;
    const std::lock_guard<std::mutex> lock(m_lock);
    const qint64 size = cost(delivery);
    m_waiting[size_t(kind)].push_back({ m_nextNumber++, std::move(delivery) });
    m_kindBytes[size_t(kind)] += size;
    m_bytes += size;
    while (m_bytes > m_mostBytes)
        dropOldest();
    m_mostBytesSeen = std::max(m_mostBytesSeen, m_bytes);
    const bool asks = !m_turnComes;
    m_turnComes = true;
    return asks;
}

void DeliveryQueue::beginTurn()
{
    const std::lock_guard<std::mutex> lock(m_lock);
    m_turnComes = false;
    tellDropped();
}

bool DeliveryQueue::take(Delivery *delivery)
{
    const std::lock_guard<std::mutex> lock(m_lock);
    int oldest = -1;
    for (int kind = 0; kind < Delivery::KindCount; ++kind) {
        const auto &waiting = m_waiting[size_t(kind)];
        if (waiting.empty())
            continue;
        if (oldest < 0 || waiting.front().number < m_waiting[size_t(oldest)].front().number)
            oldest = kind;
    }
    if (oldest >= 0) {
        *delivery = takeFirst(oldest);
        return true;
    }
    // The allocator keeps freed pieces for the next ones, of which there will not be so many again soon.
    if (m_mostBytesSeen > kWorthReturning)
        ::malloc_trim(0);
    m_mostBytesSeen = 0;
    return false;
}

qint64 DeliveryQueue::bytes() const
{
    const std::lock_guard<std::mutex> lock(m_lock);
    return m_bytes;
}

quint64 DeliveryQueue::dropped() const
{
    const std::lock_guard<std::mutex> lock(m_lock);
    return m_dropped;
}

void DeliveryQueue::dropOldest()
{
    const auto largest = std::max_element(m_kindBytes.begin(), m_kindBytes.end());
    const auto kind = size_t(largest - m_kindBytes.begin());
    if (std::all_of(m_droppedNow.begin(), m_droppedNow.end(), [](quint64 count) { return count == 0; }))
        LineOutput::print("L: %d > Results are not taken, dropping the oldest: %s\n", __LINE__, nameOf(int(kind)));
    takeFirst(int(kind));
    ++m_droppedNow[kind];
    ++m_dropped;
}

void DeliveryQueue::tellDropped()
{
    std::string kinds;
    for (int kind = 0; kind < Delivery::KindCount; ++kind) {
        const quint64 count = m_droppedNow[size_t(kind)];
        if (count > 0)
            kinds += std::string(" ") + nameOf(kind) + " " + std::to_string(count) + ";";
    }
    m_droppedNow.fill(0);
    if (!kinds.empty())
        LineOutput::print("L: %d > Results are taken again, dropped:%s\n", __LINE__, kinds.c_str());
}

Delivery DeliveryQueue::takeFirst(int kind)
{
    auto &waiting = m_waiting[size_t(kind)];
    Delivery first = std::move(waiting.front().delivery);
    waiting.pop_front();
    m_kindBytes[size_t(kind)] -= cost(first);
    m_bytes -= cost(first);
    return first;
}
