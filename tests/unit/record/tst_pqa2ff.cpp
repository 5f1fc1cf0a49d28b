#include "settings/config_data.h"
#include "fakepqa2file.h"
#include "platform/clock.h"
#include "platform/target.h"
#include "record/pqa2info.h"
#include "readblocks.h"
#include "unit/documentpage.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <csignal>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

/// What a fresh instrument says of itself.
static Pqa2Opening opening()
{
    const Derived &setUp = m_settingConfig_g.derived();
    return { getInstrumentInfo({ QStringLiteral("QUVERA"), QStringLiteral("1AA000000"), QString() }).toLatin1(),
             getSystemSetting(setUp).toLatin1(), getChannelFactor(setUp.scales) };
}

class TstPqa2FF : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Pqa2FF::setOpening(opening); }
    void init() { Clock::setForTest(1'705'594'500'000); } // 2024-01-18 16:15:00 UTC
    void cleanup() { Clock::useSystem(); }

    void freshFileHoldsHeadAndThreeLinkedBlocks();
    void workedExampleOfThePageIsWhatIsWritten();
    void pageTellsTheLayoutOfTheHeads();
    void pageNamesEveryKindOfBlock();
    void blockOfThreeBytesTakesSixteenAndTheNextIsAligned();
    void emptyPayloadMakesABlockOfSizeZero();
    void systemLogHoldsTimeAndText();
    void openingBlocksTellTheInstrument();
    void firmwareFollowsItsWord_data();
    void firmwareFollowsItsWord();
    void channelFactorsStandVoltageCurrentPower();
    void closedFileTakesBlocksAndStoresNothing();
    void openNeedsPathRoomAndAFile();
    void reopeningTruncates();
    void blockNeedsFiveMegabytes();
    void badSizesAreRefused();
    void callsComeInTheirOrder();
    void flushAndCloseWriteOut();
    void aFlushBehindIsBegunOnlyForWhatWasWritten();
    void everyPrefixAndTornWriteLeavesWholeBlocks();
    void everyFailingWriteLeavesAWholeFile_data();
    void everyFailingWriteLeavesAWholeFile();
    void fullDiskThatFreesUpLaterGoesOn();
    void blockThatCannotBeLinkedIsTakenBack();
    void tornTailThatCannotBeCutIsOverwritten();
    void processKilledAtEveryCallLeavesWholeBlocks();
    void offsetsReachUpToTheLastLink();
};

namespace {

QByteArray fileBytes(const QString &boardPath)
{
    QFile file(Target::path(boardPath));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString page()
{
    return DocumentPage(QStringLiteral("formats/pqa2.md")).text();
}

/// Payload of the n-th block of the runs below: 0 to 16 bytes.
QByteArray payload(int n)
{
    return QByteArray(n % 17, char('a' + n % 26));
}

void writeRun(Pqa2FF &file, int blocks)
{
    for (int n = 0; n < blocks; ++n)
        file.addDataBlock(Pqa2DBType(0x5000 + n), payload(n));
}

/// Whether these are the opening blocks and then the blocks of a run, in order and whole, `least` to `most` of them.
bool isRun(const QList<ReadBlock> &blocks, int least, int most)
{
    const int count = blocks.size() - 3;
    if (count < least || count > most)
        return false;
    for (int n = 0; n < count; ++n) {
        if (blocks.at(n + 3).type != quint32(0x5000 + n) || blocks.at(n + 3).payload != payload(n))
            return false;
    }
    return true;
}

} // namespace

void TstPqa2FF::freshFileHoldsHeadAndThreeLinkedBlocks()
{
    Pqa2FF file("/mnt/storage/fresh.pqa2");
    QVERIFY(file.open());
    QVERIFY(file.isOpen());
    QCOMPARE(file.fileName(), QStringLiteral("fresh.pqa2"));
    QCOMPARE(file.fullFilePath(), QStringLiteral("/mnt/storage/fresh.pqa2"));
    QCOMPARE(Pqa2FF::defaultPqa2Suffix(), QStringLiteral(".pqa2"));
    const QByteArray bytes = fileBytes(file.fullFilePath());
    QCOMPARE(qint64(bytes.size()), file.size());
    QCOMPARE(bytes.left(8), QByteArray("PQA2\x09\x20\x00\x10", 8));
    QCOMPARE(bytes.mid(16, 8), QByteArray::fromHex("a5a5a5a5c3c3c3c3"));
    const QList<ReadBlock> blocks = readBlocks(bytes);
    QCOMPARE(blocks.size(), 3);
    QCOMPARE(blocks.at(0).offset, 24u);
    QCOMPARE(blocks.at(0).type, 0xA1000001u);
    QCOMPARE(blocks.at(1).type, 0xA1000010u);
    QCOMPARE(blocks.at(2).type, 0xA1000011u);
    QCOMPARE(blocks.at(2).payload.size(), 48);
    QCOMPARE(bytes.mid(int(blocks.at(2).offset), 4), QByteArray(4, char(0xFF))); // nothing follows it
    file.close();
    QCOMPARE(file.size(), qint64(-1));
    QVERIFY(!file.isOpen());
}

void TstPqa2FF::workedExampleOfThePageIsWhatIsWritten()
{
    // The page was written by hand from the tables; a fresh instrument at the time above writes it.
    const QString example = page().section(QStringLiteral("## Worked example"), 1).section(QStringLiteral("```"), 1, 1);
    static const QRegularExpression line(QStringLiteral("^[0-9A-F]{4}  ((?:[0-9A-F]{2} ?)+)"),
                                         QRegularExpression::MultilineOption);
    QByteArray documented;
    for (auto match = line.globalMatch(example); match.hasNext();)
        documented += QByteArray::fromHex(match.next().captured(1).toLatin1());
    FakePqa2File fake;
    QVERIFY(fake.open());
    fake.file->addSystemLog("Lost some data!");
    fake.file->addBlankBlock();
    QCOMPARE(fake.state.content.toHex(' '), documented.toHex(' '));
}

void TstPqa2FF::pageTellsTheLayoutOfTheHeads()
{
    const auto tableOf = [](const QString &heading) {
        const QString section = page().section(heading, 1).section(QStringLiteral("\n## "), 0, 0);
        static const QRegularExpression line(QStringLiteral("^\\| (\\d+) \\| (\\d+) \\| [^|]+ \\| `(\\w+)` \\|"),
                                             QRegularExpression::MultilineOption);
        QStringList rows;
        for (auto match = line.globalMatch(section); match.hasNext();) {
            const auto row = match.next();
            rows << row.capturedTexts().mid(1).join(QLatin1Char(' '));
        }
        return rows;
    };
    const auto row = [](size_t offset, size_t size, const char *name) {
        return QStringLiteral("%1 %2 %3").arg(offset).arg(size).arg(QLatin1String(name));
    };
#define HEAD_ROW(type, field) row(offsetof(type, field), sizeof(type::field), #field)
    QCOMPARE(tableOf(QStringLiteral("## File head")),
             (QStringList { HEAD_ROW(Pqa2FileHeader, magic), HEAD_ROW(Pqa2FileHeader, version),
                            HEAD_ROW(Pqa2FileHeader, signature), HEAD_ROW(Pqa2FileHeader, mark1),
                            HEAD_ROW(Pqa2FileHeader, mark2) }));
    QCOMPARE(
        tableOf(QStringLiteral("## Block")),
        (QStringList { HEAD_ROW(Pqa2BlockHead, oonb), HEAD_ROW(Pqa2BlockHead, type), HEAD_ROW(Pqa2BlockHead, size) }));
#undef HEAD_ROW
}

void TstPqa2FF::pageNamesEveryKindOfBlock()
{
    const QString text = page();
    for (const quint32 type :
         { Pqa2InstrumentInfo, Pqa2SystemLog, Pqa2SystemSetting, Pqa2ChannelFactor, Pqa2StartTime, Pqa2EndTime,
           Pqa2Transient, Pqa2FlickerShort, Pqa2FlickerLong, Pqa2EventWave, Pqa2MonitorFrequency, Pqa2MonitorVoltage,
           Pqa2MonitorFlickerShort, Pqa2MonitorFlickerLong, Pqa2MonitorUnbalance, Pqa2MonitorHarmonics,
           Pqa2MonitorSecondSpectrum, Pqa2EventHead, Pqa2EventCurves }) {
        const QString name = QStringLiteral("| 0x%1 |").arg(QString::number(type, 16).toUpper());
        QVERIFY2(text.contains(name), qPrintable(name));
    }
}

void TstPqa2FF::blockOfThreeBytesTakesSixteenAndTheNextIsAligned()
{
    FakePqa2File fake;
    QVERIFY(fake.open());
    const int before = fake.state.content.size();
    QCOMPARE(before % 4, 0);
    QCOMPARE(fake.file->addDataBlock(Pqa2DBType(0x5000), "abc", 3), 0);
    QCOMPARE(fake.state.content.size(), before + 16);
    QCOMPARE(fake.file->addDataBlock(Pqa2DBType(0x5001), QByteArray("defgh")), 0);
    const QList<ReadBlock> blocks = readBlocks(fake.state.content);
    QCOMPARE(blocks.size(), 5);
    QCOMPARE(blocks.at(3).payload, QByteArray("abc"));
    QCOMPARE(blocks.at(4).offset, quint32(before + 16));
    QCOMPARE(blocks.at(4).payload, QByteArray("defgh"));
}

void TstPqa2FF::emptyPayloadMakesABlockOfSizeZero()
{
    FakePqa2File fake;
    QVERIFY(fake.open());
    QCOMPARE(fake.file->addDataBlock(Pqa2DBType(0x5000), QByteArray()), 0);
    QCOMPARE(fake.file->addBlankBlock(), 0);
    const QList<ReadBlock> blocks = readBlocks(fake.state.content);
    QCOMPARE(blocks.size(), 5);
    QCOMPARE(blocks.at(3).type, 0x5000u);
    QVERIFY(blocks.at(3).payload.isEmpty());
    QCOMPARE(blocks.at(4).type, 0u);
    QCOMPARE(blocks.at(4).offset, blocks.at(3).offset + 12);
}

void TstPqa2FF::systemLogHoldsTimeAndText()
{
    FakePqa2File fake;
    QVERIFY(fake.open());
    Clock::setForTest(0x0102030405060708LL);
    QCOMPARE(fake.file->addSystemLog("Lost some data!"), 0);
    const ReadBlock block = readBlocks(fake.state.content).constLast();
    QCOMPARE(block.type, 0xA1000009u);
    QCOMPARE(block.payload, QByteArray::fromHex("0807060504030201") + "Lost some data!");
}

void TstPqa2FF::openingBlocksTellTheInstrument()
{
    QCOMPARE(getInstrumentInfo({ "QUVERA", "1AA000000", QString() }),
             QStringLiteral("MODEL: QUVERA\nSN: 1AA000000\nDT: 2024-01-18 16:15:00\nSV: 2.2.6\n"
                            "FV: None\n"));
    QCOMPARE(getSystemSetting(m_settingConfig_g.derived()),
             QStringLiteral("Fnom: 50Hz\nUnom: 230V\nJoin: 3P WYE_1\nClamp: TARN-41A;10mV/A 5A\n"
                            "Ratio: 1/1;1/1\nClampN: TARN-41A;10mV/A 5A\nRatioN: 1/1;1/1\n"));
    Derived other = m_settingConfig_g.derived();
    other.clamp = { QStringLiteral("TARN-F2"), 6000, 65, true };
    other.ratioIN = { 100, 5 };
    QVERIFY(getSystemSetting(other).contains(QStringLiteral("Clamp: TARN-F2;0.065mV/A 6000A\n")));
    QVERIFY(getSystemSetting(other).endsWith(QStringLiteral("RatioN: 1/1;100/5\n")));
}

void TstPqa2FF::firmwareFollowsItsWord_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("firmware");
    QTest::newRow("nothing reported") << QString() << QStringLiteral("None");
    QTest::newRow("reported") << QStringLiteral("CPU:ADSP-21479;Silicon:0.2;Firmware:1.0.3") << QStringLiteral("1.0.3");
    QTest::newRow("with more behind") << QStringLiteral("Firmware:1.0.3;x") << QStringLiteral("1.0.3");
    QTest::newRow("empty") << QStringLiteral("Firmware:;") << QStringLiteral("None");
    QTest::newRow("without the word") << QStringLiteral("1.0.3") << QStringLiteral("None");
}

void TstPqa2FF::firmwareFollowsItsWord()
{
    QFETCH(QString, version);
    QFETCH(QString, firmware);
    QCOMPARE(firmwareOf(version), firmware);
}

void TstPqa2FF::channelFactorsStandVoltageCurrentPower()
{
    const QByteArray bytes = getChannelFactor(m_settingConfig_g.derived().scales);
    QCOMPARE(bytes.size(), 48);
    float factors[12];
    memcpy(factors, bytes.constData(), sizeof factors);
    const float *wvi = m_settingConfig_g.wvi();
    for (int c = 0; c < 4; ++c) {
        QCOMPARE(factors[c], float(double(wvi[4 + c]) * 10.0 / 32768.0));
        QCOMPARE(factors[4 + c], float(double(wvi[8 + c]) * 10.0 / 32768.0));
        QCOMPARE(factors[8 + c], float(double(wvi[c]) * 10.0 / 32768.0));
        QVERIFY(factors[c] > 0);
    }
}

void TstPqa2FF::closedFileTakesBlocksAndStoresNothing()
{
    FakePqa2File fake;
    const _pqa2_data_block raw = { 0, 0x5000, 3, "abc" };
    QCOMPARE(fake.file->addDataBlock(Pqa2DBType(0x5000), "abc", 3), 0);
    QCOMPARE(fake.file->addDataBlock(Pqa2DBType(0x5000), QByteArray("abc")), 0);
    QCOMPARE(fake.file->addDataBlock(raw), 0);
    QCOMPARE(fake.file->addSystemLog("x"), 0);
    QCOMPARE(fake.file->addBlankBlock(), 0);
    QCOMPARE(fake.file->write("abc", 3), qint64(-1));
    QCOMPARE(fake.file->size(), qint64(-1));
    fake.file->flush();
    fake.file->close();
    QVERIFY(fake.state.calls.isEmpty());
}

void TstPqa2FF::openNeedsPathRoomAndAFile()
{
    FakePqa2File fake;
    QCOMPARE(fake.file->open(), 0); // no path
    QVERIFY(fake.state.calls.isEmpty());
    fake.state.free = 49.99f;
    QCOMPARE(fake.open(), 0);
    QVERIFY(!fake.file->isOpen());
    QVERIFY(!fake.state.calls.contains(QStringLiteral("open")));
    fake.state.free = 50.0f;
    fake.state.opens = false;
    QCOMPARE(fake.open(), 0);
    QVERIFY(!fake.file->isOpen());
    fake.state.opens = true;
    QVERIFY(fake.open() != 0);
    Pqa2FF nowhere(QStringLiteral("/mnt/storage/no/such/folder/x.pqa2"));
    QCOMPARE(nowhere.open(), 0);
    QVERIFY(!nowhere.isOpen());
}

void TstPqa2FF::reopeningTruncates()
{
    const QString path = QStringLiteral("/mnt/storage/again.pqa2");
    Pqa2FF file(path);
    QVERIFY(file.open());
    const qint64 fresh = file.size();
    writeRun(file, 10);
    QVERIFY(file.size() > fresh);
    QVERIFY(file.open(path));
    QCOMPARE(file.size(), fresh);
    writeRun(file, 2);
    file.close();
    QVERIFY(isRun(readBlocks(fileBytes(path)), 2, 2));
    QVERIFY(file.open("/mnt/storage/other.pqa2"));
    QCOMPARE(file.fileName(), QStringLiteral("other.pqa2"));
}

void TstPqa2FF::blockNeedsFiveMegabytes()
{
    FakePqa2File fake;
    QVERIFY(fake.open());
    const int before = fake.state.content.size();
    fake.state.free = 4.99f;
    QCOMPARE(fake.file->addDataBlock(Pqa2DBType(0x5000), "abc", 3), -1);
    QTest::ignoreMessage(QtDebugMsg,
                         QRegularExpression(QStringLiteral("^F: pqa2/pqa2ff L: \\d+ > availableRoom 4\\.99$")));
    QCOMPARE(fake.file->addDataBlock(_pqa2_data_block { 0, 0x5000, 3, "abc" }), -1);
    QCOMPARE(fake.state.content.size(), before);
    QVERIFY(fake.file->refuses());
    fake.state.free = 5.0f; // room again: the file has a gap in time and goes on
    QCOMPARE(fake.file->addDataBlock(_pqa2_data_block { 7, 0x5000, 0, nullptr }), 0);
    QVERIFY(!fake.file->refuses());
    QVERIFY(isRun(readBlocks(fake.state.content), 1, 1));
}

void TstPqa2FF::badSizesAreRefused()
{
    FakePqa2File fake;
    QVERIFY(fake.open());
    const QByteArray before = fake.state.content;
    QCOMPARE(fake.file->addDataBlock(Pqa2DBType(1), "abc", -1), -1);
    QCOMPARE(fake.file->addDataBlock(Pqa2DBType(1), "abc", INT_MIN), -1);
    QCOMPARE(fake.file->addDataBlock(Pqa2DBType(1), "abc", INT_MAX), -1);
    QCOMPARE(fake.file->addDataBlock(Pqa2DBType(1), nullptr, 4), -1);
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("availableRoom")));
    QCOMPARE(fake.file->addDataBlock(_pqa2_data_block { 0, 1, 0xFFFFFFFF, "abc" }), -1);
    QCOMPARE(fake.file->write("abc", -1), qint64(-1));
    QCOMPARE(fake.state.content, before);
}

void TstPqa2FF::callsComeInTheirOrder()
{
    FakePqa2File fake;
    QVERIFY(fake.open());
    QCOMPARE(fake.state.calls.mid(0, 5),
             (QStringList { "free", "open", "write 0+24", "free", fake.state.calls.at(4) }));
    const int end = fake.state.content.size();
    const int last = int(readBlocks(fake.state.content).constLast().offset);
    fake.state.calls.clear();
    fake.file->addDataBlock(Pqa2DBType(0x5000), "abcde", 5);
    // The block is whole before the link to it is written.
    QCOMPARE(fake.state.calls,
             (QStringList { "free", QStringLiteral("write %1+20").arg(end), QStringLiteral("seek %1").arg(last),
                            QStringLiteral("write %1+4").arg(last), QStringLiteral("seek %1").arg(end + 20) }));
}

void TstPqa2FF::flushAndCloseWriteOut()
{
    FakePqa2File fake;
    QVERIFY(fake.open());
    fake.state.calls.clear();
    fake.file->flush();
    QCOMPARE(fake.state.calls, QStringList { "sync" });
    fake.file.reset(); // as close() does
    QCOMPARE(fake.state.calls, (QStringList { "sync", "close" }));
}

void TstPqa2FF::aFlushBehindIsBegunOnlyForWhatWasWritten()
{
    FakePqa2File fake;
    QVERIFY(fake.open());
    fake.file->flushBehind();
    fake.file->flushBehind(); // nothing new
    QCOMPARE(fake.state.calls.count("syncBehind"), 1);
    fake.file->addBlankBlock();
    fake.state.syncs = false; // the one before still goes on
    fake.file->flushBehind();
    fake.state.syncs = true;
    fake.file->flushBehind(); // so that it is asked for again
    QCOMPARE(fake.state.calls.count("syncBehind"), 3);
}

void TstPqa2FF::everyPrefixAndTornWriteLeavesWholeBlocks()
{
    constexpr int kBlocks = 200;
    FakePqa2File fake;
    QVERIFY(fake.open());
    writeRun(*fake.file, kBlocks);
    QByteArray image;
    int finished = -4; // blocks written whole so far, without the three opening ones and the file head
    for (const auto &write : qAsConst(fake.state.writes)) {
        for (int torn = 0; torn < write.second.size(); ++torn) {
            QByteArray cut = image;
            cut.replace(int(write.first), torn, write.second.left(torn));
            const int count = readBlocks(cut).size();
            // The last finished block may not be linked yet.
            QVERIFY(count >= qMax(0, finished + 3 - 1) && count <= qMax(0, finished + 3));
            QVERIFY(count < 3 || isRun(readBlocks(cut), qMax(0, finished - 1), qMax(0, finished)));
        }
        image.replace(int(write.first), write.second.size(), write.second);
        finished += write.second.size() != 4; // a link has four bytes, everything else more
    }
    QVERIFY(isRun(readBlocks(image), kBlocks, kBlocks));
}

void TstPqa2FF::everyFailingWriteLeavesAWholeFile_data()
{
    QTest::addColumn<int>("taken");
    QTest::newRow("fails at once") << -1;
    for (const int taken : { 0, 1, 2, 3, 5, 11, 12, 15 })
        QTest::addRow("takes %d bytes", taken) << taken;
}

void TstPqa2FF::everyFailingWriteLeavesAWholeFile()
{
    QFETCH(int, taken);
    constexpr int kBlocks = 40;
    for (int failing = 7; failing < 7 + 2 * kBlocks; ++failing) { // the head and the opening blocks make writes 0 to 5
        FakePqa2File fake;
        QVERIFY(fake.open());
        fake.state.failingWrite = failing;
        fake.state.bytesTaken = taken;
        int stored = 0;
        for (int n = 0; n < kBlocks; ++n) {
            // The same block again until it is in: what was refused must leave no trace.
            while (fake.file->addDataBlock(Pqa2DBType(0x5000 + n), payload(n)) != 0)
                QVERIFY(isRun(readBlocks(fake.state.content), stored, stored));
            ++stored;
        }
        QVERIFY(isRun(readBlocks(fake.state.content), kBlocks, kBlocks));
    }
}

void TstPqa2FF::fullDiskThatFreesUpLaterGoesOn()
{
    FakePqa2File fake;
    QVERIFY(fake.open());
    writeRun(*fake.file, 3);
    const QByteArray before = fake.state.content;
    fake.state.failingWrite = fake.state.writeNumber;
    fake.state.failingWrites = 50;
    fake.state.bytesTaken = 5;
    for (int i = 0; i < 50; ++i) {
        QCOMPARE(fake.file->addDataBlock(Pqa2DBType(0x5003), payload(3)), -1);
        QCOMPARE(fake.state.content, before);
    }
    QCOMPARE(fake.file->addDataBlock(Pqa2DBType(0x5003), payload(3)), 0);
    QVERIFY(isRun(readBlocks(fake.state.content), 4, 4));
}

void TstPqa2FF::blockThatCannotBeLinkedIsTakenBack()
{
    FakePqa2File fake;
    QVERIFY(fake.open());
    const int end = fake.state.content.size();
    fake.state.failingWrite = fake.state.writeNumber + 1; // the link
    fake.state.bytesTaken = 2;
    QCOMPARE(fake.file->addDataBlock(Pqa2DBType(0x6000), QByteArray(8, 'x')), -1);
    QCOMPARE(fake.state.content.size(), end);
    QCOMPARE(readBlocks(fake.state.content).size(), 3); // the torn link leads nowhere
    writeRun(*fake.file, 5);
    QVERIFY(isRun(readBlocks(fake.state.content), 5, 5));
}

void TstPqa2FF::tornTailThatCannotBeCutIsOverwritten()
{
    FakePqa2File fake;
    QVERIFY(fake.open());
    fake.state.resizeFails = true;
    fake.state.failingWrite = fake.state.writeNumber;
    fake.state.bytesTaken = 19;
    QCOMPARE(fake.file->addDataBlock(Pqa2DBType(0x6000), QByteArray(100, 'x')), -1);
    writeRun(*fake.file, 5);
    QVERIFY(isRun(readBlocks(fake.state.content), 5, 5));
}

namespace {

/// The real file; something else happens before each call that reaches it.
class WatchedDevice : public Pqa2Device
{
public:
    explicit WatchedDevice(std::function<void(int)> before) : m_before(std::move(before)) { }
    bool open(const QString &path) override { return tell(), Pqa2Device::open(path); }
    qint64 write(const char *data, qint64 size) override { return tell(), Pqa2Device::write(data, size); }
    bool seek(qint64 position) override { return tell(), Pqa2Device::seek(position); }
    float freeSize() override { return 1000.0f; }

private:
    void tell() { m_before(m_calls++); }
    std::function<void(int)> m_before; // takes the number of calls made so far
    int m_calls = 0;
};

constexpr int kRunBlocks = 200;

/// Whether the file is what a process leaves that dies after so many calls.
bool isLeftAfter(const QByteArray &file, int calls)
{
    constexpr int kOpening = 1 + 1 + 1 + 1 + 2 * 4; // open, head, first block, seek; block, seek, link, seek
    if (calls < kOpening)
        return readBlocks(file).size() <= 3;
    // Four calls a block: block, seek, link, seek. The block counts once its link is written.
    const int linked = qMin((calls - kOpening + 1) / 4, kRunBlocks);
    return isRun(readBlocks(file), linked, linked);
}

} // namespace

void TstPqa2FF::processKilledAtEveryCallLeavesWholeBlocks()
{
    // What a process wrote stays when it is killed, so that the file before each call is what the kill would leave.
    const QString path = QStringLiteral("/mnt/storage/killed.pqa2");
    bool whole = true;
    int calls = 0;
    {
        Pqa2FF file(std::make_unique<WatchedDevice>([&](int made) {
            calls = made + 1;
            whole = whole && isLeftAfter(fileBytes(path), made);
        }));
        QVERIFY(file.open(path));
        writeRun(file, kRunBlocks);
    }
    QVERIFY(whole);
    QCOMPARE(calls, 12 + 4 * kRunBlocks);
    QVERIFY(isLeftAfter(fileBytes(path), calls));
    // And with processes that really die.
    for (int last = 5; last < calls; last += 61) {
        const pid_t child = ::fork();
        QVERIFY(child >= 0);
        if (child == 0) {
            Pqa2FF file(std::make_unique<WatchedDevice>([last](int made) {
                if (made == last)
                    ::kill(::getpid(), SIGKILL);
            }));
            if (file.open(path))
                writeRun(file, kRunBlocks);
            ::_exit(1);
        }
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QVERIFY(WIFSIGNALED(status));
        QVERIFY(isLeftAfter(fileBytes(path), last));
    }
}

void TstPqa2FF::offsetsReachUpToTheLastLink()
{
    FakePqa2File fake;
    QVERIFY(fake.open());
    // Beyond 2^31: a place that a signed offset would not hold.
    fake.device->skip(qint64(0x80000000) - fake.device->pos());
    QCOMPARE(fake.file->write("", 0), qint64(0)); // the writer takes its place from the file
    QCOMPARE(fake.file->addDataBlock(Pqa2DBType(0x5000), "abcd", 4), 0);
    QCOMPARE(fake.state.writes.constLast().second, QByteArray::fromHex("00000080"));
    QCOMPARE(fake.file->addDataBlock(Pqa2DBType(0x5001), "abcd", 4), 0);
    QCOMPARE(fake.state.writes.constLast().first, qint64(0x80000000));
    QCOMPARE(fake.state.writes.constLast().second, QByteArray::fromHex("10000080"));
    // The last block that fits ends before 0xFFFFFFFF, the link of no block.
    fake.device->skip(qint64(0xFFFFFFE0) - fake.device->pos());
    fake.file->write("", 0);
    QCOMPARE(fake.file->addDataBlock(Pqa2DBType(0x5002), QByteArray(20, 'x')), -1); // would end at 2^32
    QCOMPARE(fake.file->addDataBlock(Pqa2DBType(0x5002), QByteArray(16, 'x')), 0);
    QCOMPARE(fake.state.writes.constLast().second, QByteArray::fromHex("e0ffffff"));
    QCOMPARE(fake.file->addBlankBlock(), -1);
}

QTEST_GUILESS_MAIN(TstPqa2FF)
#include "tst_pqa2ff.moc"
