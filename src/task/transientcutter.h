#pragma once

#include "model/displayrecords.h"

/// Cuts the 600 samples around a transient out of a wave datagram. Pure functions of records.
namespace TransientCutter {

constexpr int kSamples = 600;
constexpr int kLead = 301; // samples in front of the transient
constexpr int kLastStart = kWaveSamples - kSamples - 1; // 3495
constexpr double kSampleTime = 200.0 * 0.000244140625; // ms: 4096 samples in 200 ms

/// Channel code in the high byte of \a word; 0: no transient.
inline int channelCode(quint32 word)
{
    return int(word >> 24);
}
/// Sample position in the low 24 bits of \a word.
inline int samplePosition(quint32 word)
{
    return int(word & 0x00FFFFFF);
}

/// First sample of the window for a transient at \a position: 0 to 3495.
int windowStart(int position);
/// Fills time, position and samples of \a record from the transient word of \a wave.
void cut(const __datagram_wave &wave, __trans_data &record);

} // namespace TransientCutter
