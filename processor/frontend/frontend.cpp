#include "frontend/frontend.h"

#include "signal/angles.h"
#include "signal/synthesiser.h"
#include "signal/vectorcode.h"

#include <algorithm>
#include <cmath>

namespace processor {

namespace {

constexpr double StepsPerUnit = 32768.0 / 10.0;
constexpr int Chunk = NoiseBlock::Length;
constexpr int NoiseStream = 100; // apart from the noise of the signal itself

} // namespace

FrontEnd::FrontEnd(std::uint64_t seed) : m_seed(seed)
{
    updateFactors();
}

void FrontEnd::setSelector(Selector selector, int value)
{
    m_selector[selector] = value & 3;
    updateFactors();
}

int FrontEnd::selector(Selector selector) const
{
    return m_selector[selector];
}

int FrontEnd::rowOf(Selector selector, int value)
{
    // The wiring of the current switch crosses its middle positions.
    static constexpr int currentRow[4] = { 0, 2, 1, 3 };
    const bool isCurrent = selector == PhaseCurrent || selector == NeutralCurrent;
    return isCurrent ? currentRow[value & 3] : value & 3;
}

void FrontEnd::setCalibration(const CalibrationSet &calibration)
{
    m_calibration = calibration;
    updateFactors();
}

const CalibrationSet &FrontEnd::calibration() const
{
    return m_calibration;
}

void FrontEnd::setClampRatio(double phaseMicrovoltsPerAmpere, double neutralMicrovoltsPerAmpere)
{
    if (phaseMicrovoltsPerAmpere > 0.0)
        m_phaseRatio = phaseMicrovoltsPerAmpere;
    if (neutralMicrovoltsPerAmpere > 0.0)
        m_neutralRatio = neutralMicrovoltsPerAmpere;
    updateFactors();
}

double FrontEnd::phaseClampRatio() const
{
    return m_phaseRatio;
}

double FrontEnd::neutralClampRatio() const
{
    return m_neutralRatio;
}

void FrontEnd::setRogowski(bool on, double nominalFrequencyHz)
{
    m_rogowski = on;
    if (nominalFrequencyHz > 0.0)
        m_nominalFrequency = nominalFrequencyHz;
}

void FrontEnd::setDrift(double gainPercentPerHour, double offsetUnitsPerHour)
{
    m_gainDrift = gainPercentPerHour / 100.0;
    m_offsetDrift = offsetUnitsPerHour * StepsPerUnit;
}

void FrontEnd::setNoise(double steps)
{
    m_noise = std::max(steps, 0.0);
}

void FrontEnd::updateFactors()
{
    for (std::size_t k = 0; k < 4; ++k) {
        const Selector v = k < 3 ? PhaseVoltage : NeutralVoltage;
        const Selector i = k < 3 ? PhaseCurrent : NeutralCurrent;
        const auto voltRow = static_cast<std::size_t>(rowOf(v, m_selector[v]));
        const auto currentRow = static_cast<std::size_t>(rowOf(i, m_selector[i]));
        const double ratio = (k < 3 ? m_phaseRatio : m_neutralRatio) / 1000.0; // millivolts per ampere
        m_factor[k] = StepsPerUnit / double(m_calibration.volt[voltRow][k]);
        m_factor[k + 4] = StepsPerUnit * ratio / double(m_calibration.current[currentRow][k]);
        m_offset[k] = StepsPerUnit * double(m_calibration.zeroVolt[voltRow][k]);
        m_offset[k + 4] = StepsPerUnit * double(m_calibration.zeroCurrent[currentRow][k]);
    }
}

// A Rogowski coil gives the rate of change; one step of the converter later it is the difference of two samples. The
// factor makes the output at the nominal frequency as large as the current.
void FrontEnd::differentiate(const double *in, double *slope, int n, int channel)
{
    const double gain = SampleRate / (TwoPi * m_nominalFrequency);
    double last = m_last[static_cast<std::size_t>(channel)];
    for (int i = 0; i < n; ++i) {
        slope[i] = (in[i] - last) * gain;
        last = in[i];
    }
    m_last[static_cast<std::size_t>(channel)] = last;
}

PROCESSOR_VECTOR_CODE void FrontEnd::convertChannel(const double *in, std::int16_t *out, int n, int channel)
{
    const auto c = static_cast<std::size_t>(channel);
    const double hours = double(m_position) / SampleRate / 3600.0;
    const double factor = m_factor[c] / (1.0 + m_gainDrift * hours);
    const double offset = m_offset[c] + m_offsetDrift * hours;
    double steps[Chunk];
    for (int i = 0; i < n; ++i)
        steps[i] = in[i] * factor + offset;
    if (m_noise > 0.0) {
        const double *noise
            = m_noiseBlock[c].samples(noiseKey(m_seed, NoiseStream + channel), m_position / Chunk).data();
        noise += m_position % Chunk;
        for (int i = 0; i < n; ++i)
            steps[i] += m_noise * noise[i];
    }
    int clipped = 0;
    for (int i = 0; i < n; ++i) {
        const double low = steps[i] > -32768.0 ? steps[i] : -32768.0;
        const double held = low < 32767.0 ? low : 32767.0;
        // To the nearest step; the added constant makes the cut of the conversion a rounding down.
        const auto whole = static_cast<std::int32_t>(held + 32768.5);
        clipped |= (whole == 0) | (whole == 65535);
        out[i] = static_cast<std::int16_t>(whole - 32768);
    }
    m_clipped = m_clipped || clipped != 0;
}

void FrontEnd::convert(const double *const in[8], std::int16_t *const out[8], int n)
{
    int done = 0;
    while (done < n) {
        const int part = std::min(n - done, Chunk - static_cast<int>(m_position % Chunk));
        for (int channel = 0; channel < 8; ++channel) {
            const double *from = in[channel] + done;
            double slope[Chunk];
            if (m_rogowski && channel >= I1 && channel <= I3) {
                differentiate(from, slope, part, channel);
                from = slope;
            }
            convertChannel(from, out[channel] + done, part, channel);
        }
        m_position += static_cast<std::uint64_t>(part);
        done += part;
    }
}

bool FrontEnd::takeClipped()
{
    const bool clipped = m_clipped;
    m_clipped = false;
    return clipped;
}

} // namespace processor
