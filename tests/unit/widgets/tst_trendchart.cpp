#include "painted.h"

#include "settings/phasecolor.h"
#include "widgets/charts/dstrendchart.h"
#include "widgets/charts/inrushtrendchart.h"
#include "widgets/charts/viftrendchart.h"

#include <QTest>

// A chart of 609 by 317 pixels: 600 points across, bands of 76 pixels from 0, 76, 152 and 228.
constexpr int kWidth = 609;
constexpr int kHeight = 317;
static const int kBandTops[] = { 0, 76, 152, 228 };
static const QColor kGrey(Qt::darkGray);

static QVector<qint16> flat(int points, qint16 offset)
{
    return QVector<qint16>(points, offset);
}

class TstTrendChart : public QObject
{
    Q_OBJECT

private slots:
    void init() { PhaseColor::setPhaseColors(QStringLiteral("01231")); }
    void frameAndGridStandAtTheirPixels();
    void axisLabelsAndTicksShareTheWidth();
    void anEmptyListOfLabelsKeepsTheOldOnes();
    void curvesOfAllFourBandsStandInTheirBands();
    void aShortSeriesLiesAgainstTheRightEdge();
    void dataWithOnePointDrawsAFlagAndNoLine();
    void aLongSeriesIsNotCutByTheChart();
    void singlePhaseFlagsLeaveBandsTwoAndThreeEmptyWithTheirGridLines();
    void singleValuesAreWhiteInTheFirstAndTheFourthBand_data();
    void singleValuesAreWhiteInTheFirstAndTheFourthBand();
    void totalHasTheColourOfTheNeutralInTheFourthBand();
    void limitLabelsOfTheFourthBandAreTheSecondOfThePair();
    void aChartWithoutDataDrawsFrameAndLabelsOnly();
    void nullOrEmptyDataIsIgnoredByTheLiveChart();
    void anUnknownFlagDrawsNothing();
    void aWidgetWithoutSizePaintsNothingAndSurvives();
    void dipsCursorIsHeldToTheChart_data();
    void dipsCursorIsHeldToTheChart();
    void inrushCursorCountsFromTheRightEdge_data();
    void inrushCursorCountsFromTheRightEdge();
    void cursorIsAWhiteLineWithItsGrip();
    void cursorMarkStandsOnTheEntryUnderTheCursor();
    void cursorOutsideTheSeriesHasNoMark();
    void tagsStandAtTheChartsOwnCurvesWhateverAnotherChartShows();
    void emptySeriesEmptyTheDipsChart();
};

template <typename Chart> static void prepare(Chart &chart, int flags)
{
    chart.resize(kWidth, kHeight);
    chart.setFlags(flags);
}

void TstTrendChart::frameAndGridStandAtTheirPixels()
{
    TrendChart chart;
    prepare(chart, 0);
    const QImage image = painted(chart);
    // Dots, one pixel in three: a line of 600 has 200 of them.
    for (const int y : { 0, 76, 152, 228, 303 })
        QVERIFY2(countPixels(image, edges(1, y, 599, y), kGrey) >= 190, qPrintable(QString::number(y)));
    for (const int x : { 0, 600 })
        QVERIFY2(countPixels(image, edges(x, 1, x, 302), kGrey) >= 90, qPrintable(QString::number(x)));
    QCOMPARE(countPixels(image, edges(601, 0, 608, 302), kGrey), 0);
    QCOMPARE(countPixels(image, edges(130, 1, 599, 75), kGrey), 0);
}

void TstTrendChart::axisLabelsAndTicksShareTheWidth()
{
    TrendChart chart;
    prepare(chart, 0);
    QCOMPARE(chart.fullScale(), QStringList({ "10m", "8m", "6m", "4m", "2m" }));
    const QImage image = painted(chart);
    for (const int x : { 0, 120, 240, 360, 480 }) { // i * 600 / 5
        QCOMPARE(countPixels(image, edges(x, 300, x, 303), kGrey), 4);
        QVERIFY(countPixels(image, edges(x, 305, x + 30, 316), Qt::black) < 31 * 12);
    }
    QCOMPARE(countPixels(image, edges(60, 304, 115, 316), Qt::black), 56 * 13);
}

void TstTrendChart::anEmptyListOfLabelsKeepsTheOldOnes()
{
    TrendChart chart;
    chart.setFullScale({ "1m", "48s" });
    QTest::ignoreMessage(QtDebugMsg, "a wronge size of scales string list");
    chart.setFullScale({});
    QCOMPARE(chart.fullScale(), QStringList({ "1m", "48s" }));
}

void TstTrendChart::curvesOfAllFourBandsStandInTheirBands()
{
    VifTrendChart chart;
    prepare(chart, 15);
    const QVector<qint16> series[] = { flat(600, 10), flat(600, 20), flat(600, 30), flat(600, 40) };
    const __trend_chart_data data { { &series[0], &series[1], &series[2], &series[3] } };
    chart.showVifData(&data);
    const QImage image = painted(chart);
    for (int band = 0; band < 4; ++band) {
        const QColor color = PhaseColor::color(band);
        const int y = kBandTops[band] + 1 + 10 * (band + 1);
        QCOMPARE(countPixels(image, edges(1, y, 599, y), color), 599);
        QCOMPARE(countPixels(image, edges(100, kBandTops[band] + 1, 599, y - 6), color), 0);
        // The tag at the right end, from x = 600: its body spans x + 4 to x + 9 and y - 5 to y + 4.
        QVERIFY(countPixels(image, edges(604, y - 5, 608, y + 4), color) > 4);
        QVERIFY(countPixels(image, edges(601, y - 5, 608, y + 4), Qt::black) > 5); // the letter and the tag's corners
    }
}

void TstTrendChart::aShortSeriesLiesAgainstTheRightEdge()
{
    VifTrendChart chart;
    prepare(chart, TrendL1);
    const QVector<qint16> series = flat(100, 50);
    const __trend_chart_data data { { &series, nullptr, nullptr, nullptr } };
    chart.showVifData(&data);
    const QImage image = painted(chart);
    const QColor color = PhaseColor::colorA();
    // x = 600 - 100 for the first point, one pixel further for the frame.
    QCOMPARE(countPixels(image, edges(100, 51, 500, 51), color), 0);
    QCOMPARE(countPixels(image, edges(501, 51, 599, 51), color), 99);
}

void TstTrendChart::dataWithOnePointDrawsAFlagAndNoLine()
{
    VifTrendChart chart;
    prepare(chart, TrendL1);
    const QVector<qint16> series = flat(1, 40);
    const __trend_chart_data data { { &series, nullptr, nullptr, nullptr } };
    chart.showVifData(&data);
    const QImage image = painted(chart);
    QCOMPARE(countPixels(image, edges(100, 1, 599, 75), PhaseColor::colorA()), 0);
    QVERIFY(countPixels(image, edges(601, 36, 608, 45), PhaseColor::colorA()) > 10);
}

void TstTrendChart::aLongSeriesIsNotCutByTheChart()
{
    VifTrendChart chart;
    prepare(chart, TrendL1);
    QVector<qint16> series = flat(700, 60);
    series.last() = 20; // the newest still stands at the right edge
    const __trend_chart_data data { { &series, nullptr, nullptr, nullptr } };
    chart.showVifData(&data);
    const QImage image = painted(chart);
    QCOMPARE(countPixels(image, edges(1, 61, 598, 61), PhaseColor::colorA()), 598);
    QVERIFY(countPixels(image, edges(604, 16, 608, 25), PhaseColor::colorA()) > 10);
}

void TstTrendChart::singlePhaseFlagsLeaveBandsTwoAndThreeEmptyWithTheirGridLines()
{
    VifTrendChart chart;
    prepare(chart, 9);
    const QVector<qint16> series = flat(600, 30);
    const __trend_chart_data data { { &series, &series, &series, &series } };
    chart.showVifData(&data);
    const QImage image = painted(chart);
    QCOMPARE(countPixels(image, edges(1, 31, 599, 31), PhaseColor::colorA()), 599);
    QCOMPARE(countPixels(image, edges(1, 228 + 31, 599, 228 + 31), PhaseColor::colorN()), 599);
    QCOMPARE(countPixels(image, edges(1, 77, 599, 151), Qt::black), 599 * 75);
    QCOMPARE(countPixels(image, edges(1, 153, 599, 227), Qt::black), 599 * 75);
    for (const int y : { 76, 152, 228 })
        QVERIFY(countPixels(image, edges(1, y, 599, y), kGrey) >= 190);
}

void TstTrendChart::singleValuesAreWhiteInTheFirstAndTheFourthBand_data()
{
    QTest::addColumn<int>("flag");
    QTest::addColumn<int>("y");
    QTest::newRow("frequency: first band") << int(TrendSingle) << 31;
    QTest::newRow("total: fourth band") << int(TrendSingleFourth) << 228 + 31;
}

void TstTrendChart::singleValuesAreWhiteInTheFirstAndTheFourthBand()
{
    QFETCH(int, flag);
    QFETCH(int, y);
    VifTrendChart chart;
    prepare(chart, flag);
    const QVector<qint16> series = flat(600, 30);
    const __trend_chart_data data { { &series, nullptr, nullptr, &series } };
    chart.showVifData(&data);
    const QImage image = painted(chart);
    QCOMPARE(countPixels(image, edges(1, y, 599, y), Qt::white), 599);
    QVERIFY(countPixels(image, edges(604, y - 5, 608, y + 4), Qt::white) > 10);
}

void TstTrendChart::totalHasTheColourOfTheNeutralInTheFourthBand()
{
    VifTrendChart chart;
    prepare(chart, 7 | TrendTotal);
    const QVector<qint16> series = flat(600, 30);
    const __trend_chart_data data { { &series, &series, &series, &series } };
    chart.showVifData(&data);
    QCOMPARE(countPixels(painted(chart), edges(1, 259, 599, 259), PhaseColor::colorN()), 599);
}

/// Whether two pictures differ inside an area.
static bool differ(const QImage &one, const QImage &other, const QRect &area)
{
    return one.copy(area) != other.copy(area);
}

void TstTrendChart::limitLabelsOfTheFourthBandAreTheSecondOfThePair()
{
    VifTrendChart chart;
    prepare(chart, 15);
    const QString upper[] = { "250", "20" };
    const QString lower[] = { "220", "5" };
    chart.setLimits(upper, lower);
    const QImage before = painted(chart);
    const QRect upperPlaces[]
        = { edges(1, 1, 60, 13), edges(1, 77, 60, 89), edges(1, 153, 60, 165), edges(1, 229, 60, 241) };
    const QRect lowerPlaces[]
        = { edges(1, 62, 60, 75), edges(1, 138, 60, 151), edges(1, 214, 60, 227), edges(1, 289, 60, 302) };

    const QString upperFourth[] = { "250", "21" };
    chart.setLimits(upperFourth, lower);
    const QImage fourth = painted(chart);
    for (int band = 0; band < 4; ++band) {
        QCOMPARE(differ(before, fourth, upperPlaces[band]), band == 3);
        QVERIFY(!differ(before, fourth, lowerPlaces[band]));
    }

    const QString lowerPhases[] = { "110", "5" };
    chart.setLimits(upper, lowerPhases);
    const QImage phases = painted(chart);
    for (int band = 0; band < 4; ++band)
        QCOMPARE(differ(before, phases, lowerPlaces[band]), band < 3);
}

void TstTrendChart::aChartWithoutDataDrawsFrameAndLabelsOnly()
{
    VifTrendChart chart;
    prepare(chart, 15);
    const QImage image = painted(chart);
    for (int band = 0; band < 4; ++band) {
        // Nothing but the two limit labels at the left, in the curve's colour.
        QVERIFY(countPixels(image, edges(0, kBandTops[band], 30, kBandTops[band] + 75), PhaseColor::color(band)) > 0);
        QCOMPARE(countPixels(image, edges(60, kBandTops[band] + 1, 608, kBandTops[band] + 74), PhaseColor::color(band)),
                 0);
    }
}

void TstTrendChart::nullOrEmptyDataIsIgnoredByTheLiveChart()
{
    VifTrendChart chart;
    prepare(chart, TrendL1);
    const QVector<qint16> series = flat(600, 30);
    const QVector<qint16> empty;
    const __trend_chart_data data { { &series, nullptr, nullptr, nullptr } };
    const __trend_chart_data emptyData { { &empty, &series, &series, &series } };
    const __trend_chart_data noSeries;
    chart.showVifData(&data);
    const QImage shown = painted(chart);
    chart.showVifData(nullptr);
    chart.showVifData(&emptyData);
    chart.showVifData(&noSeries);
    QCOMPARE(painted(chart), shown);
}

void TstTrendChart::anUnknownFlagDrawsNothing()
{
    VifTrendChart chart;
    prepare(chart, 0);
    const QImage nothing = painted(chart);
    const QVector<qint16> series = flat(600, 30);
    const __trend_chart_data data { { &series, &series, &series, &series } };
    chart.showVifData(&data);
    chart.setFlags(128 | 256);
    QCOMPARE(painted(chart), nothing);
}

void TstTrendChart::aWidgetWithoutSizePaintsNothingAndSurvives()
{
    for (const QSize size : { QSize(1, 1), QSize(9, 13), QSize(5, 2) }) {
        VifTrendChart chart;
        prepare(chart, 127);
        const QVector<qint16> series = flat(600, 30);
        const __trend_chart_data data { { &series, &series, &series, &series } };
        chart.showVifData(&data);
        chart.resize(size);
        QCOMPARE(painted(chart).size(), size);
    }
}

void TstTrendChart::dipsCursorIsHeldToTheChart_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("pixel");
    QTest::newRow("0 goes to 1") << 0 << 1;
    QTest::newRow("far left") << -100000 << 1;
    QTest::newRow("1 stays") << 1 << 1;
    QTest::newRow("600 stays") << 600 << 600;
    QTest::newRow("601 goes to 600") << 601 << 600;
    QTest::newRow("far right") << INT_MAX << 600;
}

void TstTrendChart::dipsCursorIsHeldToTheChart()
{
    QFETCH(int, position);
    DSTrendChart chart;
    chart.setCursorPosition(position);
    QTEST(chart.cursorPosition(), "pixel");
}

void TstTrendChart::inrushCursorCountsFromTheRightEdge_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("pixel");
    QTest::newRow("0: right end of the widget") << 0 << 608;
    QTest::newRow("negative: right end of the widget") << -5 << 608;
    QTest::newRow("newest point") << 1 << 599;
    QTest::newRow("in the middle") << 300 << 300;
    QTest::newRow("last below the width") << 608 << -8;
    QTest::newRow("the width itself") << 609 << 1;
    QTest::newRow("beyond") << INT_MAX << 1;
}

void TstTrendChart::inrushCursorCountsFromTheRightEdge()
{
    QFETCH(int, position);
    InrushTrendChart chart;
    prepare(chart, 7);
    chart.setCursorPosition(position);
    QTEST(chart.cursorPosition(), "pixel");
}

void TstTrendChart::cursorIsAWhiteLineWithItsGrip()
{
    DSTrendChart chart;
    prepare(chart, 15);
    chart.setCursorPosition(300);
    QCOMPARE(countPixels(painted(chart), edges(290, 0, 310, 316), Qt::white), 0);
    chart.setCursorOn(true);
    const QImage image = painted(chart);
    QCOMPARE(countPixels(image, edges(300, 1, 300, 303), Qt::white), 303);
    for (const int x : { 298, 302 })
        QCOMPARE(countPixels(image, edges(x, 0, x, 20), Qt::white), 11); // y = 2 to 12
    for (const int x : { 297, 296, 303, 304 }) {
        QCOMPARE(countPixels(image, edges(x, 0, x, 20), Qt::white), 1);
        QCOMPARE(image.pixelColor(x, 7), QColor(Qt::white));
    }
    for (const int x : { 295, 299, 301, 305 })
        QCOMPARE(countPixels(image, edges(x, 0, x, 20), Qt::white), 0);
}

void TstTrendChart::cursorMarkStandsOnTheEntryUnderTheCursor()
{
    QCOMPARE(DSTrendChart::getCursorPosY(51), 100);
    DSTrendChart chart;
    prepare(chart, 15);
    chart.setCursorOn(true);
    chart.setCursorFlags(TrendL2);
    QVector<qint16> series = flat(600, 0);
    series[299] = 51; // under the cursor at 300: 151 - 51, lifted by 4
    const __trend_chart_data data { { nullptr, &series, nullptr, nullptr } };
    chart.showDSData(&data);
    chart.setCursorPosition(300);
    const QImage image = painted(chart);
    const QColor color = PhaseColor::colorB();
    QVERIFY(countPixels(image, edges(297, 96, 303, 96), color) >= 6);
    QVERIFY(countPixels(image, edges(299, 99, 301, 99), color) >= 1);
    // Beside the curve's own spike at the cursor
    QCOMPARE(countPixels(image, edges(290, 101, 297, 120), color), 0);
    QCOMPARE(countPixels(image, edges(290, 80, 297, 94), color), 0);
}

void TstTrendChart::cursorOutsideTheSeriesHasNoMark()
{
    DSTrendChart chart;
    prepare(chart, 0);
    chart.setCursorOn(true);
    chart.setCursorFlags(15);
    const QVector<qint16> series = flat(10, 51);
    const __trend_chart_data data { { &series, &series, &series, &series } };
    chart.showDSData(&data);
    for (const int position : { 1, 300, 590 }) { // the ten points stand under the cursors 591 to 600
        chart.setCursorPosition(position);
        QCOMPARE(countPixels(painted(chart), edges(0, 90, 608, 105), PhaseColor::colorA()), 0);
    }
    chart.setCursorPosition(591);
    QVERIFY(countPixels(painted(chart), edges(580, 90, 600, 105), PhaseColor::colorN()) > 0);
}

void TstTrendChart::tagsStandAtTheChartsOwnCurvesWhateverAnotherChartShows()
{
    DSTrendChart dips;
    prepare(dips, TrendL1);
    const QVector<qint16> high = flat(600, 10);
    const __trend_chart_data highData { { &high, nullptr, nullptr, nullptr } };
    dips.showDSData(&highData);
    QVERIFY(countPixels(painted(dips), edges(604, 6, 608, 15), PhaseColor::colorA()) > 10);

    InrushTrendChart inrush;
    prepare(inrush, TrendL1);
    const QVector<qint16> low = flat(600, 60);
    const __trend_chart_data lowData { { &low, nullptr, nullptr, nullptr } };
    inrush.showVifData(&lowData);
    QVERIFY(countPixels(painted(inrush), edges(604, 56, 608, 65), PhaseColor::colorA()) > 10);
    // Both pages refresh while only one is seen, and on hold none does when it comes back.
    QVERIFY(countPixels(painted(dips), edges(604, 6, 608, 15), PhaseColor::colorA()) > 10);
    QCOMPARE(countPixels(painted(dips), edges(604, 56, 608, 65), PhaseColor::colorA()), 0);
}

void TstTrendChart::emptySeriesEmptyTheDipsChart()
{
    DSTrendChart chart;
    prepare(chart, TrendL1);
    const QVector<qint16> series = flat(600, 30);
    const __trend_chart_data data { { &series, nullptr, nullptr, nullptr } };
    chart.showDSData(&data);
    QCOMPARE(countPixels(painted(chart), edges(1, 31, 599, 31), PhaseColor::colorA()), 599);
    chart.showDSData(nullptr);
    QCOMPARE(countPixels(painted(chart), edges(1, 31, 599, 31), PhaseColor::colorA()), 599);
    const __trend_chart_data none;
    chart.showDSData(&none);
    QCOMPARE(countPixels(painted(chart), edges(60, 1, 608, 74), PhaseColor::colorA()), 0);
}

QTEST_MAIN(TstTrendChart)
#include "tst_trendchart.moc"
