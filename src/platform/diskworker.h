#pragma once

#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

/// Does what may have to wait for the card on a thread of its own, one job after the other, so that neither screen nor
/// measurement stands still meanwhile. Jobs touch nothing that another thread uses. What was asked for is done, also at
/// the end of the program. Any thread may ask.
class DiskWorker
{
public:
    /// For what is done soon: flushes, syncs, small files.
    static DiskWorker &instance();
    /// For what may take minutes, so that no flush waits behind it: removing a recording, the rest of what one stores.
    static DiskWorker &slow();

    DiskWorker();
    ~DiskWorker();
    DiskWorker(const DiskWorker &) = delete;
    DiskWorker &operator=(const DiskWorker &) = delete;

    void run(std::function<void()> job);
    /// Has the system write out all disks; asked for again before that began, it is done once.
    void sync();
    /// Returns when everything that was asked for before is done.
    void wait();

private:
    void work();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<std::function<void()>> m_jobs;
    bool m_syncWaits = false;
    bool m_ends = false;
    std::thread m_thread; // last: it uses all of the above
};

/// Writes out one open file through the worker. While that goes on it is not asked for twice, so that a slow card is
/// never behind by more than one.
class FileFlush
{
public:
    using Sync = int (*)(int fd);

    /// \a sync is what writes out a file: fsync, or what a test puts there.
    explicit FileFlush(Sync sync);

    /// False when the flush before still goes on, or the file cannot be taken along; then ask again later.
    bool begin(int fd);

private:
    Sync m_sync;
    std::shared_ptr<std::atomic<bool>> m_busy;
};
