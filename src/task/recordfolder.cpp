#include "task/recordfolder.h"

#include "platform/diskworker.h"
#include "platform/target.h"
#include "settings/localtime.h"
#include "storage/fileinfo.h"
#include "storage/leaving.h"
#include "storage/runjournal.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr int kLongestName = 80; // characters; a name of the file system has room for 255 bytes

/// A name of the user's as a part of the name of a folder.
QString plainName(const QString &name)
{
    QString plain = name.left(kLongestName);
    for (QChar &c : plain) {
        if (c == QLatin1Char('/') || c == QLatin1Char(',') || c.category() == QChar::Other_Control)
            c = QLatin1Char('_');
    }
    return plain;
}

} // namespace

QString RecordFolder::nameAt(const QDateTime &localTime, const QString &record)
{
    return localTime.toString(QStringLiteral("yyMMdd_hhmmss")) + QLatin1Char(' ') + plainName(record);
}

bool RecordFolder::create(const QString &record)
{
    const QDateTime now = LocalTime::currentDateTime();
    QDateTime named = now;
    do { // another recording has that name where the clock was set back: it is left alone
        m_name = nameAt(named, record);
        named = named.addSecs(1);
    } while (QFileInfo::exists(Target::path(FileInfo::storagePath() + m_name)));
    if (!QDir().mkdir(Target::path(path()))) {
        m_name.clear();
        return false;
    }
    RunJournal::instance().begin(m_name);
    FileInfo().saveInfoBehind(m_name, now);
    DiskWorker::slow().run(Leaving::freeAll); // what a lost supply left
    return true;
}

void RecordFolder::ended(const QString &name)
{
    RunJournal::instance().end(name);
}

void RecordFolder::remove()
{
    if (m_name.isEmpty())
        return;
    Leaving::take(QFile::encodeName(m_name));
    DiskWorker::instance().run([name = m_name] { FileInfo().removeEntries({ name }); });
    m_name.clear();
    DiskWorker::slow().run(Leaving::freeAll);
}

QString RecordFolder::path() const
{
    return m_name.isEmpty() ? QString() : FileInfo::storagePath() + m_name + QLatin1Char('/');
}

QString RecordFolder::file(const QString &name) const
{
    return m_name.isEmpty() ? QString() : path() + name;
}
