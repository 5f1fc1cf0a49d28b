#include "check.h"
#include "flickertheory.h"
#include "metrology/flickermeter.h"
#include "rig.h"

#include <algorithm>
#include <cmath>

using namespace rig;

namespace {

struct TablePoint
{
    double hertz;
    double percent; // dV / V that gives a highest Pinst of 1
};

// IEC 61000-4-15, normalised response of the flickermeter: the figures of edition 2 as they are known to us. All of
// them agree with the response of the standard's filters (tablesAreTheResponseOfTheStandardsFilters). These are that
// response itself, to three digits: rectangular 230 V at 21 and 22 Hz, rectangular 120 V from 25 Hz, sinusoidal 120 V
// from 33 Hz.
//
// Sinusoidal voltage fluctuations.
const std::vector<TablePoint> Sinusoidal230
    = { { 0.5, 2.325 },        { 1.0, 1.397 },  { 1.5, 1.067 },  { 2.0, 0.879 },  { 2.5, 0.747 },  { 3.0, 0.645 },
        { 3.5, 0.564 },        { 4.0, 0.497 },  { 4.5, 0.442 },  { 5.0, 0.396 },  { 5.5, 0.357 },  { 6.0, 0.325 },
        { 6.5, 0.300 },        { 7.0, 0.280 },  { 7.5, 0.265 },  { 8.0, 0.256 },  { 8.8, 0.250 },  { 9.5, 0.254 },
        { 10.0, 0.261 },       { 10.5, 0.271 }, { 11.0, 0.283 }, { 11.5, 0.298 }, { 12.0, 0.314 }, { 13.0, 0.351 },
        { 14.0, 0.393 },       { 15.0, 0.438 }, { 16.0, 0.486 }, { 17.0, 0.537 }, { 18.0, 0.590 }, { 19.0, 0.646 },
        { 20.0, 0.704 },       { 21.0, 0.764 }, { 22.0, 0.828 }, { 23.0, 0.894 }, { 24.0, 0.964 }, { 25.0, 1.037 },
        { 100.0 / 3.0, 2.128 } };
const std::vector<TablePoint> Sinusoidal120
    = { { 0.5, 2.453 },         { 1.0, 1.465 },  { 1.5, 1.126 },  { 2.0, 0.942 },  { 2.5, 0.815 },  { 3.0, 0.717 },
        { 3.5, 0.637 },         { 4.0, 0.570 },  { 4.5, 0.514 },  { 5.0, 0.466 },  { 5.5, 0.426 },  { 6.0, 0.393 },
        { 6.5, 0.366 },         { 7.0, 0.346 },  { 7.5, 0.332 },  { 8.0, 0.323 },  { 8.8, 0.321 },  { 9.5, 0.329 },
        { 10.0, 0.341 },        { 10.5, 0.355 }, { 11.0, 0.373 }, { 11.5, 0.394 }, { 12.0, 0.417 }, { 13.0, 0.469 },
        { 14.0, 0.528 },        { 15.0, 0.592 }, { 16.0, 0.660 }, { 17.0, 0.734 }, { 18.0, 0.811 }, { 19.0, 0.892 },
        { 20.0, 0.978 },        { 21.0, 1.068 }, { 22.0, 1.163 }, { 23.0, 1.261 }, { 24.0, 1.365 }, { 25.0, 1.476 },
        { 100.0 / 3.0, 2.570 }, { 40.0, 4.394 } };
// The same for rectangular fluctuations.
const std::vector<TablePoint> Rectangular230
    = { { 0.5, 0.510 },        { 1.0, 0.467 },  { 1.5, 0.429 },  { 2.0, 0.399 },  { 2.5, 0.370 },  { 3.0, 0.352 },
        { 3.5, 0.342 },        { 4.0, 0.332 },  { 4.5, 0.313 },  { 5.0, 0.291 },  { 5.5, 0.269 },  { 6.0, 0.249 },
        { 6.5, 0.231 },        { 7.0, 0.217 },  { 7.5, 0.206 },  { 8.0, 0.200 },  { 8.8, 0.196 },  { 9.5, 0.199 },
        { 10.0, 0.203 },       { 10.5, 0.212 }, { 11.0, 0.222 }, { 11.5, 0.233 }, { 12.0, 0.245 }, { 13.0, 0.272 },
        { 14.0, 0.308 },       { 15.0, 0.341 }, { 16.0, 0.376 }, { 17.0, 0.411 }, { 18.0, 0.446 }, { 19.0, 0.497 },
        { 20.0, 0.553 },       { 21.0, 0.585 }, { 22.0, 0.612 }, { 23.0, 0.680 }, { 24.0, 0.743 }, { 25.0, 0.764 },
        { 100.0 / 3.0, 1.671 } };
const std::vector<TablePoint> Rectangular120
    = { { 0.5, 0.600 },         { 1.0, 0.547 },  { 1.5, 0.503 },  { 2.0, 0.468 },  { 2.5, 0.438 },  { 3.0, 0.420 },
        { 3.5, 0.408 },         { 4.0, 0.394 },  { 4.5, 0.372 },  { 5.0, 0.348 },  { 5.5, 0.323 },  { 6.0, 0.302 },
        { 6.5, 0.283 },         { 7.0, 0.269 },  { 7.5, 0.258 },  { 8.0, 0.253 },  { 8.8, 0.252 },  { 9.5, 0.258 },
        { 10.0, 0.265 },        { 10.5, 0.278 }, { 11.0, 0.293 }, { 11.5, 0.308 }, { 12.0, 0.325 }, { 13.0, 0.363 },
        { 14.0, 0.413 },        { 15.0, 0.460 }, { 16.0, 0.511 }, { 17.0, 0.575 }, { 18.0, 0.626 }, { 19.0, 0.688 },
        { 20.0, 0.746 },        { 21.0, 0.815 }, { 22.0, 0.851 }, { 23.0, 0.946 }, { 24.0, 1.067 }, { 25.0, 1.088 },
        { 100.0 / 3.0, 1.823 }, { 40.0, 3.451 } };

// Changes a minute of a rectangular modulation, and the dV / V in percent that gives a Pst of 1.
const std::vector<TablePoint> Severity230 = { { 1.0, 2.715 },   { 2.0, 2.191 },    { 7.0, 1.450 },   { 39.0, 0.894 },
                                              { 110.0, 0.722 }, { 1620.0, 0.407 }, { 4000.0, 2.343 } };
const std::vector<TablePoint> Severity120 = { { 1.0, 3.181 },   { 2.0, 2.564 },    { 7.0, 1.694 },   { 39.0, 1.040 },
                                              { 110.0, 0.844 }, { 1620.0, 0.548 }, { 4800.0, 4.837 } };

ProcessorSetup lamp(int curve)
{
    ProcessorSetup setup;
    setup.flickerCurve = curve;
    setup.nominalFrequency = curve == 230 ? 50 : 60;
    return setup;
}

// Three modulations at a time, one a phase. All three voltages begin with a rising zero crossing together with the
// modulation, as the tables have it: at rates near a part of the mains frequency it matters where the edges fall.
SignalSpec modulated(const ProcessorSetup &setup, ModulationSpec::Shape shape, const std::vector<TablePoint> &points,
                     std::size_t first, double rateFactor = 1.0)
{
    SignalSpec spec = SignalSpec::threePhase(setup.flickerCurve, setup.nominalFrequency);
    for (std::size_t k = 0; k < 3; ++k) {
        const TablePoint &point = points[std::min(first + k, points.size() - 1)];
        spec.inputs[k].phaseDeg = 0.0;
        spec.inputs[k].modulation = { shape, point.hertz * rateFactor, point.percent, 0.0 };
    }
    return spec;
}

double highest(const std::vector<float> &values)
{
    return double(*std::max_element(values.begin(), values.end()));
}

// The flickermeter alone, without converter and chain, which runs faster: Pinst of each phase from `skip` seconds on.
std::array<std::vector<float>, 3> meterOnly(const SignalSpec &spec, const ProcessorSetup &setup, double seconds,
                                            double skip)
{
    Synthesiser synthesiser(spec);
    FlickerMeter meter;
    meter.setSetup(setup);
    meter.restart(0);
    SampleStore store;
    std::array<std::vector<float>, 3> pinst;
    std::vector<double> volts(3 * 1024);
    double *out[InputCount] = { volts.data(), volts.data() + 1024, volts.data() + 2048 };
    while (synthesiser.seconds() < seconds) {
        synthesiser.render(out, 1024);
        SampleStore::Frame *frames = store.append(1024);
        for (std::size_t i = 0; i < 1024; ++i) {
            frames[i].fill(0.0f);
            for (std::size_t k = 0; k < 3; ++k)
                frames[i][k] = float(volts[1024 * k + i] / VoltsPerUnit);
        }
        store.commit(1024);
        while (meter.advance(store)) {
            if (meter.payloadFrame() < skip * SampleRate)
                continue;
            for (std::size_t k = 0; k < 3; ++k)
                pinst[k].insert(pinst[k].end(), meter.payload().pinst[k].begin(), meter.payload().pinst[k].end());
        }
        store.discardBefore(meter.needs());
    }
    return pinst;
}

void checkTable(int curve, ModulationSpec::Shape shape, const std::vector<TablePoint> &points)
{
    const ProcessorSetup setup = lamp(curve);
    for (std::size_t first = 0; first < points.size(); first += 3) {
        const auto pinst = meterOnly(modulated(setup, shape, points, first), setup, 18.0, 9.0);
        for (std::size_t k = 0; k < 3; ++k)
            CHECK_NEAR(highest(pinst[k]), 1.0, 0.05);
    }
}

void checkSeverities(int curve, const std::vector<TablePoint> &points)
{
    const ProcessorSetup setup = lamp(curve);
    for (std::size_t first = 0; first < points.size(); first += 3) {
        // Two changes make a cycle of the modulation.
        const SignalSpec spec = modulated(setup, ModulationSpec::Shape::Rectangular, points, first, 1.0 / 120.0);
        const auto pinst = meterOnly(spec, setup, 660.0, 60.0);
        for (const std::vector<float> &values : pinst) {
            CHECK_NEAR(shortTermSeverity(values), 1.0, 0.05);
            // The instrument keeps means of 40 values, 30000 in ten minutes; Pst must not notice.
            std::vector<float> means;
            for (std::size_t i = 0; i + 40 <= values.size(); i += 40) {
                double sum = 0.0;
                for (std::size_t j = 0; j < 40; ++j)
                    sum += double(values[i + j]);
                means.push_back(float(sum / 40.0));
            }
            CHECK(means.size() == 30000);
            CHECK_NEAR(shortTermSeverity(means), 1.0, 0.05);
        }
    }
}

} // namespace

TEST(tablesAreTheResponseOfTheStandardsFilters)
{
    using flickertheory::depthOfPinstOne;
    using flickertheory::Shape;
    struct Table
    {
        int curve;
        Shape shape;
        const std::vector<TablePoint> &points;
    };
    for (const Table &table :
         { Table { 230, Shape::Sinusoidal, Sinusoidal230 }, Table { 120, Shape::Sinusoidal, Sinusoidal120 },
           Table { 230, Shape::Rectangular, Rectangular230 }, Table { 120, Shape::Rectangular, Rectangular120 } }) {
        for (const TablePoint &point : table.points)
            CHECK_NEAR(depthOfPinstOne(table.curve, table.shape, point.hertz) / point.percent, 1.0, 0.012);
    }
}

TEST(filterResponseIsTheTabledCurve)
{
    // Pinst swings at twice the modulation's frequency f around its mean; the mean over 300 ms leaves
    // 1 / sqrt(1 + (4 pi f 0.3)^2) of the swing, and the highest value counts.
    const auto crest
        = [](double hertz) { return std::sqrt(1.0 + 1.0 / std::sqrt(1.0 + std::pow(4.0 * Pi * hertz * 0.3, 2))); };
    for (const TablePoint &point : Sinusoidal230) {
        const double percent = 0.250 / FlickerFilter::response(230, 50, point.hertz) * crest(8.8) / crest(point.hertz);
        CHECK_NEAR(percent / point.percent, 1.0, 0.01);
    }
    for (const TablePoint &point : Sinusoidal120) {
        const double percent = 0.321 / FlickerFilter::response(120, 60, point.hertz) * crest(8.8) / crest(point.hertz);
        CHECK_NEAR(percent / point.percent, 1.0, 0.01);
    }
}

TEST(sinusoidalTableGivesPinstOneWith230VoltLamp)
{
    checkTable(230, ModulationSpec::Shape::Sinusoidal, Sinusoidal230);
}

TEST(sinusoidalTableGivesPinstOneWith120VoltLamp)
{
    checkTable(120, ModulationSpec::Shape::Sinusoidal, Sinusoidal120);
}

TEST(rectangularTableGivesPinstOneWith230VoltLamp)
{
    checkTable(230, ModulationSpec::Shape::Rectangular, Rectangular230);
}

TEST(rectangularTableGivesPinstOneWith120VoltLamp)
{
    checkTable(120, ModulationSpec::Shape::Rectangular, Rectangular120);
}

TEST(rectangularChangesGivePstOneWith230VoltLamp)
{
    checkSeverities(230, Severity230);
}

TEST(rectangularChangesGivePstOneWith120VoltLamp)
{
    checkSeverities(120, Severity120);
}

TEST(wholeChainMeasuresTheTablesPoints)
{
    // With the converter in the way; the payload is what the instrument gets.
    for (int curve : { 230, 120 }) {
        const std::vector<TablePoint> points = { { 8.8, curve == 230 ? 0.250 : 0.321 },
                                                 { 1.0, curve == 230 ? 1.397 : 1.465 },
                                                 { 20.0, curve == 230 ? 0.704 : 0.978 } };
        const ProcessorSetup setup = lamp(curve);
        Rig rig(modulated(setup, ModulationSpec::Shape::Sinusoidal, points, 0), setup);
        rig.run(25.0);
        for (int k = 0; k < 3; ++k)
            CHECK_NEAR(highest(rig.recorder.pinst(k, 12.0)), 1.0, 0.05);
    }
}

TEST(pinstGrowsWithTheSquareOfTheDepth)
{
    const ProcessorSetup setup = lamp(230);
    const auto pinst = meterOnly(
        modulated(setup, ModulationSpec::Shape::Sinusoidal, { { 8.8, 0.250 }, { 8.8, 0.500 }, { 8.8, 1.000 } }, 0),
        setup, 24.0, 12.0);
    CHECK_NEAR(highest(pinst[1]) / highest(pinst[0]), 4.0, 0.02);
    CHECK_NEAR(highest(pinst[2]) / highest(pinst[0]), 16.0, 0.1);
}

TEST(pinstDoesNotDependOnTheVoltage)
{
    const ProcessorSetup setup = lamp(230);
    for (double volts : { 50.0, 400.0 }) {
        SignalSpec spec = modulated(setup, ModulationSpec::Shape::Sinusoidal, { { 8.8, 0.250 } }, 0);
        for (std::size_t k = 0; k < 3; ++k)
            spec.inputs[k].rms = volts;
        CHECK_NEAR(highest(meterOnly(spec, setup, 24.0, 12.0)[0]), 1.0, 0.02);
    }
}

TEST(steadyVoltageGivesNoSensation)
{
    for (int hertz : { 50, 60 }) {
        ProcessorSetup setup;
        setup.nominalFrequency = hertz;
        SignalSpec spec = SignalSpec::threePhase(230.0, hertz + 0.3);
        spec.inputs[U1].harmonics = { { 5, 5.0, 0.0 }, { 41, 1.0, 0.0 } };
        Rig rig(spec, setup);
        rig.frontEnd.setNoise(0.4);
        rig.run(15.0);
        for (int k = 0; k < 3; ++k) {
            CHECK_NEAR(highest(rig.recorder.pinst(k, 0.0)), 0.0, 0.05); // from the very first value on
            CHECK_NEAR(highest(rig.recorder.pinst(k, 10.0)), 0.0, 0.002);
        }
    }
}

TEST(openInputsGiveNoSensationAndConnectingThemNoStorm)
{
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0);
    SignalEvent later;
    later.kind = EventKind::Interruption;
    later.durationSeconds = 3.0;
    spec.events = { later };
    Rig rig(spec);
    rig.frontEnd.setNoise(0.4);
    rig.run(20.0);
    const std::vector<float> values = rig.recorder.pinst(0, 0.0);
    CHECK(*std::max_element(values.begin(), values.begin() + 5900) == 0.0f);
    CHECK_NEAR(highest(rig.recorder.pinst(0, 15.0)), 0.0, 0.01);
    for (float value : values)
        CHECK(std::isfinite(value) && value >= 0.0f);
}

TEST(valuesComeAt2000ASecondInPayloadsOf500)
{
    Rig rig(SignalSpec::threePhase(230.0, 50.0));
    rig.run(10.0);
    const auto &all = rig.recorder.flickers;
    CHECK(all.size() == 39 || all.size() == 40);
    for (std::size_t i = 0; i < all.size(); ++i) {
        CHECK(all[i].payload.samplesPerWindow == 2000);
        CHECK_NEAR(double(all[i].timeMs - all[0].timeMs), 250.0 * double(i), 1.0);
    }
}

TEST(pinstStandsAtTheTimeOfItsCause)
{
    // A step of the voltage at 5 s: the sensation rises within the eye's delay, not before.
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0);
    SignalEvent step;
    step.kind = EventKind::RapidChange;
    step.percent = -5.0;
    step.startSeconds = 5.0;
    spec.events = { step };
    Rig rig(spec);
    rig.run(8.0);
    const std::vector<float> values = rig.recorder.pinst(1, 0.0);
    CHECK(values[9990] < 0.1f);
    CHECK(values[10400] > 1.0f);
}

TEST(deltaFlickerIsThatOfTheLineVoltages)
{
    ProcessorSetup setup;
    setup.wiring = Wiring::Delta;
    // Only L3 flickers: U12 knows nothing of it.
    SignalSpec spec = SignalSpec::threePhase(230.0, 50.0);
    spec.inputs[U3].modulation = { ModulationSpec::Shape::Sinusoidal, 8.8, 0.250, 0.0 };
    Rig rig(spec, setup);
    rig.run(25.0);
    CHECK_NEAR(highest(rig.recorder.pinst(0, 12.0)), 0.0, 0.002);
    CHECK(highest(rig.recorder.pinst(1, 12.0)) > 0.2);
    CHECK(highest(rig.recorder.pinst(2, 12.0)) > 0.2);
}

TEST_MAIN()
