#include "record/pqa2device.h"

#include "platform/ordinaryfile.h"
#include "platform/target.h"
#include "storage/massstorage.h"

#include <unistd.h>

Pqa2Device::Pqa2Device() : m_flush(::fsync) { }

bool Pqa2Device::open(const QString &path)
{
    m_file.setFileName(Target::path(path));
    if (OrdinaryFile::isSomethingElse(m_file.fileName()))
        return false;
    // Unbuffered, so that blocks are in the file and links in order when a call returns, and a failure is known there.
    if (!m_file.open(QIODevice::ReadWrite | QIODevice::Truncate | QIODevice::Unbuffered))
        return false;
    DiskWorker::instance().sync(); // the name: writing out a file later need not bring it to the card
    return true;
}

void Pqa2Device::close()
{
    m_file.close();
    DiskWorker::instance().sync();
}

qint64 Pqa2Device::write(const char *data, qint64 size)
{
    return m_file.write(data, size);
}

bool Pqa2Device::seek(qint64 position)
{
    return m_file.seek(position);
}

qint64 Pqa2Device::pos() const
{
    return m_file.pos();
}

qint64 Pqa2Device::size() const
{
    return m_file.size();
}

bool Pqa2Device::resize(qint64 size)
{
    return m_file.resize(size);
}

bool Pqa2Device::sync()
{
    return ::fsync(m_file.handle()) == 0;
}

bool Pqa2Device::syncBehind()
{
    return m_flush.begin(m_file.handle());
}

float Pqa2Device::freeSize()
{
    return MassStorage::storageFreeSize(QStringLiteral("/mnt/storage/"));
}
