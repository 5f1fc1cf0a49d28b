#include "report/plot.h"
#include "report/reportcharts.h"

#include <QList>
#include <QPair>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kHeight = 150;
constexpr int kInputs = 4;

void frameMoment(Plot *plot, double length, double low, double high, const QString &unit, const Report &text)
{
    plot->setRangeX(0, length);
    plot->setRangeY(low, high, unit, text.locale());
    const double step = roundStep(length, 8);
    const int decimals = decimalsOf(step);
    for (double x = 0; x <= length * 1.0001; x += step)
        plot->markX(x, text.locale().toString(x, 'f', decimals) + QStringLiteral(" s"));
    plot->frame();
}

/// What the curves of one side of an event span.
struct Extent
{
    qint64 first = std::numeric_limits<qint64>::max(), last = 0;
    double low = 0, high = -1;

    void take(const RmsCurve &curve)
    {
        for (const _value_with_time &sample : curve) {
            if (!isPlausibleTime(sample.time) || !std::isfinite(sample.value))
                continue;
            const qint64 time = sample.time; // a packed field, to which there is no reference
            first = std::min(first, time);
            last = std::max(last, time);
            high = std::max(high, double(sample.value));
        }
    }
    bool isEmpty() const { return high < 0 || first > last; }
};

} // namespace

Drawing curveChart(const Moment &moment, bool currents, const Report &text)
{
    Drawing drawing;
    Extent extent;
    const int base = currents ? kInputs : 0;
    for (int i = base; i < base + kInputs; ++i) {
        extent.take(moment.event.item.startRms[i]);
        extent.take(moment.event.item.endRms[i]);
    }
    if (extent.isEmpty())
        return drawing;
    Plot plot(&drawing, kHeight,
              currents ? Report::tr("Half-cycle values of the currents")
                       : Report::tr("Half-cycle values of the voltages"));
    const double length = double(extent.last - extent.first) / 1000;
    frameMoment(&plot, length, 0, extent.high, QLatin1String(currents ? "A" : "V"), text);
    for (int i = 0; i < kInputs; ++i) {
        for (const RmsCurve *curve : { &moment.event.item.startRms[base + i], &moment.event.item.endRms[base + i] }) {
            QVector<QPointF> points;
            for (const _value_with_time &sample : *curve) {
                if (isPlausibleTime(sample.time) && std::isfinite(sample.value))
                    points.append(plot.at(double(sample.time - extent.first) / 1000, double(sample.value)));
            }
            if (points.size() > 1)
                drawing.line(inkOfInput(i), points);
        }
    }
    return drawing;
}

Drawing waveChart(const Moment &moment, bool currents, const Report &text)
{
    Drawing drawing;
    const RecordedWaveform &wave = moment.wave;
    const int channels = wave.channels.size();
    const int count = channels > 0 ? moment.samples.size() / channels : 0;
    const char *const unit = currents ? "A" : "V";
    double most = 0;
    for (int c = 0; c < channels; ++c) {
        for (int i = 0; wave.channels.at(c).unit == unit && i < count; ++i)
            most = std::max(most, std::abs(double(moment.samples.at(i * channels + c) * wave.channels.at(c).factor)));
    }
    if (count < 2 || !(most > 0) || !std::isfinite(most))
        return drawing;
    Plot plot(&drawing, kHeight,
              currents ? Report::tr("Waveform of the currents") : Report::tr("Waveform of the voltages"));
    frameMoment(&plot, count / wave.sampleRate, -most, most, QLatin1String(unit), text);
    QList<QPair<Ink, QString>> legend;
    constexpr int kPoints = 1000; // more than are seen
    const int step = std::max(1, count / kPoints);
    for (int c = 0; c < channels; ++c) {
        const RecordedWaveform::Channel &channel = wave.channels.at(c);
        if (channel.unit != unit || !std::isfinite(channel.factor))
            continue;
        const int digit = channel.channel == "N" ? 3 : channel.channel.size() > 1 ? channel.channel.at(1) - '1' : 0;
        const Ink ink = inkOfInput(digit);
        QVector<QPointF> points;
        for (int i = 0; i < count; i += step)
            points.append(plot.at(i / wave.sampleRate, double(moment.samples.at(i * channels + c) * channel.factor)));
        drawing.line(ink, points);
        legend.prepend({ ink, QString::fromLatin1(channel.channel) });
    }
    for (const auto &word : legend) // the first one stands rightmost
        plot.legend(word.first, word.second);
    return drawing;
}
