#include <QSignalSpy>
#include <QTest>

#include "storage/massstorage.h"
#include "storage/udiskstorage.h"
#include "unit/storage/rootfiles.h"

#include <sys/statvfs.h>

namespace {
void mountDisk(const QString &name)
{
    if (!QDir().mkpath(Target::path("/run/media/" + name)))
        qFatal("cannot make a disk");
}
}

/// Sizes of the storage, and the disks that come and go.
class TstStorage : public QObject
{
    Q_OBJECT

private slots:
    void init() { RootFiles::clean(); }

    void freeAndUsedSizesFollowTheFileSystem()
    {
        struct statvfs info
        {
        };
        QVERIFY(::statvfs(QFile::encodeName(Target::path("/mnt/storage/")).constData(), &info) == 0);
        const double free = double(info.f_bavail) * double(info.f_frsize);
        const double used = double(info.f_blocks) * double(info.f_frsize) - free;
        const double drift = 256.0 * 1024 * 1024; // other programs write meanwhile
        QVERIFY(qAbs(MassStorage::storageFreeRoom("/mnt/storage/") * 1024.0 - free) < drift);
        QVERIFY(qAbs(MassStorage::storageFreeSize("/mnt/storage/") * 1048576.0 - free) < drift);
        QVERIFY(qAbs(MassStorage::storageUsedSize("/mnt/storage/") * 1048576.0 - used) < drift);
    }

    void aPathThatIsNotThereHasNoRoom()
    {
        QCOMPARE(MassStorage::storageFreeRoom("/mnt/nothing"), qint64(0));
        QCOMPARE(MassStorage::storageFreeSize("/mnt/nothing"), 0.0f);
        QCOMPARE(MassStorage::storageUsedSize("/mnt/nothing"), 0.0f);
        QCOMPARE(MassStorage::storageFreeSize0("/mnt/nothing"), 0.0f);
        QCOMPARE(MassStorage::folderUsedSize("/mnt/nothing"), qint64(0));
    }

    void theShellsFreeSizeIsTheFourthColumnOfTheDisksLine()
    {
        mountDisk("sda1");
        const QString df = Target::root() + "/bin/df";
        QFile script(df);
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\necho 'Filesystem 1K-blocks Used Available Use% Mounted on'\n"
                     "echo \"/dev/sda1 8000000 1 2097152 1% "
                     + Target::path("/run/media/sda1").toUtf8() + "\"\n");
        script.close();
        QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QCOMPARE(MassStorage::storageFreeSize0("/run/media/sda1"), float(2097152 * 9.536743e-7));
        mountDisk("other");
        QCOMPARE(MassStorage::storageFreeSize0("/run/media/other"), 0.0f);
        QVERIFY(QFile::remove(df));
    }

    void aDiskNameNeverBecomesACommand()
    {
        mountDisk("a;touch $HOME 'x' > evil");
        const QString name = "/run/media/a;touch " + Target::root() + "/evil;";
        QVERIFY(QDir().mkpath(Target::path(name)));
        QCOMPARE(MassStorage::storageFreeSize0(name), 0.0f);
        QCOMPARE(MassStorage::storageFreeSize0("/run/media/a;touch $HOME 'x' > evil"), 0.0f);
        QVERIFY(!QFileInfo(Target::root() + "/evil").isFile());
    }

    void theSizeOfAFolderIsTheSumOfItsFiles()
    {
        RootFiles::write("/mnt/storage/a", QByteArray(1000, 'x'));
        RootFiles::write("/mnt/storage/b", QByteArray(234, 'x'));
        RootFiles::write("/mnt/storage/.c", QByteArray(1, 'x'));
        RootFiles::write("/mnt/storage/sub/d", QByteArray(5000, 'x'));
        QCOMPARE(MassStorage::folderUsedSize("/mnt/storage/"), qint64(1235));
    }

    void theDisksPresentAtTheStartAreListed()
    {
        mountDisk("sda1");
        mountDisk("sdb2");
        mountDisk("mmcblk0p1");
        RootFiles::write("/run/media/file", "no folder");
        mountDisk(".hidden");
        const uDiskStorage storage;
        QCOMPARE(storage.Storages(), QStringList({ "/run/media/sda1", "/run/media/sdb2" }));
        QVERIFY(storage.hasMassStorage());
    }

    void theInternalCardIsNoDisk()
    {
        mountDisk("mmcblk0p1");
        const uDiskStorage storage;
        QVERIFY(!storage.hasMassStorage());
        QCOMPARE(storage.Storages(), QStringList());
    }

    void aDiskMountedLaterIsReported()
    {
        uDiskStorage storage;
        QSignalSpy changed(&storage, &uDiskStorage::uDiskStorageChanged);
        mountDisk("sda1");
        QTRY_COMPARE(storage.Storages(), QStringList({ "/run/media/sda1" }));
        QCOMPARE(changed.last().first().toStringList(), QStringList({ "/run/media/sda1" }));
        QVERIFY(QDir().rmdir(Target::path("/run/media/sda1")));
        QTRY_VERIFY(!storage.hasMassStorage());
        QCOMPARE(changed.last().first().toStringList(), QStringList());
    }

    void aMediaFolderThatGoesAndComesBackIsWatchedAgain()
    {
        uDiskStorage storage;
        mountDisk("sda1");
        QTRY_VERIFY(storage.hasMassStorage());
        QVERIFY(QDir(Target::path("/run/media")).removeRecursively());
        QTRY_VERIFY(!storage.hasMassStorage());
        mountDisk("sdc1");
        QTRY_COMPARE(storage.Storages(), QStringList({ "/run/media/sdc1" }));
        mountDisk("sdd1");
        QTRY_COMPARE(storage.Storages(), QStringList({ "/run/media/sdc1", "/run/media/sdd1" }));
    }

    void aMediaFolderThatIsMissingAtTheStartIsWaitedFor()
    {
        QVERIFY(QDir(Target::path("/run/media")).removeRecursively());
        uDiskStorage storage;
        QVERIFY(!storage.hasMassStorage());
        mountDisk("sda1");
        QTRY_VERIFY(storage.hasMassStorage());
    }
};

QTEST_GUILESS_MAIN(TstStorage)
#include "tst_storage.moc"
