#include "storage/filesinuse.h"

#include "platform/target.h"
#include "storage/fileinfo.h"

#include <QDir>
#include <QFile>

#include <array>
#include <unistd.h>

QSet<QByteArray> FilesInUse::names()
{
    // The kernel knows, whichever function of the measurement opened them; it tells paths without links in them.
    QSet<QByteArray> found;
    const QString folder = QDir(Target::path(FileInfo::storagePath())).canonicalPath();
    if (folder.isEmpty())
        return found; // there is no storage
    const QByteArray storage = QFile::encodeName(folder) + '/';
    const QString own = QStringLiteral("/proc/self/fd/");
    std::array<char, 4096> path;
    for (const QString &number : QDir(own).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)) {
        const ssize_t length = ::readlink(QFile::encodeName(own + number).constData(), path.data(), path.size());
        const QByteArray open = length > 0 ? QByteArray(path.data(), int(length)) : QByteArray();
        if (!open.startsWith(storage))
            continue;
        const int end = open.indexOf('/', storage.size());
        const QByteArray name = open.mid(storage.size(), end < 0 ? -1 : end - storage.size());
        if (!name.startsWith('.')) // the index
            found.insert(name);
    }
    return found;
}
