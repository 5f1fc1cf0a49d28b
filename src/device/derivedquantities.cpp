#include "device/datatypes.h"

#include <algorithm>
#include <cmath>
#include <limits>

float DataTypes::iu_pahse_difference(float a, float b)
{
    float difference = a - b;
    if (std::fabs(difference) > 540.0f)
        difference = std::fmod(difference, 360.0f); // any number in one step
    if (difference > 180.0f)
        difference -= 360.0f;
    if (difference < -180.0f)
        difference += 360.0f;
    return difference;
}

double DataTypes::plt(const QList<float> *values, unsigned int n)
{
    double sum = 0.0;
    for (unsigned int i = 0; i < std::min(n, static_cast<unsigned int>(values->size())); ++i)
        sum += std::pow(double(values->at(static_cast<int>(i))), 3.0);
    // Kept: 0 / 0 gives a NaN for no values.
    const double mean = n == 0 ? std::numeric_limits<double>::quiet_NaN() : sum / n;
    return std::pow(mean, 0.3333333333333333);
}

float DataTypes::percentiles(float p, QList<float> *sorted, unsigned int n)
{
    const int count = static_cast<int>(std::min(n, static_cast<unsigned int>(sorted->size())));
    return percentileOf(p, count, [sorted](int place) { return sorted->at(place); });
}

double DataTypes::pst10min(QList<float> *sorted, unsigned int n)
{
    const auto at = [sorted, n](float p) { return double(percentiles(p, sorted, n)); };
    const double p1 = (at(0.007f) + at(0.01f) + at(0.015f)) / 3.0;
    const double p3 = (at(0.022f) + at(0.03f) + at(0.04f)) / 3.0;
    const double p10 = (at(0.06f) + at(0.08f) + at(0.1f) + at(0.13f) + at(0.17f)) / 5.0;
    const double p50 = (at(0.3f) + at(0.5f) + at(0.8f)) / 3.0;
    return std::sqrt(0.0314 * at(0.001f) + 0.0525 * p1 + 0.0657 * p3 + 0.28 * p10 + 0.08 * p50);
}

namespace {

/// Straight line between the two samples around x; x lies inside the samples.
template <typename T> double between(const T *in, int count, double x)
{
    const int j = std::clamp(static_cast<int>(x), 0, count - 1);
    const int k = std::clamp(static_cast<int>(x + 1.0), 0, count - 1);
    return k == j ? double(in[j]) : double(in[j]) + (x - j) / (k - j) * (double(in[k]) - double(in[j]));
}

template <typename T> void resample(T *out, int outCount, const T *in, int inCount)
{
    if (outCount <= 0 || inCount <= 0)
        return;
    out[0] = in[0];
    out[outCount - 1] = in[inCount - 1];
    for (int i = 1; i < outCount - 1; ++i)
        out[i] = static_cast<T>(between(in, inCount, i * (inCount - 1.0) / (outCount - 1)));
}

} // namespace

void DataTypes::lineInterpolation(float *out, const float *in, int n)
{
    resample(out, 600, in, n);
}

void DataTypes::lineInterpolation(short *out, const short *in, int outCount, int inCount)
{
    resample(out, outCount, in, inCount);
}
