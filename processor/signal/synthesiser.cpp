#include "signal/synthesiser.h"

#include "signal/angles.h"
#include "signal/synthesiser_p.h"

#include <algorithm>
#include <cmath>

namespace processor {

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
        events.emplace_back(event, known != before.end() ? known->start : startOf(event), sampleRate, spec);
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
        const std::int64_t number = d->position / Private::BlockLength;
        const int offset = static_cast<int>(d->position % Private::BlockLength);
        if (number != d->blockNumber)
            d->renderBlock(number);
        const int part = std::min(n - done, Private::BlockLength - offset);
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
    d->events.emplace_back(event, d->startOf(event), d->sampleRate, d->spec);
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
        cycles += play.phaseAdvance(input, at);
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
