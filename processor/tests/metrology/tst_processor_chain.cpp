#include "check.h"
#include "rig.h"

#include <cmath>
#include <cstring>

using namespace rig;

namespace {

template <typename Items> bool sameBytes(const Items &a, const Items &b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i].timeMs != b[i].timeMs || std::memcmp(&a[i].payload, &b[i].payload, sizeof(a[i].payload)) != 0)
            return false;
    }
    return true;
}

bool sameRecord(const Recorder &a, const Recorder &b)
{
    return a.order == b.order && sameBytes(a.aggregations, b.aggregations) && sameBytes(a.rmsValues, b.rmsValues)
        && sameBytes(a.waves, b.waves) && sameBytes(a.flickers, b.flickers);
}

SignalSpec livelySpec()
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.07, 20.0, 0.8);
    for (std::size_t i = 0; i < InputCount; ++i) {
        spec.inputs[i].harmonics = { { 5, 3.0, 0.0 } };
        spec.inputs[i].noiseRms = 0.3;
    }
    SignalEvent dip;
    dip.percent = 40.0;
    dip.startSeconds = 0.9;
    dip.durationSeconds = 0.15;
    spec.events = { dip };
    return spec;
}

} // namespace

TEST(sameSeedGivesTheSamePayloadsInAnyLengths)
{
    Rig a(livelySpec(), ProcessorSetup(), 7);
    Rig b(livelySpec(), ProcessorSetup(), 7);
    Rig c(livelySpec(), ProcessorSetup(), 8);
    for (Rig *rig : { &a, &b, &c })
        rig->frontEnd.setNoise(0.4);
    a.run(3.0, 4096);
    b.run(3.0, 77);
    c.run(3.0, 4096);
    CHECK(sameRecord(a.recorder, b.recorder));
    CHECK(!sameRecord(a.recorder, c.recorder));
}

TEST(waveIsWhatTheConverterGave)
{
    const SignalSpec spec = livelySpec();
    Rig rig(spec);
    rig.run(2.2);
    Synthesiser synthesiser(spec);
    FrontEnd frontEnd;
    frontEnd.setSelector(FrontEnd::PhaseVoltage, 1);
    frontEnd.setSelector(FrontEnd::NeutralVoltage, 1);
    frontEnd.setNoise(0.0);
    std::vector<double> values(8 * 4096);
    std::vector<std::int16_t> steps(8 * 4096);
    double *rendered[8];
    const double *in[8];
    std::int16_t *out[8];
    for (int i = 0; i < 8; ++i) {
        in[i] = rendered[i] = values.data() + 4096 * i;
        out[i] = steps.data() + 4096 * i;
    }
    CHECK(rig.recorder.waves.size() == 10);
    for (std::size_t slot = 0; slot < rig.recorder.waves.size(); ++slot) {
        synthesiser.render(rendered, 4096);
        frontEnd.convert(in, out, 4096);
        const auto &item = rig.recorder.waves[slot];
        CHECK(item.timeMs == Rig::StartMs + 200 * std::int64_t(slot));
        for (std::size_t k = 0; k < 4; ++k) {
            CHECK(std::memcmp(item.payload.pair[k].voltage.data(), out[k], 8192) == 0);
            CHECK(std::memcmp(item.payload.pair[k].current.data(), out[k + 4], 8192) == 0);
        }
    }
}

TEST(halfCyclesOfASlotComeBeforeItsWave)
{
    Rig rig(livelySpec());
    rig.run(3.0);
    std::size_t rms = 0, wave = 0;
    for (Recorder::Kind kind : rig.recorder.order) {
        if (kind == Recorder::Kind::Rms)
            ++rms;
        if (kind == Recorder::Kind::Wave) {
            ++wave;
            CHECK(rms == wave);
            CHECK(rig.recorder.rmsValues[rms - 1].timeMs == rig.recorder.waves[wave - 1].timeMs);
        }
    }
    CHECK(wave == 14);
}

TEST(resultsComeSoonAfterTheirSlot)
{
    // The slot's wave is there 80 ms after its last sample.
    Rig rig(SignalSpec::threePhase(230.0, 50.0));
    rig.run(1.08);
    CHECK(rig.recorder.waves.size() == 5);
}

TEST(timeCanBeSetInTheMiddle)
{
    Rig rig(SignalSpec::threePhase(230.0, 50.0));
    rig.run(1.0);
    CHECK_NEAR(rig.chain.time(), double(Rig::StartMs) + 1000.0, 1e-3);
    rig.chain.setTime(1800000000000);
    rig.run(1.0);
    CHECK_NEAR(rig.chain.time(), 1800000001000.0, 1e-3);
    // Samples that passed keep their time; those that came later have the new one.
    const auto &waves = rig.recorder.waves;
    CHECK(waves[4].timeMs == Rig::StartMs + 800);
    CHECK(waves[5].timeMs == 1800000000000);
    for (const HalfCycleEntry &entry : rig.recorder.halfCycles(0)) {
        const std::int64_t ms = timeOf(entry);
        CHECK((ms >= Rig::StartMs && ms <= Rig::StartMs + 1000) || (ms >= 1800000000000 && ms < 1800000001000));
    }
}

TEST(newNominalFrequencyStartsTheMeasurementAnew)
{
    Rig rig(SignalSpec::threePhase(120.0, 60.0, 10.0));
    rig.run(1.0);
    for (const auto &item : rig.recorder.aggregations)
        CHECK(item.payload.frequency < 0.0f); // 60 Hz is no 50 Hz supply
    const std::size_t before = rig.recorder.aggregations.size();
    ProcessorSetup setup;
    setup.nominalFrequency = 60;
    rig.chain.setSetup(setup);
    CHECK(rig.chain.setup().nominalFrequency == 60);
    rig.run(1.0);
    CHECK(rig.recorder.aggregations.size() > before + 2);
    CHECK_NEAR(rig.recorder.aggregations.back().payload.frequency, 60.0, 1e-3);
    CHECK_NEAR(double(rig.recorder.aggregations.back().timeMs), double(Rig::StartMs) + 1700.0, 110.0);
}

TEST(sameNominalFrequencyGoesOnWithoutAGap)
{
    Rig rig(SignalSpec::threePhase(230.0, 50.0, 10.0));
    rig.run(1.0);
    ProcessorSetup setup;
    setup.transientThreshold = 3.0f;
    setup.signallingFrequency[0] = 500.0f;
    rig.chain.setSetup(setup);
    rig.run(1.0);
    const auto &all = rig.recorder.aggregations;
    for (std::size_t i = 1; i < all.size(); ++i)
        CHECK_NEAR(double(all[i].timeMs - all[i - 1].timeMs), 200.0, 1.01);
    CHECK(rig.recorder.flickers.size() == 8); // two seconds
}

TEST(restartForgetsTheSamplesAndKeepsTheTime)
{
    Rig rig(SignalSpec::threePhase(230.0, 50.0));
    rig.run(0.5);
    rig.chain.restart();
    CHECK_NEAR(rig.chain.time(), double(Rig::StartMs) + 500.0, 1e-3);
    const std::size_t waves = rig.recorder.waves.size();
    rig.run(1.0);
    CHECK(rig.recorder.waves[waves].timeMs == Rig::StartMs + 500);
}

TEST(flickerCanBeSwitchedOff)
{
    Rig rig(SignalSpec::threePhase(230.0, 50.0));
    rig.chain.setFlickerEnabled(false);
    rig.run(2.0);
    CHECK(rig.recorder.flickers.empty());
    rig.chain.setFlickerEnabled(true);
    rig.run(2.0);
    CHECK(rig.recorder.flickers.size() == 8); // two seconds
    CHECK_NEAR(double(rig.recorder.flickers[0].timeMs), double(Rig::StartMs) + 2000.0, 1.0);
}

TEST(wildInputsKeepTheChainRunning)
{
    // Noise at full scale, square steps, single channels, offsets: whatever comes, the slots go on.
    ProcessorSetup setup;
    for (int nominal : { 50, 60, 400 }) {
        setup.nominalFrequency = nominal;
        Recorder recorder;
        MeasurementChain chain(setup, recorder);
        chain.setTime(0);
        std::vector<std::int16_t> samples(8 * 1000);
        std::uint64_t state = 12345;
        const std::int16_t *channels[8];
        for (std::size_t c = 0; c < 8; ++c)
            channels[c] = samples.data() + 1000 * c;
        for (int round = 0; round < 200; ++round) {
            for (std::int16_t &sample : samples) {
                state = state * 6364136223846793005u + 1442695040888963407u;
                const int kind = (round / 20) % 5;
                sample = kind == 0 ? std::int16_t(state >> 48)
                    : kind == 1    ? std::int16_t(-32768)
                    : kind == 2    ? std::int16_t((state >> 60) < 8 ? 32767 : -32768)
                    : kind == 3    ? std::int16_t(0)
                                   : std::int16_t((state >> 33) & 1023);
            }
            chain.process(channels, 1000);
        }
        CHECK(recorder.waves.size() >= 46);
        for (const auto &item : recorder.aggregations) {
            for (const ChannelAggregate &c : item.payload.channel)
                CHECK(std::isfinite(c.activePower) && std::isfinite(c.voltageRms) && c.voltageRms <= 10.001f);
            for (const auto &rows : item.payload.spectrum) {
                for (const SpectralEntry &row : rows)
                    CHECK(std::isfinite(row.magnitude) && std::isfinite(row.phase));
            }
        }
        for (const auto &item : recorder.flickers) {
            for (const auto &values : item.payload.pinst)
                CHECK(std::isfinite(values[0]) && std::isfinite(values[499]));
        }
        for (const auto &item : recorder.rmsValues)
            CHECK(item.payload.phase[0].count <= 60);
    }
}

TEST_MAIN()
