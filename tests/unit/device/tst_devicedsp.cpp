#include "openlink.h"
#include "platform/clock.h"
#include "stdoutcapture.h"

#include <QSocketNotifier>
#include <QTest>
#include <memory>

/// Packages to datagrams: the state table, the printed lines and the bounds of every copy.
class TstDeviceDsp : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void eachKindIsEmittedWholeWithItsTimeInFront_data();
    void eachKindIsEmittedWholeWithItsTimeInFront();
    void kindTableHasTheWordsBytesAndPackagesOfTheWire();
    void transientIsAssembledAndDiscarded();
    void firstFlagWithoutLastBitYieldsNothingUntilTheLastPackage();
    void flagBitsOutsideThePatternDoNotMatter();
    void eachBitOfThePatternIsNeeded();
    void unknownPackageLeavesTheDatagramInProgress();
    void firstDatagramReportsNoLoss();
    void followingIdAndWrapReportNoLoss();
    void gapInTheIdsIsReportedAndTheDatagramUsed();
    void newFirstPackageDropsThePartialDatagramSilently();
    void wrongNumberLosesTheDatagramAndTheRestIsRefused();
    void repeatedPackageLosesTheDatagramInProgress();
    void repeatedDatagramIsEmittedAgainAndReported();
    void swappedPackagesLoseTheDatagramAndTheNextIsWhole();
    void swappedDatagramsAreEmittedInTheirNewOrder();
    void tornPackageOfZeroesIsUnknownAndTheDatagramGoesOn();
    void garbageYieldsNoDatagram();
    void emptyNodeAndRefusedPackagesEndABurstAfterFive();
    void numberZeroWithoutFirstBitBeginsADatagramWhenWaiting();
    void earlyLastPackageEmitsTheOldContentsBehind();
    void firmwareTextComesWithoutTheTimeStamp();
    void typeWordCountsByItsLowByte();
    void unknownKindsAreDroppedAndKeepTheLengthBefore();
    void singlePackageOfALongKindStaysInsideItsBuffers();
    void continuationWithFirstBitStaysInsideItsBuffers();
    void lastPackageOfAShortKindThatIsFullAddsNothing();
    void all255FollowingPackagesAreTakenAndTheWrapIsNot();
    void shortReadUsesThePackageBefore();
    void pollingTwinReadsAndGoesOnUntilItIsStopped();
    void storedDatagramIsACopy();

private:
    std::unique_ptr<OpenLink> m_link;
    std::unique_ptr<StdoutCapture> m_out;
};

namespace {
constexpr quint32 kFirst = 0x80A5FF00, kMiddle = 0x00A5FF00, kLast = 0x40A5FF00, kSingle = 0xC0A5FF00;

HeadValues head(quint32 flag, quint32 id, quint32 type)
{
    HeadValues values;
    values.flag = flag;
    values.id = id;
    values.type = type;
    return values;
}
} // namespace

void TstDeviceDsp::init()
{
    m_out = std::make_unique<StdoutCapture>();
    m_link = std::make_unique<OpenLink>();
    QVERIFY(m_link->open());
}

void TstDeviceDsp::cleanup()
{
    m_link.reset();
    m_out.reset();
    Clock::useSystem();
}

void TstDeviceDsp::eachKindIsEmittedWholeWithItsTimeInFront_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("payloadWords"); // without the time words
    QTest::addColumn<int>("packages");
    QTest::addColumn<int>("emitted"); // bytes
    QTest::newRow("aggregation: 2038 + 1210 words") << 0 << 3248 << 2 << 13000;
    QTest::newRow("half-cycle") << 1 << 543 << 1 << 2180;
    QTest::newRow("wave: 2038 + 7 * 2044 + 39 words") << 3 << 16385 << 9 << 65548;
    QTest::newRow("flicker") << 4 << 1501 << 1 << 6012;
    QTest::newRow("update answer") << 6 << 4 << 1 << 24;
}

void TstDeviceDsp::eachKindIsEmittedWholeWithItsTimeInFront()
{
    QFETCH(int, kind);
    QFETCH(int, payloadWords);
    QFETCH(int, packages);
    QFETCH(int, emitted);
    HeadValues values = head(kSingle, 7, quint32(kind));
    values.seconds = 1600000000;
    values.milliseconds = 789;
    const QByteArray payload = countingPayload(payloadWords, 0x01000000);
    const QVector<QByteArray> wire = makeDatagram(values, payload);
    QCOMPARE(wire.size(), packages);
    m_link->peer.send(wire);
    m_link->pump();
    QCOMPARE(m_link->datagrams.size(), 1);
    QCOMPARE(m_link->datagrams[0].signal, kind);
    QCOMPARE(m_link->datagrams[0].type, kind);
    QCOMPARE(m_link->datagrams[0].bytes.size(), emitted);
    QCOMPARE(m_link->datagrams[0].bytes, timeBytes(1600000000789ull) + payload);
}

void TstDeviceDsp::kindTableHasTheWordsBytesAndPackagesOfTheWire()
{
    const int words[] = { 3250, 545, 4005, 16387, 1503, 1026, 6 };
    const int bytes[] = { 13000, 2180, 16020, 65548, 6012, 4096, 24 };
    const int packages[] = { 2, 1, 2, 9, 1, 1, 1 };
    QCOMPARE(kDatagramKindCount, 7);
    for (int i = 0; i < kDatagramKindCount; ++i) {
        QCOMPARE(int(kDatagramKinds[i].type), i);
        QCOMPARE(kDatagramKinds[i].words, words[i]);
        QCOMPARE(emittedBytes(kDatagramKinds[i]), bytes[i]);
        QCOMPARE(packagesOnWire(kDatagramKinds[i]), packages[i]);
    }
}

void TstDeviceDsp::transientIsAssembledAndDiscarded()
{
    m_link->take(makeDatagram(head(kSingle, 1, DatagramTransient), countingPayload(4003, 1)));
    QVERIFY(m_link->datagrams.isEmpty());
    // It was whole: the link waits for a first package again and takes it without a word.
    m_link->takeRms(2, 0);
    QCOMPARE(m_link->datagrams.size(), 1);
    QVERIFY(m_out->lines().isEmpty());
}

void TstDeviceDsp::firstFlagWithoutLastBitYieldsNothingUntilTheLastPackage()
{
    m_link->take(makePackage(head(0x80A5FF00, 1, DatagramRMS_1_2), countingPayload(543, 5)));
    QVERIFY(m_link->datagrams.isEmpty());
    m_link->take(makePackage(head(kLast | 1, 0, 0), {}, true));
    QCOMPARE(m_link->datagrams.size(), 1);
    QCOMPARE(m_link->datagrams[0].bytes, timeBytes(0) + countingPayload(543, 5));
}

void TstDeviceDsp::flagBitsOutsideThePatternDoNotMatter()
{
    quint32 id = 1;
    for (quint32 pattern = 0; pattern < 16; ++pattern) {
        const quint32 bits
            = (pattern & 1) << 17 | (pattern >> 1 & 1) << 19 | (pattern >> 2 & 1) << 20 | (pattern >> 3 & 1) << 22;
        m_link->take(makePackage(head(kSingle | bits, id++, DatagramUpdate)));
    }
    for (quint32 six = 0; six < 64; ++six)
        m_link->take(makePackage(head(kSingle | six << 24, id++, DatagramUpdate)));
    QCOMPARE(m_link->datagrams.size(), 16 + 64);
    QVERIFY(m_out->lines().isEmpty());
}

void TstDeviceDsp::eachBitOfThePatternIsNeeded()
{
    int refused = 0;
    for (int bit = 8; bit < 24; ++bit) {
        if (!(0x00A5FF00u >> bit & 1))
            continue;
        m_link->take(makePackage(head(kSingle & ~(1u << bit), 1, DatagramUpdate)));
        ++refused;
    }
    QCOMPARE(refused, 12);
    QVERIFY(m_link->datagrams.isEmpty());
    const QStringList lines = m_out->linesWithoutNumbers();
    QCOMPARE(lines.size(), 12);
    QCOMPARE(lines.count(QStringLiteral("L: 0 > Unkown package!")), 12);
}

void TstDeviceDsp::unknownPackageLeavesTheDatagramInProgress()
{
    const QVector<QByteArray> wire = makeDatagram(head(kSingle, 1, DatagramAggregation), countingPayload(3248, 9));
    m_link->take(wire[0]);
    m_link->take(QByteArray(Link::kPackageBytes, '\x5a'));
    m_link->take(wire[1]);
    QCOMPARE(m_link->datagrams.size(), 1);
    QCOMPARE(m_link->datagrams[0].bytes, timeBytes(0) + countingPayload(3248, 9));
    QCOMPARE(m_out->linesWithoutNumbers(), QStringList { QStringLiteral("L: 0 > Unkown package!") });
}

void TstDeviceDsp::firstDatagramReportsNoLoss()
{
    m_link->takeRms(4711, 0);
    QCOMPARE(m_link->datagrams.size(), 1);
    QVERIFY(m_out->lines().isEmpty());
}

void TstDeviceDsp::followingIdAndWrapReportNoLoss()
{
    m_link->takeRms(0xFFFFFFFE, 0);
    m_link->takeRms(0xFFFFFFFF, 0);
    m_link->takeRms(0, 0);
    m_link->takeRms(17, 0); // behind the id 0 nothing is known
    QCOMPARE(m_link->datagrams.size(), 4);
    QVERIFY(m_out->lines().isEmpty());
}

void TstDeviceDsp::gapInTheIdsIsReportedAndTheDatagramUsed()
{
    Clock::setForTest(1600000000123);
    m_link->takeRms(10, 1600000000);
    m_link->takeRms(12, 1600000000, 456);
    m_link->takeRms(12, 1600000000, 789);
    QCOMPARE(m_link->datagrams.size(), 3);
    QCOMPARE(m_out->linesWithoutNumbers(),
             (QStringList {
                 QStringLiteral("L: 0 > May be lost some package id!"),
                 QStringLiteral("L: 0 > last_id = 10; curr_id = 12"),
                 QStringLiteral("L: 0 > msec64 = 1600000000456; localms = 1600000000123"),
                 QStringLiteral("L: 0 > May be lost some package id!"),
                 QStringLiteral("L: 0 > last_id = 12; curr_id = 12"),
                 QStringLiteral("L: 0 > msec64 = 1600000000789; localms = 1600000000123"),
             }));
}

void TstDeviceDsp::newFirstPackageDropsThePartialDatagramSilently()
{
    m_link->take(makeDatagram(head(kSingle, 1, DatagramWave), countingPayload(16385, 1)).mid(0, 4));
    m_link->take(makeDatagram(head(kSingle, 2, DatagramAggregation), countingPayload(3248, 2)));
    QCOMPARE(m_link->datagrams.size(), 1);
    QCOMPARE(m_link->datagrams[0].bytes, timeBytes(0) + countingPayload(3248, 2));
    QVERIFY(m_out->lines().isEmpty());
}

void TstDeviceDsp::wrongNumberLosesTheDatagramAndTheRestIsRefused()
{
    HeadValues values = head(kSingle, 5, DatagramWave);
    values.seconds = 1;
    values.milliseconds = 2;
    QVector<QByteArray> wire = makeDatagram(values, countingPayload(16385, 1));
    wire.remove(2);
    m_link->take(wire);
    QVERIFY(m_link->datagrams.isEmpty());
    QStringList expected { QStringLiteral(
        "L: 0 > Wrong package number! id = 5; flag = 00A5FF03; msec = 1002; wanted = 2") };
    for (int number = 4; number <= 8; ++number)
        expected << QStringLiteral("L: 0 > Wrong first package No. %1!").arg(number);
    QCOMPARE(m_out->linesWithoutNumbers(), expected);
    m_link->takeRms(6, 0);
    QCOMPARE(m_link->datagrams.size(), 1);
}

void TstDeviceDsp::repeatedPackageLosesTheDatagramInProgress()
{
    QVector<QByteArray> wire = makeDatagram(head(kSingle, 5, DatagramWave), countingPayload(16385, 1));
    wire.insert(3, wire[2]);
    m_link->take(wire.mid(0, 4));
    QVERIFY(m_link->datagrams.isEmpty());
    QCOMPARE(
        m_out->linesWithoutNumbers(),
        QStringList { QStringLiteral("L: 0 > Wrong package number! id = 5; flag = 00A5FF02; msec = 0; wanted = 3") });
    m_link->takeRms(6, 0);
    QCOMPARE(m_link->datagrams.size(), 1);
    // A first package that comes twice only begins the datagram again.
    wire = makeDatagram(head(kSingle, 7, DatagramAggregation), countingPayload(3248, 9));
    wire.prepend(wire[0]);
    m_link->take(wire);
    QCOMPARE(m_link->datagrams.size(), 2);
    QCOMPARE(m_link->datagrams[1].bytes, timeBytes(0) + countingPayload(3248, 9));
}

void TstDeviceDsp::repeatedDatagramIsEmittedAgainAndReported()
{
    m_link->takeRms(5, 0);
    m_link->takeRms(5, 0);
    QCOMPARE(m_link->datagrams.size(), 2);
    const QStringList lines = m_out->linesWithoutNumbers();
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines[1], QStringLiteral("L: 0 > last_id = 5; curr_id = 5"));
}

void TstDeviceDsp::swappedPackagesLoseTheDatagramAndTheNextIsWhole()
{
    QVector<QByteArray> wire = makeDatagram(head(kSingle, 5, DatagramWave), countingPayload(16385, 1));
    std::swap(wire[4], wire[5]);
    m_link->take(wire.mid(0, 6));
    QVERIFY(m_link->datagrams.isEmpty());
    QCOMPARE(
        m_out->linesWithoutNumbers(),
        (QStringList { QStringLiteral("L: 0 > Wrong package number! id = 5; flag = 00A5FF05; msec = 0; wanted = 4"),
                       QStringLiteral("L: 0 > Wrong first package No. 4!") }));
    m_link->take(makeDatagram(head(kSingle, 6, DatagramWave), countingPayload(16385, 2)));
    QCOMPARE(m_link->datagrams.size(), 1);
    QCOMPARE(m_link->datagrams[0].bytes, timeBytes(0) + countingPayload(16385, 2));
    QVERIFY(m_out->lines().isEmpty());
}

void TstDeviceDsp::swappedDatagramsAreEmittedInTheirNewOrder()
{
    m_link->take(makePackage(head(kSingle, 6, DatagramUpdate), countingPayload(4, 60)));
    m_link->take(makePackage(head(kSingle, 5, DatagramUpdate), countingPayload(4, 50)));
    QCOMPARE(m_link->datagrams.size(), 2);
    QCOMPARE(m_link->datagrams[0].bytes, timeBytes(0) + countingPayload(4, 60));
    QCOMPARE(m_link->datagrams[1].bytes, timeBytes(0) + countingPayload(4, 50));
    QCOMPARE(m_out->linesWithoutNumbers().value(1), QStringLiteral("L: 0 > last_id = 6; curr_id = 5"));
}

void TstDeviceDsp::tornPackageOfZeroesIsUnknownAndTheDatagramGoesOn()
{
    const QVector<QByteArray> wire = makeDatagram(head(kSingle, 1, DatagramAggregation), countingPayload(3248, 4));
    m_link->take(wire[0]);
    m_link->take(QByteArray(1000, '\0') + wire[1].mid(1000));
    QCOMPARE(m_out->linesWithoutNumbers(), QStringList { QStringLiteral("L: 0 > Unkown package!") });
    m_link->take(wire[1]);
    QCOMPARE(m_link->datagrams.size(), 1);
    QCOMPARE(m_link->datagrams[0].bytes, timeBytes(0) + countingPayload(3248, 4));
}

void TstDeviceDsp::garbageYieldsNoDatagram()
{
    QByteArray noise(Link::kPackageBytes, Qt::Uninitialized);
    quint32 state = 12345;
    for (int i = 0; i < 256; ++i) {
        for (char &byte : noise)
            byte = static_cast<char>((state = state * 1664525u + 1013904223u) >> 24);
        noise[1] = static_cast<char>(i == 255 ? 0 : i); // bits 15 to 8 of the flag: never all set
        m_link->take(noise);
    }
    QVERIFY(m_link->datagrams.isEmpty());
    QCOMPARE(m_out->linesWithoutNumbers().count(QStringLiteral("L: 0 > Unkown package!")), 256);
    m_link->takeRms(1, 0);
    QCOMPARE(m_link->datagrams.size(), 1);
}

void TstDeviceDsp::emptyNodeAndRefusedPackagesEndABurstAfterFive()
{
    // Four refused packages, a good one, four refused: one burst takes them all.
    const QByteArray refused(Link::kPackageBytes, '\0');
    const auto sendRefused = [&](int count) {
        for (int i = 0; i < count; ++i)
            m_link->peer.send(refused);
    };
    sendRefused(4);
    m_link->peer.send(makePackage(head(kSingle, 1, DatagramUpdate)));
    sendRefused(4);
    m_link->pump();
    QCOMPARE(m_link->datagrams.size(), 1);
    QCOMPARE(m_out->lines().size(), 8);
    // Five refused ones end it with a good one still waiting.
    sendRefused(5);
    m_link->peer.send(makePackage(head(kSingle, 2, DatagramUpdate)));
    m_link->pump();
    QCOMPARE(m_link->datagrams.size(), 1);
    QCOMPARE(m_out->lines().size(), 5);
    m_link->pump();
    QCOMPARE(m_link->datagrams.size(), 2);
}

void TstDeviceDsp::numberZeroWithoutFirstBitBeginsADatagramWhenWaiting()
{
    // Last bit alone: the words stand from byte 16 on, and the datagram is emitted at once.
    QByteArray package = makePackage(head(kLast, 1, DatagramUpdate));
    const QByteArray behindHead = package.mid(16, 16); // type, BDS word and what follows, read as payload
    m_link->take(package);
    QCOMPARE(m_link->datagrams.size(), 1);
    QCOMPARE(m_link->datagrams[0].bytes, timeBytes(0) + behindHead);
    // Neither bit: begun, and finished by number 1.
    m_link->take(makePackage(head(kMiddle, 2, DatagramRMS_1_2)));
    QCOMPARE(m_link->datagrams.size(), 1);
    m_link->take(makePackage(head(kLast | 1, 0, 0), {}, true));
    QCOMPARE(m_link->datagrams.size(), 2);
    QCOMPARE(m_link->datagrams[1].bytes.size(), 2180);
    QVERIFY(m_out->lines().isEmpty());
}

void TstDeviceDsp::earlyLastPackageEmitsTheOldContentsBehind()
{
    m_link->take(makeDatagram(head(kSingle, 1, DatagramWave), countingPayload(16385, 100)));
    QVector<QByteArray> wire = makeDatagram(head(kSingle, 2, DatagramWave), countingPayload(16385, 500000));
    wire[1].replace(0, 4, wordsToBytes({ kLast | 1 }));
    m_link->take(wire.mid(0, 2));
    QCOMPARE(m_link->datagrams.size(), 2);
    const int fresh = 4 * (Link::kFirstPayloadWords + Link::kNextPayloadWords);
    QCOMPARE(m_link->datagrams[1].bytes,
             timeBytes(0) + countingPayload(16385, 500000).left(fresh) + countingPayload(16385, 100).mid(fresh));
}

void TstDeviceDsp::firmwareTextComesWithoutTheTimeStamp()
{
    HeadValues values = head(kSingle, 1, DatagramFirmwareInfo);
    values.seconds = 1600000000;
    m_link->take(makePackage(values, countingPayload(1024, 33)));
    QCOMPARE(m_link->datagrams.size(), 1);
    QCOMPARE(m_link->datagrams[0].signal, 5);
    QCOMPARE(m_link->datagrams[0].bytes, countingPayload(1024, 33));
}

void TstDeviceDsp::typeWordCountsByItsLowByte()
{
    m_link->take(makePackage(head(kSingle, 1, 0xABCDEF00 | DatagramFlicker), countingPayload(1501, 3)));
    QCOMPARE(m_link->datagrams.size(), 1);
    QCOMPARE(m_link->datagrams[0].signal, 4);
}

void TstDeviceDsp::unknownKindsAreDroppedAndKeepTheLengthBefore()
{
    for (quint32 type = 7; type < 256; ++type) { // the very first datagram has no length before
        m_link->take(makePackage(head(kSingle, type, type)));
        m_link->take(makePackage(head(kFirst, type, type)));
        m_link->take(makePackage(head(kLast | 1, 0, 0), {}, true));
    }
    QVERIFY(m_link->datagrams.isEmpty());
    m_out->lines();
    m_link->take(makePackage(head(kSingle, 256, DatagramUpdate), countingPayload(4, 1)));
    QCOMPARE(m_link->datagrams.size(), 1);
    m_link->take(makePackage(head(kSingle, 257, 200), countingPayload(20, 50)));
    m_link->take(makePackage(head(kFirst, 258, DatagramFlicker), countingPayload(1501, 7)));
    m_link->take(makePackage(head(kLast | 1, 0, 0), {}, true));
    QCOMPARE(m_link->datagrams.size(), 2);
    QCOMPARE(m_link->datagrams[1].bytes, timeBytes(0) + countingPayload(1501, 7));
}

void TstDeviceDsp::singlePackageOfALongKindStaysInsideItsBuffers()
{
    // 16387 words are claimed, the package has 2038: the rest are the store's old contents, here zeros.
    m_link->take(makePackage(head(kSingle, 1, DatagramWave), countingPayload(2038, 1)));
    QCOMPARE(m_link->datagrams.size(), 1);
    QCOMPARE(m_link->datagrams[0].bytes,
             timeBytes(0) + countingPayload(2038, 1) + QByteArray(65548 - 8 - 4 * 2038, '\0'));
}

void TstDeviceDsp::continuationWithFirstBitStaysInsideItsBuffers()
{
    m_link->take(makePackage(head(kFirst, 1, DatagramWave), countingPayload(2038, 1)));
    for (quint32 number = 1; number < 12; ++number) // first bit with a number: taken as first-of-several again
        m_link->take(makePackage(head(kFirst | number, 0, 0), countingPayload(2038, number)));
    QVERIFY(m_link->datagrams.isEmpty());
    m_link->take(makePackage(head(kSingle | 12, 0, 0), countingPayload(2038, 12)));
    QCOMPARE(m_link->datagrams.size(), 1);
    QByteArray expected = timeBytes(0) + countingPayload(2038, 1);
    for (quint32 number = 1; number < 12; ++number)
        expected += countingPayload(2038, number);
    QCOMPARE(m_link->datagrams[0].bytes, expected.left(65548));
    QVERIFY(m_out->lines().isEmpty());
}

void TstDeviceDsp::lastPackageOfAShortKindThatIsFullAddsNothing()
{
    m_link->take(makePackage(head(kFirst, 1, DatagramUpdate), countingPayload(2038, 1)));
    m_link->take(makePackage(head(kMiddle | 1, 0, 0), QByteArray(8176, '\x77'), true));
    m_link->take(makePackage(head(kLast | 2, 0, 0), QByteArray(8176, '\x77'), true));
    QCOMPARE(m_link->datagrams.size(), 1);
    QCOMPARE(m_link->datagrams[0].bytes, timeBytes(0) + countingPayload(4, 1));
}

void TstDeviceDsp::all255FollowingPackagesAreTakenAndTheWrapIsNot()
{
    m_link->take(makePackage(head(kFirst, 1, DatagramWave)));
    for (quint32 number = 1; number <= 255; ++number)
        m_link->take(makePackage(head(kMiddle | number, 0, 0), {}, true));
    QVERIFY(m_out->lines().isEmpty());
    m_link->take(makePackage(head(kMiddle, 0, 0), {}, true));
    QCOMPARE(
        m_out->linesWithoutNumbers(),
        QStringList { QStringLiteral("L: 0 > Wrong package number! id = 1; flag = 00A5FF00; msec = 0; wanted = 256") });
    QVERIFY(m_link->datagrams.isEmpty());
}

void TstDeviceDsp::shortReadUsesThePackageBefore()
{
    m_link->take(makePackage(head(kSingle, 1, DatagramUpdate), countingPayload(4, 70)));
    m_link->take(wordsToBytes({ kSingle, 2 })); // the rest of the head and the payload are the old ones
    QCOMPARE(m_link->datagrams.size(), 2);
    QCOMPARE(m_link->datagrams[1].bytes, timeBytes(0) + countingPayload(4, 70));
    m_link->take(QByteArray(1, '\x01')); // one byte: the flag reads C0A5FF01
    QCOMPARE(m_link->datagrams.size(), 2);
    QCOMPARE(m_out->linesWithoutNumbers(), QStringList { QStringLiteral("L: 0 > Wrong first package No. 1!") });
}

void TstDeviceDsp::pollingTwinReadsAndGoesOnUntilItIsStopped()
{
    m_link->dsp.findChild<QSocketNotifier *>()->setEnabled(false); // which would read as well
    m_link->peer.send(makePackage(head(kSingle, 1, DatagramUpdate)));
    m_link->dsp.datagramLoop();
    QCOMPARE(m_link->datagrams.size(), 1);
    m_link->peer.send(makePackage(head(kSingle, 2, DatagramUpdate)));
    QTRY_COMPARE(m_link->datagrams.size(), 2);
    m_link->dsp.RecvStop();
    m_link->peer.send(makePackage(head(kSingle, 3, DatagramUpdate)));
    QTest::qWait(20); // it would look each millisecond
    QCOMPARE(m_link->datagrams.size(), 2);
}

void TstDeviceDsp::storedDatagramIsACopy()
{
    m_link->take(makePackage(head(kSingle, 1, DatagramFlicker), countingPayload(1501, 1)));
    m_link->take(makePackage(head(kSingle, 2, DatagramFlicker), countingPayload(1501, 2)));
    QCOMPARE(m_link->datagrams[0].bytes, timeBytes(0) + countingPayload(1501, 1));
    QCOMPARE(m_link->datagrams[1].bytes, timeBytes(0) + countingPayload(1501, 2));
}

QTEST_GUILESS_MAIN(TstDeviceDsp)
#include "tst_devicedsp.moc"
