#include "platform/clock.h"
#include "settings/config_data.h"
#include "storage/fileinfo.h"
#include "task/recordfolder.h"
#include "unit/storage/rootfiles.h"

#include <QDateTime>
#include <QDir>
#include <QTest>

/// Folders of recordings.
class TstRecordFolder : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        RootFiles::clean();
        Clock::setForTest(1705594500000); // 2024-01-18 16:15:00 UTC
        m_userConfig_g.setTimeZone(QStringLiteral("Europe/Warsaw")); // an hour ahead
    }
    void cleanup() { Clock::useSystem(); }

    void theNameIsTheUsersTimeAndTheRecordsName();
    void noNameLeadsToAnotherFolderOrBreaksTheIndex();
    void theFolderStandsOnTheStorageAndInTheIndex();
    void aFolderThatIsThereIsLeftAlone();
    void withoutStorageThereIsNoFolder();
    void aRemovedFolderIsGoneWithItsFilesAndItsEntry();
    void aReleasedFolderStays();
};

void TstRecordFolder::theNameIsTheUsersTimeAndTheRecordsName()
{
    const QDateTime local(QDate(2024, 1, 18), QTime(16, 15, 9), Qt::UTC);
    QCOMPARE(RecordFolder::nameAt(local, QStringLiteral("Logger_1")), QStringLiteral("240118_161509 Logger_1"));
    QCOMPARE(RecordFolder::nameAt(local, QString()), QStringLiteral("240118_161509 "));
}

void TstRecordFolder::noNameLeadsToAnotherFolderOrBreaksTheIndex()
{
    const QDateTime local(QDate(2024, 1, 18), QTime(16, 15, 9), Qt::UTC);
    QCOMPARE(RecordFolder::nameAt(local, QStringLiteral("../../a,b\nc")), QStringLiteral("240118_161509 .._.._a_b_c"));
    QCOMPARE(RecordFolder::nameAt(local, QString(5000, QLatin1Char('x'))).size(), 14 + 80);
}

void TstRecordFolder::theFolderStandsOnTheStorageAndInTheIndex()
{
    RecordFolder folder;
    QVERIFY(folder.create(QStringLiteral("Logger_1")));
    QCOMPARE(folder.name(), QStringLiteral("240118_171500 Logger_1"));
    QCOMPARE(folder.path(), QStringLiteral("/mnt/storage/240118_171500 Logger_1/"));
    QCOMPARE(folder.file(QStringLiteral("Common.pqa2")),
             QStringLiteral("/mnt/storage/240118_171500 Logger_1/Common.pqa2"));
    QVERIFY(QDir(Target::path(folder.path())).exists());
    RootFiles::waitForDisks();
    QCOMPARE(RootFiles::read(FileInfo::indexPath()), QByteArray("240118_171500 Logger_1,2024-01-18 17:15:00\n"));
    QCOMPARE(FileInfo().getRecordInfos(), QStringList { folder.name() });
    QCOMPARE(FileInfo().getDefaultRecordName(QStringLiteral("Logger_")), QStringLiteral("Logger_2"));
}

void TstRecordFolder::aFolderThatIsThereIsLeftAlone()
{
    const QString taken = QStringLiteral("/mnt/storage/240118_171500 Logger_1/Common.pqa2");
    RootFiles::write(taken, "an hour");
    RootFiles::write("/mnt/storage/240118_171501 Logger_1", "a file");
    RecordFolder folder;
    QVERIFY(folder.create(QStringLiteral("Logger_1")));
    QCOMPARE(folder.name(), QStringLiteral("240118_171502 Logger_1"));
    QVERIFY(QDir(Target::path(folder.path())).isEmpty());
    folder.remove();
    RootFiles::waitForDisks();
    QCOMPARE(RootFiles::read(taken), QByteArray("an hour"));
    QVERIFY(RootFiles::exists("/mnt/storage/240118_171501 Logger_1"));
}

void TstRecordFolder::withoutStorageThereIsNoFolder()
{
    const QString storage = Target::path(FileInfo::storagePath());
    QVERIFY(QDir(storage).removeRecursively());
    RecordFolder folder;
    QVERIFY(!folder.create(QStringLiteral("Logger_1")));
    QVERIFY(!QDir(storage).exists());
    QCOMPARE(folder.name(), QString());
    QCOMPARE(folder.path(), QString());
    QCOMPARE(folder.file(QStringLiteral("Common.pqa2")), QString());
    QVERIFY(QDir().mkpath(storage));
}

void TstRecordFolder::aRemovedFolderIsGoneWithItsFilesAndItsEntry()
{
    RecordFolder folder;
    QVERIFY(folder.create(QStringLiteral("Logger_1")));
    RootFiles::write(folder.file(QStringLiteral("Common.pqa2")), "x");
    const QString path = Target::path(folder.path());
    const QString leftBehind = QStringLiteral("/mnt/storage/.leaving 240101_000000 Logger_9/Common.pqa2");
    RootFiles::write(leftBehind, "x"); // by a supply that was lost
    folder.remove();
    QVERIFY(!QDir(path).exists());
    RootFiles::waitForDisks();
    QVERIFY(!RootFiles::exists(leftBehind));
    const QDir storage(Target::path(FileInfo::storagePath()));
    QCOMPARE(storage.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList(".infomation"));
    RootFiles::waitForDisks();
    QCOMPARE(RootFiles::read(FileInfo::indexPath()), QByteArray());
    QCOMPARE(folder.name(), QString());
    folder.remove(); // nothing is left that could go
    QVERIFY(QDir(Target::path(FileInfo::storagePath())).exists());
}

void TstRecordFolder::aReleasedFolderStays()
{
    RecordFolder folder;
    QVERIFY(folder.create(QStringLiteral("Logger_1")));
    const QString path = Target::path(folder.path());
    folder.release();
    folder.remove();
    QVERIFY(QDir(path).exists());
}

QTEST_GUILESS_MAIN(TstRecordFolder)
#include "tst_recordfolder.moc"
