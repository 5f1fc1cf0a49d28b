// Repaint of each chart beside plain polylines of the same points in the same colours: what is drawn around the curves
// (frame, grid, labels, marks) is the chart's own share. Handing data over is measured beside filling the polylines.
#include "bench/benchapplication.h"
#include "bench/ratios.h"
#include "widgets/charts/dstrendchart.h"
#include "widgets/controls/eventswidget.h"
#include "widgets/charts/harmonicgraph.h"
#include "widgets/charts/monitorhistogram.h"
#include "widgets/charts/scopewidget.h"
#include "widgets/charts/vectorchart.h"
#include "widgets/charts/viftrendchart.h"

#include <QImage>
#include <QPainter>

#include <cmath>
#include <cstring>
#include <memory>

namespace {

constexpr int kPoints = 600;

QVector<qint16> wave(int channel)
{
    QVector<qint16> series;
    for (int i = 0; i < kPoints; ++i)
        series << qint16(37 + 25 * std::sin(i / 30.0 + channel) + i * 7919 % 9);
    return series;
}

const QVector<qint16> kSeries[] = { wave(0), wave(1), wave(2), wave(3) };
const __trend_chart_data kTrend { { &kSeries[0], &kSeries[1], &kSeries[2], &kSeries[3] } };

std::unique_ptr<__scope_data_ui> scopeData()
{
    auto data = std::make_unique<__scope_data_ui>();
    std::memset(data.get(), 0, sizeof *data);
    for (int channel = 0; channel < 4; ++channel) {
        for (int i = 0; i < kPoints; ++i) {
            data->voltageSamples[channel][i] = qint16(12000 * std::sin(i / 95.0 - channel * 2.1));
            data->currentSamples[channel][i] = qint16(8000 * std::sin(i / 95.0 - channel * 2.1 - 0.4));
        }
    }
    return data;
}

void repaint(benchmark::State &state, QWidget &widget)
{
    QImage screen(widget.size(), QImage::Format_RGB32);
    for (auto _ : state) {
        screen.fill(Qt::black);
        widget.render(&screen, QPoint(), QRegion(), QWidget::DrawChildren);
    }
}

/// A widget that paints the same points as plain polylines.
class Polylines : public QWidget
{
public:
    Polylines(const QSize &size, int curves, int points, double bandHeight)
    {
        resize(size);
        for (int curve = 0; curve < curves; ++curve) {
            QPolygonF line;
            for (int i = 0; i < points; ++i)
                line << QPointF(i + 1, bandHeight * curve + 1 + kSeries[curve % 4].at(i));
            m_lines << line;
        }
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        static const Qt::GlobalColor kColors[] = { Qt::yellow, Qt::green, Qt::red, Qt::blue };
        QPainter painter(this);
        for (int curve = 0; curve < m_lines.size(); ++curve) {
            painter.setPen(kColors[curve % 4]);
            painter.drawPolyline(m_lines.at(curve));
        }
    }

private:
    QVector<QPolygonF> m_lines;
};

void trendChart(benchmark::State &state)
{
    VifTrendChart chart;
    chart.resize(609, 317);
    chart.setFlags(15);
    chart.showVifData(&kTrend);
    repaint(state, chart);
}

void trendChartWithCursor(benchmark::State &state)
{
    DSTrendChart chart;
    chart.resize(609, 317);
    chart.setFlags(15);
    chart.setCursorOn(true);
    chart.setCursorPosition(300);
    chart.showDSData(&kTrend);
    repaint(state, chart);
}

void fourPolylines(benchmark::State &state)
{
    Polylines lines(QSize(609, 317), 4, kPoints, 76);
    repaint(state, lines);
}

void scope(benchmark::State &state)
{
    ScopeWidget widget;
    widget.resize(601, 318);
    widget.showScopeData(scopeData().get());
    widget.setDefaultZoom();
    repaint(state, widget);
}

void eightPolylines(benchmark::State &state)
{
    Polylines lines(QSize(601, 318), 8, kPoints, 30);
    repaint(state, lines);
}

void harmonics(benchmark::State &state)
{
    HarmonicGraph graph;
    graph.resize(601, 320);
    QList<__graphdata> list;
    for (int i = 0; i < 27; ++i)
        list << __graphdata { { 100.0f / float(i + 1), 90.0f / float(i + 1), 80.0f / float(i + 1), 0 } };
    graph.setgraphType(GraphAll);
    graph.showGraph(&list, 1, 25);
    repaint(state, graph);
}

void histogram(benchmark::State &state)
{
    MonitorHistogram widget;
    widget.resize(600, 340);
    const QVector<ComplianceBar> bars(MonitorHistogram::kBars, ComplianceBar { 60, 40 });
    widget.showHistogram(bars.constData());
    repaint(state, widget);
}

void vectors(benchmark::State &state)
{
    VectorChart chart;
    chart.resize(323, 323);
    chart.setAngleU1(0, true);
    chart.setAngleU2(-120, true);
    chart.setAngleU3(120, true);
    chart.setAngleA1(-20, true);
    chart.setAngleA2(-140, true);
    chart.setAngleA3(100, true);
    repaint(state, chart);
}

EventSelection dips(EventList &list, int count)
{
    PQAEventItem item;
    item.type = EventDip;
    for (int i = 0; i < count; ++i) {
        item.startSeconds = 1700000000u + quint32(i);
        list.append(item);
    }
    EventSelection all(list, kAllEvents);
    all.refresh();
    return all;
}

void eventTable(benchmark::State &state)
{
    EventsWidget table;
    table.resize(600, 320);
    EventList list;
    const EventSelection events = dips(list, 1000);
    table.refreshEventList(&events);
    repaint(state, table);
}

void eventRefresh(benchmark::State &state)
{
    EventsWidget table;
    EventList list;
    const EventSelection events = dips(list, 100000);
    table.changeEventType(EventsDips);
    for (auto _ : state)
        table.refreshEventList(&events);
}

void eventCopy(benchmark::State &state)
{
    EventList list;
    dips(list, 100000);
    QVector<__event_item> copy(list.size());
    for (auto _ : state) {
        std::copy(list.begin(), list.end(), copy.begin());
        benchmark::ClobberMemory();
    }
}

void takeTrend(benchmark::State &state)
{
    VifTrendChart chart;
    chart.resize(609, 317);
    for (auto _ : state)
        chart.showVifData(&kTrend);
}

void fillPolylines(benchmark::State &state)
{
    for (auto _ : state) {
        Polylines lines(QSize(609, 317), 4, kPoints, 76);
        benchmark::DoNotOptimize(&lines);
    }
}

BENCHMARK(trendChart)->Unit(benchmark::kMicrosecond);
BENCHMARK(trendChartWithCursor)->Unit(benchmark::kMicrosecond);
BENCHMARK(fourPolylines)->Unit(benchmark::kMicrosecond);
BENCHMARK(scope)->Unit(benchmark::kMicrosecond);
BENCHMARK(eightPolylines)->Unit(benchmark::kMicrosecond);
BENCHMARK(harmonics)->Unit(benchmark::kMicrosecond);
BENCHMARK(histogram)->Unit(benchmark::kMicrosecond);
BENCHMARK(vectors)->Unit(benchmark::kMicrosecond);
BENCHMARK(eventTable)->Unit(benchmark::kMicrosecond);
BENCHMARK(eventRefresh)->Unit(benchmark::kMicrosecond);
BENCHMARK(eventCopy)->Unit(benchmark::kMicrosecond);
BENCHMARK(takeTrend)->Unit(benchmark::kMicrosecond);
BENCHMARK(fillPolylines)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    BenchApplication app(argc, argv);
    return Ratios::run(
        argc, argv, Ratios::ProcessorTime,
        {
            { "trend chart repaint, beside four polylines", "trendChart", "fourPolylines", 2.0 },
            { "trend chart with cursor, beside four polylines", "trendChartWithCursor", "fourPolylines", 2.0 },
            { "scope repaint, beside eight polylines", "scope", "eightPolylines", 2.0 },
            { "harmonic graph repaint, beside four polylines", "harmonics", "fourPolylines", 0 },
            { "histogram repaint, beside four polylines", "histogram", "fourPolylines", 0 },
            { "phasors repaint, beside four polylines", "vectors", "fourPolylines", 0 },
            { "event table repaint, beside four polylines", "eventTable", "fourPolylines", 0 },
            { "event table refresh of 100,000, beside one copy", "eventRefresh", "eventCopy", 2.5 },
            { "trend data taken over, beside filling polylines", "takeTrend", "fillPolylines", 2.5 },
        });
}
