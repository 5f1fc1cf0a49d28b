#include "record/tables/inputfile.h"

#include "platform/ordinaryfile.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>

QString openInput(QFile *file, const QString &path, QIODevice::OpenMode more)
{
    const int fd = OrdinaryFile::open(path, O_RDONLY);
    if (fd < 0)
        return errno == EINVAL ? QStringLiteral("it is no ordinary file")
                               : QString::fromLocal8Bit(std::strerror(errno));
    file->setFileName(path);
    if (!file->open(fd, QIODevice::ReadOnly | more, QFileDevice::AutoCloseHandle))
        return QStringLiteral("it cannot be read");
    return {};
}
