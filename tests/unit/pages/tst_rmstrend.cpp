#include "pages/rmstrend.h"

#include <QTest>

#include <algorithm>
#include <limits>

namespace {

constexpr float kNominal = 230;

QList<float> constant(int count, float value)
{
    QList<float> list;
    for (int i = 0; i < count; ++i)
        list << value;
    return list;
}

} // namespace

/// Trends of half-cycle values: how they are thinned, scaled, labelled and read at the cursor.
class TstRmsTrend : public QObject
{
    Q_OBJECT

private slots:
    void aShortDipSurvivesAtEveryZoom_data();
    void aShortDipSurvivesAtEveryZoom();
    void eachGroupGivesTheValueFarthestFromTheReference();
    void ofEquallyFarValuesTheNewestCounts();
    void aPartialGroupAtTheOldEndGivesAPoint();
    void offsetBeyondTheListGivesNothing();
    void wildValuesCountAsZero();
    void scaleTakesPhasesTogetherAndTheFourthAlone();
    void valueAtTheCursorCountsBackFromTheWindow();
    void axisLabelsAreSecondsMinutesOrBoth();
};

void TstRmsTrend::aShortDipSurvivesAtEveryZoom_data()
{
    QTest::addColumn<int>("valuesPerPoint");
    for (const int n : { 2, 4, 8, 10, 12 })
        QTest::newRow(qPrintable(QString::number(n))) << n;
}

void TstRmsTrend::aShortDipSurvivesAtEveryZoom()
{
    QFETCH(int, valuesPerPoint);
    const int count = 1200; // inside the window of every zoom
    for (const int place : { 0, 1, 599, 600, 601, 1197, 1198, 1199 }) {
        QList<float> values = constant(count, kNominal);
        values[place] = 90;
        const QVector<float> points = RmsTrend::decimate(values, { 0, valuesPerPoint }, kNominal);
        QCOMPARE(int(std::count(points.begin(), points.end(), 90.0f)), 1);
        // Counted from the newest: the point that holds the value.
        QCOMPARE(points.at(points.size() - 1 - (count - 1 - place) / valuesPerPoint), 90.0f);
    }
}

void TstRmsTrend::eachGroupGivesTheValueFarthestFromTheReference()
{
    const QList<float> values { 5, 230, 231, 233, 100, 229, 230, 228, 300 };
    // Groups of three from the newest: 300 228 230 | 229 100 233 | 231 230 5
    QCOMPARE(RmsTrend::decimate(values, { 0, 3 }, 230), QVector<float>({ 5, 100, 300 }));
    // Against 0, as for a current, the highest: 300 | 233 | 231
    QCOMPARE(RmsTrend::decimate(values, { 0, 3 }, 0), QVector<float>({ 231, 233, 300 }));
    // Two values back the groups are 230 229 100 | 233 231 230 | 5
    QCOMPARE(RmsTrend::decimate(values, { 2, 3 }, 230), QVector<float>({ 5, 233, 100 }));
}

void TstRmsTrend::ofEquallyFarValuesTheNewestCounts()
{
    QCOMPARE(RmsTrend::decimate({ 240, 230, 220 }, { 0, 3 }, 230), QVector<float>({ 220 }));
    QCOMPARE(RmsTrend::decimate({ 220, 230, 240 }, { 0, 3 }, 230), QVector<float>({ 240 }));
}

void TstRmsTrend::aPartialGroupAtTheOldEndGivesAPoint()
{
    QCOMPARE(RmsTrend::decimate({ 1, 2, 3, 4 }, { 0, 3 }, 0), QVector<float>({ 1, 4 }));
    QCOMPARE(RmsTrend::decimate(constant(6001, 1), { 0, 10 }, 0).size(), 600);
}

void TstRmsTrend::offsetBeyondTheListGivesNothing()
{
    QVERIFY(RmsTrend::decimate({ 1, 2 }, { 2, 1 }, 0).isEmpty());
    QVERIFY(RmsTrend::decimate({}, { 0, 1 }, 0).isEmpty());
    const QList<float> lists[kChannels] = { { 1, 2 }, {}, {}, {} };
    QVERIFY(RmsTrend::scale(lists, { 2, 1 }, 0, 1.0).series[0].isEmpty());
    QVERIFY(RmsTrend::scale(lists, { 2, 1 }, 0, 1.0).upper[0].isNull());
}

void TstRmsTrend::wildValuesCountAsZero()
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float inf = std::numeric_limits<float>::infinity();
    QCOMPARE(RmsTrend::decimate({ nan, 5 }, { 0, 2 }, 0), QVector<float>({ 5 }));
    QCOMPARE(RmsTrend::decimate({ inf, 5 }, { 0, 2 }, 0), QVector<float>({ 5 }));
    QCOMPARE(RmsTrend::decimate({ 229, nan }, { 0, 2 }, 230), QVector<float>({ 0 }));
}

void TstRmsTrend::scaleTakesPhasesTogetherAndTheFourthAlone()
{
    const QList<float> lists[kChannels] = { { 225, 235 }, { 231, 232 }, { 208, 230 }, { 1, 19 } };
    const TrendScaler::Picture picture = RmsTrend::scale(lists, { 0, 1 }, 230, 0.1);
    // 208 to 235 goes out to 200 and 240, 1 to 19 to 0 and 20; labels are a tenth of it.
    QCOMPARE(picture.max[0], 240.0f);
    QCOMPARE(picture.min[0], 200.0f);
    QCOMPARE(picture.max[1], 20.0f);
    QCOMPARE(picture.upper[0], QStringLiteral("24"));
    QCOMPARE(picture.lower[0], QStringLiteral("20"));
    QCOMPARE(picture.upper[1], QStringLiteral("2"));
    // (1 - (225 - 200) / 40) x 75 = 28.1; (1 - 35 / 40) x 75 = 9.4
    QCOMPARE(picture.series[0], QVector<qint16>({ 28, 9 }));
    // (1 - 1 / 20) x 75 = 71.25; (1 - 19 / 20) x 75 = 3.75
    QCOMPARE(picture.series[3], QVector<qint16>({ 71, 3 }));
}

void TstRmsTrend::valueAtTheCursorCountsBackFromTheWindow()
{
    QList<float> values;
    for (int i = 0; i < 100; ++i)
        values << i + 1;
    QCOMPARE(RmsTrend::valueAt(values, { 0, 1 }, 1), 100.0f);
    QCOMPARE(RmsTrend::valueAt(values, { 0, 1 }, 100), 1.0f);
    QCOMPARE(RmsTrend::valueAt(values, { 0, 10 }, 3), 71.0f);
    QCOMPARE(RmsTrend::valueAt(values, { 20, 10 }, 3), 51.0f);
    QCOMPARE(RmsTrend::valueAt(values, { 0, 10 }, 600), 1.0f); // held at the oldest
    QCOMPARE(RmsTrend::valueAt(values, { 100, 1 }, 1), 0.0f); // offset beyond the list
    QCOMPARE(RmsTrend::valueAt({}, { 0, 1 }, 1), 0.0f);
}

void TstRmsTrend::axisLabelsAreSecondsMinutesOrBoth()
{
    QCOMPARE(RmsTrend::axisLabels(6, 60), QStringList({ "1m", "50s", "40s", "30s", "20s", "10s" }));
    QCOMPARE(RmsTrend::axisLabels(5, 60), QStringList({ "1m", "48s", "36s", "24s", "12s" }));
    QCOMPARE(RmsTrend::axisLabels(6, 180), QStringList({ "3m", "2m30s", "2m", "1m30s", "1m", "30s" }));
    QCOMPARE(RmsTrend::axisLabels(5, 40, 60), QStringList({ "1m40s", "1m20s", "1m", "40s", "20s" }));
}

QTEST_GUILESS_MAIN(TstRmsTrend)

#include "tst_rmstrend.moc"
