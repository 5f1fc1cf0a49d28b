#include "task/transientcutter.h"

#include <algorithm>
#include <cstring>

namespace TransientCutter {

int windowStart(int position)
{
    return std::clamp(position - kLead, 0, kLastStart);
}

void cut(const __datagram_wave &wave, __trans_data &record)
{
    const int position = samplePosition(wave.transient);
    const int start = windowStart(position);
    record.position = (quint32(position - start) & 0x00FFFFFF) | (wave.transient & 0xFF000000);
    record.time = double(wave.time) + start * kSampleTime;
    for (int c = 0; c < kChannels; ++c)
        std::memcpy(record.samples[c], wave.voltage[c] + start, sizeof(record.samples[c]));
}

} // namespace TransientCutter
