#include <QRegularExpression>
#include <QTimeZone>
#include <QTest>

#include "storage/fileinfo.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/helddisk.h"
#include "unit/storage/rootfiles.h"
#include "unit/storage/wornfile.h"

#include <sys/time.h>

namespace {
const QString kIndex = QStringLiteral("/mnt/storage/.infomation");
const QDateTime kSaved(QDate(2023, 11, 14), QTime(22, 13, 20), Qt::UTC);

void touch(const QString &boardPath, int seconds)
{
    const timeval times[2] = { { seconds, 0 }, { seconds, 0 } };
    if (::utimes(QFile::encodeName(Target::path(boardPath)).constData(), times) != 0)
        qFatal("cannot set the time of %s", qPrintable(boardPath));
}

QStringList hiddenOnCard()
{
    return QDir(Target::path("/mnt/storage"))
        .entryList({ ".*" }, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}
}

/// The text index of the storage.
class TstFileInfo : public QObject
{
    Q_OBJECT

private slots:
    void init() { RootFiles::clean(); }

    void aMissingIndexIsEmptyAndSaysSo()
    {
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("F: storage/fileinfo L: \\d+ > open fail: readInfo"));
        QCOMPARE(FileInfo().readInfo(), QStringList());
        QVERIFY(!FileInfo().testInfo());
        QCOMPARE(FileInfo().getInfoFiles(), QStringList());
        QVERIFY(!FileInfo().testFileexist("a.pqa"));
    }

    void savingAddsALineWithTheTimeAsTheCallerSeesIt()
    {
        QVERIFY(FileInfo().saveInfo("Vif_1.pqa", kSaved.toTimeZone(QTimeZone("Europe/Warsaw")))); // an hour ahead
        QCOMPARE(RootFiles::read(kIndex), QByteArray("Vif_1.pqa,2023-11-14 23:13:20\n"));
        QVERIFY(FileInfo().testInfo());
        QVERIFY(RootFiles::commands().endsWith("sync\n"));
    }

    void namesAreReadUpToTheFirstCommaOrAreTheWholeLine()
    {
        RootFiles::write(kIndex, "a.pqa,2023-01-01 00:00:00\nno comma\nb.png,x,y\n");
        QCOMPARE(FileInfo().readInfo(), QStringList({ "a.pqa,2023-01-01 00:00:00", "no comma", "b.png,x,y" }));
        QCOMPARE(FileInfo().getInfoFiles(), QStringList({ "a.pqa", "no comma", "b.png" }));
        QVERIFY(FileInfo().testFileexist("no comma"));
        QVERIFY(!FileInfo().testFileexist("A.pqa"));
        QVERIFY(!FileInfo().testFileexist("a"));
    }

    void savingTheSameBaseNameReplacesTheEntry()
    {
        RootFiles::write(kIndex,
                         "one.png,2023-01-01 00:00:00\nshot.png,2023-01-02 00:00:00\nshot.pqa,2023-01-03 00:00:00\n");
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("file exist ,  cover or not\\?"));
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("file exist ,  cover or not\\?"));
        QVERIFY(FileInfo().saveInfo("shot.pqa", kSaved));
        QCOMPARE(RootFiles::read(kIndex), QByteArray("one.png,2023-01-01 00:00:00\nshot.pqa,2023-11-14 22:13:20\n"));
    }

    void onlyTheLastExtensionIsCut_data()
    {
        QTest::addColumn<QString>("base");
        QTest::newRow("a.pqa") << "a";
        QTest::newRow("a.b.pqa") << "a.b";
        QTest::newRow("a") << "a";
        QTest::newRow(".infomation") << "";
        QTest::newRow("a.") << "a";
        QTest::newRow("") << "";
    }
    void onlyTheLastExtensionIsCut() { QTEST(FileInfo::baseName(QTest::currentDataTag()), "base"); }

    void aNameStaysOnItsLine()
    {
        QVERIFY(FileInfo().saveInfo("a\nb.pqa", kSaved));
        QCOMPARE(RootFiles::read(kIndex), QByteArray("a b.pqa,2023-11-14 22:13:20\n"));
    }

    void theIndexIsWrittenAsLatin1()
    {
        QVERIFY(FileInfo().saveInfo(QString::fromUtf8("é工.pqa"), kSaved));
        QCOMPARE(RootFiles::read(kIndex), QByteArray("\xe9?.pqa,2023-11-14 22:13:20\n"));
    }

    void removingTakesTheEntryAndTheStoredFilesOfItsBaseName()
    {
        RootFiles::write(kIndex, "a.pqa,x\nab.pqa,x\n");
        for (const char *file : { "a.pqa", "a.png", "ab.pqa", "a.b.pqa" })
            RootFiles::write(QString("/mnt/storage/") + file, "data");
        QVERIFY(QDir().mkpath(Target::path("/mnt/storage/a")));
        QVERIFY(FileInfo().removeInfo("a.pqa"));
        QCOMPARE(RootFiles::read(kIndex), QByteArray("ab.pqa,x\n"));
        QVERIFY(!RootFiles::exists("/mnt/storage/a.pqa"));
        QVERIFY(!RootFiles::exists("/mnt/storage/a.png"));
        QVERIFY(RootFiles::exists("/mnt/storage/ab.pqa"));
        QVERIFY(RootFiles::exists("/mnt/storage/a.b.pqa"));
        QVERIFY(RootFiles::exists("/mnt/storage/a")); // a folder is no stored file
    }

    void removingNeverLeavesTheStorageNorTakesTheIndex_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : { "", ".infomation", "..", "../outside.txt", "*", "*.pqa" })
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void removingNeverLeavesTheStorageNorTakesTheIndex()
    {
        QFETCH(QString, name);
        RootFiles::write(kIndex, "a.pqa,x\n");
        RootFiles::write("/mnt/storage/a.pqa", "data");
        RootFiles::write("/mnt/outside.txt", "keep");
        QVERIFY(FileInfo().removeInfo(name));
        QCOMPARE(RootFiles::read(kIndex), QByteArray("a.pqa,x\n"));
        QVERIFY(RootFiles::exists("/mnt/storage/a.pqa"));
        QVERIFY(RootFiles::exists("/mnt/outside.txt"));
    }

    void anIndexThatCannotBeOpenedFailsQuietly()
    {
        QVERIFY(QDir().mkpath(Target::path(kIndex)));
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("open fail: saveInfo"));
        QVERIFY(!FileInfo().saveInfo("a.pqa", kSaved));
        RootFiles::write("/mnt/storage/a.pqa", "data");
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("open fail: removeInfo"));
        QVERIFY(!FileInfo().removeInfo("a.pqa"));
        QVERIFY(RootFiles::exists("/mnt/storage/a.pqa"));
    }

    void aFullDiskAtAnyByteKeepsTheOldIndex()
    {
        const QByteArray old = "a.pqa,2023-01-01 00:00:00\nb.pqa,2023-01-01 00:00:00\n";
        RootFiles::write(kIndex, old);
        for (int n = 0; n < old.size() + 26; n += 5) {
            FileLimit full(static_cast<rlim_t>(n));
            QTest::ignoreMessage(QtDebugMsg, QRegularExpression("open fail: saveInfo"));
            QVERIFY(!FileInfo().saveInfo("c.pqa", kSaved));
        }
        QCOMPARE(RootFiles::read(kIndex), old);
    }

    void whatIsBeingRecordedStaysWhereAFileOfItsBaseNameGoes()
    {
        RootFiles::write(kIndex, "Pump.png,x\n");
        RootFiles::write("/mnt/storage/Pump.png", "data");
        RootFiles::write("/mnt/storage/Pump.wav", "data");
        QFile capture(Target::path("/mnt/storage/Pump.wav"));
        QVERIFY(capture.open(QIODevice::ReadWrite));
        QVERIFY(FileInfo().removeInfo("Pump.png"));
        QVERIFY(!RootFiles::exists("/mnt/storage/Pump.png"));
        QVERIFY(RootFiles::exists("/mnt/storage/Pump.wav"));
    }

    void theMainThreadWaitsForNoCardToReplaceAFile()
    {
        RootFiles::write(kIndex, "a.png,x\nb.png,x\n");
        RootFiles::write("/mnt/storage/a.png", "old");
        {
            const HeldDisk held;
            FileInfo().removeInfoBehind("a.png");
            QVERIFY(!RootFiles::exists("/mnt/storage/a.png")); // the name is free
            FileInfo().saveInfoBehind("a.png", kSaved);
            FileInfo().saveInfoBehind("c.png", kSaved);
            RootFiles::write("/mnt/storage/a.png", "new");
            QCOMPARE(RootFiles::read(kIndex), QByteArray("a.png,x\nb.png,x\n"));
            QCOMPARE(FileInfo().getInfoFiles(), QStringList({ "a.png", "b.png", "c.png" }));
            QCOMPARE(FileInfo().getDefaultFileName("c", ".png"), QString("c1.png"));
            FileInfo().saveInfoBehind("c1.png", kSaved);
            QCOMPARE(FileInfo().getDefaultFileName("c", ".png"), QString("c2.png")); // not the same one twice
        }
        QCOMPARE(RootFiles::read(kIndex),
                 QByteArray("b.png,x\na.png,2023-11-14 22:13:20\nc.png,2023-11-14 22:13:20\n"
                            "c1.png,2023-11-14 22:13:20\n"));
        QCOMPARE(FileInfo().getInfoFiles(), QStringList({ "b.png", "a.png", "c.png", "c1.png" }));
        QCOMPARE(RootFiles::read("/mnt/storage/a.png"), QByteArray("new"));
        QCOMPARE(hiddenOnCard(), QStringList { ".infomation" }); // the old one is gone for good
    }

    void behindAnIndexThatCannotBeReadNothingIsRemoved()
    {
        QVERIFY(makeWornFile(kIndex));
        RootFiles::write("/mnt/storage/a.pqa", "data");
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("open fail: removeInfo"));
        FileInfo().removeInfoBehind("a.pqa");
        QVERIFY(RootFiles::exists("/mnt/storage/a.pqa"));
    }

    void onAFullCardTheFilesGoBeforeTheIndexIsMended()
    {
        RootFiles::write(kIndex, "a.pqa,x\nb.pqa,x\n");
        RootFiles::write("/mnt/storage/a.pqa", "data");
        RootFiles::write("/mnt/storage/b.pqa", "data");
        {
            FileLimit full(0); // not even the new index fits
            QTest::ignoreMessage(QtDebugMsg, QRegularExpression("open fail: removeInfo"));
            QVERIFY(!FileInfo().removeInfo("a.pqa"));
        }
        QVERIFY(!RootFiles::exists("/mnt/storage/a.pqa"));
        QVERIFY(RootFiles::exists("/mnt/storage/b.pqa"));
        QCOMPARE(RootFiles::read(kIndex), QByteArray("a.pqa,x\nb.pqa,x\n"));
        QVERIFY(FileInfo().removeInfo("a.pqa")); // with the room that this made
        QCOMPARE(RootFiles::read(kIndex), QByteArray("b.pqa,x\n"));
    }

    void anIndexThatCouldNotBeReadIsNotWrittenOver()
    {
        QVERIFY(makeWornFile(kIndex));
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("open fail: saveInfo"));
        QVERIFY(!FileInfo().saveInfo("a.pqa", kSaved));
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("open fail: removeInfo"));
        QVERIFY(!FileInfo().removeInfo("a.pqa"));
        QVERIFY(isWornFile(kIndex));
    }

    void binaryAndEmptyLinesDoNotHurt()
    {
        RootFiles::write(kIndex, QByteArray("\0\xff\n\n\na.pqa,x\n", 13));
        QCOMPARE(FileInfo().getInfoFiles().last(), QString("a.pqa"));
        QVERIFY(FileInfo().saveInfo("b.pqa", kSaved));
        QVERIFY(FileInfo().testFileexist("a.pqa"));
    }

    void filesOfAFolderAreListedOldestFirstWithoutDotFiles()
    {
        RootFiles::write(kIndex, "");
        int time = 1600000000;
        for (const char *file : { "c.pqa", "a.pqa", "b.png" }) {
            RootFiles::write(QString("/mnt/storage/") + file, QByteArray(100 - time % 7, 'x'));
            touch(QString("/mnt/storage/") + file, time += 1000);
        }
        QVERIFY(QDir().mkpath(Target::path("/mnt/storage/folder")));
        QCOMPARE(FileInfo().getFiles("/mnt/storage/"), QStringList({ "c.pqa", "a.pqa", "b.png" }));
        QCOMPARE(FileInfo().getFiles("/mnt/nothing/"), QStringList());
    }

    void recordsAreTheNamesWithADateAndABlank()
    {
        for (const char *folder : { "231114_221320 Logger_1", "231114_221320", "Logger 1", "231115_000000 Monitor" })
            QVERIFY(QDir().mkpath(Target::path(QString("/mnt/storage/") + folder)));
        QCOMPARE(FileInfo().getRecordInfos(), QStringList({ "231114_221320 Logger_1", "231115_000000 Monitor" }));
    }

    void theFirstFreeNumberIsTheDefaultName()
    {
        QCOMPARE(FileInfo().getDefaultFileName("Vif_", ".png"), QString("Vif_1.png"));
        RootFiles::write(kIndex, "Vif_1.png,x\nVif_2.pqa,x\nVif_3.png,x\n");
        QCOMPARE(FileInfo().getDefaultFileName("Vif_", ".png"), QString("Vif_2.png"));
        QCOMPARE(FileInfo().getDefaultFileName("Vif_", ".pqa"), QString("Vif_1.pqa"));
    }

    void aFileThatIsNotInTheIndexYetIsNotOffered()
    {
        RootFiles::write("/mnt/storage/Wave_1.wav", "x");
        QCOMPARE(FileInfo().getDefaultFileName("Wave_", ".wav"), QStringLiteral("Wave_2.wav"));
        QCOMPARE(FileInfo().getDefaultFileName("Wave_", ".png"), QStringLiteral("Wave_1.png"));
    }

    void withAllNumbersTakenTheDefaultNameIsEmpty()
    {
        QByteArray index;
        for (int n = 1; n <= 999; ++n)
            index += "Vif_" + QByteArray::number(n) + ".png,x\n";
        RootFiles::write(kIndex, index);
        QCOMPARE(FileInfo().getDefaultFileName("Vif_", ".png"), QString());
        RootFiles::write(kIndex, index.replace("Vif_999.png", "other.png"));
        QCOMPARE(FileInfo().getDefaultFileName("Vif_", ".png"), QString("Vif_999.png"));
    }

    void defaultRecordNamesLookBehindTheDate()
    {
        QCOMPARE(FileInfo().getDefaultRecordName("Logger_"), QString("Logger_1"));
        QVERIFY(QDir().mkpath(Target::path("/mnt/storage/231114_221320 Logger_1")));
        QVERIFY(QDir().mkpath(Target::path("/mnt/storage/231115_221320 Monitor-EN501601")));
        QCOMPARE(FileInfo().getDefaultRecordName("Logger_"), QString("Logger_2"));
    }
};

QTEST_GUILESS_MAIN(TstFileInfo)
#include "tst_fileinfo.moc"
