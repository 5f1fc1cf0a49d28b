#include "metrology/setup.h"

#include <cmath>
#include <cstring>

namespace processor {

namespace {

float floatOf(std::uint32_t word, float fallback)
{
    float value;
    std::memcpy(&value, &word, sizeof(value));
    return std::isfinite(value) ? value : fallback;
}

} // namespace

bool decodeSetup(const std::uint32_t *words, std::size_t n, ProcessorSetup &setup)
{
    if (n != SetupWords)
        return false;
    const std::uint32_t frequency = words[0] >> 16;
    const std::uint32_t code = words[0] & 0x7fffu;
    if ((frequency != 50 && frequency != 60 && frequency != 400) || code > 4)
        return false;
    const ProcessorSetup defaults;
    ProcessorSetup s;
    s.nominalFrequency = static_cast<int>(frequency);
    s.flexibleClamp = (words[0] & 0x8000u) != 0;
    s.wiring = static_cast<Wiring>(code);
    for (std::size_t k = 0; k < 4; ++k) {
        s.voltageZero[k] = floatOf(words[1 + k], 0.0f);
        s.currentZero[k] = floatOf(words[5 + k], 0.0f);
        const float u = floatOf(words[9 + k], 1.0f);
        const float i = floatOf(words[13 + k], 1.0f);
        s.voltageGain[k] = u != 0.0f ? u : 1.0f;
        s.currentGain[k] = i != 0.0f ? i : 1.0f;
    }
    s.transientThreshold = floatOf(words[17], defaults.transientThreshold);
    s.flickerCurve = words[18] == 230 ? 230 : 120;
    s.signallingFrequency[0] = floatOf(words[19], defaults.signallingFrequency[0]);
    s.signallingFrequency[1] = floatOf(words[20], defaults.signallingFrequency[1]);
    setup = s;
    return true;
}

} // namespace processor
