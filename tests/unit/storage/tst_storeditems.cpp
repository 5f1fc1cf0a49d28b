#include <QDateTime>
#include <QRegularExpression>
#include <QTest>

#include "platform/diskworker.h"
#include "storage/fileinfo.h"
#include "storage/filesinuse.h"
#include "storage/leaving.h"
#include "storage/storeditems.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/ordinaryuser.h"
#include "unit/storage/rootfiles.h"

#include <ctime>
#include <sys/stat.h>
#include <sys/time.h>
#include <thread>
#include <unistd.h>

namespace {

const QString kStorage = QStringLiteral("/mnt/storage/");
const QString kIndex = QStringLiteral("/mnt/storage/.infomation");
const QTimeZone kWarsaw("Europe/Warsaw");

QStringList names(const QVector<StoredItem> &items)
{
    QStringList found;
    for (const StoredItem &item : items)
        found << item.name;
    return found;
}

void store(const QByteArray &name, const QByteArray &content = "data")
{
    RootFiles::write(kStorage + QFile::decodeName(name), content);
}

QStringList onCard()
{
    return QDir(Target::path(kStorage))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

/// What was asked of the board's commands, when all is through.
QByteArray commands()
{
    DiskWorker::instance().wait();
    return RootFiles::commands();
}

} // namespace

/// What stands on the storage: listing, deleting, formatting, and an index that says the same.
class TstStoredItems : public QObject
{
    Q_OBJECT

private slots:
    void init() { RootFiles::clean(); }

    void anEmptyCardHasNothing() { QVERIFY(StoredItems::read(kWarsaw).isEmpty()); }

    void aMissingCardHasNothing()
    {
        QDir(Target::path(kStorage)).removeRecursively();
        QVERIFY(StoredItems::read(kWarsaw).isEmpty());
        QCOMPARE(StoredItems::remove({ "a.png" }), QList<QByteArray>({})); // it is gone already
        QVERIFY(StoredItems::removeAll());
        StoredItems::mendIndex(kWarsaw);
        QVERIFY(!RootFiles::exists(kStorage));
    }

    void filesAndFoldersAreListedTheNewestFirst()
    {
        RootFiles::write(kIndex, "old.png,2022-01-01 00:00:00\nnew.pqa,2024-05-06 07:08:09\n");
        store("old.png");
        store("new.pqa");
        store("230203_040506 Logger_1/Common.pqa2");
        const QVector<StoredItem> items = StoredItems::read(kWarsaw);
        QCOMPARE(names(items), QStringList({ "new.pqa", "230203_040506 Logger_1", "old.png" }));
        QVERIFY(items[1].isFolder);
        QVERIFY(!items[0].isFolder && !items[2].isFolder);
    }

    void theTimeIsThatOfTheIndexOrOfTheNameOrOfTheFile_data()
    {
        QTest::addColumn<QByteArray>("entry");
        QTest::addColumn<QString>("time");
        QTest::newRow("a.png") << QByteArray("a.png,2024-05-06 07:08:09\n") << "2024-05-06 07:08:09";
        QTest::newRow("231114_221320 Logger_1")
            << QByteArray("231114_221320 Logger_1,2024-05-06 07:08:09\n") << "2024-05-06 07:08:09";
        QTest::newRow("231114_221320 Logger_2") << QByteArray() << "2023-11-14 22:13:20";
        QTest::newRow("20231114_221320.wav") << QByteArray() << "2023-11-14 22:13:20";
        // The time of the file itself: 1,700,000,000 s is 23:13:20 in Warsaw.
        QTest::newRow("b.png") << QByteArray() << "2023-11-14 23:13:20";
        QTest::newRow("c.png") << QByteArray("c.png\n") << "2023-11-14 23:13:20";
        QTest::newRow("d.png") << QByteArray("d.png,yesterday\n") << "2023-11-14 23:13:20";
        QTest::newRow("231399_999999 x") << QByteArray() << "2023-11-14 23:13:20"; // no such day
        QTest::newRow("1234567890_123456") << QByteArray() << "2023-11-14 23:13:20";
    }
    void theTimeIsThatOfTheIndexOrOfTheNameOrOfTheFile()
    {
        QFETCH(QByteArray, entry);
        const QByteArray name = QTest::currentDataTag();
        store(name);
        RootFiles::write(kIndex, entry);
        const timeval times[2] = { { 1700000000, 0 }, { 1700000000, 0 } };
        ::utimes(QFile::encodeName(Target::path(kStorage + QString(name))).constData(), times);
        const QVector<StoredItem> items = StoredItems::read(kWarsaw);
        QCOMPARE(items.size(), 1);
        QTEST(items[0].time, "time");
    }

    void hiddenFilesLinksPipesAndTheFileSystemsOwnFolderAreNotListed()
    {
        store(".hidden");
        store("lost+found/x");
        QCOMPARE(::symlink("/etc/passwd", QFile::encodeName(Target::path(kStorage + "link")).constData()), 0);
        QCOMPARE(::mkfifo(QFile::encodeName(Target::path(kStorage + "pipe")).constData(), 0644), 0);
        QVERIFY(StoredItems::read(kWarsaw).isEmpty());
    }

    void namesThatAShellWouldReadAreDeletedAsTheyStand_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("quote") << QByteArray("a\"b.png");
        QTest::newRow("quote that ends a word") << QByteArray("\"; touch gone; \".png");
        QTest::newRow("dollar") << QByteArray("$HOME.png");
        QTest::newRow("command") << QByteArray("$(rm -rf victim).png");
        QTest::newRow("backtick") << QByteArray("`rm victim`");
        QTest::newRow("line feed") << QByteArray("one\ntwo.png");
        QTest::newRow("dash") << QByteArray("-rf");
        QTest::newRow("star") << QByteArray("*");
        QTest::newRow("blank") << QByteArray(" ");
        QTest::newRow("comma") << QByteArray("a,b.png");
        QTest::newRow("backslash") << QByteArray("a\\b");
        QTest::newRow("letters of other scripts") << QByteArray("\xd0\xb6\xe6\xb3\xa2.png");
        QTest::newRow("no letters at all") << QByteArray("\xff\xfe.png");
    }
    void namesThatAShellWouldReadAreDeletedAsTheyStand()
    {
        QFETCH(QByteArray, name);
        store("victim");
        store(" kept");
        const QByteArray path = QFile::encodeName(Target::path(kStorage)) + name;
        QFile file;
        FILE *made = ::fopen(path.constData(), "w");
        QVERIFY(made);
        ::fclose(made);
        StoredItems::mendIndex(kWarsaw);
        QCOMPARE(StoredItems::read(kWarsaw).size(), 3);
        QCOMPARE(StoredItems::remove({ name }), QList<QByteArray>({}));
        QVERIFY(::access(path.constData(), F_OK) != 0);
        QCOMPARE(FileInfo().getInfoFiles().size(), 2); // its entry went with it
        QVERIFY(RootFiles::exists(kStorage + "victim"));
        QVERIFY(RootFiles::exists(kStorage + " kept"));
    }

    void aRecordingGoesWithAllThatIsInItAndItsEntry()
    {
        store("231114_221320 Logger_1/Common.pqa2");
        store("231114_221320 Logger_1/deep/er/x");
        store("231114_221320 Logger_2/Common.pqa2");
        RootFiles::write(kIndex, "231114_221320 Logger_1,x\n231114_221320 Logger_2,x\n");
        QVERIFY(StoredItems::remove({ "231114_221320 Logger_1" }).isEmpty());
        QCOMPARE(onCard(), QStringList({ ".infomation", "231114_221320 Logger_2" }));
        QCOMPARE(RootFiles::read(kIndex), QByteArray("231114_221320 Logger_2,x\n"));
        QVERIFY(commands().endsWith("sync\n"));
    }

    void onlyWhatWasChosenGoesAlsoOfTheSameBaseName()
    {
        store("a.png");
        store("a.wav");
        RootFiles::write(kIndex, "a.png,x\na.wav,x\n");
        QVERIFY(StoredItems::remove({ "a.png" }).isEmpty());
        QCOMPARE(onCard(), QStringList({ ".infomation", "a.wav" }));
        QCOMPARE(RootFiles::read(kIndex), QByteArray("a.wav,x\n"));
    }

    void aLinkInARecordingGoesAndNotWhatItLeadsTo()
    {
        RootFiles::write("/mnt/userfs/keep", "data");
        store("rec/x");
        QVERIFY(::symlink(QFile::encodeName(Target::path("/mnt/userfs")).constData(),
                          QFile::encodeName(Target::path(kStorage + "rec/link")).constData())
                == 0);
        QVERIFY(StoredItems::remove({ "rec" }).isEmpty());
        QVERIFY(!RootFiles::exists(kStorage + "rec"));
        QCOMPARE(RootFiles::read("/mnt/userfs/keep"), QByteArray("data"));
    }

    void nothingOutsideTheStorageIsDeleted_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (const char *name : { "", ".", "..", "../userfs", "a/b", ".infomation" })
            QTest::newRow(name) << QByteArray(name);
    }
    void nothingOutsideTheStorageIsDeleted()
    {
        QFETCH(QByteArray, name);
        store("a/b");
        RootFiles::write(kIndex, "a,x\n");
        RootFiles::write("/mnt/userfs/keep", "data");
        QCOMPARE(StoredItems::remove({ name }), QList<QByteArray>({ name }));
        QVERIFY(RootFiles::exists("/mnt/userfs/keep"));
        QVERIFY(RootFiles::exists(kStorage + "a/b"));
        QCOMPARE(RootFiles::read(kIndex), QByteArray("a,x\n"));
    }

    void anOpenRecordingIsKnownAndStays()
    {
        store("231114_221320 Logger_1/Common.pqa2");
        store("Wave_1.wav");
        store("done.png");
        RootFiles::write(kIndex, "231114_221320 Logger_1,x\nWave_1.wav,x\ndone.png,x\n");
        QFile common(Target::path(kStorage + "231114_221320 Logger_1/Common.pqa2"));
        QFile wave(Target::path(kStorage + "Wave_1.wav"));
        QVERIFY(common.open(QIODevice::ReadWrite) && wave.open(QIODevice::ReadWrite));
        QCOMPARE(FilesInUse::names(), QSet<QByteArray>({ "231114_221320 Logger_1", "Wave_1.wav" }));
        QCOMPARE(StoredItems::remove({ "231114_221320 Logger_1", "done.png", "Wave_1.wav" }),
                 QList<QByteArray>({ "231114_221320 Logger_1", "Wave_1.wav" }));
        QCOMPARE(RootFiles::read(kIndex), QByteArray("231114_221320 Logger_1,x\nWave_1.wav,x\n"));
        QVERIFY(!StoredItems::removeAll());
        QCOMPARE(onCard(), QStringList({ ".infomation", "231114_221320 Logger_1", "Wave_1.wav" }));
        common.close();
        wave.close();
        QVERIFY(FilesInUse::names().isEmpty());
        QVERIFY(StoredItems::remove({ "231114_221320 Logger_1", "Wave_1.wav" }).isEmpty());
    }

    void formattingTakesEverythingWithTheIndex()
    {
        RootFiles::write(kIndex, "a.png,x\n");
        store("a.png");
        store("no suffix");
        store("231114_221320 Logger_1/Common.pqa2");
        QCOMPARE(::mkfifo(QFile::encodeName(Target::path(kStorage + "pipe")).constData(), 0644), 0);
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("format large storage!!!"));
        QVERIFY(StoredItems::removeAll());
        QCOMPARE(onCard(), QStringList());
        QVERIFY(commands().endsWith("sync\n"));
    }

    void whatIsSavedWhileTheCardIsFormattedStays()
    {
        QByteArrayList names;
        for (int i = 0; i < 3000; ++i) {
            names << "Vif_" + QByteArray::number(i) + ".png";
            store(names.last(), "old");
        }
        RootFiles::write(kIndex, "a.png,x\n");
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("format large storage!!!"));
        std::thread format([] { StoredItems::removeAll(); });
        while (RootFiles::exists(kIndex))
            std::this_thread::yield();
        for (int i = 0; i < 20; ++i)
            store(names.at(i * 150), "new");
        format.join();
        QCOMPARE(onCard().size(), 20);
        for (int i = 0; i < 20; ++i)
            QCOMPARE(RootFiles::read(kStorage + names.at(i * 150)), QByteArray("new"));
    }

    void whatWasGoingWhenTheSupplyWentGoesWithTheNextStart()
    {
        store(".leaving 1", "data");
        store(".leaving 2/Common.pqa2");
        store("rec/Common.pqa2");
        QVERIFY(!Leaving::take("rec").isEmpty()); // beside those that are there already
        QVERIFY(Leaving::take("rec").isEmpty());
        QCOMPARE(onCard().size(), 3);
        StoredItems::mendIndex(kWarsaw);
        QCOMPARE(onCard(), QStringList());
    }

    void aFolderThatCannotBeReadIsNoEmptyCard()
    {
        RootFiles::write(kIndex, "gone.png,x\n");
        const QByteArray folder = QFile::encodeName(Target::path(kStorage));
        OrdinaryUser user;
        user.setFolderMode(folder, 0333); // what stands in it cannot be listed
        StoredItems::mendIndex(kWarsaw);
        user.setFolderMode(folder, 0777);
        QCOMPARE(RootFiles::read(kIndex), QByteArray("gone.png,x\n"));
    }

    void deletingWorksOnAFullCardAndMendsTheIndexLater()
    {
        store("a.png");
        store("b.png");
        RootFiles::write(kIndex, "a.png,2023-01-01 00:00:00\nb.png,2023-01-01 00:00:00\n");
        {
            const FileLimit full(0);
            QTest::ignoreMessage(QtDebugMsg, QRegularExpression("open fail: removeEntries"));
            QVERIFY(StoredItems::remove({ "a.png" }).isEmpty());
        }
        QVERIFY(!RootFiles::exists(kStorage + "a.png"));
        QCOMPARE(FileInfo().getInfoFiles(), QStringList({ "a.png", "b.png" })); // no part of an index
        StoredItems::mendIndex(kWarsaw);
        QCOMPARE(FileInfo().getInfoFiles(), QStringList { "b.png" });
    }

    void theMendedIndexNamesWhatIsThere()
    {
        RootFiles::write(kIndex, "gone.png,2023-01-01 00:00:00\nkept.png,2023-01-02 00:00:00\ngone too\n");
        store("kept.png");
        store("231114_221320 Logger_1/Common.pqa2"); // of a run that lost its supply
        store("201114_221320 Logger_1/Common.pqa2");
        StoredItems::mendIndex(kWarsaw);
        QCOMPARE(RootFiles::read(kIndex),
                 QByteArray("kept.png,2023-01-02 00:00:00\n201114_221320 Logger_1,2020-11-14 22:13:20\n"
                            "231114_221320 Logger_1,2023-11-14 22:13:20\n"));
    }

    void whatTheIndexMissedComesByItsTime()
    {
        RootFiles::write(kIndex, "");
        QByteArray expected;
        for (const char *year : { "16", "17", "18", "19", "20", "21", "22", "23" }) {
            const QByteArray day = year + QByteArray("1114_221320 Logger_1");
            store(day + "/Common.pqa2");
            expected += day + ",20" + year + "-11-14 22:13:20\n";
        }
        StoredItems::mendIndex(kWarsaw);
        QCOMPARE(RootFiles::read(kIndex), expected);
    }

    void whatWasSavedSinceTheCardWasReadStaysInTheIndex()
    {
        RootFiles::write(kIndex, "new.png,2023-01-01 00:00:00\ngone.png,2023-01-01 00:00:00\n");
        store("new.png");
        QVERIFY(FileInfo().mend({}));
        QCOMPARE(FileInfo().getInfoFiles(), QStringList { "new.png" });
    }

    void aLostIndexIsMadeAnew()
    {
        store("20231114_221320.wav");
        StoredItems::mendIndex(kWarsaw);
        QCOMPARE(RootFiles::read(kIndex), QByteArray("20231114_221320.wav,2023-11-14 22:13:20\n"));
    }

    void anIndexThatIsRightIsNotWritten()
    {
        RootFiles::write(kIndex, "kept.png,2023-01-02 00:00:00\nno comma\n");
        store("kept.png");
        store("no comma");
        struct stat before
        {
        };
        struct stat after
        {
        };
        const QByteArray path = QFile::encodeName(Target::path(kIndex));
        ::stat(path.constData(), &before);
        StoredItems::mendIndex(kWarsaw);
        ::stat(path.constData(), &after);
        QCOMPARE(after.st_ino, before.st_ino); // a new one would be another file
        QVERIFY(commands().isEmpty());
    }

    void anIndexThatCannotBeReadIsNotMended()
    {
        QVERIFY(QDir().mkpath(Target::path(kIndex)));
        store("a.png");
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("open fail: mend"));
        StoredItems::mendIndex(kWarsaw);
        QVERIFY(QFileInfo(Target::path(kIndex)).isDir());
    }

    void thousandsOfFilesTakeNoLongerEach()
    {
        constexpr int kFiles = 5000;
        QByteArray index;
        QList<QByteArray> all;
        for (int i = 0; i < kFiles; ++i) {
            const QByteArray name = "Vif_" + QByteArray::number(i) + ".png";
            store(name, "x");
            index += name + ",2023-01-02 00:00:00\n";
            all << name;
        }
        RootFiles::write(kIndex, index);
        const std::clock_t begun = std::clock(); // of this process alone, however busy the machine is
        QCOMPARE(StoredItems::read(kWarsaw).size(), kFiles);
        StoredItems::mendIndex(kWarsaw);
        const QByteArray last = all.takeLast();
        QVERIFY(StoredItems::remove(all).isEmpty());
        // An index written anew for each would take minutes.
        const double seconds = double(std::clock() - begun) / CLOCKS_PER_SEC;
        QVERIFY2(seconds < 5, qPrintable(QString::number(seconds)));
        QCOMPARE(FileInfo().getInfoFiles(), QStringList { last });
        QVERIFY(commands().count('\n') <= 2); // the index, and the card as a whole
    }
};

QTEST_GUILESS_MAIN(TstStoredItems)
#include "tst_storeditems.moc"
