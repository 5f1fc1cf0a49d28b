#include "storage/fileinfo.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <QSet>

#include "platform/debuglog.h"
#include "platform/diskworker.h"
#include "platform/target.h"
#include "storage/filesinuse.h"
#include "storage/leaving.h"
#include "storage/safefile.h"
#include "storage/wholefile.h"

#include <functional>
#include <memory>

namespace {

constexpr qint64 kLargestIndex = 16 * 1024 * 1024; // bytes; some 300,000 entries
constexpr int kTimeLength = 19; // "yyyy-MM-dd hh:mm:ss"

WholeFile::Reading readLines(QStringList *lines)
{
    QByteArray bytes;
    const WholeFile::Reading reading = WholeFile::read(FileInfo::indexPath(), kLargestIndex, &bytes);
    const QString text = QString::fromLatin1(bytes.constData(), bytes.size()).remove(QLatin1Char('\r'));
    for (const QString &line : text.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        *lines << line; // zero bytes end nothing
    return reading;
}

/// The lines to be changed and written again; a missing index has none. False when they could not be read: what would
/// then be written loses them all.
bool linesToRewrite(QStringList *lines)
{
    const WholeFile::Reading reading = readLines(lines);
    return reading == WholeFile::Read || reading == WholeFile::Missing;
}

/// Whoever changes the index reads and writes it under this lock.
QMutex &changing()
{
    static QMutex mutex;
    return mutex;
}

using Change = std::function<QStringList(const QStringList &)>;
enum class Writing { Always, WhatDiffers };

/// Reads the lines, changes them and writes them; false, with a line in the log, when the index could not be read or
/// written.
bool rewrite(const char *who, Writing writing, const Change &change)
{
    QMutexLocker lock(&changing());
    QStringList lines;
    bool good = linesToRewrite(&lines);
    if (good) {
        const QStringList changed = change(lines);
        if (writing == Writing::WhatDiffers && changed == lines)
            return true;
        QByteArray text;
        for (const QString &line : changed)
            text += line.toLatin1() + '\n';
        good = SafeFile::replace(FileInfo::indexPath(), text);
    }
    if (good)
        DiskWorker::instance().sync();
    else
        QUVERA_DEBUG(QStringLiteral("open fail: ") + QLatin1String(who));
    return good;
}

QString nameOf(const QString &line)
{
    return line.section(QLatin1Char(','), 0, 0);
}

/// A name must stay one line of the index and keep its comma-free form readable.
QString oneLine(const QString &name)
{
    QString line = name;
    line.replace(QLatin1Char('\n'), QLatin1Char(' ')).replace(QLatin1Char('\r'), QLatin1Char(' '));
    return line;
}

/// prefix + n + suffix with the first n of 1 to 999 that is not taken; empty when all are.
QString firstFreeName(const QString &prefix, const QString &suffix, const QStringList &taken)
{
    const QSet<QString> names(taken.begin(), taken.end()); // a card may hold thousands
    for (int n = 1; n <= 999; ++n) {
        const QString candidate = prefix + QString::number(n) + suffix;
        if (!names.contains(candidate))
            return candidate;
    }
    return {};
}

/// Takes the stored files of a base name away, no folders, and not what is being recorded; the answer is for Leaving.
QByteArrayList takeFiles(const QString &base)
{
    QByteArrayList taken;
    if (base.isEmpty()) // would match the index itself
        return taken;
    const QSet<QByteArray> inUse = FilesInUse::names();
    const QDir storage(Target::path(FileInfo::storagePath()));
    for (const QString &file : storage.entryList(QDir::Files | QDir::NoSymLinks | QDir::Hidden)) {
        if (FileInfo::baseName(file) == base && !inUse.contains(QFile::encodeName(file)))
            taken << Leaving::take(QFile::encodeName(file));
    }
    return taken;
}

void freeFiles(const QByteArrayList &taken)
{
    for (const QByteArray &file : taken)
        Leaving::free(file);
}

QStringList withoutBase(const QStringList &lines, const QString &base)
{
    QStringList kept;
    for (const QString &line : lines) {
        if (FileInfo::baseName(nameOf(line)) != base)
            kept << line;
    }
    return kept;
}

/// Names that the disk worker is about to enter: as good as entered.
struct Coming
{
    QMutex mutex;
    QStringList names;
};

std::shared_ptr<Coming> coming()
{
    static const auto names = std::make_shared<Coming>(); // jobs hold it, too: they may outlive what is static
    return names;
}

} // namespace

QString FileInfo::indexPath()
{
    return QStringLiteral("/mnt/storage/.infomation"); // spelled so
}

QString FileInfo::storagePath()
{
    return QStringLiteral("/mnt/storage/");
}

QString FileInfo::baseName(const QString &name)
{
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    return dot < 0 ? name : name.left(dot);
}

QString FileInfo::entryName(const QString &name)
{
    return nameOf(QString::fromLatin1(oneLine(name).toLatin1()));
}

QStringList FileInfo::readInfo() const
{
    QStringList lines;
    if (readLines(&lines) != WholeFile::Read)
        QUVERA_DEBUG("open fail: readInfo");
    return lines;
}

bool FileInfo::testInfo() const
{
    QStringList lines;
    return readLines(&lines) == WholeFile::Read;
}

QStringList FileInfo::getInfoFiles() const
{
    QStringList soon; // asked first: what is entered meanwhile is then in the index
    {
        const std::shared_ptr<Coming> names = coming();
        const QMutexLocker lock(&names->mutex);
        soon = names->names;
    }
    QStringList names;
    for (const QString &line : readInfo())
        names << nameOf(line);
    for (const QString &name : soon) {
        if (!names.contains(name))
            names << name;
    }
    return names;
}

bool FileInfo::testFileexist(const QString &name) const
{
    return getInfoFiles().contains(name);
}

bool FileInfo::saveInfo(const QString &name, const QDateTime &localTime) const
{
    return rewrite("saveInfo", Writing::Always, [&](const QStringList &lines) {
        QStringList kept;
        for (const QString &line : lines) {
            if (baseName(nameOf(line)) == baseName(name))
                QUVERA_DEBUG("file exist ,  cover or not?");
            else
                kept << line;
        }
        return kept << oneLine(name) + QLatin1Char(',') + localTime.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
    });
}

bool FileInfo::removeInfo(const QString &name) const
{
    const QString base = baseName(name);
    return rewrite("removeInfo", Writing::Always, [&base](const QStringList &lines) {
        // The files go first: on a full card only that makes the room which the new index needs.
        freeFiles(takeFiles(base));
        return withoutBase(lines, base);
    });
}

void FileInfo::saveInfoBehind(const QString &name, const QDateTime &localTime) const
{
    const std::shared_ptr<Coming> names = coming();
    {
        const QMutexLocker lock(&names->mutex);
        names->names << entryName(name);
    }
    DiskWorker::instance().run([name, localTime, names] {
        FileInfo().saveInfo(name, localTime);
        const QMutexLocker lock(&names->mutex);
        names->names.removeOne(entryName(name));
    });
}

void FileInfo::removeInfoBehind(const QString &name) const
{
    QStringList lines;
    if (!linesToRewrite(&lines)) {
        QUVERA_DEBUG("open fail: removeInfo");
        return;
    }
    const QString base = baseName(name);
    DiskWorker::instance().run([base, taken = takeFiles(base)] {
        freeFiles(taken);
        rewrite("removeInfo", Writing::Always, [&base](const QStringList &now) { return withoutBase(now, base); });
    });
}

bool FileInfo::removeEntries(const QStringList &names) const
{
    QSet<QString> gone;
    for (const QString &name : names)
        gone.insert(entryName(name));
    return rewrite("removeEntries", Writing::WhatDiffers, [&gone](const QStringList &lines) {
        QStringList kept;
        for (const QString &line : lines) {
            if (!gone.contains(nameOf(line)))
                kept << line;
        }
        return kept;
    });
}

bool FileInfo::mend(const QHash<QString, QString> &present) const
{
    return rewrite("mend", Writing::WhatDiffers, [&present](const QStringList &lines) {
        QStringList kept;
        QHash<QString, QString> missing = present;
        for (const QString &line : lines) {
            // What was saved since is there as well.
            if (present.contains(nameOf(line)) || QFileInfo::exists(Target::path(storagePath() + nameOf(line))))
                kept << line;
            missing.remove(nameOf(line));
        }
        QStringList added;
        for (auto item = missing.cbegin(); item != missing.cend(); ++item)
            added << item.value() + item.key();
        added.sort(); // by time
        for (const QString &item : added)
            kept << item.mid(kTimeLength) + QLatin1Char(',') + item.left(kTimeLength);
        return kept;
    });
}

QStringList FileInfo::getFiles(const QString &path) const
{
    return QDir(Target::path(path)).entryList(QDir::Files, QDir::Time | QDir::Reversed);
}

QStringList FileInfo::getRecordInfos() const
{
    return QDir(Target::path(storagePath()))
        .entryList({ QStringLiteral("*_* *") }, QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot, QDir::Name);
}

QString FileInfo::getDefaultFileName(const QString &prefix, const QString &suffix) const
{
    // What has just been begun may not be in the index yet; its file must not be begun anew.
    const QStringList standing
        = QDir(Target::path(storagePath())).entryList({ prefix + QLatin1Char('*') }, QDir::Files);
    return firstFreeName(prefix, suffix, getInfoFiles() + standing);
}

QString FileInfo::getDefaultRecordName(const QString &prefix) const
{
    QStringList taken;
    for (const QString &entry : getRecordInfos())
        taken << entry.section(QLatin1Char(' '), 1); // behind "yyMMdd_hhmmss "
    return firstFreeName(prefix, QString(), taken);
}
