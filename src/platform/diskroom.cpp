#include "platform/diskroom.h"

#include "platform/ordinaryfile.h"
#include "platform/target.h"

#include <QDirIterator>
#include <QFile>

#include <sys/vfs.h>

namespace {

/// The folder of the USB disk that a path under the root lies on; empty for every other path. Recorders ask for the
/// room before each block, so this costs no system call.
QString usbDisk(const QString &realPath)
{
    static const QString media = Target::root() + QLatin1String("/run/media/"); // the root never changes
    if (!realPath.startsWith(media))
        return QString();
    const int end = realPath.indexOf(QLatin1Char('/'), media.size());
    return end < 0 ? realPath : realPath.left(end);
}

/// The size that a disk's folder tells, bytes; 0 when it tells none.
qint64 capacityOf(const QString &disk)
{
    const QByteArray text = OrdinaryFile::start(disk + QLatin1String("/.capacity"), 32);
    return text.left(text.indexOf('\n')).trimmed().toLongLong();
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
    const QString disk = Target::root().isEmpty() ? QString() : usbDisk(path);
    const qint64 capacity = disk.isEmpty() ? 0 : capacityOf(disk);
    if (capacity <= 0 || info->f_bsize <= 0)
        return true;
    const qint64 free = qMax<qint64>(0, capacity - bytesIn(disk));
    info->f_blocks = fsblkcnt_t(capacity / info->f_bsize);
    info->f_bavail = info->f_bfree = fsblkcnt_t(free / info->f_bsize);
    return true;
}
