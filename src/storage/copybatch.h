#pragma once

#include <QString>
#include <QVector>

#include <atomic>

class ItemCopy;

/// Copies several files and folders one after the other (ItemCopy) and can be watched and ended meanwhile. The paths
/// are the board's.
class CopyBatch
{
public:
    struct Job
    {
        QString source;
        QString target;
    };
    enum Result { Copied, Failed, NoRoom, Cancelled };

    explicit CopyBatch(QVector<Job> jobs) : m_jobs(std::move(jobs)) { }

    /// Copies until all is done or one job does not succeed; of that one nothing is left. Takes as long as the disks
    /// need, on any thread. A job begins only where the target's disk has room for it.
    Result run();

    // While it runs, from another thread:
    void cancel() { m_cancelled = true; }
    int current() const { return m_current; } // job under way
    double progress() const { return m_progress; } // of all bytes, 0 to 1

    // When it is through:
    const QVector<Job> &jobs() const { return m_jobs; }
    int copied() const { return m_copied; } // jobs, from the first on
    QString error() const { return m_error; } // empty unless it failed

private:
    Result copy(ItemCopy &item, qint64 before);

    const QVector<Job> m_jobs;
    qint64 m_bytes = 0;
    int m_copied = 0;
    QString m_error;
    std::atomic<bool> m_cancelled { false };
    std::atomic<int> m_current { 0 };
    std::atomic<double> m_progress { 0.0 };
};
