#include "painted.h"

#include "settings/phasecolor.h"
#include "widgets/charts/monitortrendchart.h"

#include <QTest>

// A widget of 601 by 320 pixels: frame from x = 80 to 586, bands from y = 0, 101 and 202.
static const QColor kGrey(Qt::darkGray);

class TstMonitorTrendChart : public QObject
{
    Q_OBJECT

private slots:
    void init() { PhaseColor::setPhaseColors(QStringLiteral("01231")); }
    void frameHasThreeBandsOf101Pixels();
    void layoutDoesNotFollowTheHeight();
    void axisOf24HoursHasSevenLabels();
    void eachPhaseHasItsBandAndItsLimits();
    void singleValuesAreWhiteInTheFirstBand();
    void withoutDataOnlyFrameAndLimitsAreDrawn();
    void anEmptyListOfLabelsKeepsTheOldOnes();
};

static QImage shown(int flags, const QVector<qint16> &series, int height = 320)
{
    MonitorTrendChart chart;
    chart.resize(601, height);
    chart.setFlags(flags);
    const __trend_chart_data data { { &series, &series, &series, &series } };
    chart.showTrendData(&data);
    return painted(chart);
}

void TstMonitorTrendChart::frameHasThreeBandsOf101Pixels()
{
    const QImage image = shown(0, {});
    for (const int y : { 0, 101, 202, 304 })
        QVERIFY2(countPixels(image, edges(81, y, 585, y), kGrey) >= 160, qPrintable(QString::number(y)));
    for (const int x : { 80, 586 })
        QVERIFY(countPixels(image, edges(x, 1, x, 299), kGrey) >= 90);
    QCOMPARE(countPixels(image, edges(587, 0, 600, 319), Qt::black), 14 * 320);
}

void TstMonitorTrendChart::layoutDoesNotFollowTheHeight()
{
    QCOMPARE(shown(0, {}, 400).copy(0, 0, 601, 320), shown(0, {}));
}

void TstMonitorTrendChart::axisOf24HoursHasSevenLabels()
{
    MonitorTrendChart chart;
    QCOMPARE(chart.fullScale(), QStringList({ "21h", "18h", "15h", "12h", "9h", "6h", "3h" }));
    const QImage image = shown(0, {});
    for (const int x : { 0, 72, 144, 216, 289, 361, 433 }) { // i * 506 / 7
        QCOMPARE(countPixels(image, edges(x + 80, 300, x + 80, 303), kGrey), 4);
        QVERIFY(countPixels(image, edges(x + 70, 306, x + 95, 317), Qt::black) < 26 * 12);
    }
}

void TstMonitorTrendChart::eachPhaseHasItsBandAndItsLimits()
{
    for (int band = 0; band < 3; ++band) {
        const QImage image = shown(1 << band, QVector<qint16>(506, 40));
        const QColor color = PhaseColor::color(band);
        const int y = 101 * band + 1 + 40;
        QCOMPARE(countPixels(image, edges(81, y, 585, y), color), 505);
        QVERIFY(countPixels(image, edges(590, y - 5, 595, y + 4), color) > 4); // tag at W - 15
        const int upper[] = { 0, 101, 202 };
        const int lower[] = { 85, 187, 288 };
        QVERIFY(countPixels(image, edges(40, upper[band], 78, upper[band] + 15), color) > 0);
        QVERIFY(countPixels(image, edges(40, lower[band], 78, lower[band] + 15), color) > 0);
        for (int other = 0; other < 3; ++other) {
            if (other != band)
                QCOMPARE(countPixels(image, edges(0, 101 * other + 1, 600, 101 * other + 75), PhaseColor::color(other)),
                         0);
        }
    }
}

void TstMonitorTrendChart::singleValuesAreWhiteInTheFirstBand()
{
    for (const int flag : { 8, 16 }) {
        const QImage image = shown(flag, QVector<qint16>(506, 40));
        QCOMPARE(countPixels(image, edges(81, 41, 585, 41), Qt::white), 505);
        QVERIFY(countPixels(image, edges(40, 0, 78, 15), Qt::white) > 0);
        QVERIFY(countPixels(image, edges(40, 85, 78, 100), Qt::white) > 0);
        QVERIFY(countPixels(image, edges(590, 36, 595, 45), Qt::white) > 10);
    }
}

void TstMonitorTrendChart::withoutDataOnlyFrameAndLimitsAreDrawn()
{
    const QImage image = shown(7, {});
    for (int band = 0; band < 3; ++band) {
        QCOMPARE(countPixels(image, edges(81, 0, 600, 303), PhaseColor::color(band)), 0);
        QVERIFY(countPixels(image, edges(40, 0, 79, 303), PhaseColor::color(band)) > 0);
    }
}

void TstMonitorTrendChart::anEmptyListOfLabelsKeepsTheOldOnes()
{
    MonitorTrendChart chart;
    QTest::ignoreMessage(QtDebugMsg, "a wronge size of scales string list");
    chart.setFullScale({});
    QCOMPARE(chart.fullScale().size(), 7);
}

QTEST_MAIN(TstMonitorTrendChart)
#include "tst_monitortrendchart.moc"
