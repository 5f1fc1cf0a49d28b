#include "flickertheory.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <map>
#include <vector>

namespace flickertheory {

namespace {

using Complex = std::complex<double>;

constexpr double kTwoPi = 6.283185307179586;
constexpr double kMeanSeconds = 0.3; // block 4
constexpr double kTopHertz = 400.0; // the low pass leaves some 1e-6 of what is above
constexpr double kLinesPerHertz = 6000.0; // lines closer than that are one

// IEC 61000-4-15, 5.5 and 5.6 and the table of lamp coefficients.
struct Lamp
{
    double k, lambda, w1, w2, w3, w4; // Hz
    double mainsHz;
    double lowPassHz;
    double calibrationPercent; // sinusoidal change at 8.8 Hz of Pinst 1
};
constexpr Lamp kLamp230 = { 1.74802, 4.05981, 9.15494, 2.27979, 1.22535, 21.9, 50.0, 35.0, 0.250 };
constexpr Lamp kLamp120 = { 1.6357, 4.167375, 9.077169, 2.939902, 1.394468, 17.31512, 60.0, 42.0, 0.321 };

Complex filters(const Lamp &lamp, double hertz)
{
    const Complex s(0.0, hertz); // all corners stand in hertz as well
    const Complex highPass = s / (s + 0.05);
    Complex lowPass = 1.0;
    for (int pair = 0; pair < 3; ++pair) {
        const double damping = 2.0 * std::sin(kTwoPi / 24.0 * (1 + 2 * pair));
        const Complex x = s / lamp.lowPassHz;
        lowPass /= x * x + damping * x + 1.0;
    }
    const Complex lampAndEye = lamp.k * lamp.w1 * s / (s * s + 2.0 * lamp.lambda * s + lamp.w1 * lamp.w1)
        * (1.0 + s / lamp.w2) / ((1.0 + s / lamp.w3) * (1.0 + s / lamp.w4));
    return highPass * lowPass * lampAndEye;
}

// Amplitudes (of cosines) behind the filters for a change of 1, by frequency.
std::vector<std::pair<double, Complex>> linesOf(const Lamp &lamp, Shape shape, double rate)
{
    std::map<long, Complex> lines;
    const auto add = [&lines](double hertz, Complex amplitude) {
        if (hertz < 0.0)
            amplitude = std::conj(amplitude);
        const long place = std::lround(std::fabs(hertz) * kLinesPerHertz);
        if (place > 0 && std::fabs(hertz) < kTopHertz)
            lines[place] += amplitude;
    };
    // u^2 = (1 - cos 2Ft) (1 + m(t)), where m swings by half the change times two.
    const Complex sine(0.0, -1.0);
    for (int n = 1; n * rate < kTopHertz + 2.0 * lamp.mainsHz && (n == 1 || shape == Shape::Rectangular); n += 2) {
        const double amplitude = shape == Shape::Rectangular ? 8.0 / (kTwoPi * n) : 1.0;
        add(n * rate, amplitude * sine);
        add(n * rate - 2.0 * lamp.mainsHz, -0.5 * amplitude * sine);
        add(n * rate + 2.0 * lamp.mainsHz, -0.5 * amplitude * sine);
    }
    std::vector<std::pair<double, Complex>> filtered;
    for (const auto &[place, amplitude] : lines) {
        const double hertz = double(place) / kLinesPerHertz;
        filtered.emplace_back(hertz, amplitude * filters(lamp, hertz));
    }
    return filtered;
}

// Highest value of the mean over 300 ms of the square of the sum of `lines`.
double highestMeanSquare(const std::vector<std::pair<double, Complex>> &lines)
{
    constexpr double step = 1.0 / 2400.0; // s
    const double keep = std::exp(-step / kMeanSeconds);
    std::vector<Complex> value, turn;
    double mean = 0.0;
    for (const auto &[hertz, amplitude] : lines) {
        value.push_back(amplitude);
        turn.push_back(std::polar(1.0, kTwoPi * hertz * step));
        mean += std::norm(amplitude) / 2.0;
    }
    double highest = 0.0, last = 0.0;
    for (int i = 0; i < int(8.0 / step); ++i) {
        double sum = 0.0;
        for (std::size_t j = 0; j < value.size(); ++j) {
            sum += value[j].real();
            value[j] *= turn[j];
        }
        const double square = sum * sum;
        mean = keep * mean + (1.0 - keep) * 0.5 * (last + square);
        last = square;
        if (i * step > 3.0) // settled
            highest = std::max(highest, mean);
    }
    return highest;
}

} // namespace

double depthOfPinstOne(int curve, Shape shape, double rateHz)
{
    const Lamp &lamp = curve == 230 ? kLamp230 : kLamp120;
    // Block 5 is calibrated at 8.8 Hz, where the lines beside 2F are lost in the low pass.
    const double unit = highestMeanSquare({ { 8.8, filters(lamp, 8.8) } });
    return lamp.calibrationPercent * std::sqrt(unit / highestMeanSquare(linesOf(lamp, shape, rateHz)));
}

} // namespace flickertheory
