#include "refusedcalls.h"

#include <cerrno>
#include <cstdarg>
#include <dlfcn.h>
#include <sys/syscall.h>

int RefusedCalls::flags = 0;
int RefusedCalls::plain = -1;

namespace {

template <typename Function> Function real(const char *name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
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
    if (number == SYS_renameat2 && RefusedCalls::flags != 0) {
        errno = RefusedCalls::flags;
        return -1;
    }
    return next(number, arguments[0], arguments[1], arguments[2], arguments[3], arguments[4], arguments[5]);
}

int rename(const char *from, const char *to)
{
    static const auto next = real<int (*)(const char *, const char *)>("rename");
    if (RefusedCalls::plain >= 0 && RefusedCalls::plain-- == 0) {
        errno = EIO;
        return -1;
    }
    return next(from, to);
}
}
