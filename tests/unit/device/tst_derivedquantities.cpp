#include "device/datatypes.h"

#include <QTest>
#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

/// Phase differences, flicker statistics, percentiles and resampling.
class TstDerivedQuantities : public QObject
{
    Q_OBJECT

private slots:
    void phaseDifferenceLiesWithinHalfATurn_data();
    void phaseDifferenceLiesWithinHalfATurn();
    void phaseDifferenceEndsAtOnceForAnyNumber();
    void pltOfEqualValuesIsThatValue();
    void pltIsTheCubicMean();
    void pltOfNothingIsNoNumber();
    void percentilesOfOneValueIgnoreTheFraction();
    void percentilesInterpolateBetweenNeighbours();
    void percentilesNeverReadOutsideTheList();
    void pstOfEqualValues();
    void pstWeighsTheSmoothedPercentiles();
    void pstOfARampFollowsEveryFraction();
    void pstOfNegativeValuesIsNoNumber();
    void floatsAreResampledTo600();
    void resamplingOfAStraightLineStaysStraight();
    void samplesAreResampledAndCut();
    void shortOutputsSetOnlyTheEnds();
    void resamplingOfOneValueRepeatsIt();
    void descendingOrder();
};

namespace {
constexpr float kInf = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
} // namespace

void TstDerivedQuantities::phaseDifferenceLiesWithinHalfATurn_data()
{
    QTest::addColumn<float>("a");
    QTest::addColumn<float>("b");
    QTest::addColumn<float>("difference");
    QTest::newRow("190 - -190") << 190.0f << -190.0f << 20.0f;
    QTest::newRow("0 - 180 stays") << 0.0f << 180.0f << -180.0f;
    QTest::newRow("180 - 0 stays") << 180.0f << 0.0f << 180.0f;
    QTest::newRow("181") << 181.0f << 0.0f << -179.0f;
    QTest::newRow("-181") << -181.0f << 0.0f << 179.0f;
    QTest::newRow("540 is 180") << 540.0f << 0.0f << 180.0f;
    QTest::newRow("-540 is -180") << -540.0f << 0.0f << -180.0f;
    QTest::newRow("900 is 180") << 900.0f << 0.0f << 180.0f;
    QTest::newRow("541") << 541.0f << 0.0f << -179.0f;
    QTest::newRow("-725") << -725.0f << 0.0f << -5.0f;
}

void TstDerivedQuantities::phaseDifferenceLiesWithinHalfATurn()
{
    QFETCH(float, a);
    QFETCH(float, b);
    QFETCH(float, difference);
    QCOMPARE(DataTypes::iu_pahse_difference(a, b), difference);
}

void TstDerivedQuantities::phaseDifferenceEndsAtOnceForAnyNumber()
{
    for (float value : { 1e30f, -1e30f, 3.4e38f, 1e10f })
        QVERIFY(std::fabs(DataTypes::iu_pahse_difference(value, 0)) <= 180);
    for (float value : { kInf, -kInf, kNaN })
        QVERIFY(std::isnan(DataTypes::iu_pahse_difference(value, 0)));
}

void TstDerivedQuantities::pltOfEqualValuesIsThatValue()
{
    const QList<float> values = QVector<float>(12, 0.73f).toList();
    QVERIFY(std::fabs(DataTypes::plt(&values, 12) - double(0.73f)) < 1e-12);
}

void TstDerivedQuantities::pltIsTheCubicMean()
{
    const QList<float> values { 1, 2, 3, 100 };
    QVERIFY(std::fabs(DataTypes::plt(&values, 3) - std::cbrt(36.0 / 3)) < 1e-9); // 1 + 8 + 27
    QVERIFY(std::fabs(DataTypes::plt(&values, 5) - std::cbrt(1000036.0 / 5)) < 1e-9); // only four are there
}

void TstDerivedQuantities::pltOfNothingIsNoNumber()
{
    const QList<float> values { 1, 2 };
    QVERIFY(std::isnan(DataTypes::plt(&values, 0)));
}

void TstDerivedQuantities::percentilesOfOneValueIgnoreTheFraction()
{
    QList<float> one { 4.5f };
    for (float p : { 0.0f, 0.5f, 1.0f, 7.0f, kNaN })
        QCOMPARE(DataTypes::percentiles(p, &one, 1), 4.5f);
}

void TstDerivedQuantities::percentilesInterpolateBetweenNeighbours()
{
    QList<float> values { 50, 40, 30, 20, 10 };
    QCOMPARE(DataTypes::percentiles(0.2f, &values, 5), 50.0f); // x = 1: element 0
    QCOMPARE(DataTypes::percentiles(0.25f, &values, 4), 50.0f);
    QCOMPARE(DataTypes::percentiles(0.5f, &values, 5), 35.0f); // x = 2.5
    QCOMPARE(DataTypes::percentiles(0.75f, &values, 5), 22.5f); // x = 3.75: 30 - 0.75 * 10
}

void TstDerivedQuantities::percentilesNeverReadOutsideTheList()
{
    QList<float> values { 3, 2, 1 };
    QCOMPARE(DataTypes::percentiles(0.1f, &values, 3), 3.0f);
    QCOMPARE(DataTypes::percentiles(-5.0f, &values, 3), 3.0f);
    QCOMPARE(DataTypes::percentiles(kNaN, &values, 3), 3.0f);
    QCOMPARE(DataTypes::percentiles(1.0f, &values, 3), 1.0f);
    QCOMPARE(DataTypes::percentiles(kInf, &values, 3), 1.0f);
    QCOMPARE(DataTypes::percentiles(0.5f, &values, 0xFFFFFFFF), DataTypes::percentiles(0.5f, &values, 3));
    QList<float> none;
    QCOMPARE(DataTypes::percentiles(0.5f, &none, 0), 0.0f);
    QCOMPARE(DataTypes::percentiles(0.5f, &none, 9), 0.0f);
}

void TstDerivedQuantities::pstOfEqualValues()
{
    for (float v : { 1.0f, 0.25f, 7.0f }) {
        QList<float> values = QVector<float>(30000, v).toList();
        QVERIFY(std::fabs(DataTypes::pst10min(&values, 30000) - std::sqrt(0.5096 * double(v))) < 1e-6);
    }
}

void TstDerivedQuantities::pstWeighsTheSmoothedPercentiles()
{
    // Steps of a descending list: the first 0.1 % are 100, up to 2 % are 50, up to 5 % are 20, up to 20 % are 10, the
    // rest 1. P0.1 stands at the first value behind the step, x = 30: element 29.
    QList<float> values;
    for (int i = 0; i < 30000; ++i)
        values << (i < 30 ? 100.0f : i < 600 ? 50.0f : i < 1500 ? 20.0f : i < 6000 ? 10.0f : 1.0f);
    const double expected = std::sqrt(0.0314 * 100 + 0.0525 * 50 + 0.0657 * 20 + 0.28 * 10 + 0.08 * 1);
    QVERIFY(std::fabs(DataTypes::pst10min(&values, 30000) - expected) < 1e-3);
}

void TstDerivedQuantities::pstOfARampFollowsEveryFraction()
{
    // 1000, 999 ... 1: the value at fraction p is 1001 - 1000 p, so each mean is that of its fractions.
    QList<float> values;
    for (int i = 1000; i > 0; --i)
        values << float(i);
    const double p1 = (0.007 + 0.01 + 0.015) / 3, p3 = (0.022 + 0.03 + 0.04) / 3;
    const double p10 = (0.06 + 0.08 + 0.1 + 0.13 + 0.17) / 5, p50 = (0.3 + 0.5 + 0.8) / 3;
    const double square = 0.5096 * 1001 - 1000 * (0.0314 * 0.001 + 0.0525 * p1 + 0.0657 * p3 + 0.28 * p10 + 0.08 * p50);
    const double pst = DataTypes::pst10min(&values, 1000);
    QVERIFY(std::fabs(pst * pst - square) < 1e-3); // a fraction that is 0.001 off moves it by 0.0175 at least
}

void TstDerivedQuantities::pstOfNegativeValuesIsNoNumber()
{
    QList<float> values = QVector<float>(30000, -1.0f).toList();
    QVERIFY(std::isnan(DataTypes::pst10min(&values, 30000)));
}

void TstDerivedQuantities::floatsAreResampledTo600()
{
    std::vector<float> in(1200);
    for (int i = 0; i < 1200; ++i)
        in[size_t(i)] = float(i * i);
    std::vector<float> out(602, -7.0f);
    DataTypes::lineInterpolation(out.data() + 1, in.data(), 1200);
    QCOMPARE(out[0], -7.0f);
    QCOMPARE(out[601], -7.0f);
    QCOMPARE(out[1], 0.0f);
    QCOMPARE(out[600], 1199.0f * 1199.0f);
    // i = 100: x = 100 * 1199 / 599 = 200.16694; 200^2 + 0.16694 * (201^2 - 200^2)
    QVERIFY(std::fabs(double(out[101]) - (40000 + 0.166945 * 401)) < 0.01);
}

void TstDerivedQuantities::resamplingOfAStraightLineStaysStraight()
{
    for (int n : { 2, 3, 599, 600, 601, 4096 }) {
        std::vector<float> in(static_cast<size_t>(n));
        for (int i = 0; i < n; ++i)
            in[size_t(i)] = float(i) / float(n - 1);
        float out[600];
        DataTypes::lineInterpolation(out, in.data(), n);
        for (int i = 0; i < 600; ++i)
            QVERIFY(std::fabs(double(out[i]) - i / 599.0) < 1e-5);
    }
}

void TstDerivedQuantities::samplesAreResampledAndCut()
{
    const short in[] = { 0, 10, -10 };
    short out[5];
    DataTypes::lineInterpolation(out, in, 5, 3);
    const short expected[] = { 0, 5, 10, 0, -10 };
    for (int i = 0; i < 5; ++i)
        QCOMPARE(out[i], expected[i]);
    short fine[4];
    DataTypes::lineInterpolation(fine, in, 4, 3); // x = 2/3 and 4/3: 6.67, 3.33
    QCOMPARE(fine[1], short(6));
    QCOMPARE(fine[2], short(3));
    const short wide[] = { -32768, 32767 };
    short half[3];
    DataTypes::lineInterpolation(half, wide, 3, 2); // -0.5 is cut towards zero
    QCOMPARE(half[1], short(0));
}

void TstDerivedQuantities::shortOutputsSetOnlyTheEnds()
{
    const short in[] = { 1, 2, 3 };
    short out[] = { 9, 9, 9 };
    DataTypes::lineInterpolation(out, in, 2, 3);
    QCOMPARE(out[0], short(1));
    QCOMPARE(out[1], short(3));
    QCOMPARE(out[2], short(9));
    DataTypes::lineInterpolation(out, in, 0, 3);
    DataTypes::lineInterpolation(out, in, -4, 3);
    DataTypes::lineInterpolation(out, in, 3, 0);
    QCOMPARE(out[1], short(3));
}

void TstDerivedQuantities::resamplingOfOneValueRepeatsIt()
{
    const float in[] = { 2.5f };
    float out[600] = {};
    DataTypes::lineInterpolation(out, in, 1);
    QVERIFY(std::all_of(out, out + 600, [](float v) { return v == 2.5f; }));
}

void TstDerivedQuantities::descendingOrder()
{
    QList<float> values { 1, 3, 2 };
    std::sort(values.begin(), values.end(), DataTypes::compare);
    QCOMPARE(values, (QList<float> { 3, 2, 1 }));
}

QTEST_GUILESS_MAIN(TstDerivedQuantities)
#include "tst_derivedquantities.moc"
