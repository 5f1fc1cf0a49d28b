#include "painted.h"

#include "settings/phasecolor.h"
#include "widgets/charts/scopewidget.h"

#include <QPainter>
#include <QTest>

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>

static const QColor kGrey(Qt::darkGray);

class TstScopeWidget : public QObject
{
    Q_OBJECT

private slots:
    void init() { PhaseColor::setPhaseColors(QStringLiteral("01231")); }
    void startsWithZeroedDataAllCurvesAndTheCursorAt20();
    void zoomTableHasThirteenSteps();
    void zoomStopsAtBothEndsButRebuilds();
    void scaleIs146PixelsForTheFullScaleTimesTheFactor();
    void nominalZoomFollowsTheCalibration();
    void fullScaleZoomTakesTheGivenValues();
    void defaultZoomTakesTheHighestShownSample_data();
    void defaultZoomTakesTheHighestShownSample();
    void cursorIndexIsClampedToTheWidth_data();
    void cursorIndexIsClampedToTheWidth();
    void cursorRowsAreTruncated();
    void gridStandsAtTheirRows();
    void bottomAxisHasTicksEvery100Samples();
    void curvesHaveTheirColoursAndOrder();
    void scaleLabelsHalveWhenTheZoomDoubles();
    void scaleLabelsAreTheNominalValueWithoutItsDecimals_data();
    void scaleLabelsAreTheNominalValueWithoutItsDecimals();
    void newestSamplesAreDrawn();
    void scaleLabelsShowOnlyForTheirCurves();
    void cursorMarksEachCurveInItsPhaseColour();
    void switchedOffCursorDrawsNothing();
    void aPrivateCopyIsShown();
    void degenerateScalesPaintWithoutHarm();
};

static std::unique_ptr<__scope_data_ui> emptyData()
{
    auto data = std::make_unique<__scope_data_ui>();
    std::memset(data.get(), 0, sizeof *data);
    return data;
}

static void size(ScopeWidget &scope)
{
    scope.resize(601, 318);
}

void TstScopeWidget::startsWithZeroedDataAllCurvesAndTheCursorAt20()
{
    ScopeWidget scope;
    QCOMPARE(int(scope.flags()), 255);
    QCOMPARE(scope.cursorPosition(), 20);
    QCOMPARE(scope.getZoomIndex(), 6);
    size(scope);
    scope.setFlags(1);
    scope.setCursorOn(false);
    // 151 - (0 + 0.5) is the row 150
    QCOMPARE(countPixels(painted(scope), edges(2, 150, 598, 150), PhaseColor::colorUA())
                 + countPixels(painted(scope), edges(2, 151, 598, 151), PhaseColor::colorUA()),
             597);
}

void TstScopeWidget::zoomTableHasThirteenSteps()
{
    const double factors[] = { 0.03125, 0.0625, 0.1, 0.125, 0.25, 0.5, 1, 2, 4, 8, 10, 16, 32 };
    const char *texts[]
        = { "1/32X", "1/16X", "1/10X", "1/8X", "1/4X", "1/2X", "1X", "2X", "4X", "8X", "10X", "16X", "32X" };
    ScopeWidget scope;
    for (int i = 0; i < 6; ++i)
        scope.setZoomPrev();
    for (int i = 0; i < 13; ++i) {
        QCOMPARE(scope.getZoomIndex(), i);
        QCOMPARE(scope.zoomFactor(), factors[i]);
        QCOMPARE(ScopeWidget::zoomText(i), texts[i]);
        scope.setZoomNext();
    }
}

void TstScopeWidget::zoomStopsAtBothEndsButRebuilds()
{
    ScopeWidget scope;
    scope.setDefaultZoom(1000.0, 1000.0);
    for (int i = 0; i < 20; ++i)
        scope.setZoomNext();
    QCOMPARE(scope.getZoomIndex(), 12);
    QCOMPARE(scope.getScaleU(), 4.672f); // 146 / 1000 * 32
    for (int i = 0; i < 20; ++i)
        scope.setZoomPrev();
    QCOMPARE(scope.getZoomIndex(), 0);
    QCOMPARE(scope.getScaleU(), 0.0045625f); // 146 / 1000 / 32
    scope.setZoomPrev();
    QCOMPARE(scope.getZoomIndex(), 0);
}

void TstScopeWidget::scaleIs146PixelsForTheFullScaleTimesTheFactor()
{
    ScopeWidget scope;
    scope.setDefaultZoom(14600.0, 7300.0);
    QCOMPARE(scope.getScaleU(), 0.01f);
    QCOMPARE(scope.getScaleI(), 0.02f);
    scope.setZoomNext(); // 2X
    QCOMPARE(scope.getScaleU(), 0.02f);
    QCOMPARE(scope.getScaleI(), 0.04f);
}

void TstScopeWidget::nominalZoomFollowsTheCalibration()
{
    ScopeWidget scope;
    scope.setZoomNext();
    scope.setDefaultZoom(230.0f, 79.25f, 1000.0f, 214.45f);
    QCOMPARE(scope.getZoomIndex(), 6);
    QVERIFY(qAbs(scope.fullU() - 13447.079) < 0.01); // 230 * 4633.3952 / 79.25
    QVERIFY(qAbs(scope.fullI() - 21605.947) < 0.01); // 1000 * 4633.3952 / 214.45
    QVERIFY(qAbs(scope.getScaleU() - 146.0 / 13447.079) < 1e-7);
}

void TstScopeWidget::fullScaleZoomTakesTheGivenValues()
{
    ScopeWidget scope;
    scope.setZoomPrev();
    QTest::ignoreMessage(QtDebugMsg, "fullU 292 fullI 584");
    scope.setDefaultZoom(292.0, 584.0);
    QCOMPARE(scope.getZoomIndex(), 6);
    QCOMPARE(scope.getScaleU(), 0.5f);
    QCOMPARE(scope.getScaleI(), 0.25f);
}

void TstScopeWidget::defaultZoomTakesTheHighestShownSample_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<double>("fullU");
    QTest::addColumn<double>("fullI");
    // Highest magnitudes: U 1000, 2000, 3000, 4000; I 100, 200, 300, 400. Divided by 0.94267.
    QTest::newRow("all") << 255 << 4000 / 0.94267 << 400 / 0.94267;
    QTest::newRow("L1 alone") << 0x11 << 1000 / 0.94267 << 100 / 0.94267;
    QTest::newRow("L3 of U, L2 of I; L1 counts always") << 0x24 << 3000 / 0.94267 << 200 / 0.94267;
    QTest::newRow("none shown: L1") << 0 << 1000 / 0.94267 << 100 / 0.94267;
}

void TstScopeWidget::defaultZoomTakesTheHighestShownSample()
{
    QFETCH(int, flags);
    QFETCH(double, fullU);
    QFETCH(double, fullI);
    const auto data = emptyData();
    for (int channel = 0; channel < 4; ++channel) {
        data->voltageSamples[channel][37] = qint16(-1000 * (channel + 1));
        data->currentSamples[channel][599] = qint16(100 * (channel + 1));
    }
    ScopeWidget scope;
    scope.showScopeData(data.get());
    scope.setFlags(quint8(flags));
    scope.setDefaultZoom();
    QCOMPARE(scope.fullU(), fullU);
    QCOMPARE(scope.fullI(), fullI);

    ScopeWidget silent; // no signal: the floors
    silent.setDefaultZoom();
    QCOMPARE(silent.fullU(), 3.0 / 0.94267);
    QCOMPARE(silent.fullI(), 5.0 / 0.94267);
}

void TstScopeWidget::cursorIndexIsClampedToTheWidth_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("position");
    QTest::newRow("first") << 0 << 1;
    QTest::newRow("before the first") << -1 << 1;
    QTest::newRow("far before") << INT_MIN << 1;
    QTest::newRow("middle") << 299 << 300;
    QTest::newRow("last sample") << 599 << 600;
    QTest::newRow("beyond the width") << 600 << 600;
    QTest::newRow("far beyond") << INT_MAX << 600;
}

void TstScopeWidget::cursorIndexIsClampedToTheWidth()
{
    QFETCH(int, index);
    ScopeWidget scope;
    size(scope);
    scope.setCursorPosition(index);
    QTEST(scope.cursorPosition(), "position");
}

void TstScopeWidget::cursorRowsAreTruncated()
{
    ScopeWidget scope;
    scope.setDefaultZoom(14600.0, 1460.0); // 0.01 and 0.1 pixels per unit
    QCOMPARE(scope.getCursorPosUY(0), 150); // 151 - 0.5
    QCOMPARE(scope.getCursorPosUY(5000), 100); // 151 - 50.5
    QCOMPARE(scope.getCursorPosUY(-5000), 200); // 151 + 49.5
    QCOMPARE(scope.getCursorPosIY(500), 100);
    QCOMPARE(scope.getCursorPosUY(-15120), 301); // 151 + 151.2 - 0.5 = 301.7
}

void TstScopeWidget::gridStandsAtTheirRows()
{
    ScopeWidget scope;
    size(scope);
    scope.setFlags(0);
    scope.setCursorOn(false);
    const QImage image = painted(scope);
    for (const int y : { 0, 44, 140, 151, 161, 256, 302 })
        QVERIFY2(countPixels(image, edges(1, y, 598, y), kGrey) >= 190, qPrintable(QString::number(y)));
    for (const int x : { 0, 599 })
        QVERIFY(countPixels(image, edges(x, 1, x, 301), kGrey) >= 90);
    QCOMPARE(countPixels(image, edges(600, 0, 600, 302), kGrey), 0);
}

void TstScopeWidget::bottomAxisHasTicksEvery100Samples()
{
    ScopeWidget scope;
    size(scope);
    scope.setFlags(0);
    scope.setCursorOn(false);
    const QImage image = painted(scope);
    for (int x = 100; x <= 500; x += 100) {
        QCOMPARE(countPixels(image, edges(x, 297, x, 302), kGrey), 6);
        QVERIFY(countPixels(image, edges(x - 15, 304, x + 10, 315), Qt::black) < 26 * 12);
    }
    QVERIFY(countPixels(image, edges(2, 304, 10, 315), Qt::black) < 9 * 12);
    QVERIFY(countPixels(image, edges(570, 304, 592, 315), Qt::black) < 23 * 12);
}

void TstScopeWidget::curvesHaveTheirColoursAndOrder()
{
    const auto data = emptyData();
    for (int channel = 0; channel < 4; ++channel) {
        for (int i = 0; i < 600; ++i) {
            data->voltageSamples[channel][i] = qint16(20 * (channel + 1) * 100);
            data->currentSamples[channel][i] = qint16(-20 * (channel + 1) * 100);
        }
    }
    ScopeWidget scope;
    size(scope);
    scope.setCursorOn(false);
    scope.setDefaultZoom(14600.0, 14600.0); // 0.01 pixels per unit: 20 pixels a channel
    scope.showScopeData(data.get());
    for (int curve = 0; curve < 8; ++curve) {
        scope.setFlags(quint8(1 << curve));
        const QImage image = painted(scope);
        const int channel = curve % 4;
        const QColor color = curve < 4 ? PhaseColor::colorU(channel) : PhaseColor::colorI(channel);
        const double y = 151.0 - ((curve < 4 ? 20.0 : -20.0) * (channel + 1) + 0.5);
        const int rows = countPixels(image, edges(100, int(y), 550, int(y) + 1), color);
        QVERIFY2(rows >= 451, qPrintable(QString::number(curve)));
    }
    // The same path for both: the later curve, the current, lies above.
    for (int i = 0; i < 600; ++i)
        data->currentSamples[0][i] = data->voltageSamples[0][i];
    scope.showScopeData(data.get());
    scope.setFlags(0x11);
    QCOMPARE(countPixels(painted(scope), edges(100, 129, 550, 132), PhaseColor::colorUA()), 0);
}

static QImage labelled(ScopeWidget &scope)
{
    size(scope);
    scope.setCursorOn(false);
    return painted(scope);
}

/// The picture of a text as the widget writes it.
static QImage written(const QString &text, const QSize &size, const QPoint &baseline)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    QFont font = painter.font();
    font.setPixelSize(12);
    painter.setFont(font);
    painter.setPen(Qt::lightGray);
    painter.drawText(baseline, text);
    return image;
}

void TstScopeWidget::scaleLabelsHalveWhenTheZoomDoubles()
{
    ScopeWidget scope;
    scope.setFlags(1);
    scope.setDefaultZoom(230.0f, 79.25f, 1000.0f, 214.45f);
    const QRect top = edges(1, 1, 80, 17); // the voltage label above the grid's second line
    const QImage one = labelled(scope).copy(top);
    QCOMPARE(one, written(QStringLiteral("325.22V"), top.size(), QPoint(1, 14))); // 230 * 1.414
    scope.setZoomNext();
    const QImage two = labelled(scope).copy(top);
    QCOMPARE(two, written(QStringLiteral("162.61V"), top.size(), QPoint(1, 14))); // 115 * 1.414
}

void TstScopeWidget::scaleLabelsAreTheNominalValueWithoutItsDecimals_data()
{
    QTest::addColumn<float>("nominal");
    QTest::addColumn<QString>("label");
    QTest::newRow("a whole number stays") << 2030.0f << "2030V";
    QTest::newRow("another") << 2050.0f << "2050V";
    QTest::newRow("decimals go") << 132.79f << "132V";
    QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN() << "0V";
    QTest::newRow("endless") << std::numeric_limits<float>::infinity() << "2e+09V";
}

void TstScopeWidget::scaleLabelsAreTheNominalValueWithoutItsDecimals()
{
    QFETCH(float, nominal);
    QFETCH(QString, label);
    ScopeWidget scope;
    scope.setFlags(1);
    scope.setDefaultZoom(nominal, 79.25f, 1000.0f, 214.45f);
    const QRect place = edges(1, 46, 80, 61);
    QCOMPARE(labelled(scope).copy(place), written(label, place.size(), QPoint(1, 13)));
}

void TstScopeWidget::newestSamplesAreDrawn()
{
    const auto data = emptyData();
    for (int i = 0; i < 600; ++i)
        data->voltageSamples[0][i] = i < 598 ? 0 : 5000;
    ScopeWidget scope;
    size(scope);
    scope.setFlags(1);
    scope.setCursorOn(false);
    scope.setDefaultZoom(14600.0, 14600.0); // 0.01 pixels per unit: 5000 stands 50 pixels above the middle
    scope.showScopeData(data.get());
    QVERIFY(countPixels(painted(scope), edges(599, 100, 600, 101), PhaseColor::colorUA()) >= 2);
}

void TstScopeWidget::scaleLabelsShowOnlyForTheirCurves()
{
    ScopeWidget scope;
    scope.setDefaultZoom(230.0f, 79.25f, 1000.0f, 214.45f);
    const QRect left = edges(1, 46, 60, 60);
    const QRect right = edges(540, 46, 598, 60);
    scope.setFlags(0);
    const QImage bare = labelled(scope);
    // Whatever the font, a label is what was not there without curves.
    const auto isLabelled = [&](const QRect &place) { return labelled(scope).copy(place) != bare.copy(place); };
    scope.setFlags(0x0f);
    QVERIFY(isLabelled(left));
    QVERIFY(!isLabelled(right));
    scope.setFlags(0xf0);
    QVERIFY(!isLabelled(left));
    QVERIFY(isLabelled(right));
}

void TstScopeWidget::cursorMarksEachCurveInItsPhaseColour()
{
    const auto data = emptyData();
    data->voltageSamples[1][99] = 5000; // row 100 at 0.01 pixels per unit
    ScopeWidget scope;
    size(scope);
    scope.setFlags(2);
    scope.setDefaultZoom(14600.0, 14600.0);
    scope.showScopeData(data.get());
    scope.setCursorPosition(99);
    QCOMPARE(scope.cursorPosition(), 100);
    const QImage image = painted(scope);
    QVERIFY(countPixels(image, edges(100, 1, 100, 301), Qt::white) > 290);
    QCOMPARE(image.pixelColor(98, 5), QColor(Qt::white));
    QCOMPARE(image.pixelColor(97, 7), QColor(Qt::white));
    // The base on the curve, the tip four pixels below it.
    QVERIFY(countPixels(image, edges(96, 100, 104, 100), PhaseColor::colorB()) >= 7);
    QCOMPARE(countPixels(image, edges(90, 80, 105, 99), PhaseColor::colorB()), 0);
    QVERIFY(countPixels(image, edges(96, 101, 104, 104), PhaseColor::colorB()) >= 9);
}

void TstScopeWidget::switchedOffCursorDrawsNothing()
{
    ScopeWidget scope;
    size(scope);
    scope.setFlags(0);
    scope.setCursorOn(false);
    QCOMPARE(countPixels(painted(scope), scope.rect(), Qt::white), 0);
    scope.setCursorOn(true);
    QVERIFY(countPixels(painted(scope), scope.rect(), Qt::white) > 300);
}

void TstScopeWidget::aPrivateCopyIsShown()
{
    const auto data = emptyData();
    ScopeWidget scope;
    size(scope);
    scope.setDefaultZoom(14600.0, 14600.0);
    scope.showScopeData(data.get());
    const QImage before = painted(scope);
    for (qint16 &sample : data->voltageSamples[0])
        sample = 5000;
    QCOMPARE(painted(scope), before);
    scope.showScopeData(nullptr);
    QCOMPARE(painted(scope), before);
    scope.showScopeData(data.get());
    QVERIFY(painted(scope) != before);
}

void TstScopeWidget::degenerateScalesPaintWithoutHarm()
{
    const auto data = emptyData();
    for (int i = 0; i < 600; ++i)
        data->voltageSamples[0][i] = i % 2 ? 32767 : -32768;
    ScopeWidget scope;
    size(scope);
    scope.showScopeData(data.get());
    for (const float nominal : { 0.0f, -1.0f, 1e-30f, 1e30f, INFINITY, NAN }) {
        for (const float coefficient : { 0.0f, 79.25f, -79.25f, NAN }) {
            scope.setDefaultZoom(nominal, coefficient, nominal, coefficient);
            for (int i = 0; i < 13; ++i)
                scope.setZoomNext();
            scope.getCursorPosUY(-32768);
            QCOMPARE(painted(scope).size(), scope.size());
        }
    }
}

QTEST_MAIN(TstScopeWidget)
#include "tst_scopewidget.moc"
