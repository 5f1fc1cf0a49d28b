#include "model/displayrecords.h"
#include "detect/flickerprocessor.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <memory>

class TstFlickerProcessor : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void firstShortTermValueComesWithThe30000thMean();
    void meanIsOf40ValuesAcrossDatagrams();
    void trendHolds600Means();
    void bufferIsDescending();
    void valueEqualToTheLargestGoesBehindItsEquals();
    void notANumberFindsAPlace();
    void maximumIsOfThisWindowAndTheOneBefore();
    void windowLengthOfZeroHoldsEachValue();
    void longTermValueConsumesTwelveShortTermValues();
    void phaseWithoutNewValueRepeatsTheLastComputed();
    void blocksHoldTheGivenHead();
    void valuesForThePagesFollowTheirPhaseOnly();
    void valuesForThePagesAreTheLatest();
    void closingNeedsMoreThanTheThreshold();
    void closingCapsTheLongTermValueAtTwenty();
    void closingBlocksHoldOnlyPhasesThatHadEnough();
    void clearForgetsIntervalsAndTrends();
    void oddFloatsHangNothing();

private:
    void fillInterval(int phase, float value, int means = FlickerProcessor::kIntervalValues);
    FlickerOutput feed(float value);

    std::unique_ptr<FlickerProcessor> m_processor;
    std::unique_ptr<__flicker_data> m_data;
    std::unique_ptr<__datagram_flicker> m_record;
};

namespace {

float floatAt(const QByteArray &block, int offset)
{
    float value = std::numeric_limits<float>::quiet_NaN();
    if (offset + 4 <= block.size())
        std::memcpy(&value, block.constData() + offset, 4);
    return value;
}

/// Short-term value of an interval in which all means are v: the five weights of the multipoint method sum to 0.5096.
float pstOf(float v)
{
    return std::sqrt(0.5096f * v);
}

bool isNear(float value, float expected)
{
    return std::fabs(value - expected) < 1e-4f * std::max(1.0f, expected);
}

} // namespace

void TstFlickerProcessor::init()
{
    m_processor = std::make_unique<FlickerProcessor>();
    m_data = std::make_unique<__flicker_data>();
    m_record = std::make_unique<__datagram_flicker>();
    m_record->samplesPerWindow = 50;
}

void TstFlickerProcessor::fillInterval(int phase, float value, int means)
{
    for (int i = 0; i < means; ++i)
        m_processor->insertFlickerPinst(phase, value);
}

FlickerOutput TstFlickerProcessor::feed(float value)
{
    for (auto &phase : m_record->pinst)
        std::fill(std::begin(phase), std::end(phase), value);
    return m_processor->process(*m_record, QByteArray("head"), *m_data);
}

void TstFlickerProcessor::firstShortTermValueComesWithThe30000thMean()
{
    // 500 values a datagram, 40 a mean: 30000 means are 2400 datagrams.
    for (int i = 0; i < 2399; ++i)
        QCOMPARE(feed(1.0f).shortTerm, 0u);
    QCOMPARE(m_processor->intervalValues(0).size(), 29987);
    const FlickerOutput out = feed(1.0f);
    QCOMPARE(out.shortTerm, 0b111u);
    QCOMPARE(out.longTerm, 0u);
    for (int p = 0; p < 3; ++p) {
        QVERIFY(isNear(m_data->pst[p], pstOf(1.0f)));
        QCOMPARE(m_data->pstTrend[p].size(), 1);
        QVERIFY(m_processor->intervalValues(p).isEmpty());
    }
}

void TstFlickerProcessor::meanIsOf40ValuesAcrossDatagrams()
{
    feed(2.0f);
    QCOMPARE(m_data->pinstTrend[0].size(), 12); // 12 x 40 values, 20 are left
    feed(4.0f);
    QCOMPARE(m_data->pinstTrend[0].size(), 25);
    QCOMPARE(m_data->pinstTrend[0].at(11), 2.0f);
    QCOMPARE(m_data->pinstTrend[0].at(12), 3.0f); // 20 of each
    QCOMPARE(m_data->pinstTrend[0].at(13), 4.0f);
}

void TstFlickerProcessor::trendHolds600Means()
{
    for (int i = 0; i < 60; ++i)
        feed(float(i));
    QCOMPARE(m_data->pinstTrend[2].size(), 600); // of 750
    QCOMPARE(m_data->pinstTrend[2].constLast(), 59.0f);
    QCOMPARE(m_data->pinstTrend[2].constFirst(), 12.0f); // mean number 150 begins with value 6000 of 500 a step
}

void TstFlickerProcessor::bufferIsDescending()
{
    std::vector<float> expected;
    quint32 state = 5;
    for (int i = 0; i < 2000; ++i) {
        state = state * 1664525u + 1013904223u;
        const float value = float((state >> 20) % 300);
        expected.push_back(value);
        m_processor->insertFlickerPinst(1, value);
    }
    std::sort(expected.begin(), expected.end(), std::greater<float>());
    const QList<float> &values = m_processor->intervalValues(1);
    QCOMPARE(values.size(), 2000);
    QVERIFY(std::equal(expected.begin(), expected.end(), values.begin()));
}

void TstFlickerProcessor::valueEqualToTheLargestGoesBehindItsEquals()
{
    // Minus zero equals zero and can be distinguished from it.
    m_processor->insertFlickerPinst(0, 0.0f);
    m_processor->insertFlickerPinst(0, -1.0f);
    m_processor->insertFlickerPinst(0, -0.0f);
    const QList<float> &values = m_processor->intervalValues(0);
    QVERIFY(!std::signbit(values.at(0)));
    QVERIFY(std::signbit(values.at(1)));
    QCOMPARE(values.at(2), -1.0f);
}

void TstFlickerProcessor::notANumberFindsAPlace()
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (const float value : { nan, 3.0f, 1.0f, nan, 2.0f, nan })
        m_processor->insertFlickerPinst(0, value);
    QCOMPARE(m_processor->intervalValues(0).size(), 6);
}

void TstFlickerProcessor::maximumIsOfThisWindowAndTheOneBefore()
{
    m_record->samplesPerWindow = 500;
    feed(3.0f);
    QCOMPARE(m_data->flickerMax[0], 3.0f);
    feed(1.0f);
    QCOMPARE(m_data->flickerMax[0], 1.0f); // the window ended with the datagram
    m_record->samplesPerWindow = 400;
    feed(5.0f); // the window ends after 400, 100 values of the next one follow
    for (auto &phase : m_record->pinst)
        std::fill(std::begin(phase), std::end(phase), 2.0f);
    m_record->samplesPerWindow = 1000;
    m_processor->process(*m_record, QByteArray(), *m_data);
    QCOMPARE(m_data->flickerMax[1], 5.0f); // of the running window: its first 100 values
    feed(std::numeric_limits<float>::quiet_NaN());
    QCOMPARE(m_data->flickerMax[1], 5.0f);
}

void TstFlickerProcessor::windowLengthOfZeroHoldsEachValue()
{
    m_record->samplesPerWindow = 0;
    feed(7.0f);
    QCOMPARE(m_data->flickerMax[0], 7.0f);
}

void TstFlickerProcessor::longTermValueConsumesTwelveShortTermValues()
{
    for (int i = 1; i <= 24; ++i) {
        for (int p = 0; p < 3; ++p)
            fillInterval(p, float(p + 1));
        const FlickerOutput out = feed(0.0f);
        QCOMPARE(out.shortTerm, 0b111u);
        QCOMPARE(out.longTerm, i % 12 == 0 ? 0b111u : 0u);
        QCOMPARE(m_processor->shortTermValues(0).size(), i % 12);
        // Twelve nearly equal values give their own size; the few means of the feeding datagram are zeros.
        if (i % 12 == 0) {
            for (int p = 0; p < 3; ++p) {
                QVERIFY(std::fabs(out.plt[p] - pstOf(float(p + 1))) < 0.01f);
                QVERIFY(std::fabs(m_data->plt[p] - pstOf(float(p + 1))) < 0.01f);
            }
        }
    }
    QCOMPARE(m_data->pltTrend[0].size(), 2);
    QCOMPARE(m_data->pstTrend[0].size(), 24);
}

void TstFlickerProcessor::phaseWithoutNewValueRepeatsTheLastComputed()
{
    fillInterval(1, 4.0f);
    const FlickerOutput out = feed(0.0f);
    QCOMPARE(out.shortTerm, 0b010u);
    QCOMPARE(out.shortBlock.size(), 4 + 3 * 4);
    QCOMPARE(floatAt(out.shortBlock, 4), 0.0f); // nothing was computed yet
    QVERIFY(floatAt(out.shortBlock, 8) > 1.4f);
    QCOMPARE(floatAt(out.shortBlock, 12), floatAt(out.shortBlock, 8));
    fillInterval(2, 9.0f);
    const FlickerOutput next = feed(0.0f);
    QCOMPARE(floatAt(next.shortBlock, 4), floatAt(out.shortBlock, 8));
    QVERIFY(floatAt(next.shortBlock, 12) > 2.1f);
}

void TstFlickerProcessor::blocksHoldTheGivenHead()
{
    const FlickerOutput none = feed(1.0f);
    QCOMPARE(none.shortBlock, QByteArray("head"));
    QCOMPARE(none.longBlock, QByteArray("head"));
    fillInterval(0, 1.0f);
    const FlickerOutput out = feed(1.0f);
    QVERIFY(out.shortBlock.startsWith("head"));
    QCOMPARE(out.longBlock, QByteArray("head"));
}

void TstFlickerProcessor::valuesForThePagesFollowTheirPhaseOnly()
{
    fillInterval(2, 1.0f);
    feed(0.0f);
    QCOMPARE(m_data->pst[0], 0.0f);
    QVERIFY(m_data->pst[2] > 0.7f);
    QCOMPARE(m_data->plt[2], 0.0f);
}

void TstFlickerProcessor::valuesForThePagesAreTheLatest()
{
    for (const float level : { 1.0f, 4.0f }) {
        for (int interval = 0; interval < 12; ++interval) {
            fillInterval(0, level);
            feed(0.0f);
            QVERIFY(std::fabs(m_data->pst[0] - pstOf(level)) < 0.01f);
        }
        QVERIFY(std::fabs(m_data->plt[0] - pstOf(level)) < 0.01f);
    }
}

void TstFlickerProcessor::closingNeedsMoreThanTheThreshold()
{
    fillInterval(0, 1.0f, 29899);
    fillInterval(1, 1.0f, 29900);
    const FlickerOutput out = m_processor->closeIntervals(29899, QByteArray("head"), *m_data);
    QCOMPARE(out.shortTerm, 0b010u);
    QCOMPARE(m_processor->intervalValues(0).size(), 29899);
    QVERIFY(m_processor->intervalValues(1).isEmpty());
    QVERIFY(isNear(m_data->pstTrend[1].constLast(), pstOf(1.0f)));
}

void TstFlickerProcessor::closingCapsTheLongTermValueAtTwenty()
{
    for (int i = 0; i < 12; ++i) {
        fillInterval(0, 10'000.0f, 100); // Pst 71
        const FlickerOutput out = m_processor->closeIntervals(99, QByteArray("head"), *m_data);
        QCOMPARE(out.longTerm, i == 11 ? 1u : 0u);
        if (i == 11) {
            QCOMPARE(out.plt[0], 20.0f);
            QCOMPARE(floatAt(out.longBlock, 4), 20.0f);
            QCOMPARE(m_data->pltTrend[0].constLast(), 20.0f);
        }
    }
    // A running measurement does not cap.
    for (int i = 0; i < 12; ++i) {
        fillInterval(0, 10'000.0f);
        const FlickerOutput out = feed(0.0f);
        if (i == 11)
            QVERIFY(out.plt[0] > 70.0f);
    }
}

void TstFlickerProcessor::closingBlocksHoldOnlyPhasesThatHadEnough()
{
    fillInterval(0, 1.0f, 200);
    fillInterval(2, 4.0f, 200);
    const FlickerOutput out = m_processor->closeIntervals(100, QByteArray("head"), *m_data);
    QCOMPARE(out.shortBlock.size(), 4 + 2 * 4);
    QVERIFY(isNear(floatAt(out.shortBlock, 4), pstOf(1.0f)));
    QVERIFY(isNear(floatAt(out.shortBlock, 8), pstOf(4.0f)));
    QCOMPARE(out.longBlock, QByteArray("head"));
}

void TstFlickerProcessor::clearForgetsIntervalsAndTrends()
{
    fillInterval(0, 1.0f);
    feed(1.0f);
    m_processor->clear(*m_data);
    QVERIFY(m_processor->intervalValues(1).isEmpty());
    QVERIFY(m_processor->shortTermValues(0).isEmpty());
    QVERIFY(m_data->pinstTrend[0].isEmpty());
    QVERIFY(m_data->pstTrend[0].isEmpty());
    feed(1.0f);
    QCOMPARE(m_data->pinstTrend[0].size(), 12); // no rest of a sum from before
}

void TstFlickerProcessor::oddFloatsHangNothing()
{
    const float odd[] = {
        std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(), -1e30f, 1e30f, 1e-45f, 0.0f
    };
    quint32 state = 9;
    for (int i = 0; i < 500; ++i) {
        for (auto &phase : m_record->pinst) {
            for (float &value : phase) {
                state = state * 1664525u + 1013904223u;
                value = odd[(state >> 20) % std::size(odd)];
            }
        }
        m_record->samplesPerWindow = state;
        m_processor->process(*m_record, QByteArray(), *m_data);
    }
    m_processor->closeIntervals(0, QByteArray(), *m_data);
    QVERIFY(m_processor->intervalValues(0).isEmpty());
}

QTEST_GUILESS_MAIN(TstFlickerProcessor)
#include "tst_flickerprocessor.moc"
