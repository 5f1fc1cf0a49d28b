#include "painted.h"

#include "settings/phasecolor.h"
#include "widgets/charts/dstrendchart.h"
#include "widgets/charts/harmonicgraph.h"
#include "widgets/charts/inrushtrendchart.h"
#include "widgets/charts/monitortrendchart.h"
#include "widgets/charts/scopewidget.h"
#include "widgets/charts/vectorchart.h"
#include "widgets/charts/viftrendchart.h"

#include <QtTest>

#include <functional>
#include <memory>

using MakeChart = std::function<QWidget *()>;
Q_DECLARE_METATYPE(MakeChart)

/// Other phase colours reach a chart that has its data already: it asks for them whenever it paints.
class TstChartColors : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { PhaseColor::setPhaseColors(QStringLiteral("01231")); }
    void chosenColorIsThatOfTheNextPicture_data();
    void chosenColorIsThatOfTheNextPicture();
};

namespace {

const QVector<qint16> kSeries(500, 40);
const __trend_chart_data kTrend { { &kSeries, &kSeries, &kSeries, &kSeries } };

template <typename Chart> QWidget *trend(void (Chart::*show)(const __trend_chart_data *))
{
    auto *chart = new Chart;
    chart->resize(609, 320);
    chart->setFlags(TrendL1);
    (chart->*show)(&kTrend);
    return chart;
}

QWidget *harmonics()
{
    static const QList<__graphdata> bars { {}, {}, { { 50.0f, 0.0f, 0.0f, 0.0f } } };
    auto *graph = new HarmonicGraph;
    graph->resize(601, 320);
    graph->showGraph(&bars, 1, 2);
    return graph;
}

QWidget *scope()
{
    static __scope_data_ui data {};
    auto *widget = new ScopeWidget;
    widget->resize(601, 318);
    widget->setFlags(1);
    widget->setDefaultZoom(100, 100);
    widget->showScopeData(&data);
    return widget;
}

QWidget *vectors()
{
    auto *chart = new VectorChart;
    chart->resize(323, 323);
    chart->setAngleU1(0, true);
    return chart;
}

/// Pixels of about this colour: lines may be smoothed.
int countHue(const QImage &image, int hue)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            count += pixel.saturation() > 150 && pixel.value() > 100 && std::abs(pixel.hue() - hue) < 8;
        }
    }
    return count;
}

} // namespace

void TstChartColors::chosenColorIsThatOfTheNextPicture_data()
{
    QTest::addColumn<MakeChart>("make");
    QTest::newRow("volts, amperes, hertz") << MakeChart([] { return trend(&VifTrendChart::showVifData); });
    QTest::newRow("dips and swells") << MakeChart([] { return trend(&DSTrendChart::showDSData); });
    QTest::newRow("inrush") << MakeChart([] { return trend(&InrushTrendChart::showVifData); });
    QTest::newRow("monitor") << MakeChart([] { return trend(&MonitorTrendChart::showTrendData); });
    QTest::newRow("harmonics") << MakeChart(harmonics);
    QTest::newRow("scope") << MakeChart(scope);
    QTest::newRow("vectors") << MakeChart(vectors);
}

void TstChartColors::chosenColorIsThatOfTheNextPicture()
{
    QFETCH(MakeChart, make);
    PhaseColor::setPhaseColors(QStringLiteral("01231"));
    const std::unique_ptr<QWidget> chart(make());
    const int yellow = QColor(Qt::yellow).hue(), blue = QColor(Qt::blue).hue();
    const QImage before = painted(*chart);
    QVERIFY(countHue(before, yellow) > 20);
    QCOMPARE(countHue(before, blue), 0);
    PhaseColor::setPhaseColors(QStringLiteral("31231"));
    const QImage after = painted(*chart);
    QCOMPARE(countHue(after, blue), countHue(before, yellow));
    QCOMPARE(countHue(after, yellow), 0);
}

QTEST_MAIN(TstChartColors)
#include "tst_chartcolors.moc"
