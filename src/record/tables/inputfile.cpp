#include "record/tables/inputfile.h"

#include "platform/ordinaryfile.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>

QString openInput(QFile *file, const QString &path)
{
    const int fd = OrdinaryFile::open(path, O_RDONLY);
    if (fd < 0)
        return errno == EINVAL ? QStringLiteral("it is no ordinary file")
                               : QString::fromLocal8Bit(std::strerror(errno));
    file->setFileName(path);
    // Whoever reads has windows of his own.
    if (!file->open(fd, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle))
        return QStringLiteral("it cannot be read");
    return {};
}
