#pragma once

#include "model/eventselection.h"
#include "model/displayrecords.h"
#include "pages/trendscaler.h"

#include <QByteArray>
#include <QStringList>

/// Half-cycle r.m.s. trends that are longer than the chart is wide: thinning, cursor values, axis labels and the saved
/// record. Pure functions of records. A window of a trend starts `offset` values back from the newest one.
namespace RmsTrend {

constexpr int kPoints = 600; // across the chart

/// What a picture shows of its lists.
struct Window
{
    int offset = 0; // values back from the newest one
    int valuesPerPoint = 1;

    int values() const { return kPoints * valuesPerPoint; }
};

/// At most 600 points, oldest first. Walking back from the newest value of the window, every group of values gives the
/// one that lies farthest from \a reference, the newest of equals: an event of a single half cycle survives at every
/// zoom. What is no number counts as 0. An offset beyond the list gives no points.
QVector<float> decimate(const QList<float> &values, const Window &window, float reference);

/// Offsets and limit labels of four lists. Extremes count over the whole lists, so that paging does not rescale; only
/// the lists of the mask \a counted count. \a factor is the display scale of the labels. Empty without values in the
/// first list or with an offset beyond it.
TrendScaler::Picture scale(const QList<float> (&lists)[kChannels], const Window &window, float reference, double factor,
                           int counted = TrendScaler::kAllSeries);

/// Value under a cursor that stands on the \a position th point from the right edge, 1 to 600: the oldest value behind
/// that point. 0 for an empty list or an offset beyond it; positions before the first value give the first.
float valueAt(const QList<float> &values, const Window &window, int position);

/// Labels of a time axis over \a seconds, oldest first: "6s", "2m", "1m30s". \a extra seconds are added to the whole.
QStringList axisLabels(int count, int seconds, int extra = 0);

/// Saved record: bytes of the r.m.s. block, bytes of the event block (4 bytes each); of each of the eight lists as many
/// values as the first list has, missing ones 0; the twelve words of each event.
QByteArray savedRecord(const __rms_trend_data &record, const EventSelection &events);

} // namespace RmsTrend
