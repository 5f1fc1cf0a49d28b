#include "platform/clock.h"

#include <atomic>
#include <chrono>
#include <limits>

namespace {
constexpr qint64 kRunning = std::numeric_limits<qint64>::min();
std::atomic<qint64> heldAt { kRunning }; // ms since 1970, or kRunning
std::atomic<qint64> heldElapsed { 0 }; // ms, while the clock is held

qint64 steadyMsecs()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}
}

qint64 Clock::msecs()
{
    const qint64 held = heldAt.load();
    return held == kRunning ? QDateTime::currentMSecsSinceEpoch() : held;
}

quint32 Clock::seconds()
{
    return static_cast<quint32>(msecs() / 1000);
}

QDateTime Clock::now()
{
    return QDateTime::fromMSecsSinceEpoch(msecs());
}

timeval Clock::timeOfDay()
{
    timeval time {};
    if (heldAt.load() == kRunning) {
        gettimeofday(&time, nullptr);
    } else {
        const qint64 ms = msecs();
        time.tv_sec = ms / 1000;
        time.tv_usec = (ms % 1000) * 1000;
    }
    return time;
}

qint64 Clock::elapsed()
{
    return heldAt.load() == kRunning ? steadyMsecs() : heldElapsed.load();
}

void Clock::setForTest(qint64 ms)
{
    heldElapsed = elapsed();
    heldAt = ms;
}

void Clock::advance(qint64 ms)
{
    heldElapsed = elapsed() + ms;
    heldAt = msecs() + ms;
}

void Clock::useSystem()
{
    heldAt = kRunning;
}
