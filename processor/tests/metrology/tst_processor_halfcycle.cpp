#include "check.h"
#include "rig.h"

#include <algorithm>
#include <cmath>

using namespace rig;

namespace {

// A frequency at which a cycle is 400 samples: windows begin and end at samples.
constexpr double EvenHertz = 51.2;
constexpr double CycleSamples = 400.0;

struct Curve
{
    std::vector<double> ms; // from the start of the run
    std::vector<double> value;
};

Curve curveOf(const Rig &rig, int phase, bool current = false)
{
    Curve curve;
    for (const HalfCycleEntry &entry : rig.recorder.halfCycles(phase)) {
        curve.ms.push_back(double(timeOf(entry) - Rig::StartMs));
        curve.value.push_back(double(current ? entry.current : entry.voltage));
    }
    return curve;
}

// Mean square of the true values over the cycle around sample `middle`, its first and last sample with half weight.
double directRms(const Synthesiser &synthesiser, int input, std::int64_t middle)
{
    const auto half = std::int64_t(CycleSamples) / 2;
    double sum = 0.0;
    for (std::int64_t n = middle - half; n <= middle + half; ++n) {
        const double x = synthesiser.valueAt(input, n);
        sum += (n == middle - half || n == middle + half ? 0.5 : 1.0) * x * x;
    }
    return std::sqrt(sum / CycleSamples);
}

} // namespace

TEST(everyValueIsTheDirectSumOverItsCycle)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, EvenHertz, 30.0, 0.8);
    for (std::size_t i = 0; i < InputCount; ++i)
        spec.inputs[i].harmonics = { { 3, 10.0, 20.0 }, { 11, 3.0, 0.0 } };
    spec.inputs[I2].dc = 2.0;
    SignalEvent swing;
    swing.kind = EventKind::RapidChange;
    swing.inputs = PhaseVoltages | PhaseCurrents;
    swing.percent = -20.0;
    swing.riseSeconds = 0.6;
    swing.startSeconds = 0.2;
    spec.events = { swing };
    Rig rig(spec);
    rig.run(1.2);
    for (int phase = 0; phase < 3; ++phase) {
        const Curve u = curveOf(rig, phase);
        const Curve i = curveOf(rig, phase, true);
        CHECK(u.ms.size() > 90);
        for (std::size_t n = 0; n < u.ms.size(); ++n) {
            // Half cycles begin at the zero crossings of U1: multiples of 200 samples.
            const auto middle = std::int64_t(std::llround(u.ms[n] * SampleRate / 1000.0 / 200.0)) * 200;
            CHECK_NEAR(u.ms[n], double(middle) / SampleRate * 1000.0, 0.51);
            CHECK_NEAR(u.value[n], directRms(rig.synthesiser, U1 + phase, middle) / VoltsPerUnit, 4e-5);
            CHECK_NEAR(i.value[n], directRms(rig.synthesiser, I1 + phase, middle) / AmpsPerUnit, 4e-5);
        }
    }
}

TEST(steadySineGivesItsRmsInEveryValue)
{
    for (double hertz : { 42.6, 50.0, 57.3 }) {
        Rig rig(SignalSpec::threePhase(230.0, hertz, 30.0));
        rig.run(2.0);
        for (int phase = 0; phase < 3; ++phase) {
            for (const HalfCycleEntry &entry : rig.recorder.halfCycles(phase)) {
                CHECK_NEAR(entry.voltage, 230.0 / VoltsPerUnit, 5e-5);
                CHECK_NEAR(entry.current, 30.0 / AmpsPerUnit, 5e-5);
            }
        }
    }
}

TEST(payloadsHoldTheRightNumberOfValues)
{
    const struct
    {
        int nominal;
        double hertz;
        unsigned least, most; // entries in 200 ms
    } rows[] = {
        { 50, 50.0, 19, 21 }, { 60, 60.0, 23, 25 }, { 400, 400.0, 19, 21 }, { 60, 68.9, 27, 28 }, { 50, 42.6, 17, 18 }
    };
    for (const auto &row : rows) {
        ProcessorSetup setup;
        setup.nominalFrequency = row.nominal;
        Rig rig(SignalSpec::threePhase(230.0, row.hertz), setup);
        rig.run(4.1);
        const auto &all = rig.recorder.rmsValues;
        CHECK(all.size() == 20);
        std::size_t total = 0;
        for (std::size_t i = 1; i < all.size(); ++i) {
            for (const HalfCycleBlock &block : all[i].payload.phase) {
                CHECK(block.count % 2 == 0);
                CHECK(block.count / 2 >= row.least && block.count / 2 <= row.most);
                CHECK(block.count == all[i].payload.phase[0].count);
            }
            total += all[i].payload.phase[0].count / 2;
        }
        const double perSecond = row.nominal == 400 ? row.hertz / 4.0 : row.hertz * 2.0;
        CHECK_NEAR(double(total), perSecond * 3.8, 1.01);
    }
}

TEST(valuesAreInOrderOfTimeAndInsideTheirSlot)
{
    for (double hertz : { 49.3, 50.0, 50.6 }) {
        Rig rig(SignalSpec::threePhase(230.0, hertz));
        rig.run(5.0);
        double last = 0.0;
        for (const auto &item : rig.recorder.rmsValues) {
            const HalfCycleBlock &block = item.payload.phase[0];
            for (std::size_t i = 0; i < block.count / 2; ++i) {
                const HalfCycleEntry &entry = block.entry[i];
                CHECK(entry.voltageSeconds == entry.currentSeconds);
                CHECK(entry.voltageMilliseconds == entry.currentMilliseconds);
                CHECK(entry.voltageMilliseconds < 1000);
                const double ms = double(timeOf(entry));
                CHECK(ms >= double(item.timeMs) && ms <= double(item.timeMs) + 200.0);
                if (last > 0.0)
                    CHECK_NEAR(ms - last, 500.0 / hertz, 1.01);
                last = ms;
            }
        }
    }
}

TEST(dipsOfKnownDepthAndLengthAtEveryPhaseOfTheCycle)
{
    for (int degrees = 0; degrees < 360; degrees += 15) {
        for (double cycles : { 0.5, 1.0, 2.5, 10.0 }) {
            SignalSpec spec = SignalSpec::threePhase(230.0, 50.0);
            SignalEvent dip;
            dip.percent = 40.0;
            dip.startSeconds = 0.5;
            dip.startPhaseDeg = degrees;
            dip.durationSeconds = cycles / 50.0;
            spec.events = { dip };
            Rig rig(spec);
            const double startMs = rig.synthesiser.startSample(dip) / SampleRate * 1000.0;
            rig.run(1.2);
            const Curve u = curveOf(rig, 0);
            const double steady = 230.0 / VoltsPerUnit;
            double lowest = 10.0, first = -1.0, end = -1.0;
            for (std::size_t n = 0; n < u.ms.size(); ++n) {
                lowest = std::min(lowest, u.value[n]);
                if (first < 0.0 && u.value[n] < 0.9 * steady)
                    first = u.ms[n];
                if (first >= 0.0 && end < 0.0 && u.value[n] >= 0.9 * steady)
                    end = u.ms[n];
            }
            if (cycles >= 2.0) {
                CHECK_NEAR(lowest, 0.6 * steady, 2e-3);
            } else if (cycles == 1.0 && degrees % 180 == 0) {
                CHECK_NEAR(lowest, 0.6 * steady, 3e-3); // the window and the dip are the same cycle
            } else if (cycles == 0.5) {
                // Half a cycle carries half of the square whatever its phase; a window may miss a part of the dip.
                CHECK(lowest >= steady * std::sqrt(0.5 * (1.0 + 0.36)) - 3e-3);
                CHECK(lowest <= steady * std::sqrt(0.5 * (1.0 + 0.36)) + 0.2 * steady);
            }
            // The value of a moment is that of the cycle around it: it falls below 90 percent within half a cycle of
            // the dip's start and is back within half a cycle of its end.
            CHECK_NEAR(first, startMs, 10.5);
            CHECK_NEAR(end, startMs + cycles * 20.0, 10.5 + 5.0);
            for (std::size_t n = 0; n < u.ms.size(); ++n) {
                if (u.ms[n] < startMs - 11.0 || u.ms[n] > startMs + cycles * 20.0 + 21.0)
                    CHECK_NEAR(u.value[n], steady, 0.01 * steady);
            }
        }
    }
}

TEST(swellsOfKnownHeightAtEveryPhaseOfTheCycle)
{
    for (int degrees = 0; degrees < 360; degrees += 45) {
        SignalSpec spec = SignalSpec::threePhase(230.0, 60.0);
        SignalEvent swell;
        swell.kind = EventKind::Swell;
        swell.inputs = maskOf(U2);
        swell.percent = 20.0;
        swell.startSeconds = 0.5;
        swell.startPhaseDeg = degrees;
        swell.durationSeconds = 0.1;
        spec.events = { swell };
        ProcessorSetup setup;
        setup.nominalFrequency = 60;
        Rig rig(spec, setup);
        rig.run(1.0);
        const Curve u2 = curveOf(rig, 1);
        CHECK_NEAR(*std::max_element(u2.value.begin(), u2.value.end()), 1.2 * 230.0 / VoltsPerUnit, 2e-4);
        for (double value : curveOf(rig, 0).value)
            CHECK_NEAR(value, 230.0 / VoltsPerUnit, 1e-4); // the other phases know nothing of it
    }
}

TEST(interruptionLeavesTheResidualVoltage)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0);
    SignalEvent gone;
    gone.kind = EventKind::Interruption;
    gone.percent = 2.0;
    gone.startSeconds = 0.5;
    gone.durationSeconds = 2.0;
    spec.events = { gone };
    Rig rig(spec);
    rig.run(3.5);
    const Curve u = curveOf(rig, 2);
    int inside = 0;
    for (std::size_t n = 0; n < u.ms.size(); ++n) {
        if (u.ms[n] > 515.0 && u.ms[n] < 2485.0) {
            CHECK_NEAR(u.value[n], 0.02 * 230.0 / VoltsPerUnit, 1e-3);
            ++inside;
        }
        if (u.ms[n] > 2600.0)
            CHECK_NEAR(u.value[n], 230.0 / VoltsPerUnit, 1e-3);
    }
    CHECK_NEAR(inside, 197.0, 3.0); // values go on at their pace
}

TEST(inrushDecaysAsAsked)
{
    // 6 times the steady current, time constant 0.1 s: mean square over a cycle of (1 + 5 exp(-t / T))^2.
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0, 20.0);
    SignalEvent inrush;
    inrush.kind = EventKind::Inrush;
    inrush.inputs = PhaseCurrents;
    inrush.percent = 600.0;
    inrush.decaySeconds = 0.1;
    inrush.startSeconds = 0.5;
    spec.events = { inrush };
    Rig rig(spec);
    rig.run(1.5);
    const Curve i = curveOf(rig, 0, true);
    for (std::size_t n = 0; n < i.ms.size(); ++n) {
        const double t = i.ms[n] / 1000.0 - 0.5;
        if (t < 0.011 || t > 0.8)
            continue;
        // Over a whole cycle the decay weighs the two half waves unevenly by less than 1 percent.
        const double expected = 20.0 / AmpsPerUnit * (1.0 + 5.0 * std::exp(-t / 0.1));
        CHECK_NEAR(i.value[n] / expected, 1.0, 0.015);
    }
    CHECK_NEAR(i.value.back(), 20.0 / AmpsPerUnit, 2e-3);
}

TEST(phaseJumpDisturbsAFewValuesOnly)
{
    for (double angle : { 10.0, 60.0, 180.0 }) {
        SignalSpec spec = SignalSpec::threePhase(230.0, 50.0);
        SignalEvent jump;
        jump.kind = EventKind::PhaseJump;
        jump.angleDeg = angle;
        jump.startSeconds = 0.75;
        spec.events = { jump };
        Rig rig(spec);
        rig.run(2.0);
        const Curve u = curveOf(rig, 0);
        for (std::size_t n = 0; n < u.ms.size(); ++n) {
            if (u.ms[n] < 735.0 || u.ms[n] > 815.0)
                CHECK_NEAR(u.value[n], 230.0 / VoltsPerUnit, 0.003);
        }
    }
}

TEST_MAIN()
