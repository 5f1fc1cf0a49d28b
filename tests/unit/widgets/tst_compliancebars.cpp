#include "painted.h"

#include "widgets/charts/monitorharmhisto.h"
#include "widgets/charts/monitorhistogram.h"

#include <QTest>

#include <cmath>

// 399 pixels in height: (399 + 1) * 6 / 8 = 300 pixels are 100 percent of the limit, 350 are 100 percent of the time.
constexpr int kHeight = 399;
static const QColor kRed(Qt::red);
static const QColor kGreen(Qt::green);

class TstComplianceBars : public QObject
{
    Q_OBJECT

private slots:
    void histogramCursorStartsOnTheFourthBar();
    void histogramPositions();
    void harmonicPositions();
    void cursorIndexIsHeldToTheTable();
    void aValueAbove100IsRed();
    void exactly100IsGreen();
    void outerAndInnerPartHaveTheirScales();
    void partsAreJudgedOnTheirOwn();
    void flagsChooseTheBars();
    void valuesThatAreNoNumberHaveNoBar();
    void linesStandAtTheEighths();
    void cursorHasTwoTips();
};

static QVector<ComplianceBar> none()
{
    return QVector<ComplianceBar>(25);
}

static void prepare(QWidget &histogram)
{
    histogram.resize(640, kHeight);
}

void TstComplianceBars::histogramCursorStartsOnTheFourthBar()
{
    MonitorHistogram histogram;
    QCOMPARE(histogram.cursorIndex(), 3);
    QCOMPARE(histogram.cursorX(), 150);
    MonitorHarmHisto harmonics;
    QCOMPARE(harmonics.cursorIndex(), 0);
    QCOMPARE(harmonics.cursorX(), 30);
}

void TstComplianceBars::histogramPositions()
{
    const int positions[] = { 30, 60, 90, 150, 180, 210, 280, 310, 340, 395, 425, 455, 485 };
    MonitorHistogram histogram;
    for (int i = 0; i < 13; ++i) {
        histogram.setCursorPosition(i);
        QCOMPARE(histogram.cursorX(), positions[i]);
    }
}

void TstComplianceBars::harmonicPositions()
{
    MonitorHarmHisto harmonics;
    for (int i = 0; i < 25; ++i) {
        harmonics.setCursorIndex(i);
        QCOMPARE(harmonics.cursorX(), i == 0 ? 30 : 74 + 22 * (i - 1));
    }
    QCOMPARE(harmonics.cursorX(), 580);
}

void TstComplianceBars::cursorIndexIsHeldToTheTable()
{
    MonitorHistogram histogram;
    histogram.setCursorPosition(-1);
    QCOMPARE(histogram.cursorIndex(), 0);
    histogram.setCursorPosition(13);
    QCOMPARE(histogram.cursorIndex(), 12);
    MonitorHarmHisto harmonics;
    harmonics.setCursorIndex(INT_MAX);
    QCOMPARE(harmonics.cursorIndex(), 24);
}

void TstComplianceBars::aValueAbove100IsRed()
{
    MonitorHistogram histogram;
    prepare(histogram);
    auto bars = none();
    bars[0].limit = 110.0f; // 330 pixels
    histogram.showHistogram(bars.constData());
    const QImage image = painted(histogram);
    QCOMPARE(countPixels(image, edges(27, 69, 33, 398), kRed), 7 * 330);
    QCOMPARE(countPixels(image, edges(20, 0, 40, 398), kRed), 7 * 330);
    QCOMPARE(countPixels(image, edges(20, 0, 40, 398), kGreen), 0);
}

void TstComplianceBars::exactly100IsGreen()
{
    MonitorHarmHisto harmonics;
    prepare(harmonics);
    auto bars = none();
    bars[5].limit = 100.0f; // at 74 + 22 * 4 = 162
    harmonics.showHarmHistogram(bars.constData());
    const QImage image = painted(harmonics);
    QCOMPARE(countPixels(image, edges(159, 99, 165, 398), kGreen), 7 * 300);
    QCOMPARE(countPixels(image, harmonics.rect(), kRed), 0);
}

void TstComplianceBars::outerAndInnerPartHaveTheirScales()
{
    MonitorHistogram histogram;
    prepare(histogram);
    auto bars = none();
    bars[12].limit = 50.0f; // 150 pixels, 7 wide
    bars[12].allowed = 80.0f; // 280 pixels, 3 wide
    histogram.showHistogram(bars.constData());
    const QImage image = painted(histogram);
    QCOMPARE(countPixels(image, edges(482, 249, 488, 398), kGreen), 7 * 150);
    QCOMPARE(countPixels(image, edges(482, 0, 488, 248), kGreen), 3 * 130);
    QCOMPARE(countPixels(image, edges(484, 119, 486, 398), kGreen), 3 * 280);
}

void TstComplianceBars::partsAreJudgedOnTheirOwn()
{
    MonitorHistogram histogram;
    prepare(histogram);
    auto bars = none();
    bars[0] = { 50.0f, 104.0f }; // inside the limit, too long outside: 364 pixels
    histogram.showHistogram(bars.constData());
    const QImage image = painted(histogram);
    QCOMPARE(countPixels(image, edges(29, 0, 31, 398), kRed), 3 * 364);
    QCOMPARE(countPixels(image, edges(27, 0, 28, 398), kGreen), 2 * 150);
}

void TstComplianceBars::flagsChooseTheBars()
{
    MonitorHistogram histogram;
    prepare(histogram);
    auto bars = none();
    for (ComplianceBar &bar : bars)
        bar.limit = 20.0f; // 60 pixels
    histogram.showHistogram(bars.constData());
    histogram.setCursorPosition(12);
    QCOMPARE(countPixels(painted(histogram), edges(0, 200, 470, 398), kGreen), 12 * 7 * 60);
    histogram.setFlags(0x5); // the first and the third
    const QImage image = painted(histogram);
    QCOMPARE(countPixels(image, edges(0, 200, 639, 398), kGreen), 2 * 7 * 60);
    QCOMPARE(countPixels(image, edges(57, 200, 63, 398), kGreen), 0);
}

void TstComplianceBars::valuesThatAreNoNumberHaveNoBar()
{
    MonitorHistogram histogram;
    prepare(histogram);
    auto bars = none();
    bars[0] = { NAN, -5.0f };
    bars[1] = { INFINITY, 0.0f };
    histogram.showHistogram(bars.constData());
    histogram.showHistogram(nullptr);
    const QImage image = painted(histogram);
    QCOMPARE(countPixels(image, edges(20, 0, 40, 398), kGreen) + countPixels(image, edges(20, 0, 40, 398), kRed), 0);
    QCOMPARE(countPixels(image, edges(57, 0, 63, 398), kRed), 7 * 399);
}

void TstComplianceBars::linesStandAtTheEighths()
{
    MonitorHistogram histogram;
    prepare(histogram);
    const QImage image = painted(histogram);
    for (const int y : { 49, 99, 398 }) // H / 8, H * 2 / 8 and the last row
        QVERIFY(countPixels(image, edges(0, y, 639, y), QColor(Qt::darkGray)) >= 200);
}

void TstComplianceBars::cursorHasTwoTips()
{
    MonitorHistogram histogram;
    prepare(histogram);
    const QImage image = painted(histogram);
    QCOMPARE(countPixels(image, edges(150, 1, 150, 398), Qt::white), 398);
    QVERIFY(countPixels(image, edges(140, 3, 145, 11), Qt::white) > 10);
    QVERIFY(countPixels(image, edges(155, 3, 161, 11), kGreen) > 10);
    QCOMPARE(countPixels(image, edges(140, 13, 149, 97), Qt::white), 0);
}

QTEST_MAIN(TstComplianceBars)
#include "tst_compliancebars.moc"
