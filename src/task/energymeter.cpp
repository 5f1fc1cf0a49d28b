#include "task/energymeter.h"

#include "platform/clock.h"

namespace {

constexpr qint64 kSecond = 1'000'000; // us
constexpr qint64 kLongestGap = 60 * kSecond;

/// Moves a clock of hours, minutes and seconds on by a second.
void tick(__power_data &clock)
{
    if (++clock.seconds <= 59)
        return;
    clock.seconds = 0;
    if (++clock.minutes <= 59)
        return;
    clock.minutes = 0;
    ++clock.hours;
}

} // namespace

void EnergyMeter::resume()
{
    m_last = Clock::timeOfDay();
}

void EnergyMeter::restart()
{
    resume();
    m_microseconds = 0;
}

void EnergyMeter::count(__datagram_aggregation &record, __power_data &shown)
{
    const timeval now = Clock::timeOfDay();
    const qint64 elapsed = (qint64(now.tv_sec) - m_last.tv_sec) * kSecond + (qint64(now.tv_usec) - m_last.tv_usec);
    m_last = now;
    if (elapsed < 0 || elapsed > kLongestGap)
        return;

    m_microseconds += elapsed;
    for (; m_microseconds >= kSecond; m_microseconds -= kSecond) {
        ++m_seconds;
        tick(shown);
    }
    const float hours = float(double(elapsed) / 3.6e9);
    for (int c = 0; c < kChannels; ++c) {
        const PowerRow &power = record.power[c];
        EnergyRow &energy = record.energy[c];
        energy.active += double(hours * power.active);
        energy.apparent += double(hours * power.apparent);
        energy.reactive += double(hours * power.reactive);
    }
}
