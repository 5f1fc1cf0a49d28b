#pragma once

#include "model/displayrecords.h"

#include <QString>
#include <QVector>

/// Turns the series of a trend record into pixel offsets inside the bands of a trend chart, with their limit labels.
/// Pure functions of records; the chart only draws.
namespace TrendScaler {

constexpr double kBandHeight = 75.0; // pixels

/// \a value rounded outward to a multiple of ten, towards positive infinity.
float upperTen(float value);
/// \a value rounded outward to a multiple of ten, towards negative infinity.
float lowerTen(float value);

/// Pixel offset of \a value in a band from \a min at the bottom to \a max at the top; 0 for anything but a number.
qint16 bandOffset(float value, float min, float max);

constexpr int kAllSeries = (1 << kChannels) - 1;

/// Series behind the curves of a trend chart's flags, a bit each: a single value stands in the first series, a total or
/// a single value in the fourth band in the fourth.
int seriesOf(int trendFlags);

/// Extremes of the first three series together [0] and of the fourth [1], rounded outward, into \a max and \a min
/// with two places each. Only the series of the mask \a counted count: an input that the wiring does not have may stand
/// at any value and would flatten the curves of the others. False without any value in series 0.
bool findExtremes(const QList<float> (&series)[kChannels], float *max, float *min, int counted = kAllSeries);

/// At most the last 600 points of \a values as offsets between \a min and \a max.
QVector<qint16> offsets(const QList<float> &values, float min, float max);

/// The four series of one picture, what they were scaled between, and its limit labels.
struct Picture
{
    float max[2] = {}; // phases, fourth channel
    float min[2] = {};
    QVector<qint16> series[kChannels];
    QString upper[2]; // phases, fourth channel
    QString lower[2];
};

/// Limit labels of \a picture: whole numbers of its extremes times \a factor.
void labelLimits(Picture &picture, double factor);

/// Scales \a record by its series \a counted; \a factor is the display scale of the limit labels. Without values the
/// picture is empty and the labels are null.
Picture scale(const __trend_data &record, double factor, int counted = kAllSeries);

} // namespace TrendScaler
