#pragma once

#include "model/datagramrecords.h"
#include "model/displayrecords.h"
#include "task/rmsring.h"

struct DisplayRecords;

/// Half-cycle values of the measured phases on their way into the trends of dips and inrush, and their means for the
/// mains-signalling page.
class HalfCycleTrends
{
public:
    /// Longest trends, in values.
    struct Limits
    {
        int dips;
        int inrush;
    };

    /// Takes a datagram in: means at once, values into the rings. \a channels: phases that are measured, 1 to 3.
    void push(const __datagram_rms &record, int channels, __mains_sig_data &means);
    /// Moves what the rings hold to the end of the trends.
    void drain(int channels, const Limits &limits, DisplayRecords &live);

private:
    RmsRing m_rings[2 * kChannels]; // voltages, then currents
};
