#include "check.h"
#include "rig.h"

#include <cmath>

using namespace rig;

namespace {

// One part in 10^4 of the full scale of 10 units is what the instrument promises; quantisation alone is a hundredth.
constexpr double RmsTolerance = 1e-5;
constexpr double LineTolerance = 2e-5;

ProcessorSetup nominal(int hertz)
{
    ProcessorSetup setup;
    setup.nominalFrequency = hertz;
    return setup;
}

AggregationPayload measure(const SignalSpec &spec, const ProcessorSetup &setup = ProcessorSetup(), double seconds = 1.0)
{
    Rig rig(spec, setup);
    rig.run(seconds);
    return rig.recorder.aggregations.back().payload;
}

} // namespace

TEST(rmsPeakAndPowerOfSinesMatchTheirFormulas)
{
    // Voltage 230 V; currents of 20, 30, 40 A at power factors 1, 0.8 lagging, 0.5 leading.
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0, 20.0);
    setLoad(spec, 1, 30.0, 0.8);
    setLoad(spec, 2, 40.0, 0.5, true);
    const AggregationPayload p = measure(spec);
    const double amps[3] = { 20.0, 30.0, 40.0 };
    const double factor[3] = { 1.0, 0.8, 0.5 };
    const double u = 230.0 / VoltsPerUnit;
    for (std::size_t k = 0; k < 3; ++k) {
        const double i = amps[k] / AmpsPerUnit;
        CHECK_NEAR(p.channel[k].voltageRms, u, RmsTolerance);
        CHECK_NEAR(p.channel[k].currentRms, i, RmsTolerance);
        CHECK_NEAR(p.channel[k].activePower, u * i * factor[k], 2e-5);
        CHECK_NEAR(p.channel[k].apparentPower, u * i, 4e-5);
        // The sample nearest to the crest is at most 1/4096 of a cycle away: 1 - cos = 1.2e-6; half a step of 3e-4.
        CHECK_NEAR(p.channel[k].voltagePeak, u * Sqrt2, 1.6e-4);
        CHECK_NEAR(p.channel[k].currentPeak, i * Sqrt2, 1.6e-4);
        CHECK_NEAR(p.channel[k].voltageOffset, 0.0, RmsTolerance);
        CHECK(p.channel[k].reserved == 0.0f);
    }
    CHECK_NEAR(p.frequency, 50.0, 1e-4);
    CHECK(p.reserved0[0] == 0 && p.reserved0[1] == 0 && p.reserved1 == 0);
}

TEST(offsetIsTheMeanAndPartOfTheRms)
{
    SignalSpec spec = SignalSpec::threePhase(100.0, 50.0, 10.0);
    spec.inputs[U1].dc = 30.0;
    spec.inputs[I2].dc = -4.0;
    const AggregationPayload p = measure(spec);
    CHECK_NEAR(p.channel[0].voltageOffset, 30.0 / VoltsPerUnit, RmsTolerance);
    CHECK_NEAR(p.channel[0].voltageRms, std::sqrt(100.0 * 100.0 + 30.0 * 30.0) / VoltsPerUnit, RmsTolerance);
    CHECK_NEAR(p.channel[0].voltagePeak, (100.0 * Sqrt2 + 30.0) / VoltsPerUnit, 2e-4);
    CHECK_NEAR(p.channel[1].currentOffset, -4.0 / AmpsPerUnit, RmsTolerance);
}

TEST(zeroOffsetsOfTheSetupAreTakenOff)
{
    ProcessorSetup setup;
    setup.voltageZero = { { 0.1f, -0.2f, 0.3f, 0.05f } };
    setup.currentZero = { { -0.01f, 0.02f, 0.03f, 0.04f } };
    Rig rig(SignalSpec::threePhase(100.0, 50.0, 10.0), setup);
    CalibrationSet set;
    set.zeroVolt[1] = setup.voltageZero;
    set.zeroCurrent[0] = setup.currentZero;
    rig.frontEnd.setCalibration(set);
    rig.run(1.0);
    const AggregationPayload &p = rig.recorder.aggregations.back().payload;
    for (std::size_t k = 0; k < 4; ++k) {
        CHECK_NEAR(p.channel[k].voltageOffset, 0.0, 2e-4); // the open neutral rests between two steps of 3e-4
        CHECK_NEAR(p.channel[k].currentOffset, 0.0, 2e-4);
    }
    CHECK_NEAR(p.channel[1].voltageRms, 100.0 / VoltsPerUnit, RmsTolerance);
    // The wave shows the corrected samples as well.
    const WavePayload &wave = rig.recorder.waves.back().payload;
    double mean = 0.0;
    for (std::int16_t sample : wave.pair[2].voltage)
        mean += sample / 4096.0;
    CHECK_NEAR(mean, 0.0, 0.5);
}

TEST(harmonicsToOrder100HaveTheirMagnitudesAndPhases)
{
    for (int hertz : { 50, 60 }) {
        for (double off : { 0.0, 0.37 }) {
            SignalSpec spec = SignalSpec::threePhase(150.0, hertz + off, 30.0, 0.9);
            for (std::size_t input = 0; input < InputCount; ++input) {
                for (int order = 2; order <= 100; ++order)
                    spec.inputs[input].harmonics.push_back({ order, 1.0, double((order * 37) % 360) });
            }
            const AggregationPayload p = measure(spec, nominal(hertz));
            CHECK_NEAR(p.frequency, hertz + off, 2e-4);
            const double p0 = double(p.spectrum[0][0].phase);
            for (std::size_t channel : { 0u, 1u, 2u, 4u, 5u, 6u }) {
                const double fundamental = channel < 4 ? 150.0 / VoltsPerUnit : 30.0 / AmpsPerUnit;
                const InputSpec &input = spec.inputs[channel];
                CHECK_NEAR(p.spectrum[channel][0].magnitude, fundamental, LineTolerance);
                for (int h = 1; h < 100; ++h) {
                    const SpectralEntry &row = p.spectrum[channel][std::size_t(h)];
                    CHECK_NEAR(row.magnitude, 0.01 * fundamental, LineTolerance);
                    // Referred to L1 in the instrument's way, what is left is the given phase, counted from the
                    // zero crossing of the channel's fundamental, which lies at phaseDeg of L1.
                    const double expected = (double((h + 1) * 37 % 360) + (h + 1) * input.phaseDeg) * Pi / 180.0;
                    const double tolerance = channel < 4 ? 0.002 : 0.01; // currents are 6 times smaller
                    CHECK_NEAR(wrapped(shownPhase(double(row.phase), p0, h) - expected), 0.0, tolerance);
                    CHECK_NEAR(row.interharmonic, 0.0, LineTolerance);
                }
            }
        }
    }
}

TEST(phaseOfTheFundamentalsIsTheirAngleToL1)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0, 30.0, 0.8);
    const AggregationPayload p = measure(spec);
    const double p0 = double(p.spectrum[0][0].phase);
    const double expected[8] = { 0.0, -120.0, 120.0, 0.0, -36.8698976, -156.8698976, 83.1301024, 0.0 };
    for (std::size_t channel : { 0u, 1u, 2u, 4u, 5u, 6u })
        CHECK_NEAR(shownPhase(double(p.spectrum[channel][0].phase), p0, 0) * 180.0 / Pi, expected[channel], 0.01);
}

TEST(interharmonicsFallIntoTheirSubgroup)
{
    SignalSpec spec = SignalSpec::threePhase(200.0, 50.0);
    spec.inputs[U1].interharmonics = { { 175.0, 2.0, 0.0 }, { 185.0, 1.5, 10.0 }, { 20.0, 1.0, 0.0 } };
    spec.inputs[U2].interharmonics = { { 155.0, 3.0, 0.0 } }; // next to the third harmonic: part of its subgroup
    const AggregationPayload p = measure(spec);
    const double u = 200.0 / VoltsPerUnit;
    CHECK_NEAR(p.spectrum[0][3].interharmonic, u * 0.025, 5e-5); // between orders 3 and 4: sqrt(2^2 + 1.5^2)
    CHECK_NEAR(p.spectrum[0][0].interharmonic, u * 0.01, 5e-5); // below the fundamental
    CHECK_NEAR(p.spectrum[0][4].interharmonic, 0.0, 5e-5);
    CHECK_NEAR(p.spectrum[1][2].magnitude, u * 0.03, 5e-5);
    CHECK_NEAR(p.spectrum[1][3].interharmonic, 0.0, 5e-5);
}

TEST(orders400HertzStandInTheirRows)
{
    SignalSpec spec = SignalSpec::threePhase(115.0, 403.0, 20.0, 0.7);
    for (std::size_t input = 0; input < InputCount; ++input) {
        for (int order = 2; order <= 12; ++order)
            spec.inputs[input].harmonics.push_back({ order, 4.0, 10.0 * order });
    }
    Rig rig(spec, nominal(400));
    rig.run(1.0);
    const AggregationPayload &p = rig.recorder.aggregations.back().payload;
    CHECK_NEAR(p.frequency, 403.0, 2e-3);
    // Words as on the wire: magnitude at 72 + 400 k + 32 h, phase one later, counted from the time stamp.
    std::vector<float> words(3250);
    std::memcpy(words.data() + 2, &p, sizeof(p));
    const double p0 = double(words[73]);
    for (std::size_t k : { 0u, 1u, 6u }) {
        const double fundamental = k < 4 ? 115.0 / VoltsPerUnit : 20.0 / AmpsPerUnit;
        for (std::size_t h = 0; h < 12; ++h) {
            const double part = h == 0 ? 1.0 : 0.04;
            CHECK_NEAR(words[72 + 400 * k + 32 * h], fundamental * part, 3e-5);
            const double expected = (h == 0 ? 0.0 : 10.0 * double(h + 1)) + double(h + 1) * spec.inputs[k].phaseDeg;
            CHECK_NEAR(wrapped(shownPhase(double(words[73 + 400 * k + 32 * h]), p0, int(h)) - expected * Pi / 180.0),
                       0.0, 0.01);
        }
    }
    CHECK_NEAR(p.channel[0].voltageRms, 115.0 / VoltsPerUnit * std::sqrt(1.0 + 11 * 0.0016), 5e-5);
    // Eighty cycles of 400 Hz: about five windows a second.
    CHECK(rig.recorder.aggregations.size() == 4);
}

TEST(windowsLastTenOrTwelveCyclesWithoutAGap)
{
    const struct
    {
        int nominal;
        double hertz;
        double windowMs;
    } rows[] = { { 50, 50.0, 200.0 },   { 50, 42.6, 10000.0 / 42.6 },    { 50, 57.4, 10000.0 / 57.4 },
                 { 60, 60.0, 200.0 },   { 60, 51.1, 12000.0 / 51.1 },    { 60, 68.9, 12000.0 / 68.9 },
                 { 400, 400.0, 200.0 }, { 400, 345.0, 80000.0 / 345.0 }, { 400, 455.0, 80000.0 / 455.0 } };
    for (const auto &row : rows) {
        Rig rig(SignalSpec::threePhase(230.0, row.hertz, 5.0), nominal(row.nominal));
        rig.run(3.0);
        const auto &all = rig.recorder.aggregations;
        CHECK(all.size() > 2);
        CHECK_NEAR(double(all.back().timeMs - all.front().timeMs), row.windowMs * double(all.size() - 1), 1.5);
        for (const auto &item : all) {
            CHECK_NEAR(item.payload.frequency, row.hertz, row.hertz * 4e-6);
            CHECK_NEAR(item.payload.channel[0].voltageRms, 230.0 / VoltsPerUnit, 2e-5);
            CHECK_NEAR(item.payload.channel[2].voltageRms, 230.0 / VoltsPerUnit, 2e-5);
        }
    }
}

TEST(frequencyIsNegativeWithoutASignal)
{
    for (int hertz : { 50, 60, 400 }) {
        Rig rig(SignalSpec::threePhase(0.0, hertz), nominal(hertz));
        rig.frontEnd.setNoise(0.4);
        rig.run(1.5);
        CHECK(rig.recorder.aggregations.size() >= 5);
        for (const auto &item : rig.recorder.aggregations) {
            CHECK(item.payload.frequency == float(-hertz));
            CHECK_NEAR(item.payload.channel[0].voltageRms, 0.0, 3e-4);
        }
        CHECK(rig.chain.frequency() == -hertz);
    }
}

TEST(endsOfTheRangeOfFrequenciesAreMeasured)
{
    // IEC 61000-4-30, class A: 42.5 Hz to 57.5 Hz, 51 Hz to 69 Hz. Noise takes the measured value beyond.
    const double ends[][2] = { { 50, 42.5 }, { 50, 57.5 }, { 60, 51 }, { 60, 69 } };
    for (const auto &[rated, hertz] : ends) {
        Rig rig(SignalSpec::threePhase(230.0, rated), nominal(int(rated)));
        rig.frontEnd.setNoise(0.4);
        rig.run(1.3);
        rig.synthesiser.setSpec(SignalSpec::threePhase(230.0, hertz));
        rig.run(10.0);
        CHECK(rig.recorder.aggregations.size() >= 40);
        for (const auto &item : rig.recorder.aggregations) {
            if (item.timeMs > Rig::StartMs + 2500)
                CHECK_NEAR(double(item.payload.frequency), hertz, 0.01);
        }
    }
}

TEST(frequencyOutOfTheLockRangeIsNegative)
{
    for (double hertz : { 30.0, 70.0, 400.0 }) {
        Rig rig(SignalSpec::threePhase(230.0, hertz));
        rig.run(1.5);
        for (const auto &item : rig.recorder.aggregations)
            CHECK(item.payload.frequency < 0.0f);
    }
}

TEST(lastFrequencyIsKeptNegativeThroughAnInterruption)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.8);
    SignalEvent gone;
    gone.kind = EventKind::Interruption;
    gone.startSeconds = 1.0;
    gone.durationSeconds = 1.0;
    spec.events = { gone };
    Rig rig(spec);
    rig.run(4.0);
    int negative = 0;
    for (const auto &item : rig.recorder.aggregations) {
        const double second = double(item.timeMs - Rig::StartMs) / 1000.0;
        CHECK_NEAR(std::fabs(item.payload.frequency), 50.8, 0.01);
        if (second > 1.05 && second < 1.75) {
            CHECK(item.payload.frequency < 0.0f);
            ++negative;
        }
        if (second < 0.78 || second > 2.3)
            CHECK_NEAR(item.payload.frequency, 50.8, 0.001);
    }
    CHECK(negative >= 3);
}

TEST(currentIsTheReferenceWhereNoVoltageIs)
{
    SignalSpec spec;
    spec.frequencyHz = 49.2;
    spec.inputs[I2].rms = 40.0;
    const AggregationPayload p = measure(spec);
    CHECK_NEAR(p.frequency, 49.2, 1e-3);
    CHECK_NEAR(p.channel[1].currentRms, 40.0 / AmpsPerUnit, RmsTolerance);
}

TEST(secondPhaseTakesOverWhenTheFirstIsLost)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.2, 5.0);
    SignalEvent gone;
    gone.kind = EventKind::Interruption;
    gone.inputs = maskOf(U1);
    gone.startSeconds = 1.0;
    spec.events = { gone };
    Rig rig(spec);
    rig.run(3.0);
    for (const auto &item : rig.recorder.aggregations) {
        CHECK_NEAR(item.payload.frequency, 50.2, 0.02);
        CHECK_NEAR(item.payload.channel[1].voltageRms, 230.0 / VoltsPerUnit, 1e-3);
    }
    CHECK_NEAR(rig.recorder.aggregations.back().payload.channel[0].voltageRms, 0.0, 1e-3);
}

TEST(driftingFrequencyIsFollowed)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 49.0);
    spec.driftHzPerSecond = 0.5;
    spec.inputs[U1].harmonics = { { 25, 2.0, 0.0 } };
    Rig rig(spec);
    rig.run(5.0);
    for (const auto &item : rig.recorder.aggregations) {
        const double middle = double(item.timeMs - Rig::StartMs) / 1000.0 + 0.1;
        CHECK_NEAR(item.payload.frequency, 49.0 + 0.5 * middle, 0.002);
        CHECK_NEAR(item.payload.channel[1].voltageRms, 230.0 / VoltsPerUnit, 2e-4);
        CHECK_NEAR(item.payload.spectrum[0][24].magnitude, 0.02 * 230.0 / VoltsPerUnit, 1e-4);
    }
}

TEST(phaseJumpIsNoChangeOfFrequencyForLong)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0);
    SignalEvent jump;
    jump.kind = EventKind::PhaseJump;
    jump.angleDeg = 60.0;
    jump.startSeconds = 1.0;
    spec.events = { jump };
    Rig rig(spec);
    rig.run(2.0);
    for (const auto &item : rig.recorder.aggregations) {
        const double second = double(item.timeMs - Rig::StartMs) / 1000.0;
        CHECK_NEAR(item.payload.frequency, 50.0, 0.06);
        if (second > 1.1)
            CHECK_NEAR(item.payload.frequency, 50.0, 1e-3);
    }
}

TEST(signallingVoltagesStandAtTheTwoFrequenciesOfTheSetup)
{
    ProcessorSetup setup;
    setup.signallingFrequency = { { 1375.0f, 316.67f } };
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0);
    spec.signalling.push_back({ PhaseVoltages, 1375.0, 2.0, 0.0, 0.0, 0.0 });
    spec.signalling.push_back({ maskOf(U2), 316.67, 5.0, 0.0, 0.0, 0.0 });
    const AggregationPayload p = measure(spec, setup);
    const double u = 230.0 / VoltsPerUnit;
    CHECK_NEAR(p.signalling[0][0], 0.02 * u, 5e-5);
    CHECK_NEAR(p.signalling[1][0], 0.02 * u, 2e-3); // leakage of the tone between two lines beside it
    CHECK_NEAR(p.signalling[2][0], 0.02 * u, 5e-5);
    CHECK_NEAR(p.signalling[3][0], 0.0, 5e-5);
    CHECK_NEAR(p.signalling[0][1], 0.0, 5e-5);
    // Between two lines, a third of a spacing off: the four nearest hold sinc^2 of 1/3, 2/3, 4/3, 5/3: 0.9487 of the
    // squares.
    double share = 0.0;
    for (double x : { 1.0 / 3.0, 2.0 / 3.0, 4.0 / 3.0, 5.0 / 3.0 })
        share += std::pow(std::sin(Pi * x) / (Pi * x), 2);
    CHECK_NEAR(p.signalling[1][1], 0.05 * u * std::sqrt(share), 5e-4);
}

TEST(signallingBurstIsSeenWhileItLasts)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0);
    spec.signalling.push_back({ PhaseVoltages, 285.0, 4.0, 1.0, 1.0, 0.0 });
    Rig rig(spec);
    rig.run(3.0);
    for (const auto &item : rig.recorder.aggregations) {
        const double second = double(item.timeMs - Rig::StartMs) / 1000.0;
        const double expected = second >= 1.0 && second <= 1.8 ? 0.04 * 230.0 / VoltsPerUnit : 0.0;
        if (second < 0.8 || (second > 1.0 && second < 1.8) || second > 2.0)
            CHECK_NEAR(item.payload.signalling[0][1], expected, 1e-4);
    }
}

TEST(clippedVoltageMeasuresAsTheClippedWave)
{
    // 1000 V r.m.s. on range 1: 17.85 units peak, cut at 10. With a = asin(10 / 17.85), the r.m.s. of the rest is
    // sqrt((2 / pi) (A^2 (a / 2 - sin(2 a) / 4) + C^2 (pi / 2 - a))).
    const double peak = 1000.0 * Sqrt2 / VoltsPerUnit;
    const double a = std::asin(10.0 / peak);
    const double expected
        = std::sqrt(2.0 / Pi * (peak * peak * (a / 2.0 - std::sin(2.0 * a) / 4.0) + 100.0 * (Pi / 2.0 - a)));
    Rig rig(SignalSpec::threePhase(1000.0, 50.0));
    rig.run(1.0);
    const AggregationPayload &p = rig.recorder.aggregations.back().payload;
    CHECK_NEAR(p.channel[0].voltageRms, expected, 5e-4);
    CHECK_NEAR(p.channel[0].voltagePeak, 10.0, 4e-4);
    CHECK(rig.frontEnd.takeClipped());
    const WavePayload &wave = rig.recorder.waves.back().payload;
    CHECK(*std::max_element(wave.pair[0].voltage.begin(), wave.pair[0].voltage.end()) == 32767);
    CHECK(*std::min_element(wave.pair[0].voltage.begin(), wave.pair[0].voltage.end()) == -32768);
}

TEST(rogowskiClampReadsTheCurrentAndItsHarmonics)
{
    ProcessorSetup setup;
    setup.flexibleClamp = true;
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0, 40.0, 0.8);
    for (std::size_t i = I1; i <= I3; ++i)
        spec.inputs[i].harmonics = { { 5, 10.0, 0.0 }, { 7, 5.0, 30.0 } };
    Rig rig(spec, setup);
    rig.run(20.0); // the integrators forget where they started with a time constant of 1.6 s
    const AggregationPayload &p = rig.recorder.aggregations.back().payload;
    const double i = 40.0 / AmpsPerUnit;
    CHECK_NEAR(p.spectrum[4][0].magnitude, i, 1e-4);
    CHECK_NEAR(p.spectrum[4][4].magnitude, 0.1 * i, 1e-4);
    CHECK_NEAR(p.spectrum[4][6].magnitude, 0.05 * i, 1e-4);
    CHECK_NEAR(p.channel[0].activePower, 230.0 / VoltsPerUnit * i * 0.8, 5e-3);
    // The wrong clamp: coils on an input that does not integrate read their fifth harmonic five times as large.
    Rig wrong(spec);
    wrong.frontEnd.setRogowski(true, 50.0);
    wrong.run(1.0);
    CHECK_NEAR(wrong.recorder.aggregations.back().payload.spectrum[4][4].magnitude, 0.5 * i, 1e-3);
}

TEST_MAIN()
