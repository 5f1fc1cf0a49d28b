#include "settings/localtime.h"
#include "settings/loggerinfo.h"
#include "settings/userconfig.h"
#include "storage/fileinfo.h"
#include "unit/documentpage.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/rootfiles.h"
#include "unitaskcase.h"

#include <QElapsedTimer>
#include <QTest>
#include <QTextCodec>

namespace {

constexpr quint32 kVrms = 0x1, kFrequency = 0x200000, kEnergy = 0x40000, kSeverity = 0x10000000;
const QString kFirst = QStringLiteral("/mnt/storage/Plant_00.csv");
const QString kSecond = QStringLiteral("/mnt/storage/Plant_01.csv");
const QByteArray kHeader = "TIME,FREQ AVG,FREQ MAX,FREQ MIN,";

} // namespace

/// The logger of text files as a function of a measurement.
class TstLoggerFunction : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8")); }
    void init();
    void cleanup();

    void headerStandsInTheFileBeforeTheRunMeasures();
    void namesOfTheHeaderAreUtf8();
    void intervalIsALineOfMeanAndExtremes();
    void intervalWithoutAnAggregationIsZeros();
    void waitingAggregationsCountNothing();
    void lineBeginsWithTheUsersTime();
    void firstLineComesAnIntervalAfterTheStart();
    void energyAndSeverityAreThoseOfTheMoment();
    void neutralAndTotalFollowTheWiring();
    void fullFileIsFollowedByTheNextWithAHeader();
    void linesOfAFileFollowFromTheChoice_data();
    void linesOfAFileFollowFromTheChoice();
    void formatPageTellsTheLinesOfAFile();
    void ordersAt400HzAreThirteen();
    void everyGroupAtOnceOverflowsNothing();
    void endOfTheRunKeepsTheFile();
    void droppedRunLeavesNoFile();
    void runThatNeverMeasuredLeavesNoFile();
    void refusedLineIsMissingAndTheNextIsThere();
    void refusedLineTakesNoPlaceInTheFile();
    void refusedHeaderIsKnown();
    void withoutANameNothingIsStored();
    void loggingIsKnownWhileItIsPreparedOrRuns();
    void secondRunBeginsAnew();

private:
    /// A run that measures.
    void run(quint32 groups)
    {
        LoggerInfo::m_paramselected = groups;
        m_task->initUniFunction(AbstractTask::UniLogger);
        m_task->startTask();
    }
    void take(float hertz)
    {
        m_task->datagramAggregation(aggregation(hertz).bytes());
        m_task->datagramWave(wave().bytes());
    }
    static QByteArrayList lines(const QString &path) { return RootFiles::lines(path); }
    /// Cells behind the time.
    static QByteArray cells(const QByteArray &line) { return line.mid(line.indexOf(',') + 1); }

    std::unique_ptr<UniTask> m_task;
};

void TstLoggerFunction::init()
{
    RootFiles::clean();
    renewRecords();
    m_settingConfig_g.setNomFreq(1);
    m_userConfig_g.setTimeZone("UTC");
    *LoggerInfo::m_logger_file = "Plant";
    LoggerInfo::m_interval_index = 0;
    LoggerInfo::m_begain_time = 0;
    m_task = std::make_unique<UniTask>(liveData());
}

void TstLoggerFunction::cleanup()
{
    m_task.reset();
    dropRecords();
    LoggerInfo::m_logger_file->clear();
}

void TstLoggerFunction::headerStandsInTheFileBeforeTheRunMeasures()
{
    LoggerInfo::m_paramselected = kFrequency;
    m_task->initUniFunction(AbstractTask::UniLogger);
    QCOMPARE(lines(kFirst), QByteArrayList { kHeader });
    QVERIFY(RootFiles::isIndexed("Plant_00.csv"));
}

void TstLoggerFunction::namesOfTheHeaderAreUtf8()
{
    m_settingConfig_g.setJoinMode(6);
    run(0x10000);
    QCOMPARE(lines(kFirst).value(0), QByteArray("TIME,cos\xCE\xA6 L1 AVG,cos\xCE\xA6 L1 MAX,cos\xCE\xA6 L1 MIN,"));
}

void TstLoggerFunction::intervalIsALineOfMeanAndExtremes()
{
    run(kFrequency);
    for (float hertz : { 50.0f, 49.5f, 51.0f, -49.5f })
        take(hertz);
    m_task->logger().writeLoggerData();
    QCOMPARE(cells(lines(kFirst).value(1)), QByteArray("50.000,51.000,49.500,"));
    take(60.0f); // the interval before is forgotten
    m_task->logger().writeLoggerData();
    QCOMPARE(cells(lines(kFirst).value(2)), QByteArray("60.000,60.000,60.000,"));
}

void TstLoggerFunction::intervalWithoutAnAggregationIsZeros()
{
    run(kFrequency);
    m_task->logger().writeLoggerData();
    take(50.0f);
    m_task->logger().writeLoggerData();
    m_task->logger().writeLoggerData();
    QCOMPARE(cells(lines(kFirst).value(1)), QByteArray("0.000,0.000,0.000,"));
    QCOMPARE(cells(lines(kFirst).value(3)), QByteArray("0.000,0.000,0.000,"));
}

void TstLoggerFunction::waitingAggregationsCountNothing()
{
    LoggerInfo::m_paramselected = kFrequency;
    m_task->initUniFunction(AbstractTask::UniLogger);
    m_task->preStartTask();
    take(45.0f);
    m_task->startTask();
    take(50.0f);
    m_task->logger().writeLoggerData();
    QCOMPARE(cells(lines(kFirst).value(1)), QByteArray("50.000,50.000,50.000,"));
}

void TstLoggerFunction::lineBeginsWithTheUsersTime()
{
    m_userConfig_g.setTimeZone("Asia/Tokyo"); // kNow is 22:13:20 UTC, nine hours less
    run(kFrequency);
    m_task->logger().writeLoggerData();
    m_userConfig_g.setTimeZone("UTC");
    QVERIFY(lines(kFirst).value(1).startsWith("2023/11/15  07:13:20,"));
}

void TstLoggerFunction::firstLineComesAnIntervalAfterTheStart()
{
    QElapsedTimer timer;
    timer.start();
    run(kFrequency);
    QCOMPARE(lines(kFirst).size(), 1);
    QTRY_VERIFY_WITH_TIMEOUT(lines(kFirst).size() > 1, 30000);
    QVERIFY2(timer.elapsed() >= 990, qPrintable(QString::number(timer.elapsed())));
    m_task->stopTask();
    const int stored = lines(kFirst).size();
    QTest::qWait(1200);
    QCOMPARE(lines(kFirst).size(), stored);
}

void TstLoggerFunction::energyAndSeverityAreThoseOfTheMoment()
{
    m_settingConfig_g.setJoinMode(6);
    run(kEnergy | kSeverity);
    live().flicker.pst[0] = 0.75f;
    live().flicker.pst[2] = 0.5f;
    take(50.0f);
    live().flicker.pst[0] = 1.25f;
    take(50.0f);
    m_task->logger().writeLoggerData();
    const QByteArrayList found = cells(lines(kFirst).value(1)).split(',');
    QCOMPARE(found.mid(2, 3), QByteArrayList({ "1.25", "0.00", "0.50" }));
}

void TstLoggerFunction::neutralAndTotalFollowTheWiring()
{
    m_settingConfig_g.setJoinMode(3);
    run(kVrms);
    m_task->datagramAggregation(aggregation().bytes()); // 2, 3, 4 and 5 raw
    m_task->datagramWave(wave().bytes());
    m_task->logger().writeLoggerData();
    const QByteArrayList found = cells(lines(kFirst).value(1)).split(',');
    QCOMPARE(found.size(), 7); // two channels
    QCOMPARE(found.value(0).toFloat(), 2 * kVolt);
    QCOMPARE(found.value(3).toFloat(), 5 * kVolt);
}

void TstLoggerFunction::fullFileIsFollowedByTheNextWithAHeader()
{
    m_task->logger().setMaxLines(3);
    run(kFrequency);
    for (int i = 0; i < 7; ++i) {
        take(float(50 + i));
        m_task->logger().writeLoggerData();
    }
    m_task->stopTask();
    QCOMPARE(lines(kFirst).size(), 4);
    QCOMPARE(lines(kSecond).size(), 4);
    QCOMPARE(lines("/mnt/storage/Plant_02.csv").size(), 2);
    for (const QString &file : { kFirst, kSecond, QStringLiteral("/mnt/storage/Plant_02.csv") })
        QCOMPARE(lines(file).value(0), kHeader);
    QCOMPARE(cells(lines(kFirst).value(3)), QByteArray("52.000,52.000,52.000,"));
    QCOMPARE(cells(lines(kSecond).value(1)), QByteArray("53.000,53.000,53.000,"));
    RootFiles::waitForDisks();
    QCOMPARE(FileInfo().getInfoFiles(), QStringList({ "Plant_00.csv", "Plant_01.csv", "Plant_02.csv" }));
}

void TstLoggerFunction::linesOfAFileFollowFromTheChoice_data()
{
    QTest::addColumn<int>("n");
    QTest::addColumn<int>("lines");
    for (int n : { 0, 1, 2 })
        QTest::addRow("%d", n) << n << 1036800;
    for (int n : { 3, 4 })
        QTest::addRow("%d", n) << n << 835200;
    for (int n : { 5, 8 })
        QTest::addRow("%d", n) << n << 417600;
    for (int n : { 9, 16 })
        QTest::addRow("%d", n) << n << 208800;
    QTest::newRow("17") << 17 << 135000; // 30 / 25 = 1
    QTest::newRow("36") << 36 << 135000; // 49 / 25 = 1
    QTest::newRow("37") << 37 << 67500; // 2
    QTest::newRow("62") << 62 << 45000; // 3
    QTest::newRow("118") << 118 << 27000; // 5
    QTest::newRow("619") << 619 << 5400; // 632 / 25 = 25
    QTest::newRow("162") << 162 << 19300; // 135000 / 7 = 19285, rounded up at 60
    QTest::newRow("87") << 87 << 33700; // 135000 / 4 = 33750, not rounded up
}

void TstLoggerFunction::linesOfAFileFollowFromTheChoice()
{
    QFETCH(int, n);
    QFETCH(int, lines);
    QCOMPARE(LoggerFunction::maxLines(n), lines);
}

void TstLoggerFunction::formatPageTellsTheLinesOfAFile()
{
    const DocumentPage page(QStringLiteral("formats/csv-logger.md"));
    const QVector<QStringList> rows = page.table(QStringLiteral("## Length"));
    QCOMPARE(rows.size(), 5);
    const int last[] = { 2, 4, 8, 16 };
    for (int i = 0; i < 4; ++i) {
        QVERIFY(rows[i].value(0).endsWith(QString::number(last[i])));
        QCOMPARE(rows[i].value(1).toInt(), LoggerFunction::maxLines(last[i]));
    }
}

void TstLoggerFunction::ordersAt400HzAreThirteen()
{
    m_settingConfig_g.setNomFreq(3);
    m_settingConfig_g.setJoinMode(6);
    run(0x400000);
    QCOMPARE(LoggerInfo::m_param_numb, 13);
    QCOMPARE(lines(kFirst).value(0).count(','), 1 + 3 * 13);
    take(400.0f);
    m_task->logger().writeLoggerData();
    QCOMPARE(lines(kFirst).value(1).count(','), 1 + 3 * 13);
    m_settingConfig_g.setNomFreq(1);
    m_task->stopTask();
    RootFiles::clean();
    run(0x400000);
    QCOMPARE(LoggerInfo::m_param_numb, 100);
    QCOMPARE(lines(kFirst).value(0).count(','), 1 + 3 * 100);
}

void TstLoggerFunction::everyGroupAtOnceOverflowsNothing()
{
    run(0xFFFFFFFF);
    Payload wild(Link::kAggregationWords);
    for (int word = 2; word < Link::kAggregationWords; ++word)
        wild.set(word, 3e38f);
    for (int i = 0; i < 3; ++i) {
        m_task->datagramAggregation(wild.bytes());
        m_task->datagramWave(wave().bytes());
    }
    m_task->logger().writeLoggerData();
    QCOMPARE(lines(kFirst).size(), 2);
    QCOMPARE(lines(kFirst).value(1).count(','), lines(kFirst).value(0).count(','));
}

void TstLoggerFunction::endOfTheRunKeepsTheFile()
{
    run(kFrequency);
    take(50.0f);
    m_task->logger().writeLoggerData();
    m_task->save(true);
    m_task->stopTask();
    QCOMPARE(lines(kFirst).size(), 2);
    QVERIFY(RootFiles::isIndexed("Plant_00.csv"));
    m_task->logger().writeLoggerData(); // nothing runs
    QCOMPARE(lines(kFirst).size(), 2);
}

void TstLoggerFunction::droppedRunLeavesNoFile()
{
    run(kFrequency);
    m_task->logger().writeLoggerData();
    m_task->save(false);
    m_task->stopTask();
    QVERIFY(!RootFiles::exists(kFirst));
    QVERIFY(!RootFiles::isIndexed("Plant_00.csv"));
}

void TstLoggerFunction::runThatNeverMeasuredLeavesNoFile()
{
    LoggerInfo::m_paramselected = kFrequency;
    m_task->initUniFunction(AbstractTask::UniLogger);
    m_task->preStartTask();
    m_task->stopTask();
    QVERIFY(!RootFiles::exists(kFirst));
    QVERIFY(!RootFiles::isIndexed("Plant_00.csv"));
}

void TstLoggerFunction::refusedLineIsMissingAndTheNextIsThere()
{
    run(kFrequency);
    take(50.0f);
    m_task->logger().writeLoggerData();
    QVERIFY(!m_task->logger().refused());
    const QByteArray before = RootFiles::read(kFirst);
    {
        const FileLimit full(rlim_t(before.size()) + 10);
        take(51.0f);
        m_task->logger().writeLoggerData();
        QCOMPARE(RootFiles::read(kFirst), before);
        QVERIFY(m_task->logger().refused());
    }
    take(52.0f);
    m_task->logger().writeLoggerData();
    QVERIFY(!m_task->logger().refused());
    QCOMPARE(lines(kFirst).size(), 3);
    QCOMPARE(cells(lines(kFirst).value(2)), QByteArray("52.000,52.000,52.000,"));
}

void TstLoggerFunction::refusedLineTakesNoPlaceInTheFile()
{
    m_task->logger().setMaxLines(2);
    run(kFrequency);
    {
        const FileLimit full(rlim_t(RootFiles::read(kFirst).size()) + 10);
        take(50.0f);
        m_task->logger().writeLoggerData();
    }
    for (int i = 1; i < 4; ++i) {
        take(float(50 + i));
        m_task->logger().writeLoggerData();
    }
    QCOMPARE(lines(kFirst).size(), 3); // with its header
    QCOMPARE(cells(lines(kSecond).value(1)), QByteArray("53.000,53.000,53.000,"));
}

void TstLoggerFunction::refusedHeaderIsKnown()
{
    const FileLimit full(4);
    run(kFrequency);
    QVERIFY(m_task->logger().refused());
}

void TstLoggerFunction::withoutANameNothingIsStored()
{
    LoggerInfo::m_logger_file->clear();
    run(kFrequency);
    take(50.0f);
    m_task->logger().writeLoggerData();
    m_task->stopTask();
    QVERIFY(QDir(Target::path("/mnt/storage")).isEmpty(QDir::Files | QDir::Hidden));
}

void TstLoggerFunction::loggingIsKnownWhileItIsPreparedOrRuns()
{
    LoggerInfo::m_paramselected = kFrequency;
    QCOMPARE(LoggerInfo::m_in_logging, 0);
    m_task->initUniFunction(AbstractTask::UniLogger);
    QCOMPARE(LoggerInfo::m_in_logging, 1);
    m_task->startTask();
    QCOMPARE(LoggerInfo::m_in_logging, 1);
    m_task->stopTask();
    QCOMPARE(LoggerInfo::m_in_logging, 0);
}

void TstLoggerFunction::secondRunBeginsAnew()
{
    m_task->logger().setMaxLines(1);
    run(kFrequency);
    take(50.0f);
    m_task->logger().writeLoggerData();
    m_task->logger().writeLoggerData(); // second file
    take(55.0f);
    m_task->initUniFunction(AbstractTask::UniLogger); // ends the first
    QCOMPARE(lines(kFirst), QByteArrayList { kHeader });
    take(60.0f);
    m_task->logger().writeLoggerData();
    QCOMPARE(cells(lines(kFirst).value(1)), QByteArray("60.000,60.000,60.000,"));
}

QTEST_GUILESS_MAIN(TstLoggerFunction)
#include "tst_loggerfunction.moc"
