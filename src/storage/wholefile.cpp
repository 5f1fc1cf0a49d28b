#include "storage/wholefile.h"

#include "platform/ordinaryfile.h"
#include "platform/target.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

WholeFile::Reading readAll(int fd, qint64 most, QByteArray *bytes)
{
    std::array<char, 64 * 1024> piece;
    for (;;) {
        const ssize_t n = ::read(fd, piece.data(), piece.size());
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return WholeFile::Failed;
        if (n == 0)
            return WholeFile::Read;
        if (bytes->size() + n > most)
            return WholeFile::TooLarge;
        bytes->append(piece.data(), static_cast<int>(n));
    }
}

} // namespace

WholeFile::Reading WholeFile::read(const QString &path, qint64 most, QByteArray *bytes)
{
    bytes->clear();
    const int fd = OrdinaryFile::open(Target::path(path), O_RDONLY);
    if (fd < 0)
        return errno == ENOENT || errno == ENOTDIR ? Missing : errno == EIO ? Failed : Refused;
    const Reading how = readAll(fd, most, bytes);
    ::close(fd);
    if (how != Read)
        bytes->clear();
    return how;
}
