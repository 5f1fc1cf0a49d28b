#include "task/functions/recordblocks.h"

#include "model/channelset.h"
#include "record/pqa2format.h"
#include "task/functions/recordstatistics.h"

#include <QTest>

#include <cstring>

namespace {

constexpr qint64 kTime = 1'700'000'000'123;
constexpr EnergyRow kNoEnergy[kChannels] = {};

/// A block as it was stored.
struct Stored
{
    RecordFile file;
    quint32 type;
    QByteArray payload;
};

/// Words of a record: word w holds w, or -w in the energies, whose doubles hold the number of their first word.
std::unique_ptr<__datagram_aggregation> numbered()
{
    auto record = std::make_unique<__datagram_aggregation>();
    auto *words = reinterpret_cast<float *>(record.get());
    for (int word = 2; word < int(sizeof *record) / 4; ++word)
        words[word] = float(word);
    for (ChannelRms &channel : record->channel) // which have a mean of their own kind
        channel.voltageAngle = channel.currentAngle = channel.angleDifference = -120.0f;
    return record;
}

QList<Stored> storedOf(quint32 items, int joinMode, int orders = kHarmonicOrders)
{
    EnergyRow energy[kChannels];
    for (int c = 0; c < kChannels; ++c)
        energy[c] = { 80.0 + 6 * c, 82.0 + 6 * c, 84.0 + 6 * c };
    RecordStatistics statistics;
    statistics.take(*numbered(), energy);
    statistics.finish();
    QList<Stored> stored;
    RecordBlocks::storeInterval(kTime, items, statistics, *channelSet(joinMode), orders,
                                [&stored](RecordFile file, quint32 type, const QByteArray &block) {
                                    stored.append({ file, type, block });
                                });
    return stored;
}

qint64 timeOf(const QByteArray &payload)
{
    qint64 time = 0;
    std::memcpy(&time, payload.constData(), sizeof time);
    return time;
}

/// The floats behind the time.
QList<float> floatsOf(const QByteArray &payload)
{
    QList<float> values;
    for (int at = 8; at + 4 <= payload.size(); at += 4) {
        float value;
        std::memcpy(&value, payload.constData() + at, sizeof value);
        values << value;
    }
    return values;
}

/// So many words from one on, as numbered() fills them.
void appendWords(QList<float> *values, int word, int count, int step = 1)
{
    for (int i = 0; i < count; ++i)
        *values << float(word + i * step);
}

/// Channels of the records, by wiring: as the five families of payloads have them.
QList<int> channelsOf(int joinMode)
{
    return joinMode == 3 ? QList<int> { 0, 3 }
        : joinMode == 5  ? QList<int> { 0, 1, 3 }
        : joinMode == 6  ? QList<int> { 0 }
                         : QList<int> { 0, 1, 2, 3 };
}

} // namespace

/// The blocks of an interval.
class TstRecordBlocks : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsStoredWithoutItsItem();
    void rowsOfTheRecordedChannelsAreStored_data();
    void rowsOfTheRecordedChannelsAreStored();
    void angleGroupsFollowTheCommonGroup();
    void unbalanceBelongsToNoChannel();
    void energiesHaveNoExtremes();
    void spectraHaveTheirHeadsAndLines_data();
    void spectraHaveTheirHeadsAndLines();
    void blocksStandInTheOrderOfTheItems();
    void linesThatAreNotMeasuredAreZero();
    void extremesAreThoseOfTheInterval();
    void foretoldSizesAreThoseOfTheBlocks();
};

void TstRecordBlocks::nothingIsStoredWithoutItsItem()
{
    QVERIFY(storedOf(0, 1).isEmpty());
    QVERIFY(storedOf(RecordInfo::Frequency10s | RecordInfo::Flicker, 1).isEmpty()); // these have intervals of their own
}

void TstRecordBlocks::rowsOfTheRecordedChannelsAreStored_data()
{
    QTest::addColumn<uint>("item");
    QTest::addColumn<uint>("mean");
    QTest::addColumn<uint>("maximum");
    QTest::addColumn<uint>("minimum");
    QTest::addColumn<int>("word"); // of the first row
    QTest::addColumn<int>("words"); // of a row
    QTest::addColumn<int>("joinMode");
    for (int joinMode = 1; joinMode <= 10; ++joinMode) {
        QTest::addRow("r.m.s., wiring %d", joinMode)
            << 4u << 0xA1000020u << 0xA1000060u << 0xA10000A0u << 3 << 13 << joinMode;
        QTest::addRow("power, wiring %d", joinMode)
            << 8u << 0xA1000021u << 0xA1000061u << 0xA10000A1u << 55 << 6 << joinMode;
        QTest::addRow("mains signaling, wiring %d", joinMode)
            << 0x8000u << 0xA1000038u << 0xA100006Du << 0xA10000ADu << 4922 << 6 << joinMode;
    }
}

void TstRecordBlocks::rowsOfTheRecordedChannelsAreStored()
{
    QFETCH(uint, item);
    QFETCH(int, word);
    QFETCH(int, words);
    QFETCH(int, joinMode);
    QList<Stored> stored = storedOf(item, joinMode);
    QCOMPARE(stored.size(), item == 4 ? 9 : 3);
    QTEST(stored[0].type, "mean");
    QTEST(stored[1].type, "maximum");
    QTEST(stored[2].type, "minimum");
    QList<float> expected;
    for (const int channel : channelsOf(joinMode)) {
        appendWords(&expected, word + channel * words, item == 4 ? 10 : words);
        if (item == 4)
            expected << -120.0f << -120.0f << -120.0f;
    }
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(stored[i].file, CommonFile);
        QCOMPARE(timeOf(stored[i].payload), kTime);
        QList<float> values = floatsOf(stored[i].payload);
        QCOMPARE(values.size(), expected.size());
        for (int v = 0; v < values.size(); ++v)
            QVERIFY2(qAbs(values[v] - expected[v]) < 1e-3f, qPrintable(QString::number(v)));
    }
}

void TstRecordBlocks::angleGroupsFollowTheCommonGroup()
{
    const auto record = std::make_unique<__datagram_aggregation>();
    std::memset(static_cast<void *>(record.get()), 0, sizeof *record);
    for (int c = 0; c < kChannels; ++c) {
        record->channel[c].voltageAngle = -10.0f * c;
        record->channel[c].currentAngle = -10.0f * c - 5;
        record->channel[c].angleDifference = 5.0f + c;
        record->spectrum[c].voltage[2].phase = 0.1f;
        record->spectrum[c].voltage[4].phase = 0.2f;
        record->spectrum[c].voltage[6].phase = 0.3f;
    }
    RecordStatistics statistics;
    statistics.take(*record, kNoEnergy);
    statistics.finish();
    QList<Stored> stored;
    RecordBlocks::storeInterval(kTime, RecordInfo::CommonRms, statistics, *channelSet(5), kHarmonicOrders,
                                [&stored](RecordFile file, quint32 type, const QByteArray &block) {
                                    stored.append({ file, type, block });
                                });
    QCOMPARE(stored.size(), 3 + 6);
    constexpr float kDegrees = 57.2957795f;
    const float expected[6][3] = { { 0, -10, -30 }, // of L1, L2 and N
                                   { -5, -15, -35 },
                                   { 5, 6, 8 },
                                   { 0.1f * kDegrees, 0.1f * kDegrees, 0.1f * kDegrees },
                                   { 0.2f * kDegrees, 0.2f * kDegrees, 0.2f * kDegrees },
                                   { 0.3f * kDegrees, 0.3f * kDegrees, 0.3f * kDegrees } };
    for (int group = 0; group < 6; ++group) {
        QCOMPARE(stored[3 + group].type, 0xA1001003u + uint(group));
        QCOMPARE(timeOf(stored[3 + group].payload), kTime);
        const QList<float> values = floatsOf(stored[3 + group].payload);
        QCOMPARE(values.size(), 3);
        for (int i = 0; i < 3; ++i)
            QVERIFY(qAbs(values[i] - expected[group][i]) < 1e-3f);
    }
}

void TstRecordBlocks::unbalanceBelongsToNoChannel()
{
    for (int joinMode = 1; joinMode <= 10; ++joinMode) {
        const QList<Stored> stored = storedOf(RecordInfo::Unbalance, joinMode);
        QCOMPARE(stored.size(), 3);
        const uint types[] = { 0xA1000023, 0xA1000062, 0xA10000A2 };
        QList<float> expected;
        appendWords(&expected, 4912, 10);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(stored[i].type, types[i]);
            QCOMPARE(floatsOf(stored[i].payload), expected);
        }
    }
}

void TstRecordBlocks::energiesHaveNoExtremes()
{
    for (const int joinMode : { 1, 2, 3, 5, 6 }) {
        const QList<Stored> stored = storedOf(RecordInfo::Energy, joinMode);
        QCOMPARE(stored.size(), 1);
        QCOMPARE(stored[0].type, 0xA1000022u);
        const QList<int> channels = channelsOf(joinMode);
        QCOMPARE(stored[0].payload.size(), 8 + 24 * channels.size());
        for (int i = 0; i < channels.size(); ++i) {
            double row[3];
            std::memcpy(row, stored[0].payload.constData() + 8 + 24 * i, sizeof row);
            QCOMPARE(row[0], 80.0 + 6 * channels[i]);
            QCOMPARE(row[2], 84.0 + 6 * channels[i]);
        }
    }
}

void TstRecordBlocks::spectraHaveTheirHeadsAndLines_data()
{
    QTest::addColumn<uint>("item");
    QTest::addColumn<int>("file");
    QTest::addColumn<uint>("mean");
    QTest::addColumn<uint>("maximum");
    QTest::addColumn<uint>("minimum");
    QTest::addColumn<int>("distortion"); // words of the first channel
    QTest::addColumn<int>("fundamental");
    QTest::addColumn<int>("line");
    QTest::newRow("U Harmonic(1-50)") << 0x80u << 1 << 0xA1000030u << 0xA1000065u << 0xA10000A5u << 104 << 406 << 406;
    QTest::newRow("I Harmonic(1-50)") << 0x100u << 2 << 0xA1000031u << 0xA1000066u << 0xA10000A6u << 105 << 1006
                                      << 1006;
    QTest::newRow("U inHarmonic(0-49)") << 0x200u << 3 << 0xA1000034u << 0xA1000069u << 0xA10000A9u << 104 << 406
                                        << 106;
    QTest::newRow("I inHarmonic(0-49)") << 0x400u << 4 << 0xA1000035u << 0xA100006Au << 0xA10000AAu << 105 << 1006
                                        << 706;
    QTest::newRow("U Harmonic(51-100)") << 0x800u << 5 << 0xA1000032u << 0xA1000067u << 0xA10000A7u << 104 << 406
                                        << 406 + 150;
    QTest::newRow("I Harmonic(51-100)") << 0x1000u << 6 << 0xA1000033u << 0xA1000068u << 0xA10000A8u << 105 << 1006
                                        << 1006 + 150;
    QTest::newRow("U inHarmonic(50-99)") << 0x2000u << 7 << 0xA1000036u << 0xA100006Bu << 0xA10000ABu << 104 << 406
                                         << 106 + 150;
    QTest::newRow("I inHarmonic(50-99)") << 0x4000u << 8 << 0xA1000037u << 0xA100006Cu << 0xA10000ACu << 105 << 1006
                                         << 706 + 150;
}

void TstRecordBlocks::spectraHaveTheirHeadsAndLines()
{
    QFETCH(uint, item);
    QFETCH(int, file);
    QFETCH(int, distortion);
    QFETCH(int, fundamental);
    QFETCH(int, line);
    QCOMPARE(QString::fromLatin1(recordFiles()[std::size_t(file)].name),
             QLatin1String(QTest::currentDataTag()) + ".pqa2");
    QCOMPARE(recordFiles()[std::size_t(file)].item, item);
    for (const int joinMode : { 1, 2, 3, 5, 6 }) {
        const QList<Stored> stored = storedOf(item, joinMode);
        QCOMPARE(stored.size(), 3);
        QTEST(stored[0].type, "mean");
        QTEST(stored[1].type, "maximum");
        QTEST(stored[2].type, "minimum");
        QList<float> expected;
        for (const int channel : channelsOf(joinMode)) {
            expected << float(distortion + 1202 * channel) << float(fundamental + 1202 * channel);
            appendWords(&expected, line + 1202 * channel, 50, 3);
        }
        for (const Stored &block : stored) {
            QCOMPARE(int(block.file), file);
            QCOMPARE(timeOf(block.payload), kTime);
            QCOMPARE(floatsOf(block.payload), expected);
        }
    }
}

void TstRecordBlocks::blocksStandInTheOrderOfTheItems()
{
    QList<quint32> types;
    for (const Stored &block : storedOf(0xFFFF, 1))
        types << block.type;
    QList<quint32> expected
        = { 0xA1000029, 0xA1000064, 0xA10000A4, 0xA1000020, 0xA1000060, 0xA10000A0, 0xA1001003, 0xA1001004,
            0xA1001005, 0xA1001006, 0xA1001007, 0xA1001008, 0xA1000021, 0xA1000061, 0xA10000A1, 0xA1000022,
            0xA1000023, 0xA1000062, 0xA10000A2, 0xA1000038, 0xA100006D, 0xA10000AD };
    const quint32 spectra[]
        = { 0xA1000030, 0xA1000031, 0xA1000034, 0xA1000035, 0xA1000032, 0xA1000033, 0xA1000036, 0xA1000037 };
    for (int i = 0; i < 8; ++i) // extremes are numbered by their kind
        expected << spectra[i] << spectra[i] + 0x35 << spectra[i] + 0x75;
    QCOMPARE(types, expected);
    for (const quint32 type : qAsConst(types))
        QVERIFY2(pqa2KindName(type), qPrintable(QString::number(type, 16)));
}

void TstRecordBlocks::linesThatAreNotMeasuredAreZero()
{
    for (const Stored &block : storedOf(RecordInfo::AllHarmonics, 1, kHarmonicOrders400)) {
        const QList<float> values = floatsOf(block.payload);
        QCOMPARE(values.size(), 4 * 52);
        const bool measured = block.file == HarmonicVoltLowFile || block.file == HarmonicAmpLowFile;
        for (int i = 0; i < values.size(); ++i) {
            const bool stands = i % 52 < 2 || (measured && i % 52 < 2 + 12);
            QCOMPARE(values[i] != 0.0f, stands);
        }
    }
}

void TstRecordBlocks::extremesAreThoseOfTheInterval()
{
    const auto record = numbered();
    RecordStatistics statistics;
    for (const float frequency : { 50.0f, 49.0f, 54.0f }) {
        record->frequency = frequency;
        statistics.take(*record, kNoEnergy);
    }
    statistics.finish();
    QList<float> stored;
    RecordBlocks::storeInterval(kTime, RecordInfo::FrequencyInterval, statistics, *channelSet(1), kHarmonicOrders,
                                [&stored](RecordFile, quint32, const QByteArray &block) { stored << floatsOf(block); });
    QCOMPARE(stored, (QList<float> { 51.0f, 54.0f, 49.0f }));
}

void TstRecordBlocks::foretoldSizesAreThoseOfTheBlocks()
{
    for (int joinMode = 1; joinMode <= 10; ++joinMode) {
        for (const quint32 items : { 2u, 4u, 8u, 16u, 64u, 0x8000u, 0x7F80u, 0xFFDEu }) {
            qint64 bytes = 0;
            for (const Stored &block : storedOf(items, joinMode))
                bytes += recordBlockBytes(block.payload.size());
            QCOMPARE(recordBytesPerHour(items, 3600, *channelSet(joinMode)), double(bytes));
        }
    }
}

QTEST_GUILESS_MAIN(TstRecordBlocks)
#include "tst_recordblocks.moc"
