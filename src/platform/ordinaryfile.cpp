#include "platform/ordinaryfile.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

// A recording may outgrow 2 GiB. Where an offset has 32 bits, _FILE_OFFSET_BITS=64 is to be defined for all sources.
static_assert(sizeof(off_t) == 8, "files beyond 2 GiB need offsets of 64 bits");

namespace {

/// Writes all bytes to a descriptor and closes it; false where it is none.
bool writtenAndClosed(int fd, const QByteArray &bytes)
{
    if (fd < 0)
        return false;
    const bool whole = ::write(fd, bytes.constData(), std::size_t(bytes.size())) == bytes.size();
    ::close(fd);
    return whole;
}

} // namespace

namespace OrdinaryFile {

int open(const QString &path, int flags)
{
    const int fd = ::open(QFile::encodeName(path).constData(), flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd < 0)
        return -1;
    struct stat info
    {
    };
    if (::fstat(fd, &info) == 0 && S_ISREG(info.st_mode))
        return fd;
    ::close(fd);
    errno = EINVAL;
    return -1;
}

QByteArray start(const QString &path, int most)
{
    const int fd = open(path, O_RDONLY);
    if (fd < 0)
        return {};
    QByteArray bytes(most, Qt::Uninitialized);
    const ssize_t length = ::read(fd, bytes.data(), std::size_t(most));
    ::close(fd);
    bytes.truncate(int(std::max<ssize_t>(length, 0)));
    return bytes;
}

bool write(const QString &path, const QByteArray &bytes)
{
    return writtenAndClosed(open(path, O_WRONLY), bytes);
}

bool echo(const QString &path, const QByteArray &bytes)
{
    constexpr int kFlags = O_WRONLY | O_CREAT | O_TRUNC | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    return writtenAndClosed(::open(QFile::encodeName(path).constData(), kFlags, 0666), bytes);
}

bool isSomethingElse(const QString &path)
{
    struct stat info
    {
    };
    return ::stat(QFile::encodeName(path).constData(), &info) == 0 && !S_ISREG(info.st_mode);
}

} // namespace OrdinaryFile
