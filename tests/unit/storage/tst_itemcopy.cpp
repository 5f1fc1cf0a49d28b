#include <QTest>

#include "storage/copybatch.h"
#include "storage/itemcopy.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/heldcopy.h"
#include "unit/storage/rootfiles.h"

#include <functional>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

const QString kSource = QStringLiteral("/mnt/storage/231114_221320 Logger_1");
const QString kDisk = QStringLiteral("/run/media/sda1");
const QString kTarget = kDisk + QStringLiteral("/231114_221320 Logger_1");

/// All files of a folder with their content, by their names in it.
QMap<QString, QByteArray> tree(const QString &boardPath)
{
    QMap<QString, QByteArray> found;
    const QString folder = Target::path(boardPath);
    for (const QFileInfo &info :
         QDir(folder).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)) {
        const QString name = boardPath + QLatin1Char('/') + info.fileName();
        if (!info.isDir()) {
            found[info.fileName()] = RootFiles::read(name);
            continue;
        }
        found[info.fileName() + QLatin1Char('/')] = QByteArray();
        const auto inner = tree(name);
        for (auto file = inner.cbegin(); file != inner.cend(); ++file)
            found[info.fileName() + QLatin1Char('/') + file.key()] = file.value();
    }
    return found;
}

void record()
{
    RootFiles::write(kSource + "/Common.pqa2", QByteArray(600000, 'c'));
    RootFiles::write(kSource + "/deep/HVolt.pqa2", QByteArray(300000, 'h'));
    RootFiles::write(kSource + "/empty", QByteArray());
    QDir().mkpath(Target::path(kSource + "/no files"));
}

FileCopy::State runToTheEnd(ItemCopy &copy, const std::function<void()> &between = {})
{
    FileCopy::State state = FileCopy::Running;
    while (state == FileCopy::Running) {
        state = copy.copyPiece();
        if (between)
            between();
    }
    return state;
}

} // namespace

/// Copies of recordings, which are folders, and of single files; and many of them behind each other.
class TstItemCopy : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        RootFiles::clean();
        QVERIFY(QDir().mkpath(Target::path(kDisk)));
        record();
    }

    void aRecordingIsCopiedWithAllThatIsInIt()
    {
        ItemCopy copy(kSource, kTarget);
        QCOMPARE(copy.size(), qint64(900000));
        QCOMPARE(runToTheEnd(copy), FileCopy::Done);
        QCOMPARE(copy.copied(), qint64(900000));
        QCOMPARE(copy.error(), QString());
        QCOMPARE(tree(kTarget), tree(kSource));
        QCOMPARE(tree(kDisk).keys().first(), QStringLiteral("231114_221320 Logger_1/"));
        QCOMPARE(QDir(Target::path(kDisk)).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
    }

    void aFolderAppearsUnderItsNameOnlyWhenItIsWhole()
    {
        ItemCopy copy(kSource, kTarget);
        int looks = 0;
        while (copy.copyPiece() == FileCopy::Running) {
            QVERIFY(!RootFiles::exists(kTarget));
            ++looks;
        }
        QVERIFY(looks > 5);
        QVERIFY(RootFiles::exists(kTarget));
    }

    void anOldCopyStaysUntilTheNewOneIsWhole()
    {
        RootFiles::write(kTarget + "/old", "old");
        ItemCopy copy(kSource, kTarget);
        while (copy.copyPiece() == FileCopy::Running)
            QCOMPARE(RootFiles::read(kTarget + "/old"), QByteArray("old"));
        QCOMPARE(tree(kTarget), tree(kSource)); // nothing of the old one in it
        QCOMPARE(QDir(Target::path(kDisk)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
    }

    void aFileTakesThePlaceOfAFolderAndAFolderThatOfAFile()
    {
        RootFiles::write("/mnt/storage/a.png", "picture");
        RootFiles::write(kDisk + "/a.png/x", "folder");
        ItemCopy file("/mnt/storage/a.png", kDisk + "/a.png");
        QCOMPARE(runToTheEnd(file), FileCopy::Done);
        QCOMPARE(RootFiles::read(kDisk + "/a.png"), QByteArray("picture"));

        RootFiles::write(kTarget, "file");
        ItemCopy folder(kSource, kTarget);
        QCOMPARE(runToTheEnd(folder), FileCopy::Done);
        QCOMPARE(tree(kTarget), tree(kSource));
        QCOMPARE(QDir(Target::path(kDisk)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 2);
    }

    void whatAnEarlierCopyLeftBesideItGoes()
    {
        RootFiles::write(kTarget + ".part/half", "half");
        ItemCopy copy(kSource, kTarget);
        QCOMPARE(runToTheEnd(copy), FileCopy::Done);
        QCOMPARE(tree(kTarget), tree(kSource));
        QVERIFY(!RootFiles::exists(kTarget + ".part"));
    }

    void aCancelAtAnyPieceLeavesTheDiskAsItWas()
    {
        RootFiles::write(kTarget + "/old", "old");
        const auto before = tree(kDisk);
        for (int pieces = 0; pieces < 8; ++pieces) {
            ItemCopy copy(kSource, kTarget);
            for (int i = 0; i < pieces; ++i)
                QCOMPARE(copy.copyPiece(), FileCopy::Running);
            copy.cancel("enough");
            QCOMPARE(copy.error(), QStringLiteral("enough"));
            QCOMPARE(copy.copyPiece(), FileCopy::Failed);
            QCOMPARE(tree(kDisk), before);
        }
        {
            ItemCopy forgotten(kSource, kTarget);
            forgotten.copyPiece();
            forgotten.copyPiece();
            forgotten.copyPiece();
        }
        QCOMPARE(tree(kDisk), before);
    }

    void aDiskPulledAtAnyPieceIsAnErrorAndNothingElse()
    {
        for (int pieces = 0; pieces < 8; ++pieces) {
            QVERIFY(QDir().mkpath(Target::path(kDisk)));
            ItemCopy copy(kSource, kTarget);
            int done = 0;
            QCOMPARE(runToTheEnd(copy,
                                 [&] {
                                     if (done++ == pieces)
                                         QDir(Target::path(kDisk)).removeRecursively();
                                 }),
                     FileCopy::Failed);
            QVERIFY(!copy.error().isEmpty());
            QVERIFY(!copy.isOutOfRoom());
            QVERIFY(!RootFiles::exists(kDisk));
            QCOMPARE(tree(kSource).size(), 5);
        }
    }

    void aDiskThatTakesNoMoreKeepsNothingOfIt()
    {
        const FileLimit full(400000);
        ItemCopy copy(kSource, kTarget);
        QCOMPARE(runToTheEnd(copy), FileCopy::Failed);
        QVERIFY(tree(kDisk).isEmpty());
    }

    void linksAndPipesStayOut()
    {
        QCOMPARE(::symlink("/etc", QFile::encodeName(Target::path(kSource + "/link")).constData()), 0);
        QCOMPARE(::mkfifo(QFile::encodeName(Target::path(kSource + "/pipe")).constData(), 0644), 0);
        ItemCopy copy(kSource, kTarget);
        QCOMPARE(runToTheEnd(copy), FileCopy::Done);
        QVERIFY(!tree(kTarget).contains("link") && !tree(kTarget).contains("link/"));
        QVERIFY(!tree(kTarget).contains("pipe"));
        QVERIFY(tree(kTarget).contains("Common.pqa2"));
    }

    void aMissingSourceIsAnError()
    {
        ItemCopy copy("/mnt/storage/none", kDisk + "/none");
        QCOMPARE(runToTheEnd(copy), FileCopy::Failed);
        QVERIFY(tree(kDisk).isEmpty());
    }

    void aBatchCopiesOneBehindTheOtherAndCounts()
    {
        RootFiles::write("/mnt/storage/a.png", QByteArray(100000, 'a'));
        CopyBatch batch({ { kSource, kTarget }, { "/mnt/storage/a.png", kDisk + "/a.png" } });
        QCOMPARE(batch.run(), CopyBatch::Copied);
        QCOMPARE(batch.copied(), 2);
        QCOMPARE(batch.progress(), 1.0);
        QCOMPARE(batch.current(), 1);
        QCOMPARE(RootFiles::read(kDisk + "/a.png"), QByteArray(100000, 'a'));
        QCOMPARE(tree(kTarget), tree(kSource));
    }

    void aBatchEndsWhereTheDiskHasNoRoom()
    {
        RootFiles::write("/mnt/storage/a.png", QByteArray(100000, 'a'));
        RootFiles::write(kDisk + "/.capacity", "500000\n");
        CopyBatch batch({ { "/mnt/storage/a.png", kDisk + "/a.png" }, { kSource, kTarget } });
        QCOMPARE(batch.run(), CopyBatch::NoRoom);
        QCOMPARE(batch.copied(), 1);
        QVERIFY(!batch.error().isEmpty());
        QVERIFY(RootFiles::exists(kDisk + "/a.png"));
        QVERIFY(!RootFiles::exists(kTarget) && !RootFiles::exists(kTarget + ".part"));
    }

    void aDiskThatIsGoneIsAFailureAndNotALackOfRoom()
    {
        CopyBatch batch({ { kSource, "/run/media/sdz1/x" } });
        QCOMPARE(batch.run(), CopyBatch::Failed);
        QCOMPARE(batch.copied(), 0);
    }

    void aBatchIsEndedFromAnotherThread()
    {
        RootFiles::write("/mnt/storage/large", QByteArray(100000000, 'x'));
        CopyBatch batch({ { "/mnt/storage/large", kDisk + "/large" }, { kSource, kTarget } });
        CopyBatch::Result result = CopyBatch::Copied;
        HeldCopy held(2);
        std::thread thread([&] { result = batch.run(); });
        while (batch.progress() <= 0)
            std::this_thread::yield();
        batch.cancel();
        held.release();
        thread.join();
        QCOMPARE(result, CopyBatch::Cancelled);
        QCOMPARE(batch.copied(), 0);
        QVERIFY(tree(kDisk).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TstItemCopy)
#include "tst_itemcopy.moc"
