#include "link/deviceclock.h"
#include "link/frame.h"
#include "link/framelog.h"
#include "link/setupframe.h"

#include <QTemporaryDir>
#include <QTest>

#include <cstring>

using namespace wire;
using Words = std::vector<quint32>;
using Type = Frame::Type;

Q_DECLARE_METATYPE(std::vector<quint32>)

namespace {

quint32 bits(float value)
{
    quint32 word;
    std::memcpy(&word, &value, 4);
    return word;
}

Frame parse(const Words &words)
{
    return parseFrame(bytesOf(words));
}

/// A set-up as a 60 Hz delta instrument with flexible clamps sends it.
Words setupPayload()
{
    Words payload = { (60u << 16) | 0x8000u | 1u };
    for (int i = 0; i < 8; ++i)
        payload.push_back(bits(0.01f * float(i)));
    for (int i = 0; i < 8; ++i)
        payload.push_back(bits(i < 4 ? 1.0f + 0.001f * float(i) : 1.0f));
    payload.insert(payload.end(), { bits(1.25f), 120u, bits(1375.0f), bits(285.0f) });
    return payload;
}

} // namespace

/// What the instrument sends, taken apart: every frame, the escaping, and what makes no sense.
class TstProcessorFrames : public QObject
{
    Q_OBJECT

private slots:
    void framesOfTheInstrumentAreUnderstood_data();
    void framesOfTheInstrumentAreUnderstood();
    void whatMakesNoSenseIsMalformed_data();
    void whatMakesNoSenseIsMalformed();
    void escapedWordsComeBack_data();
    void escapedWordsComeBack();
    void word124IsNotSpecial();
    void setupOfTwentyOneWordsIsNinetySixBytes();
    void setupIsDecodedWordByWord();
    void olderSetupKeepsWhatItDoesNotName();
    void clockBytesKeepTheirOrder();
    void everyCutOfAFrameIsHandled();
    void logLineHoldsTimeWordsAndMeaning();
    void longFrameIsCutInTheLog();
    void logFileGrowsLineByLine();
};

void TstProcessorFrames::framesOfTheInstrumentAreUnderstood_data()
{
    QTest::addColumn<Words>("words");
    QTest::addColumn<int>("type");
    QTest::addColumn<Words>("payload");
    QTest::newRow("stream off") << Words { 122, 193, 0, 123 } << int(Type::Stream) << Words { 0 };
    QTest::newRow("stream on") << Words { 122, 193, 1, 123 } << int(Type::Stream) << Words { 1 };
    QTest::newRow("firmware request") << Words { 122, 194, 0, 123 } << int(Type::FirmwareInfo) << Words { 0 };
    QTest::newRow("clock") << Words { 122, 195, 0x04010203, 0x07E80112, 123 } << int(Type::SetClock)
                           << Words { 0x04010203, 0x07E80112 };
    QTest::newRow("announcement of 4096 bytes")
        << Words { 122, 196, 1, 1, 4096, 123 } << int(Type::FirmwareAnnounce) << Words { 4096 };
    QTest::newRow("announcement of 125 bytes, escaped")
        << Words { 122, 196, 1, 1, 125, 93, 123 } << int(Type::FirmwareAnnounce) << Words { 125 };
    QTest::newRow("image") << Words { 122, 196, 2, 1, 9, 8, 7, 123 } << int(Type::FirmwareData) << Words { 9, 8, 7 };
    QTest::newRow("image, empty") << Words { 122, 196, 2, 1, 123 } << int(Type::Malformed) << Words {};
    QTest::newRow("buzzer") << Words { 194, 3 } << int(Type::Buzzer) << Words { 3 };
    QTest::newRow("older clock") << Words { 197, 0, 1, 2 } << int(Type::OlderClock) << Words {};
    QTest::newRow("inrush") << Words { 174 } << int(Type::Inrush) << Words {};
    QTest::newRow("flash") << Words { 0xCF, 3 } << int(Type::Flash) << Words {};
}

void TstProcessorFrames::framesOfTheInstrumentAreUnderstood()
{
    QFETCH(Words, words);
    QFETCH(int, type);
    QFETCH(Words, payload);
    const Frame frame = parse(words);
    QCOMPARE(int(frame.type), type);
    if (type != int(Type::Malformed))
        QVERIFY(frame.words == payload);
}

void TstProcessorFrames::whatMakesNoSenseIsMalformed_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("one byte") << QByteArray(1, 'z');
    QTest::newRow("not whole words") << bytesOf({ 122, 193, 1, 123 }).left(15);
    QTest::newRow("start marker alone") << bytesOf({ 122 });
    QTest::newRow("start and end without a command") << bytesOf({ 122, 123 });
    QTest::newRow("no end marker") << bytesOf({ 122, 193, 1, 124 });
    QTest::newRow("words behind the end marker") << bytesOf({ 122, 193, 1, 123, 0 });
    QTest::newRow("stream 2") << bytesOf({ 122, 193, 2, 123 });
    QTest::newRow("stream without a value") << bytesOf({ 122, 193, 123 });
    QTest::newRow("start marker inside") << bytesOf({ 122, 195, 122, 0, 123 });
    QTest::newRow("end marker inside") << bytesOf({ 122, 195, 123, 0, 123 });
    QTest::newRow("escape at the end") << bytesOf({ 122, 195, 0, 125, 123 });
    QTest::newRow("escape before a word that needs none") << bytesOf({ 122, 195, 125, 5, 0, 123 });
    QTest::newRow("unknown command") << bytesOf({ 122, 200, 0, 123 });
    QTest::newRow("clock of one word") << bytesOf({ 122, 195, 0, 123 });
    QTest::newRow("set-up of 20 words") << buildFrame(198, Words(20, 0));
    QTest::newRow("set-up of 22 words") << buildFrame(198, Words(22, 0));
    QTest::newRow("firmware transfer 3") << bytesOf({ 122, 196, 3, 1, 0, 123 });
    QTest::newRow("announcement of two words") << bytesOf({ 122, 196, 1, 1, 8, 8, 123 });
    QTest::newRow("raw command unknown") << bytesOf({ 175 });
    QTest::newRow("raw buzzer of one word") << bytesOf({ 194 });
    QTest::newRow("flash with another word") << bytesOf({ 0xCF, 2 });
    QTest::newRow("older set-up of 25 words") << bytesOf([] {
        Words words(25, 0);
        words[0] = 198;
        return words;
    }());
}

void TstProcessorFrames::whatMakesNoSenseIsMalformed()
{
    QFETCH(QByteArray, bytes);
    const Frame frame = parseFrame(bytes);
    QCOMPARE(int(frame.type), int(Type::Malformed));
    QVERIFY(frame.meaning().startsWith("malformed: "));
    QVERIFY(!frame.reason.isEmpty());
}

void TstProcessorFrames::escapedWordsComeBack_data()
{
    QTest::addColumn<Words>("payload");
    QTest::addColumn<Words>("onTheWire");
    QTest::newRow("122 goes as 125, 90") << Words { 122 } << Words { 125, 90 };
    QTest::newRow("123 goes as 125, 91") << Words { 123 } << Words { 125, 91 };
    QTest::newRow("125 goes as 125, 93") << Words { 125 } << Words { 125, 93 };
    QTest::newRow("what escapes turn into stands for itself") << Words { 90, 91, 93 } << Words { 90, 91, 93 };
    QTest::newRow("all in a row") << Words { 122, 123, 125, 122 } << Words { 125, 90, 125, 91, 125, 93, 125, 90 };
}

void TstProcessorFrames::escapedWordsComeBack()
{
    QFETCH(Words, payload);
    QFETCH(Words, onTheWire);
    Words image = { 2, 1 };
    image.insert(image.end(), payload.begin(), payload.end());
    const QByteArray frame = buildFrame(196, image);
    Words expected = { 122, 196, 2, 1 };
    expected.insert(expected.end(), onTheWire.begin(), onTheWire.end());
    expected.push_back(123);
    QVERIFY(wordsOf(frame) == expected);
    QVERIFY(parseFrame(frame).words == payload);
}

void TstProcessorFrames::word124IsNotSpecial()
{
    const Frame frame = parse({ 122, 196, 2, 1, 124, 124, 123 });
    QCOMPARE(int(frame.type), int(Type::FirmwareData));
    QVERIFY(frame.words == (Words { 124, 124 }));
}

void TstProcessorFrames::setupOfTwentyOneWordsIsNinetySixBytes()
{
    QCOMPARE(buildFrame(198, setupPayload()).size(), 96);
    Words payload = setupPayload();
    payload[3] = 122; // a float of that bit pattern is escaped like an integer
    QCOMPARE(buildFrame(198, payload).size(), 100);
    QVERIFY(parseFrame(buildFrame(198, payload)).words == payload);
}

void TstProcessorFrames::setupIsDecodedWordByWord()
{
    const auto setup = setupOf(parseFrame(buildFrame(198, setupPayload())), {});
    QVERIFY(setup);
    QCOMPARE(setup->nominalFrequency, 60);
    QVERIFY(setup->flexibleClamp);
    QCOMPARE(int(setup->wiring), 1);
    QCOMPARE(setup->voltageZero[3], 0.03f);
    QCOMPARE(setup->currentZero[0], 0.04f);
    QCOMPARE(setup->voltageGain[2], 1.002f);
    QCOMPARE(setup->transientThreshold, 1.25f);
    QCOMPARE(setup->flickerCurve, 120);
    QCOMPARE(setup->signallingFrequency[1], 285.0f);
    Words unknown = setupPayload();
    unknown[0] = 55u << 16;
    QVERIFY(!setupOf(parseFrame(buildFrame(198, unknown)), {}));
}

void TstProcessorFrames::olderSetupKeepsWhatItDoesNotName()
{
    Words block(26, 0);
    block[0] = 198;
    block[1] = 400u << 16; // high half: nominal frequency
    block[2] = bits(0.5f); // first voltage offset
    for (std::size_t i = 10; i < 18; ++i)
        block[i] = bits(1.0f);
    block[18] = bits(2.0f); // threshold
    block[19] = (1u << 24) | 1u; // clamp, delta
    processor::ProcessorSetup now;
    now.flickerCurve = 120;
    now.signallingFrequency = { { 100.0f, 200.0f } };
    const auto setup = setupOf(parse(block), now);
    QVERIFY(setup);
    QCOMPARE(setup->nominalFrequency, 400);
    QVERIFY(setup->flexibleClamp);
    QCOMPARE(int(setup->wiring), 1);
    QCOMPARE(setup->voltageZero[0], 0.5f);
    QCOMPARE(setup->transientThreshold, 2.0f);
    QCOMPARE(setup->flickerCurve, 120);
    QCOMPARE(setup->signallingFrequency[0], 100.0f);
}

void TstProcessorFrames::clockBytesKeepTheirOrder()
{
    // 2024-01-18 (a Thursday) 03:02:01: seconds first, the year 0x07E8 low byte first.
    const Frame frame = parse({ 122, 195, 0x04030201, 0x07E80112, 123 });
    QCOMPARE(QByteArray(reinterpret_cast<const char *>(frame.clock.data()), 8).toHex(), QByteArray("010203041201e807"));
    DeviceClock clock;
    QVERIFY(clock.setBinary(frame.clock, 0));
    QCOMPARE(DeviceClock::text(clock.at(0)), QString("2024-01-18T03:02:01.000"));
}

void TstProcessorFrames::everyCutOfAFrameIsHandled()
{
    const QByteArray frame = buildFrame(198, setupPayload());
    for (int length = 0; length < frame.size(); ++length)
        QCOMPARE(int(parseFrame(frame.left(length)).type), int(Type::Malformed));
}

void TstProcessorFrames::logLineHoldsTimeWordsAndMeaning()
{
    const QByteArray on = bytesOf({ 122, 193, 1, 123 });
    QCOMPARE(FrameLog::line(1705594501250, on, parseFrame(on)),
             QString("2024-01-18T16:15:01.250 0000007a 000000c1 00000001 0000007b  stream on"));
    const QByteArray odd = bytesOf({ 122 }) + QByteArray("\x01\x02", 2);
    QVERIFY(FrameLog::line(0, odd, parseFrame(odd)).contains(" 0000007a +0102  malformed: 6 bytes"));
}

void TstProcessorFrames::longFrameIsCutInTheLog()
{
    Words image(1000, 5);
    image[0] = 2;
    image[1] = 1;
    const QByteArray frame = buildFrame(196, image);
    const QString line = FrameLog::line(0, frame, parseFrame(frame));
    QVERIFY(line.contains("... (1003 words)  firmware data, 998 words"));
    QVERIFY(line.size() < 400);
}

void TstProcessorFrames::logFileGrowsLineByLine()
{
    QTemporaryDir folder;
    FrameLog log;
    QString error;
    QVERIFY(log.open(folder.filePath("frames"), &error));
    for (quint32 value : { 1u, 0u }) {
        const QByteArray frame = bytesOf({ 122, 193, value, 123 });
        log.write(0, frame, parseFrame(frame));
    }
    QFile file(folder.filePath("frames"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = file.readAll().split('\n');
    QCOMPARE(lines.size(), 3);
    QVERIFY(lines[0].endsWith("stream on") && lines[1].endsWith("stream off"));
    FrameLog refused;
    QVERIFY(!refused.open(folder.filePath("none/frames"), &error));
    QVERIFY(error.startsWith("cannot write "));
}

QTEST_GUILESS_MAIN(TstProcessorFrames)
#include "tst_processor_frames.moc"
