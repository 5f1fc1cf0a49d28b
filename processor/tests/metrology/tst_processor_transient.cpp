#include "check.h"
#include "rig.h"

#include <cmath>

using namespace rig;

namespace {

constexpr std::uint32_t codeOf(int channel, std::int64_t position)
{
    return (std::uint32_t(channel) << 24) | std::uint32_t(position);
}

ProcessorSetup threshold(double volts, int nominal = 50)
{
    ProcessorSetup setup;
    setup.transientThreshold = float(volts / VoltsPerUnit);
    setup.nominalFrequency = nominal;
    return setup;
}

SignalEvent impulse(int input, double sample, double peak)
{
    SignalEvent event;
    event.kind = EventKind::ImpulsiveTransient;
    event.inputs = maskOf(input);
    event.startSeconds = sample / SampleRate;
    event.amplitude = peak;
    event.decaySeconds = 0.0005;
    return event;
}

// Words of all waves that are not 0, as (slot, word).
std::vector<std::pair<int, std::uint32_t>> found(const SignalSpec &spec, const ProcessorSetup &setup,
                                                 double seconds = 2.0)
{
    Rig rig(spec, setup);
    rig.frontEnd.setNoise(0.4);
    rig.run(seconds + 0.1);
    std::vector<std::pair<int, std::uint32_t>> list;
    for (std::size_t i = 0; i < rig.recorder.waves.size(); ++i) {
        if (rig.recorder.waves[i].payload.transient != 0)
            list.push_back({ int(i), rig.recorder.waves[i].payload.transient });
    }
    return list;
}

} // namespace

TEST(impulseIsFoundAtItsSampleInItsSlot)
{
    for (int channel : { 1, 2, 3 }) {
        for (int position : { 0, 1, 100, 2047, 4000, 4095 }) {
            SignalSpec spec = SignalSpec::threePhase(230.0, 50.0);
            spec.events = { impulse(U1 + channel - 1, 3 * 4096 + position, 150.0) };
            const auto list = found(spec, threshold(50.0));
            CHECK(!list.empty() && list[0].first == 3 && list[0].second == codeOf(channel, position));
            // An impulse at a slot's end goes on into the next one.
            CHECK(list.size() == (position == 4095 ? 2u : 1u));
        }
    }
}

TEST(negativeImpulsesAndRingsAreFound)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0);
    SignalEvent ring = impulse(U3, 5000.0, 300.0);
    ring.kind = EventKind::OscillatoryTransient;
    ring.frequencyHz = 900.0;
    spec.events = { ring };
    auto list = found(spec, threshold(50.0));
    CHECK(list.size() == 1);
    CHECK(list[0].first == 1);
    CHECK_NEAR(double(list[0].second), double(codeOf(3, 5000 - 4096)), 2.0); // a sine needs a sample to rise
    spec.events = { impulse(U1, 5000.0, -150.0) };
    list = found(spec, threshold(50.0));
    CHECK(list.size() == 1 && list[0].second == codeOf(1, 904));
}

TEST(deviationsBelowTheThresholdAreNone)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0);
    spec.events = { impulse(U1, 9000.0, 49.0) };
    CHECK(found(spec, threshold(50.0)).empty());
    CHECK(found(spec, threshold(48.0)).size() == 1);
    spec.events = { impulse(U1, 9000.0, 500.0) };
    CHECK(found(spec, threshold(0.0)).empty()); // off
    CHECK(found(spec, threshold(-5.0)).empty());
}

TEST(earliestTransientOfASlotWinsThenTheLowestChannel)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0);
    spec.events = { impulse(U1, 4096 + 2000, 200.0), impulse(U3, 4096 + 1000, 200.0) };
    auto list = found(spec, threshold(50.0));
    CHECK(list.size() == 1 && list[0].second == codeOf(3, 1000));
    spec.events = { impulse(U3, 4096 + 1000, 200.0), impulse(U2, 4096 + 1000, 200.0) };
    list = found(spec, threshold(50.0));
    CHECK(list.size() == 1 && list[0].second == codeOf(2, 1000));
}

TEST(steadyDistortedVoltageHasNoTransients)
{
    for (int nominal : { 50, 60, 400 }) {
        SignalSpec spec = SignalSpec::threePhase(230.0, nominal * 1.013);
        for (std::size_t k = 0; k < 3; ++k)
            spec.inputs[k].harmonics = { { 3, 20.0, 0.0 }, { 7, 10.0, 30.0 }, { nominal == 400 ? 9 : 49, 2.0, 0.0 } };
        CHECK(found(spec, threshold(10.0, nominal)).empty());
    }
}

TEST(edgesOfLongDipsAreNoTransients)
{
    for (int degrees = 0; degrees < 360; degrees += 15) {
        SignalSpec spec = SignalSpec::threePhase(230.0, 50.0);
        SignalEvent dip;
        dip.percent = 60.0;
        dip.startSeconds = 0.5;
        dip.startPhaseDeg = degrees;
        dip.durationSeconds = 0.2;
        spec.events = { dip };
        CHECK(found(spec, threshold(50.0)).empty());
    }
}

TEST(interruptionsJumpsAndFlickerAreNoTransients)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0);
    SignalEvent gone;
    gone.kind = EventKind::Interruption;
    gone.startSeconds = 0.503;
    gone.durationSeconds = 0.3;
    SignalEvent jump;
    jump.kind = EventKind::PhaseJump;
    jump.angleDeg = 45.0;
    jump.startSeconds = 1.407;
    spec.events = { gone, jump };
    for (std::size_t k = 0; k < 3; ++k)
        spec.inputs[k].modulation = { ModulationSpec::Shape::Rectangular, 3.0, 8.0, 0.0 };
    CHECK(found(spec, threshold(50.0)).empty());
}

TEST(transientInADipIsFound)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0);
    SignalEvent dip;
    dip.percent = 40.0;
    dip.startSeconds = 0.5;
    dip.durationSeconds = 0.5;
    spec.events = { dip, impulse(U2, 0.7 * SampleRate, 150.0) };
    const auto list = found(spec, threshold(50.0));
    CHECK(list.size() == 1 && list[0].first == 3 && list[0].second == codeOf(2, 14336 - 3 * 4096));
}

TEST(transientsComeAt60And400HertzToo)
{
    for (int nominal : { 60, 400 }) {
        SignalSpec spec = SignalSpec::threePhase(115.0, nominal);
        SignalEvent spike = impulse(U1, 10000.0, 200.0);
        spike.decaySeconds = 0.0002;
        spec.events = { spike };
        const auto list = found(spec, threshold(50.0, nominal));
        CHECK(list.size() == 1 && list[0].first == 2 && list[0].second == codeOf(1, 10000 - 8192));
    }
}

TEST_MAIN()
