#include "record/pqa2device.h"
#include "record/pqa2ff.h"
#include "record/pqa2reader.h"
#include "platform/target.h"
#include "unit/filestandin.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <memory>

namespace {

const QString kPath = QStringLiteral("/mnt/storage/Common.pqa2");

/// A real file with places far behind its end.
class SparseDevice : public Pqa2Device
{
public:
    explicit SparseDevice(float *free) : m_free(free) { }
    float freeSize() override { return *m_free; }

private:
    float *m_free; // MB
};

/// A writer whose next block the test puts where it likes.
struct SparseFile
{
    SparseFile()
    {
        auto owned = std::make_unique<SparseDevice>(&free);
        device = owned.get();
        file = std::make_unique<Pqa2FF>(std::move(owned));
    }
    /// The next block begins there; nothing is stored between.
    void skipTo(qint64 offset)
    {
        device->seek(offset);
        file->write("", 0); // the writer takes its place from the file
    }
    int add(const QByteArray &payload) { return file->addDataBlock(Pqa2SystemLog, payload); }

    float free = 1000.0f;
    SparseDevice *device;
    std::unique_ptr<Pqa2FF> file;
};

/// Kinds and payloads behind the three opening blocks; "not whole" where the reader finds fault.
QList<QByteArray> blocksOf(const QString &boardPath)
{
    QFile file(Target::path(boardPath));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    Pqa2Reader reader(&file);
    QList<QByteArray> blocks;
    for (Pqa2Block block; reader.next(&block);)
        blocks << QByteArray(pqa2KindName(block.type)) + ": " + reader.payload(block);
    if (reader.state() != Pqa2Reader::Whole)
        blocks << QByteArray("not whole: ") + reader.reason();
    return blocks.mid(3);
}

constexpr qint64 kEnd = 0xFFFFFFFF; // a block ends before this offset
constexpr int kHead = sizeof(Pqa2BlockHead);

} // namespace

/// Recordings that outgrow what a link can reach.
class TstPqa2Parts : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void offsetsNearTwoAndFourGigabytesAreLinkedAndRead();
    void fullFileIsReportedAndStaysWhole();
    void smallerBlockStillFits();
    void recordingGoesOnInTheNextPart();
    void everyPartBeginsAsTheWriterWants();
    void thirdPartFollowsTheSecond();
    void withoutRoomThePartStaysAndGoesOnLater();
    void partThatCannotBeBegunEndsTheRecording();
    void openingAgainStartsWithTheFirstPart();
    void allPartsTellWithWhatTheFirstWasBegun();
    void namesOfParts();
    void whatIsNoFileIsNotRecordedInto_data() { addFileStandIns(); }
    void whatIsNoFileIsNotRecordedInto();
};

void TstPqa2Parts::cleanup()
{
    QDir storage(Target::path(QStringLiteral("/mnt/storage")));
    for (const QString &name : storage.entryList({ QStringLiteral("*.pqa2") }))
        QDir(storage.filePath(name)).exists() ? QDir(storage.filePath(name)).removeRecursively() : storage.remove(name);
}

void TstPqa2Parts::whatIsNoFileIsNotRecordedInto()
{
    QFETCH(FileStandIn, kind);
    QVERIFY(putStandIn(kPath, kind));
    ::alarm(20); // whoever waits for the other end of a pipe would wait for ever
    Pqa2FF file;
    QVERIFY(!file.open(kPath));
    QVERIFY(!file.isOpen());
    ::alarm(0);
    removeStandIn(kPath);
}

void TstPqa2Parts::offsetsNearTwoAndFourGigabytesAreLinkedAndRead()
{
    SparseFile sparse;
    QVERIFY(sparse.file->open(kPath));
    QCOMPARE(sparse.add("first"), 0);
    for (const qint64 offset : { 0x7FFFFFF0LL, 0x80000000LL + 100, 0xFFFFFF00LL }) {
        sparse.skipTo(offset);
        QCOMPARE(sparse.add("at " + QByteArray::number(offset, 16)), 0);
        QCOMPARE(sparse.add("behind it"), 0);
    }
    QVERIFY(!sparse.file->isFull());
    sparse.file->close();
    QCOMPARE(blocksOf(kPath),
             (QList<QByteArray> { "system log: first", "system log: at 7ffffff0", "system log: behind it",
                                  "system log: at 80000064", "system log: behind it", "system log: at ffffff00",
                                  "system log: behind it" }));
}

void TstPqa2Parts::fullFileIsReportedAndStaysWhole()
{
    SparseFile sparse;
    QVERIFY(sparse.file->open(kPath));
    sparse.skipTo(kEnd - 100 - 3);
    QCOMPARE(sparse.add(QByteArray(40, 'a')), 0);
    QVERIFY(!sparse.file->isFull());
    QCOMPARE(sparse.add(QByteArray(40, 'b')), -1);
    QVERIFY(sparse.file->isFull());
    QVERIFY(sparse.file->isOpen());
    QCOMPARE(sparse.file->fullFilePath(), kPath);
    sparse.file->close();
    QCOMPARE(blocksOf(kPath), QList<QByteArray> { "system log: " + QByteArray(40, 'a') });
    QVERIFY(sparse.file->open(kPath));
    QVERIFY(!sparse.file->isFull());
}

void TstPqa2Parts::smallerBlockStillFits()
{
    SparseFile sparse;
    QVERIFY(sparse.file->open(kPath));
    const qint64 start = 0xFFFFFFFC - kHead - 16; // 16 bytes of payload end at the last place that a link tells
    sparse.skipTo(start);
    QCOMPARE(sparse.add(QByteArray(17, 'x')), -1);
    QCOMPARE(sparse.add(QByteArray(16, 'y')), 0);
    QCOMPARE(sparse.file->size(), qint64(0xFFFFFFFC));
    QCOMPARE(sparse.file->addBlankBlock(), -1);
    sparse.file->close();
    QCOMPARE(blocksOf(kPath), QList<QByteArray> { "system log: " + QByteArray(16, 'y') });
}

void TstPqa2Parts::recordingGoesOnInTheNextPart()
{
    SparseFile sparse;
    sparse.file->continueInParts();
    QVERIFY(sparse.file->open(kPath));
    QCOMPARE(sparse.add("early"), 0);
    sparse.skipTo(kEnd - 40 - 3);
    QCOMPARE(sparse.add("last of one"), 0);
    QCOMPARE(sparse.add("first of two"), 0);
    QCOMPARE(sparse.add("second of two"), 0);
    QVERIFY(!sparse.file->isFull());
    const QString second = QStringLiteral("/mnt/storage/Common_2.pqa2");
    QCOMPARE(sparse.file->fullFilePath(), second);
    QCOMPARE(sparse.file->fileName(), QStringLiteral("Common_2.pqa2"));
    sparse.file->close();
    QCOMPARE(blocksOf(kPath), (QList<QByteArray> { "system log: early", "system log: last of one" }));
    QCOMPARE(blocksOf(second), (QList<QByteArray> { "system log: first of two", "system log: second of two" }));
}

void TstPqa2Parts::everyPartBeginsAsTheWriterWants()
{
    SparseFile sparse;
    int parts = 0;
    sparse.file->continueInParts([&parts](Pqa2FF &file) {
        ++parts;
        file.addDataBlock(Pqa2StartTime, "time");
    });
    QVERIFY(sparse.file->open(kPath));
    QCOMPARE(parts, 0); // the first part is the writer's own
    sparse.skipTo(kEnd - 3);
    QCOMPARE(sparse.add("next"), 0);
    QCOMPARE(parts, 1);
    const QString second = sparse.file->fullFilePath();
    sparse.file->close();
    QCOMPARE(blocksOf(second), (QList<QByteArray> { "start: time", "system log: next" }));
}

void TstPqa2Parts::thirdPartFollowsTheSecond()
{
    SparseFile sparse;
    sparse.file->continueInParts();
    QVERIFY(sparse.file->open(kPath));
    for (const QString &name : { QStringLiteral("Common_2.pqa2"), QStringLiteral("Common_3.pqa2") }) {
        sparse.skipTo(kEnd - 3);
        QCOMPARE(sparse.add(name.toLatin1()), 0);
        QCOMPARE(sparse.file->fileName(), name);
        QCOMPARE(blocksOf(sparse.file->fullFilePath()), QList<QByteArray> { "system log: " + name.toLatin1() });
    }
}

void TstPqa2Parts::withoutRoomThePartStaysAndGoesOnLater()
{
    SparseFile sparse;
    sparse.file->continueInParts();
    QVERIFY(sparse.file->open(kPath));
    sparse.skipTo(kEnd - 31); // room for one block
    QCOMPARE(sparse.add("last"), 0);
    sparse.free = 49.0f; // blocks have room, a new file has none
    QCOMPARE(sparse.add("refused"), -1);
    QVERIFY(sparse.file->isFull());
    QCOMPARE(sparse.file->fullFilePath(), kPath);
    sparse.free = 50.0f;
    QCOMPARE(sparse.add("goes on"), 0);
    QVERIFY(!sparse.file->isFull());
    const QString second = sparse.file->fullFilePath();
    sparse.file->close();
    QCOMPARE(blocksOf(kPath), QList<QByteArray> { "system log: last" });
    QCOMPARE(blocksOf(second), QList<QByteArray> { "system log: goes on" });
}

void TstPqa2Parts::partThatCannotBeBegunEndsTheRecording()
{
    SparseFile sparse;
    sparse.file->continueInParts();
    QVERIFY(QDir().mkpath(Target::path(QStringLiteral("/mnt/storage/Common_2.pqa2/in-the-way"))));
    QVERIFY(sparse.file->open(kPath));
    QCOMPARE(sparse.add("kept"), 0);
    sparse.skipTo(kEnd - 31); // room for one block
    QCOMPARE(sparse.add("last"), 0);
    QCOMPARE(sparse.add("lost"), -1);
    QVERIFY(sparse.file->isFull());
    QVERIFY(!sparse.file->isOpen());
    QCOMPARE(blocksOf(kPath), (QList<QByteArray> { "system log: kept", "system log: last" }));
}

void TstPqa2Parts::openingAgainStartsWithTheFirstPart()
{
    SparseFile sparse;
    sparse.file->continueInParts();
    QVERIFY(sparse.file->open(kPath));
    sparse.skipTo(kEnd - 3);
    QCOMPARE(sparse.add("next"), 0);
    QVERIFY(sparse.file->open());
    QCOMPARE(sparse.file->fullFilePath(), kPath);
    QCOMPARE(sparse.add("anew"), 0);
    sparse.file->close();
    QCOMPARE(blocksOf(kPath), QList<QByteArray> { "system log: anew" });
}

void TstPqa2Parts::allPartsTellWithWhatTheFirstWasBegun()
{
    static int asked;
    asked = 0;
    Pqa2FF::setOpening([]() -> Pqa2Opening { return { QByteArray::number(++asked), "Fnom: 50Hz\n", "factors" }; });
    SparseFile sparse;
    sparse.file->continueInParts();
    QVERIFY(sparse.file->open(kPath));
    const auto told = [&sparse] {
        QFile file(Target::path(sparse.file->fullFilePath()));
        Pqa2Block block;
        return file.open(QIODevice::ReadOnly) && Pqa2Reader(&file).next(&block) ? Pqa2Reader(&file).payload(block)
                                                                                : QByteArray();
    };
    QCOMPARE(told(), QByteArray("1"));
    sparse.skipTo(kEnd - 3);
    QCOMPARE(sparse.add("next"), 0);
    QCOMPARE(sparse.file->fullFilePath(), Pqa2FF::partPath(kPath, 2));
    QCOMPARE(told(), QByteArray("1"));
    QVERIFY(sparse.file->open()); // another recording
    QCOMPARE(told(), QByteArray("2"));
    Pqa2FF::setOpening(nullptr);
}

void TstPqa2Parts::namesOfParts()
{
    QCOMPARE(Pqa2FF::partPath(QStringLiteral("/a.b/U Harmonic(1-50).pqa2"), 1),
             QStringLiteral("/a.b/U Harmonic(1-50).pqa2"));
    QCOMPARE(Pqa2FF::partPath(QStringLiteral("/a.b/U Harmonic(1-50).pqa2"), 2),
             QStringLiteral("/a.b/U Harmonic(1-50)_2.pqa2"));
    QCOMPARE(Pqa2FF::partPath(QStringLiteral("Run_2.pqa2"), 3), QStringLiteral("Run_2_3.pqa2"));
    QCOMPARE(Pqa2FF::partPath(QStringLiteral("/a.b/plain"), 10), QStringLiteral("/a.b/plain_10"));
}

QTEST_GUILESS_MAIN(TstPqa2Parts)
#include "tst_pqa2parts.moc"
