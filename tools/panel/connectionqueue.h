#pragma once

#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <httplib.h>
#include <mutex>
#include <thread>
#include <vector>

namespace panel {

/// Serves each connection by a thread of its own, of which there are few: made when they are needed, up to a bound.
/// What comes beyond waits, up to a bound, and what comes beyond that is sent away at once.
class ConnectionQueue : public httplib::TaskQueue
{
public:
    static constexpr std::size_t kMostThreads = 64;
    static constexpr std::size_t kMostWaiting = 256;

    ~ConnectionQueue() override;
    void enqueue(std::function<void()> serve) override;
    void shutdown() override;

    /// Whether somebody waits for a thread. Any thread.
    static bool somebodyWaits();
    /// Whether this thread may only send the connection away.
    static bool isFull();

private:
    void work();
    void countWaiting(); // under the lock

    std::mutex m_lock;
    std::condition_variable m_changed;
    std::deque<std::function<void()>> m_waiting;
    std::vector<std::thread> m_threads;
    std::size_t m_idle = 0;
    bool m_ends = false;
};

} // namespace panel
