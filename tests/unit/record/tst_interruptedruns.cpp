#include <QDateTime>
#include <QTest>

#include "record/interruptedruns.h"
#include "record/loggerfile.h"
#include "record/pqa2device.h"
#include "record/pqa2ff.h"
#include "record/wavefile.h"
#include "settings/derived.h"
#include "storage/runjournal.h"
#include "unit/storage/descriptorlimit.h"
#include "unit/storage/rootfiles.h"

#include <sys/stat.h>
#include <sys/time.h>

namespace {

const QTimeZone kWarsaw("Europe/Warsaw"); // an hour ahead of UTC in November
const QString kStorage = QStringLiteral("/mnt/storage/");
const QString kRun = QStringLiteral("231114_221320 Logger_1");
constexpr qint64 kTime = 1'700'000'000'000; // 2023-11-14 22:13:20 UTC

template <typename Value> QByteArray bytesOf(Value value)
{
    return QByteArray(reinterpret_cast<const char *>(&value), int(sizeof value));
}

void setFileTime(const QString &name, qint64 seconds)
{
    const timeval times[2] = { { seconds, 0 }, { seconds, 0 } };
    ::utimes(QFile::encodeName(Target::path(kStorage + name)).constData(), times);
}

/// A file of a run whose folder is made with it.
void storeBlocks(const QString &file, const QList<QPair<quint32, QByteArray>> &blocks)
{
    const QString path = kStorage + kRun + QLatin1Char('/') + file;
    QDir().mkpath(QFileInfo(Target::path(path)).path());
    Pqa2FF writer(path);
    QVERIFY(writer.open());
    for (const auto &block : blocks)
        QCOMPARE(writer.addDataBlock(Pqa2DBType(block.first), block.second), 0);
}

/// What is found when the journal names this one.
QVector<InterruptedRun> found(const QString &name)
{
    RootFiles::waitForDisks();
    RootFiles::write(RunJournal::path(), name.toUtf8() + '\n');
    RunJournal journal;
    const QVector<InterruptedRun> runs = InterruptedRuns::find(journal, kWarsaw);
    if (runs.size() != journal.interrupted().size())
        qFatal("what is not told has to be forgotten");
    return runs;
}

QString timeOf(const QString &name)
{
    const QVector<InterruptedRun> runs = found(name);
    return runs.size() == 1 && runs[0].name == name ? runs[0].last.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"))
                                                    : QStringLiteral("none");
}

} // namespace

/// What a start tells of the recordings that were cut.
class TstInterruptedRuns : public QObject
{
    Q_OBJECT

private slots:
    void init() { RootFiles::clean(); }

    void withoutAJournalNothingIsFound()
    {
        RunJournal journal;
        QVERIFY(InterruptedRuns::find(journal, kWarsaw).isEmpty());
    }

    void whatWaitedForItsStartWasNotCut()
    {
        RootFiles::write(kStorage + "Logger_1_00.csv", "TIME,FREQ AVG,\n"); // opened for a run that waits
        storeBlocks("Monitor.pqa2", {});
        RootFiles::write(kStorage + "Logger_2_00.csv", "TIME,FREQ AVG,\n2023/11/14  23:13:20,50.000,\n");
        RootFiles::waitForDisks();
        RootFiles::write(RunJournal::path(),
                         ".planned 1800000000 Logger_1\nLogger_1_00.csv\nLogger_2_00.csv\n" + kRun.toUtf8() + '\n');
        RunJournal journal;
        const QVector<InterruptedRun> runs = InterruptedRuns::find(journal, kWarsaw);
        QCOMPARE(runs.size(), 1);
        QCOMPARE(runs[0].name, QStringLiteral("Logger_2_00.csv"));
        QCOMPARE(journal.interrupted(), QStringList { "Logger_2_00.csv" });
        QCOMPARE(journal.missed().size(), 1); // until it is told
    }

    void theLastBlockWithATimeTellsIt_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<quint32>("type");
        QTest::addColumn<QByteArray>("payload");
        const QByteArray ms = bytesOf(kTime + 61'999) + QByteArray(208, '\0');
        const QByteArray seconds = bytesOf(quint32(kTime / 1000 + 61)) + QByteArray(12, '\0');
        QTest::newRow("interval") << "Common.pqa2" << 0xA1000020u << ms;
        QTest::newRow("minimum") << "Common.pqa2" << 0xA10000A0u << ms;
        QTest::newRow("angles") << "Common.pqa2" << 0xA1001003u << ms;
        QTest::newRow("flicker") << "Common.pqa2" << 0xA1000026u << ms;
        QTest::newRow("log") << "Common.pqa2" << 0xA1000009u << ms;
        QTest::newRow("start") << "Common.pqa2" << 0xA1000018u << seconds;
        QTest::newRow("ten seconds") << "Monitor.pqa2" << 0xA1010000u << seconds;
        QTest::newRow("ten minutes") << "Monitor.pqa2" << 0xA1010006u << seconds;
    }
    void theLastBlockWithATimeTellsIt()
    {
        QFETCH(QString, file);
        QFETCH(quint32, type);
        QFETCH(QByteArray, payload);
        storeBlocks(file,
                    { { 0xA1000018u, bytesOf(quint32(kTime / 1000)) },
                      { type, payload },
                      { 0xA100002Au, QByteArray(64, '\x7f') }, // a waveform's time is another number
                      { 0xA1000025u, QByteArray(64, '\x7f') },
                      { 0xA1010083u, QByteArray(64, '\x7f') },
                      { 0xA1010080u, QByteArray(32, '\x7f') },
                      { 0u, QByteArray() } });
        QCOMPARE(timeOf(kRun), QStringLiteral("2023-11-14 23:14:21"));
    }

    void aTornTailChangesNothing()
    {
        storeBlocks("Common.pqa2", { { 0xA1000020u, bytesOf(kTime) }, { 0xA1000020u, bytesOf(kTime + 5000) } });
        QFile file(Target::path(kStorage + kRun + "/Common.pqa2"));
        QVERIFY(file.resize(file.size() - 3));
        QCOMPARE(timeOf(kRun), QStringLiteral("2023-11-14 23:13:20"));
    }

    void theLastPartCounts()
    {
        storeBlocks("Common.pqa2", { { 0xA1000020u, bytesOf(kTime) } });
        storeBlocks("Common_2.pqa2", { { 0xA1000020u, bytesOf(kTime + 1000) } });
        storeBlocks("Common_3.pqa2", { { 0xA1000020u, bytesOf(kTime + 2000) } });
        QCOMPARE(timeOf(kRun), QStringLiteral("2023-11-14 23:13:22"));
    }

    void aRecordingThatHasItsEndIsNotTold()
    {
        storeBlocks("Common.pqa2", { { 0xA1000020u, bytesOf(kTime) }, { 0xA1000019u, bytesOf(quint32(1)) } });
        QVERIFY(found(kRun).isEmpty());
        // Whatever stands behind the end.
        storeBlocks("Common.pqa2",
                    { { 0xA1000019u, bytesOf(quint32(1)) }, { 0xA1000009u, bytesOf(kTime) }, { 0u, QByteArray() } });
        QVERIFY(found(kRun).isEmpty());
    }

    void whatIsNoFileAndNoFolderIsNotTold()
    {
        const QByteArray path = QFile::encodeName(Target::path(kStorage + "Logger_1_00.csv"));
        QCOMPARE(::mkfifo(path.constData(), 0600), 0);
        QVERIFY(found("Logger_1_00.csv").isEmpty());
    }

    void whatIsGoneIsNotTold() { QVERIFY(found(kRun).isEmpty()); }

    void withoutATimeInItTheFilesOwnCounts_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("Wave_1.wav") << QByteArray();
        QTest::newRow("Wave_2.wav") << QByteArray(88, '\x11');
        QTest::newRow("Logger_1_00.csv") << QByteArray();
        QTest::newRow("Logger_2_00.csv") << QByteArray("TIME,FREQ AVG,\n");
        QTest::newRow("Logger_3_00.csv") << QByteArray("\n\n\n");
        QTest::newRow("Logger_4_00.csv") << QByteArray("2023/99/99  99:99:99,1,\n");
        QTest::newRow("231114_221320 Logger_1/Common.pqa2") << QByteArray("PQA2");
        QTest::newRow("231114_221320 Logger_2/U Harmonic(1-50).pqa2") << QByteArray();
    }
    void withoutATimeInItTheFilesOwnCounts()
    {
        QFETCH(QByteArray, content);
        const QString file = QString::fromLatin1(QTest::currentDataTag());
        RootFiles::write(kStorage + file, content);
        setFileTime(file, kTime / 1000);
        setFileTime(file.section('/', 0, 0), kTime / 1000);
        QCOMPARE(timeOf(file.section('/', 0, 0)), QStringLiteral("2023-11-14 23:13:20"));
    }

    void ofALargeFileTheFileSystemTellsTheTime()
    {
        storeBlocks("Common.pqa2", { { 0xA1000020u, bytesOf(kTime + 5000) } });
        QFile file(Target::path(kStorage + kRun + "/Common.pqa2"));
        QVERIFY(file.resize(InterruptedRuns::kLargestRead + 1)); // a hole: takes no room
        setFileTime(kRun + "/Common.pqa2", kTime / 1000);
        QCOMPARE(timeOf(kRun), QStringLiteral("2023-11-14 23:13:20"));
    }

    void aLargeFileIsNoneThatWaitedForItsStart()
    {
        storeBlocks("Common.pqa2", {});
        QFile file(Target::path(kStorage + kRun + "/Common.pqa2"));
        QVERIFY(file.resize(InterruptedRuns::kLargestRead + 1));
        setFileTime(kRun + "/Common.pqa2", kTime / 1000);
        RootFiles::waitForDisks();
        RootFiles::write(RunJournal::path(), ".planned 1800000000 Logger_1\n" + kRun.toUtf8() + '\n');
        RunJournal journal;
        const QVector<InterruptedRun> runs = InterruptedRuns::find(journal, kWarsaw);
        QCOMPARE(runs.size(), 1);
        QCOMPARE(runs[0].last, QDateTime::fromMSecsSinceEpoch(kTime, kWarsaw));
    }

    void ofAFileThatCannotBeOpenedTheFileSystemTellsTheTime()
    {
        RootFiles::write(kStorage + "Logger_1_00.csv", "TIME,FREQ AVG,\n2023/11/14  20:00:00,50.000,\n");
        setFileTime("Logger_1_00.csv", kTime / 1000);
        RootFiles::waitForDisks();
        RootFiles::write(RunJournal::path(), "Logger_1_00.csv\n");
        RunJournal journal;
        QVector<InterruptedRun> runs;
        {
            const DescriptorLimit none(0);
            runs = InterruptedRuns::find(journal, kWarsaw);
        }
        QCOMPARE(runs.size(), 1);
        QCOMPARE(runs[0].last, QDateTime::fromMSecsSinceEpoch(kTime, kWarsaw));
    }

    void theHeadOfACaptureTellsTheLastWrite()
    {
        const Derived setUp;
        WaveFile file(QStringLiteral("Wave_1"), 0, 20480, setUp);
        QVERIFY(file.open(QDateTime::fromMSecsSinceEpoch(kTime, kWarsaw)));
        QCOMPARE(file.write(QByteArray(64, '\0'), quint32(kTime / 1000 + 10)), qint64(64));
        setFileTime("Wave_1.wav", 1'600'000'000);
        QCOMPARE(timeOf("Wave_1.wav"), QStringLiteral("2023-11-14 23:13:30"));
    }

    void theLastWholeLineOfALoggersFileTells()
    {
        RootFiles::write(
            kStorage + "Logger_1_00.csv",
            "TIME,FREQ AVG,\n2023/11/14  23:13:20,50.000,\n2023/11/14  23:13:25,50.000,\n2023/11/14  23:1");
        QCOMPARE(timeOf("Logger_1_00.csv"), QStringLiteral("2023-11-14 23:13:25"));
        // What stands before the last megabyte is not read.
        RootFiles::write(kStorage + "Logger_1_00.csv",
                         QByteArray(3 << 20, 'x') + "\n2023/11/14  23:13:26," + QByteArray(60000, '1') + '\n');
        QCOMPARE(timeOf("Logger_1_00.csv"), QStringLiteral("2023-11-14 23:13:26"));
    }

    void filesThatGrowAreInTheJournalWhileTheyAreOpen()
    {
        const QDateTime now = QDateTime::fromMSecsSinceEpoch(kTime, kWarsaw);
        const QString stem = QStringLiteral("Logger_1");
        const auto journal = [] {
            RootFiles::waitForDisks();
            return RootFiles::read(RunJournal::path());
        };
        LoggerFile file(&stem);
        QVERIFY(file.open(now));
        QCOMPARE(journal(), QByteArray("Logger_1_00.csv\n"));
        file.save(true);
        QCOMPARE(journal(), QByteArray("(missing)"));
        file.incFileIndex();
        QVERIFY(file.open(now));
        QCOMPARE(journal(), QByteArray("Logger_1_01.csv\n"));
        file.save(false);
        QCOMPARE(journal(), QByteArray("(missing)"));
    }
};

QTEST_GUILESS_MAIN(TstInterruptedRuns)
#include "tst_interruptedruns.moc"
