#include "readblocks.h"
#include "unit/documentpage.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryFile>
#include <QTest>

#include <cstring>
#include <unistd.h>

namespace {

constexpr quint32 kLast = kPqa2LastBlock;

QByteArray words(const QVector<quint32> &all)
{
    return QByteArray(reinterpret_cast<const char *>(all.constData()), 4 * all.size());
}

QByteArray fileHead()
{
    return QByteArray(reinterpret_cast<const char *>(&kPqa2FileHeader), int(sizeof kPqa2FileHeader));
}

/// A file of log entries, each of 8 bytes with its number; linked as a writer does.
QByteArray logFile(int blocks)
{
    QByteArray file = fileHead();
    for (int n = 0; n < blocks; ++n) {
        const quint32 next = quint32(file.size()) + 20;
        file += words({ n + 1 < blocks ? next : kLast, Pqa2SystemLog, 8, quint32(n), 0xEEEEEEEE });
    }
    return file;
}

constexpr int offsetOf(int block)
{
    return 24 + 20 * block;
}

/// What a reader that skips every damage found.
struct Found
{
    QVector<quint32> numbers; // first payload word of each block
    Pqa2Reader::State state = Pqa2Reader::Whole;
    qint64 fault = -1;
    QByteArray reason;
};

Found readAll(QIODevice *device)
{
    Pqa2Reader reader(device);
    Found found;
    do {
        for (Pqa2Block block; reader.next(&block);) {
            quint32 number = 0;
            const QByteArray payload = reader.payload(block);
            memcpy(&number, payload.constData(), size_t(qMin(payload.size(), 4)));
            found.numbers << number;
        }
    } while (reader.skipDamage());
    found.state = reader.state();
    found.fault = reader.faultOffset();
    found.reason = reader.reason();
    return found;
}

Found readAll(const QByteArray &file)
{
    QBuffer buffer;
    buffer.setData(file);
    buffer.open(QIODevice::ReadOnly);
    return readAll(&buffer);
}

QByteArray patched(QByteArray file, int at, quint32 word)
{
    return file.replace(at, 4, words({ word }));
}

QVector<quint32> upTo(int count, const QVector<quint32> &without = {})
{
    QVector<quint32> numbers;
    for (quint32 n = 0; n < quint32(count); ++n) {
        if (!without.contains(n))
            numbers << n;
    }
    return numbers;
}

} // namespace

/// What a reader says of files that are whole, cut, damaged, foreign or made to mislead it.
class TstPqa2Reader : public QObject
{
    Q_OBJECT

private slots:
    void wholeFile();
    void everyCutIsReportedWithItsPlace();
    void oneDamagedHeadCostsItsBlockOnly_data();
    void oneDamagedHeadCostsItsBlockOnly();
    void damageInAPayloadIsNoDamageOfTheChain();
    void severalDamagesAreAllSkipped();
    void blockWithoutALinkBehindTheEndIsACut();
    void whatIsNoFileOfThisKind_data();
    void whatIsNoFileOfThisKind();
    void payloadComesInPieces();
    void unknownKindsAreDelivered();
    void bytesBetweenBlocksAreSkippedByTheirLink();
    void everyFlippedBitEndsInAState();
    void fileMadeToMisleadEndsInTime();
    void fileThatShrinksWhileItIsReadEndsInAState();
    void fileThatShrinksWhileItIsSearchedEnds();
    void deviceThatIsClosedMeanwhileGivesNothing();
    void deviceWithoutPlacesIsUnreadable();
    void viewIsBoundedAndReachesBack();
    void blocksInsideAWideGapAreFoundWhenItsLinkIsWrong();
    void blocksBehindAHoleAreFound();
    void offsetsBeyondTwoGigabytesAreRead();
    void memoryStaysConstant();
    void millionBlocksAreWalked();
    void readerStopsAtDamage_data();
    void readerStopsAtDamage();
    void pageAndProgramNameTheSameKinds();
};

void TstPqa2Reader::wholeFile()
{
    const Found found = readAll(logFile(100));
    QCOMPARE(found.numbers, upTo(100));
    QCOMPARE(found.state, Pqa2Reader::Whole);
    QCOMPARE(found.fault, qint64(-1));
    QVERIFY(found.reason.isEmpty());
}

void TstPqa2Reader::everyCutIsReportedWithItsPlace()
{
    constexpr int kBlocks = 5;
    const QByteArray file = logFile(kBlocks);
    for (int size = int(sizeof kPqa2FileHeader); size < file.size(); ++size) {
        const Found found = readAll(file.left(size));
        const int whole = (size - offsetOf(0)) / 20;
        QCOMPARE(found.numbers, upTo(whole));
        QCOMPARE(found.state, Pqa2Reader::Cut);
        // At a block's end the link of the last one leads nowhere, elsewhere a block is not all there.
        const bool atEnd = size == offsetOf(whole) && whole > 0;
        QCOMPARE(found.fault, qint64(offsetOf(atEnd ? whole - 1 : whole)));
        QVERIFY(!found.reason.isEmpty());
    }
}

void TstPqa2Reader::oneDamagedHeadCostsItsBlockOnly_data()
{
    QTest::addColumn<int>("at"); // place in the head of block 10
    QTest::addColumn<quint32>("word");
    QTest::addColumn<bool>("lost"); // block 10 itself
    QTest::newRow("link to itself") << 0 << quint32(offsetOf(10)) << false;
    QTest::newRow("link backwards") << 0 << 24u << false;
    QTest::newRow("link into its payload") << 0 << quint32(offsetOf(10) + 16) << false;
    QTest::newRow("link not aligned") << 0 << quint32(offsetOf(11) + 1) << false;
    QTest::newRow("link behind the file") << 0 << 0xFFFFFF00u << false;
    QTest::newRow("link of the last block") << 0 << kLast << false;
    QTest::newRow("link of zero") << 0 << 0u << false;
    QTest::newRow("link far forward, to no block") << 0 << quint32(offsetOf(15) + 4) << false;
    QTest::newRow("size behind the file") << 8 << 100000u << true;
    QTest::newRow("largest size") << 8 << 0xFFFFFFFFu << true;
    QTest::newRow("size over the next blocks") << 8 << 60u << true;
}

void TstPqa2Reader::oneDamagedHeadCostsItsBlockOnly()
{
    QFETCH(int, at);
    QFETCH(quint32, word);
    QFETCH(bool, lost);
    const Found found = readAll(patched(logFile(20), offsetOf(10) + at, word));
    QCOMPARE(found.state, Pqa2Reader::Broken);
    QCOMPARE(found.numbers, upTo(20, lost ? QVector<quint32> { 10 } : QVector<quint32>()));
    QVERIFY2(found.fault >= offsetOf(10) && found.fault <= offsetOf(15) + 4, qPrintable(QString::number(found.fault)));
}

void TstPqa2Reader::damageInAPayloadIsNoDamageOfTheChain()
{
    const Found found = readAll(patched(logFile(20), offsetOf(10) + 16, 0xA5A5A5A5));
    QCOMPARE(found.state, Pqa2Reader::Whole);
    QCOMPARE(found.numbers, upTo(20));
}

void TstPqa2Reader::severalDamagesAreAllSkipped()
{
    QByteArray file = logFile(40);
    file = patched(file, offsetOf(5) + 8, 0xFFFFFFFF);
    file = patched(file, offsetOf(6) + 8, 0x7FFFFFFF);
    file = patched(file, offsetOf(20), 3);
    file.replace(offsetOf(30) + 4, 100, QByteArray(100, '\xBB'));
    const Found found = readAll(file);
    QCOMPARE(found.state, Pqa2Reader::Broken);
    QCOMPARE(found.fault, qint64(offsetOf(5))); // the first one
    // The hole begins in the head of block 30, whose link and place are still there.
    QCOMPARE(found.numbers, upTo(40, { 5, 6, 30, 31, 32, 33, 34, 35 }));
}

void TstPqa2Reader::blockWithoutALinkBehindTheEndIsACut()
{
    // As a process leaves it that ends between a block and the link to it.
    const QByteArray file = patched(logFile(10), offsetOf(8), kLast);
    const Found found = readAll(file);
    QCOMPARE(found.state, Pqa2Reader::Cut);
    QCOMPARE(found.fault, qint64(offsetOf(9)));
    QCOMPARE(found.numbers, upTo(9));
}

void TstPqa2Reader::whatIsNoFileOfThisKind_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("one byte") << QByteArray("P");
    QTest::newRow("head not whole") << fileHead().left(23);
    QTest::newRow("text") << QByteArray("PQA2 is what it is not, for all its length");
    QTest::newRow("other version") << patched(logFile(3), 4, 0x10002010);
    QTest::newRow("other signature") << patched(logFile(3), 8, 0);
    QTest::newRow("zeros") << QByteArray(1000, '\0');
}

void TstPqa2Reader::whatIsNoFileOfThisKind()
{
    QFETCH(QByteArray, file);
    const Found found = readAll(file);
    QCOMPARE(found.state, Pqa2Reader::Unreadable);
    QCOMPARE(found.fault, qint64(0));
    QVERIFY(!found.reason.isEmpty());
    QVERIFY(found.numbers.isEmpty());
    QBuffer closed;
    QCOMPARE(readAll(&closed).state, Pqa2Reader::Unreadable);
    QCOMPARE(readAll(static_cast<QIODevice *>(nullptr)).state, Pqa2Reader::Unreadable);
}

void TstPqa2Reader::payloadComesInPieces()
{
    QByteArray payload(100001, '\0');
    for (int i = 0; i < payload.size(); ++i)
        payload[i] = char(i * 7);
    const int padded = (payload.size() + 3) & ~3;
    QBuffer buffer;
    buffer.setData(fileHead() + words({ kLast, Pqa2EventCurves, quint32(payload.size()) }) + payload
                   + QByteArray(padded - payload.size(), 'p'));
    buffer.open(QIODevice::ReadOnly);
    Pqa2Reader reader(&buffer);
    Pqa2Block block;
    QVERIFY(reader.next(&block));
    QCOMPARE(reader.payload(block), payload);
    QByteArray joined;
    for (int at = 0; at < payload.size(); at += 999)
        joined += reader.payload(block, at, 999);
    QCOMPARE(joined, payload);
    QVERIFY(reader.payload(block, payload.size()).isEmpty()); // no padding
    QVERIFY(reader.payload(block, -1).isEmpty());
    QVERIFY(reader.payload(block, 0, 0).isEmpty());
    QVERIFY(!reader.next(&block));
    QCOMPARE(reader.state(), Pqa2Reader::Whole);
}

void TstPqa2Reader::unknownKindsAreDelivered()
{
    const Found found = readAll(patched(logFile(5), offsetOf(2) + 4, 0x12345678));
    QCOMPARE(found.state, Pqa2Reader::Whole);
    QCOMPARE(found.numbers, upTo(5));
}

void TstPqa2Reader::bytesBetweenBlocksAreSkippedByTheirLink()
{
    QByteArray file = logFile(1);
    file = patched(file, offsetOf(0), quint32(file.size()) + 100);
    file += QByteArray(100, '\x55') + words({ kLast, Pqa2SystemLog, 4, 1 });
    const Found found = readAll(file);
    QCOMPARE(found.state, Pqa2Reader::Whole);
    QCOMPARE(found.numbers, upTo(2));
}

void TstPqa2Reader::everyFlippedBitEndsInAState()
{
    const QByteArray file = logFile(8);
    for (int bit = 8 * int(sizeof kPqa2FileHeader); bit < 8 * file.size(); ++bit) {
        QByteArray flipped = file;
        flipped[bit / 8] = char(flipped[bit / 8] ^ (1 << bit % 8));
        const Found found = readAll(flipped);
        QVERIFY(found.state != Pqa2Reader::Unreadable);
        // One head costs its block; behind the last but two no chain is left to be found.
        QVERIFY2(found.numbers.size() >= (bit < 8 * offsetOf(6) ? 7 : 6), qPrintable(QString::number(bit)));
        QCOMPARE(found.fault < 0, found.state == Pqa2Reader::Whole);
    }
}

void TstPqa2Reader::fileMadeToMisleadEndsInTime()
{
    // A megabyte of heads, each linked rightly to a place far off where there is none.
    QByteArray file = fileHead() + words({ 1, Pqa2SystemLog, 0 });
    constexpr int kSize = 1 << 20;
    while (file.size() < kSize) {
        const auto end = quint32(file.size() + 12 + 500000);
        file += words({ end, Pqa2SystemLog, 500000 });
    }
    QElapsedTimer timer;
    timer.start();
    const Found found = readAll(file);
    QVERIFY(found.state == Pqa2Reader::Cut || found.state == Pqa2Reader::Broken);
    QVERIFY2(timer.elapsed() < 60000, qPrintable(QString::number(timer.elapsed())));
}

void TstPqa2Reader::fileThatShrinksWhileItIsReadEndsInAState()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write(logFile(100000));
    QVERIFY(file.flush());
    Pqa2Reader reader(&file);
    Pqa2Block block;
    QVERIFY(reader.next(&block));
    QCOMPARE(::ftruncate(file.handle(), 3000), 0);
    int blocks = 1;
    while (reader.next(&block)) {
        reader.payload(block);
        ++blocks;
    }
    QVERIFY(blocks < 100000);
    QCOMPARE(reader.state(), Pqa2Reader::Cut);
    QVERIFY(!reader.skipDamage());
}

void TstPqa2Reader::fileThatShrinksWhileItIsSearchedEnds()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write(patched(logFile(1), offsetOf(0), 1) + QByteArray(1 << 20, '\xEE'));
    QVERIFY(file.flush());
    Pqa2Reader reader(&file);
    Pqa2Block block;
    QVERIFY(reader.next(&block) && !reader.next(&block));
    QCOMPARE(reader.faultOffset(), qint64(offsetOf(0)));
    QCOMPARE(::ftruncate(file.handle(), 30), 0);
    QVERIFY(!reader.skipDamage());
    QCOMPARE(reader.state(), Pqa2Reader::Cut);
}

void TstPqa2Reader::deviceThatIsClosedMeanwhileGivesNothing()
{
    QBuffer buffer;
    buffer.setData(logFile(100000));
    buffer.open(QIODevice::ReadOnly);
    Pqa2Reader reader(&buffer);
    Pqa2Block first;
    QVERIFY(reader.next(&first));
    QVERIFY(!reader.payload(first).isEmpty());
    buffer.close();
    QTest::ignoreMessage(QtWarningMsg, "QIODevice::seek (QBuffer): The device is not open");
    QVERIFY(reader.payload(first).isEmpty());
    QTest::ignoreMessage(QtWarningMsg, "QIODevice::seek (QBuffer): The device is not open");
    int blocks = 1;
    for (Pqa2Block block; reader.next(&block); ++blocks) {
        const char *payload = reader.view(block);
        QVERIFY(!payload || QByteArray(payload, 4) == words({ quint32(blocks) }));
    }
    QVERIFY(blocks < 100000); // what was read with the first one
    QCOMPARE(reader.state(), Pqa2Reader::Cut);
    QCOMPARE(reader.faultOffset(), qint64(offsetOf(blocks)));
    QVERIFY(!reader.view({ offsetOf(blocks), Pqa2SystemLog, 8 }));
}

void TstPqa2Reader::deviceWithoutPlacesIsUnreadable()
{
    class Pipe : public QBuffer
    {
        bool isSequential() const override { return true; }
    } pipe;
    pipe.setData(logFile(3));
    pipe.open(QIODevice::ReadOnly);
    const Found found = readAll(&pipe);
    QCOMPARE(found.state, Pqa2Reader::Unreadable);
    QVERIFY2(found.reason.contains("cannot be read"), found.reason.constData());
    QVERIFY(found.numbers.isEmpty());
}

void TstPqa2Reader::viewIsBoundedAndReachesBack()
{
    constexpr quint32 kBytes = 300 << 10; // more than a view gives
    QBuffer buffer;
    buffer.setData(fileHead() + words({ 24 + 16, Pqa2SystemLog, 4, 7, kLast, Pqa2SystemLog, kBytes })
                   + QByteArray(int(kBytes), 'x'));
    buffer.open(QIODevice::ReadOnly);
    Pqa2Reader reader(&buffer);
    Pqa2Block small, large, none;
    QVERIFY(reader.next(&small) && reader.next(&large) && !reader.next(&none));
    QCOMPARE(reader.state(), Pqa2Reader::Whole);
    QVERIFY(!reader.view(large, kBytes)); // behind the bound
    QVERIFY(!reader.view(large, -1));
    QVERIFY(!reader.view({ -100, Pqa2SystemLog, 4 }));
    const char *most = reader.view(large);
    QVERIFY(most);
    QCOMPARE(QByteArray(most, int(Pqa2Reader::kMostView)), QByteArray(int(Pqa2Reader::kMostView), 'x'));
    const char *back = reader.view(small); // in front of what was read last
    QVERIFY(back);
    QCOMPARE(QByteArray(back, 4), words({ 7 }));
}

void TstPqa2Reader::blocksInsideAWideGapAreFoundWhenItsLinkIsWrong()
{
    // The link of the first block leads half a megabyte over two linked blocks to where none is.
    constexpr int kGap = 512 << 10;
    const int chain = offsetOf(1) + 100;
    QByteArray file = fileHead() + words({ quint32(offsetOf(1) + kGap), Pqa2SystemLog, 8, 1, 0 });
    file += QByteArray(100, '\xEE') + words({ quint32(chain) + 16, Pqa2SystemLog, 4, 2 })
        + words({ quint32(chain) + 32, Pqa2SystemLog, 4, 3 });
    file += QByteArray(offsetOf(1) + kGap + 100 - file.size(), '\xEE');
    const Found found = readAll(file);
    QCOMPARE(found.state, Pqa2Reader::Broken);
    QCOMPARE(found.fault, qint64(offsetOf(1) + kGap));
    QCOMPARE(found.numbers, QVector<quint32>({ 1, 2, 3 }));
}

void TstPqa2Reader::blocksBehindAHoleAreFound()
{
    // A lost supply kept a piece of the file from the disk: gigabytes of nothing, which are passed at once.
    constexpr quint32 kBehind = 0xC0000000;
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write(fileHead() + words({ 44, Pqa2SystemLog, 8, 1, 0 }) + words({ 0, 0, 0 }));
    file.seek(kBehind);
    file.write(words({ kBehind + 16, Pqa2SystemLog, 4, 2 }) + words({ kLast, Pqa2SystemLog, 4, 3 }));
    QVERIFY(file.flush());
    const Found found = readAll(&file);
    QCOMPARE(found.state, Pqa2Reader::Broken);
    QCOMPARE(found.fault, qint64(44));
    QCOMPARE(found.numbers, QVector<quint32>({ 1, 0, 2, 3 })); // the second one reads as a blank block
}

void TstPqa2Reader::offsetsBeyondTwoGigabytesAreRead()
{
    // A sparse file: one block just below 2^31, one above, one that ends at 2^32 - 4.
    QTemporaryFile file;
    QVERIFY(file.open());
    const auto put = [&file](quint32 offset, quint32 next, quint32 size, quint32 number) {
        file.seek(offset);
        file.write(words({ next, Pqa2SystemLog, size, number }));
    };
    file.write(fileHead());
    put(24, 0x7FFFFFF0, 4, 0);
    put(0x7FFFFFF0, 0x80000000, 4, 1);
    put(0x80000000, 0xFFFFFFEC, 0x7FFFFFE0, 2); // a payload of nearly two gigabytes of nothing
    put(0xFFFFFFEC, kLast, 4, 3);
    QVERIFY(file.flush());
    const Found found = readAll(&file);
    QCOMPARE(found.numbers, upTo(4));
    QCOMPARE(found.state, Pqa2Reader::Whole);
}

void TstPqa2Reader::memoryStaysConstant()
{
    // A payload of a gigabyte of nothing is given in bounded pieces.
    QTemporaryFile file;
    QVERIFY(file.open());
    constexpr quint32 kHuge = 1u << 30;
    file.write(fileHead() + words({ kLast, Pqa2SystemLog, kHuge }));
    QVERIFY(file.resize(24 + 12 + qint64(kHuge)));
    Pqa2Reader reader(&file);
    Pqa2Block block;
    QVERIFY(reader.next(&block));
    QCOMPARE(block.size, kHuge);
    QCOMPARE(qint64(reader.payload(block).size()), Pqa2Reader::kMostPayload);
    QCOMPARE(reader.payload(block, kHuge - 10, kHuge).size(), 10);
    QCOMPARE(reader.state(), Pqa2Reader::Whole);
}

void TstPqa2Reader::millionBlocksAreWalked()
{
    constexpr int kBlocks = 1'000'000;
    QTemporaryFile file;
    QVERIFY(file.open());
    QByteArray bytes = fileHead();
    bytes.reserve(bytes.size() + 12 * kBlocks);
    for (int n = 0; n < kBlocks; ++n) {
        const Pqa2BlockHead head = { n + 1 < kBlocks ? quint32(24 + 12 * (n + 1)) : kLast, quint32(n), 0 };
        bytes.append(reinterpret_cast<const char *>(&head), int(sizeof head));
    }
    file.write(bytes);
    QVERIFY(file.flush());
    Pqa2Reader reader(&file);
    int blocks = 0;
    Pqa2Block block;
    while (reader.next(&block))
        ++blocks;
    QCOMPARE(blocks, kBlocks);
    QCOMPARE(block.type, quint32(kBlocks - 1));
    QCOMPARE(reader.state(), Pqa2Reader::Whole);
}

void TstPqa2Reader::readerStopsAtDamage_data()
{
    QTest::addColumn<int>("at"); // place in the second block's head
    QTest::addColumn<quint32>("word");
    QTest::addColumn<int>("blocks");
    QTest::newRow("link to itself") << 0 << 0u << 2;
    QTest::newRow("link backwards") << 0 << 24u << 2;
    QTest::newRow("link beyond the end") << 0 << 0xFFFFFF00u << 2;
    QTest::newRow("link not aligned") << 0 << 1001u << 2;
    QTest::newRow("size beyond the end") << 8 << 0x7FFFFFFFu << 1;
    QTest::newRow("largest size") << 8 << 0xFFFFFFFFu << 1;
}

void TstPqa2Reader::readerStopsAtDamage()
{
    QFETCH(int, at);
    QFETCH(quint32, word);
    QFETCH(int, blocks);
    QCOMPARE(readBlocks(patched(logFile(3), offsetOf(1) + at, word)).size(), blocks);
}

void TstPqa2Reader::pageAndProgramNameTheSameKinds()
{
    // The first column of the page's table: numbers, "a, b" and "a to b".
    QSet<quint32> documented;
    const auto rows = DocumentPage(QStringLiteral("formats/pqa2.md")).table(QStringLiteral("## Kinds of blocks"));
    for (const QStringList &row : rows) {
        for (const QString &part : row.value(0).split(QStringLiteral(", "))) {
            const QStringList ends = part.split(QStringLiteral(" to "));
            bool first = false, last = false;
            const quint32 from = ends.first().toUInt(&first, 16), to = ends.last().toUInt(&last, 16);
            QVERIFY2(first && last && to >= from && to - from < 100, qPrintable(part));
            for (quint32 type = from; type <= to; ++type)
                documented << type;
        }
    }
    QVERIFY(documented.size() > 60);
    QVERIFY(pqa2KindName(0) != nullptr);
    for (quint32 type = 0xA1000000; type < 0xA1020000; ++type)
        QVERIFY2((pqa2KindName(type) != nullptr) == documented.contains(type), qPrintable(QString::number(type, 16)));
    QSet<QByteArray> names;
    for (const quint32 type : documented)
        names << pqa2KindName(type);
    QCOMPARE(names.size(), documented.size()); // a list of blocks does not say one name for two kinds
    for (const quint32 type : { 1u, 0xA0FFFFFFu, 0xA1020000u, 0xFFFFFFFFu })
        QVERIFY(!pqa2KindName(type));
}

QTEST_APPLESS_MAIN(TstPqa2Reader)
#include "tst_pqa2reader.moc"
