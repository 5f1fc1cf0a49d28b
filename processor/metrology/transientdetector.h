#pragma once

#include "metrology/samplestore.h"

#include <cstdint>

namespace processor {

/// Finds transients of the phase voltages in a stretch of samples.
///
/// The expected waveform at a moment is that of a cycle before, or of two cycles before, or of a cycle after: a sample
/// is part of a transient when it lies further than the threshold from all three. What stays (the edge of a dip or a
/// phase jump that lasts a cycle or more) agrees with the cycle after, and the echo of a transient one cycle later
/// agrees with the cycle before it; what repeats in every cycle (notches, harmonics) agrees with all.
class TransientDetector
{
public:
    /// Word of the wave payload for the `count` frames from `first` on, at `period` frames a cycle: channel code 1 to 3
    /// in the high 8 bits and the first frame past the threshold, counted from `first`, in the low 24; 0 for none. The
    /// store holds two cycles before and one after the stretch; where it does not, frames are left out. The earliest
    /// transient wins, at the same frame the lowest channel.
    static std::uint32_t find(const SampleStore &store, std::int64_t first, int count, double period, float threshold);
};

} // namespace processor
