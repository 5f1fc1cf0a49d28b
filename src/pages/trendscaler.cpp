#include "pages/trendscaler.h"

#include "widgets/charts/trendchart.h"

#include <algorithm>
#include <cmath>

namespace TrendScaler {

namespace {

/// Readings beyond this are no readings of a supply; they would leave the range of the labels' integers.
constexpr float kLargest = 2.0e9f;

float cleaned(float value)
{
    return std::isfinite(value) ? std::clamp(value, -kLargest, kLargest) : 0.0f;
}

} // namespace

float upperTen(float value)
{
    const float whole = std::trunc(value / 10.0f) * 10.0f;
    return value >= 0 ? whole + 10.0f : whole;
}

float lowerTen(float value)
{
    const float whole = std::trunc(value / 10.0f) * 10.0f;
    return value >= 0 ? whole : whole - 10.0f;
}

qint16 bandOffset(float value, float min, float max)
{
    const double y = (1.0 - (double(value) - min) / (double(max) - min)) * kBandHeight;
    return std::isfinite(y) ? qint16(std::clamp(y, -32768.0, 32767.0)) : qint16(0);
}

int seriesOf(int trendFlags)
{
    int series = trendFlags & (TrendL1 | TrendL2 | TrendL3 | TrendN);
    if (trendFlags & TrendSingle)
        series |= 1 << 0;
    if (trendFlags & (TrendSingleFourth | TrendTotal))
        series |= 1 << 3;
    return series;
}

bool findExtremes(const QList<float> (&series)[kChannels], float *max, float *min, int counted)
{
    if (series[0].isEmpty())
        return false;
    for (int group = 0; group < 2; ++group) {
        const int first = group == 0 ? 0 : 3;
        const int last = group == 0 ? 2 : 3;
        bool any = false;
        float highest = 0;
        float lowest = 0;
        for (int c = first; c <= last; ++c) {
            if (!(counted >> c & 1))
                continue;
            for (float raw : series[c]) {
                const float value = cleaned(raw);
                highest = any ? std::max(highest, value) : value;
                lowest = any ? std::min(lowest, value) : value;
                any = true;
            }
        }
        max[group] = upperTen(highest);
        min[group] = lowerTen(lowest);
    }
    return true;
}

QVector<qint16> offsets(const QList<float> &values, float min, float max)
{
    QVector<qint16> result;
    const int count = std::min(int(values.size()), kTrendPoints);
    result.reserve(count);
    for (int i = values.size() - count; i < values.size(); ++i)
        result.append(bandOffset(cleaned(values.at(i)), min, max));
    return result;
}

void labelLimits(Picture &picture, double factor)
{
    for (int group = 0; group < 2; ++group) {
        picture.upper[group] = QString::number(qint64(picture.max[group] * factor));
        picture.lower[group] = QString::number(qint64(picture.min[group] * factor));
    }
}

Picture scale(const __trend_data &record, double factor, int counted)
{
    Picture picture;
    if (!findExtremes(record.series, picture.max, picture.min, counted))
        return picture;
    labelLimits(picture, factor);
    for (int c = 0; c < kChannels; ++c) {
        const int group = c < 3 ? 0 : 1;
        picture.series[c] = offsets(record.series[c], picture.min[group], picture.max[group]);
    }
    return picture;
}

} // namespace TrendScaler
