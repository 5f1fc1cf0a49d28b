#include "longdevice.h"
#include "recorderrun.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

#include <cmath>

/// What the recorder stores of a measurement, and when.
class TstRecorder : public QObject
{
    Q_OBJECT

private slots:
    void theFolderHoldsTheFilesOfTheChosenItems();
    void aRecordingBeginsAndEndsWithItsTimes();
    void tenSecondFrequencyHasItsOwnIntervals();
    void tenSecondsFollowTheFrequencyOfTheirEnd();
    void anIntervalIsStoredWhenItsCyclesAreFull_data();
    void anIntervalIsStoredWhenItsCyclesAreFull();
    void theLastIntervalIsStoredAsFarAsItCame();
    void aFullIntervalLeavesNothingForTheEnd();
    void theChoiceOfTheStartCountsUntilTheEnd();
    void energiesAreCountedFromTheStartOfTheRecording();
    void aLostProcessorIsNotedInTheLog();
    void tenLossesInARowAreAnInterruption();
    void withoutRoomNothingIsStoredAndTheRecordingRuns();
    void withoutACommonFileTheOthersAreWritten();
    void blocksAreDroppedWhileThereIsNoRoomAndComeAgain();
    void aFileThatIsFullGoesOnInItsNextPart();
    void flickerBeginsAnewWithTheRecording();
    void theLastSeveritiesAreStoredWhereTheirIntervalsAreNearlyFull();
    void everythingIsSentToTheCardEveryFewSeconds();
    void nothingIsStoredInAnUnknownWiring();
    void at400HzTwelveHarmonicsAreStored();
    void anyAggregationIsTaken();
    void hoursTakeTheRoomThatWasForetold_data();
    void hoursTakeTheRoomThatWasForetold();
};

void TstRecorder::theFolderHoldsTheFilesOfTheChosenItems()
{
    RecorderRun run;
    const QStringList names { "I Harmonic(1-50).pqa2",    "I Harmonic(51-100).pqa2", "I inHarmonic(0-49).pqa2",
                              "I inHarmonic(50-99).pqa2", "U Harmonic(1-50).pqa2",   "U Harmonic(51-100).pqa2",
                              "U inHarmonic(0-49).pqa2",  "U inHarmonic(50-99).pqa2" };
    const auto files = [&run] {
        run.recorder().start();
        run.recorder().stop(Keep::Data);
        return QDir(Target::path(run.recorder().folder().path())).entryList(QDir::Files, QDir::Name);
    };
    QCOMPARE(files(), QStringList("Common.pqa2"));
    QCOMPARE(run.recorder().folder().name(), QStringLiteral("231114_221320 Logger_1"));
    RecordInfo::m_recordItems = 0x807F; // nothing of the spectra
    Clock::advance(1000);
    QCOMPARE(files(), QStringList("Common.pqa2"));
    for (const RecordFileRow &row : recordFiles()) {
        if (!row.item)
            continue;
        RecordInfo::m_recordItems = row.item;
        Clock::advance(1000);
        QCOMPARE(files(), (QStringList { "Common.pqa2", row.name }));
    }
    RecordInfo::m_recordItems = 0xFFFF;
    Clock::advance(1000);
    QCOMPARE(files(), QStringList("Common.pqa2") + names);
}

void TstRecorder::aRecordingBeginsAndEndsWithItsTimes()
{
    RecorderRun run;
    run.recorder().start();
    Clock::advance(3'600'000);
    run.recorder().stop(Keep::Data);
    const QList<ReadBlock> blocks = run.blocks();
    QCOMPARE(blocks.size(), 2);
    QCOMPARE(blocks[0].type, 0xA1000018u);
    QCOMPARE(blocks[0].payload.size(), 4);
    QCOMPARE(valueAt<quint32>(blocks[0].payload, 0), 1'700'000'000u);
    QCOMPARE(blocks[1].type, 0xA1000019u);
    QCOMPARE(blocks[1].payload.size(), 4);
    QCOMPARE(valueAt<quint32>(blocks[1].payload, 0), 1'700'003'600u);
}

void TstRecorder::tenSecondFrequencyHasItsOwnIntervals()
{
    RecorderRun run;
    RecordInfo::m_interval_index = 7; // 300 s
    run.recorder().start();
    for (int i = 0; i <= 100; ++i) {
        run.record->frequency = i % 2 ? 49.9f : 50.3f;
        run.take();
    }
    run.recorder().stop(Keep::Data);
    const QList<ReadBlock> means = run.blocks(0xA1000028), maxima = run.blocks(0xA1000063),
                           minima = run.blocks(0xA10000A3);
    QCOMPARE(means.size(), 2);
    QCOMPARE(maxima.size(), 2);
    QCOMPARE(minima.size(), 2);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(means[i].payload.size(), 12);
        QCOMPARE(valueAt<qint64>(means[i].payload, 0), RecorderRun::kStart + 200 + 10'000 * (i + 1));
        QVERIFY(std::fabs(valueAt<float>(means[i].payload, 8) - 50.1f) < 0.005f);
        QCOMPARE(valueAt<float>(maxima[i].payload, 8), 50.3f);
        QCOMPARE(valueAt<float>(minima[i].payload, 8), 49.9f);
    }
}

void TstRecorder::tenSecondsFollowTheFrequencyOfTheirEnd()
{
    RecorderRun run;
    run.recorder().start();
    run.take(51, 200);
    run.record->frequency = 51.0f;
    run.take(50, 200); // still as long as the end before had it
    run.take(49, 200); // 500 cycles at 51 Hz: 9803 ms
    const struct
    {
        qint64 time;
        float frequency;
    } expected[] = { { 10'200, 50.0f }, { 20'200, 51.0f }, { 30'000, 51.0f } };
    for (const quint32 type : { 0xA1000028u, 0xA1000063u, 0xA10000A3u }) { // nothing of the window before is in them
        const QList<ReadBlock> stored = run.blocks(type);
        QCOMPARE(stored.size(), 3);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(valueAt<qint64>(stored[i].payload, 0), RecorderRun::kStart + expected[i].time);
            QCOMPARE(valueAt<float>(stored[i].payload, 8), expected[i].frequency);
        }
    }
    run.recorder().stop(Keep::Data);
}

void TstRecorder::anIntervalIsStoredWhenItsCyclesAreFull_data()
{
    QTest::addColumn<float>("frequency");
    QTest::addColumn<double>("nominal");
    QTest::addColumn<double>("length"); // ms of an aggregation
    QTest::newRow("50 Hz") << 50.0f << 50.0 << 200.0;
    QTest::newRow("49.5 Hz") << 49.5f << 50.0 << 10 / 49.5 * 1000;
    QTest::newRow("60 Hz") << 60.0f << 60.0 << 200.0;
    QTest::newRow("400 Hz") << 400.0f << 400.0 << 200.0;
}

void TstRecorder::anIntervalIsStoredWhenItsCyclesAreFull()
{
    QFETCH(float, frequency);
    QFETCH(double, nominal);
    QFETCH(double, length);
    RecorderRun run;
    run.setUp = { channelSet(1), nominal, frequency };
    run.record->frequency = frequency;
    RecordInfo::m_recordItems = RecordInfo::FrequencyInterval;
    run.recorder().start();
    for (int i = 0; i <= 150; ++i) {
        run.record->time = RecorderRun::kStart + qint64(i * length);
        run.recorder().aggregation(*run.record);
    }
    run.recorder().stop(Keep::Data);
    const QList<ReadBlock> means = run.blocks(0xA1000029);
    QCOMPARE(means.size(), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(valueAt<qint64>(means[i].payload, 0), RecorderRun::kStart + qint64(50 * (i + 1) * length));
        QVERIFY(std::fabs(valueAt<float>(means[i].payload, 8) - frequency) < 1e-3f);
    }
}

void TstRecorder::theLastIntervalIsStoredAsFarAsItCame()
{
    RecorderRun run;
    RecordInfo::m_recordItems = RecordInfo::CommonRms;
    run.recorder().start();
    run.record->channel[1].voltage = 200.0f;
    run.take(51, 200); // the first interval
    run.record->channel[1].voltage = 100.0f;
    run.take();
    run.record->channel[1].voltage = 130.0f;
    run.take();
    run.recorder().stop(Keep::Data);
    const QList<ReadBlock> means = run.blocks(0xA1000020);
    QCOMPARE(means.size(), 2);
    QCOMPARE(valueAt<float>(means[0].payload, 8 + 52), 200.0f);
    QCOMPARE(valueAt<float>(means[1].payload, 8 + 52), 115.0f);
    QCOMPARE(valueAt<qint64>(means[1].payload, 0), run.record->time);
    QCOMPARE(valueAt<float>(run.blocks(0xA1000060)[1].payload, 8 + 52), 130.0f);
    QCOMPARE(valueAt<float>(run.blocks(0xA10000A0)[1].payload, 8 + 52), 100.0f);
}

void TstRecorder::aFullIntervalLeavesNothingForTheEnd()
{
    RecorderRun run;
    RecordInfo::m_recordItems = RecordInfo::CommonRms;
    run.recorder().start();
    run.take(51, 200);
    run.recorder().stop(Keep::Data);
    QCOMPARE(run.blocks(0xA1000020).size(), 1);
}

void TstRecorder::theChoiceOfTheStartCountsUntilTheEnd()
{
    RecorderRun run;
    RecordInfo::m_recordItems = RecordInfo::Power;
    run.recorder().start();
    RecordInfo::m_recordItems = 0xFFFF;
    RecordInfo::m_interval_index = 0;
    run.take(51, 200);
    run.recorder().stop(Keep::Data);
    QCOMPARE(run.blocks(0xA1000021).size(), 1);
    QCOMPARE(run.blocks(0xA1000020).size(), 0);
    QCOMPARE(QDir(Target::path(run.recorder().folder().path())).entryList(QDir::Files), QStringList("Common.pqa2"));
}

void TstRecorder::energiesAreCountedFromTheStartOfTheRecording()
{
    RecorderRun run;
    RecordInfo::m_recordItems = RecordInfo::Energy;
    RecordInfo::m_interval_index = 5; // 60 s
    run.record->energy[0].active = 1e9; // of the measurement so far
    run.record->power[0] = { 3600.0f, 7200.0f, -360.0f, 0, 0, 0 };
    run.record->power[3] = { 36000.0f, 0, 0, 0, 0, 0 };
    run.recorder().start();
    run.take(18'000, 200); // an hour
    run.record->energy[0].active = 0; // the user set the counters of the page back
    run.take(300, 200);
    run.recorder().stop(Keep::Data);
    const QList<ReadBlock> blocks = run.blocks(0xA1000022);
    QVERIFY(blocks.size() >= 60);
    for (int i = 0; i < blocks.size(); ++i) {
        const double seconds = double(valueAt<qint64>(blocks[i].payload, 0) - RecorderRun::kStart) / 1000;
        QCOMPARE(blocks[i].payload.size(), 8 + 96);
        QVERIFY(std::fabs(valueAt<double>(blocks[i].payload, 8) - seconds)
                < 1e-3 * seconds); // 3600 W are 1 Wh a second
        QVERIFY(std::fabs(valueAt<double>(blocks[i].payload, 16) - 2 * seconds) < 1e-3 * seconds);
        QVERIFY(std::fabs(valueAt<double>(blocks[i].payload, 24) + seconds / 10) < 1e-3 * seconds);
        QVERIFY(std::fabs(valueAt<double>(blocks[i].payload, 8 + 72) - 10 * seconds) < 1e-2 * seconds);
    }
}

void TstRecorder::aLostProcessorIsNotedInTheLog()
{
    RecorderRun run;
    RecordInfo::m_interval_index = 2; // 5 s
    run.recorder().start();
    run.take(26, 200); // an interval has ended
    Clock::advance(14'900);
    run.recorder().beat();
    QCOMPARE(run.log(), QByteArrayList());
    Clock::advance(100);
    run.recorder().beat();
    run.recorder().beat();
    QCOMPARE(run.log(), QByteArrayList({ "Lost some data!" }));
    QCOMPARE(valueAt<qint64>(run.blocks(0xA1000009).first().payload, 0), Clock::msecs());
    run.take(25, 200); // data comes again
    Clock::advance(14'900);
    run.recorder().beat();
    QCOMPARE(run.log().size(), 1);
    run.recorder().stop(Keep::Data);
}

void TstRecorder::tenLossesInARowAreAnInterruption()
{
    RecorderRun run;
    RecordInfo::m_interval_index = 0; // 1 s
    run.recorder().start();
    for (int i = 0; i < 20; ++i) {
        Clock::advance(3000);
        run.recorder().beat();
    }
    QByteArrayList expected;
    for (int i = 0; i < 10; ++i)
        expected << "Lost some data!";
    QCOMPARE(run.log(), expected << "Communication Interrupted!");
    // The recording goes on all the same, and what is lost later is noted again.
    RecordInfo::m_recordItems = RecordInfo::Frequency10s;
    run.take(60, 200);
    QCOMPARE(run.blocks(0xA1000028).size(), 1);
    Clock::advance(3000);
    run.recorder().beat();
    QCOMPARE(run.log(), expected << "Lost some data!");
    run.recorder().stop(Keep::Data);
}

void TstRecorder::withoutRoomNothingIsStoredAndTheRecordingRuns()
{
    RecorderRun run;
    run.room = 49.9f;
    RecordInfo::m_recordItems = 0xFFFF;
    run.recorder().start();
    run.take(120, 200);
    for (int i = 0; i < 40; ++i) {
        Clock::advance(60'000);
        run.recorder().beat();
    }
    run.recorder().storeEvents(EventChoice::All);
    run.recorder().stop(Keep::Data);
    QVERIFY(RootFiles::exists(run.recorder().folder().path()));
    QCOMPARE(QDir(Target::path(run.recorder().folder().path())).entryList(QDir::Files), QStringList());
}

void TstRecorder::withoutACommonFileTheOthersAreWritten()
{
    class NoCommonDevice : public Pqa2Device
    {
        bool open(const QString &path) override { return !path.endsWith("Common.pqa2") && Pqa2Device::open(path); }
    };
    RecorderRun run([] { return std::make_unique<NoCommonDevice>(); });
    RecordInfo::m_recordItems = RecordInfo::CommonRms | RecordInfo::HarmonicVolt1to50;
    run.recorder().start();
    run.take(51, 200);
    run.recorder().stop(Keep::Data);
    QCOMPARE(run.blocks("U Harmonic(1-50).pqa2").size(), 3);
    QVERIFY(!RootFiles::exists(run.recorder().folder().file("Common.pqa2")));
}

void TstRecorder::blocksAreDroppedWhileThereIsNoRoomAndComeAgain()
{
    RecorderRun run;
    RecordInfo::m_recordItems = RecordInfo::FrequencyInterval;
    RecordInfo::m_interval_index = 0; // 1 s
    run.recorder().start();
    run.take(6, 200);
    run.room = 4.9f;
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("availableRoom 4\\.9$")));
    QVERIFY(!run.recorder().refused());
    run.take(5, 200);
    QVERIFY(run.recorder().refused());
    run.room = 5.0f;
    run.take(5, 200);
    QVERIFY(!run.recorder().refused());
    run.recorder().stop(Keep::Data);
    const QList<ReadBlock> means = run.blocks(0xA1000029);
    QCOMPARE(means.size(), 2);
    QCOMPARE(valueAt<qint64>(means[1].payload, 0) - valueAt<qint64>(means[0].payload, 0), 2000);
}

void TstRecorder::aFileThatIsFullGoesOnInItsNextPart()
{
    LongDevice::s_parts.clear();
    RecorderRun run([] { return std::make_unique<LongDevice>(); });
    RecordInfo::m_recordItems = RecordInfo::FrequencyInterval | RecordInfo::HarmonicVolt1to50;
    RecordInfo::m_interval_index = 0; // 1 s
    run.recorder().start();
    run.take(60, 200);
    run.recorder().stop(Keep::Data);
    QCOMPARE(LongDevice::s_parts.keys(),
             (QStringList { "Common.pqa2", "Common_2.pqa2", "U Harmonic(1-50).pqa2", "U Harmonic(1-50)_2.pqa2" }));
    int intervals = 0;
    for (const char *part : { "Common.pqa2", "Common_2.pqa2" }) {
        // The first part has a gap behind its head that no reader goes through; its blocks stand behind it.
        const QByteArray content = LongDevice::s_parts[QLatin1String(part)]->content;
        intervals += content.count(QByteArray::fromHex("290000A10C000000")); // type and size of the mean frequency
    }
    QCOMPARE(intervals, 12); // eleven full ones and the rest
    for (const char *part : { "Common_2.pqa2", "U Harmonic(1-50)_2.pqa2" }) {
        const QList<ReadBlock> blocks = readBlocks(LongDevice::s_parts[QLatin1String(part)]->content).mid(3);
        QVERIFY(blocks.size() > 3);
        QCOMPARE(blocks[0].type, 0xA1000018u); // of the recording
        QCOMPARE(valueAt<quint32>(blocks[0].payload, 0), quint32(RecorderRun::kStart / 1000));
    }
    QCOMPARE(readBlocks(LongDevice::s_parts["Common_2.pqa2"]->content).last().type, 0xA1000019u);
}

void TstRecorder::flickerBeginsAnewWithTheRecording()
{
    RecorderRun run;
    run.flicker().insertFlickerPinst(0, 1.0f);
    run.data().live().flicker.pinstTrend[0] << 1.0f;
    run.data().live().flicker.pstTrend[2] << 1.0f;
    run.recorder().start();
    QVERIFY(run.flicker().intervalValues(0).isEmpty());
    QVERIFY(run.data().live().flicker.pinstTrend[0].isEmpty());
    QVERIFY(run.data().live().flicker.pstTrend[2].isEmpty());
    run.recorder().stop(Keep::Data);
}

void TstRecorder::theLastSeveritiesAreStoredWhereTheirIntervalsAreNearlyFull()
{
    const auto severities = [](quint32 items, int values, int phases) {
        RecorderRun run;
        RecordInfo::m_recordItems = items;
        run.recorder().start();
        for (int phase = 0; phase < phases; ++phase) {
            for (int i = 0; i < values; ++i)
                run.flicker().insertFlickerPinst(phase, 1.0f);
        }
        run.take();
        run.recorder().stop(Keep::Data);
        return run.blocks(0xA1000026);
    };
    QCOMPARE(severities(RecordInfo::Flicker, 29499, 3).size(), 0);
    const QList<ReadBlock> stored = severities(RecordInfo::Flicker, 29500, 3);
    QCOMPARE(stored.size(), 1);
    QCOMPARE(stored[0].payload.size(), 8 + 3 * 4);
    QCOMPARE(valueAt<qint64>(stored[0].payload, 0), RecorderRun::kStart + 200);
    // A constant sensation of 1 has all percentiles at 1: root of 0.0314 + 0.0525 + 0.0657 + 0.28 + 0.08.
    for (int phase = 0; phase < 3; ++phase)
        QVERIFY(std::fabs(valueAt<float>(stored[0].payload, 8 + 4 * phase) - 0.7139f) < 1e-3f);
    QCOMPARE(severities(RecordInfo::Flicker, 29500, 2).size(), 0);
    QCOMPARE(severities(RecordInfo::Power, 29500, 3).size(), 0);
}

void TstRecorder::everythingIsSentToTheCardEveryFewSeconds()
{
    RecorderRun run;
    RoomDevice::s_syncs = 0;
    RecordInfo::m_recordItems = RecordInfo::Frequency10s | RecordInfo::HarmonicAmp1to50;
    run.recorder().start();
    for (int i = 0; i < 39; ++i)
        run.recorder().beat();
    QCOMPARE(RoomDevice::s_syncs, 0);
    run.recorder().beat(); // four seconds
    QCOMPARE(RoomDevice::s_syncs, 2);
    for (int i = 0; i < 400; ++i)
        run.recorder().beat();
    QCOMPARE(RoomDevice::s_syncs, 2); // nothing new
    run.take(51, 200);
    for (int i = 0; i < 40; ++i)
        run.recorder().beat();
    QCOMPARE(RoomDevice::s_syncs, 4);
    run.recorder().stop(Keep::Data);
}

void TstRecorder::nothingIsStoredInAnUnknownWiring()
{
    RecorderRun run;
    run.setUp.wiring = nullptr;
    RecordInfo::m_recordItems = 0xFFFF;
    run.recorder().start();
    run.take(51, 200);
    run.recorder().stop(Keep::Data);
    QCOMPARE(run.blocks().size(), 2 + 3); // but the frequency of ten seconds, which has no wiring
}

void TstRecorder::at400HzTwelveHarmonicsAreStored()
{
    for (const double nominal : { 400.0, 50.0 }) {
        RecorderRun run;
        run.setUp.nominalFrequency = nominal;
        run.setUp.frequency = run.record->frequency = float(nominal);
        RecordInfo::m_recordItems = RecordInfo::HarmonicVolt1to50;
        RecordInfo::m_interval_index = 0; // 1 s
        for (SpectrumLine &line : run.record->spectrum[0].voltage)
            line.magnitude = 7.0f;
        run.recorder().start();
        run.take(6, 200);
        const QList<ReadBlock> stored = run.blocks(0xA1000030, "U Harmonic(1-50).pqa2");
        run.recorder().stop(Keep::Data);
        QCOMPARE(stored.size(), 1);
        const int orders = nominal > 100 ? 12 : 50;
        for (int order = 1; order <= 50; ++order)
            QCOMPARE(valueAt<float>(stored.first().payload, 12 + 4 * order), order <= orders ? 7.0f : 0.0f);
    }
}

void TstRecorder::anyAggregationIsTaken()
{
    RecorderRun run;
    RecordInfo::m_recordItems = 0xFFFF;
    run.recorder().start();
    quint32 pick = 1;
    for (int i = 0; i < 300; ++i) {
        auto *words = reinterpret_cast<quint32 *>(run.record.get());
        for (int word = 0; word < int(sizeof *run.record) / 4; ++word)
            words[word] = pick = pick * 1664525u + 1013904223u;
        run.recorder().aggregation(*run.record);
    }
    run.recorder().stop(Keep::Data);
    QCOMPARE(run.blocks().last().type, 0xA1000019u);
}

void TstRecorder::hoursTakeTheRoomThatWasForetold_data()
{
    QTest::addColumn<int>("joinMode");
    QTest::addColumn<int>("interval"); // index
    // Each writer, and each interval.
    for (const int joinMode : { 1, 2, 3, 5, 6 })
        QTest::addRow("wiring %d", joinMode) << joinMode << 4;
    for (int index = 0; index < int(std::size(RecordInfo::m_record_interval)); ++index)
        QTest::addRow("every %d s", RecordInfo::m_record_interval[index]) << 1 << index;
}

void TstRecorder::hoursTakeTheRoomThatWasForetold()
{
    QFETCH(int, joinMode);
    QFETCH(int, interval);
    constexpr int kTenMinutes = 600; // s
    constexpr int kShortTerms = 6; // in an hour
    RecorderRun run;
    run.setUp.wiring = channelSet(joinMode);
    RecordInfo::m_recordItems = 0xFFFF;
    RecordInfo::m_interval_index = interval;
    const auto bytes = [&run] {
        qint64 sum = 0;
        for (const QFileInfo &file : QDir(Target::path(run.recorder().folder().path())).entryInfoList(QDir::Files))
            sum += file.size();
        return sum;
    };
    run.recorder().start();
    run.take();
    const qint64 begun = bytes(); // a file begins only once
    for (int shortTerm = 1; shortTerm <= 2 * kShortTerms; ++shortTerm) {
        run.take(kTenMinutes, 1000);
        FlickerOutput out;
        out.shortTerm = 7;
        out.longTerm = shortTerm % 12 == 0 ? 7 : 0;
        out.shortBlock = out.longBlock = QByteArray(12, '\1');
        run.recorder().flicker(__datagram_flicker(), out);
    }
    const int seconds = RecordInfo::m_record_interval[interval];
    const double foretold = 2 * recordBytesPerHour(RecordInfo::m_recordItems, seconds, *channelSet(joinMode));
    const double taken = double(bytes() - begun);
    QVERIFY2(std::fabs(taken - foretold) < 0.001 * foretold,
             qPrintable(QStringLiteral("%1 instead of %2").arg(taken).arg(foretold)));
    run.recorder().stop(Keep::Data);
}

QTEST_GUILESS_MAIN(TstRecorder)
#include "tst_recorder.moc"
