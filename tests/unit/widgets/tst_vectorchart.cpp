#include "painted.h"

#include "settings/phasecolor.h"
#include "widgets/charts/vectorchart.h"

#include <QTest>

#include <cmath>

// A chart of 323 by 323 pixels: radius (323 - 23) / 2 = 150, centre at (162, 162), rings at 150, 100 and 50.
constexpr int kRadius = 150;
constexpr int kCentre = 162;
static const QColor kGrey(Qt::darkGray);

class TstVectorChart : public QObject
{
    Q_OBJECT

private slots:
    void init() { PhaseColor::setPhaseColors(QStringLiteral("01231")); }
    void keepsSixAngles();
    void ringsAndSpokesStandAtThirds();
    void theInnerRingIsFree();
    void vectorsWithTheFlagOffAreNotDrawn();
    void voltageEndsAtTheOuterRingCounterClockwise_data();
    void voltageEndsAtTheOuterRingCounterClockwise();
    void currentsAreShorter();
    void phasesHaveTheirColours();
    void wildAnglesEndAtOnce();
    void tooSmallAWidgetPaintsNothing();
};

static void prepare(VectorChart &chart)
{
    chart.resize(323, 323);
}

/// The point at `length` in the direction of an angle in degrees, counter-clockwise from the right.
static QPoint at(double angle, double length)
{
    const double radians = angle * M_PI / 180.0;
    return { int(std::lround(kCentre + length * std::cos(radians))),
             int(std::lround(kCentre - length * std::sin(radians))) };
}

/// Whether a pixel near the point has about the colour.
static bool near(const QImage &image, const QPoint &point, const QColor &color)
{
    for (int y = point.y() - 1; y <= point.y() + 1; ++y) {
        for (int x = point.x() - 1; x <= point.x() + 1; ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (qAbs(pixel.hue() - color.hue()) < 5 && pixel.value() > 100 && pixel.saturation() > 150)
                return true;
        }
    }
    return false;
}

void TstVectorChart::keepsSixAngles()
{
    VectorChart chart;
    chart.setAngleU1(1, true);
    chart.setAngleU2(2, false);
    chart.setAngleU3(3, true);
    chart.setAngleA1(4, false);
    chart.setAngleA2(5, true);
    chart.setAngleA3(6, false);
    const double angles[]
        = { chart.angleU1(), chart.angleU2(), chart.angleU3(), chart.angleA1(), chart.angleA2(), chart.angleA3() };
    for (int i = 0; i < 6; ++i)
        QCOMPARE(angles[i], i + 1.0);
}

void TstVectorChart::ringsAndSpokesStandAtThirds()
{
    VectorChart chart;
    prepare(chart);
    const QImage image = painted(chart);
    for (const int ring : { 50, 100, 150 }) {
        int dots = 0;
        for (int angle = 0; angle < 360; angle += 2) {
            const QPoint point = at(angle + 1, ring);
            dots += countPixels(image, QRect(point - QPoint(1, 1), QSize(3, 3)), kGrey) > 0;
        }
        QVERIFY2(dots > 120, qPrintable(QString::number(ring)));
    }
    for (int spoke = 0; spoke < 12; ++spoke) {
        int dots = 0;
        for (int length = 60; length < 145; ++length) {
            const QPoint point = at(30 * spoke, length);
            dots += countPixels(image, QRect(point - QPoint(1, 1), QSize(3, 3)), kGrey) > 0;
        }
        QVERIFY2(dots > 50, qPrintable(QString::number(spoke)));
    }
}

void TstVectorChart::theInnerRingIsFree()
{
    VectorChart chart;
    prepare(chart);
    QCOMPARE(countPixels(painted(chart), edges(kCentre - 30, kCentre - 30, kCentre + 30, kCentre + 30), Qt::black),
             61 * 61);
}

void TstVectorChart::vectorsWithTheFlagOffAreNotDrawn()
{
    VectorChart chart;
    prepare(chart);
    const QImage bare = painted(chart);
    chart.setAngleU1(10, false);
    chart.setAngleA3(200, false);
    QCOMPARE(painted(chart), bare);
    chart.setAngleU1(10, true);
    QVERIFY(painted(chart) != bare);
}

void TstVectorChart::voltageEndsAtTheOuterRingCounterClockwise_data()
{
    QTest::addColumn<double>("angle");
    for (const double angle : { 0.0, 45.0, 90.0, 120.0, -120.0, 240.0, 359.9, 720.0 + 10.0 })
        QTest::addRow("%g degrees", angle) << angle;
}

void TstVectorChart::voltageEndsAtTheOuterRingCounterClockwise()
{
    QFETCH(double, angle);
    VectorChart chart;
    prepare(chart);
    chart.setAngleU1(angle, true);
    const QImage image = painted(chart);
    const QColor yellow = PhaseColor::colorA();
    for (const double length : { 20.0, 75.0, 130.0, kRadius - 5.0 }) // shaft, and head from 141 to 149
        QVERIFY2(near(image, at(angle, length), yellow), qPrintable(QString::number(length)));
    QVERIFY(!near(image, at(angle, kRadius + 6.0), yellow));
    QVERIFY(!near(image, at(angle + 180.0, 60.0), yellow));
}

void TstVectorChart::currentsAreShorter()
{
    VectorChart chart;
    prepare(chart);
    chart.setAngleA2(75.0, true);
    const QImage image = painted(chart);
    const QColor green = PhaseColor::colorB();
    QVERIFY(near(image, at(75.0, 60.0), green));
    QVERIFY(near(image, at(75.0, 95.0), green)); // head ends at the ring of 100
    QVERIFY(!near(image, at(75.0, 106.0), green));
}

void TstVectorChart::phasesHaveTheirColours()
{
    VectorChart chart;
    prepare(chart);
    chart.setAngleU1(10.0, true);
    chart.setAngleU2(-110.0, true);
    chart.setAngleU3(130.0, true);
    const QImage image = painted(chart);
    QVERIFY(near(image, at(10.0, 120.0), PhaseColor::colorA()));
    QVERIFY(near(image, at(-110.0, 120.0), PhaseColor::colorB()));
    QVERIFY(near(image, at(130.0, 120.0), PhaseColor::colorC()));
}

void TstVectorChart::wildAnglesEndAtOnce()
{
    VectorChart chart;
    prepare(chart);
    const QImage bare = painted(chart);
    for (const double angle : { double(INFINITY), -double(INFINITY), double(NAN) }) {
        chart.setAngleU1(angle, true);
        QCOMPARE(painted(chart), bare);
    }
    chart.setAngleU1(1e30, true);
    QVERIFY(painted(chart) != bare);
}

void TstVectorChart::tooSmallAWidgetPaintsNothing()
{
    VectorChart chart;
    chart.setAngleU1(0, true);
    for (const int side : { 1, 20, 25 }) {
        chart.resize(side, side);
        QCOMPARE(countPixels(painted(chart), chart.rect(), Qt::black), side * side);
    }
}

QTEST_MAIN(TstVectorChart)
#include "tst_vectorchart.moc"
