#include "fakepqa2device.h"
#include "platform/clock.h"
#include "record/loggerfile.h"
#include "record/wavefile.h"
#include "settings/derived.h"
#include "storage/runjournal.h"
#include "unit/storage/rootfiles.h"

#include <QBuffer>
#include <QDateTime>
#include <QTest>

namespace {

const QDateTime kNow(QDate(2026, 3, 1), QTime(12, 30), Qt::UTC);
const QString kStem = QStringLiteral("Logger_1");

/// What the next start would find to have been running.
QByteArray running()
{
    RootFiles::waitForDisks();
    return RootFiles::read(RunJournal::path());
}

} // namespace

/// Files that grow directly on the storage: those of the logger and of captures, and what is below them.
class TstStoredFile : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        RootFiles::clean();
        m_state = {};
    }
    void cleanup() { Clock::useSystem(); }

    void runGoesOnInTheFileOfTheNextNumber();
    void fileThatIsOpenIsNotBegunAgain();
    void withoutANameNoFileIsOpened();
    void fileThatCannotBeBegunEndsTheOneBefore();
    void nameThatIsOpenedAgainStaysInTheJournal();
    void lineIsThereWholeOrNotAtAll();
    void captureWhoseHeadCannotBeReachedHasItsChunk();
    void writingOutIsAskedForAfterFourSeconds();
    void whatIsNotOpenIsNotWrittenOut();
    void cardTakesCutsAndWritesOut();
    void fileThatWasKeptIsNotTakenAwayLater();
    void closedCaptureStaysOnTheCard();

private:
    std::unique_ptr<Pqa2Device> device() { return std::make_unique<FakePqa2Device>(&m_state); }

    FakePqa2Device::State m_state;
};

void TstStoredFile::runGoesOnInTheFileOfTheNextNumber()
{
    LoggerFile file(&kStem, device());
    QCOMPARE(file.fileName(), QStringLiteral("Logger_1_00.csv"));
    QVERIFY(file.open(kNow));
    QVERIFY(file.write("TIME,\n"));
    file.incFileIndex();
    QCOMPARE(file.fileName(), QStringLiteral("Logger_1_01.csv"));
    QVERIFY(file.open(kNow));
    QCOMPARE(m_state.calls.mid(m_state.calls.size() - 2), QStringList({ "close", "open" }));
    QVERIFY(file.isOpen());
    QCOMPARE(running(), QByteArray("Logger_1_01.csv\n"));
    QVERIFY(RootFiles::isIndexed("Logger_1_00.csv") && RootFiles::isIndexed("Logger_1_01.csv"));
    file.close();
    QVERIFY(!file.isOpen());
    QCOMPARE(running(), QByteArray("(missing)"));
}

void TstStoredFile::fileThatIsOpenIsNotBegunAgain()
{
    LoggerFile file(&kStem, device());
    QVERIFY(file.open(kNow));
    QVERIFY(file.write("TIME,\n"));
    m_state.calls.clear();
    QVERIFY(file.open(kNow));
    QVERIFY(m_state.calls.isEmpty());
    QCOMPARE(m_state.content, QByteArray("TIME,\n"));
}

void TstStoredFile::withoutANameNoFileIsOpened()
{
    const QString empty;
    for (const QString *stem : { static_cast<const QString *>(nullptr), &empty }) {
        LoggerFile file(stem, device());
        QVERIFY(!file.open(kNow));
        QVERIFY(!file.isOpen());
        QVERIFY(!file.write("TIME,\n"));
        file.save(true);
        file.save(false);
    }
    QVERIFY(m_state.calls.isEmpty());
    QCOMPARE(running(), QByteArray("(missing)"));
    QVERIFY(RootFiles::index().isEmpty());
}

void TstStoredFile::fileThatCannotBeBegunEndsTheOneBefore()
{
    LoggerFile file(&kStem, device());
    QVERIFY(file.open(kNow));
    file.incFileIndex();
    m_state.opens = false;
    QVERIFY(!file.open(kNow));
    QVERIFY(!file.isOpen());
    QCOMPARE(running(), QByteArray("(missing)")); // the one before ended well
    QVERIFY(!RootFiles::isIndexed("Logger_1_01.csv"));
    QVERIFY(!file.write("TIME,\n"));
    m_state.opens = true;
    QVERIFY(file.open(kNow));
    QCOMPARE(running(), QByteArray("Logger_1_01.csv\n"));
}

void TstStoredFile::nameThatIsOpenedAgainStaysInTheJournal()
{
    StoredFile file(device());
    QVERIFY(file.open("Wave_1.wav", kNow));
    QVERIFY(file.append("old"));
    QVERIFY(file.open("Wave_1.wav", kNow));
    QCOMPARE(file.name(), QStringLiteral("Wave_1.wav"));
    QVERIFY(m_state.content.isEmpty()); // anew
    QCOMPARE(running(), QByteArray("Wave_1.wav\n"));
}

void TstStoredFile::lineIsThereWholeOrNotAtAll()
{
    LoggerFile file(&kStem, device());
    QVERIFY(file.open(kNow));
    QVERIFY(file.write("TIME,\n"));
    m_state.failingWrite = m_state.writeNumber; // the disk is full in the midst of the line
    m_state.bytesTaken = 3;
    QVERIFY(!file.write("first\n"));
    QCOMPARE(m_state.content, QByteArray("TIME,\n"));
    m_state.failingSeek = m_state.seekNumber;
    const int writes = m_state.writeNumber;
    QVERIFY(!file.write("second\n"));
    QCOMPARE(m_state.writeNumber, writes); // at no other place
    QVERIFY(file.write("third\n"));
    QCOMPARE(m_state.content, QByteArray("TIME,\nthird\n"));
}

void TstStoredFile::captureWhoseHeadCannotBeReachedHasItsChunk()
{
    const auto state = [this] {
        QBuffer buffer(&m_state.content);
        buffer.open(QIODevice::ReadOnly);
        WaveFileReader reader(&buffer);
        for (WaveChunk chunk; reader.next(&chunk);) { }
        return reader.state();
    };
    WaveFile file(QStringLiteral("Wave_1"), 1'800'000'000, 20480, Derived(), device());
    QVERIFY(file.open(kNow));
    const QByteArray frames(64, '\1');
    QCOMPARE(file.write(frames, 1'800'000'001), qint64(64));
    QCOMPARE(state(), WaveFileReader::Whole);
    const int before = m_state.content.size();
    m_state.failingSeek = m_state.seekNumber + 1; // behind the one to the end of the file
    QCOMPARE(file.write(frames, 1'800'000'002), qint64(64));
    QCOMPARE(m_state.content.size(), before + 4 + 64);
    QCOMPARE(state(), WaveFileReader::Cut); // the head counts those of the first chunk alone
    QCOMPARE(file.write(frames, 1'800'000'003), qint64(64));
    QCOMPARE(state(), WaveFileReader::Whole);
}

void TstStoredFile::writingOutIsAskedForAfterFourSeconds()
{
    Clock::setForTest(1'800'000'000'000);
    LoggerFile file(&kStem, device());
    QVERIFY(file.open(kNow));
    const auto flushesAfter = [&](qint64 ms) {
        Clock::advance(ms);
        const int before = m_state.calls.count("syncBehind");
        file.flush();
        return m_state.calls.count("syncBehind") - before;
    };
    QCOMPARE(flushesAfter(3999), 0);
    m_state.syncs = false; // the card is still at the one before: asked again at the next occasion
    QCOMPARE(flushesAfter(1), 1);
    m_state.syncs = true;
    QCOMPARE(flushesAfter(100), 1);
    QCOMPARE(flushesAfter(3999), 0);
    QCOMPARE(flushesAfter(1), 1);
}

void TstStoredFile::whatIsNotOpenIsNotWrittenOut()
{
    StoredFile file(device());
    QVERIFY(!file.flush());
    file.close();
    QVERIFY(m_state.calls.isEmpty());
}

void TstStoredFile::cardTakesCutsAndWritesOut()
{
    Pqa2Device card;
    QVERIFY(card.open("/mnt/storage/card"));
    QCOMPARE(card.write("0123456789", 10), qint64(10));
    QVERIFY(card.resize(4));
    QCOMPARE(card.size(), qint64(4));
    QVERIFY(card.seek(2));
    QCOMPARE(card.write("x", 1), qint64(1));
    QVERIFY(card.sync());
    QVERIFY(card.syncBehind());
    QCOMPARE(RootFiles::read("/mnt/storage/card"), QByteArray("01x3"));
    card.close();
    QVERIFY(!card.sync()); // there is none to write out
    StoredFile stored(std::make_unique<Pqa2Device>());
    QVERIFY(stored.open("card", kNow));
    QVERIFY(stored.append("abc") && stored.rewrite(1, "B", 1) && stored.flush());
    QCOMPARE(RootFiles::read("/mnt/storage/card"), QByteArray("aBc"));
}

void TstStoredFile::fileThatWasKeptIsNotTakenAwayLater()
{
    LoggerFile file(&kStem);
    QVERIFY(file.open(kNow));
    QVERIFY(file.write("TIME,\n"));
    file.save(true);
    file.save(false);
    QVERIFY(RootFiles::isIndexed("Logger_1_00.csv"));
    QCOMPARE(RootFiles::read("/mnt/storage/Logger_1_00.csv"), QByteArray("TIME,\n"));
}

void TstStoredFile::closedCaptureStaysOnTheCard()
{
    WaveFile file(QStringLiteral("Wave_1"), 1'800'000'000, 20480, Derived());
    QVERIFY(file.open(kNow));
    QCOMPARE(file.write(QByteArray(64, '\1'), 1'800'000'001), qint64(64));
    QCOMPARE(running(), QByteArray("Wave_1.wav\n"));
    file.close();
    QVERIFY(!file.isOpen());
    QCOMPARE(running(), QByteArray("(missing)"));
    QVERIFY(RootFiles::isIndexed("Wave_1.wav"));
    QVERIFY(RootFiles::read("/mnt/storage/Wave_1.wav").startsWith(QByteArray("WAV\x1A", 4)));
}

QTEST_GUILESS_MAIN(TstStoredFile)
#include "tst_storedfile.moc"
