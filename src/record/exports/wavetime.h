#pragma once

#include "record/tables/recordsink.h"

#include <cmath>

// When the samples of a waveform were taken.
namespace WaveTime {

/// Seconds behind the first sample.
inline double secondsOfSample(const RecordedWaveform &waveform, qint64 sample)
{
    return double(sample) / waveform.sampleRate;
}

/// ms since 1970, without the parts of one; false where the stored start is no time.
inline bool ofSample(const RecordedWaveform &waveform, qint64 sample, qint64 *time)
{
    constexpr double kMost = 9e18; // ms; far inside the range of qint64
    const double ms = std::floor(waveform.start + secondsOfSample(waveform, sample) * 1000);
    if (!(std::fabs(ms) <= kMost))
        return false;
    *time = qint64(ms);
    return true;
}

} // namespace WaveTime
