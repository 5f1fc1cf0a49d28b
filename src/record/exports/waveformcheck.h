#pragma once

#include "record/tables/recordsink.h"

#include <cmath>

// What of a broken recording has no place in formats with calendars and clocks of their own.

/// Whether a time in ms since 1970 lies in the years 1970 to 9999.
inline bool isCalendarTime(double ms)
{
    constexpr double kEnd = 253402300799.0 * 1e3;
    return std::isfinite(ms) && ms >= 0 && ms < kEnd;
}

/// Whether samples have a distance that clocks can tell.
inline bool hasUsableRate(const RecordedWaveform &waveform)
{
    constexpr double kLeast = 1, kMost = 1e9; // per second; no instrument's rate lies outside
    return waveform.sampleRate >= kLeast && waveform.sampleRate <= kMost;
}

/// Whether samples of this input can be turned into values; otherwise they are handed on as they are, without a unit.
inline bool hasFactor(const RecordedWaveform::Channel &channel)
{
    return std::isfinite(channel.factor) && channel.factor != 0;
}
