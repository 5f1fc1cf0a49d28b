#pragma once

#include "model/livedata.h"
#include "pages/channellabels.h"

#include <cmath>

namespace UnbalanceValues {

/// Sequence components are those of three phases: with fewer there is no unbalance to show.
inline bool hasSequences()
{
    return ChannelLabels::channels().has(2);
}

/// Frequency with the sign of the lock, Hz. The function's own record keeps the magnitude only; that of volts, amperes
/// and hertz knows the sign.
inline float signedFrequency(const DisplayRecords &shown)
{
    const float frequency = shown.unbalance.frequency;
    return frequency < 0 || shown.vif.frequency < 0 ? -std::fabs(frequency) : frequency;
}

} // namespace UnbalanceValues
