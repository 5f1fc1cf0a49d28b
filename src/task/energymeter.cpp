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

/// What \a power makes of the energies in so many us.
void add(const PowerRow (&power)[kChannels], qint64 elapsed, EnergyRow (&energy)[kChannels])
{
    const float hours = float(double(elapsed) / 3.6e9);
    for (int c = 0; c < kChannels && elapsed > 0; ++c) {
        energy[c].active += double(hours * power[c].active);
        energy[c].apparent += double(hours * power[c].apparent);
        energy[c].reactive += double(hours * power[c].reactive);
    }
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

/// us since the last call; 0 for what is no measured time.
qint64 EnergyMeter::takeElapsed()
{
    const timeval now = Clock::timeOfDay();
    const qint64 elapsed = (qint64(now.tv_sec) - m_last.tv_sec) * kSecond + (qint64(now.tv_usec) - m_last.tv_usec);
    m_last = now;
    return elapsed < 0 || elapsed > kLongestGap ? 0 : elapsed;
}

void EnergyMeter::count(const PowerRow (&power)[kChannels], EnergyRow (&energy)[kChannels])
{
    add(power, takeElapsed(), energy);
}

void EnergyMeter::count(__datagram_aggregation &record, __power_data &shown)
{
    const qint64 elapsed = takeElapsed();
    for (m_microseconds += elapsed; m_microseconds >= kSecond; m_microseconds -= kSecond) {
        ++m_seconds;
        tick(shown);
    }
    add(record.power, elapsed, record.energy);
}
