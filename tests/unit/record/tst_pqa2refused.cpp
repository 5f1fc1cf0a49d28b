#include "fakepqa2file.h"
#include "readblocks.h"
#include "record/pqa2info.h"
#include "settings/derived.h"

#include <QTest>

namespace {

constexpr int kBlocks = 6;

Pqa2Opening opening()
{
    return { "instrument", "setting", QByteArray(48, '\1') };
}

QByteArray payload(int n)
{
    return QByteArray(5, char('a' + n));
}

} // namespace

/// A writer of recordings on a storage that refuses places, opening blocks and pieces.
class TstPqa2Refused : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Pqa2FF::setOpening(opening); }

    void fileWhoseOpeningIsRefusedIsNotOpen_data();
    void fileWhoseOpeningIsRefusedIsNotOpen();
    void everyPlaceThatCannotBeReachedLeavesWholeBlocks();
    void placeThatCannotBeReachedTwiceRefusesTheBlock();
    void manyBlocksAboveAGigabyteAreWrittenOneByOne();
    void closedFileIsNotWrittenOut();
    void nothingIsWrittenFromNowhere();
    void settingWithoutClampAndWiringHasEmptyLines();
};

void TstPqa2Refused::fileWhoseOpeningIsRefusedIsNotOpen_data()
{
    QTest::addColumn<int>("write");
    QTest::addColumn<int>("taken");
    const char *names[] = { "head of the file", "instrument", "setting", "link to it", "factors", "link to them" };
    for (int write = 0; write < 6; ++write) {
        QTest::addRow("%s, at once", names[write]) << write << -1;
        QTest::addRow("%s, torn", names[write]) << write << 3;
    }
}

void TstPqa2Refused::fileWhoseOpeningIsRefusedIsNotOpen()
{
    QFETCH(int, write);
    QFETCH(int, taken);
    FakePqa2File fake;
    fake.state.failingWrite = write;
    fake.state.bytesTaken = taken;
    QCOMPARE(fake.open(), 0);
    QVERIFY(!fake.file->isOpen());
    QCOMPARE(fake.state.calls.constLast(), QStringLiteral("close"));
    const QByteArray left = fake.state.content;
    QCOMPARE(fake.file->addDataBlock(Pqa2SystemLog, payload(0)), 0); // as with any closed file
    QCOMPARE(fake.state.content, left);
    fake.state.failingWrite = INT_MAX;
    QVERIFY(fake.open() != 0);
    QCOMPARE(readBlocks(fake.state.content).size(), 3);
}

void TstPqa2Refused::everyPlaceThatCannotBeReachedLeavesWholeBlocks()
{
    FakePqa2File all;
    QVERIFY(all.open());
    const int opening = all.state.seekNumber;
    for (int n = 0; n < kBlocks; ++n)
        QCOMPARE(all.file->addDataBlock(Pqa2SystemLog, payload(n)), 0);
    QVERIFY(all.state.seekNumber >= opening + 2 * kBlocks);
    for (int failing = opening; failing < all.state.seekNumber; ++failing) {
        FakePqa2File fake;
        QVERIFY(fake.open());
        fake.state.failingSeek = failing;
        QList<QByteArray> stored;
        for (int n = 0; n < kBlocks; ++n) {
            if (fake.file->addDataBlock(Pqa2SystemLog, payload(n)) == 0)
                stored << payload(n);
        }
        QVERIFY(stored.size() >= kBlocks - 1);
        QList<QByteArray> found;
        for (const ReadBlock &block : readBlocks(fake.state.content).mid(3))
            found << block.payload;
        QCOMPARE(found, stored);
    }
}

void TstPqa2Refused::placeThatCannotBeReachedTwiceRefusesTheBlock()
{
    FakePqa2File fake;
    QVERIFY(fake.open());
    const int last = int(readBlocks(fake.state.content).constLast().offset);
    QVERIFY(fake.device->seek(last)); // what the file was left at is not its end
    const QByteArray before = fake.state.content;
    fake.state.failingSeek = fake.state.seekNumber;
    QCOMPARE(fake.file->addDataBlock(Pqa2SystemLog, payload(0)), -1);
    QVERIFY(fake.file->refuses());
    QCOMPARE(fake.state.content, before);
    QCOMPARE(fake.file->addDataBlock(Pqa2SystemLog, payload(1)), 0);
    QCOMPARE(readBlocks(fake.state.content).constLast().payload, payload(1));
}

void TstPqa2Refused::manyBlocksAboveAGigabyteAreWrittenOneByOne()
{
    constexpr int kPiece = 8 << 20; // bytes, shared by all of them
    FakePqa2File fake;
    QVERIFY(fake.open());
    fake.state.failingWrite = fake.state.writeNumber;
    fake.state.failingWrites = INT_MAX; // so that nothing is kept of it
    fake.state.calls.clear();
    QList<QByteArray> pieces;
    const QByteArray piece(kPiece, 'x');
    for (int i = 0; i < 129; ++i)
        pieces << piece;
    QCOMPARE(fake.file->addDataBlocks(Pqa2SystemLog, pieces), -1);
    const QStringList writes = fake.state.calls.filter(QStringLiteral("write "));
    QCOMPARE(writes.size(), pieces.size());
    for (const QString &write : writes)
        QVERIFY2(write.endsWith(QStringLiteral("+%1").arg(12 + kPiece)), qPrintable(write));
}

void TstPqa2Refused::closedFileIsNotWrittenOut()
{
    FakePqa2File fake;
    QVERIFY(fake.open());
    fake.file->close();
    fake.state.calls.clear();
    fake.file->flushBehind();
    QVERIFY(fake.state.calls.isEmpty());
}

void TstPqa2Refused::nothingIsWrittenFromNowhere()
{
    FakePqa2File fake;
    QVERIFY(fake.open());
    const QByteArray before = fake.state.content;
    QCOMPARE(fake.file->write(nullptr, 4), qint64(-1));
    QCOMPARE(fake.state.content, before);
}

void TstPqa2Refused::settingWithoutClampAndWiringHasEmptyLines()
{
    Derived setUp;
    setUp.joinMode = 11;
    setUp.clamp = {};
    setUp.clampN = { QString(), 6000, 65, true };
    const QString text = getSystemSetting(setUp);
    QVERIFY(text.contains(QStringLiteral("\nJoin: _11\n")));
    QVERIFY(text.contains(QStringLiteral("\nClamp: \n")));
    QVERIFY(text.contains(QStringLiteral("\nClampN: ;0.065mV/A 6000A\n")));
}

QTEST_GUILESS_MAIN(TstPqa2Refused)
#include "tst_pqa2refused.moc"
