#include "task/clockstep.h"

void ClockStep::begin(qint64 time, qint64 elapsed)
{
    m_time = time;
    m_elapsed = elapsed;
    m_first = true;
}

qint64 ClockStep::take(qint64 time, qint64 elapsed)
{
    // A stamp may be any number: differences wrap instead of overflowing.
    const qint64 went = qint64(quint64(time) - quint64(m_time));
    const qint64 step = qint64(quint64(went) - quint64(elapsed - m_elapsed));
    const bool isBack = m_first ? step < -kTolerance : went < -kTolerance;
    m_time = time;
    m_elapsed = elapsed;
    m_first = false;
    return isBack || step > kTolerance ? step : 0;
}
