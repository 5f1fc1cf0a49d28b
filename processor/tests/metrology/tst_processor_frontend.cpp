#include "check.h"
#include "rig.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

using namespace rig;

namespace {

using Samples = std::vector<std::vector<std::int16_t>>;

// The same level at all inputs, for n samples.
Samples convertLevel(FrontEnd &frontEnd, double level, int n = 16)
{
    std::vector<double> in(std::size_t(n), level);
    Samples out(8, std::vector<std::int16_t>(std::size_t(n)));
    const double *from[8];
    std::int16_t *to[8];
    for (std::size_t c = 0; c < 8; ++c) {
        from[c] = in.data();
        to[c] = out[c].data();
    }
    frontEnd.convert(from, to, n);
    return out;
}

FrontEnd quietFrontEnd()
{
    FrontEnd frontEnd(1);
    frontEnd.setNoise(0.0);
    return frontEnd;
}

std::string temporaryFile(const std::vector<float> &values, std::size_t bytes)
{
    char name[] = "/tmp/calibrationXXXXXX";
    const int fd = mkstemp(name);
    if (fd < 0 || write(fd, values.data(), bytes) != ssize_t(bytes))
        std::abort();
    close(fd);
    return name;
}

} // namespace

TEST(voltageSelectorIsTheRowOfTheGains)
{
    const double gains[4] = { 39.8, 79.25, 153.6, 667.0 };
    for (int value = 0; value < 8; ++value) {
        FrontEnd frontEnd = quietFrontEnd();
        frontEnd.setSelector(FrontEnd::PhaseVoltage, value);
        CHECK(frontEnd.selector(FrontEnd::PhaseVoltage) == (value & 3));
        const Samples samples = convertLevel(frontEnd, 100.0);
        const double expected = 100.0 / gains[value & 3] * 3276.8;
        CHECK_NEAR(samples[U1][0], expected, 0.51);
        CHECK_NEAR(samples[U3][0], expected, 0.51);
        CHECK_NEAR(samples[UN][0], 100.0 / 39.8 * 3276.8, 0.51); // has a selector of its own
    }
}

TEST(currentSelectorCrossesItsMiddleRows)
{
    const double rowOfSelector[4] = { 99.4, 285.72, 214.45, 71.45 };
    for (int value = 0; value < 4; ++value) {
        FrontEnd frontEnd = quietFrontEnd();
        frontEnd.setSelector(FrontEnd::PhaseCurrent, value);
        frontEnd.setSelector(FrontEnd::NeutralCurrent, 3 - value);
        const Samples samples = convertLevel(frontEnd, 200.0);
        CHECK_NEAR(samples[I2][0], 200.0 / rowOfSelector[value] * 3276.8, 0.51);
        CHECK_NEAR(samples[IN][0], 200.0 / rowOfSelector[3 - value] * 3276.8, 0.51);
    }
}

TEST(clampRatioScalesTheCurrents)
{
    FrontEnd frontEnd = quietFrontEnd();
    frontEnd.setClampRatio(10000.0, 65.0);
    const Samples samples = convertLevel(frontEnd, 50.0);
    CHECK_NEAR(samples[I1][0], 50.0 * 10.0 / 99.4 * 3276.8, 0.51);
    CHECK_NEAR(samples[IN][0], 50.0 * 0.065 / 99.4 * 3276.8, 0.51);
    frontEnd.setClampRatio(0.0, -1.0); // no clamp has that
    CHECK(frontEnd.phaseClampRatio() == 10000.0);
    CHECK(frontEnd.neutralClampRatio() == 65.0);
}

TEST(converterClipsAtTenUnits)
{
    FrontEnd frontEnd = quietFrontEnd();
    convertLevel(frontEnd, 397.0); // 9.975 units
    CHECK(!frontEnd.takeClipped());
    CHECK(convertLevel(frontEnd, 1e6)[U1][0] == 32767);
    CHECK(frontEnd.takeClipped());
    CHECK(!frontEnd.takeClipped());
    CHECK(convertLevel(frontEnd, -398.0)[U1][0] == -32768);
    CHECK(convertLevel(frontEnd, -1e300)[I3][0] == -32768);
    CHECK(frontEnd.takeClipped());
}

TEST(samplesAreRoundedToTheNearestStep)
{
    FrontEnd frontEnd = quietFrontEnd();
    const double step = double(39.8f) / 3276.8;
    CHECK(convertLevel(frontEnd, 7.4 * step)[U1][0] == 7);
    CHECK(convertLevel(frontEnd, 7.6 * step)[U1][0] == 8);
    CHECK(convertLevel(frontEnd, -7.4 * step)[U1][0] == -7);
    CHECK(convertLevel(frontEnd, -7.6 * step)[U1][0] == -8);
}

// An hour of samples in blocks of a minute; gains are 2 percent larger at its end, offsets 0.1 units higher.
TEST(gainsAndOffsetsDriftWithTheSamplesThatPass)
{
    FrontEnd frontEnd = quietFrontEnd();
    frontEnd.setDrift(2.0, 0.1);
    CHECK_NEAR(convertLevel(frontEnd, 39.8)[U1][0], 3276.8, 0.51);
    const int minute = 60 * int(SampleRate);
    for (int i = 0; i < 60; ++i)
        convertLevel(frontEnd, 0.0, minute);
    CHECK_NEAR(convertLevel(frontEnd, 39.8)[U1][0], 3276.8 / 1.02 + 327.68, 0.52);
    CHECK_NEAR(convertLevel(frontEnd, 0.0)[IN][0], 327.68, 0.52);
}

TEST(zeroOffsetOfTheRowStandsInTheSamples)
{
    FrontEnd frontEnd = quietFrontEnd();
    CalibrationSet set;
    set.zeroVolt[2] = { { 0.1f, -0.2f, 0.3f, 0.4f } };
    set.zeroCurrent[1] = { { 0.5f, 0.6f, -0.7f, 0.8f } };
    frontEnd.setCalibration(set);
    frontEnd.setSelector(FrontEnd::PhaseVoltage, 2);
    frontEnd.setSelector(FrontEnd::PhaseCurrent, 2); // row 1
    const Samples samples = convertLevel(frontEnd, 0.0);
    CHECK_NEAR(samples[U1][0], 327.68, 0.51);
    CHECK_NEAR(samples[U2][0], -655.36, 0.51);
    CHECK_NEAR(samples[I3][0], -2293.76, 0.51);
    CHECK(samples[UN][0] == 0); // the neutral stands on row 0
}

TEST(noiseIsRepeatableAndOfItsSize)
{
    FrontEnd a(9), b(9), c(10);
    for (FrontEnd *frontEnd : { &a, &b, &c })
        frontEnd->setNoise(3.0);
    const Samples first = convertLevel(a, 0.0, 50000);
    Samples second = convertLevel(b, 0.0, 777);
    const Samples rest = convertLevel(b, 0.0, 50000 - 777);
    for (std::size_t i = 0; i < 8; ++i)
        second[i].insert(second[i].end(), rest[i].begin(), rest[i].end());
    CHECK(first == second);
    CHECK(convertLevel(c, 0.0, 50000) != first);
    CHECK(first[0] != first[1]);
    double square = 0.0;
    for (std::int16_t value : first[0])
        square += double(value) * value;
    // 3 steps of noise and 1 / sqrt(12) of rounding; the standard error of 50000 is 0.3 percent.
    CHECK_NEAR(std::sqrt(square / 50000), std::sqrt(9.0 + 1.0 / 12.0), 0.06);
}

TEST(rogowskiCoilGivesTheRateOfChange)
{
    // A sine of 50 Hz keeps its size at a nominal frequency of 50 Hz and leads by a quarter of a cycle; its fifth
    // harmonic comes out five times as large (the difference of two samples falls short by 0.07 percent there).
    for (int order : { 1, 5 }) {
        FrontEnd frontEnd = quietFrontEnd();
        frontEnd.setRogowski(true, 50.0);
        std::vector<double> in(4096);
        for (std::size_t n = 0; n < in.size(); ++n)
            in[n] = 10.0 * std::sin(2.0 * Pi * 50.0 * order * double(n) / SampleRate);
        std::vector<std::int16_t> out(4096 * 8);
        const double *from[8];
        std::int16_t *to[8];
        for (std::size_t c = 0; c < 8; ++c) {
            from[c] = in.data();
            to[c] = out.data() + 4096 * c;
        }
        frontEnd.convert(from, to, 4096);
        double cosine = 0.0;
        for (std::size_t n = 0; n < 4096; ++n)
            cosine += to[I1][n] * std::cos(2.0 * Pi * 50.0 * order * (double(n) - 0.5) / SampleRate) / 2048.0;
        CHECK_NEAR(cosine, order * 10.0 / 99.4 * 3276.8, order * 0.5);
        CHECK_NEAR(to[IN][100], in[100] / 99.4 * 3276.8, 0.51); // the neutral clamp is no coil
        CHECK_NEAR(to[U1][100], in[100] / 39.8 * 3276.8, 0.51);
    }
}

TEST(calibrationFileOfTheInstrumentCanBeRead)
{
    std::vector<float> values(70, 0.0f);
    for (std::size_t i = 0; i < 64; ++i)
        values[i] = float(i + 1);
    std::string error;
    CalibrationSet set;
    std::string path = temporaryFile(values, 280);
    CHECK(set.load(path, error));
    CHECK(set.zeroVolt[0][0] == 1.0f);
    CHECK(set.zeroCurrent[0][1] == 18.0f);
    CHECK(set.volt[3][3] == 48.0f);
    CHECK(set.current[0][0] == 49.0f);
    std::remove(path.c_str());
}

TEST(badCalibrationFilesChangeNothing)
{
    std::vector<float> good(70, 1.0f);
    std::vector<float> zeroGain = good;
    zeroGain[40] = 0.0f;
    std::vector<float> notANumber = good;
    notANumber[3] = std::nanf("");
    std::vector<float> longer(80, 1.0f);
    const std::string files[] = { temporaryFile(good, 279), temporaryFile(longer, 284), temporaryFile(zeroGain, 280),
                                  temporaryFile(notANumber, 280), "/nonexistent/calibration.dat" };
    for (const std::string &path : files) {
        CalibrationSet set;
        std::string error;
        CHECK(!set.load(path, error));
        CHECK(error.compare(0, path.size(), path) == 0);
        CHECK(set.volt[0][0] == 39.8f);
        std::remove(path.c_str());
    }
}

TEST_MAIN()
