// A recorded file of any kind, by its first bytes: a recording as tables, a saved page, lines of the logger.
#include "fuzz/recordinput.h"

#include <sys/mman.h>
#include <unistd.h>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const int fd = ::memfd_create("record", MFD_CLOEXEC);
    FuzzTarget::expect(fd >= 0 && ::write(fd, data, size) == ssize_t(size), "a file in memory");
    readRecord(QStringLiteral("/proc/self/fd/%1").arg(fd));
    ::close(fd);
    return 0;
}
