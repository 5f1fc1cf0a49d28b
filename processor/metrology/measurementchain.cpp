#include "metrology/measurementchain.h"

#include "metrology/aggregator.h"
#include "metrology/conditioner.h"
#include "metrology/cycletracker.h"
#include "metrology/flickermeter.h"
#include "metrology/samplestore.h"
#include "metrology/transientdetector.h"
#include "signal/synthesiser.h"
#include "signal/vectorcode.h"

#include <algorithm>
#include <cmath>

namespace processor {

namespace {

// Work is done whenever this many samples have come, counted from the start: results then do not depend on the lengths
// in which samples arrive.
constexpr int ChunkLength = 256;
constexpr float LowestStep = -32768.0f;
constexpr float HighestStep = 32767.0f;
constexpr float StepsPerUnit = 32768.0f / 10.0f;

// Time of a sample, in milliseconds since 1970. Setting the clock changes the samples to come, not those that passed.
class TimeBase
{
public:
    void set(std::int64_t frame, double ms)
    {
        m_before = frame > m_now.frame ? m_now : Anchor { frame, ms };
        m_now = { frame, ms };
    }
    double at(double frame) const
    {
        const Anchor &anchor = frame < static_cast<double>(m_now.frame) ? m_before : m_now;
        return anchor.ms + (frame - static_cast<double>(anchor.frame)) * (1000.0 / SampleRate);
    }

private:
    struct Anchor
    {
        std::int64_t frame = 0;
        double ms = 0.0;
    };
    Anchor m_before;
    Anchor m_now;
};

std::int64_t wholeMs(double ms)
{
    return static_cast<std::int64_t>(std::floor(ms + 0.5));
}

} // namespace

struct MeasurementChain::Private
{
    MeasurementSink *sink = nullptr;
    ProcessorSetup setup;
    Conditioner conditioner;
    SampleStore store;
    CycleTracker tracker;
    Aggregator aggregator;
    FlickerMeter flicker;
    bool flickerOn = true;
    TimeBase time;
    double frequency = 0.0;

    std::int64_t slot = 0; // first frame of the slot under work
    double period = 0.0; // frames in a fundamental cycle, for the transient detector
    CycleEnd last; // end of the cycle before
    bool hasLast = false;

    bool inWindow = false;
    double windowStart = 0.0;
    int windowCycles = 0; // base cycles so far
    int windowLocked = 0;
    bool windowSteady = true;

    RmsPayload rms {};
    AggregationPayload aggregation {};
    WavePayload wave {};

    void start();
    int cyclesPerWindow() const { return setup.nominalFrequency == 60 ? 12 : 10; }
    void work();
    void takeCycle(const CycleEnd &end);
    void addHalfCycle(double end, double length);
    void finishWindow(const CycleEnd &end);
    void flushSlot();
    void fillWave();
};

void MeasurementChain::Private::start()
{
    const double now = time.at(static_cast<double>(store.end()));
    store.clear();
    time = TimeBase();
    time.set(0, now);
    conditioner.reset();
    tracker.start(setup.nominalFrequency);
    frequency = -tracker.frequency();
    flicker.setSetup(setup);
    flicker.restart(0);
    slot = 0;
    period = SampleRate / setup.nominalFrequency;
    hasLast = false;
    inWindow = false;
    rms = RmsPayload();
}

void MeasurementChain::Private::work()
{
    while (flickerOn && flicker.advance(store))
        sink->flicker(flicker.payload(), wholeMs(time.at(flicker.payloadFrame())));
    CycleEnd end;
    while (tracker.next(store, end))
        takeCycle(end);
    std::int64_t needed = std::min(tracker.needs(), slot - static_cast<std::int64_t>(2.5 * period) - 8);
    if (inWindow)
        needed = std::min(needed, static_cast<std::int64_t>(windowStart) - Resampler::Taps);
    if (flickerOn)
        needed = std::min(needed, flicker.needs());
    store.discardBefore(needed);
}

// Two values for each cycle: one that ends in its middle and one at its end, each over one cycle.
void MeasurementChain::Private::takeCycle(const CycleEnd &end)
{
    period = end.period / tracker.baseCycles();
    if (hasLast) {
        const double middle = 0.5 * (last.position + end.position);
        addHalfCycle(middle, end.period);
    }
    addHalfCycle(end.position, end.period);
    last = end;
    hasLast = true;

    if (end.fresh)
        inWindow = false;
    if (inWindow) {
        ++windowCycles;
        windowLocked += end.locked ? 1 : 0;
        windowSteady = windowSteady && end.steady;
        if (windowCycles == cyclesPerWindow())
            finishWindow(end);
    }
    if (!inWindow) {
        inWindow = true;
        windowStart = end.position;
        windowCycles = 0;
        windowLocked = 0;
        windowSteady = true;
    }
}

void MeasurementChain::Private::addHalfCycle(double end, double length)
{
    const double middle = end - length / 2.0;
    while (middle >= static_cast<double>(slot + WaveSamples))
        flushSlot();
    if (middle < static_cast<double>(slot))
        return; // right after the start
    const SampleStore::Sums square = store.meanSquare(end - length, end);
    const std::int64_t ms = wholeMs(time.at(middle));
    for (std::size_t k = 0; k < 3; ++k) {
        HalfCycleBlock &block = rms.phase[k];
        const std::size_t n = block.count / 2;
        if (n >= std::size_t(MaxHalfCycles))
            return;
        HalfCycleEntry &entry = block.entry[n];
        entry.voltageSeconds = entry.currentSeconds = static_cast<std::uint32_t>(ms / 1000);
        entry.voltageMilliseconds = entry.currentMilliseconds = static_cast<std::uint32_t>(ms % 1000);
        entry.voltage = static_cast<float>(std::sqrt(square[k]));
        entry.current = static_cast<float>(std::sqrt(square[k + 4]));
        block.count += 2;
    }
}

void MeasurementChain::Private::finishWindow(const CycleEnd &end)
{
    const bool locked = 2 * windowLocked > windowCycles;
    double f = tracker.frequency();
    if (locked && windowSteady && windowLocked == windowCycles)
        f = windowCycles * tracker.baseCycles() * SampleRate / (end.position - windowStart);
    frequency = locked ? f : -f;
    aggregator.measure(store, windowStart, end.position, frequency, cyclesPerWindow(), aggregation);
    sink->aggregation(aggregation, wholeMs(time.at(windowStart)));
    inWindow = false;
}

void MeasurementChain::Private::flushSlot()
{
    const std::int64_t ms = wholeMs(time.at(static_cast<double>(slot)));
    sink->rms(rms, ms);
    rms = RmsPayload();
    fillWave();
    sink->wave(wave, ms);
    slot += WaveSamples;
}

PROCESSOR_VECTOR_CODE void MeasurementChain::Private::fillWave()
{
    const SampleStore::Frame *frames = &store.frame(slot);
    for (std::size_t i = 0; i < std::size_t(WaveSamples); ++i) {
        std::int32_t steps[Channels];
        for (std::size_t c = 0; c < Channels; ++c) {
            const float low = frames[i][c] * StepsPerUnit > LowestStep ? frames[i][c] * StepsPerUnit : LowestStep;
            const float held = low < HighestStep ? low : HighestStep;
            // To the nearest step; the added constant makes the cut of the conversion a rounding down.
            steps[c] = static_cast<std::int32_t>(held + 32768.5f) - 32768;
        }
        for (std::size_t k = 0; k < 4; ++k) {
            wave.pair[k].voltage[i] = static_cast<std::int16_t>(steps[k]);
            wave.pair[k].current[i] = static_cast<std::int16_t>(steps[k + 4]);
        }
    }
    wave.transient = TransientDetector::find(store, slot, WaveSamples, period, setup.transientThreshold);
}

MeasurementChain::MeasurementChain(const ProcessorSetup &setup, MeasurementSink &sink) : d(std::make_unique<Private>())
{
    d->sink = &sink;
    d->setup = setup;
    d->conditioner.setSetup(setup);
    d->aggregator.setSetup(setup);
    d->start();
}

MeasurementChain::~MeasurementChain() = default;

void MeasurementChain::setTime(std::int64_t msSince1970)
{
    d->time.set(d->store.end(), static_cast<double>(msSince1970));
}

double MeasurementChain::time() const
{
    return d->time.at(static_cast<double>(d->store.end()));
}

void MeasurementChain::process(const std::int16_t *const samples[8], int n)
{
    int done = 0;
    while (done < n) {
        const int toChunk = ChunkLength - static_cast<int>(d->store.end() % ChunkLength);
        const int part = std::min(n - done, toChunk);
        const std::int16_t *from[8];
        for (std::size_t c = 0; c < 8; ++c)
            from[c] = samples[c] + done;
        d->conditioner.condition(from, d->store.append(part), part);
        d->store.commit(part);
        done += part;
        if (part == toChunk)
            d->work();
    }
}

void MeasurementChain::setSetup(const ProcessorSetup &setup)
{
    const ProcessorSetup before = d->setup;
    d->setup = setup;
    d->conditioner.setSetup(setup);
    d->aggregator.setSetup(setup);
    if (setup.nominalFrequency != before.nominalFrequency) {
        d->start();
    } else if (setup.flickerCurve != before.flickerCurve || setup.wiring != before.wiring) {
        d->flicker.setSetup(setup);
        d->flicker.restart(d->store.end());
    }
}

const ProcessorSetup &MeasurementChain::setup() const
{
    return d->setup;
}

void MeasurementChain::restart()
{
    d->start();
}

double MeasurementChain::frequency() const
{
    return d->frequency;
}

void MeasurementChain::setFlickerEnabled(bool on)
{
    if (on && !d->flickerOn)
        d->flicker.restart(d->store.end());
    d->flickerOn = on;
}

} // namespace processor
