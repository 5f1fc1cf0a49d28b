#pragma once

#include "platform/clock.h"

#include <QtGlobal>

#include <functional>

/// Milliseconds of an interval that has as many cycles as \a interval ms would have at the nominal frequency. A
/// frequency that no network has, as it is measured without a voltage, counts as the nominal one.
qint64 intervalLimit(int interval, float frequency, double nominalFrequency);

/// Ends intervals by the times of the datagrams, in ms since 1970.
class IntervalClock
{
public:
    static constexpr int kEarly = 10; // ms that a datagram may come before the limit

    /// The first interval begins with the first time that is taken. \a limit in ms.
    void begin(qint64 limit);
    void setLimit(qint64 limit) { m_limit = limit; }
    /// True at the time that ends an interval; the next begins there. A clock that went back prolongs nothing.
    bool take(qint64 time);

private:
    bool m_begun = false; // a time was taken
    qint64 m_last = 0;
    double m_passed = 0; // ms since the interval began
    qint64 m_limit = 0;
};

/// Mean, maximum and minimum of a frequency.
struct FrequencyWindow
{
    void clear() { *this = FrequencyWindow(); }
    void take(float frequency);
    float mean() const { return count > 0 ? float(sum / count) : 0.0f; }

    double sum = 0;
    float maximum = 0;
    float minimum = 0;
    int count = 0;
};

/// Counts how often in a row no interval ended in the time of three.
class RecordWatchdog
{
public:
    static constexpr int kMostInRow = 9;

    /// What the moment has come for.
    enum Sign { Nothing, Lost, Interrupted };

    /// \a elapsed: ms of a clock that goes evenly.
    explicit RecordWatchdog(std::function<qint64()> elapsed = &Clock::elapsed) : m_elapsed(std::move(elapsed)) { }

    void begin(int intervalSeconds);
    /// An interval has ended; it runs from now on, also behind an interruption.
    void restart();
    void stop() { m_runs = false; }
    bool isRunning() const { return m_runs; }
    /// To be asked more often than it can fire. Interrupted, which is one more loss, stops it.
    Sign check();

private:
    std::function<qint64()> m_elapsed;
    bool m_runs = false;
    qint64 m_timeout = 0; // ms
    qint64 m_since = 0;
    int m_inRow = 0;
};
