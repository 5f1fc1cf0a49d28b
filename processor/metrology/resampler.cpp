#include "metrology/resampler.h"

#include "signal/angles.h"
#include "signal/vectorcode.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace processor {

namespace {

typedef float Eight __attribute__((vector_size(32)));
typedef float FourFloats __attribute__((vector_size(16)));
static_assert(sizeof(Eight) == sizeof(SampleStore::Frame), "a frame fills the vector");

constexpr double Width = Resampler::Taps;
// The kernel's pass band ends where the image of the highest frequency of interest (7 kHz) begins: 0.64 of the rate.
constexpr double Shape = Pi * Width * 0.64;

// Modified Bessel function of order 0, by its series; 60 terms are enough for arguments up to 20.
double bessel0(double x)
{
    double term = 1.0;
    double sum = 1.0;
    for (int k = 1; k < 60; ++k) {
        term *= (x / 2.0 / k) * (x / 2.0 / k);
        sum += term;
    }
    return sum;
}

double kernelAt(double t)
{
    const double u = 2.0 * t / Width;
    return u * u < 1.0 ? bessel0(Shape * std::sqrt(1.0 - u * u)) / bessel0(Shape) : 0.0;
}

// Sum of the weighted frames, channels 0 to 3 and 4 to 7.
__attribute__((always_inline)) inline void readPoint(const SampleStore::Frame *frames, const float *weight, Four &low,
                                                     Four &high)
{
    Eight even = {}, odd = {};
    for (int t = 0; t < Resampler::Taps; t += 2) {
        Eight x, y;
        std::memcpy(&x, frames[t].data(), sizeof(x));
        std::memcpy(&y, frames[t + 1].data(), sizeof(y));
        even += weight[t] * x;
        odd += weight[t + 1] * y;
    }
    even += odd;
    FourFloats half[2];
    std::memcpy(half, &even, sizeof(even));
    low = __builtin_convertvector(half[0], Four);
    high = __builtin_convertvector(half[1], Four);
}

// Fourier transform of the kernel: Width / I0(shape) * sinh(r) / r with r^2 = shape^2 - (pi width f)^2.
double responseAt(double cyclesPerFrame)
{
    const double w = Pi * Width * cyclesPerFrame;
    const double square = Shape * Shape - w * w;
    double value = 1.0;
    if (square > 1e-12)
        value = std::sinh(std::sqrt(square)) / std::sqrt(square);
    else if (square < -1e-12)
        value = std::sin(std::sqrt(-square)) / std::sqrt(-square);
    return Width / bessel0(Shape) * value;
}

} // namespace

Resampler::Resampler() : m_kernel(Fractions + 1), m_correction(Steps + 2)
{
    for (int j = 0; j <= Fractions; ++j) {
        for (int t = 0; t < Taps; ++t) {
            const double distance = static_cast<double>(j) / Fractions + 3.0 - t;
            m_kernel[static_cast<std::size_t>(j)][static_cast<std::size_t>(t)] = static_cast<float>(kernelAt(distance));
        }
    }
    for (int j = 0; j < Steps + 2; ++j)
        m_correction[static_cast<std::size_t>(j)] = 1.0 / responseAt(0.5 * j / Steps);
}

double Resampler::correction(double cyclesPerFrame) const
{
    const double place = std::clamp(cyclesPerFrame, 0.0, 0.5) * 2.0 * Steps;
    const auto cell = static_cast<std::size_t>(place);
    const double part = place - static_cast<double>(cell);
    return m_correction[cell] + part * (m_correction[cell + 1] - m_correction[cell]);
}

PROCESSOR_VECTOR_CODE void Resampler::resample(const SampleStore &store, double from, double length, double *out) const
{
    // Places and weights of a batch come first: from memory, a weight then fills a register in one load.
    constexpr int batch = 32;
    static_assert(Points % batch == 0 && batch % 4 == 0, "batches are whole, and four points are read at a time");
    const double step = length / Points;
    const double latest = static_cast<double>(store.end() - Taps + 2);
    for (int first = 0; first < Points; first += batch) {
        float weight[batch][Taps];
        std::int64_t start[batch];
        for (int m = 0; m < batch; ++m) {
            const double place = std::clamp(from + step * (first + m), 0.0, latest);
            const auto whole = static_cast<std::int64_t>(place); // places are never negative
            const double fine = (place - static_cast<double>(whole)) * Fractions;
            const int row = static_cast<int>(fine);
            const auto part = static_cast<float>(fine - row);
            const float *near = m_kernel[static_cast<std::size_t>(row)].data();
            const float *far = m_kernel[static_cast<std::size_t>(row) + 1].data();
            for (int t = 0; t < Taps; ++t)
                weight[m][t] = near[t] + part * (far[t] - near[t]);
            start[m] = std::max(whole - 3, store.first());
        }
        for (int m = 0; m < batch; m += 4) {
            Four low[4], high[4], channel[Channels]; // channels 0 to 3 and 4 to 7 of each point
            for (int j = 0; j < 4; ++j)
                readPoint(&store.frame(start[m + j]), weight[m + j], low[j], high[j]);
            transpose(low, channel);
            transpose(high, channel + 4);
            for (int c = 0; c < Channels; ++c)
                std::memcpy(out + c * Stride + first + m, &channel[c], sizeof(Four));
        }
    }
}

} // namespace processor
