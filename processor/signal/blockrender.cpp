#include "signal/synthesiser_p.h"

#include "signal/angles.h"

#include <algorithm>
#include <cmath>

namespace processor {

namespace {

/// Time since the start of the burst that is due at a moment; negative before the first.
double burstAge(const SignallingSpec &s, double seconds)
{
    const double t = seconds - s.startSeconds;
    return t >= 0.0 && s.periodSeconds > 0.0 ? std::fmod(t, s.periodSeconds) : t;
}

bool isOnAtAge(const SignallingSpec &s, double age)
{
    return age >= 0.0 && (s.onSeconds <= 0.0 || age < s.onSeconds);
}

} // namespace

bool burstOn(const SignallingSpec &s, double seconds)
{
    return isOnAtAge(s, burstAge(s, seconds));
}

double modulationAt(const ModulationSpec &m, double seconds)
{
    const double phase = m.rateHz * seconds + m.phaseDeg / 360.0;
    if (m.shape == ModulationSpec::Shape::Rectangular)
        return 1.0 + m.depthPercent / 200.0 * (fractionOf(phase) < 0.5 ? 1.0 : -1.0);
    return 1.0 + m.depthPercent / 200.0 * std::sin(TwoPi * phase);
}

void Synthesiser::Private::renderBlock(std::int64_t number)
{
    const std::int64_t first = number * BlockLength;
    const auto from = static_cast<double>(first);
    current.erase(std::remove_if(current.begin(), current.end(), [&](std::size_t i) { return events[i].end <= from; }),
                  current.end());
    // Whole cycles are taken off at the block's start, where double precision can still tell them apart.
    Block cycles;
    const double base = std::floor(commonClock.cycles(from));
    for (int i = 0; i < BlockLength; ++i)
        cycles[std::size_t(i)] = commonClock.cycles(from + i) - base;
    for (int input = 0; input < InputCount; ++input)
        renderInput(input, first, cycles);
    if (spec.neutralCarriesPhaseCurrents) {
        for (std::size_t i = 0; i < BlockLength; ++i)
            block[IN][i] += block[I1][i] + block[I2][i] + block[I3][i];
    }
    blockNumber = number;
}

bool Synthesiser::Private::runs(const EventPlay &play, int input, std::int64_t first) const
{
    return play.touches(input)
        && play.activeWithin(static_cast<double>(first), static_cast<double>(first + BlockLength));
}

void Synthesiser::Private::renderInput(int input, std::int64_t first, const Block &commonCycles)
{
    const InputSpec &in = spec.inputs[std::size_t(input)];
    Block &out = block[std::size_t(input)];
    bool eventful = false;
    for (std::size_t i : current)
        eventful = eventful || runs(events[i], input, first);
    if (in.rms != 0.0)
        renderWave(input, first, commonCycles, eventful);
    else
        out.fill(0.0);
    if (eventful)
        applyEvents(input, first);
    if (in.dc != 0.0) {
        for (double &value : out)
            value += in.dc;
    }
    if (in.noiseRms > 0.0) {
        NoiseBlock noise;
        const auto &samples = noise.samples(noiseKey(seed, input), static_cast<std::uint64_t>(first / BlockLength));
        for (std::size_t i = 0; i < BlockLength; ++i)
            out[i] += in.noiseRms * samples[i];
    }
}

// Fundamental, harmonics, interharmonics and telegrams, with their modulation.
void Synthesiser::Private::renderWave(int input, std::int64_t first, const Block &commonCycles, bool eventful)
{
    const InputSpec &in = spec.inputs[std::size_t(input)];
    Block &out = block[std::size_t(input)];
    const auto from = static_cast<double>(first);
    const double amplitude = in.rms * Sqrt2;
    Block x = commonCycles;
    if (hasOwnClock(input)) {
        const double base = std::floor(clock(input).cycles(from));
        for (int i = 0; i < BlockLength; ++i)
            x[std::size_t(i)] = clock(input).cycles(from + i) - base;
    }
    for (double &cycles : x)
        cycles += in.phaseDeg / 360.0;
    for (std::size_t e = 0; eventful && e < current.size(); ++e) {
        const EventPlay &play = events[current[e]];
        if (!play.changesPhase() || !runs(play, input, first))
            continue;
        for (int i = 0; i < BlockLength; ++i)
            x[std::size_t(i)] += play.phaseAdvance(input, from + i);
    }
    if (tables[std::size_t(input)])
        tables[std::size_t(input)]->play(x.data(), amplitude, out.data(), BlockLength);
    else
        sinCycles(x.data(), amplitude, out.data(), BlockLength);
    for (const InterharmonicSpec &h : in.interharmonics)
        addSine(h.frequencyHz, h.phaseDeg, amplitude * h.percent / 100.0, first, out);
    addBursts(input, first, out);
    if (in.modulation.shape != ModulationSpec::Shape::None)
        modulate(in.modulation, first, out);
}

// All factors first, then what is added: an impulse in a dip keeps its height.
void Synthesiser::Private::applyEvents(int input, std::int64_t first)
{
    Block &out = block[std::size_t(input)];
    const auto from = static_cast<double>(first);
    for (std::size_t e : current) {
        const EventPlay &play = events[e];
        if (!play.changesAmplitude() || !runs(play, input, first))
            continue;
        for (int i = 0; i < BlockLength; ++i)
            out[std::size_t(i)] *= play.amplitudeFactor(from + i);
    }
    for (std::size_t e : current) {
        const EventPlay &play = events[e];
        if (!play.adds() || !runs(play, input, first))
            continue;
        for (int i = 0; i < BlockLength; ++i)
            out[std::size_t(i)] += play.addition(from + i);
    }
}

void Synthesiser::Private::addSine(double frequencyHz, double phaseDeg, double amplitude, std::int64_t first,
                                   Block &out) const
{
    // The cycles since the start pass 1e9 in a long run; a wider type keeps their fraction.
    const long double cycles = static_cast<long double>(frequencyHz) * static_cast<long double>(first)
        / static_cast<long double>(sampleRate);
    const double start = static_cast<double>(cycles - std::floor(cycles)) + phaseDeg / 360.0;
    Block x;
    Block y;
    for (int i = 0; i < BlockLength; ++i)
        x[std::size_t(i)] = start + frequencyHz / sampleRate * i;
    sinCycles(x.data(), amplitude, y.data(), BlockLength);
    for (std::size_t i = 0; i < BlockLength; ++i)
        out[i] += y[i];
}

void Synthesiser::Private::addBursts(int input, std::int64_t first, Block &out) const
{
    const double amplitude = spec.inputs[std::size_t(input)].rms * Sqrt2;
    const double from = static_cast<double>(first) / sampleRate;
    const double to = static_cast<double>(first + BlockLength - 1) / sampleRate;
    for (const SignallingSpec &s : spec.signalling) {
        if ((s.inputs & maskOf(input)) == 0)
            continue;
        // Most blocks lie wholly inside or wholly outside of a burst: its age then grows from end to end.
        const double age = burstAge(s, from), lastAge = burstAge(s, to);
        const bool on = isOnAtAge(s, age);
        const bool whole = on == isOnAtAge(s, lastAge) && lastAge > age && (age >= 0.0 || lastAge < 0.0)
            && (s.periodSeconds <= 0.0 || to - from < s.periodSeconds);
        if (whole && on)
            addSine(s.frequencyHz, 0.0, amplitude * s.percent / 100.0, first, out);
        if (whole)
            continue;
        Block tone {};
        addSine(s.frequencyHz, 0.0, amplitude * s.percent / 100.0, first, tone);
        for (int i = 0; i < BlockLength; ++i) {
            if (burstOn(s, static_cast<double>(first + i) / sampleRate))
                out[std::size_t(i)] += tone[std::size_t(i)];
        }
    }
}

void Synthesiser::Private::modulate(const ModulationSpec &m, std::int64_t first, Block &out) const
{
    if (m.shape == ModulationSpec::Shape::Rectangular) {
        // No edge between the block's ends: one factor for all of it.
        const auto halves = [&](std::int64_t sample) {
            return std::floor(2.0 * (m.rateHz * (static_cast<double>(sample) / sampleRate) + m.phaseDeg / 360.0));
        };
        if (halves(first) == halves(first + BlockLength - 1)) {
            const double factor = modulationAt(m, static_cast<double>(first) / sampleRate);
            for (double &value : out)
                value *= factor;
            return;
        }
        for (int i = 0; i < BlockLength; ++i)
            out[std::size_t(i)] *= modulationAt(m, static_cast<double>(first + i) / sampleRate);
        return;
    }
    const double start = fractionOf(m.rateHz * static_cast<double>(first) / sampleRate) + m.phaseDeg / 360.0;
    Block x;
    Block y;
    for (int i = 0; i < BlockLength; ++i)
        x[std::size_t(i)] = start + m.rateHz / sampleRate * i;
    sinCycles(x.data(), m.depthPercent / 200.0, y.data(), BlockLength);
    for (std::size_t i = 0; i < BlockLength; ++i)
        out[i] *= 1.0 + y[i];
}

} // namespace processor
