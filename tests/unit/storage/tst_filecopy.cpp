#include <QTest>

#include "storage/filecopy.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/rootfiles.h"
#include "unit/storage/wornfile.h"

#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString kSource = QStringLiteral("/mnt/storage/data.pqa2");
const QString kTarget = QStringLiteral("/run/media/sda1/data.pqa2");
const QString kPart = kTarget + QStringLiteral(".part");

QByteArray content(int size)
{
    QByteArray bytes(size, '\0');
    for (int i = 0; i < size; ++i)
        bytes[i] = char(i * 31 + i / 256);
    return bytes;
}

QStringList onDisk()
{
    return QDir(Target::path("/run/media/sda1")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

FileCopy::State runToTheEnd(FileCopy &copy)
{
    FileCopy::State state = FileCopy::Running;
    while (state == FileCopy::Running)
        state = copy.copyPiece();
    return state;
}

/// A copy that keeps what it sends to the disk, and can be made to fail there.
class WatchedCopy : public FileCopy
{
public:
    using FileCopy::FileCopy;

    QVector<QPair<qint64, qint64>> flushed; // offset and length
    int failAt = -1; // index of the flush that fails
    int calls = 0;

protected:
    bool flush(int fd, qint64 offset, qint64 length) override
    {
        if (calls++ == failAt) {
            errno = EIO;
            return false;
        }
        flushed.append({ offset, length });
        return FileCopy::flush(fd, offset, length);
    }
};

/// What happens to the names of a folder.
class FolderWatch
{
public:
    explicit FolderWatch(const QString &folder) : m_fd(::inotify_init1(IN_NONBLOCK))
    {
        ::inotify_add_watch(m_fd, QFile::encodeName(folder).constData(), IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO);
    }
    ~FolderWatch() { ::close(m_fd); }

    QStringList events()
    {
        QStringList found;
        alignas(inotify_event) char buffer[4096];
        const ssize_t size = ::read(m_fd, buffer, sizeof(buffer));
        for (ssize_t at = 0; at < size;) {
            inotify_event event;
            memcpy(&event, buffer + at, sizeof(event));
            const char *kind = event.mask & IN_DELETE ? "deleted "
                : event.mask & IN_MOVED_TO            ? "moved to "
                                                      : "moved from ";
            found << kind + QString::fromUtf8(buffer + at + sizeof(event));
            at += ssize_t(sizeof(event) + event.len);
        }
        return found;
    }

private:
    int m_fd;
};

} // namespace

/// Copies that go piece by piece, and what is left when they end early.
class TstFileCopy : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        RootFiles::clean();
        QVERIFY(QDir().mkpath(Target::path("/run/media/sda1")));
    }

    void aFileIsCopiedWhole_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("pieces");
        QTest::newRow("empty") << 0 << 0;
        QTest::newRow("a byte") << 1 << 1;
        QTest::newRow("a byte less than a piece") << 262143 << 1;
        QTest::newRow("a piece") << 262144 << 1;
        QTest::newRow("a byte more") << 262145 << 2;
        QTest::newRow("many") << 3000000 << 12;
    }
    void aFileIsCopiedWhole()
    {
        QFETCH(int, size);
        RootFiles::write(kSource, content(size));
        WatchedCopy copy(kSource, kTarget);
        QCOMPARE(copy.progress(), 0.0);
        QCOMPARE(runToTheEnd(copy), FileCopy::Done);
        QCOMPARE(copy.progress(), 1.0);
        QCOMPARE(copy.error(), QString());
        QCOMPARE(RootFiles::read(kTarget), content(size));
        QCOMPARE(onDisk(), QStringList { "data.pqa2" });
        QTEST(copy.flushed.size(), "pieces");
        QCOMPARE(RootFiles::commands(), QByteArray()); // no sync of everything at the end
    }

    void eachPieceIsOnTheDiskBeforeTheNextIsTaken()
    {
        RootFiles::write(kSource, content(600000));
        WatchedCopy copy(kSource, kTarget);
        for (int piece = 1; piece <= 3; ++piece) {
            QCOMPARE(copy.copyPiece(), FileCopy::Running);
            QCOMPARE(copy.flushed.size(), piece);
        }
        const QVector<QPair<qint64, qint64>> ranges = { { 0, 262144 }, { 262144, 262144 }, { 524288, 75712 } };
        QCOMPARE(copy.flushed, ranges);
        QVERIFY(RootFiles::exists(kPart) && !RootFiles::exists(kTarget));
        QCOMPARE(copy.copyPiece(), FileCopy::Done);
    }

    void anOldTargetStandsUntilTheNewOneTakesItsNameInOneStep()
    {
        RootFiles::write(kSource, content(600000));
        RootFiles::write(kTarget, "old");
        FolderWatch watch(Target::path("/run/media/sda1"));
        FileCopy copy(kSource, kTarget);
        while (copy.copyPiece() == FileCopy::Running)
            QCOMPARE(RootFiles::read(kTarget), QByteArray("old"));
        QCOMPARE(RootFiles::read(kTarget), content(600000));
        QCOMPARE(watch.events(), QStringList({ "moved from data.pqa2.part", "moved to data.pqa2" }));
    }

    void aCopyThatEndsEarlyKeepsTheOldTargetAndNothingElse_data()
    {
        QTest::addColumn<int>("end");
        QTest::newRow("cancelled before the first piece") << 0;
        QTest::newRow("cancelled") << 1;
        QTest::newRow("given up") << 2;
        QTest::newRow("a disk that fails") << 3;
        QTest::newRow("a full disk") << 4;
    }
    void aCopyThatEndsEarlyKeepsTheOldTargetAndNothingElse()
    {
        QFETCH(int, end);
        RootFiles::write(kSource, content(600000));
        RootFiles::write(kTarget, "old");
        {
            WatchedCopy copy(kSource, kTarget);
            if (end > 0)
                QCOMPARE(copy.copyPiece(), FileCopy::Running);
            if (end < 2) {
                copy.cancel("why");
                QCOMPARE(copy.error(), QString("why"));
                QCOMPARE(copy.copyPiece(), FileCopy::Failed);
            } else if (end == 3) {
                copy.failAt = 1;
                QCOMPARE(runToTheEnd(copy), FileCopy::Failed);
                QCOMPARE(copy.error(), QString::fromLocal8Bit(strerror(EIO)));
            } else if (end == 4) {
                FileLimit full(400000);
                QCOMPARE(runToTheEnd(copy), FileCopy::Failed);
                QVERIFY(!copy.error().isEmpty());
            }
        }
        QCOMPARE(RootFiles::read(kTarget), QByteArray("old"));
        QCOMPARE(onDisk(), QStringList { "data.pqa2" });
        QCOMPARE(RootFiles::read(kSource).size(), 600000);
    }

    void aSourceThatCannotBeReadIsAnError()
    {
        RootFiles::write(kTarget, "old");
        FileCopy missing(kSource, kTarget);
        QCOMPARE(missing.copyPiece(), FileCopy::Failed);
        QVERIFY(makeWornFile(kSource));
        FileCopy worn(kSource, kTarget);
        QCOMPARE(runToTheEnd(worn), FileCopy::Failed);
        QVERIFY(!worn.error().isEmpty());
        QFile::remove(Target::path(kSource));
        QVERIFY(::mkfifo(QFile::encodeName(Target::path(kSource)).constData(), 0600) == 0);
        FileCopy pipe(kSource, kTarget);
        QCOMPARE(pipe.copyPiece(), FileCopy::Failed);
        QCOMPARE(RootFiles::read(kTarget), QByteArray("old"));
        QCOMPARE(onDisk(), QStringList { "data.pqa2" });
    }

    void aTargetThatCannotBeReplacedIsAnErrorAndStays()
    {
        RootFiles::write(kSource, content(10));
        RootFiles::write(kTarget + "/inside", "keep"); // a folder of that name
        FileCopy copy(kSource, kTarget);
        QCOMPARE(runToTheEnd(copy), FileCopy::Failed);
        QVERIFY(!copy.error().isEmpty());
        QCOMPARE(RootFiles::read(kTarget + "/inside"), QByteArray("keep"));
        QCOMPARE(onDisk(), QStringList { "data.pqa2" });
    }

    void whatStandsUnderTheNameOfThePartIsNotWrittenThrough()
    {
        RootFiles::write(kSource, content(10));
        RootFiles::write("/mnt/storage/other", "keep");
        QVERIFY(::symlink(QFile::encodeName(Target::path("/mnt/storage/other")).constData(),
                          QFile::encodeName(Target::path(kPart)).constData())
                == 0);
        FileCopy copy(kSource, kTarget);
        QCOMPARE(runToTheEnd(copy), FileCopy::Done);
        QCOMPARE(RootFiles::read("/mnt/storage/other"), QByteArray("keep"));
        QCOMPARE(RootFiles::read(kTarget), content(10));
    }

    void aSourceThatGrowsIsCopiedAsFarAsItWentAtTheStart()
    {
        RootFiles::write(kSource, content(300000));
        FileCopy copy(kSource, kTarget);
        QCOMPARE(copy.copyPiece(), FileCopy::Running);
        RootFiles::write(kSource, content(900000));
        QCOMPARE(runToTheEnd(copy), FileCopy::Done);
        QCOMPARE(RootFiles::read(kTarget), content(300000));
    }
};

QTEST_GUILESS_MAIN(TstFileCopy)
#include "tst_filecopy.moc"
