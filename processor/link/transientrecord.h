#pragma once

#include "metrology/measurementsink.h"

#include <QtGlobal>

#include <array>

namespace wire {

constexpr int kTransientSamples = 2000; // of each voltage
constexpr int kTransientLead = 500; // samples shown of what was before

/// What a transient datagram carries (4003 words): the voltages around the transient, cut out of the wave of its slot.
struct TransientPayload
{
    quint32 transient; // as in the wave: channel code in the high 8 bits, its sample in the wave in the low 24
    quint32 first; // sample of the wave that stands first here
    quint32 reserved; // 0
    std::array<std::array<qint16, kTransientSamples>, 4> voltage; // L1, L2, L3, N
};
static_assert(sizeof(TransientPayload) == 4003 * 4, "wire layout");

/// Cuts the record of \a wave's transient. Near an end of the wave the record moves inwards, so that it is always full.
void cutTransient(const processor::WavePayload &wave, TransientPayload *record);

} // namespace wire
