#include "recorderrun.h"
#include "unit/storage/filelimit.h"
#include "unit/threadtime.h"
#include "unitaskcase.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

/// A recording inside a measurement, from its plan to what becomes of its folder.
class TstRecording : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aRecordingIsPlannedByTheUsersChoice();
    void itRunsForItsHoursByTheProcessorsTime();
    void ofTwoAggregationsBetweenTwoWaveformsBothCount();
    void onlyHarmonicItemsRecordTheRmsGroupAnyway();
    void stoppingWritesAFinalPartialInterval();
    void theWaveformThatEndsItStillBringsTheLastAggregation();
    void anAggregationThatWaitsForItsWaveformIsRecorded();
    void aDeclinedRecordingIsDeletedEntirely();
    void aKeptRecordingStaysWhateverIsDiscardedLater();
    void aRecordingThatEndedByItselfIsNoLongerAtDisposal();
    void oneThatEndedByItselfGoesWhenItsQuestionSaysSo();
    void aNewPlanKeepsTheOneThatEndedByItself();
    void anotherFunctionKeepsTheOneThatEndedByItself();
    void anotherFunctionEndsTheRecording();
    void aPlannedRecordingBeginsTheMeasurementThatWaits();
    void aRecordingThatNeverBeganLeavesNothing();
    void aPlanThatIsEndedIsNotTold();
    void whatWaitsIsStoredByTheRecordersOwnTimer();
    void whatTheStorageRefusesIsKnownToThePages();
    void theRecordingGoesOnBehindAHold();
    void nothingIsRecordedBesideAnotherFunction();
    void eventsOfBeforeTheStartAreStoredWithoutAStall_data();
    void eventsOfBeforeTheStartAreStoredWithoutAStall();
    void anEndInTheMiddleOfThemLosesNoneOfThem();
    void aDiscardedRecordingWritesNothingAnyMore();

private:
    void start()
    {
        m_task->initUniFunction(AbstractTask::UniBasic);
        m_task->startTask();
    }
    /// Prepares a recording of the chosen items, as the page does.
    void prepare(quint32 items, int hours = 1)
    {
        RecordInfo::m_recordItems = items;
        RecordInfo::m_duration = hours;
        m_task->initRecording();
        m_task->enableRecord();
    }
    void feedAggregation(qint64 time)
    {
        Clock::advance(time - Clock::msecs());
        Payload payload = aggregation();
        payload.set(0, quint32(time)).set(1, quint32(quint64(time) >> 32));
        m_task->datagramAggregation(payload.bytes());
    }
    /// Aggregations with their waveforms: from one time to another, in ms from kNow on.
    void feed(qint64 from, qint64 to, int step = 200)
    {
        for (qint64 at = from; at < to; at += step) {
            feedAggregation(kNow + at);
            m_task->datagramWave(wave(0, kNow + at).bytes());
        }
    }
    QString path() const { return m_task->recorder().folder().path(); }
    QList<ReadBlock> blocks(quint32 type) const { return recordedBlocks(m_task->recorder(), type); }
    QStringList storage() const
    {
        RootFiles::waitForDisks();
        return QDir(Target::path(QStringLiteral("/mnt/storage")))
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    }
    /// Finished events with curves, as if they had been found before.
    void addEvents(int count, int samples = 300);

    std::unique_ptr<UniTask> m_task;
};

void TstRecording::init()
{
    RootFiles::clean();
    renewRecords();
    *RecordInfo::m_record_file = QStringLiteral("Logger_1");
    RecordInfo::m_begain_time = 0;
    RecordInfo::m_interval_index = 3; // 10 s
    m_task = std::make_unique<UniTask>(liveData());
}

void TstRecording::cleanup()
{
    m_task.reset();
    dropRecords();
}

void TstRecording::addEvents(int count, int samples)
{
    PQAEventItem event;
    event.type = EventDip;
    event.finished = 1;
    event.startTime = event.endTime = kNow;
    for (int input = 0; input < 7; ++input) {
        for (RmsCurve *curve : { &event.startRms[input], &event.endRms[input] }) {
            for (int i = 0; i < samples; ++i)
                curve->append({ kNow + 10 * i + (curve == &event.endRms[input] ? 60'000 : 0), 230.0f });
        }
    }
    for (int i = 0; i < count; ++i) {
        event.value = float(i);
        liveData().events().append(event);
    }
}

void TstRecording::aRecordingIsPlannedByTheUsersChoice()
{
    start();
    prepare(RecordInfo::Power, 7);
    QCOMPARE(RecordInfo::m_in_recording, 1);
    QVERIFY(!m_task->isRecording());
    QCOMPARE(m_task->recordStart(), kNow + 10'000); // at once: ten seconds from now
    QCOMPARE(m_task->recordLife(), 7 * 3'600'000);
    m_task->stopRecordTask();
    QCOMPARE(RecordInfo::m_in_recording, 0);
    RecordInfo::m_begain_time = quint32(kNow / 1000) + 86'400; // planned for tomorrow
    prepare(RecordInfo::Power, 24'000);
    QCOMPARE(m_task->recordStart(), kNow + 86'400'000);
    QCOMPARE(m_task->recordLife(), qint64(86'400'000) * 1000);
    QCOMPARE(storage(), QStringList(".running")); // the plan, and no folder
}

void TstRecording::ofTwoAggregationsBetweenTwoWaveformsBothCount()
{
    start();
    prepare(RecordInfo::FrequencyInterval);
    feed(0, 10'200);
    QVERIFY(m_task->isRecording());
    const auto take = [this](float hertz, qint64 at) {
        Payload payload = aggregation(hertz);
        payload.set(0, quint32(kNow + at)).set(1, quint32(quint64(kNow + at) >> 32));
        m_task->datagramAggregation(payload.bytes());
    };
    take(51.5f, 10'200);
    take(48.5f, 10'390);
    m_task->datagramWave(wave(0, kNow + 10'400).bytes());
    feed(10'600, 20'400);
    QCOMPARE(blocks(0xA1000064).size(), 1);
    float highest, lowest;
    std::memcpy(&highest, blocks(0xA1000064)[0].payload.constData() + 8, sizeof highest);
    std::memcpy(&lowest, blocks(0xA10000A4)[0].payload.constData() + 8, sizeof lowest);
    QCOMPARE(highest, 51.5f);
    QCOMPARE(lowest, 48.5f);
}

void TstRecording::itRunsForItsHoursByTheProcessorsTime()
{
    start();
    prepare(RecordInfo::FrequencyInterval | RecordInfo::Frequency10s);
    QSignalSpy started(m_task.get(), &AbstractTask::recordingStarted);
    QSignalSpy stopped(m_task.get(), &AbstractTask::recordingStoped);
    feed(0, 10'000);
    QCOMPARE(started.count(), 0);
    feed(10'000, 10'200);
    QCOMPARE(started.count(), 1);
    QVERIFY(m_task->isRecording());
    const QString folder = path();
    QCOMPARE(folder, QStringLiteral("/mnt/storage/231114_221330 Logger_1/"));
    feed(10'200, 3'610'000);
    QCOMPARE(stopped.count(), 0);
    feed(3'610'000, 3'610'400);
    QCOMPARE(stopped.count(), 1);
    QVERIFY(!m_task->isRecording());
    QVERIFY(m_task->isTaskRunning()); // the pages stay live
    QCOMPARE(RecordInfo::m_in_recording, 0);

    const QList<ReadBlock> stored = storedBlocks(folder + QStringLiteral("Common.pqa2"));
    int intervals = 0, tens = 0;
    for (const ReadBlock &block : stored) {
        if (block.type == 0xA1000029u)
            QCOMPARE(valueAt<qint64>(block.payload, 0), kNow + 10'000 + 10'000 * ++intervals);
        tens += block.type == 0xA1000028u;
    }
    QCOMPARE(intervals, 360);
    QCOMPARE(tens, 360);
    QCOMPARE(valueAt<quint32>(stored.first().payload, 0), quint32(kNow / 1000) + 10);
    QCOMPARE(valueAt<quint32>(stored.last().payload, 0), quint32(kNow / 1000) + 3610);
}

void TstRecording::onlyHarmonicItemsRecordTheRmsGroupAnyway()
{
    RootFiles::write("/mnt/userfs/config/record.conf", "PARAMS=128\n");
    RecordInfo::readSelectedParam();
    start();
    prepare(RecordInfo::m_recordItems);
    feed(10'000, 20'400);
    m_task->stopRecordTask();
    QCOMPARE(blocks(0xA1000020).size(), 2); // a full interval and a begun one
    QVERIFY(std::abs(valueAt<float>(blocks(0xA1000020).first().payload, 8) - 2.0f * kVolt) < 1e-3f);
    QCOMPARE(storedBlocks(path() + QStringLiteral("U Harmonic(1-50).pqa2")).size(), 6);
}

void TstRecording::stoppingWritesAFinalPartialInterval()
{
    start();
    prepare(RecordInfo::CommonRms);
    feed(10'000, 13'000);
    m_task->stopRecordTask();
    QCOMPARE(blocks(0xA1000020).size(), 1);
    QCOMPARE(valueAt<qint64>(blocks(0xA1000020).first().payload, 0), kNow + 12'800);
    QCOMPARE(blocks(0xA1000019).size(), 1);
}

void TstRecording::theWaveformThatEndsItStillBringsTheLastAggregation()
{
    start();
    prepare(RecordInfo::FrequencyInterval | RecordInfo::Frequency10s);
    feed(10'150, 10'350); // datagrams stand askew to the second of the start
    const QString folder = path();
    feed(3'600'150, 3'610'150);
    QVERIFY(m_task->isRecording());
    feed(3'610'150, 3'610'350); // full intervals, and the end of the window
    QVERIFY(!m_task->isRecording());
    QHash<quint32, QList<qint64>> times;
    for (const ReadBlock &block : storedBlocks(folder + QStringLiteral("Common.pqa2"))) {
        if (block.payload.size() == 12)
            times[block.type] << valueAt<qint64>(block.payload, 0) - kNow;
    }
    const QList<qint64> expected { 3'600'150, 3'610'150 };
    QCOMPARE(times.value(0xA1000028), expected);
    QCOMPARE(times.value(0xA1000029), expected);
}

void TstRecording::anAggregationThatWaitsForItsWaveformIsRecorded()
{
    start();
    prepare(RecordInfo::CommonRms);
    feed(10'000, 13'000);
    feedAggregation(kNow + 13'000);
    m_task->stopRecordTask();
    QCOMPARE(blocks(0xA1000020).size(), 1);
    QCOMPARE(valueAt<qint64>(blocks(0xA1000020).first().payload, 0), kNow + 13'000);
}

void TstRecording::aDeclinedRecordingIsDeletedEntirely()
{
    start();
    prepare(0xFFFF);
    feed(10'000, 13'000);
    RootFiles::write(path() + QStringLiteral("sub/other"), "x");
    QCOMPARE(storage(), QStringList({ ".infomation", ".running", "231114_221330 Logger_1" }));
    m_task->stopRecordTask();
    m_task->saveRecord(false);
    QCOMPARE(storage(), QStringList(".infomation"));
    QCOMPARE(RootFiles::read("/mnt/storage/.infomation"), QByteArray());
}

void TstRecording::aKeptRecordingStaysWhateverIsDiscardedLater()
{
    start();
    prepare(1);
    feed(10'000, 13'000);
    m_task->stopRecordTask();
    m_task->saveRecord(true);
    m_task->saveRecord(false);
    QCOMPARE(storage(), (QStringList { ".infomation", "231114_221330 Logger_1" }));
    QVERIFY(RootFiles::read("/mnt/storage/.infomation").startsWith("231114_221330 Logger_1,"));
}

void TstRecording::aRecordingThatEndedByItselfIsNoLongerAtDisposal()
{
    start();
    prepare(1);
    feed(3'609'000, 3'609'400); // its clock is that of the processor: the window is open already
    feed(7'300'000, 7'300'400);
    QVERIFY(!m_task->isRecording());
    m_task->save(false); // what a page says that discards something else
    m_task->stopRecordTask();
    m_task->saveRecord(false);
    QCOMPARE(storage().size(), 2);
}

void TstRecording::oneThatEndedByItselfGoesWhenItsQuestionSaysSo()
{
    start();
    prepare(1);
    feed(3'609'000, 3'609'400);
    feed(7'300'000, 7'300'400);
    QVERIFY(!m_task->isRecording());
    QCOMPARE(storage().size(), 2);
    m_task->removeEndedRecord();
    QCOMPARE(storage(), QStringList(".infomation"));
}

void TstRecording::aNewPlanKeepsTheOneThatEndedByItself()
{
    start();
    prepare(1);
    feed(3'609'000, 3'609'400);
    feed(7'300'000, 7'300'400);
    prepare(1);
    m_task->removeEndedRecord();
    QCOMPARE(storage().size(), 2);
    m_task->stopRecordTask();
}

void TstRecording::anotherFunctionKeepsTheOneThatEndedByItself()
{
    start();
    prepare(1);
    feed(3'609'000, 3'609'400);
    feed(7'300'000, 7'300'400);
    m_task->initUniFunction(AbstractTask::UniPowerInverter);
    m_task->removeEndedRecord();
    QCOMPARE(storage().size(), 2);
}

void TstRecording::anotherFunctionEndsTheRecording()
{
    start();
    prepare(RecordInfo::CommonRms);
    feed(10'000, 11'000);
    const QString folder = path();
    m_task->initUniFunction(AbstractTask::UniPowerInverter);
    QVERIFY(!m_task->isRecording());
    QCOMPARE(RecordInfo::m_in_recording, 0);
    QCOMPARE(storedBlocks(folder + QStringLiteral("Common.pqa2")).last().type, 0xA1000019u);
    m_task->saveRecord(false); // of the new function
    QVERIFY(RootFiles::exists(folder));
}

void TstRecording::aPlannedRecordingBeginsTheMeasurementThatWaits()
{
    m_task->initUniFunction(AbstractTask::UniBasic);
    RecordInfo::m_begain_time = quint32(kNow / 1000) + 3600;
    prepare(RecordInfo::FrequencyInterval);
    m_task->preStartTask();
    feed(3'598'000, 3'600'000);
    QVERIFY(!m_task->isTaskRunning());
    QCOMPARE(storage(), QStringList(".running")); // which says that it waits
    QCOMPARE(RootFiles::read("/mnt/storage/.running"), QByteArray(".planned 1700003600 Logger_1\n"));
    feed(3'600'000, 3'610'400);
    QVERIFY(m_task->isTaskRunning());
    QVERIFY(m_task->isRecording());
    QCOMPARE(blocks(0xA1000029).size(), 1);
    QVERIFY(!RootFiles::read("/mnt/storage/.running").contains("planned"));
    m_task->stopRecordTask();
}

void TstRecording::whatWaitsIsStoredByTheRecordersOwnTimer()
{
    start();
    addEvents(50);
    prepare(1);
    feed(10'000, 10'200);
    QCOMPARE(blocks(0xA1010083).size(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(blocks(0xA1010083).size(), 50, 60000);
    m_task->stopRecordTask();
}

void TstRecording::aRecordingThatNeverBeganLeavesNothing()
{
    start();
    prepare(1);
    feed(0, 5'000);
    m_task->stopRecordTask();
    m_task->saveRecord(false);
    QCOMPARE(storage(), QStringList());
    QCOMPARE(RecordInfo::m_in_recording, 0);
}

void TstRecording::aPlanThatIsEndedIsNotTold()
{
    start();
    RecordInfo::m_begain_time = quint32(kNow / 1000) + 3600;
    prepare(1);
    QCOMPARE(storage(), QStringList(".running"));
    m_task->stopTask(); // as when somebody switches the instrument off
    QCOMPARE(storage(), QStringList());
}

void TstRecording::whatTheStorageRefusesIsKnownToThePages()
{
    start();
    prepare(1);
    m_task->updatedata();
    QVERIFY(!liveData().storageRefuses());
    {
        const FileLimit full(0);
        feed(10'000, 10'400);
        QVERIFY(m_task->isRecording());
        m_task->updatedata();
        QVERIFY(liveData().storageRefuses());
        m_task->pauseTask();
        m_task->updatedata();
        QVERIFY(liveData().storageRefuses());
        m_task->stopTask();
        RootFiles::waitForDisks();
    }
    QVERIFY(!liveData().storageRefuses());
}

void TstRecording::theRecordingGoesOnBehindAHold()
{
    start();
    prepare(RecordInfo::FrequencyInterval);
    feed(10'000, 12'000);
    m_task->pauseTask();
    feed(12'000, 22'000);
    m_task->continueTask();
    m_task->stopRecordTask();
    QCOMPARE(blocks(0xA1000029).size(), 2);
}

void TstRecording::nothingIsRecordedBesideAnotherFunction()
{
    m_task->initUniFunction(AbstractTask::UniPowerInverter);
    m_task->startTask();
    prepare(1);
    feed(10'000, 12'000);
    m_task->stopRecordTask();
    QCOMPARE(storage(), QStringList());
}

void TstRecording::eventsOfBeforeTheStartAreStoredWithoutAStall_data()
{
    QTest::addColumn<int>("events");
    QTest::addColumn<int>("samples"); // of a curve
    QTest::newRow("three seconds around each moment") << 2000 << 300;
    QTest::newRow("as many as there can be") << 10'000 << 20;
}

void TstRecording::eventsOfBeforeTheStartAreStoredWithoutAStall()
{
    QFETCH(int, events);
    QFETCH(int, samples);
    start();
    addEvents(events, samples);
    prepare(1);
    const ThreadTime begin;
    feed(10'000, 10'200);
    double longest = begin.ms();
    int beats = 0;
    for (; beats < 10'000 && blocks(0xA1010083).size() < events; ++beats) {
        for (int i = 0; i < 20; ++i) {
            const ThreadTime beat;
            m_task->recorder().beat();
            longest = std::max(longest, beat.ms());
        }
    }
    QVERIFY2(longest < 50, qPrintable(QString::number(longest)));
    QVERIFY(beats > 1);
    const QList<ReadBlock> stored = blocks(0xA1010083);
    QCOMPARE(stored.size(), events);
    for (int i = 0; i < events; ++i) {
        QCOMPARE(valueAt<float>(stored[i].payload, 12), float(i));
        QCOMPARE(stored[i].payload.size(), 40 + 7 * samples * 12 * 2); // four voltages, three currents
    }
    m_task->stopRecordTask();
}

void TstRecording::anEndInTheMiddleOfThemLosesNoneOfThem()
{
    constexpr int kEvents = 500;
    start();
    addEvents(kEvents);
    prepare(1);
    feed(10'000, 10'200);
    m_task->recorder().beat();
    PQAEventItem running;
    running.value = 4711.0f;
    liveData().events().append(running);
    const QString folder = path();
    const ThreadTime end;
    m_task->stopRecordTask();
    QVERIFY2(end.ms() < 50, qPrintable(QString::number(end.ms())));
    liveData().events().clear(); // as the next measurement does
    const QList<ReadBlock> events = blocks(0xA1010083);
    QCOMPARE(events.size(), kEvents + 1);
    QCOMPARE(events.last().payload.size(), 0); // without curves
    QCOMPARE(storedBlocks(folder + QStringLiteral("Common.pqa2")).last().type, 0xA1000019u);
}

void TstRecording::aDiscardedRecordingWritesNothingAnyMore()
{
    start();
    addEvents(500);
    prepare(1);
    feed(10'000, 10'200);
    m_task->stopRecordTask();
    m_task->saveRecord(false); // while the events are still on their way
    QCOMPARE(storage(), QStringList(".infomation"));
}

QTEST_GUILESS_MAIN(TstRecording)
#include "tst_recording.moc"
