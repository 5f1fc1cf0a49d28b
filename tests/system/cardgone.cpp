// Loaded in front of the instrument: while the file "card-gone" lies in its root, every call for what is on its card
// fails as it does when somebody has taken the card out. While "disk-slow" lies there, what is written to a disk waits.
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace {

constexpr std::size_t kPath = 4096;

template <typename Function> Function next(const char *name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

/// Whether a path lies below a folder of the board.
bool isBelow(const char *folder, const char *path)
{
    const char *root = std::getenv("QUVERA_ROOT");
    char whole[kPath];
    const int length = root ? std::snprintf(whole, sizeof whole, "%s%s", root, folder) : 0;
    return length > 0 && std::strncmp(path, whole, std::size_t(length)) == 0;
}

/// Whether a file of that name lies in the root.
bool isMarked(const char *name)
{
    const char *root = std::getenv("QUVERA_ROOT");
    char mark[kPath];
    return root && std::snprintf(mark, sizeof mark, "%s/%s", root, name) > 0 && ::access(mark, F_OK) == 0;
}

/// Whether a call for this file fails; errno says so then.
bool fails(const char *path)
{
    if (!isBelow("/mnt/storage", path) || !isMarked("card-gone"))
        return false;
    errno = EIO;
    return true;
}

/// Where an open file lies now; false when that is not known.
bool find(int descriptor, char (&path)[kPath])
{
    char link[64];
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", descriptor);
    const ssize_t length = ::readlink(link, path, sizeof path - 1);
    path[length > 0 ? length : 0] = '\0';
    return length > 0;
}

bool fails(int descriptor)
{
    char path[kPath];
    return find(descriptor, path) && fails(path);
}

/// Until the mark is gone, or the disk is.
void waitForDisk(int descriptor)
{
    char path[kPath];
    while (find(descriptor, path) && isBelow("/run/media", path) && isMarked("disk-slow"))
        ::usleep(1000);
}

} // namespace

extern "C" {

int open64(const char *path, int flags, ...)
{
    static const auto real = next<int (*)(const char *, int, ...)>("open64");
    unsigned mode = 0;
    if (flags & O_CREAT) {
        va_list rest;
        va_start(rest, flags);
        mode = va_arg(rest, unsigned);
        va_end(rest);
    }
    return fails(path) ? -1 : real(path, flags, mode);
}

int open(const char *path, int flags, ...) __attribute__((alias("open64")));

ssize_t write(int descriptor, const void *data, size_t size)
{
    static const auto real = next<ssize_t (*)(int, const void *, size_t)>("write");
    waitForDisk(descriptor);
    return fails(descriptor) ? -1 : real(descriptor, data, size);
}

int ftruncate64(int descriptor, off64_t size) noexcept
{
    static const auto real = next<int (*)(int, off64_t)>("ftruncate64");
    return fails(descriptor) ? -1 : real(descriptor, size);
}

int fsync(int descriptor)
{
    static const auto real = next<int (*)(int)>("fsync");
    return fails(descriptor) ? -1 : real(descriptor);
}

int rename(const char *from, const char *to) noexcept
{
    static const auto real = next<int (*)(const char *, const char *)>("rename");
    return fails(from) || fails(to) ? -1 : real(from, to);
}

int unlink(const char *path) noexcept
{
    static const auto real = next<int (*)(const char *)>("unlink");
    return fails(path) ? -1 : real(path);
}

int mkdir(const char *path, mode_t mode) noexcept
{
    static const auto real = next<int (*)(const char *, mode_t)>("mkdir");
    return fails(path) ? -1 : real(path, mode);
}

int statfs(const char *path, struct statfs *info) noexcept
{
    static const auto real = next<int (*)(const char *, struct statfs *)>("statfs");
    return fails(path) ? -1 : real(path, info);
}
}
