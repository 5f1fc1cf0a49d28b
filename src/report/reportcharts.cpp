#include "report/reportcharts.h"

#include "report/plot.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kHeight = 176;

/// The range of what is shown: values, and limits that are near them.
struct Range
{
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();

    void take(double value)
    {
        if (!std::isfinite(value))
            return;
        low = std::min(low, value);
        high = std::max(high, value);
    }
    bool isEmpty() const { return !(low <= high); }
};

/// Marks of time: at most about ten, at hours or days.
void markTimes(Plot *plot, qint64 from, qint64 to)
{
    constexpr qint64 kMinute = 60000, kHour = 60 * kMinute;
    static constexpr qint64 kSteps[] = { kMinute, 2 * kMinute, 5 * kMinute, 10 * kMinute, 30 * kMinute,
                                         kHour,   2 * kHour,   6 * kHour,   12 * kHour,   24 * kHour };
    constexpr int kMarks = 9;
    qint64 step = (to - from) / kMarks / Weeks::kDay * Weeks::kDay + Weeks::kDay;
    for (const qint64 candidate : kSteps) {
        if ((to - from) / candidate <= kMarks) {
            step = candidate;
            break;
        }
    }
    const bool days = step >= 12 * kHour;
    for (qint64 time = (from + step - 1) / step * step; time <= to; time += step) {
        const QDateTime moment = QDateTime::fromMSecsSinceEpoch(time, Qt::UTC);
        const bool date = days || time % Weeks::kDay == 0;
        plot->markX(double(time - from), moment.toString(date ? QStringLiteral("MM-dd") : QStringLiteral("hh:mm")));
    }
}

/// How many columns may be empty within a stretch: some more than usual between values.
std::size_t gapOf(const std::vector<TrendBand::Column> &columns)
{
    constexpr std::size_t kLeast = 4;
    std::vector<std::size_t> distances;
    std::size_t last = 0;
    bool any = false;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].isEmpty())
            continue;
        if (any)
            distances.push_back(i - last);
        last = i;
        any = true;
    }
    if (distances.empty())
        return kLeast;
    const auto middle = distances.begin() + std::ptrdiff_t(distances.size() / 2);
    std::nth_element(distances.begin(), middle, distances.end());
    return std::max(kLeast, *middle * 2);
}

/// A phase's band of lowest to highest, a stretch for each run of columns without a gap.
void drawBand(Drawing *drawing, const Plot &plot, const TrendBand &band, double length, Ink ink)
{
    const auto &columns = band.columns();
    const std::size_t gap = gapOf(columns);
    for (std::size_t i = 0; i < columns.size();) {
        if (columns[i].isEmpty()) {
            ++i;
            continue;
        }
        QVector<QPointF> upper, lower;
        std::size_t last = i;
        for (; i < columns.size() && i - last <= gap; ++i) {
            if (columns[i].isEmpty())
                continue;
            const double x = (double(i) + 0.5) / TrendBand::kColumns * length;
            upper.append(plot.at(x, double(columns[i].highest)));
            lower.append(plot.at(x, double(columns[i].lowest)));
            last = i;
        }
        i = last + 1;
        if (upper.size() == 1) {
            drawing->dot(ink, upper.first(), QString(), QString());
            continue;
        }
        std::reverse(lower.begin(), lower.end());
        drawing->area(ink, upper + lower);
        drawing->line(ink, upper);
        drawing->line(ink, lower);
    }
}

/// A limit is shown where the values come near it, or where it is near them.
void takeNear(Range *range, double limit, double value)
{
    if (std::isfinite(limit) && std::isfinite(value))
        range->take(limit);
}

} // namespace

QString eventAnchor(int number)
{
    return QStringLiteral("event-%1").arg(number);
}

QString momentAnchor(int number)
{
    return QStringLiteral("moment-%1").arg(number);
}

Drawing trendChart(Quantity quantity, const Judgement &judgement, const Report &text)
{
    Drawing drawing;
    Range range;
    Bounds bounds;
    bool any = false;
    for (const QuantityTrend &trend : judgement.trends) {
        if (trend.key.quantity != quantity)
            continue;
        for (const TrendBand::Column &column : trend.band.columns()) {
            if (column.isEmpty())
                continue;
            range.take(double(column.lowest));
            range.take(double(column.highest));
        }
        bounds = boundsOf(trend.key, judgement.setup.limits, judgement.setup.nominalVolt,
                          judgement.setup.nominalFrequency);
        any = true;
    }
    if (!any || range.isEmpty())
        return drawing;
    takeNear(&range, bounds.low, range.low);
    takeNear(&range, bounds.high, range.high);
    if (bounds.low == -Bounds::kNone)
        range.take(0);
    Plot plot(&drawing, kHeight, text.nameOf(quantity, judgement));
    const double length = double(judgement.overview.length());
    plot.setRangeX(0, length);
    plot.setRangeY(range.low, range.high, Report::unitOf(quantity), text.locale());
    markTimes(&plot, judgement.overview.start, judgement.overview.end);
    for (int phase = 2; phase >= -1; --phase) {
        for (const QuantityTrend &trend : judgement.trends) {
            if (trend.key.quantity != quantity || trend.key.phase != phase)
                continue;
            drawBand(&drawing, plot, trend.band, length, inkOfInput(phase));
            if (phase >= 0)
                plot.legend(inkOfInput(phase), Report::phaseName(phase, judgement));
        }
    }
    for (const double limit : { bounds.low, bounds.high, bounds.wholeLow, bounds.wholeHigh }) {
        if (std::isfinite(limit))
            plot.limit(limit, QString());
    }
    plot.frame();
    return drawing;
}

Drawing harmonicChart(const Judgement &judgement, const Report &text)
{
    Drawing drawing;
    Range range;
    range.take(0);
    int last = 0;
    for (const QuantityVerdict &v : judgement.verdicts) {
        if (v.key.quantity != Quantity::Harmonic || v.judged == 0 || v.bounds.high == Bounds::kNone)
            continue;
        range.take(v.atShare);
        range.take(v.bounds.high);
        last = std::max(last, int(v.key.order));
    }
    if (last == 0)
        return drawing;
    Plot plot(&drawing, kHeight + 30, Report::tr("Harmonics of the voltage and their limits"));
    plot.setRangeX(1, last + 1);
    plot.setRangeY(0, range.high, QStringLiteral("%"), text.locale());
    for (int order = 2; order <= last; ++order)
        plot.markX(order, QString::number(order), false);
    for (const QuantityVerdict &v : judgement.verdicts) {
        if (v.key.quantity != Quantity::Harmonic || v.judged == 0 || v.bounds.high == Bounds::kNone)
            continue;
        constexpr double kBar = 0.22; // of an order
        const double x = v.key.order + (qMax(0, int(v.key.phase)) - 1.5) * kBar;
        const Ink ink = v.partial == Outcome::Fail ? Ink::Bad : inkOfInput(v.key.phase);
        drawing.area(ink, { plot.at(x, 0), plot.at(x, v.atShare), plot.at(x + kBar, v.atShare), plot.at(x + kBar, 0) });
        drawing.line(Ink::Limit,
                     { plot.at(v.key.order - 0.45, v.bounds.high), plot.at(v.key.order + 0.45, v.bounds.high) });
    }
    plot.frame();
    return drawing;
}

Drawing depthChart(const Judgement &judgement, const Report &text)
{
    constexpr double kShortest = 0.01, kLongest = 1000; // s
    constexpr double kTop = 150; // percent
    Drawing drawing;
    Plot plot(&drawing, 250, Report::tr("Voltage left and duration of dips, swells and interruptions"));
    plot.setRangeX(std::log10(kShortest), std::log10(kLongest));
    plot.setRangeY(0, kTop, QStringLiteral("%"), text.locale());
    for (const double seconds : { 0.01, 0.1, 1.0, 10.0, 100.0, 1000.0 })
        plot.markX(std::log10(seconds), text.locale().toString(seconds) + QStringLiteral(" s"));
    const monitor_limit &limits = judgement.setup.limits;
    for (const float limit : { limits.dips.threshold, limits.swells.threshold, limits.interruptions.threshold })
        plot.limit(double(limit), text.percent(double(limit), 0));
    for (const RecordedEvent &event : judgement.overview.events) {
        const __event_item &item = event.item;
        if (item.type < EventDip || item.type > EventInterruption || !(judgement.setup.nominalVolt > 0))
            continue;
        const qint64 end = item.finished ? item.endTime : judgement.overview.end;
        const double seconds = std::max(kShortest, (double(end) - double(item.startTime)) / 1000);
        const double left = double(item.value) * 100 / judgement.setup.nominalVolt;
        const Ink ink = item.type == EventInterruption ? Ink::Bad : item.type == EventDip ? Ink::N : Ink::L1;
        if (std::isfinite(left))
            drawing.dot(ink, plot.at(std::log10(seconds), left),
                        Report::eventName(item.type) + QStringLiteral(", ") + text.percent(left) + QStringLiteral(", ")
                            + text.locale().toString(seconds, 'f', 2) + QStringLiteral(" s"),
                        judgement.listed.contains(event.number) ? eventAnchor(event.number) : QString());
    }
    plot.legend(Ink::Bad, Report::tr("Interruption"));
    plot.legend(Ink::L1, Report::tr("Swell"));
    plot.legend(Ink::N, Report::tr("Dip"));
    plot.frame();
    return drawing;
}
