#pragma once

#include "model/displayrecords.h"
#include "pages/channellabels.h"

#include <cmath>

namespace UnbalanceValues {

/// Sequence components are those of three phases: with fewer there is no unbalance to show.
inline bool hasSequences()
{
    return ChannelLabels::channels().has(2);
}

/// Frequency with the sign of the lock, Hz. The record keeps the magnitude only; the live values know the sign.
inline float signedFrequency(const __unbalance_data &record)
{
    const bool lost = record.frequency < 0 || (g_vif_data && g_vif_data->frequency < 0);
    return lost ? -std::fabs(record.frequency) : record.frequency;
}

} // namespace UnbalanceValues
