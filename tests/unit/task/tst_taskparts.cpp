#include "task/rmsring.h"
#include "task/transientcutter.h"
#include "task/triggersearch.h"

#include <QTest>

#include <cmath>
#include <memory>
#include <vector>

class TstTaskParts : public QObject
{
    Q_OBJECT

private slots:
    void ringGivesValuesInTheirOrder();
    void fullRingReadsAsEmpty();
    void emptyRingStaysEmpty();
    void triggerStandsAtTheRisingCrossing_data();
    void triggerStandsAtTheRisingCrossing();
    void triggerAtTheVeryFirstSamples();
    void triggerWithoutCrossingStartsAtZero();
    void triggerNeverLeavesTheWindow();
    void transientWindow_data();
    void transientWindow();
    void transientTimeIsThatOfTheFirstSample();
};

void TstTaskParts::ringGivesValuesInTheirOrder()
{
    RmsRing ring;
    for (int i = 0; i < 3000; ++i) { // wraps twice
        ring.rmsfifoPush(float(i));
        ring.rmsfifoPush(float(i) + 0.5f);
        QCOMPARE(ring.rmsfifoCount(), 2);
        QCOMPARE(ring.rms_data_extract(), float(i));
        QCOMPARE(ring.rms_data_extract(), float(i) + 0.5f);
    }
    QCOMPARE(ring.rmsfifoCount(), 0);
}

void TstTaskParts::fullRingReadsAsEmpty()
{
    RmsRing ring;
    for (int i = 0; i < 1023; ++i)
        ring.rmsfifoPush(1.0f);
    QCOMPARE(ring.rmsfifoCount(), 1023);
    ring.rmsfifoPush(1.0f);
    QCOMPARE(ring.rmsfifoCount(), 0);
}

void TstTaskParts::emptyRingStaysEmpty()
{
    RmsRing ring;
    ring.rms_data_extract();
    QCOMPARE(ring.rmsfifoCount(), 0);
    ring.rmsfifoPush(7.0f);
    QCOMPARE(ring.rms_data_extract(), 7.0f);
}

void TstTaskParts::triggerStandsAtTheRisingCrossing_data()
{
    QTest::addColumn<double>("phase"); // degrees of the first sample
    QTest::addColumn<int>("start"); // sample nearest to the rising crossing, one cycle is 409.6 samples
    QTest::newRow("quarter before the peak") << 90.0 << 307; // 270 of 360 degrees: 307.2
    QTest::newRow("at the negative peak") << 270.0 << 102; // 90 degrees: 102.4
    QTest::newRow("falling crossing first") << 180.0 << 205; // 204.8
    QTest::newRow("just after the crossing") << 3.0 << 406; // 357 degrees: 406.19
}

void TstTaskParts::triggerStandsAtTheRisingCrossing()
{
    QFETCH(double, phase);
    QFETCH(int, start);
    std::vector<qint16> samples(4096);
    for (int i = 0; i < 4096; ++i)
        samples[i] = qint16(std::lround(20000 * std::sin((phase / 360.0 + i / 409.6) * 2 * M_PI)));
    QCOMPARE(TriggerSearch::findTrigger(samples.data()), start);
}

void TstTaskParts::triggerAtTheVeryFirstSamples()
{
    std::vector<qint16> samples(4096);
    for (int i = 0; i < 4096; ++i)
        samples[i] = qint16(std::lround(20000 * std::sin(i / 409.6 * 2 * M_PI)));
    QCOMPARE(TriggerSearch::findTrigger(samples.data()), 0);
}

void TstTaskParts::triggerWithoutCrossingStartsAtZero()
{
    std::vector<qint16> flat(4096, 100);
    QCOMPARE(TriggerSearch::findTrigger(flat.data()), 0);
    std::vector<qint16> zero(4096, 0);
    QCOMPARE(TriggerSearch::findTrigger(zero.data()), 0);
}

void TstTaskParts::triggerNeverLeavesTheWindow()
{
    quint32 seed = 1;
    for (int run = 0; run < 200; ++run) {
        std::vector<qint16> samples(4096);
        for (qint16 &s : samples) {
            seed = seed * 1664525u + 1013904223u;
            s = qint16(seed >> 16);
        }
        const int start = TriggerSearch::findTrigger(samples.data());
        QVERIFY(start >= 0 && start + 3687 <= 4096);
    }
}

void TstTaskParts::transientWindow_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("inside");
    QTest::newRow("near the beginning") << 100 << 0 << 100;
    QTest::newRow("first that is not clamped") << 302 << 1 << 301;
    QTest::newRow("in the middle") << 2000 << 1699 << 301;
    QTest::newRow("near the end") << 4000 << 3495 << 505;
    QTest::newRow("beyond the window") << 0xFFFFFF << 3495 << 0xFFFFFF - 3495;
}

void TstTaskParts::transientWindow()
{
    QFETCH(int, position);
    QFETCH(int, start);
    QFETCH(int, inside);
    auto wave = std::make_unique<__datagram_wave>();
    for (int c = 0; c < kChannels; ++c) {
        for (int i = 0; i < kWaveSamples; ++i)
            wave->voltage[c][i] = qint16(i + 1000 * c);
    }
    wave->time = 0;
    wave->transient = (2u << 24) | quint32(position);
    auto record = std::make_unique<__trans_data>();
    TransientCutter::cut(*wave, *record);
    QCOMPARE(int(record->position & 0xFFFFFF), inside);
    QCOMPARE(int(record->position >> 24), 2);
    for (int c = 0; c < kChannels; ++c) {
        QCOMPARE(int(record->samples[c][0]), start + 1000 * c);
        QCOMPARE(int(record->samples[c][599]), start + 599 + 1000 * c);
    }
}

void TstTaskParts::transientTimeIsThatOfTheFirstSample()
{
    auto wave = std::make_unique<__datagram_wave>();
    wave->time = 1'700'000'000'000;
    wave->transient = (1u << 24) | 2349; // start 2048: half of the 200 ms
    auto record = std::make_unique<__trans_data>();
    TransientCutter::cut(*wave, *record);
    QCOMPARE(record->time, 1'700'000'000'100.0);
}

QTEST_GUILESS_MAIN(TstTaskParts)
#include "tst_taskparts.moc"
