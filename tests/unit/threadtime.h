#pragma once

#include <ctime>

/// What the calling thread itself has worked since this was made: a busy machine changes nothing of it, and waiting
/// costs nothing.
class ThreadTime
{
public:
    ThreadTime() : m_begin(now()) { }
    double ms() const { return now() - m_begin; }

private:
    static double now()
    {
        timespec time {};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return 1e3 * double(time.tv_sec) + 1e-6 * double(time.tv_nsec);
    }

    double m_begin;
};
