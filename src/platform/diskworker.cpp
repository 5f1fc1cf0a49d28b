#include "platform/diskworker.h"

#include "platform/target.h"

#include <QString>

#include <unistd.h>
#include <utility>

DiskWorker &DiskWorker::instance()
{
    static DiskWorker worker;
    return worker;
}

DiskWorker &DiskWorker::slow()
{
    instance(); // which it asks, and which therefore ends behind it
    static DiskWorker worker;
    return worker;
}

DiskWorker::DiskWorker() : m_thread([this] { work(); }) { }

DiskWorker::~DiskWorker()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_ends = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void DiskWorker::run(std::function<void()> job)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_jobs.push_back(std::move(job));
    }
    m_changed.notify_one();
}

void DiskWorker::sync()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (std::exchange(m_syncWaits, true))
            return;
    }
    run([this] {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_syncWaits = false; // what is written from here on needs another one
        }
        Target::shell(QStringLiteral("sync"));
    });
}

void DiskWorker::wait()
{
    std::mutex mutex;
    std::condition_variable reached;
    bool done = false;
    run([&] {
        const std::lock_guard<std::mutex> lock(mutex);
        done = true;
        reached.notify_one();
    });
    std::unique_lock<std::mutex> lock(mutex);
    reached.wait(lock, [&] { return done; });
}

void DiskWorker::work()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_ends || !m_jobs.empty(); });
        if (m_jobs.empty())
            return;
        const std::function<void()> job = std::move(m_jobs.front());
        m_jobs.pop_front();
        lock.unlock();
        job();
        lock.lock();
    }
}

FileFlush::FileFlush(Sync sync) : m_sync(sync), m_busy(std::make_shared<std::atomic<bool>>(false)) { }

bool FileFlush::begin(int fd)
{
    if (m_busy->exchange(true))
        return false;
    const int own = ::dup(fd); // the file may be closed meanwhile
    if (own < 0) {
        *m_busy = false;
        return false;
    }
    DiskWorker::instance().run([busy = m_busy, sync = m_sync, own] {
        sync(own);
        ::close(own);
        *busy = false;
    });
    return true;
}
