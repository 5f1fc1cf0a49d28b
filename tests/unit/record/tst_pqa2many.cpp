#include "fakepqa2file.h"
#include "readblocks.h"

#include <QTest>

/// Many blocks that are stored at once.
class TstPqa2Many : public QObject
{
    Q_OBJECT

private slots:
    void blocksAreWrittenAtOnce();
    void blocksBeyondTheEndAreRefusedOneByOne();
    void withoutRoomNoneIsStored();
    void refusedBlocksInARowAreLoggedOnce();
    void afterACutAtAnyByteAllOfThemAreThereOrNone();
    void everyFailureLeavesAWholeFile_data();
    void everyFailureLeavesAWholeFile();

private:
    /// Payloads of 0 to 16 bytes.
    static QList<QByteArray> payloads(int count)
    {
        QList<QByteArray> all;
        for (int n = 0; n < count; ++n)
            all << QByteArray(n % 17, char('a' + n % 26));
        return all;
    }
    /// The blocks behind those that every file opens with.
    static QList<QByteArray> stored(const FakePqa2File &fake)
    {
        QList<QByteArray> all;
        for (const ReadBlock &block : readBlocks(fake.state.content).mid(3))
            all << block.payload;
        return all;
    }
};

void TstPqa2Many::blocksAreWrittenAtOnce()
{
    FakePqa2File fake;
    QVERIFY(fake.open());
    const int before = fake.state.writeNumber;
    QCOMPARE(fake.file->addDataBlocks(Pqa2EventHead, payloads(1000)), 0);
    QCOMPARE(fake.state.writeNumber - before, 2); // the blocks, the link to the first of them
    QCOMPARE(fake.file->addDataBlocks(Pqa2EventHead, {}), 0);
    QCOMPARE(fake.state.writeNumber - before, 2);
    QCOMPARE(fake.file->addDataBlock(Pqa2EndTime, QByteArray("end")), 0);
    QCOMPARE(stored(fake), payloads(1000) << QByteArray("end"));
    QCOMPARE(readBlocks(fake.state.content).at(1002).type, 0xA1010080u);
    const QByteArray content = fake.state.content;
    fake.file->close();
    QCOMPARE(fake.file->addDataBlocks(Pqa2EventHead, payloads(5)), 0); // none is open
    QCOMPARE(fake.state.content, content);
}

void TstPqa2Many::blocksBeyondTheEndAreRefusedOneByOne()
{
    FakePqa2File fake;
    QVERIFY(fake.open());
    fake.device->skip(qint64(0xFFFFFF9C) - fake.device->pos());
    fake.file->write("", 0); // the writer takes its place from the file
    // 28 bytes a block, 99 up to the last offset.
    const QByteArray one(16, 'x');
    QCOMPARE(fake.file->addDataBlocks(Pqa2EventHead, { one, one, one, one }), -1);
    QCOMPARE(fake.device->pos(), qint64(0xFFFFFF9C) + 3 * 28);
    QVERIFY(fake.file->isFull());
}

void TstPqa2Many::withoutRoomNoneIsStored()
{
    FakePqa2File fake;
    QVERIFY(fake.open());
    fake.state.free = 4.9f;
    const int before = fake.state.writeNumber;
    QCOMPARE(fake.file->addDataBlocks(Pqa2EventHead, payloads(5)), -1);
    QCOMPARE(fake.state.writeNumber, before);
    fake.state.free = 5.0f;
    QCOMPARE(fake.file->addDataBlocks(Pqa2EventHead, payloads(5)), 0);
    QCOMPARE(stored(fake), payloads(5));
}

void TstPqa2Many::refusedBlocksInARowAreLoggedOnce()
{
    FakePqa2File fake;
    QVERIFY(fake.open());
    const _pqa2_data_block block { 0, 0x5000, 3, "abc" };
    const auto store = [&](float room, int blocks) {
        fake.state.free = room;
        for (int i = 0; i < blocks; ++i)
            fake.file->addDataBlock(block);
    };
    static QStringList logged;
    logged.clear();
    const QtMessageHandler before
        = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) { logged << text; });
    store(4.5f, 1000);
    store(5.0f, 2);
    store(4.25f, 1000);
    qInstallMessageHandler(before);
    QCOMPARE(logged.size(), 2);
    QVERIFY(logged[0].endsWith("availableRoom 4.5"));
    QVERIFY(logged[1].endsWith("availableRoom 4.25"));
}

void TstPqa2Many::afterACutAtAnyByteAllOfThemAreThereOrNone()
{
    FakePqa2File fake;
    QVERIFY(fake.open());
    fake.file->addDataBlock(Pqa2StartTime, QByteArray("begin"));
    QByteArray image = fake.state.content;
    const int before = fake.state.writes.size();
    fake.file->addDataBlocks(Pqa2EventHead, payloads(20));
    const auto writes = fake.state.writes.mid(before);
    QCOMPARE(writes.size(), 2);
    for (const auto &write : writes) {
        for (int torn = 0; torn <= write.second.size(); ++torn) {
            QByteArray cut = image;
            cut.replace(int(write.first), torn, write.second.left(torn));
            const bool complete = write.first == writes.last().first && torn == 4;
            QCOMPARE(readBlocks(cut).size(), complete ? 3 + 1 + 20 : 3 + 1);
        }
        image.replace(int(write.first), write.second.size(), write.second);
    }
    QCOMPARE(image, fake.state.content);
}

void TstPqa2Many::everyFailureLeavesAWholeFile_data()
{
    QTest::addColumn<int>("failing");
    QTest::addColumn<int>("taken");
    QTest::addColumn<bool>("endStored");
    QTest::newRow("the blocks, at once") << 0 << -1 << true;
    QTest::newRow("the blocks, none taken") << 0 << 0 << true;
    QTest::newRow("the blocks, in the midst of one") << 0 << 40 << true;
    QTest::newRow("the link to them, at once") << 1 << -1 << true;
    QTest::newRow("the link to them, torn") << 1 << 3 << true;
    QTest::newRow("the block behind them") << 2 << 5 << false;
    QTest::newRow("the link to the block behind") << 3 << 2 << false;
}

void TstPqa2Many::everyFailureLeavesAWholeFile()
{
    QFETCH(int, failing);
    QFETCH(int, taken);
    QFETCH(bool, endStored);
    FakePqa2File fake;
    QVERIFY(fake.open());
    fake.state.failingWrite = fake.state.writeNumber + failing;
    fake.state.bytesTaken = taken;
    QCOMPARE(fake.file->addDataBlocks(Pqa2EventHead, payloads(5)), 0); // what failed at once is stored one by one
    QCOMPARE(fake.file->addDataBlock(Pqa2EndTime, QByteArray("end")), endStored ? 0 : -1);
    QCOMPARE(fake.file->addDataBlock(Pqa2Blank, QByteArray("more")), 0);
    QCOMPARE(stored(fake),
             payloads(5) + (endStored ? QList<QByteArray> { "end", "more" } : QList<QByteArray> { "more" }));
}

QTEST_GUILESS_MAIN(TstPqa2Many)
#include "tst_pqa2many.moc"
