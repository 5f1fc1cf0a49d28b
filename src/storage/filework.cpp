#include "storage/filework.h"

#include <QMetaObject>

#include <utility>

FileWork::FileWork(QObject *parent) : QObject(parent), m_worker(new QObject)
{
    m_thread.setObjectName(QStringLiteral("files"));
    m_worker->moveToThread(&m_thread);
}

FileWork::~FileWork()
{
    m_ending = true;
    m_thread.quit();
    m_thread.wait();
    delete m_worker; // with what still waits
}

void FileWork::run(std::function<void()> work, std::function<void()> then)
{
    ++m_pending;
    if (!m_thread.isRunning())
        m_thread.start();
    const auto finished = [this, then = std::move(then)] {
        --m_pending;
        if (then)
            then();
    };
    QMetaObject::invokeMethod(m_worker, [this, work = std::move(work), finished] {
        if (m_ending)
            return; // the thread goes through what was queued before it ends
        work();
        QMetaObject::invokeMethod(this, finished, Qt::QueuedConnection);
    });
}
