#pragma once

#include <chrono>

namespace scenario {

/// Says when simulated time may go on: an absolute schedule on the steady clock, so that nothing drifts.
class Pacer
{
public:
    using Clock = std::chrono::steady_clock;
    using Nanoseconds = std::chrono::nanoseconds;

    /// Falling behind by more than this moves the schedule instead of being made up by a burst.
    static constexpr double kMaxLateSeconds = 0.5;

    explicit Pacer(double speed = 1.0) : m_speed(speed) { }

    /// Lays \a simulatedSeconds on the moment \a now.
    void start(double simulatedSeconds, Clock::time_point now);
    void setSpeed(double speed, double simulatedSeconds, Clock::time_point now);
    double speed() const { return m_speed; }

    /// How long from \a now until \a simulatedSeconds is due; 0 when it is.
    Nanoseconds wait(double simulatedSeconds, Clock::time_point now);

    /// Host seconds by which the schedule was moved so far, because the machine did not keep up.
    double lateSeconds() const { return m_late; }

private:
    double m_speed;
    double m_simulatedStart = 0.0;
    Clock::time_point m_start;
    double m_late = 0.0;
};

} // namespace scenario
