#include "link/packager.h"

#include <QtEndian>
#include <QTest>

using namespace wire;

namespace {

quint32 wordAt(const Package &package, int byte)
{
    return qFromLittleEndian<quint32>(package.data() + byte);
}

std::vector<quint32> counting(int words)
{
    std::vector<quint32> payload;
    for (int i = 0; i < words; ++i)
        payload.push_back(1000000 + quint32(i));
    return payload;
}

} // namespace

/// The packages, byte by byte, against the description of the wire.
class TstProcessorPackages : public QObject
{
    Q_OBJECT

private slots:
    void everyKindHasItsWordsAndPackages_data();
    void everyKindHasItsWordsAndPackages();
    void firstHeadStandsByteForByte();
    void followingHeadsCountUpAndTheLastOneIsMarked();
    void payloadGoesOnWithoutAGapOverAllPackages_data() { everyKindHasItsWordsAndPackages_data(); }
    void payloadGoesOnWithoutAGapOverAllPackages();
    void restOfTheLastPackageIsZero();
    void bdsWordIsOnlyInHalfCycleHeads();
    void idsCountFromOneAndWrapThroughZero();
    void stampIsSplitIntoSecondsAndMilliseconds();
    void shortPayloadIsFilledAndLongOneCut();
};

void TstProcessorPackages::everyKindHasItsWordsAndPackages_data()
{
    // Words with the two of the time stamp; packages are 1 for up to 2038 payload words, one more for each further
    // 2044.
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("words");
    QTest::addColumn<int>("packages");
    QTest::newRow("aggregation: 3248 = 2038 + 1210") << 0 << 3250 << 2;
    QTest::newRow("half-cycle r.m.s.: 543") << 1 << 545 << 1;
    QTest::newRow("transient: 4003 = 2038 + 1965") << 2 << 4005 << 2;
    QTest::newRow("wave: 16385 = 2038 + 7 * 2044 + 39") << 3 << 16387 << 9;
    QTest::newRow("flicker: 1501") << 4 << 1503 << 1;
    QTest::newRow("firmware information: 1024") << 5 << 1026 << 1;
    QTest::newRow("update: 4") << 6 << 6 << 1;
}

void TstProcessorPackages::everyKindHasItsWordsAndPackages()
{
    QFETCH(int, type);
    QFETCH(int, words);
    QFETCH(int, packages);
    const Datagram datagram = Packager().pack(Kind(type), 0, 0, {});
    QCOMPARE(kindInfo(Kind(type)).words, words);
    QCOMPARE(int(datagram.packages.size()), packages);
    QCOMPARE(wordAt(datagram.packages[0], 16), quint32(type));
}

void TstProcessorPackages::firstHeadStandsByteForByte()
{
    // 1705594501 s = 0x65A94E85; 250 ms = 0xFA; the value 0x11223344 at the start of the payload.
    const Datagram datagram = Packager(0x01020304).pack(Kind::HalfCycleRms, 1705594501250, 1, { 0x11223344 });
    const QByteArray head(reinterpret_cast<const char *>(datagram.packages[0].data()), 44);
    QCOMPARE(head.toHex(' '),
             QByteArray("00 ff a5 c0 04 03 02 01 00 00 00 00 00 00 00 00 01 00 00 00 01 00 00 00 "
                        "00 00 00 00 00 00 00 00 85 4e a9 65 fa 00 00 00 44 33 22 11"));
}

void TstProcessorPackages::followingHeadsCountUpAndTheLastOneIsMarked()
{
    const Datagram datagram = Packager(7).pack(Kind::Wave, 0, 0, {});
    QCOMPARE(wordAt(datagram.packages[0], 0), 0x80A5FF00u);
    for (int number = 1; number < 8; ++number)
        QCOMPARE(wordAt(datagram.packages[std::size_t(number)], 0), 0x00A5FF00u + quint32(number));
    QCOMPARE(wordAt(datagram.packages[8], 0), 0x40A5FF08u);
    QCOMPARE(wordAt(Packager().pack(Kind::Flicker, 0, 0, {}).packages[0], 0), 0xC0A5FF00u);
}

void TstProcessorPackages::payloadGoesOnWithoutAGapOverAllPackages()
{
    QFETCH(int, type);
    QFETCH(int, words);
    QFETCH(int, packages);
    const Datagram datagram = Packager().pack(Kind(type), 0, 0, counting(words - 2));
    std::vector<quint32> received;
    for (int number = 0; number < packages; ++number) {
        const Package &package = datagram.packages[std::size_t(number)];
        for (int byte = number == 0 ? 40 : 16; byte < 8192; byte += 4)
            received.push_back(wordAt(package, byte));
    }
    received.resize(std::size_t(words - 2));
    QVERIFY(received == counting(words - 2));
}

void TstProcessorPackages::restOfTheLastPackageIsZero()
{
    // The ninth package of a wave carries 39 words: bytes 16 to 171.
    const Datagram datagram = Packager().pack(Kind::Wave, 0, 0, counting(16385));
    QCOMPARE(wordAt(datagram.packages[8], 168), 1000000u + 16384u);
    for (int byte = 172; byte < 8192; byte += 4)
        QCOMPARE(wordAt(datagram.packages[8], byte), 0u);
}

void TstProcessorPackages::bdsWordIsOnlyInHalfCycleHeads()
{
    for (const KindInfo &info : kKinds) {
        const Datagram datagram = Packager().pack(info.kind, 0, 5, {});
        QCOMPARE(wordAt(datagram.packages[0], 20), info.kind == Kind::HalfCycleRms ? 5u : 0u);
    }
}

void TstProcessorPackages::idsCountFromOneAndWrapThroughZero()
{
    QCOMPARE(Packager().pack(Kind::Update, 0, 0, {}).id, 1u);
    Packager packager(0xFFFFFFFF);
    QCOMPARE(wordAt(packager.pack(Kind::Update, 0, 0, {}).packages[0], 4), 0xFFFFFFFFu);
    QCOMPARE(wordAt(packager.pack(Kind::Update, 0, 0, {}).packages[0], 4), 0u);
    QCOMPARE(wordAt(packager.pack(Kind::Update, 0, 0, {}).packages[0], 4), 1u);
}

void TstProcessorPackages::stampIsSplitIntoSecondsAndMilliseconds()
{
    const Datagram datagram = Packager().pack(Kind::Aggregation, 1500000000999, 0, {});
    QCOMPARE(wordAt(datagram.packages[0], 32), 1500000000u);
    QCOMPARE(wordAt(datagram.packages[0], 36), 999u);
}

void TstProcessorPackages::shortPayloadIsFilledAndLongOneCut()
{
    const Datagram filled = Packager().pack(Kind::Update, 0, 0, { 1, 2 });
    QCOMPARE(wordAt(filled.packages[0], 44), 2u);
    QCOMPARE(wordAt(filled.packages[0], 48), 0u);
    const Datagram cut = Packager().pack(Kind::Update, 0, 0, counting(5000));
    QCOMPARE(int(cut.packages.size()), 1);
    QCOMPARE(wordAt(cut.packages[0], 52), 1000003u);
    QCOMPARE(wordAt(cut.packages[0], 56), 0u);
}

QTEST_GUILESS_MAIN(TstProcessorPackages)
#include "tst_processor_packages.moc"
