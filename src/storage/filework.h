#pragma once

#include <QObject>
#include <QThread>

#include <atomic>
#include <functional>

/// Work on files that may take long (a slow disk, thousands of files), one piece after the other in a thread of its
/// own, so that the screen and the measurement go on. DiskWorker is for what a recording brings to the card, which must
/// not wait behind such work. Main thread.
class FileWork : public QObject
{
    Q_OBJECT

public:
    explicit FileWork(QObject *parent = nullptr);
    /// Waits for the piece that runs and forgets those that wait.
    ~FileWork() override;

    /// Queues \a work, which may touch nothing of the caller's; \a then is called on the main thread when it is
    /// through.
    void run(std::function<void()> work, std::function<void()> then = {});
    bool isBusy() const { return m_pending > 0; }

private:
    QThread m_thread; // begins with the first piece
    QObject *m_worker; // lives in the thread
    int m_pending = 0;
    std::atomic<bool> m_ending { false };
};
