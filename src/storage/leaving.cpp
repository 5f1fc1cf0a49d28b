#include "storage/leaving.h"

#include "platform/target.h"
#include "storage/fileinfo.h"

#include <QDir>
#include <QFile>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <unistd.h>

namespace {

constexpr char kPrefix[] = ".leaving ";

QByteArray realPath(const QByteArray &name)
{
    return QFile::encodeName(Target::path(FileInfo::storagePath())) + name;
}

/// A link goes, not what it leads to.
void removeWhole(const QByteArray &path)
{
    std::error_code error;
    std::filesystem::remove_all(path.toStdString(), error);
}

/// A hidden name that nothing has, also nothing of a run of the program before.
QByteArray freeName()
{
    static std::atomic<int> number { 0 };
    QByteArray path;
    do
        path = realPath(kPrefix + QByteArray::number(++number));
    while (::access(path.constData(), F_OK) == 0);
    return path;
}

} // namespace

QByteArray Leaving::take(const QByteArray &name)
{
    const QByteArray from = realPath(name);
    const QByteArray hidden = freeName();
    if (::rename(from.constData(), hidden.constData()) == 0)
        return hidden;
    if (errno != ENOENT)
        removeWhole(from);
    return {};
}

void Leaving::free(const QByteArray &taken)
{
    if (!taken.isEmpty())
        removeWhole(taken);
}

void Leaving::freeAll()
{
    const QString pattern = QLatin1String(kPrefix) + QLatin1Char('*');
    const QDir storage(Target::path(FileInfo::storagePath()));
    for (const QString &hidden : storage.entryList({ pattern }, QDir::AllEntries | QDir::Hidden | QDir::System))
        removeWhole(QFile::encodeName(storage.filePath(hidden)));
}
