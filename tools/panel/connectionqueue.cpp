#include "panel/connectionqueue.h"

#include <algorithm>

namespace panel {

namespace {

std::atomic<std::size_t> waitingNow { 0 };
thread_local bool t_full = false;

} // namespace

ConnectionQueue::~ConnectionQueue()
{
    shutdown();
}

bool ConnectionQueue::somebodyWaits()
{
    return waitingNow > 0;
}

bool ConnectionQueue::isFull()
{
    return t_full;
}

void ConnectionQueue::enqueue(std::function<void()> serve)
{
    {
        const std::lock_guard<std::mutex> guard(m_lock);
        if (m_waiting.size() < kMostWaiting && !m_ends) {
            m_waiting.push_back(std::move(serve));
            if (m_waiting.size() > m_idle && m_threads.size() < kMostThreads)
                m_threads.emplace_back([this] { work(); });
            countWaiting();
            serve = nullptr;
        }
    }
    m_changed.notify_one();
    if (!serve)
        return;
    t_full = true;
    serve();
    t_full = false;
}

// Who only waits for a thread to wake or to begin is served in a moment: nobody has to hurry for that.
void ConnectionQueue::countWaiting()
{
    waitingNow = m_threads.size() < kMostThreads ? 0 : m_waiting.size() - std::min(m_idle, m_waiting.size());
}

void ConnectionQueue::work()
{
    std::unique_lock<std::mutex> guard(m_lock);
    for (;;) {
        ++m_idle;
        m_changed.wait(guard, [this] { return !m_waiting.empty() || m_ends; });
        --m_idle;
        if (m_waiting.empty())
            return;
        const std::function<void()> serve = std::move(m_waiting.front());
        m_waiting.pop_front();
        countWaiting();
        guard.unlock();
        serve();
        guard.lock();
    }
}

void ConnectionQueue::shutdown()
{
    {
        const std::lock_guard<std::mutex> guard(m_lock);
        m_ends = true;
    }
    m_changed.notify_all();
    for (std::thread &thread : m_threads)
        thread.join();
    m_threads.clear();
}

} // namespace panel
