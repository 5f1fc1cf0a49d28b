#include "report/plot.h"
#include "report/reportcharts.h"
#include "settings/limitbuiltins.h"
#include "unit/report/fedrecording.h"

#include <QTest>

#include <cmath>

namespace {

constexpr qint64 kStart = FedRecording::kStart + 3000000; // 2023-11-14 23:00 UTC
constexpr double kLeft = 52, kRight = 694; // of every plot, 642 wide

bool isNear(double one, double other)
{
    return std::abs(one - other) < 1e-3;
}

QVector<Shape> shapesOf(const Drawing &drawing, Shape::Kind kind, Ink ink)
{
    QVector<Shape> found;
    for (const Shape &shape : drawing.shapes) {
        if (shape.kind == kind && shape.ink == ink)
            found.append(shape);
    }
    return found;
}

/// Where a word stands; far outside without it.
QPointF placeOf(const Drawing &drawing, const QString &text)
{
    for (const Shape &shape : drawing.shapes) {
        if (shape.kind == Shape::Text && shape.text == text)
            return shape.points.first();
    }
    return { -1e9, -1e9 };
}

/// The words below the axis, from the left.
QStringList marksOf(const Drawing &drawing)
{
    QStringList marks;
    for (const Shape &shape : drawing.shapes) {
        if (shape.kind == Shape::Text && shape.anchor == Shape::Middle)
            marks.append(shape.text);
    }
    return marks;
}

/// Heights of the lines of limits that go over the whole width.
QVector<double> limitsOf(const Drawing &drawing)
{
    QVector<double> heights;
    for (const Shape &shape : shapesOf(drawing, Shape::Line, Ink::Limit)) {
        if (shape.dashed && shape.points.first().x() == kLeft && shape.points.last().x() == kRight
            && shape.points.first().y() == shape.points.last().y())
            heights.append(shape.points.first().y());
    }
    return heights;
}

bool contains(const QVector<double> &numbers, double number)
{
    return std::any_of(numbers.begin(), numbers.end(), [number](double one) { return isNear(one, number); });
}

/// Of \a ms from kStart on, by the limits of EN 50160.
Judgement judgementOf(qint64 ms)
{
    Judgement j;
    j.overview.start = kStart;
    j.overview.end = kStart + ms;
    j.overview.facts.joinMode = 1;
    j.setup.limits = LimitBuiltins::en50160();
    j.setup.nominalVolt = 230;
    j.setup.nominalFrequency = 50;
    return j;
}

constexpr qint64 kColumn = 10000; // ms of a column of the trends
constexpr qint64 kTrend = TrendBand::kColumns * kColumn;

/// Values from \a low to \a high in each \a step th column of \a first to \a last.
void fillBand(TrendBand *band, int first, int last, double low, double high, int step = 1)
{
    for (int i = first; i <= last; i += step) {
        band->take(kStart + i * kColumn + 1, high);
        band->take(kStart + i * kColumn + 2, low);
    }
}

QuantityTrend emptyTrend(Quantity quantity, int phase)
{
    return { { quantity, qint8(phase), 0 }, TrendBand(kStart, kStart + kTrend) };
}

Drawing voltageChart(const QVector<QuantityTrend> &trends)
{
    Judgement j = judgementOf(kTrend);
    j.trends = trends;
    return trendChart(Quantity::Voltage, j, Report(QString()));
}

QuantityVerdict harmonic(int phase, int order, double atShare, double limit, Outcome outcome)
{
    QuantityVerdict v;
    v.key = { Quantity::Harmonic, qint8(phase), qint16(order) };
    v.bounds.high = limit;
    v.judged = 10;
    v.atShare = atShare;
    v.partial = outcome;
    return v;
}

RecordedEvent eventOf(int number, qint32 type, double volts, qint64 ms)
{
    RecordedEvent event;
    event.number = number;
    event.item.type = type;
    event.item.value = float(volts);
    event.item.startTime = kStart + 1000000;
    event.item.endTime = event.item.startTime + ms;
    event.item.finished = 1;
    return event;
}

} // namespace

/// Where the pictures of a report have their lines and words. Places are worked out by hand: each plot is 642 wide.
class TstReportCharts : public QObject
{
    Q_OBJECT

private slots:
    void whatIsHigherStandsHigher();
    void whatLiesBeyondIsHeldAtTheEdge();
    void stepsAreOneTwoOrFive();
    void limitIsADashedLineAtItsValue();
    void trendGoesFromLowestToHighestAtItsTime();
    void trendWithoutValuesIsNotDrawnOver();
    void loneValueOfATrendIsADot();
    void limitsOfATrendAreShown();
    void eachPhaseHasItsInkAndItsWord();
    void quantityWithoutALowerLimitBeginsAtZero();
    void marksOfTimeStandAtTheirTime();
    void aWeekHasAMarkForEachDay();
    void barsOfHarmonicsReachTheirValue();
    void harmonicsThatAreNotJudgedHaveNoBar();
    void eventsStandByDepthAndDuration();
    void eventsBeyondThePlaneStandAtItsEdge();
    void planeShowsTheThresholds();
    void curvesStandAtTheirTimeInTheirInk();
    void curvesOfTheCurrentsAreThoseOfTheCurrents();
    void eachInputHasItsOwnWave();
    void timesBelowAMomentAreToldApart_data();
    void timesBelowAMomentAreToldApart();
    void nothingRecordedIsNoPicture();
};

void TstReportCharts::whatIsHigherStandsHigher()
{
    Drawing drawing;
    Plot plot(&drawing, 146, QStringLiteral("title")); // its lines are from 24 to 124
    plot.setRangeX(0, 642);
    plot.setRangeY(0, 100, QStringLiteral("V"), QLocale::c());
    QCOMPARE(plot.at(0, 0), QPointF(52, 124));
    QCOMPARE(plot.at(642, 100), QPointF(694, 24));
    QCOMPARE(plot.at(321, 25), QPointF(373, 99));
    QCOMPARE(placeOf(drawing, QStringLiteral("20")), QPointF(47, 108)); // four below its line
    QCOMPARE(placeOf(drawing, QStringLiteral("100")), QPointF(47, 28));
    QCOMPARE(shapesOf(drawing, Shape::Line, Ink::Grid).size(), 6);
}

void TstReportCharts::whatLiesBeyondIsHeldAtTheEdge()
{
    Drawing drawing;
    Plot plot(&drawing, 146, QString());
    plot.setRangeX(0, 10);
    plot.setRangeY(0, 100, QString(), QLocale::c());
    QCOMPARE(plot.at(-5, 250), QPointF(52, 24));
    QCOMPARE(plot.at(1000, -3), QPointF(694, 124));
}

void TstReportCharts::stepsAreOneTwoOrFive()
{
    QCOMPARE(roundStep(10, 10), 1.0);
    QCOMPARE(roundStep(10, 5), 2.0);
    QCOMPARE(roundStep(250, 5), 50.0);
    QCOMPARE(roundStep(40, 5), 10.0); // 8 is more than 5
    QVERIFY(isNear(roundStep(0.8, 5), 0.2));
    QCOMPARE(roundStep(0, 5), 1.0);
    QCOMPARE(roundStep(std::numeric_limits<double>::infinity(), 5), 1.0);
}

void TstReportCharts::limitIsADashedLineAtItsValue()
{
    Drawing drawing;
    Plot plot(&drawing, 146, QString());
    plot.setRangeY(0, 100, QString(), QLocale::c());
    plot.limit(40, QStringLiteral("forty"));
    plot.limit(101, QStringLiteral("outside"));
    QCOMPARE(limitsOf(drawing), QVector<double> { 84 });
    QCOMPARE(placeOf(drawing, QStringLiteral("forty")), QPointF(691, 81));
}

void TstReportCharts::trendGoesFromLowestToHighestAtItsTime()
{
    QuantityTrend trend = emptyTrend(Quantity::Voltage, 0);
    fillBand(&trend.band, 0, 9, 220, 240);
    const Drawing drawing = voltageChart({ trend });
    // The limits are 207 V and 253 V: the axis goes from 200 V, at 154, to 260 V, at 24.
    const double upper = 154 - 130 * 40.0 / 60, lower = 154 - 130 * 20.0 / 60;
    const QVector<Shape> areas = shapesOf(drawing, Shape::Area, Ink::L1);
    QCOMPARE(areas.size(), 1);
    const QVector<QPointF> &around = areas.first().points;
    QCOMPARE(around.size(), 20);
    QVERIFY(isNear(around.at(0).x(), kLeft + 642 * 0.5 / 560) && isNear(around.at(0).y(), upper));
    QVERIFY(isNear(around.at(9).x(), kLeft + 642 * 9.5 / 560) && isNear(around.at(9).y(), upper));
    QVERIFY(isNear(around.at(10).x(), kLeft + 642 * 9.5 / 560) && isNear(around.at(10).y(), lower));
    QVERIFY(isNear(around.at(19).x(), kLeft + 642 * 0.5 / 560) && isNear(around.at(19).y(), lower));
    const QVector<Shape> edges = shapesOf(drawing, Shape::Line, Ink::L1);
    QCOMPARE(edges.size(), 2);
    for (int i = 0; i < 10; ++i) {
        QVERIFY(isNear(edges.at(0).points.at(i).y(), upper));
        QVERIFY(isNear(edges.at(1).points.at(i).y(), lower));
    }
}

void TstReportCharts::trendWithoutValuesIsNotDrawnOver()
{
    QuantityTrend gap = emptyTrend(Quantity::Voltage, 0);
    fillBand(&gap.band, 0, 9, 220, 240);
    fillBand(&gap.band, 100, 559, 220, 240);
    const QVector<Shape> stretches = shapesOf(voltageChart({ gap }), Shape::Area, Ink::L1);
    QCOMPARE(stretches.size(), 2);
    QVERIFY(isNear(stretches.at(0).points.at(9).x(), kLeft + 642 * 9.5 / 560));
    QVERIFY(isNear(stretches.at(1).points.at(0).x(), kLeft + 642 * 100.5 / 560));
    QVERIFY(isNear(stretches.at(1).points.at(459).x(), kLeft + 642 * 559.5 / 560));
    // A value in each twentieth column is no gap where no more are usual.
    QuantityTrend rare = emptyTrend(Quantity::Voltage, 0);
    fillBand(&rare.band, 0, 559, 220, 240, 20);
    QCOMPARE(shapesOf(voltageChart({ rare }), Shape::Area, Ink::L1).size(), 1);
}

void TstReportCharts::loneValueOfATrendIsADot()
{
    QuantityTrend trend = emptyTrend(Quantity::Voltage, 0);
    fillBand(&trend.band, 280, 280, 230, 230);
    const Drawing drawing = voltageChart({ trend });
    const QVector<Shape> dots = shapesOf(drawing, Shape::Dot, Ink::L1);
    QCOMPARE(dots.size(), 1);
    QVERIFY(isNear(dots.first().points.first().x(), kLeft + 642 * 280.5 / 560));
    QVERIFY(isNear(dots.first().points.first().y(), 89)); // 230 V is in the middle
}

void TstReportCharts::limitsOfATrendAreShown()
{
    QuantityTrend trend = emptyTrend(Quantity::Voltage, 0);
    fillBand(&trend.band, 0, 559, 229, 231);
    const QVector<double> limits = limitsOf(voltageChart({ trend }));
    QVERIFY(contains(limits, 154 - 130 * 7.0 / 60)); // 207 V
    QVERIFY(contains(limits, 154 - 130 * 53.0 / 60)); // 253 V
    QCOMPARE(limits.size(), 3); // 253 V for the share and for all; 195.5 V is below the axis
}

void TstReportCharts::eachPhaseHasItsInkAndItsWord()
{
    QVector<QuantityTrend> trends;
    for (int phase = 0; phase < 3; ++phase) {
        trends.append(emptyTrend(Quantity::Voltage, phase));
        fillBand(&trends.last().band, 0, 559, 210 + 20 * phase, 210 + 20 * phase);
    }
    trends.append(emptyTrend(Quantity::Plt, 0)); // another picture's
    fillBand(&trends.last().band, 0, 559, 9000, 9000);
    const Drawing drawing = voltageChart(trends);
    const Ink inks[] = { Ink::L1, Ink::L2, Ink::L3 };
    for (int phase = 0; phase < 3; ++phase) {
        const QVector<Shape> lines = shapesOf(drawing, Shape::Line, inks[phase]);
        QCOMPARE(lines.size(), 2);
        QVERIFY(isNear(lines.first().points.first().y(), 154 - 130 * (10.0 + 20 * phase) / 60));
        const QVector<Shape> words = shapesOf(drawing, Shape::Text, inks[phase]);
        QCOMPARE(words.size(), 1);
        QCOMPARE(words.first().text, Report::phaseName(phase, judgementOf(kTrend)));
    }
    QVERIFY(placeOf(drawing, Report::phaseName(0, judgementOf(1))).x()
            < placeOf(drawing, Report::phaseName(2, judgementOf(1))).x());
}

void TstReportCharts::quantityWithoutALowerLimitBeginsAtZero()
{
    Judgement j = judgementOf(kTrend);
    j.trends.append(emptyTrend(Quantity::Thd, 0));
    fillBand(&j.trends.last().band, 0, 559, 3, 4);
    const Drawing drawing = trendChart(Quantity::Thd, j, Report(QString()));
    QVERIFY(isNear(shapesOf(drawing, Shape::Line, Ink::L1).first().points.first().y(), 89)); // 4 of 0 to 8
    QVERIFY(contains(limitsOf(drawing), 24)); // 8 percent
}

void TstReportCharts::marksOfTimeStandAtTheirTime()
{
    QuantityTrend trend = emptyTrend(Quantity::Voltage, 0);
    fillBand(&trend.band, 0, 559, 229, 231);
    const Drawing drawing = voltageChart({ trend }); // 5600 s from 23:00 on
    QCOMPARE(
        marksOf(drawing),
        (QStringList { "23:00", "23:10", "23:20", "23:30", "23:40", "23:50", "11-15", "00:10", "00:20", "00:30" }));
    QCOMPARE(placeOf(drawing, QStringLiteral("23:00")), QPointF(52, 169));
    QVERIFY(isNear(placeOf(drawing, QStringLiteral("11-15")).x(), kLeft + 642 * 3600.0 / 5600));
    QVERIFY(isNear(placeOf(drawing, QStringLiteral("00:30")).x(), kLeft + 642 * 5400.0 / 5600));
}

void TstReportCharts::aWeekHasAMarkForEachDay()
{
    Judgement j = judgementOf(FedRecording::kWeek);
    j.trends.append({ { Quantity::Voltage, 0, 0 }, TrendBand(kStart, kStart + FedRecording::kWeek) });
    j.trends.last().band.take(kStart + 1, 230);
    const Drawing drawing = trendChart(Quantity::Voltage, j, Report(QString()));
    QCOMPARE(marksOf(drawing), (QStringList { "11-15", "11-16", "11-17", "11-18", "11-19", "11-20", "11-21" }));
    QVERIFY(isNear(placeOf(drawing, QStringLiteral("11-15")).x(), kLeft + 642 * 1.0 / 168)); // after an hour
    QVERIFY(isNear(placeOf(drawing, QStringLiteral("11-21")).x(), kLeft + 642 * 145.0 / 168));
}

void TstReportCharts::barsOfHarmonicsReachTheirValue()
{
    Judgement j = judgementOf(kTrend);
    j.verdicts = { harmonic(0, 5, 3, 6, Outcome::Pass), harmonic(1, 7, 6.5, 5, Outcome::Fail) };
    const Drawing drawing = harmonicChart(j, Report(QString()));
    // Orders 1 to 8 over 642, 0 to 8 percent from 184 up to 24. A bar is 0.22 of an order wide.
    constexpr double kOrder = 642.0 / 7;
    const QVector<Shape> good = shapesOf(drawing, Shape::Area, Ink::L1);
    QCOMPARE(good.size(), 1);
    QVERIFY(isNear(good.first().points.at(0).x(), kLeft + 3.67 * kOrder));
    QVERIFY(isNear(good.first().points.at(0).y(), 184));
    QVERIFY(isNear(good.first().points.at(1).y(), 124));
    QVERIFY(isNear(good.first().points.at(2).x(), kLeft + 3.89 * kOrder));
    QVERIFY(isNear(good.first().points.at(2).y(), 124));
    QVERIFY(isNear(good.first().points.at(3).y(), 184));
    const QVector<Shape> bad = shapesOf(drawing, Shape::Area, Ink::Bad);
    QCOMPARE(bad.size(), 1);
    QVERIFY(isNear(bad.first().points.at(1).x(), kLeft + 5.89 * kOrder));
    QVERIFY(isNear(bad.first().points.at(1).y(), 54));
    QVERIFY(shapesOf(drawing, Shape::Area, Ink::L2).isEmpty());
    const QVector<Shape> limits = shapesOf(drawing, Shape::Line, Ink::Limit);
    QCOMPARE(limits.size(), 2);
    QVERIFY(isNear(limits.at(0).points.at(0).x(), kLeft + 3.55 * kOrder));
    QVERIFY(isNear(limits.at(0).points.at(1).x(), kLeft + 4.45 * kOrder));
    QVERIFY(isNear(limits.at(0).points.at(0).y(), 64) && isNear(limits.at(0).points.at(1).y(), 64));
    QVERIFY(isNear(limits.at(1).points.at(0).y(), 84));
    QVERIFY(isNear(placeOf(drawing, QStringLiteral("7")).x(), kLeft + 6 * kOrder));
}

void TstReportCharts::harmonicsThatAreNotJudgedHaveNoBar()
{
    Judgement j = judgementOf(kTrend);
    j.verdicts = { harmonic(0, 3, 2, Bounds::kNone, Outcome::NotApplied), harmonic(0, 5, 2, 6, Outcome::NotJudged) };
    j.verdicts[1].judged = 0;
    QVERIFY(harmonicChart(j, Report(QString())).shapes.isEmpty());
    j.verdicts.append(harmonic(2, 5, 2, 6, Outcome::Pass));
    const Drawing drawing = harmonicChart(j, Report(QString()));
    QVERIFY(shapesOf(drawing, Shape::Area, Ink::L1).isEmpty());
    QCOMPARE(shapesOf(drawing, Shape::Area, Ink::L3).size(), 1);
}

void TstReportCharts::eventsStandByDepthAndDuration()
{
    Judgement j = judgementOf(2000000);
    j.overview.events = { eventOf(1, EventDip, 115, 100), eventOf(2, EventSwell, 276, 10000),
                          eventOf(3, EventInterruption, 0, 100000), eventOf(4, EventFrequency, 51, 1000) };
    j.listed = { 1 };
    const Drawing drawing = depthChart(j, Report(QString()));
    // Five tenfold durations over 642 from 10 ms on; 0 to 150 percent from 228 up to 24.
    const QVector<Shape> dips = shapesOf(drawing, Shape::Dot, Ink::N);
    QCOMPARE(dips.size(), 1);
    QVERIFY(isNear(dips.first().points.first().x(), kLeft + 642 * 1.0 / 5));
    QVERIFY(isNear(dips.first().points.first().y(), 160)); // 50 percent
    QCOMPARE(dips.first().link, eventAnchor(1));
    QCOMPARE(dips.first().text, Report::eventName(EventDip) + QStringLiteral(", 50.0 %, 0.10 s"));
    const QVector<Shape> swells = shapesOf(drawing, Shape::Dot, Ink::L1);
    QCOMPARE(swells.size(), 1);
    QVERIFY(isNear(swells.first().points.first().x(), kLeft + 642 * 3.0 / 5));
    QVERIFY(isNear(swells.first().points.first().y(), 64.8)); // 120 percent
    QVERIFY(swells.first().link.isEmpty()); // no table names it
    const QVector<Shape> interruptions = shapesOf(drawing, Shape::Dot, Ink::Bad);
    QCOMPARE(interruptions.size(), 1);
    QVERIFY(isNear(interruptions.first().points.first().x(), kLeft + 642 * 4.0 / 5));
    QVERIFY(isNear(interruptions.first().points.first().y(), 228));
    QVERIFY(isNear(placeOf(drawing, QStringLiteral("0.1 s")).x(), kLeft + 642 * 1.0 / 5));
    QVERIFY(isNear(placeOf(drawing, QStringLiteral("100 s")).x(), kLeft + 642 * 4.0 / 5));
}

void TstReportCharts::eventsBeyondThePlaneStandAtItsEdge()
{
    Judgement j = judgementOf(101000000);
    j.overview.events = { eventOf(1, EventSwell, 460, 1), eventOf(2, EventInterruption, 0, 1) };
    j.overview.events[1].item.finished = 0; // it lasts up to the end of the recording
    const Drawing drawing = depthChart(j, Report(QString()));
    QCOMPARE(shapesOf(drawing, Shape::Dot, Ink::L1).first().points.first(), QPointF(52, 24));
    QCOMPARE(shapesOf(drawing, Shape::Dot, Ink::Bad).first().points.first(), QPointF(694, 228));
}

void TstReportCharts::planeShowsTheThresholds()
{
    const Drawing drawing = depthChart(judgementOf(kTrend), Report(QString()));
    const QVector<double> limits = limitsOf(drawing);
    QCOMPARE(limits.size(), 3);
    QVERIFY(contains(limits, 228 - 204 * 90.0 / 150)); // of dips
    QVERIFY(contains(limits, 228 - 204 * 110.0 / 150)); // of swells
    QVERIFY(contains(limits, 228 - 204 * 1.0 / 150)); // of interruptions
    QVERIFY(isNear(placeOf(drawing, QStringLiteral("90 %")).y(), 228 - 204 * 90.0 / 150 - 3));
}

void TstReportCharts::curvesStandAtTheirTimeInTheirInk()
{
    Moment moment;
    moment.event.item.startRms[1] = { { kStart, 230 }, { kStart + 1000, 115 } };
    moment.event.item.endRms[1] = { { kStart + 1500, 0 }, { kStart + 2000, 230 } };
    moment.event.item.startRms[7] = { { kStart, 9000 }, { kStart + 90000, 9000 } };
    const Drawing drawing = curveChart(moment, false, Report(QString()));
    // Two seconds; 0 to 250 V from 128 up to 24.
    const QVector<Shape> lines = shapesOf(drawing, Shape::Line, Ink::L2);
    QCOMPARE(lines.size(), 2); // what lies between start and end is not known
    QVERIFY(isNear(lines.at(0).points.at(0).x(), 52) && isNear(lines.at(0).points.at(0).y(), 32.32));
    QVERIFY(isNear(lines.at(0).points.at(1).x(), 373) && isNear(lines.at(0).points.at(1).y(), 80.16));
    QVERIFY(isNear(lines.at(1).points.at(0).x(), 533.5) && isNear(lines.at(1).points.at(0).y(), 128));
    QVERIFY(isNear(lines.at(1).points.at(1).x(), 694) && isNear(lines.at(1).points.at(1).y(), 32.32));
    QCOMPARE(marksOf(drawing), (QStringList { "0.0 s", "0.5 s", "1.0 s", "1.5 s", "2.0 s" }));
    QVERIFY(isNear(placeOf(drawing, QStringLiteral("0.5 s")).x(), 212.5));
    for (const Ink other : { Ink::L1, Ink::L3, Ink::N })
        QVERIFY(shapesOf(drawing, Shape::Line, other).isEmpty());
}

void TstReportCharts::curvesOfTheCurrentsAreThoseOfTheCurrents()
{
    Moment moment;
    moment.event.item.startRms[0] = { { kStart, 230 }, { kStart + 9000, 230 } };
    moment.event.item.startRms[7] = { { kStart, 10 }, { kStart + 1000, 5 } };
    const Drawing drawing = curveChart(moment, true, Report(QString()));
    QVERIFY(shapesOf(drawing, Shape::Line, Ink::L1).isEmpty());
    const QVector<Shape> lines = shapesOf(drawing, Shape::Line, Ink::N);
    QCOMPARE(lines.size(), 1);
    QVERIFY(isNear(lines.first().points.at(0).x(), 52) && isNear(lines.first().points.at(0).y(), 24));
    QVERIFY(isNear(lines.first().points.at(1).x(), 694) && isNear(lines.first().points.at(1).y(), 76));
    QCOMPARE(placeOf(drawing, QStringLiteral("A")), QPointF(47, 14));
}

void TstReportCharts::eachInputHasItsOwnWave()
{
    Moment moment;
    moment.wave.sampleRate = 1000;
    moment.wave.channels = { { "U_L1", "L1", "V", 0.5f }, { "U_L2", "L2", "V", 0.5f }, { "I_N", "N", "A", 0.25f } };
    moment.samples = { 0, 400, 4, 200, 0, 8, -200, -100, -16 };
    const Drawing voltages = waveChart(moment, false, Report(QString()));
    // Three milliseconds; -200 V at 128 to 200 V at 24.
    const QVector<Shape> first = shapesOf(voltages, Shape::Line, Ink::L1);
    const QVector<Shape> second = shapesOf(voltages, Shape::Line, Ink::L2);
    QCOMPARE(first.size(), 1);
    QCOMPARE(second.size(), 1);
    QVERIFY(shapesOf(voltages, Shape::Line, Ink::N).isEmpty());
    const double across[] = { 52, 266, 480 }, up1[] = { 76, 50, 102 }, up2[] = { 24, 76, 89 }, up3[] = { 63, 50, 128 };
    const Drawing currents = waveChart(moment, true, Report(QString())); // -4 A to 4 A
    const QVector<Shape> third = shapesOf(currents, Shape::Line, Ink::N);
    QCOMPARE(third.size(), 1);
    QVERIFY(shapesOf(currents, Shape::Line, Ink::L1).isEmpty());
    for (int i = 0; i < 3; ++i) {
        QVERIFY(isNear(first.first().points.at(i).x(), across[i]) && isNear(first.first().points.at(i).y(), up1[i]));
        QVERIFY(isNear(second.first().points.at(i).x(), across[i]) && isNear(second.first().points.at(i).y(), up2[i]));
        QVERIFY(isNear(third.first().points.at(i).x(), across[i]) && isNear(third.first().points.at(i).y(), up3[i]));
    }
    QCOMPARE(shapesOf(voltages, Shape::Text, Ink::L1).first().text, QStringLiteral("L1"));
    QVERIFY(placeOf(voltages, QStringLiteral("L1")).x() < placeOf(voltages, QStringLiteral("L2")).x());
}

void TstReportCharts::timesBelowAMomentAreToldApart_data()
{
    QTest::addColumn<int>("samples"); // a millisecond each
    QTest::addColumn<QString>("times");
    QTest::newRow("3 ms") << 3 << QStringLiteral("0.0000 0.0005 0.0010 0.0015 0.0020 0.0025 0.0030");
    QTest::newRow("30 ms") << 30 << QStringLiteral("0.000 0.005 0.010 0.015 0.020 0.025 0.030");
    QTest::newRow("300 ms") << 300 << QStringLiteral("0.00 0.05 0.10 0.15 0.20 0.25 0.30");
    QTest::newRow("1.6 s") << 1600 << QStringLiteral("0.0 0.2 0.4 0.6 0.8 1.0 1.2 1.4 1.6");
    QTest::newRow("6 s") << 6000 << QStringLiteral("0 1 2 3 4 5 6");
}

void TstReportCharts::timesBelowAMomentAreToldApart()
{
    QFETCH(int, samples);
    QFETCH(QString, times);
    Moment moment;
    moment.wave.sampleRate = 1000;
    moment.wave.channels = { { "U_L1", "L1", "V", 0.5f } };
    moment.samples.fill(400, samples);
    QStringList shown;
    for (const Shape &shape : shapesOf(waveChart(moment, false, Report(QString())), Shape::Text, Ink::Weak)) {
        if (shape.text.endsWith(QLatin1String(" s")))
            shown << shape.text.chopped(2);
    }
    QCOMPARE(shown.join(QLatin1Char(' ')), times);
}

void TstReportCharts::nothingRecordedIsNoPicture()
{
    Moment moment;
    moment.wave.sampleRate = 1000;
    moment.wave.channels = { { "U_L1", "L1", "V", 0.5f } };
    moment.samples = { 0, 0, 0 };
    QVERIFY(waveChart(moment, false, Report(QString())).shapes.isEmpty()); // an input without a voltage
    QVERIFY(waveChart(moment, true, Report(QString())).shapes.isEmpty());
    QVERIFY(curveChart(moment, false, Report(QString())).shapes.isEmpty());
    QVERIFY(voltageChart({ emptyTrend(Quantity::Voltage, 0) }).shapes.isEmpty());
    QVERIFY(harmonicChart(judgementOf(kTrend), Report(QString())).shapes.isEmpty());
}

QTEST_APPLESS_MAIN(TstReportCharts)
#include "tst_reportcharts.moc"
