#include "refusedcalls.h"

#include <cerrno>
#include <cstdarg>
#include <dlfcn.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>

RefusedCalls g_refused;

namespace {

template <typename Function> Function *real(const char *name)
{
    return reinterpret_cast<Function *>(::dlsym(RTLD_NEXT, name));
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
    static const auto next = real<long(long, ...)>("syscall");
    long arguments[6]; // the most that any call has: which of them were handed in the kernel knows
    va_list list;
    va_start(list, number);
    for (long &argument : arguments)
        argument = va_arg(list, long);
    va_end(list);
    if (number == SYS_renameat2 && g_refused.renameWithFlags != 0)
        return refused(g_refused.renameWithFlags);
    return next(number, arguments[0], arguments[1], arguments[2], arguments[3], arguments[4], arguments[5]);
}

int rename(const char *from, const char *to)
{
    static const auto next = real<int(const char *, const char *)>("rename");
    if (g_refused.plainRename >= 0 && g_refused.plainRename-- == 0)
        return refused(EIO);
    return next(from, to);
}

ssize_t write(int file, const void *data, size_t size)
{
    static const auto next = real<ssize_t(int, const void *, size_t)>("write");
    if (std::exchange(g_refused.nextWriteTakesNothing, false))
        return 0;
    const int reason = std::exchange(g_refused.nextWrite, 0);
    return reason == 0 ? next(file, data, size) : refused(reason);
}

int close(int file)
{
    static const auto next = real<int(int)>("close");
    const int reason = std::exchange(g_refused.nextClose, 0);
    const int answer = next(file); // a close that fails has closed all the same
    return reason == 0 ? answer : refused(reason);
}

int fsync(int file)
{
    static const auto next = real<int(int)>("fsync");
    return g_refused.sync == 0 ? next(file) : refused(g_refused.sync);
}

int syncfs(int file) noexcept
{
    static const auto next = real<int(int)>("syncfs");
    return g_refused.sync == 0 ? next(file) : refused(g_refused.sync);
}
}
