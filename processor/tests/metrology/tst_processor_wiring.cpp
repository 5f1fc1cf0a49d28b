#include "check.h"
#include "rig.h"

#include <cmath>

using namespace rig;

namespace {

const double Sqrt3 = std::sqrt(3.0);

ProcessorSetup wired(Wiring wiring)
{
    ProcessorSetup setup;
    setup.wiring = wiring;
    return setup;
}

AggregationPayload measure(const SignalSpec &spec, const ProcessorSetup &setup,
                           const CalibrationSet &set = CalibrationSet())
{
    Rig rig(spec, setup);
    rig.frontEnd.setCalibration(set);
    rig.run(1.0);
    return rig.recorder.aggregations.back().payload;
}

// Code of the set-up frame for each of the instrument's ten wirings, from 3P WYE to 2-ELEMENT.
constexpr Wiring CodeOfJoinMode[10] = { Wiring::Star,      Wiring::Delta, Wiring::Star,
                                        Wiring::Delta,     Wiring::Star,  Wiring::Delta,
                                        Wiring::Star,      Wiring::Delta, Wiring::TwoAndHalfElement,
                                        Wiring::TwoElement };

} // namespace

TEST(everyWiringMeasuresTheTotalPowerOfABalancedLoad)
{
    const SignalSpec spec = SignalSpec::threePhase(230.0, 50.0, 20.0, 0.8);
    const double expected = 3.0 * 230.0 * 20.0 * 0.8 / VoltsPerUnit / AmpsPerUnit;
    for (Wiring wiring : CodeOfJoinMode) {
        const AggregationPayload p = measure(spec, wired(wiring));
        // The instrument adds all three rows of a star, and the first and the third of a delta.
        double total = p.channel[0].activePower + p.channel[2].activePower;
        if (wiring == Wiring::Star || wiring == Wiring::TwoAndHalfElement)
            total += p.channel[1].activePower;
        CHECK_NEAR(total, expected, 1e-4);
        CHECK_NEAR(p.frequency, 50.0, 1e-4);
    }
}

TEST(deltaMeasuresTheThreeLineVoltages)
{
    for (Wiring wiring : { Wiring::Delta, Wiring::TwoElement }) {
        const AggregationPayload p = measure(SignalSpec::threePhase(230.0, 50.0, 20.0), wired(wiring));
        const double p0 = double(p.spectrum[0][0].phase);
        // U12 leads U1 by 30 degrees, U23 and U31 follow by -120 and -240 against it; the currents lag U12 by 30.
        const double angle[3] = { 0.0, -120.0, 120.0 };
        for (std::size_t k = 0; k < 3; ++k) {
            CHECK_NEAR(p.channel[k].voltageRms, 230.0 * Sqrt3 / VoltsPerUnit, 2e-5);
            CHECK_NEAR(shownPhase(double(p.spectrum[k][0].phase), p0, 0) * 180.0 / Pi, angle[k], 0.01);
            CHECK_NEAR(wrapped(double(p.spectrum[k + 4][0].phase) - p0 - (angle[k] - 30.0) * Pi / 180.0), 0.0, 1e-3);
            CHECK(p.channel[k].apparentPower == 0.0f);
        }
        CHECK(p.channel[1].activePower == 0.0f);
    }
}

TEST(deltaRowsAreTheTwoWattmeters)
{
    // Power factor 0.5 lagging: the first wattmeter shows cos(60 + 30) = 0, the other everything.
    const AggregationPayload p = measure(SignalSpec::threePhase(230.0, 50.0, 20.0, 0.5), wired(Wiring::Delta));
    const double u = 230.0 * Sqrt3 / VoltsPerUnit;
    const double i = 20.0 / AmpsPerUnit;
    CHECK_NEAR(p.channel[0].activePower, 0.0, 2e-5);
    CHECK_NEAR(p.channel[2].activePower, u * i * std::cos(Pi / 6.0), 5e-5);
}

TEST(deltaCombinesChannelsOfUnequalGains)
{
    // The hardware's gains differ; the set-up says by how much, relative to channel 0.
    CalibrationSet set;
    set.volt[1] = { { 79.25f, 85.0f, 72.0f, 80.0f } };
    ProcessorSetup setup = wired(Wiring::Delta);
    for (std::size_t k = 0; k < 4; ++k)
        setup.voltageGain[k] = set.volt[1][k] / set.volt[1][0];
    const SignalSpec spec = SignalSpec::threePhase(230.0, 50.0, 20.0, 0.9);
    const AggregationPayload p = measure(spec, setup, set);
    for (std::size_t k = 0; k < 3; ++k)
        CHECK_NEAR(p.channel[k].voltageRms * double(set.volt[1][k]), 230.0 * Sqrt3, 2e-3);
    const double watts
        = (p.channel[0].activePower * double(set.volt[1][0]) + p.channel[2].activePower * double(set.volt[1][2]))
        * AmpsPerUnit;
    CHECK_NEAR(watts, 3.0 * 230.0 * 20.0 * 0.9, 1.0);
}

TEST(starKeepsEachChannelInItsOwnUnit)
{
    // Gains of the set-up change nothing where no channels are combined.
    ProcessorSetup setup = wired(Wiring::Star);
    setup.voltageGain = { { 1.0f, 1.3f, 0.7f, 2.0f } };
    const AggregationPayload p = measure(SignalSpec::threePhase(230.0, 50.0), setup);
    for (std::size_t k = 0; k < 3; ++k)
        CHECK_NEAR(p.channel[k].voltageRms, 230.0 / VoltsPerUnit, 1e-5);
}

TEST(twoElementFindsTheThirdCurrentItself)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0, 20.0);
    spec.inputs[I1].rms = 35.0;
    // What flows in L1 and L3 comes back in L2: |35 + 20 at 120 degrees|.
    const double back = std::sqrt(35.0 * 35.0 + 20.0 * 20.0 - 35.0 * 20.0);
    spec.inputs[I2].rms = 0.0; // no clamp there
    const AggregationPayload p = measure(spec, wired(Wiring::TwoElement));
    CHECK_NEAR(p.channel[1].currentRms, back / AmpsPerUnit, 2e-5);
}

TEST(twoAndHalfElementFindsTheSecondVoltageItself)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0, 20.0, 0.8);
    spec.inputs[U2].rms = 0.0; // not connected
    const AggregationPayload p = measure(spec, wired(Wiring::TwoAndHalfElement));
    CHECK_NEAR(p.channel[1].voltageRms, 230.0 / VoltsPerUnit, 2e-5);
    CHECK_NEAR(p.channel[1].activePower, 230.0 * 20.0 * 0.8 / VoltsPerUnit / AmpsPerUnit, 5e-5);
}

TEST(halfCyclesAndWavesFollowTheWiring)
{
    Rig rig(SignalSpec::threePhase(230.0, 50.0, 20.0), wired(Wiring::Delta));
    rig.run(1.0);
    for (int phase = 0; phase < 3; ++phase) {
        for (const HalfCycleEntry &entry : rig.recorder.halfCycles(phase))
            CHECK_NEAR(entry.voltage, 230.0 * Sqrt3 / VoltsPerUnit, 5e-5);
    }
    const auto &wave = rig.recorder.waves.back();
    // Sample 0 of the last slot: the time of a whole number of cycles, U31 = 230 sqrt(2) (sin(120) - sin(0)).
    const double u31 = 230.0 * Sqrt2 * std::sin(2.0 * Pi / 3.0) / VoltsPerUnit * 3276.8;
    CHECK_NEAR(wave.payload.pair[2].voltage[0], u31, 1.1);
}

TEST_MAIN()
