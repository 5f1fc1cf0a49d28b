#pragma once

#include <QDateTime>
#include <QtGlobal>

#include <sys/time.h>

/// The time of day for everything that stamps, plans or measures. It is the system clock, unless a test holds it.
/// Any thread may call any function.
class Clock
{
public:
    /// ms since 1970.
    static qint64 msecs();
    /// Whole seconds since 1970.
    static quint32 seconds();
    /// The same moment as a date in the process's own zone; turn it into the user's zone before it is shown.
    static QDateTime now();
    /// The same moment for frames and headers that carry seconds and microseconds.
    static timeval timeOfDay();

    /// Stops the clock at `ms` since 1970, until useSystem().
    static void setForTest(qint64 ms);
    /// Moves a stopped clock by `ms`; a running clock is stopped at its present moment plus `ms`.
    static void advance(qint64 ms);
    /// Back to the system clock.
    static void useSystem();
};
