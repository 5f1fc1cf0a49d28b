#pragma once

#include <csignal>
#include <sys/resource.h>

/// While it lives, no file of this process can grow beyond a size: a disk that is full at that byte.
class FileLimit
{
public:
    explicit FileLimit(rlim_t bytes)
    {
        ::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_old);
        rlimit limit = m_old;
        limit.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileLimit() { ::setrlimit(RLIMIT_FSIZE, &m_old); }

private:
    rlimit m_old {};
};
