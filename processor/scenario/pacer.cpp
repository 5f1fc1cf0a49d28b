#include "scenario/pacer.h"

namespace scenario {

void Pacer::start(double simulatedSeconds, Clock::time_point now)
{
    m_simulatedStart = simulatedSeconds;
    m_start = now;
}

void Pacer::setSpeed(double speed, double simulatedSeconds, Clock::time_point now)
{
    m_speed = speed;
    start(simulatedSeconds, now);
}

Pacer::Nanoseconds Pacer::wait(double simulatedSeconds, Clock::time_point now)
{
    const double passed = std::chrono::duration<double>(now - m_start).count();
    const double left = (simulatedSeconds - m_simulatedStart) / m_speed - passed;
    if (left < -kMaxLateSeconds) {
        m_late -= left;
        m_start = now;
        m_simulatedStart = simulatedSeconds;
    }
    return left <= 0.0 ? Nanoseconds(0) : Nanoseconds(long(left * 1e9));
}

} // namespace scenario
