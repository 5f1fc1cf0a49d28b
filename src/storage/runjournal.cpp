#include "storage/runjournal.h"

#include "platform/debuglog.h"
#include "platform/diskworker.h"
#include "platform/ordinaryfile.h"
#include "platform/target.h"
#include "storage/fileinfo.h"
#include "storage/safefile.h"
#include "storage/wholefile.h"

#include <QFile>

#include <cstring>
#include <mutex>
#include <optional>

namespace {

constexpr qint64 kLargest = 64 * 1024; // bytes; far above what can be written at the same time
constexpr int kMostNames = 64;
constexpr int kMostPlans = 4; // that nobody answered
const char kPlan[] = ".planned ";

/// Whether it can be a line and names something directly on the storage.
bool isPlain(const QString &name)
{
    return !name.isEmpty() && !name.startsWith(QLatin1Char('.')) && !name.contains(QLatin1Char('/'))
        && !name.contains(QLatin1Char('\n'));
}

/// A plan's line, which no program takes for the name of a file.
QByteArray lineOf(const PlannedRun &run)
{
    return kPlan + QByteArray::number(run.start) + ' ' + run.name.toUtf8() + '\n';
}

QVector<PlannedRun> plansOf(const QByteArray &text)
{
    QVector<PlannedRun> plans;
    for (const QByteArray &line : text.split('\n')) {
        if (!line.startsWith(kPlan) || plans.size() >= kMostPlans)
            continue;
        const QByteArray rest = line.mid(int(std::strlen(kPlan)));
        const int blank = rest.indexOf(' ');
        bool isNumber = false;
        const quint32 start = rest.left(blank).toUInt(&isNumber);
        if (blank > 0 && isNumber)
            plans.append({ QString::fromUtf8(rest.mid(blank + 1)), start });
    }
    return plans;
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
    QByteArray text();
    bool store(QByteArray text);

    std::mutex mutex;
    QStringList interrupted;
    QStringList running;
    QVector<PlannedRun> missed;
    std::optional<PlannedRun> planned;
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
    if (WholeFile::read(path(), kLargest, &text) == WholeFile::Read) {
        m_state->interrupted = namesOf(text);
        m_state->missed = plansOf(text);
    }
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

void RunJournal::plan(const PlannedRun &run)
{
    {
        const std::lock_guard<std::mutex> lock(m_state->mutex);
        m_state->planned = run;
        m_state->planned->name.replace(QLatin1Char('\n'), QLatin1Char(' '));
    }
    write();
}

void RunJournal::endPlan()
{
    {
        const std::lock_guard<std::mutex> lock(m_state->mutex);
        if (!m_state->planned)
            return;
        m_state->planned.reset();
    }
    write();
}

QVector<PlannedRun> RunJournal::missed() const
{
    const std::lock_guard<std::mutex> lock(m_state->mutex);
    return m_state->missed;
}

void RunJournal::forgetMissed()
{
    {
        const std::lock_guard<std::mutex> lock(m_state->mutex);
        m_state->missed.clear();
    }
    write();
}

/// What the file is to hold.
QByteArray RunJournal::State::text()
{
    const std::lock_guard<std::mutex> lock(mutex);
    QByteArray lines;
    for (const PlannedRun &run : qAsConst(missed))
        lines += lineOf(run);
    if (planned)
        lines += lineOf(*planned);
    for (const QString &name : interrupted + running)
        lines += name.toUtf8() + '\n';
    return lines;
}

/// Makes the file hold \a text. What is empty, or no longer than what stands there, needs no room on a full card.
bool RunJournal::State::store(QByteArray text)
{
    const QString file = Target::path(path());
    if (text.isEmpty())
        return QFile::remove(file) || !QFile::exists(file);
    if (SafeFile::replace(path(), text))
        return true;
    return text.size() <= written.size() && OrdinaryFile::write(file, text.leftJustified(written.size(), '\n'));
}

void RunJournal::write() const
{
    DiskWorker::instance().run([state = m_state] {
        const QByteArray text = state->text();
        if (text == state->written)
            return;
        const bool good = state->store(text);
        if (good) {
            state->written = text;
            DiskWorker::instance().sync();
        } else {
            QUVERA_DEBUG("open fail: RunJournal");
        }
    });
}
