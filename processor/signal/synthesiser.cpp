#include "signal/synthesiser.h"

#include "signal/eventplay.h"
#include "signal/noise.h"
#include "signal/phaseclock.h"
#include "signal/waveform.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace processor {

namespace {

constexpr int BlockLength = NoiseBlock::Length;
constexpr double TwoPi = 6.283185307179586476925;
constexpr double Sqrt2 = 1.4142135623730950488;

using Block = std::array<double, BlockLength>;

double fractionOf(double x)
{
    return x - std::floor(x);
}

// Whether a telegram stands on the line at a moment.
bool burstOn(const SignallingSpec &s, double seconds)
{
    double t = seconds - s.startSeconds;
    if (t < 0.0)
        return false;
    if (s.periodSeconds > 0.0)
        t = std::fmod(t, s.periodSeconds);
    return s.onSeconds <= 0.0 || t < s.onSeconds;
}

double modulationAt(const ModulationSpec &m, double seconds)
{
    const double phase = m.rateHz * seconds + m.phaseDeg / 360.0;
    if (m.shape == ModulationSpec::Shape::Rectangular)
        return 1.0 + m.depthPercent / 200.0 * (fractionOf(phase) < 0.5 ? 1.0 : -1.0);
    return 1.0 + m.depthPercent / 200.0 * std::sin(TwoPi * phase);
}

} // namespace

struct Synthesiser::Private
{
    SignalSpec spec;
    std::uint64_t seed = 1;
    double sampleRate = SampleRate;
    std::int64_t position = 0;
    PhaseClock commonClock;
    std::array<PhaseClock, InputCount> ownClock;
    std::array<std::shared_ptr<WaveTable>, InputCount> tables; // null: a pure sine
    std::vector<EventPlay> events;
    std::vector<std::size_t> current; // events that are running or still to come
    std::array<Block, InputCount> block;
    std::int64_t blockNumber = -1; // what `block` holds, -1: nothing

    bool hasOwnClock(int input) const { return spec.inputs[std::size_t(input)].frequencyHz > 0.0; }
    const PhaseClock &clock(int input) const { return hasOwnClock(input) ? ownClock[std::size_t(input)] : commonClock; }

    void takeSteadyPart();
    void takeEvents(const std::vector<SignalEvent> &list);
    double startOf(const SignalEvent &event) const;

    void renderBlock(std::int64_t number);
    void renderInput(int input, std::int64_t first, const Block &commonCycles);
    void addSine(double frequencyHz, double phaseDeg, double amplitude, std::int64_t first, Block &out) const;
    void addBursts(int input, std::int64_t first, Block &out) const;
    void modulate(const ModulationSpec &m, std::int64_t first, Block &out) const;
};

void Synthesiser::Private::takeSteadyPart()
{
    commonClock.setCourse(spec.frequencyHz, spec.driftHzPerSecond, spec.driftLimitHz, position);
    for (std::size_t i = 0; i < InputCount; ++i) {
        const InputSpec &input = spec.inputs[i];
        if (input.frequencyHz > 0.0)
            ownClock[i].setCourse(input.frequencyHz, input.driftHzPerSecond, 0.0, position);
    }
    // Inputs with the same harmonics share a table, and one that fits is kept.
    std::vector<std::shared_ptr<WaveTable>> known(tables.begin(), tables.end());
    for (std::size_t i = 0; i < InputCount; ++i) {
        const std::vector<HarmonicSpec> &harmonics = spec.inputs[i].harmonics;
        tables[i].reset();
        if (harmonics.empty())
            continue;
        for (const std::shared_ptr<WaveTable> &table : known) {
            if (table && table->holds(harmonics))
                tables[i] = table;
        }
        if (!tables[i]) {
            tables[i] = std::make_shared<WaveTable>(harmonics);
            known.push_back(tables[i]);
        }
    }
    blockNumber = -1;
}

// An event that was known before keeps its place: its point on wave was found in the wave as it was then.
void Synthesiser::Private::takeEvents(const std::vector<SignalEvent> &list)
{
    const std::vector<EventPlay> before = std::move(events);
    events.clear();
    current.clear();
    for (const SignalEvent &event : list) {
        const auto known = std::find_if(before.begin(), before.end(),
                                        [&](const EventPlay &play) { return sameEvent(play.event, event); });
        current.push_back(events.size());
        events.emplace_back(event, known != before.end() ? known->start : startOf(event), sampleRate);
    }
    blockNumber = -1;
}

double Synthesiser::Private::startOf(const SignalEvent &event) const
{
    const double from = event.startSeconds * sampleRate;
    if (std::isnan(event.startPhaseDeg))
        return from;
    int input = 0;
    while (input + 1 < InputCount && (event.inputs & maskOf(input)) == 0)
        ++input;
    return clock(input).nextAt(from, spec.inputs[std::size_t(input)].phaseDeg / 360.0, event.startPhaseDeg / 360.0);
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

void Synthesiser::Private::renderInput(int input, std::int64_t first, const Block &commonCycles)
{
    const InputSpec &in = spec.inputs[std::size_t(input)];
    Block &out = block[std::size_t(input)];
    const auto from = static_cast<double>(first);
    const double amplitude = in.rms * Sqrt2;
    bool eventful = false;
    for (std::size_t i : current)
        eventful = eventful || (events[i].touches(input) && events[i].activeWithin(from, from + BlockLength));

    if (amplitude != 0.0) {
        Block x;
        const double base = hasOwnClock(input) ? std::floor(clock(input).cycles(from)) : 0.0;
        for (int i = 0; i < BlockLength; ++i) {
            const double cycles
                = hasOwnClock(input) ? clock(input).cycles(from + i) - base : commonCycles[std::size_t(i)];
            x[std::size_t(i)] = cycles + in.phaseDeg / 360.0;
        }
        for (std::size_t e = 0; eventful && e < current.size(); ++e) {
            const EventPlay &play = events[current[e]];
            if (!play.touches(input) || !play.changesPhase() || !play.activeWithin(from, from + BlockLength))
                continue;
            for (int i = 0; i < BlockLength; ++i)
                x[std::size_t(i)] += play.phaseAdvance(from + i);
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
    } else {
        out.fill(0.0);
    }
    for (std::size_t e = 0; eventful && e < current.size(); ++e) {
        const EventPlay &play = events[current[e]];
        if (!play.touches(input) || !play.changesAmplitude() || !play.activeWithin(from, from + BlockLength))
            continue;
        for (int i = 0; i < BlockLength; ++i)
            out[std::size_t(i)] *= play.amplitudeFactor(from + i);
    }
    for (std::size_t e = 0; eventful && e < current.size(); ++e) {
        const EventPlay &play = events[current[e]];
        if (!play.touches(input) || !play.adds() || !play.activeWithin(from, from + BlockLength))
            continue;
        for (int i = 0; i < BlockLength; ++i)
            out[std::size_t(i)] += play.addition(from + i);
    }
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
    for (const SignallingSpec &s : spec.signalling) {
        if ((s.inputs & maskOf(input)) == 0)
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

Synthesiser::Synthesiser(const SignalSpec &spec, std::uint64_t seed, double sampleRate) : d(std::make_unique<Private>())
{
    d->seed = seed;
    d->sampleRate = sampleRate;
    d->spec = spec;
    d->commonClock.setRate(sampleRate);
    for (PhaseClock &clock : d->ownClock)
        clock.setRate(sampleRate);
    d->takeSteadyPart();
    d->takeEvents(spec.events);
}

Synthesiser::~Synthesiser() = default;

void Synthesiser::render(double *const out[InputCount], int n)
{
    int done = 0;
    while (done < n) {
        const std::int64_t number = d->position / BlockLength;
        const int offset = static_cast<int>(d->position % BlockLength);
        if (number != d->blockNumber)
            d->renderBlock(number);
        const int part = std::min(n - done, BlockLength - offset);
        for (std::size_t input = 0; input < InputCount; ++input) {
            if (out[input])
                std::copy_n(d->block[input].data() + offset, part, out[input] + done);
        }
        done += part;
        d->position += part;
    }
}

void Synthesiser::addEvent(const SignalEvent &event)
{
    d->spec.events.push_back(event);
    d->current.push_back(d->events.size());
    d->events.emplace_back(event, d->startOf(event), d->sampleRate);
    d->blockNumber = -1; // the rest of the block in hand may be touched by it
}

void Synthesiser::clearEvents()
{
    d->spec.events.clear();
    d->takeEvents({});
}

void Synthesiser::setSpec(const SignalSpec &spec)
{
    d->spec = spec;
    d->takeSteadyPart();
    d->takeEvents(spec.events);
}

const SignalSpec &Synthesiser::spec() const
{
    return d->spec;
}

std::int64_t Synthesiser::position() const
{
    return d->position;
}

double Synthesiser::sampleRate() const
{
    return d->sampleRate;
}

double Synthesiser::seconds() const
{
    return static_cast<double>(d->position) / d->sampleRate;
}

double Synthesiser::valueAt(int input, std::int64_t sample) const
{
    const InputSpec &in = d->spec.inputs[std::size_t(input)];
    const auto at = static_cast<double>(sample);
    const double seconds = at / d->sampleRate;
    double cycles = fractionOf(d->clock(input).cycles(at)) + in.phaseDeg / 360.0;
    double factor = 1.0;
    double added = in.dc;
    for (const EventPlay &play : d->events) {
        if (!play.touches(input))
            continue;
        cycles += play.phaseAdvance(at);
        factor *= play.amplitudeFactor(at);
        added += play.addition(at);
    }
    double value = std::sin(TwoPi * cycles);
    for (const HarmonicSpec &h : in.harmonics)
        value += h.percent / 100.0 * std::sin(TwoPi * h.order * cycles + h.phaseDeg * TwoPi / 360.0);
    for (const InterharmonicSpec &h : in.interharmonics)
        value += h.percent / 100.0 * std::sin(TwoPi * (h.frequencyHz * seconds + h.phaseDeg / 360.0));
    for (const SignallingSpec &s : d->spec.signalling) {
        if ((s.inputs & maskOf(input)) != 0 && burstOn(s, seconds))
            value += s.percent / 100.0 * std::sin(TwoPi * fractionOf(s.frequencyHz * seconds));
    }
    if (in.modulation.shape != ModulationSpec::Shape::None)
        value *= modulationAt(in.modulation, seconds);
    value = value * in.rms * Sqrt2 * factor + added;
    if (input == IN && d->spec.neutralCarriesPhaseCurrents)
        value += valueAt(I1, sample) + valueAt(I2, sample) + valueAt(I3, sample);
    return value;
}

double Synthesiser::trueRms(int input, std::int64_t first, std::int64_t count) const
{
    double sum = 0.0;
    for (std::int64_t i = 0; i < count; ++i) {
        const double value = valueAt(input, first + i);
        sum += value * value;
    }
    return count > 0 ? std::sqrt(sum / static_cast<double>(count)) : 0.0;
}

double Synthesiser::trueMean(int input, std::int64_t first, std::int64_t count) const
{
    double sum = 0.0;
    for (std::int64_t i = 0; i < count; ++i)
        sum += valueAt(input, first + i);
    return count > 0 ? sum / static_cast<double>(count) : 0.0;
}

double Synthesiser::truePower(int voltageInput, int currentInput, std::int64_t first, std::int64_t count) const
{
    double sum = 0.0;
    for (std::int64_t i = 0; i < count; ++i)
        sum += valueAt(voltageInput, first + i) * valueAt(currentInput, first + i);
    return count > 0 ? sum / static_cast<double>(count) : 0.0;
}

double Synthesiser::trueFrequency(int input, std::int64_t sample) const
{
    return d->clock(input).frequency(static_cast<double>(sample));
}

double Synthesiser::truePhase(int input, double sample) const
{
    return fractionOf(d->clock(input).cycles(sample) + d->spec.inputs[std::size_t(input)].phaseDeg / 360.0);
}

double Synthesiser::startSample(const SignalEvent &event) const
{
    for (const EventPlay &play : d->events) {
        if (sameEvent(play.event, event))
            return play.start;
    }
    return d->startOf(event);
}

} // namespace processor
