#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QDir>
#include <QFile>
#include <QString>

#include "platform/diskworker.h"
#include "platform/target.h"
#include "storage/fileinfo.h"

/// Files of the test's own root, by the board's paths.
namespace RootFiles {

inline QByteArray read(const QString &boardPath)
{
    QFile file(Target::path(boardPath));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

inline void write(const QString &boardPath, const QByteArray &content)
{
    const QString path = Target::path(boardPath);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

/// The lines of a text file; none where it is missing.
inline QByteArrayList lines(const QString &boardPath)
{
    QFile file(Target::path(boardPath));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArrayList found = file.readAll().split('\n');
    found.removeLast(); // behind the last line feed
    return found;
}

inline bool exists(const QString &boardPath)
{
    return QFileInfo::exists(Target::path(boardPath));
}

/// Whatever is under way on the disk threads is done.
inline void waitForDisks()
{
    DiskWorker::slow().wait();
    DiskWorker::instance().wait();
}

/// Takes away everything that settings, recordings and commands left in the root.
inline void clean()
{
    waitForDisks();
    for (const char *folder : { "/mnt/userfs", "/mnt/storage", "/mnt/calibration", "/run/media" }) {
        QDir(Target::path(QString::fromLatin1(folder))).removeRecursively();
        QDir().mkpath(Target::path(QString::fromLatin1(folder)));
    }
    for (const char *folder : { "/mnt/userfs/config", "/mnt/userfs/sys/limits", "/mnt/userfs/language" })
        QDir().mkpath(Target::path(QString::fromLatin1(folder)));
    QFile::remove(Target::path("/var/log/commands"));
}

/// Lines of the storage's index, with what is under way on the disk thread.
inline QStringList index()
{
    waitForDisks();
    return FileInfo().readInfo();
}

/// Whether the index has this name.
inline bool isIndexed(const QString &name)
{
    waitForDisks();
    return FileInfo().testFileexist(name);
}

/// The commands so far, with those that were under way on the disk thread.
inline QByteArray commands()
{
    waitForDisks();
    return exists("/var/log/commands") ? read("/var/log/commands") : QByteArray();
}

} // namespace RootFiles
