#include "link/transientrecord.h"

#include <algorithm>

namespace wire {

void cutTransient(const processor::WavePayload &wave, TransientPayload *record)
{
    const int sample = int(wave.transient & 0x00FFFFFFu);
    const int first = std::clamp(sample - kTransientLead, 0, processor::WaveSamples - kTransientSamples);
    record->transient = wave.transient;
    record->first = quint32(first);
    record->reserved = 0;
    for (std::size_t k = 0; k < record->voltage.size(); ++k)
        std::copy_n(wave.pair[k].voltage.begin() + first, kTransientSamples, record->voltage[k].begin());
}

} // namespace wire
