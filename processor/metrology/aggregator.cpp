#include "metrology/aggregator.h"

#include "metrology/groups.h"
#include "signal/synthesiser.h"
#include "signal/vectorcode.h"

#include <algorithm>
#include <cmath>

namespace processor {

namespace {

// Sums over a window whose ends lie between samples.
struct WindowSums
{
    double mean[Channels] = {};
    double product[4] = {}; // u * i of each pair
    double cross = 0.0; // u2 * i3 of a delta
    float peak[Channels] = {};
};

void addFrame(const SampleStore::Frame &x, double weight, WindowSums &sums)
{
    for (std::size_t c = 0; c < Channels; ++c)
        sums.mean[c] += weight * static_cast<double>(x[c]);
    for (std::size_t k = 0; k < 4; ++k)
        sums.product[k] += weight * static_cast<double>(x[k] * x[k + 4]);
    sums.cross += weight * static_cast<double>(x[1] * x[6]);
}

PROCESSOR_VECTOR_CODE WindowSums sumWindow(const SampleStore &store, double from, double to)
{
    // A sample counts for the unit interval around it; the first and the last count in part.
    const double low = from + 0.5;
    const double high = to + 0.5;
    const auto first = static_cast<std::int64_t>(std::floor(low));
    const auto last = static_cast<std::int64_t>(std::floor(high));
    WindowSums sums;
    for (std::int64_t n = first; n < last; ++n) {
        const SampleStore::Frame &x = store.frame(n);
        addFrame(x, 1.0, sums);
        for (std::size_t c = 0; c < Channels; ++c)
            sums.peak[c] = std::max(sums.peak[c], std::fabs(x[c]));
    }
    addFrame(store.frame(first), std::floor(low) - low, sums);
    addFrame(store.frame(last), high - std::floor(high), sums);
    const double scale = 1.0 / (to - from);
    for (double &value : sums.mean)
        value *= scale;
    for (double &value : sums.product)
        value *= scale;
    sums.cross *= scale;
    return sums;
}

} // namespace

void Aggregator::measure(const SampleStore &store, double from, double to, double frequency, int cycles,
                         AggregationPayload &out)
{
    out.frequency = static_cast<float>(frequency);
    out.reserved0.fill(0);
    out.reserved1 = 0;
    measureTime(store, from, to, out);
    m_spectrum.analyse(store, from, to - from);
    measureSpectrum(cycles, to - from, out);
}

void Aggregator::measureTime(const SampleStore &store, double from, double to, AggregationPayload &out) const
{
    const SampleStore::Sums square = store.meanSquare(from, to);
    const WindowSums sums = sumWindow(store, from, to);
    for (std::size_t k = 0; k < 4; ++k) {
        ChannelAggregate &c = out.channel[k];
        const double u = std::sqrt(square[k]);
        const double i = std::sqrt(square[k + 4]);
        c.activePower = static_cast<float>(sums.product[k]);
        c.apparentPower = static_cast<float>(u * i);
        c.reserved = 0.0f;
        c.voltageRms = static_cast<float>(u);
        c.currentRms = static_cast<float>(i);
        c.voltagePeak = sums.peak[k];
        c.voltageOffset = static_cast<float>(sums.mean[k]);
        c.currentPeak = sums.peak[k + 4];
        c.currentOffset = static_cast<float>(sums.mean[k + 4]);
    }
    if (!m_setup.isDelta())
        return;
    // Two wattmeters (Aron): u12 * i1 in the first row and u32 * i3 in the third add up to the power of the load. The
    // middle row has no meter. U32 = -U23 is brought from the unit of channel 2 to that of channel 3.
    const double toThird = static_cast<double>(m_setup.voltageGain[1]) / static_cast<double>(m_setup.voltageGain[2]);
    out.channel[1].activePower = 0.0f;
    out.channel[2].activePower = static_cast<float>(-sums.cross * toThird);
    for (std::size_t k = 0; k < 3; ++k)
        out.channel[k].apparentPower = 0.0f;
}

void Aggregator::measureSpectrum(int cycles, double length, AggregationPayload &out)
{
    constexpr int lines = Spectrum::Lines;
    for (int c = 0; c < Channels; ++c) {
        const double *power = m_spectrum.power(c);
        auto &rows = out.spectrum[static_cast<std::size_t>(c)];
        for (int h = 0; h < Orders; ++h) {
            SpectralEntry &row = rows[static_cast<std::size_t>(h)];
            row.interharmonic = static_cast<float>(interharmonicSubgroup(power, lines, cycles, h));
            row.reserved = 0.0f;
            row.magnitude = static_cast<float>(harmonicSubgroup(power, lines, cycles, h + 1));
            row.phase = static_cast<float>(m_spectrum.phase(c, cycles * (h + 1)));
        }
    }
    for (std::size_t k = 0; k < 4; ++k) {
        for (std::size_t s = 0; s < 2; ++s) {
            const double place = static_cast<double>(m_setup.signallingFrequency[s]) * length / SampleRate;
            out.signalling[k][s]
                = static_cast<float>(signallingVoltage(m_spectrum.power(static_cast<int>(k)), lines, place));
        }
    }
}

} // namespace processor
