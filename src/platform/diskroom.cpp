#include "platform/diskroom.h"

#include "platform/target.h"

#include <QDirIterator>
#include <QFile>

#include <sys/vfs.h>

namespace {

/// The folder of the disk that the path lies on, under the root; empty when none tells its size.
QString sizedDisk(const QString &realPath, qint64 *capacity)
{
    const QString root = Target::root();
    QString folder = QDir::cleanPath(realPath);
    while (folder.size() > root.size() && folder.startsWith(root)) {
        QFile file(folder + QLatin1String("/.capacity"));
        if (file.open(QIODevice::ReadOnly)) {
            *capacity = file.readLine(32).trimmed().toLongLong();
            return *capacity > 0 ? folder : QString();
        }
        folder.truncate(qMax(0, folder.lastIndexOf(QLatin1Char('/'))));
    }
    return QString();
}

qint64 bytesIn(const QString &folder)
{
    qint64 bytes = 0;
    // Hidden files stay out: the one that tells the size is none of the disk's own.
    QDirIterator walk(folder, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        walk.next();
        bytes += walk.fileInfo().size();
    }
    return bytes;
}

} // namespace

bool DiskRoom::ask(const QString &boardPath, struct statfs *info)
{
    const QString path = Target::path(boardPath);
    if (::statfs(QFile::encodeName(path).constData(), info) != 0)
        return false;
    qint64 capacity = 0;
    if (Target::root().isEmpty() || info->f_bsize <= 0)
        return true;
    const QString disk = sizedDisk(path, &capacity);
    if (disk.isEmpty())
        return true;
    const qint64 free = qMax<qint64>(0, capacity - bytesIn(disk));
    info->f_blocks = fsblkcnt_t(capacity / info->f_bsize);
    info->f_bavail = info->f_bfree = fsblkcnt_t(free / info->f_bsize);
    return true;
}
