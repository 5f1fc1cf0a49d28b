#include "task/eventwave.h"
#include "task/rmsring.h"
#include "task/transientcutter.h"
#include "task/triggersearch.h"

#include <QTest>

#include <cmath>
#include <cstring>
#include <limits>
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
    void transientAt100BeginsAtSample0AndAt4000At3495();
    void transientTimeIsThatOfTheFirstSample();
    void eventWaveBegins810SamplesBeforeTheEvent_data();
    void eventWaveBegins810SamplesBeforeTheEvent();
    void eventWaveHoldsVoltageAndCurrentOfEachChannelInTurn();
    void eventWaveSpansBothDatagrams();
    void eventWaveOfOneDatagramIsEmpty();
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
    // A wave that never falls below zero: its rising slope from sample 205 on is no crossing.
    std::vector<qint16> raised(4096);
    for (int i = 0; i < 4096; ++i)
        raised[std::size_t(i)] = qint16(1000 + std::lround(900 * std::cos(2 * M_PI * i / 410)));
    QCOMPARE(TriggerSearch::findTrigger(raised.data()), 0);
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

void TstTaskParts::transientAt100BeginsAtSample0AndAt4000At3495()
{
    const auto cutAt = [](quint32 position) {
        auto wave = std::make_unique<__datagram_wave>();
        for (int i = 0; i < kWaveSamples; ++i)
            wave->voltage[0][i] = qint16(i);
        wave->transient = 1u << 24 | position;
        auto record = std::make_unique<__trans_data>();
        TransientCutter::cut(*wave, *record);
        return record;
    };
    QCOMPARE(cutAt(100)->samples[0][0], qint16(0));
    QCOMPARE(cutAt(100)->position, 1u << 24 | 100u);
    QCOMPARE(cutAt(4000)->samples[0][0], qint16(3495));
    QCOMPARE(cutAt(4000)->position, 1u << 24 | 505u);
}

namespace {

constexpr qint64 kFirst = 1'700'000'000'000; // ms: first sample of the first datagram

/// Two datagrams in a row; sample i of channel c holds i + 100 c, the second goes on with 5000, currents are negative.
EventWave eventWave(qint64 eventTime)
{
    EventWave wave { eventTime, {} };
    for (int d = 0; d < 2; ++d) {
        auto datagram = std::make_shared<__datagram_wave>();
        datagram->time = kFirst + 200 * d;
        for (int c = 0; c < kChannels; ++c) {
            for (int i = 0; i < kWaveSamples; ++i) {
                datagram->voltage[c][i] = qint16(5000 * d + i + 100 * c);
                datagram->current[c][i] = qint16(-(5000 * d + i + 100 * c));
            }
        }
        wave.samples.append(datagram);
    }
    return wave;
}

double timeOf(const QByteArray &block)
{
    double time = 0;
    std::memcpy(&time, block.constData(), sizeof time);
    return time;
}

/// Sample \a index of the \a series th series of 2048 behind the time.
qint16 sampleOf(const QByteArray &block, int series, int index)
{
    qint16 value = 0;
    std::memcpy(&value, block.constData() + 8 + 2 * (2048 * series + index), sizeof value);
    return value;
}

} // namespace

void TstTaskParts::eventWaveBegins810SamplesBeforeTheEvent_data()
{
    QTest::addColumn<qint64>("eventTime");
    QTest::addColumn<int>("first"); // sample the window begins with
    QTest::addColumn<double>("time");
    QTest::newRow("at the first sample: nothing before it") << kFirst << 0 << double(kFirst);
    QTest::newRow("39 ms: 798 samples, still the start") << kFirst + 39 << 0 << double(kFirst);
    QTest::newRow("40 ms: 819.2 samples") << kFirst + 40 << 9 << double(kFirst) + 9 * 200.0 / 4096;
    QTest::newRow("100 ms: 2048 samples") << kFirst + 100 << 1238 << double(kFirst) + 1238 * 200.0 / 4096;
    QTest::newRow("before the datagram") << kFirst - 500 << 0 << double(kFirst);
    QTest::newRow("340 ms: 6963.2 samples, behind the last start") << kFirst + 340 << 6144 << double(kFirst) + 300;
    QTest::newRow("a day late") << kFirst + 86'400'000 << 6144 << double(kFirst) + 300;
    QTest::newRow("latest time") << std::numeric_limits<qint64>::max() << 6144 << double(kFirst) + 300;
    QTest::newRow("earliest time") << std::numeric_limits<qint64>::min() << 0 << double(kFirst);
}

void TstTaskParts::eventWaveBegins810SamplesBeforeTheEvent()
{
    QFETCH(qint64, eventTime);
    QFETCH(int, first);
    QFETCH(double, time);
    const QByteArray block = EventWaveCutter::block(eventWave(eventTime), 0b0001);
    QCOMPARE(block.size(), 8 + 2 * 4096);
    QCOMPARE(timeOf(block), time);
    QCOMPARE(int(sampleOf(block, 0, 0)), first < 4096 ? first : 5000 + first - 4096);
    const int last = first + 2047;
    QCOMPARE(int(sampleOf(block, 0, 2047)), last < 4096 ? last : 5000 + last - 4096);
}

void TstTaskParts::eventWaveHoldsVoltageAndCurrentOfEachChannelInTurn()
{
    const EventWave wave = eventWave(kFirst);
    const QByteArray all = EventWaveCutter::block(wave, 0b1111);
    QCOMPARE(all.size(), 8 + 8 * 4096);
    for (int c = 0; c < 4; ++c) {
        QCOMPARE(int(sampleOf(all, 2 * c, 1)), 1 + 100 * c);
        QCOMPARE(int(sampleOf(all, 2 * c + 1, 1)), -(1 + 100 * c));
    }
    const QByteArray split = EventWaveCutter::block(wave, 0b1011); // L1, L2, N
    QCOMPARE(split.size(), 8 + 6 * 4096);
    QCOMPARE(int(sampleOf(split, 4, 1)), 301);
    QCOMPARE(int(sampleOf(split, 5, 1)), -301);
}

void TstTaskParts::eventWaveSpansBothDatagrams()
{
    const QByteArray block = EventWaveCutter::block(eventWave(kFirst + 200), 0b0001); // 4096 - 810 = 3286
    QCOMPARE(int(sampleOf(block, 0, 0)), 3286);
    QCOMPARE(int(sampleOf(block, 0, 809)), 4095);
    QCOMPARE(int(sampleOf(block, 0, 810)), 5000);
    QCOMPARE(int(sampleOf(block, 0, 2047)), 5000 + 1237);
    QCOMPARE(int(sampleOf(block, 1, 810)), -5000);
}

void TstTaskParts::eventWaveOfOneDatagramIsEmpty()
{
    EventWave wave = eventWave(kFirst);
    wave.samples.removeLast();
    QVERIFY(EventWaveCutter::block(wave, 0b1111).isEmpty());
    wave.samples.clear();
    QVERIFY(EventWaveCutter::block(wave, 0b1111).isEmpty());
}

QTEST_GUILESS_MAIN(TstTaskParts)
#include "tst_taskparts.moc"
