#include "task/functions/recordclocks.h"

#include <algorithm>
#include <cmath>

qint64 intervalLimit(int interval, float frequency, double nominalFrequency)
{
    const double measured = std::fabs(double(frequency));
    const bool plausible = measured > nominalFrequency / 2 && measured < nominalFrequency * 2;
    return plausible ? qint64(interval / measured * nominalFrequency) : interval;
}

void IntervalClock::begin(qint64 limit)
{
    m_limit = limit;
    m_begun = false;
    m_passed = 0;
}

bool IntervalClock::take(qint64 time)
{
    // Any two times may come: a clock that was set, a processor that went mad.
    const double step = m_begun ? std::max(double(time) - double(m_last), 0.0) : 0.0;
    m_begun = true;
    m_last = time;
    m_passed += step;
    if (m_passed < double(m_limit - kEarly))
        return false;
    m_passed = 0;
    return true;
}

void FrequencyWindow::take(float frequency)
{
    maximum = count == 0 || frequency > maximum ? frequency : maximum;
    minimum = count == 0 || frequency < minimum ? frequency : minimum;
    sum += double(frequency);
    ++count;
}

void RecordWatchdog::begin(int intervalSeconds)
{
    m_timeout = qint64(3000) * intervalSeconds;
    restart();
}

void RecordWatchdog::restart()
{
    m_runs = true;
    m_since = m_elapsed();
    m_inRow = 0;
}

RecordWatchdog::Sign RecordWatchdog::check()
{
    const qint64 now = m_elapsed();
    if (!isRunning() || now - m_since < m_timeout)
        return Nothing;
    m_since = now;
    if (++m_inRow <= kMostInRow)
        return Lost;
    stop();
    return Interrupted;
}
