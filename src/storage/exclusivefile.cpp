#include "storage/exclusivefile.h"

#include <QByteArray>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

int openExclusively(const QByteArray &name)
{
    constexpr mode_t kMode = 0644;
    if (::unlink(name.constData()) != 0 && errno != ENOENT)
        return -1;
    return ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kMode);
}
