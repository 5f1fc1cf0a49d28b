#include "refusedcalls.h"

#include <cerrno>
#include <cstdarg>
#include <dlfcn.h>
#include <sys/syscall.h>
#include <unistd.h>

int RefusedCalls::flags = 0;
int RefusedCalls::plain = -1;
int RefusedCalls::write = 1;
int RefusedCalls::close = 0;
int RefusedCalls::sync = 0;

namespace {

template <typename Function> Function real(const char *name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

/// Answers as a call that was refused does.
int refused(int reason)
{
    errno = reason;
    return -1;
}

} // namespace

extern "C" {

long syscall(long number, ...)
{
    static const auto next = real<long (*)(long, ...)>("syscall");
    long arguments[6];
    va_list list;
    va_start(list, number);
    for (long &argument : arguments)
        argument = va_arg(list, long);
    va_end(list);
    if (number == SYS_renameat2 && RefusedCalls::flags != 0)
        return refused(RefusedCalls::flags);
    return next(number, arguments[0], arguments[1], arguments[2], arguments[3], arguments[4], arguments[5]);
}

int rename(const char *from, const char *to)
{
    static const auto next = real<int (*)(const char *, const char *)>("rename");
    if (RefusedCalls::plain >= 0 && RefusedCalls::plain-- == 0)
        return refused(EIO);
    return next(from, to);
}

ssize_t write(int file, const void *data, size_t size)
{
    static const auto next = real<ssize_t (*)(int, const void *, size_t)>("write");
    const int answer = RefusedCalls::write;
    RefusedCalls::write = 1;
    return answer == 1 ? next(file, data, size) : answer == 0 ? 0 : refused(-answer);
}

int close(int file)
{
    static const auto next = real<int (*)(int)>("close");
    const int reason = RefusedCalls::close;
    RefusedCalls::close = 0;
    const int answer = next(file);
    return reason == 0 ? answer : refused(reason);
}

int fsync(int file)
{
    static const auto next = real<int (*)(int)>("fsync");
    return RefusedCalls::sync == 0 ? next(file) : refused(RefusedCalls::sync);
}

int syncfs(int file) noexcept
{
    static const auto next = real<int (*)(int)>("syncfs");
    return RefusedCalls::sync == 0 ? next(file) : refused(RefusedCalls::sync);
}
}
