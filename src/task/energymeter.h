#pragma once

#include "model/datagramrecords.h"
#include "model/displayrecords.h"

#include <sys/time.h>

/// Counts energy and the seconds of its counting, from one aggregation to the next by the time of day.
class EnergyMeter
{
public:
    /// Counting goes on from now: what passed since the last aggregation is not counted.
    void resume();
    /// Forgets the part of a second, too.
    void restart();
    /// Counts what passed since the last call into the energies of \a record and the run-time clock of \a shown. A gap
    /// of more than 60 s, or one that goes back, is a step of the clock or a lost link and counts nothing.
    void count(__datagram_aggregation &record, __power_data &shown);
    /// The same for \a power alone.
    void count(const PowerRow (&power)[kChannels], EnergyRow (&energy)[kChannels]);
    int seconds() const { return m_seconds; } // counted since the task was made

private:
    qint64 takeElapsed();

    timeval m_last = {}; // of the last aggregation
    qint32 m_seconds = 0;
    qint64 m_microseconds = 0; // rest below a second
};
