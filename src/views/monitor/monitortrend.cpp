#include "views/monitor/monitortrend.h"

#include "settings/monitorinfo.h"
#include "widgets/charts/monitortrendchart.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace MonitorTrend {

namespace {

constexpr int kLabels = 7;
constexpr double kBandTop = 99; // pixels above the lower end of a band
/// Readings beyond this are no readings of a supply; they would leave what a label can show.
constexpr double kLargest = 2.0e9;

double cleaned(float value)
{
    return std::isfinite(value) ? std::clamp(double(value), -kLargest, kLargest) : std::nan("");
}

/// Of the values \a first to \a last the one farthest from \a reference, the newest of equals.
float farthest(const QList<float> &values, int first, int last, float reference)
{
    float found = values.at(last);
    for (int i = last - 1; i >= first; --i) {
        if (std::fabs(values.at(i) - reference) > std::fabs(found - reference) || !std::isfinite(found))
            found = values.at(i);
    }
    return found;
}

qint16 offset(float value, const Scale &scale)
{
    const double number = cleaned(value);
    const double share = std::isfinite(number) ? (number - scale.min) / (scale.max - scale.min) : 0.0;
    return qint16((1.0 - std::clamp(share, 0.0, 1.0)) * kBandTop);
}

} // namespace

int zoomFor(int hours)
{
    const auto &zooms = MonitorInfo::m_zoom_time;
    int index = int(std::size(zooms)) - 1;
    while (index > 0 && zooms[index].hours < hours)
        --index;
    return index;
}

QStringList axisLabels(int hours)
{
    QStringList labels;
    for (int i = kLabels; i > 0; --i)
        labels << QStringLiteral("%1h").arg(hours * i / kLabels);
    return labels;
}

Scale scaleOf(const QVector<const QList<float> *> &lists, double grid)
{
    bool any = false;
    Scale scale { 0, 0 };
    for (const QList<float> *list : lists) {
        for (const float raw : *list) {
            const double value = cleaned(raw);
            if (std::isnan(value))
                continue;
            scale.max = any ? std::max(scale.max, value) : value;
            scale.min = any ? std::min(scale.min, value) : value;
            any = true;
        }
    }
    // A value on a line of the grid is not drawn on the edge.
    scale.max = any ? (std::floor(scale.max / grid) + 1) * grid : grid;
    scale.min = std::floor(scale.min / grid) * grid;
    return scale;
}

QVector<qint16> offsets(const QList<float> &values, double valuesPerPoint, float reference, const Scale &scale)
{
    QVector<qint16> points;
    const int count = values.size();
    for (int point = 0; point < MonitorTrendChart::kPoints; ++point) {
        // Back from the newest value.
        const int newest = int(point * valuesPerPoint);
        const int oldest = std::max(newest, int((point + 1) * valuesPerPoint) - 1);
        if (newest >= count)
            break;
        const int first = std::max(0, count - 1 - oldest);
        points.append(offset(farthest(values, first, count - 1 - newest, reference), scale));
    }
    std::reverse(points.begin(), points.end());
    return points;
}

} // namespace MonitorTrend
