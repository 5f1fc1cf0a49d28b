#pragma once

#include <QList>
#include <QStringList>
#include <QVector>

/// From the monitor's lists to the curves of its chart. Pure functions.
namespace MonitorTrend {

/// Ends of a scale.
struct Scale
{
    double max;
    double min;
};

/// The zoom that shows a run of so many hours whole: an index into MonitorInfo::m_zoom_time, the finest that does.
int zoomFor(int hours);

/// Labels of the time axis over \a hours, oldest first: "21h", "18h" to "3h".
QStringList axisLabels(int hours);

/// The scale of some lists, rounded outward to multiples of \a grid. What is no number does not count; without any
/// value it goes from 0 to \a grid.
Scale scaleOf(const QVector<const QList<float> *> &lists, double grid);

/// Pixel offsets of the newest values, oldest first. A point stands for \a valuesPerPoint values: below 1 a value takes
/// several points, above 1 the one farthest from \a reference stands for them. What is no number lies on the lower end.
QVector<qint16> offsets(const QList<float> &values, double valuesPerPoint, float reference, const Scale &scale);

} // namespace MonitorTrend
