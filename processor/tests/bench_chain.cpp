// How much faster than time the measuring chain runs on one core: stage by stage, with the transforms of FFTW alone
// beside them.
#include "bench/ratios.h"
#include "frontend/frontend.h"
#include "metrology/measurementchain.h"
#include "metrology/spectrum.h"
#include "signal/synthesiser.h"

#include <ctime>
#include <vector>

using namespace processor;

namespace {

constexpr int Step = 1024;
constexpr int StepsPerSecond = 20;

class NoSink : public MeasurementSink
{
public:
    void aggregation(const AggregationPayload &, std::int64_t) override { ++m_count; }
    void rms(const RmsPayload &, std::int64_t) override { ++m_count; }
    void wave(const WavePayload &, std::int64_t) override { ++m_count; }
    void flicker(const FlickerPayload &, std::int64_t) override { ++m_count; }

private:
    long m_count = 0;
};

SignalSpec supply(int harmonics)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.02, 50.0, 0.85);
    for (std::size_t i = 0; i < InputCount; ++i) {
        for (int h = 0; h < harmonics; ++h)
            spec.inputs[i].harmonics.push_back({ h + 2, 0.5, 30.0 });
    }
    return spec;
}

// All that a signal can hold at once: harmonics, an interharmonic, modulation, two telegrams, noise, an offset.
SignalSpec everything()
{
    SignalSpec spec = supply(30);
    for (InputSpec &input : spec.inputs) {
        input.interharmonics = { { 183.0, 1.0, 0.0 } };
        input.modulation = { ModulationSpec::Shape::Rectangular, 8.8, 0.2, 0.0 };
        input.noiseRms = 0.05;
        input.dc = 0.1;
    }
    for (double hertz : { 1375.0, 285.0 }) {
        SignallingSpec telegram;
        telegram.frequencyHz = hertz;
        telegram.percent = 2.0;
        telegram.onSeconds = 1.0;
        telegram.periodSeconds = 3.0;
        spec.signalling.push_back(telegram);
    }
    return spec;
}

// The three stages with a simulated second of buffers in between.
struct Bench
{
    explicit Bench(int harmonics) : Bench(supply(harmonics)) { }
    explicit Bench(const SignalSpec &signal)
        : synthesiser(signal), chain(ProcessorSetup(), sink), values(std::size_t(8) * StepsPerSecond * Step),
          samples(std::size_t(8) * StepsPerSecond * Step)
    {
        frontEnd.setSelector(FrontEnd::PhaseVoltage, 1);
        synthesise();
        convert();
    }

    double *value(int input, int step) { return values.data() + (std::size_t(step) * 8 + std::size_t(input)) * Step; }
    std::int16_t *sample(int input, int step)
    {
        return samples.data() + (std::size_t(step) * 8 + std::size_t(input)) * Step;
    }
    void synthesise(int step)
    {
        double *out[8];
        for (int i = 0; i < 8; ++i)
            out[i] = value(i, step);
        synthesiser.render(out, Step);
    }
    void convert(int step)
    {
        const double *in[8];
        std::int16_t *out[8];
        for (int i = 0; i < 8; ++i) {
            in[i] = value(i, step);
            out[i] = sample(i, step);
        }
        frontEnd.convert(in, out, Step);
    }
    void measure(int step)
    {
        const std::int16_t *in[8];
        for (int i = 0; i < 8; ++i)
            in[i] = sample(i, step);
        chain.process(in, Step);
    }
    void synthesise()
    {
        for (int step = 0; step < StepsPerSecond; ++step)
            synthesise(step);
    }
    void convert()
    {
        for (int step = 0; step < StepsPerSecond; ++step)
            convert(step);
    }
    void measure()
    {
        for (int step = 0; step < StepsPerSecond; ++step)
            measure(step);
    }

    Synthesiser synthesiser;
    FrontEnd frontEnd;
    NoSink sink;
    MeasurementChain chain;
    std::vector<double> values;
    std::vector<std::int16_t> samples;
};

void countSeconds(benchmark::State &state)
{
    state.counters["x_real_time"] = benchmark::Counter(double(state.iterations()), benchmark::Counter::kIsRate);
}

void runWhole(Bench &bench, benchmark::State &state)
{
    for (auto _ : state) {
        for (int step = 0; step < StepsPerSecond; ++step) {
            bench.synthesise(step);
            bench.convert(step);
            bench.measure(step);
        }
    }
    countSeconds(state);
}

void wholeSecond(benchmark::State &state)
{
    Bench bench(0);
    runWhole(bench, state);
}
BENCHMARK(wholeSecond)->Unit(benchmark::kMillisecond);

void wholeSecondOf30Harmonics(benchmark::State &state)
{
    Bench bench(30);
    runWhole(bench, state);
}
BENCHMARK(wholeSecondOf30Harmonics)->Unit(benchmark::kMillisecond);

void wholeSecondOfEverything(benchmark::State &state)
{
    Bench bench(everything());
    runWhole(bench, state);
}
BENCHMARK(wholeSecondOfEverything)->Unit(benchmark::kMillisecond);

void synthesisOfASecond(benchmark::State &state)
{
    Bench bench(0);
    for (auto _ : state)
        bench.synthesise();
    countSeconds(state);
}
BENCHMARK(synthesisOfASecond)->Unit(benchmark::kMillisecond);

void conversionOfASecond(benchmark::State &state)
{
    Bench bench(0);
    for (auto _ : state)
        bench.convert();
    countSeconds(state);
}
BENCHMARK(conversionOfASecond)->Unit(benchmark::kMillisecond);

void metrologyOfASecond(benchmark::State &state)
{
    Bench bench(0);
    for (auto _ : state)
        bench.measure();
    countSeconds(state);
}
BENCHMARK(metrologyOfASecond)->Unit(benchmark::kMillisecond);

void metrologyWithoutFlicker(benchmark::State &state)
{
    Bench bench(0);
    bench.chain.setFlickerEnabled(false);
    for (auto _ : state)
        bench.measure();
    countSeconds(state);
}
BENCHMARK(metrologyWithoutFlicker)->Unit(benchmark::kMillisecond);

// Five windows of eight channels: what FFTW itself takes of a second.
void fftwOfASecond(benchmark::State &state)
{
    Spectrum spectrum;
    for (auto _ : state) {
        for (int window = 0; window < 5; ++window)
            spectrum.transformOnly();
    }
    countSeconds(state);
}
BENCHMARK(fftwOfASecond)->Unit(benchmark::kMillisecond);

double processorSeconds()
{
    timespec now;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

// The two-hundredth part of a second on the core: what a simulated second may take at 200 times real time.
void budget(benchmark::State &state)
{
    for (auto _ : state) {
        const double end = processorSeconds() + 0.005;
        while (processorSeconds() < end) { }
    }
    countSeconds(state);
}
BENCHMARK(budget)->Unit(benchmark::kMillisecond)->Iterations(20);

} // namespace

int main(int argc, char **argv)
{
    return Ratios::run(
        argc, argv, Ratios::ProcessorTime,
        { { "second of all stages / budget at 200 times real time", "wholeSecond", "budget", 1.0 },
          { "second with 30 harmonics / budget at 200 times real time", "wholeSecondOf30Harmonics", "budget", 1.0 },
          { "second of everything at once / budget at 200 times real time", "wholeSecondOfEverything", "budget", 0.0 },
          { "second of metrology / FFTW alone", "metrologyOfASecond", "fftwOfASecond", 10.0 } });
}
