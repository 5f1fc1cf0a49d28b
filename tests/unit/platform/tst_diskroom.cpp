#include "platform/diskroom.h"
#include "platform/target.h"
#include "unit/filestandin.h"

#include <QTest>

#include <sys/vfs.h>
#include <unistd.h>

/// The room that a desk's USB disk has left.
class TstDiskRoom : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QDir(Target::path(kDisk)).removeRecursively(); }

    void aFolderWithoutASizeHasTheRoomOfItsHost()
    {
        QVERIFY(QDir().mkpath(Target::path(kDisk)));
        struct statfs asked, host;
        QVERIFY(DiskRoom::ask(kDisk, &asked));
        QCOMPARE(::statfs(QFile::encodeName(Target::path(kDisk)).constData(), &host), 0);
        QCOMPARE(quint64(asked.f_blocks), quint64(host.f_blocks));
    }

    void aMissingPathHasNone()
    {
        struct statfs info;
        QVERIFY(!DiskRoom::ask(QStringLiteral("/run/media/NONE"), &info));
    }

    void aDiskHasItsSizeLessWhatItsFilesTake()
    {
        const qint64 size = 16 << 20;
        put("/.capacity", QByteArray::number(size) + '\n');
        put("/sub/data", QByteArray(5 << 20, 'x'));
        struct statfs info;
        QVERIFY(DiskRoom::ask(kDisk + QStringLiteral("/sub"), &info)); // any path on the disk
        QCOMPARE(qint64(info.f_blocks) * info.f_bsize, size);
        QCOMPARE(qint64(info.f_bavail) * info.f_bsize, qint64(11 << 20)); // the mark is none of the disk's files
        QCOMPARE(quint64(info.f_bfree), quint64(info.f_bavail));
    }

    void anOverfullDiskHasNoRoomLeft()
    {
        put("/.capacity", "1000\n");
        put("/data", QByteArray(5000, 'x'));
        struct statfs info;
        QVERIFY(DiskRoom::ask(kDisk, &info));
        QCOMPARE(quint64(info.f_bavail), quint64(0));
    }

    void aSizeThatIsNoNumberCountsAsNone()
    {
        put("/.capacity", "plenty\n");
        struct statfs info;
        QVERIFY(DiskRoom::ask(kDisk, &info));
        QVERIFY(info.f_blocks > 0);
    }

    void aSizeThatIsNoFileCountsAsNone_data() { addFileStandIns(); }
    void aSizeThatIsNoFileCountsAsNone()
    {
        QFETCH(FileStandIn, kind);
        QVERIFY(putStandIn(kDisk + QStringLiteral("/.capacity"), kind));
        ::alarm(20); // a reader that waits for the writer of the pipe would wait for ever
        struct statfs info;
        QVERIFY(DiskRoom::ask(kDisk, &info));
        QVERIFY(info.f_blocks > 0);
        ::alarm(0);
    }

private:
    const QString kDisk = QStringLiteral("/run/media/STICK");

    void put(const char *name, const QByteArray &text)
    {
        QFile file(Target::path(kDisk) + QLatin1String(name));
        QVERIFY(QDir().mkpath(QFileInfo(file).path()));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(text), qint64(text.size()));
    }
};

QTEST_GUILESS_MAIN(TstDiskRoom)
#include "tst_diskroom.moc"
