#pragma once

#include "metrology/samplestore.h"
#include "metrology/setup.h"

#include <array>
#include <cstdint>

namespace processor {

/// Turns converter samples into measured channels: takes the zero offsets off, integrates the signal of Rogowski clamps
/// and combines channels where the wiring asks for it.
///
/// Delta wirings measure U12, U23, U31 from the three inputs. The instrument multiplies channel k by the absolute gain
/// of channel k; the set-up gives gains relative to channel 0. So U12 = (g0 u1 - g1 u2) / g0, U23 = (g1 u2 - g2 u3) /
/// g1 and U31 = (g2 u3 - g0 u1) / g2 come out in the unit of the channel that carries them. The two elements that are
/// calculated, U2 = -(g0 u1 + g2 u3) / g1 and I2 = -(h0 i1 + h2 i3) / h1, follow the same rule.
class Conditioner
{
public:
    void setSetup(const ProcessorSetup &setup);
    /// Starts the integrators anew.
    void reset();
    /// Writes n frames from n samples of each input.
    void condition(const std::int16_t *const samples[Channels], SampleStore::Frame *out, int n);

private:
    void combine(SampleStore::Frame *frames, int n) const;
    void integrate(SampleStore::Frame *frames, int n);

    ProcessorSetup m_setup;
    std::array<float, Channels> m_zero {};
    std::array<double, 3> m_integral {};
};

} // namespace processor
