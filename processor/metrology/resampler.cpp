#include "metrology/resampler.h"

#include "signal/angles.h"
#include "signal/vectorcode.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace processor {

namespace {

// A frame in vector registers (an extension of GCC and Clang); the compiler does not find these loops by itself.
typedef float Eight __attribute__((vector_size(32)));
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
    const double step = length / Points;
    const double latest = static_cast<double>(store.end() - Taps + 2);
    for (int m = 0; m < Points; ++m) {
        const double place = std::clamp(from + step * m, 0.0, latest);
        const auto whole = static_cast<std::int64_t>(place); // places are never negative
        const double fine = (place - static_cast<double>(whole)) * Fractions;
        const int row = static_cast<int>(fine);
        const float part = static_cast<float>(fine - row);
        const Row &low = m_kernel[static_cast<std::size_t>(row)];
        const Row &high = m_kernel[static_cast<std::size_t>(row) + 1];
        Eight near, far;
        std::memcpy(&near, low.data(), sizeof(near));
        std::memcpy(&far, high.data(), sizeof(far));
        const Eight weight = near + part * (far - near);
        const std::int64_t start = std::max(whole - 3, store.first());
        const SampleStore::Frame *frames = &store.frame(start);
        Eight sum = {};
        for (int t = 0; t < Taps; ++t) {
            Eight x;
            std::memcpy(&x, frames[t].data(), sizeof(x));
            sum += weight[t] * x;
        }
        for (int c = 0; c < Channels; ++c)
            out[c * Stride + m] = static_cast<double>(sum[c]);
    }
}

} // namespace processor
