#include "record/wavefile.h"
#include "settings/waveinfo.h"
#include "storage/fileinfo.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/rootfiles.h"
#include "unitaskcase.h"

#include <QBuffer>
#include <QTest>

namespace {

const QString kPath = QStringLiteral("/mnt/storage/Wave_1.wav");

/// Sample \a i of an input of the wave datagram \a datagram: voltages 0 to 3 rise, currents 4 to 7 fall.
qint16 ramp(int datagram, int input, int i)
{
    const int level = 4096 * (datagram % 2) + i + 1000 * (input % 4);
    return qint16(input < 4 ? level : -level - 1);
}

QByteArray rampBytes(int datagram)
{
    QByteArray bytes = wave(0, kNow + 200 * datagram).bytes();
    for (int c = 0; c < 4; ++c) {
        for (int i = 0; i < kWaveSamples; ++i) {
            const qint16 pair[] = { ramp(datagram, c, i), ramp(datagram, 4 + c, i) };
            // On the wire the current of a channel stands behind its voltage.
            char *voltage = bytes.data() + 8 + 16384 * c + 2 * i;
            std::memcpy(voltage, &pair[0], 2);
            std::memcpy(voltage + 8192, &pair[1], 2);
        }
    }
    return bytes;
}

} // namespace

/// The waveform capture as a function of a measurement.
class TstWaveFunction : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyRateTakesEachInputFrameByFrame_data();
    void everyRateTakesEachInputFrameByFrame();
    void captureEndsWhenItsFramesAreThere_data();
    void captureEndsWhenItsFramesAreThere();
    void headIsTrueWhileTheCaptureRuns();
    void nothingIsTakenWhileTheRunWaits();
    void runThatIsEndedWhileItWaitsLeavesNoFile();
    void userWhoStopsKeepsWhatIsThere();
    void userWhoQuitsKeepsNothing();
    void progressIsPercentAndSecondsLeft();
    void plannedStartStandsInTheHead();
    void captureThatBeginsAtOnceTellsItsMoment();
    void plannedStartThatIsPastIsNone();
    void storageThatTakesNoMoreEndsTheRun();
    void fileThatCannotBeBegunEndsTheRun();
    void withoutANameNothingIsStored();

private:
    void choose(int rate, int seconds);
    void run();
    void take(int datagrams)
    {
        for (int d = 0; d < datagrams; ++d)
            m_task->datagramWave(rampBytes(m_taken++));
    }
    static WaveFileHeader header();
    std::unique_ptr<UniTask> m_task;
    int m_taken = 0;
};

void TstWaveFunction::init()
{
    RootFiles::clean();
    renewRecords();
    m_taken = 0;
    *WaveInfo::m_wave_file = QStringLiteral("Wave_1");
    WaveInfo::m_begain_time = 0;
    choose(0, 10);
    m_task = std::make_unique<UniTask>(liveData());
}

void TstWaveFunction::cleanup()
{
    m_task.reset();
    dropRecords();
    WaveInfo::m_wave_file->clear();
    WaveInfo::m_begain_time = 0;
}

void TstWaveFunction::choose(int rate, int seconds)
{
    WaveInfo::m_sample_index = rate;
    WaveInfo::m_duration = seconds;
    WaveInfo::initPointsNumbs(50.0);
}

void TstWaveFunction::run()
{
    m_task->initUniFunction(AbstractTask::UniWave);
    m_task->startTask();
}

WaveFileHeader TstWaveFunction::header()
{
    WaveFileHeader header {};
    const QByteArray bytes = RootFiles::read(kPath);
    std::memcpy(static_cast<void *>(&header), bytes.constData(), std::size_t(qMin(bytes.size(), int(sizeof header))));
    return header;
}

void TstWaveFunction::everyRateTakesEachInputFrameByFrame_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("chunkBytes");
    QTest::newRow("20480 per second") << 0 << 20480 << 1 << 65536;
    QTest::newRow("10240 per second") << 1 << 10240 << 2 << 32768;
    QTest::newRow("5120 per second") << 2 << 5120 << 4 << 16384;
}

void TstWaveFunction::everyRateTakesEachInputFrameByFrame()
{
    QFETCH(int, index);
    QFETCH(int, rate);
    QFETCH(int, step);
    QFETCH(int, chunkBytes);
    choose(index, 10);
    run();
    take(2);
    QByteArray content = RootFiles::read(kPath);
    QBuffer buffer(&content);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    WaveFileReader reader(&buffer);
    QCOMPARE(reader.header().sampleRate, quint32(rate));
    for (int d = 0; d < 2; ++d) {
        WaveChunk chunk;
        QVERIFY(reader.next(&chunk));
        QCOMPARE(chunk.frames * 16, qint64(chunkBytes));
        const QByteArray bytes = reader.frames(chunk);
        const auto *samples = reinterpret_cast<const qint16 *>(bytes.constData());
        for (int f = 0; f < int(chunk.frames); ++f) {
            for (int input = 0; input < 8; ++input)
                QCOMPARE(samples[8 * f + input], ramp(d, input, f * step));
        }
    }
    QCOMPARE(content.size(), 88 + 2 * (4 + chunkBytes));
}

void TstWaveFunction::captureEndsWhenItsFramesAreThere_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<int>("datagrams");
    // 5 datagrams a second, 4096 samples each
    QTest::newRow("ten seconds at the full rate") << 0 << 10 << 50;
    QTest::newRow("ten seconds at a quarter of it") << 2 << 10 << 50;
    QTest::newRow("twelve seconds at half of it") << 1 << 12 << 60;
}

void TstWaveFunction::captureEndsWhenItsFramesAreThere()
{
    QFETCH(int, index);
    QFETCH(int, seconds);
    QFETCH(int, datagrams);
    choose(index, seconds);
    run();
    take(datagrams - 1);
    QVERIFY(m_task->isTaskRunning());
    take(1);
    QVERIFY(m_task->isTaskStoped());
    QCOMPARE(header().frames, quint64(WaveInfo::m_points_numb));
    QCOMPARE(live().wave.percent, 100);
    QCOMPARE(live().wave.seconds, 0);
    const qint64 size = RootFiles::read(kPath).size();
    take(1); // the run is over
    QCOMPARE(RootFiles::read(kPath).size(), int(size));
    QVERIFY(RootFiles::isIndexed("Wave_1.wav"));
}

void TstWaveFunction::headIsTrueWhileTheCaptureRuns()
{
    run();
    for (int d = 1; d <= 3; ++d) {
        Clock::advance(200);
        take(1);
        QCOMPARE(header().frames, quint64(4096 * d));
        QCOMPARE(header().lastWrite, quint32((kNow + 200 * d) / 1000));
        QCOMPARE(RootFiles::read(kPath).size(), 88 + d * 65540);
    }
}

void TstWaveFunction::nothingIsTakenWhileTheRunWaits()
{
    m_task->initUniFunction(AbstractTask::UniWave);
    m_task->preStartTask();
    take(3);
    QVERIFY(!RootFiles::exists(kPath));
    m_task->startTask();
    QCOMPARE(header().frames, quint64(0));
    take(1);
    QCOMPARE(header().frames, quint64(4096));
}

void TstWaveFunction::runThatIsEndedWhileItWaitsLeavesNoFile()
{
    m_task->initUniFunction(AbstractTask::UniWave);
    m_task->preStartTask();
    m_task->stopTask();
    QVERIFY(!RootFiles::exists(kPath));
    QVERIFY(RootFiles::index().isEmpty());
}

void TstWaveFunction::userWhoStopsKeepsWhatIsThere()
{
    run();
    take(3);
    m_task->save(true);
    m_task->stopTask();
    QCOMPARE(header().frames, quint64(3 * 4096));
    QVERIFY(RootFiles::isIndexed("Wave_1.wav"));
}

void TstWaveFunction::userWhoQuitsKeepsNothing()
{
    run();
    take(3);
    m_task->save(false);
    m_task->stopTask();
    QVERIFY(!RootFiles::exists(kPath));
    QVERIFY(!RootFiles::isIndexed("Wave_1.wav"));
}

void TstWaveFunction::progressIsPercentAndSecondsLeft()
{
    run();
    QCOMPARE(live().wave.percent, 0);
    QCOMPARE(live().wave.seconds, 10);
    take(1); // 200 ms of 10 s
    QCOMPARE(live().wave.percent, 2);
    QCOMPARE(live().wave.seconds, 10);
    take(4);
    QCOMPARE(live().wave.percent, 10);
    QCOMPARE(live().wave.seconds, 9);
    take(44);
    QCOMPARE(live().wave.percent, 98);
    QCOMPARE(live().wave.seconds, 1);
    QVERIFY(!live().wave.refused);
}

void TstWaveFunction::plannedStartStandsInTheHead()
{
    const quint32 planned = quint32(kNow / 1000) + 3600;
    WaveInfo::m_begain_time = planned;
    m_task->initUniFunction(AbstractTask::UniWave);
    QCOMPARE(m_task->startTime(), planned);
    m_task->startTask();
    take(1);
    QCOMPARE(header().begin, planned);
}

void TstWaveFunction::captureThatBeginsAtOnceTellsItsMoment()
{
    m_task->initUniFunction(AbstractTask::UniWave);
    Clock::advance(10000);
    m_task->startTask();
    take(1);
    QCOMPARE(header().begin, quint32(kNow / 1000) + 10);
}

void TstWaveFunction::plannedStartThatIsPastIsNone()
{
    WaveInfo::m_begain_time = quint32(kNow / 1000) - 60;
    m_task->initUniFunction(AbstractTask::UniWave);
    Clock::advance(10000);
    m_task->startTask();
    take(1);
    QCOMPARE(header().begin, quint32(kNow / 1000) + 10);
}

void TstWaveFunction::storageThatTakesNoMoreEndsTheRun()
{
    run();
    take(1);
    {
        const FileLimit limit(88 + 2 * 65540 - 1); // a byte less than the second chunk needs
        take(1);
    }
    QVERIFY(m_task->isTaskStoped());
    QVERIFY(live().wave.refused);
    QCOMPARE(header().frames, quint64(4096));
    QCOMPARE(RootFiles::read(kPath).size(), 88 + 65540);
    QVERIFY(RootFiles::isIndexed("Wave_1.wav"));
}

void TstWaveFunction::fileThatCannotBeBegunEndsTheRun()
{
    QVERIFY(QDir().mkpath(Target::path(kPath))); // a folder in its place
    run();
    QVERIFY(m_task->isTaskRunning());
    take(1);
    QVERIFY(m_task->isTaskStoped());
    QVERIFY(live().wave.refused);
    QVERIFY(RootFiles::index().isEmpty());
}

void TstWaveFunction::withoutANameNothingIsStored()
{
    WaveInfo::m_wave_file->clear();
    run();
    take(60);
    QVERIFY(m_task->isTaskRunning());
    QVERIFY(QDir(Target::path("/mnt/storage")).isEmpty(QDir::Files | QDir::Hidden));
}

QTEST_GUILESS_MAIN(TstWaveFunction)
#include "tst_wavefunction.moc"
