#pragma once

#include "platform/diskworker.h"

#include <QSemaphore>

#include <memory>

/// A card that answers nobody while this lives: what the disk worker is asked for waits.
class HeldDisk
{
public:
    HeldDisk()
    {
        DiskWorker::instance().run([free = m_free] { free->acquire(); });
    }
    ~HeldDisk()
    {
        m_free->release();
        DiskWorker::instance().wait();
    }
    HeldDisk(const HeldDisk &) = delete;
    HeldDisk &operator=(const HeldDisk &) = delete;

private:
    const std::shared_ptr<QSemaphore> m_free = std::make_shared<QSemaphore>();
};
