#include "record/storedfile.h"

#include "platform/clock.h"
#include "platform/diskworker.h"
#include "record/pqa2device.h"
#include "storage/fileinfo.h"
#include "storage/leaving.h"
#include "storage/runjournal.h"

#include <QDateTime>
#include <QFile>

namespace {
constexpr qint64 kFlushInterval = 4000; // ms; a cut of the supply costs no more than this and what follows next
}

StoredFile::StoredFile(std::unique_ptr<Pqa2Device> device) : m_device(std::move(device)) { }

StoredFile::~StoredFile()
{
    close();
}

bool StoredFile::open(const QString &name, const QDateTime &localTime)
{
    const QString before = m_open ? m_name : QString();
    if (m_open)
        m_device->close();
    m_open = m_device->open(FileInfo::storagePath() + name);
    if (!m_open) {
        RunJournal::instance().end(before);
        return false;
    }
    m_name = name;
    m_flushed = Clock::elapsed();
    RunJournal::instance().begin(name, before);
    FileInfo().saveInfoBehind(name, localTime);
    return true;
}

bool StoredFile::append(const QByteArray &bytes)
{
    const qint64 end = m_device->size();
    if (m_device->seek(end) && m_device->write(bytes.constData(), bytes.size()) == bytes.size())
        return true;
    m_device->resize(end);
    return false;
}

bool StoredFile::rewrite(qint64 offset, const char *data, qint64 size)
{
    return m_device->seek(offset) && m_device->write(data, size) == size;
}

void StoredFile::flushNowAndThen()
{
    if (Clock::elapsed() - m_flushed >= kFlushInterval)
        flush();
}

bool StoredFile::flush()
{
    if (!m_open || !m_device->syncBehind())
        return false;
    m_flushed = Clock::elapsed();
    return true;
}

void StoredFile::close()
{
    if (!m_open)
        return;
    m_open = false;
    m_device->close();
    RunJournal::instance().end(m_name);
}

void StoredFile::remove()
{
    close();
    DiskWorker::instance().run([name = m_name, taken = Leaving::take(QFile::encodeName(m_name))] {
        Leaving::free(taken);
        FileInfo().removeEntries({ name });
    });
}
