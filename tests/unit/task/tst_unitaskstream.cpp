#include "unit/wildfloats.h"
#include "model/pqaeventitem.h"
#include "settings/recordinfo.h"
#include "storedblocks.h"
#include "unitaskcase.h"

#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <limits>

/// Half cycles, transients, flicker, what is stored of them, and payloads of any bytes.
class TstUniTaskStream : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void halfCyclesFeedTrendsAndMeans();
    void trendsKeepTheirLength();
    void singlePhaseWiringFeedsOneChannel();
    void dipIsListed();
    void listsGoOnBehindAHoldAndShowItsMoment();
    void transientIsCutAndListed();
    void transientNumberRestartsWithTheTask();
    void transientCodesFollowTheWiring();
    void transientOfCode3IsIgnoredInSplitPhase();
    void oldestTransientGoesAtThousand();
    void shortPayloadsAreDropped();
    void countsOutOfRangeFeedAtMostThirtyHalfCycles_data();
    void countsOutOfRangeFeedAtMostThirtyHalfCycles();
    void wildValuesHurtNothing();
    void anyPayloadAtAnyTimeInAnyWiringKeepsTheListsBounded();
    void recordersStoreTransientAndEvents();
    void recorderStoresTheWaveformOfAnEvent();
    void flickerValuesGoToTheFileOfTheFunction_data();
    void flickerValuesGoToTheFileOfTheFunction();

private:
    void start()
    {
        m_task->initUniFunction(AbstractTask::UniBasic);
        m_task->startTask();
    }
    QList<ReadBlock> recorded() const
    {
        return storedBlocks(m_task->recorder().folder().file(QStringLiteral("Common.pqa2")));
    }
    std::unique_ptr<UniTask> m_task;
};

void TstUniTaskStream::init()
{
    renewRecords();
    m_task = std::make_unique<UniTask>(liveData());
}

void TstUniTaskStream::cleanup()
{
    m_task.reset();
    dropRecords();
}

void TstUniTaskStream::halfCyclesFeedTrendsAndMeans()
{
    start();
    m_task->datagramRMS_1_2(halfCycles(20, 2.9f, 1.0f).bytes());
    for (int c = 0; c < 3; ++c) {
        QCOMPARE(live().dips.voltage[c].size(), 20);
        QCOMPARE(live().dips.voltage[c].first(), 2.9f * kVolt);
        QCOMPARE(live().dips.voltage[c].last(), (2.9f + 0.001f * 19) * kVolt);
        QCOMPARE(live().dips.current[c].last(), kAmpere);
        QCOMPARE(live().inrush.current[c].size(), 20);
        QVERIFY(std::fabs(live().mainsSignal.rms1[c] - (2.9f + 0.0095f) * kVolt) < 0.001f); // mean of 0 to 19 is 9.5
        QCOMPARE(live().mainsSignal.rms2[c], kAmpere);
    }
    QVERIFY(live().dips.voltage[3].isEmpty());
}

void TstUniTaskStream::trendsKeepTheirLength()
{
    start();
    for (int i = 0; i < 320; ++i)
        m_task->datagramRMS_1_2(halfCycles(20, 2.9f, 1.0f, kNow + 200 * i).bytes());
    QCOMPARE(live().dips.voltage[0].size(), 6000); // a minute at 100 values a second
    QCOMPARE(live().inrush.current[0].size(), 600); // the first duration is six seconds
}

void TstUniTaskStream::singlePhaseWiringFeedsOneChannel()
{
    m_settingConfig_g.setJoinMode(3);
    start();
    m_task->datagramRMS_1_2(halfCycles(20, 2.9f, 1.0f).bytes());
    QCOMPARE(live().dips.voltage[0].size(), 20);
    QVERIFY(live().dips.voltage[1].isEmpty());
    QVERIFY(live().dips.voltage[2].isEmpty());
}

void TstUniTaskStream::dipIsListed()
{
    start();
    QSignalSpy changes(&liveData().events(), &EventList::changed);
    QSignalSpy buzzer(m_task.get(), &UniTask::buzzerRing);
    m_task->datagramRMS_1_2(halfCycles(10, 2.9f, 0.001f).bytes());
    QCOMPARE(changes.count(), 0);
    m_task->datagramRMS_1_2(halfCycles(10, 1.5f, 0.001f, kNow + 100).bytes()); // 118.9 V of 230 V
    QCOMPARE(liveData().events().size(), 1);
    QCOMPARE(liveData().events().at(0).type, qint32(EventDip));
    QCOMPARE(liveData().events().at(0).startTime, kNow + 100);
    QCOMPARE(liveData().events().at(0).finished, 0);
    QCOMPARE(buzzer.count(), 1);
    QCOMPARE(changes.count(), 1);
    m_task->datagramRMS_1_2(halfCycles(10, 2.9f, 0.001f, kNow + 200).bytes());
    QCOMPARE(liveData().events().at(0).finished, 1);
    QCOMPARE(liveData().events().at(0).duration, 100);
    QCOMPARE(liveData().events().at(0).value, 1.5f * kVolt);
    QCOMPARE(changes.count(), 2);
}

void TstUniTaskStream::listsGoOnBehindAHoldAndShowItsMoment()
{
    start();
    EventList &events = liveData().events();
    m_task->datagramRMS_1_2(halfCycles(10, 2.9f, 0.001f).bytes());
    m_task->datagramRMS_1_2(halfCycles(10, 1.5f, 0.001f, kNow + 100).bytes());
    m_task->datagramWave(wave((2u << 24) | 2000).bytes());
    m_task->pauseTask();
    m_task->datagramRMS_1_2(halfCycles(10, 2.9f, 0.001f, kNow + 200).bytes()); // the dip ends
    m_task->datagramRMS_1_2(halfCycles(10, 1.4f, 0.001f, kNow + 300).bytes()); // another one begins
    m_task->datagramWave(wave((1u << 24) | 100).bytes());
    QCOMPARE(events.size(), 2);
    QCOMPARE(liveData().transients().size(), 2);
    QCOMPARE(events.shownSize(), 1);
    QCOMPARE(events.shownAt(0).finished, 0);
    QCOMPARE(liveData().transients().shownSize(), 1);
    m_task->continueTask();
    QCOMPARE(events.shownSize(), 2);
    QCOMPARE(events.shownAt(0).duration, 100);
    QCOMPARE(liveData().transients().shownSize(), 2);
}

void TstUniTaskStream::transientIsCutAndListed()
{
    start();
    m_task->datagramAggregation(aggregation(-50.1f).bytes());
    QSignalSpy spy(m_task.get(), &UniTask::hasTransEvents);
    m_task->datagramWave(wave((2u << 24) | 2000).bytes());
    m_task->datagramWave(wave((1u << 24) | 100).bytes());
    QCOMPARE(spy.count(), 2);
    QCOMPARE(liveData().transients().size(), 2);
    QCOMPARE(liveData().transients().at(0).number, 1);
    QCOMPARE(liveData().transients().at(1).number, 2);
    QCOMPARE(liveData().transients().at(0).position, (2u << 24) | 301u);
    QCOMPARE(liveData().transients().at(0).frequency, 50.1f);
    QCOMPARE(liveData().transients().at(0).rms[0], 2.0f * kVolt);
    QCOMPARE(live().transient.number, 2); // the last one, until the next refresh
    QCOMPARE(live().transient.rms[0], 2.0f * kVolt);
}

void TstUniTaskStream::transientNumberRestartsWithTheTask()
{
    start();
    m_task->datagramWave(wave((2u << 24) | 2000).bytes());
    m_task->datagramWave(wave((2u << 24) | 2000).bytes());
    QCOMPARE(liveData().transients().last().number, 2);
    m_task = std::make_unique<UniTask>(liveData());
    start();
    m_task->datagramWave(wave((2u << 24) | 2000).bytes());
    QCOMPARE(liveData().transients().last().number, 1);
}

void TstUniTaskStream::transientCodesFollowTheWiring()
{
    const struct
    {
        int joinMode;
        int highest;
    } rows[] = { { 1, 3 }, { 2, 3 }, { 3, 1 }, { 5, 2 }, { 6, 1 }, { 10, 3 } };
    for (const auto &row : rows) {
        m_settingConfig_g.setJoinMode(row.joinMode);
        m_task = std::make_unique<UniTask>(liveData());
        start();
        liveData().transients().clear();
        for (quint32 code = 0; code < 256; ++code)
            m_task->datagramWave(wave(code << 24 | 500).bytes());
        QCOMPARE(liveData().transients().size(), row.highest);
    }
}

void TstUniTaskStream::transientOfCode3IsIgnoredInSplitPhase()
{
    m_settingConfig_g.setJoinMode(5);
    m_task = std::make_unique<UniTask>(liveData());
    start();
    QSignalSpy emitted(m_task.get(), &UniTask::hasTransEvents);
    m_task->datagramWave(wave((3u << 24) | 2000).bytes());
    QCOMPARE(emitted.count(), 0);
    QVERIFY(liveData().transients().isEmpty());
    m_task->datagramWave(wave((2u << 24) | 2000).bytes());
    QCOMPARE(emitted.count(), 1);
    QCOMPARE(liveData().transients().last().number, 1); // what is ignored is not counted
}

void TstUniTaskStream::oldestTransientGoesAtThousand()
{
    start();
    const QByteArray bytes = wave((1u << 24) | 500).bytes();
    for (int i = 0; i < 1003; ++i)
        m_task->datagramWave(bytes);
    QCOMPARE(liveData().transients().size(), 1000);
    QCOMPARE(liveData().transients().at(0).number, 4);
    QCOMPARE(liveData().transients().last().number, 1003);
}

void TstUniTaskStream::shortPayloadsAreDropped()
{
    start();
    for (int size : { 0, 1, 7, 8, 100, 2179, 12999 }) {
        const QByteArray bytes(size, '\x7f');
        m_task->datagramAggregation(bytes);
        m_task->datagramWave(bytes);
        m_task->datagramFlicker(bytes.left(6011));
        m_task->datagramRMS_1_2(bytes.left(2179));
    }
    QCOMPARE(live().vif.voltage[0], 0.0f);
    QVERIFY(liveData().transients().isEmpty());
    QVERIFY(live().dips.voltage[0].isEmpty());
}

void TstUniTaskStream::countsOutOfRangeFeedAtMostThirtyHalfCycles_data()
{
    QTest::addColumn<quint32>("count");
    QTest::addColumn<int>("entries");
    QTest::newRow("0") << 0u << 0;
    QTest::newRow("1: half an entry") << 1u << 0;
    QTest::newRow("59") << 59u << 29;
    QTest::newRow("60") << 60u << 30;
    QTest::newRow("61") << 61u << 30;
    QTest::newRow("not a number as a float") << 0x7FC00000u << 30;
    QTest::newRow("negative as an integer") << 0x80000000u << 30;
    QTest::newRow("all ones") << 0xFFFFFFFFu << 30;
}

void TstUniTaskStream::countsOutOfRangeFeedAtMostThirtyHalfCycles()
{
    QFETCH(quint32, count);
    QFETCH(int, entries);
    start();
    Payload payload = halfCycles(30, 2.9f, 0.001f);
    for (int c = 0; c < 3; ++c)
        payload.set(2 + 181 * c, count);
    m_task->datagramRMS_1_2(payload.bytes());
    for (int c = 0; c < 3; ++c) {
        QCOMPARE(live().dips.voltage[c].size(), entries);
        QCOMPARE(live().dips.current[c].size(), entries);
    }
    QVERIFY(std::isfinite(live().mainsSignal.rms1[0]));
}

void TstUniTaskStream::wildValuesHurtNothing()
{
    start();
    for (float value : kWildFloats) {
        Payload a(Link::kAggregationWords);
        for (int word = 2; word < Link::kAggregationWords; ++word)
            a.set(word, value);
        m_task->datagramAggregation(a.bytes());
        Payload r(Link::kRmsWords);
        for (int word = 2; word < Link::kRmsWords; ++word)
            r.set(word, value);
        m_task->datagramRMS_1_2(r.bytes());
        Payload f(Link::kFlickerWords);
        for (int word = 2; word < Link::kFlickerWords; ++word)
            f.set(word, value);
        m_task->datagramFlicker(f.bytes());
        m_task->updatedata();
    }
    QVERIFY(m_task->isTaskRunning());
    for (int c = 0; c < kChannels; ++c)
        QVERIFY(std::isfinite(live().vif.voltage[c]));
}

void TstUniTaskStream::anyPayloadAtAnyTimeInAnyWiringKeepsTheListsBounded()
{
    // Bits of: 0, -0, the smallest denormal, 1, -1, 10, 1e30, the infinities, two that are no numbers, and counts.
    const quint32 words[]
        = { 0,           0x80000000u, 1,           0x3F800000u, 0xBF800000u, 0x41200000u, 0x7149F2CAu,
            0x7F800000u, 0xFF800000u, 0x7FC00000u, 0xFFFFFFFFu, 60,          61,          1u << 24 | 4095 };
    constexpr qint64 kDay = 86'400'000;
    const qint64 times[] = { kNow,
                             kNow - kDay,
                             kNow + 3 * kDay,
                             0,
                             -1,
                             std::numeric_limits<qint64>::min(),
                             std::numeric_limits<qint64>::max() };
    quint32 pick = 1;
    const auto next = [&pick](std::size_t of) {
        pick = pick * 1664525u + 1013904223u;
        return (pick >> 8) % of;
    };
    const auto any = [&](int count) {
        Payload payload(count, times[next(std::size(times))]);
        for (int word = 2; word < count; ++word)
            payload.set(word, words[next(std::size(words))]);
        return payload.bytes();
    };
    for (int joinMode = 1; joinMode <= 10; ++joinMode) {
        m_settingConfig_g.setJoinMode(joinMode);
        m_task = std::make_unique<UniTask>(liveData());
        start();
        for (int i = 0; i < 40; ++i) {
            m_task->datagramAggregation(any(Link::kAggregationWords));
            m_task->datagramRMS_1_2(any(Link::kRmsWords));
            m_task->datagramFlicker(any(Link::kFlickerWords));
            m_task->datagramWave(any(Link::kWaveWords));
            Clock::setForTest(times[next(3)]);
            m_task->updatedata();
        }
        QVERIFY(m_task->isTaskRunning());
        QVERIFY(liveData().events().size() <= 10'001);
        QVERIFY(liveData().transients().size() <= 1000);
        for (int p = 0; p < kFlickerPhases; ++p)
            QVERIFY(live().flicker.pinstTrend[p].size() <= 600);
        for (int c = 0; c < kChannels; ++c) {
            QVERIFY(live().dips.voltage[c].size() <= 6000);
            QVERIFY(live().inrush.current[c].size() <= 600);
            QVERIFY(live().mainsSignal.mean1[c].size() <= 15);
        }
    }
}

void TstUniTaskStream::recordersStoreTransientAndEvents()
{
    start();
    m_task->datagramRMS_1_2(halfCycles(10, 1.5f, 0.001f).bytes());
    m_task->datagramWave(wave((3u << 24) | 2000).bytes());

    Pqa2FF monitor("/tmp/monitor.pqa2");
    if (!monitor.open())
        QFAIL("no room for the file");
    m_task->monitor().file().set(&monitor);
    m_task->startRecordTask();
    m_task->storeEvents(EventChoice::All);
    m_task->storeEvents(EventChoice::Unfinished);
    m_task->monitor().file().set(nullptr);
    m_task->stopRecordTask(); // the dip runs and has no curves yet: no record but an empty block

    const QList<ReadBlock> stored = recorded();
    QCOMPARE(stored.size(), 6);
    QCOMPARE(stored[0].type, 0xA1000018u);
    QCOMPARE(stored[1].type, 0xA1000025u); // of before the start
    QCOMPARE(stored[1].payload.size(), 16 + 1200); // time, frequency, position, 600 samples of the channel
    QCOMPARE(stored[2].type, 0xA1010080u);
    QCOMPARE(stored[2].payload.size(), 32);
    for (int i : { 3, 4 }) {
        QCOMPARE(stored[i].type, 0xA1010083u);
        QCOMPARE(stored[i].payload.size(), 0);
    }
    QCOMPARE(stored[5].type, 0xA1000019u);
    const QList<ReadBlock> monitored = storedBlocks(monitor);
    QCOMPARE(monitored.size(), 2);
    for (const ReadBlock &block : monitored) {
        QCOMPARE(block.type, 0xA1010080u);
        QCOMPARE(block.payload, stored[2].payload);
    }
}

void TstUniTaskStream::recorderStoresTheWaveformOfAnEvent()
{
    const auto waves = [this] { return recordedBlocks(m_task->recorder(), 0xA100002Au); };
    start();
    m_task->startRecordTask();
    m_task->datagramRMS_1_2(halfCycles(10, 1.5f, 0.001f).bytes()); // a dip
    m_task->datagramWave(wave(0, kNow - 100).bytes());
    QCOMPARE(waves().size(), 0);
    m_task->datagramWave(wave(0, kNow + 100).bytes());
    QCOMPARE(waves().size(), 1);
    QCOMPARE(waves().first().payload.size(), 8 + 8 * 4096); // time, eight channels of 2048 samples
    m_task->datagramWave(wave(0, kNow + 300).bytes()); // stored once
    QCOMPARE(waves().size(), 1);

    m_task->stopRecordTask(); // without a recording the queue empties all the same
    m_task->changeEventsWave(kNow + 400);
    m_task->datagramWave(wave(0, kNow + 300).bytes());
    m_task->datagramWave(wave(0, kNow + 500).bytes());
    m_task->startRecordTask();
    m_task->datagramWave(wave(0, kNow + 700).bytes());
    QCOMPARE(waves().size(), 0); // in the file that the second recording began in the same second
}

void TstUniTaskStream::flickerValuesGoToTheFileOfTheFunction_data()
{
    QTest::addColumn<int>("function");
    QTest::addColumn<int>("timeBytes");
    QTest::addColumn<quint32>("shortKind");
    QTest::addColumn<quint32>("longKind");
    QTest::newRow("recorder: milliseconds") << int(AbstractTask::UniBasic) << 8 << 0xA1000026u << 0xA1000027u;
    QTest::newRow("monitor: seconds") << int(AbstractTask::UniMonitor) << 4 << 0xA1010002u << 0xA1010003u;
}

void TstUniTaskStream::flickerValuesGoToTheFileOfTheFunction()
{
    QFETCH(int, function);
    QFETCH(int, timeBytes);
    QFETCH(quint32, shortKind);
    QFETCH(quint32, longKind);
    Pqa2FF monitor("/tmp/monitor.pqa2");
    if (!monitor.open())
        QFAIL("no room for the file");
    m_task->initUniFunction(AbstractTask::UniFunction(function));
    m_task->startTask();
    m_task->monitor().file().set(&monitor);
    RecordInfo::m_recordItems = RecordInfo::Flicker;
    if (function == AbstractTask::UniBasic)
        m_task->startRecordTask();

    // 30000 means of 40 samples make a short-term value: 2400 datagrams of 500 samples. Twelve make a long-term value.
    constexpr int kInterval = 2400;
    for (int i = 0; i < 12 * kInterval; ++i) {
        Payload p(Link::kFlickerWords, kNow + qint64(1000) * i);
        for (int word = 2; word < 1502; ++word)
            p.set(word, float(kInterval - i % kInterval));
        m_task->datagramFlicker(p.set(1502, 500u).bytes());
    }
    m_task->monitor().file().set(nullptr);
    RecordInfo::m_recordItems = RecordInfo::Frequency10s;

    const bool monitoring = function == AbstractTask::UniMonitor;
    const QList<ReadBlock> blocks = monitoring ? storedBlocks(monitor) : recorded().mid(1); // behind the start
    QVERIFY(monitoring ? recorded().isEmpty() : storedBlocks(monitor).isEmpty());
    QCOMPARE(blocks.size(), 12 + 1);
    for (int i = 0; i < blocks.size(); ++i) {
        QCOMPARE(blocks[i].type, i < 12 ? shortKind : longKind);
        QCOMPARE(blocks[i].payload.size(), timeBytes + 3 * 4); // a value for each phase
        quint64 time = 0;
        memcpy(&time, blocks[i].payload.constData(), size_t(timeBytes));
        const quint64 end = quint64(kNow) + 1000u * (quint64(qMin(i + 1, 12)) * kInterval - 1);
        QCOMPARE(time, monitoring ? end / 1000 : end);
    }
}

QTEST_GUILESS_MAIN(TstUniTaskStream)
#include "tst_unitaskstream.moc"
