#include "storage/fileinfo.h"

#include <QDateTime>
#include <QDir>

#include "platform/debuglog.h"
#include "platform/diskworker.h"
#include "platform/target.h"
#include "storage/safefile.h"
#include "storage/wholefile.h"

namespace {

constexpr qint64 kLargestIndex = 16 * 1024 * 1024; // bytes; some 300,000 entries

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

bool writeLines(const QStringList &lines)
{
    QByteArray text;
    for (const QString &line : lines)
        text += line.toLatin1() + '\n';
    if (!SafeFile::replace(FileInfo::indexPath(), text))
        return false;
    DiskWorker::instance().sync();
    return true;
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
    for (int n = 1; n <= 999; ++n) {
        const QString candidate = prefix + QString::number(n) + suffix;
        if (!taken.contains(candidate))
            return candidate;
    }
    return {};
}

/// Deletes the stored files of a base name, no folders.
void removeFiles(const QString &base)
{
    if (base.isEmpty()) // would match the index itself
        return;
    QDir storage(Target::path(FileInfo::storagePath()));
    storage.setFilter(QDir::Files | QDir::NoSymLinks | QDir::Hidden);
    for (const QString &file : storage.entryList()) {
        if (FileInfo::baseName(file) == base)
            storage.remove(file);
    }
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
    QStringList names;
    for (const QString &line : readInfo())
        names << nameOf(line);
    return names;
}

bool FileInfo::testFileexist(const QString &name) const
{
    return getInfoFiles().contains(name);
}

bool FileInfo::saveInfo(const QString &name, const QDateTime &localTime) const
{
    QStringList lines;
    if (!linesToRewrite(&lines)) {
        QUVERA_DEBUG("open fail: saveInfo");
        return false;
    }
    QStringList kept;
    for (const QString &line : lines) {
        if (baseName(nameOf(line)) == baseName(name))
            QUVERA_DEBUG("file exist ,  cover or not?");
        else
            kept << line;
    }
    kept << oneLine(name) + QLatin1Char(',') + localTime.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
    if (!writeLines(kept)) {
        QUVERA_DEBUG("open fail: saveInfo");
        return false;
    }
    return true;
}

bool FileInfo::removeInfo(const QString &name) const
{
    const QString base = baseName(name);
    QStringList lines;
    if (!linesToRewrite(&lines)) {
        QUVERA_DEBUG("open fail: removeInfo");
        return false;
    }
    // The files go first: on a full card only that makes the room which the new index needs.
    removeFiles(base);
    QStringList kept;
    for (const QString &line : lines) {
        if (baseName(nameOf(line)) != base)
            kept << line;
    }
    if (writeLines(kept))
        return true;
    QUVERA_DEBUG("open fail: removeInfo");
    return false;
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
    return firstFreeName(prefix, suffix, getInfoFiles());
}

QString FileInfo::getDefaultRecordName(const QString &prefix) const
{
    QStringList taken;
    for (const QString &entry : getRecordInfos())
        taken << entry.section(QLatin1Char(' '), 1); // behind "yyMMdd_hhmmss "
    return firstFreeName(prefix, QString(), taken);
}
