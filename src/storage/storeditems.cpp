#include "storage/storeditems.h"

#include "platform/debuglog.h"
#include "platform/target.h"
#include "storage/fileinfo.h"
#include "storage/filesinuse.h"
#include "storage/leaving.h"

#include <QDateTime>
#include <QFile>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <sys/stat.h>

namespace {

const QString kTimeFormat = QStringLiteral("yyyy-MM-dd hh:mm:ss");
const char *const kFileSystemsOwn = "lost+found";

QByteArray realPath(const QByteArray &file)
{
    return QFile::encodeName(Target::path(FileInfo::storagePath())) + file;
}

struct Entry
{
    QByteArray name;
    unsigned char type; // DT_REG, DT_DIR or another
};

/// The kind of an entry where its folder does not tell it.
unsigned char typeOf(const QByteArray &file)
{
    struct stat info
    {
    };
    if (::lstat(realPath(file).constData(), &info) != 0)
        return DT_UNKNOWN;
    return S_ISDIR(info.st_mode) ? DT_DIR : S_ISREG(info.st_mode) ? DT_REG : DT_UNKNOWN;
}

/// All that is not hidden in the storage; false when that could not be read to its end.
bool visibleEntries(QVector<Entry> *entries)
{
    const std::unique_ptr<DIR, int (*)(DIR *)> folder(::opendir(realPath({}).constData()), ::closedir);
    if (!folder)
        return errno == ENOENT;
    errno = 0;
    while (const dirent *entry = ::readdir(folder.get())) {
        const QByteArray name(entry->d_name);
        if (!name.startsWith('.') && name != kFileSystemsOwn)
            *entries << Entry { name, entry->d_type == DT_UNKNOWN ? typeOf(name) : entry->d_type };
        errno = 0;
    }
    return errno == 0;
}

/// Times of the index by its names.
QHash<QString, QString> indexedTimes()
{
    QHash<QString, QString> times;
    if (!FileInfo().testInfo())
        return times;
    for (const QString &line : FileInfo().readInfo()) {
        const QString time = line.section(QLatin1Char(','), -1);
        if (QDateTime::fromString(time, kTimeFormat).isValid())
            times.insert(line.section(QLatin1Char(','), 0, 0), time);
    }
    return times;
}

/// "231114_221320 name" and "20231114_221320..." tell when they were begun.
QString timeInName(const QString &name)
{
    static const QRegularExpression pattern(QStringLiteral("^(\\d\\d)?(\\d{6}_\\d{6})(?!\\d)"));
    const QRegularExpressionMatch match = pattern.match(name);
    if (!match.hasMatch())
        return {};
    const QString century = match.captured(1).isEmpty() ? QStringLiteral("20") : match.captured(1);
    return QDateTime::fromString(century + match.captured(2), QStringLiteral("yyyyMMdd_hhmmss")).toString(kTimeFormat);
}

QString timeOfFile(const QByteArray &file, const QTimeZone &zone)
{
    struct stat info
    {
    };
    ::lstat(realPath(file).constData(), &info);
    return QDateTime::fromSecsSinceEpoch(info.st_mtime, zone).toString(kTimeFormat);
}

/// What rm -rf does; a link goes, not what it leads to.
bool removeWhole(const QByteArray &file)
{
    std::error_code error;
    std::filesystem::remove_all(realPath(file).toStdString(), error);
    return !error;
}

bool itemsOf(const QTimeZone &zone, QVector<StoredItem> *items)
{
    const QHash<QString, QString> times = indexedTimes();
    QVector<Entry> entries;
    const bool whole = visibleEntries(&entries);
    for (const Entry &entry : entries) {
        if (entry.type != DT_REG && entry.type != DT_DIR)
            continue;
        StoredItem item { entry.name, QFile::decodeName(entry.name), entry.type == DT_DIR, {} };
        item.time = times.value(FileInfo::entryName(item.name));
        if (item.time.isEmpty())
            item.time = timeInName(item.name);
        if (item.time.isEmpty())
            item.time = timeOfFile(entry.name, zone);
        *items << item;
    }
    return whole;
}

} // namespace

QVector<StoredItem> StoredItems::read(const QTimeZone &zone)
{
    QVector<StoredItem> items;
    itemsOf(zone, &items);
    std::sort(items.begin(), items.end(), [](const StoredItem &a, const StoredItem &b) {
        return a.time != b.time ? a.time > b.time : a.file < b.file;
    });
    return items;
}

QList<QByteArray> StoredItems::remove(const QList<QByteArray> &files)
{
    const QSet<QByteArray> busy = FilesInUse::names();
    QList<QByteArray> left;
    QStringList gone;
    // The files go first: on a full card only that makes the room which the new index needs.
    for (const QByteArray &file : files) {
        const bool plain = !file.isEmpty() && !file.startsWith('.') && !file.contains('/');
        if (plain && !busy.contains(file) && removeWhole(file))
            gone << QFile::decodeName(file);
        else
            left << file;
    }
    if (!gone.isEmpty())
        FileInfo().removeEntries(gone);
    Target::shell(QStringLiteral("sync"));
    return left;
}

bool StoredItems::removeAll()
{
    if (!FilesInUse::names().isEmpty())
        return false;
    // All names are free before the long part begins: what is recorded meanwhile may have one of them.
    QVector<Entry> entries;
    visibleEntries(&entries);
    for (const Entry &entry : entries)
        Leaving::take(entry.name);
    removeWhole(QFile::encodeName(FileInfo::indexPath().mid(FileInfo::storagePath().size())));
    Leaving::freeAll();
    Target::shell(QStringLiteral("sync"));
    QUVERA_DEBUG("format large storage!!!");
    return true;
}

void StoredItems::mendIndex(const QTimeZone &zone)
{
    QVector<StoredItem> items;
    if (!itemsOf(zone, &items))
        return; // a card that cannot be read is not an empty one
    QHash<QString, QString> present;
    for (const StoredItem &item : items)
        present.insert(FileInfo::entryName(item.name), item.time);
    FileInfo().mend(present);
    Leaving::freeAll();
}
