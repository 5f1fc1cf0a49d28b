#include "check.h"
#include "rig.h"
#include "signal/noise.h"
#include "signal/phaseclock.h"

#include <cmath>

using namespace rig;

namespace {

using Rendered = std::vector<std::vector<double>>;

Rendered render(Synthesiser &synthesiser, int n, int step)
{
    Rendered all(InputCount, std::vector<double>(std::size_t(n)));
    for (int done = 0; done < n; done += step) {
        const int part = std::min(step, n - done);
        double *out[InputCount];
        for (std::size_t i = 0; i < InputCount; ++i)
            out[i] = all[i].data() + done;
        synthesiser.render(out, part);
    }
    return all;
}

// Everything that a description can say, on one supply.
SignalSpec busySpec()
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.3, 16.0, 0.8);
    spec.driftHzPerSecond = 0.2;
    for (std::size_t i = 0; i < InputCount; ++i) {
        spec.inputs[i].harmonics = { { 3, 5.0, 10.0 }, { 100, 1.0, 45.0 } };
        spec.inputs[i].interharmonics = { { 183.0, 2.0, 30.0 } };
        spec.inputs[i].dc = 0.25;
    }
    spec.inputs[U2].modulation = { ModulationSpec::Shape::Sinusoidal, 8.8, 3.0, 20.0 };
    spec.inputs[U3].modulation = { ModulationSpec::Shape::Rectangular, 7.0, 2.0, 0.0 };
    spec.inputs[I2].frequencyHz = 47.0;
    spec.signalling.push_back({ PhaseVoltages, 1375.0, 3.0, 0.1, 0.2, 0.5 });
    SignalEvent dip;
    dip.percent = 40.0;
    dip.startSeconds = 0.2;
    dip.durationSeconds = 0.1;
    SignalEvent jump;
    jump.kind = EventKind::PhaseJump;
    jump.angleDeg = 30.0;
    jump.startSeconds = 0.35;
    jump.startPhaseDeg = 90.0;
    SignalEvent ring;
    ring.kind = EventKind::OscillatoryTransient;
    ring.inputs = maskOf(U1);
    ring.amplitude = 200.0;
    ring.startSeconds = 0.4;
    SignalEvent impulse = ring;
    impulse.kind = EventKind::ImpulsiveTransient;
    impulse.inputs = maskOf(U2);
    impulse.riseSeconds = 0.0001;
    SignalEvent inrush;
    inrush.kind = EventKind::Inrush;
    inrush.inputs = PhaseCurrents;
    inrush.percent = 600.0;
    inrush.decaySeconds = 0.05;
    inrush.startSeconds = 0.3;
    SignalEvent load;
    load.kind = EventKind::LoadStep;
    load.inputs = maskOf(I1);
    load.percent = 50.0;
    load.angleDeg = -20.0;
    load.startSeconds = 0.6;
    spec.events = { dip, jump, ring, impulse, inrush, load };
    return spec;
}

} // namespace

TEST(samplesAreTheTrueValuesOfEverythingTheSpecCanSay)
{
    Synthesiser synthesiser(busySpec());
    const Rendered samples = render(synthesiser, 16384, 1000);
    for (int input = 0; input < InputCount; ++input) {
        // The table of harmonics is exact to 1e-6 of the order 100, which has 1 percent here; currents up to 6 times.
        const double tolerance = input == IN ? 1e-4 : 1e-5;
        for (std::int64_t n = 0; n < 16384; n += 7)
            CHECK_NEAR(samples[std::size_t(input)][std::size_t(n)], synthesiser.valueAt(input, n), tolerance);
    }
}

TEST(telegramsAndRectangularSwingsChangeAtTheirSample)
{
    // Periods longer and shorter than the 256 samples that are made at once, bursts that fill their period, single and
    // endless ones, one that begins inside of a block; swings slower and faster than a block.
    struct Case
    {
        double start, on, period, rate;
    };
    for (const Case &c : { Case { 0.0, 0.1, 0.3, 0.7 }, Case { 0.0371, 0.0123, 0.0, 8.8 },
                           Case { 0.01, 0.0, 0.0, 40.0 }, Case { 0.2, 0.25, 0.25, 100.0 / 3.0 },
                           Case { 0.003, 0.002, 0.005, 310.0 }, Case { 0.0, 0.0125, 0.0125, 80.0 } }) {
        SignalSpec spec = SignalSpec::threePhase(230.0, 50.0);
        spec.signalling.push_back({ PhaseVoltages, 285.0, 10.0, c.start, c.on, c.period });
        spec.inputs[U2].modulation = { ModulationSpec::Shape::Rectangular, c.rate, 10.0, 77.0 };
        Synthesiser synthesiser(spec);
        const Rendered samples = render(synthesiser, 16384, 1000);
        for (int input : { U1, U2 }) {
            for (std::int64_t n = 0; n < 16384; ++n)
                CHECK_NEAR(samples[std::size_t(input)][std::size_t(n)], synthesiser.valueAt(input, n), 1e-5);
        }
    }
}

TEST(pureSineIsExactAfterAWeek)
{
    // At the start of a week's last second the sample number is 1.2e10; the phase is still the formula's.
    PhaseClock clock;
    clock.setRate(SampleRate);
    clock.setCourse(50.0, 0.0, 0.0, 0);
    const double cycles = clock.cycles(604800.0 * SampleRate + 1024.0);
    CHECK_NEAR(cycles - std::floor(cycles), 0.5, 1e-6);
}

TEST(sameSeedGivesTheSameSamplesInAnyLengths)
{
    SignalSpec spec = busySpec();
    for (InputSpec &input : spec.inputs)
        input.noiseRms = 0.7;
    Synthesiser whole(spec, 5);
    Synthesiser pieces(spec, 5);
    Synthesiser other(spec, 6);
    const Rendered a = render(whole, 5000, 5000);
    const Rendered b = render(pieces, 5000, 13);
    const Rendered c = render(other, 5000, 5000);
    CHECK(a == b);
    for (std::size_t i = 0; i < InputCount; ++i)
        CHECK(a[i] != c[i]);
}

TEST(noiseHasItsRmsAndNoMean)
{
    SignalSpec spec;
    spec.inputs[U1].noiseRms = 2.0;
    Synthesiser synthesiser(spec, 3);
    const Rendered samples = render(synthesiser, 200000, 4096);
    double sum = 0.0, square = 0.0, neighbours = 0.0;
    for (std::size_t i = 1; i < 200000; ++i) {
        sum += samples[U1][i];
        square += samples[U1][i] * samples[U1][i];
        neighbours += samples[U1][i] * samples[U1][i - 1];
    }
    // Standard errors of 200000 samples: mean 0.0045, r.m.s. 0.0032, correlation 0.0022.
    CHECK_NEAR(sum / 200000, 0.0, 0.02);
    CHECK_NEAR(std::sqrt(square / 200000), 2.0, 0.015);
    CHECK_NEAR(neighbours / square, 0.0, 0.01);
}

TEST(noiseLiesOnTheFirstSampleOfEachBlock)
{
    SignalSpec spec;
    spec.inputs[U1].noiseRms = 2.0;
    Synthesiser synthesiser(spec, 3);
    constexpr int Blocks = 400;
    const Rendered samples = render(synthesiser, Blocks * NoiseBlock::Length, 4096);
    double square = 0.0;
    for (std::size_t i = 0; i < samples[U1].size(); i += NoiseBlock::Length)
        square += samples[U1][i] * samples[U1][i];
    CHECK_NEAR(std::sqrt(square / Blocks), 2.0, 0.35); // five standard errors
}

TEST(dipTakesItsDepthForItsSamplesOnly)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0);
    Synthesiser plain(spec);
    SignalEvent dip;
    dip.percent = 40.0;
    dip.inputs = maskOf(U1);
    dip.startSeconds = 1000.0 / SampleRate;
    dip.durationSeconds = 2000.0 / SampleRate;
    spec.events = { dip };
    Synthesiser dipped(spec);
    const Rendered a = render(plain, 4096, 500);
    const Rendered b = render(dipped, 4096, 700);
    for (std::size_t n = 0; n < 4096; ++n) {
        const double factor = n >= 1000 && n < 3000 ? 0.6 : 1.0;
        CHECK_NEAR(b[U1][n], factor * a[U1][n], 1e-9);
        CHECK(b[U2][n] == a[U2][n]);
    }
}

TEST(amplitudeEventsFollowTheirFormulas)
{
    const struct
    {
        EventKind kind;
        double percent, rise, decay, duration, at, factor; // at: seconds after the start
    } rows[] = { { EventKind::Swell, 20.0, 0.0, 0.001, 0.1, 0.05, 1.2 },
                 { EventKind::Swell, 20.0, 0.0, 0.001, 0.1, 0.1001, 1.0 },
                 { EventKind::Interruption, 3.0, 0.0, 0.001, 0.1, 0.05, 0.03 },
                 { EventKind::RapidChange, -6.0, 0.1, 0.001, 0.0, 0.05, 0.97 },
                 { EventKind::RapidChange, -6.0, 0.1, 0.001, 0.0, 5.0, 0.94 },
                 { EventKind::RapidChange, 4.0, 0.1, 0.001, 0.3, 0.35, 1.02 },
                 { EventKind::RapidChange, 4.0, 0.1, 0.001, 0.3, 0.45, 1.0 },
                 { EventKind::Inrush, 500.0, 0.0, 0.2, 0.0, 0.2, 1.0 + 4.0 * 0.36787944117 },
                 { EventKind::LoadStep, 150.0, 0.0, 0.001, 0.0, 9.0, 1.5 } };
    for (const auto &row : rows) {
        SignalSpec spec = SignalSpec::threePhase(100.0, 50.0, 10.0);
        Synthesiser plain(spec);
        SignalEvent event;
        event.kind = row.kind;
        event.inputs = maskOf(I3);
        event.percent = row.percent;
        event.riseSeconds = row.rise;
        event.decaySeconds = row.decay;
        event.durationSeconds = row.duration;
        event.startSeconds = 0.5;
        spec.events = { event };
        Synthesiser synthesiser(spec);
        // Start at sample 10240; the ramps change by less than 1e-3 within a sample.
        const auto n = std::int64_t(std::floor((0.5 + row.at) * SampleRate));
        CHECK_NEAR(synthesiser.valueAt(I3, n), row.factor * plain.valueAt(I3, n), 0.01);
        CHECK_NEAR(synthesiser.valueAt(I3, 10239), plain.valueAt(I3, 10239), 1e-12);
    }
}

TEST(impulseReachesItsPeakAndDecays)
{
    SignalSpec spec;
    SignalEvent impulse;
    impulse.kind = EventKind::ImpulsiveTransient;
    impulse.inputs = maskOf(U1);
    impulse.amplitude = -500.0;
    impulse.riseSeconds = 0.0005;
    impulse.decaySeconds = 0.005;
    impulse.startSeconds = 0.1;
    spec.events = { impulse };
    Synthesiser synthesiser(spec);
    double lowest = 0.0;
    for (std::int64_t n = 2000; n < 4000; ++n)
        lowest = std::min(lowest, synthesiser.valueAt(U1, n));
    CHECK_NEAR(lowest, -500.0, 0.5);
    CHECK(synthesiser.valueAt(U1, 2047) == 0.0);
    CHECK_NEAR(synthesiser.valueAt(U1, 2048 + 2048), 0.0, 1e-4); // twenty time constants later
}

TEST(eventWaitsForItsPointOnTheWave)
{
    for (int degrees = -180; degrees <= 360; degrees += 15) {
        SignalSpec spec = SignalSpec::threePhase(230.0, 49.7);
        spec.driftHzPerSecond = 0.3;
        SignalEvent dip;
        dip.percent = 100.0;
        dip.inputs = maskOf(U2) | maskOf(U3);
        dip.startSeconds = 0.31;
        dip.startPhaseDeg = degrees;
        spec.events = { dip };
        Synthesiser synthesiser(spec);
        const double start = synthesiser.startSample(dip);
        CHECK(start >= 0.31 * SampleRate - 1e-3);
        CHECK(start <= 0.31 * SampleRate + SampleRate / 49.7 + 1.0);
        const double off = synthesiser.truePhase(U2, start) - degrees / 360.0;
        CHECK_NEAR(off - std::floor(off + 0.5), 0.0, 1e-6);
    }
}

TEST(eventAddedWhileRunningBeginsAtOnce)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0);
    Synthesiser plain(spec);
    Synthesiser synthesiser(spec);
    const Rendered a = render(plain, 2000, 2000);
    const Rendered before = render(synthesiser, 1000, 1000);
    SignalEvent dip;
    dip.percent = 50.0;
    dip.startSeconds = synthesiser.seconds();
    synthesiser.addEvent(dip);
    const Rendered after = render(synthesiser, 1000, 1000);
    for (std::size_t n = 0; n < 1000; ++n) {
        CHECK(before[U1][n] == a[U1][n]);
        CHECK_NEAR(after[U1][n], 0.5 * a[U1][n + 1000], 1e-9);
    }
    synthesiser.clearEvents();
    const Rendered cleared = render(synthesiser, 100, 100);
    CHECK_NEAR(cleared[U1][0], synthesiser.valueAt(U1, 2000), 1e-9);
}

TEST(newSpecGoesOnWithoutAJumpOfPhase)
{
    Synthesiser synthesiser(SignalSpec::threePhase(230.0, 50.0));
    render(synthesiser, 1234, 1234);
    const double phase = synthesiser.truePhase(U1, 1234.0);
    synthesiser.setSpec(SignalSpec::threePhase(115.0, 60.0));
    CHECK_NEAR(synthesiser.truePhase(U1, 1234.0), phase, 1e-12);
    CHECK_NEAR(synthesiser.trueFrequency(U1, 1234), 60.0, 0.0);
    const Rendered next = render(synthesiser, 10, 10);
    CHECK_NEAR(next[U1][0], 115.0 * Sqrt2 * std::sin(2.0 * Pi * phase), 1e-6);
}

TEST(newSpecWithTheSameDriftLetsItGoOn)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0);
    spec.driftHzPerSecond = 1.0;
    spec.driftLimitHz = 0.5;
    Synthesiser synthesiser(spec);
    render(synthesiser, 4096, 4096);
    spec.inputs[U1].rms = 200.0;
    synthesiser.setSpec(spec);
    CHECK_NEAR(synthesiser.trueFrequency(U1, 8192), 50.4, 1e-9);
    CHECK_NEAR(synthesiser.trueFrequency(U1, 20480), 50.5, 1e-9); // stopped at the limit
}

TEST(runningEventKeepsItsPlaceWhenTheSpecChanges)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0);
    SignalEvent dip;
    dip.percent = 30.0;
    dip.startSeconds = 0.01;
    dip.startPhaseDeg = 77.0;
    spec.events = { dip };
    Synthesiser synthesiser(spec);
    const double start = synthesiser.startSample(dip);
    render(synthesiser, 3000, 3000);
    spec.frequencyHz = 51.0;
    synthesiser.setSpec(spec);
    CHECK_NEAR(synthesiser.startSample(dip), start, 0.0);
}

TEST(neutralCurrentIsTheSumOfThePhases)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0, 10.0);
    spec.inputs[I1].rms = 25.0;
    Synthesiser synthesiser(spec);
    // The balanced 10 A cancel; 15 A of L1 are left.
    CHECK_NEAR(synthesiser.trueRms(IN, 0, 4096), 15.0, 1e-9);
    spec.neutralCarriesPhaseCurrents = false;
    synthesiser.setSpec(spec);
    CHECK_NEAR(synthesiser.trueRms(IN, 0, 4096), 0.0, 0.0);
}

TEST(loadHasItsPowerFactor)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0, 10.0, 0.6);
    Synthesiser synthesiser(spec);
    CHECK_NEAR(synthesiser.truePower(U2, I2, 0, 4096), 230.0 * 10.0 * 0.6, 1e-6);
    CHECK_NEAR(spec.inputs[I1].phaseDeg, -53.13010235, 1e-6); // lags
    setLoad(spec, 1, 5.0, 0.6, true);
    CHECK_NEAR(spec.inputs[I2].phaseDeg, -120.0 + 53.13010235, 1e-6);
    setLoad(spec, 3, 1.0, 1.0);
    CHECK(spec.inputs[IN].rms == 0.0);
    setLoad(spec, 0, 5.0, -1.0);
    synthesiser.setSpec(spec);
    CHECK_NEAR(synthesiser.truePower(U1, I1, 0, 4096), -230.0 * 5.0, 1e-6);
}

TEST(loadStepGivesEachLineThePowerFactor)
{
    // Lines of different loads before; during the step all have 0.6: P / S over whole cycles.
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0, 10.0, 0.9);
    setLoad(spec, 1, 5.0, 0.5, true);
    SignalEvent step;
    step.kind = EventKind::LoadStep;
    step.inputs = PhaseCurrents;
    step.percent = 150.0;
    step.powerFactor = 0.6;
    step.startSeconds = 0.2;
    step.durationSeconds = 0.2;
    spec.events = { step };
    Synthesiser synthesiser(spec);
    for (int line = 0; line < 3; ++line) {
        for (std::int64_t first : { 0, 4096, 8192 }) {
            const double before = line == 1 ? 0.5 : 0.9;
            const double apparent
                = synthesiser.trueRms(U1 + line, first, 4096) * synthesiser.trueRms(I1 + line, first, 4096);
            const double amps = (line == 1 ? 5.0 : 10.0) * (first == 4096 ? 1.5 : 1.0);
            CHECK_NEAR(synthesiser.trueRms(I1 + line, first, 4096), amps, 1e-6);
            CHECK_NEAR(synthesiser.truePower(U1 + line, I1 + line, first, 4096) / apparent,
                       first == 4096 ? 0.6 : before, 1e-6);
        }
    }
    const Rendered samples = render(synthesiser, 12288, 1000);
    for (std::int64_t n = 0; n < 12288; n += 5)
        CHECK_NEAR(samples[I2][std::size_t(n)], synthesiser.valueAt(I2, n), 1e-5);
}

TEST(modulationSwingsByItsDepth)
{
    SignalSpec spec;
    spec.inputs[U1].rms = 100.0;
    spec.inputs[U1].modulation = { ModulationSpec::Shape::Rectangular, 5.0, 10.0, 0.0 };
    Synthesiser synthesiser(spec);
    // Five cycles of 50 Hz in each half of the square wave: 105 V, then 95 V.
    CHECK_NEAR(synthesiser.trueRms(U1, 0, 2048), 105.0, 1e-9);
    CHECK_NEAR(synthesiser.trueRms(U1, 2048, 2048), 95.0, 1e-9);
    spec.inputs[U1].modulation.shape = ModulationSpec::Shape::Sinusoidal;
    synthesiser.setSpec(spec);
    // 100 * sqrt(1 + m^2 / 2), m = 0.05
    CHECK_NEAR(synthesiser.trueRms(U1, 0, 20480), 100.0 * std::sqrt(1.0 + 0.05 * 0.05 / 2.0), 1e-9);
}

TEST(validationNamesThePlaceAndTheRange)
{
    CHECK(validate(busySpec()).empty());
    SignalSpec spec;
    spec.inputs[I1].harmonics = { { 3, 1.0, 0.0 }, { 101, 1.0, 0.0 } };
    CHECK(validate(spec) == "inputs[4].harmonics[1].order: 2 to 100 expected");
    spec = SignalSpec();
    spec.frequencyHz = 0.0;
    CHECK(validate(spec) == "frequencyHz: 1 to 1000 expected");
    spec = SignalSpec();
    spec.inputs[U1].rms = std::nan("");
    CHECK(validate(spec) == "inputs[0].rms: 0 to 1000000 expected");
    SignalEvent event;
    event.percent = 120.0;
    CHECK(validate(event) == "percent: 0 to 100 expected");
    spec = SignalSpec();
    spec.events = { SignalEvent(), event };
    CHECK(validate(spec) == "events[1].percent: 0 to 100 expected");
    event = SignalEvent();
    event.inputs = 0;
    CHECK(!validate(event).empty());
}

TEST_MAIN()
