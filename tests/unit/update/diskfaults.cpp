// Stands between a program and the C library: counts the calls that change a disk, and lets one of them fail or ends
// the program right before it. Loaded by LD_PRELOAD. DISK_LOG names a file that gets one line for each call: the call,
// the path of its descriptor, and the name below it. DISK_KILL and DISK_FAIL hold the number of a call, from 1. A write
// before which the program ends writes half of its bytes. DISK_MISREAD holds the place of a byte: the first read of it
// from a package gives another value than all that follow.
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

template <typename Function> Function next(const char *name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

using Write = ssize_t (*)(int, const void *, size_t);
using Open = int (*)(const char *, int, ...);

int numberFrom(const char *variable)
{
    const char *text = std::getenv(variable);
    return text ? std::atoi(text) : 0;
}

struct Path
{
    explicit Path(int descriptor)
    {
        char link[64];
        std::snprintf(link, sizeof(link), "/proc/self/fd/%d", descriptor);
        (void)!::readlink(link, text, sizeof(text) - 1);
    }
    bool isPackage() const { return std::strstr(text, ".upd") != nullptr; }

    char text[512] = {};
};

void note(const char *call, int descriptor, const char *name)
{
    static const char *const file = std::getenv("DISK_LOG");
    if (!file)
        return;
    static const int log = next<Open>("open")(file, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    char line[1200];
    const int size = std::snprintf(line, sizeof(line), "%s %s %s\n", call, Path(descriptor).text, name);
    (void)!next<Write>("write")(log, line, size_t(size));
}

enum Fate { GoesOn, Fails, Ends };

Fate fate(const char *call, int descriptor, const char *name)
{
    static int calls = 0;
    static const int kill = numberFrom("DISK_KILL"), fail = numberFrom("DISK_FAIL");
    note(call, descriptor, name);
    ++calls;
    return calls == kill ? Ends : calls == fail ? Fails : GoesOn;
}

/// Whether the call is to fail. The program may end here.
bool fails(const char *call, int descriptor, const char *name)
{
    const Fate now = fate(call, descriptor, name);
    if (now == Ends)
        ::raise(SIGKILL);
    if (now == Fails)
        errno = EIO;
    return now == Fails;
}

} // namespace

extern "C" {

int openat(int folder, const char *name, int flags, ...)
{
    mode_t mode = 0;
    if (flags & O_CREAT) {
        va_list arguments;
        va_start(arguments, flags);
        mode = va_arg(arguments, mode_t);
        va_end(arguments);
        if (fails("create", folder, name))
            return -1;
    }
    return next<int (*)(int, const char *, int, ...)>("openat")(folder, name, flags, mode);
}

ssize_t write(int fd, const void *data, size_t size)
{
    static const Write real = next<Write>("write");
    if (fd <= STDERR_FILENO)
        return real(fd, data, size);
    const Fate now = fate("write", fd, "");
    if (now == Ends) {
        (void)!real(fd, data, size / 2);
        ::raise(SIGKILL);
    }
    if (now == GoesOn)
        return real(fd, data, size);
    errno = ENOSPC;
    return -1;
}

ssize_t pread(int fd, void *data, size_t size, off_t offset)
{
    static int place = std::getenv("DISK_MISREAD") ? numberFrom("DISK_MISREAD") : -1;
    const ssize_t got = next<ssize_t (*)(int, void *, size_t, off_t)>("pread")(fd, data, size, offset);
    if (place >= offset && place < offset + got && Path(fd).isPackage()) {
        static_cast<char *>(data)[place - offset] ^= 0x40;
        place = -1;
    }
    return got;
}

int fsync(int fd)
{
    return fails("fsync", fd, "") ? -1 : next<int (*)(int)>("fsync")(fd);
}

int mkdirat(int folder, const char *name, mode_t mode)
{
    return fails("mkdir", folder, name) ? -1 : next<int (*)(int, const char *, mode_t)>("mkdirat")(folder, name, mode);
}

int symlinkat(const char *target, int folder, const char *name)
{
    using Symlink = int (*)(const char *, int, const char *);
    return fails("symlink", folder, name) ? -1 : next<Symlink>("symlinkat")(target, folder, name);
}

int renameat(int from, const char *name, int to, const char *newName)
{
    using Rename = int (*)(int, const char *, int, const char *);
    return fails("rename", to, newName) ? -1 : next<Rename>("renameat")(from, name, to, newName);
}

int unlinkat(int folder, const char *name, int flags)
{
    return fails("unlink", folder, name) ? -1 : next<int (*)(int, const char *, int)>("unlinkat")(folder, name, flags);
}

} // extern "C"
