#include "storage/safefile.h"

#include <QFile>

#include "platform/target.h"
#include "storage/exclusivefile.h"

#include <cerrno>
#include <cstdio>
#include <unistd.h>

namespace {

QByteArray nameOf(const QString &path)
{
    return QFile::encodeName(Target::path(path));
}

QByteArray stagingOf(const QString &path)
{
    return nameOf(path) + ".bak";
}

bool writeAll(int fd, const QByteArray &content)
{
    int done = 0;
    while (done < content.size()) {
        const ssize_t n = ::write(fd, content.constData() + done, static_cast<size_t>(content.size() - done));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        done += static_cast<int>(n);
    }
    return true;
}

} // namespace

bool SafeFile::stage(const QString &path, const QByteArray &content)
{
    const QByteArray staging = stagingOf(path);
    const int fd = openExclusively(staging);
    if (fd < 0)
        return false;
    bool ok = writeAll(fd, content) && ::fsync(fd) == 0;
    ok = ::close(fd) == 0 && ok;
    if (!ok)
        ::unlink(staging.constData()); // a short copy (full disk) must never be taken for the file
    return ok;
}

bool SafeFile::commit(const QString &path)
{
    return ::rename(stagingOf(path).constData(), nameOf(path).constData()) == 0;
}

bool SafeFile::replace(const QString &path, const QByteArray &content)
{
    return stage(path, content) && commit(path);
}
