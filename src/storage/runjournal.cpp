#include "storage/runjournal.h"

#include "platform/debuglog.h"
#include "platform/diskworker.h"
#include "platform/target.h"
#include "storage/fileinfo.h"
#include "storage/safefile.h"
#include "storage/wholefile.h"

#include <QFile>

#include <mutex>

namespace {

constexpr qint64 kLargest = 64 * 1024; // bytes; far above what can be written at the same time
constexpr int kMostNames = 64;

/// Whether it can be a line and names something directly on the storage.
bool isPlain(const QString &name)
{
    return !name.isEmpty() && !name.startsWith(QLatin1Char('.')) && !name.contains(QLatin1Char('/'))
        && !name.contains(QLatin1Char('\n'));
}

QStringList namesOf(const QByteArray &text)
{
    QStringList names;
    for (const QByteArray &line : text.split('\n')) {
        const QString name = QString::fromUtf8(line);
        if (isPlain(name) && !names.contains(name) && names.size() < kMostNames)
            names << name;
    }
    return names;
}

} // namespace

struct RunJournal::State
{
    std::mutex mutex;
    QStringList interrupted;
    QStringList running;
    QByteArray written; // what the file holds; the disk thread's
};

RunJournal &RunJournal::instance()
{
    static RunJournal journal;
    return journal;
}

RunJournal::RunJournal() : m_state(std::make_shared<State>())
{
    QByteArray text;
    if (WholeFile::read(path(), kLargest, &text) == WholeFile::Read)
        m_state->interrupted = namesOf(text);
    m_state->written = text;
}

QString RunJournal::path()
{
    return FileInfo::storagePath() + QStringLiteral(".running");
}

void RunJournal::begin(const QString &name, const QString &instead)
{
    if (!isPlain(name))
        return;
    {
        const std::lock_guard<std::mutex> lock(m_state->mutex);
        m_state->running.removeAll(instead);
        m_state->interrupted.removeAll(name); // the new one takes its place
        if (!m_state->running.contains(name))
            m_state->running << name;
    }
    write();
}

void RunJournal::end(const QString &name)
{
    {
        const std::lock_guard<std::mutex> lock(m_state->mutex);
        if (m_state->running.removeAll(name) == 0)
            return;
    }
    write();
}

QStringList RunJournal::interrupted() const
{
    const std::lock_guard<std::mutex> lock(m_state->mutex);
    return m_state->interrupted;
}

void RunJournal::forget(const QString &name)
{
    {
        const std::lock_guard<std::mutex> lock(m_state->mutex);
        m_state->interrupted.removeAll(name);
    }
    write();
}

void RunJournal::write() const
{
    DiskWorker::instance().run([state = m_state] {
        QByteArray text;
        {
            const std::lock_guard<std::mutex> lock(state->mutex);
            for (const QString &name : state->interrupted + state->running)
                text += name.toUtf8() + '\n';
        }
        if (text == state->written)
            return;
        // What is empty needs no room on a full card.
        const bool good = text.isEmpty() ? QFile::remove(Target::path(path())) || !QFile::exists(Target::path(path()))
                                         : SafeFile::replace(path(), text);
        if (good) {
            state->written = text;
            DiskWorker::instance().sync();
        } else {
            QUVERA_DEBUG("open fail: RunJournal");
        }
    });
}
