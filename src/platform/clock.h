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
    /// ms since some moment before the start of the program: goes on evenly, whatever the time of day is set to.
    static qint64 elapsed();

    /// Stops the clock at `ms` since 1970, until useSystem(). For elapsed() no time passes: the time of day was set.
    static void setForTest(qint64 ms);
    /// Lets `ms` pass on a stopped clock; a running clock is stopped at its present moment plus `ms`.
    static void advance(qint64 ms);
    /// Back to the system clock.
    static void useSystem();
};
