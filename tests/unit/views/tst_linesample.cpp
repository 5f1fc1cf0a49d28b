#include "views/scope/linesample.h"

#include <QTest>

#include <cmath>
#include <vector>

/// Samples of some cycles, thinned to the points of the scope.
class TstLineSample : public QObject
{
    Q_OBJECT

private slots:
    void oneCycleSpreadsTheFirstTenthOverAllPoints();
    void eightCyclesReachTheLastPointOfTheEighth();
    void pointsBetweenSamplesLieOnTheLine();
    void negativeValuesAreCutTowardsZero();
    void readingNeverLeavesTheSource();
    void fullScaleJumpsDoNotOverflow();
    void uselessNumbersWriteNothing();
};

void TstLineSample::oneCycleSpreadsTheFirstTenthOverAllPoints()
{
    std::vector<qint16> src(4096);
    for (int i = 0; i < 4096; ++i)
        src[i] = qint16(i);
    qint16 dst[600];
    lineSample(dst, src.data(), 600, 1, 4096, 10);
    for (int i = 0; i < 600; ++i)
        QCOMPARE(int(dst[i]), i * 409 / 599); // 4096 / 10 in whole samples
}

void TstLineSample::eightCyclesReachTheLastPointOfTheEighth()
{
    std::vector<qint16> src(4096);
    for (int i = 0; i < 4096; ++i)
        src[i] = qint16(i);
    qint16 dst[600];
    lineSample(dst, src.data(), 600, 8, 4096, 10);
    QCOMPARE(int(dst[0]), 0);
    QCOMPARE(int(dst[300]), 300 * 3272 / 599);
    QCOMPARE(int(dst[599]), 8 * 409);
}

void TstLineSample::pointsBetweenSamplesLieOnTheLine()
{
    std::vector<qint16> src(4096, 0);
    for (int i = 0; i < 420; ++i)
        src[i] = qint16(10 * i);
    qint16 dst[600];
    lineSample(dst, src.data(), 600, 1, 4096, 10);
    for (int i = 0; i < 600; ++i)
        QCOMPARE(int(dst[i]), 4090 * i / 599);
}

void TstLineSample::negativeValuesAreCutTowardsZero()
{
    std::vector<qint16> src(4096, 0);
    for (int i = 0; i < 420; ++i)
        src[i] = qint16(-10 * i);
    qint16 dst[600];
    lineSample(dst, src.data(), 600, 1, 4096, 10);
    for (int i = 0; i < 600; ++i)
        QCOMPARE(int(dst[i]), -(4090 * i / 599));
}

void TstLineSample::readingNeverLeavesTheSource()
{
    std::vector<qint16> src(50, 7);
    src.back() = 11;
    for (const int step : { 1, 10, 11, 1000, 2000000000 }) {
        qint16 dst[600];
        lineSample(dst, src.data(), 600, step, 50, 10);
        QCOMPARE(int(dst[0]), 7);
        if (step > 10)
            QCOMPARE(int(dst[599]), 11);
    }
}

void TstLineSample::fullScaleJumpsDoNotOverflow()
{
    std::vector<qint16> src(4096);
    for (int i = 0; i < 4096; ++i)
        src[i] = i % 2 ? 32767 : -32768;
    qint16 dst[600];
    lineSample(dst, src.data(), 600, 1, 4096, 10);
    // Point 300 lies at 300 x 409 / 599 = 204.841...: between -32768 and 32767.
    const double p = 300 * 409 / 599.0;
    QVERIFY(std::abs(dst[300] - (-32768 + (p - 204) * 65535)) < 8);
}

void TstLineSample::uselessNumbersWriteNothing()
{
    const qint16 src[4] = { 1, 2, 3, 4 };
    qint16 dst[2] = { 9, 9 };
    lineSample(dst, src, 0, 1, 4, 1);
    lineSample(dst, src, 2, 0, 4, 1);
    lineSample(dst, src, 2, 1, 0, 1);
    lineSample(dst, src, 2, 1, 4, 0);
    QCOMPARE(int(dst[0]), 9);
    lineSample(dst, src, 1, 1, 4, 1);
    QCOMPARE(int(dst[0]), 1);
    QCOMPARE(int(dst[1]), 9);
}

QTEST_GUILESS_MAIN(TstLineSample)
#include "tst_linesample.moc"
