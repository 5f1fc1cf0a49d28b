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

/// Extremes of the first three series together [0] and of the fourth [1], rounded outward, stored into the record.
/// False without any value in series 0.
bool findExtremes(__trend_data &record);
/// The same of four lists, into \a max and \a min with two places each.
bool findExtremes(const QList<float> (&series)[kChannels], float *max, float *min);

/// At most the last 600 points of \a values as offsets between \a min and \a max.
QVector<qint16> offsets(const QList<float> &values, float min, float max);

/// The four series of one picture and its limit labels.
struct Picture
{
    QVector<qint16> series[kChannels];
    QString upper[2]; // phases, fourth channel
    QString lower[2];
};

/// Limit labels of \a picture: whole numbers of the extremes (two places each) times \a factor.
void labelLimits(Picture &picture, const float *max, const float *min, double factor);

/// Scales \a record; \a factor is the display scale of the limit labels. Without values the picture is empty and the
/// labels are null.
Picture scale(__trend_data &record, double factor);

} // namespace TrendScaler
