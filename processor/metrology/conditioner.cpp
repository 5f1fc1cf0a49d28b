#include "metrology/conditioner.h"

#include "signal/angles.h"
#include "signal/synthesiser.h"
#include "signal/vectorcode.h"

#include <cmath>

namespace processor {

namespace {

constexpr float UnitsPerStep = 10.0f / 32768.0f;
// The integrators forget with this corner frequency, so that an offset of the converter cannot run away.
constexpr double IntegratorCorner = 0.1; // Hz

} // namespace

void Conditioner::setSetup(const ProcessorSetup &setup)
{
    if (setup.flexibleClamp != m_setup.flexibleClamp)
        m_integral.fill(0.0);
    m_setup = setup;
    for (std::size_t k = 0; k < 4; ++k) {
        m_zero[k] = setup.voltageZero[k];
        m_zero[k + 4] = setup.currentZero[k];
    }
}

void Conditioner::reset()
{
    m_integral.fill(0.0);
}

PROCESSOR_VECTOR_CODE void Conditioner::condition(const std::int16_t *const samples[Channels], SampleStore::Frame *out,
                                                  int n)
{
    for (std::size_t c = 0; c < Channels; ++c) {
        const std::int16_t *in = samples[c];
        const float zero = m_zero[c];
        for (int i = 0; i < n; ++i)
            out[i][c] = static_cast<float>(in[i]) * UnitsPerStep - zero;
    }
    if (m_setup.flexibleClamp)
        integrate(out, n);
    combine(out, n);
}

// The inverse of the difference that a Rogowski coil delivers, with unit gain at the nominal frequency. A value stands
// half a sample after the middle of its difference; the running sum brings it back to the current's own sample.
void Conditioner::integrate(SampleStore::Frame *frames, int n)
{
    const double gain = TwoPi * m_setup.nominalFrequency / SampleRate;
    const double keep = std::exp(-TwoPi * IntegratorCorner / SampleRate);
    for (std::size_t k = 0; k < 3; ++k) {
        double sum = m_integral[k];
        for (int i = 0; i < n; ++i) {
            sum = keep * sum + gain * static_cast<double>(frames[i][4 + k]);
            frames[i][4 + k] = static_cast<float>(sum);
        }
        m_integral[k] = sum;
    }
}

void Conditioner::combine(SampleStore::Frame *frames, int n) const
{
    const std::array<float, 4> &g = m_setup.voltageGain;
    const std::array<float, 4> &h = m_setup.currentGain;
    if (m_setup.isDelta()) {
        for (int i = 0; i < n; ++i) {
            const float u1 = g[0] * frames[i][0];
            const float u2 = g[1] * frames[i][1];
            const float u3 = g[2] * frames[i][2];
            frames[i][0] = (u1 - u2) / g[0];
            frames[i][1] = (u2 - u3) / g[1];
            frames[i][2] = (u3 - u1) / g[2];
        }
    }
    if (m_setup.wiring == Wiring::TwoElement) {
        for (int i = 0; i < n; ++i)
            frames[i][5] = -(h[0] * frames[i][4] + h[2] * frames[i][6]) / h[1];
    }
    if (m_setup.wiring == Wiring::TwoAndHalfElement) {
        for (int i = 0; i < n; ++i)
            frames[i][1] = -(g[0] * frames[i][0] + g[2] * frames[i][2]) / g[1];
    }
}

} // namespace processor
