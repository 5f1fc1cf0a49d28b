#include "check.h"
#include "metrology/groups.h"
#include "metrology/spectrum.h"
#include "rig.h"

#include <cmath>

using namespace rig;

namespace {

constexpr int Lines = 200;

// Line k has the r.m.s. value k + 1, so a sum of squares tells which lines are in it.
std::vector<double> ramp()
{
    std::vector<double> power(Lines);
    for (int k = 0; k < Lines; ++k)
        power[std::size_t(k)] = double(k + 1) * (k + 1);
    return power;
}

double square(double x)
{
    return x * x;
}

// Fills a store with a sum of sines: amplitude, cycles per frame, phase (sine) at frame `origin`.
struct Tone
{
    double amplitude, cyclesPerFrame, phase;
};

void fill(SampleStore &store, const std::vector<Tone> &tones, double origin, int frames)
{
    SampleStore::Frame *out = store.append(frames);
    for (int n = 0; n < frames; ++n) {
        double value = 0.0;
        for (const Tone &t : tones)
            value += t.amplitude * std::sin(2.0 * Pi * t.cyclesPerFrame * (n - origin) + t.phase);
        for (std::size_t c = 0; c < Channels; ++c)
            out[n][c] = float(value * (1.0 + double(c)));
    }
    store.commit(frames);
}

} // namespace

TEST(harmonicSubgroupIsTheLineAndItsNeighbours)
{
    const std::vector<double> p = ramp();
    CHECK_NEAR(harmonicSubgroup(p.data(), Lines, 10, 3), std::sqrt(square(30) + square(31) + square(32)), 1e-9);
    CHECK_NEAR(harmonicSubgroup(p.data(), Lines, 12, 3), std::sqrt(square(36) + square(37) + square(38)), 1e-9);
}

TEST(harmonicGroupReachesHalfWayToItsNeighbours)
{
    const std::vector<double> p = ramp();
    double sum = 0.5 * (square(26) + square(36)); // lines 25 and 35
    for (int k = 26; k <= 34; ++k)
        sum += square(k + 1);
    CHECK_NEAR(harmonicGroup(p.data(), Lines, 10, 3), std::sqrt(sum), 1e-9);
}

TEST(interharmonicSubgroupLeavesTheNeighboursOfHarmonicsOut)
{
    const std::vector<double> p = ramp();
    double at50 = 0.0, at60 = 0.0, whole = 0.0;
    for (int k = 32; k <= 38; ++k)
        at50 += square(k + 1);
    for (int k = 38; k <= 46; ++k)
        at60 += square(k + 1);
    for (int k = 31; k <= 39; ++k)
        whole += square(k + 1);
    CHECK_NEAR(interharmonicSubgroup(p.data(), Lines, 10, 3), std::sqrt(at50), 1e-9);
    CHECK_NEAR(interharmonicSubgroup(p.data(), Lines, 12, 3), std::sqrt(at60), 1e-9);
    CHECK_NEAR(interharmonicGroup(p.data(), Lines, 10, 3), std::sqrt(whole), 1e-9);
}

TEST(groupsPastTheEndCountWhatIsThere)
{
    const std::vector<double> p = ramp();
    CHECK_NEAR(harmonicSubgroup(p.data(), Lines, 10, 20), 200.0, 1e-9); // only line 199
    CHECK(harmonicSubgroup(p.data(), Lines, 10, 50) == 0.0);
    CHECK(interharmonicSubgroup(p.data(), Lines, 10, 50) == 0.0);
}

TEST(signallingTakesItsLineOrTheFourNearest)
{
    const std::vector<double> p = ramp();
    CHECK_NEAR(signallingVoltage(p.data(), Lines, 57.0), 58.0, 1e-9);
    CHECK_NEAR(signallingVoltage(p.data(), Lines, 57.3), std::sqrt(square(57) + square(58) + square(59) + square(60)),
               1e-9); // lines 56 to 59
    CHECK(signallingVoltage(p.data(), Lines, -3.0) == 0.0);
    CHECK(signallingVoltage(p.data(), Lines, 1e30) == 0.0);
    CHECK(signallingVoltage(p.data(), Lines, std::nan("")) == 0.0);
}

TEST(resampledSpectrumIsThatOfTheSignalAtAnyLengthAndPlace)
{
    // 42.5, 50, 57.5 and 69 Hz: windows from 3561 to 4819 frames, starting anywhere between two samples.
    const struct
    {
        double hertz, from;
        int cycles;
    } rows[]
        = { { 42.5, 100.25, 10 }, { 50.0, 64.0, 10 }, { 50.0, 64.5, 10 }, { 57.5, 80.9, 10 }, { 69.0, 77.77, 12 } };
    Spectrum spectrum;
    for (const auto &row : rows) {
        const double cycle = SampleRate / row.hertz;
        const double length = row.cycles * cycle;
        std::vector<Tone> tones = { { 1.0, 1.0 / cycle, 0.3 } };
        for (int order = 2; order <= 100; ++order)
            tones.push_back({ 0.1, order / cycle, 0.1 * order });
        SampleStore store;
        fill(store, tones, row.from, int(length) + 200);
        spectrum.analyse(store, row.from, length);
        for (int channel : { 0, 7 }) {
            const double scale = (channel + 1) / Sqrt2;
            for (int order = 1; order <= 100; ++order) {
                const Tone &tone = tones[std::size_t(order - 1)];
                const int line = order * row.cycles;
                const double tolerance = order / row.hertz < 1.0 ? 4e-6 : 1e-5;
                CHECK_NEAR(std::sqrt(spectrum.power(channel)[line]) / scale, tone.amplitude, tolerance);
                CHECK_NEAR(wrapped(spectrum.phase(channel, line) - tone.phase + Pi / 2.0), 0.0, 1e-4);
                CHECK_NEAR(std::sqrt(spectrum.power(channel)[line + 3]) / scale, 0.0, tolerance);
            }
        }
    }
}

TEST(meanSquareOfAStretchIsThatOfItsSamples)
{
    SampleStore store;
    fill(store, { { 1.0, 1.0 / 400.0, 0.0 } }, 0.0, 3000);
    // Whole samples: a direct sum.
    double sum = 0.0;
    for (int n = 137; n < 555; ++n)
        sum += square(double(store.frame(n)[2]));
    CHECK_NEAR(store.meanSquare(136.5, 554.5)[2], sum / (555 - 137), 1e-9);
    // One cycle from anywhere: 9 / 2, for channel 2 with amplitude 3.
    for (double from : { 100.0, 100.3, 217.77, 333.0 })
        CHECK_NEAR(store.meanSquare(from, from + 400.0)[2], 4.5, 1e-4);
    // What is not held counts as its nearest end: nothing is read outside.
    CHECK_NEAR(store.meanSquare(-1000.0, -500.0)[0], 0.0, 0.0);
    CHECK_NEAR(store.meanSquare(1e7, 1e7 + 10.0)[0], 0.0, 0.0);
}

TEST(storeKeepsItsSumsWhenOldFramesGo)
{
    SampleStore store;
    double expected = 0.0;
    for (int round = 0; round < 40; ++round) {
        const int n = 1000 + 37 * round;
        SampleStore::Frame *out = store.append(n);
        expected = 0.0;
        for (int i = 0; i < n; ++i) {
            const float value = float((i * 7 + round) % 100) / 10.0f;
            out[i].fill(value);
            if (i >= 100 && i < 900)
                expected += square(double(value));
        }
        store.commit(n);
        const auto start = double(store.end() - n);
        CHECK_NEAR(store.meanSquare(start + 99.5, start + 899.5)[3], expected / 800.0, 1e-6);
        store.discardBefore(store.end() - 500);
    }
    CHECK(store.end() - store.first() <= SampleStore::Capacity);
    CHECK(store.first() % SampleStore::BlockLength == 0);
}

TEST_MAIN()
